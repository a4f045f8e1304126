#include "core_fixture.h"
#include "platform/background_work.h"
#include "support/small_disk.h"

#include <QThread>

namespace qinghe::testing {
namespace {

const QString Today = u"2024-06-18 203608 每日.dat"_s;

class SafetyCopiesTest : public CoreTest {
protected:
    QString safetyFolder() const { return rig.file(u"安全副本"_s); }
    QStringList kept() const {
        return QDir(safetyFolder()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// The label in a part of the main window that says something of this, or nullptr.
    Label* note(const QString& words) { return note(rig.at(title::Band), words); }
    static Label* note(QWidget& part, const QString& words) {
        for (Label* label : part.findChildren<Label*>())
            if (label->Visible() && label->Caption().contains(words))
                return label;
        return nullptr;
    }
    /// The sign-in of a day, and its copy.
    void begin() {
        rig.signIn();
        if (rig.background->waits())
            rig.background->run();
    }
    void fillDiary() {
        rig.sql(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < 9000) "
                "insert into rjb select '2024-05-03', '标题' || i from n"_s);
    }
    /// Overwrites a page in the middle of the diary's index, which no sign-in reads.
    void damageDiary() {
        QFile file(rig.dataFile());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(file.size() / 4096 / 2 * 4096);
        file.write(QByteArray(4096, '\xff'));
    }
    /// A save of three budgets of which the second has no date.
    void saveBadDate() {
        for (int i = 1; i <= 3; ++i)
            rig.sql(u"insert into ysb values('2024-05-0%1','项目%1',%1,'',%1)"_s.arg(i));
        click(pages::Budget);
        rig.at(budget::Grid).setTextMatrix(2, 1, u"没有日子"_s);
        press(rig.at(budget::Save));
        expectError(RuntimeError::TypeMismatch, u"没有日子"_s);
    }
    QStringList rowsIn(const QString& copy) {
        QFile::remove(rig.dataFile());
        EXPECT_TRUE(QFile::copy(copy, rig.dataFile()));
        return rig.sql(u"select 预算项目 from ysb order by rowid"_s);
    }
};

TEST_F(SafetyCopiesTest, TheFirstSignInOfADayHasACopyMadeBesideTheHandlers) {
    rig.signIn();
    EXPECT_TRUE(rig.background->waits());
    EXPECT_FALSE(QFile::exists(safetyFolder()));
    rig.background->run();
    EXPECT_EQ(kept(), QStringList{Today});
    EXPECT_EQ(note(u"副本"_s), nullptr);
}

TEST_F(SafetyCopiesTest, NothingIsCopiedTwiceADay) {
    begin();
    rig.stop();
    rig.signIn();
    EXPECT_EQ(rig.background->started, 0);
    rig.stop();
    rig.clock->time = rig.clock->time.addDays(1);
    begin();
    EXPECT_EQ(kept().size(), 2);
}

TEST_F(SafetyCopiesTest, ASignInThatFailsAndASecondCopyOfTheProgramMakeNone) {
    rig.start();
    trySignIn(u"管理员"_s, u"wrong"_s);
    rig.settle();
    EXPECT_EQ(rig.background->started, 0);
    rig.stop();
    rig.lock->free = false;
    rig.signIn();
    EXPECT_EQ(rig.background->started, 0);
}

TEST_F(SafetyCopiesTest, OldCopiesGoWithTheNewOne) {
    ASSERT_TRUE(QDir().mkdir(safetyFolder()));
    for (const auto& day : {u"2024-06-08"_s, u"2024-06-09"_s, u"2024-06-10"_s})
        write(u"安全副本/%1 080000 每日.dat"_s.arg(day), "old");
    begin();
    EXPECT_EQ(kept(), (QStringList{u"2024-06-08 080000 每日.dat"_s, u"2024-06-10 080000 每日.dat"_s, Today}));
}

TEST_F(SafetyCopiesTest, WhereNoneCanBeMadeTheWorkGoesOnAndTheWindowSaysSoOnce) {
    write(u"安全副本"_s, "in the way");
    begin();
    Label* said = note(u"今天没有做成安全副本"_s);
    ASSERT_NE(said, nullptr);
    EXPECT_TRUE(said->toolTip().contains(u"不是文件夹"_s)) << said->toolTip().toStdString();
    EXPECT_TRUE(rig.messages->shown.empty());
    click(pages::Settings);
    QTest::mouseClick(&rig.at(settings::Initialise), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(texts().back(), u"初始化完毕"_s);
    EXPECT_EQ(shared().notes.size(), 1);
    EXPECT_NE(note(rig.at(settings::Page), u"没有做成安全副本，鼠标停在这里看原因"_s), nullptr);
    rig.click(rig.at(title::Close));
    expectEndedWell();
}

TEST_F(SafetyCopiesTest, AFullDiskIsToldTheSameWay) {
    fillDiary();
    rig.signIn();
    {
        const SmallDisk disk(50'000);
        rig.background->run();
    }
    EXPECT_EQ(kept(), QStringList());
    Label* said = note(u"今天没有做成安全副本"_s);
    ASSERT_NE(said, nullptr);
    EXPECT_TRUE(said->toolTip().contains(u"磁盘已满"_s));
}

TEST_F(SafetyCopiesTest, DamageIsToldAndNeverReplacesAGoodCopy) {
    fillDiary();
    begin();
    rig.stop();
    damageDiary();
    rig.clock->time = rig.clock->time.addDays(1);
    begin();
    EXPECT_EQ(kept(), QStringList{Today});
    Label* said = note(u"账本文件有损坏"_s);
    ASSERT_NE(said, nullptr);
    EXPECT_TRUE(said->toolTip().contains(QDir(safetyFolder()).filePath(Today))) << said->toolTip().toStdString();
    EXPECT_TRUE(said->toolTip().contains(u"系统数据备份"_s));
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_FALSE(rig.ended());
}

TEST_F(SafetyCopiesTest, WhatWasNotedBeforeTheWindowStoodIsSaidInIt) {
    rig.start();
    shared().note(u"第一件事"_s);
    shared().note(u"第二件事\n怎么办"_s);
    rig.click(signInButton());
    rig.settle();
    Label* said = note(u"第二件事（共 2 条）"_s);
    ASSERT_NE(said, nullptr);
    EXPECT_EQ(said->toolTip(), u"第一件事\n\n第二件事\n怎么办"_s);
}

TEST_F(SafetyCopiesTest, WhoeverLeavesInTheMidstLeavesNothingHalfDone) {
    fillDiary();
    rig.start();
    shared().services.background = backgroundWork();
    rig.background = nullptr;
    rig.click(signInButton());
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(safetyFolder()); }));
    rig.click(rig.at(title::Close));
    expectEndedWell();
    EXPECT_EQ(rig.headerBytes(), Spoilt);
    rig.stop();
    EXPECT_TRUE(kept().isEmpty() || kept() == QStringList{Today}) << kept().join('|'_L1).toStdString();
    begin();
    EXPECT_EQ(kept(), QStringList{Today});
}

TEST_F(SafetyCopiesTest, ASaveGoesOnWhileTheThreadCopies) {
    fillDiary();
    rig.sql(u"insert into ysb values('2024-05-01','项目',1,'',1)"_s);
    rig.start();
    shared().services.background = backgroundWork();
    rig.background = nullptr;
    rig.click(signInButton());
    rig.settle();
    click(pages::Budget);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(safetyFolder()); }));
    for (int i = 0; i < 20; ++i)
        press(rig.at(budget::Save));
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return kept() == QStringList{Today}; }));
    EXPECT_EQ(shared().notes, QStringList());
}

