#pragma once

#include "analysis/ruler.h"

namespace qinghe::testing {

/// Every character is as wide as every other.
class EvenRuler : public Ruler {
public:
    explicit EvenRuler(double character) : m_character(character) {}
    double width(const QString& words) const override { return m_character * static_cast<double>(words.size()); }
    double atMost(const QString& words) const override { return width(words); }

private:
    double m_character;
};

} // namespace qinghe::testing
