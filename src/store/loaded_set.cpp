#include "store/loaded_set.h"

#include "store/result_set.h"

#include <utility>

namespace qinghe {

LoadedSet::LoadedSet(Store& store, QString path, QString source)
    : m_store(store), m_path(std::move(path)), m_source(std::move(source)), m_records(run()) {}

Recordset LoadedSet::run() {
    m_store.use(m_path);
    return Recordset(m_store, m_store.fetch(m_source));
}

Recordset& LoadedSet::records() {
    if (m_records.isVoid())
        reload();
    return m_records;
}

void LoadedSet::reload() {
    m_records = run();
}

} // namespace qinghe
