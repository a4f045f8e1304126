#include "backup_rig.h"
#include "store/migrations.h"

#include <QDir>
#include <QFileInfo>

// Backups of earlier programs are taken, those of later ones are not.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class RestoredVersionTest : public BackupTest {
protected:
    /// The data file as it is, under another name and with this number.
    void writeBackup(const QString& name, char version) {
        QByteArray content = bytes(u"data.dll"_s);
        content.replace(60, 4, QByteArray("\0\0\0", 3) + version);
        write(name, content);
    }
};

TEST_F(RestoredVersionTest, ABackupOfEveryVersionThatWasDeliveredIsTaken) {
    const QDir versions(QFileInfo(QString::fromUtf8(__FILE__)).dir().filePath(u"../store/versions"_s));
    for (int version = FirstVersion; version == FirstVersion || version < CurrentVersion; ++version) {
        const QString backup = u"old%1.dat"_s.arg(version);
        ASSERT_TRUE(QFile::copy(versions.filePath(u"%1.data"_s.arg(version)), rig.file(backup)));
        restoreFrom(backup);
        EXPECT_EQ(rig.lastMessage(), Restored);
        rig.click(rig.at(pages::Budget));
        EXPECT_EQ(rig.at(budget::Grid).TextMatrix(1, 2), u"旅游");
        EXPECT_EQ(rig.sql(u"select 用户名 from yhb"_s), (QStringList{u"小禾"_s, u"老周"_s}));
        EXPECT_FALSE(rig.ended());
    }
}

TEST_F(RestoredVersionTest, ABackupOfALaterProgramIsRefusedAndTheLedgerStays) {
    rig.sql(u"insert into ysb(预算项目) values('米')"_s);
    writeBackup(u"later.dat"_s, CurrentVersion + 1);
    const QByteArray before = bytes(u"data.dll"_s);
    restoreFrom(u"later.dat"_s);
    expectError(RuntimeError::StoreFailure, u"later.dat"_s);
    expectError(RuntimeError::StoreFailure, u"请安装新版的程序"_s);
    EXPECT_EQ(texts().contains(u"还原完毕。"_s), false);
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
    rig.stop();
    rig.signIn();
    EXPECT_EQ(rig.sql(u"select 预算项目 from ysb"_s), QStringList{u"米"_s});
}

TEST_F(RestoredVersionTest, ABackupWithADamagedNumberIsRefusedAndTheLedgerStays) {
    QByteArray content = bytes(u"data.dll"_s);
    const QByteArray before = content;
    write(u"bad.dat"_s, content.replace(60, 4, "\xff\xff\xff\xfe"));
    restoreFrom(u"bad.dat"_s);
    expectError(RuntimeError::StoreFailure, u"bad.dat"_s);
    expectError(RuntimeError::StoreFailure, u"备份文件"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

} // namespace
} // namespace qinghe::testing
