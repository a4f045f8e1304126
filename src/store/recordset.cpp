#include "store/recordset.h"

#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"
#include "store/cursor.h"
#include "store/dialect.h"
#include "store/pending_row.h"
#include "store/resting_rows.h"

#include <algorithm>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void throwNoCurrentRecord() {
    throw RuntimeError(RuntimeError::NoCurrentRecord,
                       u"没有当前记录：表中没有记录，已经到了末尾，或者这条记录已被删除。"_s);
}

} // namespace

struct Recordset::Impl {
    Impl(Store& owner, std::shared_ptr<ResultSet> result)
        : store(owner), rows(owner, std::move(result)), cursor(rows.count()), pending(columnCount()) {}

    Store& store;
    RestingRows rows;
    Cursor cursor;
    PendingRow pending;

    int columnCount() const { return static_cast<int>(rows.shape().columns.size()); }
    bool atEnd() const { return !pending.isNew() && cursor.atEnd(); }

    void requireRow() const {
        if (!cursor.onRow())
            throwNoCurrentRecord();
    }

    void requireWritable() const {
        if (!rows.shape().writable())
            throw RuntimeError(RuntimeError::QueryFailure, u"合计和分组的查询结果不能修改。"_s);
        rows.requireCurrent();
    }

    void requireRowToWrite() const {
        requireWritable();
        if (!pending.isNew())
            requireRow();
    }

    StoredRow currentRow() {
        requireRow();
        if (const auto row = rows.withValues(cursor.row()))
            return *row;
        throwNoCurrentRecord();
    }

    void storeAddedRow() {
        const std::span<const StoredValue> values = pending.stored();
        const qint64 identity = store.insertRow(rows.shape().table, rows.shape().ordinals, values);
        if (cursor.count() == 0) { // a save has deleted all: places are no longer counted around the deleted rows
            rows.clear();
            cursor.clear();
        }
        rows.add(identity, values);
        cursor.addRow();
    }

    void storeChangedFields() {
        const std::vector<int> columns = pending.columns();
        const std::span<const StoredValue> row = pending.stored();
        std::vector<int> ordinals;
        std::vector<StoredValue> values;
        for (const int column : columns) {
            ordinals.push_back(rows.shape().ordinals[static_cast<size_t>(column)]);
            values.push_back(row[static_cast<size_t>(column)]);
        }
        for (const qint64 identity : rows.identities(cursor.row()))
            store.updateRow(rows.shape().table, identity, ordinals, values);
        rows.change(cursor.row(), columns, values);
    }
};

Recordset::Recordset(Store& store, std::shared_ptr<ResultSet> rows)
    : m_impl(std::make_unique<Impl>(store, std::move(rows))) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

bool Recordset::isVoid() const {
    return !m_impl->rows.isCurrent();
}

int Recordset::recordCount() const {
    return m_impl->cursor.count();
}

bool Recordset::eof() const {
    return m_impl->atEnd();
}

void Recordset::moveFirst() {
    update();
    m_impl->cursor.toFirst();
    m_impl->requireRow();
}

void Recordset::moveNext() {
    update();
    if (eof())
        throwNoCurrentRecord();
    m_impl->cursor.toNext();
}

void Recordset::setAbsolutePosition(int position) {
    update();
    m_impl->cursor.toPosition(position);
    m_impl->requireRow();
}

void Recordset::addNew() {
    update();
    m_impl->requireWritable();
    m_impl->pending.begin();
}

void Recordset::update() {
    if (m_impl->pending.isEmpty())
        return;
    m_impl->requireWritable();
    m_impl->pending.isNew() ? m_impl->storeAddedRow() : m_impl->storeChangedFields();
    m_impl->pending.clear();
}

void Recordset::deleteCurrent() {
    const bool givenUp = m_impl->pending.isNew();
    m_impl->pending.clear();
    if (givenUp)
        return;
    m_impl->requireRow();
    m_impl->requireWritable();
    for (const qint64 identity : m_impl->rows.identities(m_impl->cursor.row()))
        m_impl->store.deleteRow(m_impl->rows.shape().table, identity);
    m_impl->cursor.deleteRow();
}

