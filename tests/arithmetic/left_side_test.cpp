// Where a left side goes, and what is read of an expression.
#include <gtest/gtest.h>

#include <string>

#include "arithmetic/LeftSide.h"

namespace {

// The expression, with "|" for the caret, after a left side was assigned; "|" stands behind what
// was put in.
std::string Assigned(std::string sText, const char* szLeftSide, bool bAddEquals = true) {
    const std::size_t nCaret = sText.find('|');
    sText.erase(nCaret, 1);
    const TextEdit edit = AssignToLeftSide(sText, static_cast<int>(nCaret), szLeftSide, bAddEquals);
    sText.replace(static_cast<std::size_t>(edit.nFirst),
                  static_cast<std::size_t>(edit.nEnd - edit.nFirst), edit.sText + '|');
    return sText;
}

TEST(LeftSide, OfAnEmptyBoxIsFollowedByAnEquals) {
    EXPECT_EQ(Assigned("|", "t1"), "t1 = |");
    EXPECT_EQ(Assigned("  |", "t1"), "t1 = |");
}

TEST(LeftSide, StandsInFrontOfAnExpressionThatHasNone) {
    EXPECT_EQ(Assigned("sin(x)|", "t1"), "t1 = |sin(x)");
    EXPECT_EQ(Assigned("|sin(x)", "t1"), "t1 = |sin(x)");
    EXPECT_EQ(Assigned(" sin|(x)", "t1"), "t1 = |sin(x)");
}

TEST(LeftSide, TakesThePlaceOfTheOneThatIsThere) {
    EXPECT_EQ(Assigned("t1| = sin(x)", "t2"), "t2 = |sin(x)");
    EXPECT_EQ(Assigned("|t1=sin(x)", "t2..5"), "t2..5 = |sin(x)");
    EXPECT_EQ(Assigned("t1 |=   sin(x)", "t2"), "t2 = |sin(x)");
    EXPECT_EQ(Assigned("t1 |=", "t2"), "t2 = |");
}

TEST(LeftSide, GoesToTheCaretOnTheRightSide) {
    EXPECT_EQ(Assigned("t1 = |", "t2"), "t1 = t2|");
    EXPECT_EQ(Assigned("t1 =| (- t3)", "t2"), "t1 =t2| (- t3)");
    EXPECT_EQ(Assigned("t1 = (t2 - |)", "t3"), "t1 = (t2 - t3|)");
}

TEST(LeftSide, OfAFormWithoutOneGoesToTheCaret) {
    EXPECT_EQ(Assigned("|", "A..C", false), "A..C|");
    EXPECT_EQ(Assigned("sin(|)", "A", false), "sin(A|)");
}

TEST(LeftSide, TakesACaretOutsideOfTheText) {
    EXPECT_EQ(AssignToLeftSide("a=b", 99, "t", true).nFirst, 3);
    EXPECT_EQ(AssignToLeftSide("a=b", -5, "t", true).nFirst, 0);
}

TEST(RightSide, IsWhatStandsBehindTheFirstEquals) {
    EXPECT_EQ(RightSideOf("A=B=C"), "B=C");
    EXPECT_EQ(RightSideOf(" A = B "), "B");
    EXPECT_EQ(RightSideOf(" A+B "), "A+B");
    EXPECT_EQ(RightSideOf("A="), "");
}

TEST(Expression, EndsWithAnOperatorOrNot) {
    for (const char* szText : {"A+", "A-", "A*", "A/", "A^"})
        EXPECT_TRUE(EndsWithOperator(szText)) << szText;
    for (const char* szText : {"", "A", "A+ ", "A=", "+A", "(A)"})
        EXPECT_FALSE(EndsWithOperator(szText)) << szText;
}

TEST(Expression, ItsLastEqualsIsFound) {
    EXPECT_EQ(FindLastEquals("A=B=C"), 3);
    EXPECT_EQ(FindLastEquals("=A"), 0);
    EXPECT_EQ(FindLastEquals("A"), -1);
    EXPECT_EQ(FindLastEquals(""), -1);
}

}  // namespace
