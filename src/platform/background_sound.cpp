#include "platform/background_sound.h"

#include <QDir>
#include <QLibrary>
#include <QThreadPool>

#include <mutex>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int ForEver = -1;

/// What the thread holds: the module's device.
class Player {
public:
    explicit Player(QString folder) : m_folder(std::move(folder)) {
        m_thread.setMaxThreadCount(1); // in turn
        m_thread.setExpiryTimeout(ForEver);
    }
    ~Player() {
        enqueue([this] { m_device.reset(); }); // where it was made
        m_thread.waitForDone();
    }

    void enqueue(std::function<void()> call) { m_thread.start(std::move(call)); }

    /// On the thread only. nullptr when there is no module.
    SoundDevice* device() {
        if (!m_device) {
            using Maker = SoundDevice* (*)();
            QLibrary module(QDir(m_folder).filePath(u"qinghe_sound"_s));
            if (const auto make = reinterpret_cast<Maker>(module.resolve("qingheSoundDevice")))
                m_device.reset(make());
        }
        return m_device.get();
    }

private:
    QString m_folder;
    std::unique_ptr<SoundDevice> m_device;
    QThreadPool m_thread;
};

/// Holds a piece, which may not have been opened yet.
class PieceSlot {
public:
    void put(std::unique_ptr<Sound> sound) {
        const std::lock_guard lock(m_mutex);
        std::swap(m_sound, sound);
    }
    /// On the thread only.
    void tell(void (Sound::*command)()) {
        if (m_sound)
            (m_sound.get()->*command)();
    }
    int ask(int (Sound::*question)() const) const {
        const std::lock_guard lock(m_mutex);
        return m_sound ? (m_sound.get()->*question)() : 0;
    }

private:
    mutable std::mutex m_mutex; // of the pointer, which the thread alone changes
    std::unique_ptr<Sound> m_sound;
};

class BackgroundPiece : public Sound {
public:
    BackgroundPiece(std::shared_ptr<Player> player, const QString& wav) : m_player(std::move(player)) {
        m_player->enqueue([&player = *m_player, piece = m_piece, wav] {
            if (SoundDevice* device = player.device())
                piece->put(device->open(wav));
        });
    }
    ~BackgroundPiece() override {
        m_player->enqueue([piece = m_piece] { piece->put(nullptr); });
    }

    void play() override { tell(&Sound::play); }
    void stop() override { tell(&Sound::stop); }
    void rewind() override { tell(&Sound::rewind); }
    int position() const override { return m_piece->ask(&Sound::position); }
    int length() const override { return m_piece->ask(&Sound::length); }

private:
    void tell(void (Sound::*command)()) {
        m_player->enqueue([piece = m_piece, command] { piece->tell(command); });
    }

    std::shared_ptr<Player> m_player;
    std::shared_ptr<PieceSlot> m_piece = std::make_shared<PieceSlot>();
};

class BackgroundSound : public SoundDevice {
public:
    explicit BackgroundSound(const QString& folder) : m_player(std::make_shared<Player>(folder)) {}
    std::unique_ptr<Sound> open(const QString& wav) override {
        return std::make_unique<BackgroundPiece>(m_player, wav);
    }

private:
    std::shared_ptr<Player> m_player;
};

} // namespace

std::unique_ptr<SoundDevice> backgroundSound(const QString& moduleFolder) {
    return std::make_unique<BackgroundSound>(moduleFolder);
}

} // namespace qinghe
