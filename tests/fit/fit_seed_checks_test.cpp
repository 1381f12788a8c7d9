// What curve fitting refuses or asks at OK about the seeds, fixed parameters, the comparison of
// models and the range of the curve.

#include "FitChecksFixture.h"

namespace {

using namespace fit_test;

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
