#include "config/allocatortuning.h"

#include <QtTest>
#include <vector>

// A sanitizer brings its own allocator, which ignores the tuning.
#if defined(__SANITIZE_ADDRESS__)
#define SANITIZER_ALLOCATOR 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define SANITIZER_ALLOCATOR 1
#endif
#endif

#if defined(__GLIBC__) && !defined(SANITIZER_ALLOCATOR)
#include <malloc.h>
#define GLIBC_ALLOCATOR 1
#endif

class TestAllocatorTuning : public QObject
{
    Q_OBJECT

private slots:
    void smallFreedBlocksAreMergedAtOnce();
};

namespace {
#ifdef GLIBC_ALLOCATOR
// Bytes the allocator holds in fast bins after freeing many blocks of one small size, more
// than the per-thread cache takes.
size_t bytesLeftInFastBins()
{
    std::vector<void*> blocks;
    for (int i = 0; i < 500; ++i)
        blocks.push_back(malloc(48));
    for (void* block : blocks)
        free(block);
    return mallinfo2().fsmblks;
}
#endif
} // namespace

void TestAllocatorTuning::smallFreedBlocksAreMergedAtOnce()
{
#ifdef GLIBC_ALLOCATOR
    // The untuned allocator keeps them: otherwise this test could not tell.
    QVERIFY(bytesLeftInFastBins() > 0);
    QVERIFY(AllocatorTuning::forLargeDocuments());
    QCOMPARE(bytesLeftInFastBins(), size_t(0));
#else
    QSKIP("Only glibc's own allocator is tuned.");
#endif
}

QTEST_APPLESS_MAIN(TestAllocatorTuning)
#include "tst_allocatortuning.moc"
