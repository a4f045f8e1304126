#include "platform/fitted_application.h"

#include "platform/plugin_places.h"
#include "platform/start_ahead.h"

#include <QScreen>

#include <algorithm>
#include <cmath>

namespace qinghe {

namespace {

constexpr char Scale[] = "QT_SCALE_FACTOR"; // times the desktop's own

} // namespace

double shareThatFits(QSize window, QSize room) {
    const double share = std::min(static_cast<double>(room.width()) / window.width(),
                                  static_cast<double>(room.height()) / window.height());
    return share >= 1 ? 1 : std::floor(share * 100) / 100;
}

FittedApplication::FittedApplication(int argc, char** argv, QSize window) : m_argc(argc), m_argv(argv) {
    keepPluginsFromProgramFolder();
    m_fonts = readFontsAhead();
    make();
    const double share = shareThatFits(window, QGuiApplication::primaryScreen()->availableSize());
    if (share >= 1)
        return;
    // Qt takes its scale as the application is made. The variable stands no longer than that: it would go on to the
    // programs that are started from here.
    awaitFonts();
    const QByteArray before = qgetenv(Scale);
    const double asked = before.isEmpty() ? 1 : before.toDouble();
    qputenv(Scale, QByteArray::number(asked > 0 ? asked * share : share));
    m_application.reset();
    keepPluginsFromProgramFolder();
    make();
    if (before.isNull())
        qunsetenv(Scale);
    else
        qputenv(Scale, before);
}

void FittedApplication::make() {
    const DisplayWatch watch;
    m_arguments.emplace(m_argc, m_argv); // an application takes away what it has understood
    m_application.emplace(m_arguments->count(), m_arguments->values());
}

void FittedApplication::awaitFonts() {
    if (m_fonts.joinable())
        m_fonts.join();
}

} // namespace qinghe
