#include "analysis/chart_matrix.h"

namespace qinghe {

using namespace Qt::StringLiterals;

ChartMatrix sampleMatrix() {
    return {{u"R1"_s, u"R2"_s, u"R3"_s, u"R4"_s, u"R5"_s},
            {u"C1"_s, u"C2"_s, u"C3"_s, u"C4"_s},
            {{60, 84, 42, 76, 55}, {44, 66, 71, 38, 82}, {75, 52, 58, 91, 40}, {32, 70, 86, 49, 63}},
            {},
            true};
}

} // namespace qinghe
