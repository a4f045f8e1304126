#include "delivery/first_data.h"
#include "delivery/pictures.h"
#include "runtime/runtime_error.h"
#include "store/header_toggle.h"
#include "store/recordset.h"
#include "store/store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <map>

namespace qinghe {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

/// The file as it was delivered, made once, and a healed copy of it to read in.
class FirstData : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new QTemporaryDir;
        ASSERT_TRUE(deliverFirstData(folder->path()));
        QFile::copy(delivered(), healed());
        healHeader(healed());
    }
    static void TearDownTestSuite() { delete folder; }

    static QString delivered() { return folder->filePath("data.dll"); }
    static QString healed() { return folder->filePath("healed"); }

    void SetUp() override { store.use(healed()); }
    Recordset open(const QString& source) { return {store, store.fetch(source)}; }
    int rowsIn(const QString& table) { return open(table).recordCount(); }
    QStringList columnNames(const QString& table) {
        QStringList names;
        for (const Column& column : store.columns(table)) {
            names << column.name;
        }
        return names;
    }

    inline static QTemporaryDir* folder = nullptr;
    Store store;
};

/// Columns of later versions stand behind those of the first.
TEST_F(FirstData, HasEveryTableOfTheFirstVersionWithItsColumnsInOrder) {
    const std::map<QString, QString> tables{
        {"srb", "编号 时间 项目 收款人 金额 账户 备注 区别"},
        {"zcb", "编号 时间 项目 付款人 金额 账户 备注 区别"},
        {"jrb", "账户 日期 借入金额 已还金额 余额 借出人 借给人 备注 区别"},
        {"jcb", "账户 日期 借出金额 已还金额 余额 借出人 借给人 备注 区别"},
        {"ysb", "预算时间 预算项目 预算金额 备注 区别"},
        {"zhb", "账户名称 起始金额 收入 支出 借入 借出 转入 转出 余额 备注信息 区别"},
        {"rcb", "设置日期 日程号 日程日期 提醒时间 日程内容 提醒音乐 区别"},
        {"rjb", "日期 日记标题"},
        {"yhb", "用户名 用户密码 区别"},
        {"登陆用户记录表", "用户名 密码"},
        {"srflb", "收入大类 收入细类 快速代码"},
        {"zcflb", "支出大类 支出细类 快速代码"},
        {"txb", "日程提醒"},
        {"systuopanb", "最小化到托盘"},
        {"软件皮肤", "名称 大小 皮肤"},
        {"皮肤选择", "皮肤名 文件大小 皮肤文件"},
        {"主界面", "名称 大小 文件"},
        {"登陆皮肤", "名称 大小 皮肤"},
        {"nsrb", "时间 金额 区别"},
        {"nzcb", "时间 金额 区别"},
        {"sztjlsb", "时间 金额 项目 区别 人员"},
    };
    for (const auto& [table, columns] : tables) {
        const QStringList expected = columns.split(' ');
        EXPECT_EQ(columnNames(table).first(expected.size()), expected) << qPrintable(table);
    }
}

TEST_F(FirstData, HasOneUserWhoIsRemembered) {
    Recordset users = open("yhb");
    ASSERT_EQ(users.recordCount(), 1);
    EXPECT_EQ(users.field(u"用户名"_qs).text(), "管理员");
    EXPECT_EQ(users.field(u"用户密码"_qs).text(), "123456");

    Recordset remembered = open("登陆用户记录表");
    ASSERT_EQ(remembered.recordCount(), 1);
    EXPECT_EQ(remembered.field(u"用户名"_qs).text(), "管理员");
    EXPECT_EQ(remembered.field(u"密码"_qs).text(), "123456");
}

TEST_F(FirstData, RemindsOfNothingAndStaysOutOfTheTray) {
    for (const char* table : {"txb", "systuopanb"}) {
        Recordset setting = open(table);
        ASSERT_EQ(setting.recordCount(), 1) << table;
        EXPECT_FALSE(setting.field(0).isNull()) << table;
        EXPECT_FALSE(setting.field(0).value().truth()) << table;
    }
}

TEST_F(FirstData, HasNoRecords) {
    for (const char* table : {"srb", "zcb", "jrb", "jcb", "ysb", "zhb", "rcb", "rjb", "nsrb", "nzcb", "sztjlsb"}) {
        EXPECT_EQ(rowsIn(table), 0) << table;
    }
}

TEST_F(FirstData, GivesEveryCategoryItsOwnQuickCode) {
    for (const char* table : {"srflb", "zcflb"}) {
        Recordset rows = open(table);
        EXPECT_GE(rows.recordCount(), 10) << table;
        QStringList codes;
        for (; !rows.eof(); rows.moveNext()) {
            EXPECT_TRUE(rows.field(0).differsFromEmpty() && rows.field(1).differsFromEmpty()) << table;
            codes << rows.field(u"快速代码"_qs).text();
        }
        EXPECT_FALSE(codes.contains(QString())) << table;
        EXPECT_EQ(codes.removeDuplicates(), 0) << table;
    }
}

