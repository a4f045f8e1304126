#include "delivery/pictures.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace qinghe {
namespace {

constexpr int density = 2;
constexpr int jpegQuality = 90;

constexpr QSize skinScene(800, 540);
constexpr Picture skinTable[] = {{u"青禾", skinScene, paintQinghe},
                                 {u"水田晨曦", skinScene, paintDawn},
                                 {u"水墨远山", skinScene, paintInk},
                                 {u"暖纸稻香", skinScene, paintRicePaper}};
constexpr Picture desktop{u"青禾桌面", {761, 389}, paintDesktop};
constexpr Picture signIn{u"青禾登录", {355, 280}, paintSignIn};

} // namespace

std::span<const Picture> skins() {
    return skinTable;
}

const Picture& desktopPicture() {
    return desktop;
}

const Picture& signInPicture() {
    return signIn;
}

QByteArray jpegOf(const Picture& picture) {
    QImage image(picture.scene * density, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(density, density);
    picture.paint(painter);
    painter.end();

    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", jpegQuality);
    return bytes;
}

} // namespace qinghe
