// The sections whose keys stand in one record, in the order in which they are read and written.

#include "contract/OptionTables.h"

#include <cstddef>

#include "contract/OptionPersistence.h"

namespace {

using enum OptionType;

constexpr OptionKey kPowerSpectrumKeys[] = {
    Single("eWindowType", kInt32, offsetof(ZXADLG_SignalProcessingOptions, eWindowType)),
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_SignalProcessingOptions, common.eDestinationOption)),
    Single("dPoissonAlpha", kDouble, offsetof(ZXADLG_SignalProcessingOptions, dPoissonAlpha)),
    Single("dKaiserAlpha", kDouble, offsetof(ZXADLG_SignalProcessingOptions, dKaiserAlpha)),
    Single("bDoOverlap", kBool32, offsetof(ZXADLG_SignalProcessingOptions, bDoOverlap)),
    Single("bAverageSegments", kBool32, offsetof(ZXADLG_SignalProcessingOptions, bAverageSegments)),
    Single("bAverageTraces", kBool32, offsetof(ZXADLG_SignalProcessingOptions, bAverageTraces)),
    Single("bDialogAverageTraces", kBool32,
           offsetof(ZXADLG_SignalProcessingOptions, bDialogAverageTraces)),
    Single("bUseMaxSegment", kBool32, offsetof(ZXADLG_SignalProcessingOptions, bUseMaxSegment)),
    Single("uTransformLength", kUInt32, offsetof(ZXADLG_SignalProcessingOptions, uTransformLength)),
    Single("uNumBinsToExclude", kUInt32,
           offsetof(ZXADLG_SignalProcessingOptions, uNumBinsToExclude)),
};
constexpr OptionBlock kPowerSpectrumBlocks[] = {{kPowerSpectrumKeys}};

constexpr OptionKey kHistogramKeys[] = {
    Single("eHistoType", kInt32, offsetof(ZXADLG_HistogramOptions, eHistoType)),
    Single("nBinsPerDecade", kInt32, offsetof(ZXADLG_HistogramOptions, nBinsPerDecade)),
    Single("nNumBins", kInt32, offsetof(ZXADLG_HistogramOptions, nNumBins)),
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_HistogramOptions, common.eDestinationOption)),
    Single("fBinWidth", kFloat, offsetof(ZXADLG_HistogramOptions, fBinWidth)),
    Single("fMinDataValue", kFloat, offsetof(ZXADLG_HistogramOptions, fMinDataValue)),
    Single("fMaxDataValue", kFloat, offsetof(ZXADLG_HistogramOptions, fMaxDataValue)),
    Single("bBinAllData", kBool8, offsetof(ZXADLG_HistogramOptions, bBinAllData)),
    Single("bCombineData", kBool8, offsetof(ZXADLG_HistogramOptions, bCombineData)),
    Single("bNormalize", kBool8, offsetof(ZXADLG_HistogramOptions, bNormalize)),
    Single("bVerboseOutput", kBool8, offsetof(ZXADLG_HistogramOptions, common.bWriteRegionInfo)),
};
constexpr OptionBlock kHistogramBlocks[] = {{kHistogramKeys}};

constexpr OptionKey kCorrelationKeys[] = {
    Single("eType", kInt32, offsetof(ZXADLG_CorrelationOptions, eType)),
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_CorrelationOptions, common.eDestinationOption)),
    Single("dSamplingFrequency", kDouble, offsetof(ZXADLG_CorrelationOptions, dSamplingFrequency)),
    Single("uNumberOfLags", kUInt32, offsetof(ZXADLG_CorrelationOptions, uNumberOfLags)),
};
constexpr OptionBlock kCorrelationBlocks[] = {{kCorrelationKeys}};

