#include "controls/label.h"

#include "controls/accessible.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOption>

#include <utility>

namespace qinghe {

Label::Label(QWidget* parent, const QString& name, const QString& caption) : WithClicks(parent, name) {
    setTextFormat(Qt::PlainText);
    setText(caption);
}

void Label::setCaption(const QString& caption) {
    if (text() == caption)
        return;
    setText(caption);
    // To who listens, words that come anew are a label that comes up.
    if (m_announced && !caption.isEmpty() && isVisible())
        accessible::tell(*this, QAccessible::ObjectShow);
}

bool Label::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip)
        ToolTipAsked.fromQt();
    return WithClicks::event(event);
}

void Label::paintEvent(QPaintEvent*) {
    paintElement(CE_Words);
}

void Label::paintElement(StyleElement element) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawControl(static_cast<QStyle::ControlElement>(element), &option, &painter, this);
}

void Label::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!DblClick) {
        mousePressEvent(event);
        return;
    }
    event->accept();
    m_press.forget();
    if (event->button() == Qt::LeftButton && m_press.isLast())
        DblClick.fromQt();
}

Image::Image(QWidget* parent, const QString& name) : Label(parent, name) {}

void Image::setPicture(QImage picture) {
    m_picture = std::move(picture);
    update();
}

void Image::paintEvent(QPaintEvent*) {
    paintElement(CE_Image);
}

} // namespace qinghe
