#include "analysis/charts_rig.h"

#include <QApplication>

// The query row: charts by item narrowed to a range of dates.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ChartRangeTest : public ChartsTest {
protected:
    ChartRangeTest() {
        storeAccount(u"'现金'"_s, u"100"_s);
        for (const QString& table : {u"srb"_s, u"zcb"_s}) {
            const double amount = table == u"srb" ? 1 : 10;
            store(table, u"'2024-05-03'"_s, u"'甲'"_s, amount);
            store(table, u"'2024-06-01'"_s, u"'甲'"_s, amount * 2);
            store(table, u"'2024-06-18'"_s, u"'乙'"_s, amount * 4);
        }
    }

    /// Picks the day in a cell of the picker that a click on a box opens.
    void pick(TextBox& box, int cell) {
        rig.click(box);
        rig.doubleClick(rig.at(date_picker::Day[cell]));
        rig.settle();
    }
    void expectRefusedAsNoDate(const QString& from, const QString& to) {
        choose(charts::IncomeByItem);
        query(from, to);
        EXPECT_TRUE(rig.ended()) << from.toStdString() << ", " << to.toStdString();
        EXPECT_EQ(rig.exitCode(), 1);
        EXPECT_EQ(rig.messages->errors.size(), 1u);
        EXPECT_EQ(rig.sql(u"select count(*) from srb"_s), QStringList(u"3"_s));
    }
};

TEST_F(ChartRangeTest, NarrowsTheIncomeToTypedDates) {
    choose(charts::IncomeByItem);
    EXPECT_EQ(points(), u"乙=4 甲=3");
    query(u"2024-6-1"_s, u"2024-6-18"_s);
    EXPECT_EQ(points(), u"乙=4 甲=2");
    EXPECT_EQ(caption(), u"收入分类统计");
    EXPECT_EQ(adodc1().recordSource(),
              u"select 项目,sum(金额) as 总金额 from srb where 时间 between #2024-6-1# and #2024-6-18# group by 项目");
}

TEST_F(ChartRangeTest, NarrowsTheExpenseToTypedDates) {
    choose(charts::ExpenseByItem);
    EXPECT_EQ(points(), u"乙=40 甲=30");
    query(u"2024-5-1"_s, u"2024-6-17"_s);
    EXPECT_EQ(points(), u"甲=30");
    EXPECT_EQ(caption(), u"支出分类统计");
    EXPECT_EQ(adodc1().recordSource(),
              u"select 项目,sum(金额) as 总金额 from zcb where 时间 between #2024-5-1# and # 2024-6-17# group by 项目");
}

TEST_F(ChartRangeTest, NarrowsToDatesAsAHouseholdWritesThem) {
    choose(charts::IncomeByItem);
    query(u"5-4"_s, u"6月17日"_s);
    EXPECT_EQ(points(), u"甲=2");
    query(u"24-5-3"_s, u"２０２４０６０１"_s);
    EXPECT_EQ(points(), u"甲=3");
    EXPECT_FALSE(rig.ended());
}

TEST_F(ChartRangeTest, SelectsADateWhenAClickBringsItTheKeyboard) {
    choose(charts::IncomeByItem);
    rig.click(Text1());
    EXPECT_EQ(Text1().selectedText(), u"日期1"_s);
    rig.type(Text1(), u"2024-6-1"_s);
    EXPECT_EQ(Text1().Text(), u"2024-6-1"_s);
}

TEST_F(ChartRangeTest, NarrowsToPickedDates) {
    choose(charts::IncomeByItem);
    pick(Text1(), 6);  // June 2024 begins in cell 6
    pick(Text2(), 22); // the seventeenth
    EXPECT_EQ(Text1().Text(), u"2024-6-1");
    EXPECT_EQ(Text2().Text(), u"2024-6-17");
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    rig.click(rig.at(charts::Query));
    EXPECT_EQ(points(), u"甲=2");
}

TEST_F(ChartRangeTest, HangsThePickerUnderTheBoxThatWasClicked) {
    choose(charts::IncomeByItem);
    rig.mainWindow().moveTo(0, 0);
    int target = 1;
    for (TextBox* box : {&Text1(), &Text2()}) {
        rig.click(*box);
        const Form& picker = *rig.loaded(forms::DatePicker);
        EXPECT_TRUE(picker.isVisible());
        EXPECT_EQ(rig.program->shared().dateTarget, target++);
        EXPECT_EQ(picker.Left(), rig.mainWindow().Left() + 120 + 5280 + box->Left());
        EXPECT_EQ(picker.Top(), rig.mainWindow().Top() + 1680 + 840 + 240 + 270 + 20);
    }
}

TEST_F(ChartRangeTest, AsksForTwoDates) {
    choose(charts::IncomeByItem);
    rig.click(rig.at(charts::Query));
    EXPECT_EQ(rig.messages->shown, std::vector{TwoDatesWanted});
    query(u"2024-6-1"_s, u"日期2"_s);
    query(u"日期1"_s, u"2024-6-1"_s);
    EXPECT_EQ(rig.messages->shown, std::vector(3, TwoDatesWanted));
    EXPECT_EQ(points(), u"乙=4 甲=3");
    EXPECT_FALSE(rig.ended());
}