TEST_F(FirstData, OffersFourSkinsThatReadBackAsPictures) {
    Recordset rows = open("软件皮肤");
    QStringList names;
    for (; !rows.eof(); rows.moveNext()) {
        names << rows.field(u"名称"_qs).text();
        const int size = static_cast<int>(rows.field(u"大小"_qs).value().number());
        const QByteArray jpeg = rows.field(u"皮肤"_qs).getChunk(size);
        ASSERT_EQ(jpeg.size(), size) << qPrintable(names.last());
        EXPECT_EQ(QImage::fromData(jpeg, "JPEG").size(), QSize(1600, 1080)) << qPrintable(names.last());
    }
    EXPECT_EQ(names, QStringList({"青禾", "水田晨曦", "水墨远山", "暖纸稻香"}));
}

TEST_F(FirstData, StoresOneZeroBehindEveryPicture) {
    for (const auto& [table, column] : std::map<const char*, QString>{
             {"软件皮肤", "皮肤"}, {"皮肤选择", "皮肤文件"}, {"主界面", "文件"}, {"登陆皮肤", "皮肤"}}) {
        for (Recordset rows = open(table); !rows.eof(); rows.moveNext()) {
            const QByteArray stored = rows.field(column).value().bytes();
            EXPECT_EQ(static_cast<double>(stored.size()), rows.field(1).value().number() + 1) << table;
            EXPECT_TRUE(stored.endsWith(QByteArray("\xFF\xD9\0", 3))) << table;
        }
    }
}

TEST_F(FirstData, ChoosesTheSkinOfTheSameName) {
    Recordset chosen = open("皮肤选择");
    ASSERT_EQ(chosen.recordCount(), 1);
    EXPECT_EQ(chosen.field(u"皮肤名"_qs).text(), "青禾");
    Recordset offered = open("select * from 软件皮肤 where 名称='青禾'");
    EXPECT_EQ(chosen.field(u"皮肤文件"_qs).value().bytes(), offered.field(u"皮肤"_qs).value().bytes());
}

TEST_F(FirstData, HasOnePictureOfTheDesktopAndOneOfTheSignIn) {
    Recordset desktop = open("主界面");
    ASSERT_EQ(desktop.recordCount(), 1);
    EXPECT_EQ(QImage::fromData(desktop.field(u"文件"_qs).value().bytes()).size(), desktopPicture().scene * 2);
    Recordset signIn = open("登陆皮肤");
    ASSERT_EQ(signIn.recordCount(), 1);
    EXPECT_EQ(QImage::fromData(signIn.field(u"皮肤"_qs).value().bytes()).size(), signInPicture().scene * 2);
}

TEST_F(FirstData, LiesAsAfterACleanEnd) {
    const QByteArray head = contentOf(delivered()).left(4);
    EXPECT_EQ(head, QByteArray("S\0\0i", 4));
    Store spoilt;
    spoilt.use(delivered());
    EXPECT_THROW(spoilt.fetch("yhb"), RuntimeError);
}

TEST_F(FirstData, CanBeReadByItsOwnerAlone) {
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                      QFile::WriteOther | QFile::ExeOther | QFile::ExeOwner;
    EXPECT_FALSE(QFile::permissions(delivered()) & others);
    EXPECT_TRUE(QFileInfo(delivered()).isWritable());
}

TEST_F(FirstData, LeavesNothingElseInTheFolder) {
    QTemporaryDir fresh;
    ASSERT_TRUE(deliverFirstData(fresh.path()));
    EXPECT_EQ(QDir(fresh.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("data.dll"));
}

TEST(DeliverFirstData, NeverTouchesAnExistingFile) {
    QTemporaryDir folder;
    const QString path = folder.filePath("data.dll");
    QFile own(path);
    ASSERT_TRUE(own.open(QIODevice::WriteOnly));
    own.write("ten years of a family");
    own.close();
    const QDateTime written = QFileInfo(path).lastModified();

    EXPECT_FALSE(deliverFirstData(folder.path()));
    EXPECT_EQ(contentOf(path), "ten years of a family");
    EXPECT_EQ(QFileInfo(path).lastModified(), written);
}

TEST(DeliverFirstData, IsNotStoppedByWhatAKilledRunLeft) {
    QTemporaryDir folder;
    for (const char* left : {"first_data.unfinished", "first_data.unfinished-journal"}) {
        QFile file(folder.filePath(left));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("half");
    }
    EXPECT_TRUE(deliverFirstData(folder.path()));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("data.dll"));
}

TEST(DeliverFirstData, SaysWhenTheFolderIsMissing) {
    QTemporaryDir folder;
    EXPECT_THROW(deliverFirstData(folder.filePath("nowhere")), RuntimeError);
}

} // namespace
} // namespace qinghe
