#include "delivery/synthesiser.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>

namespace qinghe {
namespace {

constexpr double Tau = 2 * std::numbers::pi;
constexpr double HighestPartial = 0.45 * SampleRate; ///< Hz; above it samples cannot follow
constexpr double VibratoRate = 5;                    ///< Hz
constexpr double VibratoDelay = 0.3;                 ///< s until it is full
constexpr double FadeOut = 0.5, Silence = 0.05;      ///< s, at the end of a piece
constexpr double Ceiling = 0.7079;                   ///< -3 dB
constexpr double Knee = 0.5;                         ///< peaks above it are rounded off
constexpr double Loudness = 0.15;                    ///< root of the mean square

std::size_t samples(double seconds) {
    return static_cast<std::size_t>(std::lround(seconds * SampleRate));
}

double secondsAt(std::size_t sample) {
    return static_cast<double>(sample) / SampleRate;
}

/// From 0 to 1 without a corner.
double eased(double x) {
    x = std::clamp(x, 0.0, 1.0);
    return x * x * (3 - 2 * x);
}

struct Note {
    double frequency; ///< Hz
    double begin, length;
};

double frequencyOf(int pitch) {
    return 440 * std::exp2((pitch - 69) / 12.0);
}

std::vector<Note> notesOf(const Voice& voice, double step) {
    std::vector<Note> notes;
    double now = 0;
    std::ptrdiff_t held = 0; // the last of the notes still sound
    for (std::string_view rest = voice.steps.text(); !rest.empty();) {
        std::string_view token = cutOff(rest, ' ');
        if (token.empty() || token == "|") {
            continue;
        }
        if (token == "-") {
            std::for_each(notes.end() - held, notes.end(), [step](Note& note) { note.length += step; });
        } else {
            for (held = 0; token != "." && !token.empty(); ++held) {
                notes.push_back({frequencyOf(pitchOf(cutOff(token, '+'))), now, step});
            }
        }
        now += step;
    }
    return notes;
}

/// The course of a note, a value a sample.
struct Course {
    std::vector<double> loudness;
    std::vector<double> bend; ///< of the frequency, empty without vibrato
};

Course courseOf(const Note& note, const Voice& voice, std::size_t count) {
    const Timbre& timbre = voice.timbre;
    const double end = note.length + timbre.release;
    Course course;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = secondsAt(i);
        course.loudness.push_back(voice.loudness * eased(t / timbre.attack) * eased((end - t) / timbre.release));
        if (timbre.vibratoDepth > 0) {
            course.bend.push_back(timbre.vibratoDepth * eased(t / VibratoDelay) * std::sin(Tau * VibratoRate * t));
        }
    }
    return course;
}

void addPartial(std::span<double> into, const Course& course, const Partial& partial, double frequency) {
    const double ring = partial.ring * std::sqrt(440 / frequency);
    const double decay = partial.ring > 0 ? std::exp(-1 / (ring * SampleRate)) : 1;
    const double angle = Tau * partial.ratio * frequency / SampleRate;
    std::complex<double> turn = std::polar(decay, angle), pointer = partial.level;
    for (std::size_t i = 0; i < into.size(); ++i) {
        into[i] += pointer.imag() * course.loudness[i];
        if (!course.bend.empty()) {
            turn = std::polar(decay, angle * (1 + course.bend[i]));
        }
        pointer *= turn;
    }
}

void addNote(std::vector<double>& mix, const Note& note, const Voice& voice) {
    const std::size_t begin = std::min(samples(note.begin), mix.size());
    const std::size_t count = std::min(samples(note.length + voice.timbre.release), mix.size() - begin);
    const Course course = courseOf(note, voice, count);
    for (const Partial& partial : voice.timbre.partials) {
        if (partial.ratio * note.frequency < HighestPartial) {
            addPartial(std::span(mix).subspan(begin, count), course, partial, note.frequency);
        }
    }
}

/// A little of the sound comes back from the walls, duller each time.
void addRoom(std::vector<double>& mix) {
    struct Wall {
        double delay; ///< s
        double heard, returned;
    };
    static constexpr std::array<Wall, 4> walls{
        {{0.0297, 0.12, 0.70}, {0.0371, 0.12, 0.68}, {0.0411, 0.12, 0.66}, {0.0437, 0.12, 0.64}}};
    const std::vector<double> dry = mix;
    for (const Wall& wall : walls) {
        const std::size_t delay = samples(wall.delay);
        std::vector<double> back = dry;
        double dull = 0;
        for (std::size_t i = delay; i < back.size(); ++i) {
            dull += 0.5 * (back[i - delay] - dull);
            back[i] += wall.returned * dull;
            mix[i] += wall.heard * back[i - delay];
        }
    }
}

void fadeOut(std::vector<double>& mix) {
    const double end = secondsAt(mix.size()) - Silence;
    for (std::size_t i = samples(end - FadeOut); i < mix.size(); ++i) {
        mix[i] *= eased((end - secondsAt(i)) / FadeOut);
    }
}

double rounded(double sample) {
    const double over = std::abs(sample) - Knee;
    if (over <= 0) {
        return sample;
    }
    return std::copysign(Knee + (Ceiling - Knee) * std::tanh(over / (Ceiling - Knee)), sample);
}

void level(std::vector<double>& mix) {
    double energy = 0;
    for (const double sample : mix) {
        energy += sample * sample;
    }
    const double gain = Loudness / std::sqrt(energy / static_cast<double>(mix.size()));
    for (double& sample : mix) {
        sample = rounded(gain * sample);
    }
}

} // namespace

std::vector<double> played(const Piece& piece) {
    std::vector<double> mix(samples(piece.seconds));
    for (const Voice& voice : piece.voices) {
        for (const Note& note : notesOf(voice, piece.step)) {
            addNote(mix, note, voice);
        }
    }
    addRoom(mix);
    fadeOut(mix);
    level(mix);
    return mix;
}

} // namespace qinghe
