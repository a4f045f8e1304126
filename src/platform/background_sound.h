#pragma once

#include "platform/services.h"

namespace qinghe {

/// The sound of the desktop. No call waits: everything is done in turn on a thread of its own, since a sound server may
/// take its time, or hang. The library that plays stands in a module beside the program (src/platform/sound), which is
/// loaded on that thread when the first piece is opened. Without the module, without a device or with a file that is no
/// wav, pieces are silent.
std::unique_ptr<SoundDevice> backgroundSound(const QString& moduleFolder);

} // namespace qinghe
