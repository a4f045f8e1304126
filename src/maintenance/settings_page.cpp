#include "maintenance/settings_page.h"

#include "core/hover.h"
#include "core/stored_choice.h"
#include "maintenance/next_picture.h"
#include "maintenance/picture_window.h"
#include "runtime/shown_value.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PageTab Tabs[] = {{u"Label7", u" 设置", 10920, PageCode::Settings}};
constexpr PageTraits Settings{u"Frame16", u"设置", 120, 1680, 11655, 6135, Tabs};

} // namespace

SettingsPage::SettingsPage(MainWindow& form)
    : Page(form.navigation(), Settings),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Frame20(new Frame(&frame(), u"Frame20"_s, u"系统设置"_s)),
      Check8(new CheckBox(Frame20, u"Check8"_s, u"登陆自动定时提醒今日日程"_s)),
      Check7(new CheckBox(Frame20, u"Check7"_s, u"最小化到系统托盘"_s)),
      Check5(new CheckBox(Frame20, u"Check5"_s, u"开机启动"_s)),
      Command31(new CommandButton(Frame20, u"Command31"_s, u"收支分类设置"_s)),
      Command32(new CommandButton(Frame20, u"Command32"_s, u"更换图片"_s)),
      m_pictures(new QMenu(Command32)),
      m_skins(form, *Frame20),
      m_files(form, frame()) {
    Frame20->place(240, 480, 5520, 4200);
    Frame20->setRole(Role::InnerFrame);
    placeBoxes();
    makePictureMenu();
    bindEvents();
}

void SettingsPage::placeBoxes() {
    Check8->place(360, 600, 4000, 330);
    Check7->place(360, 1200, 4000, 330);
    Check5->place(2880, 1200, 2400, 330);
    Check5->setShown(false);
    auto* line = new Label(Frame20, {});
    line->place(360, 3060, 4800, 30);
    line->setRole(Role::Hairline);
    Command31->place(360, 3450, 1920, 390);
    Command31->setGlyph(Glyph::List);
    Command32->place(2400, 3450, 1560, 390);
    Command32->setGlyph(Glyph::Tools);
}

void SettingsPage::makePictureMenu() {
    const auto add = [this](QStringView words, const std::function<void()>& chosen) {
        connect(m_pictures->addAction(words.toString()), &QAction::triggered, this,
                [chosen] { handlers::enter(chosen); });
    };
    for (const PictureTarget& target : pictureTargets())
        add(target.entry, [this, form = target.form] { m_shared.forms.get(form).showForm(); });
    m_pictures->addSeparator();
    for (const PictureTarget& target : pictureTargets())
        if (target.turned)
            add(target.next, [this, &target] { turnPicture(target); });
}

void SettingsPage::turnPicture(const PictureTarget& target) {
    const bool isDesktop = target.turned == &DesktopPicture;
    Image& desktop = m_window.desktopPicture();
    const auto next = turnToNext(*target.turned, Adodc1, m_shared, desktop);
    if (!next)
        return m_shared.tell(u"没有存着别的图片，请先用“%1”添加一张。"_s.arg(target.entry), u"提示"_s);
    if (isDesktop)
        desktop.setPicture(next->image);
    m_shared.tell(target.turnedTo.toString().arg(shownValue(next->name)), u"提示"_s);
}

void SettingsPage::bindEvents() {
    Check7->Click = [this] { Form2_Check7_Click(); };
    Check8->Click = [this] { Form2_Check8_Click(); };
    Check8->setToolTip(u"从下次登陆起算数，不会开始或停止本次运行里的提醒。\n在日程页保存日程时，会按那里的勾改写。"_s);
    for (CheckBox* box : {Check5, Check7, Check8})
        showHandOver(box);
    markHovered(*Frame20, {m_skins.Command30, Command31, Command32});
    // The pointer will not be here when the page comes back, or when the menu goes.
    Command31->Click = [this] {
        unmarkHovered({Command31});
        m_shared.openCategories();
    };
    Command32->Click = [this] {
        unmarkHovered({Command32});
        m_pictures->popup(Command32->mapToGlobal(QPoint(0, Command32->height())));
    };
}

void SettingsPage::Form2_Label7_Click() {
    navigation().leaveOthers(*this, PageCode::Settings);
    m_skins.hide();
    navigation().bringForward(*this);
}

void SettingsPage::windowLoads() {
    if (remindsAtSignIn(Adodc1))
        Check8->setValue(true);
    if (MinimiseToTray.isYes(Adodc1))
        Check7->setValue(true);
}

void SettingsPage::Form2_Check7_Click() {
    storeTick(m_shared, Adodc1, MinimiseToTray, *Check7, u"设置完毕"_s, u"提示"_s);
}

void SettingsPage::Form2_Check8_Click() {
    storeReminderTick(m_shared, Adodc1, *Check8);
}

} // namespace qinghe