TEST_F(ChartRangeTest, FindsNothingBetweenDatesInTheWrongOrder) {
    choose(charts::IncomeByItem);
    query(u"2024-6-18"_s, u"2024-6-1"_s);
    EXPECT_EQ(rig.messages->shown, std::vector{NothingInRange});
    EXPECT_EQ(points(), u"乙=4 甲=3");
    EXPECT_EQ(caption(), u"收入分类统计");
}

TEST_F(ChartRangeTest, HidesThePickerWithTheQuery) {
    choose(charts::IncomeByItem);
    rig.click(Text1());
    ASSERT_TRUE(rig.loaded(forms::DatePicker)->isVisible());
    rig.messages->whileShown = [this](const ShownMessage&) {
        EXPECT_FALSE(rig.loaded(forms::DatePicker)->isVisible());
    };
    rig.click(rig.at(charts::Query));
    EXPECT_EQ(rig.lastMessage(), TwoDatesWanted);
    EXPECT_FALSE(rig.loaded(forms::DatePicker)->Visible());
}

TEST_F(ChartRangeTest, ShowsTheWholeTableAgainByTheOptionAndKeepsTheDates) {
    choose(charts::IncomeByItem);
    query(u"2024-6-1"_s, u"2024-6-2"_s);
    EXPECT_EQ(points(), u"甲=2");
    click(charts::ExpenseByItem);
    EXPECT_EQ(points(), u"乙=40 甲=30");
    EXPECT_EQ(Text1().Text(), u"2024-6-1");
    EXPECT_EQ(Text2().Text(), u"2024-6-2");
    rig.click(rig.at(pages::Desktop));
    open();
    click(charts::IncomeByItem);
    EXPECT_EQ(Text1().Text(), u"2024-6-1");
    EXPECT_EQ(points(), u"乙=4 甲=3");
}

TEST_F(ChartRangeTest, AsksTheLedgerOfTheLastItemChart) {
    choose(charts::ExpenseByItem);
    click(charts::IncomeByItem);
    query(u"2024-6-18"_s, u"2024-6-18"_s);
    EXPECT_EQ(points(), u"乙=4");
    click(charts::ExpenseByItem);
    rig.click(rig.at(charts::Query));
    EXPECT_EQ(points(), u"乙=40");
}

TEST_F(ChartRangeTest, TakesItemsWithQuotes) {
    store(u"srb"_s, u"'2024-06-18'"_s, u"'引''号#'"_s, 5);
    choose(charts::IncomeByItem);
    query(u"2024-6-18"_s, u"2024-6-18"_s);
    EXPECT_EQ(points(), u"乙=4 引'号#=5");
}

TEST_F(ChartRangeTest, EndsTheProgramOnWordsThatAreNoDate) {
    expectRefusedAsNoDate(u"abc"_s, u"2024-6-1"_s);
}

TEST_F(ChartRangeTest, EndsTheProgramOnAnEmptyDate) {
    expectRefusedAsNoDate(u"2024-6-1"_s, u""_s);
}

TEST_F(ChartRangeTest, EndsTheProgramOnADateWithAQuote) {
    expectRefusedAsNoDate(u"2024-6-1'"_s, u"2024-6-2"_s);
}

TEST_F(ChartRangeTest, EndsTheProgramOnADateThatClosesItsLiteral) {
    expectRefusedAsNoDate(u"2024-6-1# or #2024-6-2"_s, u"2024-6-2"_s);
}

TEST_F(ChartRangeTest, EndsTheProgramOnADateFromAnEmptyCell) {
    expectRefusedAsNoDate(u"2024-6-1"_s, u"2024-6-"_s);
}

class ChartStripTest : public ChartRangeTest {
protected:
    MSFlexGrid& ms1() { return rig.at(loans::Grid); }
    MSFlexGrid& ms2() { return rig.at(income::Grid); }
    TextBox& tx1() { return rig.at(loans::Box); }
    TextBox& tx2() { return rig.at(income::Box); }
    void clickStrip() {
        choose(charts::IncomeByItem);
        tx1().setText(u"借款"_s);
        tx2().setText(u"收入"_s);
        tx1().setShown(true);
        tx2().setShown(true);
        QTest::mouseClick(&rig.at(charts::Range), Qt::LeftButton, {}, {10, 30});
    }
};

TEST_F(ChartStripTest, PutsTheLoansBoxIntoBothGrids) {
    clickStrip();
    EXPECT_EQ(ms1().Text(), u"借款");
    EXPECT_EQ(ms2().Text(), u"借款");
    EXPECT_FALSE(tx1().Visible());
    EXPECT_FALSE(tx2().Visible());
}

TEST_F(ChartStripTest, LeavesAGridThatIsHiddenItself) {
    ms1().setShown(false);
    clickStrip();
    EXPECT_EQ(ms1().Text(), u"");
    EXPECT_TRUE(tx1().Visible());
    EXPECT_EQ(ms2().Text(), u"借款");
    ms1().setShown(true);
    ms2().setShown(false);
    ms2().setText(u""_s);
    QTest::mouseClick(&rig.at(charts::Range), Qt::LeftButton, {}, {10, 30});
    EXPECT_EQ(ms1().Text(), u"借款");
    EXPECT_EQ(ms2().Text(), u"");
}

} // namespace
} // namespace qinghe::testing
