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

    /// The window manager ends. Its windows stay, and from now on take whatever size anybody gives them.
    void leaveWindowsAlone();

private:
    const QByteArray m_before; ///< the display of the environment
    QProcess m_server, m_desktop;
};

} // namespace whole
