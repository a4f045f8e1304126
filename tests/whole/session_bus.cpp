#include "session_bus.h"

#include <stdexcept>

namespace whole {

namespace {

constexpr char Address[] = "QINGHE_TEST_BUS"; // see Program

} // namespace

SessionBus::SessionBus() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), QStringLiteral("/usr/share"));
    environment.insert(QStringLiteral("HOME"), m_folder.path());
    m_bus.setProcessEnvironment(environment);
    m_bus.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address=1"});
    while (!m_bus.canReadLine())
        if (!m_bus.waitForReadyRead(10000))
            throw std::runtime_error("no bus: " + m_bus.readAllStandardError().toStdString());
    qputenv(Address, m_bus.readLine().trimmed());
}

SessionBus::~SessionBus() {
    qunsetenv(Address);
    m_bus.terminate();
    m_bus.waitForFinished();
}

void SessionBus::start(QProcess& script, const QString& name, const QStringList& arguments) const {
    QProcessEnvironment environment = m_bus.processEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), qEnvironmentVariable(Address));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    script.setProcessEnvironment(environment);
    // Debian's own, which knows the bindings, whatever else lies on the path.
    script.start(QStringLiteral("/usr/bin/python3"), QStringList{QStringLiteral(QINGHE_TREES "/") + name} + arguments);
}

} // namespace whole
