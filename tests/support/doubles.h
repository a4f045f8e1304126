#pragma once

#include "platform/handlers.h"
#include "platform/services.h"

#include <functional>
#include <ostream>
#include <utility>
#include <vector>

/// What stands in for the desktop in tests: the clock, message boxes, the file chooser, the tray, the browser, the
/// sound, the lock of the folder and the end of the process. Everything else is real.
namespace qinghe::testing {

class FixedClock : public Clock {
public:
    QDateTime now() const override { return time; }
    QDateTime time{QDate(2024, 6, 18), QTime(20, 36, 8)};
};

struct ShownMessage {
    QString text;
    int style = 0;
    QString title;
    bool operator==(const ShownMessage&) const = default;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
    *out << message.title.toStdString() << ": " << message.text.toStdString() << " (" << message.style << ')';
}

/// Notes every box and answers it at once: with the answers lined up, else with OK (Yes where it asks Yes or No).
class AnsweringMessages : public MessageBoxes {
public:
    Answer show(const QString& text, MessageStyle style, const QString& title) override;
    void showError(int number, const QString& text, const QString& became) override {
        errors.push_back({number, text});
        lastWords = became;
    }

    std::vector<ShownMessage> shown;
    std::vector<std::pair<int, QString>> errors;
    QString lastWords;                                   ///< told with the last error
    std::vector<Answer> answers;                         ///< for the next boxes
    std::function<void(const ShownMessage&)> whileShown; ///< runs while a box is open
};

/// Notes what it is asked and gives the names lined up, else nothing, as on Cancel.
class AnsweringChooser : public FileChooser {
public:
    struct Asked {
        QString filter, name;
        bool operator==(const Asked&) const = default;
    };
    std::optional<QString> choose(const QString& filter, const QString& name) override;

    std::vector<Asked> asked;
    std::vector<std::optional<QString>> names; ///< for the next times
    std::function<void()> whileShown;          ///< runs while the chooser is open
};

class NotingTray : public Tray {
public:
    bool available() const override { return present; }
    void add(const QString& tip, std::function<void(int)> onMessage) override {
        added.push_back(tip);
        send = std::move(onMessage);
        if (whenAdded)
            whenAdded();
    }

    void tell(const QString& text) override { told.push_back(text); }

    bool present = true;
    std::vector<QString> told;             ///< the balloons
    std::vector<QString> added;            ///< the tip of each time
    std::function<void(int message)> send; ///< an event of the icon, as the desktop brings it
    std::function<void()> whenAdded;
};

class NotingLauncher : public Launcher {
public:
    bool explore(const QUrl& page) override {
        if (present)
            opened.push_back(page);
        return present;
    }
    std::vector<QUrl> opened;
    bool present = true; ///< else there is no browser
};

/// Notes what is asked of the sound: "open 音乐1.wav", "play", "stop", "rewind", "close". Plays nothing; a test sets
/// how far the piece has come.
class NotingSound : public SoundDevice {
public:
    std::unique_ptr<Sound> open(const QString& wav) override;

    QStringList calls;
    bool present = true; ///< else no piece can be opened
    int position = 0;    ///< ms
    int length = 6000;
};

class GivenLock : public InstanceLock {
public:
    bool tryTake() override { return free; }
    void answerCalls(std::function<void()> called) override { call = std::move(called); }
    void callHolder() override { ++calls; }
    bool free = true;
    std::function<void()> call; ///< what a call of another copy sets off
    int calls = 0;              ///< of this copy
};

/// Keeps the work until a test runs it, in place of the thread.
class WaitingWork : public Background {
public:
    void start(std::function<void(std::stop_token)> work, std::function<void()> done) override {
        m_work = std::move(work);
        m_done = std::move(done);
        m_stop = {};
        ++started;
    }
    void stop(std::chrono::milliseconds) override {
        m_stop.request_stop();
        m_work = {};
    }
    bool waits() const { return bool(m_work); }
    /// As a thread would, but for `done`, which runs at once.
    void run() {
        const auto work = std::exchange(m_work, {});
        work(m_stop.get_token());
        handlers::tick(this, m_done);
    }
    int started = 0;

private:
    std::function<void(std::stop_token)> m_work;
    std::function<void()> m_done;
    std::stop_source m_stop;
};

class NotedEnd : public Process {
public:
    void end(int code) override {
        if (codes.empty())
            codes.push_back(code);
    }
    std::vector<int> codes; ///< empty while the program runs
};

} // namespace qinghe::testing
