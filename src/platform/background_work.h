#pragma once

#include "platform/services.h"

namespace qinghe {

/// Work on a thread of its own.
std::unique_ptr<Background> backgroundWork();

} // namespace qinghe
