#include "framework/NumberItem.h"

#include <charconv>

#include "text/NumberFormat.h"

NumberItem::NumberItem(double dValue, int nDecimals, UINT nSigDigits) {
    const bool bSignificant = nDecimals == -1;
    const std::int32_t eFormat = bSignificant ? kFormatSignificant : kFormatFixed;
    const std::uint32_t uDecimals = bSignificant ? 0 : static_cast<std::uint32_t>(nDecimals);
    std::int32_t nError = kNumberOk;
    FormatDouble(dValue, szText, sizeof szText, eFormat, uDecimals, nSigDigits, &nError);
    ParseDoubleNormal(szText, sizeof szText, &dValue, eFormat, uDecimals, nSigDigits, &nError);
}

NumberItem::NumberItem(int nValue) {
    *std::to_chars(szText, szText + sizeof szText - 1, nValue).ptr = '\0';
}
