// The sections whose keys stand in one record, in the order in which they are read and written.

#include "contract/OptionTables.h"

#include <cstddef>

#include "contract/OptionPersistence.h"

namespace {

constexpr OptionKey kPowerSpectrumKeys[] = {
    {"eWindowType", OptionType::kInt32, offsetof(ZXADLG_SignalProcessingOptions, eWindowType)},
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_SignalProcessingOptions, common.eDestinationOption)},
    {"dPoissonAlpha", OptionType::kDouble, offsetof(ZXADLG_SignalProcessingOptions, dPoissonAlpha)},
    {"dKaiserAlpha", OptionType::kDouble, offsetof(ZXADLG_SignalProcessingOptions, dKaiserAlpha)},
    {"bDoOverlap", OptionType::kBool32, offsetof(ZXADLG_SignalProcessingOptions, bDoOverlap)},
    {"bAverageSegments", OptionType::kBool32,
     offsetof(ZXADLG_SignalProcessingOptions, bAverageSegments)},
    {"bAverageTraces", OptionType::kBool32,
     offsetof(ZXADLG_SignalProcessingOptions, bAverageTraces)},
    {"bDialogAverageTraces", OptionType::kBool32,
     offsetof(ZXADLG_SignalProcessingOptions, bDialogAverageTraces)},
    {"bUseMaxSegment", OptionType::kBool32,
     offsetof(ZXADLG_SignalProcessingOptions, bUseMaxSegment)},
    {"uTransformLength", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, uTransformLength)},
    {"uNumBinsToExclude", OptionType::kUInt32,
     offsetof(ZXADLG_SignalProcessingOptions, uNumBinsToExclude)},
};
constexpr OptionBlock kPowerSpectrumBlocks[] = {{kPowerSpectrumKeys}};

constexpr OptionKey kHistogramKeys[] = {
    {"eHistoType", OptionType::kInt32, offsetof(ZXADLG_HistogramOptions, eHistoType)},
    {"nBinsPerDecade", OptionType::kInt32, offsetof(ZXADLG_HistogramOptions, nBinsPerDecade)},
    {"nNumBins", OptionType::kInt32, offsetof(ZXADLG_HistogramOptions, nNumBins)},
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_HistogramOptions, common.eDestinationOption)},
    {"fBinWidth", OptionType::kFloat, offsetof(ZXADLG_HistogramOptions, fBinWidth)},
    {"fMinDataValue", OptionType::kFloat, offsetof(ZXADLG_HistogramOptions, fMinDataValue)},
    {"fMaxDataValue", OptionType::kFloat, offsetof(ZXADLG_HistogramOptions, fMaxDataValue)},
    {"bBinAllData", OptionType::kBool8, offsetof(ZXADLG_HistogramOptions, bBinAllData)},
    {"bCombineData", OptionType::kBool8, offsetof(ZXADLG_HistogramOptions, bCombineData)},
    {"bNormalize", OptionType::kBool8, offsetof(ZXADLG_HistogramOptions, bNormalize)},
    {"bVerboseOutput", OptionType::kBool8,
     offsetof(ZXADLG_HistogramOptions, common.bWriteRegionInfo)},
};
constexpr OptionBlock kHistogramBlocks[] = {{kHistogramKeys}};

constexpr OptionKey kCorrelationKeys[] = {
    {"eType", OptionType::kInt32, offsetof(ZXADLG_CorrelationOptions, eType)},
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_CorrelationOptions, common.eDestinationOption)},
    {"dSamplingFrequency", OptionType::kDouble,
     offsetof(ZXADLG_CorrelationOptions, dSamplingFrequency)},
    {"uNumberOfLags", OptionType::kUInt32, offsetof(ZXADLG_CorrelationOptions, uNumberOfLags)},
};
constexpr OptionBlock kCorrelationBlocks[] = {{kCorrelationKeys}};

constexpr OptionKey kResistanceKeys[] = {
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_ResistanceOptions, common.eDestinationOption)},
    {"dConversionFactor", OptionType::kDouble,
     offsetof(ZXADLG_ResistanceOptions, dConversionFactor)},
    {"uExperimentType", OptionType::kUInt32, offsetof(ZXADLG_ResistanceOptions, uExperimentType)},
    {"uWaveformIndex", OptionType::kUInt32, offsetof(ZXADLG_ResistanceOptions, uWaveformIndex)},
};
constexpr OptionBlock kResistanceBlocks[] = {{kResistanceKeys}};

constexpr OptionKey kNormalizeKeys[] = {
    {"bUseAllPoints", OptionType::kBool8, offsetof(ZXADLG_NormalizeOptions, bUseAllPoints)},
    {"eBaselineRegion", OptionType::kUInt32, offsetof(ZXADLG_NormalizeOptions, eBaselineRegion)},
    {"ePeakRegion", OptionType::kUInt32, offsetof(ZXADLG_NormalizeOptions, ePeakRegion)},
};
constexpr OptionBlock kNormalizeBlocks[] = {{kNormalizeKeys}};

