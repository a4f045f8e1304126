#include "ledger/income_rig.h"

// The add button and the delete button of the income page, beyond what they do on every list.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class AddDeleteTest : public IncomeTest {
protected:
    QStringList stored() { return rig.sql(u"select 编号 || '-' || 区别 from srb order by rowid"_s); }
    void select(int row) { clickCell(row, 1); }
};

TEST_F(AddDeleteTest, AddLaysTheHiddenEditorOverTheNewRow) {
    openWith(2);
    clickCell(1, 4);
    press(add());
    EXPECT_FALSE(tx2().Visible());
    EXPECT_EQ(tx2().Text(), u"");
    expectEditorOver(3, 4);
}

TEST_F(AddDeleteTest, AddClosesTheTools) {
    openWith(2);
    for (const int col : {2, 5}) {
        clickCell(1, col);
        press(add());
        EXPECT_EQ(tools(), u"none");
    }
}

TEST_F(AddDeleteTest, AddRefusesASecondBlankRowAndYetMovesToIt) {
    openWith(2);
    press(add());
    clickCell(1, 3);
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(ms2().Rows(), 4);
    EXPECT_EQ(current(), u"3,3");
    EXPECT_FALSE(tx2().Visible());
}

TEST_F(AddDeleteTest, DeleteTakesTheRecordAtTheRowsPositionAtOnce) {
    openWith(3);
    select(2);
    press(remove());
    EXPECT_EQ(stored(), (QStringList{u"1-1"_s, u"3-3"_s})); // 区别 of the others stays until the next save
    EXPECT_EQ(rows(),
              (QStringList{u"1|2024-5-1|项目1|人1|1.5|账户1|备注1"_s, u"3|2024-5-3|项目3|人3|3.5|账户3|备注3"_s}));
    EXPECT_EQ(total(), u"当前收入总额为：7.50元 "); // of the opening
    EXPECT_EQ(adodc1().recordSource(), u"srb");
}

TEST_F(AddDeleteTest, DeleteTakesOneRecordAfterAnotherAtTheSameRow) {
    openWith(4);
    select(2);
    press(remove());
    press(remove());
    EXPECT_EQ(stored(), (QStringList{u"1-1"_s, u"4-4"_s}));
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(ProgramRig::rowText(ms2(), 2).left(1), u"4");
}

TEST_F(AddDeleteTest, DeleteTakesTheRecordRightAfterTheOpening) {
    openWith(2); // no cell was clicked: the fill leaves the last row current
    EXPECT_EQ(ms2().Row(), 2);
    press(remove());
    EXPECT_EQ(stored(), QStringList{u"1-1"_s});
}

TEST_F(AddDeleteTest, DeleteOnTheExpenseSideLeavesIncomeAlone) {
    store(2);
    store(Expense, 2);
    open(1);
    select(1);
    press(remove());
    EXPECT_EQ(stored().size(), 2);
    EXPECT_EQ(rig.sql(u"select 编号 from zcb"_s), QStringList{u"2"_s});
}

} // namespace
} // namespace qinghe::testing
