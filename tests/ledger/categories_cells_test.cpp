#include "ledger/categories_rig.h"
#include "runtime/runtime_error.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QScrollBar>

// Clicking and typing in the two lists of the categories.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CategoriesCellsTest : public CategoriesTest {};

TEST_F(CategoriesCellsTest, AClickOnAMajorOpensItsCellAndShowsItsMinors) {
    openWith({u"工资|基本工资|gz"_s, u"奖金|年终奖|nzj"_s, u"工资|加班费|jbf"_s});
    clickMajor(2);
    EXPECT_EQ(tx3().Text(), u"工资");
    EXPECT_TRUE(tx3().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &tx3());
    expectOver(tx3(), ms3(), 2, 1);
    EXPECT_EQ(minors(), (QStringList{u"基本工资|gz"_s, u"加班费|jbf"_s}));
    EXPECT_EQ(ms4().Row(), 2); // the last one filled
    EXPECT_TRUE(minorsUsable());
}

TEST_F(CategoriesCellsTest, TheMinorsAreAskedForByTheNameInTheBox) {
    openWith({u"工资|基本工资|gz"_s});
    clickMajor(1);
    EXPECT_EQ(adodc2().recordSource(), u"select 收入大类 ,收入细类,快速代码 from srflb where 收入大类 = '工资'");
    EXPECT_EQ(adodc2().connectionString(), shared().connection());
    store({u"日常生活|买菜|mc"_s}, Expense);
    choose(Expense);
    clickMajor(1);
    EXPECT_EQ(adodc2().recordSource(), u"select 支出大类 ,支出细类,快速代码 from zcflb where 支出大类 = '日常生活'");
    EXPECT_EQ(minors(), QStringList{u"买菜|mc"_s});
}

TEST_F(CategoriesCellsTest, ARenamedMajorIsAskedForByItsNewName) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    fillMajor(2, u"乙"_s); // the order of the texts: 乙, 甲
    clickMajor(2);
    EXPECT_EQ(minors(), QStringList{u"2|b"_s});
}

TEST_F(CategoriesCellsTest, AMajorWithoutMinorsGoesOnShowingTheFirstOneOfTheMajorBefore) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s});
    clickMajor(1);
    EXPECT_EQ(minors(), (QStringList{u"1|a"_s, u"2|b"_s}));
    press(7);
    fillMajor(2, u"新"_s);
    clickMajor(2);
    EXPECT_EQ(minors(), QStringList{u"1|a"_s});
    EXPECT_EQ(ms4().Row(), 1);
}

TEST_F(CategoriesCellsTest, AMinorOrCodeThatIsEmptyOrMissingLeavesTheCellAsItWas) {
    openWith({u"甲|1|a"_s, u"乙||NULL"_s, u"乙|3|"_s});
    clickMajor(2);
    ASSERT_EQ(minors(), QStringList{u"1|a"_s});
    clickMajor(1);
    EXPECT_EQ(minors(), (QStringList{u"1|a"_s, u"3|"_s}));
}

TEST_F(CategoriesCellsTest, ABlankMajorHasTheRowsWithAnEmptyName) {
    openWith({u"|1|a"_s, u"NULL|2|b"_s});
    clickMajor(2);
    EXPECT_EQ(minors(), QStringList{u"1|a"_s});
}

TEST_F(CategoriesCellsTest, AQuoteInAMajorsNameEndsTheProgramAndLosesNothing) {
    openWith({u"爸爸's|1|a"_s, u"甲|2|b"_s});
    const QStringList before = stored();
    clickMajor(1);
    expectError(RuntimeError::QueryFailure);
    EXPECT_EQ(stored(), before);
}

TEST_F(CategoriesCellsTest, AClickOnAnotherMajorDropsWhatWasNotConfirmed) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    clickMajor(1);
    typeOver(tx3(), u"未确认"_s);
    clickMajor(2);
    EXPECT_EQ(majors(), (QStringList{u"乙"_s, u"甲"_s}));
    EXPECT_EQ(tx3().Text(), u"甲");
}

TEST_F(CategoriesCellsTest, EnterWritesTheMajorBackClosesTheBoxAndStays) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    clickMajor(1);
    typeOver(tx3(), u"丙"_s);
    rig.press(tx3(), Qt::Key_Return);
    EXPECT_EQ(majors(), (QStringList{u"丙"_s, u"甲"_s}));
    EXPECT_FALSE(tx3().Visible());
    EXPECT_EQ(tx3().Text(), u"丙");
    EXPECT_EQ(current(ms3()), u"1,1");
    expectOver(tx3(), ms3(), 1, 1);
    EXPECT_EQ(QApplication::focusWidget(), &ms3());
}

TEST_F(CategoriesCellsTest, EscLeavesTheMajorAsItWas) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    typeOver(tx3(), u"丙"_s);
    rig.press(tx3(), Qt::Key_Escape);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
    EXPECT_FALSE(tx3().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms3());
}

