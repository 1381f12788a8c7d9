#include "text/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "text/BoundedText.h"
#include "text/DecimalDigits.h"
#include "text/NumberParse.h"

namespace {

constexpr double kPlainLow = 0.001;
constexpr double kPlainHigh = 10000000;
constexpr int kWorkSize = 32;

// The work buffer of one finished number.
class NumberText {
  public:
    // Takes the sign off a number that shows as zero, whatever little there was below.
    void DropSignOfZero() {
        if (!View().starts_with('-')) return;
        const std::string_view sDigits = View().substr(1);
        if (sDigits.find_first_not_of("0.") != std::string_view::npos) return;
        std::copy(sDigits.begin(), sDigits.end(), m_szText);
        --m_nUsed;
    }
    void Put(char ch) {
        if (m_nUsed < kWorkSize - 1) m_szText[m_nUsed++] = ch;
    }
    bool IsFull() const { return m_nUsed == kWorkSize - 1; }
    std::string_view View() const { return {m_szText, static_cast<std::size_t>(m_nUsed)}; }

  private:
    char m_szText[kWorkSize];
    int m_nUsed = 0;
};

// Digits as converted to a fixed count: those behind the last one that differs from zero read as
// zeros.
struct PaddedDigits {
    const DecimalDigits& digits;
    int nTotal;
    char operator[](int i) const { return i < digits.nCount ? digits.szDigits[i] : '0'; }
};

void WriteFixed(NumberText& text, const PaddedDigits& digits, int nPoint, std::uint32_t uDecimals,
                int nMaxDigits) {
    if (digits.digits.bNegative) text.Put('-');
    bool bPoint = false;
    int nWritten = 0;
    std::uint32_t uBehind = 0;  // digits behind the point
    if (nPoint < 1) {
        text.Put('0');
        if (uDecimals != 0) {
            text.Put('.');
            bPoint = true;
        }
        const std::uint32_t uGap = static_cast<std::uint32_t>(-nPoint);
        for (; uBehind < uGap && !text.IsFull(); ++uBehind) text.Put('0');
        if (uBehind < static_cast<std::uint32_t>(nMaxDigits)) {
            for (int i = 0; i < digits.nTotal; ++i, ++uBehind) text.Put(digits[i]);
        }
    } else {
        for (; nWritten < digits.nTotal; ++nWritten) {
            if (nWritten == nPoint) {
                text.Put('.');
                bPoint = true;
            }
            if (nWritten >= nPoint) ++uBehind;
            text.Put(digits[nWritten]);
        }
        for (; nWritten < nPoint && !text.IsFull(); ++nWritten) text.Put('0');
    }
    if (uBehind < uDecimals && !bPoint) text.Put('.');
    for (; uBehind < uDecimals && !text.IsFull(); ++uBehind) text.Put('0');
}

void WriteExponent(NumberText& text, const DecimalDigits& digits) {
    if (digits.bNegative) text.Put('-');
    text.Put(digits.nCount > 0 ? digits.szDigits[0] : '0');
    if (digits.nCount > 1) {
        text.Put('.');
        for (int i = 1; i < digits.nCount; ++i) text.Put(digits.szDigits[i]);
    }
    text.Put('e');
    char szExponent[12];
    const auto result =
        std::to_chars(szExponent, szExponent + sizeof szExponent, digits.nPoint - 1);
    for (const char* p = szExponent; p != result.ptr; ++p) text.Put(*p);
}

void FormatGeneral(NumberText& text, double dValue, bool bPlainRange, std::uint32_t uSigDigits,
                   int nMaxDigits) {
    const DecimalDigits digits =
        ToDecimalDigits(dValue, uSigDigits < 20 ? static_cast<int>(uSigDigits) : 20);
    if (!bPlainRange) {
        WriteExponent(text, digits);
        return;
    }
    // No trailing zero is shown: zeros in front of the point are filled in again by WriteFixed.
    const int nDecimals = std::max(digits.nCount - digits.nPoint, 0);
    WriteFixed(text, {digits, digits.nCount}, digits.nPoint, static_cast<std::uint32_t>(nDecimals),
               nMaxDigits);
}

// The digits in front of the point, counted by the integer part of log10. The logarithm of a value
// just below a power of ten rounds up to that power from some neighbours on; the table holds the
// first double whose logarithm does, so that no build depends on the last bit of its mathematics
// library.
int CountIntegerDigits(double dMagnitude) {
    constexpr double kFirst[] = {1.0,
                                 10.0,
                                 0x1.8ffffffffffffp+6,
                                 0x1.f3ffffffffffcp+9,
                                 0x1.387fffffffffep+13,
                                 0x1.869fffffffff9p+16,
                                 0x1.e847ffffffff8p+19,
                                 0x1.312cffffffffbp+23};
    int nDigits = 0;
    for (const double dFirst : kFirst) {
        if (dMagnitude < dFirst) break;
        ++nDigits;
    }
    return nDigits;
}

void FormatFixed(NumberText& text, double dValue, std::uint32_t uDecimals, int nMaxDigits) {
    const int nInt = CountIntegerDigits(std::fabs(dValue));
    std::int64_t nFrac = uDecimals;
    if (nInt == 0) nFrac += ToDecimalDigits(dValue, nMaxDigits).nPoint;
    std::int64_t nTotal = nFrac + nInt;
    if (nTotal > nMaxDigits + 1) nTotal = nMaxDigits;
    // What begins behind the last decimal shows as zero.
    const DecimalDigits digits =
        nFrac < 0 ? DecimalDigits{} : ToDecimalDigits(dValue, static_cast<int>(nTotal));
    // A value that begins just behind the last decimal may round up to one digit.
    const int nDigits = std::max(static_cast<int>(nTotal), digits.nCount);
    WriteFixed(text, {digits, nDigits}, digits.nPoint, uDecimals, nMaxDigits);
}

std::int32_t Format(double dValue, char* szBuffer, int nSize, std::int32_t eFormat,
                    std::uint32_t uDecimals, std::uint32_t uSigDigits, int nMaxDigits,
                    std::int32_t* pnError) {
    bool bReplaced = false;
    if (eFormat == kFormatFixed) {
        uSigDigits = static_cast<std::uint32_t>(nMaxDigits);
    } else if (eFormat == kFormatSignificant &&
               (uSigDigits == 0 || uSigDigits > static_cast<std::uint32_t>(nMaxDigits))) {
        uSigDigits = static_cast<std::uint32_t>(nMaxDigits);
        bReplaced = true;
    }
    const double dMagnitude = std::fabs(dValue);
    NumberText text;
    // A NaN has no decimals that could be fixed.
    if (dMagnitude > kPlainHigh || eFormat == kFormatSignificant || std::isnan(dValue)) {
        const bool bPlainRange =
            (dMagnitude >= kPlainLow && dMagnitude <= kPlainHigh) || dValue == 0;
        FormatGeneral(text, dValue, bPlainRange, uSigDigits, nMaxDigits);
    } else {
        FormatFixed(text, dValue, uDecimals, nMaxDigits);
    }
    text.DropSignOfZero();
    std::int32_t nCode =
        CopyText(szBuffer, nSize, text.View()) == 0 ? kNumberEmptyResult : kNumberOk;
    if (nCode == kNumberOk && bReplaced) nCode = kNumberDigitsReplaced;
    if (pnError != nullptr) *pnError = nCode;
    return nCode;
}

std::int32_t Limit(double* pdValue, double dLimit) {
    if (!(std::fabs(*pdValue) > dLimit)) return kNumberOk;
    *pdValue = std::copysign(dLimit, *pdValue);
    return kNumberLimited;
}

// The two types differ in their limit and their digits.
template <typename Value>
std::int32_t ParseNormal(char* szText, int nSize, Value* pValue, double dLimit, int nMaxDigits,
                         std::int32_t eFormat, std::uint32_t uDecimals, std::uint32_t uSigDigits,
                         std::int32_t* pnError) {
    double dValue{};
    std::int32_t nCode = ParseDouble(szText, &dValue);
    const bool bNumber = nCode == kNumberOk;
    if (bNumber) {
        nCode = Limit(&dValue, dLimit);
        const std::int32_t nFormatCode = Format(static_cast<Value>(dValue), szText, nSize, eFormat,
                                                uDecimals, uSigDigits, nMaxDigits, nullptr);
        ParseDouble(szText, &dValue);
        *pValue = static_cast<Value>(dValue);
        if (nCode == kNumberOk) nCode = nFormatCode;
    }
    if (pnError != nullptr) *pnError = nCode;
    return bNumber ? 1 : 0;
}

}  // namespace

