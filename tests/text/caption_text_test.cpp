// Captions with one place for a text from outside.
#include <gtest/gtest.h>

#include <string>

#include "text/CaptionText.h"

namespace {

std::string Caption(const char* szTemplate, const char* szArgument) {
    char szText[32] = "untouched";
    FormatCaption(szText, szTemplate, szArgument);
    return szText;
}

std::string Lower(const char* szNoun) {
    char szText[32] = "untouched";
    LowerNoun(szText, szNoun);
    return szText;
}

TEST(FormatCaption, TheFirstPlaceTakesTheText) {
    EXPECT_EQ(Caption("Select %ss:", "Trace"), "Select Traces:");
    EXPECT_EQ(Caption("Select %s Set &2:", "Trace"), "Select Trace Set &2:");
    EXPECT_EQ(Caption("%d of", "7"), "7 of");
    EXPECT_EQ(Caption("%s and %s", "one"), "one and ");
}

TEST(FormatCaption, OtherConversionsGiveNothing) {
    EXPECT_EQ(Caption("[%x%5.2f%s]", "text"), "[text]");
    EXPECT_EQ(Caption("%x[%s]", "text"), "[text]");
    EXPECT_EQ(Caption("50%% of %s", "all"), "50% of all");
    EXPECT_EQ(Caption("end%", "text"), "end");
}

TEST(FormatCaption, TheTextStandsAsItIs) {
    EXPECT_EQ(Caption("<%s>", "%s %n %%"), "<%s %n %%>");
    EXPECT_EQ(Caption("<%s>", nullptr), "<>");
    EXPECT_EQ(Caption(nullptr, "text"), "");
}

TEST(FormatCaption, TheResultIsCutToTheBuffer) {
    char szText[8] = "xxxxxxx";
    FormatCaption(szText, 5, "1%s", "abcdefgh");
    EXPECT_STREQ(szText, "1abc");
    EXPECT_EQ(szText[5], 'x');
}

TEST(FormatCaption, PlacesByNumberTakeTheArgumentOfTheirNumber) {
    char szText[32];
    FormatCaption(szText, sizeof szText, "%1 of %0, %1%% %s%2", {"ten", "2"},
                  TemplatePlaces::kNumbers);
    EXPECT_STREQ(szText, "2 of ten, 2% s");
    FormatCaption(szText, sizeof szText, "%1 of %d, %s%s", {"ten", "2"});
    EXPECT_STREQ(szText, " of ten, 2");
}

TEST(LowerNoun, LettersOfTheCodePageLoseTheirCase) {
    EXPECT_EQ(Lower("Trace X2"), "trace x2");
    EXPECT_EQ(Lower("A@Z["), "a@z[");
    EXPECT_EQ(Lower("\xC0\xD6\xDE\xD7\xDF"), "\xE0\xF6\xFE\xD7\xDF");
    EXPECT_EQ(Lower(nullptr), "");
}

}  // namespace