TEST_F(CategoriesCellsTest, AClickOnAMinorOpensItsCell) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s});
    clickMajor(1);
    clickMinor(1, 2);
    EXPECT_EQ(tx4().Text(), u"a");
    EXPECT_EQ(QApplication::focusWidget(), &tx4());
    expectOver(tx4(), ms4(), 1, 2);
    EXPECT_TRUE(tx3().Visible()); // the box of the other list stays
}

TEST_F(CategoriesCellsTest, AClickOnAMajorClosesTheBoxOfTheMinors) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    clickMinor(1);
    clickMajor(1);
    EXPECT_FALSE(tx4().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &tx3());
}

TEST_F(CategoriesCellsTest, EnterGoesFromTheMinorToTheCodeAndClosesThere) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s});
    clickMajor(1);
    clickMinor(1);
    typeOver(tx4(), u"午饭"_s);
    rig.press(tx4(), Qt::Key_Return);
    EXPECT_EQ(minors(), (QStringList{u"午饭|a"_s, u"2|b"_s}));
    EXPECT_EQ(current(ms4()), u"1,2");
    EXPECT_EQ(tx4().Text(), u"a");
    EXPECT_TRUE(tx4().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &tx4());
    expectOver(tx4(), ms4(), 1, 2);
    typeOver(tx4(), u"wf"_s);
    rig.press(tx4(), Qt::Key_Return);
    EXPECT_EQ(minors(), (QStringList{u"午饭|wf"_s, u"2|b"_s}));
    EXPECT_EQ(current(ms4()), u"1,2");
    EXPECT_FALSE(tx4().Visible());
    EXPECT_EQ(tx4().Text(), u"wf");
    EXPECT_EQ(QApplication::focusWidget(), &ms4());
}

TEST_F(CategoriesCellsTest, EscLeavesTheMinorAsItWas) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    clickMinor(1, 2);
    typeOver(tx4(), u"z"_s);
    rig.press(tx4(), Qt::Key_Escape);
    EXPECT_EQ(minors(), QStringList{u"1|a"_s});
    EXPECT_FALSE(tx4().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms4());
}

TEST_F(CategoriesCellsTest, OtherKeysAreTheBoxsOwn) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    typeOver(tx3(), u"1.5 元"_s);
    rig.press(tx3(), Qt::Key_Backspace);
    EXPECT_EQ(tx3().Text(), u"1.5 ");
    EXPECT_TRUE(tx3().Visible());
}

TEST_F(CategoriesCellsTest, TakesWhatAnInputMethodCommits) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    tx3().selectAll();
    QInputMethodEvent composing(u"cai"_s, {});
    QApplication::sendEvent(&tx3(), &composing);
    QInputMethodEvent commit;
    commit.setCommitString(u"买菜"_s);
    QApplication::sendEvent(&tx3(), &commit);
    rig.press(tx3(), Qt::Key_Return);
    EXPECT_EQ(majors(), QStringList{u"买菜"_s});
}

TEST_F(CategoriesCellsTest, LongListsDoNotMoveSidewaysForTheirScrollBar) {
    QStringList rows;
    for (int i = 10; i < 50; ++i)
        rows << u"甲|细%1|x"_s.arg(i) << u"大%1|1|a"_s.arg(i);
    openWith(rows);
    clickMajor(41);
    for (MSFlexGrid* grid : {&ms4(), &ms3()})
        for (int col = 1; col < grid->Cols(); ++col)
            for (int round = 0; round < 2; ++round) {
                rig.clickCell(*grid, 3 + round, col);
                EXPECT_EQ(grid->ColPos(1), 300);
                EXPECT_TRUE(grid->verticalScrollBar()->isVisible());
                EXPECT_FALSE(grid->horizontalScrollBar()->isVisible());
            }
}

TEST_F(CategoriesCellsTest, TheBoxEndsWithTheListWhereItsCellReachesUnderTheScrollBar) {
    QStringList rows;
    for (int i = 10; i < 50; ++i)
        rows << u"大%1|1|a"_s.arg(i);
    openWith(rows);
    clickMajor(3);
    const QRect room = ms3().cellRoom().translated(ms3().pos());
    EXPECT_EQ(tx3().geometry().right(), room.right());
    EXPECT_EQ(tx3().Width(), 4700);
    EXPECT_TRUE(tx3().mask().isEmpty());
}

TEST_F(CategoriesCellsTest, DisabledMinorsTakeNoClick) {
    openWith({u"甲|1|a"_s});
    clickMinor(1);
    EXPECT_FALSE(tx4().Visible());
    press(10);
    press(12);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), QStringList{u"甲|1|a"_s});
}

} // namespace
} // namespace qinghe::testing
