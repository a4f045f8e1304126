#include "journal/diary_page.h"
#include "settings_rig.h"
#include "support/ordinary_user.h"

#include <QDir>

// The box that deletes all diaries.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage Question{u"是否删除所有日志？"_s, 65, u"提示"_s};
const ShownMessage Done{u"格式化完成！"_s, 0, {}};

class DiaryWipe : public SettingsTest {
protected:
    DiaryWipe() {
        rig.sql(u"insert into rjb values('2024-05-03','春耕'),('2024-09-20','秋收')"_s);
        for (const QStringView title : {u"春耕", u"秋收", u"没有记录的"})
            write(u"mydiary/%1.dll"_s.arg(title.toString()), "text\r\n");
    }

    CheckBox& wipe() { return box(settings::WipeDiary); }
    QStringList rows() { return rig.sql(u"select 日记标题 from rjb order by rowid"_s); }
    QStringList files() {
        return QDir(rig.file(u"mydiary"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void expectNothingGone() {
        EXPECT_EQ(rows(), (QStringList{u"春耕"_s, u"秋收"_s}));
        EXPECT_EQ(files().size(), 3);
    }

    MSFlexGrid& ms8() { return rig.at(diary_page::Grid); }
    TextBox& tx9() { return rig.at(diary_page::Box); }
    LongTextBox& tx8() { return rig.at(diary_page::Text); }
    /// A diary page with two rows listed, a text in its box and in the one over its cells.
    void leaveTextsOnTheDiaryPage() {
        go(pages::Diary);
        rig.click(rig.at(diary_page::Find));
        tx8().setBoxText(u"晒谷子"_s);
        tx9().setBoxText(u"标题"_s);
        open();
    }
    QStringList onTheDiaryPage() { return {rig.rowText(ms8(), 1), rig.rowText(ms8(), 2), tx8().Text(), tx9().Text()}; }
};

TEST_F(DiaryWipe, AsksAndDeletesEveryEntryAndEveryTextFile) {
    tick(wipe());
    EXPECT_EQ(rig.messages->shown, (std::vector{Question, Done}));
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(QDir(rig.file(u"mydiary"_s)).exists());
    EXPECT_TRUE(wipe().Value());
}

TEST_F(DiaryWipe, PointsTheDataControlAtTheDataFile) {
    pointElsewhere();
    tick(wipe());
    EXPECT_EQ(rig.lastMessage(), Done);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(DiaryWipe, CancelUnticksTheBoxAndDeletesNothing) {
    rig.messages->answers = {Answer::Cancel};
    tick(wipe());
    EXPECT_EQ(rig.messages->shown, std::vector{Question});
    EXPECT_FALSE(wipe().Value());
    expectNothingGone();
}

TEST_F(DiaryWipe, UntickingByHandAsksNothingAndDoesNothing) {
    tick(wipe());
    rig.messages->shown.clear();
    rig.sql(u"insert into rjb values('2024-05-03','春耕'),('2024-09-20','秋收')"_s);
    for (const QStringView title : {u"1", u"2", u"3"})
        write(u"mydiary/%1.dll"_s.arg(title.toString()), "text");
    tick(wipe());
    EXPECT_FALSE(wipe().Value());
    EXPECT_TRUE(rig.messages->shown.empty());
    expectNothingGone();
    tick(wipe());
    EXPECT_EQ(rig.messages->shown, (std::vector{Question, Done}));
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DiaryWipe, WithoutEntriesTheFilesAreKeptAndItIsDoneAllTheSame) {
    rig.sql(u"delete from rjb"_s);
    tick(wipe());
    EXPECT_EQ(rig.messages->shown, (std::vector{Question, Done}));
    EXPECT_EQ(files().size(), 3);
}

TEST_F(DiaryWipe, NothingIsGoneWhileItAsksAndAllIsWhenItSaysSo) {
    rig.messages->whileShown = [this](const ShownMessage& message) {
        if (message == Question)
            return expectNothingGone();
        EXPECT_TRUE(rows().isEmpty());
        EXPECT_TRUE(files().isEmpty());
    };
    tick(wipe());
    EXPECT_EQ(rig.messages->shown.size(), 2u);
}

TEST_F(DiaryWipe, LeavesOtherFilesAlone) {
    write(u"mydiary/家书.txt"_s, "a letter");
    write(u"mydiary/dll"_s, "none of ours");
    ASSERT_TRUE(QDir(rig.file(u"mydiary"_s)).mkdir(u"旧.dll"_s));
    write(u"mydiary/旧.dll/里.dll"_s, "inside");
    write(u"春耕.dll"_s, "beside the program");
    tick(wipe());
    EXPECT_EQ(files(), (QStringList{u"dll"_s, u"家书.txt"_s, u"旧.dll"_s}));
    EXPECT_EQ(bytes(u"mydiary/旧.dll/里.dll"_s), "inside");
    EXPECT_EQ(bytes(u"春耕.dll"_s), "beside the program");
}

TEST_F(DiaryWipe, LeavesOtherTablesAlone) {
    rig.sql(u"insert into srb values('1','2024-05-03','工资','我',12.5,'现金','',1)"_s);
    rig.sql(u"insert into rcb values('2024-06-18',1,'2024-06-18','8:05','晒谷','音乐1',1)"_s);
    tick(wipe());
    EXPECT_EQ(rig.sql(u"select (select count(*) from srb),(select count(*) from rcb),(select count(*) from yhb)"_s),
              QStringList{u"1|1|1"_s});
}

TEST_F(DiaryWipe, AFolderThatIsGoneDoesNoHarm) {
    ASSERT_TRUE(QDir(rig.file(u"mydiary"_s)).removeRecursively());
    tick(wipe());
    EXPECT_EQ(rig.lastMessage(), Done);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(DiaryWipe, AFileThatCannotBeDeletedIsToldAndTheEntriesStay) {
    const QString diary = rig.file(u"mydiary"_s);
    const AsOrdinaryUser user({rig.folder(), rig.dataFile(), diary});
    ASSERT_TRUE(QFile::setPermissions(diary, QFile::ReadOwner | QFile::ExeOwner));
    tick(wipe());
    expectError(RuntimeError::PathFileAccess, u"mydiary"_s);
    EXPECT_TRUE(rig.messages->errors[0].second.contains(u"权限"_s));
    EXPECT_EQ(texts(), QStringList{Question.text});
    QFile::setPermissions(diary, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    expectNothingGone();
}

TEST_F(DiaryWipe, AFolderThatIsALinkIsRefusedAndNothingIsGone) {
    const QByteArray book = bytes(u"data.dll"_s);
    ASSERT_TRUE(QDir(rig.file(u"mydiary"_s)).removeRecursively());
    ASSERT_TRUE(QFile::link(u"."_s, rig.file(u"mydiary"_s)));
    tick(wipe());
    expectError(RuntimeError::PathFileAccess, u"是一个链接"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == book);
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(DiaryWipe, ALinkGoesAndNotWhatItLeadsToAndNoHalfWrittenTextStays) {
    write(u"外面.txt"_s, "kept");
    ASSERT_TRUE(QFile::link(rig.file(u"外面.txt"_s), rig.file(u"mydiary/链接.dll"_s)));
    write(u"mydiary/.unfinished-12ab"_s, "half of an entry");
    tick(wipe());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_EQ(bytes(u"外面.txt"_s), "kept");
}

TEST_F(DiaryWipe, EmptiesTheFirstRowAndTheBoxesOfADiaryPageThatIsOnView) {
    leaveTextsOnTheDiaryPage();
    ASSERT_EQ(onTheDiaryPage(), (QStringList{u"2024-5-3|春耕"_s, u"2024-9-20|秋收"_s, u"晒谷子"_s, u"标题"_s}));
    rig.at(diary_page::Page).setShown(true);
    rig.messages->whileShown = [this](const ShownMessage& message) {
        EXPECT_EQ(tx8().Text().isEmpty(), message == Done);
    };
    tick(wipe());
    EXPECT_EQ(onTheDiaryPage(), (QStringList{u"|"_s, u"2024-9-20|秋收"_s, {}, {}}));
}

TEST_F(DiaryWipe, LeavesADiaryPageThatIsNotOnViewAsItStands) {
    leaveTextsOnTheDiaryPage();
    const QStringList before = onTheDiaryPage();
    tick(wipe());
    EXPECT_EQ(onTheDiaryPage(), before);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(DiaryWipe, TheDiaryGoesOnAfterwards) {
    tick(wipe());
    go(pages::Diary);
    rig.clickCell(ms8(), 1, 1);
    rig.type(tx9(), u"2024-6-18"_s);
    rig.press(tx9(), Qt::Key_Return);
    rig.type(tx9(), u"春耕"_s);
    rig.press(tx9(), Qt::Key_Return);
    rig.type(tx8(), u"abc"_s);
    rig.click(rig.at(diary_page::Save));
    EXPECT_EQ(rig.lastMessage().text, u"日志已经保存！");
    EXPECT_EQ(rows(), QStringList{u"春耕"_s});
    EXPECT_EQ(bytes(u"mydiary/春耕.dll"_s), "abc\r\n");
}

} // namespace
} // namespace qinghe::testing
