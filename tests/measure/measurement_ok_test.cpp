// OK: what is refused, what is asked, what is handed back; the import, and the other modes.

#include <cmath>

#include "MeasurementTest.h"
#include "contract/OptionPersistence.h"
#include "measure/MeasurementRegions.h"

namespace {

using namespace measurement_test;

constexpr const char* kSameRegion = "The search and baseline regions must be different.";
constexpr const char* kXDiffers =
    "One or more measurement regions have different x axis variable assignments.\nThe graph x "
    "axis label will show only the first region selection.";

class MeasurementOkTest : public MeasurementTest {
  protected:
    // A search that is on, with this x variable.
    void TurnOn(int i, int nX) {
        Search(i).bRegionEnable = 1;
        Search(i).bMean = Search(i).bArea = 1;
        Search(i).eAutoPlotXVariable = nX;
    }
};

// --- Regions -------------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, WithNoSearchOnOkPassesWithoutAnyRegionTest) {
    Search(0).bRegionEnable = 0;
    for (int i = 0; i < 24; ++i) options.aBaselines[i].eBaseRegion = 8;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(MeasurementOkTest, SearchAndBaselineOfOneRegionAreRefused) {
    TurnOn(4, 0);
    options.aBaselines[4].eBaseRegion = 8;
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDOK)
        .Answer(kOkButton, kSameRegion)
        .ExpectSelected(IDC_TABS, "Measurements")
        .ExpectText(2465, "5")
        .ExpectFocus(2467);
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages().at(0).title, "Error");
    EXPECT_EQ(options.nDlgSearchIndex, 4);
}

TEST_F(MeasurementOkTest, SearchAndBaselineOfOneRegionPassWhenTheBaselineIsFixed) {
    options.aBaselines[0].eBaseRegion = 8;
    options.aBaselines[0].eBaseMode = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(MeasurementOkTest, StartAboveEndIsSwappedSilently) {
    options.aStatsRegions[0].eStatsRegion = 3;
    options.aBaselines[0].eBaseRegion = 8;
    DialogScript script;
    script.Type(2468, "30").Type(2471, "12.5").Type(2459, "44");
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    const RegionSpan region = SpanOf(options.aStatsRegions[0]);
    EXPECT_EQ(region.nStart, 250);
    EXPECT_EQ(region.nEnd, 600);
    EXPECT_DOUBLE_EQ(region.dStart, 12.5);
    EXPECT_DOUBLE_EQ(region.dEnd, 30.0);
    EXPECT_DOUBLE_EQ(options.aBaselines[0].dBaseRegionStartTime, 44.0);
    EXPECT_DOUBLE_EQ(options.aBaselines[0].dBaseRegionEndTime, 49.95);
}

TEST_F(MeasurementOkTest, TheHostLearnsWhereTheRegionsAre) {
    options.aStatsRegions[0].eStatsRegion = 3;
    options.aBaselines[0].eBaseRegion = 40;
    DialogScript script;
    script.Type(2468, "30").Type(2471, "12.5");
    ShowAndAccept(script);
    EXPECT_EQ(data.aRegions[1].nRegionId, 3);
    EXPECT_EQ(data.aRegions[1].uFirstPoint, 250u);
    EXPECT_EQ(data.aRegions[1].uLastPoint, 600u);
    EXPECT_DOUBLE_EQ(data.aRegions[1].dStart, 12.5);
    EXPECT_DOUBLE_EQ(data.aRegions[1].dEnd, 30.0);
    EXPECT_EQ(data.aRegions[2].nRegionId, 40);
    EXPECT_EQ(data.aRegions[2].uFirstPoint, 300u);
    EXPECT_DOUBLE_EQ(data.aRegions[2].dStart, 15.0);
}

// --- The x axis ----------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, EachSearchWithAnotherXAsksAndOkGoesOn) {
    TurnOn(0, 8);
    TurnOn(2, 10);
    TurnOn(5, 8);
    TurnOn(9, 1);
    DialogScript script;
    script.Click(IDOK).Answer(kOkButton, kXDiffers).Answer(kOkButton, kXDiffers);
    EXPECT_EQ(Show(script), IDOK);
    ASSERT_EQ(script.Messages().size(), 2u);
    EXPECT_EQ(script.Messages()[0].title, "Warning");
    ASSERT_EQ(script.Messages()[0].buttons.size(), 2u);
    EXPECT_EQ(script.Messages()[0].buttons[0].text, "OK");
    EXPECT_EQ(script.Messages()[0].buttons[1].text, "Cancel");
    EXPECT_EQ(options.nDlgSearchIndex, 0);
}

