#include "platform/pictures.h"

#include "runtime/runtime_error.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageIOHandler>
#include <QImageReader>

#include <algorithm>
#include <cstdlib>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int LargestPictureMiB = 512;     ///< decoded; 48 megapixels need 184
constexpr qint64 MostPixels = 100'000'000; ///< a camera's have 12 to 60

/// A JPEG of several scans is put together in memory as a whole, however small it is shown, and each scan goes over all
/// of it: a few bytes of each suffice to keep a machine at it for minutes.
constexpr qint64 MostScannedPixels = 1'000'000'000; ///< 100 megapixels in the usual ten scans
constexpr QByteArrayView ScanMark = "\xFF\xDA";

/// How a picture of this kind begins, and who reads it; none of the system's other readers is let near it.
struct Kind {
    QByteArrayView start;
    const char* reader;
};
constexpr Kind Kinds[] = {{"\xFF\xD8\xFF", "jpeg"}, {"\x89PNG\r\n\x1A\n", "png"}, {"BM", "bmp"}, {"GIF8", "gif"}};

[[noreturn]] void refuse(const QString& name, const QString& why) {
    throw RuntimeError(RuntimeError::InvalidPicture, u"%1：%2。请换一个 JPEG、PNG、BMP 或 GIF 图片。"_s.arg(why, name));
}

bool isTooHeavy(const QByteArray& bytes, const QSize& size) {
    const qint64 pixels = std::abs(qint64{size.width()} * size.height());
    return pixels > MostPixels || pixels * std::max(bytes.count(ScanMark), qsizetype{1}) > MostScannedPixels;
}

} // namespace

QImage pictureFrom(const QByteArray& bytes, const QSize& fill, const QString& name) {
    const auto* kind = std::ranges::find_if(Kinds, [&](const Kind& each) { return bytes.startsWith(each.start); });
    if (kind == std::end(Kinds))
        refuse(name, u"这个文件不是能显示的图片"_s);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, kind->reader);
    reader.setAutoDetectImageFormat(false);
    reader.setAllocationLimit(LargestPictureMiB);
    reader.setAutoTransform(true);
    if (isTooHeavy(bytes, reader.size()))
        refuse(name, u"这个图片太大，程序不打开它"_s);
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize needed = turned ? (fill * qApp->devicePixelRatio()).transposed() : fill * qApp->devicePixelRatio();
    if (reader.size().width() > needed.width() && reader.size().height() > needed.height())
        reader.setScaledSize(needed);
    QImage image = reader.read();
    if (image.isNull())
        refuse(name, u"这个文件不是能显示的图片"_s);
    return image;
}

} // namespace qinghe
