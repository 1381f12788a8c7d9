#include <gtest/gtest.h>

#include <cmath>

#include "AllocationCount.h"
#include "ParserInspector.h"
#include "parser/Parser.h"

namespace {

std::vector<double> Ramp(int n) {
    std::vector<double> x(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) x[i] = 0.01 * (i + 1);
    return x;
}

// A block of one independent variable.
ParserBlock BlockOf(const std::vector<double>& x, const double* const& pFirst) {
    ParserBlock block;
    block.nPoints = static_cast<int>(x.size());
    block.ppIndependent = &pFirst;
    return block;
}

}  // namespace

TEST(Block, EvaluationAllocatesNothing) {
    const auto x = Ramp(1000);
    const double* pFirst = x.data();
    std::vector<double> y(x.size());
    for (const char* pszText :
         {"Y1=P1*EXP(-X1/P1)+3", "Y1=INTG(X1)^2+DIFF(SIN(X1))", "Y1=Y1+X1", "Y1=2", "Y1=X1"}) {
        SCOPED_TRACE(pszText);
        auto parser = MakeParser({pszText});
        ASSERT_EQ(parser->Compile(), 1);
        const int nBefore = AllocationCount();
        double dResult = 0.0;
        parser->SetParameterValue(0, 2.0);
        parser->Evaluate("Y1", &dResult);
        parser->SetVariableValue(1, 3.0);
        parser->Evaluate("Y1", &dResult);
        parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data());
        parser->ResetHistory();
        EXPECT_EQ(AllocationCount(), nBefore);
    }
}

TEST(Block, StopsAtThePointThatEvaluateFailsAt) {
    for (const int nBad : {0, 1, 2, 255, 256, 257, 500, 998, 999}) {
        SCOPED_TRACE(nBad);
        auto x = Ramp(1000);
        x[nBad] = -1.0;
        const double* pFirst = x.data();
        std::vector<double> y(x.size());
        auto parser = MakeParser({"Y1=SQRT(X1)+INTG(X1)*0"});
        ASSERT_EQ(parser->Compile(), 1);
        parser->SetNextTime(1.0);
        EXPECT_EQ(parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data()), 0);
        EXPECT_EQ(parser->GetError(), 25);
        double dIntegral = 0.0;
        for (int i = 0; i < 1000; ++i) {
            if (i <= nBad) dIntegral += x[i];
            if (i == nBad) continue;
            EXPECT_EQ(y[i], i < nBad ? std::sqrt(x[i]) : 1.0);
        }
        EXPECT_TRUE(std::isnan(y[nBad]));
        // The history has gone over the bad point and no further.
        EXPECT_EQ(ParserInspector::Steps(*parser)[4].dState, dIntegral);
        EXPECT_EQ(parser->GetVariables()[0].dValue, x[999]);
    }
}

TEST(Block, ParserWithAnErrorGivesOnes) {
    const auto x = Ramp(10);
    const double* pFirst = x.data();
    std::vector<double> y(x.size());
    auto parser = MakeParser({"Y1=X1"});
    ASSERT_EQ(parser->Compile(), 1);
    parser->SetEquation(5, "");
    EXPECT_EQ(parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data()), 0);
    EXPECT_EQ(parser->GetError(), 14);
    for (double dValue : y) EXPECT_EQ(dValue, 1.0);
}

TEST(Block, UnknownNameLeavesTheResults) {
    const auto x = Ramp(10);
    const double* pFirst = x.data();
    std::vector<double> y(x.size(), 7.5);
    auto parser = MakeParser({"Y1=X1"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->EvaluateBlock("Z", BlockOf(x, pFirst), y.data()), 1);
    for (double dValue : y) EXPECT_EQ(dValue, 7.5);
}

TEST(Block, NoPointsTouchNothing) {
    auto parser = MakeParser({"Y1=X1"});
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->EvaluateBlock("Y1", ParserBlock{}, nullptr), 1);
    ParserBlock negative;
    negative.nPoints = -3;
    EXPECT_EQ(parser->EvaluateBlock("Y1", negative, nullptr), 1);
    EXPECT_EQ(ParserInspector::ValuesChanged(*parser), 1);
}

