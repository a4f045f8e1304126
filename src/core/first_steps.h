#pragma once

#include "core/shared.h"

namespace qinghe {

/// What the title band says in a book in which nobody has written yet, where it has nothing else to note: where the
/// book lies and how to begin. Nothing once there is a record.
QStringList firstSteps(Shared& shared);

} // namespace qinghe
