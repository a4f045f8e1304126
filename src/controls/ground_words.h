#pragma once

#include <QString>

namespace qinghe {

class MSFlexGrid;

/// What a list that has nothing to show says faintly on its own ground, below its rows: what to do first, or where to
/// look instead. No control: it takes no click, and goes with the first text. Each of its lines is one of the paper's.
class GroundWords {
public:
    enum class Shown {
        WhileBlank, ///< while the list has one row at most and nothing stands in it
        Always,     ///< whatever was left in its rows
    };

    explicit GroundWords(MSFlexGrid& grid) : m_grid(grid) {}

    void set(const QString& words, Shown shown = Shown::WhileBlank);
    void clear() { set({}); }
    /// The words that are on view at present.
    QString shown() const;

private:
    bool isBlank() const;

    MSFlexGrid& m_grid;
    QString m_words;
    Shown m_shown = Shown::WhileBlank;
};

} // namespace qinghe