TEST_F(SafetyCopiesTest, ASaveThatBreaksOffHasTheBookOfBeforeKept) {
    begin();
    saveBadDate();
    const QString copy = QDir(safetyFolder()).filePath(u"2024-06-18 203608 保存出错以前.dat"_s);
    EXPECT_TRUE(rig.messages->lastWords.contains(copy)) << rig.messages->lastWords.toStdString();
    EXPECT_TRUE(rig.messages->lastWords.contains(u"系统数据还原"_s));
    EXPECT_EQ(rig.sql(u"select 预算项目 from ysb"_s), QStringList{u"项目1"_s}); // as it has to be
    rig.stop();
    EXPECT_EQ(rowsIn(copy), (QStringList{u"项目1"_s, u"项目2"_s, u"项目3"_s}));
}

TEST_F(SafetyCopiesTest, WhereThatCannotBeKeptTheErrorIsToldAllTheSame) {
    write(u"安全副本"_s, "in the way");
    rig.signIn();
    saveBadDate();
    EXPECT_TRUE(rig.messages->lastWords.contains(u"没有留下安全副本"_s)) << rig.messages->lastWords.toStdString();
    EXPECT_TRUE(rig.messages->lastWords.contains(u"原有 3 条，已写回 1 条"_s));
}

TEST_F(SafetyCopiesTest, AnErrorOutsideASaveKeepsNone) {
    begin();
    handlers::enter([] { throw RuntimeError(RuntimeError::DivisionByZero, u"除数为零。"_s); });
    EXPECT_EQ(kept(), QStringList{Today});
    EXPECT_FALSE(rig.messages->lastWords.contains(u"安全副本"_s));
}

} // namespace
} // namespace qinghe::testing
