#include "analysis/charts_rig.h"

// Opening the page of the charts, its controls, and the charts of accounts and items.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

struct PlacedControl {
    const char16_t* name;
    const char16_t* caption;
    const char16_t* container;
    double left, top, width, height;
};

constexpr PlacedControl Controls[]{
    {u"Frame11", u"", u"Frame15", 240, 240, 11055, 615},
    {u"Option10", u"账户对比分析", u"Frame11", 120, 240, 1815, 255},
    {u"Option11", u"年度收入统计", u"Frame11", 2280, 240, 1815, 255},
    {u"Option12", u"年度年支出统计", u"Frame11", 4560, 240, 2055, 255},
    {u"Option13", u"收入分类统计", u"Frame11", 7080, 240, 1815, 255},
    {u"Option15", u"支出分类统计", u"Frame11", 9120, 240, 1815, 255},
    {u"Frame1", u"查询", u"Frame15", 5280, 840, 6135, 615},
    {u"Label13", u"在", u"Frame1", 720, 240, 255, 255},
    {u"Text1", u"日期1", u"Frame1", 1080, 240, 1215, 270},
    {u"Label14", u"和", u"Frame1", 2400, 240, 255, 255},
    {u"Text2", u"日期2", u"Frame1", 2760, 240, 1215, 270},
    {u"Label15", u"之间", u"Frame1", 4080, 240, 495, 255},
    {u"Command25", u"查询", u"Frame1", 5040, 240, 615, 255},
    {u"Frame12", u"", u"Frame15", 360, 1440, 11055, 4695},
    {u"MSC1", u"", u"Frame12", 120, 240, 10815, 4335},
};

TEST_F(ChartsTest, HasEveryControlInItsPlaceWithItsWords) {
    for (const PlacedControl& told : Controls) {
        const QString name = QString::fromUtf16(told.name);
        QWidget& container = rig.frame(QString::fromUtf16(told.container));
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
    for (const QString& name : {u"Option10"_s, u"Option11"_s, u"Option12"_s, u"Option13"_s, u"Option15"_s})
        EXPECT_FALSE(option(name).Value()) << name.toStdString();
    EXPECT_FALSE(rig.frame(u"Frame1"_s).Visible());
    EXPECT_FALSE(rig.frame(u"Frame15"_s).Visible());
    EXPECT_EQ(chart().ChartData(), QVariantList());
}

TEST_F(ChartsTest, OpensOnTheAccountsByItsLabel) {
    storeOneEach();
    storeAccount(u"'信用卡'"_s, u"-2310.5"_s);
    open();
    const Frame& frame = rig.frame(u"Frame15"_s);
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.Left(), 120);
    EXPECT_EQ(frame.Top(), 1680);
    EXPECT_EQ(frame.Width(), 11655);
    EXPECT_EQ(frame.Height(), 6225);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 12);
    EXPECT_EQ(rig.onMain<Label>(u"Label12"_s).ForeColor(), Red);
    EXPECT_EQ(rig.onMain<Label>(u"Label24"_s).ForeColor(), Black);
    EXPECT_TRUE(option(u"Option10"_s).Value());
    EXPECT_EQ(points(), u"现金=100 信用卡=-2310.5");
    EXPECT_EQ(caption(), u"账户对比分析");
    EXPECT_EQ(adodc1().recordSource(), u"select 账户名称,余额 from zhb");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
    EXPECT_FALSE(adodc1().recordset().eof()); // back on the first row
    EXPECT_TRUE(chart().isVisible());
}

TEST_F(ChartsTest, LeavesOtherPagesAndToolsBehind) {
    storeOneEach();
    rig.click(rig.onMain<Label>(u"Label2(0)"_s));
    rig.program->shared().openDatePicker(DateField::None, {}, {0, 0});
    open();
    EXPECT_FALSE(rig.frame(u"Frame2"_s).Visible());
    EXPECT_FALSE(rig.loaded(u"Form1"_s));
}

TEST_F(ChartsTest, RefusesAnEmptyTableOfAccountsAndKeepsTheSample) {
    rig.messages->whileShown = [this](const ShownMessage&) { EXPECT_TRUE(rig.frame(u"Frame15"_s).Visible()); };
    open();
    EXPECT_EQ(rig.messages->shown, std::vector{NothingToChart});
    EXPECT_EQ(chart().ChartData(), QVariantList());
    EXPECT_EQ(chart().places().matrix().rows.join(u' '), u"R1 R2 R3 R4 R5");
    EXPECT_EQ(caption(), u"");
    EXPECT_TRUE(rig.frame(u"Frame15"_s).isVisible());
}

