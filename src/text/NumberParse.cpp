#include "text/NumberParse.h"

#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>

#include "text/NumberFormat.h"

namespace {

constexpr int kMostCharacters = 100;

bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

bool IsWhiteSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

const char* SkipWhiteSpace(const char* p) {
    while (IsWhiteSpace(*p)) ++p;
    return p;
}

// What a number beyond the range of a double becomes: 0 when its first digit that isn't zero stands
// far behind the point, infinity when it stands far in front of it.
double OutOfRange(const char* p, const char* pEnd) {
    std::int64_t nPoint = 0;  // position of the point relative to the first digit that isn't zero
    bool bPoint = false;
    bool bDigit = false;
    for (; p != pEnd && (IsDigit(*p) || *p == '.'); ++p) {
        if (*p == '.') {
            bPoint = true;
        } else {
            bDigit = bDigit || *p != '0';
            if (bDigit && !bPoint) ++nPoint;
            if (!bDigit && bPoint) --nPoint;
        }
    }
    if (p != pEnd) {
        ++p;
        const bool bMinus = p != pEnd && *p == '-';
        if (p != pEnd && (*p == '-' || *p == '+')) ++p;
        std::int64_t nExponent = 0;
        for (; p != pEnd; ++p) {
            if (nExponent < 100000000) nExponent = nExponent * 10 + (*p - '0');
        }
        nPoint += bMinus ? -nExponent : nExponent;
    }
    return nPoint > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// Of a text that ends with a zero.
double FromChars(const char* p, const char* pEnd) {
    const bool bNegative = p != pEnd && *p == '-';
    if (p != pEnd && (*p == '-' || *p == '+')) ++p;
    // The library function would take a second minus sign.
    if (p == pEnd || *p == '-') return 0;
    double dValue{};
    // Without digits behind it "0x" is a zero with an "x" behind it.
    if (p[0] == '0' && (p[1] | 0x20) == 'x' && p[2] != '-') {
        const std::errc eHex = std::from_chars(p + 2, pEnd, dValue, std::chars_format::hex).ec;
        if (eHex == std::errc::result_out_of_range) return 0;
        if (eHex == std::errc()) return bNegative ? -dValue : dValue;
    }
    const auto result = std::from_chars(p, pEnd, dValue);
    if (result.ec == std::errc::invalid_argument) return 0;
    if (result.ec == std::errc::result_out_of_range) dValue = OutOfRange(p, result.ptr);
    return bNegative ? -dValue : dValue;
}

// The digits of an unsigned number in a base, at most `uMost`; beyond that *pbBeyond is set.
std::uint64_t ReadDigits(const char** pp, unsigned uBase, std::uint64_t uMost, bool* pbBeyond) {
    std::uint64_t uValue = 0;
    for (;; ++*pp) {
        const char ch = **pp;
        unsigned uDigit;
        if (IsDigit(ch)) {
            uDigit = static_cast<unsigned>(ch - '0');
        } else if ((ch | 0x20) >= 'a') {
            uDigit = static_cast<unsigned>((ch | 0x20) - 'a' + 10);
        } else {
            break;
        }
        if (uDigit >= uBase) break;
        if (*pbBeyond || uValue > (uMost - uDigit) / uBase) {
            *pbBeyond = true;
            uValue = uMost;
        } else {
            uValue = uValue * uBase + uDigit;
        }
    }
    return uValue;
}

std::uint64_t TextToUnsigned(const char* szText, std::uint64_t uMost) {
    if (szText == nullptr) return 0;
    const char* p = SkipWhiteSpace(szText);
    const bool bMinus = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    unsigned uBase = 10;
    if (*p == '0') {
        uBase = 8;
        if ((p[1] | 0x20) == 'x') {
            uBase = 16;
            p += 2;
        }
    }
    bool bBeyond = false;
    const std::uint64_t uValue = ReadDigits(&p, uBase, uMost, &bBeyond);
    if (bBeyond) return uMost;
    return bMinus ? (~uValue + 1) & uMost : uValue;
}

}  // namespace

double TextToDouble(const char* szText) {
    if (szText == nullptr) return 0;
    const char* p = SkipWhiteSpace(szText);
    return FromChars(p, p + std::strlen(p));
}

std::int32_t TextToInt(const char* szText, const char** ppEnd) {
    if (szText == nullptr) {
        if (ppEnd != nullptr) *ppEnd = nullptr;
        return 0;
    }
    const char* p = SkipWhiteSpace(szText);
    const bool bMinus = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    const char* pFirst = p;
    bool bBeyond = false;
    const std::uint64_t uMost = bMinus ? 2147483648u : 2147483647u;
    const std::int64_t nValue = static_cast<std::int64_t>(ReadDigits(&p, 10, uMost, &bBeyond));
    if (ppEnd != nullptr) *ppEnd = p != pFirst ? p : szText;
    return static_cast<std::int32_t>(bMinus ? -nValue : nValue);
}

std::int32_t TextToInt(const char* szText) {
    return TextToInt(szText, nullptr);
}

std::uint32_t TextToUInt32(const char* szText) {
    return static_cast<std::uint32_t>(TextToUnsigned(szText, 0xFFFFFFFFu));
}

std::uint64_t TextToUInt64(const char* szText) {
    return TextToUnsigned(szText, ~std::uint64_t{0});
}

int WriteGeneral(double dValue, char* szBuffer) {
    const auto result =
        std::to_chars(szBuffer, szBuffer + 23, dValue, std::chars_format::general, 6);
    *result.ptr = '\0';
    return static_cast<int>(result.ptr - szBuffer);
}

std::int32_t ParseDouble(const char* szText, double* pdValue) {
    if (szText == nullptr || *szText == '\0') return kNumberBadText;
    const char* p = szText;
    // Most texts are small whole numbers, which need no more than this.
    std::uint32_t uNumber = 0;
    for (; IsDigit(*p) && p - szText < 9; ++p) {
        uNumber = uNumber * 10 + static_cast<unsigned>(*p - '0');
    }
    if (*p == '\0') {
        *pdValue = uNumber;
        return kNumberOk;
    }
    for (; *p != '\0'; ++p) {
        const char ch = *p;
        if (!IsDigit(ch) && ch != '.' && ch != '+' && ch != '-' && ch != 'e' && ch != 'E') {
            return kNumberBadText;
        }
    }
    if (p - szText > kMostCharacters) return kNumberTooLong;
    *pdValue = FromChars(szText, p);
    return kNumberOk;
}
