// What the dialogs of curve fitting and a curve-fit library agree on: the records that pass between
// them and the table of the object that the library makes.
//
// The library exports one function under the name _CFIT_CreateCurveFit@4 (ZXADLG_CURVEFIT_CREATE).
// It takes a finalised FitOptions, which it reads during the call alone, and gives an object for
// the function of that record, or null. An object is for one use on one thread and is ended by
// DeleteSelf(1). Texts that it returns are its own, 8-bit, and live as long as it does. Nothing is
// thrown across.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/FitOptions.h"

// The traits of a function under the options of one record. Booleans are 0 or 1.
#pragma pack(push, 4)
struct FitFunctionProps {
    uint32_t uParamsPerTerm;         // parameters of one term
    uint32_t uNumDataArrays;         // independent variables and the dependent one
    uint32_t uZeroAllowedParam;      // flat index of a parameter that may be zero; 99 none
    int32_t bNormalizeWhenForced;    // forced positive, the proportions start normalised
    int32_t reserved16[3];           // 0
    int32_t bProportionsSumToOne;    // with bFractionalProportions: the sum must be 1
    int32_t reserved32;              // 0
    int32_t bMultiTerm;              // the function has a number of terms
    int32_t bFractionalProportions;  // a negative proportion flips with -0.001, not -1
    int32_t bIntegralX;
    int32_t bNormalizedY;
    int32_t bHasSlope;   // parameter place 25 exists
    int32_t bHasOffset;  // parameter place 24 exists
    int32_t bCanForcePositive;
    int32_t bAlwaysPositive;  // all parameters are forced by the function itself
    int32_t bZeroShiftAllowed;
    int32_t bNormalizedX;
    int32_t bZeroShiftMandatory;
    int32_t bCanNormalizeProportions;
    int32_t reserved84[2];       // 0
    int32_t bBinWidthWeighting;  // weighting by bin width may be chosen
    int32_t bRejectsNegativeData;
    int32_t reserved100;  // 0
    int32_t bOnlyProportionsForced;
    int32_t bUsesPowerA;
    int32_t bUsesPowerB;
    int32_t bUsesTemperature;
    int32_t bUsesValence;
    int32_t bAutoZeroShiftDefault;  // what automatic zero-shift means
    int32_t bNeedsObservationCount;
    int32_t reserved132;     // 0
    int32_t bNoChebyFilter;  // Chebyshev without the smoothing filter
    int32_t bAllowLM;
    int32_t bAllowSimplex;
    int32_t bAllowChebyshev;
    int32_t bAllowChebyFilter;
    int32_t bStraightLine;      // regression, no seeds
    int32_t bPolynomial;        // regression, no seeds
    int32_t bSubstitutesZeroX;  // x is a concentration: zero x is replaced
    char szParamNames[24][15];
    char szVariableNames[6][15];
    char szDependentName[15];
    char szOffsetName[15];
    char szSlopeName[15];
    char szFunctionName[40];
    uint8_t reserved703;  // 0
};

