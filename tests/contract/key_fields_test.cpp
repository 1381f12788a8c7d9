// Each key of a section with the field that it moves and the form of its text, literally.

#include <gtest/gtest.h>

#include "KeyFields.h"
#include "contract/OptionPersistence.h"

namespace {

using test_support::KeyFields;
using test_support::ProfileScope;

TEST(KeyFields, CurveFit) {
    KeyFields<FitOptions> keys("CurveFitSection", &LoadCurveFitOptions, &SaveCurveFitOptions);
    auto& r = keys.Fields();
    keys.Signed("eFunctionType", r.eFunctionType);
    keys.Signed("eSearchMethod", r.eSearchMethod);
    keys.Signed("eWeightingType", r.eWeightingType);
    keys.Signed("eMinimMethod", r.eMinimMethod);
    keys.Signed("eFunctionGroupID", r.eFunctionGroupID);
    keys.Signed("nNumCustomParams", r.nNumCustomParams);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Double("dGoldmanTemperature", r.dGoldmanTemperature);
    keys.Double("dNernstTemperature", r.dNernstTemperature);
    keys.Double("dZDBoltzmanTemperature", r.dZDBoltzmanTemperature);
    keys.Double("dUserLMPrecision", r.dUserLMPrecision);
    keys.Double("dUserVMPrecision", r.dUserVMPrecision);
    keys.Double("dUserFractError", r.dUserFractError);
    keys.Double("dTolerance", r.dTolerance);
    keys.Double("dSubstZeroLinearFactor", r.dSubstZeroLinearFactor);
    keys.Double("dLeftExtrapolationValue", r.dLeftExtrapolationValue);
    keys.Double("dRightExtrapolationValue", r.dRightExtrapolationValue);
    keys.Bool("bDoZeroShift", r.bDoZeroShift);
    keys.Bool("bAutoZeroShift", r.bAutoZeroShift);
    keys.Bool("bFreeAndRefit", r.bFreeAndRefit);
    keys.Bool("bAutoAdjustOnFailure", r.bAutoAdjustOnFailure);
    keys.Bool("bUseVMPrecisionDefault", r.bUseVMPrecisionDefault);
    keys.Bool("bUseLMPrecisionDefault", r.bUseLMPrecisionDefault);
    keys.Bool("bUseFractErrDefault", r.bUseFractErrDefault);
    keys.Bool("bForcePropsPositive", r.bForcePropsPositive);
    keys.Bool("bForceTausPositive", r.bForceTausPositive);
    keys.Bool("bForceAutoSeed", r.bForceAutoSeed);
    keys.Bool("bAutoDefaultOptions", r.bAutoDefaultOptions);
    keys.Bool("bCompareModels", r.bCompareModels);
    keys.Bool("bAutoCompare", r.bAutoCompare);
    keys.Bool("bUseChebyFilter", r.bUseChebyFilter);
    keys.Bool("bWriteFittedData", r.bWriteFittedData);
    keys.Bool("bWriteStatistics", r.bWriteStatistics);
    keys.Bool("bExtrapolateLeft", r.bExtrapolateLeft);
    keys.Bool("bExtrapolateRight", r.bExtrapolateRight);
    keys.Bool("bVerboseOutput", r.common.bWriteRegionInfo);
    keys.Unsigned("uStartCompare", r.uStartCompare);
    keys.Unsigned("uEndCompare", r.uEndCompare);
    keys.Unsigned("uMaxIterations", r.uMaxIterations);
    keys.Unsigned("uFitOrder", r.uFitOrder);
    keys.Unsigned("uCurTimePowerA", r.uCurTimePowerA);
    keys.Unsigned("uCurTimePowerB", r.uCurTimePowerB);
    keys.Unsigned("uExpPower", r.uExpPower);
    keys.Unsigned("uDlgFitOrder", r.uDlgFitOrder);
    keys.Unsigned("uPolynomTerm", r.uPolynomTerm);
    keys.Text("szEquation", r.szEquation, 256);
    for (const int i : {0, 1, 25}) {
        const std::string n = std::to_string(i);
        keys.Double("Parameter" + n, r.dParameters[i]);
        keys.Unsigned("Constraint" + n, r.uConstraints[i]);
        keys.Unsigned("DlgConstraint" + n, r.uDlgConstraints[i]);
    }
    for (const int i : {0, 1, 19}) {
        keys.Text("CustomEquation" + std::to_string(i), r.szCustomEquations[i], 256);
    }
    keys.Check();
}

TEST(KeyFields, LowpassFilter) {
    KeyFields<FilterOptions> keys("LowpassFilterSection", &LoadFilterOptions, &SaveFilterOptions);
    auto& r = keys.Fields();
    keys.Signed("m_eFilterFamily", r.lowpass.m_eFilterFamily);
    keys.Signed("m_eFilterType", r.lowpass.m_eFilterType);
    keys.Unsigned("m_uNumAveragePoints", r.lowpass.m_uNumAveragePoints);
    keys.FloatText("m_dCornerFreq", r.lowpass.m_dCornerFreq);
    keys.FloatText("m_dPrevFilterFreq", r.lowpass.m_dPrevFilterFreq);
    keys.Bool("m_bIsSelected", r.lowpass.m_bIsSelected);
    keys.Check();
}

TEST(KeyFields, HighpassFilter) {
    KeyFields<FilterOptions> keys("HighpassFilterSection", &LoadFilterOptions, &SaveFilterOptions);
    auto& r = keys.Fields();
    keys.Signed("m_eFilterFamily", r.highpass.m_eFilterFamily);
    keys.Signed("m_eFilterType", r.highpass.m_eFilterType);
    keys.Unsigned("m_uNumAveragePoints", r.highpass.m_uNumAveragePoints);
    keys.FloatText("m_dCornerFreq", r.highpass.m_dCornerFreq);
    keys.FloatText("m_dPrevFilterFreq", r.highpass.m_dPrevFilterFreq);
    keys.Bool("m_bIsSelected", r.highpass.m_bIsSelected);
    keys.Check();
}

TEST(KeyFields, NotchFilter) {
    KeyFields<FilterOptions> keys("NotchFilterSection", &LoadFilterOptions, &SaveFilterOptions);
    auto& r = keys.Fields();
    keys.Signed("m_eFilterFamily", r.notch.m_eFilterFamily);
    keys.Signed("m_eFilterType", r.notch.m_eFilterType);
    keys.FloatText("m_dCornerFreq", r.notch.m_dCornerFreq);
    keys.FloatText("m_dPrevFilterFreq", r.notch.m_dPrevFilterFreq);
    keys.FloatText("m_d3dbWidth", r.notch.m_d3dbWidth);
    keys.Bool("m_bIsSelected", r.notch.m_bIsSelected);
    keys.Check();
}

TEST(KeyFields, AdaptiveFilter) {
    KeyFields<FilterOptions> keys("AdaptiveFilterSection", &LoadFilterOptions, &SaveFilterOptions);
    auto& r = keys.Fields();
    keys.Signed("m_eReferenceGeneration", r.adaptive.m_eReferenceGeneration);
    keys.Unsigned("m_uAveragingCycles", r.adaptive.m_uAveragingCycles);
    keys.Unsigned("m_uHarmonicNumberStart", r.adaptive.m_uHarmonicNumberStart);
    keys.Unsigned("m_uHarmonicNumberEnd", r.adaptive.m_uHarmonicNumberEnd);
    keys.Bool("m_bEndEffectCompensation", r.adaptive.m_bEndEffectCompensation);
    keys.Bool("m_bIsSelected", r.adaptive.m_bIsSelected);
    keys.Check();
}

TEST(KeyFields, PowerSpectrum) {
    KeyFields<SpectrumOptions> keys("PowerSpectrumSection", &LoadPowerSpectrumOptions,
                                    &SavePowerSpectrumOptions);
    auto& r = keys.Fields();
    keys.Signed("eWindowType", r.eWindowType);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Double("dPoissonAlpha", r.dPoissonAlpha);
    keys.Double("dKaiserAlpha", r.dKaiserAlpha);
    keys.Bool("bDoOverlap", r.bDoOverlap);
    keys.Bool("bAverageSegments", r.bAverageSegments);
    keys.Bool("bAverageTraces", r.bAverageTraces);
    keys.Bool("bDialogAverageTraces", r.bDialogAverageTraces);
    keys.Bool("bUseMaxSegment", r.bUseMaxSegment);
    keys.Unsigned("uTransformLength", r.uTransformLength);
    keys.Unsigned("uNumBinsToExclude", r.uNumBinsToExclude);
    keys.Check();
}

TEST(KeyFields, Histogram) {
    KeyFields<ZXADLG_HistogramOptions> keys("HistogramSection", &LoadHistogramOptions,
                                            &SaveHistogramOptions);
    auto& r = keys.Fields();
    keys.Signed("eHistoType", r.eHistoType);
    keys.Signed("nBinsPerDecade", r.nBinsPerDecade);
    keys.Signed("nNumBins", r.nNumBins);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Float("fBinWidth", r.fBinWidth);
    keys.Float("fMinDataValue", r.fMinDataValue);
    keys.Float("fMaxDataValue", r.fMaxDataValue);
    keys.Bool("bBinAllData", r.bBinAllData);
    keys.Bool("bCombineData", r.bCombineData);
    keys.Bool("bNormalize", r.bNormalize);
    keys.Bool("bVerboseOutput", r.common.bWriteRegionInfo);
    keys.Check();
}

TEST(KeyFields, Correlation) {
    KeyFields<ZXADLG_CorrelationOptions> keys("CorrelationSection", &LoadCorrelationOptions,
                                              &SaveCorrelationOptions);
    auto& r = keys.Fields();
    keys.Signed("eType", r.eType);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Double("dSamplingFrequency", r.dSamplingFrequency);
    keys.Unsigned("uNumberOfLags", r.uNumberOfLags);
    keys.Check();
}

TEST(KeyFields, Resistance) {
    KeyFields<ZXADLG_ResistanceOptions> keys("ResistanceSection", &LoadResistanceOptions,
                                             &SaveResistanceOptions);
    auto& r = keys.Fields();
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Double("dConversionFactor", r.dConversionFactor);
    keys.Unsigned("uExperimentType", r.uExperimentType);
    keys.Unsigned("uWaveformIndex", r.uWaveformIndex);
    keys.Check();
}

TEST(KeyFields, Normalize) {
    KeyFields<ZXADLG_NormalizeOptions> keys("NormalizeSection", &LoadNormalizeOptions,
                                            &SaveNormalizeOptions);
    auto& r = keys.Fields();
    keys.Bool("bUseAllPoints", r.bUseAllPoints);
    keys.Unsigned("eBaselineRegion", r.eBaselineRegion);
    keys.Unsigned("ePeakRegion", r.ePeakRegion);
    keys.Check();
}

TEST(KeyFields, ConvertSampleRate) {
    KeyFields<ZXADLG_ModifySampleRateOptions> keys(
        "ConvertSampleRateSection", &LoadConvertSampleRateOptions, &SaveConvertSampleRateOptions);
    auto& r = keys.Fields();
    keys.Signed("eRateConversionType", r.eRateConversionType);
    keys.Signed("eReductionMethod", r.eReductionMethod);
    keys.Signed("eInterpolationMethod", r.eInterpolationMethod);
    keys.Signed("nReduceFactor", r.nReduceFactor);
    keys.Signed("nInterpolFactor", r.nInterpolFactor);
    keys.Check();
}

TEST(KeyFields, LeakSubtraction) {
    KeyFields<ZXADLG_LeakSubtractionOptions> keys(
        "LeakSubtractionSection", &LoadLeakSubtractionOptions, &SaveLeakSubtractionOptions);
    auto& r = keys.Fields();
    keys.Double("dConversionFactor", r.dConversionFactor);
    keys.Double("dPassiveResistance", r.dPassiveResistance);
    keys.Unsigned("uWaveformIndex", r.uWaveformIndex);
    keys.Check();
}

TEST(KeyFields, ForceValues) {
    KeyFields<ZXADLG_ForceValuesOptions> keys("ForceValuesSection", &LoadForceValuesOptions,
                                              &SaveForceValuesOptions);
    auto& r = keys.Fields();
    keys.Signed("eForceValuesMode", r.eForceValuesMode);
    keys.Signed("eRegionToForce", r.eRegionToForce);
    keys.Double("dFixedValue", r.dFixedValue);
    keys.Check();
}

TEST(KeyFields, TimeShift) {
    KeyFields<ZXADLG_TimeShiftOptions> keys("TimeShiftSection", &LoadTimeShiftOptions,
                                            &SaveTimeShiftOptions);
    auto& r = keys.Fields();
    keys.Signed("eAlignmentMode", r.eAlignmentMode);
    keys.Signed("eDirection", r.eDirection);
    keys.Signed("eValueMode", r.eValueMode);
    keys.Signed("eAdjustMode", r.eAdjustMode);
    keys.Signed("ePeakPolarity", r.ePeakPolarity);
    keys.Signed("eValueRegion", r.eValueRegion);
    keys.Signed("eSearchRegion", r.eSearchRegion);
    keys.Unsigned("uDataGroupIndex", r.uDataGroupIndex);
    keys.Double("dShiftValue", r.dShiftValue);
    keys.Check();
}

TEST(KeyFields, CurrentVoltage) {
    KeyFields<ZXADLG_CurrentVoltageOptions> keys(
        "CurrentVoltageSection", &LoadCurrentVoltageOptions, &SaveCurrentVoltageOptions);
    auto& r = keys.Fields();
    keys.Signed("ePeakRegion", r.ePeakRegion);
    keys.Signed("ePeakPolarity", r.ePeakPolarity);
    keys.Signed("eVoltageSource", r.eVoltageSource);
    keys.Signed("eCurrentSource", r.eCurrentSource);
    keys.Signed("eFixedEpoch", r.eFixedEpoch);
    keys.Signed("eSetSelectionMode", r.eSetSelectionMode);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Unsigned("uWaveformIndex", r.uWaveformIndex);
    keys.Unsigned("uXDataGroupIndex", r.uXDataGroupIndex);
    keys.Unsigned("uYDataGroupIndex", r.uYDataGroupIndex);
    keys.Unsigned("uSmoothingPoints", r.uSmoothingPoints);
    keys.Bool("bInvertX", r.bInvertX);
    keys.Bool("bInvertY", r.bInvertY);
    keys.Bool("bDoFilter", r.bDoFilter);
    keys.Bool("bGraphDynamicLink", r.common.bDynamicLink);
    keys.Bool("bVerboseOutput", r.common.bWriteRegionInfo);
    keys.Check();
}

TEST(KeyFields, TraceVsTrace) {
    KeyFields<ZXADLG_TraceVsTraceOptions> keys("TraceVsTraceSection", &LoadTraceVsTraceOptions,
                                               &SaveTraceVsTraceOptions);
    auto& r = keys.Fields();
    keys.Signed("eXSource", r.eXSource);
    keys.Signed("eYSource", r.eYSource);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Signed("eValueRegion", r.eValueRegion);
    keys.Unsigned("uXDataSetIndex", r.uXDataSetIndex);
    keys.Unsigned("uYDataSetIndex", r.uYDataSetIndex);
    keys.Unsigned("uXWaveformIndex", r.uXWaveformIndex);
    keys.Unsigned("uYWaveformIndex", r.uYWaveformIndex);
    keys.Unsigned("uXDataGroupIndex", r.uXDataGroupIndex);
    keys.Unsigned("uYDataGroupIndex", r.uYDataGroupIndex);
    keys.Bool("bInvertX", r.bInvertX);
    keys.Bool("bInvertY", r.bInvertY);
    keys.Bool("bGraphDynamicLink", r.common.bDynamicLink);
    keys.Bool("bVerboseOutput", r.common.bWriteRegionInfo);
    keys.Check();
}

TEST(KeyFields, TraceArithmetic) {
    KeyFields<ZXADLG_ArithmeticOptions> keys("TraceArithmetic", &LoadTraceArithmeticOptions,
                                             &SaveTraceArithmeticOptions);
    auto& r = keys.Fields();
    keys.Unsigned("uFirstDataIndex", r.uFirstDataIndex);
    keys.Unsigned("uLastDataIndex", r.uLastDataIndex);
    keys.Unsigned("uGroup1Index", r.uGroup1Index);
    keys.Signed("eDataSet1SelectionMode", r.eDataSet1SelectionMode);
    keys.Signed("eDataGroup1SelectionMode", r.eDataGroup1SelectionMode);
    keys.Signed("eAnalysisRegion", r.eAnalysisRegion);
    keys.Bool("bUseFullDataRange", r.bUseFullDataRange);
    keys.Bool("bForceExcludedRegionToZero", r.bForceExcludedRegionToZero);
    keys.Text("szExpression", r.szExpression, 255);
    keys.Text("szSelectionList", r.szSelectionList, 1000);
    keys.Check();
}

TEST(KeyFields, AdjustBaseline) {
    KeyFields<ZXADLG_AdjustBaselineOptions> keys("AdjustBaseline", &LoadAdjustBaselineOptions,
                                                 &SaveAdjustBaselineOptions);
    auto& r = keys.Fields();
    keys.Signed("eAdjustMode", r.eAdjustMode);
    keys.Signed("eValueRegion", r.eValueRegion);
    keys.Double("dFixedValue", r.dFixedValue);
    keys.Check();
}

TEST(KeyFields, SubtractControl) {
    KeyFields<ZXADLG_SubtractControlOptions> keys("SubtractControl", &LoadSubtractControlOptions,
                                                  &SaveSubtractControlOptions);
    auto& r = keys.Fields();
    keys.Double("dMultiplier", r.dMultiplier);
    keys.Text("szSubtractFileName", r.szSubtractFileName, 512);
    keys.Bool("bUseMultiplier", r.bUseMultiplier);
    keys.Bool("bUseFirstTraceOnly", r.bUseFirstTraceOnly);
    keys.Bool("bUseLastFile", r.bUseLastFile);
    keys.Signed("nFileID", r.nFileID);
    keys.Signed("nNumGroups", r.nNumGroups);
    for (const int i : {0, 1, 15}) keys.Signed("ListEntry" + std::to_string(i), r.anListEntry[i]);
    keys.Check();
}

TEST(KeyFields, Measurements) {
    KeyFields<ZXADLG_MeasurementOptions> keys("Measurements", &LoadMeasurementsOptions,
                                              &SaveMeasurementsOptions);
    auto& r = keys.Fields();
    keys.Signed("nDlgSearchIndex", r.nDlgSearchIndex);
    keys.Signed("eDestinationOption", r.common.eDestinationOption);
    keys.Bool("bVerboseOutput", r.common.bWriteRegionInfo);
    keys.Bool("bImportFromFile", r.bImportFromFile);
    keys.Signed("eOutputOrder", r.eOutputOrder);
    keys.SavedOnly();
    for (const int i : {0, 23}) {
        const std::string n = std::to_string(i);
        auto& search = r.aSearches[i];
        auto& stats = r.aStatsRegions[i];
        auto& base = r.aBaselines[i];
        auto& polarity = r.aPolarities[i];
        keys.Bool("DoAutoGraph" + n, search.bDoAutoGraph);
        keys.Bool("RegionEnable" + n, search.bRegionEnable);
        keys.Bool("PeakAmplitude" + n, search.bPeakAmplitude);
        keys.Bool("PeakTime" + n, search.bPeakTime);
        keys.Bool("AntipeakAmplitude" + n, search.bAntipeakAmplitude);
        keys.Bool("AntipeakTime" + n, search.bAntipeakTime);
        keys.Bool("Mean" + n, search.bMean);
        keys.Bool("StanDev" + n, search.bStanDev);
        keys.Bool("Area" + n, search.bArea);
        keys.Bool("HalfWidth" + n, search.bHalfWidth);
        keys.Bool("MaxRiseSlope" + n, search.bMaxRiseSlope);
        keys.Bool("MaxRiseSlopeTime" + n, search.bMaxRiseSlopeTime);
        keys.Bool("MaxDecaySlope" + n, search.bMaxDecaySlope);
        keys.Bool("MaxDecaySlopeTime" + n, search.bMaxDecaySlopeTime);
        keys.Bool("RegionSlope" + n, search.bRegionSlope);
        keys.Bool("Baseline" + n, search.bBaseline);
        keys.Bool("RiseSlope" + n, search.bRiseSlope);
        keys.Bool("RiseTime" + n, search.bRiseTime);
        keys.Bool("DecaySlope" + n, search.bDecaySlope);
        keys.Bool("DecayTime" + n, search.bDecayTime);
        keys.Bool("PeakApplyToAll" + n, polarity.bPeakApplyToAll);
        keys.Bool("ApplyFilter" + n, search.bApplyFilter);
        keys.Bool("EventDuration" + n, search.bEventDuration);
        keys.Signed("StatsRegion" + n, stats.eStatsRegion);
        keys.Signed("StatsRegionStartIndex" + n, stats.nStatsRegionStartIndex);
        keys.Signed("StatsRegionEndIndex" + n, stats.nStatsRegionEndIndex);
        keys.Signed("BaseRegion" + n, base.eBaseRegion);
        keys.Signed("BaseRegionStartIndex" + n, base.nBaseRegionStartIndex);
        keys.Signed("BaseRegionEndIndex" + n, base.nBaseRegionEndIndex);
        keys.Signed("RiseFromPercent" + n, search.nRiseFromPercent);
        keys.Signed("RiseToPercent" + n, search.nRiseToPercent);
        keys.Signed("DecayFromPercent" + n, search.nDecayFromPercent);
        keys.Signed("DecayToPercent" + n, search.nDecayToPercent);
        keys.Signed("BaseMode" + n, base.eBaseMode);
        keys.Signed("EventDurationPercent" + n, search.nEventDurationPercent);
        keys.Signed("SmoothingPoints" + n, search.nSmoothingPoints);
        keys.Signed("NumYPlotItems" + n, search.nNumYPlotItems);
        keys.Signed("AutoPlotXVariable" + n, search.eAutoPlotXVariable);
        keys.Double("BaseFixedValue" + n, base.dBaseFixedValue);
        keys.Double("StatsRegionStartTime" + n, stats.dStatsRegionStartTime);
        keys.Double("StatsRegionEndTime" + n, stats.dStatsRegionEndTime);
        keys.Double("BaseRegionStartTime" + n, base.dBaseRegionStartTime);
        keys.Double("BaseRegionEndTime" + n, base.dBaseRegionEndTime);
    }
    keys.Check();
}

// Read from a store that another version filled, and never written. The capital letter belongs to
// the key.
TEST(KeyFields, MeasurementEpisodesAreLoadedOnly) {
    KeyFields<ZXADLG_MeasurementOptions> keys("Measurements", &LoadMeasurementsOptions,
                                              &SaveMeasurementsOptions);
    auto& r = keys.Fields();
    for (const int i : {0, 1, 23}) {
        const std::string n = std::to_string(i);
        keys.Signed("StatsRegionEpisode1" + n, r.aStatsRegions[i].nStatsRegionEpisode1);
        keys.LoadedOnly();
        keys.Signed("BaseRegionEpisode1" + n, r.aBaselines[i].nBaseRegionEpisode1);
        keys.LoadedOnly();
        keys.Signed("BaseRegionEpisode2" + n, r.aBaselines[i].nBaseRegionEpisode2);
        keys.LoadedOnly();
        keys.Signed("STatsRegionEpisode2" + n, r.aStatsRegions[i].nStatsRegionEpisode2);
        keys.LoadedOnly();
    }
    keys.Check();
}

// An entry has room for 16 polarities and its keys count to 24: they run on into the fields behind
// them. A pair of numbers that another pair spells as well is not asked.
TEST(KeyFields, MeasurementTablesOfEachSearch) {
    KeyFields<ZXADLG_MeasurementOptions> keys("Measurements", &LoadMeasurementsOptions,
                                              &SaveMeasurementsOptions);
    auto& r = keys.Fields();
    const auto word = [](auto& field) -> std::int32_t& {
        return reinterpret_cast<std::int32_t&>(field);
    };
    keys.Signed("PeakPolarity00", r.aPolarities[0].aePeakPolarity[0]);
    keys.Signed("PeakPolarity015", r.aPolarities[0].aePeakPolarity[15]);
    keys.Signed("PeakPolarity516", word(r.aPolarities[5].bPeakApplyToAll));
    keys.Signed("PeakPolarity517", r.aPolarities[5].eAllGroupsPeakPolarity);
    keys.Signed("PeakPolarity518", r.aPolarities[6].aePeakPolarity[0]);
    keys.Signed("PeakPolarity523", r.aPolarities[6].aePeakPolarity[5]);
    keys.Signed("PeakPolarity2318", r.common.eDestinationOption);
    keys.Signed("PeakPolarity2320", r.nDlgSearchIndex);
    keys.Signed("PeakPolarity2322", r.eOutputOrder);
    keys.Signed("AutoPlotYVariable00", r.aSearches[0].aeAutoPlotYVariable[0]);
    keys.Signed("AutoPlotYVariable523", r.aSearches[5].aeAutoPlotYVariable[23]);
    keys.Signed("AutoPlotYVariable2323", r.aSearches[23].aeAutoPlotYVariable[23]);
    keys.Check();
}

// One key for all searches: the load gives it to each of them, and of the saved ones the last
// stands.
TEST(KeyFields, MeasurementPolarityOfAllGroupsIsSharedByTheSearches) {
    const ProfileScope profile;
    const auto pRecord = std::make_unique<ZXADLG_MeasurementOptions>();
    const auto pExpected = std::make_unique<ZXADLG_MeasurementOptions>();
    std::memset(static_cast<void*>(pRecord.get()), 0x5B, sizeof *pRecord);
    std::memset(static_cast<void*>(pExpected.get()), 0x5B, sizeof *pExpected);
    profile.Put("Measurements", "AllGroupsPeakPolarity", "-7");
    LoadMeasurementsOptions(profile.Name(), pRecord.get());
    for (auto& polarity : pExpected->aPolarities) polarity.eAllGroupsPeakPolarity = -7;
    EXPECT_EQ(std::memcmp(pRecord.get(), pExpected.get(), sizeof *pRecord), 0);

    for (int i = 0; i < 24; ++i) pRecord->aPolarities[i].eAllGroupsPeakPolarity = 100 + i;
    SaveMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(profile.Value("Measurements", "AllGroupsPeakPolarity"), "123");
}

// The data record under the name of an analysis.
TEST(KeyFields, DataRecord) {
    ZXADLG_DlgParams params = {};
    KeyFields<ZXADLG_DataOptions> keys(
        "TimeShiftDataSection",
        [&](const char* szProfile, ZXADLG_DataOptions* pData) {
            LoadDataOptions(szProfile, pData, &params, kDataOptionsNormal, "TimeShift");
        },
        [](const char* szProfile, const ZXADLG_DataOptions* pData) {
            SaveDataOptions(szProfile, pData, kDataOptionsNormal, "TimeShift");
        });
    auto& r = keys.Fields();
    keys.Text("szUnitarySelectionList1", r.szUnitarySelectionList1, 1000);
    keys.Text("szUnitarySelectionList2", r.szUnitarySelectionList2, 1000);
    keys.Text("szDepVarSelectionList", r.szDepVarSelectionList, 1000);
    keys.Signed("eDataGroup1SelectionMode", r.eDataGroup1SelectionMode);
    keys.Signed("eDataGroup2SelectionMode", r.eDataGroup2SelectionMode);
    keys.Signed("eDataSet1SelectionMode", r.eDataSet1SelectionMode);
    keys.Signed("eDataSet2SelectionMode", r.eDataSet2SelectionMode);
    keys.Signed("eAnalysisRegion", r.eAnalysisRegion);
    keys.Unsigned("uGroup1Index", r.uGroup1Index);
    keys.Unsigned("uGroup2Index", r.uGroup2Index);
    keys.Unsigned("uPairedGroupIndex", r.uPairedGroupIndex);
    keys.Unsigned("uIndepVarDataSetIndex", r.uIndepVarDataSetIndex);
    keys.Unsigned("uDepVarDataSetIndex", r.uDepVarDataSetIndex);
    keys.Unsigned("uFirstDataIndex", r.uFirstDataIndex);
    keys.Unsigned("uLastDataIndex", r.uLastDataIndex);
    keys.Unsigned("uExtrapolationCursor", r.uExtrapolationCursor);
    keys.Unsigned("uSelectedDataSet", r.uSelectedDataSet);
    keys.Bool("bUseFullDataRange", r.bUseFullDataRange);
    keys.Bool("bExtrapolate", r.bExtrapolate);
    keys.Bool("bForceExcludedRegionToZero", r.bForceExcludedRegionToZero);
    for (const int i : {0, 1, 5}) {
        keys.Bool("IsConstant" + std::to_string(i), r.abIsConstant[i]);
        keys.Double("Constant" + std::to_string(i), r.adConstants[i]);
    }
    keys.Check();
}

}  // namespace
