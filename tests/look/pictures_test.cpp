#include "controls/form.h"
#include "look/colours.h"
#include "look/pictures.h"
#include "rendering.h"

#include <QPainter>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

QImage filled(const QColor& colour, const QSize& size = QSize(1600, 1080)) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

TEST(DarkRule, BlackIsDarkAndWhiteIsNot) {
    EXPECT_TRUE(isDark(filled(Qt::black)));
    EXPECT_FALSE(isDark(filled(Qt::white)));
    EXPECT_FALSE(isDark(QImage()));
}

TEST(DarkRule, OneDarkBlockIsEnough) {
    QImage picture = filled(Qt::white);
    QPainter(&picture).fillRect(320, 216, 80 * 2, 78 * 2, Qt::black);
    EXPECT_TRUE(isDark(picture));
}

TEST(DarkRule, AThinDarkLineIsNotABlock) {
    QImage picture = filled(Qt::white);
    QPainter(&picture).fillRect(0, 500, 1600, 6, Qt::black);
    EXPECT_FALSE(isDark(picture));
}

TEST(DarkRule, DarkTwigsAllOverALightPictureAreDark) {
    QImage picture = filled(QColor(236, 240, 246));
    QPainter painter(&picture);
    for (int x = 0; x < picture.width(); x += 60)
        painter.fillRect(x, 0, 12, picture.height(), QColor(40, 30, 26));
    painter.end();
    EXPECT_TRUE(isDark(picture));
}

TEST(DarkRule, TheGreyThatDivides) {
    EXPECT_TRUE(isDark(filled(QColor(138, 138, 138))));
    EXPECT_FALSE(isDark(filled(QColor(142, 142, 142))));
}

TEST(ScaledPictures, AreSharpOnADenseScreen) {
    const QImage picture = filled(Qt::red);
    const QPixmap scaled = scaledPicture(picture, QSize(100, 50), 2);
    EXPECT_EQ(scaled.size(), QSize(200, 100));
    EXPECT_EQ(scaled.deviceIndependentSize(), QSizeF(100, 50));
}

TEST(ScaledPictures, AreScaledOnceForAsLongAsTheyAreInUse) {
    const QImage picture = filled(Qt::red), other = filled(Qt::green), third = filled(Qt::blue);
    const qint64 first = scaledPicture(picture, QSize(100, 50), 1).cacheKey();
    scaledPicture(other, QSize(100, 50), 1);
    EXPECT_EQ(scaledPicture(picture, QSize(100, 50), 1).cacheKey(), first);
    EXPECT_NE(scaledPicture(picture, QSize(100, 51), 1).cacheKey(), first);
    scaledPicture(other, QSize(100, 50), 1);
    scaledPicture(third, QSize(100, 50), 1);
    EXPECT_NE(scaledPicture(picture, QSize(100, 50), 1).cacheKey(), first) << "no more than a few are kept";
}

class Window : public Form {
public:
    explicit Window(Ground ground) : Form(u"Window"_s, Kind::Frameless, ground) { place(0, 0, 12000, 8100); }
};

TEST(MainGround, FillsTheWindowWithThePictureAndLaysTheShelfOverIt) {
    Window window(Ground::Main);
    window.setPicture(filled(QColor(160, 200, 120)));
    const QImage image = rendered(window);
    EXPECT_TRUE(isNear(pixelAt(image, 790, 300), QColor(160, 200, 120)));
    EXPECT_GT(pixelAt(image, 400, 90).red(), 235) << "the label shelf is nearly white";
    EXPECT_GT(pixelAt(image, 100, 30).red(), pixelAt(image, 450, 30).red()) << "the veil is denser on the left";
}

TEST(MainGround, KeepsToItsControlsWhenTheWindowIsGivenAnotherSize) {
    Window window(Ground::Main);
    QImage picture = filled(QColor(160, 200, 120));
    QPainter(&picture).fillRect(1200, 0, 400, 1080, QColor(200, 220, 240));
    window.setPicture(picture);
    const QImage asked = rendered(window);
    window.setFixedSize(1200, 900);
    const QImage larger = rendered(window);
    EXPECT_EQ(larger.copy(asked.rect()), asked);
    EXPECT_TRUE(isNear(pixelAt(larger, 1000, 899), colour::DialogTo)) << "beyond it lies bare field";
    window.setFixedSize(600, 400);
    EXPECT_EQ(rendered(window), asked.copy(0, 0, 600, 400));
}

TEST(MainGround, ADarkPictureGetsADenserVeil) {
    Window window(Ground::Main);
    window.setPicture(filled(Qt::black));
    EXPECT_GE(qGray(pixelAt(rendered(window), 450, 30).rgb()), 210);
}

TEST(DialogGround, HasNoSeedlingsWhereControlsReachTheFoot) {
    Form dialog(u"Dialog"_s, Form::Kind::Dialog, Ground::Dialog);
    dialog.place(0, 0, 6000, 2400);
    const auto isLeaf = [](const QColor& c) { return c.green() > c.blue() + 45; };
    EXPECT_FALSE(extent(rendered(dialog), isLeaf).isNull());
    QWidget control(&dialog);
    control.setGeometry(0, 0, 400, 158);
    EXPECT_TRUE(extent(rendered(dialog), isLeaf).isNull());
}

} // namespace
} // namespace qinghe::testing
