#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ParserInspector.h"
#include "parser/Parser.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A compiled parser of X1, P1 and Y1, evaluated by the program or by the walk over the steps.
class Evaluate : public testing::TestWithParam<bool> {
  protected:
    void Compile(const std::string& strEquation) {
        m_pParser = MakeParser({strEquation});
        ASSERT_EQ(m_pParser->Compile(), 1);
        if (!GetParam()) ParserInspector::DropProgram(*m_pParser);
    }
    double At(double x, double p = 0.0) {
        m_pParser->SetIndependentValue(0, x);
        m_pParser->SetParameterValue(0, p);
        double dResult = -54321.0;
        m_nResult = m_pParser->Evaluate("Y1", &dResult);
        return dResult;
    }
    std::unique_ptr<CZDCParser> m_pParser;
    int m_nResult = -1;
};

INSTANTIATE_TEST_SUITE_P(ByProgramAndByWalk, Evaluate, testing::Bool(),
                         [](const auto& param) { return param.param ? "Program" : "Walk"; });

Names Dependents(std::vector<std::string> dependent) {
    Names names;
    names.dependent = std::move(dependent);
    return names;
}

}  // namespace

TEST_P(Evaluate, PrecedenceOfSignsAndPowers) {
    const struct {
        const char* pszEquation;
        double dValue;
    } rows[] = {
        {"Y1=-2^2", -4.0},      {"Y1=2^3^2", 512.0},     {"Y1=2^-1", 0.5},
        {"Y1=2*-3+1", -4.0},    {"Y1=12/-2+8", 2.0},     {"Y1=7-2-1", 4.0},
        {"Y1=16/4/2", 2.0},     {"Y1=2+3*4", 14.0},      {"Y1=(2+3)*4", 20.0},
        {"Y1=2*+3-1", 4.0},     {"Y1=- -2", 2.0},        {"Y1=--2+1", 1.0},
        {"Y1=RECT(-2)^2", 4.0}, {"Y1=RECT((2-5))", 3.0}, {"Y1=1.5+.25+2.", 0.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.pszEquation);
        if (row.dValue == 0.0) {
            // A point that ends the text is no number.
            EXPECT_EQ(CompileError(row.pszEquation), 5);
            continue;
        }
        Compile(row.pszEquation);
        EXPECT_EQ(At(0.0), row.dValue);
        EXPECT_EQ(m_nResult, 1);
    }
}

TEST_P(Evaluate, FunctionTakesThePowerBehindIt) {
    Compile("Y1=SIN(X1)^2");
    volatile double x = 3.0;
    EXPECT_NEAR(At(3.0), std::sin(x * x), 1e-15);
    Compile("Y1=(SIN(X1))^2");
    EXPECT_NEAR(At(3.0), std::sin(x) * std::sin(x), 1e-15);
}

