#pragma once

#include "platform/services.h"

#include <QSystemTrayIcon>

namespace qinghe {

/// The number of the message by which a press on the icon arrives: 513 for the left button, 515 for the second press of
/// two, 516 for the right and 519 for the middle button, 0 where the desktop does not say which.
int trayMessage(QSystemTrayIcon::ActivationReason reason);

/// The desktop's tray. Its icon stays until the process ends, with the tip it was first given.
class DesktopTray : public Tray {
public:
    bool available() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }
    void add(const QString& tip, std::function<void(int message)> onMessage) override;
    void tell(const QString& text) override;

    /// nullptr as long as none was added.
    QSystemTrayIcon* icon() const { return m_icon.get(); }

private:
    std::unique_ptr<QSystemTrayIcon> m_icon;
    std::function<void(int)> m_onMessage;
};

} // namespace qinghe
