#pragma once

namespace qinghe {

/// Lets the system read its list of fonts on a thread of its own while the program starts; the first text waits for it
/// otherwise, and that is the longest single step of the start. Call it first of all; it never fails.
void readFontsAhead();

} // namespace qinghe
