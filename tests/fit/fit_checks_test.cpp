// What curve fitting refuses or asks at OK: each message alone, with its page, control, icon,
// buttons and what they do, and the set-ups that pass.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "FitFixture.h"
#include "fit/FitChecks.h"
#include "platform/platform.h"

namespace {

using fit_test::FitModel;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr UINT kStop = MB_ICONHAND;

// A file of eight even points over function 15, which everything passes.
class FitChecks : public FitModel {
  public:
    FitChecks() {
        source.x = {1, 2, 3, 4, 5, 6, 7, 8};
        source.y = {9, 7, 5, 4, 3, 2.5, 2.25, 2};
        fit.Open();
        Choose(15);
    }
    // The same points as three columns of a sheet: x the first, y the second.
    void MakeSheet() {
        source.Kind(2).Groups({"Sheet"}).Sets(3);
        dataRecord.uGroup1Index = dataRecord.uGroup2Index = dataRecord.uPairedGroupIndex = 0;
        dataRecord.uIndepVarDataSetIndex = 0;
        dataRecord.uDepVarDataSetIndex = 1;
        dataRecord.bUseFullDataRange = 1;
    }
    // The first of six variables is a column, the others are constants.
    void MakeConstants() {
        MakeSheet();
        Choose(19);
        for (std::uint32_t i = 0; i < 6; ++i) {
            data.SetIsConstant(i, i != 0);
            data.SetConstant(i, i == 0 ? 0.0 : 10.0 + i);
        }
    }
    void Compare() {
        options.bCompareModels = 1;
        options.uFitOrder = fit.EffectiveTermCount();
    }
    void Type(std::vector<double> flat) {
        flat.resize(26);
        seeds.SetSeeds(flat.data());
    }

