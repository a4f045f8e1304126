#include "analysis/label_lines.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <vector>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// More characters than these have no room in any chart, and measuring them takes its time.
constexpr int LongestMeasured = 400;

/// The places between characters, as a person counts them, from the first one's end to the end of the text.
std::vector<qsizetype> boundaries(const QString& words) {
    std::vector<qsizetype> places;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, words);
    for (qsizetype at = finder.toNextBoundary(); at != -1; at = finder.toNextBoundary())
        places.push_back(at);
    return places;
}

/// As much of the words as fits with "…" behind it.
QString elided(const QString& words, double room, const Ruler& ruler) {
    const std::vector<qsizetype> places = boundaries(words);
    const auto rest = std::partition_point(places.begin(), places.end(),
                                           [&](qsizetype at) { return ruler.width(words.left(at) + u'…') <= room; });
    return rest == places.begin() ? u"…"_s : words.left(*std::prev(rest)) + u'…';
}

/// Where two even lines part: the first place at which the first is not the shorter.
qsizetype middle(const QString& words, const Ruler& ruler) {
    const double half = ruler.width(words) / 2;
    const std::vector<qsizetype> places = boundaries(words);
    const auto found = std::partition_point(places.begin(), places.end(),
                                            [&](qsizetype at) { return ruler.width(words.left(at)) < half; });
    return found == places.end() ? words.size() : *found;
}

/// Where the first line ends when both are to be full.
qsizetype fullLine(const QString& words, double room, const Ruler& ruler) {
    const std::vector<qsizetype> places = boundaries(words);
    const auto found = std::partition_point(places.begin(), places.end(),
                                            [&](qsizetype at) { return ruler.width(words.left(at)) <= room; });
    return found == places.begin() ? places.front() : *std::prev(found);
}

} // namespace

QString drawnLabel(const QString& label) {
    return label.left(2 * LongestMeasured).simplified();
}

QString monthLabel(const QString& key) {
    return key.endsWith(u'-') ? key.chopped(1) : key;
}

QString yearLabel(const QString& key) {
    return key.isEmpty() ? QString() : key.section(u'-', 0, 0) + u'年';
}

LabelLines breakLabel(const QString& words, double room, int mostLines, const Ruler& ruler) {
    if (words.isEmpty())
        return {};
    const bool measurable = words.size() <= LongestMeasured;
    if (measurable && ruler.width(words) <= room)
        return {{words}};
    LabelLines label;
    const auto add = [&](const QString& line, bool whole) {
        const bool fits = whole && ruler.width(line) <= room;
        label.lines << (fits ? line : elided(line, room, ruler));
        label.cut |= !fits;
    };
    const QString head = words.left(LongestMeasured);
    if (mostLines < 2) {
        add(head, measurable);
        return label;
    }
    const bool even = measurable && ruler.width(words) <= 2 * room;
    const qsizetype at = even ? middle(head, ruler) : fullLine(head, room, ruler);
    add(head.left(at).trimmed(), measurable || at < head.size());
    if (at < head.size())
        add(head.mid(at).trimmed(), measurable);
    return label;
}

} // namespace qinghe
