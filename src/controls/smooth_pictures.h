#pragma once

#include <QObject>
#include <QTextDocument>
#include <QTextObjectInterface>

namespace qinghe {

/// Draws the pictures of a document as Qt does, but for those that are shown larger or smaller than they are: these are
/// smooth, so that words in them stay legible.
class SmoothPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Takes over from Qt's own way for as long as the document stands, which owns it then.
    static void serve(QTextDocument& document);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

private:
    SmoothPictures(QTextDocument& document, QTextObjectInterface& plain);

    QTextObjectInterface& m_plain;
};

} // namespace qinghe
