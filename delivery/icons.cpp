#include "delivery/icons.h"

#include "delivery/renew.h"
#include "look/app_icon.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>

namespace qinghe {

using namespace Qt::StringLiterals;

QByteArray iconPng(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintAppIcon(painter, image.rect());
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

void deliverIcons(const QString& folder) {
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        const QDir place(QDir(folder).filePath(u"%1x%1/apps"_s.arg(size)));
        place.mkpath(u"."_s);
        renew(place.filePath(u"qinghe.png"_s), iconPng(size));
    }
}

} // namespace qinghe
