#include "photograph.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <random>

namespace pictures {

QByteArray photograph() {
    QImage picture(1600, 1080, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient light(0, 0, 1600, 1080);
    light.setColorAt(0, QColor(20, 30, 60));
    light.setColorAt(0.5, QColor(250, 230, 180));
    light.setColorAt(1, QColor(60, 20, 10));
    painter.fillRect(picture.rect(), light);
    painter.setPen(Qt::NoPen);
    std::mt19937 random(20241118); // NOLINT: the same picture every time
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int i = 0; i < 2500; ++i) {
        const int side = 4 + below(90);
        painter.setBrush(QColor(below(256), below(256), below(256), 60 + below(196)));
        painter.drawEllipse(below(1600) - side / 2, below(1080) - side / 2, side, side / 2 + below(60));
    }
    painter.end();
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QBuffer::WriteOnly);
    picture.save(&buffer, "JPEG", 90);
    return jpeg;
}

} // namespace pictures