    // "id" of the message with what it points at and asks: page, control, arguments, flags.
    static std::string Told(const CheckResult& result) {
        if (!result) return "";
        std::string sTold =
            std::to_string(result->nStringId) + " page " + std::to_string(result->nPage);
        if (result->nControl != 0) sTold += " control " + std::to_string(result->nControl);
        for (const std::string& s : result->vArguments) sTold += " (" + s + ")";
        return sTold;
    }
    void ExpectRefused(const CheckResult& result, const char* szTold, UINT uFlags = kStop) {
        EXPECT_EQ(Told(result), szTold);
        if (!result) return;
        EXPECT_EQ(result->uFlags, uFlags) << szTold;
        EXPECT_TRUE(result->vAnswers.empty()) << szTold;
    }
    std::string DataTold(FitDataUse eUse = FitDataUse::kFit) {
        return Told(CheckDataForFit(fit, eUse));
    }
};

TEST_F(FitChecks, PagesStandInTheirOrder) {
    EXPECT_EQ(kFitFunctionPage, 0);
    EXPECT_EQ(kFitAdvancedPage, 1);
    EXPECT_EQ(kFitSeedPage, 2);
    EXPECT_EQ(kFitDataPage, 3);
}

TEST_F(FitChecks, AFitThatNothingIsWrongWithPassesAll) {
    Type({7, 2, 2});
    fit.bSeedsValid = true;
    EXPECT_FALSE(CheckCustomDefined(fit));
    EXPECT_FALSE(CheckColumnsDiffer(data));
    EXPECT_FALSE(CheckConstants(fit));
    EXPECT_FALSE(CheckDataForFit(fit, FitDataUse::kFit));
    EXPECT_FALSE(CheckDataForFit(fit, FitDataUse::kEstimate));
    EXPECT_FALSE(CheckEvenX(fit, [] { ADD_FAILURE(); }));
    EXPECT_FALSE(CheckNegativeData(fit));
    EXPECT_FALSE(CheckColumnLengths(data));
    EXPECT_FALSE(AreSeedsOutOfDate(fit));
    EXPECT_FALSE(CheckSeeds(fit, seeds, {}));
    EXPECT_FALSE(CheckEstimate(fit, seeds));
    EXPECT_FALSE(CheckComparisonOrder(fit));
    EXPECT_FALSE(CheckAnyFree(fit, seeds));
    EXPECT_FALSE(CheckCurveRange(fit));
}

// --- The custom function -------------------------------------------------------------------------

TEST_F(FitChecks, ACustomFunctionMustBeDefined) {
    Choose(38);
    ExpectRefused(CheckCustomDefined(fit), "2229 page 0 control 2142");
    fit.bCustomTextPresent = true;
    EXPECT_FALSE(CheckCustomDefined(fit));
}

// --- The data ------------------------------------------------------------------------------------

TEST_F(FitChecks, NoColumnIsFittedToItself) {
    MakeSheet();
    EXPECT_FALSE(CheckColumnsDiffer(data));
    dataRecord.uDepVarDataSetIndex = 0;
    ExpectRefused(CheckColumnsDiffer(data), "2406 page 3", kStop | MB_TASKMODAL);
    // Any of a list.
    dataRecord.uIndepVarDataSetIndex = 1;
    data.SetUseDepVarList(true);
    data.SetDepVarSelectionList("0..1");
    EXPECT_EQ(Told(CheckColumnsDiffer(data)), "2406 page 3");
    data.SetDepVarSelectionList("0,2");
    EXPECT_FALSE(CheckColumnsDiffer(data));
    source.Kind(0);
    data.SetDepVarSelectionList("0..1");
    EXPECT_FALSE(CheckColumnsDiffer(data));
}

TEST_F(FitChecks, ConstantsAreAboveZero) {
    MakeConstants();
    EXPECT_FALSE(CheckConstants(fit));
    EXPECT_EQ(DataTold(), "");
    for (const double dBad : {0.0, -1.0, kNaN}) {
        data.SetConstant(3, dBad);
        ExpectRefused(CheckConstants(fit), "2247 page 3 control 2181");
        EXPECT_EQ(DataTold(), "2247 page 3 control 2181");
    }
    // A column's own constant is not used.
    data.SetConstant(3, 1.0);
    data.SetConstant(0, -1.0);
    EXPECT_FALSE(CheckConstants(fit));
}

TEST_F(FitChecks, AllVariablesButOneAreConstants) {
    MakeConstants();
    data.SetIsConstant(2, false);
    ExpectRefused(CheckConstants(fit), "2201 page 3");
    EXPECT_EQ(DataTold(), "2201 page 3");
    data.SetIsConstant(2, true);
    data.SetIsConstant(0, true);
    data.SetConstant(0, 5.0);
    ExpectRefused(CheckConstants(fit), "2201 page 3");
    // The value comes before the count.
    data.SetConstant(5, 0.0);
    EXPECT_EQ(Told(CheckConstants(fit)), "2247 page 3 control 2183");
    // Of two variables one is a constant; what an earlier function has left behind them does not
    // count.
    data.SetConstantCount(2);
    data.SetConstant(1, 4.0);
    for (std::uint32_t i = 0; i < 6; ++i) data.SetIsConstant(i, i != 0);
    EXPECT_FALSE(CheckConstants(fit));
    data.SetIsConstant(1, false);
    ExpectRefused(CheckConstants(fit), "2201 page 3");
    // Functions of one variable have none.
    Choose(15);
    EXPECT_FALSE(CheckConstants(fit));
}

TEST_F(FitChecks, ConstantsAreCheckedWithoutReadingTheData) {
    MakeConstants();
    source.Record();
    source.calls.clear();
    EXPECT_FALSE(CheckConstants(fit));
    EXPECT_TRUE(source.calls.empty());
}

TEST_F(FitChecks, PointsAreAtLeastAsManyAsParameters) {
    options.uDlgFitOrder = 4;
    Choose(15);  // 4 terms of 2, and the offset
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2245 page 1 (8) (9)");
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kEstimate), "2246 page 1 (8) (9)");
    EXPECT_EQ(CheckDataForFit(fit, FitDataUse::kFit)->ePlaces, TemplatePlaces::kNumbers);
    source.x.push_back(9);
    source.y.push_back(2);
    EXPECT_EQ(DataTold(), "");
    options.nNumCustomParams = 10;
    Choose(38);
    EXPECT_EQ(DataTold(), "2245 page 1 (9) (10)");
}

