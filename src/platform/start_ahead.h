#pragma once

#include <thread>

namespace qinghe {

/// Lets the system read its list of fonts on a thread of its own while the program makes its first steps; the first
/// text waits for it otherwise, and that is the longest single step of the start. Call it first of all, and join the
/// thread before the first text, and before anything is put into the environment: the thread reads it, and whoever
/// reads while another writes may read memory that is gone. Never fails.
std::thread readFontsAhead();

} // namespace qinghe
