#pragma once

#include "delivery/score.h"

#include <span>
#include <vector>

namespace qinghe {

inline constexpr int SampleRate = 22050; ///< a second

/// One sine of a tone. What is struck or plucked dies away, high notes sooner than low ones.
struct Partial {
    double ratio;    ///< to the note's own frequency
    double level;    ///< when it is struck
    double ring = 0; ///< s until 1/e of it is left, for A4; 0: it stays as it is
};

/// How an instrument sounds. Times are in seconds.
struct Timbre {
    std::span<const Partial> partials;
    double attack;           ///< from silence to full
    double release;          ///< back to silence, from the note's end
    double vibratoDepth = 0; ///< of the frequency, to either side
};

struct Voice {
    const Timbre& timbre;
    double loudness; ///< beside the piece's other voices
    Steps steps;
};

struct Piece {
    double step;    ///< s
    double seconds; ///< from the first sample to the last
    std::span<const Voice> voices;
};

/// The piece as samples of -1 to 1, in a small room. It begins at once and dies away into silence; its peaks reach
/// about -3 dB, and every piece is about as loud as another.
std::vector<double> played(const Piece& piece);

} // namespace qinghe
