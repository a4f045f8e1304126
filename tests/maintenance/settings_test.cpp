#include "maintenance/purge_window.h"
#include "settings_rig.h"

// The settings page: how it opens, what stands where, the hand over it, and the way to the categories.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SettingsPageTest : public SettingsTest {
protected:
    CommandButton& categories() { return rig.at(settings::Categories); }

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
    const Frame& page = rig.at(settings::Page);
    EXPECT_EQ(page.Caption(), u"设置");
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ((std::array{page.Left(), page.Top(), page.Width(), page.Height()}),
              (std::array{120., 1680., 11655., 6135.}));
    for (const Page* other : rig.mainWindow().navigation().pages())
        EXPECT_EQ(other->frame().Visible(), &other->frame() == &page) << other->frame().objectName().toStdString();
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 7);
    EXPECT_EQ(rig.at(pages::Settings).ForeColor(), 255u);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), 0u);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(SettingsPageTest, UnloadsTheToolsOfOtherPages) {
    handlers::enter([this] {
        rig.program->shared().openDatePicker(DateField::None, {}, {3000, 3000});
        rig.program->shared().openCalculator(AmountField::None, {}, {6000, 3000});
        rig.program->shared().forms.get(names::Purge).showForm();
    });
    open();
    for (const FormName& tool : {forms::DatePicker, forms::Purge, forms::Calculator})
        EXPECT_FALSE(rig.loaded(tool)) << std::string(tool);
}

TEST_F(SettingsPageTest, TheSystemsSettingsStandInTheirPlaces) {
    EXPECT_EQ(rig.at(settings::System).Caption(), u"系统设置");
    EXPECT_EQ(rig.at(settings::System).parentWidget(), &rig.at(settings::Page));
    expectPlace<CheckBox>(settings::Remind, settings::System, u"登陆自动定时提醒今日日程"_s, 360, 600, 4000, 330);
    expectPlace<CheckBox>(settings::ToTray, settings::System, u"最小化到系统托盘"_s, 360, 1200, 4000, 330);
    expectPlace<CheckBox>(settings::AtSystemStart, settings::System, u"开机启动"_s, 2880, 1200, 2400, 330);
    expectPlace<CheckBox>(settings::ChangeSkin, settings::System, u"更换记账本皮肤"_s, 360, 1800, 4000, 330);
    expectPlace<CommandButton>(settings::KeepSkin, settings::System, u"确定"_s, 3480, 2280, 1080, 390);
    expectPlace<CommandButton>(settings::Categories, settings::System, u"收支分类设置"_s, 360, 3450, 1920, 390);
    expectPlace<CommandButton>(settings::Pictures, settings::System, u"更换图片"_s, 2400, 3450, 1560, 390);
    for (const QString& name : QStringList{settings::ToTray, settings::Remind, settings::ChangeSkin,
                                           settings::Categories, settings::Pictures}) {
        const QWidget& control = rig.onMain<QWidget>(name);
        EXPECT_TRUE(control.isVisible()) << name.toStdString();
        EXPECT_TRUE(rig.at(settings::System).rect().contains(control.geometry())) << name.toStdString();
    }
}

TEST_F(SettingsPageTest, TheFileSettingsStandInTheirPlaces) {
    EXPECT_EQ(rig.at(settings::Files).Caption(), u"文件设置");
    EXPECT_EQ(rig.at(settings::Files).parentWidget(), &rig.at(settings::Page));
    EXPECT_FALSE(rig.at(settings::Files).geometry().intersects(rig.at(settings::System).geometry()));
    expectPlace<OptionButton>(settings::Backup, settings::Files, u"系统数据备份"_s, 360, 600, 2400, 330);
    expectPlace<OptionButton>(settings::Restore, settings::Files, u"系统数据还原"_s, 2880, 600, 2400, 330);
    expectPlace<CheckBox>(settings::Purge, settings::Files, u"选择删除记录数据..."_s, 390, 1980, 4000, 330);
    expectPlace<CheckBox>(settings::WipeDiary, settings::Files, u"格式化日志"_s, 390, 2580, 4000, 330);
    expectPlace<CheckBox>(settings::Initialise, settings::Files, u"初始化系统数据"_s, 390, 3180, 4000, 330);
    for (const QString& name :
         QStringList{settings::Backup, settings::Restore, settings::WipeDiary, settings::Purge, settings::Initialise})
        EXPECT_TRUE(rig.onMain<QAbstractButton>(name).isVisible()) << name.toStdString();
}

