#include "controls/accessible.h"
#include "controls/combo_box.h"
#include "controls/grid_accessible.h"
#include "controls/ms_flex_grid.h"
#include "controls/report_reader.h"
#include "support/listener.h"
#include "window_fixture.h"

// What a screen reader is told of the controls.

namespace qinghe::testing {
namespace {

class Told : public WindowTest {
protected:
    QAccessibleInterface& told(QWidget& widget) { return *QAccessible::queryAccessibleInterface(&widget); }
    QString name(QWidget& widget) { return told(widget).text(QAccessible::Name); }
    /// The names of what a container holds.
    QStringList names(QWidget& container) {
        QStringList all;
        for (int i = 0; i < told(container).childCount(); ++i)
            all << told(container).child(i)->text(QAccessible::Name);
        return all;
    }

    Listener listener;
};

TEST_F(Told, WordsAreTheirTextBehindWhatTheyAreAbout) {
    auto& words = put<Label>(form, u"Label25"_s, {0, 0, 900, 300}, u"  12.50元"_s);
    EXPECT_EQ(told(words).role(), QAccessible::StaticText);
    EXPECT_EQ(name(words), u"12.50元"_s);
    words.setAccessibleName(u"上月收入"_s);
    EXPECT_EQ(name(words), u"上月收入：12.50元"_s);
    words.setCaption({});
    EXPECT_TRUE(told(words).state().invisible);
}

TEST_F(Told, AnImageThatIsPressedIsAButtonCalledAfterItsToolTip) {
    auto& image = put<Image>(form, u"Image7"_s, {0, 0, 375, 375});
    image.setToolTip(u"软件介绍"_s);
    EXPECT_EQ(told(image).role(), QAccessible::Button);
    EXPECT_EQ(name(image), u"软件介绍"_s);
    EXPECT_EQ(told(image).text(QAccessible::Description), QString());
    told(image).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(noted(), QStringList{u"Image7"_s});
    image.Click = nullptr;
    EXPECT_EQ(told(image).role(), QAccessible::Graphic);
}

TEST_F(Told, WhatAFormHoldsIsToldAsItIsReadWhateverLiesOverWhat) {
    auto& right = put<CommandButton>(form, u"Command2"_s, {3000, 280, 900, 300}, u"右"_s);
    put<CommandButton>(form, u"Command1"_s, {150, 300, 900, 300}, u"左"_s);
    put<Label>(form, u"Label1"_s, {3000, 30, 900, 150}, u"题"_s);
    put<Label>(form, {}, {0, 900, 900, 30}).setRole(Role::Hairline);
    put<Image>(form, {}, {0, 0, 300, 300}).Click = nullptr;
    put<Frame>(form, {}, {0, 1200, 900, 300});
    right.lower();
    EXPECT_EQ(names(form), (QStringList{u"题"_s, u"左"_s, u"右"_s}));
}

TEST_F(Told, TheLabelsOfThePagesAreARowOfTabs) {
    auto& first = put<Label>(form, u"Label24"_s, {0, 300, 900, 300}, u"  桌面"_s);
    auto& second = put<Label>(form, u"Label1"_s, {900, 300, 900, 300}, u"  暂借"_s);
    put<Label>(form, u"Label26"_s, {0, 0, 900, 200}, u"记账本"_s);
    first.setRole(Role::PageLabel);
    second.setRole(Role::ChosenLabel);
    EXPECT_EQ(names(form), (QStringList{u"记账本"_s, u"页面"_s}));
    QAccessibleInterface* const row = told(form).child(1);
    EXPECT_EQ(row->role(), QAccessible::PageTabList);
    ASSERT_EQ(row->childCount(), 2);
    EXPECT_EQ(row->child(1), &told(second));
    EXPECT_EQ(row->indexOfChild(&told(second)), 1);
    EXPECT_EQ(told(second).parent(), row);
    EXPECT_EQ(row->parent(), &told(form));
    EXPECT_EQ(told(second).role(), QAccessible::PageTab);
    EXPECT_TRUE(told(second).state().selected);
    EXPECT_FALSE(told(first).state().selected);
}

TEST_F(Told, AListIsCalledAfterWhatItIsForAndNotAfterItsText) {
    ComboBox typed(&form, u"Combo3"_s, true), chosen(&form, u"Combo2"_s, false);
    for (ComboBox* list : {&typed, &chosen}) {
        list->setAccessibleName(u"记账本皮肤"_s);
        list->addEntry(u"水墨远山"_s);
        list->setText(u"水墨远山"_s);
    }
    EXPECT_EQ(name(typed), u"记账本皮肤"_s);
    EXPECT_EQ(told(typed).child(1)->text(QAccessible::Name), u"记账本皮肤"_s);
    EXPECT_EQ(told(typed).child(1)->text(QAccessible::Value), u"水墨远山"_s);
    EXPECT_EQ(name(chosen), u"记账本皮肤：水墨远山"_s);
}

TEST_F(Told, WordsThatComeByThemselvesAreToldWhenTheyCome) {
    auto& note = put<Label>(form, {}, {0, 0, 900, 300}, u"一"_s);
    note.setAnnounced();
    EXPECT_EQ(told(note).role(), QAccessible::AlertMessage);
    listener.forget();
    note.setCaption(u"二"_s);
    EXPECT_TRUE(listener.heard(QAccessible::ObjectShow, u"二"_s)) << listener.all().join(u'\n').toStdString();
    listener.forget();
    note.setCaption(u"二"_s);
    EXPECT_TRUE(listener.all().isEmpty());
}

class ToldGrid : public Told {
protected:
    void SetUp() override {
        Told::SetUp();
        handlers::enter([this] {
            grid.setCols(3);
            grid.setRows(4);
            grid.setTextMatrix(0, 1, u"项目"_s);
            grid.setTextMatrix(0, 2, u"金额"_s);
            grid.setTextMatrix(2, 1, u"餐饮"_s);
            grid.setTextMatrix(2, 2, u"12.5"_s);
        });
    }
    QAccessibleTableInterface& table() { return *told(grid).tableInterface(); }
    QAccessibleInterface& cell(int row, int col) { return *table().cellAt(row - 1, col - 1); }
    void moveTo(int row, int col) {
        handlers::enter([&] {
            grid.setRow(row);
            grid.setCol(col);
        });
    }

    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 6000, 4500}, u"支出记录"_s);
    MSFlexGrid& grid = put<MSFlexGrid>(frame, u"ms2"_s, {150, 300, 5700, 2400});
};

