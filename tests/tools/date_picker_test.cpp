#include "tools/tool_rig.h"

#include <QApplication>

// The date picker's window: what it shows, and what its clicks do.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Yellow = 0xFFFF, Blue = 0xFF0000;

class DatePickerTest : public ToolTest {
protected:
    Label& day(int index) { return rig.at(date_picker::Day[index]); }
    QString title() { return rig.at(date_picker::Month).Caption(); }
    void forward() { rig.click(rig.at(date_picker::Forward)); }
    void back() { rig.click(rig.at(date_picker::Back)); }
    QList<int> blueCells() {
        QList<int> blue;
        for (int i = 0; i < 42; ++i)
            if (day(i).BackColor() == Blue)
                blue << i;
        return blue;
    }
    bool isOpen() { return ToolTest::isOpen(forms::DatePicker); }
};

TEST_F(DatePickerTest, OpensOnTheMonthOfToday) {
    Form& picker = openDatePicker(); // the rig's day is 2024-6-18
    EXPECT_EQ(picker.Caption(), u"2024\\6\\18");
    EXPECT_EQ(title(), u"2024 年 6月");
    EXPECT_EQ(rig.at(date_picker::WeekDays).Caption(), u" 日  一  二 三  四 五  六");
    EXPECT_EQ(day(5).Caption(), u"31");
    EXPECT_EQ(day(6).Caption(), u"1"); // a Saturday
    EXPECT_EQ(day(35).Caption(), u"30");
    EXPECT_EQ(day(41).Caption(), u"6");
}

TEST_F(DatePickerTest, ShowsNeighboursInYellowAndTodayOnBlue) {
    const Form& picker = openDatePicker();
    for (int i = 0; i < 42; ++i)
        EXPECT_EQ(day(i).ForeColor(), i < 6 || i > 35 ? Yellow : picker.ForeColor()) << i;
    EXPECT_EQ(blueCells(), QList<int>{6 + 17});
    EXPECT_EQ(day(0).BackColor(), picker.BackColor());
}

TEST_F(DatePickerTest, LaysItsCellsInSixRowsOfSeven) {
    openDatePicker();
    for (int i = 0; i < 42; ++i) {
        EXPECT_EQ(day(i).Left() - day(0).Left(), i % 7 * day(0).Width());
        EXPECT_EQ(day(i).Top() - day(0).Top(), i / 7 * day(0).Height());
    }
}

TEST_F(DatePickerTest, StepsMonthByMonthWithABlankBehindItsTitle) {
    openDatePicker();
    forward();
    EXPECT_EQ(title(), u"2024 年 7月 ");
    EXPECT_EQ(day(1).Caption(), u"1");          // a Monday
    EXPECT_EQ(blueCells(), QList<int>{1 + 17}); // today's number in every month
    back();
    back();
    EXPECT_EQ(title(), u"2024 年 5月 ");
    EXPECT_EQ(rig.loaded(forms::DatePicker)->Caption(), u"2024\\6\\18");
}

TEST_F(DatePickerTest, StepsBackFromJanuaryToDecemberOfTheYearBefore) {
    rig.clock->time.setDate(QDate(2024, 1, 10));
    openDatePicker();
    back();
    EXPECT_EQ(title(), u"2023 年 12月 ");
    forward();
    EXPECT_EQ(title(), u"2024 年 1月 ");
}

TEST_F(DatePickerTest, ShowsALeapFebruaryWithItsTwentyNinth) {
    rig.clock->time.setDate(QDate(2024, 2, 20));
    openDatePicker();
    EXPECT_EQ(day(4 + 28).Caption(), u"29");
    EXPECT_EQ(day(4 + 28).ForeColor(), rig.loaded(forms::DatePicker)->ForeColor());
    EXPECT_EQ(day(4 + 29).ForeColor(), Yellow);
}

TEST_F(DatePickerTest, OpensWrongOnASundayTheFifth) {
    rig.clock->time.setDate(QDate(2024, 5, 5));
    openDatePicker();
    EXPECT_EQ(day(3).Caption(), u"28"); // where the first should stand, on Wednesday
    EXPECT_EQ(day(6).Caption(), u"1");
    EXPECT_EQ(blueCells(), QList<int>{6 + 4});
}

TEST_F(DatePickerTest, MarksTheClickedCellAloneAndDoesNothingElse) {
    openDatePicker();
    const QString before = tx2().Text();
    for (const int index : {0, 10, 40}) {
        rig.click(day(index));
        EXPECT_EQ(blueCells(), QList<int>{index});
    }
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(tx2().Text(), before);
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

TEST_F(DatePickerTest, MarksAnEmptyCellAsWell) {
    openDatePicker();
    back(); // May ends in the fifth week
    EXPECT_EQ(day(41).Caption(), u"");
    rig.click(day(41));
    EXPECT_EQ(blueCells(), QList<int>{41});
}

TEST_F(DatePickerTest, FillsBoxAndCellByADoubleClickAndCloses) {
    openDatePicker();
    rig.doubleClick(day(6 + 2));
    EXPECT_EQ(tx2().Text(), u"2024-6-3"); // never zero-padded
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-6-3");
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    EXPECT_TRUE(tx2().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &tx2());
}

TEST_F(DatePickerTest, GivesTheMonthOnShowForAYellowCell) {
    openDatePicker();
    rig.doubleClick(day(0)); // the 26th of May
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-6-26");
    openDatePicker();
    rig.doubleClick(day(41)); // the 6th of July
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-6-6");
}

TEST_F(DatePickerTest, GivesNoDayForAnEmptyCell) {
    openDatePicker();
    back();
    rig.doubleClick(day(41));
    EXPECT_EQ(tx2().Text(), u"2024-5-");
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-");
}

TEST_F(DatePickerTest, KeepsTheMonthOnShowWhenItIsShownAgain) {
    Form& picker = openDatePicker();
    back();
    rig.click(tx2());
    EXPECT_EQ(rig.loaded(forms::DatePicker), &picker);
    EXPECT_EQ(title(), u"2024 年 5月 ");
}

TEST_F(DatePickerTest, ForgetsTheMonthWhenItWasUnloaded) {
    openDatePicker();
    back();
    rig.loaded(forms::DatePicker)->close();
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
    openDatePicker();
    EXPECT_EQ(title(), u"2024 年 6月");
}

TEST_F(DatePickerTest, IsHiddenByAPressOnTheMainWindowAndComesBackWithItsMonth) {
    openDatePicker();
    back();
    QTest::mousePress(&rig.mainWindow(), Qt::LeftButton, {}, QPoint(30, 3));
    ASSERT_TRUE(rig.loaded(forms::DatePicker));
    EXPECT_FALSE(isOpen());
    QTest::mouseRelease(&rig.mainWindow(), Qt::LeftButton, {}, QPoint(30, 3));
    openDatePicker();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(title(), u"2024 年 5月 ");
}

} // namespace
} // namespace qinghe::testing
