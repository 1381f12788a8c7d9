// Responses to a step or an event, counted from its onset.

#include "FunctionTable.h"
#include "TermLoops.h"
#include "families/TimeCourseTerms.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

constexpr FunctionRow kRows[] = {
    {.eFunction = 7,
     .szCaption = "Current time course (Hodgkin-Huxley)",
     .uParams = 4,
     .aszParams = {"A", "tau m", "h inf", "tau h"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Time"},
     .szDependent = "Current",
     .traits = {.uZeroColumn = 2,
                .zeroShift = ZeroShift::kMandatory,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bUsesPowerA = kYes,
                .bUsesPowerB = kYes},
     .pEvaluate = EvaluateSum<CurrentTerm>,
     .pGradient = GradientSum<CurrentTerm>,
     .pSeed = SeedTimeCourse,
     .szUnits = "A, C: y; tau m, tau h: x; h inf: none; a, b: whole numbers",
     .szSource = "Hodgkin & Huxley 1952; Johnston & Wu 1995"},
    {.eFunction = 8,
     .szCaption = "Exponential, alpha",
     .uParams = 2,
     .aszParams = {"A", "tau"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Time"},
     .szDependent = "Response",
     .traits = {.zeroShift = ZeroShift::kMandatory, .bHasOffset = kYes, .bCanForcePositive = kYes},
     .pEvaluate = EvaluateSum<AlphaTerm>,
     .pGradient = GradientSum<AlphaTerm>,
     .pSeed = SeedTimeCourse,
     .szUnits = "A (the peak above C), C: y; tau (the time to peak): x",
     .szSource = "Rall 1967; Jack, Noble & Tsien 1975"},
    {.eFunction = 11,
     .szCaption = "Exponential, power",
     .uParams = 2,
     .aszParams = {"A", "tau"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Time"},
     .szDependent = "Response",
     .traits = {.zeroShift = ZeroShift::kMandatory,
                .bMultiTerm = kNotChebyshev,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bUsesPowerA = kYes,
                .bNoChebyFilter = kYes,
                .bAllowChebyshev = kYes},
     .pEvaluate = EvaluateSum<PowerTerm>,
     .pGradient = GradientSum<PowerTerm>,
     .pSeed = SeedTimeConstants,
     .szUnits = "A, C: y; tau: x; a: whole number",
     .szSource = "Hodgkin & Huxley 1952"},
    {.eFunction = 13,
     .szCaption = "Exponential, product",
     .uParams = 3,
     .aszParams = {"A", "tau rise", "tau decay"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Time"},
     .szDependent = "Response",
     .traits = {.zeroShift = ZeroShift::kMandatory, .bHasOffset = kYes, .bCanForcePositive = kYes},
     .pEvaluate = EvaluateSum<ProductTerm>,
     .pGradient = GradientSum<ProductTerm>,
     .pSeed = SeedTimeCourse,
     .szUnits = "A, C: y; tau rise, tau decay: x",
     .szSource = "Jack, Noble & Tsien 1975; Johnston & Wu 1995"},
};

}  // namespace

const FunctionRows kTimeCourseFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
