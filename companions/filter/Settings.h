// The record in the terms that a design needs: fractions of the sampling frequency instead of
// hertz, the selected sections alone, in the order in which they are applied.
#pragma once

#include <cstdint>
#include <vector>

#include "zxadlg/SignalProcessingOptions.h"

namespace filter {

// Values of m_eFilterFamily.
enum class Family : std::int32_t {
    kBessel = 2,
    kBoxcar = 3,
    kButterworth = 4,
    kChebyshev = 5,
    kGaussian = 6,
    kRc = 7,
    kRc8 = 8,
};

enum class Kind { kLowpass, kHighpass, kNotch, kInterference };

struct Section {
    Kind kind = Kind::kLowpass;
    Family family = Family::kGaussian;
    // Corner or centre and the width of a notch, as fractions of the sampling frequency. 0 where
    // the record gives no number above 0.
    double dFraction = 0.0;
    double dWidth = 0.0;
    // Boxcar: points to average, odd, 3 to 99.
    std::uint32_t uPoints = 0;
    // Interference: 50 or 60 Hz, 0 to be found in the data; harmonics from and to, cycles, at
    // least 1.
    double dLineFrequency = 0.0;
    std::uint32_t uFirstHarmonic = 1;
    std::uint32_t uLastHarmonic = 1;
    std::uint32_t uCycles = 1;
    bool bCompensateEnds = false;
};

struct Settings {
    double dSamplingFrequency = 0.0;  // Hz; 0 where the record has no interval above 0
    std::vector<Section> sections;
};

// Unlisted families count as the dialog counts them: a lowpass as Gaussian, a highpass as Bessel.
Settings SettingsOf(const FilterOptions& options);

}  // namespace filter
