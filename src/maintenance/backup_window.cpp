#include "maintenance/backup_window.h"

#include "core/hover.h"
#include "maintenance/file_copy.h"
#include "platform/files.h"
#include "store/data_file.h"
#include "store/migrations.h"

#include <QDir>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

struct Texts {
    QStringView caption;
    QStringView explanation;
    QStringView diary; ///< what becomes of the diary's texts; %1 is their folder
    QStringView start; ///< the button's
    QStringView question;
    QStringView title; ///< of the question
    QStringView done;
    Glyph glyph;
};

constexpr Texts BackupTexts{
    u"数据备份",
    u"备份说明：文件备份是将现有记录数据额外存储一分，当数据需要还原时，可以还原数据。",
    u"日记的正文不在备份里，请另外复制：\r\n%1",
    u"开始备份",
    u"请指定数据库备份的位置。",
    u"备份提示",
    u"备份完成。",
    Glyph::Backup,
};
constexpr Texts RestoreTexts{
    u"数据还原",
    u"数据还原说明：数据还原后，备份的数据将覆盖当前数据，系统将显示备份的数据。",
    u"日记的正文不在备份里，还原时不变：\r\n%1",
    u"开始还原",
    u"请指定要还原的数据库备份文件所在的位置。",
    u"还原提示",
    u"还原完毕。",
    Glyph::Restore,
};

/// A name for a backup that tells its day, and sorts by it.
QString datedName(QDate day) {
    return u"%1%2.dat"_s.arg(productName(), day.toString(u"yyyy-MM-dd"_s));
}

constexpr qint64 RoomBehind = 5; ///< of the bar behind the last byte

} // namespace

BackupWindow::BackupWindow(Shared& shared)
    : Form(names::Backup, Kind::Dialog, Ground::Dialog, shared.forms.loaded(names::Main)),
      m_shared(shared),
      Frame1(new Frame(this, u"Frame1"_s)),
      m_disc(new Image(Frame1, u"Image1"_s)),
      Label1(new Label(Frame1, u"Label1"_s)),
      m_diary(new Label(Frame1, {})),
      Pro1(new ProgressBar(Frame1, u"Pro1"_s)),
      Command1(new CommandButton(this, u"Command1"_s, {})),
      m_safety(new Label(this, {})),
      Com1(new CommonDialog(*shared.services.chooser, u"Com1"_s, this)) {
    Frame1->place(240, 240, 4920, 2670);
    Frame1->setRole(Role::InnerFrame);
    m_disc->place(240, 420, 660, 660);
    m_disc->setRole(Role::GlyphDisc);
    Label1->place(1080, 270, 3600, 960); // three lines
    m_diary->place(1080, 1260, 3720, 900);
    m_diary->setRole(Role::Help);
    Pro1->place(240, 2190, 4440, 285);
    Pro1->setShown(false);
    Pro1->setAccessibleName(u"进度"_s);
    Command1->place(3720, 3060, 1440, 390);
    m_safety->place(240, 3000, 3360, 510);
    m_safety->setRole(Role::Help);
    Command1->setRole(Role::Primary);
    Command1->Click = [this] { Form13_Command1_Click(); };
    markHovered(*this, {Command1}, {Frame1});
    placeInMiddle(5400, 3690, shared.forms.loaded(names::Main));
}

void BackupWindow::turnTo(Direction direction) {
    const Texts& texts = direction == Direction::Restore ? RestoreTexts : BackupTexts;
    setCaption(texts.caption.toString());
    Frame1->setCaption(texts.caption.toString());
    Label1->setCaption(texts.explanation.toString());
    const QString folder = QDir::toNativeSeparators(m_shared.diaryFolder());
    m_diary->setCaption(texts.diary.toString().arg(folder));
    m_diary->setToolTip(folder);
    Command1->setText(texts.start.toString());
    Command1->setGlyph(texts.glyph);
    m_disc->setGlyph(texts.glyph);
    m_safety->setShown(direction == Direction::Restore);
    SafetyCopies::promise(*m_safety, Occasion::Restore);
    m_safety->setToolTip({});
}

void BackupWindow::unloaded() {
    Gone.raise();
}

void BackupWindow::Form13_Command1_Click() {
    const bool restoring = Command1->text() == RestoreTexts.start.toString();
    const Texts& texts = restoring ? RestoreTexts : BackupTexts;
    Com1->setFilter(u"*.dat|*.dat"_s);
    Com1->setSuggestion(restoring ? QString() : datedName(m_shared.services.clock->today()));
    if (m_shared.services.say(texts.question.toString(), MessageStyle::OkCancel, texts.title.toString()) != Answer::Ok)
        return;
    Com1->showOpen();
    const QString file = Com1->FileName();
    if (file.isEmpty())
        return;
    Pro1->setShown(true);
    restoring ? restore(file) : backUp(file);
    Pro1->setShown(false);
    Pro1->setValue(0);
    m_shared.services.say(texts.done.toString());
}

/// The file is only read, and all work stands in it since the last message: recordsets stay good.
void BackupWindow::backUp(const QString& file) {
    const Store::Stillness still = m_shared.store.holdStill(); // to the end of the copying, which opens the book once
    FileCopy copying(m_shared.dataFile(), file);
    copy(copying);
}

void BackupWindow::restore(const QString& file) {
    requireKnownVersion(file); // a backup of a later program must not take the place of a book that can be read
    m_shared.store.close();    // the next use opens it anew, and what was read before is void
    FileCopy copying(file, m_shared.dataFile());
    m_shared.safety.keepBefore(Occasion::Restore, *m_safety, file); // what refuses the file has been asked
    files::deleteMatching(m_shared.services.appPath,
                          journalOf(DataFileName.toString())); // it belongs to the file that goes
    try {
        copy(copying);
    } catch (const RuntimeError& error) {
        throw RuntimeError(RuntimeError::StoreFailure,
                           error.text() + u"账本现在不能使用：请把备份文件复制到程序所在的文件夹，改名为 data.dll，"
                                          u"再启动程序。那里如果还有一个 data.dll-journal，要先把它移到别处。"_s);
    }
}

void BackupWindow::copy(FileCopy& copying) {
    Pro1->setMax(copying.length() + RoomBehind);
    repaint(); // what lay under the file chooser; no events are processed until the end
    copying.run([this](qint64 written) { Pro1->setValue(written); });
}

} // namespace qinghe
