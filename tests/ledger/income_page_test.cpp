#include "ledger/income_rig.h"
#include "runtime/runtime_error.h"
#include "support/small_disk.h"

// Opening the page of income and of expense, and coming back to entry by its option.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

TEST_F(IncomeTest, HasTheCaptionsAndWidthsOfIncomeAfterItsLabel) {
    open(0);
    EXPECT_EQ(ProgramRig::rowText(ms2(), 0), u"编号|时间|项目|收款人|金额|账户|备注");
    EXPECT_EQ(rig.at(income::Page).Caption(), u"收入记录");
    EXPECT_EQ(ms2().TextMatrix(0, 0), u"");
    EXPECT_EQ(ms2().Cols(), 8);
    EXPECT_EQ(ms2().ColWidth(0), 300);
    for (int col = 1; col <= 6; ++col)
        EXPECT_EQ(ms2().ColWidth(col), 1150);
    EXPECT_EQ(ms2().ColWidth(7), 3900);
}

TEST_F(IncomeTest, CanBeLookedAtOnAFullDiskAndItsReportsSayThatTheyCannot) {
    rig.sql(u"insert into srb values('1','2024-05-03','工资','我',12.5,'现金','',1)"_s);
    const SmallDisk disk(100);
    open(0);
    ASSERT_TRUE(rig.messages->errors.empty()) << rig.messages->errors.front().second.toStdString();
    EXPECT_EQ(ProgramRig::rowText(ms2(), 1), u"1|2024-5-3|工资|我| 12.5|现金|");
    EXPECT_FALSE(shared().store.hasUndone());
    rig.click(rig.at(income::ByItem));
    expectError(RuntimeError::DiskFull);
}

TEST_F(IncomeTest, HasTheCaptionsOfExpenseAfterItsLabel) {
    open(1);
    EXPECT_EQ(ProgramRig::rowText(ms2(), 0), u"编号|时间|项目|付款人|金额|账户|备注");
    EXPECT_EQ(rig.at(income::Page).Caption(), u"支出记录");
}

TEST_F(IncomeTest, PutsFrameAndGridInTheirPlaces) {
    open();
    const Frame& frame = rig.at(income::Page);
    EXPECT_EQ(frame.Left(), 120);
    EXPECT_EQ(frame.Top(), 1680);
    EXPECT_EQ(frame.Width(), 11655);
    EXPECT_EQ(frame.Height(), 6255);
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(ms2().Left(), 120);
    EXPECT_EQ(ms2().Top(), 840);
    EXPECT_EQ(ms2().Width(), 11415);
    EXPECT_EQ(ms2().Height(), 4815);
    EXPECT_EQ(ms2().RowHeight(0), 300);
    EXPECT_EQ(ms2().RowHeight(1), 300);
    EXPECT_FALSE(tx2().Visible());
    EXPECT_TRUE(rig.at(income::Records).Value());
}

TEST_F(IncomeTest, MarksTheLabelOfItsSideAlone) {
    open(0);
    EXPECT_EQ(rig.at(pages::Income).ForeColor(), Red);
    EXPECT_EQ(rig.at(pages::Expense).ForeColor(), Black);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 20);
    open(1);
    EXPECT_EQ(rig.at(pages::Income).ForeColor(), Black);
    EXPECT_EQ(rig.at(pages::Expense).ForeColor(), Red);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), Black);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 21);
}

TEST_F(IncomeTest, ShowsEveryFieldButTheLastOfTheWholeTable) {
    openWith(2);
    EXPECT_EQ(rows(),
              (QStringList{u"1|2024-5-1|项目1|人1|1.5|账户1|备注1"_s, u"2|2024-5-2|项目2|人2|2.5|账户2|备注2"_s}));
}

TEST_F(IncomeTest, ShowsTheRowsInTheOrderOfTheTable) {
    rig.sql(u"insert into srb values('乙','2024-06-02','','',2,'','',2),('甲','2024-05-01','','',1,'','',1)"_s);
    open();
    EXPECT_EQ(rows(), (QStringList{u"乙|2024-6-2|||2||"_s, u"甲|2024-5-1|||1||"_s}));
}

TEST_F(IncomeTest, LeavesTheDataControlOnTheBareTable) {
    store(1);
    open(0);
    EXPECT_EQ(adodc1().recordSource(), u"srb");
    EXPECT_EQ(adodc1().recordset().fieldCount(), 8);
    EXPECT_TRUE(adodc1().connectionString().endsWith(' '_L1));
    open(1);
    EXPECT_EQ(adodc1().recordSource(), u"zcb");
    EXPECT_EQ(adodc1().recordset().recordCount(), 0);
    EXPECT_FALSE(adodc1().isVisible());
}

