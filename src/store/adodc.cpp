#include "store/adodc.h"

#include "runtime/runtime_error.h"
#include "store/connection_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

Adodc::Adodc(Store& store, const QString& name, const QString& home, QObject* parent)
    : QObject(parent), m_store(store), m_home(home), m_connection(home) {
    setObjectName(name);
}

Adodc::~Adodc() = default;

void Adodc::refresh() {
    m_loaded = std::make_shared<LoadedSet>(m_store, systemPath(dataSource(m_connection), m_store.path()), m_source);
}

Recordset& Adodc::recordset() {
    if (!m_loaded)
        throw RuntimeError(RuntimeError::ObjectNotSet, u"数据控件“%1”还没有打开记录。"_s.arg(objectName()));
    return m_loaded->asRead();
}

void Adodc::show(const std::shared_ptr<LoadedSet>& loaded) {
    setConnectionString(m_home);
    setRecordSource(loaded->source());
    m_loaded = loaded;
    if (Recordset& records = recordset(); records.recordCount() > 0)
        records.moveFirst();
}

Recordset& Adodc::open(const QString& source) {
    setConnectionString(m_home);
    setRecordSource(source);
    refresh();
    return recordset();
}

} // namespace qinghe
