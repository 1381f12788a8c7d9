// What a function needs to know of an option record.
#pragma once

#include <cstdint>

#include "zxadlg/FitOptions.h"

namespace curvefit {

constexpr uint32_t kMaxTerms = 6;
constexpr uint32_t kMaxTermParams = 4;
// Grid parameters, offset and slope.
constexpr uint32_t kMaxParams = 26;
constexpr int32_t kCustomFunction = 38;

enum SearchMethod { kLevenbergMarquardt, kVariableMetric, kSimplex, kChebyshev };
enum MinimMethod { kSumOfSquares, kMaximumLikelihood };

struct Settings {
    int32_t eSearchMethod = 0;
    int32_t eMinimMethod = 0;
    uint32_t uOrder = 1;   // the record's terms, 1 to 6
    uint32_t uPowerA = 1;  // of the time course or of the power exponential
    uint32_t uPowerB = 1;
    double dTemperature = 20.0;  // degrees Celsius, of the function's own field
    double dThermalMv = 0.0;     // thermal voltage in mV; not above 0 below absolute zero
    int32_t nValence = 1;
    bool bForceProps = false;
    bool bForceTaus = false;
    bool bAutoZeroShift = true;
    bool bDoZeroShift = false;
    double dSubstZeroFactor = 10.0;

    bool IsLikelihood() const { return eMinimMethod == kMaximumLikelihood; }
    bool IsChebyshev() const { return eSearchMethod == kChebyshev; }
};

// Reads the fields that belong to the record's function. A power or valence of 0 is read as 1.
Settings SettingsOf(const FitOptions& options);

// RT/F in millivolts.
double ThermalMillivolts(double dCelsius);

}  // namespace curvefit
