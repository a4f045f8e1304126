#include "ledger/income_rig.h"

#include <QApplication>

// Esc drops the editor, Enter writes its text back and moves on; every other key is the box's own. Where a row ends is
// looked at on every list.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EditorKeysTest : public IncomeTest {
protected:
    EditorKeysTest() { openWith(2); }

    void expectKeyboardInEditor() { EXPECT_EQ(QApplication::focusWidget(), &tx2()); }
};

TEST_F(EditorKeysTest, LeaveThePickerOpenOnEsc) {
    clickCell(1, 2);
    escape();
    EXPECT_EQ(tools(), forms::DatePicker);
}

TEST_F(EditorKeysTest, WriteBackAndMoveToTheNextColumnOnEnter) {
    clickCell(1, 3);
    write(u"稿费"_s);
    enter();
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"稿费");
    EXPECT_EQ(current(), u"1,4");
    EXPECT_EQ(tx2().Text(), u"人1");
    expectEditorOver(1, 4);
    expectKeyboardInEditor();
}

TEST_F(EditorKeysTest, MoveOnTheSameByTheEnterOfTheNumberPad) {
    clickCell(1, 3);
    rig.press(tx2(), Qt::Key_Enter);
    EXPECT_EQ(current(), u"1,4");
}

TEST_F(EditorKeysTest, OpenThePickerWhenEnterReachesTheDate) {
    clickCell(1, 1);
    enter();
    EXPECT_EQ(current(), u"1,2");
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_EQ(shared().dateTarget, 3);
    expectKeyboardInEditor(); // a date can be typed at once
    const Form& picker = *rig.loaded(forms::DatePicker);
    EXPECT_DOUBLE_EQ(picker.Left(), 120 + tx2().Left() + rig.mainWindow().Left());
    EXPECT_DOUBLE_EQ(picker.Top(), 1680 + tx2().Top() + 300 + rig.mainWindow().Top());
}

TEST_F(EditorKeysTest, CloseThePickerWhenEnterLeavesTheDate) {
    clickCell(1, 2);
    write(u"2024-7-8"_s);
    enter();
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-7-8");
    EXPECT_EQ(tools(), u"none");
    expectKeyboardInEditor();
}

TEST_F(EditorKeysTest, OpenTheCalculatorWhenEnterReachesTheAmount) {
    clickCell(2, 4);
    enter();
    EXPECT_EQ(current(), u"2,5");
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_EQ(shared().calcTarget, 1);
    EXPECT_FALSE(tx2().isEnabled());
    EXPECT_EQ(tx2().Text(), u"2.5");
    EXPECT_NE(rig.mainWindow().focusWidget(), &add()); // a blank typed on would press it
    EXPECT_EQ(rig.mainWindow().focusWidget(), &ms2());
}

TEST_F(EditorKeysTest, EnableTheEditorAndCloseTheCalculatorWhenEnterLeavesTheAmount) {
    clickCell(1, 5);
    tx2().setUsable(true);
    enter();
    EXPECT_EQ(current(), u"1,6");
    EXPECT_EQ(tools(), u"none");
    EXPECT_TRUE(tx2().isEnabled());
    expectKeyboardInEditor();
}

TEST_F(EditorKeysTest, EmptyACellWhenNothingIsLeftInTheBox) {
    clickCell(1, 6);
    tx2().selectAll();
    rig.press(tx2(), Qt::Key_Backspace);
    enter();
    EXPECT_EQ(ms2().TextMatrix(1, 6), u"");
}

TEST_F(EditorKeysTest, TakeAnyCharacterInAnyColumn) {
    fillCell(1, 1, u"#甲 'b\" 1"_s);
    fillCell(1, 2, u"不是日期"_s);
    EXPECT_EQ(ms2().TextMatrix(1, 1), u"#甲 'b\" 1");
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"不是日期");
}

TEST_F(EditorKeysTest, TakeWhatAnInputMethodCommits) {
    clickCell(1, 6);
    tx2().selectAll();
    QInputMethodEvent commit;
    commit.setCommitString(u"活期"_s);
    QCoreApplication::sendEvent(&tx2(), &commit);
    enter();
    EXPECT_EQ(ms2().TextMatrix(1, 6), u"活期");
}

TEST_F(EditorKeysTest, ReachNothingInTheStore) {
    fillCell(1, 3, u"改过"_s);
    EXPECT_EQ(rig.sql(u"select 项目 from srb order by rowid"_s), (QStringList{u"项目1"_s, u"项目2"_s}));
}

} // namespace
} // namespace qinghe::testing
