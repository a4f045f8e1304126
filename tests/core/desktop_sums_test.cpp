#include "core_fixture.h"

#include <QHelpEvent>

namespace qinghe::testing {
namespace {

const QStringList LastMonth{desktop::LastIncome, desktop::LastExpense, desktop::LastBudget, desktop::LastBorrowed,
                            desktop::LastLent};
const QStringList ThisMonth{desktop::Income, desktop::Expense, desktop::Budget, desktop::Borrowed, desktop::Lent};

class DesktopSums : public CoreTest {
protected:
    /// One row a ledger: income, expense, budget, borrowed and lent of one day.
    void book(const QString& day, const std::array<double, 5>& amounts) {
        rig.sql(u"insert into srb values('1','%1','工资','我',%2,'现金','',1)"_s.arg(day).arg(amounts[0]));
        rig.sql(u"insert into zcb values('1','%1','饭','我',%2,'现金','',1)"_s.arg(day).arg(amounts[1]));
        rig.sql(u"insert into ysb values('%1','旅行',%2,'',1)"_s.arg(day).arg(amounts[2]));
        rig.sql(u"insert into jrb values('现金','%1',%2,0,%2,'他','我','',1)"_s.arg(day).arg(amounts[3]));
        rig.sql(u"insert into jcb values('现金','%1',%2,0,%2,'我','他','',1)"_s.arg(day).arg(amounts[4]));
    }
    void bookIncome(const QString& day, const QString& amount) {
        rig.sql(u"insert into srb values('1','%1','工资','我',%2,'现金','',1)"_s.arg(day, amount));
    }
    /// Starts on this day and gives the ten figures.
    void startOn(const QDate& today) {
        rig.stop();
        rig.clock->time.setDate(today);
        rig.signIn();
    }
    QStringList figures(const QStringList& labels) {
        QStringList figures;
        for (const QString& name : labels)
            figures << caption(name);
        return figures;
    }
    /// The first line of what is told to whoever rests the pointer on a figure.
    QString tipOf(const QString& name) {
        QHelpEvent asked(QEvent::ToolTip, {1, 1}, label(name).mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&label(name), &asked);
        return label(name).toolTip().section(u'\n', 0, 0);
    }
    const QStringList nothing = QStringList(5, u"0.00元"_s);
};

TEST_F(DesktopSums, TheFiguresStandInTheirPlaces) {
    rig.signIn();
    const std::array<double, 5> tops{1200, 2160, 3120, 4080, 4920};
    for (qsizetype row = 0; row < 5; ++row) {
        EXPECT_EQ(label(LastMonth[row]).Left(), 2280);
        EXPECT_EQ(label(ThisMonth[row]).Left(), 6000);
        EXPECT_EQ(label(LastMonth[row]).Top(), tops[static_cast<std::size_t>(row)]);
        EXPECT_EQ(label(ThisMonth[row]).Top(), tops[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(rig.at(desktop::Page).Caption(), u"桌面"_s);
}

TEST_F(DesktopSums, WithoutRowsAllFiguresAreNought) {
    rig.signIn();
    EXPECT_EQ(figures(LastMonth), nothing);
    EXPECT_EQ(figures(ThisMonth), nothing);
}

TEST_F(DesktopSums, FromOctoberOnTheMonthsRowsAreSummed) {
    book(u"2024-10-03"_s, {1200, 30.5, 500, 70, 8});
    book(u"2024-10-31"_s, {0.25, 9.5, 0, 0, 0.125});
    book(u"2024-09-30"_s, {7, 7, 7, 7, 7});
    book(u"2023-10-03"_s, {7, 7, 7, 7, 7});
    startOn({2024, 10, 18});
    EXPECT_EQ(figures(ThisMonth),
              (QStringList{u"1200.25元"_s, u"40.00元"_s, u"500.00元"_s, u"70.00元"_s, u"8.13元"_s}));
    EXPECT_EQ(figures(LastMonth), nothing);
}

TEST_F(DesktopSums, NovemberAndDecemberCountTheirOwnRowsAndNeverThoseOfTheMonthBefore) {
    for (const int month : {10, 11, 12})
        book(u"2024-%1-05"_s.arg(month), {1. * month, 1. * month, 1. * month, 1. * month, 1. * month});
    startOn({2024, 11, 5});
    EXPECT_EQ(figures(ThisMonth), QStringList(5, u"11.00元"_s));
    EXPECT_EQ(figures(LastMonth), nothing);
    startOn({2024, 12, 5});
    EXPECT_EQ(figures(ThisMonth), QStringList(5, u"12.00元"_s));
    EXPECT_EQ(figures(LastMonth), nothing);
}

TEST_F(DesktopSums, InTheOtherMonthsTheDatesOwnTextKeepsTheRowsOut) {
    book(u"2024-06-18"_s, {1, 1, 1, 1, 1});
    book(u"2024-05-18"_s, {1, 1, 1, 1, 1});
    startOn({2024, 6, 18});
    EXPECT_EQ(figures(ThisMonth), nothing);
    EXPECT_EQ(figures(LastMonth), nothing);
}

TEST_F(DesktopSums, InJanuaryTheLeftHandFiguresAreNoughtWhateverTheTablesHold) {
    for (const QStringView day : {u"2023-12-31", u"2024-01-01", u"2024-10-10", u"2023-10-10"})
        book(day.toString(), {5, 5, 5, 5, 5});
    startOn({2024, 1, 15});
    EXPECT_EQ(figures(LastMonth), nothing);
}

TEST_F(DesktopSums, HalfAYuanHasNoDigitBeforeThePoint) {
    bookIncome(u"2024-10-01"_s, u"0.5"_s);
    startOn({2024, 10, 18});
    EXPECT_EQ(caption(desktop::Income), u".50元"_s);
}

TEST_F(DesktopSums, ALongFigureHasTheRestOfItsCardAndAnyOtherItsUsualWidth) {
    const auto widthWith = [this](const QString& amount) {
        bookIncome(u"2024-10-01"_s, amount);
        startOn({2024, 10, 18});
        return label(desktop::Income).Width();
    };
    EXPECT_EQ(widthWith(u"12345.5"_s), 1560);
    EXPECT_EQ(widthWith(u"1234567890123456"_s), 1680);
    EXPECT_EQ(label(desktop::Income).Left(), 6000);
    EXPECT_EQ(label(desktop::Expense).Width(), 1560);
    rig.sql(u"delete from srb"_s);
    EXPECT_EQ(widthWith(u"1"_s), 1560);
}

TEST_F(DesktopSums, ASumBeyondAllNumbersSaysSoAndKeepsNobodyOut) {
    bookIncome(u"2024-10-01"_s, QString(308, u'9') + u".0"_s);
    bookIncome(u"2024-10-02"_s, QString(308, u'9') + u".0"_s);
    startOn({2024, 10, 18});
    EXPECT_EQ(caption(desktop::Income), u"溢出"_s);
    EXPECT_FALSE(rig.ended());
}

TEST_F(DesktopSums, ASumBelowNoughtKeepsItsSign) {
    bookIncome(u"2024-10-01"_s, u"-12.5"_s);
    startOn({2024, 10, 18});
    EXPECT_EQ(caption(desktop::Income), u"-12.50元"_s);
}

TEST_F(DesktopSums, RowsThatCancelOutOrHoldNothingAreNought) {
    bookIncome(u"2024-10-01"_s, u"5"_s);
    bookIncome(u"2024-10-02"_s, u"-5"_s);
    rig.sql(u"insert into zcb values('1','2024-10-01','饭','我',null,'','',1)"_s);
    startOn({2024, 10, 18});
    EXPECT_EQ(caption(desktop::Income), u"0.00元"_s);
    EXPECT_EQ(caption(desktop::Expense), u"0.00元"_s);
}

TEST_F(DesktopSums, WorkOnTheOtherPagesLeavesTheFiguresAloneUntilTheNextStart) {
    bookIncome(u"2024-10-01"_s, u"100"_s);
    startOn({2024, 10, 18});
    click(pages::Income);
    bookIncome(u"2024-10-02"_s, u"11"_s);
    click(pages::Desktop);
    EXPECT_EQ(caption(desktop::Income), u"100.00元"_s);
    startOn({2024, 10, 18});
    EXPECT_EQ(caption(desktop::Income), u"111.00元"_s);
}

TEST_F(DesktopSums, ComingBackWritesTheSameFiguresAgain) {
    bookIncome(u"2024-10-01"_s, u"100"_s);
    startOn({2024, 10, 18});
    label(desktop::Income).setCaption(u"?"_s);
    label(desktop::LastIncome).setCaption(u"?"_s);
    click(pages::Desktop);
    EXPECT_EQ(caption(desktop::Income), u"100.00元"_s);
    EXPECT_EQ(caption(desktop::LastIncome), u"0.00元"_s);
}

TEST_F(DesktopSums, AToolTipTellsTheTrueSumOfTheFiguresCalendarMonth) {
    book(u"2024-05-01"_s, {8650, 30, 500, 70, 8});
    book(u"2024-05-31"_s, {0.5, 1, 0, 0, 0});
    book(u"2024-04-30"_s, {7, 7, 7, 7, 7});
    book(u"2023-05-05"_s, {3, 3, 3, 3, 3});
    startOn({2024, 5, 20});
    EXPECT_EQ(figures(ThisMonth), nothing); // their months' keys are others
    const QStringList names{u"收入"_s, u"支出"_s, u"预算"_s, u"借入"_s, u"借出"_s};
    const QStringList sums{u"8650.50元"_s, u"31.00元"_s, u"500.00元"_s, u"70.00元"_s, u"8.00元"_s};
    for (qsizetype row = 0; row < 5; ++row) {
        EXPECT_EQ(tipOf(ThisMonth[row]), u"2024年5月的%1合计：%2"_s.arg(names[row], sums[row]));
        EXPECT_EQ(tipOf(LastMonth[row]), u"2024年4月的%1合计：7.00元"_s.arg(names[row]));
    }
}

TEST_F(DesktopSums, AToolTipIsWorkedOutWhenItIsAskedFor) {
    startOn({2024, 1, 31});
    EXPECT_EQ(tipOf(desktop::Income), u"2024年1月的收入合计：0.00元");
    bookIncome(u"2024-01-31"_s, u"12"_s);
    bookIncome(u"2023-12-31"_s, u"0.5"_s);
    EXPECT_EQ(tipOf(desktop::Income), u"2024年1月的收入合计：12.00元");
    EXPECT_EQ(tipOf(desktop::LastIncome), u"2023年12月的收入合计：0.50元");
    EXPECT_EQ(caption(desktop::Income), u"0.00元");
}

TEST_F(DesktopSums, AToolTipThatCannotBeWorkedOutEndsNothing) {
    startOn({2024, 5, 20});
    rig.sql(u"alter table srb rename to gone"_s);
    EXPECT_EQ(tipOf(desktop::Income), u"登陆时算好的数字；之后记的账，下次启动时才计入。");
    EXPECT_FALSE(rig.ended());
}

} // namespace
} // namespace qinghe::testing
