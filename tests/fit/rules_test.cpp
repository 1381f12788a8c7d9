// Which method is open to which function: every combination of search, minimisation, weighting,
// function and automatic choice, against a table of what is allowed that is written by itself.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <string>

#include "FitFixture.h"
#include "fit/FitSeedRules.h"

namespace {

using fit_test::FitModel;

using Functions = std::set<std::int32_t>;

// By function, whatever the method.
const Functions kRegressions = {34, 35};
const Functions kWithoutSimplex = {17, 34, 35};
const Functions kByChebyshev = {3, 11, 14, 15};
const Functions kHistograms = {10, 12};
const Functions kForceable = {0,  1,  2,  3,  7,  8,  9,  10, 11, 12, 13, 14,
                              15, 16, 17, 18, 19, 20, 26, 27, 28, 30, 33};
const Functions kAlwaysPositive = {0, 1, 17, 19, 20, 30, 33};
const Functions kTerms = {3, 9, 10, 11, 12, 14, 15, 16, 17, 18, 27, 28, 34};
const Functions kShiftByChoice = {9, 14, 15, 16, 17, 25};

struct Allowed {
    // One row a radio button: the searches under which it is open, by the digits of their numbers.
    const char* szSearches;
    bool bNotRegression;
};
constexpr Allowed kMinimSquares = {"012", true};
constexpr Allowed kMinimLikelihood = {"12", true};
constexpr Allowed kMinimMinimaxAndMean = {"02", true};
constexpr Allowed kWeights = {"0", true};

class Rules : public FitModel {
  protected:
    bool Is(const Allowed& row) const {
        const bool bSearch =
            std::string(row.szSearches).find(static_cast<char>('0' + options.eSearchMethod)) !=
            std::string::npos;
        return bSearch && !(row.bNotRegression && In(kRegressions));
    }
    bool In(const Functions& functions) const {
        return functions.count(options.eFunctionType) != 0;
    }
};

TEST_F(Rules, EveryCombination) {
    options.nNumCustomParams = 3;
    int nCombinations = 0;
    for (std::int32_t eFunction = 0; eFunction <= 38; ++eFunction) {
        for (std::int32_t eSearch = 0; eSearch < 4; ++eSearch) {
            for (std::int32_t eMinim = 0; eMinim < 4; ++eMinim) {
                Choose(eFunction, eSearch, eMinim);
                for (std::int32_t eWeight = 0; eWeight < 4; ++eWeight) {
                    for (const std::int32_t bAuto : {0, 1}) {
                        options.eWeightingType = eWeight;
                        options.bAutoDefaultOptions = bAuto;
                        ++nCombinations;
                        const std::string sCase =
                            "function " + std::to_string(eFunction) + " search " +
                            std::to_string(eSearch) + " minim " + std::to_string(eMinim) +
                            " weight " + std::to_string(eWeight) + " auto " + std::to_string(bAuto);
                        SCOPED_TRACE(sCase);
                        const auto chosen = [&](std::int32_t eStands, std::int32_t eThis) {
                            return bAuto == 0 || eStands == eThis;
                        };
                        const bool bLine = In(kRegressions);
                        EXPECT_EQ(fit.IsSearchLMEnabled(), chosen(eSearch, 0) && !bLine);
                        EXPECT_EQ(fit.IsSearchVMEnabled(), chosen(eSearch, 1) && !bLine);
                        EXPECT_EQ(fit.IsSearchSimplexEnabled(),
                                  chosen(eSearch, 2) && !In(kWithoutSimplex));
                        EXPECT_EQ(fit.IsSearchChebyshevEnabled(),
                                  chosen(eSearch, 3) && In(kByChebyshev));
                        EXPECT_EQ(fit.IsChebyFilterEnabled(), eSearch == 3 && In(kByChebyshev));
                        EXPECT_EQ(fit.IsMinimSSEnabled(), chosen(eMinim, 0) && Is(kMinimSquares));
                        EXPECT_EQ(fit.IsMinimMLEnabled(),
                                  chosen(eMinim, 1) && Is(kMinimLikelihood) && In(kHistograms));
                        EXPECT_EQ(fit.IsMinimMinimaxEnabled(),
                                  chosen(eMinim, 2) && Is(kMinimMinimaxAndMean));
                        EXPECT_EQ(fit.IsMinimMeanAbsEnabled(),
                                  chosen(eMinim, 3) && Is(kMinimMinimaxAndMean));
                        const bool bLikelihood = eMinim == 1 && (eSearch == 1 || eSearch == 2);
                        EXPECT_EQ(fit.IsMLEInEffect(), bLikelihood);
                        EXPECT_EQ(fit.IsWeightNoneEnabled(), chosen(eWeight, 0) && Is(kWeights));
                        EXPECT_EQ(fit.IsWeightFunctionEnabled(),
                                  chosen(eWeight, 1) && Is(kWeights));
                        EXPECT_EQ(fit.IsWeightDataEnabled(), chosen(eWeight, 2) && Is(kWeights));
                        EXPECT_EQ(fit.IsWeightBinWidthEnabled(),
                                  chosen(eWeight, 3) && Is(kWeights) && In(kHistograms));
                        EXPECT_EQ(fit.IsForcePositiveEnabled(),
                                  In(kForceable) && !In(kAlwaysPositive) && !bLikelihood);
                        EXPECT_EQ(fit.IsForcePositiveInEffect(), In(kAlwaysPositive));
                        EXPECT_EQ(fit.IsZeroShiftPermitted(), In(kShiftByChoice));
                        const bool bSingle = eSearch == 3 && (eFunction == 3 || eFunction == 11);
                        EXPECT_EQ(fit.IsTermCapable(), In(kTerms) && !bSingle);
                        EXPECT_EQ(fit.IsCompareEnabled(), In(kTerms) && !bSingle);
                        EXPECT_EQ(fit.IsFreeAndRefitEnabled(), !bLine && !bSingle);
                        EXPECT_EQ(fit.IsAutoRefitEnabled(), eSearch != 3 && !bLine);
                        EXPECT_EQ(fit.IsChebyFilterForced(), bAuto == 1 && bSingle);
                        EXPECT_EQ(fit.IsSeeded(),
                                  eFunction == 38 || (!bLine && (eSearch != 3 || eFunction == 14 ||
                                                                 eFunction == 15)));
                    }
                }
            }
        }
    }
    EXPECT_EQ(nCombinations, 39 * 4 * 4 * 4 * 2);
}

TEST_F(Rules, ChebyshevFilterIsTheCheckBoxUnlessForcedOff) {
    options.bDlgChebyFilter = 1;
    options.bAutoDefaultOptions = 1;
    Choose(15, kSearchChebyshev);
    EXPECT_TRUE(fit.IsChebyFilterWanted());
    Choose(11, kSearchChebyshev);
    EXPECT_FALSE(fit.IsChebyFilterWanted());
    options.bAutoDefaultOptions = 0;
    EXPECT_TRUE(fit.IsChebyFilterWanted());
    options.bDlgChebyFilter = 0;
    EXPECT_FALSE(fit.IsChebyFilterWanted());
}

TEST_F(Rules, ForceOfEitherKindIsInEffectWhereItMayBe) {
    Choose(15);
    options.bForceTausPositive = 1;
    EXPECT_TRUE(fit.IsForcePositiveInEffect());
    Choose(4);
    EXPECT_FALSE(fit.IsForcePositiveInEffect());
    options.bForceTausPositive = 0;
    options.bForcePropsPositive = 1;
    Choose(15);
    EXPECT_TRUE(fit.IsForcePositiveInEffect());
}

TEST_F(Rules, ZeroShiftInEffectForgetsTheLastOk) {
    options.bZeroShiftInEffect = 1;
    options.bAutoZeroShift = 0;
    Choose(15);
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 0);
    options.bDoZeroShift = 1;
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 1);
    Choose(12);
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 0);
    Choose(8);  // mandatory is the library's own
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 0);
    options.bAutoZeroShift = 1;
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 1);
    Choose(9);
    EXPECT_EQ(fit.ScratchRecord().bZeroShiftInEffect, 0);
}

