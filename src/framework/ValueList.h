// The copying of a list of numbers into an owned array, which may fail.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

// Replaces `pList` by a copy of `uCount` values and returns the number kept: `uCount`, or 0 with a
// null list when there are no values or no memory for them. A gigabyte or more counts as no memory.
template <class Value>
std::uint32_t CopyValueList(std::unique_ptr<Value[]>& pList, const Value* pValues,
                            std::uint32_t uCount) {
    constexpr std::uint32_t kMost = (1u << 30) / sizeof(Value) - 1;
    pList.reset();
    if (pValues == nullptr || uCount == 0 || uCount > kMost) return 0;
    pList.reset(new (std::nothrow) Value[uCount]);
    if (pList == nullptr) return 0;
    std::copy_n(pValues, uCount, pList.get());
    return uCount;
}

// The index of the first entry exactly equal to `value`, or -1.
template <class Value>
std::int32_t FindInList(const Value* pList, std::uint32_t uCount, Value value) {
    const Value* const pFound = std::find(pList, pList + uCount, value);
    return pFound == pList + uCount ? -1 : static_cast<std::int32_t>(pFound - pList);
}
