#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace whole {

/// A desktop's message bus on which somebody listens to the programs that are started while it stands, as a screen
/// reader does. What it starts itself ends with it.
class SessionBus {
public:
    SessionBus();
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Has a script of tests/whole/accessible run on this bus.
    void start(QProcess& script, const QString& name, const QStringList& arguments) const;

private:
    QTemporaryDir m_folder; ///< for its sockets
    QProcess m_bus;
};

} // namespace whole
