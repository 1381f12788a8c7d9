// Data without seeds: each refusal leaves its text and no seed.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;
using Arrays = std::vector<std::vector<double>>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

void ExpectRefused(const FitOptions& options, const Arrays& x, const std::vector<double>& y,
                   const char* szText) {
    const Seeds seeds = SeedsFrom(options, x, y);
    EXPECT_FALSE(seeds.bFound) << "function " << options.eFunctionType;
    EXPECT_EQ(seeds.sError, szText) << "function " << options.eFunctionType;
}

// Data that every function takes: positive and of a hump, x within 0 to 1.
Arrays PlainX(int32_t eFunction, std::size_t n) {
    std::vector<double> x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = (static_cast<double>(i) + 0.5) / static_cast<double>(n);
    Arrays arrays = {x};
    if (eFunction == 19 || eFunction == 20) {
        for (int k = 1; k < 6; ++k) arrays.emplace_back(n, 0.5 * k);
    }
    return arrays;
}

std::vector<double> PlainY(std::size_t n) {
    std::vector<double> y(n);
    for (std::size_t i = 0; i < n; ++i) {
        const double d =
            (static_cast<double>(i) - 0.4 * static_cast<double>(n)) / static_cast<double>(n);
        y[i] = 1.0 + std::exp(-20.0 * d * d);
    }
    return y;
}

TEST(BadData, FewerPointsThanParameters) {
    for (int32_t e = 0; e < 38; ++e) {
        const FitFunctionProps props = PropertiesOf(OptionsFor(e));
        const auto nParams = static_cast<std::size_t>(static_cast<int>(props.uParamsPerTerm) +
                                                      props.bHasOffset + props.bHasSlope);
        ExpectRefused(OptionsFor(e), PlainX(e, nParams - 1), PlainY(nParams - 1),
                      "There are fewer data points than parameters.");
        const Seeds seeds = SeedsFrom(OptionsFor(e), PlainX(e, 30), PlainY(30));
        EXPECT_TRUE(seeds.bFound) << e << ": " << seeds.sError;
    }
    ExpectRefused(OptionsFor(15, 6), PlainX(15, 12), PlainY(12),
                  "There are fewer data points than parameters.");
}

TEST(BadData, FewerPointsThanParametersInTheDomain) {
    // Dwell times below zero are left out.
    for (const int32_t e : {9, 12}) {
        FitOptions options = OptionsFor(e);
        options.bAutoZeroShift = 0;
        ExpectRefused(options, {{-5, -4, -3, -2, 1, 2}}, {1, 2, 3, 4, 5, 6},
                      "There are fewer data points than parameters.");
    }
    // Repeated x are allowed as long as enough are different.
    ExpectRefused(OptionsFor(15), {{1, 1, 1, 2, 2, 2}}, {1, 2, 3, 4, 5, 6},
                  "There are fewer data points than parameters.");
    EXPECT_TRUE(SeedsFrom(OptionsFor(15), {{1, 1, 2, 2, 3, 3}}, {6, 6, 4, 4, 3, 3}).bFound);
}

TEST(BadData, ValuesThatAreNotNumbers) {
    for (int32_t e = 0; e < 38; ++e) {
        for (const double dBad : {kNan, kInfinite, -kInfinite}) {
            Arrays x = PlainX(e, 30);
            std::vector<double> y = PlainY(30);
            y[29] = dBad;
            ExpectRefused(OptionsFor(e), x, y, "The data contain values that are not numbers.");
            x.back()[7] = dBad;
            ExpectRefused(OptionsFor(e), x, PlainY(30),
                          "The data contain values that are not numbers.");
        }
    }
}

TEST(BadData, AllXEqual) {
    for (int32_t e = 0; e < 38; ++e) {
        if (e == 19 || e == 20) continue;  // several variables: any of them may be a constant
        ExpectRefused(OptionsFor(e), {std::vector<double>(30, 0.5)}, PlainY(30),
                      "All x values are equal.");
    }
}

TEST(BadData, NoVariation) {
    for (int32_t e = 0; e < 38; ++e) {
        ExpectRefused(OptionsFor(e), PlainX(e, 30), std::vector<double>(30, 0.0),
                      "The data do not vary.");
    }
    for (const int32_t e : {2, 3, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 23, 26, 27, 28}) {
        ExpectRefused(OptionsFor(e), PlainX(e, 30), std::vector<double>(30, 3.0),
                      "The data do not vary.");
    }
    for (const int32_t e : {31, 32, 34, 35, 36, 24, 4, 29}) {
        EXPECT_TRUE(SeedsFrom(OptionsFor(e), PlainX(e, 30), std::vector<double>(30, 3.0)).bFound)
            << e;
    }
}

