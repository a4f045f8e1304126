#include "backup_rig.h"
#include "core/safety_copies.h"
#include "support/page_rig.h"

namespace qinghe::testing {
namespace {

/// What cannot be undone leaves a copy of the book as it was; what is asked and told stays as it is without.
class WayBack : public BackupTest {
protected:
    WayBack() { rig.sql(u"insert into ysb values('2024-05-01','买米',120,'',1)"_s); }

    QString safetyFolder() const { return rig.file(u"安全副本"_s); }
    QStringList kept() const { return QDir(safetyFolder()).entryList(QDir::Files, QDir::Name); }
    QString pathOf(const QString& name) const { return QDir(safetyFolder()).filePath(name); }
    CheckBox& initialise() { return rig.at(settings::Initialise); }
    static void tick(CheckBox& box) { QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2}); }
    QStringList budgets() { return rig.sql(u"select 预算项目 from ysb"_s); }
    /// The helper of a window that tells of the copy.
    static const Label* teller(const Form& window) {
        for (const Label* label : window.findChildren<Label*>())
            if (label->objectName().isEmpty() && label->Caption().contains(u"安全副本"_s))
                return label;
        return nullptr;
    }
    static void expectTells(const Form& window, const QString& path) {
        const Label* label = teller(window);
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(label->Caption(), u"已留安全副本，鼠标停在这里看怎么恢复。"_s);
        EXPECT_TRUE(label->toolTip().startsWith(path)) << label->toolTip().toStdString();
        EXPECT_TRUE(label->toolTip().contains(u"系统数据还原"_s));
    }
    void restore(const QString& path) {
        openFor(BackupTest::restore());
        startWith(path);
    }
};

TEST_F(WayBack, InitialisingIsTakenBackByRestoringItsCopy) {
    tick(initialise());
    EXPECT_EQ(budgets(), QStringList());
    const QString copy = pathOf(u"2024-06-18 203608 初始化以前.dat"_s);
    expectTells(rig.mainWindow(), copy);
    restore(copy);
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_EQ(budgets(), QStringList{u"买米"_s});
    EXPECT_EQ(kept(), (QStringList{u"2024-06-18 203608 初始化以前.dat"_s, u"2024-06-18 203608 还原以前.dat"_s}));
}

TEST_F(WayBack, NothingIsCopiedWhereTheAnswerIsNo) {
    rig.messages->answers = {Answer::No};
    tick(initialise());
    EXPECT_FALSE(QFile::exists(safetyFolder()));
}

TEST_F(WayBack, AnInitialisingThatFindsNoRoomForACopyIsDoneAllTheSame) {
    write(u"安全副本"_s, "in the way");
    tick(initialise());
    EXPECT_EQ(budgets(), QStringList());
    EXPECT_EQ(rig.lastMessage().text, u"初始化完毕"_s);
    EXPECT_TRUE(teller(rig.mainWindow()));
    EXPECT_FALSE(rig.ended());
}

TEST_F(WayBack, APurgeKeepsTheBookOnceARunBeforeItsFirstRowGoes) {
    rig.sql(u"insert into zhb(账户名称, 余额, 区别) values('户', 8, 1)"_s);
    tick(rig.at(settings::Purge));
    rig.settle();
    const auto start = [this] {
        rig.click(rig.control<CommandButton>(forms::Purge, purge::Start));
        rig.settle();
    };
    start();
    EXPECT_FALSE(QFile::exists(safetyFolder())); // nothing is ticked
    rig.click(rig.at(purge::Kind[5]));
    rig.control<TextBox>(forms::Purge, purge::Date).setBoxText(u"2024-5-1"_s);
    rig.messages->whileShown = [this](const ShownMessage& message) {
        EXPECT_EQ(QFile::exists(safetyFolder()), message.style != 36);
    };
    start();
    EXPECT_EQ(budgets(), QStringList());
    expectTells(*rig.loaded(forms::Purge), pathOf(u"2024-06-18 203608 删除记录以前.dat"_s));
    EXPECT_EQ(kept().size(), 1);
    rig.messages->whileShown = {};
    rig.click(rig.at(purge::Kind[4]));
    start();
    EXPECT_EQ(kept().size(), 2);
    start(); // there is nothing left to go
    EXPECT_EQ(kept().size(), 2);
}

TEST_F(WayBack, ARestoreIsTakenBackByRestoringItsCopy) {
    backUpTo(u"b.dat"_s);
    rig.sql(u"insert into ysb values('2024-05-02','买盐',6,'',2)"_s);
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(budgets(), QStringList{u"买米"_s});
    expectTells(*window(), pathOf(u"2024-06-18 203608 还原以前.dat"_s));
    rig.clock->time = rig.clock->time.addSecs(60);
    startWith(pathOf(u"2024-06-18 203608 还原以前.dat"_s));
    EXPECT_EQ(budgets(), (QStringList{u"买米"_s, u"买盐"_s}));
    openFor(backup());
    EXPECT_EQ(teller(*window()) && teller(*window())->Visible(), false);
    EXPECT_FALSE(rig.ended());
}

TEST_F(WayBack, ABookThatCannotBeReadIsKeptAsItIsBeforeARestore) {
    backUpTo(u"b.dat"_s);
    const QByteArray broken = "S" + QByteArray("\x01\0", 2) + QByteArray("ite format 3\0", 13) + QByteArray(9000, 'x');
    write(u"data.dll"_s, broken);
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_EQ(bytes(u"安全副本/2024-06-18 203608 还原以前 已损坏.dat"_s), broken);
    EXPECT_EQ(budgets(), QStringList{u"买米"_s});
}

} // namespace
} // namespace qinghe::testing
