#pragma once

#include "store/result_set.h"
#include "store/store.h"

#include <memory>
#include <optional>

namespace qinghe {

/// A row that has its values, among the rows where it was found.
struct StoredRow {
    const ResultSet* rows;
    int row;

    bool isNull(int column) const { return rows->isNull(row, column); }
    QString text(int column) const { return rows->text(row, column); }
    StoredValue stored(int column) const { return rows->stored(row, column); }
    /// Its text, none for NULL, and whether the value comes back from it.
    bool read(int column, std::optional<QString>& text) const {
        const StoredValue value = stored(column);
        if (value.storage == Storage::Null) {
            text.reset();
            return true;
        }
        const ColumnKind kind = rows->shape().columns[static_cast<size_t>(column)].kind;
        text = decodedText(value, kind);
        // Whole amounts are most of what long lists hold; they are told here, without a call.
        constexpr qint64 AllDigits = 1'000'000'000;
        const bool isWholeAmount = value.storage == Storage::Integer && kind == ColumnKind::Number &&
                                   -AllDigits < value.integer && value.integer < AllDigits;
        return isWholeAmount || comesBack(value, *text, kind);
    }
};

/// The rows of a recordset, which keep their identities, and their values only as long as the handler lasts
/// (Store::rest): a value that is asked for later is read again, with those of the rows behind it. Without it a page
/// would hold its list twice, in the grid and here: 0.6 MB for a book of ten years, 22 MB for 100,000 rows. Reading all
/// of them again costs a quarter more than reading them did.
class RestingRows {
public:
    RestingRows(Store& store, std::shared_ptr<ResultSet> rows);

    /// Whether the file is still the one from which the rows were read.
    bool isCurrent() const { return m_store.isCurrent(m_generation); }
    /// Throws RuntimeError (StoreFailure) when it is not.
    void requireCurrent() const { m_store.requireGeneration(m_generation); }

    const ResultShape& shape() const { return m_rows->shape(); }
    int count() const { return m_rows->rowCount(); }
    std::span<const qint64> identities(int row) const { return m_rows->identities(row); }

    /// A row with its values, read again if need be; none when it has been deleted meanwhile. Throws as the store does,
    /// and like requireCurrent.
    std::optional<StoredRow> withValues(int row);

    /// Puts a row that was stored behind the others. Where its values can be read again they are not kept.
    void add(qint64 identity, std::span<const StoredValue> values);
    /// Notes what was stored in some columns of a row.
    void change(int row, std::span<const int> columns, std::span<const StoredValue> values);
    /// Forgets all rows.
    void clear();

private:
    void readAgain(int row);

    Store& m_store;
    int m_generation; ///< of the store when the rows were read
    std::shared_ptr<ResultSet> m_rows;
    std::shared_ptr<const ResultSet> m_again; ///< some of the rows whose values were read again
};

} // namespace qinghe