constexpr OptionKey kResistanceKeys[] = {
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_ResistanceOptions, common.eDestinationOption)),
    Single("dConversionFactor", kDouble, offsetof(ZXADLG_ResistanceOptions, dConversionFactor)),
    Single("uExperimentType", kUInt32, offsetof(ZXADLG_ResistanceOptions, uExperimentType)),
    Single("uWaveformIndex", kUInt32, offsetof(ZXADLG_ResistanceOptions, uWaveformIndex)),
};
constexpr OptionBlock kResistanceBlocks[] = {{kResistanceKeys}};

constexpr OptionKey kNormalizeKeys[] = {
    Single("bUseAllPoints", kBool8, offsetof(ZXADLG_NormalizeOptions, bUseAllPoints)),
    Single("eBaselineRegion", kUInt32, offsetof(ZXADLG_NormalizeOptions, eBaselineRegion)),
    Single("ePeakRegion", kUInt32, offsetof(ZXADLG_NormalizeOptions, ePeakRegion)),
};
constexpr OptionBlock kNormalizeBlocks[] = {{kNormalizeKeys}};

constexpr OptionKey kConvertSampleRateKeys[] = {
    Single("eRateConversionType", kInt32,
           offsetof(ZXADLG_ModifySampleRateOptions, eRateConversionType)),
    Single("eReductionMethod", kInt32, offsetof(ZXADLG_ModifySampleRateOptions, eReductionMethod)),
    Single("eInterpolationMethod", kInt32,
           offsetof(ZXADLG_ModifySampleRateOptions, eInterpolationMethod)),
    Single("nReduceFactor", kInt32, offsetof(ZXADLG_ModifySampleRateOptions, nReduceFactor)),
    Single("nInterpolFactor", kInt32, offsetof(ZXADLG_ModifySampleRateOptions, nInterpolFactor)),
};
constexpr OptionBlock kConvertSampleRateBlocks[] = {{kConvertSampleRateKeys}};

constexpr OptionKey kLeakSubtractionKeys[] = {
    Single("dConversionFactor", kDouble,
           offsetof(ZXADLG_LeakSubtractionOptions, dConversionFactor)),
    Single("dPassiveResistance", kDouble,
           offsetof(ZXADLG_LeakSubtractionOptions, dPassiveResistance)),
    Single("uWaveformIndex", kUInt32, offsetof(ZXADLG_LeakSubtractionOptions, uWaveformIndex)),
};
constexpr OptionBlock kLeakSubtractionBlocks[] = {{kLeakSubtractionKeys}};

constexpr OptionKey kForceValuesKeys[] = {
    Single("eForceValuesMode", kInt32, offsetof(ZXADLG_ForceValuesOptions, eForceValuesMode)),
    Single("eRegionToForce", kInt32, offsetof(ZXADLG_ForceValuesOptions, eRegionToForce)),
    Single("dFixedValue", kDouble, offsetof(ZXADLG_ForceValuesOptions, dFixedValue)),
};
constexpr OptionBlock kForceValuesBlocks[] = {{kForceValuesKeys}};

constexpr OptionKey kTimeShiftKeys[] = {
    Single("eAlignmentMode", kInt32, offsetof(ZXADLG_TimeShiftOptions, eAlignmentMode)),
    Single("eDirection", kInt32, offsetof(ZXADLG_TimeShiftOptions, eDirection)),
    Single("eValueMode", kInt32, offsetof(ZXADLG_TimeShiftOptions, eValueMode)),
    Single("eAdjustMode", kInt32, offsetof(ZXADLG_TimeShiftOptions, eAdjustMode)),
    Single("ePeakPolarity", kInt32, offsetof(ZXADLG_TimeShiftOptions, ePeakPolarity)),
    Single("eValueRegion", kInt32, offsetof(ZXADLG_TimeShiftOptions, eValueRegion)),
    Single("eSearchRegion", kInt32, offsetof(ZXADLG_TimeShiftOptions, eSearchRegion)),
    Single("uDataGroupIndex", kUInt32, offsetof(ZXADLG_TimeShiftOptions, uDataGroupIndex)),
    Single("dShiftValue", kDouble, offsetof(ZXADLG_TimeShiftOptions, dShiftValue)),
};
constexpr OptionBlock kTimeShiftBlocks[] = {{kTimeShiftKeys}};

