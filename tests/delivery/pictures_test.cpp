#include "delivery/pictures.h"
#include "delivery/strokes.h"
#include "look/pictures.h"

#include <QImage>

#include <gtest/gtest.h>

namespace qinghe {
namespace {

QImage drawn(const Picture& picture) {
    return QImage::fromData(jpegOf(picture), "JPEG");
}

/// Places are those of the picture's scene, a pixel at 100 %.
QColor colourAt(const QImage& image, double x, double y) {
    return image.pixelColor(qRound(2 * x), qRound(2 * y));
}

bool looksLike(const QColor& colour, QRgb wanted, int tolerance = 6) {
    const QColor other = QColor::fromRgb(wanted);
    return std::abs(colour.red() - other.red()) <= tolerance && std::abs(colour.green() - other.green()) <= tolerance &&
           std::abs(colour.blue() - other.blue()) <= tolerance;
}

TEST(Pictures, ComeOutTheSameEveryTime) {
    for (const Picture& skin : skins()) {
        EXPECT_EQ(jpegOf(skin), jpegOf(skin)) << qPrintable(skin.name.toString());
    }
    EXPECT_EQ(jpegOf(desktopPicture()), jpegOf(desktopPicture()));
    EXPECT_EQ(jpegOf(signInPicture()), jpegOf(signInPicture()));
}

TEST(Pictures, OfTheSkinsAreLightEnoughForTheThinVeil) {
    for (const Picture& skin : skins()) {
        EXPECT_FALSE(isDark(drawn(skin))) << qPrintable(skin.name.toString());
    }
}

TEST(Pictures, OfTheSkinsAreFourDifferentOnes) {
    QList<QByteArray> pictures;
    for (const Picture& skin : skins()) {
        const QByteArray jpeg = jpegOf(skin);
        EXPECT_FALSE(pictures.contains(jpeg)) << qPrintable(skin.name.toString());
        pictures << jpeg;
    }
}

TEST(Pictures, KeepTheMiddleOfASkinQuiet) {
    for (const Picture& skin : skins()) {
        const QImage middle = drawn(skin)
                                  .copy(2 * 40, 2 * 150, 2 * 720, 2 * 150)
                                  .scaled(24, 5, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        for (int x = 0; x < middle.width(); ++x) {
            for (int y = 0; y < middle.height(); ++y) {
                EXPECT_GT(qGray(middle.pixel(x, y)), 200) << qPrintable(skin.name.toString()) << ' ' << x << ',' << y;
            }
        }
    }
}

TEST(DesktopPicture, IsPlainWhiteBehindTheFigures) {
    const QImage image = drawn(desktopPicture());
    for (const double left : {24.0, 272.0}) {
        for (const double middle : {90.0, 154.0, 218.0, 282.0, 338.0}) {
            for (double x = left + 100; x < left + 235; x += 3) {
                EXPECT_TRUE(looksLike(colourAt(image, x, middle - 16), 0xFFFFFF, 2)) << x << ',' << middle;
            }
        }
    }
}

TEST(DesktopPicture, BearsRowWordsAndIconsLevelWithTheFigures) {
    const QImage image = drawn(desktopPicture());
    for (const double left : {24.0, 272.0}) {
        for (const double middle : {90.0, 154.0, 218.0, 282.0, 338.0}) {
            double top = 1e9;
            double bottom = 0;
            for (double y = middle - 30; y < middle + 14; y += 0.5) { // the picture begins 16 below its page
                for (double x = left + 57; x < left + 88; x += 0.5) {
                    if (qGray(colourAt(image, x, y).rgb()) < 110) {
                        top = std::min(top, y + 16);
                        bottom = std::max(bottom, y + 16);
                    }
                }
            }
            EXPECT_NEAR((top + bottom) / 2, middle, 1.5) << left;
            EXPECT_GT(bottom - top, 10) << left;
            EXPECT_FALSE(looksLike(colourAt(image, left + 20, middle - 16), 0xFFFFFF, 8)) << left << ',' << middle;
        }
    }
}

TEST(DesktopPicture, HasThreeHeadings) {
    const QImage image = drawn(desktopPicture());
    EXPECT_TRUE(looksLike(colourAt(image, 24 + 130, 24), 0xDCEBCF));
    EXPECT_TRUE(looksLike(colourAt(image, 272 + 130, 24), 0x3A7426));
    EXPECT_TRUE(looksLike(colourAt(image, 520 + 170, 24), 0xF6EBC9));
}

TEST(SignInPicture, HasAPlainCardForTheFields) {
    const QImage image = drawn(signInPicture());
    for (double y = 135; y < 262; y += 3) {
        EXPECT_TRUE(looksLike(colourAt(image, 300, y), 0xFCFDFB, 4)) << y;
    }
}

TEST(HillLine, IsLevelAtEveryPoint) {
    const Profile height(hillLine({{0, 10}, {50, 40}, {100, 20}}));
    EXPECT_NEAR(height(50), 40, 0.05);
    EXPECT_NEAR(height(49), 40, 0.1);
    EXPECT_NEAR(height(51), 40, 0.1);
    EXPECT_NEAR(height(25), 25, 0.1);
}

TEST(BendingLine, GoesThroughItsHeightsAtEqualSteps) {
    const Profile height(bendingLine({100, 140, 90}));
    EXPECT_NEAR(height(0), 100, 0.1);
    EXPECT_NEAR(height(400), 140, 0.1);
    EXPECT_NEAR(height(800), 90, 0.1);
}

TEST(Profile, GoesOnLevelBeyondItsEnds) {
    const Profile height(bendingLine({100, 140, 90}));
    EXPECT_EQ(height(-5), 100);
    EXPECT_EQ(height(805), 90);
}

} // namespace
} // namespace qinghe
