// Evaluation at the edges: limits, origins, zero concentrations, values that a formula does not
// have.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;

constexpr double kInfinite = std::numeric_limits<double>::infinity();

FitOptions Unshifted(int32_t eFunction, uint32_t uTerms = 1) {
    FitOptions options = OptionsFor(eFunction, uTerms);
    options.bAutoZeroShift = 0;
    return options;
}

TEST(Limits, TimeConstantOfZeroIsTheLimitFromAbove) {
    const FitOptions options = Unshifted(15);
    EXPECT_EQ(ValueAt(options, {3.0, 0.0, 0.5}, 2.0), 0.5);
    EXPECT_EQ(ValueAt(options, {3.0, 0.0, 0.5}, 0.0), 3.5);
    EXPECT_EQ(ValueAt(options, {3.0, -0.0, 0.5}, 2.0), 0.5);
    EXPECT_EQ(ValueAt(Unshifted(9), {3.0, 0.0, 0.5}, 2.0), 3.5);
    EXPECT_EQ(ValueAt(Unshifted(10), {3.0, 0.0}, 2.0), 0.0);
    EXPECT_EQ(CurveAt(OptionsFor(8), {3.0, 0.0, 0.5}, {{0.0, 2.0}})[1], 0.5);
    EXPECT_EQ(CurveAt(OptionsFor(11), {3.0, 0.0, 0.5}, {{0.0, 2.0}})[1], 3.5);
    EXPECT_EQ(CurveAt(OptionsFor(13), {3.0, 0.0, 1.0, 0.5}, {{0.0, 2.0}})[1],
              3.0 * std::exp(-2.0) + 0.5);
}

TEST(Limits, WidthOfZeroIsAStep) {
    for (const int32_t eFunction : {2, 3}) {
        EXPECT_EQ(ValueAt(OptionsFor(eFunction), {4.0, -20.0, 0.0, 1.0}, -20.5), 1.0);
        EXPECT_EQ(ValueAt(OptionsFor(eFunction), {4.0, -20.0, 0.0, 1.0}, -20.0), 3.0);
        EXPECT_EQ(ValueAt(OptionsFor(eFunction), {4.0, -20.0, 0.0, 1.0}, -19.5), 5.0);
    }
    EXPECT_EQ(ValueAt(OptionsFor(18), {4.0, 1.0, 0.0, 0.25}, 2.0), 0.25);
    EXPECT_EQ(ValueAt(OptionsFor(26), {4.0, 1.0, 0.0, 0.25}, 2.0), 0.25);
}

TEST(Limits, SigmoidsSaturateWithoutOverflow) {
    EXPECT_EQ(ValueAt(OptionsFor(3), {4.0, 0.0, 1e-3, 1.0}, 1e6), 5.0);
    EXPECT_EQ(ValueAt(OptionsFor(3), {4.0, 0.0, 1e-3, 1.0}, -1e6), 1.0);
    EXPECT_EQ(ValueAt(OptionsFor(5), {4.0, 0.0, 5.0, 1.0}, 1e6), 1.0);
    EXPECT_EQ(ValueAt(OptionsFor(5), {4.0, 0.0, 5.0, 1.0}, -1e6), 5.0);
    EXPECT_EQ(ValueAt(OptionsFor(6), {4.0, 0.0, 5.0, 1.0}, 1e6), 5.0);
    EXPECT_EQ(ValueAt(OptionsFor(21), {4.0, 1.0, 2.0}, 1e300), 4.0);
    EXPECT_NEAR(ValueAt(OptionsFor(21), {4.0, 1.0, 1.0}, 1e-300), 4e-300, 4e-312);
    EXPECT_EQ(ValueAt(Unshifted(25), {6.0, 2.0, 1.0}, 1e4), 6.0);
    EXPECT_EQ(ValueAt(Unshifted(25), {6.0, 2.0, 1.0}, -1e4), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(37), {0.1, 20.0, 0.05, 30.0}, 1e5), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(37), {0.1, 20.0, 0.05, 30.0}, -1e5), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(10), {5.0, 1.0}, 300.0), 0.0);
    const double dRising = 5.0 * std::log(10.0) * 1e-300;
    EXPECT_NEAR(ValueAt(OptionsFor(10), {5.0, 1.0}, -300.0), dRising, 1e-13 * dRising);
    EXPECT_EQ(ValueAt(OptionsFor(27), {5.0, 1.0, 0.25}, 1e300), 0.25);
}

