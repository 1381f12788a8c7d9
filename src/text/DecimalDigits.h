// Decimal digits of a double, the ground under every number that the library shows.
//
// The digits are those of the exact binary value, rounded to the count asked for; an exact decimal
// tie is rounded away from zero (87646.25 at six digits is 876463). They are the same in every
// build and depend neither on the C runtime nor on the locale.
#pragma once

struct DecimalDigits {
    char szDigits[20];  // no point; not padded: a digit behind the last one is a zero
    int nCount;         // digits in szDigits, trailing zeros left out; 0 for the value 0
    int nPoint;      // position of the point relative to the first digit: 12.5 has 2, 0.05 has -1
    bool bNegative;  // the sign bit, which the value -0.0 has as well
};

// Rounds to `nDigits` significant digits, 0 to 17 (a value outside is pulled in). Zero digits
// round to the place before the first digit: a leading digit of 5 or more gives the one digit 1
// there, a smaller one gives no digits. Infinity gives the characters "1#INF" and NaN "1#QNAN"
// whatever the count, with the point behind the first.
DecimalDigits ToDecimalDigits(double dValue, int nDigits);
