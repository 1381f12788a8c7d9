// The curve-fit library as a file, and libraries that are missing or misbehave at one place.

#include <gtest/gtest.h>

#include "FitFixture.h"
#include "standin/StandInLibrary.h"

namespace {

using fit_test::FitModel;
using fit_test::kAlways;
using fit_test::StandInLibrary;

const double kX[] = {0, 1, 2, 3};
const double kY[] = {5, 7, 9, 11};
const double* const kArrays[] = {kX, kY};

TEST(CurveFitLibraryFile, IsLoadedOnFirstUseAndFreedWithItsOwner) {
    const FitOptions options = fit_test::FreshRecord();
    {
        CurveFitLibrary library(GetModuleHandleA(nullptr));
        EXPECT_FALSE(library.IsLoaded());
        EXPECT_TRUE(static_cast<bool>(library.Use(options)));
        EXPECT_TRUE(library.IsLoaded());
    }
    CurveFitLibrary missing(GetModuleHandleA(nullptr), StandInLibrary::kMissingFile);
    EXPECT_FALSE(static_cast<bool>(missing.Use(options)));
    EXPECT_FALSE(missing.IsLoaded());
    {
        CurveFitLibrary noExport(GetModuleHandleA(nullptr), StandInLibrary::kFileWithoutExport);
        EXPECT_FALSE(static_cast<bool>(noExport.Use(options)));
        EXPECT_TRUE(noExport.IsLoaded());
        EXPECT_NE(GetModuleHandleA(StandInLibrary::kFileWithoutExport), nullptr);
    }
    EXPECT_EQ(GetModuleHandleA(StandInLibrary::kFileWithoutExport), nullptr);
}

class NoLibrary : public FitModel, public ::testing::WithParamInterface<const char*> {
  public:
    NoLibrary() : FitModel(GetParam()) { standIn->object = {1, kAlways}; }
    StandInLibrary standIn;
};

TEST_P(NoLibrary, EveryStepFailsAndNothingChanges) {
    double y[] = {5, 7, 9, 11};
    EXPECT_NE(fit.ReadProperties(), 0);
    EXPECT_EQ(fit.Properties().bAllowLM, 1);
    EXPECT_EQ(fit.Properties().uParamsPerTerm, 0u);
    EXPECT_FALSE(seeds.ComputeSeeds(kArrays, 2, 4));
    EXPECT_FALSE(seeds.CurveFromSeeds(kX, y, 4, 1));
    EXPECT_EQ(y[1], 7.0);
    EXPECT_EQ(standIn->uObjects, GetParam() == std::string(StandInLibrary::kFile) ? 3u : 0u);
}

INSTANTIATE_TEST_SUITE_P(Files, NoLibrary,
                         ::testing::Values(StandInLibrary::kMissingFile,
                                           StandInLibrary::kFileWithoutExport,
                                           StandInLibrary::kFile));

class StandIn : public FitModel {
  public:
    StandIn() : FitModel(StandInLibrary::kFile) {}
    StandInLibrary standIn;
};

TEST_F(StandIn, AnswersAsTheRealLibraryUnlessSwitched) {
    Choose(35);
    EXPECT_STREQ(fit.GetFunctionText(), "Straight line, standard");
    EXPECT_STREQ(fit.GetSlopeName(), "");
    ASSERT_TRUE(seeds.ComputeSeeds(kArrays, 2, 4));
    EXPECT_NEAR(seeds.dSeeds[0], 2.0, 1e-12);
    seeds.dWork = seeds.dSeeds;
    double y[4] = {};
    ASSERT_TRUE(seeds.CurveFromSeeds(kX, y, 4, 1));
    EXPECT_NEAR(y[3], 11.0, 1e-12);
    EXPECT_EQ(standIn->record.eFunctionType, 35);
    EXPECT_EQ(standIn->uArrays, 2u);
    EXPECT_EQ(standIn->uPoints, 4u);
    EXPECT_EQ(standIn->stats.uNumPoints, 4u);
    EXPECT_NEAR(standIn->stats.dOffsetSeed, 5.0, 1e-12);
    // Objects live for one use each.
    EXPECT_EQ(standIn->uObjects, 3u);
    EXPECT_EQ(standIn->uCalls[0], 3u);
    EXPECT_EQ(standIn->uMostAlive, 1u);
    EXPECT_EQ(standIn->uAlive, 0u);
    EXPECT_EQ(standIn->uCalls[40], 1u);
    EXPECT_EQ(standIn->uCalls[7], 1u);
    EXPECT_EQ(standIn->uCalls[59], 1u);
    EXPECT_EQ(standIn->uCalls[17], 1u);
    standIn.Reset();
    EXPECT_EQ(standIn->uObjects, 0u);
    EXPECT_EQ(standIn->uCalls[40], 0u);
}

TEST_F(StandIn, FailsFromItsNthObjectOn) {
    standIn->object = {2, 2};
    EXPECT_EQ(fit.ReadProperties(), 0);
    EXPECT_EQ(fit.ReadProperties(), 1);
    EXPECT_EQ(fit.ReadProperties(), 1);
    EXPECT_EQ(fit.ReadProperties(), 0);
    EXPECT_EQ(standIn->uObjects, 4u);
    EXPECT_EQ(standIn->uCalls[0], 2u);
}

TEST_F(StandIn, FailsFromTheNthCallOfAPlaceOn) {
    Choose(35);
    standIn->places[7] = {2, 1};
    EXPECT_TRUE(seeds.ComputeSeeds(kArrays, 2, 4));
    EXPECT_FALSE(seeds.ComputeSeeds(kArrays, 2, 4));
    // Half of the work of a call that fails does not arrive.
    EXPECT_EQ(seeds.dSeeds[0], 0.0);
    EXPECT_TRUE(seeds.ComputeSeeds(kArrays, 2, 4));
}

TEST_F(StandIn, EachPlaceFailsItsStepAlone) {
    const auto tryAll = [&] {
        standIn->uCalls[0] = 0;
        double y[4] = {};
        std::string sFailed;
        if (fit.ReadProperties() != 0) sFailed += " properties";
        if (!seeds.ComputeSeeds(kArrays, 2, 4)) sFailed += " seeds";
        if (!seeds.CurveFromSeeds(kX, y, 4, 1)) sFailed += " curve";
        EXPECT_EQ(standIn->uCalls[0], 3u);
        EXPECT_EQ(standIn->uAlive, 0u);
        return sFailed;
    };
    Choose(35);
    EXPECT_EQ(tryAll(), "");
    const std::pair<std::uint32_t, const char*> rows[] = {
        {7, " seeds"}, {11, ""}, {17, " curve"}, {18, ""}, {30, ""}, {40, " properties"},
        {44, ""},      {45, ""}, {46, ""},       {47, ""}, {48, ""}, {59, " curve"}};
    for (const auto& [uPlace, szExpected] : rows) {
        SCOPED_TRACE(uPlace);
        standIn->places[uPlace] = {1, kAlways};
        EXPECT_EQ(tryAll(), szExpected);
        standIn->places[uPlace] = {};
    }
}

TEST_F(StandIn, PlacesWithoutATextGiveEmptyNames) {
    Choose(14);
    for (const std::uint32_t uPlace : {30u, 44u, 45u, 46u, 47u, 48u})
        standIn->places[uPlace] = {1, kAlways};
    Choose(14);
    EXPECT_STREQ(fit.GetFunctionText(), "");
    EXPECT_STREQ(fit.GetParamName(0), "");
    EXPECT_STREQ(fit.GetOffsetName(), "");
    EXPECT_STREQ(fit.GetSlopeName(), "");
    EXPECT_STREQ(data.GetConstantName(0), "");
    EXPECT_STREQ(data.GetDependentName(), "");
}

TEST_F(StandIn, TextsOfAnyLengthAndKindAreTaken) {
    std::strcpy(standIn->szTexts[30], "%d of %s 5%%");
    std::strcpy(standIn->szTexts[44], "variable");
    std::strcpy(standIn->szTexts[45], "dependent");
    std::strcpy(standIn->szTexts[46], "a name that is longer than its field");
    std::strcpy(standIn->szTexts[47], "an offset's name");
    std::strcpy(standIn->szTexts[48], "slope");
    Choose(14);
    EXPECT_STREQ(fit.GetFunctionText(), " of  5%");
    EXPECT_STREQ(data.GetConstantName(0), "variable");
    EXPECT_STREQ(data.GetDependentName(), "dependent");
    EXPECT_STREQ(fit.GetParamName(0), "a name that is");
    EXPECT_STREQ(fit.GetOffsetName(), "an offset's na");
    EXPECT_STREQ(fit.GetSlopeName(), "slope");
}

TEST_F(StandIn, TellsWhyItFailed) {
    char szText[16] = "";
    ASSERT_EQ(library.Use(options)->GetErrorText(szText, sizeof szText), 1);
    EXPECT_STREQ(szText, "");
    std::strcpy(standIn->szTexts[11], "No luck.");
    ASSERT_EQ(library.Use(options)->GetErrorText(szText, sizeof szText), 1);
    EXPECT_STREQ(szText, "No luck.");
    standIn->places[11] = {1, kAlways};
    EXPECT_EQ(library.Use(options)->GetErrorText(szText, sizeof szText), 0);
}

TEST_F(StandIn, VariableCountsAreHeldToTheDialogs) {
    standIn->bVariableCount = 1;
    const std::pair<std::uint32_t, std::uint32_t> rows[] = {{0, 1}, {1, 1}, {3, 3}, {6, 6}, {7, 6}};
    for (const auto& [uTold, uTaken] : rows) {
        standIn->uVariableCount = uTold;
        Choose(15);
        EXPECT_EQ(data.GetConstantCount(), uTaken) << uTold;
    }
}

TEST_F(StandIn, MoreParametersThanTheGridHoldsFailTheReading) {
    const auto read = [&](std::uint32_t uParams, std::int32_t bTerms) {
        standIn->bProps = 1;
        standIn->props.uParamsPerTerm = uParams;
        standIn->props.bMultiTerm = bTerms;
        return fit.ReadProperties();
    };
    EXPECT_EQ(read(4, 1), 0);
    standIn->places[40] = {1, kAlways};
    EXPECT_EQ(fit.ReadProperties(), 1);
    standIn->places[40] = {};
    EXPECT_EQ(read(5, 1), 1);
    // The last good reading stays.
    EXPECT_EQ(fit.Properties().uParamsPerTerm, 4u);
    EXPECT_EQ(read(5, 0), 0);
    EXPECT_EQ(read(24, 0), 0);
    EXPECT_EQ(read(25, 0), 1);
    EXPECT_EQ(fit.Properties().uParamsPerTerm, 24u);
}

TEST_F(StandIn, GivesTheSeedsAndTheCurveOfTheTest) {
    Choose(35);
    standIn->bSeeds = 1;
    standIn->dSeeds[0] = 4.25;
    standIn->dSeeds[1] = -3.5;
    ASSERT_TRUE(seeds.ComputeSeeds(kArrays, 2, 4));
    EXPECT_EQ(seeds.dSeeds[0], 4.25);
    EXPECT_EQ(seeds.dSeeds[24], -3.5);
    standIn->bCurve = 1;
    standIn->dCurve = 0.25;
    double y[4] = {};
    ASSERT_TRUE(seeds.CurveFromSeeds(kX, y, 4, 1));
    EXPECT_EQ(y[0] + y[3], 0.5);
}

TEST_F(StandIn, IsAskedForEachNameOnce) {
    Choose(19);
    EXPECT_EQ(standIn->uCalls[46], 2u);
    EXPECT_EQ(standIn->uCalls[44], 6u);
    EXPECT_EQ(standIn->uCalls[45], 1u);
}

TEST_F(StandIn, TwoFunctionsHaveOneTermUnderChebyshevWhateverIsReported) {
    standIn->bProps = 1;
    standIn->props.uParamsPerTerm = 2;
    standIn->props.bMultiTerm = 1;
    for (const std::int32_t e : {2, 3, 4, 10, 11, 12}) {
        Choose(e, kSearchChebyshev);
        EXPECT_EQ(fit.IsTermCapable(), e != 3 && e != 11) << e;
        Choose(e, kSearchVM);
        EXPECT_TRUE(fit.IsTermCapable()) << e;
    }
}

TEST_F(StandIn, SeedsBeyondTheArraysAreNotUsable) {
    standIn->bProps = 1;
    standIn->props.uParamsPerTerm = 13;
    Choose(15);
    double flat[26];
    std::fill(std::begin(flat), std::end(flat), 1.0);
    const std::uint32_t free[26] = {};
    options.uFitOrder = 2;
    EXPECT_TRUE(fit.AreSeedsUsable(flat, free));
    options.uFitOrder = 3;
    EXPECT_FALSE(fit.AreSeedsUsable(flat, free));
}

TEST_F(StandIn, ACustomFunctionHasNoOffsetWhateverIsReported) {
    standIn->bProps = 1;
    standIn->props.bHasOffset = standIn->props.bHasSlope = 1;
    options.nNumCustomParams = 30;
    Choose(38);
    std::vector<double> flat(32, 3.0);
    seeds.dSeeds[24] = 7.0;
    seeds.SetSeeds(flat.data());
    EXPECT_EQ(seeds.dSeeds[23], 3.0);
    EXPECT_EQ(seeds.dSeeds[24], 0.0);
    EXPECT_EQ(seeds.dSeeds[25], 0.0);
    double out[26] = {};
    EXPECT_EQ(seeds.GetSeeds(out, nullptr), 24u);
}

// --- What a curve is set up with -----------------------------------------------------------------

TEST_F(StandIn, CurvesAreTheseOfTheWorkValuesInFlatOrder) {
    options.uDlgFitOrder = 2;
    Choose(14);
    for (std::size_t i = 0; i < seeds.dWork.size(); ++i) seeds.dWork[i] = 10.0 + i;
    double y[4] = {};
    ASSERT_TRUE(seeds.CurveFromSeeds(kX, y, 4, 2));
    const double whole[] = {10, 14, 11, 15, 34, 35, 0};
    for (int i = 0; i < 7; ++i) EXPECT_EQ(standIn->dCurveSeeds[i], whole[i]) << i;
    EXPECT_EQ(standIn->stats.uOrder, 2u);
    EXPECT_EQ(standIn->stats.dOffsetSeed, 34.0);
    EXPECT_EQ(standIn->stats.dSlopeSeed, 35.0);
    ASSERT_TRUE(seeds.CurveOfTerm(kX, y, 4, 1));
    const double second[] = {14, 15, 34, 35, 0};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(standIn->dCurveSeeds[i], second[i]) << i;
    EXPECT_EQ(standIn->stats.uOrder, 1u);
    // Beyond the grid there is no term.
    ASSERT_TRUE(seeds.CurveOfTerm(kX, y, 4, 6));
    EXPECT_EQ(standIn->dCurveSeeds[0], 0.0);
    Choose(29);  // neither offset nor slope
    ASSERT_TRUE(seeds.CurveOfTerm(kX, y, 4, 0));
    const double plain[] = {10, 11, 0, 0};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(standIn->dCurveSeeds[i], plain[i]) << i;
    ASSERT_TRUE(seeds.CurveFromSeeds(kX, y, 4, 1));
    for (int i = 0; i < 4; ++i) EXPECT_EQ(standIn->dCurveSeeds[i], plain[i]) << i;
}

TEST_F(StandIn, CurvesAreToldOfTheirData) {
    Choose(35);
    double y[] = {5, 9, -7};
    const double falling[] = {8.0, 7.5, 1.0};
    ASSERT_TRUE(seeds.CurveFromSeeds(falling, y, 3, 1));
    EXPECT_EQ(standIn->stats.uNumPoints, 3u);
    EXPECT_EQ(standIn->stats.dXStep, 0.5);
    EXPECT_EQ(standIn->stats.dSumY, 7.0);
    EXPECT_EQ(standIn->stats.dFirstX, 8.0);
    EXPECT_EQ(standIn->stats.dMaxY, 9.0);
    // A step of zero: the mean one, and 1 without any.
    const double equal[] = {2.0, 2.0, 5.0};
    ASSERT_TRUE(seeds.CurveFromSeeds(equal, y, 3, 1));
    EXPECT_EQ(standIn->stats.dXStep, 1.0);
    const double late[] = {2.0, 2.0, 2.0, 10.0};
    double four[4] = {};
    ASSERT_TRUE(seeds.CurveFromSeeds(late, four, 4, 1));
    EXPECT_EQ(standIn->stats.dXStep, 2.0);
    ASSERT_TRUE(seeds.CurveFromSeeds(late, four, 3, 1));
    EXPECT_EQ(standIn->stats.dXStep, 1.0);
    ASSERT_TRUE(seeds.CurveFromSeeds(falling, four, 2, 1));
    EXPECT_EQ(standIn->stats.dXStep, 0.5);
    ASSERT_TRUE(seeds.CurveFromSeeds(falling, four, 1, 1));
    EXPECT_EQ(standIn->stats.dXStep, 1.0);
    EXPECT_EQ(standIn->stats.dFirstX, 8.0);
    ASSERT_TRUE(seeds.CurveFromSeeds(falling, four, 0, 1));
    EXPECT_EQ(standIn->stats.uNumPoints, 0u);
    EXPECT_EQ(standIn->stats.dXStep, 1.0);
    EXPECT_EQ(standIn->stats.dFirstX, 0.0);
}

TEST_F(StandIn, ConstantsFillTheArraysOfTheirVariables) {
    Choose(19);
    for (std::uint32_t i = 0; i < 6; ++i) {
        data.SetIsConstant(i, i != 2);
        data.SetConstant(i, 20.0 + i);
    }
    double y[4] = {};
    const double x[] = {3, 4, 5, 6};
    ASSERT_TRUE(seeds.CurveFromSeeds(x, y, 4, 1));
    const double expected[] = {20, 21, 3, 23, 24, 25};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(standIn->dFirstOfArrays[i], expected[i]) << i;
    // A single variable is data, whatever an earlier function has left.
    Choose(35);
    ASSERT_TRUE(seeds.CurveFromSeeds(x, y, 4, 1));
    EXPECT_EQ(standIn->dFirstOfArrays[0], 3.0);
    standIn->bVariableCount = 1;
    standIn->uVariableCount = 2;
    Choose(35);
    ASSERT_TRUE(seeds.CurveFromSeeds(x, y, 4, 1));
    EXPECT_EQ(standIn->dFirstOfArrays[0], 20.0);
}

}  // namespace
