#pragma once

class QFile;

namespace qinghe {

/// Waits until what was written to an open file, and its name in its folder, would outlast a power cut. False when the
/// disk reports that it failed.
bool makeDurable(const QFile& file);

} // namespace qinghe
