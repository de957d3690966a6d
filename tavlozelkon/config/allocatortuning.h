#pragma once

#include "tavlozelkon_lib_export.h"

/*
 * Tunes the C library's allocator of the whole process for large documents. A document
 * of ten thousand sessions is some hundreds of thousands of small nodes and strings, and
 * replacing a section or the whole document frees them all at once. glibc keeps small
 * freed blocks in "fast bins" unmerged and merges them all at the next large request,
 * which then stalls: the first summary after a large save on the device waited tens of
 * milliseconds for it, and freeing a large document walked its memory twice.
 * Without fast bins each block is merged as it is freed, while the per-thread cache still
 * serves the short-lived small blocks. Peak memory is unchanged.
 *
 * It changes the process, not one document, so hosts call it at the start of main(); the
 * library never does so by itself. Elsewhere than glibc it does nothing.
 */
class TAVLOZELKON_LIB_EXPORT AllocatorTuning
{
public:
    // Whether the allocator was tuned.
    static bool forLargeDocuments();
};
