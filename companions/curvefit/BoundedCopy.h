// The one way in which a text gets into a field of fixed size: cut silently, always terminated.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace curvefit {

inline void CopyText(char* pszTarget, std::size_t nSize, const char* pszText) {
    if (nSize == 0) return;
    const std::size_t nLength = std::min(std::strlen(pszText), nSize - 1);
    std::memcpy(pszTarget, pszText, nLength);
    pszTarget[nLength] = '\0';
}

template <std::size_t N>
void CopyText(char (&szTarget)[N], const char* pszText) {
    CopyText(szTarget, N, pszText);
}

}  // namespace curvefit
