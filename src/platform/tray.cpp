#include "platform/tray.h"

#include "platform/handlers.h"

#include <QApplication>

namespace qinghe {

namespace {
constexpr int LeftButtonDown = 513;
}

void DesktopTray::add(const TrayData&, std::function<void(int)> onMessage) {
    m_onMessage = std::move(onMessage);
    if (m_icon)
        return;
    m_icon = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    m_icon->setToolTip(productName());
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(),
                     [this] { handlers::enter([this] { m_onMessage(LeftButtonDown); }); });
    m_icon->show();
}

} // namespace qinghe