TEST(Limits, DigitsStayWhereAPlainFormulaLosesThem) {
    // 1 - e^-u at u = 1e-8.
    const double u = 1e-8;
    const double dRise = u * (1.0 - u / 2.0 + u * u / 6.0);
    EXPECT_NEAR(ValueAt(Unshifted(9), {1.0, 1.0, 0.0}, u), dRise, 1e-15 * dRise);
    EXPECT_NEAR(CurveAt(OptionsFor(11), {1.0, 1.0, 0.0}, {{0.0, u}})[1], dRise * dRise,
                1e-15 * dRise * dRise);
    // Potentials near 0 mV: concentrations that differ in the fortieth bit.
    const double e = 0x1p-40;
    FitOptions options = OptionsFor(30);
    const double dThermal = 25.434059133;
    EXPECT_NEAR(ValueAt(options, {100.0}, 100.0 * (1.0 + e)), dThermal * e, 1e-9 * dThermal * e);
    EXPECT_EQ(ValueAt(options, {100.0}, 100.0), 0.0);
    const std::vector<std::vector<double>> same = {{50.0}, {50.0}, {9.0}, {9.0}, {7.0}, {7.0}};
    EXPECT_EQ(CurveAt(OptionsFor(19), {0.1, 0.3}, same)[0], 0.0);
    EXPECT_EQ(CurveAt(OptionsFor(20), {0.1, 0.3}, same)[0], 0.0);
}

TEST(Origin, ResponsesRestBeforeIt) {
    // The first point is the origin; what lies before it is at rest.
    for (const int32_t eFunction : {7, 8, 11, 13}) {
        FitOptions options = OptionsFor(eFunction);
        const std::vector<double> flat = eFunction == 7    ? std::vector<double>{3, 1, 0.2, 5, 0.5}
                                         : eFunction == 13 ? std::vector<double>{3, 1, 5, 0.5}
                                                           : std::vector<double>{3, 1, 0.5};
        const std::vector<double> y = CurveAt(options, flat, {{4.0, 1.0, 6.0}});
        EXPECT_EQ(y[0], 0.5) << eFunction;
        EXPECT_EQ(y[1], 0.5) << eFunction;
        EXPECT_GT(y[2], 0.6) << eFunction;
    }
    EXPECT_EQ(ValueAt(Unshifted(9), {3.0, 1.0, 0.5}, -2.0), 0.5);
    // Pure exponentials continue backwards.
    EXPECT_DOUBLE_EQ(ValueAt(Unshifted(15), {3.0, 1.0, 0.5}, -2.0), 3.0 * std::exp(2.0) + 0.5);
}

struct ShiftRow {
    int32_t eFunction;
    bool bAllowed;
    bool bMandatory;
    bool bAutomatic;
};

TEST(Origin, ShiftsByTheRuleOfTheFunctionAlone) {
    static constexpr ShiftRow kRows[] = {
        {7, true, true, true},    {8, true, true, true},     {11, true, true, true},
        {13, true, true, true},   {14, true, false, true},   {15, true, false, true},
        {16, true, false, true},  {17, true, false, true},   {25, true, false, true},
        {9, true, false, false},  {12, false, false, false}, {10, false, false, false},
        {3, false, false, false}, {35, false, false, false},
    };
    for (const ShiftRow& row : kRows) {
        for (const int32_t bAuto : {0, 1}) {
            for (const int32_t bDo : {0, 1}) {
                SCOPED_TRACE(row.eFunction * 100 + bAuto * 10 + bDo);
                FitOptions options = OptionsFor(row.eFunction);
                options.bAutoZeroShift = bAuto;
                options.bDoZeroShift = bDo;
                // A flag left from an earlier use of the record means nothing.
                options.bZeroShiftInEffect = static_cast<uint8_t>(1 - bDo);
                const bool bShifts =
                    row.bMandatory || (row.bAllowed && (bAuto ? row.bAutomatic : bDo != 0));
                const std::vector<double> flat = {2.0, 3.0, 0.25, 0.5, 0.125};
                const std::vector<double> late = CurveAt(options, flat, {{1.5, 2.5}});
                FitOptions plain = Unshifted(row.eFunction);
                // The same curve one and a half further to the left.
                const double dExpected = ValueAt(plain, flat, bShifts ? 1.0 : 2.5);
                if (row.bMandatory) {
                    EXPECT_EQ(late[1], CurveAt(options, flat, {{0.0, 1.0}})[1]);
                } else {
                    // A plain curve of one point has its own first x as origin where it shifts.
                    EXPECT_EQ(late[1], dExpected);
                }
            }
        }
    }
}

