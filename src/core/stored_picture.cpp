#include "core/stored_picture.h"

#include "platform/files.h"

#include <limits>

namespace qinghe {

namespace {

/// The picture of the row on which the set stands.
PictureBytes pictureOf(const StoredPicture& picture, Recordset& row) {
    const QString sizeColumn = QString::fromUtf16(picture.sizeColumn);
    const double size = row.field(sizeColumn).value().number();
    if (size < 0 || size > std::numeric_limits<int>::max())
        throw RuntimeError(
            RuntimeError::InvalidPicture,
            QStringLiteral(
                "账本里有一张图片的“%1”是 %2，不可能是文件的长度，图片（%3）无法读取。请用备份文件还原账本。")
                .arg(sizeColumn, Value(size).text(), QString::fromUtf16(picture.file)));
    return {static_cast<float>(size),
            row.field(QString::fromUtf16(picture.bytesColumn)).getChunk(static_cast<int>(size))};
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
    for (Recordset& rows = control.open(QString::fromUtf16(picture.source)); !rows.eof(); rows.moveNext()) {
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
    return pictureOf(picture, control.open(QString::fromUtf16(picture.source) + endOfSource));
}

QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared, const QWidget& place) {
    if (bytes.isEmpty())
        return {};
    const QString path = shared.beside(QString::fromUtf16(picture.file));
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
