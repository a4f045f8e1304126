#include "store/journal_file.h"

#include "disk/plain_file.h"
#include "store/file_head.h"

#include <QtEndian>

#include <optional>

namespace qinghe {

namespace {

const QByteArray Magic = QByteArray::fromHex("d9d505f920a163d7"); ///< begins each part of a journal

/// What stands behind the magic of the first part; later parts have a count and a nonce of their own.
struct PartHead {
    static constexpr qint64 Size = 28;

    quint32 records = 0;
    quint32 nonce = 0;    ///< the checksums begin with it
    qint64 pageCount = 0; ///< of the data file, when the work began
    qint64 sectorSize = 0;
    qint64 pageSize = 0;
};

std::optional<PartHead> partAt(QFile& file, qint64 place) {
    if (!file.seek(place))
        return {};
    const QByteArray bytes = file.read(PartHead::Size);
    if (bytes.size() < PartHead::Size || !bytes.startsWith(Magic))
        return {};
    const auto number = [&bytes](qsizetype at) { return qFromBigEndian<quint32>(bytes.constData() + at); };
    return PartHead{number(8), number(12), number(16), number(20), number(24)};
}

bool isSound(const PartHead& part) {
    constexpr qint64 SmallestSector = 32, SmallestPage = 512, Largest = 65536;
    return part.sectorSize >= SmallestSector && part.sectorSize <= Largest &&
           (part.sectorSize & (part.sectorSize - 1)) == 0 && part.pageSize >= SmallestPage;
}

quint32 checksumOf(const QByteArray& page, quint32 nonce) {
    constexpr qsizetype Step = 200;
    quint32 sum = nonce;
    for (qsizetype at = page.size() - Step; at > 0; at -= Step)
        sum += static_cast<uchar>(page[at]);
    return sum;
}

/// The pages that a journal keeps, as far as they were promised to be whole.
struct Kept {
    qint64 records = 0;
    QByteArray firstPage; ///< of the data file, if it is among them
};

/// False where the promised record is not there or not whole; nothing behind it is played back either.
bool readRecord(QFile& file, const PartHead& part, qint64 pageSize, Kept& kept) {
    const QByteArray number = file.read(4);
    if (number.size() < 4)
        return false;
    ++kept.records;
    if (qFromBigEndian<quint32>(number.constData()) != 1)
        return file.seek(file.pos() + pageSize + 4) && file.pos() <= file.size();
    const QByteArray page = file.read(pageSize), sum = file.read(4);
    if (sum.size() < 4 || qFromBigEndian<quint32>(sum.constData()) != checksumOf(page, part.nonce))
        return false;
    if (kept.firstPage.isEmpty()) // the oldest counts
        kept.firstPage = page;
    return true;
}

Kept keptIn(QFile& file, const PartHead& first) {
    Kept kept;
    qint64 place = 0;
    for (std::optional<PartHead> part = first; part; part = partAt(file, place)) {
        file.seek(place + first.sectorSize);
        for (quint32 i = 0; i < part->records; ++i)
            if (kept.records > first.pageCount || !readRecord(file, *part, first.pageSize, kept))
                return kept; // each page of the file is kept once at most
        place = (file.pos() + first.sectorSize - 1) / first.sectorSize * first.sectorSize;
    }
    return kept;
}

/// A journal ends with the magic only where it names the file of a work that spans several data files.
bool namesAnotherFile(QFile& file) {
    return file.size() > PartHead::Size && file.seek(file.size() - Magic.size()) && file.read(Magic.size()) == Magic;
}

/// Whether the page is the first one of the file as it lies there, or that of the commit before.
bool precedes(const QByteArray& kept, const QByteArray& now) {
    constexpr qsizetype MarkEnd = 3; // the mark of the file's head is the program's own
    const FileHead before(kept), head(now);
    if (before.mark == FileHead::Mark::None || before.pageSize != head.pageSize)
        return false;
    if (before.changeCounter == head.changeCounter)
        return kept.sliced(MarkEnd) == now.sliced(MarkEnd);
    return before.changeCounter + 1 == head.changeCounter;
}

bool fits(const PartHead& part, const Kept& kept, const QByteArray& firstPage, qint64 size) {
    const FileHead head(firstPage);
    if (kept.records > part.pageCount || (!kept.firstPage.isEmpty() && !precedes(kept.firstPage, firstPage)))
        return false;
    const qint64 least = kept.firstPage.isEmpty() ? head.pageCount : FileHead(kept.firstPage).pageCount;
    const qint64 most = (size + head.pageSize - 1) / head.pageSize; // a tail that means nothing is counted as well
    return part.pageCount >= least && part.pageCount <= most;
}

} // namespace

JournalKind judgeJournal(const QString& journal, const QString& book) {
    const FileKind kind = kindOf(journal);
    if (kind == FileKind::Missing)
        return JournalKind::Missing;
    PlainFile file(journal), data(book, Links::Follow);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !data.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return JournalKind::Foreign;
    const QByteArray start = file.read(1);
    if (start.isEmpty() || start[0] == 0) // SQLite writes over it, and a second name must not lead elsewhere
        return kind == FileKind::Shared ? JournalKind::Foreign : JournalKind::Cold;
    const std::optional<PartHead> first = partAt(file, 0);
    const QByteArray firstPage = data.read(headOf(book).pageSize);
    if (!first || !isSound(*first) || first->pageSize != firstPage.size() || namesAnotherFile(file))
        return JournalKind::Foreign;
    const Kept kept = keptIn(file, *first);
    if (!fits(*first, kept, firstPage, data.size()))
        return JournalKind::Foreign;
    return kept.records == 0 ? JournalKind::Cold : JournalKind::Own;
}

} // namespace qinghe
