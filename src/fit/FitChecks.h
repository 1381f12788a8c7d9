// The checks of curve fitting in the order in which its dialog walks them at OK, and what some of
// its controls follow. Each is a plain function over the options, the seeds and the model of the
// data; it answers a finding or none and knows no window. What a button of a message does is handed
// in.
//
// Nothing changes the record. A deferred run reads nothing through the source, so its dialog leaves
// out what says so.
#pragma once

#include <functional>

#include "contract/Finding.h"
#include "fit/CFitSeedInterface.h"

// The pages by their place.
enum FitPage : int { kFitFunctionPage, kFitAdvancedPage, kFitSeedPage, kFitDataPage };

// --- The custom function.
// One must be defined where it is chosen.
CheckResult CheckCustomDefined(const CFitOptionsInterface& fit);

// --- The data; all read through the source.
// No column of a sheet is fitted to itself.
CheckResult CheckColumnsDiffer(const CDataOptionsInterface& data);
// Of several variables all but one are constants, and these are above zero. No value is read.
CheckResult CheckConstants(const CFitOptionsInterface& fit);
// What a fit or an estimate of its seeds needs: the constants, enough points, x and y, an x that is
// not zero everywhere, and no comparison of models on data that are normalised. The texts are the
// caller's to show.
enum class FitDataUse { kFit, kEstimate };
CheckResult CheckDataForFit(const CFitOptionsInterface& fit, FitDataUse eUse);
// Evenly spaced x, for the methods that need them. With bOfferMethodChange the user may go on with
// Levenberg-Marquardt, which `useLM` sets.
CheckResult CheckEvenX(const CFitOptionsInterface& fit, std::function<void()> useLM);
// No y below zero where the function has none.
CheckResult CheckNegativeData(const CFitOptionsInterface& fit);
// The listed y columns of a sheet are of one length.
CheckResult CheckColumnLengths(const CDataOptionsInterface& data);

// --- The seeds.
// Whether the seeds belong to another function or other data and are to be cleared, with their
// fixed flags, before CheckSeeds looks at them.
bool AreSeedsOutOfDate(const CFitOptionsInterface& fit);

struct SeedCheck {
    bool bReadOnly = false;
    bool bDeferred = false;
    // Estimates the seeds with messages; whether it could. It runs when the user wants it.
    std::function<bool()> estimate;
    // Runs when the user does not.
    std::function<void()> keep = [] {};
};
// The flags of the open dialog about the seeds follow the check and the answer.
CheckResult CheckSeeds(CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                       const SeedCheck& check);
// Stands behind CheckSeeds: an estimate that the user wanted and that failed has been told of.
CheckResult CheckEstimate(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds);

// Why there is nothing to seed graphically; an information.
CheckResult CheckGraphNeeded(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds);

// --- Fixed parameters, the comparison of models, the range of the curve.
CheckResult CheckComparisonOrder(const CFitOptionsInterface& fit);
CheckResult CheckAnyFree(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds);
// Reads the function's properties afresh.
CheckResult CheckCurveRange(CFitOptionsInterface& fit);

// --- What fields of the Advanced page take.
struct FitFieldRange {
    double dLow;
    double dHigh;
};
constexpr FitFieldRange kFitPrecisionRange = {1e-16, 1.0};
constexpr FitFieldRange kFitDivisorRange = {1.0, 1e9};

// Which controls of the curve's range are shown: the cursor pair or the two limits, never both.
struct CurveRangeForm {
    bool bCursorPair;
    bool bLimits;      // the check boxes
    bool bLimitEdits;  // their values
    bool bDataTexts;   // where the data begin and end
    int nCaption;      // of the group; 0: as in its template
};
CurveRangeForm FormOfCurveRange(const CDataOptionsInterface& data, bool bHasDataPage,
                                bool bReadOnly, bool bDeferred);
