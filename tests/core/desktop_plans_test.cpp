#include "core_fixture.h"

namespace qinghe::testing {
namespace {

const QString NoPlans = u"您还未添加今日日程！"_s;

class DesktopPlans : public CoreTest {
protected:
    void plan(const QString& day, const QString& text) {
        rig.sql(u"insert into rcb values('2024-06-01 08:00:00',1,'%1','9:30','%2','音乐1',1)"_s.arg(day, text));
    }
    QString plans() { return caption(desktop::Plans); }
};

TEST_F(DesktopPlans, TheListStandsInItsPlace) {
    rig.signIn();
    const Label& list = label(desktop::Plans);
    EXPECT_EQ(list.Left(), 8160);
    EXPECT_EQ(list.Top(), 1680);
    EXPECT_EQ(list.Width(), 2775);
    EXPECT_EQ(list.Height(), 3855);
}

TEST_F(DesktopPlans, WithoutPlansForTodayItSaysSoAtTheStartAndOnTheDesktopsLabel) {
    plan(u"2024-06-17"_s, u"昨天"_s);
    plan(u"2024-06-19"_s, u"明天"_s);
    rig.signIn();
    EXPECT_EQ(plans(), NoPlans);
    label(desktop::Plans).setCaption(u"?"_s);
    click(pages::Desktop);
    EXPECT_EQ(plans(), NoPlans);
}

TEST_F(DesktopPlans, TodaysPlansAreNumberedBehindABlankAndEachEndsItsLine) {
    plan(u"2024-06-18"_s, u"买菜"_s);
    plan(u"2024-06-17"_s, u"昨天"_s);
    plan(u"2024-06-18"_s, u"给外婆打电话"_s);
    rig.signIn();
    EXPECT_EQ(plans(), u"日程 1：买菜\r\n日程 2：给外婆打电话\r\n"_s);
}

TEST_F(DesktopPlans, AreListedInTheOrderOfWriting) {
    for (const QStringView text : {u"丙", u"甲", u"乙"})
        plan(u"2024-06-18"_s, text.toString());
    rig.signIn();
    EXPECT_EQ(plans(), u"日程 1：丙\r\n日程 2：甲\r\n日程 3：乙\r\n"_s);
}

TEST_F(DesktopPlans, TheTenthIsNumberedLikeTheOthers) {
    for (int i = 1; i <= 10; ++i)
        plan(u"2024-06-18"_s, u"事"_s);
    rig.signIn();
    EXPECT_TRUE(plans().endsWith(u"日程 9：事\r\n日程 10：事\r\n"_s)) << plans().toStdString();
}

TEST_F(DesktopPlans, TheDesktopsLabelFillsTheListAnewAndNotTwice) {
    plan(u"2024-06-18"_s, u"买菜"_s);
    rig.signIn();
    plan(u"2024-06-18"_s, u"做饭"_s);
    click(pages::Desktop);
    click(pages::Desktop);
    EXPECT_EQ(plans(), u"日程 1：买菜\r\n日程 2：做饭\r\n"_s);
}

TEST_F(DesktopPlans, PlansThatAreGoneAreGoneWithTheNextClick) {
    plan(u"2024-06-18"_s, u"买菜"_s);
    rig.signIn();
    rig.sql(u"delete from rcb"_s);
    click(pages::Diary);
    EXPECT_EQ(plans(), u"日程 1：买菜\r\n"_s);
    click(pages::Desktop);
    EXPECT_EQ(plans(), NoPlans);
}

TEST_F(DesktopPlans, TodayIsTheDayOfTheClick) {
    plan(u"2024-06-19"_s, u"明天"_s);
    rig.signIn();
    rig.clock->time = QDateTime(QDate(2024, 6, 19), QTime(0, 0, 5));
    click(pages::Desktop);
    EXPECT_EQ(plans(), u"日程 1：明天\r\n"_s);
}

TEST_F(DesktopPlans, APlanIsShownAsItWasWritten) {
    plan(u"2024-06-18"_s, u"<b>买</b> & 卖"_s);
    rig.signIn();
    EXPECT_EQ(plans(), u"日程 1：<b>买</b> & 卖\r\n"_s);
}

} // namespace
} // namespace qinghe::testing
