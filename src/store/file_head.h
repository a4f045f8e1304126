#pragma once

#include <QByteArrayView>
#include <QString>

namespace qinghe {

/// What the first bytes of a data file say, as SQLite lays them out.
struct FileHead {
    static constexpr qsizetype Size = 100;

    /// The two bytes behind the first letter; None for what does not begin as a data file at all.
    enum class Mark { None, Healed, Spoilt, Plain };

    /// Of a file's or its first page's first bytes. Fewer than Size give the mark alone, and none at all None.
    explicit FileHead(QByteArrayView bytes);

    Mark mark = Mark::None;
    bool isWhole = false;         ///< all of the head is there; what follows is 0 otherwise
    qint64 pageSize = 0;          ///< in bytes
    qint64 pageCount = 0;         ///< 0 where the head does not know
    quint32 changeCounter = 0;    ///< goes up by one with every commit
    qint32 version = 0;           ///< see migrations.h
    bool isSwitchedToLog = false; ///< another program has changed the way in which the file is written
};

/// Of a plain file, or of the one to which a link leads. What cannot be read has none.
FileHead headOf(const QString& path);

} // namespace qinghe
