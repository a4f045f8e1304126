#include "household.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>

#include <csignal>
#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string count = "select count(*), min(区别), max(区别) from srb";
const std::string old = "30000|1000001|1030000", fresh = "30000|1|30000";

/// The rows of the table as it stands get numbers that no save gives, so that old rows are told from saved ones.
void markOld(const LedgerFolder& folder) {
    folder.execute("update srb set 区别 = 区别 + 1000000");
}

void fillLedger(const LedgerFolder& folder) {
    folder.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < 30000) "
                   "insert into srb select i, '2024-11-01', '工资', '王青', i * 0.5, '工行', '每月', i from n");
    markOld(folder);
}

void openLedger(Program& program) {
    signIn(program);
    program.click(pages::Income);
}

/// How long a save of the table takes, in ms.
int savingTakes(const LedgerFolder& folder) {
    Program program(folder);
    openLedger(program);
    program.shows(forms::Main);
    QElapsedTimer timer;
    timer.start();
    program.click(income::Save);
    program.message();
    return static_cast<int>(timer.elapsed());
}

} // namespace

TEST(SuddenEnd, ASaveIsDoneOrWasNeverBegun) {
    constexpr int Kills = 100;
    const LedgerFolder folder;
    fillLedger(folder);
    const int saving = savingTakes(folder);
    markOld(folder);

    int inTheMidst = 0, before = 0;
    for (int i = 0; i < Kills; ++i) {
        {
            Program program(folder);
            openLedger(program);
            program.shows(forms::Main);
            program.click(income::Save);
            QThread::usleep(QRandomGenerator::global()->bounded(static_cast<quint32>(saving) * 1000));
            program.kill();
        }
        inTheMidst += folder.has("data.dll-journal");
        const std::vector<std::string> table = folder.rows(count);
        ASSERT_TRUE(table[0] == old || table[0] == fresh) << table[0];
        ASSERT_EQ(folder.rows("pragma integrity_check")[0], "ok");
        if (table[0] == fresh)
            markOld(folder);
        else
            ++before;
    }
    std::cout << "saving took " << saving << " ms; of " << Kills << " kills " << inTheMidst
              << " met a save in the midst, and " << before << " left the table as it was\n";
    EXPECT_GT(inTheMidst, 0);
}

TEST(SuddenEnd, ALogOutEndsTheProgramInOrderAndKeepsWhatWasTyped) {
    const LedgerFolder folder;
    folder.execute("insert into ysb values('2024-11-01', '买菜', 500, '', 1)");
    QElapsedTimer timer;
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Budget);
        program.clickCell(budget::Grid, 1, 2);
        program.type("还在写");
        program.windows(); // answered when the text has arrived; a signal waits for nobody
        timer.start();
        program.tell(SIGTERM);
        program.tell(SIGTERM); // impatient
        EXPECT_EQ(program.exitCode(), 0);
        EXPECT_LT(timer.elapsed(), 2000);
    }
    EXPECT_EQ(folder.rows("select 预算项目 from ysb"), std::vector<std::string>{"买菜"});
    EXPECT_FALSE(folder.has("data.dll-journal"));
    const QStringList kept = QDir(folder.path()).entryList({QStringLiteral("没有保存的内容*.txt")});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_TRUE(folder.bytes(kept.front().toStdString()).contains("还在写"));

    Program program(folder); // while a message waits
    signIn(program);
    program.click(pages::Budget);
    program.clickCell(budget::Grid, 1, 2);
    program.click(budget::Save);
    EXPECT_EQ(program.message().text, "保存成功");
    program.tell(SIGHUP);
    EXPECT_EQ(program.exitCode(), 0);
}
