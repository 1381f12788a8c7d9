// Records of filters in the units of the tests: fractions of a sampling frequency of 10 kHz.
#pragma once

#include <memory>
#include <string>

#include "CreateFilter.h"

namespace filter_test {

constexpr double kSamplingFrequency = 10000.0;

struct Releaser {
    void operator()(ZXADLG_CFilter* p) const { filter::ReleaseFilter(p); }
};
using Filter = std::unique_ptr<ZXADLG_CFilter, Releaser>;

inline Filter Make(const FilterOptions& options) {
    return Filter(filter::CreateFilter(&options));
}

inline FilterOptions NoFilter() {
    FilterOptions options = {};
    options.dSampleInterval = 100.0;
    return options;
}

inline FilterOptions Lowpass(std::int32_t eFamily, double dFraction) {
    FilterOptions options = NoFilter();
    options.lowpass.m_bIsSelected = 1;
    options.lowpass.m_eFilterFamily = eFamily;
    options.lowpass.m_dCornerFreq = dFraction * kSamplingFrequency;
    return options;
}

inline FilterOptions Boxcar(std::uint32_t uPoints) {
    FilterOptions options = Lowpass(3, 0.0);
    options.lowpass.m_uNumAveragePoints = uPoints;
    return options;
}

inline FilterOptions Highpass(std::int32_t eFamily, double dFraction) {
    FilterOptions options = NoFilter();
    options.highpass.m_bIsSelected = 1;
    options.highpass.m_eFilterFamily = eFamily;
    options.highpass.m_dCornerFreq = dFraction * kSamplingFrequency;
    return options;
}

inline FilterOptions Notch(double dFraction, double dWidth) {
    FilterOptions options = NoFilter();
    options.notch.m_bIsSelected = 1;
    options.notch.m_dCornerFreq = dFraction * kSamplingFrequency;
    options.notch.m_d3dbWidth = dWidth * kSamplingFrequency;
    return options;
}

inline FilterOptions Interference(std::int32_t eReference, std::uint32_t uStart, std::uint32_t uEnd,
                                  std::uint32_t uCycles) {
    FilterOptions options = NoFilter();
    options.adaptive.m_bIsSelected = 1;
    options.adaptive.m_eReferenceGeneration = eReference;
    options.adaptive.m_uHarmonicNumberStart = uStart;
    options.adaptive.m_uHarmonicNumberEnd = uEnd;
    options.adaptive.m_uAveragingCycles = uCycles;
    return options;
}

inline std::string ErrorOf(ZXADLG_CFilter& filter) {
    char szText[256] = "";
    filter.GetErrorText(szText, sizeof szText);
    return szText;
}

}  // namespace filter_test
