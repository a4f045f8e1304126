#pragma once

#include "controls/event.h"
#include "controls/placed.h"

#include <QComboBox>

class QHelpEvent;

namespace qinghe {

/// A list with a text of its own. Typing never inserts or completes anything and is no click; filling leaves the text
/// as it was; a click is a choice from the list, by mouse or by arrow keys, or, where nothing can be typed, by any key
/// that finds an entry.
class ComboBox : public QComboBox, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    /// `typing`: the text can be typed; else only chosen.
    ComboBox(QWidget* parent, const QString& name, bool typing);

    QString Text() const { return currentText(); }
    void setText(const QString& text);
    void addEntry(const QString& entry);
    /// Takes the entries and the text away.
    void clearEntries();

    Event<> Click;

    void showPopup() override;

protected:
    bool eventFilter(QObject*, QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void wheelEvent(QWheelEvent*) override;

private:
    void tellCutEntry(const QHelpEvent& asked) const;

    bool m_choosing = false; ///< the list is open, or a key or the wheel is moving through it
};

} // namespace qinghe
