#include "controls/long_text_box.h"
#include "core_fixture.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"

namespace qinghe::testing {
namespace {

/// A run-time error ends the program: nothing that was typed goes with it.
class LastWords : public CoreTest {
protected:
    LastWords() { rig.signIn(); }

    /// An error that has nothing to do with the page on view.
    void fail() {
        handlers::enter([] { throw RuntimeError(RuntimeError::DivisionByZero, u"除数为零。"_s); });
    }
    QString words() const { return rig.messages->lastWords; }
    void openWith(int rows) {
        for (int i = 1; i <= rows; ++i)
            rig.sql(u"insert into ysb values('2024-05-0%1','项目%1',%1,'',%1)"_s.arg(i));
        click(pages::Budget);
    }
    void writePlan(const QString& text) {
        click(pages::Schedule);
        rig.at(schedule::Plan).setBoxText(text);
    }
};

TEST_F(LastWords, WithNothingTypedThereIsNoFile) {
    openWith(3);
    fail();
    expectError(RuntimeError::DivisionByZero);
    EXPECT_EQ(words(), u"出错以前写入账本的内容都已保留。"_s);
    EXPECT_EQ(rescuedText(), QString());
}

TEST_F(LastWords, AListThatDiffersFromTheBookIsKeptWholeForItsOwnerAlone) {
    openWith(2);
    rig.at(budget::Grid).setTextMatrix(2, 3, u"99"_s);
    fail();
    EXPECT_EQ(rescuedText().section(u"\n\n"_s, 2), u"【支出预算】\n行\t预算日期\t预算项目\t预算金额\t备注\n"
                                                   "1\t2024-5-1\t项目1\t1\t\n2\t2024-5-2\t项目2\t99\t\n"_s);
    const QString path = rig.file(u"没有保存的内容 2024-06-18 203608.txt"_s);
    EXPECT_TRUE(words().endsWith(path));
    EXPECT_EQ(QFile::permissions(path) & QFile::Permissions(0x0077), QFile::Permissions());
    EXPECT_TRUE(rescuedText().contains(u"运行时错误 11：除数为零。"_s));
}

TEST_F(LastWords, ATextThatHasNotReachedItsCellIsKeptToo) {
    openWith(2);
    rig.clickCell(rig.at(budget::Grid), 2, 2);
    typeOver(rig.at(budget::Box), u"还在写"_s);
    fail();
    EXPECT_TRUE(rescuedText().contains(u"第2行“预算项目”，写的是：还在写\n"_s));
}

TEST_F(LastWords, APageThatWasLeftHasDroppedWhatWasTypedOnIt) {
    openWith(2);
    rig.at(budget::Grid).setTextMatrix(2, 3, u"99"_s);
    click(pages::Desktop);
    fail();
    EXPECT_EQ(rescuedText(), QString());
}

TEST_F(LastWords, ADiaryEntryAndAPlanAreKeptFromWhateverPageTheErrorComes) {
    click(pages::Diary);
    rig.at(diary_page::Grid).setTextMatrix(1, 2, u"雨"_s);
    rig.at(diary_page::Text).setBoxText(u"下了一天\r\n没有停"_s);
    writePlan(u"买米"_s);
    click(pages::Desktop);
    fail();
    EXPECT_TRUE(rescuedText().contains(u"【日记】\n日期：\n标题：雨\n正文：\n下了一天\n没有停\n"_s));
    EXPECT_TRUE(rescuedText().contains(u"内容：\n买米\n"_s));
}

TEST_F(LastWords, APlanOfNoDayIsKeptWhenItsSaveFails) {
    writePlan(u"买米"_s);
    rig.at(schedule::Date).setBoxText(u"明天"_s);
    press(rig.at(schedule::Save));
    expectError(RuntimeError::TypeMismatch, u"明天"_s);
    EXPECT_TRUE(rescuedText().contains(u"日期：明天\n"_s));
}

TEST_F(LastWords, WhatIsSavedIsNotKeptOnceMore) {
    writePlan(u"买米"_s);
    rig.at(schedule::Date).setBoxText(u"2024-6-19"_s);
    press(rig.at(schedule::Save));
    click(pages::Diary);
    rig.at(diary_page::Grid).setTextMatrix(1, 1, u"2024-6-18"_s);
    rig.at(diary_page::Grid).setTextMatrix(1, 2, u"雨"_s);
    rig.at(diary_page::Text).setBoxText(u"下了一天"_s);
    press(rig.at(diary_page::Save));
    fail();
    EXPECT_EQ(rescuedText(), QString());
}

TEST_F(LastWords, ASaveThatIsUndoneSaysSo) {
    openWith(3);
    rig.at(budget::Grid).setTextMatrix(2, 4, QString(200'000, u'字'));
    {
        const SmallDisk disk(static_cast<rlim_t>(QFileInfo(rig.dataFile()).size()) + 50'000);
        press(rig.at(budget::Save));
    }
    expectError(RuntimeError::DiskFull);
    EXPECT_TRUE(words().startsWith(u"保存没有完成，已经撤销：这一页原有的 3 条都还在账本里。"_s));
    EXPECT_EQ(rig.sql(u"select count(*) from ysb"_s), QStringList{u"3"_s});
}

TEST_F(LastWords, OfADiskThatFailsNothingIsPromised) {
    openWith(2);
    handlers::enter([] { throw RuntimeError(RuntimeError::DeviceFailure, u"磁盘出错。"_s); });
    EXPECT_EQ(words(), QString());
}

TEST_F(LastWords, AFileThatCannotBeWrittenIsToldWithTheErrorAndNotInsteadOfIt) {
    openWith(2);
    rig.at(budget::Grid).setTextMatrix(2, 3, u"99"_s);
    QFile::setPermissions(rig.folder(), QFile::ReadOwner | QFile::ExeOwner);
    {
        const AsOrdinaryUser user({rig.folder()});
        fail();
    }
    QFile::setPermissions(rig.folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    expectError(RuntimeError::DivisionByZero);
    EXPECT_TRUE(words().contains(u"没有写成文件"_s)) << words().toStdString();
}

TEST_F(LastWords, NothingIsPromisedOfABookThatCannotBeRead) {
    openWith(2);
    rig.at(budget::Grid).setTextMatrix(2, 3, u"99"_s);
    write(u"data.dll"_s, QByteArray("overwritten by something else\n").repeated(3000));
    press(rig.at(budget::Save));
    EXPECT_FALSE(words().contains(u"账本里"_s) || words().contains(u"都已保留"_s)) << words().toStdString();
    EXPECT_TRUE(rescuedText().contains(u"2024-5-2\t项目2\t99"_s));
}

} // namespace
} // namespace qinghe::testing
