#include "store/recordset.h"

#include "runtime/runtime_error.h"
#include "store/dialect.h"
#include "store/result_set.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace qinghe {

namespace {

constexpr int kRowsReadAgain = 256; ///< at once, so that walks stay short of a query a row

[[noreturn]] void throwNoCurrentRecord() {
    throw RuntimeError(RuntimeError::NoCurrentRecord,
                       QStringLiteral("没有当前记录：表中没有记录，已经到了末尾，或者这条记录已被删除。"));
}

} // namespace

/// A row that has its values, among the rows where it was found.
struct StoredRow {
    const ResultSet* rows;
    int row;

    bool isNull(int column) const { return rows->isNull(row, column); }
    QString text(int column) const { return rows->text(row, column); }
};

struct Recordset::Impl {
    Impl(Store& owner, std::shared_ptr<const ResultSet> result)
        : store(owner), generation(owner.generation()), rows(std::move(result)), edits(rows->shape().columns.size()) {}

    Store& store;
    int generation; ///< of the store when the rows were read
    std::shared_ptr<const ResultSet> rows;
    std::shared_ptr<ResultSet> own;         ///< the same as rows, once they are no longer shared
    std::shared_ptr<const ResultSet> again; ///< some of the rows whose values were read again
    std::vector<bool> gone;                 ///< by row, once one was deleted
    int goneCount = 0;
    int current = 0; ///< a row, perhaps a deleted one; rowCount() is EOF
    bool adding = false;
    bool edited = false;
    std::vector<std::optional<Value>> edits; ///< what was set since the last update
    std::vector<StoredValue> addedValues;    ///< of the row that was added last; kept for its room alone

    bool isGone(int row) const { return goneCount > 0 && gone[static_cast<size_t>(row)]; }
    bool onRow() const { return current < rows->rowCount() && !isGone(current); }
    void clearEdits() {
        if (std::exchange(edited, false))
            std::ranges::fill(edits, std::nullopt);
    }

    /// The first row from `row` on that is still there, or EOF.
    int rowFrom(int row) const {
        while (row < rows->rowCount() && isGone(row))
            ++row;
        return row;
    }

    void requireRow() const {
        if (!onRow())
            throwNoCurrentRecord();
    }

    /// A row with its values; none when it has been deleted before they were read again.
    std::optional<StoredRow> storedRow(int row) {
        if (rows->hasValues(row))
            return StoredRow{rows.get(), row};
        const qint64 identity = rows->identities(row).front();
        int found = again ? again->rowOf(identity) : -1;
        if (found < 0 || !again->hasValues(found)) {
            readAgain(row);
            found = again->rowOf(identity);
        }
        return found < 0 ? std::nullopt : std::optional(StoredRow{again.get(), found});
    }

    void readAgain(int row) {
        store.requireGeneration(generation);
        const int last = std::min(row + kRowsReadAgain, rows->rowCount()) - 1;
        again = store.fetchAgain(rows->shape(), rows->identities(row).front(), rows->identities(last).front());
    }

    StoredRow currentRow() {
        requireRow();
        if (const auto row = storedRow(current))
            return *row;
        throwNoCurrentRecord();
    }

    void requireWritable() const {
        if (!rows->shape().writable())
            throw RuntimeError(RuntimeError::QueryFailure, QStringLiteral("合计和分组的查询结果不能修改。"));
        store.requireGeneration(generation);
    }

    /// Where the set stands when it is told to jump to the 1-based `position`; EOF when there is no such row.
    int rowAt(int position) const {
        if (position < 1 || position > rows->rowCount() - goneCount)
            return rows->rowCount();
        if (goneCount == 0)
            return position - 1;
        int row = rowFrom(0);
        for (int i = 1; i < position; ++i)
            row = rowFrom(row + 1);
        return row;
    }

    /// The rows as a set of our own. Nothing is copied when none of them is left: they begin anew.
    ResultSet& writableRows() {
        const bool empty = goneCount == rows->rowCount();
        if (own && !empty)
            return *own;
        own = empty ? std::make_shared<ResultSet>(rows->shape()) : std::make_shared<ResultSet>(*rows);
        rows = own;
        store.restLater(own);
        if (empty) {
            gone.clear();
            goneCount = 0;
        }
        return *own;
    }

    void storeAddedRow() {
        addedValues.resize(edits.size());
        for (size_t i = 0; i < edits.size(); ++i)
            addedValues[i] = edits[i] ? encoded(*edits[i]) : StoredValue();
        const qint64 identity = store.insertRow(rows->shape().table, rows->shape().ordinals, addedValues);
        ResultSet& mine = writableRows();
        if (!mine.isPlain())
            std::ranges::for_each(addedValues, [&](const StoredValue& value) { mine.appendCell(value); });
        mine.finishRow(identity);
        current = mine.rowCount() - 1;
        if (goneCount > 0)
            gone.push_back(false);
    }

