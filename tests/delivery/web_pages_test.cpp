#include "delivery/web_pages.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <gtest/gtest.h>
#include <optional>

namespace qinghe {
namespace {

class WebPages : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder.emplace();
        deliverWebPages(folder->path());
    }
    static void TearDownTestSuite() { folder.reset(); }

    static QString path(const QString& name) { return folder->filePath("web/" + name); }
    static QString page(const QString& name) {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return QString::fromUtf8(file.readAll());
    }
    static QStringList references(const QString& html) {
        static const QRegularExpression attribute("(?:href|src)=\"([^\"]*)\"");
        QStringList found;
        for (const QRegularExpressionMatch& match : attribute.globalMatch(html)) {
            found << match.captured(1);
        }
        return found;
    }

    static std::optional<QTemporaryDir> folder; ///< they are made once, which takes longer than to look at them
};
std::optional<QTemporaryDir> WebPages::folder;

TEST_F(WebPages, LeadNowhereButToFilesThatLieBesideThem) {
    for (const QString& name : webPageNames()) {
        const QStringList leads = references(page(name));
        EXPECT_GE(leads.size(), 3) << qPrintable(name);
        for (const QString& target : leads) {
            const QString file = target.section('#', 0, 0), anchor = target.section('#', 1);
            EXPECT_EQ(QFileInfo(file).fileName(), file) << qPrintable(name);
            EXPECT_TRUE(QFile::exists(path(file))) << qPrintable(name + " -> " + target);
            EXPECT_TRUE(anchor.isEmpty() || page(file).contains("<a name=\"" + anchor + '"')) << qPrintable(target);
        }
    }
}

TEST_F(WebPages, NeedNothingFromTheNet) {
    for (const QString& name : webPageNames()) {
        EXPECT_FALSE(page(name).contains("//")) << qPrintable(name);
        EXPECT_FALSE(page(name).contains("url(")) << qPrintable(name);
    }
}

TEST_F(WebPages, ReachEachOtherFromTheFirstThree) {
    const QStringList first{"index.htm", "adetail.htm", "softs.htm"};
    for (const QString& name : first) {
        for (const QString& other : first) {
            EXPECT_TRUE(name == other || references(page(name)).contains(other)) << qPrintable(name + " -> " + other);
        }
    }
}

TEST_F(WebPages, OfTheManualLeadOneOnOneBackAndToTheContents) {
    const QStringList manual = webPageNames().mid(2);
    ASSERT_EQ(manual.front(), "softs.htm");
    for (qsizetype i = 0; i < manual.size(); ++i) {
        const QStringList leads = references(page(manual[i]));
        for (const qsizetype to : {i - 1, i + 1, qsizetype(0)}) {
            if (to >= 0 && to < manual.size() && to != i) {
                EXPECT_GE(leads.count(manual[to]), 2) << qPrintable(manual[i] + " -> " + manual[to]);
            }
        }
    }
}

TEST_F(WebPages, OfTheManualHoldWhatItsMarkdownSays) {
    const QString tools = page("tools.htm");
    for (const char* part : {"<title>日历和计算器 - 青禾家庭记账本</title>", "<h2><a name=\"日历\"></a>日历</h2>",
                             "<img src=\"date.png\" width=\"720\" alt=\"日历\">", "<b>双击</b>", "<code>5月3日</code>",
                             "<a href=\"saving.htm\">", "<td><b>写法</b></td>", "</ul>"}) {
        EXPECT_TRUE(tools.contains(part)) << part << qPrintable(tools);
    }
    EXPECT_TRUE(page("questions.htm").contains("<pre>printf QL | dd "));
    EXPECT_TRUE(page("month.htm").contains("<a href=\"desktop.htm#"));
}

TEST_F(WebPages, ShowTheirTitleAsRichText) {
    for (const auto& [name, title] : {std::pair("softs.htm", "软件工具"), std::pair("adetail.htm", "软件介绍"),
                                      std::pair("index.htm", "青禾家庭记账本")}) {
        QTextDocument document;
        document.setHtml(page(name));
        EXPECT_TRUE(document.toPlainText().contains(title)) << name;
        EXPECT_TRUE(document.metaInformation(QTextDocument::DocumentTitle).contains(title)) << name;
    }
}

TEST_F(WebPages, TakeTheirStyleFromTheFileBesideThem) {
    QTextDocument document;
    document.setBaseUrl(QUrl::fromLocalFile(path("tools.htm")));
    document.setHtml(page("tools.htm"));
    EXPECT_EQ(document.find("日历", document.find("日历和计算器")).charFormat().foreground().color(),
              QColor(0x2F, 0x5E, 0x24));
}

TEST_F(WebPages, BringThePictureThatTheyShow) {
    EXPECT_EQ(QImage(path("qinghe.png")).size(), QSize(128, 128));
}

TEST_F(WebPages, AreRenewedWhenTheyDifferAndLeftAloneOtherwise) {
    QFile changed(path("softs.htm"));
    ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
    changed.write("old");
    changed.close();
    QFile kept(path("index.htm"));
    ASSERT_TRUE(kept.open(QIODevice::ReadWrite));
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    ASSERT_TRUE(kept.setFileTime(longAgo, QFileDevice::FileModificationTime));
    kept.close();

    deliverWebPages(folder->path());
    EXPECT_TRUE(page("softs.htm").contains("软件工具"));
    EXPECT_EQ(QFileInfo(path("index.htm")).lastModified(), longAgo);
}

} // namespace
} // namespace qinghe
