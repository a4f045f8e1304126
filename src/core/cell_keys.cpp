#include "core/cell_keys.h"

#include "controls/key_presses.h"

#include <QCoreApplication>
#include <QToolTip>

#include <utility>

namespace qinghe {

namespace {

bool enters(const QKeyEvent& key) {
    const int code = key_presses::codeOf(key);
    return code != key_presses::None && code != key_presses::Enter && code != key_presses::Escape &&
           code != key_presses::Backspace;
}

bool opens(const QKeyEvent& key) {
    return key.key() == Qt::Key_F2 || key.key() == Qt::Key_Space || key_presses::isEnter(key.key());
}

} // namespace

CellKeys::CellKeys(MSFlexGrid& grid, CellEditor& box, std::function<void(int)> boxKey)
    : m_grid(grid), m_box(box), m_boxKey(std::move(boxKey)) {
    grid.installEventFilter(this);
}

bool CellKeys::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod:
        return composed(static_cast<QInputMethodEvent&>(*event));
    case QEvent::InputMethodQuery:
        return answered(static_cast<QInputMethodQueryEvent&>(*event));
    default:
        return false;
    }
}

bool CellKeys::keyPressed(QKeyEvent& key) {
    if (key.key() != Qt::Key_Delete || key.modifiers() & ~Qt::KeypadModifier)
        return m_box.isVisible() ? pressedUnderBox(key) : pressed(key);
    if (remove && !key.isAutoRepeat() && !openTool())
        remove->pressFromAfar();
    return true;
}

bool CellKeys::pressed(QKeyEvent& key) {
    if (!opens(key))
        return enters(key) && (key.isAutoRepeat() || begin(key));
    if (!key.isAutoRepeat())
        m_grid.Click.fromQt();
    return true;
}

/// The box lies open and the keyboard is with the grid: the box is disabled, or the user went back by Tab.
bool CellKeys::pressedUnderBox(QKeyEvent& key) {
    const int code = key_presses::codeOf(key);
    if (QWidget* const open = openTool(); open && code != key_presses::None) {
        QCoreApplication::sendEvent(open, &key);
    } else if (code == key_presses::Escape) {
        handlers::enter([this] { m_boxKey(key_presses::Escape); });
    } else if (opens(key)) {
        if (m_box.isEnabled())
            m_box.takeFocus();
        else if (m_box.hearsWhenClosed && m_box.hearsWhenClosed())
            m_box.Click.fromQt();
    } else if (enters(key)) {
        handOver(key);
    } else {
        return false;
    }
    return true;
}

/// The grid keeps the composing, which a change of the keyboard's place would break off, until there is a text.
bool CellKeys::composed(QInputMethodEvent& event) {
    if (!event.commitString().isEmpty()) {
        QToolTip::hideText();
        m_box.isVisible() ? handOver(event) : static_cast<void>(begin(event));
    } else {
        const QRect cell = m_grid.cellRect(m_grid.Row(), m_grid.Col());
        QToolTip::showText(m_grid.mapToGlobal(cell.topLeft()), event.preeditString(), &m_grid);
    }
    return true;
}

bool CellKeys::answered(QInputMethodQueryEvent& query) const {
    if (query.queries() & Qt::ImEnabled)
        query.setValue(Qt::ImEnabled, m_grid.isEnabled() && (!takesTyping || takesTyping()));
    if (query.queries() & Qt::ImCursorRectangle)
        query.setValue(Qt::ImCursorRectangle, m_grid.cellRect(m_grid.Row(), m_grid.Col()));
    return true;
}

bool CellKeys::begin(QEvent& text) {
    if (takesTyping && !takesTyping())
        return false;
    m_grid.Click.fromQt();
    handOver(text);
    return true;
}

void CellKeys::handOver(QEvent& text) {
    QWidget* const open = openTool();
    if (open)
        QCoreApplication::sendEvent(open, &text);
    else if (m_box.isVisible() && m_box.isEnabled()) {
        m_box.takeFocus();
        QCoreApplication::sendEvent(&m_box, &text);
    }
}

} // namespace qinghe
