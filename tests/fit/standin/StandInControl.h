// The switches and the log of the stand-in curve-fit library, shared between it and the tests. They
// are plain data of the library, which a test reaches through an export of its own
// (StandInLibrary.h).
//
// A stand-in that nothing is switched in answers as the real library does, so that one place alone
// can be made to fail.
#pragma once

#include <cstdint>

#include "zxadlg/CurveFit.h"

namespace fit_test {

constexpr std::uint32_t kCurveFitPlaces = 60;
constexpr std::uint32_t kAlways = 0xFFFFFFFFu;

// Fails `uCount` calls from the `uFirst`th on, counted from 1.
struct FailSwitch {
    std::uint32_t uFirst;
    std::uint32_t uCount;
};

struct StandInControl {
    // --- Switches.
    FailSwitch object;                   // no object
    FailSwitch places[kCurveFitPlaces];  // false, no variables, or no text, by place
    // Where set, these are told in place of the real library's.
    std::int32_t bProps;
    FitFunctionProps props;
    std::int32_t bVariableCount;
    std::uint32_t uVariableCount;
    char szTexts[kCurveFitPlaces][64];  // places 11, 30, 44 to 48
    std::int32_t bSeeds;                // place 7
    double dSeeds[26];
    std::int32_t bCurve;  // place 17: one value everywhere
    double dCurve;

    // --- Log.
    std::uint32_t uObjects;  // asked for, those that were not given included
    std::uint32_t uAlive;
    std::uint32_t uMostAlive;
    std::uint32_t uCalls[kCurveFitPlaces];
    FitOptions record;  // of the last object
    std::uint32_t uArrays;
    std::uint32_t uPoints;     // of the last call of place 7 or 17
    FitDataStats stats;        // of the last call of place 59
    double dCurveSeeds[26];    // likewise
    double dFirstOfArrays[6];  // of the last call of place 17
};

}  // namespace fit_test

// The export that gives it.
#define STANDIN_CONTROL "StandInControl"
