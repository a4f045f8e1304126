#pragma once

namespace qinghe {

/// Gives memory that was freed and that the process keeps for later back to the system, where it does not go by itself.
/// Takes some milliseconds: for the end of large work alone.
void giveBackFreeMemory();

} // namespace qinghe
