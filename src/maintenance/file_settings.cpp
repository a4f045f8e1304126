#include "maintenance/file_settings.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "disk/replace_file.h"
#include "maintenance/purge_window.h"
#include "platform/files.h"
#include "store/tables.h"

namespace qinghe {

using namespace Qt::StringLiterals;

FileSettings::FileSettings(MainWindow& form, Frame& page)
    : QObject(&form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Frame19(new Frame(&page, u"Frame19"_s, u"文件设置"_s)),
      Option14(new OptionButton(Frame19, u"Option14"_s, u"系统数据备份"_s)),
      Option16(new OptionButton(Frame19, u"Option16"_s, u"系统数据还原"_s)),
      m_caution(new Label(Frame19, {}, u"还原和以下操作不能恢复，请先备份"_s)),
      m_safety(new Label(Frame19, {})),
      Check3(new CheckBox(Frame19, u"Check3"_s, u"选择删除记录数据..."_s)),
      Check2(new CheckBox(Frame19, u"Check2"_s, u"格式化日志"_s)),
      Check4(new CheckBox(Frame19, u"Check4"_s, u"初始化系统数据"_s)) {
    placeControls();
    Option14->Click = [this] { Form2_Option14_Click(); };
    Option16->Click = [this] { Form2_Option16_Click(); };
    Option16->setToolTip(
        u"备份文件会覆盖现在的整个账本：\n各页的记录、分类、用户和密码、设置和图片。\n日记的正文不在账本里，不会改变。"_s);
    Check2->Click = [this] { Form2_Check2_Click(); };
    Check3->Click = [this] { Form2_Check3_Click(); };
    Check4->Click = [this] { Form2_Check4_Click(); };
    for (OptionButton* option : {Option14, Option16})
        showHandOver(option);
    for (CheckBox* box : {Check2, Check3, Check4})
        showHandOver(box);
}

void FileSettings::placeControls() {
    Frame19->place(5895, 480, 5520, 4200);
    Frame19->setRole(Role::InnerFrame);
    Option14->place(360, 600, 2400, 330);
    Option16->place(2880, 600, 2400, 330);
    m_caution->place(240, 1320, 5040, 2760);
    m_caution->setRole(Role::Caution);
    m_safety->place(390, 3540, 4740, 510);
    m_safety->setRole(Role::Help);
    SafetyCopies::promise(*m_safety, Occasion::Initialise);
    Check3->place(390, 1980, 4000, 330);
    Check2->place(390, 2580, 4000, 330);
    Check4->place(390, 3180, 4000, 330);
}

void FileSettings::Form2_Option14_Click() {
    openBackup(BackupWindow::Direction::Backup);
}

void FileSettings::Form2_Option16_Click() {
    openBackup(BackupWindow::Direction::Restore);
}

/// The options are cleared when the window goes, so that the same one can be chosen again.
void FileSettings::openBackup(BackupWindow::Direction direction) {
    auto& backup = m_shared.forms.get(names::Backup);
    backup.Gone = [this] {
        Option14->setValue(false);
        Option16->setValue(false);
    };
    backup.turnTo(direction);
    backup.showForm();
}

void FileSettings::Form2_Check3_Click() {
    if (!Check3->Value())
        return m_shared.forms.unload(names::Purge);
    PurgeWindow& purge = m_shared.forms.get(names::Purge);
    // The tick that opened the window goes with it; its click finds nothing more to unload.
    purge.Gone = [this] { Check3->setValue(false); };
    purge.showForm();
    purge.keepOnScreen();
}

void FileSettings::Form2_Check2_Click() {
    if (!Check2->Value())
        return;
    if (m_shared.services.say(u"是否删除所有日志？"_s, MessageStyle::OkCancelInformation, u"提示"_s) != Answer::Ok)
        return Check2->setValue(false);
    Recordset& entries = Adodc1.open(tables::Diary.toString());
    // Files of which no row tells are left alone.
    if (entries.recordCount() != 0)
        wipeTexts();
    emptyTable(entries);
    m_shared.emptyDiaryPage();
    m_shared.services.say(u"格式化完成！"_s);
}

/// What a killed program left half-written goes, too.
void FileSettings::wipeTexts() {
    const QString diary = m_shared.safeDiaryFolder();
    for (const QStringView texts : {QStringView(u"*.dll"), UnfinishedFiles})
        files::deleteMatching(diary, texts.toString());
}

void FileSettings::Form2_Check4_Click() {
    if (!Check4->Value())
        return;
    const Answer answer = m_shared.services.say(u"点击此项将初始化系统内除用户信息以外的全部数据！是否继续？"_s,
                                                MessageStyle::YesNoQuestion, u"系统提示"_s);
    if (answer != Answer::Yes)
        return Check4->setValue(false);
    m_shared.safety.keepBefore(Occasion::Initialise, *m_safety);
    for (QStringView table : tables::Initialised)
        emptyTable(Adodc1.open(table.toString()));
    m_shared.tell(u"初始化完毕"_s, u"提示"_s);
}

} // namespace qinghe
