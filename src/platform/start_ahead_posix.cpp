#include "platform/start_ahead.h"

#include <dlfcn.h>
#include <thread>

namespace qinghe {

void readFontsAhead() {
    // Qt brings the fonts' library along; where it does not, there is nothing to read ahead.
    using Init = int (*)();
    const auto init = reinterpret_cast<Init>(::dlsym(RTLD_DEFAULT, "FcInit"));
    if (init)
        std::thread([init] { init(); }).detach();
}

} // namespace qinghe
