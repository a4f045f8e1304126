#include "store/data_control.h"

#include "runtime/runtime_error.h"
#include "store/connection_text.h"
#include "store/store_errors.h"

#include <utility>

namespace qinghe {

Adodc::Adodc(Store& store, const QString& name, QObject* parent) : QObject(parent), m_store(store) {
    setObjectName(name);
}

Adodc::~Adodc() = default;

void Adodc::refresh() {
    m_store.use(systemPath(dataSource(m_connection)));
    m_recordset = std::make_unique<Recordset>(m_store, m_store.fetch(m_source));
}

Recordset& Adodc::recordset() {
    if (!m_recordset)
        throw RuntimeError(store_errors::ObjectNotSet,
                           QStringLiteral("数据控件“%1”还没有打开记录。").arg(objectName()));
    return *m_recordset;
}

Recordset& Adodc::open(const QString& source) {
    setRecordSource(source);
    refresh();
    return recordset();
}

Adodc::Loan::Loan(Adodc& control)
    : m_control(control), m_source(control.m_source), m_set(std::move(control.m_recordset)) {}

Adodc::Loan::~Loan() {
    m_control.m_source = std::move(m_source);
    m_control.m_recordset = std::move(m_set);
}

} // namespace qinghe
