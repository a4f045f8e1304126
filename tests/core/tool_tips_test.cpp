#include "support/program_test.h"

// What surprises is told by a tool tip.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

struct Tip {
    QString control;
    QStringView says;
};

const Tip Tips[]{
    {u"Label10"_s, u"打开本页时算的总额"},
    {u"Label11"_s, u"换到这张表时算的总额"},
    {u"Label25"_s, u"登陆时算好的数字"},
    {u"Label35"_s, u"登陆时算好的数字"},
    {diary_page::Remove, u"删除日记列表里的第一条"},
    {u"Command9"_s, u"原有的小类和快速代码会全部清掉"},
    {u"Command12"_s, u"这些小类列在大类里"},
    {u"Check1"_s, u"不会开始或停止本次运行里的提醒"},
    {settings::Remind, u"不会开始或停止本次运行里的提醒"},
    {settings::Restore, u"覆盖现在的整个账本"},
    {u"Label20"_s, u"首页（本机网页）"},
};

TEST_F(ProgramTest, WhatSurprisesHasAToolTipThatTellsIt) {
    rig.signIn();
    for (const Tip& tip : Tips) {
        const QString told = rig.onMain<QWidget>(tip.control).toolTip();
        EXPECT_TRUE(told.contains(tip.says)) << tip.control.toStdString() << ": " << told.toStdString();
        for (const QString& line : told.split(u'\n'))
            EXPECT_LT(line.size(), 40) << line.toStdString(); // nothing else breaks them
    }
}

} // namespace
} // namespace qinghe::testing