// --- Terms ---------------------------------------------------------------------------------------

TEST_F(Rules, TermsInEffect) {
    options.uDlgFitOrder = 4;
    options.uPolynomTerm = 5;
    Choose(15);
    EXPECT_EQ(fit.EffectiveTermCount(), 4u);
    EXPECT_EQ(fit.GridParameterCount(), 8u);
    EXPECT_EQ(fit.TotalParameterCount(), 9u);
    Choose(14);
    EXPECT_EQ(fit.TotalParameterCount(), 10u);
    Choose(34);
    EXPECT_EQ(fit.EffectiveTermCount(), 5u);
    EXPECT_EQ(fit.GridParameterCount(), 5u);
    Choose(8);
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
    EXPECT_EQ(fit.TotalParameterCount(), 3u);
    Choose(11);
    EXPECT_EQ(fit.EffectiveTermCount(), 4u);
    Choose(11, kSearchChebyshev);
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
    Choose(3, kSearchChebyshev);
    EXPECT_EQ(fit.GridParameterCount(), 3u);
    Choose(15, kSearchChebyshev);
    EXPECT_EQ(fit.EffectiveTermCount(), 4u);
    options.nNumCustomParams = 7;
    Choose(38);
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
    EXPECT_EQ(fit.GridParameterCount(), 7u);
    EXPECT_EQ(fit.TotalParameterCount(), 7u);
}