// Goes to the library beside the seeds when a curve is drawn.
struct FitDataStats {
    uint32_t uNumPoints;
    uint32_t uOrder;     // terms of the curve
    uint32_t reserved8;  // 0
    double dXStep;
    double dSumY;
    double dFirstX;
    double dOffsetSeed;
    double dSlopeSeed;
    double dMaxY;
    uint8_t reserved60;  // 0
};
#pragma pack(pop)
static_assert(sizeof(FitFunctionProps) == 704, "layout");
static_assert(offsetof(FitFunctionProps, uParamsPerTerm) == 0, "layout");
static_assert(offsetof(FitFunctionProps, uNumDataArrays) == 4, "layout");
static_assert(offsetof(FitFunctionProps, uZeroAllowedParam) == 8, "layout");
static_assert(offsetof(FitFunctionProps, bNormalizeWhenForced) == 12, "layout");
static_assert(offsetof(FitFunctionProps, bProportionsSumToOne) == 28, "layout");
static_assert(offsetof(FitFunctionProps, bMultiTerm) == 36, "layout");
static_assert(offsetof(FitFunctionProps, bFractionalProportions) == 40, "layout");
static_assert(offsetof(FitFunctionProps, bIntegralX) == 44, "layout");
static_assert(offsetof(FitFunctionProps, bNormalizedY) == 48, "layout");
static_assert(offsetof(FitFunctionProps, bHasSlope) == 52, "layout");
static_assert(offsetof(FitFunctionProps, bHasOffset) == 56, "layout");
static_assert(offsetof(FitFunctionProps, bCanForcePositive) == 60, "layout");
static_assert(offsetof(FitFunctionProps, bAlwaysPositive) == 64, "layout");
static_assert(offsetof(FitFunctionProps, bZeroShiftAllowed) == 68, "layout");
static_assert(offsetof(FitFunctionProps, bNormalizedX) == 72, "layout");
static_assert(offsetof(FitFunctionProps, bZeroShiftMandatory) == 76, "layout");
static_assert(offsetof(FitFunctionProps, bCanNormalizeProportions) == 80, "layout");
static_assert(offsetof(FitFunctionProps, bBinWidthWeighting) == 92, "layout");
static_assert(offsetof(FitFunctionProps, bRejectsNegativeData) == 96, "layout");
static_assert(offsetof(FitFunctionProps, bOnlyProportionsForced) == 104, "layout");
static_assert(offsetof(FitFunctionProps, bUsesPowerA) == 108, "layout");
static_assert(offsetof(FitFunctionProps, bUsesPowerB) == 112, "layout");
static_assert(offsetof(FitFunctionProps, bUsesTemperature) == 116, "layout");
static_assert(offsetof(FitFunctionProps, bUsesValence) == 120, "layout");
static_assert(offsetof(FitFunctionProps, bAutoZeroShiftDefault) == 124, "layout");
static_assert(offsetof(FitFunctionProps, bNeedsObservationCount) == 128, "layout");
static_assert(offsetof(FitFunctionProps, bNoChebyFilter) == 136, "layout");
static_assert(offsetof(FitFunctionProps, bAllowLM) == 140, "layout");
static_assert(offsetof(FitFunctionProps, bAllowSimplex) == 144, "layout");
static_assert(offsetof(FitFunctionProps, bAllowChebyshev) == 148, "layout");
static_assert(offsetof(FitFunctionProps, bAllowChebyFilter) == 152, "layout");
static_assert(offsetof(FitFunctionProps, bStraightLine) == 156, "layout");
static_assert(offsetof(FitFunctionProps, bPolynomial) == 160, "layout");
static_assert(offsetof(FitFunctionProps, bSubstitutesZeroX) == 164, "layout");
static_assert(offsetof(FitFunctionProps, szParamNames) == 168, "layout");
static_assert(offsetof(FitFunctionProps, szVariableNames) == 528, "layout");
static_assert(offsetof(FitFunctionProps, szDependentName) == 618, "layout");
static_assert(offsetof(FitFunctionProps, szOffsetName) == 633, "layout");
static_assert(offsetof(FitFunctionProps, szSlopeName) == 648, "layout");
static_assert(offsetof(FitFunctionProps, szFunctionName) == 663, "layout");
static_assert(sizeof(FitDataStats) == 64, "layout");
static_assert(offsetof(FitDataStats, uNumPoints) == 0, "layout");
static_assert(offsetof(FitDataStats, uOrder) == 4, "layout");
static_assert(offsetof(FitDataStats, dXStep) == 12, "layout");
static_assert(offsetof(FitDataStats, dSumY) == 20, "layout");
static_assert(offsetof(FitDataStats, dFirstX) == 28, "layout");
static_assert(offsetof(FitDataStats, dOffsetSeed) == 36, "layout");
static_assert(offsetof(FitDataStats, dSlopeSeed) == 44, "layout");
static_assert(offsetof(FitDataStats, dMaxY) == 52, "layout");
static_assert(offsetof(FitDataStats, reserved60) == 60, "layout");

// A place of the table that the dialogs do not call.
#define ZXADLG_CURVEFIT_UNUSED(place)   \
    virtual int32_t Reserved##place() { \
        return 0;                       \
    }

