// The first and last values on each side of every limit of numbers and lists.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "text/BoundedText.h"
#include "text/ListText.h"
#include "text/NumberFormat.h"
#include "text/NumberParse.h"
#include "text/TextTests.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(NumberEdges, EveryExactPowerOfTenIsRead) {
    const double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,
                             1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17,
                             1e18, 1e19, 1e20, 1e21, 1e22, 1e23, 1e24};
    const double fractions[] = {3.0,   3e-1,  3e-2,  3e-3,  3e-4,  3e-5,  3e-6,  3e-7,  3e-8,
                                3e-9,  3e-10, 3e-11, 3e-12, 3e-13, 3e-14, 3e-15, 3e-16, 3e-17,
                                3e-18, 3e-19, 3e-20, 3e-21, 3e-22, 3e-23, 3e-24};
    for (int i = 0; i < 25; ++i) {
        SCOPED_TRACE(i);
        for (const char* szSign : {"", "+"}) {
            double dValue = -7;
            EXPECT_EQ(ParseDouble(("1e" + (szSign + std::to_string(i))).c_str(), &dValue), 0);
            EXPECT_EQ(dValue, powers[i]);
        }
        double dValue = -7;
        EXPECT_EQ(ParseDouble(("3e-" + std::to_string(i)).c_str(), &dValue), 0);
        EXPECT_EQ(dValue, fractions[i]);
    }
}

TEST(NumberEdges, TextsOfEveryShapeAreTheirNumbers) {
    const std::pair<const char*, double> rows[] = {
        {"9", 9},
        {"+9.5", 9.5},
        {"-9.25", -9.25},
        {"0.09", 0.09},
        {"12.", 12},
        {".5", 0.5},
        {"1.5e3", 1500},
        {"1.5E+3", 1500},
        {"1.5e-3", 0.0015},
        {"2e+05", 200000},
        {"7e0", 7},
        {"123456789", 123456789},
        {"1234567890", 1234567890},
        {"4294967296", 4294967296.0},
        {"12345678901", 12345678901.0},
        {"9007199254740992", 9007199254740992.0},
        {"9007199254740993", 9007199254740992.0},
        {"9007199254740995", 9007199254740996.0},
        {"90071992547409930001", 90071992547409930001.0},
        {"1234567890123456789", 1234567890123456789.0},
        {"12345678901234567890", 12345678901234567890.0},
        {"18446744073709551617", 18446744073709551617.0},
        {"18446744073709551617.5", 18446744073709551617.5},
        {"0.00000000000000000012", 0.00000000000000000012},
        {"123456789.123456789123", 123456789.123456789123},
        {"1e0001", 10},
        {"1e1000", kInfinity},
        {"-1e1000", -kInfinity},
        {"1e-1000", 0},
        {"1e", 1},
        {"1e+", 1},
        {"1.2.3", 1.2},
        {"1+2", 1},
        {"e5", 0},
        {".", 0},
        {"--5", 0},
        {"-+5", 0},
    };
    for (const auto& [szText, dExpected] : rows) {
        SCOPED_TRACE(szText);
        double dValue = -7;
        EXPECT_EQ(ParseDouble(szText, &dValue), 0);
        EXPECT_EQ(dValue, dExpected);
        EXPECT_EQ(TextToDouble(szText), dExpected);
    }
}

// Far beyond the range of a double the place of the first digit decides.
TEST(NumberEdges, WhatIsBeyondTheRangeIsZeroOrInfinity) {
    const std::string zeros(400, '0');
    const std::pair<std::string, double> rows[] = {
        {"1" + zeros, kInfinity},
        {"-1" + zeros + ".5", -kInfinity},
        {"0." + zeros + "1", 0},
        {"0." + zeros + "9e100", 9e-301},
        {"0." + zeros + "1e1000", kInfinity},
        {"1" + zeros + "e-1000", 0},
        {"1" + zeros + "e-100", 1e300},
        {"000" + ("1" + zeros), kInfinity},
        {"1e+999999999999999999", kInfinity},
        {"1e-999999999999999999", 0},
        {"10e+400", kInfinity},
        {"0.1e-400", 0},
        {"00.01e400", kInfinity},
        {"0x1p+5000", 0},
        {"0." + zeros + "1e50", 0},
        {zeros + "1e-400", 0},
        {zeros + "1e310", kInfinity},
        {"1." + zeros + "e310", kInfinity},
        {"0." + std::string(2000, '0') + "1e1650", 0},
    };
    for (const auto& [sText, dExpected] : rows) {
        SCOPED_TRACE(sText);
        EXPECT_EQ(TextToDouble(sText.c_str()), dExpected);
    }
}