TEST_F(Rules, ComparingStartsWithOneOrWithTheStartingTerm) {
    options.uDlgFitOrder = 4;
    options.uStartCompare = 2;
    options.bCompareModels = 1;
    Choose(15);
    EXPECT_TRUE(fit.IsComparing());
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
    options.bAutoCompare = 0;
    EXPECT_EQ(fit.EffectiveTermCount(), 2u);
    options.uStartCompare = 0;
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
    Choose(8);
    EXPECT_FALSE(fit.IsComparing());
    EXPECT_EQ(fit.EffectiveTermCount(), 1u);
}

TEST_F(Rules, DialogOrderReadsOneToSixAndWritesItsField) {
    Choose(15);
    options.uDlgFitOrder = 0;
    EXPECT_EQ(fit.GetDlgOrder(), 1u);
    options.uDlgFitOrder = 0x80000000u;
    EXPECT_EQ(fit.GetDlgOrder(), 6u);
    fit.SetDlgOrder(3);
    EXPECT_EQ(options.uDlgFitOrder, 3u);
    EXPECT_EQ(options.uPolynomTerm, 0u);
    EXPECT_EQ(options.uFitOrder, 3u);
    Choose(34);
    EXPECT_EQ(fit.GetDlgOrder(), 1u);
    fit.SetDlgOrder(2);
    EXPECT_EQ(options.uPolynomTerm, 2u);
    EXPECT_EQ(options.uDlgFitOrder, 3u);
    // A function of one term keeps the wish and takes one.
    Choose(8);
    options.uFitOrder = 5;
    fit.SetDlgOrder(4);
    EXPECT_EQ(options.uDlgFitOrder, 4u);
    EXPECT_EQ(options.uFitOrder, 1u);
}

TEST_F(Rules, OwnNumbersOfTheFunction) {
    Choose(5);
    EXPECT_EQ(fit.GetTemperature(), 21.0);
    fit.SetTemperature(37.0);
    EXPECT_EQ(options.dZDBoltzmanTemperature, 37.0);
    Choose(19);
    EXPECT_EQ(fit.GetTemperature(), 23.0);
    Choose(20);
    EXPECT_EQ(fit.GetTemperature(), 24.0);
    Choose(30);
    EXPECT_EQ(fit.GetTemperature(), 22.0);
    EXPECT_EQ(fit.GetValence(), 2);
    fit.SetValence(-3);
    EXPECT_EQ(options.uNernstValence, static_cast<std::uint32_t>(-3));
    EXPECT_EQ(fit.GetValence(), -3);
    Choose(15);
    EXPECT_EQ(fit.GetTemperature(), 20.0);
    EXPECT_EQ(fit.GetValence(), 1);
    const FitOptions before = options;
    fit.SetTemperature(55.0);
    fit.SetValence(4);
    fit.SetPowerA(6);
    fit.SetPowerB(6);
    EXPECT_EQ(std::memcmp(&before, &options, sizeof options), 0);
    EXPECT_EQ(fit.GetPowerA(), 3u);
    EXPECT_EQ(fit.GetPowerB(), 1u);
    Choose(11);
    EXPECT_EQ(fit.GetPowerA(), 2u);
    fit.SetPowerA(5);
    EXPECT_EQ(options.uExpPower, 5u);
    Choose(7);
    fit.SetPowerA(4);
    fit.SetPowerB(2);
    EXPECT_EQ(options.uCurTimePowerA, 4u);
    EXPECT_EQ(options.uCurTimePowerB, 2u);
}

