// The four filters of one record, each a section of its own. Frequencies have the text of a float.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

constexpr OptionKey kLowpassFilterKeys[] = {
    {"m_eFilterFamily", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_eFilterFamily)},
    {"m_eFilterType", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_eFilterType)},
    {"m_uNumAveragePoints", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_uNumAveragePoints)},
    {"m_dCornerFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_dCornerFreq)},
    {"m_dPrevFilterFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_dPrevFilterFreq)},
    {"m_bIsSelected", OptionType::kBool8,
     offsetof(ZXADLG_SignalProcessingOptions, lowpass.m_bIsSelected)},
};
constexpr OptionBlock kLowpassFilterBlocks[] = {{kLowpassFilterKeys}};

constexpr OptionKey kHighpassFilterKeys[] = {
    {"m_eFilterFamily", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_eFilterFamily)},
    {"m_eFilterType", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_eFilterType)},
    {"m_uNumAveragePoints", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_uNumAveragePoints)},
    {"m_dCornerFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_dCornerFreq)},
    {"m_dPrevFilterFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_dPrevFilterFreq)},
    {"m_bIsSelected", OptionType::kBool8,
     offsetof(ZXADLG_SignalProcessingOptions, highpass.m_bIsSelected)},
};
constexpr OptionBlock kHighpassFilterBlocks[] = {{kHighpassFilterKeys}};

constexpr OptionKey kNotchFilterKeys[] = {
    {"m_eFilterFamily", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_eFilterFamily)},
    {"m_eFilterType", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_eFilterType)},
    {"m_dCornerFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_dCornerFreq)},
    {"m_dPrevFilterFreq", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_dPrevFilterFreq)},
    {"m_d3dbWidth", OptionType::kFloatInDouble,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_d3dbWidth)},
    {"m_bIsSelected", OptionType::kBool8,
     offsetof(ZXADLG_SignalProcessingOptions, notch.m_bIsSelected)},
};
constexpr OptionBlock kNotchFilterBlocks[] = {{kNotchFilterKeys}};

constexpr OptionKey kAdaptiveFilterKeys[] = {
    {"m_eReferenceGeneration", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_eReferenceGeneration)},
    // The load has always read this key twice.
    {.szKey = "m_eReferenceGeneration",
     .eType = OptionType::kInt32,
     .uOffset = offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_eReferenceGeneration),
     .eUse = OptionUse::kLoadOnly},
    {"m_uAveragingCycles", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_uAveragingCycles)},
    {"m_uHarmonicNumberStart", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_uHarmonicNumberStart)},
    {"m_uHarmonicNumberEnd", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_uHarmonicNumberEnd)},
    {"m_bEndEffectCompensation", OptionType::kBool8,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_bEndEffectCompensation)},
    {"m_bIsSelected", OptionType::kBool8,
     offsetof(ZXADLG_SignalProcessingOptions, adaptive.m_bIsSelected)},
};
constexpr OptionBlock kAdaptiveFilterBlocks[] = {{kAdaptiveFilterKeys}};

}  // namespace

const OptionSection kLowpassFilterSection = {"LowpassFilterSection", kLowpassFilterBlocks};
const OptionSection kHighpassFilterSection = {"HighpassFilterSection", kHighpassFilterBlocks};
const OptionSection kNotchFilterSection = {"NotchFilterSection", kNotchFilterBlocks};
const OptionSection kAdaptiveFilterSection = {"AdaptiveFilterSection", kAdaptiveFilterBlocks};
