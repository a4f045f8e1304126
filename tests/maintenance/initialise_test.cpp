#include "journal/diary_page.h"
#include "ledger/ledger_lists.h"
#include "settings_rig.h"
#include "support/page_rig.h"

#include <QDir>

// The box that empties the ledgers.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage Question{u"点击此项将初始化系统内除用户信息以外的全部数据！是否继续？"_s, 36, u"系统提示"_s};
const ShownMessage Done{u"初始化完毕"_s, 64, u"提示"_s};

/// In this order; lists that came later stand behind.
const QStringList Emptied = [] {
    QStringList tables{u"jcb"_s, u"jrb"_s, u"nsrb"_s, u"nzcb"_s, u"rcb"_s,
                       u"rjb"_s, u"srb"_s, u"ysb"_s,  u"zcb"_s,  u"zhb"_s};
    for (const GridList& list : LedgerLists)
        if (!tables.contains(list.table.toString()))
            tables << list.table.toString();
    return tables;
}();
const QStringList Kept{u"yhb"_s,        u"登陆用户记录表"_s, u"srflb"_s,    u"zcflb"_s,  u"sztjlsb"_s, u"txb"_s,
                       u"systuopanb"_s, u"软件皮肤"_s,       u"皮肤选择"_s, u"主界面"_s, u"登陆皮肤"_s};

class InitialiseTest : public SettingsTest {
protected:
    InitialiseTest() { fill(); }

    /// Two rows in each ledger, and some in what is to be kept.
    void fill() {
        const auto store = [&](const QString& table, const QString& values) {
            rig.sql(u"insert into %1 select %2 union all select %2"_s.arg(table, values));
        };
        for (const GridList& list : LedgerLists)
            storeRows(rig, list, 2);
        for (const auto& table : {u"nsrb"_s, u"nzcb"_s})
            store(table, u"'2024-06',5,1"_s);
        store(u"rcb"_s, u"'2024-06-18',1,'2024-06-18','8:05','内容','音乐1',1"_s);
        store(u"rjb"_s, u"'2024-06-03','春耕'"_s);
        store(u"srflb"_s, u"'大类','细类','dl'"_s);
        store(u"zcflb"_s, u"'大类','细类','dl'"_s);
        store(u"sztjlsb"_s, u"'2024-06',5,'项目',1,'人'"_s);
        store(u"软件皮肤"_s, u"'春',1,x'0000'"_s);
    }

    CheckBox& initialise() { return box(settings::Initialise); }
    QStringList counts(const QStringList& tables) {
        QStringList counts;
        for (const QString& table : tables)
            counts << rig.sql(u"select count(*) from %1"_s.arg(table));
        return counts;
    }
    QStringList kept() {
        QStringList rows;
        for (const QString& table : Kept)
            rows << rig.sql(u"select *, '%1' from %1 order by rowid"_s.arg(table));
        return rows;
    }
    static QStringList times(const QString& count, qsizetype n) { return QStringList(n, count); }
    void expectNothingGone() { EXPECT_EQ(counts(Emptied), times(u"2"_s, Emptied.size())); }
};

TEST_F(InitialiseTest, AsksAndEmptiesTheTablesOfRecordsAndNoOther) {
    const QStringList before = kept();
    ASSERT_EQ(rig.sql(u"select count(*) from sqlite_master where type='table'"_s),
              QStringList{QString::number(Emptied.size() + Kept.size())});
    expectNothingGone();
    tick(initialise());
    EXPECT_EQ(rig.messages->shown, (std::vector{Question, Done}));
    EXPECT_EQ(counts(Emptied), times(u"0"_s, Emptied.size()));
    EXPECT_EQ(kept(), before);
    EXPECT_TRUE(initialise().Value());
}

TEST_F(InitialiseTest, NoOrAnyOtherAnswerUnticksTheBoxAndEmptiesNothing) {
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        rig.messages->shown.clear();
        rig.messages->answers = {answer};
        tick(initialise());
        EXPECT_EQ(rig.messages->shown, std::vector{Question});
        EXPECT_FALSE(initialise().Value());
        expectNothingGone();
    }
}

TEST_F(InitialiseTest, UntickingByHandAsksNothingAndEmptiesNothing) {
    tick(initialise());
    fill();
    rig.messages->shown.clear();
    tick(initialise());
    EXPECT_FALSE(initialise().Value());
    EXPECT_TRUE(rig.messages->shown.empty());
    expectNothingGone();
    tick(initialise());
    EXPECT_EQ(rig.messages->shown, (std::vector{Question, Done}));
    EXPECT_EQ(counts(Emptied), times(u"0"_s, Emptied.size()));
}

TEST_F(InitialiseTest, EmptyTablesAreInitialisedToo) {
    tick(initialise());
    tick(initialise());
    tick(initialise());
    EXPECT_EQ(rig.lastMessage(), Done);
    EXPECT_FALSE(rig.ended());
}

