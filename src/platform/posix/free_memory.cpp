#include "platform/free_memory.h"

#include <cstdlib> // tells which C library this is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace qinghe {

void giveBackFreeMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace qinghe
