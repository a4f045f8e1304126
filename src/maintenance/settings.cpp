#include "maintenance/settings.h"

#include "core/hover.h"
#include "core/stored_choice.h"
#include "maintenance/picture_injection.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {
constexpr int PageCode = 7;
}

SettingsPage::SettingsPage(MainWindow& form)
    : QObject(&form),
      window(form),
      bench(form.bench()),
      Frame20(new Frame(&form.navigation().frame(u"Frame16"_s), u"Frame20"_s, u"系统设置"_s)),
      Command31(new CommandButton(Frame20, u"Command31"_s, u"收支分类设置"_s)),
      Command32(new CommandButton(Frame20, u"Command32"_s, u"更换图片"_s)),
      m_pictures(new QMenu(Command32)),
      m_skins(form, *Frame20),
      m_files(form) {
    Frame20->place(240, 480, 5520, 4200);
    Frame20->setRole(Role::InnerFrame);
    placeBoxes();
    makePictureMenu();
    bindEvents();
}

void SettingsPage::placeBoxes() {
    // The three boxes are the main window's, which ticks them as it starts; Check5 is a reserved place, hidden for
    // good.
    for (CheckBox* box : {window.Check5, window.Check7, window.Check8})
        box->setParent(Frame20);
    window.Check8->place(360, 600, 4000, 330);
    window.Check7->place(360, 1200, 4000, 330);
    window.Check5->place(2880, 1200, 2400, 330);
    for (CheckBox* box : {window.Check7, window.Check8})
        box->setShown(true);
    auto* line = new Label(Frame20, {});
    line->place(360, 3060, 4800, 30);
    line->setRole(Role::Hairline);
    Command31->place(360, 3450, 1920, 390);
    Command31->setGlyph(Glyph::List);
    Command32->place(2400, 3450, 1560, 390);
    Command32->setGlyph(Glyph::Tools);
}

void SettingsPage::makePictureMenu() {
    for (const PictureTarget& target : pictureTargets()) {
        const QAction* entry = m_pictures->addAction(QString::fromUtf16(target.entry));
        connect(entry, &QAction::triggered, this, [this, form = QString::fromUtf16(target.form)] {
            handlers::enter([this, form] { bench.forms.get(form).showForm(); });
        });
    }
}

void SettingsPage::bindEvents() {
    window.Check7->Click = [this] { Form2_Check7_Click(); };
    for (CheckBox* box : {window.Check5, window.Check7, window.Check8})
        showHandOver(box);
    markHovered(*Frame20, {m_skins.Command30, Command31, Command32});
    // The pointer will not be here when the page comes back, or when the menu goes.
    Command31->Click = [this] {
        unmarkHovered({Command31});
        bench.openCategories();
    };
    Command32->Click = [this] {
        unmarkHovered({Command32});
        m_pictures->popup(Command32->mapToGlobal(QPoint(0, Command32->height())));
    };
    window.navigation().onOpen(PageCode, [this] { Form2_Label7_Click(); });
}

void SettingsPage::Form2_Label7_Click() {
    window.navigation().leaveOthers(PageCode);
    m_skins.hide();
    window.navigation().bringForward(PageCode);
}

void SettingsPage::Form2_Check7_Click() {
    storeTick(bench, *window.Adodc1, MinimiseToTray, *window.Check7, u"设置完毕"_s, u"提示"_s);
}

} // namespace qinghe
