// Values and derivatives against figures of 50 digits, which were computed from the formulas of the
// equation pictures.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;

// Relative to the size of the parts.
constexpr double kValueBound = 1e-13;
constexpr double kGradientBound = 1e-10;
constexpr double kZero = 1e-300;

std::vector<double> ValuesOf(const FigureCase& figures, std::size_t i) {
    std::vector<std::vector<double>> x;
    for (const double d : figures.points[i].x) x.push_back({d});
    // One point at a time, with the origin at zero: also functions that always shift see x as it
    // is.
    const CurveFit fit = Make(figures.options);
    FitFunctionProps props{};
    fit->GetProperties(&props);
    FitDataStats stats{};
    stats.uOrder = figures.options.uFitOrder;
    std::size_t nNext = stats.uOrder * props.uParamsPerTerm;
    if (props.bHasOffset) stats.dOffsetSeed = figures.params.at(nNext++);
    if (props.bHasSlope) stats.dSlopeSeed = figures.params.at(nNext);
    EXPECT_EQ(fit->SetUpCurve(&stats, figures.params.data()), 1);
    std::vector<const double*> arrays;
    for (const std::vector<double>& column : x) arrays.push_back(column.data());
    double y = 0.0;
    EXPECT_EQ(fit->Evaluate(arrays.data(), &y, 1), 1);
    return {y};
}

TEST(Figures, EveryFunctionHasThemAtTwentyFivePointsOrMore) {
    std::map<int32_t, std::set<uint32_t>> terms;
    for (const FigureCase& figures : Figures()) {
        EXPECT_GE(figures.points.size(), 25u) << figures.sName;
        terms[figures.options.eFunctionType].insert(figures.options.uFitOrder);
    }
    EXPECT_EQ(terms.size(), 38u);
    EXPECT_EQ(terms[15], (std::set<uint32_t>{1, 2, 3, 6}));
    EXPECT_EQ(terms[7], (std::set<uint32_t>{1}));
}

TEST(Figures, ValuesAgreeToTheThirteenthDigit) {
    double dWorst = 0.0;
    for (const FigureCase& figures : Figures()) {
        SCOPED_TRACE(figures.sName);
        for (std::size_t i = 0; i < figures.points.size(); ++i) {
            const FigurePoint& point = figures.points[i];
            const double y = ValuesOf(figures, i)[0];
            const double dError = std::fabs(y - point.dValue) / std::max(point.dSize, kZero);
            // What is below the smallest number is zero in either.
            if (point.dSize < 1e-290) continue;
            EXPECT_LE(dError, kValueBound)
                << "x " << point.x[0] << " y " << y << " not " << point.dValue;
            dWorst = std::max(dWorst, dError);
        }
    }
    RecordProperty("worst", std::to_string(dWorst * 1e16));
}

TEST(Figures, DerivativesAgreeToTheTenthDigit) {
    for (const FigureCase& figures : Figures()) {
        SCOPED_TRACE(figures.sName);
        const curvefit::FunctionRow* pRow = curvefit::FindFunction(figures.options.eFunctionType);
        const curvefit::Settings settings = curvefit::SettingsOf(figures.options);
        curvefit::Curve curve;
        curve.pSettings = &settings;
        curve.uTerms = figures.options.uFitOrder;
        curve.pGrid = figures.params.data();
        const std::size_t nColumns = curve.uTerms * pRow->uParams;
        // Relative to the largest of its column: a derivative that passes through zero loses
        // digits.
        std::vector<double> largest(nColumns);
        for (const FigurePoint& point : figures.points) {
            ASSERT_EQ(point.derivatives.size(), nColumns);
            for (std::size_t k = 0; k < nColumns; ++k)
                largest[k] = std::max(largest[k], std::fabs(point.derivatives[k]));
        }
        for (const FigurePoint& point : figures.points) {
            std::vector<const double*> arrays;
            for (const double& d : point.x) arrays.push_back(&d);
            std::vector<double> g(nColumns, -1.0);
            pRow->pGradient(curve, arrays.data(), 1, g.data());
            for (std::size_t k = 0; k < nColumns; ++k) {
                EXPECT_LE(std::fabs(g[k] - point.derivatives[k]), kGradientBound * largest[k])
                    << "x " << point.x[0] << " parameter " << k << ": " << g[k] << " not "
                    << point.derivatives[k];
            }
        }
    }
}

// CRC-32 of the table that the pictures are set from.
uint32_t Checksum(const std::string& sText) {
    uint32_t uCrc = 0xFFFFFFFFu;
    for (const char ch : sText) {
        uCrc ^= static_cast<unsigned char>(ch);
        for (int i = 0; i < 8; ++i) uCrc = (uCrc >> 1) ^ ((uCrc & 1u) != 0 ? 0xEDB88320u : 0u);
    }
    return ~uCrc;
}

TEST(Figures, AreThoseOfTheEquationPictures) {
    EXPECT_EQ(Checksum("123456789"), 0xCBF43926u);
    EXPECT_EQ(FiguresChecksum(), Checksum(ReadFile("resources/pictures/equations.txt")))
        << "run tools/curvefit/make_figures.py after a change of the equations";
}

}  // namespace
