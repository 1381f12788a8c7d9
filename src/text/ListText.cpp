#include "text/ListText.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <string_view>

#include "text/BoundedText.h"
#include "text/TextTests.h"

namespace {

constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();

// In what the two uses of list text differ.
struct ListRules {
    bool bTrimItems;       // blanks around an item are dropped here
    bool bCountPastLimit;  // values past the array count in the result
};
constexpr ListRules kIndexListRules = {true, true};
constexpr ListRules kSelectionListRules = {false, false};

struct NameList {
    const char* const* pszNames;
    const std::int32_t* pnValues;  // null: a name stands for its place
    int nCount;
};

bool IsListBlank(char ch) {
    return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n';
}

bool IsWhiteSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

// Reads one bound. Returns false when it is neither a name nor, as a whole, a decimal number.
bool ReadBound(const char* p, const char* pEnd, int nOffset, const NameList& names,
               std::int64_t* pnBound) {
    if (p == pEnd) return false;
    for (int i = 0; i < names.nCount; ++i) {
        const char* szName = names.pszNames[i];
        if (szName == nullptr) continue;
        if (EqualNoCase(std::string_view(p, static_cast<std::size_t>(pEnd - p)), szName)) {
            *pnBound = names.pnValues != nullptr ? names.pnValues[i] : i;
            return true;
        }
    }
    // The library function takes no plus sign.
    if (p != pEnd && *p == '+' && p + 1 != pEnd && p[1] != '-') ++p;
    std::int32_t nNumber = 0;
    const auto result = std::from_chars(p, pEnd, nNumber);
    if (result.ec != std::errc() || result.ptr != pEnd) return false;
    *pnBound = static_cast<std::int64_t>(nNumber) - nOffset;
    return *pnBound >= kLow && *pnBound <= kHigh;
}

// The numbers read so far.
struct ListResult {
    std::int32_t* pnValues;
    int nMax;
    std::int64_t nCount = 0;

    void AddRange(std::int64_t nFirst, std::int64_t nLast) {
        if (nFirst == nLast) {
            if (nCount < nMax) pnValues[nCount] = static_cast<std::int32_t>(nFirst);
            ++nCount;
            return;
        }
        const std::int64_t nStep = nFirst <= nLast ? 1 : -1;
        const std::int64_t nSteps = (nLast - nFirst) * nStep + 1;
        const std::int64_t nRoom = nCount < nMax ? nMax - nCount : 0;
        const std::int64_t nStored = nSteps < nRoom ? nSteps : nRoom;
        for (std::int64_t i = 0; i < nStored; ++i) {
            pnValues[nCount + i] = static_cast<std::int32_t>(nFirst + i * nStep);
        }
        nCount += nSteps;
    }
};

// Finds ".." in an item; pEnd when there is none.
const char* FindDots(const char* p, const char* pEnd) {
    for (; p + 1 < pEnd; ++p) {
        if (p[0] == '.' && p[1] == '.') return p;
    }
    return pEnd;
}

bool ReadItem(const char* p, const char* pEnd, int nOffset, const NameList& names,
              ListResult& result) {
    const char* pDots = FindDots(p, pEnd);
    if (p == pEnd || pDots == p) return false;
    std::int64_t nFirst = 0;
    if (!ReadBound(p, pDots, nOffset, names, &nFirst)) return false;
    std::int64_t nLast = nFirst;
    if (pDots != pEnd && !ReadBound(pDots + 2, pEnd, nOffset, names, &nLast)) return false;
    result.AddRange(nFirst, nLast);
    return true;
}

// Reads an unsigned number of at most nine digits; returns its end, or null for anything else.
const char* ReadPlainNumber(const char* p, std::int64_t* pnNumber) {
    const char* pFirst = p;
    std::uint32_t uNumber = 0;
    for (; *p >= '0' && *p <= '9'; ++p) uNumber = uNumber * 10 + static_cast<unsigned>(*p - '0');
    if (p == pFirst || p - pFirst > 9) return nullptr;
    *pnNumber = uNumber;
    return p;
}

// Reads an item of plain numbers in one pass, as nearly all are; returns its end, or null when the
// item needs a closer look.
const char* ReadPlainItem(const char* p, int nOffset, ListResult& result) {
    std::int64_t nFirst = 0;
    p = ReadPlainNumber(p, &nFirst);
    if (p == nullptr) return nullptr;
    std::int64_t nLast = nFirst;
    if (p[0] == '.' && p[1] == '.') {
        p = ReadPlainNumber(p + 2, &nLast);
        if (p == nullptr) return nullptr;
    }
    if ((*p != ',' && *p != '\0') || nFirst - nOffset < kLow || nLast - nOffset < kLow ||
        nFirst - nOffset > kHigh || nLast - nOffset > kHigh) {
        return nullptr;
    }
    result.AddRange(nFirst - nOffset, nLast - nOffset);
    return p;
}

int Parse(const char* szText, std::int32_t* pnValues, int nMax, int nOffset, const NameList& names,
          const ListRules& rules) {
    ListResult result = {pnValues, pnValues != nullptr && nMax > 0 ? nMax : 0};
    for (const char* p = szText;; ++p) {
        if (rules.bTrimItems) {
            while (IsListBlank(*p)) ++p;
        }
        // A name may look like a number, and goes before it.
        if (names.nCount == 0) {
            if (const char* pPlainEnd = ReadPlainItem(p, nOffset, result)) {
                p = pPlainEnd;
                if (*p == '\0') break;
                continue;
            }
        }
        const char* pEnd = p;
        while (*pEnd != ',' && *pEnd != '\0') ++pEnd;
        const char* pItem = p;
        const char* pItemEnd = pEnd;
        if (rules.bTrimItems) {
            while (pItem != pItemEnd && IsListBlank(pItemEnd[-1])) --pItemEnd;
        }
        if (!ReadItem(pItem, pItemEnd, nOffset, names, result)) return 0;
        p = pEnd;
        if (*p == '\0') break;
    }
    if (!rules.bCountPastLimit && result.nCount > result.nMax) return result.nMax;
    return static_cast<int>(result.nCount < kHigh ? result.nCount : kHigh);
}

// Writes a number with what stands before it, whole or not at all.
bool PutNumber(BoundedWriter& writer, std::string_view sBefore, std::int64_t nNumber) {
    char szPiece[24];
    std::memcpy(szPiece, sBefore.data(), sBefore.size());
    const auto end = std::to_chars(szPiece + sBefore.size(), szPiece + sizeof szPiece, nNumber);
    return writer.PutWhole(std::string_view(szPiece, static_cast<std::size_t>(end.ptr - szPiece)));
}

}  // namespace

