#include "disk/plain_file.h"
#include "platform/services.h"

#include <QCoreApplication>

#include <SDL.h>
#include <SDL_audio.h>
#include <algorithm>
#include <atomic>
#include <cstring>

namespace qinghe {

namespace {

/// Short enough for a stop to be heard at once.
constexpr Uint16 BufferFrames = 1024;

/// The samples of a wav file, in memory.
struct Samples {
    SDL_AudioSpec form{};
    Uint8* bytes = nullptr;
    Uint32 size = 0; ///< bytes

    explicit Samples(const QString& wav) {
        PlainFile file(wav, Links::Follow); // a pipe under a piece's name would be waited at for ever
        const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        SDL_RWops* source = SDL_RWFromConstMem(content.constData(), static_cast<int>(content.size()));
        if (!source || !SDL_LoadWAV_RW(source, 1, &form, &bytes, &size))
            bytes = nullptr;
    }
    ~Samples() { SDL_FreeWAV(bytes); }
    Samples(const Samples&) = delete;
    Samples& operator=(const Samples&) = delete;

    /// How long so many bytes play, ms.
    int duration(Uint32 count) const {
        const Uint32 frame = static_cast<Uint32>(SDL_AUDIO_BITSIZE(form.format)) / 8 * form.channels;
        return static_cast<int>(Uint64{count} / frame * 1000 / static_cast<Uint64>(form.freq));
    }
};

class Piece : public Sound {
public:
    explicit Piece(const QString& wav) : m_samples(wav) {
        if (!readable() || SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
            return;
        m_audio = true;
        SDL_AudioSpec wanted = m_samples.form;
        wanted.callback = [](void* self, Uint8* out, int count) {
            static_cast<Piece*>(self)->fill(out, static_cast<Uint32>(count));
        };
        wanted.userdata = this;
        wanted.samples = BufferFrames;
        m_device = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    }
    ~Piece() override {
        if (m_device != 0)
            SDL_CloseAudioDevice(m_device);
        // Nothing of the sound system runs on while nothing is open.
        if (m_audio)
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    bool readable() const { return m_samples.bytes != nullptr; }

    void play() override { SDL_PauseAudioDevice(m_device, 0); }
    void stop() override { SDL_PauseAudioDevice(m_device, 1); }
    void rewind() override {
        if (m_at == m_samples.size)
            stop(); // a piece that has ended begins again with the next "play" only
        m_at = 0;
    }
    int position() const override { return m_samples.duration(m_at); }
    int length() const override { return m_samples.duration(m_samples.size); }

private:
    /// On the sound system's thread.
    void fill(Uint8* out, Uint32 count) {
        Uint32 from = m_at;
        const Uint32 part = std::min(count, m_samples.size - from);
        std::memcpy(out, m_samples.bytes + from, part);
        std::memset(out + part, m_samples.form.silence, count - part);
        m_at.compare_exchange_strong(from, from + part); // unless it was rewound meanwhile
    }

    Samples m_samples;
    std::atomic<Uint32> m_at{0}; ///< bytes handed out
    SDL_AudioDeviceID m_device = 0;
    bool m_audio = false;
};

class SdlDevice : public SoundDevice {
public:
    SdlDevice() {
        SDL_SetMainReady();
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // the program ends as it always does
        SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, QCoreApplication::applicationName().toUtf8().constData());
    }
    ~SdlDevice() override {
        SDL_Quit();
        SDL_TLSCleanup();
    }
    std::unique_ptr<Sound> open(const QString& wav) override {
        auto piece = std::make_unique<Piece>(wav);
        return piece->readable() ? std::move(piece) : nullptr;
    }
};

} // namespace

} // namespace qinghe

extern "C" Q_DECL_EXPORT qinghe::SoundDevice* qingheSoundDevice() {
    return new qinghe::SdlDevice;
}
