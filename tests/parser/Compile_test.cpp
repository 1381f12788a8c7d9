#include <gtest/gtest.h>

#include <string>

#include "ParserInspector.h"
#include "parser/Parser.h"
#include "parser/ParserErrors.h"

namespace {

struct Row {
    const char* pszEquation;
    int nError;
};

void ExpectErrors(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pszEquation);
        EXPECT_EQ(CompileError(row.pszEquation), row.nError);
    }
}

// The steps of an equation as "opcode(operand1,operand2,variable)" of all but the assignment.
std::string StepsOf(const std::string& strEquation) {
    auto parser = MakeParser({strEquation});
    if (!parser->Compile()) return "error " + std::to_string(parser->GetError());
    std::string strSteps;
    for (const ParserStep& step : parser->GetSteps()) {
        if (step.eOpcode == OPCODE_ASSIGN) break;
        if (!strSteps.empty()) strSteps += ' ';
        strSteps += std::to_string(step.eOpcode);
        if (step.eOpcode == OPCODE_VARIABLE) {
            strSteps += "v" + std::to_string(step.nVariable);
        } else if (step.eOpcode >= OPCODE_MULTIPLY && step.eOpcode <= OPCODE_SUBTRACT) {
            strSteps +=
                "(" + std::to_string(step.nOperand1) + "," + std::to_string(step.nOperand2) + ")";
        } else if (step.eOpcode != OPCODE_NUMBER) {
            strSteps += "(" + std::to_string(step.nOperand1) + ")";
        }
    }
    return strSteps;
}

Names TwoDependents() {
    Names names;
    names.dependent = {"Y1", "Y2"};
    return names;
}

}  // namespace

TEST(Compile, EmptyTextAndSpacesOnlyGiveError1) {
    ExpectErrors({{"", 1}, {" ", 1}, {"      ", 1}});
    CParser parser(1, 1, 0, 1);
    EXPECT_STREQ(parser.GetErrorText(1), "You must enter an equation to be used.");
}

TEST(Compile, SlotThatWasNeverSetIsEmpty) {
    CParser parser(1, 1, 0, 1);
    parser.SetIndependentName(0, "X1");
    parser.SetDependentName(0, "Y1");
    EXPECT_EQ(parser.Compile(), 0);
    EXPECT_EQ(parser.GetError(), 1);
}

TEST(Compile, TextOf255CharactersIsAcceptedAndOf256TooLong) {
    std::string strText = "Y1=" + std::string(250, '0') + "+1";
    ASSERT_EQ(strText.size(), 255u);
    EXPECT_EQ(CompileError(strText), 0);
    strText = "Y1=" + std::string(251, '0') + "+1";
    ASSERT_EQ(strText.size(), 256u);
    EXPECT_EQ(CompileError(strText), 22);
    EXPECT_EQ(CompileError("Y1=" + std::string(100000, '1')), 22);
}

TEST(Compile, LeftSideAloneGivesError9) {
    ExpectErrors({{"Y1", 9}, {"Y1+X1=2", 9}, {"Y1(X1)", 9}});
}

TEST(Compile, NothingBehindTheEqualsSignGivesError17) {
    ExpectErrors({{"Y1=", 17}, {"Y1==X1", 17}, {"Y1=*X1", 17}});
    // With a space behind it the operand is missing for the grammar only.
    ExpectErrors({{"Y1= ", 26}, {"Y1=X1+ ", 26}});
}

TEST(Compile, LeftSideMustBeADependentVariable) {
    ExpectErrors({{"=3", 6},
                  {"X1=3", 6},
                  {"P1=3", 6},
                  {"3+Y1=2", 6},
                  {"(Y1)=2", 6},
                  {"SIN(X1)=2", 6},
                  {"-Y1=2", 6}});
}

TEST(Compile, NumberOnTheLeftIsRefusedByTheScanner) {
    ExpectErrors({{"3=Y1", 5}});
}

