#include "maintenance/settings.h"

#include "core/hover.h"
#include "maintenance/picture_injection.h"

namespace qinghe {

using namespace Qt::StringLiterals;

SettingsPage::SettingsPage(MainWindow& window)
    : QObject(&window),
      m_bench(window.bench()),
      Frame20(new Frame(&window.navigation().frame(u"Frame16"_s), u"Frame20"_s, u"系统设置"_s)),
      Command31(new CommandButton(Frame20, u"Command31"_s, u"收支分类设置"_s)),
      Command32(new CommandButton(Frame20, u"Command32"_s, u"更换图片"_s)),
      m_pictures(new QMenu(Command32)),
      Frame19(new Frame(&window.navigation().frame(u"Frame16"_s), u"Frame19"_s, u"文件设置"_s)),
      Option14(new OptionButton(Frame19, u"Option14"_s, u"系统数据备份"_s)),
      Option16(new OptionButton(Frame19, u"Option16"_s, u"系统数据还原"_s)) {
    Frame20->place(240, 480, 5520, 4200);
    Frame20->setRole(Role::InnerFrame);
    Command31->place(360, 3450, 1920, 390);
    Command31->setGlyph(Glyph::List);
    markHovered(*Frame20, {Command31, Command32});
    Command31->Click = [this] {
        unmarkHovered({Command31}); // the pointer will not be here when the page comes back
        m_bench.openCategories();
    };
    makePictureMenu();
    makeFileSettings();
}

void SettingsPage::makePictureMenu() {
    Command32->place(2400, 3450, 1560, 390);
    for (const PictureTarget& target : pictureTargets()) {
        const QAction* entry = m_pictures->addAction(QString::fromUtf16(target.entry));
        connect(entry, &QAction::triggered, this, [this, form = QString::fromUtf16(target.form)] {
            handlers::enter([this, form] { m_bench.forms.get(form).showForm(); });
        });
    }
    Command32->Click = [this] {
        unmarkHovered({Command32});
        m_pictures->popup(Command32->mapToGlobal(QPoint(0, Command32->height())));
    };
}

void SettingsPage::makeFileSettings() {
    Frame19->place(5895, 480, 5520, 4200);
    Frame19->setRole(Role::InnerFrame);
    Option14->place(360, 600, 2400, 330);
    Option16->place(2880, 600, 2400, 330);
    Option14->Click = [this] { Form2_Option14_Click(); };
    Option16->Click = [this] { Form2_Option16_Click(); };
}

void SettingsPage::Form2_Option14_Click() {
    openBackup(BackupWindow::Direction::Backup);
}

void SettingsPage::Form2_Option16_Click() {
    openBackup(BackupWindow::Direction::Restore);
}

/// The options are cleared when the window goes, so that the same one can be chosen again.
void SettingsPage::openBackup(BackupWindow::Direction direction) {
    auto& window = m_bench.forms.get<BackupWindow>(u"Form13"_s);
    window.Unloaded = [this] {
        Option14->setValue(false);
        Option16->setValue(false);
    };
    window.turnTo(direction);
    window.showForm();
}

} // namespace qinghe
