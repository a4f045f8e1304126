#include "core/stored_picture.h"

#include "platform/files.h"

#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// The picture of the row on which the set stands.
PictureBytes pictureOf(const StoredPicture& picture, Recordset& row) {
    const double size = row.field(picture.table.size).value().number();
    if (size < 0 || size > std::numeric_limits<int>::max())
        throw RuntimeError(
            RuntimeError::InvalidPicture,
            u"账本里有一张图片的“%1”是 %2，不可能是文件的长度，图片（%3）无法读取。请用备份文件还原账本。"_s.arg(
                picture.table.size, Value(size).text(), picture.file));
    return {static_cast<float>(size), row.field(picture.table.bytes).getChunk(static_cast<int>(size))};
}

/// The first row with bytes, else the first row, which must be there.
PictureBytes firstWithBytes(const StoredPicture& picture, Adodc& control) {
    PictureBytes read = readPicture(picture, control);
    Recordset& rows = control.recordset();
    for (rows.moveNext(); read.bytes.isEmpty() && !rows.eof(); rows.moveNext())
        read = pictureOf(picture, rows);
    return read;
}

QImage firstThatCanBeShown(const StoredPicture& picture, Adodc& control, const Shared& shared, const QWidget& place) {
    for (Recordset& rows = control.open(picture.source.toString()); !rows.eof(); rows.moveNext()) {
        try {
            const QImage image = writeOut(picture, pictureOf(picture, rows).bytes, shared, place);
            if (!image.isNull())
                return image;
        } catch (const RuntimeError& error) {
            if (error.number() != RuntimeError::InvalidPicture)
                throw;
        }
    }
    return {};
}

} // namespace

PictureBytes readPicture(const StoredPicture& picture, Adodc& control, const QString& endOfSource) {
    return pictureOf(picture, control.open(picture.source.toString() + endOfSource));
}

QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared, const QWidget& place) {
    if (bytes.isEmpty())
        return {};
    const QString path = shared.beside(picture.file.toString());
    files::writeOver(path, bytes);
    return files::loadPicture(path, place.size());
}

QImage writeOut(const StoredPicture& picture, Adodc& control, const Shared& shared, const QWidget& place) {
    return writeOut(picture, firstWithBytes(picture, control).bytes, shared, place);
}

QImage writeOutSkin(Adodc& control, const Shared& shared, const QWidget& place) {
    const QByteArray chosen = readPicture(ChosenSkin, control).bytes;
    return chosen.isEmpty() ? firstThatCanBeShown(OfferedSkins, control, shared, place)
                            : writeOut(ChosenSkin, chosen, shared, place);
}

} // namespace qinghe
