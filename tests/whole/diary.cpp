#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const Message diarySaved{"日志已经保存！", "保存提示", Message::None, {"确定"}};

/// Writes an entry as a user does: the day is picked, the title typed, then the text.
void writeEntry(Program& program, int day, const std::string& title, const std::string& text) {
    program.click(diary_page::Add);
    program.clickCell(diary_page::Grid, 1, 1);
    pickDay(program, day);
    program.clickCell(diary_page::Grid, 1, 2);
    enter(program, title);
    program.click(diary_page::Text);
    program.type(text);
    program.click(diary_page::Save);
}

} // namespace

TEST(Diary, AnEntryIsWrittenKeptAsATextFileAndReadAgain) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Diary);
        writeEntry(program, 17, "秋收", "晒谷子，晒了一天。");
        EXPECT_EQ(program.message(), diarySaved);
        program.answer("确定");
        writeEntry(program, 18, "秋收", "又一篇。");
        answer(program, "此标题已经存在，请更换新的标题！");
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from rjb"), std::vector<std::string>{"2024-11-17|秋收"});
    EXPECT_EQ(folder.bytes("mydiary/秋收.dll"), QByteArray("\xC9\xB9\xB9\xC8\xD7\xD3\xA3\xAC\xC9\xB9\xC1\xCB\xD2\xBB"
                                                           "\xCC\xEC\xA1\xA3\r\n"));

    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    program.click(pages::Diary);
    program.click(diary_page::Find);
    EXPECT_EQ(rows(program, diary_page::Grid), std::vector<std::string>{"2024-11-17|秋收"});
    program.clickCell(diary_page::Grid, 1, 2);
    EXPECT_EQ(program.get(diary_page::Text, "plainText").toString().toStdString(), "晒谷子，晒了一天。");
    program.click(diary_page::Write);
    remove(program, diary_page::Remove);
    endByCross(program);
    EXPECT_TRUE(folder.rows("select * from rjb").empty());
    EXPECT_TRUE(folder.has("mydiary/秋收.dll"));
}

TEST(Diary, ATitleThatNamesNoFileIsTold) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Diary);
    writeEntry(program, 18, "1/2", "abc");
    expectErrorWindow(program, "不能用作文件名");
    EXPECT_EQ(folder.rows("select 日记标题 from rjb"), std::vector<std::string>{"1/2"});
}
