#include "store/adodc.h"

#include "runtime/runtime_error.h"
#include "store/connection_text.h"
#include "store/store_errors.h"

namespace qinghe {

Adodc::Adodc(Store& store, const QString& name, QObject* parent) : QObject(parent), m_store(store) {
    setObjectName(name);
}

Adodc::~Adodc() = default;

void Adodc::refresh() {
    m_loaded = std::make_shared<LoadedSet>(m_store, systemPath(dataSource(m_connection), m_store.path()), m_source);
}

Recordset& Adodc::recordset() {
    if (!m_loaded)
        throw RuntimeError(store_errors::ObjectNotSet,
                           QStringLiteral("数据控件“%1”还没有打开记录。").arg(objectName()));
    return m_loaded->asRead();
}

Recordset& Adodc::open(const QString& source) {
    setRecordSource(source);
    refresh();
    return recordset();
}

} // namespace qinghe