TEST(Compile, UnbalancedParenthesesGiveError3) {
    ExpectErrors({{"Y1=(X1", 3},
                  {"Y1=X1)", 3},
                  {"Y1=()", 3},
                  {"Y1=((X1)", 3},
                  {"Y1=(X1))", 3},
                  {"Y1=(X1+)", 3},
                  {"Y1=(X1%2)", 3},
                  {"Y1=(PI(3))", 3}});
}

TEST(Compile, SpacesStayInsideNames) {
    ExpectErrors({{"Y1=X1 X2", 16}, {"Y1 =X1", 16}, {"Y1=X1 +2", 16}, {"Y1= X1+2", 0}});
    auto parser = MakeParser({"Y1 =2"});
    EXPECT_EQ(parser->Compile(), 0);
    // The name on the left is added without complaint; the declared one stays without equation.
    ASSERT_EQ(parser->GetVariables().size(), 4u);
    EXPECT_EQ(parser->GetVariables()[3].strName, "Y1 ");
    EXPECT_EQ(parser->GetVariables()[3].bComputed, 1);
    EXPECT_EQ(ParserInspector::LeftName(*parser), "Y1 ");
}

TEST(Compile, TwoOperandsWithNothingBetweenGiveError5) {
    ExpectErrors({{"Y1=2 3", 5},
                  {"Y1=(X1)(X2)", 5},
                  {"Y1=2(X1)", 5},
                  {"Y1=(X1)2", 5},
                  {"Y1=(X1)X1", 5},
                  {"Y1=(X1)=2", 5},
                  {"Y1=X1(2)", 5},
                  {"Y1=X1=2", 5},
                  {"Y1=(X1)SIN(X1)", 5},
                  {"Y1=2=3", 5}});
}

TEST(Compile, FunctionTokenOfNormPassesForASpaceBehindAParenthesis) {
    EXPECT_EQ(StepsOf("Y1=(X1)NORM(X1)"), "2v0 10(0)");
    ExpectErrors({{"Y1=(X1)NORMAX(X1)", 5}});
}

TEST(Compile, ScientificNotationIsAName) {
    ExpectErrors({{"Y1=1e5", 16}, {"Y1=1.5e-3", 16}, {"Y1=2x", 16}});
}

TEST(Compile, MalformedNumberAndUnknownCharacter) {
    ExpectErrors({{"Y1=1.2.3", 19}, {"Y1=#", 26}, {"Y1=X1+#", 26}, {"Y1=\xE4", 26}, {"#", 26}});
}

TEST(Compile, FunctionNeedsItsParentheses) {
    ExpectErrors({{"Y1=sin X1", 4}, {"Y1=LOG10(X1)", 4}, {"Y1=SIN_1", 4}, {"Y1=EXP", 4}});
}

TEST(Compile, FunctionNamesIgnoreCaseAndOtherNamesDoNot) {
    EXPECT_EQ(StepsOf("Y1=COS(X1)"), "2v0 10(0) 21(1)");
    EXPECT_EQ(StepsOf("Y1=cos(X1)"), "2v0 10(0) 21(1)");
    EXPECT_EQ(StepsOf("Y1=Cos (X1)"), "2v0 10(0) 21(1)");
    Names names;
    names.independent = {"x1"};
    names.dependent = {"y1"};
    EXPECT_EQ(CompileError("y1=cos (x1)", names), 0);
    ExpectErrors({{"Y1=x1", 16}, {"y1=X1", 16}, {"Y1=pi", 16}, {"Y1=PI", 0}});
}

TEST(Compile, NothingIsTestedBehindPi) {
    auto parser = MakeParser({"Y1=PI(3)"});
    EXPECT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->GetError(), 0);
    EXPECT_EQ(StepsOf("Y1=PI(3)"), "3");
    EXPECT_EQ(StepsOf("Y1=PI=2"), "3");
}