TEST_F(MeasurementOkTest, CancelShowsTheSearchAndItsAxis) {
    TurnOn(0, 8);
    TurnOn(2, 10);
    Search(2).bDoAutoGraph = 1;
    DialogScript script;
    script.Click(IDOK)
        .Answer(kCancelButton, kXDiffers)
        .ExpectSelected(IDC_TABS, "Output")
        .ExpectSelected(2574, "Area")
        .ExpectFocus(2574)
        .SelectTab("Measurements")
        .ExpectText(2465, "3");
    ShowAndCancel(script);
}

TEST_F(MeasurementOkTest, CancelWithoutAnOutputPageShowsTheSearch) {
    params.bShowMeasurementOutput = 0;
    TurnOn(0, 8);
    TurnOn(2, 10);
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDOK)
        .Answer(kCancelButton, kXDiffers)
        .ExpectSelected(IDC_TABS, "Measurements")
        .ExpectText(2465, "3");
    ShowAndCancel(script);
}

TEST_F(MeasurementOkTest, WhatIsNotAssignedIsNotCompared) {
    for (const int nUnset : {0, -1, 24}) {
        TurnOn(0, 8);
        TurnOn(2, nUnset);
        DialogScript script;
        ShowAndAccept(script);
        EXPECT_TRUE(script.Messages().empty()) << nUnset;
    }
}

TEST_F(MeasurementOkTest, TheEmptiedListsAreFilledBeforeOkWhereTheHostSaysSo) {
    for (const bool bRepair : {false, true}) {
        params.bMeasurementRegionCheck = bRepair ? 1 : 0;
        Search(0).bPeakAmplitude = 0;
        DialogScript script;
        script.Click(2476);
        ShowAndAccept(script);
        EXPECT_EQ(Search(0).nNumYPlotItems, bRepair ? 2 : 0);
    }
}

// --- A failed OK ---------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, AFailedOkLeavesSearchesAndRegionsAlone) {
    AllowImport(false);
    TurnOn(4, 0);
    options.aBaselines[4].eBaseMode = 1;
    DialogScript script;
    script.Click(2529)
        .SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, "No data have been selected. At least one data set must be specified.")
        .Do([this] { EXPECT_EQ(options.aStatsRegions[4].nStatsRegionStartIndex, 0); });
    ShowAndCancel(script);
    EXPECT_EQ(Search(4).bRegionEnable, 1);
}

TEST_F(MeasurementOkTest, TheTabOfTheLastOkComesUp) {
    DialogScript first;
    first.SelectTab("Output").Click(IDOK);
    EXPECT_EQ(Show(first), IDOK);
    DialogScript second;
    second.ExpectSelected(IDC_TABS, "Output").SelectTab("Data").Click(IDCANCEL);
    EXPECT_EQ(Show(second), IDCANCEL);
    DialogScript third;
    third.ExpectSelected(IDC_TABS, "Output");
    ShowAndCancel(third);
}

// --- The import ----------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, TheFirstSearchAloneStaysOnWhenTheImportIsInUse) {
    AllowImport(false);
    Search(0).bRegionEnable = 0;
    TurnOn(4, 8);
    TurnOn(6, 10);
    options.aBaselines[4].eBaseRegion = 8;
    DialogScript script;
    script.ExpectEnabled(2529, true).Click(2529);
    for (const int nId : {2464, 2465, 2466, 2467, 2480, 2456, 2530})
        script.ExpectEnabled(nId, false);
    ShowAndAccept(script);
    EXPECT_EQ(options.bImportFromFile, 1);
    for (int i = 0; i < 24; ++i) EXPECT_EQ(Search(i).bRegionEnable, i == 0) << i;
}

TEST_F(MeasurementOkTest, AnImportThatIsNotAllowedIsNotInUse) {
    options.bImportFromFile = 1;
    DialogScript script;
    script.ExpectEnabled(2529, false)
        .ExpectChecked(2529, BST_UNCHECKED)
        .ExpectEnabled(2464, true)
        .ExpectEnabled(2480, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.bImportFromFile, 0);
    EXPECT_EQ(Search(0).bRegionEnable, 1);
}

