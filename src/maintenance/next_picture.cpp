#include "maintenance/next_picture.h"

namespace qinghe {

namespace {

Recordset& rowsOf(const StoredPicture& picture, Adodc& control) {
    return control.open(picture.source.toString());
}

/// Added at the end before it goes from the beginning: a failure between leaves it twice and not never.
void moveFirstBehind(const StoredPicture& picture, Adodc& control) {
    Recordset& rows = rowsOf(picture, control);
    const QStringView columns[] = {picture.table.name, picture.table.size, picture.table.bytes};
    std::vector<Value> values;
    for (const QStringView column : columns)
        values.push_back(rows.field(column).value());
    rows.addNew();
    for (std::size_t i = 0; i < values.size(); ++i)
        rows.field(columns[i]).setValue(values[i]);
    rows.update();
    rows.moveFirst();
    rows.deleteCurrent();
}

/// What the first row shows; null where it has no bytes, or some that are no picture.
QImage firstShown(const StoredPicture& picture, Adodc& control, const Shared& shared, const QWidget& place) {
    try {
        return writeOut(picture, readPicture(picture, control).bytes, shared, place);
    } catch (const RuntimeError& error) {
        if (error.number() != RuntimeError::InvalidPicture)
            throw;
        return {};
    }
}

} // namespace

std::optional<NextPicture> turnToNext(const StoredPicture& picture, Adodc& control, const Shared& shared,
                                      const QWidget& place) {
    bool passed = false; // the one that counts: the first with bytes
    for (int left = rowsOf(picture, control).recordCount(); left > 0; --left) {
        passed = passed || !readPicture(picture, control).bytes.isEmpty();
        moveFirstBehind(picture, control);
        const bool round = left == 1; // as they were
        if (!passed || round)
            continue;
        if (const QImage image = firstShown(picture, control, shared, place); !image.isNull())
            return NextPicture{rowsOf(picture, control).field(picture.table.name).text(), image};
    }
    return {};
}

} // namespace qinghe
