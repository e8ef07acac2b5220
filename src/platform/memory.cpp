#include "platform/memory.h"

#ifdef __linux__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#endif

void Take_Memory_At_Once() {
#if defined(__linux__) && defined(__GLIBC__) && defined(MADV_POPULATE_WRITE)
    constexpr int Amount = 384 << 10;       // a banner of 64 KiB, a few copies of it, and the rest
    constexpr int LargestOnHeap = 1 << 20;  // above, memory is mapped and given back one by one
    ::mallopt(M_MMAP_THRESHOLD, LargestOnHeap);
    ::mallopt(M_TRIM_THRESHOLD, LargestOnHeap);
    void* block = std::malloc(Amount);
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto begin = (reinterpret_cast<std::uintptr_t>(block) + page - 1) / page * page;
    if (block != nullptr) {
        ::madvise(reinterpret_cast<void*>(begin), Amount - page, MADV_POPULATE_WRITE);
    }
    std::free(block);  // stays on the heap, where the next allocations find it
#endif
}