TEST_F(MeasurementOkTest, OnlyADataFileHasAnImport) {
    AllowImport(true);
    source.Kind(1);
    DialogScript script;
    script.ExpectEnabled(2529, false).ExpectEnabled(2464, true);
    ShowAndCancel(script);
}

TEST_F(MeasurementOkTest, WhatIsStoredGivesWayToTheAcquisition) {
    pHost = std::make_unique<ZXADLG_MeasurementOptions>(options);
    pHost->bImportAllowed = 1;
    pHost->aSearches[0].bArea = 1;
    pHost->aSearches[0].nRiseFromPercent = 44;
    pHost->aSearches[0].bDoAutoGraph = 1;
    Search(0).eAutoPlotXVariable = 8;
    Search(3).bMean = 1;
    DialogScript script;
    script.ExpectChecked(2482, BST_CHECKED)
        .ExpectText(2497, "44")
        .SelectTab("Output")
        .ExpectSelected(2574, "Mean")
        .ExpectChecked(2571, BST_UNCHECKED);
    ShowAndCancel(script);
    EXPECT_EQ(Search(3).bMean, 0);
}

TEST_F(MeasurementOkTest, NothingIsMergedWhereTheHostDoesNotAllowItOrInADeferredRun) {
    for (const bool bDeferred : {false, true}) {
        pHost = std::make_unique<ZXADLG_MeasurementOptions>(options);
        pHost->bImportAllowed = bDeferred ? 1 : 0;
        pHost->aSearches[0].nRiseFromPercent = 44;
        params.bDeferredRun = bDeferred ? 1 : 0;
        DialogScript script;
        script.ExpectText(2497, "10");
        ShowAndCancel(script);
    }
}

TEST_F(MeasurementOkTest, TheButtonTakesTheSettingsOfTheAcquisition) {
    pHost = std::make_unique<ZXADLG_MeasurementOptions>(options);
    pHost->bImportAllowed = 1;
    pHost->aStatsRegions[0].eStatsRegion = 40;
    pHost->aPolarities[0].aePeakPolarity[0] = 2;
    pHost->aSearches[5].bRegionEnable = 1;
    DialogScript script;
    script.Click(2476)
        .Choose(2467, "Cursors 1..2")
        .Type(2465, "6")
        .Click(2482)
        .Do([this] { options.eOutputOrder = 3; })
        .Click(2530)
        .ExpectText(2465, "1")
        .ExpectSelected(2467, "Epoch A")
        .ExpectText(2468, "15")
        .ExpectChecked(2412, BST_CHECKED)
        .ExpectChecked(2476, BST_UNCHECKED)
        .Do([this] {
            EXPECT_EQ(Search(5).bArea, 0);
            EXPECT_EQ(options.aStatsRegions[0].nStatsRegionStartIndex, 300);
            EXPECT_EQ(options.eOutputOrder, 3);
            EXPECT_EQ(options.nDlgSearchIndex, 0);
        });
    ShowAndCancel(script);
}

TEST_F(MeasurementOkTest, TheButtonNeedsThePermissionsOfTheHost) {
    for (const bool bByte : {false, true}) {
        for (const bool bAllowed : {false, true}) {
            params.bMeasurementOptionB = bByte ? 1 : 0;
            options.bImportAllowed = bAllowed ? 1 : 0;
            DialogScript script;
            script.ExpectEnabled(2530, bByte && bAllowed).ExpectEnabled(2529, bAllowed);
            ShowAndCancel(script);
        }
    }
}

// --- Read-only -----------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, ReadOnlyShowsTheRecordAsItIsAndMovesBetweenSearches) {
    params.bReadOnly = 1;
    options.aStatsRegions[0] = {.eStatsRegion = 3, .dStatsRegionEndTime = 1234.5};
    Search(0).nRiseFromPercent = 150;
    Search(0).nSmoothingPoints = -8;
    Search(11).nRiseFromPercent = 7;
    Search(11).bPeakTime = 1;
    const ZXADLG_MeasurementOptions before = options;
    DialogScript script;
    script.ExpectText(2471, "1234.5")
        .ExpectText(2469, "ms")
        .ExpectText(2475, "ms")
        .ExpectText(2497, "150")
        .ExpectText(2264, "-8")
        .ExpectEnabled(2464, false)
        .ExpectEnabled(2465, true)
        .ExpectEnabled(2466, true)
        .Type(2465, "12")
        .ExpectText(2497, "7")
        .ExpectChecked(2477, BST_CHECKED)
        .SelectTab("Output")
        .ExpectItems(2575, {"Time of peak (Trace)"})
        .ExpectSelected(2574, "Time (Trace)");
    ShowAndCancel(script);
    options.nDlgSearchIndex = before.nDlgSearchIndex;
    EXPECT_EQ(std::memcmp(&options, &before, sizeof before), 0);
}

