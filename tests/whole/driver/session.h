#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

namespace driver {

/// One test's line to the program: a JSON object a line in, an answer a line out. Commands and the steps of gestures
/// are done one by one, each in a call of its own from the event loop. So they go on while a message box waits for its
/// answer, and a command is answered only when the program is idle or waits for its user.
class Session : public QObject {
public:
    Session(const QString& socket, QObject* parent);

private:
    using Task = std::function<void()>;
    void read();
    void obey(const QByteArray& line);
    void work();

    QLocalServer m_server;
    /// To the next task. A posted call could still be made by the loop of a box whose button has just been pressed,
    /// with the handler that asked not yet gone on; a timer is due in a later turn.
    QTimer m_turn;
    QLocalSocket* m_test = nullptr;
    std::deque<Task> m_tasks;
};

} // namespace driver
