#include "look/fonts.h"
#include "look/running_text.h"
#include "reminder_rig.h"
#include "support/pointer.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// A plan rings, in the first second of its minute; its music plays from the next second on.
class ReminderWindowTest : public ReminderTest {
protected:
    ReminderWindowTest() {
        plant(u"2024-06-18"_s, u"20 37"_s, u"给爷爷打电话"_s, u"音乐2"_s);
        setClock(u"2024-06-18T20:36:59"_s);
        watch();
        pass();
        if (!rings())
            qFatal("the plan does not ring");
    }
    void ringWith(const QString& plan);
    Form& popup() { return *rig.loaded(forms::Reminder); }
    Label& planLabel() { return rig.at(reminder::Plan); }
    /// All of the label is on view, and its words need no more than its room.
    void expectWholeTextInView() {
        Label& label = planLabel();
        EXPECT_EQ(label.visibleRegion().boundingRect(), label.rect());
        const double needed = runningHeight(label.Caption(), fontFor(Role::ReminderText), label.width());
        EXPECT_GE(label.height(), needed);
    }
    const QStringList started{u"open 音乐2.wav"_s, u"play"_s};
    const QStringList kept{u"play"_s};
};

TEST_F(ReminderWindowTest, ItIsCalledTodaysPlanAndHasTwoButtons) {
    EXPECT_EQ(rig.loaded(forms::Reminder)->Caption(), u"今日日程"_s);
    EXPECT_EQ(rig.at(reminder::Understood).text(), u"知道了"_s);
    EXPECT_EQ(rig.at(reminder::EndMusic).text(), u"停止音乐"_s);
    EXPECT_TRUE(rig.at(reminder::Clock).Enabled());
    EXPECT_EQ(rig.at(reminder::Clock).interval(), 1000);
}