TEST(Block, MissingArrayLeavesItsVariable) {
    const auto x = Ramp(600);
    const double* inputs[] = {x.data(), nullptr};
    auto parser = MakeParser({"Y1=X1*X2"}, {{"X1", "X2"}, {}, {"Y1"}});
    ASSERT_EQ(parser->Compile(), 1);
    parser->SetIndependentValue(1, 4.0);
    ParserBlock block;
    block.nPoints = 600;
    block.ppIndependent = inputs;
    std::vector<double> y(x.size());
    EXPECT_EQ(parser->EvaluateBlock("Y1", block, y.data()), 1);
    for (int i = 0; i < 600; ++i) EXPECT_EQ(y[i], 4.0 * x[i]);
    block.ppIndependent = nullptr;
    EXPECT_EQ(parser->EvaluateBlock("Y1", block, y.data()), 1);
    for (double dValue : y) EXPECT_EQ(dValue, 4.0 * x[599]);
}

TEST(Block, SeveralDependentVariablesKeepTheWalk) {
    const auto x = Ramp(600);
    const double* pFirst = x.data();
    auto parser = MakeParser({"Y1=X1*2", "Y2=X1+1"}, {{"X1"}, {}, {"Y1", "Y2"}});
    ASSERT_EQ(parser->Compile(), 1);
    std::vector<double> y(x.size());
    EXPECT_EQ(parser->EvaluateBlock("Y2", BlockOf(x, pFirst), y.data()), 1);
    for (int i = 0; i < 600; ++i) EXPECT_EQ(y[i], x[i] + 1.0);
}

TEST(Block, ValueThatIsKnownStaysForAllPoints) {
    const auto x = Ramp(600);
    const double* pFirst = x.data();
    auto parser = MakeParser({"Y1=X1*2"});
    ASSERT_EQ(parser->Compile(), 1);
    std::vector<double> y(x.size());
    parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data());
    // A second Compile marks the left side again, and nothing has changed the values since.
    ASSERT_EQ(parser->Compile(), 1);
    EXPECT_EQ(parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data()), 1);
    for (double dValue : y) EXPECT_EQ(dValue, x[599] * 2.0);
    parser->SetVariableValue(0, 0.0);
    EXPECT_EQ(parser->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data()), 1);
    EXPECT_EQ(y[17], x[17] * 2.0);
}

TEST(Block, FacadeHasItToo) {
    const auto x = Ramp(5);
    const double* pFirst = x.data();
    CParser parser(1, 1, 0, 1);
    parser.SetIndependentName(0, "X1");
    parser.SetDependentName(0, "Y1");
    parser.SetEquation(0, "Y1=X1+X1");
    ASSERT_EQ(parser.Compile(), 1);
    double y[5];
    EXPECT_EQ(parser.EvaluateBlock("Y1", BlockOf(x, pFirst), y), 1);
    EXPECT_EQ(y[4], x[4] + x[4]);
}

TEST(Block, FusedExponentialsAreTheSameOperations) {
    const auto x = Ramp(700);
    const double* pFirst = x.data();
    for (const char* pszText :
         {"Y1=EXP(X1)", "Y1=EXP(-X1)", "Y1=EXP(X1/P1)", "Y1=EXP(-X1*P1)", "Y1=EXP(-X1*P1)*P1",
          "Y1=P1+P1*EXP(-X1*P1)", "Y1=P1*EXP(X1)+X1", "Y1=EXP(EXP(X1/9)*P1/9)*P1",
          "Y1=P1*EXP(P1*EXP(-X1))+P1", "Y1=EXP(-X1)*EXP(-X1)", "Y1=EXP(X1/P1)+EXP(X1/P1)*X1",
          "Y1=EXP(X1*X1/P1)-X1", "Y1=P1*EXP(-(X1/P1))+P1*EXP(-X1/3)+EXP(P1)"}) {
        SCOPED_TRACE(pszText);
        auto block = MakeParser({pszText});
        auto walk = MakeParser({pszText});
        ASSERT_EQ(block->Compile(), 1);
        ASSERT_EQ(walk->Compile(), 1);
        ParserInspector::DropProgram(*walk);
        block->SetParameterValue(0, 1.7);
        walk->SetParameterValue(0, 1.7);
        std::vector<double> y(x.size()), expected(x.size());
        EXPECT_EQ(block->EvaluateBlock("Y1", BlockOf(x, pFirst), y.data()), 1);
        EXPECT_EQ(walk->EvaluateBlock("Y1", BlockOf(x, pFirst), expected.data()), 1);
        for (int i = 0; i < 700; ++i) ASSERT_EQ(y[i], expected[i]) << i;
    }
}
