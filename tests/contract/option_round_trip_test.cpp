// Settings that come back: every key of every table, the value texts, the required oddities.

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "KeyRecorder.h"
#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"
#include "fixtures/ScratchStore.h"
#include "store/ProfileStore.h"

namespace {

using test_support::ProfileScope;

// Fills a field with a value that depends on its number and survives a round trip.
void FillField(const OptionKey& key, unsigned char* pField, unsigned uNumber) {
    switch (key.eType) {
        case OptionType::kBool8:
            *pField = uNumber % 2;
            return;
        case OptionType::kBool32: {
            const std::int32_t b = uNumber % 2;
            std::memcpy(pField, &b, sizeof b);
            return;
        }
        case OptionType::kUInt32:
        case OptionType::kInt32: {
            const std::int32_t n = static_cast<std::int32_t>(uNumber * 7 + 1);
            std::memcpy(pField, &n, sizeof n);
            return;
        }
        case OptionType::kFloat: {
            const float f = static_cast<float>(uNumber) + 0.5F;
            std::memcpy(pField, &f, sizeof f);
            return;
        }
        case OptionType::kFloatInDouble:
        case OptionType::kDouble: {
            const double d = uNumber + 0.25;
            std::memcpy(pField, &d, sizeof d);
            return;
        }
        case OptionType::kBytes:
            FAIL() << "bytes are never kept";
        case OptionType::kText: {
            const std::string sText = "text " + std::to_string(uNumber);
            std::memcpy(pField, sText.c_str(), sText.size() + 1);
            return;
        }
    }
}

struct SectionCase {
    const char* szName;
    const OptionSection* pSection;
    std::size_t nSize;
};

const SectionCase kCases[] = {
    {"CurveFitSection", &kCurveFitSection, sizeof(FitOptions)},
    {"LowpassFilterSection", &kLowpassFilterSection, sizeof(FilterOptions)},
    {"HighpassFilterSection", &kHighpassFilterSection, sizeof(FilterOptions)},
    {"NotchFilterSection", &kNotchFilterSection, sizeof(FilterOptions)},
    {"AdaptiveFilterSection", &kAdaptiveFilterSection, sizeof(FilterOptions)},
    {"PowerSpectrumSection", &kPowerSpectrumSection, sizeof(SpectrumOptions)},
    {"HistogramSection", &kHistogramSection, sizeof(ZXADLG_HistogramOptions)},
    {"CorrelationSection", &kCorrelationSection, sizeof(ZXADLG_CorrelationOptions)},
    {"ResistanceSection", &kResistanceSection, sizeof(ZXADLG_ResistanceOptions)},
    {"NormalizeSection", &kNormalizeSection, sizeof(ZXADLG_NormalizeOptions)},
    {"ConvertSampleRateSection", &kConvertSampleRateSection,
     sizeof(ZXADLG_ModifySampleRateOptions)},
    {"LeakSubtractionSection", &kLeakSubtractionSection, sizeof(ZXADLG_LeakSubtractionOptions)},
    {"ForceValuesSection", &kForceValuesSection, sizeof(ZXADLG_ForceValuesOptions)},
    {"TimeShiftSection", &kTimeShiftSection, sizeof(ZXADLG_TimeShiftOptions)},
    {"CurrentVoltageSection", &kCurrentVoltageSection, sizeof(ZXADLG_CurrentVoltageOptions)},
    {"TraceVsTraceSection", &kTraceVsTraceSection, sizeof(ZXADLG_TraceVsTraceOptions)},
    {"TraceArithmetic", &kTraceArithmeticSection, sizeof(ZXADLG_ArithmeticOptions)},
    {"AdjustBaseline", &kAdjustBaselineSection, sizeof(ZXADLG_AdjustBaselineOptions)},
    {"SubtractControl", &kSubtractControlSection, sizeof(ZXADLG_SubtractControlOptions)},
    {"FilterDataSection", &kDataSection, sizeof(ZXADLG_DataOptions)},
};

TEST(OptionRoundTrip, EveryKeyOfEveryTableComesBack) {
    for (const SectionCase& row : kCases) {
        SCOPED_TRACE(row.szName);
        const ProfileScope profile;
        std::vector<unsigned char> vFirst(row.nSize);
        std::vector<unsigned char> vSecond(row.nSize);
        unsigned uNumber = 1;
        for (const OptionBlock& block : row.pSection->blocks) {
            for (std::uint32_t i = 0; i < block.uRepeat; ++i) {
                for (const OptionKey& key : block.keys) {
                    if (key.eUse == OptionUse::kLoadOnly || key.eUse == OptionUse::kNotKept) {
                        continue;
                    }
                    FillField(key, vFirst.data() + key.uOffset + i * key.uStride, uNumber++);
                }
            }
        }
        SaveSection(profile.Name(), *row.pSection, vFirst.data(), row.szName);
        LoadSection(profile.Name(), *row.pSection, vSecond.data(), row.szName);
        EXPECT_EQ(vFirst, vSecond);
    }
}

TEST(OptionRoundTrip, MeasurementsComeBackUpToTheirRequiredAsymmetries) {
    const ProfileScope profile;
    auto pFirst = std::make_unique<ZXADLG_MeasurementOptions>();
    for (int i = 0; i < 24; ++i) {
        pFirst->aSearches[i].bMean = 1;
        pFirst->aSearches[i].nSmoothingPoints = 3 + 2 * i;
        pFirst->aSearches[i].aeAutoPlotYVariable[0] = i;
        pFirst->aStatsRegions[i].dStatsRegionStartTime = i + 0.5;
        pFirst->aStatsRegions[i].nStatsRegionEpisode1 = 9;
        pFirst->aBaselines[i].dBaseFixedValue = -i;
    }
    SaveMeasurementsOptions(profile.Name(), pFirst.get());
    auto pSecond = std::make_unique<ZXADLG_MeasurementOptions>();
    LoadMeasurementsOptions(profile.Name(), pSecond.get());
    for (int i = 0; i < 24; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(pSecond->aSearches[i].bMean, 1);
        EXPECT_EQ(pSecond->aSearches[i].nSmoothingPoints, 3 + 2 * i);
        EXPECT_EQ(pSecond->aSearches[i].aeAutoPlotYVariable[0], i);
        EXPECT_EQ(pSecond->aStatsRegions[i].dStatsRegionStartTime, i + 0.5);
        EXPECT_EQ(pSecond->aStatsRegions[i].nStatsRegionEpisode1, 0);
        EXPECT_EQ(pSecond->aBaselines[i].dBaseFixedValue, -i);
    }
}

TEST(MeasurementKeys, OutputOrderIsWrittenAndNeverRead) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<ZXADLG_MeasurementOptions>();
    pRecord->eOutputOrder = 7;
    SaveMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(profile.Value("Measurements", "eOutputOrder"), "7");
    // The word of the record also stands under the last polarities, which are read.
    WriteString("Measurements", "PeakPolarity2322", nullptr, profile.Name());
    pRecord->eOutputOrder = 2;
    LoadMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(pRecord->eOutputOrder, 2);
}

