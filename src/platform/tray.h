#pragma once

#include "platform/services.h"

#include <QSystemTrayIcon>

namespace qinghe {

/// The desktop's tray. Its icon stays until the process ends; a press on it arrives as message 513.
class DesktopTray : public Tray {
public:
    bool available() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }
    void add(const TrayData& data, std::function<void(int message)> onMessage) override;

private:
    std::unique_ptr<QSystemTrayIcon> m_icon;
    std::function<void(int)> m_onMessage;
};

} // namespace qinghe
