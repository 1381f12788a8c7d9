#include <gtest/gtest.h>

#include "text/BoundedText.h"
#include "text/TextTests.h"

namespace {

TEST(TextTests, BlankTexts) {
    EXPECT_TRUE(IsBlank(nullptr));
    EXPECT_TRUE(IsBlank(""));
    EXPECT_TRUE(IsBlank(" \t"));
    EXPECT_FALSE(IsBlank(" a"));
}

TEST(TextTests, EmptyTextIsPrintableAndAlphabetic) {
    EXPECT_TRUE(IsAllPrintable(""));
    EXPECT_TRUE(IsAllAlpha(""));
    EXPECT_TRUE(IsAllPrintable(nullptr));
    EXPECT_TRUE(IsAllAlpha(nullptr));
}

TEST(TextTests, PrintableAndAlphabeticCharacters) {
    EXPECT_TRUE(IsAllPrintable("a b~"));
    EXPECT_FALSE(IsAllPrintable("a\tb"));
    EXPECT_FALSE(IsAllPrintable("\x7F"));
    EXPECT_FALSE(IsAllPrintable("\xB5"));
    EXPECT_TRUE(IsAllAlpha("azAZ"));
    EXPECT_FALSE(IsAllAlpha("a1"));
    EXPECT_FALSE(IsAllAlpha("a b"));
    EXPECT_FALSE(IsAllAlpha("@[`{"));
}

TEST(TextTests, ControlCharactersLieBelowThirtyOne) {
    EXPECT_TRUE(HasControlChars("a\x1E"));
    EXPECT_FALSE(HasControlChars("a\x1F"));
    EXPECT_FALSE(HasControlChars("\xB5\xFF"));
    EXPECT_FALSE(HasControlChars(""));
    EXPECT_FALSE(HasControlChars(nullptr));
}

TEST(TextTests, BlanksAtTheEdges) {
    EXPECT_TRUE(HasEdgeSpaces(" a"));
    EXPECT_TRUE(HasEdgeSpaces("a "));
    EXPECT_FALSE(HasEdgeSpaces("a b"));
    EXPECT_FALSE(HasEdgeSpaces("\ta"));
    EXPECT_FALSE(HasEdgeSpaces(""));
    EXPECT_TRUE(HasEdgeSpaces("\x01 "));
    EXPECT_FALSE(HasEdgeSpaces(nullptr));
}

TEST(TextTests, UnprintableCharactersPassEverySet) {
    EXPECT_TRUE(IsCharInSet(8, "0123"));
    EXPECT_TRUE(IsCharInSet(0, "0123"));
    EXPECT_TRUE(IsCharInSet(0xB5, "0123"));
    EXPECT_TRUE(IsCharInSet('1', "0123"));
    EXPECT_FALSE(IsCharInSet('4', "0123"));
    EXPECT_FALSE(IsCharInSet('4', nullptr));
}

TEST(TextTests, NumberTexts) {
    EXPECT_TRUE(IsNumberText("0123456789.+-eE"));
    EXPECT_FALSE(IsNumberText("1 2"));
    EXPECT_FALSE(IsNumberText("1,2"));
    EXPECT_FALSE(IsNumberText("0x1"));
}

TEST(TextTests, ListsCompareWithOrWithoutCase) {
    const char* const apszList[] = {"Alpha", nullptr, "Beta"};
    EXPECT_TRUE(IsInList("Beta", apszList, 3, true));
    EXPECT_FALSE(IsInList("beta", apszList, 3, true));
    EXPECT_TRUE(IsInList("beta", apszList, 3, false));
    EXPECT_FALSE(IsInList("Gamma", apszList, 3, false));
    EXPECT_FALSE(IsInList("Beta", apszList, 2, true));
    EXPECT_FALSE(IsInList(nullptr, apszList, 3, true));
    EXPECT_FALSE(IsInList("Beta", nullptr, 3, true));
}

TEST(BoundedText, CopyIsCutAndAlwaysEnds) {
    char szText[4] = "xxx";
    EXPECT_EQ(CopyText(szText, "abcdef"), 3);
    EXPECT_STREQ(szText, "abc");
    EXPECT_EQ(CopyText(szText, 1, "abc"), 0);
    EXPECT_STREQ(szText, "");
    EXPECT_EQ(CopyText(szText, static_cast<const char*>(nullptr)), 0);
    EXPECT_STREQ(szText, "");
    szText[0] = 'q';
    EXPECT_EQ(CopyText(szText, 0, "abc"), 0);
    EXPECT_EQ(szText[0], 'q');
    EXPECT_EQ(CopyText(nullptr, 5, "abc"), 0);
    EXPECT_EQ(CopyText(szText, "ab"), 2);
    EXPECT_EQ(CopyText(szText, 4, szText), 2);
    EXPECT_STREQ(szText, "ab");
}

TEST(BoundedText, WriterCutsAtTheEnd) {
    char szText[6];
    BoundedWriter writer(szText, sizeof szText);
    EXPECT_STREQ(szText, "");
    EXPECT_TRUE(writer.Put("abc"));
    EXPECT_FALSE(writer.PutWhole("def"));
    EXPECT_STREQ(szText, "abc");
    EXPECT_FALSE(writer.Put("def"));
    EXPECT_STREQ(szText, "abcde");
    EXPECT_FALSE(writer.Put('x'));
    EXPECT_EQ(writer.Length(), 5);
    BoundedWriter none(nullptr, 5);
    EXPECT_FALSE(none.Put('x'));
}

}  // namespace
