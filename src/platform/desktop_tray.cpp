#include "platform/desktop_tray.h"

#include "platform/handlers.h"

#include <QApplication>

namespace qinghe {

namespace {

constexpr int BalloonMs = 8000; ///< how long a balloon stays

} // namespace

int trayMessage(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        return 513;
    case QSystemTrayIcon::DoubleClick:
        return 515;
    case QSystemTrayIcon::Context:
        return 516;
    case QSystemTrayIcon::MiddleClick:
        return 519;
    case QSystemTrayIcon::Unknown:
        break;
    }
    return 0;
}

void DesktopTray::add(const QString& tip, std::function<void(int)> onMessage) {
    m_onMessage = std::move(onMessage);
    if (m_icon)
        return;
    m_icon = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    m_icon->setToolTip(tip);
    // A press on the balloon is left alone: Qt tells of one for every button on the icon while a balloon stands.
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         handlers::enter([this, reason] { m_onMessage(trayMessage(reason)); });
                     });
    m_icon->show();
}

void DesktopTray::tell(const QString& text) {
    if (m_icon)
        m_icon->showMessage(productName(), text, m_icon->icon(), BalloonMs);
}

} // namespace qinghe
