#include "parser/CustomFunction.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/ParserErrors.h"

namespace {

class Recorder final : public CustomFunctionMessages {
  public:
    void ShowString(int nStringId) override { m_Shown.push_back(std::to_string(nStringId)); }
    void ShowError(const char* pszText) override { m_Shown.push_back(pszText); }
    std::vector<std::string> m_Shown;
};

// The message that a check shows: the id of a string, a text, or "" for none.
class CustomFunctionCheck : public testing::Test {
  protected:
    void SetUp() override { SetBadWord(""); }
    std::string Check(const std::string& strText, bool bShowMessages = true) {
        Recorder recorder;
        m_eFault = CheckCustomFunction(strText.c_str(), bShowMessages, recorder, m_Function);
        EXPECT_LE(recorder.m_Shown.size(), 1u);
        return recorder.m_Shown.empty() ? "" : recorder.m_Shown[0];
    }
    CustomFunction m_Function;
    CustomFunctionFault m_eFault = CUSTOM_FUNCTION_GOOD;
};

constexpr const char* kUnknownName = "A variable was expected in the equation but none was found.";

}  // namespace

TEST_F(CustomFunctionCheck, GoodFunctionInEitherCase) {
    EXPECT_EQ(Check("p1*x1"), "");
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_GOOD);
    EXPECT_STREQ(m_Function.szEquation, "y1=p1*x1");
    EXPECT_EQ(m_Function.nIndependents, 1);
    EXPECT_EQ(m_Function.nParameters, 1);
    EXPECT_EQ(m_Function.nDependents, 1);
    EXPECT_STREQ(m_Function.szIndependents[0], "X1");
    EXPECT_STREQ(m_Function.szParameters[0], "P1");
    EXPECT_STREQ(m_Function.szDependents[0], "Y1");
    EXPECT_EQ(Check("P1*X1"), "");
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_GOOD);
    EXPECT_STREQ(m_Function.szEquation, "y1=P1*X1");
}

TEST_F(CustomFunctionCheck, VariablesAreListedInOrder) {
    EXPECT_EQ(Check("p3*exp(-x2/p1)+p9"), "");
    EXPECT_EQ(m_Function.nParameters, 3);
    EXPECT_EQ(m_Function.aParameters[0], 1);
    EXPECT_EQ(m_Function.aParameters[1], 3);
    EXPECT_EQ(m_Function.aParameters[2], 9);
    EXPECT_EQ(m_Function.aIndependents[0], 2);
    EXPECT_STREQ(m_Function.szParameters[2], "P9");
    EXPECT_STREQ(m_Function.szIndependents[0], "X2");
}

TEST_F(CustomFunctionCheck, SpacesAreRemoved) {
    EXPECT_EQ(Check("  p 1 * x1 "), "");
    EXPECT_STREQ(m_Function.szEquation, "y1=p1*x1");
}

TEST_F(CustomFunctionCheck, NoParametersStops) {
    EXPECT_EQ(Check("X1"), "2226");
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_NO_PARAMETERS);
}

TEST_F(CustomFunctionCheck, SecondDependentOnTheRightIsNotDefined) {
    EXPECT_EQ(Check("Y2*p1*x1"), "The equation you have entered has no variables.");
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_NOT_COMPILED);
    EXPECT_EQ(m_Function.nError, 18);
}

TEST_F(CustomFunctionCheck, NamesThatAreNotLegalAreNotInterpreted) {
    for (const char* pszText : {"a*x1+p1", "x7*p1*x1", "p25*x1", "p1*x1+1e5"}) {
        SCOPED_TRACE(pszText);
        EXPECT_EQ(Check(pszText), "2214");
        EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_NOT_INTERPRETED);
    }
}

TEST_F(CustomFunctionCheck, OneIndependentVariableIsTheLimit) {
    EXPECT_EQ(Check("x1+x2+p1"), "2219");
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_MANY_INDEPENDENTS);
    // Their number is told before the missing parameters.
    EXPECT_EQ(Check("x1+x2"), "2219");
}

TEST_F(CustomFunctionCheck, ParameterOfTwoDigitsIsNotKnownToTheParser) {
    EXPECT_EQ(Check("p10*x1"), kUnknownName);
    EXPECT_EQ(m_eFault, CUSTOM_FUNCTION_NOT_COMPILED);
    EXPECT_EQ(m_Function.nError, 16);
    EXPECT_EQ(Check("p24*x1"), kUnknownName);
}

TEST_F(CustomFunctionCheck, UnknownNameShowsTheWordOfAnEarlierScan) {
    SetBadWord("TRACE9");
    EXPECT_EQ(Check("p10*x1"), "The variable 'TRACE9' is not known.");
    SetBadWord("");
}

TEST_F(CustomFunctionCheck, PiIsNoName) {
    EXPECT_EQ(Check("pi*p1*x1"), "");
}

TEST_F(CustomFunctionCheck, EmptyBoxIsNotInterpreted) {
    EXPECT_EQ(Check(""), "2214");
    EXPECT_EQ(Check("    "), "2214");
    EXPECT_STREQ(m_Function.szEquation, "y1=");
}

