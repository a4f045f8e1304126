#include "settings_rig.h"

// The settings page: how it opens, what stands where, the hand over it, and the way to the categories.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SettingsPageTest : public SettingsTest {
protected:
    CommandButton& categories() { return rig.onMain<CommandButton>(u"Command31"_s); }

    /// The control stands in its frame as told, in twips.
    template<class T>
    void expectPlace(const QString& name, const QString& frame, const QString& words, double left, double top,
                     double width, double height) {
        const T& control = rig.onMain<T>(name);
        EXPECT_EQ(control.text(), words);
        EXPECT_EQ(control.parentWidget()->objectName(), frame) << name.toStdString();
        EXPECT_EQ((std::array{control.Left(), control.Top(), control.Width(), control.Height()}),
                  (std::array{left, top, width, height}))
            << name.toStdString();
    }
};

TEST_F(SettingsPageTest, OpensInItsPlaceInFrontOfAllOthers) {
    const Frame& page = rig.frame(u"Frame16"_s);
    EXPECT_EQ(page.Caption(), u"设置");
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ((std::array{page.Left(), page.Top(), page.Width(), page.Height()}),
              (std::array{120., 1680., 11655., 6135.}));
    for (const Page* other : rig.mainWindow().navigation().pages())
        EXPECT_EQ(other->frame().Visible(), &other->frame() == &page) << other->frame().objectName().toStdString();
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 7);
    EXPECT_EQ(rig.onMain<Label>(u"Label7"_s).ForeColor(), 255u);
    EXPECT_EQ(rig.onMain<Label>(u"Label24"_s).ForeColor(), 0u);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(SettingsPageTest, UnloadsTheToolsOfOtherPages) {
    handlers::enter([this] {
        rig.program->shared().openDatePicker(DateField::None, {}, {3000, 3000});
        rig.program->shared().openCalculator(AmountField::None, {}, {6000, 3000});
        rig.program->shared().forms.get(names::Purge).showForm();
    });
    open();
    for (const auto& tool : {u"Form1"_s, u"Form3"_s, u"Form9"_s})
        EXPECT_FALSE(rig.loaded(tool)) << tool.toStdString();
}

TEST_F(SettingsPageTest, TheSystemsSettingsStandInTheirPlaces) {
    EXPECT_EQ(rig.frame(u"Frame20"_s).Caption(), u"系统设置");
    EXPECT_EQ(rig.frame(u"Frame20"_s).parentWidget(), &rig.frame(u"Frame16"_s));
    expectPlace<CheckBox>(u"Check8"_s, u"Frame20"_s, u"登陆自动定时提醒今日日程"_s, 360, 600, 4000, 330);
    expectPlace<CheckBox>(u"Check7"_s, u"Frame20"_s, u"最小化到系统托盘"_s, 360, 1200, 4000, 330);
    expectPlace<CheckBox>(u"Check5"_s, u"Frame20"_s, u"开机启动"_s, 2880, 1200, 2400, 330);
    expectPlace<CheckBox>(u"Check10"_s, u"Frame20"_s, u"更换记账本皮肤"_s, 360, 1800, 4000, 330);
    expectPlace<CommandButton>(u"Command30"_s, u"Frame20"_s, u"确定"_s, 3480, 2280, 1080, 390);
    expectPlace<CommandButton>(u"Command31"_s, u"Frame20"_s, u"收支分类设置"_s, 360, 3450, 1920, 390);
    expectPlace<CommandButton>(u"Command32"_s, u"Frame20"_s, u"更换图片"_s, 2400, 3450, 1560, 390);
    for (const auto& name : {u"Check7"_s, u"Check8"_s, u"Check10"_s, u"Command31"_s, u"Command32"_s}) {
        const QWidget& control = rig.onMain<QWidget>(name);
        EXPECT_TRUE(control.isVisible()) << name.toStdString();
        EXPECT_TRUE(rig.frame(u"Frame20"_s).rect().contains(control.geometry())) << name.toStdString();
    }
}

TEST_F(SettingsPageTest, TheFileSettingsStandInTheirPlaces) {
    EXPECT_EQ(rig.frame(u"Frame19"_s).Caption(), u"文件设置");
    EXPECT_EQ(rig.frame(u"Frame19"_s).parentWidget(), &rig.frame(u"Frame16"_s));
    EXPECT_FALSE(rig.frame(u"Frame19"_s).geometry().intersects(rig.frame(u"Frame20"_s).geometry()));
    expectPlace<OptionButton>(u"Option14"_s, u"Frame19"_s, u"系统数据备份"_s, 360, 600, 2400, 330);
    expectPlace<OptionButton>(u"Option16"_s, u"Frame19"_s, u"系统数据还原"_s, 2880, 600, 2400, 330);
    expectPlace<CheckBox>(u"Check3"_s, u"Frame19"_s, u"选择删除记录数据..."_s, 390, 1980, 4000, 330);
    expectPlace<CheckBox>(u"Check2"_s, u"Frame19"_s, u"格式化日志"_s, 390, 2580, 4000, 330);
    expectPlace<CheckBox>(u"Check4"_s, u"Frame19"_s, u"初始化系统数据"_s, 390, 3180, 4000, 330);
    for (const auto& name : {u"Option14"_s, u"Option16"_s, u"Check2"_s, u"Check3"_s, u"Check4"_s})
        EXPECT_TRUE(rig.onMain<QAbstractButton>(name).isVisible()) << name.toStdString();
}

