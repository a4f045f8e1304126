#pragma once

#include "runtime/value.h"
#include "store/store.h"

#include <QString>

#include <memory>
#include <optional>
#include <span>

namespace qinghe {

struct StoredRow;
struct StoredValue;

/// One column of the current row; made by Recordset::field.
class Field;
class ResultSet;

/// The rows of one Refresh: identities and values, no open statement. When the store has rested (Store::rest), and for
/// rows added, values are read again as they are then; a row that has been deleted meanwhile has none. Stands on its
/// first row, or at EOF when there is none. Rows added join it at the end; a row between addNew and update is not
/// counted.
///
/// A set of a table, or of a select over one table without grouping, can be written; in a `select distinct` a deletion
/// takes every stored row behind the value. Others refuse writing (RuntimeError, QueryFailure). Moving on, searching
/// and addNew store what is pending first, as update() would. Throws RuntimeError: NoCurrentRecord where a row is
/// needed and none is current, or it was deleted before its values were read again; StoreFailure when the file was
/// closed or replaced since, for writing and for values that are to be read again; and what the store throws.
class Recordset {
public:
    Recordset(Store& store, std::shared_ptr<ResultSet> rows);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    /// Whether the file has been closed or replaced since the rows were read.
    bool isVoid() const;

    int recordCount() const;
    bool eof() const;
    void moveFirst();
    void moveNext();
    /// 1-based, as the grids count.
    void setAbsolutePosition(int position);

    void addNew();
    /// Stores the pending row or the changed fields; without any it does nothing. An added row becomes the current one.
    void update();
    /// Deletes the current row at once; the set stands on nothing until moveNext. A pending row is given up instead.
    void deleteCurrent();

    /// `criterion` is one comparison, 名称='text'; a quote inside the text is a RuntimeError (QueryFailure). Searches
    /// forward from the first row, exactly, case included; on a miss the set stands at EOF.
    void find(const QString& criterion);

    int fieldCount() const;
    /// The texts of the first fields of the current row, as many as `texts` has room for, std::nullopt for NULL;
    /// quicker than field by field. Tells whether each value that is stored would be the same again once its text is
    /// written into its column (comesBack).
    bool readTexts(std::span<std::optional<QString>> texts);
    Field field(int ordinal);      ///< 0-based; throws RuntimeError (3265, no such item)
    Field field(QStringView name); ///< throws likewise

private:
    friend class Field;
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/// Stays with the set, not with the row: after a move it is that column of the new current row.
class Field {
public:
    QString name() const;
    int ordinal() const { return m_ordinal; } ///< 0-based
    const Column& column() const;             ///< what it can hold
    Value value() const;
    QString text() const; ///< value().text()
    bool isNull() const;
    /// NULL fields are skipped by fills; "differs from the empty string" is false for them, as is "equals" it.
    bool differsFromEmpty() const;
    bool equalsEmpty() const;

    /// Writes into the pending row or the current one; reaches the store with Recordset::update. Throws RuntimeError
    /// (type mismatch) for what the column cannot hold.
    void setValue(const Value& value);

    /// The current row's value as it lies in the file; there must be one, and nothing pending. It has its bytes as long
    /// as the row has its values: who keeps it copies them.
    StoredValue asStored() const;
    /// Writes what such a field held, storage and bytes, without asking what the column can hold.
    void setStored(const StoredValue& value);

    /// The first `count` bytes of a binary column, or all when there are fewer.
    QByteArray getChunk(int count) const;
    /// Puts the whole array into a binary column.
    void appendChunk(const QByteArray& bytes);

private:
    friend class Recordset;
    Field(Recordset& set, int ordinal) : m_set(&set), m_ordinal(ordinal) {}
    /// The row that holds the field's value; none while the set stands on no row or the value is pending.
    std::optional<StoredRow> stored() const;
    const std::optional<Value>& pending() const; ///< what was set and not yet stored

    Recordset* m_set;
    int m_ordinal;
};

} // namespace qinghe
