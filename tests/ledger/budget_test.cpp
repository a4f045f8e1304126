#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

#include <QApplication>

// The budget page: a list with a date in front, whose add button commits what stands in the box.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class BudgetTest : public PageTest {
protected:
    BudgetTest() : PageTest(Budget) {
        rig.sql(u"insert into ysb values('2024-05-01','房租',2000,'甲',1),('2024-05-02','买菜',800,'乙',2)"_s);
        open();
    }
};

TEST_F(BudgetTest, OpensWithFourColumnsOfOneWidth) {
    EXPECT_EQ(row(0), list.captions);
    EXPECT_EQ(grid().Cols(), 5);
    EXPECT_EQ(grid().ColWidth(0), 300);
    for (int col = 1; col <= 4; ++col)
        EXPECT_EQ(grid().ColWidth(col), 2754);
    EXPECT_EQ(grid().Left(), 120);
    EXPECT_EQ(grid().Top(), 840);
    EXPECT_EQ(grid().Width(), 11415);
    EXPECT_EQ(grid().Height(), 4815);
    EXPECT_EQ(rows(), (QStringList{u"2024-5-1|房租|2000|甲"_s, u"2024-5-2|买菜|800|乙"_s}));
}

TEST_F(BudgetTest, BringsItsFrameForwardAndMarksItsLabel) {
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(frame().Caption(), u"支出预算");
    EXPECT_EQ(frame().Left(), 120);
    EXPECT_EQ(frame().Top(), 1680);
    EXPECT_EQ(frame().Width(), 11655);
    EXPECT_EQ(frame().Height(), 6255);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 5);
    EXPECT_EQ(rig.at(pages::Budget).ForeColor(), 255u);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), 0u);
    EXPECT_EQ(adodc1().recordSource(), u"ysb");
    EXPECT_TRUE(adodc1().connectionString().endsWith(' '_L1));
}

TEST_F(BudgetTest, OpensThePickerByAClickButNotByEnter) {
    clickCell(1, 1);
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_EQ(shared().dateTarget, 7);
    expectUnderEditor(forms::DatePicker);
    clickCell(1, 4);
    EXPECT_EQ(tools(), u"none");
    enter();
    EXPECT_EQ(current(), u"2,1");
    EXPECT_EQ(tools(), u"none");
    EXPECT_EQ(QApplication::focusWidget(), &box());
    press(box()); // which brings it up
    EXPECT_EQ(tools(), forms::DatePicker);
    rig.doubleClick(rig.at(date_picker::Day[6]));
    EXPECT_EQ(grid().TextMatrix(2, 1), u"2024-6-1");
}

TEST_F(BudgetTest, ClosesThePickerWhenEnterLeavesTheDate) {
    clickCell(1, 1);
    write(u"2024-7-1"_s);
    enter();
    EXPECT_EQ(tools(), u"none");
    EXPECT_EQ(current(), u"1,2");
    EXPECT_EQ(grid().TextMatrix(1, 1), u"2024-7-1");
}

TEST_F(BudgetTest, OpensTheCalculatorByEnterAndByAClick) {
    clickCell(1, 2);
    enter();
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_EQ(shared().calcTarget, 4);
    EXPECT_FALSE(box().isEnabled());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &grid());
    clickCell(2, 3);
    calculate(u"900"_s);
    EXPECT_EQ(grid().TextMatrix(2, 3), u"900");
    EXPECT_FALSE(box().isEnabled()); // nothing opens this box again but another cell
    clickCell(2, 4);
    EXPECT_TRUE(box().isEnabled());
}

TEST_F(BudgetTest, TakesTheSameDateAndItemTwice) {
    press(add());
    for (int col = 1; col <= 4; ++col)
        grid().setTextMatrix(3, col, grid().TextMatrix(1, col));
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), (QStringList{u"2024-05-01|房租|2000|甲|1"_s, u"2024-05-02|买菜|800|乙|2"_s,
                                     u"2024-05-01|房租|2000|甲|3"_s}));
}

