// The keys of every section, in the order in which they are written, against literal lists.

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "KeyRecorder.h"
#include "contract/OptionPersistence.h"

namespace {

using test_support::ProfileScope;

std::vector<std::string> Words(const std::string& sText) {
    std::istringstream stream(sText);
    std::vector<std::string> vWords;
    for (std::string sWord; stream >> sWord;) vWords.push_back(sWord);
    return vWords;
}

// Appends the words with each number of 0 to nCount - 1 behind each, number by number.
void AppendNumbered(std::vector<std::string>& vKeys, const std::string& sWords, int nCount) {
    for (int i = 0; i < nCount; ++i) {
        for (const std::string& sWord : Words(sWords)) vKeys.push_back(sWord + std::to_string(i));
    }
}

void Append(std::vector<std::string>& vKeys, const std::string& sWords) {
    for (const std::string& sWord : Words(sWords)) vKeys.push_back(sWord);
}

template <class Record>
std::vector<std::string> SavedKeys(bool (*pSave)(const char*, const Record*),
                                   const char* szSection) {
    const ProfileScope profile;
    const auto pRecord = std::make_unique<Record>();
    EXPECT_TRUE(pSave(profile.Name(), pRecord.get()));
    return profile.Keys(szSection);
}

TEST(SectionKeys, CurveFit) {
    std::vector<std::string> expected;
    Append(
        expected,
        "eFunctionType eSearchMethod eWeightingType eMinimMethod eFunctionGroupID nNumCustomParams "
        "eDestinationOption dGoldmanTemperature dNernstTemperature dZDBoltzmanTemperature "
        "dUserLMPrecision "
        "dUserVMPrecision dUserFractError dTolerance dSubstZeroLinearFactor "
        "dLeftExtrapolationValue "
        "dRightExtrapolationValue");
    AppendNumbered(expected, "Parameter", 26);
    Append(expected,
           "bDoZeroShift bAutoZeroShift bFreeAndRefit bAutoAdjustOnFailure bUseVMPrecisionDefault "
           "bUseLMPrecisionDefault bUseFractErrDefault bForcePropsPositive bForceTausPositive "
           "bForceAutoSeed "
           "bAutoDefaultOptions bCompareModels bAutoCompare bUseChebyFilter bWriteFittedData "
           "bWriteStatistics "
           "bExtrapolateLeft bExtrapolateRight bVerboseOutput uStartCompare uEndCompare "
           "uMaxIterations uFitOrder "
           "uCurTimePowerA uCurTimePowerB uExpPower uDlgFitOrder uPolynomTerm");
    AppendNumbered(expected, "Constraint DlgConstraint", 26);
    Append(expected, "szEquation");
    AppendNumbered(expected, "CustomEquation", 20);
    EXPECT_EQ(SavedKeys(&SaveCurveFitOptions, "CurveFitSection"), expected);
}

TEST(SectionKeys, Filter) {
    const std::vector<std::string> pass = Words(
        "m_eFilterFamily m_eFilterType m_uNumAveragePoints m_dCornerFreq m_dPrevFilterFreq "
        "m_bIsSelected");
    EXPECT_EQ(SavedKeys(&SaveFilterOptions, "LowpassFilterSection"), pass);
    EXPECT_EQ(SavedKeys(&SaveFilterOptions, "HighpassFilterSection"), pass);
    EXPECT_EQ(SavedKeys(&SaveFilterOptions, "NotchFilterSection"),
              Words("m_eFilterFamily m_eFilterType m_dCornerFreq m_dPrevFilterFreq m_d3dbWidth "
                    "m_bIsSelected"));
    EXPECT_EQ(
        SavedKeys(&SaveFilterOptions, "AdaptiveFilterSection"),
        Words(
            "m_eReferenceGeneration m_uAveragingCycles m_uHarmonicNumberStart m_uHarmonicNumberEnd "
            "m_bEndEffectCompensation m_bIsSelected"));
}

TEST(SectionKeys, PowerSpectrum) {
    EXPECT_EQ(
        SavedKeys(&SavePowerSpectrumOptions, "PowerSpectrumSection"),
        Words(
            "eWindowType eDestinationOption dPoissonAlpha dKaiserAlpha bDoOverlap bAverageSegments "
            "bAverageTraces bDialogAverageTraces bUseMaxSegment uTransformLength "
            "uNumBinsToExclude"));
}

TEST(SectionKeys, Histogram) {
    EXPECT_EQ(SavedKeys(&SaveHistogramOptions, "HistogramSection"),
              Words("eHistoType nBinsPerDecade nNumBins eDestinationOption fBinWidth fMinDataValue "
                    "fMaxDataValue "
                    "bBinAllData bCombineData bNormalize bVerboseOutput"));
}

TEST(SectionKeys, Correlation) {
    EXPECT_EQ(SavedKeys(&SaveCorrelationOptions, "CorrelationSection"),
              Words("eType eDestinationOption dSamplingFrequency uNumberOfLags"));
}

TEST(SectionKeys, Resistance) {
    EXPECT_EQ(SavedKeys(&SaveResistanceOptions, "ResistanceSection"),
              Words("eDestinationOption dConversionFactor uExperimentType uWaveformIndex"));
}

TEST(SectionKeys, Normalize) {
    EXPECT_EQ(SavedKeys(&SaveNormalizeOptions, "NormalizeSection"),
              Words("bUseAllPoints eBaselineRegion ePeakRegion"));
}

TEST(SectionKeys, ConvertSampleRate) {
    EXPECT_EQ(SavedKeys(&SaveConvertSampleRateOptions, "ConvertSampleRateSection"),
              Words("eRateConversionType eReductionMethod eInterpolationMethod nReduceFactor "
                    "nInterpolFactor"));
}

TEST(SectionKeys, LeakSubtraction) {
    EXPECT_EQ(SavedKeys(&SaveLeakSubtractionOptions, "LeakSubtractionSection"),
              Words("dConversionFactor dPassiveResistance uWaveformIndex"));
}

TEST(SectionKeys, ForceValues) {
    EXPECT_EQ(SavedKeys(&SaveForceValuesOptions, "ForceValuesSection"),
              Words("eForceValuesMode eRegionToForce dFixedValue"));
}

TEST(SectionKeys, TimeShift) {
    EXPECT_EQ(SavedKeys(&SaveTimeShiftOptions, "TimeShiftSection"),
              Words("eAlignmentMode eDirection eValueMode eAdjustMode ePeakPolarity eValueRegion "
                    "eSearchRegion "
                    "uDataGroupIndex dShiftValue"));
}

TEST(SectionKeys, CurrentVoltage) {
    EXPECT_EQ(
        SavedKeys(&SaveCurrentVoltageOptions, "CurrentVoltageSection"),
        Words(
            "ePeakRegion ePeakPolarity eVoltageSource eCurrentSource eFixedEpoch eSetSelectionMode "
            "eDestinationOption uWaveformIndex uXDataGroupIndex uYDataGroupIndex uSmoothingPoints "
            "bInvertX "
            "bInvertY bDoFilter bGraphDynamicLink bVerboseOutput"));
}

TEST(SectionKeys, TraceVsTrace) {
    EXPECT_EQ(
        SavedKeys(&SaveTraceVsTraceOptions, "TraceVsTraceSection"),
        Words("eXSource eYSource eDestinationOption eValueRegion uXDataSetIndex uYDataSetIndex "
              "uXWaveformIndex uYWaveformIndex uXDataGroupIndex uYDataGroupIndex bInvertX bInvertY "
              "bGraphDynamicLink bVerboseOutput"));
}

TEST(SectionKeys, TraceArithmetic) {
    EXPECT_EQ(SavedKeys(&SaveTraceArithmeticOptions, "TraceArithmetic"),
              Words("uFirstDataIndex uLastDataIndex uGroup1Index eDataSet1SelectionMode "
                    "eDataGroup1SelectionMode "
                    "eAnalysisRegion bUseFullDataRange bForceExcludedRegionToZero szExpression "
                    "szSelectionList"));
}

TEST(SectionKeys, AdjustBaseline) {
    EXPECT_EQ(SavedKeys(&SaveAdjustBaselineOptions, "AdjustBaseline"),
              Words("eAdjustMode eValueRegion dFixedValue"));
}

TEST(SectionKeys, SubtractControl) {
    std::vector<std::string> expected = Words(
        "dMultiplier szSubtractFileName bUseMultiplier bUseFirstTraceOnly bUseLastFile nFileID "
        "nNumGroups");
    AppendNumbered(expected, "ListEntry", 16);
    EXPECT_EQ(SavedKeys(&SaveSubtractControlOptions, "SubtractControl"), expected);
}

TEST(SectionKeys, Measurements) {
    std::vector<std::string> expected =
        Words("nDlgSearchIndex eDestinationOption bVerboseOutput bImportFromFile eOutputOrder");
    std::vector<std::string> seen = expected;
    const auto add = [&](const std::string& sKey) {
        // A key that is written again keeps its first place in the file.
        if (std::find(expected.begin(), expected.end(), sKey) == expected.end())
            expected.push_back(sKey);
    };
    for (int i = 0; i < 24; ++i) {
        const std::string n = std::to_string(i);
        for (const std::string& sKey : Words("DoAutoGraph RegionEnable PeakAmplitude PeakTime "
                                             "AntipeakAmplitude AntipeakTime Mean StanDev Area "
                                             "HalfWidth MaxRiseSlope MaxRiseSlopeTime "
                                             "MaxDecaySlope MaxDecaySlopeTime RegionSlope Baseline "
                                             "RiseSlope RiseTime DecaySlope DecayTime "
                                             "PeakApplyToAll ApplyFilter EventDuration StatsRegion "
                                             "StatsRegionStartIndex StatsRegionEndIndex BaseRegion "
                                             "BaseRegionStartIndex BaseRegionEndIndex "
                                             "RiseFromPercent RiseToPercent DecayFromPercent "
                                             "DecayToPercent BaseMode EventDurationPercent")) {
            add(sKey + n);
        }
        add("AllGroupsPeakPolarity");
        for (const std::string& sKey : Words("SmoothingPoints NumYPlotItems AutoPlotXVariable"))
            add(sKey + n);
        for (const char* szKey : {"PeakPolarity", "AutoPlotYVariable"}) {
            for (int j = 0; j < 24; ++j) add(szKey + n + std::to_string(j));
        }
        for (const std::string& sKey :
             Words("BaseFixedValue StatsRegionStartTime StatsRegionEndTime "
                   "BaseRegionStartTime BaseRegionEndTime")) {
            add(sKey + n);
        }
    }
    EXPECT_EQ(SavedKeys(&SaveMeasurementsOptions, "Measurements"), expected);
}

TEST(SectionKeys, DataRecordUnderTheNameOfItsAnalysis) {
    const ProfileScope profile;
    const auto pData = std::make_unique<ZXADLG_DataOptions>();
    std::vector<std::string> expected = Words(
        "szUnitarySelectionList1 szUnitarySelectionList2 szDepVarSelectionList "
        "eDataGroup1SelectionMode "
        "eDataGroup2SelectionMode eDataSet1SelectionMode eDataSet2SelectionMode eAnalysisRegion "
        "uGroup1Index "
        "uGroup2Index uPairedGroupIndex uIndepVarDataSetIndex uDepVarDataSetIndex uFirstDataIndex "
        "uLastDataIndex "
        "uExtrapolationCursor uSelectedDataSet bUseFullDataRange bExtrapolate "
        "bForceExcludedRegionToZero");
    AppendNumbered(expected, "IsConstant", 6);
    AppendNumbered(expected, "Constant", 6);
    for (const char* szAnalysis :
         {"CurveFit", "Filter", "Spectrum", "Histogram", "Correlation", "Resistance", "Normalize",
          "LeakSubtraction", "ForceValues", "TimeShift", "AdjustBaseline", "Measurements"}) {
        SCOPED_TRACE(szAnalysis);
        SaveDataOptions(profile.Name(), pData.get(), kDataOptionsNormal, szAnalysis);
        EXPECT_EQ(profile.Keys(std::string(szAnalysis) + "DataSection"), expected);
    }
    SaveDataOptions(profile.Name(), pData.get(), kDataOptionsNormal, nullptr);
    EXPECT_EQ(profile.Keys("CommonDataSection"), expected);
}

}  // namespace
