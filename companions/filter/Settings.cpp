#include "Settings.h"

#include <algorithm>
#include <cmath>

namespace filter {

namespace {

constexpr double kMicrosecondsPerSecond = 1e6;
constexpr std::uint32_t kFewestBoxcarPoints = 3;
constexpr std::uint32_t kMostBoxcarPoints = 99;

// 0 for what is no number above 0.
double Positive(double d) {
    return std::isfinite(d) && d > 0.0 ? d : 0.0;
}

Family LowpassFamily(std::int32_t eFamily) {
    return eFamily >= 2 && eFamily <= 8 ? static_cast<Family>(eFamily) : Family::kGaussian;
}

Family HighpassFamily(std::int32_t eFamily) {
    return static_cast<Family>(eFamily) == Family::kRc ? Family::kRc : Family::kBessel;
}

// An even number of points counts as the next odd one.
std::uint32_t BoxcarPoints(std::uint32_t uPoints) {
    return std::clamp(uPoints, kFewestBoxcarPoints, kMostBoxcarPoints) | 1u;
}

struct Placed {
    std::uint32_t uOrder;
    Section section;
};

Section SectionOf(Kind kind, Family family, const ZXADLG_FilterSection& record, double dInterval) {
    Section section;
    section.kind = kind;
    section.family = family;
    section.dFraction = Positive(record.m_dCornerFreq * dInterval);
    section.dWidth = Positive(record.m_d3dbWidth * dInterval);
    section.uPoints = BoxcarPoints(record.m_uNumAveragePoints);
    return section;
}

Section InterferenceOf(const ZXADLG_AdaptiveFilterSection& record) {
    Section section;
    section.kind = Kind::kInterference;
    switch (record.m_eReferenceGeneration) {
        case 1:
            section.dLineFrequency = 60.0;
            break;
        case 2:
            section.dLineFrequency = 0.0;
            break;
        default:
            section.dLineFrequency = 50.0;
            break;
    }
    section.uFirstHarmonic = std::max<std::uint32_t>(record.m_uHarmonicNumberStart, 1);
    section.uLastHarmonic = record.m_uHarmonicNumberEnd;
    section.uCycles = std::max<std::uint32_t>(record.m_uAveragingCycles, 1);
    section.bCompensateEnds = record.m_bEndEffectCompensation != 0;
    return section;
}

}  // namespace

Settings SettingsOf(const FilterOptions& options) {
    const double dInterval = Positive(options.dSampleInterval) / kMicrosecondsPerSecond;  // s
    std::vector<Placed> placed;
    if (options.lowpass.m_bIsSelected) {
        placed.push_back({options.lowpass.uApplyOrder,
                          SectionOf(Kind::kLowpass, LowpassFamily(options.lowpass.m_eFilterFamily),
                                    options.lowpass, dInterval)});
    }
    if (options.highpass.m_bIsSelected) {
        placed.push_back(
            {options.highpass.uApplyOrder,
             SectionOf(Kind::kHighpass, HighpassFamily(options.highpass.m_eFilterFamily),
                       options.highpass, dInterval)});
    }
    if (options.notch.m_bIsSelected) {
        placed.push_back({options.notch.uApplyOrder,
                          SectionOf(Kind::kNotch, Family::kBessel, options.notch, dInterval)});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const Placed& a, const Placed& b) { return a.uOrder < b.uOrder; });
    Settings settings;
    if (dInterval > 0.0) settings.dSamplingFrequency = Positive(1.0 / dInterval);
    for (const Placed& one : placed) settings.sections.push_back(one.section);
    // The section of interference has no place of its own in the order.
    if (options.adaptive.m_bIsSelected)
        settings.sections.push_back(InterferenceOf(options.adaptive));
    return settings;
}

}  // namespace filter
