#include "controls/web_browser.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace qinghe::testing {
namespace {

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

TEST_F(WebBrowserTest, WhatLeadsOutOfTheFolderByALinkOrIsNoPlainFileIsNotShown) {
    QTemporaryDir elsewhere;
    QFile secret(elsewhere.filePath(u"secret.htm"_s));
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    secret.write("secret");
    secret.close();
    QFile::link(secret.fileName(), folder.filePath(u"link.htm"_s));
    QFile::link(elsewhere.path(), folder.filePath(u"below"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.filePath(u"pipe.htm"_s)).constData(), 0600), 0);
    for (const QString& name : {u"link.htm"_s, u"below/secret.htm"_s, u"pipe.htm"_s, u"%2e%2e/other.htm"_s}) {
        emit browser.anchorClicked(QUrl(name));
        EXPECT_TRUE(browser.toPlainText().startsWith(u"软件"_s)) << name.toStdString();
    }
    EXPECT_EQ(left.size(), 4);
    browser.navigate(page(u"link.htm"_s));
    EXPECT_FALSE(browser.toPlainText().contains(u"secret"_s));
}

} // namespace
} // namespace qinghe::testing
