#include "core/window_keys.h"

#include "core/main_window.h"
#include "core/page_keys.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QWindow>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int HintsAfterMs = 250;

} // namespace

WindowKeys::WindowKeys(MainWindow& window) : QObject(&window), m_window(window) {
    for (const PageKey& entry : PageKeys)
        bindPage(entry.page, QLatin1Char(entry.key));
    bind(Qt::CTRL | Qt::Key_S, [this] { press(&KeyedButtons::save); });
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Insert), QKeySequence(Qt::CTRL | Qt::Key_N)})
        bind(keys, [this] { press(&KeyedButtons::add); });
    m_altHeld.setSingleShot(true);
    m_altHeld.setInterval(HintsAfterMs);
    connect(&m_altHeld, &QTimer::timeout, this, [this] { showHints(true); });
    window.windowHandle()->installEventFilter(this); // keys come by there, whoever gets them
}

void WindowKeys::bind(const QKeySequence& keys, const std::function<void()>& pressed) {
    auto* shortcut = new QShortcut(keys, &m_window);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, pressed);
}

void WindowKeys::bindPage(PageCode page, QChar key) {
    Label* const label = m_window.navigation().labelOf(page);
    if (!label)
        return;
    const QString name = label->Caption().trimmed();
    label->setToolTip(u"%1（Alt+%2）"_s.arg(name, key));
    bind(QKeySequence(u"Alt+"_s + key), [label] { label->Click.fromQt(); });
}

void WindowKeys::press(CommandButton* KeyedButtons::*button) {
    const Page* const page = m_window.navigation().inView();
    if (CommandButton* const pressed = page ? page->keyedButtons().*button : nullptr)
        pressed->pressFromAfar();
}

void WindowKeys::showHints(bool shown) {
    for (const PageKey& entry : PageKeys)
        if (Label* const label = m_window.navigation().labelOf(entry.page))
            label->setKeyHint(shown ? QString(QLatin1Char(entry.key)) : QString());
}

bool WindowKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) {
        if (!m_altHeld.isActive())
            m_altHeld.start();
    } else if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
               event->type() == QEvent::FocusOut || event->type() == QEvent::FocusAboutToChange) {
        m_altHeld.stop();
        showHints(false);
    }
    return false;
}

} // namespace qinghe