TEST(Compile, PercentSignEndsTheEquation) {
    EXPECT_EQ(StepsOf("Y1=X1%2"), "2v0");
    // What follows is not even scanned.
    EXPECT_EQ(StepsOf("Y1=X1%)"), "2v0");
    EXPECT_EQ(StepsOf("Y1=(X1)%2*#"), "2v0 10(0)");
}

TEST(Compile, OperatorWhereAnOperandShouldStandGivesError26) {
    ExpectErrors({{"Y1=X1* *X1", 26}, {"Y1=(*X1)", 26}, {"Y1=X1+ /2", 26}, {"Y1=X1^ ^2", 26}});
}

TEST(Compile, OpenParenthesisLastInTheTextGivesError24) {
    ExpectErrors({{"Y1=X1*(", 24}, {"Y1=(", 24}, {"(", 24}});
}

TEST(Compile, UnknownNameGivesError16) {
    ExpectErrors({{"Y1=Q", 16}, {"Y1=X1+P2", 16}, {"Y1=Q+", 16}});
}

TEST(Compile, DependentVariableWithoutEquationGivesError16) {
    auto parser = MakeParser({"Y1=X1"}, TwoDependents());
    EXPECT_EQ(parser->Compile(), 0);
    EXPECT_EQ(parser->GetError(), 16);
}

TEST(Compile, FirstDependentMayNameItselfAndTheSecondMayNot) {
    EXPECT_EQ(CompileError("Y1=Y1+X1"), 0);
    auto parser = MakeParser({"Y1=X1", "Y2=Y2+X1"}, TwoDependents());
    EXPECT_EQ(parser->Compile(), 0);
    EXPECT_EQ(parser->GetError(), 18);
}

TEST(Compile, DependentVariableMustBeDefinedBeforeItIsUsed) {
    auto early = MakeParser({"Y1=Y2+X1", "Y2=X1"}, TwoDependents());
    EXPECT_EQ(early->Compile(), 0);
    EXPECT_EQ(early->GetError(), 18);
    auto late = MakeParser({"Y1=X1", "Y2=Y1+X1"}, TwoDependents());
    EXPECT_EQ(late->Compile(), 1);
    // The first dependent variable is outside the test's bound.
    auto first = MakeParser({"Y2=Y1+X1", "Y1=X1"}, TwoDependents());
    EXPECT_EQ(first->Compile(), 1);
}

TEST(Compile, CountsMustAgreeWithTheNames) {
    CParser none(1, 0, 0, 1);
    EXPECT_EQ(none.Compile(), 0);
    EXPECT_EQ(none.GetError(), 8);
    CParser missing(1, 1, 1, 1);
    missing.SetIndependentName(0, "X1");
    missing.SetDependentName(0, "Y1");
    missing.SetEquation(0, "Y1=X1");
    EXPECT_EQ(missing.Compile(), 0);
    EXPECT_EQ(missing.GetError(), 7);
    CParser many(1, 1, 0, 1);
    many.SetIndependentName(0, "X1");
    many.SetIndependentName(0, "X2");
    many.SetDependentName(0, "Y1");
    many.SetEquation(0, "Y1=X1");
    EXPECT_EQ(many.Compile(), 0);
    EXPECT_EQ(many.GetError(), 7);
}

TEST(Compile, IndexEqualToTheDeclaredCountIsRefused) {
    CParser parser(2, 1, 3, 1);
    parser.SetIndependentName(2, "A");
    EXPECT_EQ(parser.GetError(), 12);
    parser.SetDependentName(1, "A");
    EXPECT_EQ(parser.GetError(), 11);
    parser.SetParameterName(3, "A");
    EXPECT_EQ(parser.GetError(), 13);
    parser.SetEquation(1, "A");
    EXPECT_EQ(parser.GetError(), 14);
    parser.SetIndependentValue(2, 1.0);
    EXPECT_EQ(parser.GetError(), 12);
    parser.SetParameterValue(3, 1.0);
    EXPECT_EQ(parser.GetError(), 13);
    parser.SetVariableValue(0, 1.0);
    EXPECT_EQ(parser.GetError(), 10);
}

