#include "delivery/web_pages.h"

#include "delivery/renew.h"
#include "look/app_icon.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>

static void loadPages() {
    Q_INIT_RESOURCE(web);
}

namespace qinghe {
namespace {

QByteArray iconPng() {
    constexpr int size = 128;
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

} // namespace

QStringList webPageNames() {
    return {u"index.htm"_qs, u"softs.htm"_qs, u"adetail.htm"_qs};
}

void deliverWebPages(const QString& folder) {
    loadPages();
    const QDir web(QDir(folder).filePath(u"web"_qs));
    web.mkpath(u"."_qs);
    for (const QString& name : webPageNames() + QStringList(u"pages.css"_qs)) {
        renew(web.filePath(name), contentOf(u":/web/"_qs + name));
    }
    renew(web.filePath(u"qinghe.png"_qs), iconPng());
}

} // namespace qinghe
