#include "schedule_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ScheduleMusic : public ScheduleTest {
protected:
    QStringList takeCalls() { return std::exchange(rig.sound->calls, {}); }
};

TEST_F(ScheduleMusic, APieceThatIsChosenIsPlayed) {
    rig.press(music(), Qt::Key_Down);
    rig.press(music(), Qt::Key_Down);
    EXPECT_EQ(music().Text(), u"音乐2"_s);
    EXPECT_EQ(takeCalls(), (QStringList{u"open 音乐1.wav"_s, u"play"_s, u"close"_s, u"open 音乐2.wav"_s, u"play"_s}));
    EXPECT_EQ(rig.at(schedule::Player).FileName(), rig.file(u"音乐2.wav"_s));
}

TEST_F(ScheduleMusic, ThePieceThatPlaysBeginsAgainWhenItIsChosenAgain) {
    rig.press(music(), Qt::Key_Down);
    open(); // the list now holds each piece twice
    {
        const QSignalBlocker quiet(&music());
        music().setCurrentIndex(4);
    }
    takeCalls();
    rig.press(music(), Qt::Key_Down);
    EXPECT_EQ(takeCalls(), (QStringList{u"close"_s, u"open 音乐1.wav"_s, u"play"_s}));
}

TEST_F(ScheduleMusic, ChoosingClosesTheDatePicker) {
    rig.click(date());
    rig.press(music(), Qt::Key_Down);
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(ScheduleMusic, ATypedNameIsNoChoice) {
    rig.type(*music().lineEdit(), u"2"_s);
    rig.press(*music().lineEdit(), Qt::Key_Return);
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(ScheduleMusic, TheButtonEchoesTheChoicesAndStopsThePiece) {
    rig.press(music(), Qt::Key_Down);
    takeCalls();
    date().setBoxText(u"2024-6-20"_s);
    hour().setText(u"8"_s);
    minute().setText(u"5"_s);
    rig.click(date());
    rig.click(rig.at(schedule::TakeMusic));
    EXPECT_EQ(rig.at(schedule::Taken).Caption(), u"设置为：2024-6-20日8时 5分，提醒音乐为：音乐1"_s);
    EXPECT_EQ(takeCalls(), QStringList{u"stop"_s});
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
}

TEST_F(ScheduleMusic, TheEchoIsStaleUntilItIsAskedForAndSavingReadsTheLists) {
    auto& echo = rig.at(schedule::Taken);
    rig.click(rig.at(schedule::TakeMusic));
    const QString before = echo.Caption();
    write(u"a"_s, u"2024-6-20"_s, u"9"_s, u"30"_s);
    rig.press(music(), Qt::Key_End);
    music().setText(u"音乐5"_s);
    EXPECT_EQ(echo.Caption(), before);
    rig.click(save());
    EXPECT_EQ(plans(u"提醒时间,提醒音乐"_s), QStringList{u"9 30|音乐5"_s});
}

TEST_F(ScheduleMusic, ThePageIsOpenedAndLeftWithoutASound) {
    rig.click(rig.at(pages::Desktop));
    open();
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(ScheduleMusic, WithoutASoundDeviceAChoiceIsSilent) {
    rig.sound->present = false;
    rig.press(music(), Qt::Key_Down);
    rig.click(rig.at(schedule::TakeMusic));
    EXPECT_EQ(takeCalls(), QStringList{u"open 音乐1.wav"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_FALSE(rig.ended());
}

} // namespace
} // namespace qinghe::testing
