#include "platform/desktop_tray.h"

#include "platform/handlers.h"

#include <QApplication>

namespace qinghe {

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
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         handlers::enter([this, reason] { m_onMessage(trayMessage(reason)); });
                     });
    m_icon->show();
}

} // namespace qinghe
