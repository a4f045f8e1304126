#include "child_runs.h"

#include "look/look.h"
#include "measure.h"
#include "platform/start_ahead.h"
#include "reminders.h"
#include "support/program_rig.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLibraryInfo>
#include <QProcess>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;

using namespace qinghe::testing;

namespace {

constexpr auto ChildMark = "--child"; ///< first argument of a process that was started to be measured

/// Calls once, when a top-level window has been painted.
class Painted : public QObject {
public:
    Painted(const QString& window, std::function<void()> then) : m_window(window), m_then(std::move(then)) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && !m_seen) {
            const auto* widget = qobject_cast<QWidget*>(object);
            if (widget && widget->isWindow() && (m_window.isEmpty() || widget->objectName() == m_window)) {
                m_seen = true;
                QMetaObject::invokeMethod(qApp, m_then, Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    QString m_window;
    std::function<void()> m_then;
    bool m_seen = false;
};

[[noreturn]] void endNow() {
    std::fflush(nullptr);
    std::_Exit(0);
}

void emptyWindow(QApplication&) {
    QWidget window;
    window.resize(355, 280);
    Painted painted({}, [] {
        std::printf("%f\n", residentMiB());
        endNow();
    });
    window.show();
    QApplication::exec();
}

/// As main does it, to the sign-in's first painting.
void startProgram(QApplication& application, const QString& folder) {
    QTranslator chinese;
    if (chinese.load(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&chinese);
    dress(application);
    Program program(desktopServices(folder));
    Painted painted(forms::SignIn, [] { endNow(); });
    program.start();
    QApplication::exec();
}

/// Signs in and prints how long it takes to the main window's painting; with `open`, opens the income page as well and
/// prints the resident memory instead.
void signIn(QApplication& application, const QString& folder, bool open) {
    dress(application);
    Program program(desktopServices(folder));
    program.start();
    QApplication::processEvents();
    QElapsedTimer timer;
    Painted painted(forms::Main, [&] {
        if (!open) {
            std::printf("%f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
            endNow();
        }
        auto* label = program.shared().forms.loaded(forms::Main)->findChild<Label*>(pages::Income);
        QTest::mouseClick(label, Qt::LeftButton);
        QApplication::processEvents();
        QApplication::processEvents();
        std::printf("%f\n", residentMiB());
        endNow();
    });
    timer.start();
    QTest::mouseClick(program.shared().forms.loaded(forms::SignIn)->findChild<Label*>(sign_in::Enter), Qt::LeftButton);
    QApplication::exec();
}

/// Signs in and prints how much processor time, in percent of one core, it takes to stand there.
void rest(QApplication& application, const QString& folder) {
    dress(application);
    Program program(desktopServices(folder));
    program.start();
    QTest::mouseClick(program.shared().forms.loaded(forms::SignIn)->findChild<Label*>(sign_in::Enter), Qt::LeftButton);
    QTest::qWait(5000); // what the start sets off
    const std::clock_t before = std::clock();
    QTimer::singleShot(RestSeconds * 1000, &application, [before] {
        std::printf("%f\n", 100.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC / RestSeconds);
        endNow();
    });
    QApplication::exec();
}

QProcess* child(const QStringList& arguments) {
    auto* process = new QProcess;
    process->start(QCoreApplication::applicationFilePath(), QStringList{QString::fromLatin1(ChildMark)} + arguments);
    if (!process->waitForFinished(120'000) || process->exitCode() != 0)
        qFatal("the child %s failed", qPrintable(arguments.join(u' ')));
    return process;
}

} // namespace

double residentMiB() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

bool runAsChild(int argc, char** argv, int& exitCode) {
    if (argc < 3 || std::string(argv[1]) != ChildMark)
        return false;
    const std::string what = argv[2];
    const QString folder = argc > 3 ? QString::fromLocal8Bit(argv[3]) : QString();
    std::thread fonts;
    if (what != "empty-window")
        fonts = readFontsAhead(); // as main does
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (fonts.joinable())
        fonts.join();
    if (what == "empty-window")
        emptyWindow(application);
    else if (what == "start")
        startProgram(application, folder);
    else if (what == "rest")
        rest(application, folder);
    else
        signIn(application, folder, what == "memory");
    exitCode = 1;
    return true;
}

double startTime(const QStringList& arguments) {
    return milliseconds([&] { delete child(arguments); });
}

double childFigure(const QStringList& arguments) {
    const std::unique_ptr<QProcess> process(child(arguments));
    return process->readAllStandardOutput().trimmed().toDouble();
}

} // namespace qinghe::benchmarks
