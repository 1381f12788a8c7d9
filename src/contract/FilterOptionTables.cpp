// The four filters of one record, each a section of its own. Frequencies have the text of a float.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_SignalProcessingOptions;

constexpr OptionKey kLowpassFilterKeys[] = {
    Single("m_eFilterFamily", kInt32, offsetof(Record, lowpass.m_eFilterFamily)),
    Single("m_eFilterType", kInt32, offsetof(Record, lowpass.m_eFilterType)),
    Single("m_uNumAveragePoints", kUInt32, offsetof(Record, lowpass.m_uNumAveragePoints)),
    Single("m_dCornerFreq", kFloatInDouble, offsetof(Record, lowpass.m_dCornerFreq)),
    Single("m_dPrevFilterFreq", kFloatInDouble, offsetof(Record, lowpass.m_dPrevFilterFreq)),
    Single("m_bIsSelected", kBool8, offsetof(Record, lowpass.m_bIsSelected)),
};
constexpr OptionBlock kLowpassFilterBlocks[] = {{kLowpassFilterKeys}};

constexpr OptionKey kHighpassFilterKeys[] = {
    Single("m_eFilterFamily", kInt32, offsetof(Record, highpass.m_eFilterFamily)),
    Single("m_eFilterType", kInt32, offsetof(Record, highpass.m_eFilterType)),
    Single("m_uNumAveragePoints", kUInt32, offsetof(Record, highpass.m_uNumAveragePoints)),
    Single("m_dCornerFreq", kFloatInDouble, offsetof(Record, highpass.m_dCornerFreq)),
    Single("m_dPrevFilterFreq", kFloatInDouble, offsetof(Record, highpass.m_dPrevFilterFreq)),
    Single("m_bIsSelected", kBool8, offsetof(Record, highpass.m_bIsSelected)),
};
constexpr OptionBlock kHighpassFilterBlocks[] = {{kHighpassFilterKeys}};

constexpr OptionKey kNotchFilterKeys[] = {
    Single("m_eFilterFamily", kInt32, offsetof(Record, notch.m_eFilterFamily)),
    Single("m_eFilterType", kInt32, offsetof(Record, notch.m_eFilterType)),
    Single("m_dCornerFreq", kFloatInDouble, offsetof(Record, notch.m_dCornerFreq)),
    Single("m_dPrevFilterFreq", kFloatInDouble, offsetof(Record, notch.m_dPrevFilterFreq)),
    Single("m_d3dbWidth", kFloatInDouble, offsetof(Record, notch.m_d3dbWidth)),
    Single("m_bIsSelected", kBool8, offsetof(Record, notch.m_bIsSelected)),
};
constexpr OptionBlock kNotchFilterBlocks[] = {{kNotchFilterKeys}};

constexpr OptionKey kAdaptiveFilterKeys[] = {
    Single("m_eReferenceGeneration", kInt32, offsetof(Record, adaptive.m_eReferenceGeneration)),
    // The load has always read this key twice.
    LoadOnly(Single("m_eReferenceGeneration", kInt32,
                    offsetof(Record, adaptive.m_eReferenceGeneration))),
    Single("m_uAveragingCycles", kUInt32, offsetof(Record, adaptive.m_uAveragingCycles)),
    Single("m_uHarmonicNumberStart", kUInt32, offsetof(Record, adaptive.m_uHarmonicNumberStart)),
    Single("m_uHarmonicNumberEnd", kUInt32, offsetof(Record, adaptive.m_uHarmonicNumberEnd)),
    Single("m_bEndEffectCompensation", kBool8, offsetof(Record, adaptive.m_bEndEffectCompensation)),
    Single("m_bIsSelected", kBool8, offsetof(Record, adaptive.m_bIsSelected)),
};
constexpr OptionBlock kAdaptiveFilterBlocks[] = {{kAdaptiveFilterKeys}};

}  // namespace

const OptionSection kLowpassFilterSection = {"LowpassFilterSection", kLowpassFilterBlocks};
const OptionSection kHighpassFilterSection = {"HighpassFilterSection", kHighpassFilterBlocks};
const OptionSection kNotchFilterSection = {"NotchFilterSection", kNotchFilterBlocks};
const OptionSection kAdaptiveFilterSection = {"AdaptiveFilterSection", kAdaptiveFilterBlocks};