constexpr OptionKey kConvertSampleRateKeys[] = {
    {"eRateConversionType", OptionType::kInt32,
     offsetof(ZXADLG_ModifySampleRateOptions, eRateConversionType)},
    {"eReductionMethod", OptionType::kInt32,
     offsetof(ZXADLG_ModifySampleRateOptions, eReductionMethod)},
    {"eInterpolationMethod", OptionType::kInt32,
     offsetof(ZXADLG_ModifySampleRateOptions, eInterpolationMethod)},
    {"nReduceFactor", OptionType::kInt32, offsetof(ZXADLG_ModifySampleRateOptions, nReduceFactor)},
    {"nInterpolFactor", OptionType::kInt32,
     offsetof(ZXADLG_ModifySampleRateOptions, nInterpolFactor)},
};
constexpr OptionBlock kConvertSampleRateBlocks[] = {{kConvertSampleRateKeys}};

constexpr OptionKey kLeakSubtractionKeys[] = {
    {"dConversionFactor", OptionType::kDouble,
     offsetof(ZXADLG_LeakSubtractionOptions, dConversionFactor)},
    {"dPassiveResistance", OptionType::kDouble,
     offsetof(ZXADLG_LeakSubtractionOptions, dPassiveResistance)},
    {"uWaveformIndex", OptionType::kUInt32,
     offsetof(ZXADLG_LeakSubtractionOptions, uWaveformIndex)},
};
constexpr OptionBlock kLeakSubtractionBlocks[] = {{kLeakSubtractionKeys}};

constexpr OptionKey kForceValuesKeys[] = {
    {"eForceValuesMode", OptionType::kInt32, offsetof(ZXADLG_ForceValuesOptions, eForceValuesMode)},
    {"eRegionToForce", OptionType::kInt32, offsetof(ZXADLG_ForceValuesOptions, eRegionToForce)},
    {"dFixedValue", OptionType::kDouble, offsetof(ZXADLG_ForceValuesOptions, dFixedValue)},
};
constexpr OptionBlock kForceValuesBlocks[] = {{kForceValuesKeys}};

constexpr OptionKey kTimeShiftKeys[] = {
    {"eAlignmentMode", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eAlignmentMode)},
    {"eDirection", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eDirection)},
    {"eValueMode", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eValueMode)},
    {"eAdjustMode", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eAdjustMode)},
    {"ePeakPolarity", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, ePeakPolarity)},
    {"eValueRegion", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eValueRegion)},
    {"eSearchRegion", OptionType::kInt32, offsetof(ZXADLG_TimeShiftOptions, eSearchRegion)},
    {"uDataGroupIndex", OptionType::kUInt32, offsetof(ZXADLG_TimeShiftOptions, uDataGroupIndex)},
    {"dShiftValue", OptionType::kDouble, offsetof(ZXADLG_TimeShiftOptions, dShiftValue)},
};
constexpr OptionBlock kTimeShiftBlocks[] = {{kTimeShiftKeys}};

constexpr OptionKey kCurrentVoltageKeys[] = {
    {"ePeakRegion", OptionType::kInt32, offsetof(ZXADLG_CurrentVoltageOptions, ePeakRegion)},
    {"ePeakPolarity", OptionType::kInt32, offsetof(ZXADLG_CurrentVoltageOptions, ePeakPolarity)},
    {"eVoltageSource", OptionType::kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eVoltageSource)},
    {"eCurrentSource", OptionType::kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eCurrentSource)},
    {"eFixedEpoch", OptionType::kInt32, offsetof(ZXADLG_CurrentVoltageOptions, eFixedEpoch)},
    {"eSetSelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_CurrentVoltageOptions, eSetSelectionMode)},
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_CurrentVoltageOptions, common.eDestinationOption)},
    {"uWaveformIndex", OptionType::kUInt32, offsetof(ZXADLG_CurrentVoltageOptions, uWaveformIndex)},
    {"uXDataGroupIndex", OptionType::kUInt32,
     offsetof(ZXADLG_CurrentVoltageOptions, uXDataGroupIndex)},
    {"uYDataGroupIndex", OptionType::kUInt32,
     offsetof(ZXADLG_CurrentVoltageOptions, uYDataGroupIndex)},
    {"uSmoothingPoints", OptionType::kUInt32,
     offsetof(ZXADLG_CurrentVoltageOptions, uSmoothingPoints)},
    {"bInvertX", OptionType::kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bInvertX)},
    {"bInvertY", OptionType::kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bInvertY)},
    {"bDoFilter", OptionType::kBool8, offsetof(ZXADLG_CurrentVoltageOptions, bDoFilter)},
    {"bGraphDynamicLink", OptionType::kBool8,
     offsetof(ZXADLG_CurrentVoltageOptions, common.bDynamicLink)},
    {"bVerboseOutput", OptionType::kBool8,
     offsetof(ZXADLG_CurrentVoltageOptions, common.bWriteRegionInfo)},
};
constexpr OptionBlock kCurrentVoltageBlocks[] = {{kCurrentVoltageKeys}};

