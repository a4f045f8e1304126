#pragma once

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

/// The desktop's services behind narrow seams: made once in main, replaced by doubles in tests, reached by everybody
/// through one Services object.
namespace qinghe {

class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0; ///< local time
    QDate today() const { return now().date(); }
};

/// The sum of buttons and icon that a message asks for.
enum class MessageStyle : int {
    Ok = 0,
    OkCancel = 1,
    YesNoQuestion = 36,
    OkWarning = 48,
    OkCancelWarning = 49,
    OkInformation = 64,
    OkCancelInformation = 65,
};

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Shows the box over the active window and waits. Text and title are plain text. Use say() instead: it ends the
    /// unit of work first.
    virtual Answer show(const QString& text, MessageStyle style, const QString& title) = 0;
    /// The window of a run-time error, the last one of the program. `text` is told, and what became of the user's
    /// records and texts, which may be nothing; each of them as far as a screen has room.
    virtual void showError(int number, const QString& text, const QString& became) = 0;
};

class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// Asks for the name of one file, existing or new, and waits; nothing on Cancel. `filter` is pairs of words and
    /// patterns joined by "|"; `name` stands in the dialog from the first. Use CommonDialog instead: it ends the unit
    /// of work first.
    virtual std::optional<QString> choose(const QString& filter, const QString& name) = 0;
};

class Tray {
public:
    virtual ~Tray() = default;
    virtual bool available() const = 0;
    /// Adds the program's icon, which stays; once more changes nothing for the user. `tip` is shown under the pointer.
    /// The icon's events arrive at `onMessage` with the message number of the mouse (513: the left button's press).
    virtual void add(const QString& tip, std::function<void(int message)> onMessage) = 0;
    /// Shows a balloon at the icon that was added, for a while.
    virtual void tell(const QString& text) = 0;
};

class Launcher {
public:
    virtual ~Launcher() = default;
    /// Opens a page in the system's browser; tells whether there is one.
    virtual bool explore(const QUrl& page) = 0;
};

/// A piece of music in the player's hands; when it goes away it is silent. Its end is a position equal to its length.
class Sound {
public:
    virtual ~Sound() = default;
    virtual void play() = 0;          ///< on from where it stands
    virtual void stop() = 0;          ///< it stays where it stands
    virtual void rewind() = 0;        ///< to the beginning; one that plays plays on from there
    virtual int position() const = 0; ///< ms
    virtual int length() const = 0;   ///< ms; 0 as long as it is not known
};

class SoundDevice {
public:
    virtual ~SoundDevice() = default;
    /// The piece of a wav file, at its beginning, or nullptr. Never fails: a file that is missing or no wav is silent.
    virtual std::unique_ptr<Sound> open(const QString& wav) = 0;
};

/// Tells a second running copy from the first, by the folder it runs in.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;
    /// Takes the lock when it is free; a copy that holds it keeps it to the end of its process.
    virtual bool tryTake() = 0;
    /// To be set before the lock is taken: `called` runs when another copy calls the one that holds it.
    virtual void answerCalls(std::function<void()> called) = 0;
    /// Calls the copy that holds the lock; nobody may be there to hear it.
    virtual void callHolder() = 0;
};

/// One piece of work beside the handlers, on a thread of its own.
class Background {
public:
    static constexpr auto Forever = std::chrono::milliseconds::max();

    virtual ~Background() = default;
    /// Runs `work` after a while; it throws nothing and soon ends when its token asks it to. Then `done`, as a tick,
    /// see handlers::tick. Ends the work before, if there is one.
    virtual void start(std::chrono::milliseconds delay, std::function<void(std::stop_token)> work,
                       std::function<void()> done) = 0;
    /// Asks the work to end and waits for that as long; its `done` does not run any more.
    virtual void stop(std::chrono::milliseconds patience = Forever) = 0;
};

class Process {
public:
    virtual ~Process() = default;
    /// Ends the process at once with this exit code; returns in tests only.
    virtual void end(int code) = 0;
};

struct Services {
    std::unique_ptr<Clock> clock;
    std::unique_ptr<MessageBoxes> messages;
    std::unique_ptr<FileChooser> chooser;
    std::unique_ptr<Tray> tray;
    std::unique_ptr<Launcher> launcher;
    std::unique_ptr<SoundDevice> sound;
    std::unique_ptr<InstanceLock> instance;
    std::unique_ptr<Background> background;
    std::unique_ptr<Process> process;
    QString appPath; ///< the book's folder (App.Path), without a separator at its end unless it is a root

    /// What a message says has happened has happened: ends the unit of work, then shows the box. Throws RuntimeError.
    Answer say(const QString& text, MessageStyle style = MessageStyle::Ok, const QString& title = {}) const;
};

/// The name of the program, the title of messages that have none.
QString productName();

/// The services of the real desktop, for the book in this folder.
Services desktopServices(const QString& bookFolder);

} // namespace qinghe
