#include "ledger/categories_rig.h"

#include <QFile>

// The save buttons of the two lists. They share a table and know nothing of each other: the majors' save leaves no
// minor, the minors' save writes one column too far left. Both are meant.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CategoriesSaveTest : public CategoriesTest {
protected:
    /// Presses a save button, which reports its success.
    void save(int number) {
        rig.messages->shown.clear();
        press(number);
        EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    }
    /// Closes the store and puts this file in its place.
    void restore(const QString& name) {
        handlers::enter([this] { shared().store.close(); });
        QFile::remove(rig.dataFile());
        ASSERT_TRUE(QFile::copy(rig.file(name), rig.dataFile()));
    }
};

TEST_F(CategoriesSaveTest, MajorsAreWrittenInTheOrderOfTheGridWithNothingBesideThem) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    press(7);
    fillMajor(3, u"丙"_s);
    save(9);
    EXPECT_EQ(stored(), (QStringList{u"乙|NULL|NULL"_s, u"甲|NULL|NULL"_s, u"丙|NULL|NULL"_s}));
}

TEST_F(CategoriesSaveTest, MajorsOfExpenseGoIntoTheirOwnTable) {
    store({u"工资|基本工资|gz"_s});
    openWith({u"日常生活|买菜|mc"_s}, Expense);
    fillMajor(1, u"出行"_s);
    save(9);
    EXPECT_EQ(stored(Expense), QStringList{u"出行|NULL|NULL"_s});
    EXPECT_EQ(stored(Income), QStringList{u"工资|基本工资|gz"_s});
}

TEST_F(CategoriesSaveTest, NamesWhoseBytesAreNoTextStayAsTheyAre) {
    rig.sql(u"insert into srflb values(cast(x'E5FFB7' as text), 'a', 'b'), ('甲', cast(x'EFBBBF41' as text), 'c')"_s);
    open();
    clickMajor(2);
    save(12);
    EXPECT_EQ(rig.sql(u"select hex(收入大类) from srflb"_s), (QStringList{u"E5FFB7"_s, u"EFBBBF41"_s}));
    open(Expense);
    open();
    save(9);
    EXPECT_EQ(rig.sql(u"select hex(收入大类) from srflb"_s), (QStringList{u"E5FFB7"_s, u"EFBBBF41"_s}));
}

TEST_F(CategoriesSaveTest, SavingMajorsTakesEveryRowBehindThem) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s, u"甲|3|c"_s, u"NULL|4|d"_s, u"乙|5|e"_s});
    ASSERT_EQ(majors().size(), 3);
    save(9);
    EXPECT_EQ(stored(), (QStringList{u"乙|NULL|NULL"_s, u"甲|NULL|NULL"_s}));
}

