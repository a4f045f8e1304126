#pragma once

#include "platform/services.h"

namespace qinghe {

/// A lock on the program's folder itself: nothing is left in it, and a crashed copy leaves no lock behind. Calls stay
/// among the copies that one user runs in this folder.
std::unique_ptr<InstanceLock> folderLock(const QString& folder);

} // namespace qinghe