// --- Finalisation --------------------------------------------------------------------------------

TEST_F(Rules, FinalisationMakesARecordReady) {
    Choose(15, kSearchSimplex);
    fit.eLastPredefined = 18;
    options.uDlgFitOrder = 3;
    options.eWeightingType = kWeightData;
    options.bDlgChebyFilter = 1;
    FitOptions record = options;
    const double x[] = {3.0, 3.5, 9.0};
    fit.Finalise(record, x, 3);
    EXPECT_EQ(record.dXInterval, 0.5);
    EXPECT_EQ(record.eWeightingType, kWeightNone);
    EXPECT_EQ(options.eWeightingType, kWeightData);
    EXPECT_EQ(record.dLMPrecision, 3e-5);
    EXPECT_EQ(record.dVMPrecision, 4e-5);
    EXPECT_EQ(record.dFractError, 5e-5);
    EXPECT_EQ(record.uFitOrder, 3u);
    EXPECT_EQ(record.ePrevFunctionType, 18);
    EXPECT_EQ(record.bUseChebyFilter, 1);
    record.bUseLMPrecisionDefault = record.bUseVMPrecisionDefault = record.bUseFractErrDefault = 1;
    record.dXInterval = 7.0;
    fit.Finalise(record, x, 1);
    EXPECT_EQ(record.dXInterval, 7.0);
    fit.Finalise(record, x + 1, 2);
    EXPECT_EQ(record.dXInterval, 5.5);
    record.dXInterval = 7.0;
    fit.Finalise(record, nullptr, 3);
    EXPECT_EQ(record.dXInterval, 7.0);
    EXPECT_EQ(record.dLMPrecision, 1e-6);
    EXPECT_EQ(record.dVMPrecision, 0.0001);
    EXPECT_EQ(record.dFractError, 1e-7);
    options.bDlgChebyFilter = 0;
    EXPECT_EQ(fit.ScratchRecord().bUseChebyFilter, 0);
}

TEST_F(Rules, FinalisationTakesBackWhatDoesNotGoTogether) {
    for (std::int32_t eFunction = 0; eFunction <= 38; ++eFunction) {
        for (std::int32_t eSearch = 0; eSearch < 4; ++eSearch) {
            for (std::int32_t eMinim = 0; eMinim < 4; ++eMinim) {
                Choose(eFunction, eSearch, eMinim);
                options.eWeightingType = kWeightFunction;
                const FitOptions record = fit.ScratchRecord();
                const bool bCustomChebyshev = eFunction == 38 && eSearch == 3;
                EXPECT_EQ(record.eSearchMethod, bCustomChebyshev ? 0 : eSearch);
                const bool bKept = eMinim == 1 && (eFunction == 10 || eFunction == 12) &&
                                   record.eSearchMethod != 0;
                EXPECT_EQ(record.eMinimMethod, eMinim == 1 && !bKept ? 0 : eMinim);
                EXPECT_EQ(record.eWeightingType, eSearch == 2 ? 0 : 1);
            }
        }
    }
}

// --- Before anything is read ---------------------------------------------------------------------

TEST_F(Rules, BeforeTheLibraryHasReportedAnOrdinaryFunctionStands) {
    const FitFunctionProps& props = fit.Properties();
    EXPECT_EQ(props.uParamsPerTerm, 0u);
    EXPECT_EQ(props.uNumDataArrays, 2u);
    EXPECT_EQ(props.uZeroAllowedParam, 99u);
    EXPECT_EQ(props.bOnlyProportionsForced, 1);
    EXPECT_EQ(props.bAllowLM, 1);
    EXPECT_EQ(props.bAllowSimplex, 1);
    EXPECT_EQ(props.bAllowChebyshev, 0);
}

