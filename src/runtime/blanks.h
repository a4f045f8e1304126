#pragma once

#include <QString>

namespace qinghe {

/// A text without the blanks at its ends; other white space stays.
inline QString withoutBlanksAround(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

} // namespace qinghe
