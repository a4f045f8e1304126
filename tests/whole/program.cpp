#include "program.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcessEnvironment>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <stdexcept>

namespace whole {

namespace {

constexpr int PatienceMs = 10000;

QString q(const std::string& text) {
    return QString::fromStdString(text);
}

QJsonArray pair(QPoint point) {
    return {point.x(), point.y()};
}

QRect rect(const QJsonValue& sides) {
    return {sides[0].toInt(), sides[1].toInt(), sides[2].toInt(), sides[3].toInt()};
}

/// A browser that only notes what it is asked to open.
void layBrowser(const LedgerFolder& folder) {
    QDir().mkpath(folder.beside("desktop"));
    QFile browser(folder.beside("desktop/xdg-open"));
    browser.open(QFile::WriteOnly);
    browser.write("#!/bin/sh\necho \"$1\" >> \"$0.pages\"\n");
    browser.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // By this command a machine is known to have one.
    QFile::link(QStringLiteral("xdg-open"), folder.beside("desktop/x-www-browser"));
}

/// What the program finds around it: the test's display, home, browser, clock and sound device, and the
/// driver.
QProcessEnvironment environment(const LedgerFolder& folder, const QString& clock, const QString& socket) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("HOME"), folder.beside("home"));
    environment.insert(QStringLiteral("PATH"), folder.beside("desktop") + u':' + qEnvironmentVariable("PATH"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.beside(""));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(QINGHE_DRIVER ":" QINGHE_FAKETIME));
    environment.insert(QStringLiteral("QINGHE_DRIVER_SOCKET"), socket);
    environment.insert(QStringLiteral("FAKETIME"), clock);
    environment.insert(QStringLiteral("FAKETIME_DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
    environment.insert(QStringLiteral("NO_FAKE_STAT"), QStringLiteral("1"));
    environment.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("disk"));
    environment.insert(QStringLiteral("SDL_DISKAUDIOFILE"), folder.beside("heard"));
    // No desktop listens, unless the test has made one (SessionBus).
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    if (const QString bus = environment.value(QStringLiteral("QINGHE_TEST_BUS")); !bus.isEmpty()) {
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    }
    return environment;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Message& message) {
    out << '[' << message.title << "] " << message.text << " (icon " << message.icon << ')';
    for (const std::string& button : message.buttons)
        out << " <" << button << '>';
    return out;
}

Program::Program(const LedgerFolder& folder, const std::string& now, Clock clock) : m_folder(folder) {
    layBrowser(folder);
    static int count = 0;
    const QString socket = folder.beside("line" + std::to_string(++count));
    m_process.setProcessEnvironment(environment(folder, (clock == Clock::MovesOn ? "@" : "") + q(now), socket));
    m_process.setWorkingDirectory(folder.beside(""));
    m_process.start(folder.programFile("qinghe"), {});
    m_process.waitForStarted();
    m_id = m_process.processId();
    connect(socket);
}

void Program::connect(const QString& socket) {
    const QDeadlineTimer patience(PatienceMs);
    while (m_line.state() != QLocalSocket::ConnectedState) {
        if (!running() || patience.hasExpired())
            throw std::runtime_error("the program does not start: " + whyGone());
        QThread::msleep(2);
        m_line.connectToServer(socket);
    }
    windows(); // answered when what happens at the start has happened
}

Program::~Program() {
    kill();
    for (const char* kind : {"faketime_shm_", "sem.faketime_sem_"}) // a clock that ends with its program leaves these
        QFile::remove(QStringLiteral("/dev/shm/%1%2").arg(QLatin1String(kind)).arg(m_id));
}

void Program::click(const std::string& at) {
    perform({{"do", "click"}, {"at", q(at)}});
}

void Program::click(const std::string& at, QPoint point) {
    perform({{"do", "click"}, {"at", q(at)}, {"point", pair(point)}});
}

void Program::doubleClick(const std::string& at) {
    perform({{"do", "click"}, {"at", q(at)}, {"times", 2}});
}

void Program::clickCell(const std::string& grid, int row, int col) {
    click(grid, cellRect(grid, row, col).center());
}

QRect Program::cellRect(const std::string& grid, int row, int col) {
    ask({{"do", "call"}, {"at", q(grid)}, {"method", "ensureVisible"}, {"arguments", QJsonArray{row, col}}});
    return rect(ask({{"do", "call"}, {"at", q(grid)}, {"method", "cellRect"}, {"arguments", QJsonArray{row, col}}}));
}

void Program::moveTo(const std::string& at) {
    perform({{"do", "move"}, {"at", q(at)}});
}

void Program::drag(const std::string& at, QPoint from, QPoint way) {
    perform({{"do", "drag"}, {"at", q(at)}, {"point", pair(from)}, {"by", pair(way)}});
}

void Program::key(const std::string& name) {
    perform({{"do", "key"}, {"key", q(name)}});
}

void Program::hold(const std::string& name) {
    perform({{"do", "hold"}, {"key", q(name)}});
}

void Program::type(const std::string& text) {
    perform({{"do", "type"}, {"text", q(text)}});
}

void Program::clearAndType(const std::string& box, const std::string& text) {
    click(box);
    key("Ctrl+A");
    key("Backspace");
    type(text);
}

void Program::pick(const std::string& entry) {
    perform({{"do", "pick"}, {"text", q(entry)}});
}

void Program::choose(const std::string& file) {
    perform({{"do", "choose"}, {"file", q(file)}});
}

void Program::close(const std::string& window) {
    perform({{"do", "close"}, {"at", q(window)}});
}

void Program::answer(const std::string& button) {
    perform({{"do", "answer"}, {"button", q(button)}});
}

bool Program::shows(const std::string& at) {
    return ask({{"do", "visible"}, {"at", q(at)}}).toBool();
}

QRect Program::place(const std::string& at) {
    return rect(ask({{"do", "place"}, {"at", q(at)}}));
}

QRect Program::cellPlace(const std::string& grid, int row, int col) {
    const QRect cell = cellRect(grid, row, col);
    const QRect whole = place(grid);
    const double scale = double(whole.width()) / get(grid, "geometry")[2].toInt();
    return {whole.topLeft() + cell.topLeft() * scale, cell.size() * scale};
}

std::string Program::text(const std::string& at) {
    return get(at, "text").toString().toStdString();
}

std::string Program::caption(const std::string& frame) {
    return get(frame, "title").toString().toStdString();
}

QJsonValue Program::get(const std::string& at, const std::string& property) {
    return ask({{"do", "get"}, {"at", q(at)}, {"property", q(property)}});
}

std::string Program::cell(const std::string& grid, int row, int col) {
    return ask({{"do", "call"}, {"at", q(grid)}, {"method", "TextMatrix"}, {"arguments", QJsonArray{row, col}}})
        .toString()
        .toStdString();
}

bool Program::showsMessage() {
    return ask({{"do", "message"}}).isObject();
}

Message Program::message() {
    waitUntil([this] { return showsMessage(); }, "a message");
    const QJsonObject shown = ask({{"do", "message"}}).toObject();
    Message message{shown["text"].toString().toStdString(),
                    shown["title"].toString().toStdString(),
                    static_cast<Message::Icon>(shown["icon"].toInt()),
                    {}};
    for (const QJsonValue& button : shown["buttons"].toArray())
        message.buttons.push_back(button.toString().toStdString());
    return message;
}

std::vector<std::string> Program::windows() {
    std::vector<std::string> names;
    for (const QJsonValue& name : ask({{"do", "windows"}}).toArray())
        names.push_back(name.toString().toStdString());
    return names;
}

void Program::picture(const std::string& file, const std::string& window) {
    ask({{"do", "picture"}, {"at", q(window)}, {"file", q(file)}});
}

std::vector<std::string> Program::openedPages() {
    QFile pages(m_folder.beside("desktop/xdg-open.pages"));
    pages.open(QFile::ReadOnly);
    std::vector<std::string> opened;
    while (!pages.atEnd())
        opened.push_back(pages.readLine().trimmed().toStdString());
    return opened;
}

void Program::waitUntil(const std::function<bool()>& holds, const std::string& what) {
    const QDeadlineTimer patience(PatienceMs);
    while (!holds()) {
        if (patience.hasExpired())
            throw std::runtime_error("waited in vain for " + what);
        QThread::msleep(5);
    }
}

void Program::waitFor(const std::string& window) {
    waitUntil(
        [&] {
            const std::vector<std::string> shown = windows();
            return std::find(shown.begin(), shown.end(), window) != shown.end();
        },
        window);
}

void Program::waitForKeyboard(const std::string& window) {
    waitUntil([&] { return windowWithKeyboard() == window; }, "the keyboard in " + window);
}

std::string Program::windowWithKeyboard() {
    return ask({{"do", "keyboard"}}).toString().toStdString();
}

void Program::look() {
    wait(500);
}

void Program::wait(int ms) {
    QThread::msleep(static_cast<unsigned long>(ms));
}

bool Program::hasHeardMusic() {
    QFile heard(m_folder.beside("heard"));
    if (!heard.open(QFile::ReadOnly))
        return false;
    const QByteArray samples = heard.readAll();
    return std::any_of(samples.begin(), samples.end(), [](char byte) { return byte != 0; });
}

bool Program::hasLoaded(const std::string& library) {
    QFile maps(QStringLiteral("/proc/%1/maps").arg(m_id));
    return maps.open(QFile::ReadOnly) && maps.readAll().contains(QByteArray::fromStdString(library));
}

bool Program::running() {
    m_process.waitForFinished(0);
    return m_process.state() != QProcess::NotRunning;
}

int Program::exitCode() {
    if (running() && !m_process.waitForFinished(PatienceMs))
        throw std::runtime_error("the program does not end");
    m_errors += m_process.readAllStandardError().toStdString();
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void Program::tell(int signal) {
    ::kill(static_cast<pid_t>(m_id), signal);
}

void Program::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

std::string Program::whyGone() {
    m_errors += m_process.readAllStandardError().toStdString();
    if (m_line.state() != QLocalSocket::ConnectedState)
        m_process.waitForFinished(1000); // the line has gone before its program
    if (running())
        return "it runs but does not answer";
    const int code = exitCode();
    const std::string how =
        code == -1 ? "by signal " + std::to_string(m_process.exitCode()) : "with " + std::to_string(code);
    return "it has ended " + how + ' ' + m_errors;
}

void Program::perform(const QJsonObject& command) {
    for (const QDeadlineTimer patience(PatienceMs);; QThread::msleep(10)) {
        try {
            ask(command);
            return;
        } catch (const Refused&) {
            if (patience.hasExpired())
                throw;
        }
    }
}

QJsonValue Program::ask(const QJsonObject& command) {
    const QByteArray line = QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n';
    m_line.write(line);
    while (!m_line.canReadLine())
        if (!m_line.waitForReadyRead(PatienceMs))
            throw std::runtime_error(line.toStdString() + whyGone());
    const QJsonObject answer = QJsonDocument::fromJson(m_line.readLine()).object();
    if (answer.contains("refused"))
        throw Refused(line.toStdString() + answer["refused"].toString().toStdString());
    return answer["value"];
}

} // namespace whole
