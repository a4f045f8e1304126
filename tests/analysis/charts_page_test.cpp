#include "analysis/charts_rig.h"

// Opening the page of the charts, its controls, and the charts of accounts and items.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

struct PlacedControl {
    QString name;
    QStringView caption;
    QString container;
    double left, top, width, height;
};

const PlacedControl Controls[]{
    {charts::Kinds, u"", charts::Page, 240, 240, 11055, 615},
    {charts::Accounts, u"账户对比分析", charts::Kinds, 120, 240, 1815, 255},
    {charts::YearsIncome, u"年度收入统计", charts::Kinds, 2280, 240, 1815, 255},
    {charts::YearsExpense, u"年度年支出统计", charts::Kinds, 4560, 240, 2055, 255},
    {charts::IncomeByItem, u"收入分类统计", charts::Kinds, 7080, 240, 1815, 255},
    {charts::ExpenseByItem, u"支出分类统计", charts::Kinds, 9120, 240, 1815, 255},
    {charts::Range, u"查询", charts::Page, 5280, 840, 6135, 615},
    {charts::In, u"在", charts::Range, 720, 240, 255, 255},
    {charts::From, u"日期1", charts::Range, 1080, 240, 1215, 270},
    {charts::And, u"和", charts::Range, 2400, 240, 255, 255},
    {charts::To, u"日期2", charts::Range, 2760, 240, 1215, 270},
    {charts::Between, u"之间", charts::Range, 4080, 240, 495, 255},
    {charts::Query, u"查询", charts::Range, 5040, 240, 615, 255},
    {charts::ChartFrame, u"", charts::Page, 360, 1440, 11055, 4695},
    {charts::Chart, u"", charts::ChartFrame, 120, 240, 10815, 4335},
};

TEST_F(ChartsTest, HasEveryControlInItsPlaceWithItsWords) {
    for (const PlacedControl& told : Controls) {
        const QString name = told.name;
        QWidget& container = rig.onMain<Frame>(told.container);
        const auto* widget = container.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
        ASSERT_TRUE(widget) << name.toStdString();
        EXPECT_EQ(widget->property("Left").toDouble(), told.left) << name.toStdString();
        EXPECT_EQ(widget->property("Top").toDouble(), told.top) << name.toStdString();
        EXPECT_EQ(widget->property("Width").toDouble(), told.width) << name.toStdString();
        EXPECT_EQ(widget->property("Height").toDouble(), told.height) << name.toStdString();
        const QVariant words =
            widget->property("text").isValid() ? widget->property("text") : widget->property("title");
        EXPECT_EQ(words.toString(), told.caption) << name.toStdString();
    }
}

TEST_F(ChartsTest, HasNoOptionChosenAndNoQueryRowBeforeItIsOpened) {
    for (const QString& name : QStringList{charts::Accounts, charts::YearsIncome, charts::YearsExpense,
                                           charts::IncomeByItem, charts::ExpenseByItem})
        EXPECT_FALSE(option(name).Value()) << name.toStdString();
    EXPECT_FALSE(rig.at(charts::Range).Visible());
    EXPECT_FALSE(rig.at(charts::Page).Visible());
    EXPECT_EQ(chart().ChartData(), QVariantList());
}

TEST_F(ChartsTest, OpensOnTheAccountsByItsLabel) {
    storeOneEach();
    storeAccount(u"'信用卡'"_s, u"-2310.5"_s);
    open();
    const Frame& frame = rig.at(charts::Page);
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.Left(), 120);
    EXPECT_EQ(frame.Top(), 1680);
    EXPECT_EQ(frame.Width(), 11655);
    EXPECT_EQ(frame.Height(), 6225);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 12);
    EXPECT_EQ(rig.at(pages::Charts).ForeColor(), Red);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), Black);
    EXPECT_TRUE(option(charts::Accounts).Value());
    EXPECT_EQ(points(), u"现金=100 信用卡=-2310.5");
    EXPECT_EQ(caption(), u"账户对比分析");
    EXPECT_EQ(adodc1().recordSource(), u"select 账户名称,余额 from zhb");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
    EXPECT_FALSE(adodc1().recordset().eof()); // back on the first row
    EXPECT_TRUE(chart().isVisible());
}

