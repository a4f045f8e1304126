#include "controls/combo_box.h"
#include "window_fixture.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWheelEvent>

namespace qinghe::testing {
namespace {

class ComboBoxes : public WindowTest {
protected:
    ComboBoxes() {
        for (ComboBox* list : {&typed, &chosen})
            for (const auto* name : {u"张三", u"李四", u"王五"})
                list->addEntry(QString::fromUtf16(name));
    }

    /// Opens the list and picks an entry with the mouse.
    static void pick(ComboBox& list, int index) {
        list.showPopup();
        QAbstractItemView* view = list.view();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
        const QPoint at = view->visualRect(list.model()->index(index, 0)).center();
        QTest::mouseMove(view->viewport(), at);
        QTest::qWait(QApplication::doubleClickInterval() + 20); // a list that has just opened takes no release
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        turnLoop();
    }
    static void enter(ComboBox& list, const QString& text) {
        for (const QChar character : text) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(list.lineEdit(), &key);
        }
    }
    static void typeOver(ComboBox& list, const QString& text) {
        list.lineEdit()->selectAll();
        enter(list, text);
        QTest::keyClick(list.lineEdit(), Qt::Key_Return);
    }

    ComboBox& typed = put<ComboBox>(form, u"Combo1"_s, {300, 300, 3000, 375}, true);
    ComboBox& chosen = put<ComboBox>(form, u"Combo2"_s, {300, 1500, 3000, 375}, false);
};

TEST_F(ComboBoxes, AddingEntriesKeepsTheTextAndIsNoClick) {
    EXPECT_EQ(typed.Text(), QString());
    EXPECT_EQ(chosen.Text(), QString());
    typed.setText(u"赵六"_s);
    typed.addEntry(u"孙七"_s);
    EXPECT_EQ(typed.Text(), u"赵六"_s);
    chosen.setText(u"李四"_s);
    chosen.addEntry(u"孙七"_s);
    EXPECT_EQ(chosen.Text(), u"李四"_s);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, ATextFromCodeIsNoClick) {
    typed.setText(u"李四"_s);
    chosen.setText(u"李四"_s);
    EXPECT_EQ(typed.Text(), u"李四"_s);
    EXPECT_EQ(chosen.Text(), u"李四"_s);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, PickingFromTheListIsAClickThatSeesTheNewText) {
    typed.Click = [this] { note(typed.Text()); };
    pick(typed, 1);
    EXPECT_EQ(noted(), QStringList{u"李四"_s});
    pick(chosen, 2);
    EXPECT_EQ(noted(), QStringList{u"Combo2"_s});
    EXPECT_EQ(chosen.Text(), u"王五"_s);
}

TEST_F(ComboBoxes, PickingTheEntryThatIsThereAlreadyIsAClickToo) {
    pick(typed, 1);
    pick(typed, 1);
    EXPECT_EQ(noted(), (QStringList{u"Combo1"_s, u"Combo1"_s}));
}

TEST_F(ComboBoxes, TypingANameThatIsListedIsNoClick) {
    typeOver(typed, u"李四"_s);
    EXPECT_EQ(typed.Text(), u"李四"_s);
    typed.lineEdit()->clearFocus();
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, TypingANameThatIsNotListedAddsNoEntry) {
    typeOver(typed, u"周八"_s);
    typed.lineEdit()->clearFocus();
    EXPECT_EQ(typed.count(), 3);
    EXPECT_EQ(typed.Text(), u"周八"_s);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, TypingTheHeadOfANameCompletesNothing) {
    typed.lineEdit()->selectAll();
    enter(typed, u"李"_s);
    EXPECT_EQ(typed.Text(), u"李"_s);
}

TEST_F(ComboBoxes, TheArrowKeysChoose) {
    QTest::keyClick(&typed, Qt::Key_Down);
    EXPECT_EQ(typed.Text(), u"张三"_s);
    QTest::keyClick(&chosen, Qt::Key_Down);
    QTest::keyClick(&chosen, Qt::Key_Down);
    EXPECT_EQ(chosen.Text(), u"李四"_s);
    EXPECT_EQ(noted(), (QStringList{u"Combo1"_s, u"Combo2"_s, u"Combo2"_s}));
}

TEST_F(ComboBoxes, WhereNothingCanBeTypedEveryKeyThatFindsAnEntryChooses) {
    chosen.addEntry(u"Anna"_s);
    chosen.Click = [this] { note(chosen.Text()); };
    QTest::keyClick(&chosen, 'a');
    QTest::keyClick(&chosen, Qt::Key_Home);
    QTest::keyClick(&chosen, Qt::Key_End);
    EXPECT_EQ(noted(), (QStringList{u"Anna"_s, u"张三"_s, u"Anna"_s}));
    chosen.clearEntries();
    EXPECT_EQ(chosen.Text(), QString());
    QTest::keyClick(&chosen, 'a');
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, OpeningTheListUnderATextThatStandsInItIsNoClick) {
    typed.setText(u"李四"_s);
    typed.lineEdit()->setFocus();
    typed.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(typed.view()->window()));
    turnLoop();
    EXPECT_EQ(noted(), QStringList{});
    typed.hidePopup();
}

TEST_F(ComboBoxes, AnEntryThatTheListCutsIsToldByATip) {
    const QString longest = QString(60, u'长');
    chosen.addEntry(longest);
    chosen.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(chosen.view()->window()));
    const auto tip = [this](int index) {
        QWidget* lines = chosen.view()->viewport();
        const QPoint at = chosen.view()->visualRect(chosen.model()->index(index, 0)).center();
        QHelpEvent asked(QEvent::ToolTip, at, lines->mapToGlobal(at));
        QCoreApplication::sendEvent(lines, &asked);
        return QToolTip::isVisible() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText() : QString();
    };
    EXPECT_EQ(tip(3), longest);
    QToolTip::hideText();
    turnLoop();
    EXPECT_NE(tip(0), u"张三"_s);
    chosen.hidePopup();
}

TEST_F(ComboBoxes, TypingAfterAClosedListIsStillNoClick) {
    typed.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(typed.view()->window()));
    QTest::keyClick(typed.view(), Qt::Key_Escape);
    turnLoop();
    typeOver(typed, u"李四"_s);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, TypingAfterAListThatThePressElsewhereClosedIsStillNoClick) {
    typed.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(typed.view()->window()));
    typed.view()->window()->close();
    turnLoop();
    typeOver(typed, u"李四"_s);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(ComboBoxes, NamesAreFoundExactlyCaseIncluded) {
    chosen.addEntry(u"Anna"_s);
    chosen.setText(u"anna"_s);
    EXPECT_EQ(chosen.Text(), QString());
    chosen.setText(u"Anna"_s);
    EXPECT_EQ(chosen.Text(), u"Anna"_s);
}

TEST_F(ComboBoxes, AListWithoutTypingTakesNoText) {
    EXPECT_FALSE(chosen.isEditable());
    chosen.setText(u"不在其中"_s);
    EXPECT_EQ(chosen.Text(), QString());
}

} // namespace
} // namespace qinghe::testing