constexpr OptionKey kCurrentVoltageKeys[] = {
    Single("ePeakRegion", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, ePeakRegion)),
    Single("ePeakPolarity", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, ePeakPolarity)),
    Single("eVoltageSource", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eVoltageSource)),
    Single("eCurrentSource", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eCurrentSource)),
    Single("eFixedEpoch", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eFixedEpoch)),
    Single("eSetSelectionMode", kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eSetSelectionMode)),
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_CurrentVoltageOptions, common.eDestinationOption)),
    Single("uWaveformIndex", kUInt32, offsetof(ZXADLG_CurrentVoltageOptions, uWaveformIndex)),
    Single("uXDataGroupIndex", kUInt32, offsetof(ZXADLG_CurrentVoltageOptions, uXDataGroupIndex)),
    Single("uYDataGroupIndex", kUInt32, offsetof(ZXADLG_CurrentVoltageOptions, uYDataGroupIndex)),
    Single("uSmoothingPoints", kUInt32, offsetof(ZXADLG_CurrentVoltageOptions, uSmoothingPoints)),
    Single("bInvertX", kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bInvertX)),
    Single("bInvertY", kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bInvertY)),
    Single("bDoFilter", kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bDoFilter)),
    Single("bGraphDynamicLink", kBool8,
           offsetof(ZXADLG_CurrentVoltageOptions, common.bDynamicLink)),
    Single("bVerboseOutput", kBool8,
           offsetof(ZXADLG_CurrentVoltageOptions, common.bWriteRegionInfo)),
};
constexpr OptionBlock kCurrentVoltageBlocks[] = {{kCurrentVoltageKeys}};