TEST_F(BudgetTest, CommitsTheBoxWhenARowIsAdded) {
    clickCell(1, 2);
    write(u"物业"_s);
    press(add());
    EXPECT_EQ(rows(), (QStringList{u"2024-5-1|物业|2000|甲"_s, u"2024-5-2|买菜|800|乙"_s, blankRow()}));
    EXPECT_EQ(box().Text(), u"");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(current(), u"3,2");
    expectEditorOver(3, 2);
}

TEST_F(BudgetTest, CommitsAlsoWhatStandsInTheHiddenBoxAfterASave) {
    clickCell(1, 2);
    write(u"物业"_s);
    press(save());
    EXPECT_EQ(stored().front(), u"2024-05-01|房租|2000|甲|1");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(box().Text(), u"物业");
    EXPECT_EQ(current(), u"2,2"); // the save stepped through the rows
    press(add());
    EXPECT_EQ(rows(), (QStringList{u"2024-5-1|房租|2000|甲"_s, u"2024-5-2|物业|800|乙"_s, blankRow()}));
}

TEST_F(BudgetTest, CommitsAlsoWhatEscLeftInTheHiddenBox) {
    clickCell(1, 4);
    write(u"旧话"_s);
    escape();
    press(add());
    EXPECT_EQ(grid().TextMatrix(1, 4), u"旧话");
}

TEST_F(BudgetTest, CommitsNothingFromAnEmptyBox) {
    clickCell(1, 2);
    box().clear();
    press(add());
    EXPECT_EQ(grid().TextMatrix(1, 2), u"房租");
}

TEST_F(BudgetTest, FillsTheBlankRowByTheCommitAndThenAddsAnother) {
    press(add());
    clickCell(3, 2);
    write(u"水电"_s);
    press(add());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(rows().mid(2), (QStringList{u"|水电||"_s, blankRow()}));
}

TEST_F(BudgetTest, LooksForABlankRowAtTheEndWhereverTheCurrentOneIs) {
    press(add());
    clickCell(1, 2);
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(grid().Rows(), 4);
    EXPECT_EQ(current(), u"3,2");
}

TEST_F(BudgetTest, TakesTheFirstRowOutWhileThereAreMore) {
    clickCell(1, 2);
    press(remove());
    EXPECT_EQ(rows(), QStringList{u"2024-5-2|买菜|800|乙"_s});
    EXPECT_EQ(stored(), QStringList{u"2024-05-02|买菜|800|乙|2"_s});
    clickCell(1, 2);
    press(remove());
    EXPECT_EQ(rows(), QStringList{blankRow()});
    EXPECT_EQ(stored(), QStringList());
}

TEST_F(BudgetTest, KeepsTheOldFirstRowOverAnEmptyTableWhereItStandsForNoRecord) {
    rig.sql(u"delete from ysb"_s);
    open();
    EXPECT_EQ(rows(), QStringList{u"2024-5-1|房租|2000|甲"_s});
    clickCell(1, 2);
    press(remove());
    EXPECT_EQ(rig.messages->shown, std::vector{DeleteAsked});
    EXPECT_EQ(rows(), QStringList{blankRow()});
    EXPECT_FALSE(rig.ended());
}

TEST_F(BudgetTest, KeepsWhatTheFirstRowHeldWhereARecordHoldsNothing) {
    rig.sql(u"update ysb set 预算项目 = null, 备注 = '' where 区别 = 1"_s);
    open();
    EXPECT_EQ(row(1), u"2024-5-1|房租|2000|"); // an empty text is written, nothing is not
}

TEST_F(BudgetTest, KeepsTheSetOfTheOpeningThroughASave) {
    rig.sql(u"insert into ysb values('2024-05-09','外',1,'',9)"_s); // came in behind the page's back
    press(save());
    EXPECT_EQ(adodc1().recordset().recordCount(), 2);
    EXPECT_EQ(stored().size(), 3);
}

TEST_F(BudgetTest, HasNoTotal) {
    for (const Label* label : frame().findChildren<Label*>())
        EXPECT_NE(label->role(), Role::Total);
}

} // namespace
} // namespace qinghe::testing
