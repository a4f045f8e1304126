#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// scripts/install on a machine of the test's own: an ordinary user, a compiler that is installed and nothing else.
class Install : public ::testing::Test {
protected:
    Install() {
        for (const QString& name :
             {u"bash"_s, u"dirname"_s, u"awk"_s, u"sort"_s, u"sed"_s, u"comm"_s, u"cat"_s, u"env"_s})
            QFile::link(QStandardPaths::findExecutable(name), commands.filePath(name));
        add(u"id"_s, "echo 1000");
        add(u"dpkg-query"_s, "echo installed g++");
        add(u"apt-get"_s, "echo \"apt-get $*\" >> \"$0.calls\"");
    }
    void add(const QString& name, const QByteArray& script) {
        QFile file(commands.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + '\n');
        file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    }
    /// The exit code; the words go to `said`.
    int install() {
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(u"PATH"_s, commands.path());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(commands.filePath(u"bash"_s), {QStringLiteral(QINGHE_SCRIPTS "/install"), u"build"_s});
        process.waitForFinished();
        said = QString::fromUtf8(process.readAll());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    QString calls() const {
        QFile file(commands.filePath(u"apt-get.calls"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    void expectHelp() const {
        EXPECT_TRUE(said.contains(u"请管理员执行下面两行"_s)) << said.toStdString();
        EXPECT_TRUE(said.contains(u"    apt-get install -y --no-install-recommends cmake "_s)) << said.toStdString();
        EXPECT_FALSE(said.contains(u" g++"_s)) << said.toStdString();
        EXPECT_EQ(calls(), QString());
    }

    QTemporaryDir commands;
    QString said;
};

TEST_F(Install, WithoutSudoItSaysWhatAnAdministratorHasToDo) {
    EXPECT_EQ(install(), 1);
    expectHelp();
}

TEST_F(Install, ASudoThatRefusesItsUserComesToTheSame) {
    add(u"sudo"_s, "exit 1");
    EXPECT_EQ(install(), 1);
    expectHelp();
}

TEST_F(Install, WithSudoItInstallsWhatIsMissing) {
    add(u"sudo"_s, "exec \"$@\"");
    EXPECT_EQ(install(), 0) << said.toStdString();
    EXPECT_TRUE(said.contains(u"安装缺少的软件包"_s));
    EXPECT_TRUE(calls().startsWith(u"apt-get update"_s));
    EXPECT_TRUE(calls().contains(u"ninja-build"_s));
    EXPECT_FALSE(calls().contains(u"g++"_s));
}

TEST_F(Install, AMachineOfAnotherKindIsToldTheNames) {
    ASSERT_TRUE(QFile::remove(commands.filePath(u"apt-get"_s)));
    EXPECT_EQ(install(), 1);
    EXPECT_TRUE(said.contains(u"不用 Debian 的软件包"_s)) << said.toStdString();
}

} // namespace
} // namespace qinghe::testing
