#include "core_fixture.h"
#include "support/held_book.h"
#include "support/pointer.h"

namespace qinghe::testing {
namespace {

class TrayIcon : public CoreTest {
protected:
    void want(bool on) { rig.sql(u"update systuopanb set 最小化到托盘=%1"_s.arg(on ? 1 : 0)); }
    void minimise() {
        main().setWindowState(1);
        rig.settle();
    }
    /// An event of the icon.
    void send(int message) {
        rig.tray->send(message);
        rig.settle();
    }
    std::size_t added() const { return rig.tray->added.size(); }
};

TEST_F(TrayIcon, StartingWithTheSettingOnTheWindowAppearsForAMomentThenOnlyTheIconRemains) {
    want(true);
    bool seen = false;
    rig.start();
    rig.tray->whenAdded = [&] { seen = main().isVisible(); };
    rig.click(signInButton());
    rig.settle();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(main().isVisible());
    EXPECT_EQ(added(), 1u);
    EXPECT_TRUE(rig.at(settings::ToTray).Value());
    EXPECT_FALSE(rig.ended());
}

TEST_F(TrayIcon, AStartIntoTheTraySaysSoOnce) {
    want(true);
    rig.signIn();
    EXPECT_EQ(rig.tray->told, (std::vector{u"程序已经启动，在这个图标里。点一下图标，窗口就出来。"_s}));
    send(513);
    QTest::qWait(300);
    minimise();
    EXPECT_EQ(added(), 2u);
    EXPECT_EQ(rig.tray->told.size(), 1u);
}

TEST_F(TrayIcon, AStartIntoTheTrayStillFillsTheDesktop) {
    want(true);
    rig.signIn();
    EXPECT_EQ(caption(desktop::Plans), u"您还未添加今日日程！"_s);
    EXPECT_EQ(caption(desktop::LastIncome), u"0.00元"_s);
    EXPECT_TRUE(folder().contains(u"zjm.jpg"_s));
}

TEST_F(TrayIcon, WithTheSettingOffOrMissingThereIsNoIcon) {
    rig.signIn();
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(main().isVisible());
    EXPECT_FALSE(rig.at(settings::ToTray).Value());
    rig.sql(u"delete from systuopanb"_s);
    minimise();
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(main().Visible());
}

TEST_F(TrayIcon, TheTipIsTheProgramsName) {
    want(true);
    rig.signIn();
    EXPECT_EQ(rig.tray->added.at(0), u"青禾家庭记账本"_s);
}

TEST_F(TrayIcon, MinimisingHidesTheWindowWhenTheSettingIsOn) {
    rig.signIn();
    want(true);
    minimise();
    EXPECT_EQ(added(), 1u);
    EXPECT_FALSE(main().Visible());
    EXPECT_FALSE(rig.ended());
}

TEST_F(TrayIcon, TheWindowIsHiddenOnlyWhenItsChangeOfStateIsOver) {
    rig.signIn();
    want(true);
    main().setWindowState(1);
    EXPECT_EQ(added(), 1u);
    EXPECT_TRUE(main().Visible());
    rig.settle();
    EXPECT_FALSE(main().Visible());
}

TEST_F(TrayIcon, AMinimiseLooksIntoTheProgramsOwnFileWhateverTheControlWasPointedAt) {
    rig.signIn();
    want(true);
    main().Adodc1->setConnectionString(u"provider = microsoft.jet.oledb.4.0;data source=/elsewhere/data.dll"_s);
    minimise();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(added(), 1u);
    EXPECT_EQ(main().Adodc1->connectionString(), rig.program->shared().connection());
}

TEST_F(TrayIcon, AMinimiseWhileAnotherProgramHoldsTheBookIsMadeUpForLater) {
    rig.signIn();
    want(true);
    {
        const HeldBook held(rig.dataFile());
        minimise();
        main().setWindowState(0);
        minimise();
    }
    EXPECT_FALSE(rig.ended());
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !main().Visible(); }, 3000));
    EXPECT_GE(added(), 1u);
}

TEST_F(TrayIcon, TheMinimiseImageGoesToTheTrayToo) {
    rig.signIn();
    want(true);
    click(title::Minimise);
    EXPECT_EQ(added(), 1u);
    EXPECT_FALSE(main().Visible());
}

TEST_F(TrayIcon, TheSettingIsReadAtEveryMinimise) {
    rig.signIn();
    minimise();
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(main().Visible());
    main().setWindowState(0);
    want(true);
    minimise();
    EXPECT_EQ(added(), 1u);
}

