#include "store/data_file.h"
#include "store/journal_file.h"
#include "store/rewritten_table.h"

#include <QFile>

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

constexpr int Rows = 2000;
constexpr int Kills = 120;

class Kill : public StoreTest {
protected:
    /// Another process that rewrites the table over and over, with a mark of its own each time.
    pid_t startRewriting(const QString& name) {
        const pid_t child = fork();
        if (child != 0)
            return child;
        Store own;
        Adodc adodc(own, u"Adodc1"_s, connectionText(folder.path()));
        for (int round = 0; errorOf([&] { rewriteTable(own, adodc, name + QString::number(round), Rows); }) == 0;)
            ++round;
        _exit(1);
    }
};

TEST_F(Kill, AtAnyMomentLeavesTheOldTableOrTheNewOne) {
    const auto start = std::chrono::steady_clock::now();
    rewriteTable(store, control, u"begin"_s, Rows);
    const auto oneRewriting = std::chrono::steady_clock::now() - start;
    std::mt19937 chance(1);
    std::uniform_real_distribution<double> moments(0, 2.5);
    int interrupted = 0;
    int rewritten = 0;
    for (int i = 0; i < Kills; ++i) {
        store.close();
        const QString name = u"%1-"_s.arg(i);
        const pid_t child = startRewriting(name);
        ASSERT_GT(child, 0);
        std::this_thread::sleep_for(oneRewriting * moments(chance));
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child gave up by itself";
        const JournalKind left = judgeJournal(journalOf(path()), path());
        EXPECT_NE(left, JournalKind::Foreign);
        interrupted += left != JournalKind::Missing;
        rewritten += markOfTable(control, Rows).startsWith(name);
        EXPECT_EQ(fileBytes().mid(1, 2), QByteArray("\x01\x00", 2));
        ASSERT_FALSE(HasFailure()) << "after kill " << i;
    }
    EXPECT_GT(rewritten, Kills / 10);   // the moments did fall among the rewritings,
    EXPECT_GT(interrupted, Kills / 10); // and inside them
    EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA integrity_check"_s), u"ok"_s);
}

} // namespace
} // namespace qinghe
