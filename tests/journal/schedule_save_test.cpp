#include "schedule_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage Ask{u"是否保存当前安排"_s, 36, u"提醒"_s};
const ShownMessage WriteAtTheLeft{u"当前您可以在左侧添加新的日程安排！"_s, 64, u"操作提示"_s};
const ShownMessage Kept{u"当前记录以保存！"_s, 64, u"提示"_s};

class ScheduleSaving : public ScheduleTest {
protected:
    /// 添加新日程 answers the question for what stands on the page.
    void add(Answer answer) {
        rig.messages->answers = {answer};
        rig.click(fresh());
    }
    QString lastError() { return rig.messages->errors.empty() ? QString() : rig.messages->errors.back().second; }
};

TEST_F(ScheduleSaving, ThePlanIsWrittenWithTheMomentOfItsSaving) {
    write(u"视频"_s, u"2024-6-20"_s, u"20"_s, u"0"_s);
    music().setText(u"音乐3"_s);
    rig.click(save());
    EXPECT_EQ(plans(), QStringList{u"2024-06-18 20:36:08|1|2024-06-20|20 0|视频|音乐3|1"_s});
    EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{PlanSaved});
}

TEST_F(ScheduleSaving, SavingByTheOtherButtonStoresTheDayAlone) {
    write(u"视频"_s, u"2024-6-20"_s, u"8"_s, u"5"_s);
    add(Answer::Yes);
    EXPECT_EQ(plans(), QStringList{u"2024-06-18|1|2024-06-20|8 5|视频|音乐1|1"_s});
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{Ask, Kept}));
}

TEST_F(ScheduleSaving, OnlyTheSaveButtonStartsTheWatchAndWritesTheSetting) {
    rig.at(schedule::Remind).setValue(true);
    rig.sql(u"update txb set 日程提醒=0"_s);
    write(u"a"_s, u"2024-6-20"_s);
    add(Answer::Yes);
    EXPECT_FALSE(timer2().Enabled());
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"0"_s});
    timer2().setInterval(5);
    rig.click(fresh());
    write(u"b"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_TRUE(timer2().Enabled());
    EXPECT_EQ(timer2().interval(), 1000);
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"1"_s});
}

TEST_F(ScheduleSaving, TheSettingIsRewrittenFromTheBoxOfThisPageHoweverManyRowsItHas) {
    rig.sql(u"delete from txb; insert into txb values(1),(1)"_s);
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"0"_s});
    rig.sql(u"delete from txb"_s);
    rig.click(fresh());
    write(u"b"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"0"_s});
}

TEST_F(ScheduleSaving, WithoutTextOrDateItSaysSoAndStoresNothing) {
    write({}, u"2024-6-20"_s);
    rig.click(save());
    write(u"a"_s, {});
    rig.click(save());
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{PlanIncomplete, PlanIncomplete}));
    EXPECT_TRUE(save().isEnabled());
    EXPECT_FALSE(timer2().Enabled());
    rig.messages->shown.clear();
    add(Answer::Yes);
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{Ask, PlanIncomplete}));
    EXPECT_TRUE(plans().isEmpty());
    EXPECT_TRUE(save().isEnabled());
    // Still being written: the button asks again.
    rig.messages->shown.clear();
    add(Answer::No);
    EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{Ask});
}

TEST_F(ScheduleSaving, AnswerNoEmptiesTheTextAndKeepsTheRest) {
    write(u"a"_s, u"2024-6-20"_s);
    add(Answer::No);
    EXPECT_EQ(text().Text(), QString());
    EXPECT_EQ(counter(), u"1日程安排"_s);
    EXPECT_TRUE(save().isEnabled());
    EXPECT_TRUE(plans().isEmpty());
    // The plan is still being written: no fresh one is opened.
    rig.click(fresh());
    EXPECT_EQ(counter(), u"1日程安排"_s);
    EXPECT_EQ(rig.lastMessage(), WriteAtTheLeft);
}

TEST_F(ScheduleSaving, WithAnEmptyTextTheOtherButtonOnlyTellsWhereToWrite) {
    rig.click(fresh());
    EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{WriteAtTheLeft});
    EXPECT_EQ(counter(), u"1日程安排"_s);
}

