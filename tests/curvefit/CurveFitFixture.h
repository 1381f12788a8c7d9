// What the tests of the curve-fit library share: option records in a few words, curves through the
// table, synthetic data, and the files of figures.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "CreateCurveFit.h"
#include "FunctionTable.h"
#include "zxadlg/CurveFit.h"

namespace curvefit_test {

// A finalised record for a function.
inline FitOptions OptionsFor(int32_t eFunction, uint32_t uTerms = 1) {
    FitOptions options{};
    options.eFunctionType = eFunction;
    options.uFitOrder = uTerms;
    options.bAutoZeroShift = 1;
    options.uCurTimePowerA = 3;
    options.uCurTimePowerB = 1;
    options.uExpPower = 2;
    options.uNernstValence = 1;
    options.dSubstZeroLinearFactor = 10.0;
    options.dZDBoltzmanTemperature = 21.0;
    options.dNernstTemperature = 22.0;
    options.dGoldmanTemperature = 23.0;
    options.dExtGoldmanTemperature = 24.0;
    return options;
}

struct Destroy {
    void operator()(ZXADLG_CCurveFit* p) const { p->DeleteSelf(1); }
};
using CurveFit = std::unique_ptr<ZXADLG_CCurveFit, Destroy>;

inline CurveFit Make(const FitOptions& options) {
    return CurveFit(curvefit::CreateCurveFit(&options));
}

inline FitFunctionProps PropertiesOf(const FitOptions& options) {
    FitFunctionProps props{};
    EXPECT_EQ(Make(options)->GetProperties(&props), 1);
    return props;
}

inline std::string ErrorOf(ZXADLG_CCurveFit& fit) {
    char szText[256] = "unset";
    EXPECT_EQ(fit.GetErrorText(szText, sizeof szText), 1);
    return szText;
}

// The curve of flat parameters (offset and slope behind the grid) at x.
inline std::vector<double> CurveAt(const FitOptions& options, const std::vector<double>& flat,
                                   const std::vector<std::vector<double>>& x) {
    const CurveFit fit = Make(options);
    FitFunctionProps props{};
    fit->GetProperties(&props);
    FitDataStats stats{};
    stats.uNumPoints = static_cast<uint32_t>(x[0].size());
    stats.uOrder = props.bMultiTerm ? options.uFitOrder : 1;
    stats.dFirstX = x[0].empty() ? 0.0 : x[0][0];
    std::size_t nNext = stats.uOrder * props.uParamsPerTerm;
    if (props.bHasOffset) stats.dOffsetSeed = flat.at(nNext++);
    if (props.bHasSlope) stats.dSlopeSeed = flat.at(nNext);
    EXPECT_EQ(fit->SetUpCurve(&stats, flat.data()), 1) << ErrorOf(*fit);
    std::vector<const double*> arrays;
    for (const std::vector<double>& column : x) arrays.push_back(column.data());
    std::vector<double> y(x[0].size(), -12345.0);
    EXPECT_EQ(fit->Evaluate(arrays.data(), y.data(), stats.uNumPoints), 1) << ErrorOf(*fit);
    return y;
}

inline double ValueAt(const FitOptions& options, const std::vector<double>& flat, double x) {
    return CurveAt(options, flat, {{x}})[0];
}

struct Seeds {
    bool bFound = false;
    std::vector<double> values;
    std::string sError;
};

// Seeds from data; the places behind the last seed must stay as they were.
inline Seeds SeedsFrom(const FitOptions& options, const std::vector<std::vector<double>>& x,
                       const std::vector<double>& y) {
    constexpr double kUntouched = -98765.25;
    const CurveFit fit = Make(options);
    FitFunctionProps props{};
    fit->GetProperties(&props);
    std::vector<const double*> arrays;
    for (const std::vector<double>& column : x) arrays.push_back(column.data());
    arrays.push_back(y.data());
    // No points are not the same as no array.
    static constexpr double kNoPoints = 0.0;
    for (const double*& p : arrays) {
        if (p == nullptr) p = &kNoPoints;
    }
    const uint32_t uTerms = props.bMultiTerm ? options.uFitOrder : 1;
    const std::size_t nSeeds = uTerms * props.uParamsPerTerm +
                               static_cast<std::size_t>(props.bHasOffset + props.bHasSlope);
    std::vector<double> values(26, kUntouched);
    Seeds seeds;
    seeds.bFound =
        fit->ComputeSeeds(arrays.data(), values.data(), static_cast<uint32_t>(arrays.size()),
                          static_cast<uint32_t>(y.size())) != 0;
    seeds.sError = ErrorOf(*fit);
    for (std::size_t i = seeds.bFound ? nSeeds : 0; i < values.size(); ++i)
        EXPECT_EQ(values[i], kUntouched) << i;
    values.resize(nSeeds);
    if (seeds.bFound) seeds.values = values;
    return seeds;
}

// One case of figures.txt.
struct FigurePoint {
    std::vector<double> x;
    double dValue = 0.0;
    double dSize = 0.0;
    std::vector<double> derivatives;
};
struct FigureCase {
    FitOptions options;
    std::string sName;
    std::vector<double> params;  // flat
    std::vector<FigurePoint> points;
};

const std::vector<FigureCase>& Figures();
// The checksum of the table of equations that the figures were computed from.
uint32_t FiguresChecksum();
std::string ReadFile(const std::string& sPath);

}  // namespace curvefit_test
