#include "platform/desktop_launcher.h"
#include "platform/desktop_tray.h"
#include "platform/instance_lock.h"
#include "platform/services.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
int lockFailure = 0; ///< with which the system refuses locks; 0: it gives them
}

/// Stands before the system's own in this program.
extern "C" int flock(int file, int operation) {
    errno = lockFailure;
    return lockFailure ? -1 : static_cast<int>(syscall(SYS_flock, file, operation));
}

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

TEST(FolderLock, OnlyOneThatIsHeldTellsOfASecondCopy) {
    const QTemporaryDir folder;
    const auto lock = folderLock(folder.path());
    for (const int failure : {ENOLCK, EINVAL, EOPNOTSUPP, EIO, EWOULDBLOCK}) {
        lockFailure = failure;
        EXPECT_EQ(lock->tryTake(), failure != EWOULDBLOCK) << failure;
    }
    lockFailure = 0;
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

TEST(FolderLock, ItsHolderHearsTheCallOfAnotherCopyOfTheSameFolderAlone) {
    const QTemporaryDir folder, other;
    handlers::reset();
    int calls = 0;
    auto first = folderLock(folder.path());
    const auto second = folderLock(folder.path()), stranger = folderLock(other.path());
    second->callHolder(); // nobody is there yet
    first->answerCalls([&calls] { ++calls; });
    ASSERT_TRUE(first->tryTake());
    ASSERT_FALSE(second->tryTake());
    stranger->callHolder();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 0);
    second->callHolder();
    second->callHolder();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
    first.reset();
    second->callHolder(); // nobody is there any more
}

/// A machine whose programs and lists of programs lie in a folder of the test.
class Browsers : public ::testing::Test {
protected:
    Browsers() {
        qputenv("PATH", QFile::encodeName(folder.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(folder.path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
        qunsetenv("BROWSER");
        QDir(folder.path()).mkdir(u"applications"_s);
    }
    ~Browsers() override {
        for (std::size_t i = 0; i < std::size(Names); ++i)
            before[i].isNull() ? qunsetenv(Names[i]) : qputenv(Names[i], before[i]);
    }
    void write(const QString& name, const QByteArray& content, QFile::Permissions more = {}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(file.permissions() | more);
    }

    static constexpr const char* Names[] = {"PATH", "XDG_DATA_DIRS", "XDG_DATA_HOME", "BROWSER"};
    const std::array<QByteArray, 4> before{qgetenv(Names[0]), qgetenv(Names[1]), qgetenv(Names[2]), qgetenv(Names[3])};
    QTemporaryDir folder;
};

TEST_F(Browsers, WhatOpensFilesForADesktopIsNone) {
    write(u"xdg-open"_s, "#!/bin/sh\n", QFile::ExeOwner);
    write(u"applications/mimeinfo.cache"_s, "[MIME Cache]\ntext/plain=editor.desktop;\nx-scheme-handler/http=\n");
    EXPECT_FALSE(hasBrowser());
}

TEST_F(Browsers, OneIsKnownByTheListOfProgramsOrByItsCommand) {
    write(u"applications/mimeinfo.cache"_s, "[MIME Cache]\nx-scheme-handler/http=a.desktop;\n");
    EXPECT_TRUE(hasBrowser());
    QFile::remove(folder.filePath(u"applications/mimeinfo.cache"_s));
    EXPECT_FALSE(hasBrowser());
    write(u"x-www-browser"_s, "#!/bin/sh\n", QFile::ExeOwner);
    EXPECT_TRUE(hasBrowser());
}

TEST(DesktopServices, AreAllThere) {
    const Services services = desktopServices(u"/a/book"_s);
    EXPECT_TRUE(services.clock && services.messages && services.tray && services.launcher && services.instance &&
                services.background && services.process);
    EXPECT_EQ(services.appPath, u"/a/book"_s);
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

TEST(DesktopTray, ABalloonBringsNothingByItself) {
    DesktopTray tray;
    tray.tell(u"没有图标"_s); // and so no balloon
    QList<int> messages;
    tray.add(productName(), [&](int message) { messages << message; });
    tray.tell(u"在这里"_s);
    emit tray.icon()->messageClicked(); // as for the right button on the icon too
    EXPECT_EQ(messages, QList<int>{});
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
