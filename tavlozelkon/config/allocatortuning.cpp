#include "allocatortuning.h"

// Defines __GLIBC__ where it applies.
#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

bool AllocatorTuning::forLargeDocuments()
{
#if defined(__GLIBC__)
    // A limit of 0 leaves no block size small enough for a fast bin.
    return mallopt(M_MXFAST, 0) == 1;
#else
    return false;
#endif
}
