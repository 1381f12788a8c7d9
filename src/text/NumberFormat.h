// Numbers as the dialogs show them. Validators parse what they display, so these functions also
// decide which value a field holds.
//
// A format is either fixed decimals or significant digits. Magnitudes above 10000000 show in
// exponent form in either format; in fixed format small values show as zeros. Sizes of buffers are
// in bytes with the final zero; text is cut at the buffer's end. Nothing here looks at the locale,
// and every build gives the same text for the same value.
#pragma once

#include <cstdint>

enum NumberFormatKind : std::int32_t {
    kFormatFixed = 0,        // uDecimals digits behind the point
    kFormatSignificant = 1,  // uSigDigits significant digits
};

// Results of parsing and formatting.
enum NumberCode : std::int32_t {
    kNumberOk = 0,
    kNumberLimited = 1,      // the magnitude was limited
    kNumberTooLong = 2,      // the text has 101 characters or more
    kNumberBadText = 3,      // the text is empty or holds a character that a number can't contain
    kNumberEmptyResult = 4,  // the formatted text came out empty
    kNumberDigitsReplaced = 5,  // the digits requested were out of range and were replaced
};

constexpr int kDoubleDigits = 15;  // the precision limits of the two types
constexpr int kFloatDigits = 6;

constexpr double kDoubleLimit = 1e300;
constexpr double kFloatLimit = 1e30;

// Writes `dValue` into `szBuffer`. `eFormat` is a NumberFormatKind; in significant format a digit
// count of 0 or above 15 is replaced by 15 with kNumberDigitsReplaced. Returns the code and stores
// it through `pnError` unless that is null.
std::int32_t FormatDouble(double dValue, char* szBuffer, int nSize, std::int32_t eFormat,
                          std::uint32_t uDecimals, std::uint32_t uSigDigits, std::int32_t* pnError);

// The same with 6 digits in the place of 15.
std::int32_t FormatFloat(float fValue, char* szBuffer, int nSize, std::int32_t eFormat,
                         std::uint32_t uDecimals, std::uint32_t uSigDigits, std::int32_t* pnError);

// Reads a whole text of digits and ".+-eE" (blanks are not among them), at most 100 characters; of
// that the longest start that is a number counts ("1.2.3" is 1.2, "e5" is 0). A number too large
// gives infinity. Returns the code; `*pdValue` changes only with kNumberOk.
std::int32_t ParseDouble(const char* szText, double* pdValue);

// Pull a magnitude above the limit of the type back to it, with its sign; return kNumberLimited
// then, else kNumberOk. A NaN stays.
std::int32_t LimitDouble(double* pdValue);
std::int32_t LimitFloat(double* pdValue);

// Parses `szText`, limits the value, writes the text anew in the given format and parses that, so
// that value and text agree. Returns 1, or 0 when the text is no number: then text and value stay
// as they were. The limiter's code goes before the formatter's.
std::int32_t ParseDoubleNormal(char* szText, int nSize, double* pdValue, std::int32_t eFormat,
                               std::uint32_t uDecimals, std::uint32_t uSigDigits,
                               std::int32_t* pnError);
std::int32_t ParseFloatNormal(char* szText, int nSize, float* pfValue, std::int32_t eFormat,
                              std::uint32_t uDecimals, std::uint32_t uSigDigits,
                              std::int32_t* pnError);
