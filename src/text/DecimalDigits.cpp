#include "text/DecimalDigits.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

// Whether nValue * 10^nExponent, of an odd nValue, is a double without rounding. Such a number,
// next to a double that is written with it, is that double.
bool IsExactDouble(std::uint64_t nValue, int nExponent) {
    constexpr std::uint64_t kMantissaEnd = std::uint64_t{1} << 53;
    for (; nExponent < 0; ++nExponent) {
        if (nValue % 5 != 0) return false;
        nValue /= 5;
    }
    for (; nExponent > 0; --nExponent) {
        if (nValue >= kMantissaEnd) return false;
        nValue *= 5;
    }
    return nValue < kMantissaEnd;
}

// Of digits whose first is no zero.
void StripZeros(DecimalDigits& digits) {
    while (digits.szDigits[digits.nCount - 1] == '0') --digits.nCount;
    digits.szDigits[digits.nCount] = '\0';
}

// Adds one unit in the last of nDigits places.
void RoundUp(DecimalDigits& digits, int nDigits) {
    int i = nDigits - 1;
    while (i >= 0 && digits.szDigits[i] == '9') digits.szDigits[i--] = '0';
    if (i >= 0) {
        ++digits.szDigits[i];
    } else {
        digits.szDigits[0] = '1';
        ++digits.nPoint;
    }
}

// Reads "d.ddde+XX" into digits and point.
void ReadScientific(const char* pText, const char* pEnd, DecimalDigits& digits) {
    digits.nCount = 0;
    while (pText != pEnd && *pText != 'e') {
        if (*pText != '.') digits.szDigits[digits.nCount++] = *pText;
        ++pText;
    }
    ++pText;
    const bool bMinus = *pText == '-';
    int nExponent{};
    std::from_chars(pText + 1, pEnd, nExponent);
    digits.nPoint = (bMinus ? -nExponent : nExponent) + 1;
}

// Rounds the decimal in `digits`, which is the shortest one or the first 17 digits, with no zeros
// at its end, to nDigits places.
void RoundTo(DecimalDigits& digits, int nDigits, double dMagnitude) {
    const char chNext = digits.szDigits[nDigits];
    if (digits.nCount > nDigits + 1 || chNext != '5') {
        const bool bUp = chNext >= '5';
        digits.nCount = nDigits;
        if (bUp) RoundUp(digits, nDigits);
        return;
    }
    // The text reads as a tie. Only if the double is that very decimal it is one; otherwise the
    // double lies a trace above or below, and the library function sees on which side.
    std::uint64_t nValue = 0;
    for (int i = 0; i <= nDigits; ++i) {
        nValue = nValue * 10 + static_cast<std::uint64_t>(digits.szDigits[i] - '0');
    }
    if (IsExactDouble(nValue, digits.nPoint - nDigits - 1)) {
        digits.nCount = nDigits;
        RoundUp(digits, nDigits);
        return;
    }
    char szText[40];
    const auto result = std::to_chars(szText, szText + sizeof szText, dMagnitude,
                                      std::chars_format::scientific, nDigits - 1);
    ReadScientific(szText, result.ptr, digits);
}

}  // namespace

DecimalDigits ToDecimalDigits(double dValue, int nDigits) {
    DecimalDigits digits;
    digits.bNegative = std::signbit(dValue);
    digits.nCount = 0;
    digits.nPoint = 0;
    digits.szDigits[0] = '\0';
    if (dValue == 0) return digits;
    if (!std::isfinite(dValue)) {
        const bool bNan = std::isnan(dValue);
        // The sign of a NaN differs from machine to machine and tells nothing.
        if (bNan) digits.bNegative = false;
        std::strcpy(digits.szDigits, bNan ? "1#QNAN" : "1#INF");
        digits.nCount = static_cast<int>(std::strlen(digits.szDigits));
        digits.nPoint = 1;
        return digits;
    }
    const double dMagnitude = std::fabs(dValue);
    // Up to 15 digits the shortest decimal decides alone. The 16th digit, and the smallest numbers
    // with their few bits, need the exact digits.
    const bool bShort = nDigits <= 15 && dMagnitude > 1e-300;
    char szText[40];
    const auto result = bShort ? std::to_chars(szText, szText + sizeof szText, dMagnitude,
                                               std::chars_format::scientific)
                               : std::to_chars(szText, szText + sizeof szText, dMagnitude,
                                               std::chars_format::scientific, 16);
    ReadScientific(szText, result.ptr, digits);
    StripZeros(digits);
    if (nDigits <= 0) {
        const bool bUp = digits.szDigits[0] >= '5';
        if (bUp) ++digits.nPoint;
        digits.nCount = bUp ? 1 : 0;
        std::strcpy(digits.szDigits, bUp ? "1" : "");
        return digits;
    }
    if (digits.nCount > nDigits) RoundTo(digits, nDigits, dMagnitude);
    StripZeros(digits);
    return digits;
}
