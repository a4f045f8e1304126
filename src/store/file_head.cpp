#include "store/file_head.h"

#include "disk/plain_file.h"

#include <QtEndian>

namespace qinghe {

namespace {

template<typename Number>
Number numberAt(QByteArrayView bytes, qsizetype place) {
    return qFromBigEndian<Number>(bytes.data() + place);
}

FileHead::Mark markOf(QByteArrayView bytes) {
    using enum FileHead::Mark;
    constexpr qsizetype MarkEnd = 3;
    const QByteArrayView rest("ite format 3\0", 13);
    if (bytes.size() < MarkEnd + rest.size() || bytes[0] != 'S' || bytes.sliced(MarkEnd, rest.size()) != rest)
        return None;
    const QByteArrayView mark = bytes.sliced(1, 2);
    return mark == QByteArrayView("\x01\0", 2) ? Healed
           : mark == QByteArrayView("\0\0", 2) ? Spoilt
           : mark == QByteArrayView("QL", 2)   ? Plain
                                               : None;
}

} // namespace

FileHead::FileHead(QByteArrayView bytes) : mark(markOf(bytes)), isWhole(mark != Mark::None && bytes.size() >= Size) {
    if (!isWhole)
        return;
    constexpr qint64 LargestPage = 65536; // has no room in its two bytes: 1 stands for it
    pageSize = numberAt<quint16>(bytes, 16);
    pageSize = pageSize == 1 ? LargestPage : pageSize;
    changeCounter = numberAt<quint32>(bytes, 24);
    if (numberAt<quint32>(bytes, 92) == changeCounter) // of the writer of the count
        pageCount = numberAt<quint32>(bytes, 28);
    version = numberAt<qint32>(bytes, 60);
    isSwitchedToLog = bytes[18] == 2 || bytes[19] == 2;
}

FileHead headOf(const QString& path) {
    PlainFile file(path, Links::Follow);
    const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    return FileHead(opened ? file.read(FileHead::Size) : QByteArray());
}

} // namespace qinghe