TEST_F(SettingsPageTest, NothingIsTickedOrChosenAtTheFirstVisit) {
    for (const QString& name :
         QStringList{settings::WipeDiary, settings::Purge, settings::Initialise, settings::AtSystemStart,
                     settings::ToTray, settings::Remind, settings::ChangeSkin, settings::Backup, settings::Restore})
        EXPECT_FALSE(rig.onMain<QAbstractButton>(name).isChecked()) << name.toStdString();
}

TEST_F(SettingsPageTest, TheBoxOfTheSystemsStartStaysHiddenAndDoesNothing) {
    EXPECT_FALSE(box(settings::AtSystemStart).Visible());
    EXPECT_FALSE(box(settings::AtSystemStart).Click);
    box(settings::AtSystemStart).setValue(true);
    EXPECT_TRUE(rig.messages->shown.empty());
    startAgain();
    EXPECT_FALSE(box(settings::AtSystemStart).Visible());
    EXPECT_FALSE(box(settings::AtSystemStart).Value());
}

TEST_F(SettingsPageTest, TheHandIsOverEveryBoxAndOption) {
    for (const QString& name :
         QStringList{settings::WipeDiary, settings::Purge, settings::Initialise, settings::AtSystemStart,
                     settings::ToTray, settings::Remind, settings::ChangeSkin, settings::Backup, settings::Restore}) {
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
    clickRightEnd(box(settings::ToTray));
    EXPECT_TRUE(box(settings::ToTray).Value());
    clickRightEnd(rig.at(settings::Backup));
    EXPECT_TRUE(rig.at(settings::Backup).Value());
}

TEST_F(SettingsPageTest, EachButtonIsGreyUnderThePointerAndAllAreWhiteBesideThem) {
    const std::array buttons{&rig.at(settings::KeepSkin), &categories(), &rig.at(settings::Pictures)};
    for (CommandButton* button : buttons) {
        rig.hover(*button);
        EXPECT_EQ(button->BackColor(), 0xE0E0E0u);
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
    }
    rig.hover(rig.at(settings::Files));
    for (CommandButton* button : buttons)
        EXPECT_EQ(button->BackColor(), 0xE0E0E0u);
    rig.hover(rig.at(settings::System));
    for (CommandButton* button : buttons)
        EXPECT_EQ(button->BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsPageTest, TheButtonsAreWhiteAgainWhenThePageOrTheMenuHasGone) {
    rig.hover(categories());
    rig.click(categories());
    open();
    EXPECT_EQ(categories().BackColor(), 0xFFFFFFu);
    auto& pictures = rig.at(settings::Pictures);
    rig.hover(pictures);
    rig.click(pictures);
    EXPECT_EQ(pictures.BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsPageTest, TheButtonBringsTheCategoriesUpInThePlaceOfTheSettings) {
    rig.click(categories());
    EXPECT_TRUE(rig.at(categories::Page).isVisible());
    EXPECT_FALSE(rig.at(settings::Page).Visible());
    EXPECT_TRUE(rig.at(categories::Income).Value());
}

TEST_F(SettingsPageTest, TheSettingsLabelLeadsBackAndTheButtonOpensOnceMore) {
    for (int visit = 0; visit < 3; ++visit) {
        rig.click(categories());
        ASSERT_TRUE(rig.at(categories::Page).isVisible()) << visit;
        open();
        EXPECT_FALSE(rig.at(categories::Page).Visible()) << visit;
        EXPECT_TRUE(rig.at(settings::Page).isVisible()) << visit;
    }
}

TEST_F(SettingsPageTest, TheKeyboardOpensTheCategoriesToo) {
    categories().setFocus();
    rig.press(categories(), Qt::Key_Return);
    EXPECT_TRUE(rig.at(categories::Page).isVisible());
}

} // namespace
} // namespace qinghe::testing
