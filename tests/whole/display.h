#pragma once

#include <QProcess>

namespace whole {

/// A display without a screen, with window frames and a tray, for all programs that are started while it stands.
class Display {
public:
    explicit Display(const QString& pixels = QStringLiteral("2560x1440"));
    ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

private:
    const QByteArray m_before; ///< the display of the environment
    QProcess m_server, m_desktop;
};

} // namespace whole