TEST_F(Rules, AFreshDialogHasNoFlagRaised) {
    for (const std::int32_t eSearch : {0, 3}) {
        options.eSearchMethod = eSearch;
        const CFitOptionsInterface fresh(&options, &data, &library);
        EXPECT_EQ(fresh.bChebyshevSelected, eSearch == 3);
        EXPECT_FALSE(fresh.bSeedsValid);
        EXPECT_FALSE(fresh.bCustomCompiled);
        EXPECT_FALSE(fresh.bSeedsStale);
        EXPECT_FALSE(fresh.bSeedsNormalized);
        EXPECT_FALSE(fresh.bAutoSeedDeclined);
        EXPECT_FALSE(fresh.bCustomTextPresent);
        EXPECT_FALSE(fresh.bGhkAvailable);
        EXPECT_FALSE(fresh.bSeedsAutomatic);
        EXPECT_EQ(fresh.uSavedOrder, 0u);
        EXPECT_EQ(fresh.dProportionScale, 1.0);
    }
}

// --- Opening -------------------------------------------------------------------------------------

TEST_F(Rules, OpeningBringsStoredNumbersIntoTheirRanges) {
    for (const std::int32_t eBad : {-1, 39, INT32_MIN}) {
        options = fit_test::FreshRecord();
        options.eFunctionType = options.eSearchMethod = options.eMinimMethod =
            options.eWeightingType = options.eFunctionGroupID = eBad;
        options.ePrevFunctionType = 99;
        fit.Open();
        EXPECT_EQ(options.eFunctionType, 15);
        EXPECT_EQ(options.eSearchMethod, 0);
        EXPECT_EQ(options.eMinimMethod, 0);
        EXPECT_EQ(options.eWeightingType, 0);
        EXPECT_EQ(options.eFunctionGroupID, 0);
        EXPECT_EQ(fit.eLastPredefined, 15);
    }
    options.eFunctionType = 38;
    options.eSearchMethod = options.eMinimMethod = options.eWeightingType = 3;
    options.eFunctionGroupID = 6;
    options.ePrevFunctionType = 22;
    options.uDlgFitOrder = 4;
    fit.Open();
    EXPECT_EQ(options.eFunctionType, 38);
    EXPECT_EQ(options.eSearchMethod, 3);
    EXPECT_TRUE(fit.bChebyshevSelected);
    EXPECT_EQ(options.eMinimMethod, 3);
    EXPECT_EQ(options.eWeightingType, 3);
    EXPECT_EQ(options.eFunctionGroupID, 6);
    EXPECT_EQ(fit.eLastPredefined, 22);
    EXPECT_EQ(fit.uSavedOrder, 4u);
    for (const std::int32_t e : {7, 0}) {
        options.eFunctionType = e;
        fit.Open();
        EXPECT_EQ(options.eFunctionType, e);
        EXPECT_EQ(fit.eLastPredefined, e);
    }
    options.eFunctionType = 38;
    options.ePrevFunctionType = 39;
    fit.Open();
    EXPECT_EQ(fit.eLastPredefined, 15);
}

TEST_F(Rules, OpeningEndsTextsAndJoinsPairs) {
    EXPECT_EQ(fit.eLastPredefined, 39);
    std::memset(options.szEquation, 'x', sizeof options.szEquation);
    std::memset(options.szCustomEquations, 'y', sizeof options.szCustomEquations);
    std::memset(options.szFunctionName, 'z', sizeof options.szFunctionName);
    options.bUseChebyFilter = 1;
    options.bDlgCompareModels = 1;
    fit.Open();
    EXPECT_EQ(std::strlen(options.szEquation), 255u);
    EXPECT_EQ(std::strlen(options.szCustomEquations[19]), 255u);
    EXPECT_EQ(std::strlen(options.szFunctionName), 44u);
    EXPECT_EQ(options.bDlgChebyFilter, 1);
    EXPECT_EQ(options.bCompareModels, 1);
    options = fit_test::FreshRecord();
    fit.Open();
    EXPECT_EQ(options.bDlgChebyFilter, 0);
    EXPECT_EQ(options.bCompareModels, 0);
}

// --- Checks --------------------------------------------------------------------------------------

