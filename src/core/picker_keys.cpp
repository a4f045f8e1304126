#include "core/picker_keys.h"

#include <QKeyEvent>

#include <utility>

namespace qinghe {

PickerKeys::PickerKeys(Shared& shared, TextBox& box, std::function<bool()> isDate)
    : QObject(&box), m_shared(shared), m_box(box), m_isDate(std::move(isDate)) {
    box.installEventFilter(this);
}

/// While it is open for this box.
FieldTool* PickerKeys::picker() const {
    FieldTool* const open = m_shared.forms.loaded(names::DatePicker);
    return open && open->Visible() && open->serves(m_box) ? open : nullptr;
}

bool PickerKeys::eventFilter(QObject*, QEvent* event) {
    const bool leaves =
        event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
    if (FieldTool* const open = leaves ? picker() : nullptr)
        open->setTakesKeys(false);
    if (event->type() != QEvent::KeyPress)
        return false;
    auto& key = static_cast<QKeyEvent&>(*event);
    bool taken = false;
    handlers::enter([&] {
        if (FieldTool* const open = picker())
            taken = open->takeKey(key);
    });
    const bool calls = key.key() == Qt::Key_F4 || key.key() == Qt::Key_Down;
    if (taken || !calls || key.modifiers() & ~Qt::KeypadModifier || (m_isDate && !m_isDate()))
        return taken;
    if (!key.isAutoRepeat())
        handlers::enter([this] { handOver(); });
    return true;
}

void PickerKeys::handOver() {
    if (!picker())
        m_box.Click.raise();
    if (FieldTool* const open = picker())
        open->setTakesKeys(true);
}

} // namespace qinghe
