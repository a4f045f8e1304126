#include "qt_printing.h"
#include "tools/month_grid.h"

#include <gtest/gtest.h>
#include <iterator>

namespace qinghe {
namespace {

const QDate kMay2024(2024, 5, 3);   // begins on Wednesday, 31 days
const QDate kJune2024(2024, 6, 11); // begins on Saturday, 30 days

/// Cells of a grid counted from 1, written "29y" for a neighbour's, "-" for an empty one, blanks between.
QString cellsText(const MonthGrid& grid, int first, int last) {
    QStringList texts;
    for (int number = first; number <= last; ++number) {
        const MonthGrid::Cell& cell = grid.cell(number - 1);
        texts += (cell.caption.isEmpty() ? u"-"_qs : cell.caption) + (cell.neighbour ? u"y"_qs : QString());
    }
    return texts.join(u' ');
}

QList<int> markedCells(const MonthGrid& grid) {
    QList<int> marked;
    for (int index = 0; index < MonthGrid::CellCount; ++index) {
        if (grid.cell(index).marked)
            marked += index + 1;
    }
    return marked;
}

/// The cell of the first of a month on a true calendar, counted from 1.
int trueFirstCell(int year, int month) {
    return QDate(year, month, 1).dayOfWeek() % 7 + 1;
}

bool opensWrong(const QDate& today) {
    return today.dayOfWeek() == Qt::Sunday && today.day() % 7 == 5;
}

/// Every own cell holds its day, every other none, and the week rows before and behind go on with the neighbours.
void expectWholeMonth(const MonthGrid& grid, int firstCell) {
    const QDate first(grid.shownYear(), grid.shownMonth(), 1);
    const int days = first.daysInMonth();
    for (int number = 1; number <= MonthGrid::DayCellCount; ++number) {
        const int day = number - firstCell + 1;
        const bool own = day >= 1 && day <= days;
        ASSERT_EQ(grid.dayOfCell(number), own ? day : 0) << grid.labelText() << number;
        if (!own)
            continue;
        ASSERT_EQ(grid.cell(number - 1).caption, QString::number(day));
        ASSERT_FALSE(grid.cell(number - 1).neighbour);
    }
    for (int number = 1; number < firstCell; ++number) {
        ASSERT_EQ(grid.cell(number - 1).caption, QString::number(first.addDays(number - firstCell).day()));
        ASSERT_TRUE(grid.cell(number - 1).neighbour);
    }
}

TEST(MonthGrid, KnowsTheLengthOfEveryMonth) {
    for (QDate first(1895, 1, 1); first.year() <= 2105; first = first.addMonths(1))
        ASSERT_EQ(daysOfMonth(first.year(), first.month()), first.daysInMonth()) << first.toString().toStdString();
    EXPECT_EQ(daysOfMonth(1900, 2), 28);
    EXPECT_EQ(daysOfMonth(2000, 2), 29);
    EXPECT_EQ(daysOfMonth(2024, 0), 31);
}

TEST(MonthGrid, OpensOnTheMonthOfToday) {
    const MonthGrid grid(kMay2024);
    EXPECT_EQ(grid.shownYear(), 2024);
    EXPECT_EQ(grid.shownMonth(), 5);
    EXPECT_EQ(grid.todayDay(), 3);
    EXPECT_EQ(grid.firstCellOffset(), 3);
    EXPECT_EQ(grid.captionText(), u"2024\\5\\3");
    EXPECT_EQ(grid.labelText(), u"2024 年 5月");
}

TEST(MonthGrid, FillsTheWeeksAroundAMonthWithItsNeighbours) {
    const MonthGrid grid(kMay2024);
    EXPECT_EQ(cellsText(grid, 1, 14), u"28y 29y 30y 1 2 3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(cellsText(grid, 29, 42), u"26 27 28 29 30 31 1y - - - - - - -");
}

TEST(MonthGrid, FillsASixthWeekWhereTheMonthReachesIt) {
    const MonthGrid grid(kJune2024);
    EXPECT_EQ(cellsText(grid, 1, 7), u"26y 27y 28y 29y 30y 31y 1");
    EXPECT_EQ(cellsText(grid, 29, 42), u"23 24 25 26 27 28 29 30 1y 2y 3y 4y 5y 6y");
}

TEST(MonthGrid, EndsALongMonthFromSaturdayOnInCell37) {
    const MonthGrid longest(QDate(2022, 10, 1)); // 31 days, begins on Saturday
    EXPECT_EQ(longest.firstCellOffset(), 6);
    EXPECT_EQ(longest.dayOfCell(7), 1);
    EXPECT_EQ(longest.dayOfCell(37), 31);
    EXPECT_EQ(cellsText(longest, 36, 42), u"30 31 1y 2y 3y 4y 5y");
}

TEST(MonthGrid, LeavesNoNeighbourWhereAMonthFillsItsWeeks) {
    const MonthGrid grid(QDate(2024, 8, 1)); // ends on Saturday, in cell 35
    EXPECT_EQ(cellsText(grid, 29, 42), u"25 26 27 28 29 30 31 - - - - - - -");
}

TEST(MonthGrid, ShowsTheLongLeapFebruaryAndThePlainOne) {
    EXPECT_EQ(cellsText(MonthGrid(QDate(2024, 2, 1)), 1, 35),
              u"28y 29y 30y 31y 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 1y 2y");
    EXPECT_EQ(cellsText(MonthGrid(QDate(2023, 2, 1)), 29, 35), u"26 27 28 1y 2y 3y 4y");
    EXPECT_EQ(MonthGrid(QDate(1900, 2, 1)).dayOfCell(4 + 29), 0);
    EXPECT_EQ(MonthGrid(QDate(2000, 2, 1)).dayOfCell(2 + 29), 29);
}

TEST(MonthGrid, LeavesTheCellsBehindAFourWeekFebruaryEmptyWhenItOpensThere) {
    const MonthGrid grid(QDate(2015, 2, 1)); // 28 days from Sunday on
    EXPECT_EQ(grid.dayOfCell(28), 28);
    EXPECT_EQ(cellsText(grid, 1, 7), u"1 2 3 4 5 6 7");
    EXPECT_EQ(cellsText(grid, 29, 42), u"- - - - - - - - - - - - - -");
}

TEST(MonthGrid, LeavesTheCellsBehindAFourWeekFebruaryAsTheMonthBeforeLeftThem) {
    MonthGrid january(QDate(2015, 1, 30));
    january.stepForward();
    EXPECT_EQ(cellsText(january, 22, 42), u"22 23 24 25 26 27 28 25 26 27 28 29 30 31 - - - - - - -");
    EXPECT_TRUE(markedCells(january).isEmpty()); // the 30th that still stands there is none of this month
    MonthGrid march(QDate(2015, 3, 6));
    march.stepBack();
    EXPECT_EQ(cellsText(march, 29, 42), u"29 30 31 1y 2y 3y 4y - - - - - - -");
    for (int number = 29; number <= MonthGrid::DayCellCount; ++number)
        EXPECT_EQ(march.dayOfCell(number), 0);
}

TEST(MonthGrid, ClearsTheSixthWeekWhenTheNextMonthDoesNotReachIt) {
    MonthGrid grid(kJune2024); // reaches the sixth week
    grid.stepForward();
    EXPECT_EQ(cellsText(grid, 29, 42), u"28 29 30 31 1y 2y 3y - - - - - - -");
    grid.stepBack();
    EXPECT_EQ(cellsText(grid, 29, 42), u"23 24 25 26 27 28 29 30 1y 2y 3y 4y 5y 6y");
}

TEST(MonthGrid, OpensOnTheTrueFirstCellUnlessTodayIsTheOddSunday) {
    for (QDate today(1900, 1, 1); today.year() <= 2100; today = today.addDays(1)) {
        const int expected = opensWrong(today) ? 7 : trueFirstCell(today.year(), today.month());
        const MonthGrid grid(today);
        ASSERT_EQ(grid.firstCellOffset() + 1, expected) << today.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(grid.dayOfCell(expected), 1);
    }
}

TEST(MonthGrid, FollowsTheRuleOfTodaysWeekdayAndRest) {
    // Rows: the day of the month mod 7; columns: Sunday to Saturday. 1 stands for cell 7, any other s for cell s - 1.
    constexpr int s[7][7] = {{3, 4, 5, 6, 7, 1, 2}, {2, 3, 4, 5, 6, 7, 1}, {1, 2, 3, 4, 5, 6, 7}, {7, 1, 2, 3, 4, 5, 6},
                             {6, 7, 1, 2, 3, 4, 5}, {1, 6, 7, 1, 2, 3, 4}, {4, 5, 6, 7, 1, 2, 3}};
    for (QDate today(2000, 1, 1); today.year() < 2028; today = today.addDays(1)) {
        const int value = s[today.day() % 7][today.dayOfWeek() % 7];
        ASSERT_EQ(MonthGrid(today).firstCellOffset() + 1, value == 1 ? 7 : value - 1)
            << today.toString(Qt::ISODate).toStdString();
    }
}

TEST(MonthGrid, OpensWrongOnASundayTheFifthAndItsLike) {
    for (const QDate& today : {QDate(2024, 5, 5), QDate(2024, 5, 12), QDate(2024, 5, 19), QDate(2024, 5, 26)}) {
        const MonthGrid grid(today);
        EXPECT_EQ(grid.dayOfCell(7), 1); // the first was a Wednesday
        EXPECT_EQ(grid.dayOfCell(37), 31);
        EXPECT_EQ(cellsText(grid, 1, 7), u"25y 26y 27y 28y 29y 30y 1");
    }
}

TEST(MonthGrid, KeepsTheErrorOfTheOddSundayInEveryMonthSteppedTo) {
    const QDate today(2024, 5, 5);
    const int error = 7 - trueFirstCell(2024, 5);
    for (const int direction : {1, -1}) {
        MonthGrid grid(today);
        for (QDate month(2024, 5, 1); qAbs(month.year() - 2024) < 5; month = month.addMonths(direction)) {
            ASSERT_EQ(grid.firstCellOffset(), (trueFirstCell(month.year(), month.month()) - 1 + error) % 7);
            expectWholeMonth(grid, grid.firstCellOffset() + 1);
            direction > 0 ? grid.stepForward() : grid.stepBack();
        }
    }
}

TEST(MonthGrid, StaysOnTheTrueCalendarThroughEveryStep) {
    MonthGrid forward(QDate(1900, 1, 1));
    for (QDate month(1900, 1, 1); month.year() <= 2100; month = month.addMonths(1), forward.stepForward()) {
        ASSERT_EQ(QDate(forward.shownYear(), forward.shownMonth(), 1), month);
        expectWholeMonth(forward, trueFirstCell(month.year(), month.month()));
    }
    MonthGrid back(QDate(2100, 12, 31));
    for (QDate month(2100, 12, 1); month.year() >= 1900; month = month.addMonths(-1), back.stepBack()) {
        ASSERT_EQ(QDate(back.shownYear(), back.shownMonth(), 1), month);
        expectWholeMonth(back, trueFirstCell(month.year(), month.month()));
    }
}

TEST(MonthGrid, ShowsTheSameAfterAStepAndItsReturn) {
    MonthGrid grid(kMay2024);
    const QString before = cellsText(grid, 1, MonthGrid::CellCount);
    grid.stepForward();
    EXPECT_NE(cellsText(grid, 1, MonthGrid::CellCount), before);
    grid.stepBack();
    EXPECT_EQ(cellsText(grid, 1, MonthGrid::CellCount), before);
}

TEST(MonthGrid, CrossesTheTurnOfTheYear) {
    MonthGrid grid(QDate(2024, 1, 10));
    EXPECT_EQ(cellsText(grid, 1, 3), u"31y 1 2"); // December stands before January
    grid.stepBack();
    EXPECT_EQ(grid.labelText(), u"2023 年 12月 ");
    grid.stepForward();
    EXPECT_EQ(grid.labelText(), u"2024 年 1月 ");
}

TEST(MonthGrid, EndsItsLabelWithABlankAfterAStepAndKeepsItsCaption) {
    MonthGrid grid(kMay2024);
    grid.stepForward();
    EXPECT_EQ(grid.labelText(), u"2024 年 6月 ");
    EXPECT_EQ(grid.captionText(), u"2024\\5\\3");
    grid.stepBack();
    EXPECT_EQ(grid.labelText(), u"2024 年 5月 ");
}

TEST(MonthGrid, MarksTodaysNumberInEveryMonthOnShow) {
    MonthGrid grid(kMay2024);
    EXPECT_EQ(markedCells(grid), QList<int>{6});
    grid.stepForward();
    EXPECT_EQ(markedCells(grid), QList<int>{9});
    EXPECT_EQ(grid.dayOfCell(9), 3);
    grid.stepBack();
    grid.stepBack();
    EXPECT_EQ(markedCells(grid), QList<int>{4});
}

TEST(MonthGrid, MarksNothingInAMonthThatHasNoSuchDay) {
    MonthGrid grid(QDate(2024, 5, 31));
    EXPECT_EQ(markedCells(grid), QList<int>{34});
    grid.stepForward();
    EXPECT_TRUE(markedCells(grid).isEmpty());
}

TEST(MonthGrid, MarksTheSelectedCellAlone) {
    MonthGrid grid(kMay2024);
    for (const int index : {0, 5, 20, 36, 41}) { // a neighbour's, today's, a plain one, two empty ones
        grid.select(index);
        EXPECT_EQ(markedCells(grid), QList<int>{index + 1});
    }
}

TEST(MonthGrid, ForgetsASelectionOnAStepUnlessItLiesBehindTheDays) {
    MonthGrid grid(kMay2024);
    grid.select(36);
    grid.stepForward();
    EXPECT_EQ(markedCells(grid), QList<int>{9});
    grid.select(37);
    grid.stepForward();
    EXPECT_EQ(markedCells(grid), (QList<int>{4, 38}));
}

TEST(MonthGrid, GivesTheDateOfADayWithoutLeadingZeros) {
    const MonthGrid grid(kMay2024);
    EXPECT_EQ(grid.dateTextOf(5), u"2024-5-3");
    EXPECT_EQ(grid.dateTextOf(33), u"2024-5-31");
    EXPECT_EQ(MonthGrid(QDate(2006, 12, 9)).dateTextOf(5), u"2006-12-1");
}

TEST(MonthGrid, JoinsEveryCaptionToTheMonthOnShow) {
    MonthGrid grid(kMay2024);
    EXPECT_EQ(grid.dateTextOf(0), u"2024-5-28"); // a day of April
    EXPECT_EQ(grid.dateTextOf(34), u"2024-5-1"); // a day of June
    EXPECT_EQ(grid.dateTextOf(41), u"2024-5-");  // an empty cell
    grid.stepForward();
    EXPECT_EQ(grid.dateTextOf(6), u"2024-6-1");
}

} // namespace
} // namespace qinghe
