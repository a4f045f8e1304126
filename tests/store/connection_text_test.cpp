#include "store/store_fixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

TEST(ProgramFile, AddsASeparatorUnlessTheFolderEndsInOne) {
    EXPECT_EQ(programFile(u"C:\\记账"_s, u"data.dll"_s), u"C:\\记账\\data.dll"_s);
    EXPECT_EQ(programFile(u"C:\\"_s, u"data.dll"_s), u"C:\\data.dll"_s);
    EXPECT_EQ(programFile(u"/home/记账"_s, u"音乐1.wav"_s), u"/home/记账\\音乐1.wav"_s);
}

TEST(ConnectionText, NamesProviderAndFile) {
    EXPECT_EQ(connectionText(u"C:\\记账"_s), u"provider = microsoft.jet.oledb.4.0;data source=C:\\记账\\data.dll "_s);
    EXPECT_EQ(connectionText(u"C:\\"_s), u"provider = microsoft.jet.oledb.4.0;data source=C:\\data.dll "_s);
}

TEST(DataSource, IsAllThatStandsBehindTheMarkButTheBlanksAtItsEnd) {
    const QString head = u"provider = microsoft.jet.oledb.4.0;data source="_s;
    EXPECT_EQ(dataSource(head + u"C:\\a\\data.dll"_s), u"C:\\a\\data.dll"_s);
    EXPECT_EQ(dataSource(head + u"C:\\a\\data.dll "_s), u"C:\\a\\data.dll"_s);
    EXPECT_EQ(dataSource(head + u"C:\\a;b='c' \\data source=d\\data.dll  "_s),
              u"C:\\a;b='c' \\data source=d\\data.dll"_s);
    EXPECT_EQ(dataSource(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=x"_s), u"x"_s);
}

TEST(DataSource, RefusesATextWithoutProviderOrFile) {
    for (const auto& text : {u""_s, u"data.dll"_s, u"data source=C:\\data.dll"_s, u"provider = other;data source=x"_s,
                             u"provider = microsoft.jet.oledb.4.0;data source= "_s,
                             u"provider = microsoft.jet.oledb.4.0"_s, u"microsoft.jet.oledb.4.0;data source=x"_s})
        EXPECT_EQ(errorOf([&] { dataSource(text); }, text), RuntimeError::ProviderUnknown) << text;
}

TEST(SystemPath, TurnsTheSeparatorBeforeTheFilesNameOnly) {
    EXPECT_EQ(systemPath(u"/home/记账\\data.dll"_s), u"/home/记账/data.dll"_s);
    EXPECT_EQ(systemPath(u"/home/a\\b\\data.dll"_s), u"/home/a\\b/data.dll"_s);
    EXPECT_EQ(systemPath(u"/home/a\\b/data.dll"_s), u"/home/a\\b/data.dll"_s);
    EXPECT_EQ(systemPath(u"/home/记账/data.dll"_s), u"/home/记账/data.dll"_s);
    EXPECT_EQ(systemPath(u"data.dll"_s), u"data.dll"_s);
}

TEST(SystemPath, LeavesTheNameOfAnExistingFileAlone) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"odd\\data.dll"_s);
    ASSERT_TRUE(QFile(name).open(QIODevice::WriteOnly));
    EXPECT_EQ(systemPath(name), name);
}

TEST(SystemPath, NeverMeansAFileThatIsLaidBesideTheFolder) {
    const QTemporaryDir parent;
    const QString folder = parent.filePath(u"青禾家庭记账本"_s);
    ASSERT_TRUE(QFile(folder + u"\\data.dll"_s).open(QIODevice::WriteOnly) && QDir().mkpath(folder));
    EXPECT_EQ(systemPath(folder + u"\\data.dll"_s), folder + u"/data.dll"_s) << "none is in it";
    ASSERT_TRUE(QFile(folder + u"/data.dll"_s).open(QIODevice::WriteOnly));
    EXPECT_EQ(systemPath(folder + u"\\data.dll"_s), folder + u"/data.dll"_s);
}

TEST(ConnectionText, LeadsToTheFileInFoldersWithOddNames) {
    const QTemporaryDir parent;
    for (const auto& name : {u"青禾家庭记账本"_s, u"a;b"_s, u"it's"_s, u"a\\b"_s, u"末尾\\"_s, u"两 个 blanks "_s,
                             u"data source=x"_s, u"100%#?&file:"_s, u"\"quoted\""_s}) {
        const QString folder = parent.filePath(name);
        ASSERT_TRUE(QDir().mkpath(folder));
        createStore(folder + u"/data.dll"_s);
        const QString text = connectionText(folder);
        for (const QString& same : {text, text.chopped(1)}) {
            Store store;
            Adodc control(store, u"Adodc1"_s, same);
            EXPECT_EQ(control.open(u"yhb"_s).recordCount(), 0) << name;
            EXPECT_EQ(store.path(), folder + u"/data.dll"_s);
        }
    }
}

TEST(SystemPath, FindsTheFileInAFolderWhoseNameEndsInTheSeparator) {
    const QTemporaryDir parent;
    const QString folder = parent.filePath(u"账本\\"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString named = programFile(folder, u"data.dll"_s);
    EXPECT_EQ(systemPath(named), parent.filePath(u"账本/data.dll"_s)) << "none is there";
    ASSERT_TRUE(QFile(folder + u"/data.dll"_s).open(QIODevice::WriteOnly));
    EXPECT_EQ(systemPath(named), folder + u"/data.dll"_s);
}

TEST(SystemPath, MeansTheFileInUseWhereTwoFoldersWouldDo) {
    const QTemporaryDir parent;
    const QString plain = parent.filePath(u"账本"_s), odd = plain + u'\\';
    for (const QString& folder : {plain, odd}) {
        ASSERT_TRUE(QDir().mkpath(folder));
        createStore(folder + u"/data.dll"_s);
    }
    for (const QString& folder : {plain, odd}) {
        Store store;
        store.use(folder + u"/data.dll"_s);
        Adodc control(store, u"Adodc1"_s, connectionText(folder));
        control.open(u"yhb"_s);
        EXPECT_EQ(store.path(), folder + u"/data.dll"_s);
    }
}

} // namespace
} // namespace qinghe
