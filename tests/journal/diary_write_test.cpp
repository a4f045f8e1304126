#include "journal/diary_rig.h"

#include <QApplication>
#include <QDir>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class DiaryWriting : public DiaryTest {};

TEST_F(DiaryWriting, ThePageOpensInWriteModeOnOneBlankRow) {
    EXPECT_TRUE(rig.at(diary_page::Page).isVisible());
    EXPECT_TRUE(rig.at(diary_page::Write).Value());
    EXPECT_EQ(ms8().Rows(), 2);
    EXPECT_EQ(ms8().Cols(), 3);
    EXPECT_EQ(ms8().ColWidth(0), 300);
    EXPECT_EQ(ms8().ColWidth(1), 1932);
    EXPECT_EQ(ms8().ColWidth(2), 1932);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 0), u"日期|标题"_s);
    EXPECT_EQ(rig.mainWindow().Adodc1->recordSource(), u"rjb"_s);
}

TEST_F(DiaryWriting, AnEntryIsARowAndAFileOfItsTitle) {
    saveEntry(u"2024-5-3"_s, u"插秧"_s, {u"天没亮就出门"_s, u"水很凉"_s});
    EXPECT_EQ(rig.lastMessage(), DiarySaved);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|插秧"_s});
    EXPECT_EQ(bytes(u"插秧"_s), QByteArray("\xCC\xEC\xC3\xBB\xC1\xC1\xBE\xCD\xB3\xF6\xC3\xC5\r\n"
                                           "\xCB\xAE\xBA\xDC\xC1\xB9\r\n"));
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryWriting, AnEmptyTextIsAFileOfOneLineEndAndShowsNothing) {
    saveEntry(u"2024-5-3"_s, u"空"_s);
    EXPECT_EQ(bytes(u"空"_s), "\r\n");
    find();
    EXPECT_EQ(shown(1), QString());
}

TEST_F(DiaryWriting, ATitleThatExistsIsRefusedAndNothingChanges) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"first"_s});
    saveEntry(u"2024-5-4"_s, u"a"_s, {u"second"_s});
    EXPECT_EQ(rig.lastMessage(), (ShownMessage{u"此标题已经存在，请更换新的标题！"_s, 64, u"提示"_s}));
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
    EXPECT_EQ(bytes(u"a"_s), "first\r\n");
}

TEST_F(DiaryWriting, TrailingBlanksMakeAnotherTitleAndAnotherFile) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"one"_s});
    saveEntry(u"2024-5-3"_s, u"a "_s, {u"two"_s});
    EXPECT_EQ(rows(), (QStringList{u"2024-05-03|a"_s, u"2024-05-03|a "_s}));
    EXPECT_EQ(bytes(u"a"_s), "one\r\n");
    EXPECT_EQ(bytes(u"a "_s), "two\r\n");
}

TEST_F(DiaryWriting, DateAndTitleMayNotBeEmpty) {
    const ShownMessage refused{u"日期和标题都不能为空"_s, 64, u"保存提示"_s};
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), refused);
    fill(u"2024-5-3"_s, u""_s, {u"text"_s});
    rig.messages->shown.clear();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), refused);
    rig.click(add());
    fill(u""_s, u"a"_s, {u"text"_s});
    rig.messages->shown.clear();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), refused);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_TRUE(QDir(rig.file(u"mydiary"_s)).isEmpty());
}

TEST_F(DiaryWriting, ATitleTypedWithoutEnterIsKeptByAClickInTheText) {
    rig.clickCell(ms8(), 1, 2);
    rig.type(tx9(), u"端午"_s);
    rig.click(*tx8().viewport());
    EXPECT_EQ(ms8().TextMatrix(1, 2), u"端午"_s);
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryWriting, AClickInTheTextKeepsWhatEscHasDropped) {
    rig.clickCell(ms8(), 1, 2);
    rig.type(tx9(), u"x"_s);
    rig.press(tx9(), Qt::Key_Escape);
    rig.click(*tx8().viewport());
    EXPECT_EQ(ms8().TextMatrix(1, 2), u"x"_s);
}

TEST_F(DiaryWriting, AClickInTheGridDropsTheTextTypedBefore) {
    rig.type(tx8(), u"too early"_s);
    rig.clickCell(ms8(), 1, 2);
    EXPECT_EQ(tx8().Text(), QString());
}

TEST_F(DiaryWriting, EnterGoesFromTheDateToTheTitleAndClosesThere) {
    rig.clickCell(ms8(), 1, 1);
    EXPECT_TRUE(rig.loaded(forms::DatePicker));
    EXPECT_EQ(rig.program->shared().dateTarget, 5);
    rig.press(tx9(), Qt::Key_Return);
    EXPECT_EQ(ms8().Col(), 2);
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    EXPECT_EQ(QApplication::focusWidget(), &tx9());
    rig.press(tx9(), Qt::Key_Return);
    EXPECT_FALSE(tx9().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms8());
}

