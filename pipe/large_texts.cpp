// SPDX-License-Identifier: MIT
#include "pipe/large_texts.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace tolvo {

#ifdef __GLIBC__

namespace {

constexpr int reserve = 256 << 20;              // of addresses; memory is taken when it is touched
constexpr std::uintptr_t largePage = 2U << 20U; // the large pages of the processors that we know

} // namespace

void prepareForLargeTexts() {
    // Blocks above 32 MB would go back to the system when they are freed, and every step of a large text
    // would wait for the system to clear new memory, page by page.
    mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TOP_PAD, reserve);
    void *volatile first = std::malloc(1 << 18); // makes the heap grow by the reserve
    std::free(first);
    mallopt(M_TOP_PAD, 1 << 20);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const auto start = (end - reserve + largePage) & ~(largePage - 1);
    madvise(reinterpret_cast<void *>(start), end - start, MADV_HUGEPAGE); // only advice: it may fail
}

#else

void prepareForLargeTexts() {
}

#endif

} // namespace tolvo
