#include "delivery/web_pages.h"

#include "look/app_icon.h"
#include "runtime/runtime_error.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>

static void loadPages() {
    Q_INIT_RESOURCE(web);
}

namespace qinghe {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void renew(const QString& path, const QByteArray& content) {
    if (contentOf(path) == content) {
        return;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        throw RuntimeError(RuntimeError::PathFileAccess, u"无法写入文件“%1”：%2。"_qs.arg(path, file.errorString()));
    }
}

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