TEST(MeasurementKeys, EpisodesAreReadFromAForeignStoreAndNeverWritten) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<ZXADLG_MeasurementOptions>();
    SaveMeasurementsOptions(profile.Name(), pRecord.get());
    for (const char* szKey : {"StatsRegionEpisode13", "BaseRegionEpisode13", "BaseRegionEpisode23",
                              "STatsRegionEpisode23"}) {
        EXPECT_FALSE(profile.Has("Measurements", szKey)) << szKey;
        profile.Put("Measurements", szKey, "42");
    }
    LoadMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(pRecord->aStatsRegions[3].nStatsRegionEpisode1, 42);
    EXPECT_EQ(pRecord->aStatsRegions[3].nStatsRegionEpisode2, 42);
    EXPECT_EQ(pRecord->aBaselines[3].nBaseRegionEpisode1, 42);
    EXPECT_EQ(pRecord->aBaselines[3].nBaseRegionEpisode2, 42);
}

TEST(MeasurementKeys, AllGroupsPolarityIsOneKeyAndTheLastSearchWins) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<ZXADLG_MeasurementOptions>();
    for (int i = 0; i < 24; ++i) pRecord->aPolarities[i].eAllGroupsPeakPolarity = i == 23 ? 2 : 1;
    SaveMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(profile.Value("Measurements", "AllGroupsPeakPolarity"), "2");
    auto pLoaded = std::make_unique<ZXADLG_MeasurementOptions>();
    LoadMeasurementsOptions(profile.Name(), pLoaded.get());
    EXPECT_EQ(pLoaded->aPolarities[0].aePeakPolarity[0], 0);
    EXPECT_EQ(pLoaded->aPolarities[23].eAllGroupsPeakPolarity, 2);
}

