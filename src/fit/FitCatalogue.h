// What the dialogs of curve fitting know of the fit functions by themselves: caption, group and
// picture of each, where it keeps its own numbers, and the automatic choice of fitting methods. The
// mathematics and the traits are the curve-fit library's.
#pragma once

#include <cstdint>
#include <span>

#include "zxadlg/FitOptions.h"

// Numbers of eFunctionType beyond the predefined functions 0 to 37.
constexpr std::int32_t kCustomFitFunction = 38;
constexpr std::int32_t kStandardExponential = 15;  // what stands in for one that cannot be had
constexpr std::int32_t kNoFitFunction = 39;  // no function before; never stored as a selection

enum FitFunctionGroup : std::int32_t {
    kAllFunctions = 0,
    kDoseResponse = 1,
    kExponentialGrowth = 2,
    kElectrophysiology = 3,
    kDistributions = 4,
    kLinearPolynomial = 5,
    kParabolic = 6,
};
enum FitSearchMethod : std::int32_t {
    kSearchLM = 0,
    kSearchVM = 1,
    kSearchSimplex = 2,
    kSearchChebyshev = 3,
};
enum FitMinimMethod : std::int32_t {
    kMinimSS = 0,
    kMinimML = 1,
    kMinimMinimax = 2,
    kMinimMeanAbs = 3,
};
enum FitWeighting : std::int32_t {
    kWeightNone = 0,
    kWeightFunction = 1,
    kWeightData = 2,
    kWeightBinWidth = 3,
};

// The three choices of a method, and how many methods each has.
enum class FitMethodGroup { kSearch, kMinim, kWeighting };
constexpr std::int32_t kFitMethods = 4;

struct FitFunctionEntry {
    std::int32_t eFunction;
    int nCaptionString;
    FitFunctionGroup eGroup;
    const char* szPicture;  // where the method does not decide
};
struct FitGroupEntry {
    FitFunctionGroup eGroup;
    const char* szCaption;
};

// The 38 functions in their stored order, and the groups in the order of their combo box.
std::span<const FitFunctionEntry> FitFunctions();
std::span<const FitGroupEntry> FitGroups();
// By number; null for any that is not predefined.
const FitFunctionEntry* FindFitFunction(std::int32_t eFunction);
// The string of the caption; the custom function's for any that is not predefined.
int FitCaptionString(std::int32_t eFunction);
// The METAFILE resource of the equation.
const char* FitFunctionPictureName(std::int32_t eFunction, std::int32_t eSearch, bool bHasOffset);

// The functions that Chebyshev is for when the methods are chosen by hand.
bool IsFittedByChebyshev(std::int32_t eFunction);
// Functions of several variables, which only the columns of a sheet can give.
bool NeedsColumns(std::int32_t eFunction);

// The field in which a function keeps a number of its own, or null.
double FitOptions::*FitTemperatureField(std::int32_t eFunction);
std::uint32_t FitOptions::*FitPowerAField(std::int32_t eFunction);
std::uint32_t FitOptions::*FitPowerBField(std::int32_t eFunction);
std::uint32_t FitOptions::*FitValenceField(std::int32_t eFunction);

// What the automatic choice looks at besides the record.
struct AutomaticMethodInput {
    std::uint32_t uTerms = 1;  // that the term spinner shows
    bool bComparing = false;   // models are compared
    bool bFirstXIsZero = false;
};
// Sets the three methods for the record's function.
void ApplyAutomaticMethods(FitOptions& options, const AutomaticMethodInput& input);
