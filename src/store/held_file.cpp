#include "store/held_file.h"

#include "disk/replace_file.h"
#include "store/sqlite_failure.h"

#include <QFile>
#include <sqlite3.h>

#include <algorithm>

namespace qinghe {

namespace {
constexpr qint64 PieceSize = 1 << 20;
}

void HeldFile::fail(int code) const {
    throwSqliteFailure(code, m_path, {});
}

bool HeldFile::isOpen() const {
    return m_file && m_file->pMethods;
}

qint64 HeldFile::size() const {
    sqlite3_int64 size = 0;
    if (const int code = m_file->pMethods->xFileSize(m_file, &size); code != SQLITE_OK)
        fail(code);
    return size;
}

QByteArray HeldFile::read(qint64 from, qint64 most) const {
    QByteArray bytes(std::clamp(size() - from, qint64(0), most), Qt::Uninitialized);
    if (bytes.isEmpty())
        return bytes;
    const int code = m_file->pMethods->xRead(m_file, bytes.data(), static_cast<int>(bytes.size()), from);
    if (code != SQLITE_OK)
        fail(code);
    return bytes;
}

void HeldFile::copyTo(QFile& copy) const {
    qint64 done = 0;
    for (QByteArray piece = read(done, PieceSize); !piece.isEmpty(); piece = read(done, PieceSize)) {
        writeWhole(copy, piece);
        done += piece.size();
    }
}

} // namespace qinghe
