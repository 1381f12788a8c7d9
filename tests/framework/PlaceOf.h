// The places of virtual operations in their class's table, counted as the compilers of this library
// number them.
#pragma once

#include <cstddef>
#include <cstring>

namespace framework_test {

template <class Member>
std::ptrdiff_t PlaceOf(Member pMember) {
    std::ptrdiff_t nOffset = 0;
    static_assert(sizeof pMember >= sizeof nOffset);
    std::memcpy(&nOffset, &pMember, sizeof nOffset);
    return (nOffset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

// Whether each operation stands directly behind the one before.
template <class First, class... Rest>
bool StandInOrder(First first, Rest... rest) {
    std::ptrdiff_t nPlace = PlaceOf(first);
    return ((PlaceOf(rest) == ++nPlace) && ...);
}

}  // namespace framework_test
