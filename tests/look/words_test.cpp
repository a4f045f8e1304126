#include "controls/controls.h"
#include "look/colours.h"
#include "look/fonts.h"
#include "look/label_painter.h"
#include "look/running_text.h"
#include "rendering.h"

#include <QPainter>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 RedFore = 0x0000FF;

/// A label of a role on a white ground.
struct OnWhite {
    OnWhite(Role role, const QString& caption, double width, double height) : label(&ground, u"Label"_s, caption) {
        setGround(ground, Qt::white);
        ground.resize(400, 200);
        label.setRole(role);
        label.place(0, 0, width, height);
    }
    QImage picture(double ratio = 1) { return rendered(ground, ratio).copy(QRect(QPoint(), label.size() * ratio)); }

    QWidget ground;
    Label label;
};

bool isRed(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 90 && colour.blue() < 90;
}

TEST(PageCaption, CountsItsLeadingBlanks) {
    EXPECT_EQ(pageCaption(u"  收入"_s).word, u"收入"_s);
    EXPECT_DOUBLE_EQ(pageCaption(u"  收入"_s).centre, 32);
    EXPECT_DOUBLE_EQ(pageCaption(u" 用户"_s).centre, 24);
    EXPECT_DOUBLE_EQ(pageCaption(u"设置"_s).centre, 16);
    EXPECT_EQ(pageCaption(u"   "_s).word, QString());
}

TEST(PageLabel, ItsWordStandsAtTheSamePlaceInRegularAndBold) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        OnWhite plain(Role::PageLabel, u"  收入"_s, 960, 480), red(Role::ChosenLabel, u"  收入"_s, 960, 480);
        red.label.setForeColor(RedFore);
        const QRect black = extent(plain.picture(ratio), isDarkInk);
        const QRect bold = extent(red.picture(ratio).copy(0, 0, qRound(64 * ratio), qRound(25 * ratio)), isRed);
        EXPECT_NEAR(black.center().x() / ratio, 32, 1.1);
        EXPECT_NEAR(bold.center().x() / ratio, 32, 1.1);
    }
}

TEST(PageLabel, ShowsItsKeyAtTheShoulderOfItsWord) {
    OnWhite at(Role::PageLabel, u"  收入"_s, 960, 480);
    const QRect shoulder(48, 0, 16, 14);
    EXPECT_TRUE(extent(at.picture().copy(shoulder), isDarkInk).isNull());
    at.label.setKeyHint(u"2"_s);
    EXPECT_FALSE(extent(at.picture().copy(shoulder), isDarkInk).isNull());
}

TEST(PageLabel, HasItsTabAndBarWhileItsPageIsInViewWhateverItsColour) {
    OnWhite at(Role::PageLabel, u"  收入"_s, 960, 480);
    setGround(at.ground, QColor(200, 230, 160));
    const QImage black = at.picture();
    EXPECT_TRUE(isNear(pixelAt(black, 12, 28), QColor(200, 230, 160))) << "no tab";
    EXPECT_TRUE(extent(black, isRed).isNull());
    at.label.setForeColor(RedFore);
    const QImage hovered = at.picture();
    EXPECT_TRUE(isNear(pixelAt(hovered, 12, 28), QColor(200, 230, 160))) << "no tab, the word alone is red";
    EXPECT_FALSE(isRed(pixelAt(hovered, 32, 27)));
    EXPECT_FALSE(extent(hovered, isRed).isNull());
    at.label.setRole(Role::ChosenLabel);
    const QImage red = at.picture();
    EXPECT_TRUE(isNear(pixelAt(red, 12, 28), Qt::white)) << "the tab";
    EXPECT_TRUE(isRed(pixelAt(red, 32, 27))) << "the bar";
    EXPECT_TRUE(isRed(pixelAt(red, 22, 27)));
    EXPECT_FALSE(isRed(pixelAt(red, 18, 27)));
    EXPECT_TRUE(isNear(pixelAt(red, 4, 16), QColor(200, 230, 160))) << "the tab is 48 px wide";
    at.label.setForeColor(0);
    EXPECT_TRUE(isRed(pixelAt(at.picture(), 32, 27))) << "the bar stays under a black word";
}

TEST(SignInButton, TurnsWhiteWhenItsWordTurnsRed) {
    OnWhite at(Role::SignInButton, u"   登录"_s, 1335, 375);
    EXPECT_TRUE(isNear(pixelAt(at.picture(), 5, 12), QColor(0xCC, 0xE8, 0xAF), 8));
    at.label.setForeColor(RedFore);
    EXPECT_TRUE(isNear(pixelAt(at.picture(), 5, 12), Qt::white));
    EXPECT_FALSE(extent(at.picture(), isRed).isNull());
}

TEST(DayCell, TodayIsABlueFieldWithWhiteWords) {
    OnWhite at(Role::DayCell, u"18"_s, 450, 360);
    setGround(at.ground, colour::Pine);
    at.label.setForeColor(0xFFFFFF);
    EXPECT_TRUE(isNear(pixelAt(at.picture(), 6, 12), colour::Pine));
    at.label.setBackColor(0xFF0000);
    EXPECT_TRUE(isNear(pixelAt(at.picture(), 6, 12), Qt::blue));
    EXPECT_TRUE(isNear(pixelAt(at.picture(), 1, 12), colour::Pine)) << "the field leaves 3 px at the sides";
}

