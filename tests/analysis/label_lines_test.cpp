#include "analysis/even_ruler.h"
#include "analysis/label_lines.h"
#include "qt_printing.h"

#include <gtest/gtest.h>

// The words under a column: on one line, on two even ones, or cut.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class LabelLinesTest : public ::testing::Test {
protected:
    /// Lines joined with "/", and "!" behind them when something was cut.
    QString broken(const QString& words, double room, int mostLines = 2) {
        const LabelLines label = breakLabel(words, room, mostLines, ruler);
        for (const QString& line : label.lines)
            EXPECT_LE(ruler.width(line), std::max(room, ruler.width(u"…"_s))) << line.toStdString();
        return label.lines.join(u'/') + (label.cut ? u"!"_s : QString());
    }
    EvenRuler ruler{10};
};

TEST_F(LabelLinesTest, StayOnOneLineWhereTheyFit) {
    EXPECT_EQ(broken(u"现金"_s, 50), u"现金");
    EXPECT_EQ(broken(u"五个字刚好"_s, 50), u"五个字刚好");
}

TEST_F(LabelLinesTest, BreakIntoTwoEvenLinesOfWhichTheFirstIsNotTheShorter) {
    EXPECT_EQ(broken(u"小满教育金账户"_s, 50), u"小满教育/金账户");
    EXPECT_EQ(broken(u"住房公积金户"_s, 50), u"住房公/积金户");
    EXPECT_EQ(broken(u"一二三四五六七八九十"_s, 50), u"一二三四五/六七八九十");
}

TEST_F(LabelLinesTest, EndInAnEllipsisWhereTwoLinesAreNotEnough) {
    EXPECT_EQ(broken(u"一二三四五六七八九十百"_s, 50), u"一二三四五/六七八九…!");
    EXPECT_EQ(broken(u"一二三四五六"_s, 50, 1), u"一二三四…!");
}

TEST_F(LabelLinesTest, ShowAtLeastTheEllipsis) {
    EXPECT_EQ(broken(u"一二三"_s, 5), u"…/…!");
    EXPECT_EQ(broken(u"一"_s, 5), u"…!");
}

TEST_F(LabelLinesTest, CutNoCharacterInTwo) {
    // Each of these is two code units wide.
    const QString faces = u"😀😁😂🤣😃😄😅😆😉😊😋😎"_s;
    for (double room = 20; room < 300; room += 7)
        for (const QString& line : breakLabel(faces, room, 2, ruler).lines)
            EXPECT_EQ(line, QString::fromUtf8(line.toUtf8())) << room;
}

TEST_F(LabelLinesTest, LeaveOutTheBlankAtWhichTheyBreak) {
    EXPECT_EQ(broken(u"abcd efg"_s, 50), u"abcd/efg");
}

TEST_F(LabelLinesTest, AreNoneForAnEmptyLabel) {
    EXPECT_EQ(breakLabel({}, 50, 2, ruler).lines, QStringList());
    EXPECT_FALSE(breakLabel({}, 50, 2, ruler).cut);
}

TEST_F(LabelLinesTest, TakeALabelOfTenThousandCharacters) {
    const QString endless(10'000, u'长');
    EXPECT_EQ(broken(drawnLabel(endless), 50), u"长长长长长/长长长长…!");
    EXPECT_TRUE(breakLabel(drawnLabel(endless), 1e9, 2, ruler).cut);
}

TEST_F(LabelLinesTest, KeepTheDashThatALabelEndsIn) {
    for (const QString& words : {u"备用-"_s, u"-"_s, u"a--"_s, u"2024-5-"_s})
        EXPECT_EQ(drawnLabel(words), words);
}

TEST(MonthLabelTest, DropsTheDashThatAMonthsKeyEndsIn) {
    EXPECT_EQ(monthLabel(u"2024-5-"_s), u"2024-5");
    EXPECT_EQ(monthLabel(u"2024-10"_s), u"2024-10");
    EXPECT_EQ(monthLabel({}), u"");
}

TEST_F(LabelLinesTest, PutLineBreaksOnOneLine) {
    EXPECT_EQ(drawnLabel(u" 甲\r\n乙\t丙 "_s), u"甲 乙 丙");
}

TEST(FontRulerTest, GivesAWidthThatWordsDoNotExceed) {
    const FontRuler ruler{QFont()};
    for (const QString& words : {u"2024-5"_s, u"工行储蓄"_s, u"ICBC 工资卡"_s, u"14792.70"_s, QString()})
        EXPECT_GE(ruler.atMost(words) + 0.5, ruler.width(words)) << words.toStdString();
}

} // namespace
} // namespace qinghe::testing
