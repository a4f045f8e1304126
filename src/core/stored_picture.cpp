#include "core/stored_picture.h"

#include "platform/files.h"

namespace qinghe {

QImage writeOut(const StoredPicture& picture, Adodc& control, const Workbench& bench, const QWidget& place) {
    Recordset& row = control.open(QString::fromUtf16(picture.source));
    const int size = static_cast<int>(row.field(QString::fromUtf16(picture.sizeColumn)).value().number());
    const QByteArray bytes = row.field(QString::fromUtf16(picture.bytesColumn)).getChunk(size);
    const QString path = bench.beside(QString::fromUtf16(picture.file));
    files::writeAll(path, bytes);
    return files::loadPicture(path, place.size());
}

} // namespace qinghe
