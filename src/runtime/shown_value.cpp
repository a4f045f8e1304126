#include "runtime/shown_value.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

QString shownValue(QStringView value, qsizetype most) {
    if (value.size() <= most)
        return value.toString();
    // A character beyond the first 65,536 is two units of the text.
    const auto characters = [](QStringView text) {
        return text.size() - std::ranges::count_if(text, [](QChar c) { return c.isLowSurrogate(); });
    };
    const QStringView head = value.first(value[most].isLowSurrogate() ? most - 1 : most);
    return u"%1…（共 %2 个字）"_s.arg(head).arg(characters(value));
}

} // namespace qinghe
