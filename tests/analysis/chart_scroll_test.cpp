#include "chart_control_rig.h"

// The chart as a control: how it scrolls.

namespace qinghe::testing {
namespace {

TEST_F(ChartControlTest, StartsAtTheLeftWithEachData) {
    fill(std::vector<double>(30, 14792.7));
    ASSERT_TRUE(scrolls());
    EXPECT_EQ(chart.scrolled(), 0);
    chart.scrollTo(200);
    fill(std::vector<double>(40, 14792.7));
    EXPECT_EQ(chart.scrolled(), 0);
}

TEST_F(ChartControlTest, ScrollsByTheWheel) {
    fill(std::vector<double>(300, 14792.7));
    wheel(-1);
    const int once = chart.scrolled();
    EXPECT_GT(once, 0);
    wheel(-1);
    EXPECT_GT(chart.scrolled(), once);
    for (int i = 0; i < 200; ++i)
        wheel(+1);
    EXPECT_EQ(chart.scrolled(), 0);
}

TEST_F(ChartControlTest, ScrollsByDraggingThePlot) {
    fill(std::vector<double>(300, 14792.7));
    const QImage before = drawn();
    QTest::mousePress(&chart, Qt::LeftButton, {}, {500, 100});
    QTest::mouseMove(&chart, {380, 105});
    EXPECT_EQ(chart.scrolled(), 120);
    QTest::mouseRelease(&chart, Qt::LeftButton, {}, {380, 105});
    QTest::mouseMove(&chart, {300, 105});
    EXPECT_EQ(chart.scrolled(), 120);
    EXPECT_NE(drawn(), before);
}

TEST_F(ChartControlTest, ScrollsByDraggingTheStrip) {
    fill(std::vector<double>(30, 14792.7));
    QTest::mousePress(strip(), Qt::LeftButton, {}, {20, 4});
    QTest::mouseMove(strip(), {2000, 4});
    QTest::mouseRelease(strip(), Qt::LeftButton, {}, {2000, 4});
    EXPECT_EQ(chart.scrolled(), chart.places().longestScroll());
}

TEST_F(ChartControlTest, ScrollsByKeys) {
    fill(std::vector<double>(300, 14792.7));
    const int pitch = qRound(chart.places().pitch());
    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(chart.scrolled(), pitch);
    QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.scrolled(), 0);
    QTest::keyClick(&chart, Qt::Key_PageDown);
    EXPECT_EQ(chart.scrolled(), 652);
    QTest::keyClick(&chart, Qt::Key_End);
    EXPECT_EQ(chart.scrolled(), chart.places().longestScroll());
    QTest::keyClick(&chart, Qt::Key_Home);
    EXPECT_EQ(chart.scrolled(), 0);
}

TEST_F(ChartControlTest, TakesTheKeyboardOnlyWhileItScrolls) {
    fill({1, 2, 3});
    EXPECT_EQ(chart.focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(scrolls());
    fill(std::vector<double>(300, 14792.7));
    EXPECT_EQ(chart.focusPolicy(), Qt::StrongFocus);
}

TEST_F(ChartControlTest, DrawsTheLastRowsAtTheRightEnd) {
    std::vector<double> values(300, 100);
    values.back() = -100;
    fill(values);
    EXPECT_EQ(count(drawn(), QRectF(chart.rect()), isAmber), 0);
    chart.scrollTo(chart.places().longestScroll());
    const QRectF plot = chart.places().plot();
    EXPECT_GT(count(drawn(), QRectF(plot.right() - chart.places().pitch(), 0, chart.places().pitch(), chart.height()),
                    isAmber),
              500);
}

TEST_F(ChartControlTest, PaintsNoRowOverTheSidesOfThePlot) {
    fill(std::vector<double>(300, 14792.7));
    const QRectF plot = chart.places().plot();
    const QRectF left(plot.left() - 7, 0, 7, chart.height()), right(plot.right(), 0, 12, chart.height());
    for (const int at : {10, 25, 40, 55}) {
        chart.scrollTo(at);
        const QImage image = drawn();
        for (const QRectF& side : {left, right})
            EXPECT_EQ(count(image, side.adjusted(1, 0, -1, 0), [](QRgb pixel) { return pixel != 0xFFFFFFFF; }), 0)
                << at;
    }
}

TEST_F(ChartControlTest, KeepsTheAxisAsItIsWhileRowsPassBeside) {
    fill(std::vector<double>(300, 14792.7));
    const QRect axis(0, 0, 50, chart.height());
    const QImage before = drawn().copy(axis);
    EXPECT_GT(count(before, before.rect(), isWritten), 200);
    for (int at = 1; at < 65; at += 3) {
        chart.scrollTo(at);
        EXPECT_EQ(drawn().copy(axis), before) << at;
    }
}

} // namespace
} // namespace qinghe::testing
