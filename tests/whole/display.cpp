#include "display.h"

#include <stdexcept>

namespace whole {

Display::Display(const QString& pixels) : m_before(qgetenv("DISPLAY")) {
    m_server.start(QStringLiteral("Xvfb"),
                   {"-displayfd", "1", "-screen", "0", pixels + QStringLiteral("x24"), "-nolisten", "tcp"});
    while (!m_server.canReadLine())
        if (!m_server.waitForReadyRead(10000))
            throw std::runtime_error("Xvfb does not start: " + m_server.readAllStandardError().toStdString());
    qputenv("DISPLAY", ':' + m_server.readLine().trimmed());
    m_desktop.start(QStringLiteral("jwm"), {"-f", QINGHE_DESKTOP});
    if (!m_desktop.waitForStarted())
        throw std::runtime_error("jwm does not start");
}

void Display::leaveWindowsAlone() {
    m_desktop.terminate();
    m_desktop.waitForFinished();
}

Display::~Display() {
    leaveWindowsAlone();
    m_server.terminate();
    m_server.waitForFinished();
    qputenv("DISPLAY", m_before);
}

} // namespace whole
