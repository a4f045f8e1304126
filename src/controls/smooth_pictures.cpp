#include "controls/smooth_pictures.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>

namespace qinghe {

SmoothPictures::SmoothPictures(QTextDocument& document, QTextObjectInterface& plain)
    : QObject(&document), m_plain(plain) {}

void SmoothPictures::serve(QTextDocument& document) {
    QAbstractTextDocumentLayout& layout = *document.documentLayout();
    layout.registerHandler(QTextFormat::ImageObject,
                           new SmoothPictures(document, *layout.handlerForObject(QTextFormat::ImageObject)));
}

QSizeF SmoothPictures::intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) {
    return m_plain.intrinsicSize(document, position, format);
}

void SmoothPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                                const QTextFormat& format) {
    const bool before = painter->testRenderHint(QPainter::SmoothPixmapTransform);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    m_plain.drawObject(painter, place, document, position, format);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, before);
}

} // namespace qinghe