TEST(Origin, OfADescendingRecordIsItsSmallestX) {
    const FitOptions options = OptionsFor(15);
    const std::vector<double> y = CurveAt(options, {3.0, 2.0, 0.5}, {{9.0, 7.0, 5.0}});
    EXPECT_DOUBLE_EQ(y[2], 3.5);
    EXPECT_DOUBLE_EQ(y[0], 3.0 * std::exp(-2.0) + 0.5);
}

TEST(Origin, SlopeIsCountedFromItToo) {
    const std::vector<double> y = CurveAt(OptionsFor(14), {3.0, 2.0, 0.5, 10.0}, {{9.0, 11.0}});
    EXPECT_DOUBLE_EQ(y[0], 3.5);
    EXPECT_DOUBLE_EQ(y[1], 3.0 * std::exp(-1.0) + 20.5);
}

TEST(Concentrations, ZeroIsReplacedByTheSmallestOverTheFactor) {
    for (const int32_t eFunction : {21, 22, 23, 29, 30}) {
        SCOPED_TRACE(eFunction);
        FitOptions options = OptionsFor(eFunction);
        options.dSubstZeroLinearFactor = 4.0;
        const std::vector<double> flat = {2.0, 3.0, 1.5, 0.75};
        const std::vector<double> y = CurveAt(options, flat, {{0.0, 8.0, 2.0, -7.0, 5.0}});
        EXPECT_EQ(y[0], ValueAt(options, flat, 0.5));
        EXPECT_EQ(y[3], y[0]);
        EXPECT_EQ(y[2], ValueAt(options, flat, 2.0));
        options.dSubstZeroLinearFactor = 0.0;  // 10 where it is not above 0
        EXPECT_EQ(CurveAt(options, flat, {{0.0, 2.0}})[0], ValueAt(options, flat, 0.2));
        options.dSubstZeroLinearFactor = -4.0;
        EXPECT_EQ(CurveAt(options, flat, {{0.0, 2.0}})[0], ValueAt(options, flat, 0.2));
    }
}

TEST(Concentrations, WithoutAPositiveOneTheLimitAtZeroStands) {
    EXPECT_EQ(ValueAt(OptionsFor(21), {2.0, 3.0, 1.5}, 0.0), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(22), {2.0, 3.0, 1.5, 0.75}, 0.0), 2.0);
    EXPECT_EQ(ValueAt(OptionsFor(22), {2.0, 3.0, 1.5, -0.75}, 0.0), 3.0);
    EXPECT_EQ(ValueAt(OptionsFor(23), {2.0, 3.0, 1.5, 0.75}, 0.0), 0.75);
    EXPECT_EQ(ValueAt(OptionsFor(29), {2.0, 3.0}, -1.0), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(30), {2.0}, 0.0), -kInfinite);
    // A reciprocal concentration of 0 is an abscissa like any other.
    EXPECT_EQ(ValueAt(OptionsFor(24), {4.0, 3.0}, 0.0), 0.25);
    EXPECT_EQ(ValueAt(OptionsFor(24), {4.0, 2.0}, -0.5), 0.0);
}