TEST_F(ChartsTest, LeavesOtherPagesAndToolsBehind) {
    storeOneEach();
    rig.click(rig.at(pages::Income));
    rig.program->shared().openDatePicker(DateField::None, {}, {0, 0});
    open();
    EXPECT_FALSE(rig.at(income::Page).Visible());
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(ChartsTest, RefusesAnEmptyTableOfAccountsAndKeepsTheSample) {
    rig.messages->whileShown = [this](const ShownMessage&) { EXPECT_TRUE(rig.at(charts::Page).Visible()); };
    open();
    EXPECT_EQ(rig.messages->shown, std::vector{NothingToChart});
    EXPECT_EQ(chart().ChartData(), QVariantList());
    EXPECT_EQ(chart().places().matrix().rows.join(u' '), u"R1 R2 R3 R4 R5");
    EXPECT_EQ(caption(), u"");
    EXPECT_TRUE(rig.at(charts::Page).isVisible());
}

TEST_F(ChartsTest, KeepsTheLastChartWhenAnOptionHasNothingToShow) {
    storeAccount(u"'现金'"_s, u"100"_s);
    open();
    for (const QString& name :
         QStringList{charts::YearsIncome, charts::YearsExpense, charts::IncomeByItem, charts::ExpenseByItem}) {
        click(name);
        EXPECT_EQ(rig.lastMessage(), NothingToChart) << name.toStdString();
        EXPECT_EQ(points(), u"现金=100") << name.toStdString();
        EXPECT_EQ(caption(), u"账户对比分析") << name.toStdString();
    }
    EXPECT_EQ(rig.messages->shown.size(), 4u);
}

TEST_F(ChartsTest, ShowsOneRecordAsOnePoint) {
    storeOneEach();
    open();
    EXPECT_EQ(chart().ChartData().size(), 1);
    EXPECT_EQ(points(), u"现金=100");
}

TEST_F(ChartsTest, KeepsTheOldChartWhenItIsOpenedAgain) {
    storeOneEach();
    open();
    storeAccount(u"'支付宝'"_s, u"5"_s);
    rig.click(rig.at(pages::Desktop));
    open();
    EXPECT_EQ(points(), u"现金=100"); // the option was set already and raises no click
    click(charts::IncomeByItem);
    rig.click(rig.at(pages::Desktop));
    open();
    EXPECT_EQ(points(), u"现金=100 支付宝=5"); // set anew by the label
    EXPECT_EQ(caption(), u"账户对比分析");
}

TEST_F(ChartsTest, SumsTheIncomeByItem) {
    store(u"srb"_s, u"'2024-05-03'"_s, u"'工资'"_s, 10);
    store(u"srb"_s, u"'2023-01-03'"_s, u"'奖金'"_s, 5);
    store(u"srb"_s, u"'2024-06-03'"_s, u"'工资'"_s, 2.5);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 7);
    choose(charts::IncomeByItem);
    EXPECT_EQ(points(), u"奖金=5 工资=12.5");
    EXPECT_EQ(caption(), u"收入分类统计");
    EXPECT_TRUE(rig.at(charts::Range).isVisible());
    EXPECT_EQ(adodc1().recordSource(), u"select 项目,sum(金额) as 总金额 from srb group by 项目");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
}

TEST_F(ChartsTest, SumsTheExpenseByItem) {
    storeOneEach();
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 7);
    choose(charts::ExpenseByItem);
    EXPECT_EQ(points(), u"买菜=27");
    EXPECT_EQ(caption(), u"支出分类统计");
    EXPECT_TRUE(rig.at(charts::Range).isVisible());
    EXPECT_EQ(adodc1().recordSource(), u"select 项目,sum(金额) as 总金额 from zcb group by 项目");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
}

TEST_F(ChartsTest, GivesAnItemWithoutANameAPointWithAnEmptyLabel) {
    store(u"zcb"_s, u"'2024-06-03'"_s, u"NULL"_s, 7);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"NULL"_s, 1);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"''"_s, 5);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 3);
    choose(charts::ExpenseByItem);
    EXPECT_EQ(points(), u"=8 =5 买菜=3");
    EXPECT_TRUE(chart().places().label(0).lines.isEmpty());
    EXPECT_EQ(chart().places().valueText(0), u"8.00");
}

TEST_F(ChartsTest, GivesARowWithoutAmountAPointWithoutValue) {
    storeAccount(u"'空'"_s, u"NULL"_s);
    storeAccount(u"'零'"_s, u"0"_s);
    open();
    EXPECT_EQ(points(), u"空= 零=0");
    EXPECT_EQ(chart().places().valueText(0), u"");
    EXPECT_EQ(chart().places().valueText(1), u"0.00");
}