TEST_F(ScheduleSaving, AFreshPlanNeedsOneMorePressAndHasTheNextNumber) {
    write(u"a"_s, u"2024-6-20"_s);
    add(Answer::Yes);
    EXPECT_FALSE(save().isEnabled());
    EXPECT_EQ(text().Text(), u"a"_s);
    rig.messages->shown.clear();
    rig.click(fresh());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(counter(), u"2日程"_s);
    EXPECT_EQ(text().Text(), QString());
    EXPECT_TRUE(save().isEnabled());
    text().setBoxText(u"b"_s);
    add(Answer::No);
    EXPECT_EQ(rig.lastMessage(), Ask);
}

TEST_F(ScheduleSaving, TwoPlansOfOneVisitAreNumberedAndALaterVisitBeginsAtOneAgain) {
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    rig.click(fresh());
    write(u"b"_s, u"2024-6-20"_s);
    rig.click(save());
    open();
    rig.click(fresh()); // what was saved last is still known: this opens a fresh plan
    EXPECT_EQ(counter(), u"2日程"_s);
    open();
    write(u"c"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"日程号,区别,日程内容"_s), (QStringList{u"1|1|a"_s, u"2|2|b"_s, u"1|3|c"_s}));
}

TEST_F(ScheduleSaving, ReturningToThePageLeavesTheSaveButtonDisabledUntilAFreshPlan) {
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_FALSE(save().isEnabled());
    rig.click(rig.at(pages::Desktop));
    open();
    EXPECT_FALSE(save().isEnabled());
    rig.click(fresh());
    EXPECT_TRUE(save().isEnabled());
}

TEST_F(ScheduleSaving, WithoutHourAndMinuteTheTimeIsALoneBlank) {
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"'['||提醒时间||']'"_s), QStringList{u"[ ]"_s});
    EXPECT_EQ(rig.lastMessage(), PlanSaved);
}

TEST_F(ScheduleSaving, HourMinuteAndMusicAreTakenAsTheyWereTyped) {
    write(u"a"_s, u"2024-6-20"_s, u"08"_s, u"半"_s);
    music().setText(u"不在这里"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"提醒时间,提醒音乐"_s), QStringList{u"08 半|不在这里"_s});
}

TEST_F(ScheduleSaving, ADayOfThePastIsStored) {
    write(u"a"_s, u"2020-2-29"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"日程日期"_s), QStringList{u"2020-02-29"_s});
}

TEST_F(ScheduleSaving, ADayThatIsNoneIsTheRunTimeErrorAndLeavesTheTableAlone) {
    plant(u"2024-06-18"_s, u"8 5"_s, u"before"_s);
    write(u"a"_s, u"2023-2-29"_s);
    rig.click(save());
    EXPECT_TRUE(lastError().contains(u"2023-2-29"_s)) << lastError().toStdString();
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(plans(u"日程内容"_s), QStringList{u"before"_s});
}

TEST_F(ScheduleSaving, TheRowNumberCountsTheRowsOfTheTableAndThisOne) {
    for (int i = 0; i < 3; ++i)
        plant(u"2024-06-18"_s, u"8 5"_s, u"before"_s);
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"区别"_s).back(), u"4"_s);
}

TEST_F(ScheduleSaving, SavingLeavesThePlansInTheFirstControlAndTheSettingInTheSecond) {
    rig.mainWindow().Adodc2->setConnectionString({});
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(rig.mainWindow().Adodc1->recordSource(), u"rcb"_s);
    EXPECT_EQ(rig.mainWindow().Adodc2->recordSource(), u"select 日程提醒 from txb"_s);
    EXPECT_EQ(rig.mainWindow().Adodc2->connectionString(), rig.program->shared().connection());
}

TEST_F(ScheduleSaving, SavingClosesTheDatePickerAlsoWhenItIsRefused) {
    rig.click(date());
    ASSERT_TRUE(rig.loaded(forms::DatePicker));
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), PlanIncomplete);
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    rig.click(date());
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(ScheduleSaving, WhatTheMessageSaysHasHappened) {
    QStringList during;
    rig.messages->whileShown = [&](const ShownMessage& message) {
        if (message == PlanSaved)
            during = plans(u"日程内容"_s) + rig.sql(u"select * from txb"_s);
    };
    rig.at(schedule::Remind).setValue(true);
    write(u"a"_s, u"2024-6-20"_s);
    rig.click(save());
    EXPECT_EQ(during, (QStringList{u"a"_s, u"1"_s}));
}

} // namespace
} // namespace qinghe::testing