TEST(Compile, NegativeIndexAndMissingVariableAreRefusedAlike) {
    CParser parser(2, 1, 3, 1);
    parser.SetIndependentValue(-1, 1.0);
    EXPECT_EQ(parser.GetError(), 12);
    parser.SetParameterValue(-1, 1.0);
    EXPECT_EQ(parser.GetError(), 13);
    parser.SetVariableValue(-1, 1.0);
    EXPECT_EQ(parser.GetError(), 10);
    parser.SetEquation(-1, "A");
    EXPECT_EQ(parser.GetError(), 14);
    parser.SetIndependentValue(0, 1.0);
    EXPECT_EQ(parser.GetError(), 12);
    parser.SetParameterValue(0, 1.0);
    EXPECT_EQ(parser.GetError(), 13);
    CParser negative(-1, -2, -3, -4);
    EXPECT_EQ(negative.Compile(), 0);
    EXPECT_EQ(negative.GetError(), 8);
}

TEST(Compile, VariableIndexCountsFromTheLastCompile) {
    auto parser = MakeParser({"Y1=X1"});
    parser->SetVariableValue(0, 1.0);
    EXPECT_EQ(parser->GetError(), 10);
    EXPECT_EQ(parser->Compile(), 1);
    parser->SetVariableValue(2, 1.0);
    EXPECT_EQ(parser->GetError(), 0);
    parser->SetVariableValue(3, 1.0);
    EXPECT_EQ(parser->GetError(), 10);
}

TEST(Compile, OnlyTheStartOfAnEquationClearsTheError) {
    auto parser = MakeParser({"Y1=X1"});
    parser->SetEquation(7, "");
    EXPECT_EQ(parser->GetError(), 14);
    parser->ResetHistory();
    EXPECT_EQ(parser->GetError(), 14);
    EXPECT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->GetError(), 0);
}

TEST(Compile, SlotTakes999Characters) {
    std::string strText = "Y1=X1" + std::string(2000, ' ');
    auto parser = MakeParser({strText});
    EXPECT_EQ(parser->Compile(), 0);
    EXPECT_EQ(parser->GetError(), 22);
    // A buffer without terminator is read to 999 characters only.
    std::vector<char> text(999, 'A');
    parser->SetEquation(0, text.data());
    EXPECT_EQ(parser->Compile(), 0);
    EXPECT_EQ(parser->GetError(), 22);
}

TEST(Compile, StepsStandChildrenFirst) {
    EXPECT_EQ(StepsOf("Y1=X1+P1"), "2v0 2v1 15(0,1)");
    EXPECT_EQ(StepsOf("Y1=X1-P1*X1/2"), "2v0 2v1 2v0 11(1,2) 3 12(3,4) 16(0,5)");
    EXPECT_EQ(StepsOf("Y1=-X1"), "2v0 9(0)");
    EXPECT_EQ(StepsOf("Y1=+X1"), "2v0");
    EXPECT_EQ(StepsOf("Y1=-X1^2"), "2v0 3 14(0,1) 9(2)");
    EXPECT_EQ(StepsOf("Y1=X1^P1^X1"), "2v0 2v1 2v0 14(1,2) 14(0,3)");
    EXPECT_EQ(StepsOf("Y1=X1^-P1"), "2v0 2v1 9(1) 14(0,2)");
    EXPECT_EQ(StepsOf("Y1=X1*-P1+X1"), "2v0 2v1 9(1) 2v0 15(2,3) 11(0,4)");
    EXPECT_EQ(StepsOf("Y1=SIN(X1)^2"), "2v0 10(0) 3 14(1,2) 25(3)");
    EXPECT_EQ(StepsOf("Y1=SIN(-X1)"), "2v0 9(0) 10(1) 25(2)");
    EXPECT_EQ(StepsOf("Y1=NORMAX(X1)"), "2v0 10(0) 33(1)");
}

