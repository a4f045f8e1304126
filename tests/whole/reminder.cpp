#include "household.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>

using namespace whole;
using namespace std::chrono_literals;

namespace {

const Message planSaved{"保存成功！", "保存提示", Message::Information, {"确定"}};

/// The story's clock moves on as a real one does: a plan of its next minute rings in earnest.
class Reminder : public ::testing::Test {
protected:
    void start(const std::string& now) {
        program = std::make_unique<Program>(folder, now);
        signIn(*program);
        program->click(pages::Schedule);
    }
    void plan(int hour, int minute, const std::string& text) {
        program->click(schedule::Plan);
        program->type(text);
        program->click(schedule::Date);
        pickDay(*program, 18);
        program->clearAndType(schedule::Hour, std::to_string(hour));
        program->clearAndType(schedule::Minute, std::to_string(minute));
        program->click(schedule::Save);
        EXPECT_EQ(program->message(), planSaved);
        program->answer("确定");
    }
    bool rings() {
        const std::vector<std::string> windows = program->windows();
        return std::find(windows.begin(), windows.end(), std::string(forms::Reminder)) != windows.end();
    }
    void waitForRing() {
        program->waitUntil([this] { return rings(); }, "the plan rings");
    }
    bool enabled(const std::string& timer) { return program->get(timer, "Enabled").toBool(); }

    const LedgerFolder folder;
    std::unique_ptr<Program> program;
};

TEST_F(Reminder, APlanOfTheNextMinuteRingsWithItsMusicAndIsQuietForThePause) {
    start("2024-11-18 20:36:54");
    plan(20, 37, "给爷爷打电话");
    EXPECT_FALSE(program->hasLoaded("libSDL2")); // nothing of the sound before the first piece
    waitForRing();
    EXPECT_EQ(program->text(reminder::Plan), "给爷爷打电话");
    program->waitUntil([this] { return program->hasHeardMusic(); }, "the music is heard");
    EXPECT_TRUE(program->hasLoaded("libSDL2"));
    program->click(reminder::Understood);
    EXPECT_FALSE(rings());
    const auto answered = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - answered < 64s) {
        program->wait(1000);
        ASSERT_FALSE(rings());
        ASSERT_FALSE(enabled(schedule::Watch));
    }
    program->waitUntil([this] { return enabled(schedule::Watch); }, "the pause ends");
    EXPECT_FALSE(enabled(schedule::Pause));
    EXPECT_FALSE(rings());
    EXPECT_EQ(folder.rows("select 日程日期,提醒时间,日程内容,提醒音乐 from rcb"),
              std::vector<std::string>{"2024-11-18|20 37|给爷爷打电话|音乐1"});
}

TEST_F(Reminder, WithoutThePieceOfMusicThePlanRingsAllTheSame) {
    folder.remove("音乐1.wav");
    start("2024-11-18 20:36:56");
    plan(20, 37, "浇水");
    waitForRing();
    program->click(reminder::EndMusic);
    program->look();
    EXPECT_EQ(program->text(reminder::Plan), "浇水");
    EXPECT_FALSE(program->showsMessage());
    program->close(forms::Reminder);
    waitForRing(); // its minute is not over
    program->click(reminder::Understood);
    EXPECT_FALSE(rings());
    endByCross(*program);
}

TEST_F(Reminder, AChoiceToBeRemindedCountsFromTheNextSignIn) {
    start("2024-11-18 20:36:08");
    EXPECT_FALSE(enabled(schedule::Watch));
    program->click(schedule::Remind);
    answer(*program, "设置完毕！");
    endByCross(*program);
    folder.execute("insert into rcb(日程日期,提醒时间,日程内容,提醒音乐) values('2024-11-19','7 10','上学','音乐2')");
    start("2024-11-19 07:10:05");
    EXPECT_FALSE(program->showsMessage());
    waitForRing();
    EXPECT_EQ(program->text(reminder::Plan), "上学");
    program->click(reminder::Understood);
}

} // namespace
