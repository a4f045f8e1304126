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

using namespace Qt::StringLiterals;

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
    return {u"index.htm"_s, u"softs.htm"_s, u"adetail.htm"_s};
}

void deliverWebPages(const QString& folder) {
    loadPages();
    const QDir web(QDir(folder).filePath(u"web"_s));
    web.mkpath(u"."_s);
    for (const QString& name : webPageNames() + QStringList(u"pages.css"_s)) {
        renew(web.filePath(name), contentOf(u":/web/"_s + name));
    }
    renew(web.filePath(u"qinghe.png"_s), iconPng());
}

} // namespace qinghe