void Recordset::find(const QString& criterion) {
    update();
    const Comparison sought = parsedComparison(criterion);
    if (sought.sign != u"=" || sought.leading > 0 || sought.literals.front().isDate)
        throw RuntimeError(RuntimeError::QueryFailure,
                           u"查找条件应为 名称='文字'，不能是：%1"_s.arg(shownValue(criterion)));
    const int column = field(sought.column).m_ordinal;
    const QString& text = sought.literals.front().text;
    const auto matches = [&](int row) {
        const auto stored = m_impl->rows.withValues(row);
        return stored && !stored->isNull(column) && stored->text(column) == text;
    };
    m_impl->cursor.toFirst();
    while (!eof() && !matches(m_impl->cursor.row()))
        m_impl->cursor.toNext();
}

int Recordset::fieldCount() const {
    return m_impl->columnCount();
}

bool Recordset::readTexts(std::span<std::optional<QString>> texts) {
    const bool changed = !m_impl->pending.isEmpty();
    const auto row = changed ? std::nullopt : std::optional(m_impl->currentRow());
    bool comeBack = true;
    for (int i = 0; auto& text : texts) {
        const int column = i++;
        if (row)
            comeBack &= row->read(column, text);
        else if (field(column).isNull())
            text.reset();
        else
            text = field(column).text();
    }
    return comeBack;
}

Field Recordset::field(int ordinal) {
    if (ordinal < 0 || ordinal >= fieldCount())
        throw RuntimeError(RuntimeError::NoSuchField, u"记录里没有第 %1 栏。"_s.arg(ordinal + 1));
    return Field(*this, ordinal);
}

Field Recordset::field(QStringView name) {
    const TableColumns& columns = m_impl->rows.shape().columns;
    const auto found = std::ranges::find(columns, name, &Column::name);
    if (found == columns.end())
        throw RuntimeError(RuntimeError::NoSuchField, u"记录里没有“%1”这一栏。"_s.arg(shownValue(name)));
    return Field(*this, static_cast<int>(found - columns.begin()));
}

QString Field::name() const {
    return column().name;
}

Value Field::value() const {
    if (pending())
        return *pending();
    if (m_set->m_impl->pending.isNew())
        return {};
    const StoredRow row = m_set->m_impl->currentRow();
    return row.rows->value(row.row, m_ordinal);
}

QString Field::text() const {
    const auto row = stored();
    return row ? row->text(m_ordinal) : value().text();
}

bool Field::isNull() const {
    const auto row = stored();
    return row ? row->isNull(m_ordinal) : value().isNull();
}

bool Field::differsFromEmpty() const {
    const auto row = stored();
    return row ? row->rows->holdsText(row->row, m_ordinal) : value().holdsText();
}

bool Field::equalsEmpty() const {
    return !isNull() && !differsFromEmpty();
}

void Field::setValue(const Value& value) {
    auto& set = *m_set->m_impl;
    set.requireRowToWrite();
    set.pending.set(m_ordinal, converted(column(), value, set.store.thisYear()));
}

StoredValue Field::asStored() const {
    return m_set->m_impl->currentRow().stored(m_ordinal);
}

void Field::setStored(const StoredValue& value) {
    auto& set = *m_set->m_impl;
    set.requireRowToWrite();
    set.pending.setStored(m_ordinal, value, column().kind);
}

QByteArray Field::getChunk(int count) const {
    if (count < 0)
        throw RuntimeError(RuntimeError::InvalidCall, u"不能读取 %1 个字节。"_s.arg(count));
    return value().bytes().left(count);
}

void Field::appendChunk(const QByteArray& bytes) {
    setValue(bytes);
}

const Column& Field::column() const {
    return m_set->m_impl->rows.shape().columns[static_cast<size_t>(m_ordinal)];
}

std::optional<StoredRow> Field::stored() const {
    auto& set = *m_set->m_impl;
    return !set.pending.isNew() && !pending() && set.cursor.onRow() ? std::optional(set.currentRow()) : std::nullopt;
}

const std::optional<Value>& Field::pending() const {
    return m_set->m_impl->pending.value(m_ordinal);
}

} // namespace qinghe
