#include "core/safety_copies.h"

#include "core/shared.h"
#include "runtime/runtime_error.h"
#include "store/copies.h"
#include "store/safety_copy.h"
#include "store/safety_folder.h"
#include "store/safety_upkeep.h"

#include <QDir>

#include <array>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr auto TimeToPaint = std::chrono::milliseconds(500); ///< the desktop, which the user waits for
constexpr auto PatienceAtEnd = std::chrono::milliseconds(300);
constexpr QStringView FailedSave = u"保存出错以前";

struct OccasionRow {
    QStringView name;    ///< in the name of the copy
    QStringView promise; ///< what stands beside the button until then
};

/// In the order of Occasion.
constexpr std::array<OccasionRow, 3> Occasions{{
    {u"初始化以前", u"初始化、删除记录和还原以前，会自动留一份安全副本。"},
    {u"删除记录以前", u"删除以前，会自动留一份安全副本。"},
    {u"还原以前", u"还原以前，会自动留一份安全副本。"},
}};

const OccasionRow& rowOf(Occasion occasion) {
    return Occasions[static_cast<std::size_t>(occasion)];
}

QString aboutRestoring(const QString& copy) {
    return u"%1\n要恢复成那时的账本：在“设置”页选“系统数据还原”，选这个文件；在那以后记的内容会被它覆盖。"_s.arg(
        QDir::toNativeSeparators(copy));
}

QString aboutCopy(const SafetyCopy& copy) {
    const QString damaged = u"留这份副本的时候，账本已经损坏；副本是原样：\n"_s;
    return (copy.isSound ? QString() : damaged) + aboutRestoring(copy.path);
}

QString aboutDamage(const QString& book) {
    QString text = u"账本文件有损坏，鼠标停在这里看怎么办。\n今天检查账本时发现：损坏的是账本文件本身，不是副本。\n"
                   u"还能看到的内容，请先用“设置”页的“系统数据备份”留一份，或者抄下来。\n"_s;
    const QStringList copies = copiesOf(book);
    if (copies.isEmpty())
        return text + u"没有找到从前的备份或安全副本。"_s;
    return text + u"从前完好的副本还在，最近的一份是：\n"_s + aboutRestoring(copies.front());
}

} // namespace

/// Written on the thread, read when it has ended.
struct SafetyCopies::Outcome {
    QString why;            ///< there is no copy, empty when there is one
    bool isDamaged = false; ///< the book is
};

SafetyCopies::SafetyCopies(Shared& shared) : m_shared(shared) {}
SafetyCopies::~SafetyCopies() = default;

void SafetyCopies::copyToday() {
    const QString book = m_shared.dataFile();
    const QDateTime now = m_shared.services.clock->now();
    removeUnfinishedCopies(book);
    removeOutdatedCopies(book, now.date());
    if (hasDailyCopy(safetyFiles(book), now.date()))
        return;
    const auto outcome = std::make_shared<Outcome>();
    m_shared.services.background->start(
        TimeToPaint,
        [book, now, outcome](const std::stop_token& stop) {
            try {
                keepCopy(book, {now, DailyCopy.toString()}, IfDamaged::Tell, stop);
                removeOutdatedCopies(book, now.date());
            } catch (const BrokenOff&) {
            } catch (const RuntimeError& error) {
                *outcome = {error.text(), error.number() == RuntimeError::StoreFailure};
            } catch (...) {
                *outcome = {u"内存不足。"_s};
            }
        },
        [this, outcome] { tellOutcome(*outcome); });
}

void SafetyCopies::tellOutcome(const Outcome& outcome) {
    if (outcome.isDamaged)
        m_shared.note(aboutDamage(m_shared.dataFile()));
    else if (!outcome.why.isEmpty())
        tellOnce(outcome.why);
}

void SafetyCopies::tellOnce(const QString& why) {
    if (std::exchange(m_toldNone, true))
        return;
    m_shared.note(
        u"今天没有做成安全副本，鼠标停在这里看原因。\n%1\n安全副本的文件夹是：\n%2\n不影响记账；请自己做一次备份。"_s
            .arg(why, QDir::toNativeSeparators(safetyFolderOf(m_shared.dataFile()))));
}

void SafetyCopies::breakOff() {
    m_shared.services.background->stop();
}

void SafetyCopies::breakOffAtEnd() {
    m_shared.services.background->stop(PatienceAtEnd);
}

void SafetyCopies::promise(Label& label, Occasion occasion) {
    label.setCaption(rowOf(occasion).promise.toString());
}

void SafetyCopies::keepBefore(Occasion occasion, Label& label, const QString& spared) {
    breakOff();
    const QString book = m_shared.dataFile();
    const QDateTime now = m_shared.services.clock->now();
    try {
        const SafetyCopy copy = keepCopy(book, {now, rowOf(occasion).name.toString()}, IfDamaged::Keep);
        removeOutdatedCopies(book, now.date(), spared);
        label.setCaption(u"已留安全副本，鼠标停在这里看怎么恢复。"_s);
        label.setToolTip(aboutCopy(copy));
    } catch (const RuntimeError& error) {
        label.setCaption(u"没有做成安全副本，鼠标停在这里看原因。"_s);
        label.setToolTip(error.text());
        tellOnce(error.text());
    }
}

void SafetyCopies::keepFailedSave() {
    if (!m_shared.saving || !m_shared.store.inTransaction())
        return;
    breakOff();
    const QDateTime now = m_shared.services.clock->now();
    try {
        const SafetyCopy copy = keepStateBefore(m_shared.store, {now, FailedSave.toString()});
        removeOutdatedCopies(m_shared.dataFile(), now.date());
        m_aboutFailedSave = u"保存以前的账本留了一份安全副本，只有您自己能读：\n%1\n"
                            u"要找回原来的记录：重新启动程序，在“设置”页选“系统数据还原”，选这个文件；"
                            u"它会覆盖写回的这几条和在那以后记的内容。"_s.arg(QDir::toNativeSeparators(copy.path));
    } catch (const RuntimeError& error) {
        m_aboutFailedSave = u"保存以前的账本没有留下安全副本：%1"_s.arg(error.text());
    }
}

} // namespace qinghe
