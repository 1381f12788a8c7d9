// Seeds by place and flat, and curves through the library.

#include <gtest/gtest.h>

#include <cmath>

#include "FitFixture.h"

namespace {

using fit_test::FitModel;

TEST_F(FitModel, PlacesOfPredefinedParameters) {
    options.uDlgFitOrder = 3;
    Choose(14);
    const std::uint32_t expected[] = {0, 4, 8, 1, 5, 9};
    for (std::uint32_t i = 0; i < 6; ++i) EXPECT_EQ(seeds.PlaceOfFlat(i), expected[i]);
    EXPECT_EQ(CFitSeedInterface::PlaceOf(2, 1), 9u);
    Choose(7);
    for (std::uint32_t i = 0; i < 4; ++i) EXPECT_EQ(seeds.PlaceOfFlat(i), i);
}

TEST_F(FitModel, PlacesOfCustomParametersRunDownTheColumns) {
    options.nNumCustomParams = 24;
    Choose(38);
    for (std::uint32_t i = 0; i < 24; ++i)
        EXPECT_EQ(seeds.PlaceOfFlat(i), (i % 6) * 4 + i / 6) << i;
}

TEST_F(FitModel, FlatSeedsFollowThePlaces) {
    options.uDlgFitOrder = 2;
    Choose(15);
    const double flat[] = {1, 3, 2, 4, 5};
    seeds.SetSeeds(flat);
    EXPECT_EQ(seeds.dSeeds[0], 1.0);
    EXPECT_EQ(seeds.dSeeds[1], 2.0);
    EXPECT_EQ(seeds.dSeeds[4], 3.0);
    EXPECT_EQ(seeds.dSeeds[5], 4.0);
    EXPECT_EQ(seeds.dSeeds[24], 5.0);
    seeds.uFixed[5] = 1;
    seeds.uFixed[24] = 1;
    double out[26] = {};
    std::uint32_t fixed[26] = {};
    ASSERT_EQ(seeds.GetSeeds(out, fixed), 5u);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(out[i], flat[i]);
    EXPECT_EQ(fixed[3], 1u);
    EXPECT_EQ(fixed[4], 1u);
    EXPECT_EQ(fixed[0] + fixed[1] + fixed[2], 0u);
    double term[4] = {};
    EXPECT_EQ(seeds.GetTermSeeds(1, term), 2u);
    EXPECT_EQ(term[0], 3.0);
    EXPECT_EQ(term[1], 4.0);
    seeds.SetSeed(1, 0, 9.0);
    EXPECT_EQ(seeds.GetSeed(1, 0), 9.0);
    // Term 6 is the offset and the slope, and there is nothing behind them.
    seeds.uFixed.fill(0);
    seeds.SetSeed(6, 2, 3.0);
    for (const std::uint32_t u : seeds.uFixed) EXPECT_EQ(u, 0u);
    seeds.uFixed.fill(1);
    EXPECT_EQ(seeds.GetSeed(6, 2), 0.0);
    double guarded[4] = {0.0, 0.0, -7.0, -7.0};
    EXPECT_EQ(seeds.GetTermSeeds(1, guarded), 2u);
    EXPECT_EQ(guarded[2], -7.0);
    seeds.SetSeed(9, 0, 1.0);
    seeds.SetSeed(0, 4, 7.0);
    EXPECT_EQ(seeds.GetSeed(9, 0), 0.0);
    EXPECT_EQ(seeds.GetSeed(0, 4), 0.0);
    EXPECT_EQ(seeds.GetSeed(1, 0), 9.0);
}

TEST_F(FitModel, OffsetAndSlopeStandBehindTheGridWhereTheFunctionHasThem) {
    const double flat[] = {1, 2, 3, 4};
    Choose(14);
    seeds.dSeeds.fill(9.0);
    seeds.SetSeeds(flat);
    EXPECT_EQ(seeds.dSeeds[2], 0.0);
    EXPECT_EQ(seeds.dSeeds[24], 3.0);
    EXPECT_EQ(seeds.dSeeds[25], 4.0);
    double out[26] = {};
    EXPECT_EQ(seeds.GetSeeds(out, nullptr), 4u);
    Choose(29);
    EXPECT_EQ(seeds.GetSeeds(out, nullptr), 2u);
}

TEST_F(FitModel, StepsAreAHundredthOfTheWorkValue) {
    Choose(15);
    seeds.dWork[0] = 0.0;
    seeds.dWork[1] = -4.0;
    seeds.dWork[24] = 2.0;
    EXPECT_EQ(seeds.StepForSeed(0, 0), 0.1);
    EXPECT_EQ(seeds.StepForSeed(0, 1), 0.04);
    EXPECT_EQ(seeds.StepForSeed(6, 0), 0.02);
    EXPECT_EQ(seeds.StepForSeed(6, 1), 0.01);  // no slope
    EXPECT_EQ(seeds.StepForSeed(6, 2), 0.1);   // no place
    Choose(29);
    EXPECT_EQ(seeds.StepForSeed(6, 0), 0.01);  // no offset
}

TEST_F(FitModel, RowsOfTheGrid) {
    options.uDlgFitOrder = 6;
    Choose(15);
    EXPECT_EQ(seeds.VisibleRows(), 6u);
    Choose(8);
    EXPECT_EQ(seeds.VisibleRows(), 1u);
    options.nNumCustomParams = 8;
    Choose(38);
    EXPECT_EQ(seeds.VisibleRows(), 6u);
    options.nNumCustomParams = 2;
    EXPECT_EQ(seeds.VisibleRows(), 2u);
}

TEST_F(FitModel, CurvesOfTheTermsSumToTheWholeLessTheOffsets) {
    options.uDlgFitOrder = 2;
    Choose(14);
    seeds.dWork = {};
    seeds.dWork[0] = 8.0;
    seeds.dWork[1] = 2.0;
    seeds.dWork[4] = 4.0;
    seeds.dWork[5] = 5.0;
    seeds.dWork[24] = 1.0;
    seeds.dWork[25] = 0.5;
    const double x[] = {10.0, 12.0, 15.0};
    double whole[3] = {};
    double first[3] = {};
    double second[3] = {};
    double few[3] = {};
    ASSERT_TRUE(seeds.CurveFromSeeds(x, whole, 3, 2));
    ASSERT_TRUE(seeds.CurveOfTerm(x, first, 3, 0));
    ASSERT_TRUE(seeds.CurveOfTerm(x, second, 3, 1));
    ASSERT_TRUE(seeds.CurveFromSeeds(x, few, 3, 1));
    for (int i = 0; i < 3; ++i) {
        const double t = x[i] - 10.0;
        EXPECT_NEAR(whole[i], 8 * std::exp(-t / 2) + 4 * std::exp(-t / 5) + 1 + 0.5 * t, 1e-12);
        EXPECT_NEAR(first[i] + second[i] - 1 - 0.5 * t, whole[i], 1e-12);
        EXPECT_EQ(few[i], first[i]);
    }
    // More terms wanted than there are: all of them.
    ASSERT_TRUE(seeds.CurveFromSeeds(x, few, 3, 6));
    EXPECT_EQ(few[2], whole[2]);
}

TEST_F(FitModel, ConstantsStandInForVariables) {
    Choose(19);
    EXPECT_EQ(data.GetConstantCount(), 6u);
    EXPECT_STREQ(data.GetConstantName(5), "[Cl]i");
    EXPECT_STREQ(data.GetDependentName(), "Vm (mV)");
    const double values[] = {0.0, 140.0, 145.0, 12.0, 120.0, 8.0};
    for (std::uint32_t i = 0; i < 6; ++i) {
        data.SetIsConstant(i, i != 0);
        data.SetConstant(i, values[i]);
    }
    seeds.dWork[0] = 0.05;
    seeds.dWork[1] = 0.3;
    const double x[] = {5.0};
    double y[] = {0.0};
    ASSERT_TRUE(seeds.CurveFromSeeds(x, y, 1, 1));
    const double dThermal = 1000.0 * 8.31446261815324 * (23.0 + 273.15) / 96485.3321233100184;
    const double dExpected =
        dThermal * std::log((5 + 0.05 * 145 + 0.3 * 8) / (140 + 0.05 * 12 + 0.3 * 120));
    EXPECT_NEAR(y[0], dExpected, 1e-10);
}

TEST_F(FitModel, SeedsComeFromTheLibraryIntoThePlaces) {
    options.uDlgFitOrder = 1;
    Choose(35);
    seeds.dSeeds.fill(9.0);
    seeds.uFixed.fill(1);
    const double x[] = {0, 1, 2, 3};
    const double y[] = {5, 7, 9, 11};
    const double* arrays[] = {x, y};
    ASSERT_TRUE(seeds.ComputeSeeds(arrays, 2, 4));
    EXPECT_NEAR(seeds.dSeeds[0], 2.0, 1e-12);
    EXPECT_NEAR(seeds.dSeeds[24], 5.0, 1e-12);
    EXPECT_EQ(seeds.dSeeds[1], 0.0);
    EXPECT_EQ(seeds.uFixed[0], 0u);
    seeds.uFixed.fill(1);
    EXPECT_FALSE(seeds.ComputeSeeds(arrays, 2, 1));
    for (const double d : seeds.dSeeds) EXPECT_EQ(d, 0.0);
    EXPECT_EQ(seeds.uFixed[3], 0u);
}

TEST_F(FitModel, PropertiesNameWhatTheDialogShows) {
    Choose(14);
    EXPECT_STREQ(fit.GetParamName(0), "A");
    EXPECT_STREQ(fit.GetParamName(1), "tau");
    EXPECT_STREQ(fit.GetParamName(2), "");
    EXPECT_STREQ(fit.GetParamName(24), "");
    EXPECT_STREQ(fit.GetOffsetName(), "C");
    EXPECT_STREQ(fit.GetSlopeName(), "m");
    EXPECT_STREQ(fit.GetFunctionText(), "Exponential, sloping baseline");
    EXPECT_STREQ(data.GetConstantName(0), "Time");
    EXPECT_STREQ(fit.PictureName(), "EQ_SLPEXP");
    Choose(12);
    EXPECT_STREQ(fit.PictureName(), "EQ_PDCEXP");
    Choose(12, kSearchVM, kMinimML);
    EXPECT_STREQ(fit.PictureName(), "EQ_PDCEXPNOC");
}

}  // namespace
