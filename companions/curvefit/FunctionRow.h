// One row a function: what it is called, what it reports, how it is computed and how it is seeded.
// The rows stand in families/, one file a family; FunctionTable.h finds them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "Settings.h"
#include "zxadlg/CurveFit.h"

namespace curvefit {

// A trait may depend on the method of the record.
enum class Trait : uint8_t { kNo, kYes, kNotChebyshev, kNotLikelihood, kOnlyLikelihood };
using enum Trait;

enum class ZeroShift : uint8_t { kNone, kAllowedOff, kAllowedOn, kMandatory };

constexpr uint32_t kNoZeroColumn = 99;

struct Traits {
    uint32_t uZeroColumn = kNoZeroColumn;  // column whose parameter of term 1 may be zero
    ZeroShift zeroShift = ZeroShift::kNone;
    Trait bMultiTerm = kNo;
    Trait bNormalizeWhenForced = kNo;
    Trait bProportionsSumToOne = kNo;
    Trait bFractionalProportions = kNo;
    Trait bIntegralX = kNo;
    Trait bNormalizedX = kNo;
    Trait bNormalizedY = kNo;
    Trait bHasSlope = kNo;
    Trait bHasOffset = kNo;
    Trait bCanForcePositive = kNo;
    Trait bOnlyProportionsForced = kNo;
    Trait bAlwaysPositive = kNo;
    Trait bCanNormalizeProportions = kNo;
    Trait bBinWidthWeighting = kNo;
    Trait bRejectsNegativeData = kNo;
    Trait bNeedsObservationCount = kNo;
    Trait bUsesPowerA = kNo;
    Trait bUsesPowerB = kNo;
    Trait bUsesTemperature = kNo;
    Trait bUsesValence = kNo;
    Trait bNoChebyFilter = kNo;
    Trait bAllowLM = kYes;
    Trait bAllowSimplex = kYes;
    Trait bAllowChebyshev = kNo;  // and the filter with it
    Trait bStraightLine = kNo;
    Trait bPolynomial = kNo;
    Trait bSubstitutesZeroX = kNo;
};

// A curve with all that its formula needs.
struct Curve {
    const Settings* pSettings = nullptr;
    uint32_t uTerms = 1;
    const double* pGrid = nullptr;  // flat, parameter-major
    double dOffset = 0.0;
    double dSlope = 0.0;
    double dOrigin = 0.0;  // subtracted from x
};

// y at `n` points; `ppX` holds one array for each variable.
using EvaluateFunction = void(const Curve& curve, const double* const* ppX, std::size_t n,
                              double* y);
// The derivatives by the grid parameters at `n` points: column k (flat) starts at columns + k * n.
using GradientFunction = void(const Curve& curve, const double* const* ppX, std::size_t n,
                              double* columns);

class SeedTask;
// Finds the flat seeds, offset and slope included. False with a text in the task when it cannot.
using SeedFunction = bool(SeedTask& task, double* seeds);

struct FunctionRow {
    int32_t eFunction;
    const char* szCaption;
    uint32_t uParams;  // of a term
    const char* aszParams[kMaxTermParams];
    const char* szOffset;
    const char* szSlope;
    uint32_t uVariables;
    const char* aszVariables[6];
    const char* szDependent;
    Traits traits;
    EvaluateFunction* pEvaluate;
    GradientFunction* pGradient;
    SeedFunction* pSeed;
    // What the formula is taken from, for the documents.
    const char* szUnits;
    const char* szSource;
};

// A trait under the methods of a record.
bool Holds(Trait trait, const Settings& settings);
// The terms that the record asks for: 1 for a function without a number of terms.
uint32_t TermsOf(const FunctionRow& row, const Settings& settings);
bool IsZeroShiftInEffect(const FunctionRow& row, const Settings& settings);
void FillProperties(const FunctionRow& row, const Settings& settings, FitFunctionProps* props);

}  // namespace curvefit
