#include "core/list_records.h"

#include "store/tables.h"

#include <algorithm>

namespace qinghe {

void fillList(MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields,
              const std::function<int()>& rowForEmptyText) {
    std::vector<std::size_t> ordinals;
    for (const QStringView field : fields)
        ordinals.push_back(static_cast<std::size_t>(records.field(field).ordinal()));
    std::vector<std::optional<QString>> texts(ordinals.empty() ? 0 : *std::ranges::max_element(ordinals) + 1);
    fillRows(grid, records, [&] {
        records.readTexts(texts);
        for (int column = 1; const std::size_t ordinal : ordinals) {
            const std::optional<QString>& text = texts[ordinal];
            if (text && !text->isEmpty())
                grid.setTextMatrix(grid.Row(), column, *text);
            else if (text && rowForEmptyText)
                grid.setTextMatrix(rowForEmptyText(), column, {});
            ++column;
        }
    });
}

RowWriter::RowWriter(const MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields)
    : m_grid(grid), m_records(records) {
    for (const QStringView field : fields)
        m_fields.push_back(records.field(field));
}

void RowWriter::begin(int row) {
    m_records.addNew();
    const QStringList texts = m_grid.rowTexts(row);
    for (int column = 1; Field & field : m_fields) {
        if (const QString& text = texts[column++]; !text.isEmpty())
            field.setValue(text);
    }
}

void RowWriter::add(int row) {
    begin(row);
    m_records.update();
}

void RowWriter::add(int row, int number) {
    if (!m_number)
        m_number = m_records.field(columns::RowNumber);
    begin(row);
    m_number->setValue(number);
    m_records.update();
}

} // namespace qinghe