TEST_F(FitChecks, PointsOfASheetAreThoseSelected) {
    MakeSheet();
    dataRecord.bUseFullDataRange = 0;
    dataRecord.uFirstDataIndex = 4;
    dataRecord.uLastDataIndex = 5;
    EXPECT_EQ(DataTold(), "2245 page 1 (2) (3)");
    dataRecord.uLastDataIndex = 6;
    EXPECT_EQ(DataTold(), "");
    // A range of an earlier, longer sheet counts what is there.
    dataRecord.uFirstDataIndex = 6;
    dataRecord.uLastDataIndex = 900;
    EXPECT_EQ(DataTold(), "2245 page 1 (2) (3)");
    source.bNoX = true;
    EXPECT_EQ(DataTold(), "2245 page 1 (2) (3)");
    source.bNoY = true;
    EXPECT_EQ(DataTold(), "2403 page 1");
    source.bNoX = source.bNoY = false;
    dataRecord.uFirstDataIndex = 900;
    dataRecord.uLastDataIndex = 3;
    EXPECT_EQ(DataTold(), "2403 page 1");
}

TEST_F(FitChecks, XAndYMustBeThere) {
    source.bNoX = true;
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2401 page 1");
    source.bNoY = true;
    EXPECT_EQ(DataTold(), "2401 page 1");
    source.bNoX = false;
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2402 page 1");
    MakeSheet();
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2403 page 1");
    source.bNoX = true;
    source.bNoY = false;
    EXPECT_EQ(DataTold(), "2403 page 1");
}

TEST_F(FitChecks, XMustNotBeZeroEverywhere) {
    source.x.assign(8, 0.0);
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2197 page 1");
    for (const double dOther : {1e-300, -1.0, kNaN}) {
        source.x.back() = dOther;
        EXPECT_EQ(DataTold(), "");
    }
}

TEST_F(FitChecks, NormalizedDataAreNotCompared) {
    source.y.assign(8, 1.00001);
    Choose(12, kSearchVM, kMinimML);
    EXPECT_EQ(DataTold(), "");
    EXPECT_NE(fit.Properties().bNeedsObservationCount, 0);
    Compare();
    ExpectRefused(CheckDataForFit(fit, FitDataUse::kFit), "2220 page 1");
    source.y[7] = kNaN;
    EXPECT_EQ(DataTold(), "2220 page 1");
    source.y[7] = -1.0001;
    EXPECT_EQ(DataTold(), "");
    source.y[7] = 0.0;
    Choose(15);  // needs no count of observations
    Compare();
    EXPECT_EQ(fit.Properties().bNeedsObservationCount, 0);
    EXPECT_EQ(DataTold(), "");
}

TEST_F(FitChecks, TheFirstLackOfTheDataIsTold) {
    // Each set-up lacks two neighbours of the order.
    MakeConstants();
    data.SetConstant(3, 0.0);
    source.x.assign(1, 0.0);
    source.y.assign(1, 0.0);
    EXPECT_EQ(DataTold(), "2247 page 3 control 2181");
    data.SetConstant(3, 1.0);
    data.SetIsConstant(0, true);
    data.SetConstant(0, 1.0);
    EXPECT_EQ(DataTold(), "2201 page 3");
    data.SetIsConstant(0, false);
    source.bNoX = true;
    EXPECT_EQ(DataTold(), "2245 page 1 (1) (2)");
    source.bNoX = false;
    source.x.assign(8, 0.0);
    source.y.assign(8, 0.0);
    source.bNoY = true;
    EXPECT_EQ(DataTold(), "2403 page 1");
    source.bNoY = false;
    Choose(12, kSearchVM, kMinimML);
    Compare();
    EXPECT_EQ(DataTold(), "2197 page 1");
    source.x[0] = 1.0;
    EXPECT_EQ(DataTold(), "2220 page 1");
}

