#include "maintenance/skin_rig.h"

#include <QMenu>

// The way to the next stored picture of the desktop and of the sign-in, of whose rows the first counts.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

struct Turned {
    const char* name;
    QStringView table, entry, told, add;
};

void PrintTo(const Turned& turned, std::ostream* out) {
    *out << turned.name;
}

class NextPictureTest : public SkinChoiceTest, public ::testing::WithParamInterface<Turned> {
protected:
    void store(const QString& name, const QByteArray& bytes) {
        rig.sql(u"insert into %1 values('%2',%3,x'%4')"_s.arg(GetParam().table.toString(), name)
                    .arg(bytes.size())
                    .arg(QString::fromLatin1((bytes + '\0').toHex())));
    }
    void turn() {
        rig.messages->shown.clear();
        rig.click(rig.at(settings::Pictures));
        auto& menu = *rig.at(settings::Pictures).findChild<QMenu*>();
        for (QAction* action : menu.actions())
            if (action->text() == GetParam().entry)
                QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        rig.settle();
    }
    QStringList names() { return rig.sql(u"select 名称 from %1 order by rowid"_s.arg(GetParam().table.toString())); }
    QStringList contents() { return rig.sql(u"select * from %1 order by 名称"_s.arg(GetParam().table.toString())); }
    ShownMessage told(const QString& name) { return {GetParam().told.toString().arg(name), 64, u"提示"_s}; }
};

INSTANTIATE_TEST_SUITE_P(Of, NextPictureTest,
                         ::testing::Values(Turned{"Desktop", u"主界面", u"换下一张桌面图片", u"桌面图片已换成“%1”。",
                                                  u"添加桌面图片"},
                                           Turned{"SignIn", u"登陆皮肤", u"换下一张登陆图片",
                                                  u"登陆图片已换成“%1”，下次启动时显示。", u"添加登陆图片"}),
                         [](const auto& turned) { return turned.param.name; });

TEST_P(NextPictureTest, MovesTheFirstBehindTheOthersRoundAndRound) {
    const QString first = names().front();
    store(u"山"_s, picture(Qt::blue));
    store(u"水"_s, picture(Qt::red));
    const QStringList before = contents();
    turn();
    EXPECT_EQ(rig.lastMessage(), told(u"山"_s));
    EXPECT_EQ(names(), (QStringList{u"山"_s, u"水"_s, first}));
    turn();
    turn();
    EXPECT_EQ(rig.lastMessage(), told(first));
    EXPECT_EQ(names(), (QStringList{first, u"山"_s, u"水"_s}));
    EXPECT_EQ(contents(), before); // each with all its bytes
}

TEST_P(NextPictureTest, PassesWhatCannotBeShownAndLeavesTheRowsWhereNothingElseCan) {
    const QString first = names().front();
    store(u"坏"_s, "no picture");
    store(u"空"_s, {});
    turn();
    EXPECT_EQ(rig.lastMessage(),
              (ShownMessage{u"没有存着别的图片，请先用“%1”添加一张。"_s.arg(GetParam().add), 64, u"提示"_s}));
    EXPECT_EQ(names(), (QStringList{first, u"坏"_s, u"空"_s}));
    store(u"山"_s, picture(Qt::blue));
    turn();
    EXPECT_EQ(names().front(), u"山");
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_P(NextPictureTest, SaysSoWhereThereIsOneAlone) {
    const QStringList before = contents();
    turn();
    EXPECT_EQ(rig.messages->shown.size(), 1u);
    EXPECT_EQ(contents(), before);
}

TEST_P(NextPictureTest, IsShownAtOnceOnTheDesktopAndAtTheNextStart) {
    store(u"山"_s, picture(Qt::red));
    turn();
    const bool desktop = GetParam().table == u"主界面";
    const auto isRed = [](const QImage& image) {
        return image.pixelColor(5, 5).red() > 240 && image.pixelColor(5, 5).blue() < 20;
    };
    EXPECT_EQ(isRed(rig.mainWindow().desktopPicture().picture()), desktop);
    rig.stop();
    if (desktop) {
        rig.signIn();
        EXPECT_TRUE(isRed(rig.mainWindow().desktopPicture().picture()));
    } else {
        rig.start();
        EXPECT_TRUE(isRed(rig.loaded(forms::SignIn)->picture()));
    }
}

} // namespace
} // namespace qinghe::testing
