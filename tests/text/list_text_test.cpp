#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "text/ListText.h"

namespace {

using Values = std::vector<std::int32_t>;

std::string Format(const Values& values, int nOffset = 0, int nSize = 1000) {
    std::string sBuffer(static_cast<std::size_t>(nSize) + 1, 'x');
    FormatIndexList(sBuffer.data(), nSize, values.data(), static_cast<int>(values.size()), nOffset);
    EXPECT_EQ(sBuffer[static_cast<std::size_t>(nSize)], 'x') << "written behind the buffer";
    return sBuffer.c_str();
}

struct Names {
    const char* apszNames[3] = {"First", "Last", "peak"};
    std::int32_t anValues[3] = {100, 200, -5};
};

Values Parse(const char* szText, int nOffset = 0, int nMax = 100) {
    Values values(static_cast<std::size_t>(nMax) + 1, -777);
    const Names names;
    const int nCount =
        ParseIndexList(szText, values.data(), nMax, nOffset, names.apszNames, names.anValues, 3);
    EXPECT_EQ(values[static_cast<std::size_t>(nMax)], -777) << "written behind the array";
    values.resize(static_cast<std::size_t>(nCount < nMax ? nCount : nMax));
    return values;
}

Values ParseSelection(const char* szText, int nOffset = 0, int nMax = 10000) {
    Values values(static_cast<std::size_t>(nMax) + 1, -777);
    const int nCount = ParseList(szText, values.data(), nMax, nOffset, nullptr, 0);
    EXPECT_EQ(values[static_cast<std::size_t>(nMax)], -777) << "written behind the array";
    values.resize(static_cast<std::size_t>(nCount));
    return values;
}

TEST(IndexList, RunsAreFolded) {
    EXPECT_EQ(Format({1, 2, 3, 7, 9, 10}), "1..3, 7, 9..10");
    EXPECT_EQ(Format({0, 1, 2, 4}, 1), "1..3, 5");
    EXPECT_EQ(Format({5}), "5");
    EXPECT_EQ(Format({1, 3, 5}), "1, 3, 5");
    EXPECT_EQ(Format({-2, -1, 0}), "-2..0");
    EXPECT_EQ(Format({3, 3, 4}), "3, 3..4");
}

TEST(IndexList, NoNumbersGiveAnEmptyText) {
    EXPECT_EQ(Format({}), "");
    char szText[4] = "abc";
    FormatIndexList(szText, 4, nullptr, 3, 0);
    EXPECT_STREQ(szText, "");
    FormatIndexList(nullptr, 10, nullptr, 0, 0);
    FormatIndexList(szText, 0, nullptr, 0, 0);
}

TEST(IndexList, FullBufferEndsTheTextBetweenNumbers) {
    const Values values = {1, 2, 3, 17, 19, 20};
    EXPECT_EQ(Format(values, 0, 16), "1..3, 17, 19");
    EXPECT_EQ(Format(values, 0, 17), "1..3, 17, 19..20");
    EXPECT_EQ(Format(values, 0, 8), "1..3");
    EXPECT_EQ(Format(values, 0, 9), "1..3, 17");
    EXPECT_EQ(Format(values, 0, 2), "1");
    EXPECT_EQ(Format(values, 0, 1), "");
}

TEST(IndexList, NothingFollowsANumberThatDidNotFit) {
    EXPECT_EQ(Format({5, 1000, 7}, 0, 6), "5");
    EXPECT_EQ(Format({99, 100, 101, 7}, 0, 6), "99");
}

TEST(IndexList, NumbersBehindTheLastAreNotLookedAt) {
    const std::int32_t anValues[] = {1, 2, 3, 4, 6};
    char szText[20];
    FormatIndexList(szText, sizeof szText, anValues, 3, 0);
    EXPECT_STREQ(szText, "1..3");
    FormatIndexList(szText, sizeof szText, anValues, 4, 0);
    EXPECT_STREQ(szText, "1..4");
}

TEST(IndexList, ExtremeNumbersDoNotWrap) {
    EXPECT_EQ(Format({2147483646, 2147483647}, 1), "2147483647..2147483648");
    EXPECT_EQ(Format({2147483647, -2147483647 - 1}), "2147483647, -2147483648");
}

TEST(IndexList, ReadsWhatItWrites) {
    EXPECT_EQ(Parse("1..3, 7, 9..10"), (Values{1, 2, 3, 7, 9, 10}));
    EXPECT_EQ(Parse("1..3, 5", 1), (Values{0, 1, 2, 4}));
    EXPECT_EQ(Parse(" \t4\r\n, 5 "), (Values{4, 5}));
    EXPECT_EQ(Parse("-3..-1"), (Values{-3, -2, -1}));
    EXPECT_EQ(Parse("+3"), (Values{3}));
}

TEST(IndexList, HigherFirstBoundCountsDownward) {
    EXPECT_EQ(Parse("5..3"), (Values{5, 4, 3}));
}

TEST(IndexList, BadTokensEndWithNothing) {
    for (const char* szText :
         {"", " ", "1,,3", ",1", "1,", "..3", "1, ..3", "3..", "4x", "1..2..3", "1 .. 3", "1 2",
          "0x10", "1.5", "99999999999", "-", "+-3", "1...3"}) {
        EXPECT_EQ(Parse(szText), Values{}) << szText;
    }
    EXPECT_EQ(ParseIndexList(nullptr, nullptr, 0, 0, nullptr, nullptr, 0), 0);
}

TEST(IndexList, NamesStandForTheirValuesWithoutOffset) {
    EXPECT_EQ(Parse("first", 1), (Values{100}));
    EXPECT_EQ(Parse("LAST, PEAK, 7", 1), (Values{200, -5, 6}));
    EXPECT_EQ(Parse("peak..-3"), (Values{-5, -4, -3}));
    EXPECT_EQ(Parse("peaks"), Values{});
}

TEST(IndexList, ValuesPastTheArrayAreCounted) {
    std::int32_t anValues[3] = {};
    EXPECT_EQ(ParseIndexList("1..10, 20", anValues, 3, 0, nullptr, nullptr, 0), 11);
    EXPECT_EQ(anValues[2], 3);
    EXPECT_EQ(ParseIndexList("1..10", nullptr, 0, 0, nullptr, nullptr, 0), 10);
    // Ranges beyond any array are counted, not walked.
    EXPECT_EQ(ParseIndexList("-2147483648..2147483647", anValues, 3, 0, nullptr, nullptr, 0),
              2147483647);
    EXPECT_EQ(ParseIndexList("1, x", anValues, 3, 0, nullptr, nullptr, 0), 0);
}

TEST(IndexList, OffsetBeyondTheRangeOfNumbersFails) {
    EXPECT_EQ(Parse("-2147483648", 1), Values{});
    EXPECT_EQ(Parse("2147483647", 1), (Values{2147483646}));
}

TEST(SelectionList, BlanksAreRemovedByTheCaller) {
    char szText[100];
    const std::int32_t anNumbers[] = {0, 1, 2, 4};
    FormatList(szText, sizeof szText, anNumbers, 4, 1);
    EXPECT_STREQ(szText, "1..3, 5");
    RemoveSpaces(szText);
    EXPECT_STREQ(szText, "1..3,5");
    RemoveSpaces(nullptr);
}

TEST(SelectionList, ReadsRangesBothWays) {
    EXPECT_EQ(ParseSelection("5..3"), (Values{5, 4, 3}));
    EXPECT_EQ(ParseSelection("1..5,18,25..27"), (Values{1, 2, 3, 4, 5, 18, 25, 26, 27}));
    EXPECT_EQ(ParseSelection("0"), (Values{0}));
}

TEST(SelectionList, BadTokensGiveNothing) {
    for (const char* szText : {"1,,3", "..3", "4x", "", ",", "1,", "1..", "1..2..3"}) {
        EXPECT_EQ(ParseSelection(szText), Values{}) << szText;
    }
    EXPECT_EQ(ParseList(nullptr, nullptr, 0, 0, nullptr, 0), 0);
}

TEST(SelectionList, WhiteSpaceCountsNowhere) {
    EXPECT_EQ(ParseSelection(" 1 .. 3 ,\t5\r\n"), (Values{1, 2, 3, 5}));
    EXPECT_EQ(ParseSelection("1 2"), (Values{12}));
}

TEST(SelectionList, OffsetIsSubtracted) {
    EXPECT_EQ(ParseSelection("1..3,5", 1), (Values{0, 1, 2, 4}));
}

TEST(SelectionList, NamesStandForTheirPlaces) {
    const char* const apszNames[] = {"Iin", "Vm", "Cmd"};
    std::int32_t anNumbers[8];
    ASSERT_EQ(ParseList("VM, cmd, 4", anNumbers, 8, 1, apszNames, 3), 3);
    EXPECT_EQ(anNumbers[0], 1);
    EXPECT_EQ(anNumbers[1], 2);
    EXPECT_EQ(anNumbers[2], 3);
}

TEST(SelectionList, NumbersBeyondTheMostAreDropped) {
    std::int32_t anNumbers[3] = {};
    EXPECT_EQ(ParseList("1..10", anNumbers, 3, 0, nullptr, 0), 3);
    EXPECT_EQ(anNumbers[2], 3);
    EXPECT_EQ(ParseSelection("1..20000").size(), 10000u);
    EXPECT_EQ(ParseSelection("1..20000").back(), 10000);
    // An error behind the limit still fails the whole text.
    EXPECT_EQ(ParseList("1..10,x", anNumbers, 3, 0, nullptr, 0), 0);
}

TEST(SelectionList, OneThousandBytesHoldWhatFits) {
    Values values;
    for (int i = 0; i < 2000; i += 2) values.push_back(i);
    char szText[1000];
    FormatList(szText, sizeof szText, values.data(), static_cast<int>(values.size()), 0);
    EXPECT_LT(std::strlen(szText), 1000u);
    EXPECT_GT(std::strlen(szText), 990u);
    const Values back = ParseSelection(szText);
    ASSERT_FALSE(back.empty());
    for (std::size_t i = 0; i < back.size(); ++i) ASSERT_EQ(back[i], values[i]);
}

}  // namespace
