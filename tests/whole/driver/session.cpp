#include "session.h"

#include "commands.h"
#include "objects.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <exception>
#include <iterator>

namespace driver {

Session::Session(const QString& socket, QObject* parent) : QObject(parent) {
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &Session::work);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        m_test = m_server.nextPendingConnection();
        connect(m_test, &QLocalSocket::readyRead, this, &Session::read);
    });
    if (!m_server.listen(socket))
        qFatal("cannot listen at %s: %s", qPrintable(socket), qPrintable(m_server.errorString()));
}

void Session::read() {
    while (m_test->canReadLine())
        m_tasks.push_back([this, line = m_test->readLine()] { obey(line); });
    m_turn.start();
}

void Session::obey(const QByteArray& line) {
    QJsonObject answer;
    try {
        Outcome outcome = carryOut(QJsonDocument::fromJson(line).object());
        answer[QStringLiteral("value")] = outcome.value;
        m_tasks.insert(m_tasks.begin(), std::make_move_iterator(outcome.steps.begin()),
                       std::make_move_iterator(outcome.steps.end()));
    } catch (const Refusal& refusal) {
        answer[QStringLiteral("refused")] = refusal.why;
    } catch (const std::exception& error) { // what was called does not take such numbers
        answer[QStringLiteral("refused")] = QString::fromUtf8(error.what());
    }
    m_test->write(QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n');
    m_test->flush();
}

void Session::work() {
    if (m_tasks.empty())
        return;
    const Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    m_turn.start(); // first: the task may wait for its user
    task();
}

namespace {

/// Opens the line as soon as the program has an event loop. What the program starts is not driven.
void openLine() {
    qunsetenv("LD_PRELOAD");
    // From its loop: an application that is made anew at another scale never comes to it.
    QCoreApplication* const application = QCoreApplication::instance();
    QMetaObject::invokeMethod(
        application, [application] { new Session(qEnvironmentVariable("QINGHE_DRIVER_SOCKET"), application); },
        Qt::QueuedConnection);
}

Q_COREAPP_STARTUP_FUNCTION(openLine)

} // namespace

} // namespace driver
