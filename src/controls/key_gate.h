#pragma once

#include <QObject>

namespace qinghe {

/// Drops every key that reaches a control out of view. No control keeps the keyboard when it is hidden (see Placed), so
/// none should; this is the second line, because a key pressed by chance must never act on a page that nobody sees.
/// Watches the whole application while it lives.
class KeyGate : public QObject {
    Q_OBJECT

public:
    KeyGate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace qinghe
