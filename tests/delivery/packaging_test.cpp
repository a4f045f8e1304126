#include "delivery/icons.h"
#include "delivery/web_pages.h"
#include "support/folder_test.h"

#include <QImage>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// What the packages hold, and who must agree with whom.
class Packaging : public FolderTest {
protected:
    static QString project(const QString& name) {
        QFile file(QStringLiteral(QINGHE_PROJECT) + u'/' + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return QString::fromUtf8(file.readAll());
    }
};

TEST_F(Packaging, TheVersionStandsOnThePageOfTheProgramAndHeadsTheChanges) {
    const QString version = QStringLiteral(QINGHE_VERSION);
    deliverWebPages(dir.path());
    EXPECT_TRUE(QString::fromUtf8(bytes(u"web/adetail.htm"_s)).contains(u"版本 "_s + version));
    EXPECT_EQ(project(u"CHANGELOG.md"_s).section(u"\n## "_s, 1, 1).section(u'\n', 0, 0).section(u' ', 0, 0), version);
    EXPECT_TRUE(
        project(u"packaging/example.qinghe.qinghe.metainfo.xml.in"_s).contains(u"version=\"@PROJECT_VERSION@\""_s))
        << "and nowhere is it written by hand";
}

TEST_F(Packaging, TheEntryOfTheMenuStartsTheProgramByItsNameAndShowsItsIcon) {
    const QString entry = project(u"packaging/qinghe.desktop"_s);
    for (const QString& line : {u"Exec=qinghe"_s, u"Icon=qinghe"_s, u"Name[zh_CN]=青禾家庭记账本"_s})
        EXPECT_TRUE(entry.contains(u'\n' + line + u'\n')) << qPrintable(line);
    EXPECT_TRUE(
        project(u"packaging/example.qinghe.qinghe.metainfo.xml.in"_s).contains(u">qinghe.desktop</launchable>"_s));
}

TEST_F(Packaging, TheIconIsThereInEverySizeThatADesktopAsksFor) {
    deliverIcons(dir.path());
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        const QImage icon(at(u"%1x%1/apps/qinghe.png"_s.arg(size)));
        EXPECT_EQ(icon.size(), QSize(size, size));
        EXPECT_NE(icon.pixel(size / 2, size / 2), 0u) << size;
    }
}

} // namespace
} // namespace qinghe::testing
