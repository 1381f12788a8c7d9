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
    CurveFitLibrary noExport(GetModuleHandleA(nullptr), StandInLibrary::kFileWithoutExport);
    EXPECT_FALSE(static_cast<bool>(noExport.Use(options)));
    EXPECT_TRUE(noExport.IsLoaded());
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
    EXPECT_NE(fit.ReadProperties(), 0);
    EXPECT_NE(fit.ReadProperties(), 0);
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
        return fit.ReadProperties() == 0;
    };
    EXPECT_TRUE(read(4, 1));
    EXPECT_FALSE(read(5, 1));
    // The last good reading stays.
    EXPECT_EQ(fit.Properties().uParamsPerTerm, 4u);
    EXPECT_TRUE(read(5, 0));
    EXPECT_TRUE(read(24, 0));
    EXPECT_FALSE(read(25, 0));
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

}  // namespace
