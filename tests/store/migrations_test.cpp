#include "store/connection.h"
#include "store/header_toggle.h"
#include "store/migrations.h"
#include "store/store_fixture.h"
#include "support/ordinary_user.h"

#include <QDir>
#include <QFile>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

void addShop(Connection& connection) {
    connection.run("ALTER TABLE zcb ADD COLUMN 商店 TEXT");
    connection.run("UPDATE zcb SET 商店 = '不知道'");
}
void addCity(Connection& connection) {
    connection.run("ALTER TABLE zcb ADD COLUMN 城市 TEXT");
}
void failHalfWay(Connection& connection) {
    addCity(connection);
    connection.run("UPDATE zcb SET 没有这一栏 = 1");
}
void dieHalfWay(Connection& connection) {
    connection.run("PRAGMA cache_size = 1"); // pages go to the file before the commit
    connection.run("UPDATE zcb SET 备注 = 备注 || '改'");
    _exit(7);
}

class Migrating : public StoreTest {
protected:
    Migrating() {
        useVersion(FirstVersion);
        OtherProgram(path()).run(u"DELETE FROM zcb; INSERT INTO zcb(项目,备注) WITH RECURSIVE n(i) AS "
                                 "(SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<2000) "
                                 "SELECT '第 '||i||' 项', '备注'||i FROM n"_s);
    }

    void bring(std::initializer_list<Migration> steps, Patience patience = UsualPatience) {
        Connection connection(path(), patience);
        bringUpToDate(connection, steps);
    }
    QString asked(const QString& sql, const QString& name = u"data.dll"_s) const {
        return OtherProgram(folder.filePath(name)).row(sql);
    }
    QString version(const QString& name = u"data.dll"_s) const { return asked(u"PRAGMA user_version"_s, name); }
    QString content(const QString& name = u"data.dll"_s) const {
        return asked(u"SELECT count(*)||' '||min(项目)||' '||sum(length(备注)) FROM zcb"_s, name);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QByteArray bytesOf(const QString& name) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    bool hasColumn(const QString& name) const {
        return asked(u"SELECT count(*) FROM pragma_table_info('zcb') WHERE name='%1'"_s.arg(name)) == u"1"_s;
    }
};

const QStringList Alone{u"data.dll"_s}, WithCopy{u"data.dll"_s, u"data.版本1.dat"_s};

TEST_F(Migrating, GoesThroughAllSteps) {
    bring({{2, addShop}, {3, addCity}});
    EXPECT_EQ(version(), u"3"_s);
    EXPECT_EQ(asked(u"SELECT DISTINCT 商店 FROM zcb"_s), u"不知道"_s);
    EXPECT_TRUE(hasColumn(u"城市"_s));
    EXPECT_EQ(asked(u"PRAGMA integrity_check"_s), u"ok"_s);
    EXPECT_EQ(fileBytes().mid(1, 2), QByteArray("\x01\x00", 2));
}

TEST_F(Migrating, BeginsWhereTheFileStands) {
    bring({{2, addShop}});
    bring({{2, addShop}, {3, addCity}}); // the first step would fail if it were run again
    EXPECT_EQ(version(), u"3"_s);
    EXPECT_EQ(files(), (QStringList{u"data.dll"_s, u"data.版本1.dat"_s, u"data.版本2.dat"_s}));
    EXPECT_EQ(version(u"data.版本2.dat"_s), u"2"_s);
}

TEST_F(Migrating, LeavesAFileAloneThatIsUpToDate) {
    bring({{2, addShop}});
    const QByteArray before = fileBytes();
    bring({{2, addShop}});
    EXPECT_EQ(fileBytes(), before);
    EXPECT_EQ(files(), WithCopy);
}

TEST_F(Migrating, KeepsACopyOfTheFileAsItWasForItsOwnerAlone) {
    const QString before = content();
    bring({{2, addShop}});
    EXPECT_EQ(files(), WithCopy);
    EXPECT_EQ(content(u"data.版本1.dat"_s), before);
    EXPECT_EQ(version(u"data.版本1.dat"_s), u"0"_s);
    EXPECT_EQ(asked(u"PRAGMA integrity_check"_s, u"data.版本1.dat"_s), u"ok"_s);
    EXPECT_EQ(bytesOf(u"data.版本1.dat"_s).mid(1, 2), QByteArray("\x01\x00", 2));
    EXPECT_EQ(QFile::permissions(folder.filePath(u"data.版本1.dat"_s)) & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(Migrating, ACopyTakesTheFilesPlaceAgain) {
    const QString before = content();
    bring({{2, addShop}});
    setFileBytes(bytesOf(u"data.版本1.dat"_s) + 'x'); // as a restore leaves it
    EXPECT_EQ(content(), before);
    EXPECT_EQ(control.open(u"zcb"_s).recordCount(), 2000);
    store.close();
    bring({{2, addShop}});
    EXPECT_EQ(version(), u"2"_s);
}

TEST_F(Migrating, NeverWritesOverAnotherFileThatBearsTheName) {
    QFile other(folder.filePath(u"data.版本1.dat"_s));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("of an earlier year");
    other.close();
    const QString before = content();
    bring({{2, addShop}});
    EXPECT_EQ(bytesOf(u"data.版本1.dat"_s), "of an earlier year");
    EXPECT_EQ(content(u"data.版本1-2.dat"_s), before);
    EXPECT_EQ(files().size(), 3);
}

TEST_F(Migrating, AStepThatFailsUndoesAllOfThemAndTheCopyStands) {
    const QByteArray before = fileBytes();
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_NE(errorOf([&] { bring({{2, addShop}, {3, failHalfWay}}); }, u"没有这一栏"_s), 0);
        EXPECT_EQ(fileBytes(), before);
        EXPECT_EQ(files(), WithCopy) << "one of them, however often it is tried";
    }
    EXPECT_EQ(control.open(u"zcb"_s).recordCount(), 2000);
}

TEST_F(Migrating, AStepThatIsInterruptedIsUndoneByTheNextOpeningAndTheCopyStands) {
    const QString before = content();
    const pid_t child = fork();
    if (child == 0)
        bring({{2, addShop}, {3, dieHalfWay}});
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(WEXITSTATUS(status), 7);
    ASSERT_TRUE(files().contains(u"data.dll-journal"_s)) << "it was in the midst of it";
    EXPECT_EQ(content(u"data.版本1.dat"_s), before);
    bring({{2, addCity}});
    EXPECT_EQ(content(), before);
    EXPECT_FALSE(hasColumn(u"商店"_s));
    EXPECT_TRUE(hasColumn(u"城市"_s));
    EXPECT_EQ(files(), WithCopy);
}

TEST_F(Migrating, ACopyThatWasNotFinishedIsMadeAnew) {
    for (const auto& name : {u"data.dll.unfinished"_s, u"data.dll.unfinished-journal"_s}) {
        QFile left(folder.filePath(name));
        ASSERT_TRUE(left.open(QIODevice::WriteOnly));
        left.write("half");
    }
    const QString before = content();
    bring({{2, addShop}});
    EXPECT_EQ(files(), WithCopy);
    EXPECT_EQ(content(u"data.版本1.dat"_s), before);
}

TEST_F(Migrating, WithoutRoomForACopyNothingIsDone) {
    const testing::AsOrdinaryUser user({folder.path(), path()});
    const QByteArray before = fileBytes();
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(errorOf([&] { bring({{2, addShop}}); }, u"副本"_s), RuntimeError::PathFileAccess);
    EXPECT_EQ(fileBytes(), before);
    EXPECT_EQ(files(), Alone);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
}

TEST_F(Migrating, AnotherProgramInTheMidstOfWritingIsWaitedForInVain) {
    OtherProgram other(path());
    other.run(u"BEGIN IMMEDIATE"_s);
    EXPECT_EQ(errorOf([&] { bring({{2, addShop}}, Patience(0)); }, u"占用"_s), RuntimeError::FileLocked);
    other.run(u"ROLLBACK"_s);
    EXPECT_EQ(version(), u"0"_s);
    bring({{2, addShop}});
    EXPECT_EQ(version(), u"2"_s);
}

class StrangeVersion : public StoreTest {
protected:
    void number(int number) { OtherProgram(path()).run(u"PRAGMA user_version = %1"_s.arg(number)); }
    /// Refused by the store and by the toggle of the header, with these words, and not a byte is changed.
    void refused(const QString& words) {
        for (const bool ended : {false, true}) {
            if (ended)
                spoilHeader(path());
            const QByteArray before = fileBytes();
            EXPECT_EQ(errorOf([&] { healHeader(path()); }, words), RuntimeError::StoreFailure);
            EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, ended ? QString() : words), RuntimeError::StoreFailure);
            EXPECT_EQ(fileBytes(), before);
        }
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"data.dll"_s));
    }
};