TEST(Compile, AssignmentStepClosesAnEquation) {
    auto parser = MakeParser({"Y1=X1*2", "Y2=Y1"}, TwoDependents());
    ASSERT_EQ(parser->Compile(), 1);
    const auto& steps = parser->GetSteps();
    ASSERT_EQ(steps.size(), 6u);
    EXPECT_EQ(steps[3].eOpcode, 8);
    EXPECT_EQ(steps[3].nOperand1, 2);
    EXPECT_EQ(steps[3].nVariable, 2);
    EXPECT_EQ(steps[3].nOperand2, 2);
    EXPECT_EQ(parser->GetDependentStep("Y1"), 3);
    EXPECT_EQ(parser->GetDependentStep("Y2"), 5);
    EXPECT_EQ(steps[5].nOperand2, 4);
    EXPECT_EQ(parser->GetDependentStep("X1"), 0);
    EXPECT_EQ(parser->GetError(), 0);
    EXPECT_EQ(parser->GetDependentStep("Z"), 0);
    EXPECT_EQ(parser->GetError(), 16);
}

TEST(Compile, ParenthesesTakeTheValueOfANumber) {
    auto parser = MakeParser({"Y1=(2.5)"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->GetSteps()[0].dValue, 2.5);
    EXPECT_EQ(parser->GetSteps()[1].eOpcode, 10);
    EXPECT_EQ(parser->GetSteps()[1].dValue, 2.5);
}

TEST(Compile, NamesAreAppendedInTheOrderOfTheCalls) {
    CZDCParser parser(2, 1, 1, 0);
    parser.SetDependentName(0, "Y1");
    parser.SetIndependentName(1, "X2");
    parser.SetIndependentName(1, "X2");
    ASSERT_EQ(parser.GetVariables().size(), 3u);
    EXPECT_EQ(parser.GetVariables()[0].strName, "Y1");
    EXPECT_EQ(parser.GetVariables()[2].strName, "X2");
    EXPECT_EQ(parser.GetVariables()[2].dValue, 0.0);
    EXPECT_EQ(parser.GetVariables()[2].nStep, 0);
    EXPECT_EQ(parser.GetVariables()[2].bComputed, 0);
}

TEST(Compile, SpecialOperatorsAreTold) {
    for (const char* pszText :
         {"Y1=X1^2", "Y1=EXP(X1)", "Y1=SQRT(X1)", "Y1=INTG(X1)", "Y1=DIFF(X1)"}) {
        SCOPED_TRACE(pszText);
        auto parser = MakeParser({pszText});
        ASSERT_EQ(parser->Compile(), 1);
        EXPECT_EQ(parser->HasSpecialOperator(), 1);
    }
    auto parser = MakeParser({"Y1=SIN(X1)+LN(X1)*RAMP(X1)/COS(X1)-TAN(X1)"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->HasSpecialOperator(), 0);
}

TEST(Compile, DeepNestingUpToTheLimitOfTheText) {
    const std::string strNested = "Y1=" + std::string(125, '(') + "X1" + std::string(125, ')');
    ASSERT_EQ(strNested.size(), 255u);
    EXPECT_EQ(CompileError(strNested), 0);
    EXPECT_EQ(ValueOf(strNested, 4.5), 4.5);
    EXPECT_EQ(CompileError("Y1=" + std::string(251, '(') + "2"), 3);
    // Each further sign but one is taken by a sum of its own.
    EXPECT_EQ(CompileError("Y1=" + std::string(250, '-') + "X1"), 0);
    EXPECT_EQ(ValueOf("Y1=" + std::string(250, '-') + "X1", 4.5), 4.5);
    std::string strPowers = "Y1=X1";
    while (strPowers.size() < 254) strPowers += "^1";
    EXPECT_EQ(ValueOf(strPowers, 4.5), 4.5);
}
