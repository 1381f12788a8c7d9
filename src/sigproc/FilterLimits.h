// What the cutoffs, the smoothing points and the figures of a filter may be, by its family, the
// sampling frequency and the number of points. Plain functions, no window.
//
// Frequencies are in Hz. The sampling frequency is a known one (SamplingRate.h) wherever a limit is
// asked for.
#pragma once

#include <cstdint>

// The values of m_eFilterFamily.
enum FilterFamily : std::int32_t {
    kBessel = 2,
    kBoxcar = 3,
    kButterworth = 4,
    kChebyshev = 5,
    kGaussian = 6,
    kRC = 7,
    kRC8 = 8,
};

// The values of m_eReferenceGeneration.
enum HumReference : std::int32_t { k50Hz = 0, k60Hz = 1, kAutoReference = 2 };

struct FilterLimits {
    double dLow;
    double dHigh;
};

// Of the cutoff; of a boxcar the smoothing points.
FilterLimits LowpassLimits(std::int32_t eFamily, double dRate, std::uint32_t uPoints);
FilterLimits HighpassLimits(std::int32_t eFamily, double dRate);
FilterLimits NotchCenterLimits(double dRate);
FilterLimits NotchWidthLimits(double dRate);
// By how much the arrows beside a cutoff move it.
double CutoffStep(const FilterLimits& limits);

// Coefficients of a Gaussian; 0 where corner or rate are not above 0.
std::int64_t CoefficientCount(double dCorner, double dRate);

// Samples in one period of the interference, at 50 Hz for an automatic reference.
double SamplesPerPeriod(std::int32_t eReference, double dRate);
// Bandwidth in Hz of what is removed; 0 for no cycles.
double InterferenceBandwidth(std::int32_t eReference, std::uint32_t uCycles);

// A frequency as its field shows it: with six significant digits.
double ShownFrequency(double dFrequency);
// Whether a frequency reads as one within the limits. False for one that is no number.
bool IsShownWithin(double dFrequency, const FilterLimits& limits);
// A frequency as the record keeps it, with single precision.
double SingleFrequency(double dFrequency);
