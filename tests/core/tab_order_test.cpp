#include "controls/label.h"
#include "core/page_keys.h"
#include "core_fixture.h"

#include <QApplication>
#include <QDialog>
#include <QToolTip>

#include <algorithm>

// Without a mouse: where Tab goes on every page, how the labels are gone along and pressed, and the keys that belong to
// the whole window.

namespace qinghe::testing {
namespace {

class Keyboard : public CoreTest {
protected:
    Keyboard() {
        rig.signIn();
        rig.messages->shown.clear();
    }

    QWidget* holder() { return QApplication::focusWidget(); }
    QString holderName() { return holder() ? holder()->objectName() : QString(); }
    /// As the window system brings it, to whoever has the keyboard.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
        QTest::sendKeyEvent(QTest::Click, main().focusWidget(), key, text, modifiers);
        rig.settle();
    }
    void tab() { key(Qt::Key_Tab); }
    void alt(char character) { key(static_cast<Qt::Key>(character), Qt::AltModifier); }

    Frame& front() { return main().navigation().inView()->frame(); }

    /// Those that Tab comes to until it is back where it began: in the page in view from its first control on, then
    /// beside it.
    std::vector<QWidget*> walked() {
        main().setFocus();
        std::vector<QWidget*> all;
        for (tab(); std::ranges::find(all, holder()) == all.end() && all.size() < 100; tab())
            all.push_back(holder());
        return all;
    }

    void enterCategories() {
        click(pages::Settings);
        rig.click(rig.at(settings::Categories));
        rig.settle();
    }
};

/// Whether a control is read before another one, by the place of both in the container in which their ways part.
bool isReadBefore(const QWidget& one, const QWidget& other) {
    const QWidget* common = one.parentWidget();
    while (!common->isAncestorOf(&other))
        common = common->parentWidget();
    const auto placeIn = [common](const QWidget* part) {
        while (part->parentWidget() != common)
            part = part->parentWidget();
        return part->geometry();
    };
    const QRect first = placeIn(&one), second = placeIn(&other);
    const bool sameRow = second.top() < first.center().y() && first.top() < second.center().y();
    return sameRow ? first.left() < second.left() : first.top() < second.top();
}

void expectReadInOrder(const std::vector<QWidget*>& stops) {
    for (std::size_t i = 1; i < stops.size(); ++i)
        EXPECT_TRUE(isReadBefore(*stops[i - 1], *stops[i]))
            << stops[i - 1]->objectName().toStdString() << " stands behind " << stops[i]->objectName().toStdString();
}

/// The controls on view that answer to keys: of options that belong together one is come to.
std::vector<QWidget*> answering(QWidget& page) {
    std::vector<QWidget*> all;
    for (auto* part : page.findChildren<QWidget*>())
        if (part->isVisible() && part->isEnabled() && part->focusPolicy() != Qt::NoFocus && Placed::of(part) &&
            !qobject_cast<OptionButton*>(part))
            all.push_back(part);
    return all;
}

class TabOnEveryPage : public Keyboard, public ::testing::WithParamInterface<LabelledPage> {
protected:
    /// Of the page in view and of what stands beside it.
    void expectWholePageInOrder() {
        const std::vector<QWidget*> stops = walked();
        const auto beside =
            std::ranges::find_if(stops, [this](const QWidget* stop) { return !front().isAncestorOf(stop); });

        ASSERT_NE(beside, stops.begin()) << "Tab begins beside the page";
        const std::vector<QWidget*> onPage(stops.begin(), beside), others(beside, stops.end());
        expectReadInOrder(onPage);
        expectReadInOrder(others);
        for (const QWidget* part : answering(front()))
            EXPECT_NE(std::ranges::find(onPage, part), onPage.end()) << part->objectName().toStdString();
        QStringList names;
        for (const QWidget* part : others)
            if (!part->objectName().isEmpty()) // the line of a new book has none
                names << part->objectName();
        EXPECT_EQ(names.mid(0, 6),
                  (QStringList{u"Image1"_s, u"Image7"_s, u"Image5"_s, u"Image4"_s, u"Image3"_s, u"Label20"_s}));
        EXPECT_EQ(names.size(), 7); // and one label
        main().setFocus();
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(holder(), others.back()); // the same way back
    }
};

TEST_P(TabOnEveryPage, GoesThroughItsControlsAsTheyAreRead) {
    click(GetParam().label);
    expectWholePageInOrder();
    EXPECT_TRUE(rig.messages->shown.size() <= 1); // the charts have nothing to show
}

INSTANTIATE_TEST_SUITE_P(Labels, TabOnEveryPage, ::testing::ValuesIn(LabelledPages));

TEST_F(TabOnEveryPage, GoesThroughTheCategoriesListByList) {
    enterCategories();
    rig.clickCell(rig.at(categories::Majors), 1, 1); // which opens the minors
    expectWholePageInOrder();
}

TEST_F(Keyboard, ATabPassesOptionsThatAreNotInForceAndComesBackToTheOneThatIs) {
    click(pages::Income);
    rig.click(rig.at(income::ByItem));
    rig.messages->shown.clear();
    main().setFocus();
    tab();
    EXPECT_EQ(holder(), &rig.at(income::ByItem));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    tab();
    EXPECT_EQ(holder(), &rig.at(income::ByItem));
}

TEST_F(Keyboard, TheBoxOverACellComesBehindItsList) {
    click(pages::Income);
    auto& grid = rig.at(income::Grid);
    rig.clickCell(grid, 1, 1);
    ASSERT_EQ(holder(), &rig.at(income::Box));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(holder(), &grid);
    tab();
    EXPECT_EQ(holder(), &rig.at(income::Box));
}

TEST_F(Keyboard, TheSignInIsGoneThroughAsItIsRead) {
    rig.stop();
    rig.start();
    Form& window = *rig.loaded(forms::SignIn);
    EXPECT_EQ(holder(), &rig.at(sign_in::Password));
    QStringList names;
    for (int i = 0; i < 6; ++i) {
        names << holderName();
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_Tab, {}, Qt::NoModifier);
    }
    EXPECT_EQ(names, (QStringList{u"Text2"_s, u"Check1"_s, u"Label1"_s, u"Image1"_s, u"Image2"_s, u"Combo1"_s}));
    rig.at(sign_in::Password).setText(u"123456"_s);
    rig.at(sign_in::Enter).setFocus();
    QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_Space, u" "_s, Qt::NoModifier);
    rig.settle();
    EXPECT_TRUE(rig.loaded(forms::Main));
}