constexpr OptionKey kTraceVsTraceKeys[] = {
    {"eXSource", OptionType::kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eXSource)},
    {"eYSource", OptionType::kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eYSource)},
    {"eDestinationOption", OptionType::kInt32,
     offsetof(ZXADLG_TraceVsTraceOptions, common.eDestinationOption)},
    {"eValueRegion", OptionType::kInt32, offsetof(ZXADLG_TraceVsTraceOptions, eValueRegion)},
    {"uXDataSetIndex", OptionType::kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uXDataSetIndex)},
    {"uYDataSetIndex", OptionType::kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uYDataSetIndex)},
    {"uXWaveformIndex", OptionType::kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uXWaveformIndex)},
    {"uYWaveformIndex", OptionType::kUInt32, offsetof(ZXADLG_TraceVsTraceOptions, uYWaveformIndex)},
    {"uXDataGroupIndex", OptionType::kUInt32,
     offsetof(ZXADLG_TraceVsTraceOptions, uXDataGroupIndex)},
    {"uYDataGroupIndex", OptionType::kUInt32,
     offsetof(ZXADLG_TraceVsTraceOptions, uYDataGroupIndex)},
    {"bInvertX", OptionType::kBool8, offsetof(ZXADLG_TraceVsTraceOptions, bInvertX)},
    {"bInvertY", OptionType::kBool8, offsetof(ZXADLG_TraceVsTraceOptions, bInvertY)},
    {"bGraphDynamicLink", OptionType::kBool8,
     offsetof(ZXADLG_TraceVsTraceOptions, common.bDynamicLink)},
    {"bVerboseOutput", OptionType::kBool8,
     offsetof(ZXADLG_TraceVsTraceOptions, common.bWriteRegionInfo)},
};
constexpr OptionBlock kTraceVsTraceBlocks[] = {{kTraceVsTraceKeys}};

constexpr OptionKey kAdjustBaselineKeys[] = {
    {"eAdjustMode", OptionType::kInt32, offsetof(ZXADLG_AdjustBaselineOptions, eAdjustMode)},
    {"eValueRegion", OptionType::kInt32, offsetof(ZXADLG_AdjustBaselineOptions, eValueRegion)},
    {"dFixedValue", OptionType::kDouble, offsetof(ZXADLG_AdjustBaselineOptions, dFixedValue)},
};
constexpr OptionBlock kAdjustBaselineBlocks[] = {{kAdjustBaselineKeys}};

constexpr OptionKey kTraceArithmeticKeys[] = {
    {"uFirstDataIndex", OptionType::kUInt32, offsetof(ZXADLG_ArithmeticOptions, uFirstDataIndex)},
    {"uLastDataIndex", OptionType::kUInt32, offsetof(ZXADLG_ArithmeticOptions, uLastDataIndex)},
    {"uGroup1Index", OptionType::kUInt32, offsetof(ZXADLG_ArithmeticOptions, uGroup1Index)},
    {"eDataSet1SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_ArithmeticOptions, eDataSet1SelectionMode)},
    {"eDataGroup1SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_ArithmeticOptions, eDataGroup1SelectionMode)},
    {"eAnalysisRegion", OptionType::kInt32, offsetof(ZXADLG_ArithmeticOptions, eAnalysisRegion)},
    {"bUseFullDataRange", OptionType::kBool8,
     offsetof(ZXADLG_ArithmeticOptions, bUseFullDataRange)},
    {"bForceExcludedRegionToZero", OptionType::kBool8,
     offsetof(ZXADLG_ArithmeticOptions, bForceExcludedRegionToZero)},
    {.szKey = "szExpression",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_ArithmeticOptions, szExpression),
     .uSize = 255},
    {.szKey = "szSelectionList",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_ArithmeticOptions, szSelectionList),
     .uSize = 1000},
};
constexpr OptionBlock kTraceArithmeticBlocks[] = {{kTraceArithmeticKeys}};

constexpr OptionKey kSubtractControlKeys[] = {
    {"dMultiplier", OptionType::kDouble, offsetof(ZXADLG_SubtractControlOptions, dMultiplier)},
    {.szKey = "szSubtractFileName",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_SubtractControlOptions, szSubtractFileName),
     .uSize = 512},
    {"bUseMultiplier", OptionType::kBool8, offsetof(ZXADLG_SubtractControlOptions, bUseMultiplier)},
    {"bUseFirstTraceOnly", OptionType::kBool8,
     offsetof(ZXADLG_SubtractControlOptions, bUseFirstTraceOnly)},
    {"bUseLastFile", OptionType::kBool8, offsetof(ZXADLG_SubtractControlOptions, bUseLastFile)},
    {"nFileID", OptionType::kInt32, offsetof(ZXADLG_SubtractControlOptions, nFileID)},
    {"nNumGroups", OptionType::kInt32, offsetof(ZXADLG_SubtractControlOptions, nNumGroups)},
};

constexpr OptionKey kSubtractControlEntryKeys[] = {
    {.szKey = "ListEntry%d",
     .eType = OptionType::kInt32,
     .uOffset = offsetof(ZXADLG_SubtractControlOptions, anListEntry),
     .uStride = 4},
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
