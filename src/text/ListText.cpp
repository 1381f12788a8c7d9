#include "text/ListText.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <string>
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

bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

bool IsWhiteSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

// The numbers read so far.
struct ListResult {
    std::int32_t* pnValues;
    int nMax;
    std::int64_t nCount = 0;

    void AddRange(std::int64_t nFirst, std::int64_t nLast) {
        const bool bUp = nFirst <= nLast;
        const std::int64_t nSteps = (bUp ? nLast - nFirst : nFirst - nLast) + 1;
        // Unsigned, for the step behind the highest number.
        auto uValue = static_cast<std::uint32_t>(nFirst);
        for (std::int64_t i = nCount; i < nMax && i < nCount + nSteps; ++i) {
            pnValues[i] = static_cast<std::int32_t>(uValue);
            uValue += bUp ? 1u : ~0u;
        }
        nCount += nSteps;
    }
};

// Where the bound that begins at `p` ends, were it a name: at "..", or with its item.
const char* FindEnd(const char* p, const ListRules& rules) {
    const char* pEnd = p;
    while (*pEnd != ',' && *pEnd != '\0') {
        if (pEnd[0] == '.' && pEnd[1] == '.') return pEnd;
        ++pEnd;
    }
    if (rules.bTrimItems) {
        while (pEnd != p && IsListBlank(pEnd[-1])) --pEnd;
    }
    return pEnd;
}

// Reads a name; returns its end, or null when there is none.
const char* ReadName(const char* p, const NameList& names, const ListRules& rules,
                     std::int64_t* pnBound) {
    const char* pEnd = FindEnd(p, rules);
    const std::string_view sText(p, static_cast<std::size_t>(pEnd - p));
    for (int i = 0; i < names.nCount && !sText.empty(); ++i) {
        if (names.pszNames[i] == nullptr || !EqualNoCase(sText, names.pszNames[i])) continue;
        *pnBound = names.pnValues != nullptr ? names.pnValues[i] : i;
        return pEnd;
    }
    return nullptr;
}

// Reads a decimal number of 32 bits; returns its end, or null when there is none.
const char* ReadNumber(const char* p, int nOffset, std::int64_t* pnBound) {
    constexpr std::uint32_t kBeforeLastDigit = kHigh / 10;
    const bool bMinus = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    if (!IsDigit(*p)) return nullptr;
    std::uint32_t uNumber = 0;
    for (; IsDigit(*p); ++p) {
        if (uNumber > kBeforeLastDigit) return nullptr;
        uNumber = uNumber * 10 + static_cast<unsigned>(*p - '0');
    }
    const std::int64_t nNumber = bMinus ? -std::int64_t{uNumber} : std::int64_t{uNumber};
    *pnBound = nNumber - nOffset;
    return nNumber >= kLow && nNumber <= kHigh && *pnBound >= kLow && *pnBound <= kHigh ? p
                                                                                        : nullptr;
}

// Reads one bound. A name may look like a number, and goes before it.
const char* ReadBound(const char* p, int nOffset, const NameList& names, const ListRules& rules,
                      std::int64_t* pnBound) {
    if (names.nCount > 0) {
        if (const char* pEnd = ReadName(p, names, rules, pnBound)) return pEnd;
    }
    return ReadNumber(p, nOffset, pnBound);
}

int Parse(const char* szText, std::int32_t* pnValues, int nMax, int nOffset, const NameList& names,
          const ListRules& rules) {
    ListResult result = {pnValues, pnValues != nullptr && nMax > 0 ? nMax : 0};
    for (const char* p = szText;; ++p) {
        if (rules.bTrimItems) {
            while (IsListBlank(*p)) ++p;
        }
        std::int64_t nFirst{};
        p = ReadBound(p, nOffset, names, rules, &nFirst);
        if (p == nullptr) return 0;
        std::int64_t nLast = nFirst;
        if (p[0] == '.' && p[1] == '.') {
            p = ReadBound(p + 2, nOffset, names, rules, &nLast);
            if (p == nullptr) return 0;
        }
        if (rules.bTrimItems) {
            while (IsListBlank(*p)) ++p;
        }
        if (*p != ',' && *p != '\0') return 0;
        result.AddRange(nFirst, nLast);
        if (*p == '\0') break;
    }
    return static_cast<int>(
        std::min(result.nCount, rules.bCountPastLimit ? kHigh : std::int64_t{result.nMax}));
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
    // White space is an error within an item: what can't be read is read again without it.
    std::string sCopy(szText);
    RemoveSpaces(sCopy.data());
    return Parse(sCopy.c_str(), pnNumbers, nMaxCount, nOffset, names, kSelectionListRules);
}
