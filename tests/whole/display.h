#pragma once

#include <QProcess>

namespace whole {

/// A display without a screen, with window frames and a tray, for all programs of this run.
class Display {
public:
    Display();
    ~Display();

private:
    QProcess m_server, m_desktop;
};

} // namespace whole
