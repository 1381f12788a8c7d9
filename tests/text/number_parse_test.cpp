#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <string>

#include "text/NumberFormat.h"
#include "text/NumberParse.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double Parsed(const char* szText) {
    double dValue = -77;
    EXPECT_EQ(ParseDouble(szText, &dValue), 0) << szText;
    return dValue;
}

std::int32_t Code(const char* szText) {
    double dValue = -77;
    const std::int32_t nCode = ParseDouble(szText, &dValue);
    if (nCode != 0) {
        EXPECT_EQ(dValue, -77) << "the value must stay";
    }
    return nCode;
}

TEST(ParseDouble, NumbersReadToTheNearestDouble) {
    EXPECT_EQ(Parsed("0"), 0.0);
    EXPECT_EQ(Parsed("-1.5"), -1.5);
    EXPECT_EQ(Parsed("+.5E1"), 5.0);
    EXPECT_EQ(Parsed("5."), 5.0);
    EXPECT_EQ(Parsed("1e-12"), 1e-12);
    EXPECT_EQ(Parsed("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(Parsed("9007199254740993.0000000000000000000000000001"), 9007199254740994.0);
    EXPECT_EQ(Parsed("0.1"), 0.1);
    EXPECT_EQ(Parsed("123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(Parsed("1.7976931348623157e308"), DBL_MAX);
    EXPECT_EQ(Parsed("4.9e-324"), DBL_TRUE_MIN);
    EXPECT_EQ(Parsed("18446744073709551616"), 18446744073709551616.0);
    EXPECT_EQ(Parsed("00000000000000000000000000001"), 1.0);
    EXPECT_TRUE(std::signbit(Parsed("-0")));
}

TEST(ParseDouble, LongestStartThatIsANumberCounts) {
    EXPECT_EQ(Parsed("1.2.3"), 1.2);
    EXPECT_EQ(Parsed("1e"), 1.0);
    EXPECT_EQ(Parsed("1e+"), 1.0);
    EXPECT_EQ(Parsed("1-2"), 1.0);
    EXPECT_EQ(Parsed("1e5e5"), 1e5);
    EXPECT_EQ(Parsed("e5"), 0.0);
    EXPECT_EQ(Parsed("--5"), 0.0);
    EXPECT_EQ(Parsed("+-5"), 0.0);
    EXPECT_EQ(Parsed("."), 0.0);
    EXPECT_EQ(Parsed("-"), 0.0);
}

TEST(ParseDouble, NumbersBeyondTheRangeGoToItsEnds) {
    EXPECT_EQ(Parsed("1e999"), kInfinity);
    EXPECT_EQ(Parsed("-1e999"), -kInfinity);
    EXPECT_EQ(Parsed("1e-999"), 0.0);
    EXPECT_TRUE(std::signbit(Parsed("-1e-999")));
    EXPECT_EQ(Parsed("0e999"), 0.0);
    EXPECT_EQ(Parsed("1e99999999999999999999"), kInfinity);
    EXPECT_EQ(Parsed("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(Parsed("0.00000000000000000001e328"), 1e308);
}

TEST(ParseDouble, OtherCharactersAreRefused) {
    EXPECT_EQ(Code(nullptr), 3);
    EXPECT_EQ(Code(""), 3);
    EXPECT_EQ(Code("1 2"), 3);
    EXPECT_EQ(Code(" 1"), 3);
    EXPECT_EQ(Code("1 "), 3);
    EXPECT_EQ(Code("1,5"), 3);
    EXPECT_EQ(Code("0x10"), 3);
    EXPECT_EQ(Code("nan"), 3);
    EXPECT_EQ(Code("inf"), 3);
    EXPECT_EQ(Code("1.#INFe0"), 3);
    EXPECT_EQ(Code("\xB5"), 3);
    EXPECT_EQ(Code("1d5"), 3);
    EXPECT_EQ(Code("1:"), 3);
    EXPECT_EQ(Code("1/"), 3);
    EXPECT_EQ(Code("5\x01"), 3);
}

TEST(ParseDouble, OneHundredAndOneCharactersAreTooLong) {
    EXPECT_EQ(Code(std::string(100, '1').c_str()), 0);
    EXPECT_EQ(Code(std::string(101, '1').c_str()), 2);
    EXPECT_EQ(Code((std::string(5000, '0') + "1").c_str()), 2);
    // A wrong character is told of first.
    EXPECT_EQ(Code((std::string(101, '1') + "x").c_str()), 3);
}

TEST(ParseDouble, EveryFormattedValueReadsBack) {
    for (double dValue : {1.0 / 3, 2.0 / 3, 1e-12, 123456.789, 9999999.99, 5e300, 0.001, 1e-300}) {
        char szText[64];
        FormatDouble(dValue, szText, 64, kFormatSignificant, 0, 15, nullptr);
        EXPECT_NEAR(Parsed(szText) / dValue, 1.0, 1e-14) << szText;
    }
}

TEST(TextToDouble, ReadsAsTheRuntimeDoes) {
    EXPECT_EQ(TextToDouble(" \t1.5abc"), 1.5);
    EXPECT_EQ(TextToDouble("1,5"), 1.0);
    EXPECT_EQ(TextToDouble("abc"), 0.0);
    EXPECT_EQ(TextToDouble(""), 0.0);
    EXPECT_EQ(TextToDouble(nullptr), 0.0);
    EXPECT_EQ(TextToDouble("-INF"), -kInfinity);
    EXPECT_EQ(TextToDouble("infinity"), kInfinity);
    EXPECT_TRUE(std::isnan(TextToDouble("nan")));
    EXPECT_EQ(TextToDouble("0x10"), 16.0);
    EXPECT_EQ(TextToDouble("-0x1p-1"), -0.5);
    EXPECT_EQ(TextToDouble("0x"), 0.0);
    EXPECT_EQ(TextToDouble("0x-1"), 0.0);
    EXPECT_EQ(TextToDouble("1e999"), kInfinity);
    EXPECT_EQ(TextToDouble("1.#INF"), 1.0);
    EXPECT_EQ(TextToDouble("0x1"), 1.0);
    // What is no number has no sign; a zero has.
    EXPECT_FALSE(std::signbit(TextToDouble("-x")));
    EXPECT_FALSE(std::signbit(TextToDouble("-")));
    EXPECT_TRUE(std::signbit(TextToDouble("-0xg")));
    EXPECT_TRUE(std::signbit(TextToDouble("-0x0")));
    EXPECT_FALSE(std::signbit(TextToDouble("-0x1p+5000")));
}

TEST(TextToInt, StaysWithinThirtyTwoBits) {
    EXPECT_EQ(TextToInt(" -12x"), -12);
    EXPECT_EQ(TextToInt("+7"), 7);
    EXPECT_EQ(TextToInt("2147483647"), INT_MAX);
    EXPECT_EQ(TextToInt("2147483648"), INT_MAX);
    EXPECT_EQ(TextToInt("-2147483648"), INT_MIN);
    EXPECT_EQ(TextToInt("-99999999999999999999"), INT_MIN);
    EXPECT_EQ(TextToInt("0x10"), 0);
    EXPECT_EQ(TextToInt("x"), 0);
    EXPECT_EQ(TextToInt(nullptr), 0);
    const char* szText = "  12,5";
    const char* pEnd = nullptr;
    EXPECT_EQ(TextToInt(szText, &pEnd), 12);
    EXPECT_EQ(pEnd, szText + 4);
    EXPECT_EQ(TextToInt("  x", &pEnd), 0);
    EXPECT_STREQ(pEnd, "  x");
}

TEST(TextToUnsigned, ReadsDecimalOctalAndHexadecimal) {
    EXPECT_EQ(TextToUInt32("17"), 17u);
    EXPECT_EQ(TextToUInt32("017"), 15u);
    EXPECT_EQ(TextToUInt32("0x1fG"), 31u);
    EXPECT_EQ(TextToUInt32("0X1F"), 31u);
    EXPECT_EQ(TextToUInt32("089"), 0u);
    EXPECT_EQ(TextToUInt32("4294967295"), 4294967295u);
    EXPECT_EQ(TextToUInt32("4294967296"), 4294967295u);
    EXPECT_EQ(TextToUInt32("-1"), 4294967295u);
    EXPECT_EQ(TextToUInt64("18446744073709551615"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("18446744073709551616"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("0xFFFFFFFFFFFFFFFF"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("-1"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64(nullptr), 0u);
    EXPECT_EQ(TextToUInt32("-4294967296"), 4294967295u);
    EXPECT_EQ(TextToUInt64("-18446744073709551616"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt32("0x1\xE1"), 1u);
}

TEST(WriteGeneral, WritesSixSignificantDigits) {
    const auto text = [](double dValue) {
        char szText[32];
        const int nLength = WriteGeneral(dValue, szText);
        EXPECT_EQ(szText[nLength], '\0');
        return std::string(szText);
    };
    EXPECT_EQ(text(0), "0");
    EXPECT_EQ(text(-0.0), "-0");
    EXPECT_EQ(text(0.123456789), "0.123457");
    EXPECT_EQ(text(1.23456789), "1.23457");
    EXPECT_EQ(text(100000), "100000");
    EXPECT_EQ(text(1000000), "1e+06");
    EXPECT_EQ(text(0.0001), "0.0001");
    EXPECT_EQ(text(0.00001), "1e-05");
    EXPECT_EQ(text(-1.5e-300), "-1.5e-300");
    EXPECT_EQ(text(DBL_MAX), "1.79769e+308");
    EXPECT_EQ(text(kInfinity), "inf");
    EXPECT_EQ(text(0.1f), "0.1");
}

TEST(WriteGeneral, ExactTiesGoToTheEvenDigit) {
    char szText[32];
    WriteGeneral(100000.5, szText);
    EXPECT_STREQ(szText, "100000");
    WriteGeneral(100001.5, szText);
    EXPECT_STREQ(szText, "100002");
    WriteGeneral(87646.25, szText);
    EXPECT_STREQ(szText, "87646.2");
}

}  // namespace
