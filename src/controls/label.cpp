#include "controls/label.h"

#include "controls/accessible.h"
#include "controls/key_presses.h"

#include <QCoreApplication>
#include <QHelpEvent>
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

void Label::setReachable() {
    m_reachable = true;
    setFocusPolicy(Qt::TabFocus);
}

void Label::setKeyHint(const QString& character) {
    if (m_keyHint == character)
        return;
    m_keyHint = character;
    update();
}

void Label::paintEvent(QPaintEvent*) {
    paintElement(CE_Words);
}

void Label::keyPressEvent(QKeyEvent* event) {
    const bool clicks = key_presses::isEnter(event->key()) || event->key() == Qt::Key_Space;
    event->setAccepted(m_reachable && Click && clicks);
    if (event->isAccepted() && !event->isAutoRepeat())
        Click.fromQt();
}

void Label::focusInEvent(QFocusEvent* event) {
    QFrame::focusInEvent(event); // Qt's label would make a text field of itself
    if (event->reason() != Qt::TabFocusReason && event->reason() != Qt::BacktabFocusReason)
        return;
    // A tip goes with every change of the keyboard's place, and Qt has yet to tell the style of this one.
    const auto tell = [this] {
        const QPoint middle = rect().center();
        QHelpEvent asked(QEvent::ToolTip, middle, mapToGlobal(middle));
        if (hasFocus())
            QCoreApplication::sendEvent(this, &asked);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
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