TEST_F(FitChecks, UnevenXIsToldOrAnswered) {
    source.x[3] = 4.5;
    EXPECT_FALSE(CheckEvenX(fit, {}));
    Choose(15, kSearchChebyshev);
    ExpectRefused(CheckEvenX(fit, {}), "2199 page -1", MB_ICONASTERISK);
    Choose(10, kSearchVM, kMinimML);
    ExpectRefused(CheckEvenX(fit, {}), "2200 page -1", MB_ICONASTERISK);
    options.bOfferMethodChange = 1;
    EXPECT_EQ(Told(CheckEvenX(fit, {})), "2200 page -1");
    Choose(15, kSearchChebyshev);
    int nUsed = 0;
    const CheckResult offer = CheckEvenX(fit, [&] { ++nUsed; });
    ASSERT_TRUE(offer);
    EXPECT_EQ(Told(offer), "2405 page -1");
    EXPECT_EQ(offer->uFlags, static_cast<UINT>(MB_ICONQUESTION | MB_OKCANCEL));
    ASSERT_NE(offer->FindAnswer(IDOK), nullptr);
    EXPECT_EQ(offer->FindAnswer(IDOK)->eNext, Finding::Next::kGoOn);
    EXPECT_EQ(nUsed, 0);
    offer->FindAnswer(IDOK)->step();
    EXPECT_EQ(nUsed, 1);
    EXPECT_EQ(offer->FindAnswer(IDCANCEL), nullptr);
}

TEST_F(FitChecks, EvenXOfAStaleRangeReadsWhatIsThere) {
    MakeSheet();
    dataRecord.bUseFullDataRange = 0;
    dataRecord.uFirstDataIndex = 5;
    dataRecord.uLastDataIndex = 900;
    Choose(15, kSearchChebyshev);
    EXPECT_FALSE(CheckEvenX(fit, {}));
    source.x[6] = 7.5;
    EXPECT_EQ(Told(CheckEvenX(fit, {})), "2199 page -1");
}

TEST_F(FitChecks, NegativeDataAreRefusedWhereTheFunctionHasNone) {
    source.y[2] = -1e-300;
    EXPECT_FALSE(CheckNegativeData(fit));
    Choose(10);
    ASSERT_NE(fit.Properties().bRejectsNegativeData, 0);
    ExpectRefused(CheckNegativeData(fit), "2222 page 0 control 2022");
    Choose(12, kSearchVM, kMinimML);
    ASSERT_NE(fit.Properties().bRejectsNegativeData, 0);
    ExpectRefused(CheckNegativeData(fit), "2223 page 0 control 2022");
    Choose(12);
    EXPECT_FALSE(CheckNegativeData(fit));
    Choose(10, kSearchVM, kMinimML);
    EXPECT_EQ(Told(CheckNegativeData(fit)), "2222 page 0 control 2022");
    Choose(10);
    for (const double dGood : {0.0, -0.0, kNaN}) {
        source.y[2] = dGood;
        EXPECT_FALSE(CheckNegativeData(fit));
    }
    source.y[2] = -1.0;
    source.bNoY = true;
    EXPECT_FALSE(CheckNegativeData(fit));
    source.bNoY = false;
    // Outside of the selected rows nothing is asked for.
    MakeSheet();
    dataRecord.bUseFullDataRange = 0;
    dataRecord.uFirstDataIndex = 3;
    dataRecord.uLastDataIndex = 7;
    EXPECT_FALSE(CheckNegativeData(fit));
}

TEST_F(FitChecks, ListedColumnsAreOfOneLength) {
    MakeSheet();
    source.lengths = {8, 10, 9};
    data.SetUseDepVarList(true);
    data.SetDepVarSelectionList("1,2");
    ExpectRefused(CheckColumnLengths(data), "2396 page 3");
    source.lengths = {8, 9, 9};
    EXPECT_FALSE(CheckColumnLengths(data));
    data.SetDepVarSelectionList("2");
    EXPECT_FALSE(CheckColumnLengths(data));
    for (const char* szBad : {"", "x", "1,,2"}) {
        data.SetDepVarSelectionList(szBad);
        ExpectRefused(CheckColumnLengths(data), "2227 page 3");
    }
    source.lengths = {8, 10, 9};
    data.SetDepVarSelectionList("1,2");
    data.SetUseDepVarList(false);
    EXPECT_FALSE(CheckColumnLengths(data));
    data.SetUseDepVarList(true);
    source.Kind(0);
    EXPECT_FALSE(CheckColumnLengths(data));
}