TEST(DayCell, NeighbouringDaysAreYellow) {
    OnWhite at(Role::DayCell, u"30"_s, 450, 360);
    setGround(at.ground, colour::Pine);
    at.label.setForeColor(0x00FFFF);
    const auto isYellow = [](const QColor& c) { return c.red() > 200 && c.green() > 200 && c.blue() < 60; };
    EXPECT_FALSE(extent(at.picture(), isYellow).isNull());
}

TEST(WeekRow, EachCharacterStandsOverItsColumn) {
    OnWhite at(Role::WeekRow, u"日 一 二 三 四 五 六"_s, 3150, 315);
    setGround(at.ground, colour::Pine);
    const QImage image = at.picture();
    for (int column = 0; column < 7; ++column) {
        const QImage part = image.copy(30 * column, 0, 30, 19);
        const QRect ink = extent(part, [](const QColor& c) { return c.green() > 140; });
        EXPECT_NEAR(ink.center().x(), 15, 1.5) << column;
    }
}

TEST(Figure, StandsOnTheRight) {
    for (const QString& sum : {u"0.00元"_s, u"16116.85元"_s}) {
        OnWhite at(Role::Figure, sum, 1560, 300);
        EXPECT_GE(extent(at.picture(), isDarkInk).right(), 101) << sum.toStdString();
    }
}

TEST(Figure, IsNeverCutHoweverLongItIs) {
    for (const QString& sum :
         {u"-123456789.12元"_s, u"123456789012.34元"_s, u"-1234567890123456.00元"_s, u"100000000000000000000.00元"_s}) {
        for (const double ratio : {1.0, 2.0}) {
            OnWhite at(Role::Figure, sum, 1680, 300);
            const QRect ink = extent(at.picture(ratio), isDarkInk);
            EXPECT_GT(ink.left(), 0) << sum.toStdString();
            EXPECT_GE(ink.right(), qRound(108 * ratio)) << sum.toStdString();
            EXPECT_GT(ink.width(), qRound(95 * ratio)) << sum.toStdString();
        }
    }
}

TEST(Figure, ThatFitsKeepsItsSizeAndItsPlace) {
    OnWhite one(Role::Figure, u"16116.85元"_s, 1560, 300), other(Role::Figure, u"16116.85元"_s, 3000, 300);
    const QImage narrow = one.picture(), wide = other.picture();
    EXPECT_EQ(extent(narrow, isDarkInk).size(), extent(wide, isDarkInk).size());
    EXPECT_EQ(extent(narrow, isDarkInk).left() + 96, extent(wide, isDarkInk).left());
}

TEST(RunningText, BreaksLinesAtEveryKindOfLineEnd) {
    const QFont font = sans(type::Body);
    const double pitch = linePitch(font);
    EXPECT_NEAR(pitch, 1.5 * 10 * 96 / 72, 1);
    EXPECT_DOUBLE_EQ(runningHeight(u"日程 1"_s, font, 300), pitch);
    EXPECT_DOUBLE_EQ(runningHeight(u"一\r\n二\n三\r四"_s, font, 300), 4 * pitch);
    EXPECT_DOUBLE_EQ(runningHeight(u"一\r\n二\r\n"_s, font, 300), 2 * pitch);
    EXPECT_DOUBLE_EQ(runningHeight(QString(30, u'字'), font, 140), 3 * pitch);
}

TEST(RunningText, StaysInItsRoomAndSaysThatMoreFollows) {
    const QFont font = sans(type::Body);
    const auto picture = [&](const QString& text) {
        return drawn(QSize(200, 120), 1,
                     [&](QPainter& painter) { paintRunning(painter, QRectF(10, 10, 120, 45), text, font, Qt::black); });
    };
    const QRect ink = extent(picture(QString(100, u'字')), isDarkInk);
    EXPECT_TRUE(QRect(10, 10, 121, 45).contains(ink));
    EXPECT_NE(picture(QString(100, u'字')), picture(QString(18, u'字')));
}

TEST(Labels, WordsThatLookLikeMarkupAreShownAsTheyAre) {
    OnWhite plain(Role::Plain, u"b"_s, 3000, 300), marked(Role::Plain, u"<b>b</b>"_s, 3000, 300);
    EXPECT_GT(extent(marked.picture(), isDarkInk).width(), 3 * extent(plain.picture(), isDarkInk).width());
}

TEST(Labels, DisabledWordsArePale) {
    OnWhite at(Role::Plain, u"日期设置"_s, 3000, 300);
    EXPECT_FALSE(extent(at.picture(), isDarkInk).isNull());
    at.label.setEnabled(false);
    EXPECT_TRUE(extent(at.picture(), isDarkInk).isNull());
}

TEST(Type, NothingIsSmallerThanNinePoints) {
    const double scale = sans(9).pointSizeF() / 9;
    for (int role = 0; role <= static_cast<int>(Role::StripFrame); ++role)
        EXPECT_GE(fontFor(static_cast<Role>(role)).pointSizeF(), 9 * scale - 0.01) << role;
}

} // namespace
} // namespace qinghe::testing
