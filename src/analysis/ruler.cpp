#include "analysis/ruler.h"

namespace qinghe {

FontRuler::FontRuler(const QFont& font) : m_metrics(font) {
    for (char16_t code = u' '; code < m_ascii.size(); ++code)
        m_ascii[code] = m_metrics.horizontalAdvance(QChar(code));
    m_widest = m_metrics.horizontalAdvance(QChar(u'国'));
}

double FontRuler::atMost(const QString& words) const {
    double sum = 0;
    for (const QChar character : words)
        sum += character.unicode() < m_ascii.size() ? m_ascii[character.unicode()] : m_widest;
    return sum;
}

} // namespace qinghe