// --- The seeds -----------------------------------------------------------------------------------

TEST_F(FitChecks, SeedsOfAnotherFunctionAreOutOfDate) {
    const auto outOfDate = [&](bool bStale, bool bValid) {
        fit.bSeedsStale = bStale;
        fit.bSeedsValid = bValid;
        return AreSeedsOutOfDate(fit);
    };
    EXPECT_FALSE(outOfDate(false, false));
    EXPECT_FALSE(outOfDate(false, true));
    EXPECT_TRUE(outOfDate(true, false));
    EXPECT_FALSE(outOfDate(true, true));
    Choose(38);
    EXPECT_TRUE(outOfDate(true, true));
    EXPECT_FALSE(outOfDate(false, false));
}

TEST_F(FitChecks, UsableSeedsPassAlsoWhereTheyAreNotMarkedValid) {
    Type({7, 2, 0});
    fit.bAutoSeedDeclined = true;
    fit.bSeedsValid = true;
    EXPECT_FALSE(CheckSeeds(fit, seeds, {}));
    EXPECT_TRUE(fit.bAutoSeedDeclined);
    fit.bSeedsValid = false;
    EXPECT_FALSE(CheckSeeds(fit, seeds, {}));
    EXPECT_FALSE(fit.bAutoSeedDeclined);
    EXPECT_FALSE(fit.bSeedsValid);
    EXPECT_FALSE(CheckEstimate(fit, seeds));
}

TEST_F(FitChecks, UnusableSeedsAreOfferedAnEstimate) {
    Type({7, 0, 2});
    fit.bSeedsValid = true;
    bool bCan = true;
    int nEstimates = 0;
    int nKept = 0;
    const SeedCheck check = {.estimate =
                                 [&] {
                                     ++nEstimates;
                                     fit.bSeedsValid = bCan;
                                     return bCan;
                                 },
                             .keep = [&] { ++nKept; }};
    const CheckResult offer = CheckSeeds(fit, seeds, check);
    ASSERT_TRUE(offer);
    EXPECT_EQ(Told(offer), "2284 page 2 control 2093");
    EXPECT_EQ(offer->uFlags, static_cast<UINT>(MB_ICONQUESTION | MB_YESNO));
    ASSERT_NE(offer->FindAnswer(IDYES), nullptr);
    ASSERT_NE(offer->FindAnswer(IDNO), nullptr);
    EXPECT_EQ(offer->FindAnswer(IDYES)->eNext, Finding::Next::kGoOn);
    EXPECT_EQ(offer->FindAnswer(IDNO)->eNext, Finding::Next::kStay);

    offer->FindAnswer(IDYES)->step();
    EXPECT_EQ(nEstimates, 1);
    EXPECT_FALSE(fit.bAutoSeedDeclined);
    // An estimate may give a zero of its own.
    EXPECT_FALSE(CheckEstimate(fit, seeds));

    bCan = false;
    offer->FindAnswer(IDYES)->step();
    EXPECT_TRUE(fit.bAutoSeedDeclined);
    ExpectRefused(CheckEstimate(fit, seeds), "0 page 2");

    fit.bSeedsStale = fit.bSeedsAutomatic = true;
    offer->FindAnswer(IDNO)->step();
    EXPECT_EQ(nKept, 1);
    EXPECT_EQ(nEstimates, 2);
    EXPECT_TRUE(fit.bSeedsValid);
    EXPECT_FALSE(fit.bSeedsStale);
    EXPECT_FALSE(fit.bSeedsAutomatic);
    EXPECT_FALSE(fit.bAutoSeedDeclined);
    EXPECT_EQ(seeds.dSeeds[0], 7.0);
}

TEST_F(FitChecks, TheOfferPointsAtTheFirstSeedThatIsMissing) {
    options.uDlgFitOrder = 2;
    Choose(18);  // the mean of the first bell may be zero
    Type({7, 7, 0, 3, 1, kNaN});
    EXPECT_EQ(Told(CheckSeeds(fit, seeds, {})), "2284 page 2 control 2098");
    Type({7, 0, 0, 3, 1, 1});
    EXPECT_EQ(Told(CheckSeeds(fit, seeds, {})), "2284 page 2 control 2096");
}