TEST(Concentrations, ValenceAndTemperatureAreOfTheFunctionsOwnFields) {
    FitOptions options = OptionsFor(30);
    options.dNernstTemperature = 25.0;
    EXPECT_NEAR(ValueAt(options, {1.0}, std::exp(1.0)), 25.6925791, 1e-7);
    options.uNernstValence = static_cast<uint32_t>(-2);
    EXPECT_NEAR(ValueAt(options, {1.0}, std::exp(1.0)), -12.8462896, 1e-7);
    options.uNernstValence = 0;  // read as 1
    EXPECT_NEAR(ValueAt(options, {1.0}, std::exp(1.0)), 25.6925791, 1e-7);
    options.dNernstTemperature = -273.0;
    EXPECT_NEAR(ValueAt(options, {1.0}, std::exp(1.0)), 0.0129260, 1e-7);

    const std::vector<std::vector<double>> ions = {{5.0}, {140.0}, {145.0}, {12.0}, {120.0}, {8.0}};
    options = OptionsFor(19);
    options.dGoldmanTemperature = 0.0;
    const double dCold = CurveAt(options, {0.05, 0.3}, ions)[0];
    options.dGoldmanTemperature = 273.15;
    EXPECT_DOUBLE_EQ(CurveAt(options, {0.05, 0.3}, ions)[0], 2.0 * dCold);
    options.dExtGoldmanTemperature = 50.0;
    EXPECT_DOUBLE_EQ(CurveAt(options, {0.05, 0.3}, ions)[0], 2.0 * dCold);
    options.eFunctionType = 20;
    options.dExtGoldmanTemperature = 0.0;
    const double dExtended = CurveAt(options, {0.05, 0.3}, ions)[0];
    options.dExtGoldmanTemperature = 273.15;
    EXPECT_DOUBLE_EQ(CurveAt(options, {0.05, 0.3}, ions)[0], 2.0 * dExtended);

    for (const int32_t eFunction : {5, 6}) {
        options = OptionsFor(eFunction);
        options.dZDBoltzmanTemperature = 0.0;
        const double dAt = ValueAt(options, {1.0, 0.0, 2.0, 0.0}, 10.0);
        options.dZDBoltzmanTemperature = 273.15;
        EXPECT_DOUBLE_EQ(ValueAt(options, {1.0, 0.0, 4.0, 0.0}, 10.0), dAt);
    }
}

TEST(Concentrations, BelowAbsoluteZeroNothingIsDrawn) {
    for (const int32_t eFunction : {5, 6, 19, 20, 30}) {
        FitOptions options = OptionsFor(eFunction);
        options.dZDBoltzmanTemperature = options.dNernstTemperature = options.dGoldmanTemperature =
            options.dExtGoldmanTemperature = -273.15;
        const CurveFit fit = Make(options);
        FitDataStats stats{};
        stats.uOrder = 1;
        const double seeds[4] = {1.0, 1.0, 1.0, 1.0};
        EXPECT_EQ(fit->SetUpCurve(&stats, seeds), 0) << eFunction;
        EXPECT_EQ(ErrorOf(*fit), "The temperature is below absolute zero.");
    }
}

TEST(Powers, AreTheFunctionsOwnAndZeroIsOne) {
    FitOptions options = OptionsFor(11);
    options.uExpPower = 4;
    options.uCurTimePowerA = 2;
    const double r = -std::expm1(-0.5);
    EXPECT_DOUBLE_EQ(CurveAt(options, {2.0, 2.0, 0.0}, {{0.0, 1.0}})[1], 2.0 * r * r * r * r);
    options.uExpPower = 0;
    EXPECT_DOUBLE_EQ(CurveAt(options, {2.0, 2.0, 0.0}, {{0.0, 1.0}})[1], 2.0 * r);
    options.eFunctionType = 7;
    options.uExpPower = 5;
    options.uCurTimePowerB = 3;
    EXPECT_DOUBLE_EQ(CurveAt(options, {2.0, 2.0, 0.5, 1e300, 0.0}, {{0.0, 1.0}})[1], 2.0 * r * r);
    // Without inactivation h is its starting value; with it at once, h inf to the power b.
    EXPECT_DOUBLE_EQ(CurveAt(options, {2.0, 2.0, 0.5, 0.0, 0.0}, {{0.0, 1.0}})[1],
                     2.0 * r * r * 0.125);
}

TEST(Powers, OfAnyRecordTakeNoTime) {
    FitOptions options = OptionsFor(11);
    const auto risenAt = [&](double t) { return CurveAt(options, {1.0, 1.0, 0.0}, {{0.0, t}})[1]; };
    options.uExpPower = UINT32_MAX;
    EXPECT_NEAR(risenAt(30.0), std::exp(UINT32_MAX * std::log1p(-std::exp(-30.0))), 1e-6);
    // Products and the function meet.
    for (const uint32_t u : {16u, 17u}) {
        options.uExpPower = u;
        EXPECT_NEAR(risenAt(2.0), std::pow(1.0 - std::exp(-2.0), u), 1e-15);
    }
    options = OptionsFor(7);
    options.uCurTimePowerA = options.uCurTimePowerB = UINT32_MAX;
    std::vector<double> t(2000, 3.0);
    t[0] = 0.0;
    EXPECT_EQ(CurveAt(options, {1.0, 1.0, 0.5, 1.0, 0.25}, {t})[1999], 0.25);
}

