#include "ledger/own_page.h"

#include <QApplication>

// Pages of the budget's kind, of the accounts' and of the categories': the date by a click alone, an add that commits
// the box or looks at the current row, a list of one column.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<GridPage::Column, 4> PlanColumns{{
    {u"预算日期", 2754},
    {u"预算项目", 2754},
    {u"预算金额", 2754},
    {u"备注", 2754},
}};
constexpr std::array<GridPage::Column, 1> OneColumn{{{u"大类", 3000}}};

class PlanKindTest : public OwnPageTest {
protected:
    PlanKindTest() {
        traits = traitsOn(u"Frame8", PlanColumns);
        traits.date = {.column = 1, .target = 7, .opensOnEnter = false};
        traits.amounts = {.onClick = {3, 3}, .onEnter = {3, 3}, .target = 4};
        traits.addCommitsBox = true;
    }
    void open() {
        rig.sql(u"insert into ysb values('2024-05-01','房租',2000,'甲',1),('2024-05-02','买菜',800,'乙',2)"_s);
        (new OwnPage(rig.mainWindow(), traits, u"ysb"_s))->open(BudgetPage);
        rig.settle();
    }
    QStringList stored() { return rig.sql(u"select * from ysb order by rowid"_s); }

    GridPage::Traits traits;
};

TEST_F(PlanKindTest, OpensThePickerByAClickAlone) {
    open();
    clickCell(1, 1);
    EXPECT_TRUE(isOpen(u"Form1"_s));
    EXPECT_EQ(bench().dateTarget, 7);
    clickCell(1, 4);
    EXPECT_FALSE(isOpen(u"Form1"_s));
    enter();
    EXPECT_EQ(current(), u"2,1");
    EXPECT_FALSE(isOpen(u"Form1"_s));
    EXPECT_EQ(QApplication::focusWidget(), &box());
    rig.click(box()); // which brings it up
    EXPECT_TRUE(isOpen(u"Form1"_s));
}

TEST_F(PlanKindTest, OpensTheCalculatorByEnterAndByAClick) {
    open();
    clickCell(1, 2);
    enter();
    EXPECT_TRUE(isOpen(u"Form9"_s));
    EXPECT_EQ(bench().calcTarget, 4);
    EXPECT_FALSE(box().isEnabled());
    clickCell(2, 3);
    rig.type(*rig.loaded(u"Form9"_s), u"900"_s);
    rig.press(*rig.loaded(u"Form9"_s), Qt::Key_Return);
    EXPECT_EQ(grid().TextMatrix(2, 3), u"900");
}

TEST_F(PlanKindTest, CommitsTheBoxWhenARowIsAdded) {
    open();
    clickCell(1, 2);
    write(u"物业"_s);
    rig.click(add());
    EXPECT_EQ(rows(), (QStringList{u"2024-5-1|物业|2000|甲"_s, u"2024-5-2|买菜|800|乙"_s, u"|||"_s}));
    EXPECT_EQ(box().Text(), u"");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(current(), u"3,2");
}

TEST_F(PlanKindTest, CommitsAlsoWhatStandsInTheBoxAfterASave) {
    open();
    clickCell(1, 2);
    write(u"物业"_s);
    rig.click(save());
    EXPECT_EQ(stored().front(), u"2024-05-01|房租|2000|甲|1");
    EXPECT_EQ(box().Text(), u"物业");
    EXPECT_EQ(current(), u"2,2"); // the save stepped through the rows
    rig.click(add());
    EXPECT_EQ(rows(), (QStringList{u"2024-5-1|房租|2000|甲"_s, u"2024-5-2|物业|800|乙"_s, u"|||"_s}));
}

TEST_F(PlanKindTest, CommitsNothingFromAnEmptyBox) {
    open();
    clickCell(1, 2);
    box().clear();
    rig.click(add());
    EXPECT_EQ(grid().TextMatrix(1, 2), u"房租");
}

TEST_F(PlanKindTest, LooksAtTheLastRowWhereverTheCurrentOneIs) {
    open();
    rig.click(add());
    clickCell(1, 2);
    rig.click(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(grid().Rows(), 4);
    EXPECT_EQ(current(), u"3,2");
}

TEST_F(PlanKindTest, LooksAtTheCurrentRowWhereThePageSaysSo) {
    traits.addTests = GridPage::AddTests::CurrentRow;
    open();
    rig.click(add());
    clickCell(1, 2);
    rig.click(add()); // the current row is filled, so a second blank one is added
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(grid().Rows(), 5);
    rig.click(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(grid().Rows(), 5);
}

TEST_F(PlanKindTest, TakesTheFirstRowOutWhileThereAreMore) {
    open();
    clickCell(1, 2);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList{u"2024-5-2|买菜|800|乙"_s});
    EXPECT_EQ(stored(), QStringList{u"2024-05-02|买菜|800|乙|2"_s});
    clickCell(1, 2);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList{u"|||"_s});
    EXPECT_EQ(stored(), QStringList());
}

TEST_F(PlanKindTest, KeepsTheSetOfTheOpeningThroughASave) {
    open();
    rig.sql(u"insert into ysb values('2024-05-09','外',1,'',9)"_s); // came in behind the page's back
    rig.click(save());
    EXPECT_EQ(adodc1().recordset().recordCount(), 2);
    EXPECT_EQ(stored().size(), 3);
}

class OneColumnTest : public OwnPageTest {
protected:
    OneColumnTest() { traits = traitsOn(u"Frame8", OneColumn); }

    /// A list of four rows, of which the second and the fourth are filled, over the users' table.
    void open() {
        (new OwnPage(rig.mainWindow(), traits, u"yhb"_s))->openBlank(BudgetPage, 4);
        adodc1().open(u"yhb"_s);
        grid().setTextMatrix(2, 1, u"甲"_s);
        grid().setTextMatrix(4, 1, u"乙"_s);
        rig.settle();
    }
    QStringList stored() { return rig.sql(u"select 用户名, 区别 from yhb order by rowid"_s); }

    GridPage::Traits traits;
};

TEST_F(OneColumnTest, WritesRowsFromTheFirstFilledOneOn) {
    open();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), (QStringList{u"甲|1"_s, u"NULL|2"_s, u"乙|3"_s}));
}

TEST_F(OneColumnTest, WritesEveryRowWhereThePageSaysSo) {
    traits.savedRows = GridPage::SavedRows::Every;
    open();
    rig.click(save());
    EXPECT_EQ(stored(), (QStringList{u"NULL|1"_s, u"甲|2"_s, u"NULL|3"_s, u"乙|4"_s}));
}

TEST_F(OneColumnTest, ClosesTheEditorWhenEnterReachesTheLastRow) {
    open();
    clickCell(2, 1);
    enter();
    EXPECT_EQ(current(), u"3,1");
    EXPECT_TRUE(box().Visible());
    enter(); // its only column is the last one too
    EXPECT_EQ(current(), u"4,1");
    EXPECT_FALSE(box().Visible());
}

} // namespace
} // namespace qinghe::testing