// --- A deferred run ------------------------------------------------------------------------------

TEST_F(MeasurementOkTest, ADeferredRunAsksForNoRegionAndKeepsTheTimes) {
    params.bDeferredRun = 1;
    options.aStatsRegions[0] = {.eStatsRegion = 3,
                                .nStatsRegionStartIndex = 20,
                                .nStatsRegionEndIndex = 60,
                                .dStatsRegionStartTime = 1.0,
                                .dStatsRegionEndTime = 3.0};
    data.dSamplingFrequency = 50000.0;
    source.Record();
    DialogScript script;
    script.ExpectText(2469, "ms (sample time = 0.02 ms)")
        .ExpectText(2468, "1")
        .Choose(2467, "Epoch A")
        .ExpectText(2468, "1")
        .ExpectText(2471, "3");
    ShowAndAccept(script);
    EXPECT_EQ(options.aStatsRegions[0].eStatsRegion, 40);
    EXPECT_EQ(options.aStatsRegions[0].nStatsRegionEndIndex, 60);
    EXPECT_EQ(options.aStatsRegions[0].dStatsRegionEndTime, 3.0);
    for (const std::string& call : source.calls)
        EXPECT_NE(call.substr(0, 14), "GetRegionInfo(") << call;
}

TEST_F(MeasurementOkTest, ADeferredRunOverASourceOfZerosEndsWithOk) {
    params.bDeferredRun = 1;
    source.Groups({});
    source.regions.clear();
    source.samplingFrequency = 0.0;
    source.Points(0);
    params.bUseDataOptions = 0;
    // Without regions all are of one kind.
    options.aBaselines[0].eBaseMode = 1;
    DialogScript script;
    ShowAndAccept(script);
}

// --- The exported function -----------------------------------------------------------------------

class MeasurementShowTest : public MeasurementTest {
  protected:
    MeasurementShowTest() : m_bOld(SetUseProfileFile(true)) { source.Profile(store.ProfileFile()); }
    ~MeasurementShowTest() override { SetUseProfileFile(m_bOld); }

    int ShowExported(DialogScript& script, void* pContext = nullptr) {
        return script.Run([&] {
            return ZXADLG_ShowMeasurementDialog(nullptr, &options, pContext, &data, &source,
                                                &params);
        });
    }
    std::string Stored() const { return store.ReadFile(); }

    test_support::ScratchStore store;

  private:
    bool m_bOld;
};

TEST_F(MeasurementShowTest, ThePointerIsNeverRead) {
    for (void* pContext :
         {static_cast<void*>(nullptr), reinterpret_cast<void*>(std::uintptr_t{3})}) {
        DialogScript script;
        script.Click(IDOK);
        EXPECT_EQ(ShowExported(script, pContext), IDOK);
    }
}

TEST_F(MeasurementShowTest, BytesOfNoFieldStayTheHosts) {
    std::memset(static_cast<void*>(&options), 0xA5, sizeof options);
    options.bImportAllowed = 0x5A;
    source.Kind(1);
    for (int i = 0; i < 24; ++i) Search(i).bRegionEnable = 0;
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(ShowExported(script), IDOK);
    const auto* pBytes = reinterpret_cast<const unsigned char*>(&options);
    EXPECT_EQ(options.bImportAllowed, 0x5A);
    for (const int nByte : {0, 23, 28, 31, 156, 3744 + 20, 5856 + 65, 7590, 7598, 7604})
        EXPECT_EQ(pBytes[nByte], 0xA5) << nByte;
    EXPECT_EQ(options.nDlgSearchIndex, 0);
    EXPECT_EQ(options.eOutputOrder, static_cast<std::int32_t>(0xA5A5A5A5));
}

