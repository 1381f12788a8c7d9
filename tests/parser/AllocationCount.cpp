#include "AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {
int g_nAllocations = 0;
}

int AllocationCount() {
    return g_nAllocations;
}

void* operator new(std::size_t nSize) {
    ++g_nAllocations;
    if (void* p = std::malloc(nSize ? nSize : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
