#include "look/app_icon.h"
#include "look/colours.h"
#include "look/glyphs.h"
#include "look/path_text.h"
#include "rendering.h"

#include <QPainter>

namespace qinghe::testing {
namespace {

bool isPainted(const QColor& colour) {
    return colour.alpha() > 0;
}

class EveryGlyph : public ::testing::TestWithParam<int> {};

TEST_P(EveryGlyph, PaintsSomethingAndStaysInItsRoom) {
    constexpr QRect room(20, 20, 24, 24);
    const QImage image = drawn(QSize(64, 64), 1, [&](QPainter& painter) {
        paintGlyph(painter, static_cast<Glyph>(GetParam()), room, colour::LeafDeep);
    });
    const QRect ink = extent(image, isPainted);
    EXPECT_GE(qMax(ink.width(), ink.height()), 14);
    EXPECT_TRUE(room.contains(ink)) << ink.left() << ' ' << ink.top() << ' ' << ink.right() << ' ' << ink.bottom();
}

TEST_P(EveryGlyph, LooksLikeNoOther) {
    const auto picture = [](int glyph) {
        return drawn(QSize(24, 24), 1, [&](QPainter& painter) {
            paintGlyph(painter, static_cast<Glyph>(glyph), QRectF(0, 0, 24, 24), colour::LeafDeep);
        });
    };
    for (int other = 1; other < GetParam(); ++other)
        EXPECT_NE(picture(GetParam()), picture(other)) << other;
}

INSTANTIATE_TEST_SUITE_P(Icons, EveryGlyph,
                         ::testing::Range(static_cast<int>(Glyph::Borrow), static_cast<int>(Glyph::AppIcon) + 1));

TEST(Glyphs, KeepTheirShapeInARoomThatIsNoSquare) {
    const QImage image = drawn(QSize(60, 20), 1, [](QPainter& painter) {
        paintGlyph(painter, Glyph::Info, QRectF(0, 0, 60, 20), colour::LeafDeep);
    });
    const QRect ink = extent(image, isPainted);
    EXPECT_EQ(ink.width(), ink.height());
    EXPECT_EQ(ink.center().x(), 29);
}

TEST(Glyphs, NonePaintsNothing) {
    const QImage image = drawn(QSize(20, 20), 1, [](QPainter& painter) {
        paintGlyph(painter, Glyph::None, QRectF(0, 0, 20, 20), colour::LeafDeep);
    });
    EXPECT_TRUE(extent(image, isPainted).isNull());
}

TEST(ProgramIcon, ComesInAllSizesOfTheDesktop) {
    const QIcon icon = appIcon();
    for (const int side : {16, 24, 32, 48, 64, 256})
        EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
}

TEST(ProgramIcon, LeavesOutTheRulesWhereTheyWouldBlur) {
    const auto hasMargin = [](int side) {
        const QImage image = appIcon().pixmap(QSize(side, side)).toImage();
        return !extent(image, [](const QColor& c) { return c.alpha() > 0 && c.red() > c.green() + 25; }).isNull();
    };
    EXPECT_TRUE(hasMargin(64));
    EXPECT_FALSE(hasMargin(16));
}

TEST(PathText, ReadsEveryLetter) {
    EXPECT_EQ(pathOf("M1 2 L3 4 H9 V8 Z").boundingRect(), QRectF(1, 2, 8, 6));
    EXPECT_EQ(pathOf("O10 10 4").boundingRect(), QRectF(6, 6, 8, 8));
    EXPECT_EQ(pathOf("R1 2 3 4 .5").boundingRect(), QRectF(1, 2, 3, 4));
    EXPECT_EQ(pathOf("M0 0 C0 5 5 10 10,-10").currentPosition(), QPointF(10, -10));
    EXPECT_EQ(pathOf("M0 0 L1 1 2 2").currentPosition(), QPointF(2, 2));
}

} // namespace
} // namespace qinghe::testing
