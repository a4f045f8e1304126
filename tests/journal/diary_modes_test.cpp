#include "journal/diary_rig.h"

#include <QApplication>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// What the page puts away, and whose data it turns to, whatever is clicked.
class DiaryModes : public DiaryTest {
protected:
    void openPicker() {
        rig.clickCell(ms8(), 1, 1);
        ASSERT_TRUE(rig.loaded(forms::DatePicker));
        ASSERT_TRUE(tx9().Visible());
    }
    bool pickerIsGone() { return !rig.loaded(forms::DatePicker); }
    Adodc& data() { return *rig.mainWindow().Adodc1; }
    /// As another page leaves the data control.
    void turnDataElsewhere() {
        data().open(u"yhb"_s);
        data().setConnectionString(u"elsewhere"_s);
    }
    void expectData(const QString& source) {
        EXPECT_EQ(data().recordSource(), source);
        EXPECT_EQ(data().connectionString(), rig.program->shared().connection());
        EXPECT_FALSE(data().isVisible());
    }
};

TEST_F(DiaryModes, OpeningThePagePutsTheOthersAwayAndTheToolsWithThem) {
    rig.click(rig.at(pages::Budget));
    rig.clickCell(rig.at(budget::Grid), 1, 3);
    ASSERT_TRUE(rig.loaded(forms::Calculator));
    open();
    EXPECT_FALSE(rig.loaded(forms::Calculator));
    EXPECT_FALSE(rig.at(budget::Page).isVisible());
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 8);
    const Frame& page = rig.at(diary_page::Page);
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(QRectF(page.Left(), page.Top(), page.Width(), page.Height()), QRectF(120, 1680, 11655, 6255));
}

TEST_F(DiaryModes, OpeningThePageAgainHidesTheBox) {
    rig.clickCell(ms8(), 1, 2);
    open();
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, FindModePutsPickerAndBoxAway) {
    openPicker();
    find();
    EXPECT_TRUE(pickerIsGone());
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, WriteModePutsPickerAndBoxAway) {
    find();
    rig.program->shared().openDatePicker(DateField::None, {}, {0, 0});
    tx9().setShown(true);
    write();
    EXPECT_TRUE(pickerIsGone());
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, AClickInTheListOfFindModeHidesTheBox) {
    saveEntry(u"2024-5-3"_s, u"a"_s);
    find();
    tx9().setShown(true);
    shown(1);
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, LeavingTheDateForTheTitlePutsThePickerAway) {
    openPicker();
    rig.clickCell(ms8(), 1, 2);
    EXPECT_TRUE(pickerIsGone());
    EXPECT_EQ(QApplication::focusWidget(), &tx9());
}

TEST_F(DiaryModes, AClickInTheTextPutsThePickerAway) {
    openPicker();
    rig.click(*tx8().viewport());
    EXPECT_TRUE(pickerIsGone());
}

TEST_F(DiaryModes, AddingClearsRowAndTextAndTouchesNoEntry) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    tx8().setBoxText(u"more"_s);
    rig.click(add());
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"|"_s);
    EXPECT_EQ(tx8().Text(), QString());
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
    EXPECT_EQ(bytes(u"a"_s), "text\r\n");
    openPicker();
    rig.click(add());
    EXPECT_TRUE(pickerIsGone());
}

TEST_F(DiaryModes, SavingPutsPickerAndBoxAway) {
    fill(u"2024-5-3"_s, u"a"_s);
    openPicker();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), DiarySaved);
    EXPECT_TRUE(pickerIsGone());
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, DeletingPutsPickerAndBoxAwayBeforeItAsks) {
    openPicker();
    rig.messages->answers.push_back(Answer::Cancel);
    rig.click(remove());
    EXPECT_TRUE(pickerIsGone());
    EXPECT_FALSE(tx9().Visible());
}

TEST_F(DiaryModes, EveryStepTurnsToTheDiarysData) {
    turnDataElsewhere();
    find();
    expectData(u"select 日期,日记标题 from rjb"_s);
    turnDataElsewhere();
    write();
    expectData(u"rjb"_s);
    fill(u"2024-5-3"_s, u"a"_s);
    turnDataElsewhere();
    rig.click(save());
    expectData(u"select 日记标题 from rjb"_s);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
    data().open(u"yhb"_s);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(rig.sql(u"select 用户名 from yhb"_s), QStringList{u"管理员"_s});
}

TEST_F(DiaryModes, SavingTakesTheFirstRowAndDeletingTheCurrentOne) {
    saveEntry(u"2024-5-3"_s, u"a"_s);
    saveEntry(u"2024-5-4"_s, u"b"_s);
    ms8().setRows(3);
    ms8().setRow(2);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
    EXPECT_EQ(ms8().Rows(), 2);

    ms8().setRows(3);
    ms8().setTextMatrix(1, 2, u"c"_s);
    ms8().setRow(2);
    rig.click(save());
    EXPECT_EQ(rows(), (QStringList{u"2024-05-03|a"_s, u"2024-05-04|c"_s}));
}

} // namespace
} // namespace qinghe::testing