TEST_F(TrayIcon, ASizeEventOfAWindowThatIsNotMinimisedLeavesItWhereItIs) {
    rig.signIn();
    want(true);
    main().setWidth(main().Width() - 150);
    rig.settle();
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(main().Visible());
}

TEST_F(TrayIcon, ALateReportOfTheWayDownDoesNotSendTheWindowBack) {
    want(true);
    rig.signIn();
    send(513);
    ASSERT_TRUE(main().isVisible());
    minimise(); // as a busy window manager may report it still
    EXPECT_TRUE(main().Visible());
    EXPECT_EQ(main().WindowState(), 0);
    EXPECT_EQ(added(), 1u);
    QTest::qWait(300);
    minimise();
    EXPECT_FALSE(main().Visible());
    EXPECT_EQ(added(), 2u);
}

TEST_F(TrayIcon, ThePressOnTheIconBringsTheWindowBack) {
    for (const int message : {513, 130}) {
        rig.stop();
        want(true);
        rig.signIn();
        ASSERT_FALSE(main().isVisible());
        send(message);
        EXPECT_TRUE(main().isVisible()) << message;
        EXPECT_EQ(main().WindowState(), 0) << message;
    }
}

TEST_F(TrayIcon, OtherEventsOfTheIconBringNothing) {
    want(true);
    rig.signIn();
    for (const int message : {512, 514, 515, 516, 519, 129, 131, 0}) {
        send(message);
        EXPECT_FALSE(main().isVisible()) << message;
    }
}

TEST_F(TrayIcon, ThePressOnTheIconBringsACoveredWindowToTheFront) {
    want(true);
    rig.signIn();
    for (const int message : {513, 130}) {
        send(message);
        click(title::Tools);
        Form& tools = *rig.loaded(forms::Web);
        ASSERT_TRUE(tools.isActiveWindow());
        send(message);
        EXPECT_TRUE(main().isActiveWindow()) << message;
        EXPECT_TRUE(tools.isVisible());
    }
}

TEST_F(TrayIcon, OtherEventsOfTheIconLeaveACoveredWindowWhereItIs) {
    want(true);
    rig.signIn();
    send(513);
    click(title::Tools);
    for (const int message : {512, 514, 515, 516, 519, 0}) {
        send(message);
        EXPECT_FALSE(main().isActiveWindow()) << message;
    }
}

TEST_F(TrayIcon, ThePointerOnItsWayOverTheWindowDoesNotPullItToTheFront) {
    rig.signIn();
    click(title::Tools);
    for (const int x : {130, 513})
        pointer::move(main(), {x, 20});
    EXPECT_TRUE(rig.loaded(forms::Web)->isActiveWindow());
}

TEST_F(TrayIcon, TheCallOfASecondCopyBringsTheWindowOutOfTheTray) {
    want(true);
    rig.signIn();
    rig.lock->call();
    EXPECT_TRUE(main().isVisible() && main().isActiveWindow());
    EXPECT_EQ(main().WindowState(), 0);
}

TEST_F(TrayIcon, AMinimisedWindowComesBackUpright) {
    rig.signIn();
    want(true);
    minimise();
    send(513);
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(main().WindowState(), 0);
}

TEST_F(TrayIcon, AnEventOfTheIconDoesTheOtherWorkOfAMoveToo) {
    want(true);
    rig.signIn();
    label(pages::Loans).setForeColor(Red);
    send(513);
    EXPECT_EQ(label(pages::Loans).ForeColor(), Black);
    EXPECT_EQ(label(pages::Desktop).ForeColor(), Red);
}

TEST_F(TrayIcon, TwoMinimisesInARowAddTheSameIconOnceMore) {
    rig.signIn();
    want(true);
    minimise();
    send(513);
    QTest::qWait(300);
    minimise();
    ASSERT_EQ(added(), 2u);
    EXPECT_EQ(rig.tray->added[0], rig.tray->added[1]);
    EXPECT_FALSE(main().Visible());
    send(513);
    EXPECT_TRUE(main().isVisible());
}

TEST_F(TrayIcon, WithoutATrayTheWindowIsMinimisedAndNobodyIsLockedOut) {
    rig.tray->present = false;
    want(true);
    rig.signIn();
    EXPECT_EQ(added(), 0u);
    EXPECT_TRUE(rig.tray->told.empty());
    EXPECT_TRUE(main().Visible());
    EXPECT_EQ(main().WindowState(), 1);
    EXPECT_FALSE(rig.ended());
}

TEST_F(TrayIcon, TheProgramEndsWellOutOfATrayWindow) {
    want(true);
    rig.signIn();
    send(513);
    click(title::Close);
    expectEndedWell();
}

} // namespace
} // namespace qinghe::testing
