#include "ledger/income_rig.h"

// The save of the income page, beyond what it does on every list.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SaveTest : public IncomeTest {
protected:
    /// What a household types on its first evening.
    void fillFirstRow() { fillRow(1, {u"001"_s, u"2024-6-18"_s, u"工资"_s, u"我"_s, u"8000.5"_s, u"现金"_s, u""_s}); }
};

TEST_F(SaveTest, StoresTheBlankRowOnceItIsFilled) {
    open();
    fillFirstRow();
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored(), QStringList{u"001|2024-06-18|工资|我|8000.5|现金|NULL|1"_s}); // an empty remark is no text
    EXPECT_EQ(rows(), QStringList{u"001|2024-6-18|工资|我|8000.5|现金|"_s});
}

TEST_F(SaveTest, TakesADateAsAHouseholdWritesItAndShowsItAsThePickerDoes) {
    openWith(5);
    int line = 0;
    for (const auto& text : {u"5-3"_s, u"24-5-3"_s, u"5月3日"_s, u"２０２４。５。３"_s, u"20240503"_s})
        fillCell(++line, 2, text);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored(u"时间"_s), QStringList(5, u"2024-05-03"_s));
    open();
    for (int shown = 1; shown <= line; ++shown)
        EXPECT_EQ(grid().TextMatrix(shown, 2), u"2024-5-3") << shown;
}

TEST_F(SaveTest, TakesADayWithoutItsYearAsOneOfTheClocksYear) {
    openWith(1);
    rig.clock->time = QDateTime(QDate(2031, 1, 1), QTime(0, 0));
    fillCell(1, 2, u"5-3"_s);
    press(save());
    EXPECT_EQ(stored(u"时间"_s), QStringList(u"2031-05-03"_s));
}

TEST_F(SaveTest, StoresTheExpenseSideInItsOwnTable) {
    store(1);
    open(1);
    fillFirstRow();
    press(save());
    EXPECT_EQ(stored(Expense), QStringList{u"001|2024-06-18|工资|我|8000.5|现金|NULL|1"_s});
    EXPECT_EQ(stored().size(), 1);
    EXPECT_EQ(adodc1().recordSource(), u"zcb");
}

TEST_F(SaveTest, NumbersTheRowsAnewInTheOrderOfTheGrid) {
    rig.sql(u"insert into srb values('丙','2024-05-03','a','b',3,'c','d',9),('甲','2024-05-01','a','b',1,'c','d',5)"_s);
    open();
    press(add());
    fillRow(3, {u"乙"_s, u"2024-5-2"_s, u"a"_s, u"b"_s, u"2"_s, u"c"_s, u"d"_s});
    press(save());
    EXPECT_EQ(stored(), (QStringList{u"丙|2024-05-03|a|b|3|c|d|1"_s, u"甲|2024-05-01|a|b|1|c|d|2"_s,
                                     u"乙|2024-05-02|a|b|2|c|d|3"_s}));
    open();
    EXPECT_EQ(rows(),
              (QStringList{u"丙|2024-5-3|a|b|3|c|d"_s, u"甲|2024-5-1|a|b|1|c|d"_s, u"乙|2024-5-2|a|b|2|c|d"_s}));
}

TEST_F(SaveTest, DropsWhatTheGridDoesNotHold) {
    openWith(3);
    rig.sql(u"insert into srb values('外','2024-05-09','a','b',1,'c','',4)"_s); // came in behind the page's back
    press(save());
    EXPECT_EQ(rig.sql(u"select 编号 from srb order by rowid"_s), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(SaveTest, LeavesTheTotalOfTheOpening) {
    openWith(2);
    clickCell(1, 5);
    calculate(u"100"_s);
    press(save());
    EXPECT_EQ(rig.sql(u"select 金额 from srb order by rowid"_s), (QStringList{u"100"_s, u"2.5"_s}));
    EXPECT_EQ(total(), u"当前收入总额为：4.00元 ");
    open();
    EXPECT_EQ(total(), u"当前收入总额为：102.50元 ");
}

TEST_F(SaveTest, HasCommittedWhenItSaysSo) {
    openWith(2);
    fillCell(1, 3, u"改过"_s);
    QStringList seen;
    rig.messages->whileShown = [&](const ShownMessage& message) {
        EXPECT_EQ(message, SaveDone);
        EXPECT_TRUE(tx2().Visible());                             // hidden after the box is closed
        seen = rig.sql(u"select 项目 from srb order by rowid"_s); // through a second connection
    };
    press(save());
    EXPECT_EQ(seen, (QStringList{u"改过"_s, u"项目2"_s}));
    EXPECT_FALSE(tx2().Visible());
}

TEST_F(SaveTest, MovesNoAccount) {
    rig.sql(
        u"insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) values('账户1',100,0,0,0,0,0,0,100,'',1)"_s);
    const QStringList before = stored(Accounts);
    openWith(1);
    press(save());
    EXPECT_EQ(stored(Accounts), before);
}

TEST_F(SaveTest, TakesDatesAndNumbersAsPeopleWriteThem) {
    openWith(1);
    ms2().setTextMatrix(1, 2, u"2024年7月9日"_s);
    ms2().setTextMatrix(1, 5, u" 1,234.50 "_s);
    press(save());
    EXPECT_EQ(rig.sql(u"select 时间, 金额 from srb"_s), QStringList{u"2024-07-09|1234.5"_s});
}

} // namespace
} // namespace qinghe::testing
