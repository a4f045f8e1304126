#include "core/stored_picture.h"

#include "platform/files.h"

namespace qinghe {

PictureBytes readPicture(const StoredPicture& picture, Adodc& control, const QString& endOfSource) {
    Recordset& row = control.open(QString::fromUtf16(picture.source) + endOfSource);
    const double size = row.field(QString::fromUtf16(picture.sizeColumn)).value().number();
    return {static_cast<float>(size),
            row.field(QString::fromUtf16(picture.bytesColumn)).getChunk(static_cast<int>(size))};
}

QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Workbench& bench, const QWidget& place) {
    const QString path = bench.beside(QString::fromUtf16(picture.file));
    files::writeOver(path, bytes);
    return files::loadPicture(path, place.size());
}

QImage writeOut(const StoredPicture& picture, Adodc& control, const Workbench& bench, const QWidget& place) {
    return writeOut(picture, readPicture(picture, control).bytes, bench, place);
}

} // namespace qinghe
