// The sections whose keys stand in one record, in the order in which they are read and written.
// Behind them stand the fields that the store does not keep.

#include "contract/OptionTables.h"

#include "contract/OptionPersistence.h"

namespace {

using enum OptionType;

namespace power_spectrum {
using Record = ZXADLG_SignalProcessingOptions;
constexpr OptionKey kKeys[] = {
    KEY(eWindowType),
    KEY(common.eDestinationOption),
    KEY(dPoissonAlpha),
    KEY(dKaiserAlpha),
    KEY(bDoOverlap),
    KEY(bAverageSegments),
    KEY(bAverageTraces),
    KEY(bDialogAverageTraces),
    KEY(bUseMaxSegment),
    KEY(uTransformLength),
    KEY(uNumBinsToExclude),
    NotKept(KEY(dDisplayValue)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace power_spectrum

namespace histogram {
using Record = ZXADLG_HistogramOptions;
constexpr OptionKey kKeys[] = {
    KEY(eHistoType),
    KEY(nBinsPerDecade),
    KEY(nNumBins),
    KEY(common.eDestinationOption),
    KEY(fBinWidth),
    KEY(fMinDataValue),
    KEY(fMaxDataValue),
    KEY(bBinAllData),
    KEY(bCombineData),
    KEY(bNormalize),
    KEY_NAMED("bVerboseOutput", common.bWriteRegionInfo),
    NotKept(KEY(common.bDynamicLink)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace histogram

namespace correlation {
using Record = ZXADLG_CorrelationOptions;
constexpr OptionKey kKeys[] = {
    KEY(eType),         KEY(common.eDestinationOption),    KEY(dSamplingFrequency),
    KEY(uNumberOfLags), NotKept(KEY(common.bDynamicLink)), NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace correlation

namespace resistance {
using Record = ZXADLG_ResistanceOptions;
constexpr OptionKey kKeys[] = {
    KEY(common.eDestinationOption),
    KEY(dConversionFactor),
    KEY(uExperimentType),
    KEY(uWaveformIndex),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace resistance

namespace normalize {
using Record = ZXADLG_NormalizeOptions;
constexpr OptionKey kKeys[] = {
    KEY(bUseAllPoints),
    KEY(eBaselineRegion),
    KEY(ePeakRegion),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace normalize

namespace convert_sample_rate {
using Record = ZXADLG_ModifySampleRateOptions;
constexpr OptionKey kKeys[] = {
    KEY(eRateConversionType),
    KEY(eReductionMethod),
    KEY(eInterpolationMethod),
    KEY(nReduceFactor),
    KEY(nInterpolFactor),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace convert_sample_rate

namespace leak_subtraction {
using Record = ZXADLG_LeakSubtractionOptions;
constexpr OptionKey kKeys[] = {
    KEY(dConversionFactor),
    KEY(dPassiveResistance),
    KEY(uWaveformIndex),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace leak_subtraction

namespace force_values {
using Record = ZXADLG_ForceValuesOptions;
constexpr OptionKey kKeys[] = {
    KEY(eForceValuesMode),
    KEY(eRegionToForce),
    KEY(dFixedValue),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace force_values

namespace time_shift {
using Record = ZXADLG_TimeShiftOptions;
constexpr OptionKey kKeys[] = {
    KEY(eAlignmentMode),
    KEY(eDirection),
    KEY(eValueMode),
    KEY(eAdjustMode),
    KEY(ePeakPolarity),
    KEY(eValueRegion),
    KEY(eSearchRegion),
    KEY(uDataGroupIndex),
    KEY(dShiftValue),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace time_shift

namespace current_voltage {
using Record = ZXADLG_CurrentVoltageOptions;
constexpr OptionKey kKeys[] = {
    KEY(ePeakRegion),
    KEY(ePeakPolarity),
    KEY(eVoltageSource),
    KEY(eCurrentSource),
    KEY(eFixedEpoch),
    KEY(eSetSelectionMode),
    KEY(common.eDestinationOption),
    KEY(uWaveformIndex),
    KEY(uXDataGroupIndex),
    KEY(uYDataGroupIndex),
    KEY(uSmoothingPoints),
    KEY(bInvertX),
    KEY(bInvertY),
    KEY(bDoFilter),
    KEY_NAMED("bGraphDynamicLink", common.bDynamicLink),
    KEY_NAMED("bVerboseOutput", common.bWriteRegionInfo),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace current_voltage

namespace trace_vs_trace {
using Record = ZXADLG_TraceVsTraceOptions;
constexpr OptionKey kKeys[] = {
    KEY(eXSource),
    KEY(eYSource),
    KEY(common.eDestinationOption),
    KEY(eValueRegion),
    KEY(uXDataSetIndex),
    KEY(uYDataSetIndex),
    KEY(uXWaveformIndex),
    KEY(uYWaveformIndex),
    KEY(uXDataGroupIndex),
    KEY(uYDataGroupIndex),
    KEY(bInvertX),
    KEY(bInvertY),
    KEY_NAMED("bGraphDynamicLink", common.bDynamicLink),
    KEY_NAMED("bVerboseOutput", common.bWriteRegionInfo),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace trace_vs_trace

namespace trace_arithmetic {
using Record = ZXADLG_ArithmeticOptions;
constexpr OptionKey kKeys[] = {
    KEY(uFirstDataIndex),
    KEY(uLastDataIndex),
    KEY(uGroup1Index),
    KEY(eDataSet1SelectionMode),
    KEY(eDataGroup1SelectionMode),
    KEY(eAnalysisRegion),
    KEY(bUseFullDataRange),
    KEY(bForceExcludedRegionToZero),
    KEY(szExpression),
    KEY(szSelectionList),
    NotKept(KEY(szColumnTitle)),
    NotKept(KEY(szDisplayExpression)),
    NotKept(KEY(uRegionIndex)),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace trace_arithmetic

namespace adjust_baseline {
using Record = ZXADLG_AdjustBaselineOptions;
constexpr OptionKey kKeys[] = {
    KEY(eAdjustMode),
    KEY(eValueRegion),
    KEY(dFixedValue),
    NotKept(KEY(common.eDestinationOption)),
    NotKept(KEY(common.bDynamicLink)),
    NotKept(KEY(common.bWriteRegionInfo)),
};
constexpr OptionBlock kBlocks[] = {{kKeys}};
}  // namespace adjust_baseline

namespace subtract_control {
using Record = ZXADLG_SubtractControlOptions;
constexpr OptionKey kKeys[] = {
    KEY(dMultiplier),        KEY(szSubtractFileName), KEY(bUseMultiplier),
    KEY(bUseFirstTraceOnly), KEY(bUseLastFile),       KEY(nFileID),
    KEY(nNumGroups),
};
constexpr OptionKey kEntryKeys[] = {KEY_OF_ELEMENTS("ListEntry%d", anListEntry)};
constexpr OptionBlock kBlocks[] = {{kKeys}, {kEntryKeys, 16}};
}  // namespace subtract_control

}  // namespace

const OptionSection kPowerSpectrumSection = {
    "PowerSpectrumSection", "ZXADLG_SignalProcessingOptions", power_spectrum::kBlocks};
const OptionSection kHistogramSection = {"HistogramSection", "ZXADLG_HistogramOptions",
                                         histogram::kBlocks};
const OptionSection kCorrelationSection = {"CorrelationSection", "ZXADLG_CorrelationOptions",
                                           correlation::kBlocks};
const OptionSection kResistanceSection = {"ResistanceSection", "ZXADLG_ResistanceOptions",
                                          resistance::kBlocks};
const OptionSection kNormalizeSection = {"NormalizeSection", "ZXADLG_NormalizeOptions",
                                         normalize::kBlocks};
const OptionSection kConvertSampleRateSection = {
    "ConvertSampleRateSection", "ZXADLG_ModifySampleRateOptions", convert_sample_rate::kBlocks};
const OptionSection kLeakSubtractionSection = {
    "LeakSubtractionSection", "ZXADLG_LeakSubtractionOptions", leak_subtraction::kBlocks};
const OptionSection kForceValuesSection = {"ForceValuesSection", "ZXADLG_ForceValuesOptions",
                                           force_values::kBlocks};
const OptionSection kTimeShiftSection = {"TimeShiftSection", "ZXADLG_TimeShiftOptions",
                                         time_shift::kBlocks};
const OptionSection kCurrentVoltageSection = {
    "CurrentVoltageSection", "ZXADLG_CurrentVoltageOptions", current_voltage::kBlocks};
const OptionSection kTraceVsTraceSection = {"TraceVsTraceSection", "ZXADLG_TraceVsTraceOptions",
                                            trace_vs_trace::kBlocks};
const OptionSection kTraceArithmeticSection = {"TraceArithmetic", "ZXADLG_ArithmeticOptions",
                                               trace_arithmetic::kBlocks};
const OptionSection kAdjustBaselineSection = {"AdjustBaseline", "ZXADLG_AdjustBaselineOptions",
                                              adjust_baseline::kBlocks};
const OptionSection kSubtractControlSection = {"SubtractControl", "ZXADLG_SubtractControlOptions",
                                               subtract_control::kBlocks};
