#include "ledger/categories_rig.h"

#include <QApplication>

// The add and delete buttons of the two lists, and the mark of a filled row that both share: once set it stays, until a
// press on the bare form writes a place into it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CategoriesRowsTest : public CategoriesTest {
protected:
    /// Whether a blank row was told of since the last time.
    bool refused() {
        const auto told = std::exchange(rig.messages->shown, {});
        EXPECT_TRUE(told.empty() || told == std::vector{AddRefused});
        return !told.empty();
    }
};

TEST_F(CategoriesRowsTest, AddingAMajorAppendsARowAndOpensItWithoutTakingTheKeyboard) {
    openWith({u"甲|1|"_s, u"乙|2|"_s});
    press(7);
    EXPECT_FALSE(refused());
    EXPECT_EQ(majors(), (QStringList{u"乙"_s, u"甲"_s, QString()}));
    EXPECT_EQ(current(ms3()), u"3,1");
    EXPECT_TRUE(tx3().Visible());
    EXPECT_EQ(tx3().Text(), u"");
    expectOver(tx3(), ms3(), 3, 1);
    EXPECT_NE(QApplication::focusWidget(), &tx3());
    EXPECT_EQ(ms3().RowHeight(3), 300);
}

TEST_F(CategoriesRowsTest, AddingAMajorCommitsTheBoxFirst) {
    openWith({u"甲|1|"_s});
    clickMajor(1);
    typeOver(tx3(), u"丙"_s);
    press(7);
    EXPECT_EQ(majors(), (QStringList{u"丙"_s, QString()}));
    press(7); // the box is empty now and commits nothing
    EXPECT_EQ(majors(), (QStringList{u"丙"_s, QString(), QString()}));
}

TEST_F(CategoriesRowsTest, AddingAMajorInTheMiddleAppendsARowAndGoesToTheLast) {
    openWith({u"甲|1|"_s, u"乙|2|"_s, u"丙|3|"_s});
    clickMajor(1);
    press(7);
    EXPECT_EQ(ms3().Rows(), 5);
    EXPECT_EQ(ms3().Row(), 4);
    expectOver(tx3(), ms3(), 4, 1);
}

TEST_F(CategoriesRowsTest, AddingAMajorRightAfterTheStartIsRefusedOnABlankRow) {
    open();
    press(7);
    EXPECT_TRUE(refused());
    EXPECT_EQ(majors(), QStringList{QString()});
    EXPECT_TRUE(tx3().Visible()); // opened all the same
    expectOver(tx3(), ms3(), 1, 1);
}

TEST_F(CategoriesRowsTest, AddingAMajorOnABlankRowIsTakenOnceATextWasSeen) {
    openWith({u"甲|1|"_s});
    press(7);
    press(7);
    press(7);
    EXPECT_FALSE(refused());
    EXPECT_EQ(majors(), (QStringList{u"甲"_s, QString(), QString(), QString()}));
    EXPECT_EQ(shared().emptyRowFlag, 1);
}

TEST_F(CategoriesRowsTest, TheMarkOfATextOutlivesTheVisitAndTheSide) {
    openWith({u"甲|1|"_s});
    press(7);
    clickLabel(pages::Income);
    open(Expense);
    ms3().setTextMatrix(1, 1, {});
    press(7);
    EXPECT_FALSE(refused());
    EXPECT_EQ(ms3().Rows(), 3);
}

TEST_F(CategoriesRowsTest, APressOnTheBareFormWritesItsPlaceIntoTheMark) {
    openWith({u"甲|1|"_s});
    press(7);
    ASSERT_FALSE(refused());
    pressBareForm(40);
    EXPECT_EQ(shared().emptyRowFlag, 600); // twips
    press(7);
    EXPECT_TRUE(refused());
    EXPECT_EQ(majors(), (QStringList{u"甲"_s, QString()}));
    clickMajor(1);
    press(7); // a text again
    EXPECT_FALSE(refused());
    EXPECT_EQ(ms3().Rows(), 4);
}

TEST_F(CategoriesRowsTest, AddingAMinorAppendsARowAndLeavesTheBoxAlone) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s});
    clickMajor(1);
    clickMinor(1, 2);
    typeOver(tx4(), u"z"_s);
    press(10);
    EXPECT_FALSE(refused());
    EXPECT_EQ(minors(), (QStringList{u"1|z"_s, u"2|b"_s, u"|"_s}));
    EXPECT_EQ(current(ms4()), u"3,2");
    EXPECT_TRUE(tx4().Visible());
    expectOver(tx4(), ms4(), 1, 2);
    EXPECT_EQ(tx4().Text(), u"z");
}

