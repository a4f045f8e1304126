#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

void store(const LedgerFolder& folder) {
    folder.execute("insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡', 1000, 0, 0, 0, 0, 0, 0, 1250.5, '', 1), "
                   "('信用卡', 0, 0, 0, 0, 0, 0, 0, -30, '', 2);"
                   "insert into srb values('1', '2024-09-30', '工资', '王青', 7000, '建行', '', 1), "
                   "('2', '2024-11-15', '工资', '王青', 8000, '建行', '', 2), "
                   "('3', '2024-11-16', '稿费', '李禾', 99.5, '现金', '', 3);"
                   "insert into zcb values('1', '2024-10-07', '买菜', '李禾', 45.8, '现金', '', 1), "
                   "('2', '2024-11-08', '买菜', '李禾', 30, '现金', '', 2), "
                   "('3', '2024-11-18', '电费', '王青', 99, '建行', '', 3)");
}

/// The points of the chart as "label value", one behind the other.
std::string points(Program& program) {
    QStringList points;
    for (const QJsonValue& point : program.get(charts::Chart, "ChartData").toArray())
        points << point.toArray()[0].toString() + u' ' + QString::number(point.toArray()[1].toDouble());
    return points.join(QStringLiteral(", ")).toStdString();
}

/// Chooses a chart, which says its own name.
std::string chosen(Program& program, const std::string& option) {
    program.click(option);
    EXPECT_EQ(program.caption(charts::ChartFrame), program.text(option));
    return points(program);
}

QByteArray picture(Program& program, const LedgerFolder& folder) {
    program.picture(folder.file("chart.png").toStdString(), charts::Chart);
    return folder.bytes("chart.png");
}

} // namespace

TEST(Charts, ShowAccountsMonthsAndItemsOfTheWholeLedger) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    program.click(pages::Charts);
    EXPECT_EQ(program.caption(charts::ChartFrame), "账户对比分析");
    EXPECT_EQ(points(program), "工资卡 1250.5, 信用卡 -30");
    const QByteArray accounts = picture(program, folder);
    EXPECT_EQ(chosen(program, charts::YearsIncome), "2024-9- 7000, 2024-11 8099.5");
    EXPECT_NE(picture(program, folder), accounts);
    EXPECT_EQ(chosen(program, charts::YearsExpense), "2024-10 45.8, 2024-11 129");
    EXPECT_FALSE(program.shows(charts::Range));
    EXPECT_EQ(chosen(program, charts::IncomeByItem), "工资 15000, 稿费 99.5");
    EXPECT_EQ(chosen(program, charts::ExpenseByItem), "买菜 75.8, 电费 99");
    EXPECT_TRUE(program.shows(charts::Range));

    program.click(pages::Accounts);
    program.click(pages::Charts);
    EXPECT_EQ(chosen(program, charts::Accounts), "工资卡 1250.5, 信用卡 -30");
    EXPECT_EQ(picture(program, folder), accounts);
    endByCross(program);
}

TEST(Charts, ByItemAreNarrowedToDatesPickedOrTyped) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    program.click(pages::Charts);
    chosen(program, charts::ExpenseByItem);
    program.click(charts::From);
    pickDay(program, 1);
    program.click(charts::To);
    pickDay(program, 17);
    EXPECT_EQ(program.text(charts::From) + ' ' + program.text(charts::To), "2024-11-1 2024-11-17");
    program.click(charts::Query);
    EXPECT_EQ(points(program), "买菜 30");
    EXPECT_EQ(program.caption(charts::ChartFrame), "支出分类统计");

    EXPECT_EQ(chosen(program, charts::IncomeByItem), "工资 15000, 稿费 99.5"); // the whole ledger again
    EXPECT_EQ(program.text(charts::From), "2024-11-1");
    program.clearAndType(charts::From, "2024-9-1");
    program.clearAndType(charts::To, "2024-10-31");
    program.click(charts::Query);
    EXPECT_FALSE(program.shows(forms::DatePicker));
    EXPECT_EQ(points(program), "工资 7000");
    endByCross(program);
}

TEST(Charts, OfAnEmptyLedgerSayWhatIsMissing) {
    const Message nothing{"目前没有提供给图表统计的记录数据！", "提示", Message::Information, {"确定"}};
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Charts);
    EXPECT_EQ(program.message(), nothing);
    program.answer("确定");
    for (const auto& option : {charts::YearsIncome, charts::YearsExpense, charts::IncomeByItem}) {
        program.click(option);
        EXPECT_EQ(program.message(), nothing);
        program.answer("确定");
    }
    EXPECT_EQ(program.caption(charts::ChartFrame), "");
    EXPECT_EQ(points(program), ""); // the sample stands

    program.clearAndType(charts::From, "2024-11-1");
    program.click(charts::Query);
    EXPECT_EQ(program.message(), (Message{"请选择两个日期", "输入提示", Message::Information, {"确定"}}));
    program.answer("确定");
    program.clearAndType(charts::To, "2024-10-1");
    program.click(charts::Query);
    EXPECT_EQ(program.message(), (Message{"当前日期范围内不存在记录", "查询提示", Message::Information, {"确定"}}));
    program.answer("确定");
    endByCross(program);
}

TEST(Charts, ADateInWordsEndsTheProgramAndTheLedgerStays) {
    const LedgerFolder folder;
    store(folder);
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Charts);
        chosen(program, charts::ExpenseByItem);
        program.clearAndType(charts::From, "上个月");
        program.clearAndType(charts::To, "2024-11-18");
        program.click(charts::Query);
        expectErrorWindow(program, "上个月");
    }
    EXPECT_EQ(folder.rows("select count(*) from zcb"), std::vector<std::string>{"3"});
    Program program(folder);
    signIn(program);
    program.click(pages::Charts);
    EXPECT_EQ(chosen(program, charts::ExpenseByItem), "买菜 75.8, 电费 99");
    endByCross(program);
}
