#pragma once

#include <QString>

namespace qinghe {

/// A value of the user's or of the file as a text quotes it: its first characters, and how many there are where it has
/// more: "abc…（共 1000000 个字）". Whoever puts such a value into an error, a message or a tip takes it from here: a
/// value can be as long as a book, and a window with all of it could be neither laid out nor read.
QString shownValue(QStringView value, qsizetype most = 40);
/// The most for a tool tip: what a screen has room for.
inline constexpr qsizetype MostInTip = 800;

} // namespace qinghe