// ---- the labels

TEST_F(Keyboard, TheLabelsAreOneStopAndTheArrowsGoAlongThem) {
    const auto& chosen = label(pages::Desktop);
    main().setFocus();
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(holder(), &chosen);
    key(Qt::Key_Right);
    EXPECT_EQ(holder(), &label(pages::Income));
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    EXPECT_EQ(holder(), &label(pages::Settings)); // round the end
    key(Qt::Key_Home);
    EXPECT_EQ(holder(), &chosen);
    key(Qt::Key_End);
    EXPECT_EQ(holder(), &label(pages::Settings));
    EXPECT_TRUE(rig.at(desktop::Page).isVisible()) << "going along opens nothing";
}

TEST_F(Keyboard, EnterAndSpaceOnALabelOpenItsPageAndTheKeyboardStaysThere) {
    label(pages::Desktop).setFocus();
    key(Qt::Key_Right);
    key(Qt::Key_Return, {}, u"\r"_s);
    EXPECT_TRUE(rig.at(income::Page).isVisible());
    EXPECT_EQ(rig.at(income::Page).Caption(), u"收入记录");
    EXPECT_EQ(holder(), &label(pages::Income));
    key(Qt::Key_Right);
    key(Qt::Key_Space, {}, u" "_s);
    EXPECT_EQ(rig.at(income::Page).Caption(), u"支出记录");
    EXPECT_EQ(holder(), &label(pages::Expense));
    tab();
    EXPECT_TRUE(front().isAncestorOf(holder()));
}

TEST_F(Keyboard, AHeldEnterOpensNoPage) {
    label(pages::Income).setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(holder(), &held);
    EXPECT_TRUE(rig.at(desktop::Page).isVisible());
}

TEST_F(Keyboard, AClickOfTheMouseLeavesTheKeyboardWhereItIs) {
    click(pages::Income);
    EXPECT_EQ(holder(), &main());
    rig.click(rig.at(title::About));
    EXPECT_EQ(holder(), &main());
}

TEST_F(Keyboard, TheImagesOfTheTitleBandArePressedByEnterAndSpace) {
    rig.at(loans::Picture).setFocus();
    key(Qt::Key_Return, {}, u"\r"_s);
    EXPECT_TRUE(rig.at(loans::Page).isVisible());
    EXPECT_EQ(holder(), &rig.at(loans::Picture));
    rig.at(title::Close).setFocus();
    key(Qt::Key_Space, {}, u" "_s);
    EXPECT_EQ(rig.exitCode(), 0);
}

TEST_F(Keyboard, WhatALabelTellsInAToolTipItTellsWhoeverComesToIt) {
    tab();
    ASSERT_EQ(holderName(), u"Label25");
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), holder()->toolTip());
    QToolTip::hideText();
}

// ---- the keys of the window

TEST_F(Keyboard, AltAndAKeyOpensEveryPageAsItsLabelDoesAndTheLabelsTellIt) {
    for (const PageKey& entry : PageKeys) {
        Label& own = *main().navigation().labelOf(entry.page);
        EXPECT_EQ(own.toolTip(), u"%1（Alt+%2）"_s.arg(own.Caption().trimmed(), QString(QLatin1Char(entry.key))));
        alt(entry.key);
        EXPECT_EQ(main().navigation().currentPage, static_cast<int>(entry.page));
        EXPECT_EQ(own.role(), Role::ChosenLabel);
        EXPECT_EQ(holder(), &main());
        rig.messages->shown.clear();
    }
    EXPECT_EQ(std::size(PageKeys), std::size(LabelledPages));
}

TEST_F(Keyboard, TheLetterIsBesideTheWordsWhileAltIsHeld) {
    const auto shown = [this](const QString& key) { return label(pages::Expense).keyHint() == key; };
    QTest::sendKeyEvent(QTest::Press, main().windowHandle(), Qt::Key_Alt, {}, Qt::AltModifier);
    EXPECT_TRUE(shown({})); // Alt+Tab passes through here as well
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown(u"3"_s); }, 2000));
    QTest::sendKeyEvent(QTest::Release, main().windowHandle(), Qt::Key_Alt, {}, {});
    EXPECT_TRUE(shown({}));
}

TEST_F(Keyboard, NoKeyOfTheWindowPassesAMessageBox) {
    click(pages::Income);
    rig.messages->whileShown = [this](const ShownMessage&) {
        QDialog box(&main());
        box.setModal(true);
        box.show();
        rig.settle();
        alt('3');
        key(Qt::Key_S, Qt::ControlModifier);
        key(Qt::Key_Insert);
    };
    press(rig.at(income::Remove));
    EXPECT_EQ(rig.at(income::Page).Caption(), u"收入记录");
    EXPECT_EQ(rig.messages->shown.size(), 1U); // the question of the deletion
    EXPECT_EQ(rig.at(income::Grid).Rows(), 2);
}

} // namespace
} // namespace qinghe::testing
