#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace qinghe {

/// Drops keys that must do no harm. Watches the whole application while it lives.
///
/// A key that reaches a control out of view: no control keeps the keyboard when it is hidden (see Placed), so none
/// should; this is the second line, because a key pressed by chance must never act on a page that nobody sees.
///
/// Enter, Space, Esc and letters that are held: they enter text, and press no button and answer no box, whichever came
/// under them since they went down.
class KeyGate : public QObject {
    Q_OBJECT

public:
    KeyGate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void noteRelease(const QKeyEvent& event);
    bool isHeldAgainst(const QWidget& control, const QKeyEvent& event) const;

    int m_released = 0; ///< the key that went up last
    quint64 m_releasedAt = 0;
};

} // namespace qinghe
