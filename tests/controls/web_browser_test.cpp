#include "controls/web_browser.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>

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

TEST_F(WebBrowserTest, FollowsALinkToAPlaceInsideAPage) {
    write(u"long.htm"_s, QByteArray("<p>行</p>").repeated(200) + "<h2><a name='末段-2'></a>末段</h2>" +
                             QByteArray("<p>行</p>").repeated(200));
    browser.resize(400, 200);
    browser.show();
    emit browser.anchorClicked(QUrl(u"long.htm#末段-2"_s));
    EXPECT_EQ(browser.cursorForPosition(QPoint(100, 20)).block().text(), u"末段"_s);
}

TEST_F(WebBrowserTest, APictureThatIsShownSmallerIsSmooth) {
    QImage stripes(200, 40, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x)
        for (int y = 0; y < stripes.height(); ++y)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    stripes.save(folder.filePath(u"stripes.png"_s));
    write(u"picture.htm"_s, "<p><img src='stripes.png' width='150'></p>");
    browser.navigate(page(u"picture.htm"_s));
    browser.resize(400, 200);
    const QImage shown = browser.grab().toImage();
    int grey = 0;
    for (int x = 20; x < 170; ++x)
        if (const int level = qGray(shown.pixel(x, 40)); level > 40 && level < 215)
            ++grey;
    EXPECT_GT(grey, 60) << "of 150 points, each from one and a third of the picture";
}

} // namespace
} // namespace qinghe::testing