// The object. Its table has one place for each operation below, in this order, in every compiler.
// Results are nonzero on success.
//
// Flat parameters are parameter-major: column 0 of every term, then column 1 of every term, and so
// on; then the offset where the function has one, then the slope where it has one.
class ZXADLG_CCurveFit {
  public:
    // Place 0, in the platform vendor's tables the destructor: ends the object, and frees it when
    // the low bit of `flags` is set.
    virtual void* DeleteSelf(uint32_t flags) = 0;
    ZXADLG_CURVEFIT_UNUSED(1)
    ZXADLG_CURVEFIT_UNUSED(2)
    ZXADLG_CURVEFIT_UNUSED(3)
    ZXADLG_CURVEFIT_UNUSED(4)
    ZXADLG_CURVEFIT_UNUSED(5)
    ZXADLG_CURVEFIT_UNUSED(6)
    // Place 7: seeds from data. `arrays` holds `nArrays` pointers to `nPoints` doubles each, the
    // independent variables and then y. Writes the flat seeds, or nothing on failure.
    virtual int32_t ComputeSeeds(const double* const* arrays, double* seeds, uint32_t nArrays,
                                 uint32_t nPoints) = 0;
    ZXADLG_CURVEFIT_UNUSED(8)
    ZXADLG_CURVEFIT_UNUSED(9)
    ZXADLG_CURVEFIT_UNUSED(10)
    // Place 11: why the last operation failed, cut to `size` with its zero; empty when none did.
    virtual int32_t GetErrorText(char* text, uint32_t size) = 0;
    ZXADLG_CURVEFIT_UNUSED(12)
    ZXADLG_CURVEFIT_UNUSED(13)
    ZXADLG_CURVEFIT_UNUSED(14)
    ZXADLG_CURVEFIT_UNUSED(15)
    ZXADLG_CURVEFIT_UNUSED(16)
    // Place 17: y of a curve that place 59 set up. `xArrays` holds one pointer for each independent
    // variable. A value that the formula does not have is not a number or infinite.
    virtual int32_t Evaluate(const double* const* xArrays, double* y, uint32_t nPoints) = 0;
    // Place 18.
    virtual uint32_t GetVariableCount() = 0;
    ZXADLG_CURVEFIT_UNUSED(19)
    ZXADLG_CURVEFIT_UNUSED(20)
    ZXADLG_CURVEFIT_UNUSED(21)
    ZXADLG_CURVEFIT_UNUSED(22)
    ZXADLG_CURVEFIT_UNUSED(23)
    ZXADLG_CURVEFIT_UNUSED(24)
    ZXADLG_CURVEFIT_UNUSED(25)
    ZXADLG_CURVEFIT_UNUSED(26)
    ZXADLG_CURVEFIT_UNUSED(27)
    ZXADLG_CURVEFIT_UNUSED(28)
    ZXADLG_CURVEFIT_UNUSED(29)
    // Place 30: the function's name, which is to be taken as a format without arguments.
    virtual const char* GetFunctionText() = 0;
    ZXADLG_CURVEFIT_UNUSED(31)
    ZXADLG_CURVEFIT_UNUSED(32)
    ZXADLG_CURVEFIT_UNUSED(33)
    ZXADLG_CURVEFIT_UNUSED(34)
    ZXADLG_CURVEFIT_UNUSED(35)
    ZXADLG_CURVEFIT_UNUSED(36)
    ZXADLG_CURVEFIT_UNUSED(37)
    ZXADLG_CURVEFIT_UNUSED(38)
    ZXADLG_CURVEFIT_UNUSED(39)
    // Place 40: fills the whole record.
    virtual int32_t GetProperties(FitFunctionProps* props) = 0;
    ZXADLG_CURVEFIT_UNUSED(41)
    ZXADLG_CURVEFIT_UNUSED(42)
    ZXADLG_CURVEFIT_UNUSED(43)
    // Place 44: label of an independent variable. Both indices are the variable's; the second one
    // decides. An empty text beyond the last.
    virtual const char* GetVariableLabel(uint32_t group, uint32_t index) = 0;
    // Place 45.
    virtual const char* GetDependentLabel() = 0;
    // Place 46: name of a parameter of a term. Both indices are the parameter's; the second one
    // decides. An empty text beyond the last.
    virtual const char* GetParameterName(uint32_t group, uint32_t index) = 0;
    // Places 47, 48: empty where the function has none.
    virtual const char* GetOffsetName() = 0;
    virtual const char* GetSlopeName() = 0;
    ZXADLG_CURVEFIT_UNUSED(49)
    ZXADLG_CURVEFIT_UNUSED(50)
    ZXADLG_CURVEFIT_UNUSED(51)
    ZXADLG_CURVEFIT_UNUSED(52)
    ZXADLG_CURVEFIT_UNUSED(53)
    ZXADLG_CURVEFIT_UNUSED(54)
    ZXADLG_CURVEFIT_UNUSED(55)
    ZXADLG_CURVEFIT_UNUSED(56)
    ZXADLG_CURVEFIT_UNUSED(57)
    ZXADLG_CURVEFIT_UNUSED(58)
    // Place 59: sets up a curve of stats->uOrder terms. The grid parameters are read from the flat
    // `seeds`, offset and slope from the stats, the origin of a zero-shift from stats->dFirstX.
    virtual int32_t SetUpCurve(const FitDataStats* stats, const double* seeds) = 0;

  protected:
    ~ZXADLG_CCurveFit() = default;
};
#undef ZXADLG_CURVEFIT_UNUSED

// The exported function.
#define ZXADLG_CURVEFIT_CREATE "_CFIT_CreateCurveFit@4"
#if defined(_WIN32)
#define ZXADLG_CURVEFIT_CALL __stdcall
#else
#define ZXADLG_CURVEFIT_CALL
#endif
typedef ZXADLG_CCurveFit*(ZXADLG_CURVEFIT_CALL* ZXADLG_CreateCurveFit)(const FitOptions* options);
