#pragma once

#include <QString>

#include <optional>

namespace qinghe {

/// The balance's text after the walk along an account's row has left a column, or nothing when leaving it does not
/// touch the balance. Columns are told by their fields (`columns::Received`). Leaving the starting amount begins afresh
/// with its text as it stands; every movement is added to the balance, or taken from it, each time that it is left:
/// what is walked over is booked, twice too. Texts are read as far as they are numbers. A result is a double
/// as it is, with one blank before what is not negative. Throws RuntimeError (overflow) beyond a double's range.
std::optional<QString> balanceAfterLeaving(QStringView field, const QString& text, const QString& balance);

} // namespace qinghe