TEST_F(FitChecks, AReadOnlyDialogOffersToCloseInPlaceOfAnEstimate) {
    Type({0, 2, 2});
    const CheckResult offer = CheckSeeds(fit, seeds, {.bReadOnly = true});
    ASSERT_TRUE(offer);
    EXPECT_EQ(Told(offer), "2281 page 2");
    EXPECT_EQ(offer->uFlags, static_cast<UINT>(MB_ICONHAND | MB_OKCANCEL | MB_DEFBUTTON2));
    ASSERT_NE(offer->FindAnswer(IDCANCEL), nullptr);
    EXPECT_EQ(offer->FindAnswer(IDCANCEL)->eNext, Finding::Next::kCancel);
    EXPECT_EQ(offer->FindAnswer(IDOK), nullptr);
}

TEST_F(FitChecks, ADeferredRunTakesAnySeedsButThoseOfACustomFunction) {
    Type({0, 0, 0});
    const SeedCheck deferred = {.bDeferred = true};
    EXPECT_FALSE(CheckSeeds(fit, seeds, deferred));
    options.nNumCustomParams = 8;
    Choose(38);
    EXPECT_EQ(Told(CheckSeeds(fit, seeds, deferred)), "2221 page 2 control 2092");
}

TEST_F(FitChecks, ACustomFunctionNeedsEachSeed) {
    options.nNumCustomParams = 8;
    Choose(38);
    Type({1, 2, 3, 4, 5, 6, 0, 8});
    fit.bAutoSeedDeclined = true;
    ExpectRefused(CheckSeeds(fit, seeds, {}), "2221 page 2 control 2093");
    EXPECT_TRUE(fit.bSeedsValid);
    EXPECT_FALSE(fit.bAutoSeedDeclined);
    Type({1, 2, 3, 4, 5, 6, 7, 8});
    fit.bSeedsValid = false;
    EXPECT_FALSE(CheckSeeds(fit, seeds, {}));
    EXPECT_TRUE(fit.bSeedsValid);
}

TEST_F(FitChecks, AComparisonAndARegressionNeedNoSeeds) {
    Type({0, 0, 0});
    Compare();
    EXPECT_FALSE(CheckSeeds(fit, seeds, {}));
    EXPECT_FALSE(CheckEstimate(fit, seeds));
    options.bCompareModels = 0;
    for (const std::int32_t e : {34, 35}) {
        Choose(e);
        Type({0, 0, 0});
        EXPECT_FALSE(CheckSeeds(fit, seeds, {})) << e;
    }
}

// --- Fixed parameters, the comparison of models, the range of the curve --------------------------

TEST_F(FitChecks, AComparisonEndsAboveItsStart) {
    options.uStartCompare = 3;
    options.uEndCompare = 3;
    EXPECT_FALSE(CheckComparisonOrder(fit));
    Compare();
    ExpectRefused(CheckComparisonOrder(fit), "2202 page 0 control 2056");
    options.bAutoCompare = 0;
    EXPECT_EQ(Told(CheckComparisonOrder(fit)), "2202 page 0 control 2056");
    options.uEndCompare = 4;
    EXPECT_FALSE(CheckComparisonOrder(fit));
    options.uEndCompare = 3;
    Choose(8);
    EXPECT_FALSE(CheckComparisonOrder(fit));
}

TEST_F(FitChecks, WithEverythingFixedTheUserIsAsked) {
    options.uDlgFitOrder = 2;
    Choose(15);
    for (const std::uint32_t uPlace : {0u, 1u, 4u, 5u}) seeds.uFixed[uPlace] = 1;
    EXPECT_FALSE(CheckAnyFree(fit, seeds));
    seeds.uFixed[24] = 1;
    const CheckResult asked = CheckAnyFree(fit, seeds);
    ASSERT_TRUE(asked);
    EXPECT_EQ(Told(asked), "2134 page 2");
    EXPECT_EQ(asked->uFlags, static_cast<UINT>(MB_ICONQUESTION | MB_OKCANCEL));
    ASSERT_NE(asked->FindAnswer(IDOK), nullptr);
    EXPECT_EQ(asked->FindAnswer(IDOK)->eNext, Finding::Next::kGoOn);
    EXPECT_EQ(asked->FindAnswer(IDCANCEL), nullptr);
    Compare();
    ExpectRefused(CheckAnyFree(fit, seeds), "2196 page 2");
    // A comparison that a function of one term only keeps for later does not count.
    Choose(8);
    EXPECT_EQ(Told(CheckAnyFree(fit, seeds)), "2134 page 2");
}