TEST(MeasurementKeys, PolarityLoopsRunIntoTheFieldsBehindThem) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<ZXADLG_MeasurementOptions>();
    pRecord->aPolarities[4].bPeakApplyToAll = 1;
    pRecord->aPolarities[5].aePeakPolarity[0] = 2;
    SaveMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(profile.Value("Measurements", "PeakPolarity416"), "1");
    EXPECT_EQ(profile.Value("Measurements", "PeakPolarity418"), "2");

    // Of search 23 the last six are the single fields at the end of the record.
    profile.Put("Measurements", "PeakPolarity2320", "11");
    LoadMeasurementsOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(pRecord->nDlgSearchIndex, 11);
}

TEST(OptionKeys, WithNumbersAreCutAt23Characters) {
    EXPECT_STREQ(FormatOptionKey("StatsRegionStartIndex%d", 23, 0), "StatsRegionStartIndex23");
    EXPECT_STREQ(FormatOptionKey("EventDurationPercentX%d", 1234, 0), "EventDurationPercentX12");
    EXPECT_STREQ(FormatOptionKey("PeakPolarity%d%d", 3, 15), "PeakPolarity315");
    EXPECT_STREQ(FormatOptionKey("AllGroupsPeakPolarity", 3, 1), "AllGroupsPeakPolarity");
}

TEST(OptionValues, BooleanTextsReadByTheirRule) {
    const std::pair<const char*, int> rows[] = {{"2", 1},    {"0", 0},      {"true", 1},
                                                {"TRUE", 1}, {"tRuE", 1},   {"false", 0},
                                                {"-1", 1},   {"garbage", 0}};
    for (const auto& [szText, nExpected] : rows) {
        SCOPED_TRACE(szText);
        const ProfileScope profile;
        profile.Put("NormalizeSection", "bUseAllPoints", szText);
        ZXADLG_NormalizeOptions options = {};
        LoadNormalizeOptions(profile.Name(), &options);
        EXPECT_EQ(options.bUseAllPoints, nExpected);
    }
}

TEST(OptionValues, DoublesKeepSixSignificantDigits) {
    const ProfileScope profile;
    ZXADLG_AdjustBaselineOptions options = {};
    options.dFixedValue = 1.23456789;
    SaveAdjustBaselineOptions(profile.Name(), &options);
    EXPECT_EQ(profile.Value("AdjustBaseline", "dFixedValue"), "1.23457");
    LoadAdjustBaselineOptions(profile.Name(), &options);
    EXPECT_EQ(options.dFixedValue, 1.23457);
}

