#include "core/list_records.h"

#include "store/tables.h"

#include <algorithm>

namespace qinghe {

namespace {

/// The texts of some fields of the current record, in their order.
class TextReader {
public:
    TextReader(Recordset& records, const std::vector<QStringView>& fields) : m_records(records) {
        for (const QStringView field : fields)
            m_ordinals.push_back(static_cast<std::size_t>(records.field(field).ordinal()));
        m_texts.resize(m_ordinals.empty() ? 0 : *std::ranges::max_element(m_ordinals) + 1);
    }

    /// Tells whether all values would come back from their texts.
    bool read() { return m_records.readTexts(m_texts); }
    std::size_t count() const { return m_ordinals.size(); }
    /// std::nullopt for NULL.
    const std::optional<QString>& text(std::size_t field) const { return m_texts[m_ordinals[field]]; }

private:
    Recordset& m_records;
    std::vector<std::size_t> m_ordinals;
    std::vector<std::optional<QString>> m_texts;
};

} // namespace

void fillList(MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields, KeptValues& kept,
              const std::function<int()>& rowForEmptyText) {
    TextReader reader(records, fields);
    kept.clear();
    fillRows(grid, records, [&] {
        if (!reader.read())
            kept.keep(grid, records, fields);
        for (std::size_t field = 0; field < reader.count(); ++field) {
            const std::optional<QString>& text = reader.text(field);
            const int column = static_cast<int>(field) + 1;
            if (text && !text->isEmpty())
                grid.setTextMatrix(grid.Row(), column, *text);
            else if (text && rowForEmptyText)
                grid.setTextMatrix(rowForEmptyText(), column, {});
        }
    });
}

bool showsRecords(const MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields) {
    TextReader reader(records, fields);
    const auto showsCurrent = [&](int row) {
        reader.read();
        for (std::size_t field = 0; field < reader.count(); ++field)
            if (grid.TextMatrix(row, static_cast<int>(field) + 1) != reader.text(field).value_or(QString()))
                return false;
        return true;
    };
    int row = 1;
    for (; !records.eof(); records.moveNext(), ++row)
        if (row >= grid.Rows() || !showsCurrent(row))
            return false;
    while (row < grid.Rows() && isRowBlank(grid, row))
        ++row;
    return row == grid.Rows();
}

RowWriter::RowWriter(const MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields,
                     const KeptValues& kept)
    : m_grid(grid), m_records(records), m_kept(kept) {
    for (const QStringView field : fields)
        m_fields.push_back(records.field(field));
}

void RowWriter::begin(int row) {
    m_records.addNew();
    const QStringList texts = m_grid.rowTexts(row);
    for (int column = 1; Field & field : m_fields) {
        const QString& text = texts[column];
        if (const StoredValue* value = m_kept.behind(m_grid, row, column, text))
            field.setStored(*value);
        else if (!text.isEmpty())
            field.setValue(text);
        ++column;
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
