#include "household.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace whole;

namespace {

std::vector<std::string> copies(const LedgerFolder& folder) {
    std::vector<std::string> names;
    for (const QString& name : QDir(folder.file("安全副本")).entryList(QDir::Files | QDir::Hidden, QDir::Name))
        names.push_back(name.toStdString());
    return names;
}

/// The file in that folder of which a text tells.
std::string copyNamedIn(const std::string& text, const LedgerFolder& folder) {
    const std::size_t begin = text.find(folder.file("安全副本").toStdString());
    const std::size_t end = text.find(".dat", begin);
    return begin == std::string::npos || end == std::string::npos ? "" : text.substr(begin, end + 4 - begin);
}

} // namespace

TEST(SafetyCopies, ASaveThatEmptiesItsTableIsTakenBackByTheCopyThatItsErrorNamed) {
    const LedgerFolder folder;
    folder.execute("insert into srb values('1','2024-11-01','工资','王青',500,'工行','',1),"
                   "('2','2024-11-02','稿费','李禾',70.5,'现金','',2),('3','2024-11-03','利息','王青',9,'工行','',3)");
    std::string copy;
    {
        Program program(folder);
        signIn(program);
        program.waitUntil([&] { return copies(folder).size() == 1 && copies(folder)[0].ends_with("每日.dat"); },
                          "the copy of the day");
        program.click(pages::Income);
        fillCell(program, income::Grid, 1, 2, "11月31日");
        program.click(income::Save);
        copy = copyNamedIn(program.message().text, folder);
        expectErrorWindow(program, "这一页原有 3 条，已写回 0 条。");
    }
    EXPECT_EQ(folder.rows("select count(*) from srb")[0], "0");
    ASSERT_NE(copy.find("保存出错以前"), std::string::npos) << copy;

    Program program(folder, "2024-11-18 21:00:00");
    signIn(program);
    program.click(pages::Settings);
    program.click(settings::Restore);
    program.waitForKeyboard(forms::Backup);
    program.click(backup::Start);
    program.answer("确定");
    program.choose(copy);
    answer(program, "还原完毕。");
    program.close(forms::Backup);
    program.click(pages::Income);
    fillCell(program, income::Grid, 3, 7, "回来了");
    save(program, income::Save);
    endByCross(program);
    EXPECT_EQ(folder.rows("select 编号, 时间, 项目, 备注 from srb"),
              (std::vector<std::string>{"1|2024-11-01|工资|", "2|2024-11-02|稿费|", "3|2024-11-03|利息|回来了"}));
    EXPECT_EQ(folder.rows("pragma integrity_check")[0], "ok");
    const std::vector<std::string> names = copies(folder); // none was made twice, and nothing lies half-done
    ASSERT_EQ(names.size(), 3u);
    EXPECT_TRUE(names[2].ends_with("还原以前.dat")) << names[2];
}
