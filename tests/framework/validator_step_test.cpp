// Snapping a value onto the multiples of a step.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "framework/StepSnap.h"

namespace {

struct Row {
    double dValue;
    double dStep;
    std::int32_t nResult;
    double dSnapped;
};

const Row kRows[] = {
    {12, 0, 0, 12},    // no step
    {12, 5, 1, 10},    // below half way
    {12.5, 5, 1, 15},  // half way goes away from zero
    {13, 5, 1, 15},    // above half way
    {-12, 5, 1, -10},  // the sign stays
    {-12.5, 5, 1, -15},
    {12, -5, 1, -10},   // one negative: negative
    {-12, -5, 1, 10},   // both negative: positive, as is required
    {15, 5, 1, 15},     // on the step
    {-15, -5, 1, -15},  // on the step nothing changes, not even the sign
    {0, 5, 1, 0},
    {0, 1e7, 0, 0},    // the step alone spans more than six decades
    {1e6, 1, 1, 1e6},  // a million steps are not too many
    {3000000.4, 1, 0, 3000000.4},
    {0.3, 5, 1, 0},
    {1.25, 0.5, 1, 1.5},
};

TEST(ValidatorStep, DoubleSnapsByTheTable) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(testing::Message() << row.dValue << " by " << row.dStep);
        double dValue = row.dValue;
        EXPECT_EQ(SnapToStep(&dValue, row.dStep), row.nResult);
        EXPECT_EQ(dValue, row.dSnapped);
    }
}

TEST(ValidatorStep, FloatSnapsByTheTable) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(testing::Message() << row.dValue << " by " << row.dStep);
        auto fValue = static_cast<float>(row.dValue);
        EXPECT_EQ(SnapToStepFloat(&fValue, static_cast<float>(row.dStep)), row.nResult);
        EXPECT_EQ(fValue, static_cast<float>(row.dSnapped));
    }
}

TEST(ValidatorStep, FloatComputesInSinglePrecision) {
    float fValue = 0.7f;
    EXPECT_EQ(SnapToStepFloat(&fValue, 0.1f), 1);
    EXPECT_EQ(fValue, 0.1f * 7.0f);
}

TEST(ValidatorStep, IntegerSnapsWithNoLimitOnTheSteps) {
    struct IntRow {
        std::int32_t nValue, nStep, nResult, nSnapped;
    };
    const IntRow kIntRows[] = {
        {12, 0, 0, 12},
        {12, 5, 1, 10},
        {13, 5, 1, 15},
        {-13, 5, 1, -15},
        {-13, -5, 1, 15},
        {13, -5, 1, -15},
        {3, 2, 1, 4},
        {2000000001, 2, 1, 2000000002},
        {7, 1, 1, 7},
        {0, 5, 1, 0},
        {INT_MAX, 2, 1, INT_MAX},
        {INT_MIN, 2, 1, INT_MIN},
        {INT_MIN, -1, 1, INT_MIN},
        {5, INT_MIN, 1, 0},
    };
    for (const IntRow& row : kIntRows) {
        SCOPED_TRACE(testing::Message() << row.nValue << " by " << row.nStep);
        std::int32_t nValue = row.nValue;
        EXPECT_EQ(SnapToStepInt(&nValue, row.nStep), row.nResult);
        EXPECT_EQ(nValue, row.nSnapped);
    }
}

TEST(ValidatorStep, NotANumberStaysNotANumber) {
    double dValue = std::numeric_limits<double>::quiet_NaN();
    SnapToStep(&dValue, 1);
    EXPECT_TRUE(std::isnan(dValue));
}

}  // namespace
