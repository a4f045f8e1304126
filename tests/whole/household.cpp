#include "household.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace whole {

namespace {

bool holdsChinese(const std::string& text) {
    for (const QChar character : QString::fromStdString(text))
        if (character.script() == QChar::Script_Han)
            return true;
    return false;
}

} // namespace

void signIn(Program& program) {
    program.click(sign_in::Enter);
    program.waitForKeyboard(forms::Main);
}

void signInAs(Program& program, const std::string& name, const std::string& password) {
    program.clearAndType(sign_in::User, name);
    program.clearAndType(sign_in::Password, password);
    program.click(sign_in::Enter);
}

void endByCross(Program& program) {
    program.click(title::Close);
    EXPECT_EQ(program.exitCode(), 0);
}

void answer(Program& program, const std::string& text, const std::string& button) {
    EXPECT_EQ(program.message().text, text);
    program.answer(button);
}

void enter(Program& program, const std::string& text) {
    program.key("Ctrl+A");
    program.type(text);
    program.key("Return");
}

void fillCell(Program& program, const std::string& grid, int row, int col, const std::string& text) {
    program.clickCell(grid, row, col);
    enter(program, text);
}

void reckon(Program& program, const std::string& keys) {
    program.waitForKeyboard(forms::Calculator);
    program.type(keys);
    program.key("Return");
    program.waitForKeyboard(forms::Main);
}

void pickDay(Program& program, int day) {
    program.waitFor(forms::DatePicker);
    EXPECT_EQ(program.text(date_picker::Month), "2024 年 11月");
    const int fridayTheFirst = 5;
    program.doubleClick(date_picker::Day[fridayTheFirst + day - 1]);
}

namespace {

int columns(Program& program, const std::string& grid) {
    return program.get(grid, "Cols").toInt();
}

std::vector<std::string> rowsOf(Program& program, const std::string& grid, const std::vector<int>& columns) {
    const int rows = program.get(grid, "Rows").toInt();
    std::vector<std::string> texts;
    for (int row = 1; row < rows; ++row) {
        std::string text;
        for (const int col : columns)
            text.append(col == columns.front() ? "" : "|").append(program.cell(grid, row, col));
        texts.push_back(text);
    }
    return texts;
}

} // namespace

int column(Program& program, const std::string& grid, const std::string& caption) {
    for (int col = 1; col < columns(program, grid); ++col)
        if (program.cell(grid, 0, col) == caption)
            return col;
    throw std::runtime_error("no column " + caption);
}

std::vector<std::string> rows(Program& program, const std::string& grid) {
    std::vector<int> all(static_cast<std::size_t>(columns(program, grid) - 1));
    std::iota(all.begin(), all.end(), 1);
    return rowsOf(program, grid, all);
}

std::vector<std::string> rows(Program& program, const std::string& grid, const std::vector<std::string>& captions) {
    std::vector<int> named;
    for (const std::string& caption : captions)
        named.push_back(column(program, grid, caption));
    return rowsOf(program, grid, named);
}

void fillGaps(Program& program, const std::string& grid, int row) {
    for (int col = 1; col < columns(program, grid) - 1; ++col) {
        if (!program.cell(grid, row, col).empty())
            continue;
        program.clickCell(grid, row, col);
        const auto windows = program.windows();
        if (std::ranges::find(windows, std::string(forms::Calculator)) != windows.end())
            reckon(program, "0");
        else
            enter(program, "0");
    }
}

void waitForRows(Program& program, const std::string& grid, const std::vector<std::string>& expected) {
    std::vector<std::string> shown;
    EXPECT_NO_THROW(program.waitUntil([&] { return (shown = rows(program, grid)) == expected; }, "the rows"));
    EXPECT_EQ(shown, expected);
}

void addInVain(Program& program, const std::string& button) {
    program.click(button);
    EXPECT_EQ(program.message(), (Message{"当前有一条空记录", "温馨提示", Message::Information, {"确定"}}));
    program.answer("确定");
}

void save(Program& program, const std::string& button) {
    program.click(button);
    EXPECT_EQ(program.message(), (Message{"保存成功", "保存提示", Message::Information, {"确定"}}));
    program.answer("确定");
}

void saveInVain(Program& program, const std::string& button) {
    program.click(button);
    EXPECT_EQ(
        program.message(),
        (Message{
            "为了保存信息的完整性，\r\n除备注信息外记录内容不能为空！", "输入提示", Message::Information, {"确定"}}));
    program.answer("确定");
}

void remove(Program& program, const std::string& button, const std::string& reply) {
    program.click(button);
    EXPECT_EQ(program.message(), (Message{"是否需要删除?", "温馨提示", Message::Information, {"确定", "取消"}}));
    program.answer(reply);
}

void expectErrorWindow(Program& program, const std::string& said) {
    const Message message = program.message();
    EXPECT_EQ(message.title, "青禾家庭记账本");
    EXPECT_EQ(message.buttons, std::vector<std::string>{"确定"});
    EXPECT_TRUE(holdsChinese(message.text));
    EXPECT_NE(message.text.find(said), std::string::npos) << message.text;
    program.answer("确定");
    EXPECT_EQ(program.exitCode(), 1);
}

} // namespace whole
