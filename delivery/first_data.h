#pragma once

#include <QString>

namespace qinghe {

/// Makes the data file that the program is delivered with: one user, remembered, so that the first start is one click;
/// settings, categories and pictures; no records. It is left as after a clean end of the program, its header spoilt.
///
/// An existing file is never touched: false then. The file appears complete or not at all. Needs a QGuiApplication, for
/// the pictures. Throws RuntimeError.
bool deliverFirstData(const QString& folder);

} // namespace qinghe
