// What curve fitting refuses or asks at OK about the custom function and the data: each message
// alone, with its page, control, icon, buttons and what they do, and the set-ups that pass.

#include "FitChecksFixture.h"

namespace {

using namespace fit_test;

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
    ExpectRefused(CheckColumnsDiffer(data), "2406 page 3", MB_ICONHAND | MB_TASKMODAL);
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

}  // namespace