TEST_F(CategoriesRowsTest, TheBoxLeftBehindByAddingAMinorStaysOverItsCellWhenTheGridScrolls) {
    QStringList rows;
    for (int i = 10; i < 40; ++i)
        rows << u"甲|%1|a"_s.arg(i);
    openWith(rows);
    clickMajor(1);
    clickMinor(1);
    press(10); // scrolls down to the new row
    EXPECT_LT(ms4().RowPos(1), 0);
    expectOver(tx4(), ms4(), 1, 1);
    EXPECT_FALSE(tx4().mask().boundingRect().intersects(tx4().rect())); // out of sight with its cell
    ms4().ensureVisible(1, 1);
    expectOver(tx4(), ms4(), 1, 1);
    EXPECT_TRUE(tx4().mask().isEmpty());
}

TEST_F(CategoriesRowsTest, AddingAMinorWritesTheTextThatTheBoxStillHoldsOnceMore) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    clickMinor(1);
    typeOver(tx4(), u"午饭"_s);
    press(10);
    press(10);
    EXPECT_EQ(minors(), (QStringList{u"午饭|a"_s, u"午饭|"_s, u"|"_s}));
}

TEST_F(CategoriesRowsTest, AddingAMinorIsRefusedOnABlankRowBeforeAnyTextWasSeen) {
    open();
    ms3().setTextMatrix(1, 1, {});
    clickMajor(1);
    press(10);
    EXPECT_TRUE(refused());
    EXPECT_EQ(minors(), QStringList{u"|"_s});
    EXPECT_FALSE(tx4().Visible());
    fillMinor(1, {}, u"a"_s); // a code alone is a text
    press(10);
    EXPECT_FALSE(refused());
    EXPECT_EQ(minors(), (QStringList{u"|a"_s, u"|"_s}));
}

TEST_F(CategoriesRowsTest, AddingAMinorLooksAtTheLastRowAlone) {
    openWith({u"甲|1|a"_s, u"甲||"_s});
    clickMajor(1);
    ms4().setTextMatrix(2, 1, {});
    ms4().setRow(1);
    press(10);
    EXPECT_TRUE(refused());
    EXPECT_EQ(ms4().Row(), 2);
}

TEST_F(CategoriesRowsTest, TheTwoListsShareTheMark) {
    openWith({u"甲|1|a"_s});
    press(7); // meets a text among the majors
    clickMajor(1);
    ms4().setTextMatrix(1, 1, {});
    ms4().setTextMatrix(1, 2, {});
    press(10);
    EXPECT_FALSE(refused());
    EXPECT_EQ(minors(), (QStringList{u"|"_s, u"|"_s}));
}

TEST_F(CategoriesRowsTest, DeletingAsksWithTheBoxClosed) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    clickMajor(1);
    clickMinor(1);
    bool asked = false;
    rig.messages->whileShown = [&](const ShownMessage& message) {
        asked = true;
        EXPECT_EQ(message, DeleteAsked);
        EXPECT_FALSE(tx3().Visible());
        EXPECT_TRUE(tx4().Visible());
    };
    press(8);
    EXPECT_TRUE(asked);
    rig.messages->whileShown = [&](const ShownMessage&) { EXPECT_FALSE(tx4().Visible()); };
    press(11);
    EXPECT_EQ(rig.messages->shown, (std::vector{DeleteAsked, DeleteAsked}));
}

TEST_F(CategoriesRowsTest, DeletingIsForgottenOnCancel) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s, u"乙|3|c"_s});
    clickMajor(2);
    rig.messages->answers = {Answer::Cancel, Answer::Cancel};
    press(8);
    press(11);
    EXPECT_EQ(majors(), (QStringList{u"乙"_s, u"甲"_s}));
    EXPECT_EQ(minors(), (QStringList{u"1|a"_s, u"2|b"_s}));
}

TEST_F(CategoriesRowsTest, DeletingTakesTheCurrentRowOutOfTheGridAlone) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s, u"乙|3|c"_s});
    const QStringList before = stored();
    clickMajor(2);
    clickMinor(1);
    press(11);
    EXPECT_EQ(minors(), QStringList{u"2|b"_s});
    clickMajor(1);
    press(8);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
    EXPECT_EQ(stored(), before);
    open();
    EXPECT_EQ(majors(), (QStringList{u"乙"_s, u"甲"_s}));
}

TEST_F(CategoriesRowsTest, DeletingTheOnlyMajorBlanksItsRow) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    press(8);
    EXPECT_EQ(rig.messages->shown, std::vector{DeleteAsked});
    EXPECT_EQ(majors(), QStringList{QString()});
    EXPECT_EQ(stored(), QStringList{u"甲|1|a"_s});
}

TEST_F(CategoriesRowsTest, DeletingTheOnlyMajorIsForgottenOnCancel) {
    openWith({u"甲|1|a"_s});
    rig.messages->answers = {Answer::Cancel};
    press(8);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
}

TEST_F(CategoriesRowsTest, DeletingTheOnlyMinorChangesNothingAfterTheQuestion) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    clickMinor(1);
    press(11);
    EXPECT_EQ(rig.messages->shown, std::vector{DeleteAsked});
    EXPECT_EQ(minors(), QStringList{u"1|a"_s});
    EXPECT_FALSE(tx4().Visible());
}

} // namespace
} // namespace qinghe::testing
