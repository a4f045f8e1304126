#include "controls/web_browser.h"
#include "platform/desktop_tray.h"
#include "platform/instance_lock.h"
#include "platform/services.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QFile>
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
    tray.add({}, [](int) {});
    tray.add({}, [](int) {});
    EXPECT_EQ(TrayData{}.cbSize, 88);
    EXPECT_EQ(TrayData{}.uFlags, 7u);
    EXPECT_EQ(TrayData{}.uCallbackMessage, 512u);
}

TEST(DesktopTray, OnlyALeftPressOnTheIconIsTheLeftButtonsMessage) {
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Trigger), 513);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::DoubleClick), 515);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Context), 516);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::MiddleClick), 519);
    EXPECT_EQ(trayMessage(QSystemTrayIcon::Unknown), 0);
}

class WebBrowserTest : public GuardTest {
protected:
    WebBrowserTest() {
        write(u"softs.htm"_s, "<title>工具</title><p>软件</p><a href='adetail.htm'>更多</a>");
        write(u"adetail.htm"_s, "<p>介绍</p>");
        browser.Leave = [this](const QUrl& page) { left << page; };
        browser.navigate(page(u"softs.htm"_s));
    }
    void write(const QString& name, const QByteArray& html) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<meta charset='utf-8'>" + html);
    }
    QUrl page(const QString& name) const { return QUrl::fromLocalFile(folder.filePath(name)); }

    QTemporaryDir folder;
    WebBrowser browser{nullptr, u"Web1"_s};
    QList<QUrl> left;
};

TEST_F(WebBrowserTest, ShowsALocalPage) {
    EXPECT_TRUE(browser.toPlainText().startsWith(u"软件"_s)) << browser.toPlainText().toStdString();
}

TEST_F(WebBrowserTest, FollowsALinkInsideTheFolder) {
    emit browser.anchorClicked(QUrl(u"adetail.htm"_s));
    EXPECT_EQ(browser.toPlainText(), u"介绍"_s);
    EXPECT_TRUE(left.isEmpty());
}

TEST_F(WebBrowserTest, ALinkThatLeavesTheFolderIsHandedOn) {
    const QUrl outside = QUrl::fromLocalFile(QDir::cleanPath(folder.filePath(u"../other.htm"_s)));
    emit browser.anchorClicked(QUrl(u"http://qinghe.example/"_s));
    emit browser.anchorClicked(QUrl(u"../other.htm"_s));
    EXPECT_EQ(left, (QList<QUrl>{QUrl(u"http://qinghe.example/"_s), outside}));
    EXPECT_TRUE(browser.toPlainText().startsWith(u"软件"_s));
}

} // namespace
} // namespace qinghe::testing
