#include "core/stored_picture.h"

#include "platform/files.h"
#include "platform/pictures.h"

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

/// What cannot be shown, be it no picture or too large a one, counts as none where nobody has just asked for it: its
/// users get in, whatever lies in the book. `why` tells of it, until something does so already.
template<class Show>
QImage orNone(const Show& show, QString& why) {
    try {
        return show();
    } catch (const RuntimeError& error) {
        if (error.number() != RuntimeError::InvalidPicture)
            throw;
        if (why.isEmpty())
            why = error.text();
        return {};
    }
}

QImage loaded(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared, const QWidget& place) {
    return bytes.isEmpty() ? QImage() : pictureFrom(bytes, place.size(), shared.beside(picture.file.toString()));
}

/// On a full disk a picture is shown from the book alone.
QImage writeOutWhereThereIsRoom(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared,
                                const QWidget& place) {
    try {
        return writeOut(picture, bytes, shared, place);
    } catch (const RuntimeError& error) {
        if (error.number() != RuntimeError::DiskFull)
            throw;
        return loaded(picture, bytes, shared, place);
    }
}

/// From the row on which the set stands.
QImage firstThatCanBeShown(const StoredPicture& picture, Recordset& rows, const Shared& shared, const QWidget& place,
                           QString& why) {
    for (; !rows.eof(); rows.moveNext()) {
        const auto show = [&] {
            return writeOutWhereThereIsRoom(picture, pictureOf(picture, rows).bytes, shared, place);
        };
        if (const QImage image = orNone(show, why); !image.isNull())
            return image;
    }
    return {};
}

void tellOf(const QString& why, Shared& shared) {
    if (!why.isEmpty())
        shared.note(u"有图片不能显示，鼠标停在这里看原因。\n"_s + why);
}

} // namespace

PictureBytes readPicture(const StoredPicture& picture, Adodc& control, const QString& endOfSource) {
    return pictureOf(picture, control.open(picture.source.toString() + endOfSource));
}

QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared, const QWidget& place) {
    const QImage image = loaded(picture, bytes, shared, place); // what is no picture is not written
    if (!image.isNull())
        files::writeOver(shared.beside(picture.file.toString()), bytes);
    return image;
}

QImage writeOut(const StoredPicture& picture, Adodc& control, Shared& shared, const QWidget& place) {
    const QByteArray first = readPicture(picture, control).bytes;
    QString why;
    QImage image = orNone([&] { return writeOutWhereThereIsRoom(picture, first, shared, place); }, why);
    if (image.isNull()) {
        control.recordset().moveNext();
        image = firstThatCanBeShown(picture, control.recordset(), shared, place, why);
    }
    tellOf(why, shared);
    return image;
}

QImage writeOutSkin(Adodc& control, Shared& shared, const QWidget& place) {
    const QByteArray chosen = readPicture(ChosenSkin, control).bytes;
    QString why;
    QImage image = orNone([&] { return writeOutWhereThereIsRoom(ChosenSkin, chosen, shared, place); }, why);
    if (image.isNull())
        image = firstThatCanBeShown(OfferedSkins, control.open(OfferedSkins.source.toString()), shared, place, why);
    tellOf(why, shared);
    return image;
}

} // namespace qinghe
