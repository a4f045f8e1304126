#include "household.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// What the program has put into a file beside the book before it ended.
std::string rescued(const LedgerFolder& folder) {
    const QStringList files = QDir(folder.path()).entryList({QStringLiteral("没有保存的内容*.txt")});
    return files.size() == 1 ? folder.bytes(files.front().toStdString()).toStdString() : "(no file)";
}

} // namespace

TEST(BrokenData, AMissingFileIsTold) {
    const LedgerFolder folder;
    folder.remove("data.dll");
    QDir().mkdir(folder.file("安全副本")); // somebody had a book here
    Program program(folder);
    expectErrorWindow(program, "data.dll");
    EXPECT_FALSE(folder.has("data.dll"));
}

TEST(BrokenData, AForeignFileIsTold) {
    const LedgerFolder folder;
    folder.write("data.dll", QByteArray("no ledger at all, just text\n").repeated(400));
    Program program(folder);
    expectErrorWindow(program, "data.dll");
}

TEST(BrokenData, ATruncatedFileIsTold) {
    const LedgerFolder folder;
    const QByteArray whole = folder.bytes("data.dll");
    folder.write("data.dll", whole.left(whole.size() / 3));
    Program program(folder);
    expectErrorWindow(program, "data.dll");
}

TEST(BrokenData, AMissingTableIsTold) {
    const LedgerFolder folder;
    folder.execute("drop table 主界面");
    Program program(folder);
    program.click(sign_in::Enter);
    expectErrorWindow(program, "主界面");
}

TEST(BrokenData, ADateThatIsNoDayEndsTheSaveWhereItStands) {
    const LedgerFolder folder;
    folder.execute("insert into srb values('1','2024-11-01','工资','王青',500,'工行','',1),"
                   "('2','2024-11-02','稿费','李禾',70.5,'现金','',2)");
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Income);
        program.click(income::Add);
        program.clickCell(income::Grid, 3, 1);
        for (const char* text : {"3", "11月31日", "奖金", "王青"}) {
            program.type(text);
            program.key("Return");
        }
        // A sum that lacks its second half goes nowhere.
        program.waitForKeyboard(forms::Calculator);
        program.type("12+");
        program.close(forms::Calculator);
        EXPECT_EQ(program.cell(income::Grid, 3, 5), "");
        program.clickCell(income::Grid, 3, 7); // the box still lies over the amount
        program.clickCell(income::Grid, 3, 5);
        program.waitForKeyboard(forms::Calculator);
        program.type("12+8");
        program.close(forms::Calculator);
        EXPECT_EQ(program.cell(income::Grid, 3, 5), "20");
        program.clickCell(income::Grid, 3, 6);
        program.type("现金");
        program.key("Return");

        program.click(income::Save);
        expectErrorWindow(program, "这一页原有 2 条，已写回 2 条。");
    }
    const std::string kept = rescued(folder);
    EXPECT_NE(kept.find("11月31日"), std::string::npos) << kept;
    EXPECT_NE(kept.find("3\t3\t11月31日\t奖金\t王青\t20\t现金"), std::string::npos) << kept;
    EXPECT_EQ(folder.header(), "01 00");
    EXPECT_EQ(folder.rows("select 编号,金额 from srb"), (std::vector<std::string>{"1|500", "2|70.5"}));

    Program program(folder);
    signIn(program);
    program.click(pages::Income);
    EXPECT_EQ(program.cell(income::Grid, 2, 3), "稿费");
    EXPECT_EQ(program.text(income::Total), "当前收入总额为：570.50元 ");
    endByCross(program);
}
