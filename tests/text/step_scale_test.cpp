#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "text/StepScale.h"

namespace {

TEST(StepValue, ValueOffTheGridLandsOnTheNextGridPoint) {
    EXPECT_EQ(StepValue(1.25, 0.5), 1.5f);
    EXPECT_EQ(StepValue(1.25, -0.5), 1.0f);
    EXPECT_EQ(StepValue(7, 5), 10.0f);
    EXPECT_EQ(StepValue(7, -5), 5.0f);
}

TEST(StepValue, ValueOnTheGridMovesOneStep) {
    EXPECT_EQ(StepValue(1.5, 0.5), 2.0f);
    EXPECT_EQ(StepValue(10, 5), 15.0f);
    EXPECT_EQ(StepValue(10, -5), 5.0f);
    EXPECT_EQ(StepValue(0, -1), -1.0f);
    EXPECT_EQ(StepValue(0, 1), 1.0f);
    EXPECT_FLOAT_EQ(StepValue(0.3, 0.1), 0.4f);
}

TEST(StepValue, NegativeValuesMoveAsAMirrorImage) {
    EXPECT_EQ(StepValue(-1.25, 0.5), -1.0f);
    EXPECT_EQ(StepValue(-1.25, -0.5), -1.5f);
    EXPECT_EQ(StepValue(-10, 5), -5.0f);
    EXPECT_EQ(StepValue(-10, -5), -15.0f);
    EXPECT_EQ(StepValue(-1, 1), 0.0f);
}

TEST(StepValue, NearlyIntegerValuesCountAsIntegers) {
    EXPECT_EQ(StepValue(2.9995, 1), 4.0f);
    EXPECT_EQ(StepValue(3.0005, 1), 4.0f);
}

TEST(StepValue, NearnessEndsAtItsBounds) {
    EXPECT_EQ(StepValue(0.001f, 1), 1.001f);
    EXPECT_EQ(StepValue(0.01f, 1), 1.0f);
    EXPECT_EQ(StepValue(0.0095f, 1), 1.0095f);
}

// Steps below one are scaled to one, so that nearness is that of the steps.
TEST(StepValue, SmallStepsAreScaled) {
    EXPECT_FLOAT_EQ(StepValue(0.00055, 0.0001), 0.0006f);
    EXPECT_FLOAT_EQ(StepValue(0.00055, -0.0001), 0.0005f);
    EXPECT_EQ(StepValue(1.5003, 0.5), 2.0f);
    EXPECT_EQ(StepValue(2.9986, 1.5), 3.0f);
    // The inverse of the inverse of 0.003 is another number of single precision.
    EXPECT_EQ(StepValue(0, 0.003), 1 / (1 / 0.003f));
    EXPECT_NE(StepValue(0, 0.003), 0.003f);
    EXPECT_FLOAT_EQ(StepValue(0.0105, 0.007), 0.014f);
}

TEST(StepValue, ArithmeticIsInSinglePrecision) {
    // 16777217 has no single precision: it is 16777216.
    EXPECT_EQ(StepValue(16777217.0, 2), 16777218.0f);
}

TEST(StepValue, NoStepLeavesTheValue) {
    EXPECT_EQ(StepValue(1.25, 0), 1.25f);
    EXPECT_TRUE(std::isnan(StepValue(std::numeric_limits<double>::quiet_NaN(), 1)));
}

struct Scale {
    int nResult;
    std::int32_t nPositions;
    double dStep;
    double dOrigin;
};

Scale ScaleOf(double dLow, double dHigh, double dStep) {
    Scale scale = {};
    scale.nResult =
        ComputeGaugeScale(dLow, dHigh, dStep, &scale.nPositions, &scale.dStep, &scale.dOrigin);
    return scale;
}

void ExpectScale(const Scale& scale, int nResult, std::int32_t nPositions, double dStep,
                 double dOrigin) {
    EXPECT_EQ(scale.nResult, nResult);
    EXPECT_EQ(scale.nPositions, nPositions);
    EXPECT_EQ(scale.dStep, dStep);
    EXPECT_EQ(scale.dOrigin, dOrigin);
}

TEST(GaugeScale, CountsTheStepsOfTheRange) {
    ExpectScale(ScaleOf(0, 100, 1), 1, 100, 1, 0);
    ExpectScale(ScaleOf(100, 0, 1), 1, 100, 1, 0);
    ExpectScale(ScaleOf(0, 10, 3), 1, 3, 3, 0);
    ExpectScale(ScaleOf(0, 0.5, 1), 1, 1, 1, 0);
}

TEST(GaugeScale, NoRangeAndNoStepGiveThePreset) {
    ExpectScale(ScaleOf(5, 5, 2), 0, 1, 2, 5);
    ExpectScale(ScaleOf(5, 9, 0), 0, 1, 0, 5);
}

TEST(GaugeScale, OriginIsTheGridPointNearestToTheLowerLimit) {
    ExpectScale(ScaleOf(7, 107, 5), 1, 20, 5, 5);
    ExpectScale(ScaleOf(8, 108, 5), 1, 20, 5, 10);
    ExpectScale(ScaleOf(7.5, 107.5, 5), 1, 20, 5, 10);
    ExpectScale(ScaleOf(-7.4, 100, 5), 1, 21, 5, -5);
    ExpectScale(ScaleOf(-7.6, 100, 5), 1, 22, 5, -10);
}

TEST(GaugeScale, StepGrowsToOneTwoOrFiveUntilTenMillionPositions) {
    ExpectScale(ScaleOf(0, 10000000, 1), 1, 10000000, 1, 0);
    ExpectScale(ScaleOf(0, 20000000, 1), 1, 10000000, 2, 0);
    ExpectScale(ScaleOf(0, 30000000, 1), 1, 6000000, 5, 0);
    ExpectScale(ScaleOf(0, 100000000, 1), 1, 10000000, 10, 0);
    ExpectScale(ScaleOf(0, 1, 1e-9), 1, 10000000, 1e-7, 0);
}

TEST(GaugeScale, StepGrowsByItsFirstDigitOfTwo) {
    ExpectScale(ScaleOf(0, 10000001, 1), 1, 5000001, 2, 0);
    ExpectScale(ScaleOf(0, 2147483648.0, 1), 1, 4294967, 500, 0);
    ExpectScale(ScaleOf(0, 9000000, 0.75), 1, 4500000, 2, 0);
    ExpectScale(ScaleOf(0, 40000000, 3), 1, 8000000, 5, 0);
    ExpectScale(ScaleOf(0, 20, 10), 1, 2, 10, 0);
    ExpectScale(ScaleOf(0, 15, 10), 1, 2, 10, 0);
    // Four of the smallest numbers grow to ten of them: rounding would give the four again.
    const double dTiny = std::numeric_limits<double>::denorm_min();
    ExpectScale(ScaleOf(3 * dTiny, 9 * dTiny, dTiny), 1, 6, dTiny, 3 * dTiny);
    ExpectScale(ScaleOf(0, 80000000 * dTiny, 4 * dTiny), 1, 8000000, 10 * dTiny, 0);
}

TEST(GaugeScale, ExtremeValuesEnd) {
    const double dInfinity = std::numeric_limits<double>::infinity();
    EXPECT_LE(ScaleOf(0, 1e300, 5e-324).nPositions, 10000000);
    EXPECT_GE(ScaleOf(-dInfinity, dInfinity, 1).nPositions, 1);
    EXPECT_GE(ScaleOf(0, std::numeric_limits<double>::quiet_NaN(), 1).nPositions, 1);
    EXPECT_EQ(ScaleOf(0, 10, -1).nPositions, 1);
}

}  // namespace
