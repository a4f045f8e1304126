#include "look/path_text.h"

#include <array>
#include <charconv>

namespace qinghe {
namespace {

class PathReader {
public:
    explicit PathReader(std::string_view text) : m_rest(text) {}

    QPainterPath read() {
        skipBlanks();
        while (!m_rest.empty()) {
            if (!isNumberStart(m_rest.front())) {
                m_letter = m_rest.front();
                m_rest.remove_prefix(1);
            }
            if (!draw())
                break;
            skipBlanks();
        }
        return m_path;
    }

private:
    static bool isNumberStart(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; }

    void skipBlanks() {
        while (!m_rest.empty() && (m_rest.front() == ' ' || m_rest.front() == ','))
            m_rest.remove_prefix(1);
    }

    double number() {
        skipBlanks();
        double value = 0;
        const auto end = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value).ptr;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return value;
    }

    template<std::size_t N>
    std::array<double, N> numbers() {
        std::array<double, N> all{};
        for (double& one : all)
            one = number();
        return all;
    }

    bool draw() {
        switch (m_letter) {
        case 'M':
        case 'L':
        case 'H':
        case 'V':
        case 'Z':
            return drawLine();
        case 'C':
        case 'Q':
            return drawCurve();
        case 'O':
        case 'E':
        case 'R':
            return drawShape();
        default:
            return false;
        }
    }

    bool drawLine() {
        const QPointF at = m_path.currentPosition();
        if (m_letter == 'Z') {
            m_path.closeSubpath();
        } else if (m_letter == 'H') {
            m_path.lineTo(number(), at.y());
        } else if (m_letter == 'V') {
            m_path.lineTo(at.x(), number());
        } else {
            const auto [x, y] = numbers<2>();
            m_letter == 'M' ? m_path.moveTo(x, y) : m_path.lineTo(x, y);
        }
        return true;
    }

    bool drawCurve() {
        if (m_letter == 'C') {
            const auto [x1, y1, x2, y2, x, y] = numbers<6>();
            m_path.cubicTo(x1, y1, x2, y2, x, y);
        } else {
            const auto [x1, y1, x, y] = numbers<4>();
            m_path.quadTo(x1, y1, x, y);
        }
        return true;
    }

    bool drawShape() {
        if (m_letter == 'R') {
            const auto [x, y, w, h, r] = numbers<5>();
            m_path.addRoundedRect(x, y, w, h, r, r);
        } else {
            const auto [x, y, rx] = numbers<3>();
            m_path.addEllipse(QPointF(x, y), rx, m_letter == 'O' ? rx : number());
        }
        return true;
    }

    std::string_view m_rest;
    char m_letter = 0;
    QPainterPath m_path;
};

} // namespace

QPainterPath pathOf(std::string_view text) {
    return PathReader(text).read();
}

} // namespace qinghe