TEST_F(ChartsTest, TakesAnyTextForALabel) {
    storeAccount(u"'引''号\" #<b>&'"_s, u"1"_s);
    storeAccount(u"'%1'"_s.arg(QString(10'000, u'长')), u"2"_s);
    open();
    EXPECT_EQ(chart().ChartData().at(0).toList().at(0).toString(), u"引'号\" #<b>&");
    EXPECT_EQ(chart().ChartData().at(1).toList().at(0).toString().size(), 10'000);
    EXPECT_FALSE(rig.mainWindow().grab().isNull());
}

TEST_F(ChartsTest, LeavesTheDashAtTheEndOfAnyLabelThatIsNoMonth) {
    storeAccount(u"'备用-'"_s, u"1"_s);
    store(u"srb"_s, u"'2024-05-03'"_s, u"'奖金-'"_s, 2);
    store(u"zcb"_s, u"'2024-05-03'"_s, u"'杂项-'"_s, 3);
    const auto label = [this] { return chart().places().label(0).lines.join(u'/'); };
    open();
    EXPECT_EQ(label(), u"备用-");
    click(charts::IncomeByItem);
    EXPECT_EQ(label(), u"奖金-");
    query(u"2024-5-1"_s, u"2024-5-9"_s);
    EXPECT_EQ(label(), u"奖金-");
    click(charts::YearsIncome);
    EXPECT_EQ(label(), u"2024-5");
    EXPECT_EQ(points(), u"2024-5-=2");
    click(charts::ExpenseByItem);
    EXPECT_EQ(label(), u"杂项-");
}

TEST_F(ChartsTest, HidesTheQueryRowUnderChartsThatHaveNoRange) {
    storeOneEach();
    open();
    for (const QString& name : QStringList{charts::YearsIncome, charts::YearsExpense, charts::Accounts}) {
        click(charts::IncomeByItem);
        EXPECT_TRUE(rig.at(charts::Range).isVisible());
        click(name);
        EXPECT_FALSE(rig.at(charts::Range).Visible()) << name.toStdString();
    }
}

TEST_F(ChartsTest, ShowsTheQueryRowEvenWhereThereIsNothingToShow) {
    storeAccount(u"'现金'"_s, u"100"_s);
    choose(charts::ExpenseByItem);
    EXPECT_EQ(rig.lastMessage(), NothingToChart);
    EXPECT_TRUE(rig.at(charts::Range).isVisible());
}

TEST_F(ChartsTest, HasTheHandOverItsOptions) {
    storeOneEach();
    open();
    for (const QString& name : QStringList{charts::Accounts, charts::YearsIncome, charts::YearsExpense,
                                           charts::IncomeByItem, charts::ExpenseByItem}) {
        rig.hover(option(name));
        EXPECT_EQ(option(name).cursor().shape(), Qt::PointingHandCursor) << name.toStdString();
    }
}

TEST_F(ChartsTest, TakesTheHoverColourOffItsButton) {
    storeOneEach();
    choose(charts::IncomeByItem);
    auto& button = rig.at(charts::Query);
    rig.hover(button);
    EXPECT_EQ(button.BackColor(), 0xE0E0E0u);
    rig.hover(rig.at(charts::Range));
    EXPECT_EQ(button.BackColor(), 0xFFFFFFu);
}

TEST_F(ChartsTest, ScrollsManyAccounts) {
    for (int i = 0; i < 300; ++i)
        storeAccount(u"'账户%1'"_s.arg(i), QString::number(1000 * i));
    open();
    EXPECT_EQ(chart().ChartData().size(), 300);
    EXPECT_GT(chart().places().longestScroll(), 10'000);
    rig.press(chart(), Qt::Key_End);
    EXPECT_EQ(chart().scrolled(), chart().places().longestScroll());
}

TEST_F(ChartsTest, DrawsSumsBeyondAllNumbersAndBalancesThatAreNone) {
    storeAccount(u"'现金'"_s, u"'十元'"_s);
    storeAccount(u"'存折'"_s, u"9e999"_s);
    for (int i = 0; i < 2; ++i)
        store(u"srb"_s, u"'2024-05-03'"_s, u"'工资'"_s, 1e308);
    open();
    EXPECT_EQ(points(), u"现金= 存折=inf");
    for (const QString& name : {QString(charts::YearsIncome), QString(charts::IncomeByItem)}) {
        click(name);
        EXPECT_EQ(chart().places().valueText(0), u"溢出");
    }
    EXPECT_FALSE(rig.ended());
}

} // namespace
} // namespace qinghe::testing