TEST(OptionValues, FrequenciesTravelAsFloats) {
    const ProfileScope profile;
    auto pOptions = std::make_unique<FilterOptions>();
    pOptions->lowpass.m_dCornerFreq = 0.1;
    SaveFilterOptions(profile.Name(), pOptions.get());
    EXPECT_EQ(profile.Value("LowpassFilterSection", "m_dCornerFreq"), "0.1");
    LoadFilterOptions(profile.Name(), pOptions.get());
    EXPECT_EQ(pOptions->lowpass.m_dCornerFreq, static_cast<double>(0.1F));
}

TEST(OptionValues, ASaveThatDoesNotReachTheStoreSaysSo) {
    const test_support::ScratchStore store;
    const bool old = SetUseProfileFile(true);
    const std::string nowhere = store.File("no folder") + "/settings.ini";
    const ZXADLG_NormalizeOptions options = {};
    const FilterOptions filter = {};
    const ZXADLG_DataOptions data = {};
    EXPECT_TRUE(SaveNormalizeOptions(store.ProfileFile().c_str(), &options));
    EXPECT_TRUE(SaveFilterOptions(store.ProfileFile().c_str(), &filter));
    EXPECT_TRUE(
        SaveDataOptions(store.ProfileFile().c_str(), &data, kDataOptionsNormal, "Normalize"));
    EXPECT_FALSE(SaveNormalizeOptions(nowhere.c_str(), &options));
    EXPECT_FALSE(SaveFilterOptions(nowhere.c_str(), &filter));
    EXPECT_FALSE(SaveDataOptions(nowhere.c_str(), &data, kDataOptionsNormal, "Normalize"));
    // Nothing to write is no failure.
    EXPECT_TRUE(SaveNormalizeOptions(nullptr, &options));
    EXPECT_TRUE(SaveDataOptions(nowhere.c_str(), &data, kDataOptionsReset, "Normalize"));
    SetUseProfileFile(old);
}

TEST(OptionValues, MissingKeysLeaveTheFieldsAsTheHostPassedThem) {
    const ProfileScope profile;
    profile.Put("NormalizeSection", "ePeakRegion", "9");
    ZXADLG_NormalizeOptions options = {};
    options.eBaselineRegion = 5;
    options.bUseAllPoints = 77;
    LoadNormalizeOptions(profile.Name(), &options);
    EXPECT_EQ(options.eBaselineRegion, 5u);
    EXPECT_EQ(options.ePeakRegion, 9u);
    EXPECT_EQ(options.bUseAllPoints, 77);
}

TEST(OptionValues, EmptyStoreGivesTheRecordExactlyAndTheFirstSaveWritesEveryKey) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<FitOptions>();
    std::memset(static_cast<void*>(pRecord.get()), 0x5B, sizeof *pRecord);
    std::memset(pRecord->szEquation, 0, sizeof pRecord->szEquation);
    auto pBefore = std::make_unique<FitOptions>(*pRecord);
    LoadCurveFitOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(std::memcmp(pRecord.get(), pBefore.get(), sizeof *pRecord), 0);
    SaveCurveFitOptions(profile.Name(), pRecord.get());
    EXPECT_TRUE(profile.Has("CurveFitSection", "eFunctionType"));
    EXPECT_TRUE(profile.Has("CurveFitSection", "CustomEquation19"));
}

TEST(OptionValues, ATextThatFillsItsFieldIsCutAtItsSizeMinusOne) {
    const ProfileScope profile;
    profile.Put("TraceArithmetic", "szExpression", std::string(300, 'x'));
    auto pRecord = std::make_unique<ZXADLG_ArithmeticOptions>();
    pRecord->szColumnTitle[0] = 'k';
    LoadTraceArithmeticOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(std::string(pRecord->szExpression), std::string(254, 'x'));
    EXPECT_EQ(pRecord->szColumnTitle[0], 'k');
}

TEST(OptionValues, ATextWithoutItsFinalZeroIsWrittenToTheEndOfItsField) {
    const ProfileScope profile;
    auto pRecord = std::make_unique<ZXADLG_ArithmeticOptions>();
    std::memset(pRecord->szExpression, 'x', sizeof pRecord->szExpression);
    pRecord->szColumnTitle[0] = 'y';
    SaveTraceArithmeticOptions(profile.Name(), pRecord.get());
    EXPECT_EQ(profile.Value("TraceArithmetic", "szExpression"), std::string(255, 'x'));
}