TEST(NumberEdges, HexadecimalAndWhiteSpaceFollowTheRuntime) {
    EXPECT_EQ(TextToDouble("0x1F"), 31);
    EXPECT_EQ(TextToDouble("-0XaP1"), -20);
    EXPECT_EQ(TextToDouble("0x"), 0);
    EXPECT_EQ(TextToDouble("0x-5"), 0);
    EXPECT_EQ(TextToDouble("1x5"), 1);
    EXPECT_EQ(TextToDouble("\t\n\v\f\r 4.5z"), 4.5);
    EXPECT_EQ(TextToDouble("\x0E"
                           "4.5"),
              0);
    EXPECT_EQ(TextToDouble("+4"), 4);
    EXPECT_EQ(TextToInt("\r\t 12 34"), 12);
}

TEST(NumberEdges, IntegersStayAtTheEndsOfTheirRange) {
    EXPECT_EQ(TextToInt("2147483646"), 2147483646);
    EXPECT_EQ(TextToInt("2147483647"), 2147483647);
    EXPECT_EQ(TextToInt("2147483648"), 2147483647);
    EXPECT_EQ(TextToInt("99999999999999999999"), 2147483647);
    EXPECT_EQ(TextToInt("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(TextToInt("-2147483649"), -2147483647 - 1);
    EXPECT_EQ(TextToInt("+19"), 19);
    EXPECT_EQ(TextToInt("9a"), 9);
    EXPECT_EQ(TextToUInt32("4294967295"), 4294967295u);
    EXPECT_EQ(TextToUInt32("4294967296"), 4294967295u);
    EXPECT_EQ(TextToUInt32("-5"), 4294967291u);
    EXPECT_EQ(TextToUInt32("+5"), 5u);
    EXPECT_EQ(TextToUInt32("0xAf09"), 0xAF09u);
    EXPECT_EQ(TextToUInt32("0Xfg"), 15u);
    EXPECT_EQ(TextToUInt32("0xFFFFFFFF"), 0xFFFFFFFFu);
    EXPECT_EQ(TextToUInt32("0x100000000"), 0xFFFFFFFFu);
    EXPECT_EQ(TextToUInt32("0x@1`"), 0u);
    EXPECT_EQ(TextToUInt32("0789"), 7u);
    EXPECT_EQ(TextToUInt64("18446744073709551615"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("18446744073709551616"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("-1"), 18446744073709551615u);
    EXPECT_EQ(TextToUInt64("0xffffffffffffffff"), 18446744073709551615u);
    const char* pEnd = "unset";
    EXPECT_EQ(TextToInt(nullptr, &pEnd), 0);
    EXPECT_EQ(pEnd, nullptr);
    const char* szText = " -x";
    EXPECT_EQ(TextToInt(szText, &pEnd), 0);
    EXPECT_EQ(pEnd, szText);
    EXPECT_EQ(TextToInt(" -60x", &pEnd), -60);
    EXPECT_STREQ(pEnd, "x");
}

std::vector<int> Indices(const char* szText, int nMax, int nOffset, int nExpected) {
    std::vector<std::int32_t> values(20, -99);
    EXPECT_EQ(ParseIndexList(szText, values.data(), nMax, nOffset, nullptr, nullptr, 0), nExpected)
        << szText;
    while (!values.empty() && values.back() == -99) values.pop_back();
    return values;
}

TEST(ListEdges, RunsOfEveryDirectionFillTheRoomAndCountTheRest) {
    using Values = std::vector<int>;
    EXPECT_EQ(Indices("0", 5, 0, 1), (Values{0}));
    EXPECT_EQ(Indices("9,19,90", 5, 0, 3), (Values{9, 19, 90}));
    EXPECT_EQ(Indices("2..4", 5, 0, 3), (Values{2, 3, 4}));
    EXPECT_EQ(Indices("4..2", 5, 0, 3), (Values{4, 3, 2}));
    EXPECT_EQ(Indices("4..2", 2, 0, 3), (Values{4, 3}));
    EXPECT_EQ(Indices("1,5..8", 3, 0, 5), (Values{1, 5, 6}));
    EXPECT_EQ(Indices("1,2,5..8", 2, 0, 6), (Values{1, 2}));
    EXPECT_EQ(Indices("1,2,3,4", 3, 0, 4), (Values{1, 2, 3}));
    EXPECT_EQ(Indices("3..3", 5, 0, 1), (Values{3}));
    EXPECT_EQ(Indices("7", 1, 0, 1), (Values{7}));
    EXPECT_EQ(Indices("7", 0, 0, 1), (Values{}));
    EXPECT_EQ(Indices("1..3,10", 5, 1, 4), (Values{0, 1, 2, 9}));
    EXPECT_EQ(Indices("5..7", 5, -10, 3), (Values{15, 16, 17}));
    EXPECT_EQ(Indices(" 1 .. 2", 5, 0, 0), (Values{}));
    EXPECT_EQ(Indices("\r\n\t 8 ,\t9\r", 5, 0, 2), (Values{8, 9}));
}

TEST(ListEdges, NumbersBeyondTheRangeSpoilTheList) {
    using Values = std::vector<int>;
    EXPECT_EQ(Indices("999999999", 5, 0, 1), (Values{999999999}));
    EXPECT_EQ(Indices("1000000000", 5, 0, 1), (Values{1000000000}));
    EXPECT_EQ(Indices("2147483647", 5, 0, 1), (Values{2147483647}));
    EXPECT_EQ(Indices("2147483648", 5, 0, 0), (Values{}));
    EXPECT_EQ(Indices("2147483648", 5, 1, 0), (Values{}));
    EXPECT_EQ(Indices("-2147483649", 5, -1, 0), (Values{}));
    EXPECT_EQ(Indices("2147483647", 5, -1, 0), (Values{}));
    EXPECT_EQ(Indices("2147483646..2147483647", 5, 0, 2), (Values{2147483646, 2147483647}));
    EXPECT_EQ(Indices("4294967297", 5, 0, 0), (Values{}));
    EXPECT_EQ(Indices("42949672961", 5, 0, 0), (Values{}));
    EXPECT_EQ(Indices("-2147483649", 5, 0, 0), (Values{}));
    EXPECT_EQ(Indices("-2147483648", 5, 0, 1), (Values{-2147483647 - 1}));
    EXPECT_EQ(Indices("-2147483648", 5, 1, 0), (Values{}));
    EXPECT_EQ(Indices("0", 5, 2147483647, 1), (Values{-2147483647}));
    EXPECT_EQ(Indices("5", 5, -2147483647 - 1, 0), (Values{}));
    EXPECT_EQ(Indices("1..5", 5, -2147483647, 0), (Values{}));
    EXPECT_EQ(Indices("0", 5, -2147483647, 1), (Values{2147483647}));
}

TEST(ListEdges, WhatIsNoItemSpoilsTheList) {
    for (const char* szText :
         {"",  ",",  "1,", ",1", "1,,2", "1..", "..1", "1...3", "1..2..3", "1.2",  "1-2", "/",
          ":", "1:", "a",  "+",  "+-1",  "--1", "1 2", "5.",    "5.6.7",   "1.25", "1,.5"}) {
        SCOPED_TRACE(szText);
        std::int32_t values[5];
        EXPECT_EQ(ParseIndexList(szText, values, 5, 0, nullptr, nullptr, 0), 0);
    }
    EXPECT_EQ(Indices("+4,-3", 5, 0, 2), (std::vector<int>{4, -3}));
}

TEST(ListEdges, NamesGoBeforeNumbersAndSkipTheMissing) {
    const char* const names[] = {"all", nullptr, "7", "Last"};
    const std::int32_t meanings[] = {40, 41, 42, 43};
    std::int32_t values[6] = {};
    EXPECT_EQ(ParseIndexList("ALL,7,last,5,all..last", values, 6, 1, names, meanings, 4), 8);
    const std::int32_t expected[] = {40, 42, 43, 4, 40, 41};
    EXPECT_EQ(std::memcmp(values, expected, sizeof expected), 0);
    EXPECT_EQ(ParseList("ALL,7,last", values, 6, 1, names, 4), 3);
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[1], 2);
    EXPECT_EQ(values[2], 3);
}

TEST(ListEdges, NamesEndWithTheirItemOrAtTheDots) {
    const char* const names[] = {"V m", "", "a.b", "I"};
    std::int32_t values[6] = {};
    EXPECT_EQ(ParseIndexList(" v M\t, a.b..I ,2 ", values, 6, 0, names, nullptr, 4), 4);
    const std::int32_t expected[] = {0, 2, 3, 2};
    EXPECT_EQ(std::memcmp(values, expected, sizeof expected), 0);
    EXPECT_EQ(ParseIndexList("v m", values, 6, 0, names, nullptr, 1), 1);
    EXPECT_EQ(ParseIndexList("I ..a.b", values, 6, 0, names, nullptr, 4), 0);
    EXPECT_EQ(ParseIndexList("I.. a.b", values, 6, 0, names, nullptr, 4), 0);
    EXPECT_EQ(ParseIndexList("I,,I", values, 6, 0, names, nullptr, 4), 0);
    EXPECT_EQ(ParseIndexList("a..I", values, 6, 0, names, nullptr, 4), 0);
    EXPECT_EQ(ParseIndexList("I..I..I", values, 6, 0, names, nullptr, 4), 0);
    // Without its blanks a name that has one isn't found; as it stands it is.
    EXPECT_EQ(ParseList("V m", values, 6, 0, names, 4), 1);
    EXPECT_EQ(ParseList("V m,I ", values, 6, 0, names, 4), 0);
    EXPECT_EQ(ParseList("I ,I", values, 6, 0, names, 4), 2);
    EXPECT_EQ(values[1], 3);
}

TEST(ListEdges, SelectionListsAreReadWithTheirBlanksTakenOut) {
    std::int32_t values[4] = {};
    EXPECT_EQ(ParseList("1 2 , 3\v..\f4", values, 4, 0, nullptr, 0), 3);
    EXPECT_EQ(values[0], 12);
    EXPECT_EQ(values[1], 3);
    EXPECT_EQ(values[2], 4);
    EXPECT_EQ(ParseList("1..9", values, 4, 0, nullptr, 0), 4);
    EXPECT_EQ(ParseList("1..4", values, 4, 0, nullptr, 0), 4);
    EXPECT_EQ(ParseList("1\x0E", values, 4, 0, nullptr, 0), 0);
    EXPECT_EQ(ParseList("x", values, 4, 0, nullptr, 0), 0);
    EXPECT_EQ(ParseList("x y", values, 4, 0, nullptr, 0), 0);
    EXPECT_EQ(ParseList("5", nullptr, 4, 0, nullptr, 0), 0);
}

TEST(CharacterEdges, SetsEndWithTheirLastCharacter) {
    EXPECT_FALSE(IsAllAlpha("["));
    EXPECT_FALSE(IsAllAlpha("@"));
    EXPECT_FALSE(IsAllAlpha("`"));
    EXPECT_FALSE(IsAllAlpha("{"));
    EXPECT_TRUE(IsBlank("\t\r"));
    EXPECT_FALSE(IsBlank("\x08"));
    EXPECT_FALSE(IsBlank("\x0E"));
    EXPECT_TRUE(IsNumberText("0123456789.+-eE"));
    EXPECT_FALSE(IsNumberText(":"));
    EXPECT_FALSE(IsNumberText("/"));
    EXPECT_FALSE(HasEdgeSpaces(""));
    EXPECT_TRUE(HasEdgeSpaces(" "));
    EXPECT_TRUE(EqualNoCase("Z", "z"));
    EXPECT_FALSE(EqualNoCase("[", "{"));
    EXPECT_FALSE(EqualNoCase("xb", "yb"));
    const char* const list[] = {"", nullptr, "One"};
    EXPECT_TRUE(IsInList(nullptr, list, 3, true));
    EXPECT_FALSE(IsInList("~", list, 3, true));
    EXPECT_TRUE(IsInList("oNE", list, 3, false));
    EXPECT_FALSE(IsInList("oNE", list, 3, true));
    EXPECT_FALSE(IsInList("One", list, 2, true));
}

TEST(BufferEdges, AWriterKeepsWithinItsBuffer) {
    char szBuffer[5] = "xxxx";
    BoundedWriter whole(szBuffer, 5);
    EXPECT_TRUE(whole.Put("abcd"));
    EXPECT_STREQ(szBuffer, "abcd");
    EXPECT_FALSE(whole.Put("e"));
    char szOne[2] = "x";
    BoundedWriter one(szOne, 1);
    EXPECT_STREQ(szOne, "");
    EXPECT_FALSE(one.Put("a"));
    EXPECT_STREQ(szOne, "");
    char chGuard = 'g';
    BoundedWriter none(&chGuard, 0);
    EXPECT_FALSE(none.Put("a"));
    EXPECT_EQ(chGuard, 'g');
}

}  // namespace