TEST_F(SettingsPageTest, NothingIsTickedOrChosenAtTheFirstVisit) {
    for (const auto& name : {u"Check2"_s, u"Check3"_s, u"Check4"_s, u"Check5"_s, u"Check7"_s, u"Check8"_s, u"Check10"_s,
                             u"Option14"_s, u"Option16"_s})
        EXPECT_FALSE(rig.onMain<QAbstractButton>(name).isChecked()) << name.toStdString();
}

TEST_F(SettingsPageTest, TheBoxOfTheSystemsStartStaysHiddenAndDoesNothing) {
    EXPECT_FALSE(box(u"Check5"_s).Visible());
    EXPECT_FALSE(box(u"Check5"_s).Click);
    box(u"Check5"_s).setValue(true);
    EXPECT_TRUE(rig.messages->shown.empty());
    startAgain();
    EXPECT_FALSE(box(u"Check5"_s).Visible());
    EXPECT_FALSE(box(u"Check5"_s).Value());
}

TEST_F(SettingsPageTest, TheHandIsOverEveryBoxAndOption) {
    for (const auto& name : {u"Check2"_s, u"Check3"_s, u"Check4"_s, u"Check5"_s, u"Check7"_s, u"Check8"_s, u"Check10"_s,
                             u"Option14"_s, u"Option16"_s}) {
        auto& control = rig.onMain<QAbstractButton>(name);
        ASSERT_NE(control.cursor().shape(), Qt::PointingHandCursor) << name.toStdString();
        rig.hover(control);
        EXPECT_EQ(control.cursor().shape(), Qt::PointingHandCursor) << name.toStdString();
    }
}

TEST_F(SettingsPageTest, ABoxAndAnOptionAreClickedWhereverTheHandIsOverThem) {
    const auto clickRightEnd = [](QWidget& control) {
        QTest::mouseClick(&control, Qt::LeftButton, {}, control.rect().bottomRight());
    };
    clickRightEnd(box(u"Check7"_s));
    EXPECT_TRUE(box(u"Check7"_s).Value());
    clickRightEnd(rig.onMain<OptionButton>(u"Option14"_s));
    EXPECT_TRUE(rig.onMain<OptionButton>(u"Option14"_s).Value());
}

TEST_F(SettingsPageTest, EachButtonIsGreyUnderThePointerAndAllAreWhiteBesideThem) {
    const std::array buttons{&rig.onMain<CommandButton>(u"Command30"_s), &categories(),
                             &rig.onMain<CommandButton>(u"Command32"_s)};
    for (CommandButton* button : buttons) {
        rig.hover(*button);
        EXPECT_EQ(button->BackColor(), 0xE0E0E0u);
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
    }
    rig.hover(rig.frame(u"Frame19"_s));
    for (CommandButton* button : buttons)
        EXPECT_EQ(button->BackColor(), 0xE0E0E0u);
    rig.hover(rig.frame(u"Frame20"_s));
    for (CommandButton* button : buttons)
        EXPECT_EQ(button->BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsPageTest, TheButtonsAreWhiteAgainWhenThePageOrTheMenuHasGone) {
    rig.hover(categories());
    rig.click(categories());
    open();
    EXPECT_EQ(categories().BackColor(), 0xFFFFFFu);
    auto& pictures = rig.onMain<CommandButton>(u"Command32"_s);
    rig.hover(pictures);
    rig.click(pictures);
    EXPECT_EQ(pictures.BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsPageTest, TheButtonBringsTheCategoriesUpInThePlaceOfTheSettings) {
    rig.click(categories());
    EXPECT_TRUE(rig.frame(u"Frame3"_s).isVisible());
    EXPECT_FALSE(rig.frame(u"Frame16"_s).Visible());
    EXPECT_TRUE(rig.onMain<OptionButton>(u"Option3"_s).Value());
}

TEST_F(SettingsPageTest, TheSettingsLabelLeadsBackAndTheButtonOpensOnceMore) {
    for (int visit = 0; visit < 3; ++visit) {
        rig.click(categories());
        ASSERT_TRUE(rig.frame(u"Frame3"_s).isVisible()) << visit;
        open();
        EXPECT_FALSE(rig.frame(u"Frame3"_s).Visible()) << visit;
        EXPECT_TRUE(rig.frame(u"Frame16"_s).isVisible()) << visit;
    }
}

TEST_F(SettingsPageTest, TheKeyboardOpensTheCategoriesToo) {
    categories().setFocus();
    rig.press(categories(), Qt::Key_Return);
    EXPECT_TRUE(rig.frame(u"Frame3"_s).isVisible());
}

} // namespace
} // namespace qinghe::testing
