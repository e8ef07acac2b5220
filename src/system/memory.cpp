#include "system/memory.h"

#ifdef __linux__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#endif

namespace bannersmith {

void Take_Memory_At_Once() {
#if defined(__linux__) && defined(__GLIBC__) && defined(MADV_POPULATE_WRITE)
    // A banner of 64 KiB, a few copies of it, and the rest.
    constexpr std::size_t Amount = std::size_t{384} << 10;
    constexpr int LargestOnHeap = 1 << 20;  // above, memory is mapped and given back one by one
    ::mallopt(M_MMAP_THRESHOLD, LargestOnHeap);
    ::mallopt(M_TRIM_THRESHOLD, LargestOnHeap);
    void* const block = std::malloc(Amount);
    void* first_page = block;
    std::size_t space = Amount;
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    if (block != nullptr && std::align(page, Amount - page, first_page, space) != nullptr) {
        ::madvise(first_page, Amount - page, MADV_POPULATE_WRITE);
    }
    std::free(block);  // stays on the heap, where the next allocations find it
#endif
}

}  // namespace bannersmith
