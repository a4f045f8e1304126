#include "look/pictures.h"

#include <QImage>

#include <algorithm>
#include <list>

namespace qinghe {
namespace {

struct Kept {
    qint64 key;
    QSize size;
    QPixmap pixmap;
};
/// A window's picture and the desktop's; more are never on view at once.
constexpr std::size_t KeptPictures = 2;

constexpr QSize Blocks(20, 14), Cells(200, 135);
constexpr int DarkBlock = 140, DarkCell = 110;                      ///< greys
constexpr int MostDarkCells = Cells.width() * Cells.height() / 100; ///< the delivered skins have none

QImage scaledTo(const QImage& picture, const QSize& size) {
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int darkerThan(int grey, const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += qGray(picture.pixel(x, y)) < grey;
    return count;
}

QPixmap scaled(const QImage& picture, const QSize& size, double ratio) {
    QPixmap pixmap = QPixmap::fromImage(scaledTo(picture, size));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

bool isDark(const QImage& picture) {
    if (picture.isNull())
        return false;
    const QImage cells = scaledTo(picture, Cells);
    return darkerThan(DarkBlock, scaledTo(cells, Blocks)) > 0 || darkerThan(DarkCell, cells) > MostDarkCells;
}

QPixmap scaledPicture(const QImage& picture, const QSize& size, double ratio) {
    static std::list<Kept> kept;
    const QSize device = size * ratio;
    if (picture.size() == device && picture.format() == QImage::Format_RGB32) {
        QImage fitting = picture; // shares its pixels
        fitting.setDevicePixelRatio(ratio);
        return QPixmap::fromImage(std::move(fitting));
    }
    const auto found = std::find_if(kept.begin(), kept.end(),
                                    [&](const Kept& k) { return k.key == picture.cacheKey() && k.size == device; });
    if (found != kept.end()) {
        kept.splice(kept.begin(), kept, found);
        return kept.front().pixmap;
    }
    kept.push_front({picture.cacheKey(), device, scaled(picture, device, ratio)});
    if (kept.size() > KeptPictures)
        kept.pop_back();
    return kept.front().pixmap;
}

} // namespace qinghe
