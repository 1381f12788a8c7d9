#include "SigprocSectionsFuzz.h"

#include <cstdlib>
#include <cstring>
#include <fstream>

#include "contract/OptionPersistence.h"
#include "sigproc/CorrelationRules.h"
#include "sigproc/FilterChecks.h"
#include "sigproc/SamplingRate.h"
#include "sigproc/SpectrumChecks.h"
#include "sigproc/SpectrumWindows.h"
#include "store/ProfileStore.h"

namespace {

void Hold(bool b) {
    if (!b) std::abort();
}

constexpr const char* kSections[] = {"LowpassFilterSection", "HighpassFilterSection",
                                     "NotchFilterSection",   "AdaptiveFilterSection",
                                     "PowerSpectrumSection", "CorrelationSection"};

// Every section gets the same lines and takes those that it knows.
void Store(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile) {
    std::ofstream file(sProfile, std::ios::binary);
    for (const char* szSection : kSections) {
        file << '[' << szSection << "]\r\n";
        file.write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
        file << "\r\n";
    }
}

void AskFilter(FilterOptions& options, const FilterSignal& signal) {
    CompleteFilterRecord(options, signal.dRate);
    ClampLowpass(options, signal);
    ClampHighpass(options, signal);
    ClampNotch(options, signal);
    const ZXADLG_FilterSection& lowpass = options.lowpass;
    Hold(lowpass.m_eFilterFamily >= kBessel && lowpass.m_eFilterFamily <= kRC8);
    Hold(options.highpass.m_eFilterFamily == kBessel || options.highpass.m_eFilterFamily == kRC);
    const bool bBoxcar = lowpass.m_eFilterFamily == kBoxcar;
    // Below, single precision has no number but 0.
    if (signal.dRate > 1e-30) {
        Hold(bBoxcar || IsShownWithin(lowpass.m_dCornerFreq, LowpassLimitsFor(options, signal)));
        Hold(IsShownWithin(options.highpass.m_dCornerFreq,
                           HighpassLimits(options.highpass.m_eFilterFamily, signal.dRate)));
        Hold(IsShownWithin(options.notch.m_dCornerFreq, NotchCenterLimits(signal.dRate)));
        Hold(IsShownWithin(options.notch.m_d3dbWidth, NotchWidthLimits(signal.dRate)));
    }
    Hold(!bBoxcar || lowpass.m_uNumAveragePoints >= 2);
    Hold(FilterTypeOf(options) <= kNotchFilter);
    Hold(FilterApplyCount(options) <= 3);
    Hold(CoefficientCount(lowpass.m_dCornerFreq, signal.dRate) >= 0);
    Hold(InterferenceBandwidth(options.adaptive.m_eReferenceGeneration,
                               options.adaptive.m_uAveragingCycles) >= 0.0);
    for (const bool bDeferred : {false, true}) {
        const CheckResult result =
            CheckFilter({.options = options,
                         .signal = signal,
                         .bDeferred = bDeferred,
                         .minimumPoints = [] { return 5u; },
                         .setHarmonics = [](std::uint32_t u) { Hold(u == 1); },
                         .setCycles = [](std::uint32_t u) { Hold(u > 0); }});
        if (!result.has_value()) continue;
        Hold(result->nStringId != 0 && result->nControl != 0);
        for (const Finding::Answer& answer : result->vAnswers) {
            if (answer.step) answer.step();
        }
    }
}

void AskSpectrum(SpectrumOptions& options, const SpectrumSignal& signal) {
    CompleteSpectrumRecord(options, signal);
    Hold(FindSpectralWindow(options.eWindowType) != nullptr);
    for (const double dAlpha : {options.dKaiserAlpha, options.dPoissonAlpha})
        Hold(dAlpha >= kLeastAlpha && dAlpha <= kMostAlpha);
    Hold(options.uNumBinsToExclude >= kFewestExcluded &&
         options.uNumBinsToExclude <= kMostExcluded);
    Hold(options.uTransformLength > 0);
    Hold(SegmentCount(options, signal) >= 0);
    const WindowPictures pictures =
        PicturesOf(options.eWindowType, options.dKaiserAlpha, options.dPoissonAlpha);
    Hold(pictures.nShape >= 2500 && pictures.nMagnitude <= 2610);
    const CheckResult length = CheckTransformLength(
        options, signal, [&options](std::uint32_t u) { options.uTransformLength = u; });
    if (length.has_value()) {
        for (const Finding::Answer& answer : length->vAnswers) answer.step();
        Hold(length->vAnswers.empty() || EffectiveLength(options, signal) <= signal.uPoints);
    }
    CheckSegments(options, signal);
}

}  // namespace

void FuzzSigprocSections(const std::uint8_t* pData, std::size_t nSize,
                         const std::string& sProfile) {
    Store(pData, nSize, sProfile);
    SetUseProfileFile(true);
    const char* szProfile = sProfile.c_str();
    for (const std::uint32_t uPoints : {0u, 1u, 15u, 1000u, 1u << 31}) {
        for (const double dRate : {0.0, 1e-300, 333.3, 1e12}) {
            // What is not stored keeps what a host passed, here rubbish.
            FilterOptions options;
            std::memset(&options, nSize % 2 == 0 ? 0 : 0x5A, sizeof options);
            LoadFilterOptions(szProfile, &options);
            AskFilter(options, {dRate > 0.0 ? dRate : RateOfInterval(options), uPoints, true});
            LoadPowerSpectrumOptions(szProfile, &options);
            AskSpectrum(options, {.dRate = dRate,
                                  .uPoints = uPoints,
                                  .bSwept = nSize % 3 == 0,
                                  .uWholePoints = uPoints,
                                  .uTraces = 7});
            ZXADLG_CorrelationOptions correlation = {};
            LoadCorrelationOptions(szProfile, &correlation);
            CheckLags({.dFrequency = correlation.dSamplingFrequency,
                       .uLags = correlation.uNumberOfLags,
                       .uPoints = uPoints,
                       .setLags = [](std::uint32_t) {}});
            SaveFilterOptions(szProfile, &options);
            SavePowerSpectrumOptions(szProfile, &options);
            SaveCorrelationOptions(szProfile, &correlation);
        }
        Store(pData, nSize, sProfile);
    }
}
