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

namespace qinghe {
namespace {

class WebPages : public testing::Test {
protected:
    void SetUp() override { deliverWebPages(folder.path()); }

    QString path(const QString& name) const { return folder.filePath("web/" + name); }
    QString page(const QString& name) const {
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

    QTemporaryDir folder;
};

TEST_F(WebPages, LeadNowhereButToFilesThatLieBesideThem) {
    for (const QString& name : webPageNames()) {
        const QStringList leads = references(page(name));
        EXPECT_GE(leads.size(), 3) << qPrintable(name);
        for (const QString& target : leads) {
            EXPECT_EQ(QFileInfo(target).fileName(), target) << qPrintable(name);
            EXPECT_TRUE(QFile::exists(path(target))) << qPrintable(name + " -> " + target);
        }
    }
}

TEST_F(WebPages, NeedNothingFromTheNet) {
    for (const QString& name : webPageNames()) {
        EXPECT_FALSE(page(name).contains("//")) << qPrintable(name);
        EXPECT_FALSE(page(name).contains("url(")) << qPrintable(name);
    }
}

TEST_F(WebPages, ReachEachOther) {
    for (const QString& name : webPageNames()) {
        for (const QString& other : webPageNames()) {
            EXPECT_TRUE(name == other || references(page(name)).contains(other)) << qPrintable(name + " -> " + other);
        }
    }
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
    document.setBaseUrl(QUrl::fromLocalFile(path("softs.htm")));
    document.setHtml(page("softs.htm"));
    EXPECT_EQ(document.find("日历").charFormat().foreground().color(), QColor(0x2F, 0x5E, 0x24));
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

    deliverWebPages(folder.path());
    EXPECT_TRUE(page("softs.htm").contains("软件工具"));
    EXPECT_EQ(QFileInfo(path("index.htm")).lastModified(), longAgo);
}

} // namespace
} // namespace qinghe
