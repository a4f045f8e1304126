#include "platform/start_ahead.h"

#include <dlfcn.h>
namespace qinghe {

std::thread readFontsAhead() {
    // Qt brings the fonts' library along; where it does not, there is nothing to read ahead.
    using Init = int (*)();
    const auto init = reinterpret_cast<Init>(::dlsym(RTLD_DEFAULT, "FcInit"));
    return std::thread([init] {
        if (init)
            init();
    });
}

} // namespace qinghe
