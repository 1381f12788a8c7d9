// Evaluation against an evaluator written for the test, over random equations of the grammar; and
// the three ways of evaluating (program, walk over the steps, block) against each other, to the
// last bit.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "EquationGenerator.h"
#include "ParserInspector.h"
#include "ReferenceEvaluator.h"

namespace {

const Names kNames = {{"X1", "X2", "X3"}, {"P1", "P2", "P3", "P4"}, {"Y1"}};

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

// What one evaluation depends on.
struct Point {
    double x[3];
    double dTime;
    double dNextTime;
};

void SetSettings(CZDCParser& parser, const double (&settings)[4]) {
    parser.SetMaxTime(settings[0]);
    parser.SetRange(settings[1]);
    parser.SetMinimum(settings[2]);
    parser.SetMaximum(settings[3]);
}

int EvaluatePoint(CZDCParser& parser, const Point& point, double* pResult) {
    parser.SetTime(point.dTime);
    parser.SetNextTime(point.dNextTime);
    for (int i = 0; i < 3; ++i) parser.SetIndependentValue(i, point.x[i]);
    return parser.Evaluate("Y1", pResult);
}

}  // namespace

TEST(Differential, HundredThousandRandomEquations) {
    EquationGenerator generator(20240611);
    int nFinite = 0;
    for (int n = 0; n < 100000; ++n) {
        const std::string strRight = generator.RightSide();
        SCOPED_TRACE(strRight);
        auto program = MakeParser({"Y1=" + strRight}, kNames);
        auto walk = MakeParser({"Y1=" + strRight}, kNames);
        ASSERT_EQ(program->Compile(), 1) << program->GetErrorText(program->GetError());
        ASSERT_EQ(walk->Compile(), 1);
        ASSERT_TRUE(ParserInspector::HasProgram(*program));
        ParserInspector::DropProgram(*walk);

        ReferenceEvaluator reference(strRight);
        double settings[4];
        for (double& dSetting : settings) dSetting = generator.Value();
        SetSettings(*program, settings);
        SetSettings(*walk, settings);
        reference.dMaxTime = settings[0];
        reference.dRange = settings[1];
        reference.dMinimum = settings[2];
        reference.dMaximum = settings[3];
        for (int i = 0; i < 4; ++i) {
            const double dValue = generator.Value();
            program->SetParameterValue(i, dValue);
            walk->SetParameterValue(i, dValue);
            reference.variables[kNames.parameters[i]] = dValue;
        }
        for (int nPoint = 0; nPoint < 3; ++nPoint) {
            const Point point = {{generator.Value(), generator.Value(), generator.Value()},
                                 0.25 * nPoint,
                                 0.25 * (nPoint + generator.Below(2))};
            for (int i = 0; i < 3; ++i) reference.variables[kNames.independent[i]] = point.x[i];
            reference.dTime = point.dTime;
            reference.dNextTime = point.dNextTime;
            const double dExpected = reference.Evaluate();
            double dProgram = 0.0, dWalk = 0.0;
            const int nProgram = EvaluatePoint(*program, point, &dProgram);
            const int nWalk = EvaluatePoint(*walk, point, &dWalk);
            ASSERT_TRUE(SameBits(dExpected, dProgram)) << dExpected << " " << dProgram;
            ASSERT_TRUE(SameBits(dExpected, dWalk)) << dExpected << " " << dWalk;
            ASSERT_EQ(nProgram, std::isfinite(dExpected) ? 1 : 0);
            ASSERT_EQ(nProgram, nWalk);
            ASSERT_EQ(program->GetError(), std::isfinite(dExpected) ? 0 : 25);
            ASSERT_EQ(walk->GetError(), program->GetError());
            if (!std::isfinite(dExpected)) break;
            ++nFinite;
        }
        const auto& programSteps = program->GetSteps();
        const auto& walkSteps = walk->GetSteps();
        for (std::size_t i = 0; i < walkSteps.size(); ++i) {
            ASSERT_TRUE(SameBits(programSteps[i].dValue, walkSteps[i].dValue)) << "step " << i;
            ASSERT_TRUE(SameBits(programSteps[i].dState, walkSteps[i].dState)) << "step " << i;
        }
    }
    // The comparison is worth something only if most equations have a value.
    EXPECT_GT(nFinite, 100000);
}

TEST(Differential, BlockIsPointByPointToTheBit) {
    EquationGenerator generator(77);
    int nStopped = 0;
    for (int n = 0; n < 3000; ++n) {
        const std::string strRight = generator.RightSide();
        SCOPED_TRACE(strRight);
        auto points = MakeParser({"Y1=" + strRight}, kNames);
        auto block = MakeParser({"Y1=" + strRight}, kNames);
        ASSERT_EQ(points->Compile(), 1);
        ASSERT_EQ(block->Compile(), 1);
        double settings[4];
        for (double& dSetting : settings) dSetting = generator.Value();
        SetSettings(*points, settings);
        SetSettings(*block, settings);
        for (int i = 0; i < 4; ++i) {
            const double dValue = generator.Value();
            points->SetParameterValue(i, dValue);
            block->SetParameterValue(i, dValue);
        }
        const int nPoints =
            generator.Below(4) == 0 ? 256 + generator.Below(600) : generator.Below(20);
        std::vector<Point> data(static_cast<std::size_t>(nPoints));
        std::vector<double> columns[5];
        for (auto& column : columns) column.resize(data.size());
        for (int i = 0; i < nPoints; ++i) {
            data[i] = {{generator.Value(), generator.Value(), generator.Value()},
                       0.5 * i,
                       0.5 * (i + generator.Below(2))};
            for (int k = 0; k < 3; ++k) columns[k][i] = data[i].x[k];
            columns[3][i] = data[i].dTime;
            columns[4][i] = data[i].dNextTime;
        }
        const double* inputs[] = {columns[0].data(), columns[1].data(), columns[2].data()};
        ParserBlock call;
        call.nPoints = nPoints;
        call.ppIndependent = inputs;
        call.pTime = columns[3].data();
        call.pNextTime = columns[4].data();
        std::vector<double> expected(data.size(), -1.0), results(data.size(), -2.0);
        int nExpected = 1;
        for (int i = 0; i < nPoints; ++i) {
            if (!EvaluatePoint(*points, data[i], &expected[i])) nExpected = 0;
        }
        ASSERT_EQ(block->EvaluateBlock("Y1", call, results.data()), nExpected);
        for (int i = 0; i < nPoints; ++i) {
            ASSERT_TRUE(SameBits(expected[i], results[i])) << "point " << i;
        }
        ASSERT_EQ(points->GetError(), block->GetError());
        if (points->GetError() != 0 && nPoints > 2) ++nStopped;
        const auto& pointSteps = points->GetSteps();
        const auto& blockSteps = block->GetSteps();
        for (std::size_t i = 0; i < pointSteps.size(); ++i) {
            ASSERT_TRUE(SameBits(pointSteps[i].dValue, blockSteps[i].dValue)) << "step " << i;
            ASSERT_TRUE(SameBits(pointSteps[i].dState, blockSteps[i].dState)) << "step " << i;
        }
        for (std::size_t i = 0; i < points->GetVariables().size(); ++i) {
            ASSERT_TRUE(
                SameBits(points->GetVariables()[i].dValue, block->GetVariables()[i].dValue));
        }
    }
    EXPECT_GT(nStopped, 300);
}