TEST_F(FitChecks, FlagsOfFunctionsThatAreNotSeededAskNothing) {
    seeds.uFixed.fill(1);
    Choose(35);
    EXPECT_FALSE(CheckAnyFree(fit, seeds));
    Choose(11, kSearchChebyshev);
    EXPECT_FALSE(CheckAnyFree(fit, seeds));
    Choose(15, kSearchChebyshev);
    EXPECT_EQ(Told(CheckAnyFree(fit, seeds)), "2134 page 2");
    options.nNumCustomParams = 24;
    Choose(38);
    EXPECT_EQ(Told(CheckAnyFree(fit, seeds)), "2134 page 2");
    // No parameter is as good as none that is free.
    seeds.uFixed.fill(0);
    EXPECT_FALSE(CheckAnyFree(fit, seeds));
    options.nNumCustomParams = 0;
    EXPECT_EQ(Told(CheckAnyFree(fit, seeds)), "2134 page 2");
}

TEST_F(FitChecks, TheRangeOfACurveOverConcentrationsLiesAboveZero) {
    MakeSheet();
    Choose(22);
    options.bExtrapolateLeft = options.bExtrapolateRight = 1;
    options.dRightExtrapolationValue = 10.0;
    ExpectRefused(CheckCurveRange(fit), "2283 page 1 control 2582");
    options.dLeftExtrapolationValue = 0.5;
    EXPECT_FALSE(CheckCurveRange(fit));
    for (const double dBad : {0.0, -3.0, kNaN}) {
        options.dRightExtrapolationValue = dBad;
        EXPECT_EQ(Told(CheckCurveRange(fit)), "2283 page 1 control 2581");
    }
    options.bExtrapolateRight = 0;
    EXPECT_FALSE(CheckCurveRange(fit));
}

TEST_F(FitChecks, FieldsTakeWhatTheyAreAbleToDo) {
    EXPECT_EQ(kFitPrecisionRange.dLow, 1e-16);
    EXPECT_EQ(kFitPrecisionRange.dHigh, 1.0);
    EXPECT_EQ(kFitDivisorRange.dLow, 1.0);
    EXPECT_EQ(kFitDivisorRange.dHigh, 1e9);
}

TEST_F(FitChecks, TheRangeIsGivenByCursorsOrByLimits) {
    struct Row {
        std::uint32_t uKind;
        bool bDataPage, bReadOnly, bDeferred;
        const char* szShown;  // cursor pair, limits, their values, texts of the data
        int nCaption;
    };
    const Row rows[] = {
        {0, true, false, false, "C", 0},      {0, true, true, false, "C", 0},
        {0, true, false, true, "C", 0},       {0, false, false, false, "LVT", 0},
        {1, true, false, false, "LVT", 0},    {1, false, false, false, "LVT", 0},
        {1, true, true, false, "L", 0},       {1, true, false, true, "LV", 0},
        {2, true, false, false, "LVT", 2398}, {2, false, false, false, "LVT", 2398},
        {2, true, true, false, "L", 2398},    {2, true, false, true, "LV", 2398},
    };
    for (const Row& row : rows) {
        source.Kind(row.uKind);
        const CurveRangeForm form =
            FormOfCurveRange(data, row.bDataPage, row.bReadOnly, row.bDeferred);
        std::string sShown;
        if (form.bCursorPair) sShown += "C";
        if (form.bLimits) sShown += "L";
        if (form.bLimitEdits) sShown += "V";
        if (form.bDataTexts) sShown += "T";
        EXPECT_EQ(sShown, row.szShown) << row.uKind << row.bReadOnly << row.bDeferred;
        EXPECT_EQ(form.nCaption, row.nCaption) << row.uKind;
    }
}

}  // namespace
