#include "maintenance/purge_window.h"
#include "tools/tool_rig.h"

#include <QApplication>

// The date picker beside the other windows: the fields it fills, the keyboard, the pointer, the purge window.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class DateFieldsTest : public ToolTest {
protected:
    void pick(int index) { rig.doubleClick(rig.at(date_picker::Day[index])); }
    Form& openPurge() {
        Form& purge = shared().forms.get(names::Purge);
        purge.showForm();
        return purge;
    }
};

TEST_F(DateFieldsTest, FillABoxWithoutGridAlone) {
    openDatePicker();
    TextBox box(&rig.mainWindow(), u"other"_s);
    handlers::enter([&] { shared().openDatePicker(DateField::Schedule, FieldTarget(&box), {0, 0}); });
    pick(6);
    EXPECT_EQ(box.Text(), u"2024-6-1");
    EXPECT_EQ(tx2().Text(), u"2024-5-3");
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

TEST_F(DateFieldsTest, FillTheCurrentCellOfTheGridBehindTheBox) {
    openDatePicker();
    TextBox box(&rig.mainWindow(), u"other"_s);
    MSFlexGrid grid(&rig.mainWindow(), u"list"_s);
    handlers::enter([&] { shared().openDatePicker(DateField::Budget, FieldTarget(&box, &grid), {0, 0}); });
    pick(6);
    EXPECT_EQ(box.Text(), u"2024-6-1");
    EXPECT_EQ(grid.TextMatrix(1, 1), u"2024-6-1");
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

TEST_F(DateFieldsTest, FillTheFieldThatAskedLastWhereverThePickerHangs) {
    openDatePicker();
    ms2().setCol(6);
    pick(6);
    EXPECT_EQ(ms2().TextMatrix(1, 6), u"2024-6-1");
}

TEST_F(DateFieldsTest, RaiseTheChangeOfTheBoxAlsoForTheSameDate) {
    openDatePicker();
    int changes = 0;
    tx2().Change = [&] { ++changes; };
    tx2().setText(u"2024-6-1"_s);
    changes = 0;
    pick(6);
    EXPECT_EQ(changes, 1);
}

TEST_F(DateFieldsTest, LeaveTheKeyboardWithTheBox) {
    const Form& picker = openDatePicker();
    EXPECT_TRUE(picker.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(picker.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(QApplication::activeWindow(), &rig.mainWindow());
    rig.click(rig.at(date_picker::Forward));
    rig.click(rig.at(date_picker::Day[9]));
    EXPECT_EQ(QApplication::focusWidget(), &tx2());
}

TEST_F(DateFieldsTest, StayAboveTheMainWindow) {
    const Form& picker = openDatePicker();
    EXPECT_EQ(picker.windowType(), Qt::Tool);
    EXPECT_EQ(picker.parentWidget(), &rig.mainWindow());
}

TEST_F(DateFieldsTest, StayAboveTheWindowOfTheFieldThatAskedLast) {
    const Form& picker = openDatePicker();
    Form& purge = openPurge();
    handlers::enter([&] {
        shared().openDatePicker(DateField::Purge, FieldTarget(purge.findChild<TextBox*>(purge::Date)), {0, 0});
    });
    EXPECT_EQ(picker.parentWidget(), &purge);
    EXPECT_TRUE(picker.isVisible());
    EXPECT_TRUE(picker.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    pick(6);
    EXPECT_EQ(purge.findChild<TextBox*>(purge::Date)->Text(), u"2024-6-1");
    EXPECT_EQ(tx2().Text(), u"2024-5-3");
}

TEST_F(DateFieldsTest, MayBeGoneBeforeADayIsPicked) {
    openDatePicker();
    auto box = std::make_unique<TextBox>(&rig.mainWindow(), u"other"_s);
    handlers::enter([&] { shared().openDatePicker(DateField::Schedule, FieldTarget(box.get()), {0, 0}); });
    EXPECT_EQ(shared().dateTarget, 6);
    box.reset();
    pick(6);
    EXPECT_FALSE(isOpen(forms::DatePicker));
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

TEST_F(DateFieldsTest, AreNotTouchedByTheReleaseOfTheDoubleClick) {
    openDatePicker();
    ms2().setRows(20);
    // The picker hangs over the rows below; what lies beneath the day is a cell of the grid.
    Label& day = rig.at(date_picker::Day[8]);
    const QPoint at = day.mapToGlobal(day.rect().center());
    QWidget* beneath = rig.mainWindow().childAt(rig.mainWindow().mapFromGlobal(at));
    ASSERT_EQ(beneath, ms2().viewport());
    QTest::mouseClick(&day, Qt::LeftButton);
    QTest::mouseEvent(QTest::MouseDClick, &day, Qt::LeftButton, {}, day.rect().center());
    EXPECT_FALSE(isOpen(forms::DatePicker));
    QTest::mouseRelease(beneath, Qt::LeftButton, {}, beneath->mapFromGlobal(at));
    rig.settle();
    EXPECT_TRUE(tx2().isVisible());
    EXPECT_EQ(tx2().Text(), u"2024-6-3");
    EXPECT_EQ(ms2().Row(), 1);
    EXPECT_EQ(ms2().Col(), 2);
    EXPECT_FALSE(isOpen(forms::DatePicker));
}

TEST_F(DateFieldsTest, AreNotFilledByADoubleClickThatBeganOnACell) {
    openPage();
    // The second press of a double click on the date cell falls on the picker or the box, whatever has come up there.
    rig.clickCell(ms2(), 1, 2);
    Label& day = rig.at(date_picker::Day[8]);
    QTest::mouseEvent(QTest::MouseDClick, &day, Qt::LeftButton, {}, day.rect().center());
    EXPECT_TRUE(isOpen(forms::DatePicker));
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

TEST_F(DateFieldsTest, CloseThePurgeWindowsOwnWhenThePickerGoes) {
    openDatePicker();
    Form& purge = openPurge();
    rig.loaded(forms::DatePicker)->close();
    EXPECT_FALSE(purge.findChild<TextBox*>(purge::Date)->isEnabled());
}

TEST_F(DateFieldsTest, LeaveAHiddenPurgeWindowAlone) {
    openDatePicker();
    Form& purge = openPurge();
    purge.setShown(false);
    rig.loaded(forms::DatePicker)->close();
    EXPECT_TRUE(purge.findChild<TextBox*>(purge::Date)->isEnabled());
}

TEST_F(DateFieldsTest, LetThePickerGoWithEveryPageChange) {
    openDatePicker();
    rig.click(rig.at(pages::Desktop));
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-5-3");
}

} // namespace
} // namespace qinghe::testing
