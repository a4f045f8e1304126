#pragma once

#include <cstddef>
#include <vector>

namespace qinghe {

/// A row of elements that grows at its end, in pieces: what was put in never moves, so that a long row costs no second
/// copy and no more room than it needs.
template<class T, std::size_t PieceSize>
class Pieces {
public:
    std::size_t size() const {
        return m_pieces.empty() ? 0 : (m_pieces.size() - 1) * PieceSize + m_pieces.back().size();
    }
    const T& operator[](std::size_t index) const { return m_pieces[index / PieceSize][index % PieceSize]; }
    T& operator[](std::size_t index) { return m_pieces[index / PieceSize][index % PieceSize]; }

    void push_back(const T& element) {
        if (m_pieces.empty() || m_pieces.back().size() == PieceSize)
            m_pieces.emplace_back().reserve(PieceSize);
        m_pieces.back().push_back(element);
    }

    /// Drops so many elements from the end; they must be there.
    void drop(std::size_t count) {
        for (; count > 0; --count) {
            m_pieces.back().pop_back();
            if (m_pieces.back().empty())
                m_pieces.pop_back();
        }
    }

private:
    std::vector<std::vector<T>> m_pieces;
};

} // namespace qinghe