TEST_F(DiaryWriting, EscDropsWhatWasTyped) {
    rig.clickCell(ms8(), 1, 2);
    rig.type(tx9(), u"x"_s);
    EXPECT_EQ(QApplication::focusWidget(), &tx9());
    rig.press(tx9(), Qt::Key_Escape);
    EXPECT_EQ(ms8().TextMatrix(1, 2), QString());
    EXPECT_FALSE(tx9().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms8());
}

TEST_F(DiaryWriting, APickedDateGoesIntoBoxAndCell) {
    rig.clickCell(ms8(), 1, 1);
    Form& picker = *rig.loaded(forms::DatePicker);
    EXPECT_EQ(picker.Left(), 120 + tx9().Left() + rig.mainWindow().Left());
    EXPECT_EQ(picker.Top(), 1680 + tx9().Top() + rig.mainWindow().Top() + 300);
    rig.doubleClick(rig.at(date_picker::Day[6]));
    EXPECT_EQ(ms8().TextMatrix(1, 1), u"2024-6-1"_s);
    EXPECT_EQ(tx9().Text(), u"2024-6-1"_s);
    rig.click(tx9());
    EXPECT_TRUE(rig.loaded(forms::DatePicker));
    rig.click(rig.at(diary_page::Page));
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(DiaryWriting, DeletingTakesTheFirstEntryAndLeavesItsFileSoThatTheTitleIsFree) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"one"_s});
    saveEntry(u"2024-5-4"_s, u"b"_s, {u"two"_s});
    rig.click(remove());
    EXPECT_EQ(rig.lastMessage(), (ShownMessage{u"是否需要删除?"_s, 65, u"温馨提示"_s}));
    EXPECT_EQ(rows(), QStringList{u"2024-05-04|b"_s});
    EXPECT_EQ(bytes(u"a"_s), "one\r\n");
    saveEntry(u"2024-5-5"_s, u"a"_s, {u"anew"_s});
    EXPECT_EQ(rig.lastMessage(), DiarySaved);
    EXPECT_EQ(bytes(u"a"_s), "anew\r\n");
}

TEST_F(DiaryWriting, DeletingAsksAndDoesNothingWhereThereIsNoEntry) {
    rig.click(remove());
    EXPECT_EQ(rig.messages->shown.size(), 1u);
    EXPECT_EQ(ms8().Rows(), 2);
}

TEST_F(DiaryWriting, ACancelledDeletionChangesNothing) {
    saveEntry(u"2024-5-3"_s, u"a"_s);
    rig.messages->answers.push_back(Answer::Cancel);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
}

TEST_F(DiaryWriting, ATitleThatNamesNoFileKeepsItsRowAndLeavesTheFolder) {
    saveEntry(u"2024-5-3"_s, u"../外面"_s, {u"text"_s});
    EXPECT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|../外面"_s});
    EXPECT_FALSE(QFile::exists(rig.file(u"外面.dll"_s)));
    EXPECT_TRUE(QDir(rig.file(u"mydiary"_s)).isEmpty());
}

TEST_F(DiaryWriting, ADateThatIsNoneStopsBeforeRowAndFile) {
    saveEntry(u"昨天"_s, u"a"_s, {u"text"_s});
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_FALSE(QFile::exists(path(u"a"_s)));
}

TEST_F(DiaryWriting, AFolderThatIsGoneStopsBehindTheRow) {
    QDir(rig.file(u"mydiary"_s)).removeRecursively();
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
}

TEST_F(DiaryWriting, ATextThatAClickOnTheDateEmptiedComesBackWithCtrlZ) {
    rig.type(tx8(), u"先写了正文"_s);
    rig.clickCell(ms8(), 1, 1);
    EXPECT_EQ(tx8().Text(), QString());
    EXPECT_TRUE(tx8().placeholderText().startsWith(u"先填左边的日期和标题"_s));
    QTest::keyClick(&tx8(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tx8().Text(), u"先写了正文"_s);
}

TEST_F(DiaryWriting, ATextThatWasSavedOrWipedDoesNotComeBackWithCtrlZ) {
    fill(u"2024-11-30"_s, u"晴"_s, {u"存过的正文"_s});
    rig.click(save());
    rig.click(add());
    QTest::keyClick(&tx8(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tx8().Text(), QString());
    rig.type(tx8(), u"抹去的正文"_s);
    shared().emptyDiaryPage();
    QTest::keyClick(&tx8(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tx8().Text(), QString());
}

TEST_F(DiaryWriting, ADateAndATitleThatTheSaveWillRefuseSaySoBeforehand) {
    fill(u"2024-11-31"_s, u"a/b"_s);
    EXPECT_EQ(ms8().objectionTo(1, 1), u"不是日期，保存会在这里中断"_s);
    EXPECT_TRUE(ms8().objectionTo(1, 2).startsWith(u"不能用作文件名"_s));
    fill(u"2024-11-30"_s, u"晴"_s);
    EXPECT_EQ(ms8().objectionTo(1, 1) + ms8().objectionTo(1, 2), QString());
    EXPECT_TRUE(save().isMarked());
    rig.click(save());
    EXPECT_FALSE(save().isMarked());
}

} // namespace
} // namespace qinghe::testing