TEST_P(Evaluate, InverseOfZeroIsZero) {
    Compile("Y1=INV(X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(At(4.0), 0.25);
}

TEST_P(Evaluate, RampNeedsALastTime) {
    Compile("Y1=RAMP(X1)");
    m_pParser->SetTime(3.0);
    EXPECT_EQ(At(8.0), 0.0);
    EXPECT_TRUE(std::signbit(At(-8.0)));
    m_pParser->SetMaxTime(4.0);
    EXPECT_EQ(At(8.0), 6.0);
}

TEST_P(Evaluate, NormWithZeroRangeIsZeroOrOne) {
    Compile("Y1=NORM(X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(At(-7.0), 1.0);
    m_pParser->SetRange(4.0);
    m_pParser->SetMinimum(1.0);
    EXPECT_EQ(At(3.0), 0.5);
}

TEST_P(Evaluate, NormToLimitOfZeroIsZeroOrOne) {
    Compile("Y1=NORMAX(X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(At(5.0), 1.0);
    m_pParser->SetMaximum(8.0);
    EXPECT_EQ(At(2.0), 0.25);
    Compile("Y1=NORMIN(X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(At(5.0), 1.0);
    m_pParser->SetMinimum(-8.0);
    EXPECT_EQ(At(2.0), -0.25);
}

TEST_P(Evaluate, FactorialHasItsOwnRules) {
    Compile("Y1=FACT(X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(At(-3.0), 0.0);
    EXPECT_EQ(At(0.5), 0.0);
    EXPECT_EQ(At(1.0), 1.0);
    EXPECT_EQ(At(2.5), 1.5);
    EXPECT_EQ(At(3.0), 6.0);
    EXPECT_EQ(At(10.0), 3628800.0);
    EXPECT_EQ(At(200.0), At(170.0));
    EXPECT_EQ(At(kInfinity), At(170.0));
    EXPECT_GT(At(170.0), 7.2e306);
}

TEST_P(Evaluate, IntegralRunsOverTheCalls) {
    Compile("Y1=INTG(X1)");
    m_pParser->SetTime(1.0);
    m_pParser->SetNextTime(1.5);
    m_pParser->SetStartTime(77.0);
    EXPECT_EQ(At(4.0), 2.0);
    EXPECT_EQ(At(4.0), 4.0);
    EXPECT_EQ(At(-2.0), 3.0);
    m_pParser->ResetHistory();
    EXPECT_EQ(m_pParser->GetSteps()[0].bReset, 1);
    EXPECT_EQ(At(4.0), 2.0);
}

TEST_P(Evaluate, DifferenceQuotientKeepsItsHistoryAtAnIntervalOfZero) {
    Compile("Y1=DIFF(X1)");
    m_pParser->SetNextTime(0.5);
    EXPECT_EQ(At(4.0), 8.0);
    EXPECT_EQ(At(5.0), 2.0);
    m_pParser->SetNextTime(0.0);
    EXPECT_EQ(At(9.0), 0.0);
    m_pParser->SetNextTime(0.5);
    EXPECT_EQ(At(6.0), 2.0);
}

TEST_P(Evaluate, HistoryStandsInTheArgumentsStep) {
    Compile("Y1=INTG(X1)+INTG(X1)");
    m_pParser->SetNextTime(1.0);
    EXPECT_EQ(At(3.0), 6.0);
    EXPECT_EQ(At(3.0), 12.0);
    const auto& steps = m_pParser->GetSteps();
    ASSERT_EQ(steps[2].eOpcode, OPCODE_INTG);
    EXPECT_EQ(steps[1].dState, 6.0);
    EXPECT_EQ(steps[0].dState, 0.0);
    EXPECT_EQ(steps[2].dState, 0.0);
}

TEST_P(Evaluate, OnlyTheResultItselfIsTestedForMathErrors) {
    Compile("Y1=SQRT(X1)");
    EXPECT_TRUE(std::isnan(At(-1.0)));
    EXPECT_EQ(m_nResult, 0);
    EXPECT_EQ(m_pParser->GetError(), 25);
    Compile("Y1=NORM(SQRT(X1))");
    EXPECT_EQ(At(-1.0), 1.0);
    EXPECT_EQ(m_nResult, 1);
    Compile("Y1=1/(1/X1)");
    EXPECT_EQ(At(0.0), 0.0);
    EXPECT_EQ(m_nResult, 1);
    EXPECT_EQ(m_pParser->GetError(), 0);
    Compile("Y1=1/X1");
    EXPECT_EQ(At(0.0), kInfinity);
    EXPECT_EQ(m_nResult, 0);
    EXPECT_EQ(m_pParser->GetError(), 25);
}

TEST_P(Evaluate, WithAnErrorSetEveryResultIsOneAndFails) {
    Compile("Y1=X1");
    m_pParser->SetIndependentValue(9, 1.0);
    EXPECT_EQ(m_pParser->GetError(), 12);
    EXPECT_EQ(At(5.0), 1.0);
    EXPECT_EQ(m_nResult, 0);
    EXPECT_EQ(m_pParser->GetError(), 12);
}

TEST_P(Evaluate, ResultOfOneIsNoFault) {
    Compile("Y1=X1");
    EXPECT_EQ(At(1.0), 1.0);
    EXPECT_EQ(m_nResult, 1);
}

TEST_P(Evaluate, UnknownNameLeavesTheResult) {
    Compile("Y1=X1");
    double dResult = 3.25;
    EXPECT_EQ(m_pParser->Evaluate("Y", &dResult), 1);
    EXPECT_EQ(m_pParser->Evaluate("Y11", &dResult), 1);
    EXPECT_EQ(m_pParser->Evaluate("", &dResult), 1);
    EXPECT_EQ(dResult, 3.25);
    EXPECT_EQ(m_pParser->GetError(), 0);
}

TEST_P(Evaluate, NameWithoutEquationGivesTheFirstStep) {
    Compile("Y1=X1*P1");
    At(6.0, 7.0);
    double dResult = 0.0;
    EXPECT_EQ(m_pParser->Evaluate("P1", &dResult), 1);
    EXPECT_EQ(dResult, 6.0);
}

TEST_P(Evaluate, EquationThatNamesItselfAddsUpOnce) {
    Compile("Y1=Y1+X1");
    EXPECT_EQ(At(2.0), 4.0);
    // Its value is known now, until a variable's value is set.
    EXPECT_EQ(At(5.0), 4.0);
    m_pParser->SetVariableValue(2, 100.0);
    EXPECT_EQ(At(5.0), 110.0);
}

TEST_P(Evaluate, ParameterChangesReachTheResult) {
    Compile("Y1=P1^2*X1+P1");
    EXPECT_EQ(At(1.0, 3.0), 12.0);
    EXPECT_EQ(At(1.0, 4.0), 20.0);
    m_pParser->SetVariableValue(1, 5.0);
    double dResult = 0.0;
    EXPECT_EQ(m_pParser->Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, 30.0);
    m_pParser->SetVariableValue(0, 2.0);
    EXPECT_EQ(m_pParser->Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, 55.0);
}

TEST_P(Evaluate, StepsKeepTheValueLastComputed) {
    Compile("Y1=(X1+P1)*(X1+P1)");
    At(2.0, 3.0);
    m_pParser->SetIndependentValue(0, 50.0);
    m_pParser->SetParameterValue(0, 60.0);
    const double values[] = {2.0, 3.0, 5.0, 5.0, 2.0, 3.0, 5.0, 5.0, 25.0, 25.0};
    const auto& steps = m_pParser->GetSteps();
    ASSERT_EQ(steps.size(), 10u);
    for (int i = 0; i < 10; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(steps[i].dValue, values[i]);
    }
    EXPECT_EQ(m_pParser->GetVariables()[2].dValue, 25.0);
}

TEST_P(Evaluate, StepValueIsComputedAfresh) {
    Compile("Y1=(X1+P1)*2");
    At(2.0, 3.0);
    EXPECT_EQ(m_pParser->GetStepValue(2), 5.0);
    m_pParser->SetIndependentValue(0, 10.0);
    EXPECT_EQ(m_pParser->GetStepValue(2), 13.0);
    EXPECT_EQ(m_pParser->GetStepValue(m_pParser->GetDependentStep("Y1")), 26.0);
    // A computed step is not overwritten by what was due before.
    EXPECT_EQ(m_pParser->GetSteps()[0].dValue, 10.0);
    EXPECT_EQ(m_pParser->GetSteps()[3].dValue, 13.0);
}

TEST(EvaluateSteps, StepOfAKnownVariableGivesItsValue) {
    auto parser = MakeParser({"Y1=2", "Y2=Y1*3"}, {{}, {}, {"Y1", "Y2"}});
    ASSERT_EQ(parser->Compile(), 1);
    // Compile leaves both computed, at 0; the step of a number looks at the first variable as well.
    EXPECT_EQ(parser->GetStepValue(0), 0.0);
    double dResult = 0.0;
    EXPECT_EQ(parser->Evaluate("Y2", &dResult), 1);
    EXPECT_EQ(dResult, 6.0);
    EXPECT_EQ(parser->GetStepValue(0), 2.0);
    EXPECT_EQ(parser->GetStepValue(parser->GetDependentStep("Y2")), 6.0);
}

TEST(EvaluateSteps, IndexOfNoStepRaisesError26) {
    auto parser = MakeParser({"Y1=X1"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->GetStepValue(2), 1.0);
    EXPECT_EQ(parser->GetError(), 26);
    auto other = MakeParser({"Y1=X1"});
    ASSERT_EQ(other->Compile(), 1);
    EXPECT_EQ(other->GetStepValue(-1), 1.0);
    EXPECT_EQ(other->GetError(), 26);
}

TEST(EvaluateSteps, DependentVariableIsWorkedOutOncePerPass) {
    auto parser = MakeParser({"Y1=INTG(X1)", "Y2=Y1+Y1"}, Dependents({"Y1", "Y2"}));
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_FALSE(ParserInspector::HasProgram(*parser));
    parser->SetNextTime(1.0);
    parser->SetIndependentValue(0, 3.0);
    double dResult = 0.0;
    EXPECT_EQ(parser->Evaluate("Y2", &dResult), 1);
    EXPECT_EQ(dResult, 6.0);
    EXPECT_EQ(parser->Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, 3.0);
}

TEST(EvaluateSteps, OnlySetVariableValueMarksTheValuesAsChanged) {
    auto parser = MakeParser({"Y1=X1*P1", "Y2=Y1+1"}, Dependents({"Y1", "Y2"}));
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 1);
    parser->SetIndependentValue(0, 3.0);
    parser->SetParameterValue(0, 2.0);
    double dResult = 0.0;
    parser->Evaluate("Y2", &dResult);
    EXPECT_EQ(dResult, 7.0);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 0);
    parser->SetIndependentValue(0, 4.0);
    parser->SetParameterValue(0, 5.0);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 0);
    parser->Evaluate("Y2", &dResult);
    EXPECT_EQ(dResult, 7.0);
    parser->SetVariableValue(0, 4.0);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 1);
    parser->Evaluate("Y2", &dResult);
    EXPECT_EQ(dResult, 21.0);
}

TEST(EvaluateSteps, BadVariableIndexMarksTheValuesAllTheSame) {
    auto parser = MakeParser({"Y1=X1"});
    ASSERT_EQ(parser->Compile(), 1);
    double dResult = 0.0;
    parser->Evaluate("Y1", &dResult);
    parser->SetVariableValue(3, 1.0);
    EXPECT_EQ(parser->GetError(), 10);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 1);
}

TEST(EvaluateSteps, RemainderIsComputedThoughNoRuleEmitsIt) {
    auto parser = MakeParser({"Y1=X1/P1"});
    ASSERT_EQ(parser->Compile(), 1);
    ParserInspector::DropProgram(*parser);
    ParserInspector::Steps(*parser)[2].eOpcode = OPCODE_REMAINDER;
    parser->SetIndependentValue(0, -7.5);
    parser->SetParameterValue(0, 2.0);
    double dResult = 0.0;
    EXPECT_EQ(parser->Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, -1.5);
}

TEST(EvaluateSteps, InvalidOpcodesRaiseError26) {
    for (int eOpcode : {-1, 0, 1, 4, 5, 6, 7, 36, 255, 1000}) {
        SCOPED_TRACE(eOpcode);
        auto parser = MakeParser({"Y1=-X1"});
        ASSERT_EQ(parser->Compile(), 1);
        ParserInspector::DropProgram(*parser);
        ParserInspector::Steps(*parser)[1].eOpcode = eOpcode;
        double dResult = 0.0;
        EXPECT_EQ(parser->Evaluate("Y1", &dResult), 0);
        EXPECT_EQ(dResult, 1.0);
        EXPECT_EQ(parser->GetError(), 26);
    }
}

TEST(EvaluateSteps, ParserWithoutStepsRaisesError19) {
    CParser parser(0, 1, 0, 0);
    parser.SetDependentName(0, "Y1");
    double dResult = 2.5;
    EXPECT_EQ(parser.Evaluate("Y1", &dResult), 0);
    EXPECT_EQ(dResult, 2.5);
    EXPECT_EQ(parser.GetError(), 19);
}

TEST(EvaluateSteps, ProgramSurvivesNothingThatMovesTheTables) {
    auto parser = MakeParser({"Y1=X1+P1"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_TRUE(ParserInspector::HasProgram(*parser));
    parser->SetIndependentValue(0, 1.0);
    parser->SetParameterValue(0, 2.0);
    double dResult = 0.0;
    parser->Evaluate("Y1", &dResult);
    for (int i = 0; i < 200; ++i) parser->SetIndependentName(0, "Z");
    EXPECT_FALSE(ParserInspector::HasProgram(*parser));
    parser->SetIndependentValue(0, 4.0);
    EXPECT_EQ(parser->Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, 6.0);
}

TEST(EvaluateSteps, FacadeForwardsEveryOperation) {
    CParser parser(1, 1, 1, 1);
    parser.SetIndependentName(0, "X1");
    parser.SetParameterName(0, "P1");
    parser.SetDependentName(0, "Y1");
    parser.SetEquation(0, "Y1=RAMP(X1)+INTG(X1)+NORM(X1)+NORMAX(X1)+NORMIN(X1)+P1^2");
    ASSERT_EQ(parser.Compile(), 1);
    EXPECT_EQ(parser.HasSpecialOperator(), 1);
    parser.SetTime(1.0);
    parser.SetStartTime(9.0);
    parser.SetNextTime(3.0);
    parser.SetMaxTime(2.0);
    parser.SetRange(4.0);
    parser.SetMinimum(-2.0);
    parser.SetMaximum(16.0);
    parser.ResetHistory();
    parser.SetIndependentValue(0, 8.0);
    parser.SetParameterValue(0, 3.0);
    double dResult = 0.0;
    EXPECT_EQ(parser.Evaluate("Y1", &dResult), 1);
    EXPECT_EQ(dResult, 4.0 + 16.0 + 2.5 + 0.5 - 4.0 + 9.0);
    EXPECT_EQ(parser.GetStepValue(parser.GetDependentStep("Y1")), 44.0);
    parser.SetVariableValue(1, 0.0);
    EXPECT_EQ(parser.GetError(), 0);
    EXPECT_STREQ(parser.GetErrorText(5), "Missing operator.");
}