constexpr OptionKey kTraceVsTraceKeys[] = {
    Single("eXSource", kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eXSource)),
    Single("eYSource", kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eYSource)),
    Single("eDestinationOption", kInt32,
           offsetof(ZXADLG_TraceVsTraceOptions, common.eDestinationOption)),
    Single("eValueRegion", kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eValueRegion)),
    Single("uXDataSetIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uXDataSetIndex)),
    Single("uYDataSetIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uYDataSetIndex)),
    Single("uXWaveformIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uXWaveformIndex)),
    Single("uYWaveformIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uYWaveformIndex)),
    Single("uXDataGroupIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uXDataGroupIndex)),
    Single("uYDataGroupIndex", kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uYDataGroupIndex)),
    Single("bInvertX", kBool8, offsetof(ZXADLG_TraceVsTraceOptions, bInvertX)),
    Single("bInvertY", kBool8, offsetof(ZXADLG_TraceVsTraceOptions, bInvertY)),
    Single("bGraphDynamicLink", kBool8, offsetof(ZXADLG_TraceVsTraceOptions, common.bDynamicLink)),
    Single("bVerboseOutput", kBool8, offsetof(ZXADLG_TraceVsTraceOptions, common.bWriteRegionInfo)),
};
constexpr OptionBlock kTraceVsTraceBlocks[] = {{kTraceVsTraceKeys}};

constexpr OptionKey kAdjustBaselineKeys[] = {
    Single("eAdjustMode", kInt32, offsetof(ZXADLG_AdjustBaselineOptions, eAdjustMode)),
    Single("eValueRegion", kInt32, offsetof(ZXADLG_AdjustBaselineOptions, eValueRegion)),
    Single("dFixedValue", kDouble, offsetof(ZXADLG_AdjustBaselineOptions, dFixedValue)),
};
constexpr OptionBlock kAdjustBaselineBlocks[] = {{kAdjustBaselineKeys}};

constexpr OptionKey kTraceArithmeticKeys[] = {
    Single("uFirstDataIndex", kUInt32, offsetof(ZXADLG_ArithmeticOptions, uFirstDataIndex)),
    Single("uLastDataIndex", kUInt32, offsetof(ZXADLG_ArithmeticOptions, uLastDataIndex)),
    Single("uGroup1Index", kUInt32, offsetof(ZXADLG_ArithmeticOptions, uGroup1Index)),
    Single("eDataSet1SelectionMode", kInt32,
           offsetof(ZXADLG_ArithmeticOptions, eDataSet1SelectionMode)),
    Single("eDataGroup1SelectionMode", kInt32,
           offsetof(ZXADLG_ArithmeticOptions, eDataGroup1SelectionMode)),
    Single("eAnalysisRegion", kInt32, offsetof(ZXADLG_ArithmeticOptions, eAnalysisRegion)),
    Single("bUseFullDataRange", kBool8, offsetof(ZXADLG_ArithmeticOptions, bUseFullDataRange)),
    Single("bForceExcludedRegionToZero", kBool8,
           offsetof(ZXADLG_ArithmeticOptions, bForceExcludedRegionToZero)),
    Text("szExpression", offsetof(ZXADLG_ArithmeticOptions, szExpression), 255),
    Text("szSelectionList", offsetof(ZXADLG_ArithmeticOptions, szSelectionList), 1000),
};
constexpr OptionBlock kTraceArithmeticBlocks[] = {{kTraceArithmeticKeys}};

constexpr OptionKey kSubtractControlKeys[] = {
    Single("dMultiplier", kDouble, offsetof(ZXADLG_SubtractControlOptions, dMultiplier)),
    Text("szSubtractFileName", offsetof(ZXADLG_SubtractControlOptions, szSubtractFileName), 512),
    Single("bUseMultiplier", kBool8, offsetof(ZXADLG_SubtractControlOptions, bUseMultiplier)),
    Single("bUseFirstTraceOnly", kBool8,
           offsetof(ZXADLG_SubtractControlOptions, bUseFirstTraceOnly)),
    Single("bUseLastFile", kBool8, offsetof(ZXADLG_SubtractControlOptions, bUseLastFile)),
    Single("nFileID", kInt32, offsetof(ZXADLG_SubtractControlOptions, nFileID)),
    Single("nNumGroups", kInt32, offsetof(ZXADLG_SubtractControlOptions, nNumGroups)),
};

constexpr OptionKey kSubtractControlEntryKeys[] = {
    Repeated("ListEntry%d", kInt32, offsetof(ZXADLG_SubtractControlOptions, anListEntry), 4),
};
constexpr OptionBlock kSubtractControlBlocks[] = {{kSubtractControlKeys},
                                                  {kSubtractControlEntryKeys, 16}};

}  // namespace

const OptionSection kPowerSpectrumSection = {"PowerSpectrumSection", kPowerSpectrumBlocks};
const OptionSection kHistogramSection = {"HistogramSection", kHistogramBlocks};
const OptionSection kCorrelationSection = {"CorrelationSection", kCorrelationBlocks};
const OptionSection kResistanceSection = {"ResistanceSection", kResistanceBlocks};
const OptionSection kNormalizeSection = {"NormalizeSection", kNormalizeBlocks};
const OptionSection kConvertSampleRateSection = {"ConvertSampleRateSection",
                                                 kConvertSampleRateBlocks};
const OptionSection kLeakSubtractionSection = {"LeakSubtractionSection", kLeakSubtractionBlocks};
const OptionSection kForceValuesSection = {"ForceValuesSection", kForceValuesBlocks};
const OptionSection kTimeShiftSection = {"TimeShiftSection", kTimeShiftBlocks};
const OptionSection kCurrentVoltageSection = {"CurrentVoltageSection", kCurrentVoltageBlocks};
const OptionSection kTraceVsTraceSection = {"TraceVsTraceSection", kTraceVsTraceBlocks};
const OptionSection kTraceArithmeticSection = {"TraceArithmetic", kTraceArithmeticBlocks};
const OptionSection kAdjustBaselineSection = {"AdjustBaseline", kAdjustBaselineBlocks};
const OptionSection kSubtractControlSection = {"SubtractControl", kSubtractControlBlocks};
