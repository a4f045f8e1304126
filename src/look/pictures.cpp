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

QPixmap scaled(const QImage& picture, const QSize& size, double ratio) {
    QPixmap pixmap = QPixmap::fromImage(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

bool isDark(const QImage& picture) {
    if (picture.isNull())
        return false;
    const QImage blocks = picture.scaled(20, 14, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int y = 0; y < blocks.height(); ++y)
        for (int x = 0; x < blocks.width(); ++x)
            if (qGray(blocks.pixel(x, y)) < 140)
                return true;
    return false;
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
