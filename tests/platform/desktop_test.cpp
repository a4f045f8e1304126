#include "platform/desktop_tray.h"
#include "platform/instance_lock.h"
#include "platform/services.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QTemporaryDir>

namespace qinghe::testing {
namespace {

TEST(FolderLock, OneFolderIsLockedOnce) {
    const QTemporaryDir folder, other;
    const auto first = folderLock(folder.path()), second = folderLock(folder.path()), third = folderLock(other.path());
    EXPECT_TRUE(first->tryTake());
    EXPECT_FALSE(second->tryTake());
    EXPECT_TRUE(first->tryTake());
    EXPECT_TRUE(third->tryTake());
}

TEST(FolderLock, IsFreeAgainWhenItsHolderIsGone) {
    const QTemporaryDir folder;
    auto first = folderLock(folder.path());
    const auto second = folderLock(folder.path());
    EXPECT_TRUE(first->tryTake());
    first.reset();
    EXPECT_TRUE(second->tryTake());
}

TEST(FolderLock, LeavesNothingInTheFolder) {
    const QTemporaryDir folder;
    const auto lock = folderLock(folder.path());
    lock->tryTake();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(DesktopServices, AreAllThere) {
    const Services services = desktopServices();
    EXPECT_TRUE(services.clock && services.messages && services.tray && services.launcher && services.instance &&
                services.process);
    EXPECT_EQ(services.appPath, QCoreApplication::applicationDirPath());
    EXPECT_LT(std::abs(services.clock->now().secsTo(QDateTime::currentDateTime())), 5);
    EXPECT_EQ(services.clock->today(), services.clock->now().date());
}

TEST(DesktopTray, AddingTheIconOnceMoreDoesNoHarm) {
    DesktopTray tray;
    tray.add(productName(), [](int) {});
    const QSystemTrayIcon* const icon = tray.icon();
    tray.add(productName(), [](int) {});
    EXPECT_EQ(tray.icon(), icon);
    EXPECT_TRUE(icon->isVisible());
}

TEST(DesktopTray, TheIconsTipIsTheOneGiven) {
    DesktopTray tray;
    tray.add(productName(), [](int) {});
    EXPECT_EQ(tray.icon()->toolTip(), u"青禾家庭记账本"_s);
}

TEST(DesktopTray, AnEventOfTheIconArrivesAtTheLastThatAddedIt) {
    DesktopTray tray;
    QList<int> first, last;
    tray.add(productName(), [&](int message) { first << message; });
    tray.add(productName(), [&](int message) { last << message; });
    emit tray.icon()->activated(QSystemTrayIcon::Trigger);
    EXPECT_EQ(first, QList<int>{});
    EXPECT_EQ(last, QList<int>{513});
}

TEST(DesktopTray, OnlyALeftPressOnTheIconIsTheLeftButtonsMessage) {
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Trigger), 513);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::DoubleClick), 515);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Context), 516);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::MiddleClick), 519);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Unknown), 0);
}

} // namespace
} // namespace qinghe::testing
