#pragma once

#include "controls/buttons.h"
#include "core/page.h"

#include <QTimer>

#include <functional>

namespace qinghe {

class MainWindow;

/// The keys of the main window that belong to no control: Alt with a digit or a letter for the pages (PageKeys), Ctrl+S
/// for the button that saves on the page in view, Insert or Ctrl+N for the one that adds. Each does what a click does,
/// by the same handler, and none does anything while a message box is open or the key is held. A label tells its key in
/// its tool tip, and beside its word while Alt is held.
class WindowKeys : public QObject {
    Q_OBJECT

public:
    /// Behind the pages.
    explicit WindowKeys(MainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bind(const QKeySequence& keys, const std::function<void()>& pressed);
    void bindPage(PageCode page, QChar key);
    void press(CommandButton* KeyedButtons::*button);
    void showHints(bool shown);

    MainWindow& m_window;
    QTimer m_altHeld; ///< until the hints come: Alt+Tab passes through here as well
};

} // namespace qinghe