TEST(Distributions, AreZeroOutsideTheirDomain) {
    EXPECT_EQ(ValueAt(OptionsFor(0), {2.0, 3.0}, -0.5), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(0), {2.0, 3.0}, 1.5), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(1), {5.0, 0.5}, -1.0), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(1), {5.0, 0.5}, 6.0), 0.0);
    EXPECT_GT(ValueAt(OptionsFor(1), {5.0, 0.5}, 5.5), 0.0);
    EXPECT_EQ(ValueAt(OptionsFor(33), {5.0}, -1.0), 0.0);
}

TEST(Distributions, AtTheEndsOfTheUnitRange) {
    // Above one the shape ends in 0, at one it is the other shape, below one a pole, large and
    // finite.
    EXPECT_LT(ValueAt(OptionsFor(0), {2.0, 3.0}, 0.0), 1e-10);
    EXPECT_NEAR(ValueAt(OptionsFor(0), {1.0, 3.0}, 0.0), 3.0, 1e-9);
    EXPECT_NEAR(ValueAt(OptionsFor(0), {4.0, 1.0}, 1.0), 4.0, 1e-9);
    const double dPole = ValueAt(OptionsFor(0), {0.5, 3.0}, 0.0);
    EXPECT_GT(dPole, 1e5);
    EXPECT_TRUE(std::isfinite(dPole));
}

TEST(Distributions, StayAccurateForLargeShapes) {
    // Many trials: close to the normal curve at its top, with the next order of its series.
    const double n = 1e6;
    const double dTop = 1.0 / std::sqrt(2.0 * std::numbers::pi * n * 0.25);
    EXPECT_NEAR(ValueAt(OptionsFor(1), {n, 0.5}, n / 2), dTop * (1.0 - 0.25 / n), 1e-10 * dTop);
    const double dMean = 1e6;
    const double dPeak = 1.0 / std::sqrt(2.0 * std::numbers::pi * dMean);
    EXPECT_NEAR(ValueAt(OptionsFor(33), {dMean}, dMean), dPeak * (1.0 - 1.0 / (12.0 * dMean)),
                1e-10 * dPeak);
    const double dBeta = ValueAt(OptionsFor(0), {500.0, 500.0}, 0.5);
    EXPECT_NEAR(dBeta, std::sqrt(2.0 * 1000.0 / std::numbers::pi) * (1.0 - 1.0 / 4000.0),
                2e-6 * dBeta);
}

TEST(Terms, CountIsOfTheCurveThatIsSetUp) {
    // Two terms in the record, one drawn: the seeds are read with the curve's own count.
    const CurveFit fit = Make(OptionsFor(15, 2));
    FitDataStats stats{};
    stats.uOrder = 1;
    const double seeds[] = {8.0, 2.0};
    EXPECT_EQ(fit->SetUpCurve(&stats, seeds), 1);
    const double x[] = {2.0};
    const double* arrays[] = {x};
    double y = 0.0;
    stats.dFirstX = 0.0;
    EXPECT_EQ(fit->Evaluate(arrays, &y, 1), 1);
    EXPECT_DOUBLE_EQ(y, 8.0 * std::exp(-1.0));
    // A function of one term, and Chebyshev's, draw one whatever is asked for.
    FitOptions options = OptionsFor(3, 4);
    options.eSearchMethod = 3;
    const CurveFit single = Make(options);
    stats.uOrder = 4;
    const double sigmoid[] = {8.0, 2.0, 5.0};
    EXPECT_EQ(single->SetUpCurve(&stats, sigmoid), 1);
    EXPECT_EQ(single->Evaluate(arrays, &y, 1), 1);
    EXPECT_DOUBLE_EQ(y, 4.0);
}

TEST(Values, ThatAFormulaDoesNotHaveAreNoError) {
    EXPECT_TRUE(std::isnan(ValueAt(OptionsFor(21), {2.0, -3.0, 1.5}, 1.0)));
    EXPECT_TRUE(std::isinf(ValueAt(OptionsFor(29), {2.0, -3.0}, 3.0)));
    EXPECT_EQ(ValueAt(Unshifted(15), {1.0, -1.0, 0.0}, 1e4), kInfinite);
    EXPECT_TRUE(std::isnan(ValueAt(OptionsFor(0), {-1.0, 3.0}, 0.5)));
}

}  // namespace
