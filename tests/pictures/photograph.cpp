#include "photograph.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <random>

namespace pictures {

namespace {

constexpr QSize Size(1600, 1080);

/// The same numbers every time.
class Chance {
public:
    int below(unsigned limit) { return static_cast<int>(m_random() % limit); }

private:
    std::mt19937 m_random{20241118}; // NOLINT
};

QByteArray jpegOf(const QImage& picture) {
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QBuffer::WriteOnly);
    picture.save(&buffer, "JPEG", 90);
    return jpeg;
}

} // namespace

QByteArray photograph() {
    QImage picture(Size, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient light(0, 0, Size.width(), Size.height());
    light.setColorAt(0, QColor(20, 30, 60));
    light.setColorAt(0.5, QColor(250, 230, 180));
    light.setColorAt(1, QColor(60, 20, 10));
    painter.fillRect(picture.rect(), light);
    painter.setPen(Qt::NoPen);
    Chance chance;
    for (int i = 0; i < 2500; ++i) {
        const int side = 4 + chance.below(90);
        painter.setBrush(QColor(chance.below(256), chance.below(256), chance.below(256), 60 + chance.below(196)));
        painter.drawEllipse(chance.below(1600) - side / 2, chance.below(1080) - side / 2, side,
                            side / 2 + chance.below(60));
    }
    painter.end();
    return jpegOf(picture);
}

QByteArray twigs() {
    QImage picture(Size, QImage::Format_RGB32);
    picture.fill(QColor(236, 240, 246));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    Chance chance;
    for (int i = 0; i < 1400; ++i) {
        const QPoint from(chance.below(1600), chance.below(1080)), way(chance.below(120) - 60, chance.below(120) - 60);
        painter.setPen(QPen(QColor(40, 30, 26), 1 + chance.below(7)));
        painter.drawLine(from, from + way);
    }
    painter.end();
    return jpegOf(picture);
}

} // namespace pictures
