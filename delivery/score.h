#pragma once

#include <string_view>

namespace qinghe {

/// Cuts the text at the first mark and gives what stood before it; the mark is gone.
constexpr std::string_view cutOff(std::string_view& text, char mark) {
    const std::size_t at = text.find(mark);
    const std::string_view head = text.substr(0, at);
    text = at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
    return head;
}

/// The place of a pitch in half tones, "A4" is 69; 0 when the name is none: a letter, perhaps "#" or "b", the octave.
constexpr int pitchOf(std::string_view name) {
    constexpr int halfTones[] = {9, 11, 0, 2, 4, 5, 7}; // A to G
    const bool altered = name.size() == 3 && (name[1] == '#' || name[1] == 'b');
    if ((name.size() != 2 && !altered) || name.front() < 'A' || name.front() > 'G' || name.back() < '0' ||
        name.back() > '9') {
        return 0;
    }
    const int shift = !altered ? 0 : name[1] == '#' ? 1 : -1;
    return 12 * (name.back() - '0' + 1) + halfTones[name.front() - 'A'] + shift;
}

/// What one instrument plays, in even steps with a blank between them: "E5" is struck, "C4+E4" at once, "-" holds on,
/// "." is silence, "|" divides bars and takes no time. A slip does not compile.
class Steps {
public:
    consteval Steps(const char* text) : m_text(text) {
        for (std::string_view rest = m_text; !rest.empty();) {
            std::string_view step = cutOff(rest, ' ');
            while (step != "-" && step != "." && step != "|" && !step.empty()) {
                if (pitchOf(cutOff(step, '+')) == 0) {
                    throw "not a pitch";
                }
            }
        }
    }

    constexpr std::string_view text() const { return m_text; }

private:
    std::string_view m_text;
};

} // namespace qinghe
