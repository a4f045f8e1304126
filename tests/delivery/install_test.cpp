#include "delivery/script_rig.h"

namespace qinghe::testing {
namespace {

/// scripts/install on a machine with an ordinary user, a compiler that is installed and nothing else.
class Install : public ScriptTest {
protected:
    Install() : ScriptTest({u"bash"_s, u"dirname"_s, u"awk"_s, u"sort"_s, u"sed"_s, u"comm"_s, u"cat"_s, u"env"_s}) {
        add(u"id"_s, "echo 1000");
        add(u"dpkg-query"_s, "echo installed g++");
        add(u"apt-get"_s, "echo \"apt-get $*\" >> \"$0.calls\"");
    }
    int install() { return run(script(u"scripts/install"_s), {u"build"_s}); }
    void expectHelp() const {
        EXPECT_TRUE(said.contains(u"请管理员执行下面两行"_s)) << said.toStdString();
        EXPECT_TRUE(said.contains(u"    apt-get install -y --no-remove --no-install-recommends cmake "_s))
            << said.toStdString();
        EXPECT_FALSE(said.contains(u" g++"_s)) << said.toStdString();
        EXPECT_EQ(calls(u"apt-get"_s), QString());
    }
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

TEST_F(Install, WithSudoItInstallsWhatIsMissingAndRemovesNothing) {
    add(u"sudo"_s, "exec \"$@\"");
    EXPECT_EQ(install(), 0) << said.toStdString();
    EXPECT_TRUE(said.contains(u"安装缺少的软件包"_s));
    const QString told = calls(u"apt-get"_s);
    EXPECT_TRUE(told.startsWith(u"apt-get update"_s));
    EXPECT_TRUE(told.contains(u"apt-get install -yq --no-remove "_s)) << told.toStdString();
    EXPECT_TRUE(told.contains(u"ninja-build"_s));
    EXPECT_FALSE(told.contains(u"g++"_s));
}

TEST_F(Install, AMachineOfAnotherKindIsToldTheNames) {
    ASSERT_TRUE(QFile::remove(commands.filePath(u"apt-get"_s)));
    EXPECT_EQ(install(), 1);
    EXPECT_TRUE(said.contains(u"不用 Debian 的软件包"_s)) << said.toStdString();
}

} // namespace
} // namespace qinghe::testing
