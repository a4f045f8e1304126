#include "delivery/script_rig.h"

namespace qinghe::testing {
namespace {

/// The scripts at the root of a checkout, in a folder `checkout` of the test's own.
class RootScripts : public ScriptTest {
protected:
    RootScripts() : ScriptTest({u"bash"_s, u"dirname"_s, u"cat"_s, u"cp"_s, u"mkdir"_s}) {
        for (const QString& name : {u"setup"_s, u"run"_s, u"bench"_s, u"test"_s})
            QFile::copy(script(name), in(u"checkout"_s, name));
        add(u"id"_s, "echo 1000");
        environment.insert(u"HOME"_s, folder.filePath(u"home"_s));
    }
    /// A path in a folder that is made when it is not there.
    QString in(const QString& name, const QString& file) const {
        QDir(folder.path()).mkpath(name);
        return folder.filePath(name + u'/' + file);
    }
};

TEST_F(RootScripts, AreNotLedAstrayByAnExportedSearchPathOfCd) {
    environment.insert(u"CDPATH"_s, folder.filePath(u"elsewhere"_s));
    for (const QString& name : {u"run"_s, u"bench"_s}) {
        makeScript(in(u"checkout"_s, u"setup"_s), "echo right; exit 3");
        makeScript(in(u"elsewhere/checkout"_s, u"setup"_s), "echo wrong; exit 4");
        EXPECT_EQ(run(u"checkout/"_s + name), 3) << said.toStdString();
        EXPECT_TRUE(said.endsWith(u"right\n"_s)) << said.toStdString();
    }
}

TEST_F(RootScripts, RunTellsAnAdministratorWhatThatMeans) {
    makeScript(in(u"checkout"_s, u"setup"_s), "exit 3");
    EXPECT_EQ(run(u"checkout/run"_s), 3);
    EXPECT_EQ(said, QString());
    add(u"id"_s, "echo 0");
    EXPECT_EQ(run(u"checkout/run"_s), 3);
    EXPECT_TRUE(said.contains(u"您现在是管理员（root）"_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(folder.filePath(u"home"_s))) << said.toStdString();
}

/// ./run in a checkout that is built. What makes the ledger's folder stands for src/store/ledger_folder.h.
class Run : public RootScripts {
protected:
    Run() {
        environment.insert(u"DISPLAY"_s, u":1"_s);
        makeScript(in(u"checkout"_s, u"setup"_s), "exit 0");
        makeScript(in(u"checkout/build/release/delivery"_s, u"qinghe_delivery"_s),
                   "[ \"$1\" = ledger ] && [ ! -e \"$2\" ] && mkdir -p \"$2\" && echo book > \"$2/data.dll\"; exit 0");
        makeScript(in(u"checkout/build/release/app"_s, u"qinghe"_s), "echo \"first $0\"");
        makeScript(in(u"checkout/build/release/app"_s, u"qinghe_charts.so"_s), "");
    }
    QString ledger(const QString& name = {}) const { return folder.filePath(u"home/青禾家庭记账本/"_s + name); }
};

TEST_F(Run, StartsTheProgramInTheHomeAndTellsOnceWhereTheBookLies) {
    ASSERT_EQ(run(u"checkout/run"_s), 0) << said.toStdString();
    EXPECT_TRUE(said.contains(u"您的记账本在 "_s)) << said.toStdString();
    EXPECT_TRUE(said.endsWith(u"first "_s + ledger(u"qinghe\n"_s))) << said.toStdString();
    makeScript(in(u"checkout/build/release/app"_s, u"qinghe"_s), "echo \"second $0\"");
    ASSERT_EQ(run(u"checkout/run"_s), 0) << said.toStdString();
    EXPECT_EQ(said, u"second "_s + ledger(u"qinghe\n"_s));
}

TEST_F(Run, ToldThatTheBookIsGoneStartsNothing) {
    ASSERT_EQ(run(u"checkout/run"_s), 0) << said.toStdString();
    QFile::remove(ledger(u"data.dll"_s));
    QFile::remove(ledger(u"qinghe"_s));
    EXPECT_EQ(run(u"checkout/run"_s), 1);
    EXPECT_TRUE(said.contains(u"里没有账本文件 data.dll"_s)) << said.toStdString();
    EXPECT_FALSE(QFile::exists(ledger(u"data.dll"_s)) || QFile::exists(ledger(u"qinghe"_s)));
}

/// scripts/show_by_vnc with a display and its tools that write down what they are told.
class ShowByVnc : public ScriptTest {
protected:
    ShowByVnc()
        : ScriptTest({u"bash"_s, u"dirname"_s, u"cat"_s, u"mktemp"_s, u"rm"_s, u"touch"_s, u"mkfifo"_s, u"head"_s,
                      u"base64"_s, u"tr"_s, u"id"_s, u"hostname"_s, u"sleep"_s}) {
        add(u"mcookie"_s, "echo 0123456789abcdef");
        add(u"xauth"_s, "echo \"$*\" >> \"$0.calls\"; cat >> \"$0.heard\"");
        add(u"tigervncpasswd"_s, "echo \"$*\" >> \"$0.calls\"; cat");
        add(u"Xvnc"_s, "echo \"$*\" >> \"$0.calls\"; echo 7 >&3; exec sleep 10");
        add(u"jwm"_s, "exit 0");
        add(u"program"_s, "echo \"$DISPLAY $*\" >> \"$0.calls\"");
        environment.insert(u"TMPDIR"_s, folder.path());
    }
};

TEST_F(ShowByVnc, TellsItsSecretsOnNoCommandLine) {
    ASSERT_EQ(run(script(u"scripts/show_by_vnc"_s), {commands.filePath(u"program"_s)}), 0) << said.toStdString();
    EXPECT_EQ(calls(u"program"_s), u":7 \n"_s);
    const QString password = said.section(u"密码是 "_s, 1).section(u'\n', 0, 0);
    EXPECT_EQ(password.size(), 8) << said.toStdString();
    for (const QString& name : {u"xauth"_s, u"tigervncpasswd"_s, u"Xvnc"_s}) {
        EXPECT_FALSE(calls(name).isEmpty());
        EXPECT_FALSE(calls(name).contains(u"0123456789abcdef"_s)) << calls(name).toStdString();
        EXPECT_FALSE(calls(name).contains(password)) << calls(name).toStdString();
    }
    QFile heard(commands.filePath(u"xauth.heard"_s));
    ASSERT_TRUE(heard.open(QIODevice::ReadOnly));
    EXPECT_EQ(heard.readAll(), "add :0 . 0123456789abcdef\nadd :7 . 0123456789abcdef\n");
}

TEST_F(ShowByVnc, OpensNoPortButASocketOfTheAccountsOwn) {
    ASSERT_EQ(run(script(u"scripts/show_by_vnc"_s), {commands.filePath(u"program"_s)}), 0) << said.toStdString();
    const QString told = calls(u"Xvnc"_s);
    EXPECT_TRUE(told.contains(u" -rfbport -1 "_s)) << told.toStdString();
    EXPECT_TRUE(told.contains(u" -rfbunixmode 384 "_s)) << told.toStdString(); // 0600
    const QString socket = told.section(u"-rfbunixpath "_s, 1).section(u' ', 0, 0);
    EXPECT_TRUE(socket.startsWith(folder.path())) << told.toStdString();
    EXPECT_TRUE(said.contains(u"-L 5901:"_s + socket + u' ')) << said.toStdString();
    EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "nothing of it stays behind";
}

} // namespace
} // namespace qinghe::testing
