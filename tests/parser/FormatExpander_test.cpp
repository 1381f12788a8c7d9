#include "text/FormatExpander.h"

#include <gtest/gtest.h>

TEST(FormatExpander, PlainTextStandsForItself) {
    EXPECT_EQ(ExpandWithoutArguments(""), "");
    EXPECT_EQ(ExpandWithoutArguments("y1=p1*x1"), "y1=p1*x1");
}

TEST(FormatExpander, DoubledPercentGivesOne) {
    EXPECT_EQ(ExpandWithoutArguments("50%%"), "50%");
    EXPECT_EQ(ExpandWithoutArguments("%%%%"), "%%");
    EXPECT_EQ(ExpandWithoutArguments("%%d"), "%d");
    EXPECT_EQ(ExpandWithoutArguments("%5%"), "%");
}

TEST(FormatExpander, ConversionsGiveNothing) {
    for (const char* pszText :
         {"%d", "%s", "%n", "%S", "%N", "%x", "%99999d", "%-08.3f", "%*d", "%.*s", "%ld", "%lld",
          "%hhu", "%I64d", "%I32u", "%+ #0'5.2Lg", "%p", "%c"}) {
        SCOPED_TRACE(pszText);
        EXPECT_EQ(ExpandWithoutArguments("a" + std::string(pszText) + "-"), "a-");
    }
}

TEST(FormatExpander, BrokenConversionGivesNothingAndKeepsWhatBrokeIt) {
    EXPECT_EQ(ExpandWithoutArguments("3%"), "3");
    EXPECT_EQ(ExpandWithoutArguments("3%2"), "3");
    EXPECT_EQ(ExpandWithoutArguments("3%2.l"), "3");
    EXPECT_EQ(ExpandWithoutArguments("%(a)"), "(a)");
    EXPECT_EQ(ExpandWithoutArguments("%5/2"), "/2");
}

TEST(FormatExpander, LimitedBufferIsCutAndTerminated) {
    char szBuffer[4] = "zzz";
    EXPECT_EQ(ExpandWithoutArguments("ab%%cdef", szBuffer, sizeof szBuffer), 3u);
    EXPECT_STREQ(szBuffer, "ab%");
    EXPECT_EQ(ExpandWithoutArguments("%d", szBuffer, sizeof szBuffer), 0u);
    EXPECT_STREQ(szBuffer, "");
    EXPECT_EQ(ExpandWithoutArguments("abc", szBuffer, 1), 0u);
    EXPECT_STREQ(szBuffer, "");
    szBuffer[0] = 'q';
    EXPECT_EQ(ExpandWithoutArguments("abc", szBuffer, 0), 0u);
    EXPECT_EQ(szBuffer[0], 'q');
}