TEST_F(InitialiseTest, NothingIsGoneWhileItAsksAndAllIsWhenItSaysSo) {
    rig.messages->whileShown = [this](const ShownMessage& message) {
        EXPECT_EQ(counts(Emptied), times(message == Done ? u"0"_s : u"2"_s, Emptied.size()));
    };
    tick(initialise());
    EXPECT_EQ(rig.messages->shown.size(), 2u);
}

TEST_F(InitialiseTest, HidesTheDataControlAndPointsItAtTheDataFile) {
    pointElsewhere();
    tick(initialise());
    EXPECT_FALSE(rig.mainWindow().Adodc1->isVisible());
    EXPECT_EQ(rig.lastMessage(), Done);
    EXPECT_EQ(counts(Emptied), times(u"0"_s, Emptied.size()));
}

TEST_F(InitialiseTest, KeepsTheDiarysFilesWhoseTitlesAreFreeForNewEntriesThatReplaceThem) {
    write(u"mydiary/春耕.dll"_s, "an old and rather long text\r\n");
    write(u"mydiary/秋收.dll"_s, "another\r\n");
    tick(initialise());
    EXPECT_EQ(QDir(rig.file(u"mydiary"_s)).entryList(QDir::Files).size(), 2);
    go(pages::Diary);
    rig.clickCell(rig.at(diary_page::Grid), 1, 1);
    auto& tx9 = rig.at(diary_page::Box);
    for (const QString& text : {u"2024-6-18"_s, u"春耕"_s}) {
        rig.type(tx9, text);
        rig.press(tx9, Qt::Key_Return);
    }
    rig.type(rig.at(diary_page::Text), u"new"_s);
    rig.click(rig.at(diary_page::Save));
    EXPECT_EQ(rig.lastMessage().text, u"日志已经保存！");
    EXPECT_EQ(bytes(u"mydiary/春耕.dll"_s), "new\r\n");
    EXPECT_EQ(bytes(u"mydiary/秋收.dll"_s), "another\r\n");
    EXPECT_EQ(rig.sql(u"select * from rjb"_s), QStringList{u"2024-06-18|春耕"_s});
}

TEST_F(InitialiseTest, TheNextStartFindsUsersAndCategoriesButNoAccountsAndNoRecords) {
    tick(initialise());
    startAgain();
    EXPECT_TRUE(rig.mainWindow().isVisible());
    EXPECT_EQ(rig.at(desktop::Income).Caption(), u"0.00元");
    go(pages::Accounts);
    EXPECT_EQ(rig.at(accounts::Grid).Rows(), 2);
    EXPECT_EQ(rig.at(accounts::Grid).TextMatrix(1, 1), QString());
    go(pages::Income);
    EXPECT_EQ(rig.at(income::Grid).TextMatrix(1, 1), QString());
    open();
    rig.click(rig.at(settings::Categories));
    EXPECT_EQ(rig.at(categories::Majors).TextMatrix(1, 1), u"大类");
}

TEST_F(InitialiseTest, APageShowsTheEmptiedTableOnlyWhenItIsEnteredAgain) {
    go(pages::Income);
    auto& ms2 = rig.at(income::Grid);
    const QString row = rig.rowText(ms2, 1), total = rig.at(income::Total).Caption();
    ASSERT_EQ(ms2.Rows(), 3);
    open();
    tick(initialise());
    EXPECT_EQ(ms2.Rows(), 3);
    EXPECT_EQ(rig.rowText(ms2, 1), row);
    EXPECT_EQ(rig.at(income::Total).Caption(), total);
    go(pages::Income);
    EXPECT_EQ(ms2.Rows(), 2);
    EXPECT_EQ(ms2.TextMatrix(1, 1), QString());
}

TEST_F(InitialiseTest, TheSameTableCanBeFilledAndEmptiedInOneSitting) {
    tick(initialise());
    rig.sql(u"insert into srb values('9','2024-06-03','项目','人',5,'户','备',1)"_s);
    go(pages::Income);
    EXPECT_EQ(rig.at(income::Grid).TextMatrix(1, 1), u"9");
}

/// Initialising when one of the tables is missing.
class InitialiseFailure : public InitialiseTest, public ::testing::WithParamInterface<qsizetype> {};

TEST_P(InitialiseFailure, LeavesTheTablesBeforeItEmptyAndThoseBehindItFull) {
    QStringList rest = Emptied;
    const QString missing = rest.takeAt(GetParam());
    rig.sql(u"drop table %1"_s.arg(missing));
    tick(initialise());
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_TRUE(rig.messages->errors[0].second.contains(missing)) << rig.messages->errors[0].second.toStdString();
    EXPECT_EQ(texts(), QStringList{Question.text});
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(counts(rest), times(u"0"_s, GetParam()) + times(u"2"_s, rest.size() - GetParam()));
}

INSTANTIATE_TEST_SUITE_P(AtEachTable, InitialiseFailure, ::testing::Range<qsizetype>(0, Emptied.size()),
                         [](const auto& at) { return Emptied[at.param].toStdString(); });

} // namespace
} // namespace qinghe::testing
