#include "core_fixture.h"
#include "store/safety_folder.h"

#include <sys/stat.h>
#include <unistd.h>

// Who else on this machine may read what lies beside the program.

namespace qinghe::testing {
namespace {

class OwnFiles : public CoreTest {
protected:
    unsigned rights(const QString& name) const {
        struct stat info = {};
        stat(native(name).constData(), &info);
        return info.st_mode & 0777;
    }
    void loosen(const QString& name) const {
        const bool folder = QFileInfo(rig.file(name)).isDir();
        ASSERT_EQ(chmod(native(name).constData(), folder ? 0775 : 0664), 0) << name.toStdString();
    }
    void putLoose(const QString& name, const QByteArray& content = "x") const {
        write(name, content);
        loosen(name);
    }
    QByteArray native(const QString& name) const { return QFile::encodeName(rig.file(name)); }
};

TEST_F(OwnFiles, AreClosedToOtherAccountsAtTheStart) {
    const QString safety = QFileInfo(safetyFolderOf(rig.dataFile())).fileName();
    for (const QString& folder : {u"mydiary"_s, safety})
        ASSERT_TRUE(QDir(rig.folder()).mkdir(folder));
    const QStringList files{u"data.dll"_s,         u"pf.jpg"_s,           u"备份.dat"_s,
                            u"mydiary/春耕.dll"_s, safety + u"/甲.dat"_s, u"没有保存的内容 2024-11-18 203608.txt"_s};
    for (const QString& file : files)
        putLoose(file, bytes(u"data.dll"_s));
    for (const QString& folder : {u"mydiary"_s, safety, u"."_s})
        loosen(folder);
    rig.start();
    for (const QString& file : files)
        EXPECT_EQ(rights(file), 0600U) << file.toStdString();
    for (const QString& folder : {u"mydiary"_s, safety, u"."_s})
        EXPECT_EQ(rights(folder), 0700U) << folder.toStdString();
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(OwnFiles, AFolderThatHoldsOtherThingsStaysAsItsOwnerSharesIt) {
    putLoose(u"周末的照片.png"_s);
    putLoose(u"游戏.dat"_s);
    loosen(u"data.dll"_s);
    loosen(u"."_s);
    rig.start();
    EXPECT_EQ(rights(u"."_s), 0775U);
    EXPECT_EQ(rights(u"周末的照片.png"_s), 0664U);
    EXPECT_EQ(rights(u"游戏.dat"_s), 0664U); // no book
    EXPECT_EQ(rights(u"data.dll"_s), 0600U);
}

TEST_F(OwnFiles, WhatALinkLeadsToStaysAsItIs) {
    QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(u"a.dll"_s);
    ASSERT_TRUE(QFile::copy(rig.dataFile(), target));
    ASSERT_EQ(chmod(QFile::encodeName(target).constData(), 0664), 0);
    ASSERT_EQ(chmod(QFile::encodeName(elsewhere.path()).constData(), 0775), 0);
    ASSERT_TRUE(QFile::link(elsewhere.path(), rig.file(u"mydiary"_s)));
    ASSERT_TRUE(QFile::link(target, rig.file(u"备份.dat"_s)));
    ASSERT_EQ(link(QFile::encodeName(target).constData(), native(u"pf.jpg"_s).constData()), 0);
    rig.start();
    EXPECT_EQ(QFile::permissions(target) & QFile::ReadOther, QFile::ReadOther);
    EXPECT_EQ(QFile::permissions(elsewhere.path()) & QFile::ReadOther, QFile::ReadOther);
}

} // namespace
} // namespace qinghe::testing
