#pragma once

#include "support/grid_list.h"
#include "support/program_test.h"

namespace qinghe::testing {

/// Stores rows of a list beforehand, 1 to `count`, by the list's own values.
void storeRows(ProgramRig& rig, const GridList& list, int count);

/// A program in whose main window one list can be opened and worked on, as a user does.
class PageTest : public ProgramTest {
protected:
    explicit PageTest(const GridList& worked) : list(worked) { rig.signIn(); }

    void store(int count) { store(list, count); }
    void store(const GridList& other, int count) { storeRows(rig, other, count); }
    void open() { open(list); }
    void open(const GridList& other);
    void openWith(int count);
    /// Ends the program and starts it anew on the same file, with the list on view.
    void restart();
    /// The list's table as it is in the file.
    QStringList stored(const QString& columns = u"*"_s) { return stored(list, columns); }
    QStringList stored(const GridList& other, const QString& columns = u"*"_s);

    MSFlexGrid& grid() { return rig.at(list.grid); }
    TextBox& box() { return rig.at(list.box); }
    Frame& frame() { return rig.at(list.frame); }
    CommandButton& add() { return rig.at(list.add); }
    CommandButton& remove() { return rig.at(list.remove); }
    CommandButton& save() { return rig.at(list.save); }
    OptionButton& option(const Name<OptionButton>& name) { return rig.at(name); }

    void choose(const Name<OptionButton>& name) { press(option(name)); }
    void clickCell(int row, int col) { rig.clickCell(grid(), row, col); }
    /// Writes into the open editor over what stands there.
    void write(const QString& text) { typeOver(box(), text); }
    /// Puts a text into a cell by click, typing and Enter. Not for columns that take no keys.
    void fillCell(int row, int col, const QString& text);
    /// Types into the open calculator and closes it by its window's button: its cell is filled and stays the current
    /// one.
    void calculate(const QString& keys);
    /// The same by Enter, which walks on to the next cell.
    void calculateAndWalkOn(const QString& keys);
    void enter() { rig.press(box(), Qt::Key_Return); }
    void escape() { rig.press(box(), Qt::Key_Escape); }
    /// The bare ground of the main window, in its upper left corner.
    void clickForm() { QTest::mouseClick(&rig.mainWindow(), Qt::LeftButton, {}, QPoint(30, 3)); }
    void clickFrame();

    QStringList rows() { return rowsOf(grid()); }
    QString row(int number) { return ProgramRig::rowText(grid(), number); }
    QString blankRow() { return QString(grid().Cols() - 2, u'|'); }
    int lastColumn() { return grid().Cols() - 1; }
    /// The column with this caption.
    int column(const QString& caption) { return static_cast<int>(row(0).split(u'|').indexOf(caption)) + 1; }
    QString current() { return currentOf(grid()); }
    /// The names of those of the two tools that are open, joined with "+", or "none".
    QString tools();

    /// The editor lies exactly over a cell, in twips and in pixels.
    void expectEditorOver(int row, int col) { expectOver(box(), grid(), row, col); }
    /// A tool hangs under the editor, at its left edge.
    void expectUnderEditor(const FormName& tool);

    const GridList& list;
};

/// The same for each list in turn.
class EveryListTest : public PageTest, public ::testing::WithParamInterface<GridList> {
protected:
    EveryListTest() : PageTest(GetParam()) {}
};

inline std::string listName(const ::testing::TestParamInfo<GridList>& info) {
    return info.param.name;
}

inline const ShownMessage AddRefused{u"当前有一条空记录"_s, 64, u"温馨提示"_s};
inline const ShownMessage DeleteAsked{u"是否需要删除?"_s, 65, u"温馨提示"_s};
inline const ShownMessage SaveRefused{u"为了保存信息的完整性，\r\n除备注信息外记录内容不能为空！"_s, 64, u"输入提示"_s};
inline const ShownMessage SaveDone{u"保存成功"_s, 64, u"保存提示"_s};

} // namespace qinghe::testing
