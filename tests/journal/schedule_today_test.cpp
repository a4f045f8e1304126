#include "schedule_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ScheduleToday : public ScheduleTest {};

TEST_F(ScheduleToday, PlansOfTodayAreListedInTheOrderOfTheirWriting) {
    write(u"后来"_s, u"2024-6-18"_s, u"22"_s, u"0"_s);
    rig.click(save());
    plant(u"2024-06-19"_s, u"8 5"_s, u"明天"_s);
    rig.sql(u"insert into rcb(设置日期,日程日期,提醒时间,日程内容) values('2024-06-01','2024-06-18','8 5','先前')"_s);
    rig.click(today());
    EXPECT_EQ(text().Text(), u"日程 1：后来  提醒时间：2024-6-18日22 0分，设置日期为：2024-6-18 20:36:08\r\n"
                             u"日程 2：先前  提醒时间：2024-6-18日8 5分，设置日期为：2024-6-1\r\n"_s);
}

TEST_F(ScheduleToday, ALongListIsNotCut) {
    for (int i = 0; i < 60; ++i)
        plant(u"2024-06-18"_s, u"8 5"_s, u"一件很长很长的事情"_s);
    rig.click(today());
    EXPECT_EQ(text().Text().count(u"\r\n"_s), 60);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(ScheduleToday, WithoutAPlanTodayItSaysSoAndAFreshPlanClearsTheBox) {
    plant(u"2024-06-17"_s, u"8 5"_s, u"昨天"_s);
    rig.click(today());
    EXPECT_EQ(text().Text(), u"您还未添加今日日程！"_s);
    EXPECT_FALSE(save().isEnabled());
    rig.click(fresh());
    EXPECT_EQ(text().Text(), QString());
    EXPECT_EQ(counter(), u"2日程"_s);
    EXPECT_TRUE(save().isEnabled());
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(ScheduleToday, AListingCannotBeSavedAsAPlan) {
    plant(u"2024-06-18"_s, u"8 5"_s, u"a"_s);
    date().setBoxText(u"2024-6-18"_s);
    rig.click(today());
    EXPECT_FALSE(save().isEnabled());
    rig.click(fresh());
    EXPECT_EQ(plans(u"日程内容"_s), QStringList{u"a"_s});
    EXPECT_EQ(text().Text(), QString());
}

TEST_F(ScheduleToday, EmptyFieldsAreListedAsNothing) {
    rig.sql(u"insert into rcb(日程日期) values('2024-06-18')"_s);
    rig.click(today());
    EXPECT_EQ(text().Text(), u"日程 1：  提醒时间：2024-6-18日分，设置日期为：\r\n"_s);
}

} // namespace
} // namespace qinghe::testing