    void storeChangedFields() {
        std::vector<int> changed;
        std::vector<int> ordinals;
        std::vector<StoredValue> values;
        for (size_t i = 0; i < edits.size(); ++i) {
            if (!edits[i])
                continue;
            changed.push_back(static_cast<int>(i));
            ordinals.push_back(rows->shape().ordinals[i]);
            values.push_back(encoded(*edits[i]));
        }
        for (const qint64 identity : rows->identities(current))
            store.updateRow(rows->shape().table, identity, ordinals, values);
        again.reset();
        if (!rows->hasValues(current))
            return;
        ResultSet& mine = writableRows();
        for (size_t i = 0; i < changed.size(); ++i)
            mine.setCell(current, changed[i], values[i]);
    }
};

Recordset::Recordset(Store& store, std::shared_ptr<const ResultSet> rows)
    : m(std::make_unique<Impl>(store, std::move(rows))) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

bool Recordset::isVoid() const {
    return !m->store.isCurrent(m->generation);
}

int Recordset::recordCount() const {
    return m->rows->rowCount() - m->goneCount;
}

bool Recordset::eof() const {
    return !m->adding && m->current == m->rows->rowCount();
}

void Recordset::moveFirst() {
    update();
    m->current = m->rowFrom(0);
    m->requireRow();
}

void Recordset::moveNext() {
    update();
    if (eof())
        m->requireRow();
    m->current = m->rowFrom(m->current + 1);
}

void Recordset::setAbsolutePosition(int position) {
    update();
    m->current = m->rowAt(position);
    m->requireRow();
}

void Recordset::addNew() {
    update();
    m->requireWritable();
    m->adding = true;
}

void Recordset::update() {
    if (!m->adding && !m->edited)
        return;
    m->requireWritable();
    m->adding ? m->storeAddedRow() : m->storeChangedFields();
    m->adding = false;
    m->clearEdits();
}

void Recordset::deleteCurrent() {
    m->clearEdits();
    if (std::exchange(m->adding, false))
        return;
    m->requireRow();
    m->requireWritable();
    for (const qint64 identity : m->rows->identities(m->current))
        m->store.deleteRow(m->rows->shape().table, identity);
    m->gone.resize(static_cast<size_t>(m->rows->rowCount()));
    m->gone[static_cast<size_t>(m->current)] = true;
    ++m->goneCount;
}

void Recordset::find(const QString& criterion) {
    update();
    const Comparison sought = parsedComparison(criterion);
    if (sought.sign != u"=" || sought.leading > 0 || sought.literals.front().isDate)
        throw RuntimeError(RuntimeError::QueryFailure,
                           QStringLiteral("查找条件应为 名称='文字'，不能是：%1").arg(criterion));
    const int column = field(sought.column).m_ordinal;
    const QString& text = sought.literals.front().text;
    const auto matches = [&](int row) {
        const auto stored = m->storedRow(row);
        return stored && !stored->isNull(column) && stored->text(column) == text;
    };
    m->current = m->rowFrom(0);
    while (!eof() && !matches(m->current))
        m->current = m->rowFrom(m->current + 1);
}

int Recordset::fieldCount() const {
    return m->rows->columnCount();
}

void Recordset::readTexts(std::span<std::optional<QString>> texts) {
    const int count = static_cast<int>(texts.size());
    const bool changed = m->adding || m->edited;
    const auto row = changed ? std::nullopt : std::optional(m->currentRow());
    for (int i = 0; i < count; ++i) {
        auto& text = texts[static_cast<size_t>(i)];
        if (row ? row->isNull(i) : field(i).isNull())
            text.reset();
        else
            text = row ? row->text(i) : field(i).text();
    }
}

Field Recordset::field(int ordinal) {
    if (ordinal < 0 || ordinal >= fieldCount())
        throw RuntimeError(RuntimeError::NoSuchField, QStringLiteral("记录里没有第 %1 栏。").arg(ordinal + 1));
    return Field(*this, ordinal);
}

Field Recordset::field(QStringView name) {
    const TableColumns& columns = m->rows->shape().columns;
    const auto found = std::ranges::find(columns, name, &Column::name);
    if (found == columns.end())
        throw RuntimeError(RuntimeError::NoSuchField, QStringLiteral("记录里没有“%1”这一栏。").arg(name));
    return Field(*this, static_cast<int>(found - columns.begin()));
}

QString Field::name() const {
    return column().name;
}

Value Field::value() const {
    if (pending())
        return *pending();
    if (m_set->m->adding)
        return {};
    const StoredRow row = m_set->m->currentRow();
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
    auto& set = *m_set->m;
    set.requireWritable();
    if (!set.adding)
        set.requireRow();
    set.edits[static_cast<size_t>(m_ordinal)] = converted(column(), value, set.store.thisYear());
    set.edited = true;
}

QByteArray Field::getChunk(int count) const {
    if (count < 0)
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("不能读取 %1 个字节。").arg(count));
    return value().bytes().left(count);
}

void Field::appendChunk(const QByteArray& bytes) {
    setValue(bytes);
}

const Column& Field::column() const {
    return m_set->m->rows->shape().columns[static_cast<size_t>(m_ordinal)];
}

std::optional<StoredRow> Field::stored() const {
    auto& set = *m_set->m;
    return !set.adding && !pending() && set.onRow() ? std::optional(set.currentRow()) : std::nullopt;
}

const std::optional<Value>& Field::pending() const {
    return m_set->m->edits[static_cast<size_t>(m_ordinal)];
}

} // namespace qinghe