void FormatIndexList(char* szBuffer, int nSize, const std::int32_t* pnValues, int nCount,
                     int nOffset) {
    BoundedWriter writer(szBuffer, nSize);
    if (pnValues == nullptr) return;
    for (int i = 0; i < nCount;) {
        int nRunEnd = i;
        while (nRunEnd + 1 < nCount &&
               std::int64_t{pnValues[nRunEnd]} + 1 == pnValues[nRunEnd + 1]) {
            ++nRunEnd;
        }
        if (!PutNumber(writer, i == 0 ? "" : ", ", std::int64_t{pnValues[i]} + nOffset)) return;
        if (nRunEnd > i && !PutNumber(writer, "..", std::int64_t{pnValues[nRunEnd]} + nOffset))
            return;
        i = nRunEnd + 1;
    }
}

void FormatList(char* szBuffer, int nSize, const std::int32_t* pnNumbers, int nCount, int nOffset) {
    FormatIndexList(szBuffer, nSize, pnNumbers, nCount, nOffset);
}

void RemoveSpaces(char* szText) {
    if (szText == nullptr) return;
    char* pTo = szText;
    for (const char* p = szText; *p != '\0'; ++p) {
        if (!IsWhiteSpace(*p)) *pTo++ = *p;
    }
    *pTo = '\0';
}

int ParseIndexList(const char* szText, std::int32_t* pnValues, int nMax, int nOffset,
                   const char* const* pszNames, const std::int32_t* pnNameValues, int nNames) {
    if (szText == nullptr) return 0;
    const NameList names = {pszNames, pnNameValues, pszNames != nullptr ? nNames : 0};
    return Parse(szText, pnValues, nMax, nOffset, names, kIndexListRules);
}

int ParseList(const char* szText, std::int32_t* pnNumbers, int nMaxCount, int nOffset,
              const char* const* pszNames, int nNameCount) {
    if (szText == nullptr) return 0;
    const NameList names = {pszNames, nullptr, pszNames != nullptr ? nNameCount : 0};
    const int nCount = Parse(szText, pnNumbers, nMaxCount, nOffset, names, kSelectionListRules);
    if (nCount != 0) return nCount;
    // White space is an error within an item: a text that has some is read again without it.
    const char* p = szText;
    while (*p != '\0' && !IsWhiteSpace(*p)) ++p;
    if (*p == '\0') return 0;
    const std::size_t nSize = std::strlen(szText) + 1;
    const std::unique_ptr<char[]> pCopy(new (std::nothrow) char[nSize]);
    if (pCopy == nullptr) return 0;
    std::memcpy(pCopy.get(), szText, nSize);
    RemoveSpaces(pCopy.get());
    return Parse(pCopy.get(), pnNumbers, nMaxCount, nOffset, names, kSelectionListRules);
}
