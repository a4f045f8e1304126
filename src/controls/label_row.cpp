#include "controls/label_row.h"

#include <QKeyEvent>

#include <algorithm>

namespace qinghe {

void LabelRow::setLabels(const std::vector<Label*>& labels) {
    m_labels = labels;
    for (Label* label : labels) {
        label->setReachable();
        label->installEventFilter(this); // once, however often it is asked for
    }
    if (!labels.empty())
        makeStop(*labels.front());
}

void LabelRow::choose(Label& label) {
    const bool isHere = std::ranges::any_of(m_labels, &QWidget::hasFocus);
    makeStop(label);
    if (isHere)
        label.setFocus(Qt::OtherFocusReason);
}

void LabelRow::makeStop(const Label& stop) {
    for (Label* label : m_labels)
        label->setFocusPolicy(label == &stop ? Qt::TabFocus : Qt::NoFocus);
}

/// The label to which a key goes on, or nullptr for a key that is none of the row's.
Label* LabelRow::after(const Label& label, int key) const {
    const auto here = std::ranges::find(m_labels, &label);
    switch (key) {
    case Qt::Key_Left:
        return here == m_labels.begin() ? m_labels.back() : *std::prev(here);
    case Qt::Key_Right:
        return std::next(here) == m_labels.end() ? m_labels.front() : *std::next(here);
    case Qt::Key_Home:
        return m_labels.front();
    case Qt::Key_End:
        return m_labels.back();
    default:
        return nullptr;
    }
}

bool LabelRow::eventFilter(QObject* watched, QEvent* event) {
    const auto& label = static_cast<const Label&>(*watched);
    if (event->type() == QEvent::FocusIn)
        makeStop(label);
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    Label* const next = key->modifiers() & ~Qt::KeypadModifier ? nullptr : after(label, key->key());
    if (next)
        next->setFocus(Qt::TabFocusReason);
    return next;
}

} // namespace qinghe
