#include "AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t g_nAllocations = 0;

}  // namespace

std::size_t AllocationCount() {
    return g_nAllocations;
}

void* operator new(std::size_t nSize) {
    ++g_nAllocations;
    if (void* const pMemory = std::malloc(nSize != 0 ? nSize : 1)) return pMemory;
    throw std::bad_alloc();
}

void operator delete(void* pMemory) noexcept {
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept {
    std::free(pMemory);
}
