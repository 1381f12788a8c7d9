#include <gtest/gtest.h>

#include <string>

#include "widgets/TextFormat.h"

namespace {

std::string Expand(const char* szFormat, const char* const* ppArgs) {
    char szText[64];
    FormatArgs(GetModuleHandleA(nullptr), szText, szFormat, ppArgs);
    return szText;
}

const char* Id(int nId) {
    return MAKEINTRESOURCEA(nId);
}

TEST(FormatArgs, DigitsStandForArguments) {
    const char* const apszArgs[] = {"zero", "one"};
    EXPECT_EQ(Expand("%1 and %0", apszArgs), "one and zero");
    EXPECT_EQ(Expand("%0%0", apszArgs), "zerozero");
    EXPECT_EQ(Expand("%0:\r\n\r\n%1", apszArgs), "zero:\r\n\r\none");
    EXPECT_EQ(Expand("%10", apszArgs), "one0");
}

TEST(FormatArgs, NineIsTheHighestArgument) {
    const char* const apszArgs[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "nine"};
    EXPECT_EQ(Expand("%9%8", apszArgs), "nine8");
}

TEST(FormatArgs, DoubledSignGivesOne) {
    EXPECT_EQ(Expand("100%% sure", nullptr), "100% sure");
}

TEST(FormatArgs, OtherSignsLoseThePercent) {
    EXPECT_EQ(Expand("%s%d%x", nullptr), "sdx");
    EXPECT_EQ(Expand("end%", nullptr), "end");
    EXPECT_EQ(Expand("%", nullptr), "");
}

TEST(FormatArgs, ArgumentsAreNotExpandedAgain) {
    const char* const apszArgs[] = {"%1 %n %s", "x"};
    EXPECT_EQ(Expand("%0", apszArgs), "%1 %n %s");
}

TEST(FormatArgs, NullAndEmptyFormatsGiveAnEmptyText) {
    EXPECT_EQ(Expand(nullptr, nullptr), "");
    EXPECT_EQ(Expand("", nullptr), "");
}

TEST(FormatArgs, NullArgumentsAreEmpty) {
    const char* const apszArgs[] = {nullptr};
    EXPECT_EQ(Expand("[%0]", apszArgs), "[]");
    EXPECT_EQ(Expand("[%0]", nullptr), "[]");
}

TEST(FormatArgs, StringIdsAreLoaded) {
    const char* const apszArgs[] = {Id(2902), "two", Id(2999)};
    EXPECT_EQ(Expand("<%0>", apszArgs),
              "<1000 (for \xB5"
              "A and mV)>");
    EXPECT_EQ(Expand(Id(2901), apszArgs),
              "1000 (for \xB5"
              "A and mV) of two");
    EXPECT_EQ(Expand("[%2]", apszArgs), "[]");
}

TEST(FormatArgs, ResultIsCutToTheBuffer) {
    char szText[8] = "xxxxxxx";
    const char* const apszArgs[] = {"abcdefgh"};
    FormatArgs(nullptr, szText, 5, "1%0", apszArgs);
    EXPECT_STREQ(szText, "1abc");
    EXPECT_EQ(szText[5], 'x');
    FormatArgs(nullptr, nullptr, 5, "1%0", apszArgs);
    FormatArgs(nullptr, szText, 0, "1%0", apszArgs);
    EXPECT_STREQ(szText, "1abc");
}

TEST(FormatOrdinal, EndingFollowsTheLastDigits) {
    const auto ordinal = [](std::uint32_t uValue) {
        char szText[16];
        FormatOrdinal(uValue, szText, sizeof szText);
        return std::string(szText);
    };
    EXPECT_EQ(ordinal(0), "0th");
    EXPECT_EQ(ordinal(1), "1st");
    EXPECT_EQ(ordinal(2), "2nd");
    EXPECT_EQ(ordinal(3), "3rd");
    EXPECT_EQ(ordinal(4), "4th");
    EXPECT_EQ(ordinal(11), "11th");
    EXPECT_EQ(ordinal(12), "12th");
    EXPECT_EQ(ordinal(13), "13th");
    EXPECT_EQ(ordinal(21), "21st");
    EXPECT_EQ(ordinal(111), "111th");
    EXPECT_EQ(ordinal(112), "112th");
    EXPECT_EQ(ordinal(122), "122nd");
    EXPECT_EQ(ordinal(4294967295u), "4294967295th");
}

TEST(FormatOrdinal, SignedNumbersKeepTheirSign) {
    char szText[16];
    FormatOrdinal(std::int32_t{-21}, szText, sizeof szText);
    EXPECT_STREQ(szText, "-21st");
    FormatOrdinal(std::int32_t{-2147483647 - 1}, szText, sizeof szText);
    EXPECT_STREQ(szText, "-2147483648th");
    FormatOrdinal(std::int32_t{22}, szText, 4);
    EXPECT_STREQ(szText, "22n");
}

}  // namespace