TEST_F(ReminderWindowTest, ItLeavesTheKeyboardWhereItIs) {
    const Form& popup = *rig.loaded(forms::Reminder);
    EXPECT_TRUE(popup.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(popup.windowFlags() & Qt::WindowStaysOnTopHint);
}

TEST_F(ReminderWindowTest, ItComesUpInTheMiddleOfTheScreenAndCannotBeMinimised) {
    const Form& popup = *rig.loaded(forms::Reminder);
    const QRectF screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_NEAR(popup.geometry().center().x(), screen.center().x(), 1);
    EXPECT_NEAR(popup.geometry().center().y(), screen.center().y(), 1);
    // Out of sight it would keep every later plan from ringing.
    EXPECT_FALSE(popup.windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(popup.parentWidget()); // it would be hidden with the main window
}

TEST_F(ReminderWindowTest, OverItsButtonsThePointerIsAHand) {
    for (const QString& name : QStringList{reminder::Understood, reminder::EndMusic}) {
        auto& button = rig.control<CommandButton>(forms::Reminder, name);
        rig.hover(button);
        EXPECT_EQ(button.cursor().shape(), Qt::PointingHandCursor);
    }
}

TEST_F(ReminderWindowTest, ItOpensThePieceOnceAndKeepsItPlaying) {
    EXPECT_EQ(takeCalls(), started);
    rig.sound->position = 1000;
    pass(3);
    EXPECT_EQ(takeCalls(), kept + kept + kept);
}

TEST_F(ReminderWindowTest, APieceAtItsEndBeginsAgain) {
    takeCalls();
    rig.sound->position = rig.sound->length;
    pass();
    EXPECT_EQ(takeCalls(), (QStringList{u"play"_s, u"rewind"_s}));
    EXPECT_EQ(rig.at(schedule::Player).Command(), u"prev"_s);
    pass();
    EXPECT_EQ(takeCalls(), kept);
}

TEST_F(ReminderWindowTest, UnderstoodEndsTheMusicAndTheWindow) {
    takeCalls();
    understand();
    EXPECT_FALSE(rig.loaded(forms::Reminder));
    EXPECT_EQ(takeCalls(), (QStringList{u"stop"_s, u"close"_s}));
    EXPECT_EQ(rig.at(schedule::Player).Command(), u"close"_s);
    EXPECT_TRUE(timer3().Enabled());
    EXPECT_FALSE(rig.ended());
}

TEST_F(ReminderWindowTest, TheMusicCanBeEndedAlone) {
    takeCalls();
    endMusic();
    EXPECT_EQ(takeCalls(), (QStringList{u"stop"_s, u"close"_s}));
    pass(5);
    EXPECT_TRUE(rings());
    EXPECT_TRUE(takeCalls().isEmpty());
    EXPECT_FALSE(timer3().Enabled());
}

TEST_F(ReminderWindowTest, EndingTheMusicAndThenUnderstoodIsHarmlessAndThePauseBegins) {
    endMusic();
    understand();
    EXPECT_FALSE(rig.loaded(forms::Reminder));
    EXPECT_TRUE(timer3().Enabled());
    pass(70);
    EXPECT_TRUE(timer2().Enabled());
    EXPECT_FALSE(rings());
    EXPECT_FALSE(rig.ended());
}

TEST_F(ReminderWindowTest, ClosedByItsWindowButtonItComesBackWithTheMusicFromTheStart) {
    pass(4);
    takeCalls();
    closePopup();
    EXPECT_FALSE(rig.loaded(forms::Reminder));
    EXPECT_EQ(takeCalls(), (QStringList{u"stop"_s, u"close"_s}));
    EXPECT_FALSE(timer3().Enabled());
    pass();
    ASSERT_TRUE(rings());
    EXPECT_EQ(takeCalls(), started);
}

TEST_F(ReminderWindowTest, ClosedByItsWindowButtonAfterItsMinuteItStaysAway) {
    pass(60);
    closePopup();
    pass(120);
    EXPECT_FALSE(rings());
    EXPECT_TRUE(timer2().Enabled());
}

TEST_F(ReminderWindowTest, WithoutASoundDeviceThePlanIsShownAllTheSame) {
    closePopup();
    rig.sound->present = false;
    pass(3);
    EXPECT_TRUE(rings());
    EXPECT_EQ(shownPlan(), u"给爷爷打电话"_s);
    understand();
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(ReminderWindowTest, APreviewOfTheSamePieceIsTakenOver) {
    understand();
    pass(70);
    rig.press(music(), Qt::Key_Down); // 音乐1 plays
    takeCalls();
    plant(u"2024-06-18"_s, u"20 40"_s, u"b"_s, u"音乐1"_s);
    setClock(u"2024-06-18T20:40:00"_s);
    pass();
    ASSERT_TRUE(rings());
    EXPECT_EQ(takeCalls(), kept);
}

TEST_F(ReminderWindowTest, APreviewOfAnotherPieceGivesWay) {
    understand();
    pass(70);
    rig.press(music(), Qt::Key_Down);
    takeCalls();
    plant(u"2024-06-18"_s, u"20 40"_s, u"b"_s, u"音乐5"_s);
    setClock(u"2024-06-18T20:40:00"_s);
    pass();
    EXPECT_EQ(takeCalls(), (QStringList{u"close"_s, u"open 音乐5.wav"_s, u"play"_s}));
}

TEST_F(ReminderWindowTest, ASecondCopyThatRingsEndsWithoutAWord) {
    closePopup();
    rig.lock->free = false;
    pass();
    EXPECT_FALSE(rings());
    EXPECT_EQ(rig.exitCode(), 0);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(ReminderWindowTest, MarkUpInAPlanIsShownAsItWasTyped) {
    understand();
    pass(70);
    plant(u"2024-06-18"_s, u"20 40"_s, u"<b>3 & 4</b>"_s);
    setClock(u"2024-06-18T20:40:00"_s);
    pass();
    EXPECT_EQ(shownPlan(), u"<b>3 & 4</b>"_s);
    EXPECT_EQ(rig.at(reminder::Plan).textFormat(), Qt::PlainText);
}

TEST_F(ReminderWindowTest, APlanOfManyThousandCharactersIsShown) {
    understand();
    pass(70);
    plant(u"2024-06-18"_s, u"20 40"_s, u"长"_s.repeated(100000));
    setClock(u"2024-06-18T20:40:00"_s);
    pass();
    EXPECT_EQ(shownPlan().size(), 100000);
    rig.loaded(forms::Reminder)->grab();
}

/// Lets another plan ring, with this text.
void ReminderWindowTest::ringWith(const QString& plan) {
    understand();
    pass(70);
    rig.sql(u"delete from rcb"_s);
    plant(u"2024-06-18"_s, u"20 40"_s, plan);
    setClock(u"2024-06-18T20:40:00"_s);
    pass();
    rig.settle();
}

TEST_F(ReminderWindowTest, AShortPlanHasTheWindowAsItIs) {
    EXPECT_EQ(popup().Width(), 4800);
    EXPECT_EQ(popup().Height(), 2700);
    EXPECT_EQ(planLabel().Height(), 1500);
    ringWith(u"长"_s.repeated(12 * 4));
    EXPECT_EQ(popup().Height(), 2700);
}

TEST_F(ReminderWindowTest, TheWindowGrowsWithItsPlan) {
    ringWith(u"长"_s.repeated(49));
    EXPECT_GT(popup().Height(), 2700);
    expectWholeTextInView();
    const double before = popup().Height();
    ringWith(u"长"_s.repeated(100) + u"\r\n末"_s);
    EXPECT_GT(popup().Height(), before);
    expectWholeTextInView();
    const QRectF screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_NEAR(popup().geometry().center().y(), screen.center().y(), 1);
    for (const QString& name : QStringList{reminder::Understood, reminder::EndMusic}) {
        const auto& button = rig.control<CommandButton>(forms::Reminder, name);
        EXPECT_EQ(popup().Height() - button.Top(), 615);
        EXPECT_EQ(popup().childAt(button.geometry().center()), &button);
    }
}

TEST_F(ReminderWindowTest, APlanThatIsTooLongForTheScreenScrolls) {
    ringWith(u"长"_s.repeated(3000) + u"末"_s);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_LE(popup().height(), screen.height() * 6 / 10);
    EXPECT_GT(planLabel().height(), screen.height());
    const QRegion first = planLabel().visibleRegion();
    EXPECT_EQ(first.boundingRect().top(), 0);
    const QPoint at(120, 60); // over the words
    pointer::wheel(popup(), at);
    rig.settle();
    const int moved = planLabel().visibleRegion().boundingRect().top();
    EXPECT_GT(moved, 0);
    for (int i = 0; i < 1000 && planLabel().visibleRegion().boundingRect().bottom() < planLabel().height() - 1; ++i)
        pointer::wheel(popup(), at);
    EXPECT_EQ(planLabel().visibleRegion().boundingRect().bottom(), planLabel().height() - 1);
}

TEST_F(ReminderWindowTest, APlanThatScrollsIsDraggedByItsBar) {
    ringWith(u"长"_s.repeated(3000));
    auto* bar = popup().findChild<QScrollBar*>();
    for (QScrollBar* each : popup().findChildren<QScrollBar*>())
        if (each->isVisible())
            bar = each;
    ASSERT_TRUE(bar->isVisible());
    EXPECT_LT(planLabel().mapToGlobal(planLabel().rect().topRight()).x(), bar->mapToGlobal(QPoint()).x());
    pointer::press(*bar, QPoint(6, 10));
    pointer::move(*bar, QPoint(6, bar->height() - 1));
    pointer::release(*bar, QPoint(6, bar->height() - 1));
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(ReminderWindowTest, NothingInItButItsButtonsCanHaveTheKeyboard) {
    ringWith(u"长"_s.repeated(3000));
    for (const QWidget* part : popup().findChildren<QWidget*>()) {
        const bool isButton = qobject_cast<const CommandButton*>(part);
        EXPECT_TRUE(isButton || part->focusPolicy() == Qt::NoFocus) << part->metaObject()->className();
    }
    EXPECT_TRUE(popup().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(ReminderWindowTest, F8InTheMainWindowAnswersIt) {
    ringWith(u"浇水"_s);
    rig.mainWindow().activateWindow();
    rig.settle();
    EXPECT_TRUE(popup().toolTip().contains(u"F8"));
    QTest::keyClick(&rig.mainWindow(), Qt::Key_F8);
    rig.settle();
    EXPECT_FALSE(rings());
    EXPECT_TRUE(timer3().Enabled()) << "the pause, as by 知道了";
    QTest::keyClick(&rig.mainWindow(), Qt::Key_F8); // nobody's
    EXPECT_TRUE(timer3().Enabled());
}

TEST_F(ReminderWindowTest, ItStandsAndPlaysOnWhileTheMainWindowGoesToTheTray) {
    rig.sql(u"update systuopanb set 最小化到托盘=1"_s);
    pass();
    rig.mainWindow().setWindowState(1);
    rig.settle();
    ASSERT_FALSE(rig.mainWindow().Visible());
    EXPECT_TRUE(rings());
    takeCalls();
    pass();
    EXPECT_EQ(takeCalls(), kept);
    understand();
    EXPECT_FALSE(rig.ended());
    pass(70);
    EXPECT_TRUE(timer2().Enabled());
}

TEST_F(ReminderWindowTest, ItComesUpWhileTheMainWindowIsInTheTray) {
    closePopup();
    rig.sql(u"update systuopanb set 最小化到托盘=1"_s);
    rig.mainWindow().setWindowState(1);
    rig.settle();
    pass();
    EXPECT_TRUE(rings());
    EXPECT_FALSE(rig.mainWindow().Visible());
    closePopup();
    rig.settle();
    EXPECT_FALSE(rig.ended());
}

TEST_F(ReminderWindowTest, ThePageCanBeUsedWhileItStands) {
    write(u"b"_s, u"2024-6-20"_s, u"8"_s, u"0"_s);
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), PlanSaved);
    EXPECT_TRUE(rings());
}

} // namespace
} // namespace qinghe::testing
