#include "controls/web_browser.h"
#include "support/guard_fixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

} // namespace
} // namespace qinghe::testing