TEST_F(CategoriesSaveTest, SavingMajorsNamesTheBudgetTableAndWorksOnTheMajorsInHand) {
    rig.sql(u"insert into ysb values('2024-06-01','房租',1000,'',1)"_s);
    openWith({u"甲|1|a"_s});
    fillMajor(1, u"乙"_s);
    save(9);
    EXPECT_EQ(adodc1().recordSource(), u"ysb");
    EXPECT_EQ(stored(), QStringList{u"乙|NULL|NULL"_s});
    EXPECT_EQ(rig.sql(u"select count(*) from ysb"_s), QStringList{u"1"_s});
    fillMajor(1, u"丙"_s);
    save(9); // works on what the save before added
    EXPECT_EQ(stored(), QStringList{u"丙|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, MajorsWithoutAnyRowBeforeAreAdded) {
    open();
    fillMajor(1, u"甲"_s);
    save(9);
    EXPECT_EQ(stored(), QStringList{u"甲|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, EqualMajorsAreTwoRowsAndFoldAtTheNextOpening) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    fillMajor(1, u"甲"_s);
    save(9);
    EXPECT_EQ(stored(), (QStringList{u"甲|NULL|NULL"_s, u"甲|NULL|NULL"_s}));
    open();
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
}

TEST_F(CategoriesSaveTest, ADeletedMajorIsGoneWithItsMinorsOnlyAfterTheSave) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    clickMajor(1);
    press(8);
    EXPECT_EQ(stored().size(), 2);
    save(9);
    EXPECT_EQ(stored(), QStringList{u"甲|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, TheBoxIsClosedAndWhatWasNotConfirmedIsLeftOut) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    typeOver(tx3(), u"未确认"_s);
    bool open = false;
    rig.messages->whileShown = [&](const ShownMessage&) { open = tx3().Visible(); };
    save(9);
    EXPECT_TRUE(open); // closed after the message
    EXPECT_FALSE(tx3().Visible());
    EXPECT_EQ(stored(), QStringList{u"甲|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, ABlankLastRowIsDroppedBeforeAnyTextWasSeen) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s});
    clickMajor(1); // it is the last row that counts, wherever the user stands
    ms3().setTextMatrix(2, 1, {});
    save(9);
    EXPECT_EQ(majors(), QStringList{u"乙"_s});
    EXPECT_EQ(stored(), QStringList{u"乙|NULL|NULL"_s});
    EXPECT_EQ(shared().emptyRowFlag, 0); // a text further up was not looked at
}

TEST_F(CategoriesSaveTest, ABlankLastRowIsKeptOnceATextWasSeenAndBecomesARecordWithoutAMajor) {
    openWith({u"甲|1|a"_s});
    press(7);
    ASSERT_EQ(shared().emptyRowFlag, 1);
    save(9);
    EXPECT_EQ(majors(), (QStringList{u"甲"_s, QString()}));
    EXPECT_EQ(stored(), (QStringList{u"甲|NULL|NULL"_s, u"NULL|NULL|NULL"_s}));
}

TEST_F(CategoriesSaveTest, BlankRowsAreWrittenFromTheFirstFilledOneOn) {
    openWith({u"甲|1|a"_s, u"乙|2|b"_s, u"丙|3|c"_s, u"丁|4|d"_s});
    ms3().setTextMatrix(1, 1, {});
    ms3().setTextMatrix(3, 1, {});
    const QStringList shown = majors();
    save(9);
    EXPECT_EQ(stored(), (QStringList{shown[1] + u"|NULL|NULL"_s, u"NULL|NULL|NULL"_s, shown[3] + u"|NULL|NULL"_s}));
}

TEST_F(CategoriesSaveTest, OneBlankRowAloneWritesNothingAndEmptiesTheTable) {
    openWith({u"甲|1|a"_s});
    press(8);
    save(9);
    EXPECT_EQ(stored(), QStringList());
    EXPECT_EQ(majors(), QStringList{QString()});
}

TEST_F(CategoriesSaveTest, APressOnTheBareFormLetsABlankLastRowBeDroppedAgain) {
    openWith({u"甲|1|a"_s});
    press(7);
    pressBareForm(40);
    save(9);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
    EXPECT_EQ(stored(), QStringList{u"甲|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, MinorsAreWrittenOneColumnToTheLeft) {
    for (const Side side : {Income, Expense}) {
        openWith({u"甲|1|a"_s, u"甲|2|b"_s, u"乙|3|c"_s}, side);
        clickMajor(2);
        fillMinor(2, u"午饭"_s, u"wf"_s);
        save(12);
        EXPECT_EQ(stored(side), (QStringList{u"乙|3|c"_s, u"1|a|NULL"_s, u"午饭|wf|NULL"_s}));
    }
}

TEST_F(CategoriesSaveTest, SavedMinorsAreMajorsAtTheNextOpening) {
    openWith({u"甲|早饭|zf"_s, u"甲|午饭|wf"_s});
    clickMajor(1);
    save(12);
    clickMajor(1); // 甲 has no rows any more and shows what stood there
    EXPECT_EQ(minors(), QStringList{u"早饭|zf"_s});
    open();
    EXPECT_EQ(majors(), (QStringList{u"午饭"_s, u"早饭"_s}));
    clickMajor(2);
    EXPECT_EQ(minors(), QStringList{u"zf|"_s});
}

TEST_F(CategoriesSaveTest, MinorsSavedTwiceStandOnce) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s, u"乙|3|c"_s});
    clickMajor(2);
    save(12);
    const QStringList once = stored();
    fillMinor(1, u"9"_s, u"z"_s);
    save(12);
    EXPECT_EQ(once, (QStringList{u"乙|3|c"_s, u"1|a|NULL"_s, u"2|b|NULL"_s}));
    EXPECT_EQ(stored(), (QStringList{u"乙|3|c"_s, u"9|z|NULL"_s, u"2|b|NULL"_s}));
}

TEST_F(CategoriesSaveTest, MinorsOfAMajorWithoutRowsAreWrittenAsTheyAreShown) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    press(7);
    fillMajor(2, u"新"_s);
    clickMajor(2);
    ASSERT_EQ(minors(), QStringList{u"1|a"_s}); // of the major before
    save(12);
    EXPECT_EQ(stored(), (QStringList{u"甲|1|a"_s, u"1|a|NULL"_s}));
}

TEST_F(CategoriesSaveTest, AMinorWithoutACodeLeavesTheSecondColumnWithout) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    press(10);
    fillMinor(2, u"2"_s, {});
    press(10);
    fillMinor(3, {}, u"c"_s);
    save(12);
    EXPECT_EQ(stored(), (QStringList{u"1|a|NULL"_s, u"2|NULL|NULL"_s, u"NULL|c|NULL"_s}));
}

TEST_F(CategoriesSaveTest, SavingMinorsKeepsTheSourceAndClosesTheirBox) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    const QString source = adodc2().recordSource();
    clickMinor(1);
    save(12);
    EXPECT_EQ(adodc2().recordSource(), source);
    EXPECT_FALSE(tx4().Visible());
    EXPECT_EQ(adodc1().recordSource(), u"select distinct 收入大类 from srflb");
}

TEST_F(CategoriesSaveTest, ABlankLastMinorIsDroppedOrKeptByTheMark) {
    openWith({u"甲|1|a"_s, u"甲|2|b"_s});
    clickMajor(1);
    ms4().setTextMatrix(2, 1, {});
    ms4().setTextMatrix(2, 2, {});
    save(12);
    EXPECT_EQ(minors(), QStringList{u"1|a"_s});
    press(10); // meets a text
    save(12);
    EXPECT_EQ(minors(), (QStringList{u"1|a"_s, u"|"_s}));
    EXPECT_EQ(stored(), (QStringList{u"1|a|NULL"_s, u"NULL|NULL|NULL"_s}));
}

TEST_F(CategoriesSaveTest, NamesWithQuotesAndMarksAreStoredAsTheyWereTyped) {
    openWith({u"甲|1|a"_s});
    fillMajor(1, u"it's \"<b>\" & 100%; --"_s);
    save(9);
    EXPECT_EQ(rig.sql(u"select 收入大类 from srflb"_s), QStringList{u"it's \"<b>\" & 100%; --"_s});
}

TEST_F(CategoriesSaveTest, TheSaveHasReachedTheFileWhenItSaysSo) {
    openWith({u"甲|1|a"_s});
    fillMajor(1, u"乙"_s);
    QStringList seen;
    rig.messages->whileShown = [&](const ShownMessage&) { seen = stored(); }; // through a second connection
    save(9);
    EXPECT_EQ(seen, QStringList{u"乙|NULL|NULL"_s});
}

TEST_F(CategoriesSaveTest, FiveThousandMajorsAndMinorsAreOpenedAndSaved) {
    constexpr int Count = 5000;
    rig.sql(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < %1) "
            "insert into srflb select printf('%05d', i), '细' || i, 'c' || i from n"_s.arg(Count));
    rig.sql(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < %1) "
            "insert into zcflb select '大', '细' || i, 'c' || i from n"_s.arg(Count));
    open();
    ASSERT_EQ(ms3().Rows() - 1, Count);
    fillMajor(Count, u"最后"_s);
    save(9);
    EXPECT_EQ(rig.sql(u"select count(*), count(收入细类), max(收入大类) from srflb"_s), QStringList{u"5000|0|最后"_s});
    EXPECT_EQ(rig.sql(u"select 收入大类 from srflb order by rowid limit 1"_s), QStringList{u"00001"_s});

    choose(Expense);
    clickMajor(1);
    ASSERT_EQ(ms4().Rows() - 1, Count);
    EXPECT_EQ(ProgramRig::rowText(ms4(), Count), u"细5000|c5000");
    save(12);
    EXPECT_EQ(rig.sql(u"select count(distinct 支出大类), count(支出细类), count(快速代码) from zcflb"_s),
              QStringList{u"5000|5000|0"_s});
}

TEST_F(CategoriesSaveTest, MajorsGoIntoAFileThatWasRestoredMeanwhile) {
    openWith({u"甲|1|a"_s});
    QFile::copy(rig.dataFile(), rig.file(u"b"_s));
    rig.sql(u"insert into srflb values('丙','3','c')"_s);
    fillMajor(1, u"乙"_s);
    restore(u"b"_s);
    save(9);
    EXPECT_EQ(stored(), QStringList{u"乙|NULL|NULL"_s});
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(CategoriesSaveTest, MinorsGoIntoAFileThatWasRestoredMeanwhile) {
    openWith({u"甲|1|a"_s});
    QFile::copy(rig.dataFile(), rig.file(u"b"_s));
    clickMajor(1);
    fillMinor(1, u"2"_s, u"b"_s);
    restore(u"b"_s);
    save(12);
    EXPECT_EQ(stored(), QStringList{u"2|b|NULL"_s});
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(CategoriesSaveTest, GoIntoTheirOwnTableWhateverTheControlsHoldMeanwhile) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    fillMajor(1, u"乙"_s);
    handlers::enter([this] {
        adodc1().open(u"yhb"_s);
        adodc2().open(u"yhb"_s);
    });
    save(9);
    EXPECT_EQ(stored(), QStringList{u"乙|NULL|NULL"_s});
    EXPECT_EQ(rig.sql(u"select count(*) from yhb"_s), QStringList{u"1"_s});
}

TEST_F(CategoriesSaveTest, ByKeyTheListIsSavedThatHasTheKeyboardAndNoneWithoutIt) {
    openWith({u"甲|1|a"_s});
    const auto saves = [this] {
        QTest::keyClick(rig.mainWindow().focusWidget(), Qt::Key_S, Qt::ControlModifier);
        rig.settle();
        return std::exchange(rig.messages->shown, {}).size();
    };
    rig.mainWindow().setFocus();
    EXPECT_EQ(saves(), 0U);
    clickMajor(1);
    clickMinor(1);
    fillMinor(1, u"2"_s, u"b"_s);
    ms4().setFocus();
    EXPECT_EQ(saves(), 1U);
    EXPECT_EQ(stored(), QStringList{u"2|b|NULL"_s});
}

} // namespace
} // namespace qinghe::testing
