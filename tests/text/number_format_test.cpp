#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <string>

#include "text/NumberFormat.h"

namespace {

std::string Fixed(double dValue, unsigned uDecimals) {
    char szText[64];
    FormatDouble(dValue, szText, sizeof szText, kFormatFixed, uDecimals, 0, nullptr);
    return szText;
}

std::string Significant(double dValue, unsigned uDigits) {
    char szText[64];
    FormatDouble(dValue, szText, sizeof szText, kFormatSignificant, 0, uDigits, nullptr);
    return szText;
}

std::string FloatFixed(float fValue, unsigned uDecimals) {
    char szText[64];
    FormatFloat(fValue, szText, sizeof szText, kFormatFixed, uDecimals, 0, nullptr);
    return szText;
}

std::string FloatSignificant(float fValue, unsigned uDigits) {
    char szText[64];
    FormatFloat(fValue, szText, sizeof szText, kFormatSignificant, 0, uDigits, nullptr);
    return szText;
}

TEST(FormatDouble, ZeroKeepsItsDecimalsInFixedFormOnly) {
    EXPECT_EQ(Fixed(0, 2), "0.00");
    EXPECT_EQ(Fixed(0, 0), "0");
    EXPECT_EQ(Significant(0, 6), "0");
}

TEST(FormatDouble, SmallValuesShowAsZerosInFixedForm) {
    EXPECT_EQ(Fixed(0.0004, 2), "0.00");
    EXPECT_EQ(Fixed(-0.0004, 2), "0.00");
    EXPECT_EQ(Fixed(0.0004, 4), "0.0004");
}

TEST(FormatDouble, ValuesAboveTenMillionShowInExponentForm) {
    EXPECT_EQ(Fixed(12345678, 0), "1.2345678e7");
    EXPECT_EQ(Fixed(10000000, 0), "10000000");
    EXPECT_EQ(Fixed(10000000.5, 0), "1.00000005e7");
    EXPECT_EQ(Fixed(-12345678, 2), "-1.2345678e7");
}

TEST(FormatDouble, SignificantDigitsRoundTheValue) {
    EXPECT_EQ(Significant(1234.5678, 6), "1234.57");
    EXPECT_EQ(Significant(0.00012345, 3), "1.23e-4");
    EXPECT_EQ(Significant(1234.5678, 2), "1200");
}

TEST(FormatDouble, ExponentFormHasNoPlusAndNoPadding) {
    EXPECT_EQ(Significant(1.5e-5, 15), "1.5e-5");
    EXPECT_EQ(Significant(2.5e8, 15), "2.5e8");
    EXPECT_EQ(Significant(1e300, 15), "1e300");
    EXPECT_EQ(Significant(-1e-300, 15), "-1e-300");
}

TEST(FormatDouble, PlainRangeHasNoTrailingZeros) {
    EXPECT_EQ(Significant(0.001, 15), "0.001");
    EXPECT_EQ(Significant(0.05, 15), "0.05");
    EXPECT_EQ(Significant(0.5, 15), "0.5");
    EXPECT_EQ(Significant(100, 15), "100");
    EXPECT_EQ(Significant(10000000, 2), "10000000");
    EXPECT_EQ(Significant(0.00099999, 15), "9.9999e-4");
}

TEST(FormatDouble, DigitsStopAtFifteenAndZerosFollow) {
    EXPECT_EQ(Fixed(1.5, 20), "1.50000000000000000000");
    EXPECT_EQ(Fixed(1.0 / 3, 20), "0.33333333333333300000");
    EXPECT_EQ(Fixed(123.456, 15), "123.456000000000000");
}

TEST(FormatDouble, OneDigitMoreThanTheTypeHoldsIsStillShown) {
    // 3 digits before the point and 13 behind it are 16, the most that is converted.
    EXPECT_EQ(Fixed(123.456, 13), "123.4560000000000");
}

TEST(FormatDouble, ExactTiesRoundAwayFromZero) {
    EXPECT_EQ(Significant(87646.25, 6), "87646.3");
    EXPECT_EQ(Significant(-87646.25, 6), "-87646.3");
    EXPECT_EQ(Fixed(0.125, 2), "0.13");
    EXPECT_EQ(Fixed(2.5, 0), "3");
    EXPECT_EQ(Fixed(1.005, 2), "1.00");  // lies below the tie that it looks like
    EXPECT_EQ(Fixed(1.015, 2), "1.01");  // 1.01499999...
    EXPECT_EQ(Fixed(1.025, 2), "1.02");  // 1.02499999...
}

TEST(FormatDouble, RoundsAFirstDigitJustBehindTheLastDecimal) {
    EXPECT_EQ(Fixed(0.6, 0), "1");
    EXPECT_EQ(Fixed(0.4, 0), "0");
    EXPECT_EQ(Fixed(0.06, 1), "0.1");
    EXPECT_EQ(Fixed(0.04, 1), "0.0");
    EXPECT_EQ(Fixed(0.006, 2), "0.01");
    EXPECT_EQ(Fixed(-0.006, 2), "-0.01");
    EXPECT_EQ(Fixed(0.96, 1), "1.0");
}

TEST(FormatDouble, ZeroHasNoSign) {
    EXPECT_EQ(Fixed(-0.04, 1), "0.0");
    EXPECT_EQ(Fixed(-0.04, 2), "-0.04");
    EXPECT_EQ(Fixed(-0.0, 0), "0");
    EXPECT_EQ(Fixed(-0.0, 3), "0.000");
    EXPECT_EQ(Fixed(-0.4, 0), "0");
    EXPECT_EQ(Significant(-0.0, 6), "0");
    EXPECT_EQ(Significant(-1e-300, 6), "-1e-300");
}

TEST(FormatDouble, WorkBufferHoldsThirtyOneCharacters) {
    EXPECT_EQ(Fixed(1.5, 4000000000u), "1.50000000000000000000000000000");
    EXPECT_EQ(Fixed(1.5, 4000000000u).size(), 31u);
}

TEST(FormatDouble, DigitsOutOfRangeAreReplacedAndToldOf) {
    char szText[64];
    std::int32_t nCode = -1;
    EXPECT_EQ(FormatDouble(1.0 / 3, szText, 64, kFormatSignificant, 0, 0, &nCode), 5);
    EXPECT_EQ(nCode, 5);
    EXPECT_STREQ(szText, "0.333333333333333");
    FormatDouble(1.0 / 3, szText, 64, kFormatSignificant, 0, 16, &nCode);
    EXPECT_EQ(nCode, 5);
    FormatDouble(1.0 / 3, szText, 64, kFormatSignificant, 0, 15, &nCode);
    EXPECT_EQ(nCode, 0);
    FormatDouble(1.0 / 3, szText, 64, kFormatFixed, 2, 99, &nCode);
    EXPECT_EQ(nCode, 0);
}

TEST(FormatDouble, OtherFormatsLeaveTheDigitsAlone) {
    char szText[64];
    std::int32_t nCode = -1;
    FormatDouble(123456789.0, szText, 64, 2, 0, 3, &nCode);
    EXPECT_STREQ(szText, "1.23e8");
    EXPECT_EQ(nCode, 0);
    FormatDouble(12.345, szText, 64, 2, 1, 3, &nCode);
    EXPECT_STREQ(szText, "12.3");
    FormatDouble(123456789.0, szText, 64, 2, 0, 0, &nCode);
    EXPECT_STREQ(szText, "0e8");  // no digits asked for
}

TEST(FormatDouble, ResultIsCutToTheBuffer) {
    char szText[8] = "xxxxxxx";
    std::int32_t nCode = -1;
    FormatDouble(1234.5678, szText, 5, kFormatSignificant, 0, 15, &nCode);
    EXPECT_STREQ(szText, "1234");
    EXPECT_EQ(nCode, 0);
    EXPECT_EQ(szText[5], 'x');
}

TEST(FormatDouble, EmptyResultIsToldOf) {
    char szText[4] = "abc";
    std::int32_t nCode = -1;
    FormatDouble(1, szText, 1, kFormatFixed, 0, 0, &nCode);
    EXPECT_EQ(nCode, 4);
    EXPECT_STREQ(szText, "");
    FormatDouble(1, nullptr, 10, kFormatFixed, 0, 0, &nCode);
    EXPECT_EQ(nCode, 4);
    // The empty result goes before the replaced digits.
    FormatDouble(1, szText, 0, kFormatSignificant, 0, 99, &nCode);
    EXPECT_EQ(nCode, 4);
}

TEST(FormatDouble, ValuesBeyondNumbersGiveTextAndNoCrash) {
    EXPECT_EQ(Fixed(std::numeric_limits<double>::infinity(), 2), "1.#INFe0");
    EXPECT_EQ(Fixed(-std::numeric_limits<double>::infinity(), 2), "-1.#INFe0");
    EXPECT_EQ(Fixed(std::numeric_limits<double>::quiet_NaN(), 2), "1.#QNANe0");
    EXPECT_EQ(Significant(-std::numeric_limits<double>::quiet_NaN(), 3), "1.#QNANe0");
    EXPECT_EQ(Significant(DBL_MAX, 15), "1.79769313486232e308");
    EXPECT_EQ(Significant(DBL_TRUE_MIN, 15), "4.94065645841247e-324");
}

TEST(FormatDouble, IntegerDigitsFollowTheLogarithm) {
    EXPECT_EQ(Fixed(1, 3), "1.000");
    EXPECT_EQ(Fixed(10, 3), "10.000");
    EXPECT_EQ(Fixed(9.9999, 3), "10.000");
    EXPECT_EQ(Fixed(999.5, 0), "1000");
}

TEST(FormatFloat, SixDigitsStandInThePlaceOfFifteen) {
    EXPECT_EQ(FloatSignificant(0.1f, 6), "0.1");
    EXPECT_EQ(FloatSignificant(1234.5678f, 0), "1234.57");
    EXPECT_EQ(FloatSignificant(1e30f, 6), "1e30");
    EXPECT_EQ(FloatFixed(1.0f / 3, 10), "0.3333330000");
    EXPECT_EQ(FloatFixed(12345678.0f, 2), "1.23457e7");
    EXPECT_EQ(FloatFixed(0.15f, 1), "0.2");  // 0.150000006
}

TEST(FormatFloat, TenMillionIsRoundedToSevenIntegerDigits) {
    // Eight digits are more than the type's six and one, so the value is rounded to tens first.
    EXPECT_EQ(FloatFixed(10000000.0f, 0), "10000000");
    EXPECT_EQ(FloatFixed(9999999.0f, 0), "9999999");
    EXPECT_EQ(FloatFixed(9999999.0f, 2), "10000000.00");
    EXPECT_EQ(FloatFixed(1234567.0f, 0), "1234567");
}

TEST(FormatFloat, SevenDigitsAreOutOfRange) {
    char szText[64];
    std::int32_t nCode = -1;
    EXPECT_EQ(FormatFloat(1.0f, szText, 64, kFormatSignificant, 0, 7, &nCode), 5);
    EXPECT_EQ(FormatFloat(1.0f, szText, 64, kFormatSignificant, 0, 6, &nCode), 0);
}

TEST(LimitDouble, MagnitudeStopsAtItsLimit) {
    double dValue = 2e300;
    EXPECT_EQ(LimitDouble(&dValue), 1);
    EXPECT_EQ(dValue, 1e300);
    dValue = -std::numeric_limits<double>::infinity();
    EXPECT_EQ(LimitDouble(&dValue), 1);
    EXPECT_EQ(dValue, -1e300);
    dValue = 1e300;
    EXPECT_EQ(LimitDouble(&dValue), 0);
    EXPECT_EQ(dValue, 1e300);
    dValue = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(LimitDouble(&dValue), 0);
    EXPECT_TRUE(std::isnan(dValue));
}

TEST(LimitFloat, MagnitudeStopsAtItsLimit) {
    double dValue = -2e30;
    EXPECT_EQ(LimitFloat(&dValue), 1);
    EXPECT_EQ(dValue, -1e30);
    dValue = 1e29;
    EXPECT_EQ(LimitFloat(&dValue), 0);
    EXPECT_EQ(dValue, 1e29);
}

TEST(ParseDoubleNormal, TextAndValueAgree) {
    char szText[64] = "10.04";
    double dValue = 0;
    std::int32_t nCode = -1;
    EXPECT_EQ(ParseDoubleNormal(szText, 64, &dValue, kFormatFixed, 1, 15, &nCode), 1);
    EXPECT_STREQ(szText, "10.0");
    EXPECT_EQ(dValue, 10.0);
    EXPECT_EQ(nCode, 0);
}

TEST(ParseDoubleNormal, TextWithABlankKeepsTextAndValue) {
    char szText[64] = "1 2";
    double dValue = 7;
    std::int32_t nCode = -1;
    EXPECT_EQ(ParseDoubleNormal(szText, 64, &dValue, kFormatFixed, 1, 15, &nCode), 0);
    EXPECT_EQ(nCode, 3);
    EXPECT_STREQ(szText, "1 2");
    EXPECT_EQ(dValue, 7);
}

TEST(ParseDoubleNormal, LimitGoesBeforeTheFormattersCode) {
    char szText[64] = "1e999";
    double dValue = 0;
    std::int32_t nCode = -1;
    EXPECT_EQ(ParseDoubleNormal(szText, 64, &dValue, kFormatSignificant, 0, 99, &nCode), 1);
    EXPECT_STREQ(szText, "1e300");
    EXPECT_EQ(dValue, 1e300);
    EXPECT_EQ(nCode, 1);
    EXPECT_EQ(ParseDoubleNormal(szText, 64, &dValue, kFormatSignificant, 0, 99, &nCode), 1);
    EXPECT_EQ(nCode, 5);
    EXPECT_EQ(ParseDoubleNormal(szText, 64, &dValue, kFormatSignificant, 0, 15, nullptr), 1);
}

TEST(ParseFloatNormal, ValueIsCutToSinglePrecision) {
    char szText[64] = "0.123456789";
    float fValue = 0;
    std::int32_t nCode = -1;
    EXPECT_EQ(ParseFloatNormal(szText, 64, &fValue, kFormatSignificant, 0, 6, &nCode), 1);
    EXPECT_STREQ(szText, "0.123457");
    EXPECT_EQ(fValue, 0.123457f);
    EXPECT_EQ(nCode, 0);
    char szLarge[64] = "-1e38";
    EXPECT_EQ(ParseFloatNormal(szLarge, 64, &fValue, kFormatSignificant, 0, 6, &nCode), 1);
    EXPECT_STREQ(szLarge, "-1e30");
    EXPECT_EQ(nCode, 1);
    char szBad[64] = "";
    EXPECT_EQ(ParseFloatNormal(szBad, 64, &fValue, kFormatSignificant, 0, 6, &nCode), 0);
    EXPECT_EQ(nCode, 3);
    EXPECT_EQ(fValue, -1e30f);
}

TEST(FormatFixed, EveryCountOfIntegerDigitsKeepsItsDecimals) {
    EXPECT_EQ(Fixed(1.567, 2), "1.57");
    EXPECT_EQ(Fixed(10.567, 2), "10.57");
    EXPECT_EQ(Fixed(100.567, 2), "100.57");
    EXPECT_EQ(Fixed(1000.567, 2), "1000.57");
    EXPECT_EQ(Fixed(10000.567, 2), "10000.57");
    EXPECT_EQ(Fixed(100000.567, 2), "100000.57");
    EXPECT_EQ(Fixed(1000000.567, 2), "1000000.57");
    EXPECT_EQ(Fixed(10000000, 2), "10000000.00");
    EXPECT_EQ(Fixed(-10000000, 2), "-10000000.00");
}

// Sixteen digits are shown as they are, from seventeen on fifteen are; a value whose logarithm
// rounds up to the next integer has one digit more in front.
TEST(FormatFixed, LogarithmDecidesAtThePowersOfTen) {
    const struct {
        double dFirst;  // that counts as the power
        std::uint32_t uDecimals;
        const char* szBelow;
        const char* szFirst;
    } rows[] = {
        {10.0, 15, "9.999999999999998", "10.000000000000000"},
        {0x1.8ffffffffffffp+6, 14, "99.99999999999997", "100.00000000000000"},
        {0x1.f3ffffffffffcp+9, 13, "999.9999999999994", "1000.0000000000000"},
        {0x1.387fffffffffep+13, 12, "9999.999999999995", "10000.000000000000"},
        {0x1.869fffffffff9p+16, 11, "99999.99999999988", "99999.99999999990"},
        {0x1.e847ffffffff8p+19, 10, "999999.9999999990", "999999.9999999990"},
        {0x1.312cffffffffbp+23, 9, "9999999.999999989", "9999999.999999990"},
        {0x1.312cffffffffbp+23, 7, "10000000.0000000", "9999999.99999999"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Fixed(std::nextafter(row.dFirst, 0.0), row.uDecimals), row.szBelow);
        EXPECT_EQ(Fixed(row.dFirst, row.uDecimals), row.szFirst);
    }
}

TEST(FormatFixed, DigitsFarBehindThePointEndWithTheTypesPrecision) {
    EXPECT_EQ(Fixed(1.5e-15, 20), "0.00000000000000150000");
    EXPECT_EQ(Fixed(1.5e-16, 20), "0.00000000000000000000");
    EXPECT_EQ(Fixed(0.06, 1), "0.1");
    EXPECT_EQ(Fixed(0.0006, 2), "0.00");
    EXPECT_EQ(Fixed(-0.0006, 2), "0.00");
}

TEST(FormatFixed, TextIsThirtyOneCharactersAtMost) {
    EXPECT_EQ(Fixed(0.5, 40), "0.50000000000000000000000000000");
    EXPECT_EQ(Fixed(-1.23456789012345e-15, 40), "-0.0000000000000012345678901234");
    EXPECT_EQ(Fixed(0, 40), "0.00000000000000000000000000000");
}

TEST(FormatSignificant, ZeroShowsAsOneDigit) {
    char szText[64];
    FormatDouble(0, szText, sizeof szText, kFormatSignificant, 0, 5, nullptr);
    EXPECT_STREQ(szText, "0");
    FormatDouble(1.5, szText, sizeof szText, kFormatSignificant, 0, 5, nullptr);
    EXPECT_STREQ(szText, "1.5");
    FormatDouble(12, szText, sizeof szText, kFormatSignificant, 0, 5, nullptr);
    EXPECT_STREQ(szText, "12");
}

// A format that is neither takes the digits as they are.
TEST(FormatSignificant, OtherFormatsTakeAnyCountOfDigits) {
    char szText[64];
    FormatDouble(1e8 / 3, szText, sizeof szText, 7, 0, 0xFFFFFFFFu, nullptr);
    EXPECT_STREQ(szText, "3.3333333333333332e7");
    FormatDouble(1e8, szText, sizeof szText, 7, 0, 0, nullptr);
    EXPECT_STREQ(szText, "0e8");
}

}  // namespace
