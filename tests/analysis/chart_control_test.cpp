#include "chart_control_rig.h"

#include <QAccessible>

// The chart as a control: what it takes, what it draws.

namespace qinghe::testing {
namespace {

TEST_F(ChartControlTest, ShowsASampleAndHoldsNoDataBeforeTheFirst) {
    EXPECT_EQ(chart.ChartData(), QVariantList());
    EXPECT_EQ(chart.places().matrix().rows.join(u' '), u"R1 R2 R3 R4 R5");
    EXPECT_EQ(chart.places().matrix().columns.join(u' '), u"C1 C2 C3 C4");
    EXPECT_EQ(chart.font().family(), u"宋体");
    EXPECT_FALSE(scrolls());
    expectNothingOverlaps();
}

TEST_F(ChartControlTest, SetsItsSampleInGroupsOfFour) {
    const QImage image = drawn();
    const int y = qRound(chart.places().y(20)); // all values of the sample are higher
    int columns = 0;
    bool inside = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool coloured = image.pixelColor(x, y).saturation() > 12;
        columns += coloured && !inside;
        inside = coloured;
    }
    EXPECT_EQ(columns, 20);
}

TEST_F(ChartControlTest, ShowsItsSamplePaleAndCallsItOne) {
    EXPECT_EQ(columnPixels(), 0);
    const QRectF middle(chart.width() / 2.0 - 30, chart.height() / 2.0 - 12, 60, 24);
    EXPECT_GT(count(drawn(), middle, isInk), 20); // 示例
    fill({10, 40, 25});
    EXPECT_GT(columnPixels(), 2000);
}

TEST_F(ChartControlTest, TellsEachMonthOfTheWholeSpanUnderThePointer) {
    QVariantList rows;
    for (int i = 0; i < 120; ++i)
        rows << QVariant(row(QDate(2014, 12, 5).addMonths(i).toString(u"yyyy-M-"_s).left(7), 14000.5 + i));
    chart.setChartData(rows, ChartLabels::Months);
    EXPECT_EQ(chart.scrolled(), chart.places().longestScroll());
    chart.showWhole(true);
    EXPECT_FALSE(scrolls());
    const QString tip = tipOver(60);
    EXPECT_TRUE(tip.contains(u"2019-12"_s)) << tip.toStdString();
    EXPECT_TRUE(tip.contains(u"14060.50"_s)) << tip.toStdString();
    EXPECT_GT(columnPixels(), 2000);
}

TEST_F(ChartControlTest, GivesBackTheDataItTook) {
    const QVariantList data{QVariant(row(u"2024-5-"_s, 12.5)), QVariant(row(u""_s, QVariant()))};
    chart.setProperty("ChartData", data);
    EXPECT_EQ(chart.property("ChartData").toList(), data);
    EXPECT_EQ(chart.places().label(0).lines, QStringList(u"2024-5-"_s));
}

TEST_F(ChartControlTest, DrawsAColumnWhereItsValueStands) {
    fill({10, 40, 25});
    const QImage image = drawn();
    const ChartLayout& places = chart.places();
    for (int i = 0; i < 3; ++i) {
        const double value = std::array{10.0, 40.0, 25.0}[static_cast<size_t>(i)];
        const int x = qRound(places.middle(i, 0));
        EXPECT_TRUE(isColumn(image.pixel(x, qRound(places.y(value)) + 1))) << i;
        EXPECT_TRUE(isColumn(image.pixel(x, qRound(places.y(0)) - 1))) << i;
        EXPECT_FALSE(isColumn(image.pixel(x, qRound(places.y(value)) - 1))) << i;
        EXPECT_TRUE(isColumn(image.pixel(x - 22, qRound(places.y(0)) - 2))) << i;
        EXPECT_FALSE(isColumn(image.pixel(x - 25, qRound(places.y(0)) - 2))) << i;
        EXPECT_GT(count(image, places.valueBox(i, 0), isInk), 10) << i;
        EXPECT_GT(count(image, places.labelBox(i, 0, places.label(i).lines.front(), 0), isInk), 10) << i;
    }
    EXPECT_EQ(image.pixelColor(qRound(places.middle(1, 0)), qRound(places.y(0)) - 1).name(), u"#a9d687");
    expectNothingOverlaps();
}

TEST_F(ChartControlTest, RoundsTheUpperCornersOfItsColumns) {
    fill({60});
    const QImage image = drawn();
    const int left = qRound(chart.places().middle(0, 0) - 23), top = qRound(chart.places().y(60));
    EXPECT_EQ(image.pixelColor(left, top), QColor(225, 234, 217)); // the line at 60, the column's corner is off
    EXPECT_TRUE(isColumn(image.pixel(left, top + 5)));
    EXPECT_TRUE(isColumn(image.pixel(left + 6, top + 1)));
    EXPECT_TRUE(isColumn(image.pixel(left, qRound(chart.places().y(0)) - 1)));
}

TEST_F(ChartControlTest, DrawsLinesInTheirColours) {
    fill({60, -20});
    const QImage image = drawn();
    const ChartLayout& places = chart.places();
    const int x = qRound(places.plot().left()) + 3;
    for (int i = 0; i < places.scale().lineCount(); ++i) {
        const bool zero = places.scale().line(i) == 0;
        EXPECT_EQ(image.pixelColor(x, qRound(places.lineY(i))).name(), zero ? u"#8fa884" : u"#e1ead9") << i;
    }
}

TEST_F(ChartControlTest, WritesTheNumbersOfItsAxisAndTheYuanAbove) {
    fill({60, -20});
    const QImage image = drawn();
    const ChartLayout& places = chart.places();
    EXPECT_GT(count(image, places.unitBox(), isWritten), 5);
    for (int i = 0; i < places.scale().lineCount(); ++i)
        EXPECT_GT(count(image, QRectF(20, places.lineY(i) - 5, 30, 10), isWritten), 3) << i;
    EXPECT_EQ(count(image, QRectF(51, 0, 5, chart.height()), isWritten), 0); // the gap before the plot
}

TEST_F(ChartControlTest, HangsNegativeValuesBelowTheAxisInAmber) {
    fill({-30, -60, -45});
    const QImage image = drawn();
    const ChartLayout& places = chart.places();
    EXPECT_EQ(count(image, QRectF(chart.rect()), isColumn), 0);
    const int x = qRound(places.middle(0, 0));
    EXPECT_EQ(image.pixelColor(x, qRound(places.y(0)) + 5).name(), u"#b86a00");
    EXPECT_TRUE(isAmber(image.pixel(x, qRound(places.y(-30)) - 1)));
    EXPECT_FALSE(isAmber(image.pixel(x, qRound(places.y(-30)) + 1)));
    EXPECT_FALSE(isAmber(image.pixel(x - 22, qRound(places.y(-30)) - 1))); // round at its foot
    expectNothingOverlaps();
}

TEST_F(ChartControlTest, HasNeitherColumnNorTextWhereThereIsNoValue) {
    chart.setChartData({QVariant(row(u"甲"_s, 10)), QVariant(row(u"乙"_s, QVariant())), QVariant(row(u"丙"_s, 20))});
    const QImage image = drawn();
    const QRectF slot(chart.places().middle(1, 0) - 40, 0, 80, chart.places().plot().bottom());
    EXPECT_EQ(count(image, slot, isColumn), 0);
    EXPECT_EQ(count(image, slot, isInk), 0);
    EXPECT_EQ(chart.places().valueText(1), u"");
    EXPECT_EQ(chart.places().label(1).lines, QStringList(u"乙"_s));
    expectNothingOverlaps();
}

TEST_F(ChartControlTest, WritesNothingUnderAnEmptyLabel) {
    chart.setChartData({QVariant(row(QString(), 10))});
    const ChartLayout& places = chart.places();
    EXPECT_TRUE(places.label(0).lines.isEmpty());
    EXPECT_EQ(count(drawn(), QRectF(0, places.plot().bottom() + 8, 720, 20), isInk), 0);
    EXPECT_EQ(places.valueText(0), u"10.00");
}

TEST_F(ChartControlTest, LetsTheSmallestAmountShow) {
    fill({1000000, 0.01, -0.01});
    const QImage image = drawn();
    const ChartLayout& places = chart.places();
    EXPECT_TRUE(isColumn(image.pixel(qRound(places.middle(1, 0)), qRound(places.y(0)) - 1)));
    EXPECT_TRUE(isAmber(image.pixel(qRound(places.middle(2, 0)), qRound(places.y(0)) + 1)));
}

TEST_F(ChartControlTest, LeavesItsLinesOutBehindTheDigitsOfAValue) {
    fill({1000, 955});
    const ChartLayout& places = chart.places();
    const QRectF box = places.valueBox(1, 0);
    const int y = qRound(places.lineY(places.scale().lineCount() - 1));
    ASSERT_TRUE(box.top() < y - 2 && y + 2 < box.bottom());
    const QImage image = drawn();
    EXPECT_EQ(image.pixelColor(qRound(box.left()) - 1, y).name(), u"#ffffff");
    EXPECT_EQ(image.pixelColor(qRound(box.left()) - 6, y).name(), u"#e1ead9");
}

TEST_F(ChartControlTest, DrawsNoColumnForNothing) {
    fill({0, 0, 0});
    EXPECT_EQ(columnPixels(), 0);
    EXPECT_EQ(chart.places().valueText(0), u"0.00");
    EXPECT_EQ(chart.places().scale().high(), 100);
    expectNothingOverlaps();
}

struct Shape {
    const char* name;
    int rows;
    double (*value)(int);
};
double fallen(int i) {
    return i % 5 == 0 ? -1500.25 * i : 99.99 * i;
}
double huge(int i) {
    return 1e15 + i;
}
double bottomless(int i) {
    return i % 2 ? -1e15 : -9.999e14;
}
double equal(int) {
    return 1234.5;
}
double nothing(int) {
    return 0;
}
double missing(int i) {
    return i % 3 ? i : ChartMatrix::NoValue;
}
double endless(int i) {
    return std::pow(10.0, i % 300);
}

double beyondAll(int i) {
    return i % 2 ? HUGE_VAL : -HUGE_VAL;
}

class ChartShapesTest : public ChartControlTest, public ::testing::WithParamInterface<Shape> {};

TEST_P(ChartShapesTest, WriteNothingOverAnything) {
    const Shape& shape = GetParam();
    std::vector<double> values;
    for (int i = 0; i < shape.rows; ++i)
        values.push_back(shape.value(i));
    for (const QString& label : {u"现"_s, u"小满教育金账户"_s, u"2024-1"_s, QString(10'000, u'长')}) {
        fill(values, label);
        const int longest = chart.places().longestScroll();
        for (const int at : {0, 31, longest / 2, longest}) {
            chart.scrollTo(at);
            expectNothingOverlaps();
            EXPECT_FALSE(drawn().isNull());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Charts, ChartShapesTest,
                         ::testing::Values(Shape{"OnePoint", 1, fallen}, Shape{"TwelvePoints", 12, fallen},
                                           Shape{"ThreeHundredPoints", 300, fallen}, Shape{"HugeValues", 12, huge},
                                           Shape{"AllNegative", 12, bottomless}, Shape{"EqualValues", 12, equal},
                                           Shape{"AllZero", 12, nothing}, Shape{"MissingValues", 12, missing},
                                           Shape{"ValuesWithoutEnd", 300, endless},
                                           Shape{"BeyondAllNumbers", 12, beyondAll}),
                         [](const auto& shape) { return shape.param.name; });

TEST_F(ChartControlTest, TellsALabelWholeThatIsCut) {
    chart.setChartData({QVariant(row(QString(100, u'长'), 12.5)), QVariant(row(u"短"_s, 3))});
    EXPECT_EQ(tipOver(1), u"");
    fill(std::vector<double>(8, 1), u"<b>一个很长很长很长很长很长的名称</b>"_s);
    const QString tip = tipOver(2);
    EXPECT_TRUE(tip.contains(u"&lt;b&gt;一个很长很长很长很长很长的名称&lt;/b&gt;2"_s)) << tip.toStdString();
    EXPECT_TRUE(tip.contains(u"1.00"_s)) << tip.toStdString();
}

TEST_F(ChartControlTest, KeepsTheTipOfAnEndlessLabelOnTheScreen) {
    fill(std::vector<double>(8, 1), QString(10'000, u'长'));
    const QString tip = tipOver(2);
    EXPECT_GT(tip.count(u'长'), 100);
    EXPECT_LT(tip.size(), 1200);
    EXPECT_TRUE(tip.contains(u"1.00"_s));
}

TEST_F(ChartControlTest, TakesWhatIsNoRowForARowWithoutAnything) {
    chart.setChartData({QVariant(), QVariant(5), QVariant(QVariantList{}), QVariant(row(u"甲"_s, u"乙"_s))});
    EXPECT_EQ(chart.places().matrix().rowCount(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(chart.places().valueText(i), u"");
    EXPECT_EQ(columnPixels(), 0);
}

TEST_F(ChartControlTest, SaysWhatIsMissingWhenItsModuleIsNotThere) {
    MSChart alone(&window, u"alone"_s, u"/nowhere"_s);
    alone.place(0, 0, 6000, 4335);
    alone.setChartData({QVariant(row(u"甲"_s, 10))});
    QImage image(alone.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    alone.paintOn(image);
    EXPECT_EQ(count(image, image.rect(), isColumn), 0);
    EXPECT_GT(count(image, QRectF(alone.rect()).adjusted(0, 100, 0, -100), isInk), 100);
    EXPECT_EQ(alone.places().valueText(0), u"10.00");
}

TEST_F(ChartControlTest, FollowsItsSize) {
    fill(std::vector<double>(8, 10));
    chart.place(120, 240, 5000, 3000);
    EXPECT_LT(chart.places().plot().right(), 334);
    EXPECT_EQ(strip()->isVisible(), chart.places().longestScroll() > 0);
    expectNothingOverlaps();
    chart.place(120, 240, 300, 300);
    EXPECT_FALSE(drawn().isNull());
}

class ChartScaleTest : public ChartControlTest, public ::testing::WithParamInterface<double> {};

TEST_P(ChartScaleTest, HasSharpLinesAndColumns) {
    fill({10, 40, 25.3});
    const double scale = GetParam();
    const QImage image = drawn(scale);
    const ChartLayout& places = chart.places();
    // Down through the free space at the left end: whole pixels in one of two colours or none.
    const int x = qRound((places.plot().left() + 3) * scale);
    int lines = 0;
    for (int y = 0; y < image.height(); ++y) {
        const QString colour = image.pixelColor(x, y).name();
        EXPECT_TRUE(colour == u"#ffffff" || colour == u"#e1ead9" || colour == u"#8fa884") << colour.toStdString();
        lines += colour != u"#ffffff";
    }
    EXPECT_EQ(lines, places.scale().lineCount() * qRound(scale));
    // Across a column: from the ground to its full colour within one pixel.
    const int y = qRound(places.y(5) * scale);
    for (int at = 1; at < image.width(); ++at)
        if (isColumn(image.pixel(at, y)) && !isColumn(image.pixel(at - 1, y))) {
            EXPECT_EQ(image.pixelColor(at - 1, y).name(), u"#ffffff") << at;
            EXPECT_EQ(image.pixel(at, y), image.pixel(at + 4, y)) << at;
        }
}

INSTANTIATE_TEST_SUITE_P(Screens, ChartScaleTest, ::testing::Values(1.0, 1.5, 2.0));

TEST_F(ChartControlTest, IsToldAsAListOfLabelAndValue) {
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&chart);
    EXPECT_EQ(told.role(), QAccessible::Chart);
    EXPECT_EQ(told.text(QAccessible::Description), u"还没有数据，画着的是示例"_s);
    EXPECT_EQ(told.childCount(), 0);
    chart.setChartData({QVariant(row(u"餐饮"_s, 123.45)), QVariant(row(u"旧账"_s, QVariant()))});
    ASSERT_EQ(told.childCount(), 2);
    EXPECT_EQ(told.child(0)->role(), QAccessible::ListItem);
    EXPECT_EQ(told.child(0)->text(QAccessible::Name), u"餐饮，123.45元"_s);
    EXPECT_EQ(told.child(1)->text(QAccessible::Name), u"旧账，没有数值"_s);
    EXPECT_EQ(told.child(1)->parent(), &told);
    EXPECT_EQ(told.indexOfChild(told.child(1)), 1);
    chart.setChartData({QVariant(row(u"2024-5-"_s, 8))}, ChartLabels::Months);
    EXPECT_EQ(told.childCount(), 1);
    EXPECT_EQ(told.child(0)->text(QAccessible::Name), u"2024-5，8.00元"_s);
}

} // namespace
} // namespace qinghe::testing