TEST_F(Rules, SeedsMustNotBeZero) {
    const std::uint32_t free[26] = {};
    double flat[26] = {1, 2, 3, 4, 0, 0};
    options.uDlgFitOrder = 2;
    Choose(15);
    EXPECT_TRUE(fit.AreSeedsUsable(flat, free));  // the offset may be zero
    for (const double dBad :
         {0.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        flat[3] = dBad;
        EXPECT_FALSE(fit.AreSeedsUsable(flat, free));
    }
    // Under Chebyshev what is free needs none.
    Choose(15, kSearchChebyshev);
    EXPECT_TRUE(fit.AreSeedsUsable(flat, free));
    std::uint32_t fixed[26] = {};
    fixed[3] = 1;
    EXPECT_FALSE(fit.AreSeedsUsable(flat, fixed));
    // The mean of the first bell may be zero, with two terms that is the third.
    Choose(18);
    double bells[26] = {1, 2, 0, 4, 5, 6};
    EXPECT_TRUE(fit.AreSeedsUsable(bells, free));
    bells[3] = 0.0;
    EXPECT_FALSE(fit.AreSeedsUsable(bells, free));
    options.uDlgFitOrder = 6;
    Choose(15);
    const double twelve[26] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_TRUE(fit.AreSeedsUsable(twelve, free));
    Choose(35);
    const double none[26] = {};
    EXPECT_TRUE(fit.AreSeedsUsable(none, free));
    options.uFitOrder = 0;
    EXPECT_FALSE(fit.AreSeedsUsable(none, free));
    options.uFitOrder = 7;
    EXPECT_FALSE(fit.AreSeedsUsable(none, free));
    options.nNumCustomParams = 2;
    Choose(38);
    const double custom[26] = {1, 2, 0};
    EXPECT_TRUE(fit.AreSeedsUsable(custom, free));
    options.nNumCustomParams = 3;
    EXPECT_FALSE(fit.AreSeedsUsable(custom, free));
}

EvenXFinding EvenXOf(FitModel& model, std::vector<double> x) {
    model.source.bNoX = x.empty();
    model.source.x = std::move(x);
    EXPECT_EQ(model.fit.ReadProperties(), 0);
    return model.fit.IsXUniform();
}

TEST_F(Rules, EvenXIsAskedForByChebyshevAndMaximumLikelihoodAlone) {
    const std::vector<double> uneven = {0.0, 1.0, 2.5, 3.0};
    for (const std::int32_t eSearch : {0, 1, 2}) {
        options.eSearchMethod = eSearch;
        EXPECT_TRUE(EvenXOf(*this, uneven).bEven);
    }
    options.eSearchMethod = kSearchChebyshev;
    EXPECT_FALSE(EvenXOf(*this, uneven).bEven);
    EXPECT_EQ(EvenXOf(*this, uneven).nString, 2199);
    options.bOfferMethodChange = 1;
    EXPECT_FALSE(EvenXOf(*this, uneven).bEven);
    EXPECT_EQ(EvenXOf(*this, uneven).nString, 0);
    options.eFunctionType = 10;
    options.eSearchMethod = kSearchVM;
    options.eMinimMethod = kMinimML;
    EXPECT_EQ(EvenXOf(*this, uneven).nString, 2200);
    // The stored value decides, also where it will be taken back.
    options.eFunctionType = 15;
    EXPECT_EQ(EvenXOf(*this, uneven).nString, 2200);
    options.eFunctionType = 35;
    EXPECT_TRUE(EvenXOf(*this, uneven).bEven);
}

TEST_F(Rules, EvenXToAHundredth) {
    options.eSearchMethod = kSearchChebyshev;
    const EvenXFinding even = EvenXOf(*this, {0.0, 1.0, 2.0078125, 3.015625});
    EXPECT_TRUE(even.bEven);
    EXPECT_EQ(even.nString, 0);
    EXPECT_TRUE(EvenXOf(*this, {0.0, 0.0, 0.01}).bEven);
    EXPECT_FALSE(EvenXOf(*this, {0.0, 1.0, 2.015625, 3.03125}).bEven);
    EXPECT_TRUE(EvenXOf(*this, {0.0, 5.0}).bEven);
    EXPECT_TRUE(EvenXOf(*this, {3.0}).bEven);
    const EvenXFinding missing = EvenXOf(*this, {});
    EXPECT_FALSE(missing.bEven);
    EXPECT_EQ(missing.nString, 0);
}

TEST_F(Rules, ExtrapolationLimitsOfConcentrationsAreAboveZeroOnASheet) {
    source.Kind(2).Groups({"Sheet"}).Sets(3).Points(5);
    CDataOptionsInterface sheet(&dataRecord, &source, &flags);
    CFitOptionsInterface onSheet(&options, &sheet, &library);
    options.eFunctionType = 22;
    EXPECT_TRUE(onSheet.CheckExtrapolation());
    options.bExtrapolateRight = 1;
    EXPECT_FALSE(onSheet.CheckExtrapolation());
    options.dRightExtrapolationValue = 0.5;
    EXPECT_TRUE(onSheet.CheckExtrapolation());
    options.bExtrapolateRight = 0;
    options.bExtrapolateLeft = 1;
    EXPECT_FALSE(onSheet.CheckExtrapolation());
    options.dLeftExtrapolationValue = 0.5;
    EXPECT_TRUE(onSheet.CheckExtrapolation());
    options.bExtrapolateRight = 1;
    options.dRightExtrapolationValue = -1.0;
    EXPECT_FALSE(onSheet.CheckExtrapolation());
    options.bExtrapolateRight = 0;
    EXPECT_TRUE(onSheet.CheckExtrapolation());
    options.dLeftExtrapolationValue = 0.0;
    options.eFunctionType = 15;
    EXPECT_TRUE(onSheet.CheckExtrapolation());
    options.eFunctionType = 22;
    source.Kind(0);
    EXPECT_TRUE(onSheet.CheckExtrapolation());
}

// --- What is read of the data.

// The widest step of x times the sum of y.
TEST_F(Rules, ScaleOfProportionsLooksAtEveryPointAndNoFurther) {
    source.Record();
    source.x = {1.0, 9.0, 10.0, 12.0, 100.0};
    source.y = {1.0, 2.0, 3.0, 4.0, 1000.0};
    source.lengths = {4, 4, 4, 4};
    EXPECT_EQ(ProportionScaleOfData(data), 80.0);
    source.x = {12.0, 10.0, 9.0, 1.0, 100.0};
    EXPECT_EQ(ProportionScaleOfData(data), 80.0);
}

TEST_F(Rules, ScaleOfProportionsIsOneWhereTheDataGiveNone) {
    source.x = {1.0, 3.0};
    source.y = {4.0, 2.0};
    EXPECT_EQ(ProportionScaleOfData(data), 12.0);
    source.y = {4.0, -4.0};
    EXPECT_EQ(ProportionScaleOfData(data), 1.0);
    source.y = {4.0, std::numeric_limits<double>::infinity()};
    EXPECT_EQ(ProportionScaleOfData(data), 1.0);
    source.y = {4.0, 2.0};
    source.bNoY = true;
    EXPECT_EQ(ProportionScaleOfData(data), 1.0);
    source.bNoY = false;
    source.bNoX = true;
    EXPECT_EQ(ProportionScaleOfData(data), 1.0);
}

// Exponentials alone ask whether x begins at 0, and only where zero-shift doesn't answer already.
TEST_F(Rules, FirstPointIsAskedForByTheAutomaticChoiceOfExponentialsAlone) {
    source.x = {0.0, 1.0, 2.0};
    source.y = {3.0, 2.0, 1.5};
    source.Record();
    options.bAutoDefaultOptions = 1;
    const auto asks = [&](std::int32_t eFunction, std::int32_t bAuto, std::int32_t bDo) {
        options.bAutoZeroShift = bAuto;
        options.bDoZeroShift = bDo;
        Choose(eFunction);
        source.calls.clear();
        fit.Settle();
        return std::any_of(source.calls.begin(), source.calls.end(),
                           [](const std::string& call) { return call.starts_with("GetXValues("); });
    };
    EXPECT_TRUE(asks(14, 0, 0));
    EXPECT_EQ(options.eSearchMethod, kSearchChebyshev);
    EXPECT_TRUE(asks(15, 0, 0));
    EXPECT_EQ(options.eSearchMethod, kSearchChebyshev);
    EXPECT_FALSE(asks(15, 1, 0));
    EXPECT_FALSE(asks(15, 0, 1));
    EXPECT_FALSE(asks(18, 0, 0));
    fit.bDeferred = true;
    EXPECT_FALSE(asks(14, 0, 0));
    EXPECT_EQ(options.eSearchMethod, kSearchLM);
}

}  // namespace