TEST_F(ChartsTest, KeepsTheLastChartWhenAnOptionHasNothingToShow) {
    storeAccount(u"'现金'"_s, u"100"_s);
    open();
    for (const QString& name : {u"Option11"_s, u"Option12"_s, u"Option13"_s, u"Option15"_s}) {
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
    rig.click(rig.onMain<Label>(u"Label24"_s));
    open();
    EXPECT_EQ(points(), u"现金=100"); // the option was set already and raises no click
    click(u"Option13"_s);
    rig.click(rig.onMain<Label>(u"Label24"_s));
    open();
    EXPECT_EQ(points(), u"现金=100 支付宝=5"); // set anew by the label
    EXPECT_EQ(caption(), u"账户对比分析");
}

TEST_F(ChartsTest, SumsTheIncomeByItem) {
    store(u"srb"_s, u"'2024-05-03'"_s, u"'工资'"_s, 10);
    store(u"srb"_s, u"'2023-01-03'"_s, u"'奖金'"_s, 5);
    store(u"srb"_s, u"'2024-06-03'"_s, u"'工资'"_s, 2.5);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 7);
    choose(u"Option13"_s);
    EXPECT_EQ(points(), u"奖金=5 工资=12.5");
    EXPECT_EQ(caption(), u"收入分类统计");
    EXPECT_TRUE(rig.frame(u"Frame1"_s).isVisible());
    EXPECT_EQ(adodc1().recordSource(), u"select 项目,sum(金额) as 总金额 from srb group by 项目");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
}

TEST_F(ChartsTest, SumsTheExpenseByItem) {
    storeOneEach();
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 7);
    choose(u"Option15"_s);
    EXPECT_EQ(points(), u"买菜=27");
    EXPECT_EQ(caption(), u"支出分类统计");
    EXPECT_TRUE(rig.frame(u"Frame1"_s).isVisible());
    EXPECT_EQ(adodc1().recordSource(), u"select 项目,sum(金额) as 总金额 from zcb group by 项目");
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
}

TEST_F(ChartsTest, GivesAnItemWithoutANameAPointWithAnEmptyLabel) {
    store(u"zcb"_s, u"'2024-06-03'"_s, u"NULL"_s, 7);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"NULL"_s, 1);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"''"_s, 5);
    store(u"zcb"_s, u"'2024-06-03'"_s, u"'买菜'"_s, 3);
    choose(u"Option15"_s);
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
    click(u"Option13"_s);
    EXPECT_EQ(label(), u"奖金-");
    query(u"2024-5-1"_s, u"2024-5-9"_s);
    EXPECT_EQ(label(), u"奖金-");
    click(u"Option11"_s);
    EXPECT_EQ(label(), u"2024-5");
    EXPECT_EQ(points(), u"2024-5-=2");
    click(u"Option15"_s);
    EXPECT_EQ(label(), u"杂项-");
}

TEST_F(ChartsTest, HidesTheQueryRowUnderChartsThatHaveNoRange) {
    storeOneEach();
    open();
    for (const QString& name : {u"Option11"_s, u"Option12"_s, u"Option10"_s}) {
        click(u"Option13"_s);
        EXPECT_TRUE(rig.frame(u"Frame1"_s).isVisible());
        click(name);
        EXPECT_FALSE(rig.frame(u"Frame1"_s).Visible()) << name.toStdString();
    }
}

TEST_F(ChartsTest, ShowsTheQueryRowEvenWhereThereIsNothingToShow) {
    storeAccount(u"'现金'"_s, u"100"_s);
    choose(u"Option15"_s);
    EXPECT_EQ(rig.lastMessage(), NothingToChart);
    EXPECT_TRUE(rig.frame(u"Frame1"_s).isVisible());
}

TEST_F(ChartsTest, HasTheHandOverItsOptions) {
    storeOneEach();
    open();
    for (const QString& name : {u"Option10"_s, u"Option11"_s, u"Option12"_s, u"Option13"_s, u"Option15"_s}) {
        rig.hover(option(name));
        EXPECT_EQ(option(name).cursor().shape(), Qt::PointingHandCursor) << name.toStdString();
    }
}

TEST_F(ChartsTest, TakesTheHoverColourOffItsButton) {
    storeOneEach();
    choose(u"Option13"_s);
    auto& button = rig.onMain<CommandButton>(u"Command25"_s);
    rig.hover(button);
    EXPECT_EQ(button.BackColor(), 0xE0E0E0u);
    rig.hover(rig.frame(u"Frame1"_s));
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

} // namespace
} // namespace qinghe::testing
