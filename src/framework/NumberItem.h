// The text of a number as an item of a combo box or a list: the number in its display form, as a
// validated field would show it.
#pragma once

#include "platform/platform.h"

struct NumberItem {
    // nDecimals of -1 selects nSigDigits significant digits, any other that many fixed decimals.
    NumberItem(double dValue, int nDecimals, UINT nSigDigits);
    explicit NumberItem(int nValue);  // plain decimal

    char szText[64] = {};
};
