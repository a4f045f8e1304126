#include "controls/placed.h"

#include <QCursor>

namespace qinghe {

QColor colourOf(quint32 bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
}

quint32 bgrOf(const QColor& colour) {
    return static_cast<quint32>(colour.red()) | static_cast<quint32>(colour.green()) << 8 |
           static_cast<quint32>(colour.blue()) << 16;
}

Placed* Placed::of(const QWidget* widget) {
    return dynamic_cast<Placed*>(const_cast<QWidget*>(widget));
}

void Placed::place(double left, double top, double width, double height) {
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    applyPlace();
}

void Placed::applyPlace() {
    m_widget->setGeometry(pixelRect(m_left, m_top, m_width, m_height));
}

void Placed::setForeColor(quint32 bgr) {
    if (m_fore == bgr)
        return;
    m_fore = bgr;
    m_widget->update();
}

void Placed::setBackColor(quint32 bgr) {
    if (m_back == bgr)
        return;
    m_back = bgr;
    m_widget->update();
}

void Placed::setShown(bool shown) {
    m_shown = shown;
    applyVisibility();
}

void Placed::setCovered(bool covered) {
    m_covered = covered;
    applyVisibility();
}

void Placed::applyVisibility() {
    const bool inView = m_shown && !m_covered;
    if (!inView)
        giveUpKeyboard();
    m_widget->setVisible(inView);
}

void Placed::setUsable(bool usable) {
    if (!usable)
        giveUpKeyboard();
    m_widget->setEnabled(usable);
}

void Placed::giveUpKeyboard() {
    // Asked of the window, which remembers who had the keyboard while another window has it.
    QWidget* const window = m_widget->window();
    QWidget* const holder = window->focusWidget();
    if (m_widget == window || !holder || (holder != m_widget && !m_widget->isAncestorOf(holder)))
        return;
    QWidget* const refuge = m_refuge;
    const bool toRefuge = holder == m_widget && refuge && refuge->isVisible() && refuge->isEnabled();
    (toRefuge ? refuge : window)->setFocus(Qt::OtherFocusReason);
}

void Placed::setHandCursor() {
    if (m_widget->cursor().shape() != Qt::PointingHandCursor)
        m_widget->setCursor(Qt::PointingHandCursor);
}

void Placed::setRole(Role role) {
    m_role = role;
    m_widget->update();
}

void Placed::setGlyph(Glyph glyph) {
    m_glyph = glyph;
    m_widget->update();
}

} // namespace qinghe
