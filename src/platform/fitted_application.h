#pragma once

#include "platform/display.h"

#include <QApplication>

#include <optional>
#include <thread>

namespace qinghe {

/// The share of the desktop's scale at which a window has room: 1 where it fits, else in steps of a hundredth. Both
/// sizes in the desktop's own units.
double shareThatFits(QSize window, QSize room);

/// The application, at the desktop's own scale, or, where that would push a window of the size given off a small
/// screen, at the largest one at which it fits. Says what is missing and ends the process where there is no display
/// (DisplayWatch). The fonts are read on a thread meanwhile (start_ahead.h).
class FittedApplication {
public:
    /// `window` in pixels at 100 %.
    FittedApplication(int argc, char** argv, QSize window);
    ~FittedApplication() { awaitFonts(); }
    FittedApplication(const FittedApplication&) = delete;
    FittedApplication& operator=(const FittedApplication&) = delete;

    QApplication& operator*() { return *m_application; }

    /// To be called before the first text, and before the environment is written.
    void awaitFonts();

private:
    void make();

    const int m_argc;
    char** const m_argv;
    std::optional<ApplicationArguments> m_arguments;
    std::optional<QApplication> m_application;
    std::thread m_fonts;
};

} // namespace qinghe