TEST_F(MeasurementShowTest, WithTheImportTheDataSelectionIsNotStored) {
    for (const bool bImport : {false, true}) {
        AllowImport(bImport);
        store.WriteFile("");
        DialogScript script;
        script.Click(IDOK);
        EXPECT_EQ(ShowExported(script), IDOK);
        EXPECT_NE(Stored().find("[Measurements]"), std::string::npos);
        EXPECT_EQ(Stored().find("[MeasurementsDataSection]") == std::string::npos, bImport);
    }
}

TEST_F(MeasurementShowTest, TheHostsSearchesShowWhateverIsStored) {
    store.WriteFile(
        "[Measurements]\r\nnDlgSearchIndex=0\r\nRiseFromPercent0=66\r\nAutoPlotXVariable0=8\r\n");
    DialogScript script;
    script.ExpectText(2497, "66").Click(IDCANCEL);
    EXPECT_EQ(ShowExported(script), IDCANCEL);
    AllowImport(false);
    DialogScript merged;
    merged.ExpectText(2497, "10").SelectTab("Output").ExpectSelected(2574, "Mean").Click(IDCANCEL);
    EXPECT_EQ(ShowExported(merged), IDCANCEL);
}

TEST_F(MeasurementShowTest, ReadOnlyStoresNothing) {
    params.bReadOnly = 1;
    store.WriteFile("[Measurements]\r\nRiseFromPercent0=66\r\n");
    DialogScript script;
    script.ExpectTitle("Measurements (read only)").ExpectText(2497, "10").Press(VK_RETURN);
    ShowExported(script);
    EXPECT_EQ(Stored(), "[Measurements]\r\nRiseFromPercent0=66\r\n");
}

// The odd keys: they are read, and their fields are kept, but never written.
TEST_F(MeasurementShowTest, TheOddKeysAreOnlyRead) {
    store.WriteFile("[Measurements]\r\nSTatsRegionEpisode23=41\r\nStatsRegionEpisode13=42\r\n");
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(ShowExported(script), IDOK);
    EXPECT_EQ(options.aStatsRegions[3].nStatsRegionEpisode2, 41);
    EXPECT_EQ(options.aStatsRegions[3].nStatsRegionEpisode1, 42);
    EXPECT_EQ(Stored().find("STatsRegionEpisode24="), std::string::npos);
}

// The polarities of a search run over those of the next one, and all share one key.
TEST_F(MeasurementShowTest, ThePolarityKeysOverlap) {
    store.WriteFile("[Measurements]\r\nPeakPolarity518=77\r\nAllGroupsPeakPolarity=2\r\n");
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(ShowExported(script), IDOK);
    EXPECT_EQ(options.aPolarities[6].aePeakPolarity[0], 77);
    EXPECT_EQ(options.aPolarities[23].eAllGroupsPeakPolarity, 2);
}

// A record of every byte 0xff, and hosts with nothing to offer.
TEST_F(MeasurementShowTest, ARecordOfOnesIsMadeGoodWhereItIsShown) {
    std::memset(static_cast<void*>(&options), 0xFF, sizeof options);
    DialogScript script;
    script.ExpectText(2465, "1")
        .ExpectSelected(2467, "Whole trace")
        .ExpectSelected(2473, "Whole trace")
        .ExpectChecked(2457, BST_CHECKED)
        .ExpectChecked(2410, BST_CHECKED)
        .ExpectText(2264, "3")
        .ExpectText(2497, "0")
        .ExpectChecked(2529, BST_CHECKED)
        .Click(IDOK);
    EXPECT_EQ(ShowExported(script), IDOK);
    // The import is in use: one search is on.
    EXPECT_EQ(options.bImportFromFile, 1);
    EXPECT_EQ(Search(0).bRegionEnable, 1);
    EXPECT_EQ(Search(1).bRegionEnable, 0);
    EXPECT_EQ(Search(0).nSmoothingPoints, 3);
    EXPECT_EQ(options.aBaselines[0].eBaseMode, 0);
    EXPECT_EQ(options.aPolarities[0].eAllGroupsPeakPolarity, 0);
}

TEST_F(MeasurementShowTest, AHostWithNothingIsShown) {
    source.Groups({}).NullTexts();
    source.regions.clear();
    source.samplingFrequency = std::nan("");
    DialogScript script;
    script.ExpectItems(2467, {}).ExpectItems(2456, {}).Click(2412).Click(IDCANCEL);
    EXPECT_EQ(ShowExported(script), IDCANCEL);
}

}  // namespace
