#include "core/kept_values.h"

namespace qinghe {

void KeptValues::keep(MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields) {
    const int record = ++m_lastRecord;
    grid.setRowData(grid.Row(), record);
    for (int column = 1; const QStringView name : fields) {
        const Field field = records.field(name);
        StoredValue value = field.asStored();
        const QString text = decodedText(value, field.column().kind);
        if (!text.isEmpty() && !comesBack(value, text, field.column().kind)) {
            value.bytes.detach(); // they lie in the set so far
            m_values[{record, column}] = {text, value};
        }
        ++column;
    }
}

const StoredValue* KeptValues::behind(const MSFlexGrid& grid, int row, int column, const QString& text) const {
    if (m_values.empty())
        return nullptr;
    const auto found = m_values.find({grid.RowData(row), column});
    return found != m_values.end() && found->second.text == text ? &found->second.value : nullptr;
}

} // namespace qinghe
