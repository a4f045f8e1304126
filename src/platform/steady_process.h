#pragma once

namespace qinghe {

/// Makes the process proof against what stands around it: a pipe that nobody reads any more and a file that has reached
/// the largest size allowed become errors of the one who writes, not the silent end of the program; standard streams
/// that were closed lead to nothing, so that no file of ours is opened in their place and gets what libraries print.
/// Programs that are started from here find these signals as usual. Call it first of all. Never fails.
void steadyProcess();

} // namespace qinghe
