#pragma once

#include <QScrollBar>

namespace qinghe {

/// The upright bar of a list, which moves one that is disabled as well: by the mouse on it, by the wheel, and by the
/// Page keys that reach the list's container, since a disabled list cannot have the keyboard.
class ReadingBar : public QScrollBar {
public:
    explicit ReadingBar(QWidget& list) : QScrollBar(Qt::Vertical, &list), m_list(list) {}

    /// To be called whenever the list has been enabled or disabled.
    void listenToContainer();

protected:
    bool event(QEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_list;
};

} // namespace qinghe
