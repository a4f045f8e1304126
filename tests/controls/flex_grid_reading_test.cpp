#include "controls/ms_flex_grid.h"
#include "window_fixture.h"

#include <QScrollBar>
#include <QStyleOptionSlider>

// A list that is disabled is read: it scrolls, and its clicks are its page's.

namespace qinghe::testing {
namespace {

class GridReading : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        handlers::enter([this] {
            grid.setUsable(false);
            grid.setRows(41);
            grid.setRow(40);
            grid.showTop();
        });
        frame.Click = [this] { note(u"Frame2"_s); };
        turnLoop();
        noted();
    }
    int top() { return bar.value(); }
    QPoint thumb() {
        QStyleOptionSlider state;
        state.initFrom(&bar);
        state.orientation = Qt::Vertical;
        state.maximum = bar.maximum();
        state.pageStep = bar.pageStep();
        state.sliderPosition = state.sliderValue = bar.value();
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &state, QStyle::SC_ScrollBarSlider, &bar).center();
    }
    void wheel(int notches) { pointer::wheel(*grid.viewport(), QPoint(40, 40), notches); }

    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 6000, 4500});
    OptionButton& option = put<OptionButton>(frame, u"Option8"_s, {0, 3300, 1200, 300}, u"统计"_s);
    MSFlexGrid& grid = put<MSFlexGrid>(frame, u"ms2"_s, {150, 300, 5700, 2400});
    QScrollBar& bar = *grid.verticalScrollBar();
};

TEST_F(GridReading, ItStandsAtItsTopWhereverTheCurrentCellIs) {
    EXPECT_EQ(top(), 0);
    EXPECT_EQ(grid.Row(), 40);
    EXPECT_FALSE(grid.isEnabled());
    EXPECT_FALSE(grid.property("enabled").toBool());
}

TEST_F(GridReading, ItGoesToItsTopFromWhereItStood) {
    bar.setValue(20);
    handlers::enter([this] { grid.showTop(); });
    EXPECT_EQ(top(), 0);
    handlers::enter([this] {
        grid.showTop();
        grid.setRow(40); // said later
    });
    EXPECT_GT(top(), 0);
}

TEST_F(GridReading, TheWheelMovesIt) {
    wheel(1);
    const int down = top();
    EXPECT_GT(down, 0);
    wheel(1);
    EXPECT_GT(top(), down);
    wheel(-2);
    EXPECT_EQ(top(), 0);
}

TEST_F(GridReading, TheBarIsDraggedByTheMouse) {
    pointer::press(bar, thumb());
    pointer::move(bar, thumb() + QPoint(0, 30));
    const int dragged = top();
    EXPECT_GT(dragged, 0);
    pointer::move(bar, QPoint(5, bar.height() + 200));
    EXPECT_EQ(top(), bar.maximum());
    pointer::release(bar, QPoint(5, bar.height() - 1));
    EXPECT_EQ(top(), bar.maximum());
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(GridReading, AClickBesideTheThumbMovesItByAPage) {
    pointer::click(bar, QPoint(bar.width() / 2, bar.height() - 3));
    EXPECT_EQ(top(), bar.pageStep());
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(GridReading, ThePageKeysMoveItFromTheOptionThatHasTheKeyboard) {
    option.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_PageDown);
    EXPECT_EQ(top(), bar.pageStep());
    QTest::keyClick(form.windowHandle(), Qt::Key_PageDown);
    EXPECT_EQ(top(), 2 * bar.pageStep());
    QTest::keyClick(form.windowHandle(), Qt::Key_PageUp);
    EXPECT_EQ(top(), bar.pageStep());
    EXPECT_TRUE(option.hasFocus());
    EXPECT_EQ(grid.Row(), 40);
}

TEST_F(GridReading, AListThatIsEnabledLeavesThePageKeysOfItsPageAlone) {
    grid.setUsable(true);
    option.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_PageDown);
    EXPECT_EQ(top(), 0);
}

TEST_F(GridReading, AListThatIsHiddenLeavesThePageKeysOfItsPageAlone) {
    grid.setShown(false);
    option.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_PageDown);
    EXPECT_EQ(top(), 0);
}

TEST_F(GridReading, ItsClicksAreStillItsPages) {
    bar.setValue(10);
    pointer::click(*grid.viewport(), QPoint(40, 60));
    EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
    EXPECT_EQ(grid.Row(), 40);
    EXPECT_EQ(top(), 10);
    EXPECT_FALSE(grid.hasFocus());
}

} // namespace
} // namespace qinghe::testing