TEST_F(CustomFunctionCheck, TextOf252CharactersFitsAndALongerOneIsCut) {
    std::string strText = "p1*x1";
    while (strText.size() < 251) strText += "+1";
    strText += "1";
    ASSERT_EQ(strText.size(), 252u);
    EXPECT_EQ(Check(strText), "");
    EXPECT_EQ(m_Function.szEquation, "y1=" + strText);
    EXPECT_EQ(Check(strText + "+p2"), "");
    EXPECT_EQ(m_Function.szEquation, "y1=" + strText);
    EXPECT_EQ(m_Function.nParameters, 1);
    EXPECT_EQ(Check(strText + std::string(100000, '#')), "");
    // The cut may leave an operator without its operand.
    EXPECT_EQ(Check(strText.substr(0, 251) + "+1"), "2214");
}

TEST_F(CustomFunctionCheck, BoxIsReadTo255Characters) {
    std::string strText = "p1*x1";
    strText += std::string(250, ' ');
    EXPECT_EQ(Check(strText + "#"), "");
    const std::vector<char> unterminated(255, ' ');
    Recorder recorder;
    EXPECT_EQ(CheckCustomFunction(unterminated.data(), true, recorder, m_Function),
              CUSTOM_FUNCTION_NOT_INTERPRETED);
}

TEST_F(CustomFunctionCheck, KeptEquationWasItsOwnFormat) {
    EXPECT_EQ(Check("p1*x1%5"), "");
    EXPECT_STREQ(m_Function.szEquation, "y1=p1*x1");
    EXPECT_EQ(Check("p1*x1%n"), "2214");
    EXPECT_STREQ(m_Function.szEquation, "y1=p1*x1");
    Check("x1%s*%99999d%n%%");
    EXPECT_STREQ(m_Function.szEquation, "y1=x1*%");
}

TEST_F(CustomFunctionCheck, SyntaxFaultsShowTheParsersText) {
    EXPECT_EQ(Check("(p1)(x1)"), "Missing operator.");
    EXPECT_EQ(Check("p1*(x1+)"),
              "There is a parenthesis in the open equation, but no corresponding close "
              "parenthesis.");
    EXPECT_EQ(Check("p1=x1"), "Missing operator.");
    EXPECT_EQ(Check("p1*x1*(+)"),
              "There is a parenthesis in the open equation, but no corresponding close "
              "parenthesis.");
}

TEST_F(CustomFunctionCheck, LexicalFaultsAreNotInterpreted) {
    for (const char* pszText :
         {"(p1*x1", "p1**x1", "p1*x1+1.2.3", "sin x1*p1", "p1*x1*#", "=p1*x1"}) {
        SCOPED_TRACE(pszText);
        EXPECT_EQ(Check(pszText), "2214");
    }
}

TEST_F(CustomFunctionCheck, SilentCheckTakesTheSameSteps) {
    for (const char* pszText : {"", "x1", "x1+x2", "p10*x1", "p1*x1"}) {
        SCOPED_TRACE(pszText);
        Check(pszText, true);
        const CustomFunctionFault eShown = m_eFault;
        EXPECT_EQ(Check(pszText, false), "");
        EXPECT_EQ(m_eFault, eShown);
    }
}

TEST_F(CustomFunctionCheck, FailedCheckKeepsTheFunctionFoundBefore) {
    Check("p1*x1+p2");
    Check("p1*x1+q");
    EXPECT_EQ(m_Function.nParameters, 2);
    EXPECT_STREQ(m_Function.szEquation, "y1=p1*x1+q");
}

TEST(CustomFunctionValues, AreThoseOfTheEquation) {
    const double aX[] = {0.0, 1.0, 3.0}, aP[] = {2.0, -0.5};
    double aY[3] = {};
    EXPECT_TRUE(EvaluateCustomFunction("P1 * x1 + p2", aP, 2, aX, aY, 3));
    EXPECT_EQ(aY[0], -0.5);
    EXPECT_EQ(aY[1], 1.5);
    EXPECT_EQ(aY[2], 5.5);
}

TEST(CustomFunctionValues, WithoutAFiniteOneAreNoNumber) {
    const double aX[] = {0.0, 1.0, 1.0, 4.0}, aP[] = {8.0};
    double aY[4] = {};
    EXPECT_TRUE(EvaluateCustomFunction("p1/(x1-1)", aP, 1, aX, aY, 4));
    EXPECT_EQ(aY[0], -8.0);
    EXPECT_TRUE(std::isnan(aY[1]));
    EXPECT_TRUE(std::isnan(aY[2]));
    EXPECT_EQ(aY[3], 8.0 / 3.0);
}

TEST(CustomFunctionValues, NeedAGoodTextAndItsParameters) {
    const double aX[] = {1.0}, aP[] = {1.0, 2.0};
    double aY[] = {77.0};
    EXPECT_FALSE(EvaluateCustomFunction("p1*", aP, 2, aX, aY, 1));
    EXPECT_FALSE(EvaluateCustomFunction("x1", aP, 2, aX, aY, 1));
    EXPECT_FALSE(EvaluateCustomFunction("p1*x1+p2+p3", aP, 2, aX, aY, 1));
    EXPECT_EQ(aY[0], 77.0);
}