TEST(OptionStore, ANullNameDoesNothing) {
    ZXADLG_NormalizeOptions options = {};
    options.bUseAllPoints = 1;
    LoadNormalizeOptions(nullptr, &options);
    SaveNormalizeOptions(nullptr, &options);
    LoadFilterOptions(nullptr, nullptr);
    SaveFilterOptions(nullptr, nullptr);
    EXPECT_EQ(options.bUseAllPoints, 1);
    auto pData = std::make_unique<ZXADLG_DataOptions>();
    pData->uGroup1Index = 4;
    LoadDataOptions(nullptr, pData.get(), nullptr, kDataOptionsNormal, "Filter");
    EXPECT_EQ(pData->uGroup1Index, 4u);
}

TEST(DataRecordLoad, AResetNeedsNoStore) {
    auto pData = std::make_unique<ZXADLG_DataOptions>();
    pData->uGroup1Index = 4;
    pData->uDepVarDataSetIndex = 3;
    LoadDataOptions(nullptr, pData.get(), nullptr, kDataOptionsReset, nullptr);
    EXPECT_EQ(pData->uGroup1Index, 0u);
    EXPECT_EQ(pData->uDepVarDataSetIndex, 0u);
    EXPECT_STREQ(pData->szDepVarSelectionList, "0");
}

// The host says which columns an expression is to be applied to.
TEST(DataRecordLoad, AResetLeavesTheDependentColumnsOfTheHost) {
    for (std::uint8_t ZXADLG_DlgParams::*pFlag :
         {&ZXADLG_DlgParams::bRemapColumns, &ZXADLG_DlgParams::bNoDependentList}) {
        ZXADLG_DlgParams params = {};
        params.*pFlag = 1;
        auto pData = std::make_unique<ZXADLG_DataOptions>();
        std::strcpy(pData->szDepVarSelectionList, "2,3");
        pData->uIndepVarDataSetIndex = 2;
        pData->uDepVarDataSetIndex = 3;
        pData->uGroup1Index = 4;
        LoadDataOptions(nullptr, pData.get(), &params, kDataOptionsReset, nullptr);
        EXPECT_STREQ(pData->szDepVarSelectionList, "2,3");
        EXPECT_EQ(pData->uIndepVarDataSetIndex, 2u);
        EXPECT_EQ(pData->uDepVarDataSetIndex, 3u);
        EXPECT_EQ(pData->uGroup1Index, 0u);
    }
}

TEST(OptionStore, OneThatCannotBeWrittenLosesNothingAndSaysNothing) {
    const ProfileScope profile;
    const std::string sName = std::string(profile.Name()) + ".missing/folder/file.ini";
    ZXADLG_NormalizeOptions options = {};
    options.bUseAllPoints = 1;
    SaveNormalizeOptions(sName.c_str(), &options);
    LoadNormalizeOptions(sName.c_str(), &options);
    EXPECT_EQ(options.bUseAllPoints, 1);
}