TEST(BadData, OutsideTheDomain) {
    for (const double dOutside : {-0.001, 1.001}) {
        Arrays x = PlainX(0, 30);
        x[0][3] = dOutside;
        ExpectRefused(OptionsFor(0), x, PlainY(30), "The x values must lie between 0 and 1.");
    }
    for (const int32_t e : {21, 22, 23, 29, 30}) {
        ExpectRefused(OptionsFor(e), {{-3, -2, -1, 0, -4}}, {1, 2, 3, 4, 5},
                      "The x values must be positive concentrations.");
        EXPECT_TRUE(SeedsFrom(OptionsFor(e), {{0, 1, 3, 10, 30, 100}}, {1, 2, 5, 8, 9, 10}).bFound);
    }
    for (const int32_t e : {19, 20}) {
        for (std::size_t k = 0; k < 6; ++k) {
            for (const double dBad : {0.0, -1.0}) {
                Arrays x = PlainX(e, 30);
                x[k][29] = dBad;
                ExpectRefused(OptionsFor(e), x, PlainY(30),
                              "All concentrations must be greater than zero.");
            }
        }
    }
}

TEST(BadData, NoCounts) {
    std::vector<double> negative = PlainY(30);
    for (double& d : negative) d = -d;
    for (const int32_t e : {0, 1, 10, 33}) {
        ExpectRefused(OptionsFor(e), PlainX(e, 30), negative,
                      "The data must be counts or probabilities.");
    }
    FitOptions options = OptionsFor(12);
    EXPECT_TRUE(SeedsFrom(options, PlainX(12, 30), negative).bFound);
    options.eMinimMethod = 1;
    ExpectRefused(options, PlainX(12, 30), negative, "The data must be counts or probabilities.");
}

TEST(BadData, LineThroughTheOrigin) {
    ExpectRefused(OptionsFor(24), {{-1, 0, 1}}, {-2, 0, 2},
                  "The line goes through the origin; Vmax cannot be found.");
}

TEST(BadData, ParabolaWithoutABendHasManyChannels) {
    const Seeds seeds = SeedsFrom(OptionsFor(31), {{0, 1, 2, 4}}, {0, 2, 5, 16});
    ASSERT_TRUE(seeds.bFound) << seeds.sError;
    EXPECT_GT(seeds.values[1], 0.0);
    EXPECT_TRUE(std::isfinite(seeds.values[1]));
    EXPECT_DOUBLE_EQ(seeds.values[1], std::fabs(40.0 / seeds.values[0]));
}

TEST(BadData, BelowAbsoluteZero) {
    for (const int32_t e : {5, 6, 19, 20, 30}) {
        FitOptions options = OptionsFor(e);
        options.dZDBoltzmanTemperature = options.dNernstTemperature = options.dGoldmanTemperature =
            options.dExtGoldmanTemperature = -273.15;
        ExpectRefused(options, PlainX(e, 30), PlainY(30),
                      "The temperature is below absolute zero.");
    }
}

TEST(BadData, AmplitudeThatOverflowsWithoutZeroShift) {
    FitOptions options = OptionsFor(15);
    options.bAutoZeroShift = 0;
    std::vector<double> x(100);
    std::vector<double> y(100);
    for (std::size_t i = 0; i < 100; ++i) {
        x[i] = 1e6 + static_cast<double>(i);
        y[i] = std::exp(-static_cast<double>(i) / 20.0);
    }
    ExpectRefused(options, {x}, y, "No seeds could be found; zero-shift may help.");
    options.bDoZeroShift = 1;
    EXPECT_TRUE(SeedsFrom(options, {x}, y).bFound);
}

TEST(BadData, HugeAndTinyDataDoNotOverflow) {
    for (int32_t e = 0; e < 38; ++e) {
        // Potentials and distributions have units of their own.
        if (e == 0 || e == 1 || e == 10 || e == 19 || e == 20 || e == 30 || e == 33) continue;
        for (const double dScale : {1e-140, 1e140}) {
            SCOPED_TRACE(e);
            Arrays x = PlainX(e, 40);
            std::vector<double> y = PlainY(40);
            for (double& d : y) d *= dScale;
            const Seeds seeds = SeedsFrom(OptionsFor(e), x, y);
            EXPECT_TRUE(seeds.bFound) << dScale << ": " << seeds.sError;
            for (double& d : x[0]) d *= dScale;
            const Seeds both = SeedsFrom(OptionsFor(e), x, y);
            for (const double d : both.values) EXPECT_TRUE(std::isfinite(d)) << dScale;
        }
    }
}

TEST(BadData, PureNoiseGivesSeedsThatAreFinite) {
    std::mt19937 random(3);
    std::normal_distribution<double> normal;
    for (int32_t e = 0; e < 38; ++e) {
        for (const uint32_t uTerms : {1u, 3u, 6u}) {
            for (const std::size_t n : {std::size_t{26}, std::size_t{40}, std::size_t{700}}) {
                std::vector<double> y(n);
                for (double& d : y) d = normal(random);
                const Seeds seeds = SeedsFrom(OptionsFor(e, uTerms), PlainX(e, n), y);
                EXPECT_TRUE(seeds.bFound) << e << " " << uTerms << " " << n << seeds.sError;
                const FitFunctionProps props = PropertiesOf(OptionsFor(e, uTerms));
                for (std::size_t k = 0; k < seeds.values.size(); ++k) {
                    EXPECT_TRUE(std::isfinite(seeds.values[k])) << e;
                    const std::size_t nGrid =
                        props.uParamsPerTerm * (props.bMultiTerm ? uTerms : 1);
                    if (k < nGrid && k != props.uZeroAllowedParam) {
                        EXPECT_NE(seeds.values[k], 0.0) << e << " " << k;
                    }
                }
            }
        }
    }
}

}  // namespace
