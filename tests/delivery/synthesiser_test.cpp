#include "delivery/synthesiser.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace qinghe {
namespace {

constexpr Partial Lasting[] = {{1, 1}};
constexpr Timbre Pipe{Lasting, 0.02, 0.02};
constexpr Partial Dying[] = {{1, 1, 0.2}};
constexpr Timbre Bar{Dying, 0.002, 3};

constexpr Voice OneNote[] = {{Pipe, 1, "A4 - - - - - - - . ."}};
constexpr Voice Octaves[] = {{Pipe, 1, "A4 - | A3 -"}};
constexpr Voice Struck[] = {{Bar, 1, "A4 . . . . . . ."}};
constexpr Voice StruckLower[] = {{Bar, 1, "A2 . . . . . . ."}};
constexpr Voice Low[] = {{Pipe, 1, "A2 - . A2 - - . . ."}};
constexpr Voice Chord[] = {{Pipe, 1, "A4+A5 - . . . ."}};
constexpr Voice Apart[] = {{Pipe, 1, "A4 - . . . ."}, {Pipe, 1, "A5 - . . . ."}};
constexpr Voice Late[] = {{Pipe, 1, "A4 - . . A4 - . . ."}};
constexpr Timbre Trembling{Lasting, 0.02, 0.02, 0.02};
constexpr Voice Vibrato[] = {{Trembling, 1, "A4 - - - - - - -"}};
constexpr Partial WithTooHigh[] = {{1, 1}, {30, 1}};
constexpr Timbre TooHigh{WithTooHigh, 0.02, 0.02};
constexpr Voice High[] = {{TooHigh, 1, "A4 - - - - - - - . ."}};
constexpr Voice Crowd[] = {{Pipe, 1, "A4 . . . . . . . . . . . . . . ."}};

std::vector<double> part(const std::vector<double>& all, double from, double to) {
    const auto at = [&](double seconds) { return all.begin() + std::lround(seconds * SampleRate); };
    return {at(from), at(to)};
}

double peak(const std::vector<double>& samples) {
    double highest = 0;
    for (const double sample : samples) {
        highest = std::max(highest, std::abs(sample));
    }
    return highest;
}

/// Upward passages through zero a second.
double frequency(const std::vector<double>& samples) {
    int passages = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        passages += samples[i - 1] < 0 && samples[i] >= 0;
    }
    return passages * static_cast<double>(SampleRate) / static_cast<double>(samples.size());
}

TEST(Score, NamesOfPitchesAreHalfTones) {
    for (const auto& [name, pitch] :
         {std::pair("A4", 69), std::pair("C4", 60), std::pair("B3", 59), std::pair("C0", 12), std::pair("G9", 127),
          std::pair("F#4", 66), std::pair("Bb4", 70)}) {
        EXPECT_EQ(pitchOf(name), pitch) << name;
    }
    for (const char* name : {"", "A", "H4", "@4", "A-", "A:", "Ax4", "A##4", "a4", "4A"}) {
        EXPECT_EQ(pitchOf(name), 0) << name;
    }
}

TEST(Synthesiser, ANoteSoundsAtItsPitchAsLongAsItIsHeld) {
    const std::vector<double> music = played({0.1, 2, OneNote});
    EXPECT_EQ(music.size(), 2u * SampleRate);
    EXPECT_NEAR(frequency(part(music, 0.1, 0.7)), 440, 4);
    EXPECT_GT(peak(part(music, 0.7, 0.79)), 0.2);
    EXPECT_LT(peak(part(music, 1.3, 2)), 0.02);
}

TEST(Synthesiser, StepsFollowOneAnotherAndBarsTakeNoTime) {
    const std::vector<double> music = played({0.5, 2.6, Octaves});
    EXPECT_NEAR(frequency(part(music, 0.1, 0.9)), 440, 4);
    EXPECT_NEAR(frequency(part(music, 1.3, 1.9)), 220, 4);
}

TEST(Synthesiser, SilenceTakesItsStepsAndTheRoomIsHeardInIt) {
    const std::vector<double> music = played({0.2, 2.4, Late});
    EXPECT_GT(peak(part(music, 0.45, 0.5)), 0.002);
    EXPECT_LT(peak(part(music, 0.7, 0.79)), 0.01);
    EXPECT_GT(peak(part(music, 0.85, 1.15)), 0.2);
}

TEST(Synthesiser, VibratoGoesToBothSidesOfThePitch) {
    const std::vector<double> music = played({0.2, 2.4, Vibrato});
    double lowest = 10'000, highest = 0;
    for (double from = 0.4; from < 1.2; from += 0.05) {
        const double now = frequency(part(music, from, from + 0.05));
        lowest = std::min(lowest, now);
        highest = std::max(highest, now);
    }
    EXPECT_LT(lowest, 436);
    EXPECT_GT(lowest, 410);
    EXPECT_GT(highest, 444);
    EXPECT_LT(highest, 470);
}

TEST(Synthesiser, WhatSamplesCannotFollowIsLeftOut) {
    EXPECT_EQ(played({0.1, 2, High}), played({0.1, 2, OneNote}));
}

TEST(Synthesiser, NotesOfAChordBeginTogether) {
    EXPECT_EQ(played({0.1, 1, Chord}), played({0.1, 1, Apart}));
}

TEST(Synthesiser, WhatIsStruckDiesAwayAndHighNotesSooner) {
    const auto left = [](std::span<const Voice> voices) {
        const std::vector<double> music = played({0.2, 2, voices});
        return peak(part(music, 0.6, 0.7)) / peak(part(music, 0.2, 0.3));
    };
    EXPECT_NEAR(left(Struck), std::exp(-2), 0.05);
    EXPECT_NEAR(left(StruckLower), std::exp(-1), 0.05);
}

TEST(Synthesiser, NothingClicksWhereNotesBeginAndEnd) {
    const std::vector<double> music = played({0.1, 1.2, Low});
    double sharpest = 0;
    for (std::size_t i = 2; i < music.size(); ++i) {
        sharpest = std::max(sharpest, std::abs(music[i] - 2 * music[i - 1] + music[i - 2]));
    }
    const double turn = 2 * M_PI * 110 / SampleRate;
    EXPECT_LT(sharpest, 2 * turn * turn * peak(music));
    EXPECT_EQ(music.front(), 0);
}

TEST(Synthesiser, ThePieceEndsInSilenceWhateverStillSounds) {
    constexpr Voice cut[] = {{Pipe, 1, "A4 - - - - - - - - - - - - - - -"}};
    const std::vector<double> music = played({0.1, 1, cut});
    EXPECT_EQ(peak(part(music, 0.955, 1)), 0);
    EXPECT_GT(peak(part(music, 0.3, 0.4)), 0.1);
}

TEST(Synthesiser, PeaksAreRoundedOffBelowThreeDecibels) {
    const std::vector<double> music = played({0.05, 8, Crowd}); // one short sound that has to be made very loud
    EXPECT_LE(peak(music), 0.708);
    EXPECT_GT(peak(music), 0.69);
}

} // namespace
} // namespace qinghe