std::int32_t FormatDouble(double dValue, char* szBuffer, int nSize, std::int32_t eFormat,
                          std::uint32_t uDecimals, std::uint32_t uSigDigits,
                          std::int32_t* pnError) {
    return Format(dValue, szBuffer, nSize, eFormat, uDecimals, uSigDigits, kDoubleDigits, pnError);
}

std::int32_t FormatFloat(float fValue, char* szBuffer, int nSize, std::int32_t eFormat,
                         std::uint32_t uDecimals, std::uint32_t uSigDigits, std::int32_t* pnError) {
    return Format(fValue, szBuffer, nSize, eFormat, uDecimals, uSigDigits, kFloatDigits, pnError);
}

std::int32_t LimitDouble(double* pdValue) {
    return Limit(pdValue, kDoubleLimit);
}

std::int32_t LimitFloat(double* pdValue) {
    return Limit(pdValue, kFloatLimit);
}

std::int32_t ParseDoubleNormal(char* szText, int nSize, double* pdValue, std::int32_t eFormat,
                               std::uint32_t uDecimals, std::uint32_t uSigDigits,
                               std::int32_t* pnError) {
    return ParseNormal(szText, nSize, pdValue, kDoubleLimit, kDoubleDigits, eFormat, uDecimals,
                       uSigDigits, pnError);
}

std::int32_t ParseFloatNormal(char* szText, int nSize, float* pfValue, std::int32_t eFormat,
                              std::uint32_t uDecimals, std::uint32_t uSigDigits,
                              std::int32_t* pnError) {
    return ParseNormal(szText, nSize, pfValue, kFloatLimit, kFloatDigits, eFormat, uDecimals,
                       uSigDigits, pnError);
}
