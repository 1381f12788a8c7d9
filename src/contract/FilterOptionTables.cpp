// The four filters of one record, each a section of its own. Frequencies have the text of a float.
// Behind the keys stand the fields that the store does not keep.

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_SignalProcessingOptions;

constexpr OptionKey kLowpassFilterKeys[] = {
    KEY(lowpass.m_eFilterFamily),         KEY(lowpass.m_eFilterType),
    KEY(lowpass.m_uNumAveragePoints),     FLOAT_KEY(lowpass.m_dCornerFreq),
    FLOAT_KEY(lowpass.m_dPrevFilterFreq), KEY(lowpass.m_bIsSelected),
    NotKept(KEY(dSampleInterval)),        NotKept(KEY(lowpass.m_d3dbWidth)),
    NotKept(KEY(lowpass.uApplyOrder)),
};
constexpr OptionBlock kLowpassFilterBlocks[] = {{kLowpassFilterKeys}};

constexpr OptionKey kHighpassFilterKeys[] = {
    KEY(highpass.m_eFilterFamily),         KEY(highpass.m_eFilterType),
    KEY(highpass.m_uNumAveragePoints),     FLOAT_KEY(highpass.m_dCornerFreq),
    FLOAT_KEY(highpass.m_dPrevFilterFreq), KEY(highpass.m_bIsSelected),
    NotKept(KEY(highpass.m_d3dbWidth)),    NotKept(KEY(highpass.uApplyOrder)),
};
constexpr OptionBlock kHighpassFilterBlocks[] = {{kHighpassFilterKeys}};

constexpr OptionKey kNotchFilterKeys[] = {
    KEY(notch.m_eFilterFamily),
    KEY(notch.m_eFilterType),
    FLOAT_KEY(notch.m_dCornerFreq),
    FLOAT_KEY(notch.m_dPrevFilterFreq),
    FLOAT_KEY(notch.m_d3dbWidth),
    KEY(notch.m_bIsSelected),
    NotKept(KEY(notch.m_uNumAveragePoints)),
    NotKept(KEY(notch.uApplyOrder)),
};
constexpr OptionBlock kNotchFilterBlocks[] = {{kNotchFilterKeys}};

constexpr OptionKey kAdaptiveFilterKeys[] = {
    KEY(adaptive.m_eReferenceGeneration),
    // The load has always read this key twice.
    LoadOnly(KEY(adaptive.m_eReferenceGeneration)),
    KEY(adaptive.m_uAveragingCycles),
    KEY(adaptive.m_uHarmonicNumberStart),
    KEY(adaptive.m_uHarmonicNumberEnd),
    KEY(adaptive.m_bEndEffectCompensation),
    KEY(adaptive.m_bIsSelected),
};
constexpr OptionBlock kAdaptiveFilterBlocks[] = {{kAdaptiveFilterKeys}};

}  // namespace

const OptionSection kLowpassFilterSection = {
    "LowpassFilterSection", "ZXADLG_SignalProcessingOptions", kLowpassFilterBlocks};
const OptionSection kHighpassFilterSection = {
    "HighpassFilterSection", "ZXADLG_SignalProcessingOptions", kHighpassFilterBlocks};
const OptionSection kNotchFilterSection = {"NotchFilterSection", "ZXADLG_SignalProcessingOptions",
                                           kNotchFilterBlocks};
const OptionSection kAdaptiveFilterSection = {
    "AdaptiveFilterSection", "ZXADLG_SignalProcessingOptions", kAdaptiveFilterBlocks};