TEST_F(ToldGrid, AGridIsATableCalledAfterItsFrame) {
    EXPECT_EQ(told(grid).role(), QAccessible::Table);
    EXPECT_EQ(name(grid), u"支出记录"_s);
    EXPECT_EQ(told(grid).text(QAccessible::Description), u"共3行"_s);
    EXPECT_EQ(table().rowCount(), 3);
    EXPECT_EQ(table().columnCount(), 2);
    EXPECT_EQ(told(grid).childCount(), 8);
    EXPECT_EQ(told(grid).child(1)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(told(grid).child(1)->text(QAccessible::Name), u"金额"_s);
    EXPECT_EQ(table().columnDescription(1), u"金额"_s);
}

TEST_F(ToldGrid, ACellTellsRowCaptionAndText) {
    QAccessibleInterface& amount = cell(2, 2);
    EXPECT_EQ(&amount, told(grid).child(5));
    EXPECT_EQ(told(grid).indexOfChild(&amount), 5);
    EXPECT_EQ(amount.text(QAccessible::Name), u"12.5"_s);
    EXPECT_EQ(amount.text(QAccessible::Description), u"第2行，金额"_s);
    EXPECT_EQ(amount.tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(amount.tableCellInterface()->columnHeaderCells().front()->text(QAccessible::Name), u"金额"_s);
    EXPECT_EQ(told(grid).childAt(amount.rect().center().x(), amount.rect().center().y()), &amount);
    grid.objection = [](int, int) { return u"这不是数字"_s; };
    EXPECT_EQ(amount.text(QAccessible::Description), u"第2行，金额，这不是数字"_s);
}

TEST_F(ToldGrid, TheCurrentCellIsToldAsItMoves) {
    grid.takeFocus();
    turnLoop();
    EXPECT_TRUE(listener.heard(QAccessible::Focus, u"第1行，项目"_s)) << listener.all().join(u'\n').toStdString();
    listener.forget();
    moveTo(2, 2);
    EXPECT_EQ(listener.all(QAccessible::Focus), QStringList{u"第2行，金额"_s});
    EXPECT_TRUE(cell(2, 2).state().focused);
    EXPECT_FALSE(cell(1, 1).state().selected);
    EXPECT_EQ(told(grid).focusChild(), &cell(2, 2));
    listener.forget();
    moveTo(2, 2);
    EXPECT_EQ(listener.all(QAccessible::Focus), QStringList());
}

TEST_F(ToldGrid, WhereTheKeyboardIsElsewhereTheCurrentCellIsToldAsChosen) {
    name(grid);
    form.setFocus();
    turnLoop();
    listener.forget();
    moveTo(2, 1);
    EXPECT_EQ(listener.all(QAccessible::Focus), QStringList());
    EXPECT_TRUE(listener.heard(QAccessible::Selection, u"第2行，项目"_s));
}

TEST_F(ToldGrid, AListThatIsReadByKeysTellsTheCellTheyAreAt) {
    ReportReader reader(grid);
    handlers::enter([this] { grid.setUsable(false); });
    told(reader);
    EXPECT_FALSE(cell(1, 1).state().selected);
    reader.setFocus(Qt::TabFocusReason);
    turnLoop();
    EXPECT_TRUE(listener.heard(QAccessible::Focus, u"第1行，项目"_s)) << listener.all().join(u'\n').toStdString();
    QTest::keyClick(&reader, Qt::Key_Down);
    EXPECT_TRUE(listener.heard(QAccessible::Focus, u"第2行，项目"_s)) << listener.all().join(u'\n').toStdString();
    EXPECT_TRUE(cell(2, 1).state().focused);
}

TEST_F(ToldGrid, ACellIsPressedAsByAClick) {
    cell(3, 1).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(noted(), QStringList{u"ms2"_s});
    handlers::enter([this] { grid.setUsable(false); });
    EXPECT_TRUE(cell(1, 1).state().disabled);
    EXPECT_TRUE(cell(1, 1).actionInterface()->actionNames().isEmpty());
}

TEST_F(ToldGrid, ALongListCostsTheCellsThatAreAskedFor) {
    handlers::enter([this] { grid.setRows(32767); });
    const QAccessible::Id id = QAccessible::uniqueId(&cell(32766, 2));
    EXPECT_EQ(cell(32766, 2).text(QAccessible::Description), u"第32766行，金额"_s);
    EXPECT_EQ(QAccessible::uniqueId(told(grid).child(3)), id + 1); // nothing was made between
    handlers::enter([this] { grid.setRows(2); });
    EXPECT_EQ(table().cellAt(32765, 1), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_EQ(told(grid).text(QAccessible::Description), u"表格里还没有内容"_s);
}

} // namespace
} // namespace qinghe::testing