TEST_F(StrangeVersion, OfALaterProgramIsRefusedInPlainWords) {
    number(CurrentVersion + 1);
    refused(u"请安装新版的程序"_s);
    EXPECT_NE(errorOf([&] { requireKnownVersion(path()); }, u"第 %1 版"_s.arg(CurrentVersion + 1)), 0);
    EXPECT_NE(errorOf([&] { requireKnownVersion(path()); }, u"第 %1 版"_s.arg(CurrentVersion)), 0);
}

TEST_F(StrangeVersion, ThatIsNoneIsToldAsDamage) {
    for (const int damaged : {-1, -2147483647, 10000, 0x53514c69}) {
        number(damaged);
        refused(u"版本号是 %1"_s.arg(damaged));
        setFileBytes(fileBytes().replace(1, 2, QByteArray("\x01\x00", 2)));
    }
}

TEST_F(StrangeVersion, IsNotSoughtInWhatIsNoDataFile) {
    setFileBytes(QByteArray("a letter \xff\xff\xff\xff ").repeated(20));
    EXPECT_EQ(errorOf([&] { requireKnownVersion(path()); }), 0);
    EXPECT_EQ(errorOf([&] { requireKnownVersion(folder.path()); }), 0);
    EXPECT_EQ(errorOf([&] { requireKnownVersion(folder.filePath(u"no.dll"_s)); }), 0);
}

TEST_F(StrangeVersion, OfANewFileIsTheCurrentOne) {
    EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA user_version"_s), QString::number(CurrentVersion));
}

TEST(Versions, RiseFromStepToStep) {
    constexpr Migration steps[]{{2, addShop}, {5, addCity}};
    static_assert(versionAfter(steps) == 5);
    EXPECT_EQ(versionAfter({}), FirstVersion);
    int before = FirstVersion;
    for (const Migration& step : Migrations) {
        EXPECT_GT(step.to, before);
        before = step.to;
    }
}

} // namespace
} // namespace qinghe
