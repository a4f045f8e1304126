#include "schedule_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SchedulePageTest : public ScheduleTest {
protected:
    static QStringList entries(const ComboBox& list) {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts << list.itemText(i);
        return texts;
    }
    static QStringList numbers(int count) {
        QStringList texts;
        for (int i = 0; i < count; ++i)
            texts << QString::number(i);
        return texts;
    }
};

TEST_F(SchedulePageTest, ItsLabelBringsThePageForward) {
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 23);
    EXPECT_EQ(rig.at(pages::Schedule).ForeColor(), 255U);
    const Frame& page = rig.at(schedule::Page);
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(QRectF(page.Left(), page.Top(), page.Width(), page.Height()), QRectF(120, 1680, 11655, 6015));
    EXPECT_FALSE(rig.at(desktop::Page).Visible());
    EXPECT_FALSE(rig.at(schedule::Player).isVisible());
    EXPECT_FALSE(rig.mainWindow().Adodc1->isVisible());
}

TEST_F(SchedulePageTest, AsksTheProgramsOwnFileWhereverTheControlWasPointed) {
    Adodc& control = *rig.mainWindow().Adodc1;
    control.setConnectionString({});
    open();
    rig.click(today());
    EXPECT_EQ(control.connectionString(), rig.program->shared().connection());
}

TEST_F(SchedulePageTest, OpeningUnloadsTheTools) {
    rig.click(date());
    ASSERT_TRUE(rig.loaded(forms::DatePicker));
    open();
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(SchedulePageTest, ItsControlsBearTheirCaptions) {
    EXPECT_EQ(rig.at(schedule::Reminder).Caption(), u"提醒设置"_s);
    for (const auto& [name, caption] :
         std::initializer_list<std::pair<QString, QString>>{{schedule::DateWords, u"日期设置："_s},
                                                            {schedule::TimeWords, u"时间设置："_s},
                                                            {schedule::MusicWords, u"音乐："_s},
                                                            {schedule::HourWord, u"时"_s},
                                                            {schedule::MinuteWord, u"分"_s},
                                                            {schedule::Taken, QString()}})
        EXPECT_EQ(rig.onMain<Label>(name).Caption(), caption);
    EXPECT_EQ(fresh().text(), u"添加新日程"_s);
    EXPECT_EQ(today().text(), u"查看今日日程"_s);
    EXPECT_EQ(save().text(), u"保存日程和设置"_s);
    EXPECT_EQ(rig.at(schedule::TakeMusic).text(), u"确定音乐"_s);
    EXPECT_EQ(rig.at(schedule::Remind).text(), u"登陆定时提醒日程"_s);
    EXPECT_TRUE(rig.at(schedule::Remind).isVisible());
}

TEST_F(SchedulePageTest, TheListsHoldFivePiecesAndTheHoursAndMinutesOfADay) {
    EXPECT_EQ(entries(music()), (QStringList{u"音乐1"_s, u"音乐2"_s, u"音乐3"_s, u"音乐4"_s, u"音乐5"_s}));
    EXPECT_EQ(entries(hour()), numbers(24));
    EXPECT_EQ(entries(minute()), numbers(60));
    EXPECT_EQ(music().Text(), u"音乐1"_s);
    EXPECT_EQ(hour().Text(), QString());
    EXPECT_EQ(minute().Text(), QString());
}

TEST_F(SchedulePageTest, EachFurtherVisitAddsTheSameEntriesOnceMore) {
    hour().setText(u"7"_s);
    open();
    EXPECT_EQ(entries(hour()), numbers(24) + numbers(24));
    EXPECT_EQ(entries(minute()), numbers(60) + numbers(60));
    EXPECT_EQ(music().count(), 10);
    EXPECT_EQ(music().itemText(5), u"音乐1"_s);
    EXPECT_EQ(hour().Text(), u"7"_s);
    EXPECT_EQ(music().Text(), u"音乐1"_s);
}

TEST_F(SchedulePageTest, AVisitBeginsWithPlanOneAndAnEmptyTextAndKeepsTheDate) {
    EXPECT_EQ(counter(), u"1日程安排"_s);
    write(u"half a plan"_s, u"2024-6-20"_s);
    rig.click(rig.at(pages::Desktop));
    open();
    EXPECT_EQ(counter(), u"1日程安排"_s);
    EXPECT_EQ(text().Text(), QString());
    EXPECT_EQ(date().Text(), u"2024-6-20"_s);
}

TEST_F(SchedulePageTest, TheDatePickerHangsBelowTheDateAndFillsIt) {
    rig.click(date());
    Form* picker = rig.loaded(forms::DatePicker);
    ASSERT_TRUE(picker);
    const MainWindow& window = rig.mainWindow();
    EXPECT_EQ(picker->Left(), 120 + 6720 + 1440 + window.Left());
    EXPECT_EQ(picker->Top(), 1680 + 840 + 480 + window.Top() + 500);
    EXPECT_EQ(rig.program->shared().dateTarget, 6);
    rig.doubleClick(rig.at(date_picker::Day[10])); // June 2024 begins on a Saturday
    EXPECT_EQ(date().Text(), u"2024-6-5"_s);
}

TEST_F(SchedulePageTest, OverTheBoxOfTheRemindersThePointerIsAHand) {
    rig.hover(rig.at(schedule::Remind));
    EXPECT_EQ(rig.at(schedule::Remind).cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(SchedulePageTest, TheButtonsUnderThePointerAreGreyUntilItIsOnTheirFrame) {
    auto& sure = rig.at(schedule::TakeMusic);
    for (CommandButton* button : {&fresh(), &today(), &save(), &sure}) {
        rig.hover(*button);
        EXPECT_EQ(button->BackColor(), 0xE0E0E0U);
    }
    rig.hover(rig.at(schedule::Reminder));
    EXPECT_EQ(sure.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(save().BackColor(), 0xE0E0E0U);
    rig.hover(rig.at(schedule::Page));
    for (CommandButton* button : {&fresh(), &today(), &save()})
        EXPECT_EQ(button->BackColor(), 0xFFFFFFU);
}

} // namespace
} // namespace qinghe::testing
