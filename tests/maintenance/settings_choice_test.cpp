#include "settings_rig.h"

// The two boxes of the settings page that stand for a choice: the tray, and the reminders at the sign-in.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage Done{u"设置完毕"_s, 64, u"提示"_s};

class SettingsChoice : public SettingsTest {
protected:
    CheckBox& tray() { return box(settings::ToTray); }
    QStringList stored() { return rig.sql(u"select * from systuopanb"_s); }
};

TEST_F(SettingsChoice, TickingTheTrayStoresYesAndUntickingNo) {
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    EXPECT_TRUE(tray().Value());
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"0"_s});
    EXPECT_FALSE(tray().Value());
    EXPECT_EQ(rig.messages->shown, (std::vector{Done, Done}));
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"0"_s});
}

TEST_F(SettingsChoice, TheBoxPointsTheDataControlAtTheDataFile) {
    pointElsewhere();
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(SettingsChoice, TheChoiceOfTheTrayIsOnTheDiskWhenItIsTold) {
    QStringList then;
    rig.messages->whileShown = [&](const ShownMessage&) { then = stored(); };
    tick(tray());
    EXPECT_EQ(then, QStringList{u"1"_s});
}

TEST_F(SettingsChoice, ATickForATrayThatIsStoredAlreadyIsSilent) {
    rig.sql(u"update systuopanb set 最小化到托盘=1"_s);
    tick(tray());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    tick(tray());
    EXPECT_EQ(rig.messages->shown, std::vector{Done});
    EXPECT_EQ(stored(), QStringList{u"0"_s});
}

TEST_F(SettingsChoice, UntickingTheTrayRewritesAndSaysSoEvenWhenNoIsStored) {
    tick(tray());
    rig.sql(u"update systuopanb set 最小化到托盘=0"_s);
    rig.messages->shown.clear();
    tick(tray());
    EXPECT_EQ(rig.messages->shown, std::vector{Done});
    EXPECT_EQ(stored(), QStringList{u"0"_s});
}

TEST_F(SettingsChoice, AllRowsAreReplacedByOneAndAnEmptyTableGetsOne) {
    rig.sql(u"delete from systuopanb; insert into systuopanb values(0),(1),(0)"_s);
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    rig.sql(u"delete from systuopanb"_s);
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"0"_s});
    rig.sql(u"delete from systuopanb"_s);
    tick(tray());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(SettingsChoice, AStartWithTheTrayTicksItsBoxWithoutAWord) {
    tick(tray());
    startAgain();
    EXPECT_TRUE(tray().Value());
    EXPECT_FALSE(box(settings::Remind).Value());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(SettingsChoice, TheBoxOfTheRemindersStoresItsChoiceInItsOwnTableAndWords) {
    const ShownMessage done{u"设置完毕！"_s, 64, u"系统提示"_s};
    tick(box(settings::Remind));
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"1"_s});
    tick(box(settings::Remind));
    EXPECT_EQ(rig.sql(u"select * from txb"_s), QStringList{u"0"_s});
    EXPECT_EQ(rig.messages->shown, (std::vector{done, done}));
    EXPECT_EQ(stored(), QStringList{u"0"_s});
}

} // namespace
} // namespace qinghe::testing
