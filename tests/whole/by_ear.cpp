#include "household.h"
#include "session_bus.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace whole;

// What a screen reader is told, asked from outside over AT-SPI. The trees lie in tests/whole/accessible; its command
// `renew` writes them.

namespace {

void layBook(const LedgerFolder& folder) {
    folder.execute("insert into srb values('001', '2024-11-05', '工资', '王青', 8650.5, '建行', '', 1);"
                   "insert into zcb values('01', '2024-11-06', '买菜', '王青', 35.5, '现金', '西市', 1),"
                   "  ('02', '2024-10-09', '电费', '李禾', 126.3, '建行', '', 2);"
                   "insert into jcb values('现金', '2024-11-01', 800, 5, 795, '王青', '赵田', '', 1);"
                   "insert into zhb values('现金', 100, 0, 35.5, 0, 800, 0, 0, -735.5, '', 1);"
                   "insert into ysb values('2024-11-20', '电费', 99.5, '', 1);"
                   "insert into rjb values('2024-11-17', '晴天');"
                   "insert into rcb values('2024-11-17', 1, '2024-11-18', '23 30', '给外婆打电话', '音乐1', 1)");
}

class ByEar : public ::testing::Test {
protected:
    /// What of the tree hangs at a thing of this name.
    QString tree(const std::string& named) {
        QProcess script;
        bus.start(script, QStringLiteral("dump_tree.py"), {QString::fromStdString(named)});
        script.waitForFinished(20000);
        EXPECT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();
        return QString::fromUtf8(script.readAllStandardOutput());
    }
    /// Compares it with the one that is kept under this name, or keeps it.
    void expectTree(const std::string& named, const std::string& kept) {
        QFile file(QStringLiteral(QINGHE_TREES "/%1.txt").arg(QString::fromStdString(kept)));
        if (qEnvironmentVariableIsSet("QINGHE_RENEW")) {
            ASSERT_TRUE(file.open(QFile::WriteOnly));
            file.write(tree(named).toUtf8());
            return;
        }
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << kept;
        EXPECT_EQ(tree(named).toStdString(), file.readAll().toStdString()) << kept;
    }
    void expectTreeInDocuments(const std::string& named) {
        QFile told(QStringLiteral(QINGHE_TREES "/../../../docs/accessibility.md"));
        ASSERT_TRUE(told.open(QFile::ReadOnly));
        EXPECT_TRUE(QString::fromUtf8(told.readAll()).contains("```text\n" + tree(named) + "```") ||
                    qEnvironmentVariableIsSet("QINGHE_RENEW"))
            << "docs/accessibility.md: see renew";
    }
    void expectPage(const std::string& label, const std::string& frame, const std::string& kept) {
        program->click(label);
        expectTree(frame, kept);
    }

    const SessionBus bus;
    const LedgerFolder folder;
    std::unique_ptr<Program> program;
};

} // namespace

TEST_F(ByEar, TheTreesOfAllPagesAndWindowsAreAsTheyAreKept) {
    layBook(folder);
    program = std::make_unique<Program>(folder);
    expectTree("青禾家庭记账本登陆", "登陆");
    signIn(*program);
    expectTree("青禾家庭记账本", "桌面");
    expectPage(pages::Income, "收入记录", "收入");
    expectTreeInDocuments("收入记录");
    expectPage(pages::Expense, "支出记录", "支出");
    program->click(income::ByPerson);
    expectTree("支出记录", "支出统计");
    expectPage(pages::Loans, "借出表", "暂借");
    expectPage(pages::Accounts, "账户", "储蓄");
    expectPage(pages::Budget, "支出预算", "预算");
    expectPage(pages::Charts, "图表分析", "图表");
    program->click(charts::ExpenseByItem);
    expectTree("图表分析", "图表分类");
    expectPage(pages::Users, "用户设置", "用户");
    expectPage(pages::Diary, "日记", "日记");
    folder.write("mydiary/晴天.dll", "It was sunny.\r\n");
    program->click(diary_page::Find);
    program->clickCell(diary_page::Grid, 1, 2);
    expectTree("日记", "查找日记");
    expectPage(pages::Schedule, "日程提醒", "日程");
    expectPage(pages::Settings, "设置", "设置");
    program->click(settings::Categories);
    expectTree("分类设置", "分类");
    program->click(pages::Settings);
    program->click(settings::Purge);
    expectTree("设置-删除", "删除");
    program->click(pages::Settings);
    program->click(settings::Backup);
    expectTree("数据备份", "备份");
    program->close(forms::Backup);
    program->waitForKeyboard(forms::Main);
    program->click(pages::Expense);
    program->click(income::Records);
    program->key("Ctrl+F");
    program->type("电费");
    expectTree("查找", "查找");
    program->key("Escape");
    program->clickCell(income::Grid, 2, 2);
    program->waitFor(forms::DatePicker);
    expectTree("选择日期", "选择日期");
    program->clickCell(income::Grid, 2, 5);
    program->waitForKeyboard(forms::Calculator);
    expectTree("数值输入-计算器", "计算器");
    program->key("Escape");
    program->click(income::Remove);
    expectTree("温馨提示", "提问");
    program->answer("取消");
    endByCross(*program);
}

namespace {

/// A screen reader that notes what it hears.
class Listening {
public:
    Listening(const SessionBus& bus, Program& heardProgram) : program(heardProgram) {
        bus.start(m_script, QStringLiteral("listen.py"), {});
        waitFor("listening");
    }
    ~Listening() {
        m_script.kill();
        m_script.waitForFinished();
    }
    bool hears(const std::string& line) {
        m_script.waitForReadyRead(100);
        while (m_script.canReadLine())
            m_heard << QString::fromUtf8(m_script.readLine()).trimmed();
        return m_heard.contains(QString::fromStdString(line));
    }
    void waitFor(
        const std::string& line, const std::function<void()>& again = [] {}) {
        const auto hearsIt = [&] {
            const bool heard = hears(line);
            if (!heard)
                again();
            return heard;
        };
        EXPECT_NO_THROW(program.waitUntil(hearsIt, line)) << line << " in\n" << m_heard.join(u'\n').toStdString();
    }

private:
    Program& program;
    QProcess m_script;
    QStringList m_heard;
};

} // namespace

TEST_F(ByEar, TheCellTheCalculatorsDisplayAndTheBoxAreToldAsTheyChange) {
    layBook(folder);
    program = std::make_unique<Program>(folder);
    signIn(*program);
    tree("青禾家庭记账本"); // the program has come to the bus: who comes while it does may not be noticed
    Listening listening(bus, *program);
    program->click(pages::Expense);
    // The program learns a moment later that somebody listens.
    listening.waitFor("focus text \"支出编号\"", [this] {
        program->key("Escape");
        program->clickCell(income::Grid, 1, 1);
    });
    program->key("Escape");
    listening.waitFor("focus table cell \"01\" [第1行，编号]");
    program->key("Down");
    program->key("Right");
    listening.waitFor("focus table cell \"2024-10-9\" [第2行，时间]");
    program->clickCell(income::Grid, 2, 5);
    listening.waitFor("focus text \"计算器显示\"");
    program->type("7+8");
    listening.waitFor("text text \"计算器显示\" = \"7+8\"");
    EXPECT_EQ(program->text(calculator::Display), "7+8");
    program->key("Escape");
    endByCross(*program);
}
