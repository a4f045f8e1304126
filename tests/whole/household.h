#pragma once

#include "program.h"
#include "support/names.h"

namespace whole {

using namespace qinghe::testing;

/// What everybody in these stories does the same way. They play in November 2024.

/// Bare ground of the main window: a place between its name and its images.
inline constexpr QPoint bareTitle{450, 20};

/// Signs in with the remembered name and password, which takes one click, and waits until the main window
/// has the keyboard.
void signIn(Program& program);
/// Types name and password into the sign-in and presses its button.
void signInAs(Program& program, const std::string& name, const std::string& password);
/// Ends the program by the cross of the main window.
void endByCross(Program& program);
/// Sees the message with this text and presses the button.
void answer(Program& program, const std::string& text, const std::string& button = "确定");

/// Types a cell over and goes on to the next one.
void enter(Program& program, const std::string& text);
/// The same in the cell that is clicked.
void fillCell(Program& program, const std::string& grid, int row, int col, const std::string& text);
/// Types into the calculator that has come up, and hands its number over with Enter, which walks on to the next cell.
void reckon(Program& program, const std::string& keys);
/// Picks a day of November 2024 from the picker that has come up.
void pickDay(Program& program, int day);

/// The rows of a list below its captions, the cells joined by "|".
std::vector<std::string> rows(Program& program, const std::string& grid);
/// The column with this caption.
int column(Program& program, const std::string& grid, const std::string& caption);
/// The rows of the columns with these captions alone.
std::vector<std::string> rows(Program& program, const std::string& grid, const std::vector<std::string>& captions);
/// Gives every empty cell of a row but the last a nought: a save refuses gaps.
void fillGaps(Program& program, const std::string& grid, int row);
/// Waits until the list shows these rows.
void waitForRows(Program& program, const std::string& grid, const std::vector<std::string>& expected);

/// Presses a button that adds a row, and is told that there is a blank one.
void addInVain(Program& program, const std::string& button);
/// Saves by this button and is told so.
void save(Program& program, const std::string& button);
/// Presses a button that saves, and is told of a gap.
void saveInVain(Program& program, const std::string& button);
/// Deletes by this button, with 确定 or 取消 to its question.
void remove(Program& program, const std::string& button, const std::string& reply = "确定");

/// The program tells in Chinese what is wrong, and ends with 1.
void expectErrorWindow(Program& program, const std::string& said);

} // namespace whole
