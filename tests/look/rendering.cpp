#include "rendering.h"

#include <QPainter>

#include <cmath>

namespace qinghe::testing {

QImage rendered(QWidget& widget, double ratio) {
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image);
    return image;
}

void setGround(QWidget& widget, const QColor& colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, colour);
    widget.setPalette(palette);
}

QImage drawn(const QSize& size, double ratio, const std::function<void(QPainter&)>& draw) {
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(painter);
    return image;
}

QRect extent(const QImage& image, const std::function<bool(const QColor&)>& counts) {
    QRect all;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (counts(image.pixelColor(x, y)))
                all |= QRect(x, y, 1, 1);
    return all;
}

bool isNear(const QColor& one, const QColor& other, int tolerance) {
    return std::abs(one.red() - other.red()) <= tolerance && std::abs(one.green() - other.green()) <= tolerance &&
           std::abs(one.blue() - other.blue()) <= tolerance;
}

bool isDarkInk(const QColor& colour) {
    return colour.alpha() > 128 && qGray(colour.rgb()) < 110;
}

QColor pixelAt(const QImage& image, double x, double y) {
    const double ratio = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
}

} // namespace qinghe::testing
