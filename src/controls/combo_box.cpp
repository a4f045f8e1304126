#include "controls/combo_box.h"

#include "controls/text_menu.h"
#include "runtime/shown_value.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

namespace qinghe {

ComboBox::ComboBox(QWidget* parent, const QString& name, bool typing) : QComboBox(parent), Placed(this) {
    setObjectName(name);
    setEditable(typing);
    setInsertPolicy(QComboBox::NoInsert);
    if (typing) {
        setCompleter(nullptr);
        offerTextMenu(*lineEdit());
    }
    // Qt tells the same of a typed text that happens to stand in the list; that is no choice.
    connect(this, &QComboBox::activated, this, [this] {
        if (m_choosing || !isEditable())
            Click.fromQt();
    });
}

void ComboBox::setText(const QString& text) {
    if (isEditable())
        setEditText(text);
    else
        setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void ComboBox::addEntry(const QString& entry) {
    const QString before = currentText();
    const int index = currentIndex();
    const QSignalBlocker quiet(this);
    addItem(entry);
    // Qt takes the first entry of an empty list for the choice.
    if (index < 0)
        setCurrentIndex(-1);
    if (isEditable())
        setEditText(before);
}

void ComboBox::clearEntries() {
    const QSignalBlocker quiet(this);
    clear();
}

void ComboBox::showPopup() {
    // Not before the list has the keyboard: when the text loses it, Qt tells of an entry that reads the same.
    m_choosing = false;
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    m_choosing = true;
    view()->window()->installEventFilter(this);
    view()->viewport()->installEventFilter(this);
}

void ComboBox::tellCutEntry(const QHelpEvent& asked) const {
    const QModelIndex entry = view()->indexAt(asked.pos());
    if (entry.isValid() && view()->sizeHintForIndex(entry).width() > view()->viewport()->width())
        QToolTip::showText(asked.globalPos(), Qt::convertFromPlainText(shownValue(entry.data().toString(), MostInTip)),
                           view()->viewport(), view()->visualRect(entry));
    else
        QToolTip::hideText();
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && watched == view()->viewport()) {
        tellCutEntry(*static_cast<QHelpEvent*>(event));
        return true;
    }
    // However the list was closed; the choice is told just after that.
    if (event->type() == QEvent::Hide && watched == view()->window())
        QTimer::singleShot(0, this, [this] { m_choosing = false; });
    return QComboBox::eventFilter(watched, event);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down || event->key() == Qt::Key_PageUp ||
                       event->key() == Qt::Key_PageDown;
    const bool before = m_choosing;
    m_choosing = m_choosing || moves;
    QComboBox::keyPressEvent(event);
    m_choosing = before;
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    const bool before = m_choosing;
    m_choosing = true;
    QComboBox::wheelEvent(event);
    m_choosing = before;
}

} // namespace qinghe
