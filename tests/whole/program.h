#pragma once

#include "ledger_folder.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocalSocket>
#include <QPoint>
#include <QProcess>
#include <QRect>

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace whole {

/// A message box as its user sees it.
struct Message {
    enum Icon { None = 0, Information = 1, Warning = 2, Critical = 3, Question = 4 };
    std::string text, title;
    Icon icon = None;
    std::vector<std::string> buttons;

    bool operator==(const Message&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Message& message);

/// The program, running in a ledger folder of the test, with a user's hands and eyes. Things are named as
/// "Form2/Command6"; points are pixels inside the thing. What cannot be done (a button that is not there or is covered,
/// a program that has ended) throws std::runtime_error, which fails the test.
///
/// Each call is answered when the program is idle or waits for its user, so what a click sets off has happened by the
/// next call.
class Program {
public:
    enum class Clock { MovesOn, Stands };

    /// Starts it at this moment of its own clock.
    explicit Program(const LedgerFolder& folder, const std::string& now = "2024-11-18 20:36:08",
                     Clock clock = Clock::MovesOn);
    /// Kills it when it still runs.
    ~Program();

    // Hands
    void click(const std::string& at);
    void click(const std::string& at, QPoint point);
    void doubleClick(const std::string& at);
    void clickCell(const std::string& grid, int row, int col);
    void moveTo(const std::string& at);
    void drag(const std::string& at, QPoint from, QPoint way);
    void key(const std::string& name);
    void hold(const std::string& name); ///< a key that went down before and is still held
    void type(const std::string& text);
    void clearAndType(const std::string& box, const std::string& text);
    void pick(const std::string& entry);    ///< in an open menu or list
    void choose(const std::string& file);   ///< in the file chooser
    void close(const std::string& window);  ///< by the desktop's close button
    void answer(const std::string& button); ///< presses a button of the message box

    // Eyes
    bool shows(const std::string& at);
    QRect place(const std::string& at);                         ///< on the screen, in its own pixels
    QRect cellPlace(const std::string& grid, int row, int col); ///< the same of a cell, scrolled into view
    std::string text(const std::string& at);
    std::string caption(const std::string& frame);
    QJsonValue get(const std::string& at, const std::string& property);
    std::string cell(const std::string& grid, int row, int col);
    Message message(); ///< waits for one
    bool showsMessage();
    std::vector<std::string> windows();
    void picture(const std::string& file, const std::string& window = {});
    /// What it has had opened in the desktop's browser.
    std::vector<std::string> openedPages();
    /// Whether anything but silence has come from its sound device.
    bool hasHeardMusic();
    /// Whether a library of this name is in its memory.
    bool hasLoaded(const std::string& library);

    /// Waits until it holds, at most ten seconds.
    void waitUntil(const std::function<bool()>& holds, const std::string& what);
    void waitFor(const std::string& window);
    /// A window that has just come takes the keyboard as soon as the desktop gives it.
    void waitForKeyboard(const std::string& window);

    /// As long as a person takes to look; the window manager has then caught up.
    void look();
    void wait(int ms);

    // Life
    bool running();
    /// Waits for its end; -1 when it was killed or crashed.
    int exitCode();
    void kill(); ///< without a warning
    void tell(int signal);
    std::string errors() const { return m_errors; }

private:
    struct Refused : std::runtime_error {
        using std::runtime_error::runtime_error;
    };
    QRect cellRect(const std::string& grid, int row, int col);
    void perform(const QJsonObject& command);
    QJsonValue ask(const QJsonObject& command);
    void connect(const QString& socket);
    std::string windowWithKeyboard();
    std::string whyGone();

    const LedgerFolder& m_folder;
    QProcess m_process;
    QLocalSocket m_line;
    qint64 m_id = 0;
    std::string m_errors;
};

} // namespace whole
