#pragma once

#include "store/recordset.h"

namespace qinghe {

/// The records of one source in the hands of whoever loaded them: no other refresh takes them away. When the file has
/// been closed or replaced since (a restore), they are loaded again from their source at the next use.
class LoadedSet {
public:
    /// Runs the source on the file at `path`. Throws RuntimeError as Store::fetch does.
    LoadedSet(Store& store, QString path, QString source);

    /// The records, for work that begins at their head: loaded again they stand on their first row. Throws as the
    /// constructor does.
    Recordset& records();
    /// The same as they were read, void or not, for work that goes on where it stood.
    Recordset& asRead() { return m_records; }
    const QString& source() const { return m_source; }
    /// Runs the source once more.
    void reload();

private:
    Recordset run();

    Store& m_store;
    QString m_path;
    QString m_source;
    Recordset m_records;
};

} // namespace qinghe