TEST(DataRecordLoad, NoDependentListKeepsTheHostsValuesAndTheSaveWritesThem) {
    const ProfileScope profile;
    profile.Put("FilterDataSection", "szDepVarSelectionList", "7..9");
    profile.Put("FilterDataSection", "uIndepVarDataSetIndex", "7");
    profile.Put("FilterDataSection", "uDepVarDataSetIndex", "8");
    profile.Put("FilterDataSection", "uGroup1Index", "1");
    ZXADLG_DlgParams params = {};
    params.bNoDependentList = 1;
    auto pData = std::make_unique<ZXADLG_DataOptions>();
    std::strcpy(pData->szDepVarSelectionList, "1");
    pData->uIndepVarDataSetIndex = 2;
    pData->uDepVarDataSetIndex = 3;
    LoadDataOptions(profile.Name(), pData.get(), &params, kDataOptionsNormal, "Filter");
    EXPECT_STREQ(pData->szDepVarSelectionList, "1");
    EXPECT_EQ(pData->uIndepVarDataSetIndex, 2u);
    EXPECT_EQ(pData->uDepVarDataSetIndex, 3u);
    EXPECT_EQ(pData->uGroup1Index, 1u);
    SaveDataOptions(profile.Name(), pData.get(), kDataOptionsNormal, "Filter");
    EXPECT_EQ(profile.Value("FilterDataSection", "szDepVarSelectionList"), "1");
    EXPECT_EQ(profile.Value("FilterDataSection", "uIndepVarDataSetIndex"), "2");
}

TEST(DataRecordLoad, ResetWritesTheDefaultsAndReadsNothing) {
    const ProfileScope profile;
    profile.Put("CommonDataSection", "uGroup1Index", "5");
    auto pData = std::make_unique<ZXADLG_DataOptions>();
    std::memset(pData.get(), 0x22, sizeof *pData);
    std::strcpy(pData->szUnitarySelectionList2, "kept");
    LoadDataOptions(profile.Name(), pData.get(), nullptr, kDataOptionsReset, nullptr);
    EXPECT_STREQ(pData->szUnitarySelectionList1, "0");
    EXPECT_STREQ(pData->szUnitarySelectionList2, "kept");
    EXPECT_STREQ(pData->szDepVarSelectionList, "0");
    EXPECT_EQ(pData->eDataGroup1SelectionMode, 1);
    EXPECT_EQ(pData->eDataGroup2SelectionMode, 1);
    EXPECT_EQ(pData->eDataSet1SelectionMode, 4);
    EXPECT_EQ(pData->eDataSet2SelectionMode, 4);
    EXPECT_EQ(pData->uGroup1Index, 0u);
    EXPECT_EQ(pData->uGroup2Index, 0u);
    EXPECT_EQ(pData->uPairedGroupIndex, 0u);
    EXPECT_EQ(pData->uIndepVarDataSetIndex, 0u);
    EXPECT_EQ(pData->uDepVarDataSetIndex, 0u);
    EXPECT_EQ(pData->uSelectedDataSet, 0u);
    EXPECT_EQ(pData->bUseFullDataRange, 1);
    EXPECT_EQ(pData->uFirstDataIndex, 0x22222222u);
    SaveDataOptions(profile.Name(), pData.get(), kDataOptionsReset, nullptr);
    EXPECT_EQ(profile.Value("CommonDataSection", "uGroup1Index"), "5");
}

TEST(ArithmeticHistory, LinesTravelOneAtATime) {
    const ProfileScope profile;
    char szText[256] = "before";
    EXPECT_FALSE(LoadTraceExpression(profile.Name(), 0, szText, sizeof szText));
    EXPECT_STREQ(szText, "before");
    SaveTraceExpression(profile.Name(), 3, std::string(300, 'e').c_str());
    EXPECT_EQ(profile.Value("TraceArithmetic", "TraceExpression3"), std::string(255, 'e'));
    EXPECT_TRUE(LoadTraceExpression(profile.Name(), 3, szText, sizeof szText));
    EXPECT_EQ(std::string(szText), std::string(255, 'e'));

    SaveColumnExpression(profile.Name(), 1, "A*2");
    SaveColumnDescription(profile.Name(), 1, "twice");
    char szExpression[256] = {};
    EXPECT_TRUE(LoadColumnDescription(profile.Name(), 1, szText, szExpression, sizeof szText));
    EXPECT_STREQ(szText, "twice");
    EXPECT_STREQ(szExpression, "A*2");
    EXPECT_FALSE(LoadTraceExpression(nullptr, 3, szText, sizeof szText));
}

}  // namespace
