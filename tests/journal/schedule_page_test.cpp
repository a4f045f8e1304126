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
    EXPECT_EQ(rig.onMain<Label>(u"Label23"_s).ForeColor(), 255U);
    const Frame& page = rig.frame(u"Frame17"_s);
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(QRectF(page.Left(), page.Top(), page.Width(), page.Height()), QRectF(120, 1680, 11655, 6015));
    EXPECT_FALSE(rig.frame(u"Frame13"_s).Visible());
    EXPECT_FALSE(rig.onMain<MMControl>(u"MM1"_s).isVisible());
    EXPECT_FALSE(rig.mainWindow().Adodc1->isVisible());
}

TEST_F(SchedulePageTest, OpeningConnectsItsTable) {
    Adodc& control = *rig.mainWindow().Adodc1;
    control.setConnectionString({});
    open();
    EXPECT_EQ(control.connectionString(), rig.program->shared().connection());
}

TEST_F(SchedulePageTest, OpeningUnloadsTheTools) {
    rig.click(date());
    ASSERT_TRUE(rig.loaded(u"Form1"_s));
    open();
    EXPECT_FALSE(rig.loaded(u"Form1"_s));
}

TEST_F(SchedulePageTest, ItsControlsBearTheirCaptions) {
    EXPECT_EQ(rig.frame(u"Frame18"_s).Caption(), u"提醒设置"_s);
    for (const auto& [name, caption] :
         std::initializer_list<std::pair<QString, QString>>{{u"Label9"_s, u"日期设置："_s},
                                                            {u"Label18"_s, u"时间设置："_s},
                                                            {u"Label46"_s, u"音乐："_s},
                                                            {u"Label19"_s, u"时"_s},
                                                            {u"Label45"_s, u"分"_s},
                                                            {u"Label22"_s, QString()}})
        EXPECT_EQ(rig.onMain<Label>(name).Caption(), caption);
    EXPECT_EQ(fresh().text(), u"添加新日程"_s);
    EXPECT_EQ(today().text(), u"查看今日日程"_s);
    EXPECT_EQ(save().text(), u"保存日程和设置"_s);
    EXPECT_EQ(rig.onMain<CommandButton>(u"Command29"_s).text(), u"确定音乐"_s);
    EXPECT_EQ(rig.onMain<CheckBox>(u"Check1"_s).text(), u"登陆定时提醒日程"_s);
    EXPECT_TRUE(rig.onMain<CheckBox>(u"Check1"_s).isVisible());
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
    rig.click(rig.onMain<Label>(u"Label24"_s));
    open();
    EXPECT_EQ(counter(), u"1日程安排"_s);
    EXPECT_EQ(text().Text(), QString());
    EXPECT_EQ(date().Text(), u"2024-6-20"_s);
}

TEST_F(SchedulePageTest, TheDatePickerHangsBelowTheDateAndFillsIt) {
    rig.click(date());
    Form* picker = rig.loaded(u"Form1"_s);
    ASSERT_TRUE(picker);
    const MainWindow& window = rig.mainWindow();
    EXPECT_EQ(picker->Left(), 120 + 6720 + 1440 + window.Left());
    EXPECT_EQ(picker->Top(), 1680 + 840 + 480 + window.Top() + 500);
    EXPECT_EQ(rig.program->shared().dateTarget, 6);
    rig.doubleClick(rig.control<Label>(u"Form1"_s, u"Label3(10)"_s)); // June 2024 begins on a Saturday
    EXPECT_EQ(date().Text(), u"2024-6-5"_s);
}

TEST_F(SchedulePageTest, OverTheBoxOfTheRemindersThePointerIsAHand) {
    rig.hover(rig.onMain<CheckBox>(u"Check1"_s));
    EXPECT_EQ(rig.onMain<CheckBox>(u"Check1"_s).cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(SchedulePageTest, TheButtonsUnderThePointerAreGreyUntilItIsOnTheirFrame) {
    auto& sure = rig.onMain<CommandButton>(u"Command29"_s);
    for (CommandButton* button : {&fresh(), &today(), &save(), &sure}) {
        rig.hover(*button);
        EXPECT_EQ(button->BackColor(), 0xE0E0E0U);
    }
    rig.hover(rig.frame(u"Frame18"_s));
    EXPECT_EQ(sure.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(save().BackColor(), 0xE0E0E0U);
    rig.hover(rig.frame(u"Frame17"_s));
    for (CommandButton* button : {&fresh(), &today(), &save()})
        EXPECT_EQ(button->BackColor(), 0xFFFFFFU);
}

} // namespace
} // namespace qinghe::testing