TEST_F(IncomeTest, ShowsOneBlankRowForAnEmptyTable) {
    store(3);
    open(0);
    open(1);
    EXPECT_EQ(rows(), QStringList{u"||||||"_s});
    EXPECT_EQ(total(), u"当前支出总额为：0.00元");
    open(0);
    rig.sql(u"delete from srb"_s);
    open(0);
    EXPECT_EQ(rows(), QStringList{u"||||||"_s});
    EXPECT_EQ(total(), u"当前收入总额为：0.00元");
}

TEST_F(IncomeTest, TotalsTheWholeTableWithABlankBehind) {
    store(3);
    store(Expense, 2);
    open(0);
    EXPECT_EQ(total(), u"当前收入总额为：7.50元 ");
    open(1);
    EXPECT_EQ(total(), u"当前支出总额为：4.00元 ");
}

TEST_F(IncomeTest, ShowsATotalBelowOneWithoutALeadingZero) {
    rig.sql(u"insert into srb values('1','2024-05-03','a','b',0.5,'c','',1)"_s);
    open();
    EXPECT_EQ(total(), u"当前收入总额为：.50元 ");
}

TEST_F(IncomeTest, TotalsMoreThanASingleCanHold) {
    rig.sql(u"insert into srb values('1','2024-05-03','a','b',1234567.89,'c','',1)"_s);
    open();
    EXPECT_EQ(total(), u"当前收入总额为：1234567.89元 "); // of the sum itself, not of what is kept of it
}

TEST_F(IncomeTest, StopsAtATotalThatASingleCannotHold) {
    rig.sql(u"insert into zcb values('1','2024-05-03','a','b',1e300,'c','',1)"_s);
    open(1);
    expectError(RuntimeError::Overflow);
    EXPECT_EQ(stored(Expense).size(), 1);
}

TEST_F(IncomeTest, SkipsNullFieldsInTheFill) {
    rig.sql(u"insert into srb values('1',null,'工资',null,null,'现金',null,1),('2','2024-05-03','a','b',3,'','',2)"_s);
    open();
    EXPECT_EQ(rows(), (QStringList{u"1||工资|||现金|"_s, u"2|2024-5-3|a|b|3||"_s}));
    EXPECT_EQ(total(), u"当前收入总额为：3.00元 ");
}

TEST_F(IncomeTest, DropsUnsavedEditsWhenTheOtherSideIsOpened) {
    openWith(1);
    fillCell(1, 3, u"改过"_s);
    open(1);
    open(0);
    EXPECT_EQ(rows(), QStringList{u"1|2024-5-1|项目1|人1|1.5|账户1|备注1"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(IncomeTest, DropsUnsavedEditsWhenTheSameSideIsOpenedAgain) {
    openWith(1);
    fillCell(1, 3, u"改过"_s);
    rig.click(add());
    open(0);
    EXPECT_EQ(rows(), QStringList{u"1|2024-5-1|项目1|人1|1.5|账户1|备注1"_s});
}

TEST_F(IncomeTest, ClosesEditorAndToolsWhenItIsOpenedAgain) {
    openWith(1);
    clickCell(1, 2);
    EXPECT_EQ(tools(), forms::DatePicker);
    open(0);
    EXPECT_EQ(tools(), u"none");
    EXPECT_FALSE(tx2().Visible());
}

TEST_F(IncomeTest, ReloadsTheTableByItsOptionAndTakesTheTotalOfTheLastOpening) {
    openWith(2);
    choose(income::ByItem);
    EXPECT_FALSE(ms2().isEnabled());
    store(1);
    choose(income::Records);
    EXPECT_EQ(rows().size(), 3);
    EXPECT_EQ(total(), u"当前收入总额为：4.00元"); // two rows' total, and no blank behind
    EXPECT_TRUE(ms2().isEnabled());
    for (CommandButton* button : {&add(), &remove(), &save()})
        EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(adodc1().recordSource(), u"srb");
}

TEST_F(IncomeTest, LeavesTheFirstRowAsItIsWhenTheOptionFindsNothingInTheTable) {
    openWith(1);
    choose(income::ByPerson);
    rig.sql(u"delete from srb"_s);
    choose(income::Records);
    EXPECT_EQ(rows(), QStringList{u"1|2024-5-1|项目1||||"_s}); // the columns of the report were fewer
}

TEST_F(IncomeTest, KeepsASinglePrecisionTotalForItsOption) {
    rig.sql(u"insert into zcb values('1','2024-05-03','a','b',1234567.89,'c','',1)"_s);
    open(1);
    choose(income::ByItem);
    choose(income::Records);
    EXPECT_EQ(total(), u"当前支出总额为：1234567.88元");
}

TEST_F(IncomeTest, KeepsTheStoredTotalWhenTheTableIsFoundEmpty) {
    openWith(2);
    rig.sql(u"delete from srb"_s);
    open();
    EXPECT_EQ(total(), u"当前收入总额为：0.00元");
    choose(income::ByItem);
    choose(income::Records);
    EXPECT_EQ(total(), u"当前收入总额为：4.00元");
}

} // namespace
} // namespace qinghe::testing
