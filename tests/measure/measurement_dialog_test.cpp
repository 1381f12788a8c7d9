// The page of the searches: what it shows, what follows what, and what it stores.

#include "MeasurementTest.h"
#include "measure/MeasurementTables.h"

namespace {

using namespace measurement_test;

class MeasurementPageTest : public MeasurementTest {};

constexpr int kTimeFields[] = {2468, 2471, 2587, 2588};
constexpr int kBaselineTimeFields[] = {2459, 2460, 2589, 2590};

// --- Opening -------------------------------------------------------------------------------------

TEST_F(MeasurementPageTest, ShowsTheRecord) {
    Search(0).bApplyFilter = 1;
    options.aBaselines[0].eBaseMode = 1;
    DialogScript script;
    script.ExpectTitle("Measurements")
        .ExpectItems(IDC_TABS, {"Measurements", "Output", "Data"})
        .ExpectChecked(2464, BST_CHECKED)
        .ExpectText(2465, "1")
        .ExpectSelected(2467, "Whole trace")
        .ExpectItems(2467, {"Whole trace", "Cursors 1..2", "Epoch A"})
        .ExpectText(2468, "0")
        .ExpectText(2471, "49.95")
        .ExpectText(2469, "ms (sample time = 0.05 ms)")
        .ExpectText(2470, "ms (sample time = 0.05 ms)")
        .ExpectText(2474, "ms (sample time = 0.05 ms)")
        .ExpectText(2475, "ms (sample time = 0.05 ms)")
        .ExpectChecked(2457, BST_UNCHECKED)
        .ExpectChecked(2458, BST_CHECKED)
        .ExpectSelected(2473, "Cursors 1..2")
        .ExpectText(2459, "5")
        .ExpectText(2460, "9.95")
        .ExpectText(2461, "-70.5")
        .ExpectText(2463, "pA")
        .ExpectText(2497, "10")
        .ExpectText(2498, "90")
        .ExpectText(2499, "80")
        .ExpectText(2500, "20")
        .ExpectText(2592, "55")
        .ExpectChecked(2411, BST_CHECKED)
        .ExpectChecked(2523, BST_CHECKED)
        .ExpectText(2264, "5")
        .ExpectText(2502, "= 0.25 ms");
    for (const int nId : {2493, 2494, 2495, 2496, 2505}) script.ExpectText(nId, "%");
    for (int i = 0; i < 19; ++i)
        script.ExpectChecked(kMeasurements[i].nCheck, i == 4 ? BST_CHECKED : BST_UNCHECKED);
    ShowAndAccept(script);
}

TEST_F(MeasurementPageTest, CaptionsHaveTheUnitOfTheSetBefore) {
    struct Units : TestDataSource {
        const char* GetUnits(uint32_t uGroup, int32_t nIndex) override {
            groups.push_back(uGroup);
            indices.push_back(nIndex);
            return units.empty() ? nullptr : units.c_str();
        }
        std::vector<uint32_t> groups;
        std::vector<int32_t> indices;
    } asked;
    asked.samplingFrequency = 20000.0;
    asked.regions = source.regions;
    asked.units = "mV";
    std::strcpy(data.szUnitarySelectionList1, "0");
    data.uGroup1Index = 1;
    const char* kCaptions[] = {"Pea&k amplitude (mV)",
                               "Time of peak (ms)",
                               "Antipeak amplitude (mV)",
                               "Time of antipeak (ms)",
                               "Mean (mV)",
                               "Standard deviation (mV)",
                               "Area (mV \xB7 ms)",
                               "Half-width (ms)",
                               "Maximum rise slope (mV/ms)",
                               "Time of maximum rise slope (ms)",
                               "Maximum decay slope (mV/ms)",
                               "Time of maximum decay slope (ms)",
                               "Slope (mV/ms)",
                               "Baseline (mV)",
                               "Rise slope (mV/ms)",
                               "Rise time (ms)",
                               "Decay slope (mV/ms)",
                               "Decay time (ms)",
                               "Event duration (ms)"};
    DialogScript script;
    for (int i = 0; i < 19; ++i) script.ExpectText(kMeasurements[i].nCheck, kCaptions[i]);
    script.ExpectText(2463, "mV").Click(IDCANCEL);
    const ZXADLG_MeasurementOptions passed = options;
    CMeasurementDialog dialog(nullptr, &options, &passed, nullptr, &data, &asked, &params);
    EXPECT_EQ(script.Run([&] { return static_cast<int>(dialog.DoModal()); }), IDCANCEL);
    ASSERT_FALSE(asked.indices.empty());
    EXPECT_EQ(asked.indices.back(), -1);
    EXPECT_EQ(asked.groups.back(), 1u);
}

TEST_F(MeasurementPageTest, AUnitIsNoFormatAndIsCut) {
    source.units = "%s%d%n";
    DialogScript script;
    script.ExpectText(2480, "Mean (%s%d%n)").ExpectText(2463, "%s%d%n");
    ShowAndCancel(script);
    source.units = std::string(200, 'x');
    DialogScript lengthy;
    lengthy.ExpectText(2480, "Mean (" + std::string(73, 'x'));
    ShowAndCancel(lengthy);
    source.nullTexts = true;
    DialogScript none;
    none.ExpectText(2480, "Mean ()").ExpectText(2463, "").ExpectText(2524, "&Data group:");
    ShowAndCancel(none);
}

TEST_F(MeasurementPageTest, AnotherSelectionRedoesTheUnits) {
    DialogScript script;
    script.Do([this] { source.units = "nA"; })
        .SelectTab("Data")
        .Choose(IDC_GROUP, 1)
        .SelectTab("Measurements")
        .ExpectText(2476, "Pea&k amplitude (nA)")
        .ExpectText(2463, "nA");
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, WithoutASamplingRateTimesCountSamples) {
    source.samplingFrequency = 0.0;
    options.aStatsRegions[0].eStatsRegion = 3;
    options.aBaselines[0].eBaseRegion = 8;
    DialogScript script;
    script.ExpectText(2469, "samples")
        .ExpectText(2475, "samples")
        .ExpectText(2468, "100")
        .ExpectText(2471, "199")
        .Type(2468, "7.5")
        .Do([this] {
            EXPECT_EQ(options.aStatsRegions[0].nStatsRegionStartIndex, 8);
            EXPECT_EQ(options.aStatsRegions[0].dStatsRegionStartTime, 7.5);
        });
    ShowAndAccept(script);
}

// --- The search number ---------------------------------------------------------------------------

TEST_F(MeasurementPageTest, AnotherNumberShowsItsSearch) {
    Search(11).bArea = 1;
    Search(11).nRiseFromPercent = 33;
    options.aStatsRegions[11].eStatsRegion = 3;
    options.aPolarities[11].aePeakPolarity[0] = 2;
    DialogScript script;
    script.Type(2465, "12")
        .ExpectText(2465, "12")
        .Do([this] { EXPECT_EQ(options.nDlgSearchIndex, 11); })
        .ExpectChecked(2464, BST_UNCHECKED)
        .ExpectChecked(2482, BST_CHECKED)
        .ExpectChecked(2480, BST_UNCHECKED)
        .ExpectText(2497, "33")
        .ExpectSelected(2467, "Cursors 1..2")
        .ExpectText(2468, "5")
        .ExpectChecked(2412, BST_CHECKED)
        .Type(2465, "1")
        .ExpectChecked(2464, BST_CHECKED)
        .ExpectText(2497, "10");
    ShowAndAccept(script);
}

TEST_F(MeasurementPageTest, TheArrowsStepThroughTheSearches) {
    DialogScript script;
    script.Focus(2465).Press(VK_UP).ExpectText(2465, "2").Do(
        [this] { EXPECT_EQ(options.nDlgSearchIndex, 1); });
    script.Wait(60).Press(VK_DOWN).ExpectText(2465, "1").Wait(60).Press(VK_DOWN).ExpectText(2465,
                                                                                            "1");
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, AStoredNumberOfNoSearchBecomesTheFirst) {
    for (const std::int32_t nIndex : {24, -1, -2147483647 - 1, 2147483647}) {
        options.nDlgSearchIndex = nIndex;
        DialogScript script;
        script.ExpectText(2465, "1");
        ShowAndAccept(script);
        EXPECT_EQ(options.nDlgSearchIndex, 0);
    }
}

TEST_F(MeasurementPageTest, ATypedNumberOfNoSearchChangesNothingAndIsRefused) {
    Search(6).bRegionEnable = 1;
    // On the way a number may be that of a search.
    const std::pair<const char*, int> rows[] = {{"0", 6}, {"25", 1}, {"-3", 6}, {"2147483648", 20}};
    for (const auto& [szNumber, nShown] : rows) {
        options.nDlgSearchIndex = 6;
        DialogScript script;
        script.Type(2465, szNumber)
            .Do([this, nShown = nShown] { EXPECT_EQ(options.nDlgSearchIndex, nShown); })
            .Click(IDOK)
            .Answer(kOkButton,
                    "Validation Error\r\n\r\nThe value in this field is not a member of the list "
                    "of allowable values.")
            .ExpectFocus(2465);
        ShowAndCancel(script);
    }
    options.nDlgSearchIndex = 6;
    DialogScript empty;
    empty.Type(2465, "").Do([this] { EXPECT_EQ(options.nDlgSearchIndex, 6); });
    ShowAndAccept(empty);
    EXPECT_EQ(options.nDlgSearchIndex, 6);
}

// --- The region ----------------------------------------------------------------------------------

TEST_F(MeasurementPageTest, AChoiceAsksTheHostAndTypingMovesTheEnds) {
    DialogScript script;
    script.Choose(2467, "Cursors 1..2")
        .ExpectText(2468, "5")
        .ExpectText(2471, "9.95")
        .Do([this] {
            const ZXADLG_StatisticsRegion& region = options.aStatsRegions[0];
            EXPECT_EQ(region.eStatsRegion, 3);
            EXPECT_EQ(region.nStatsRegionStartIndex, 100);
            EXPECT_EQ(region.nStatsRegionEndIndex, 199);
            EXPECT_DOUBLE_EQ(region.dStatsRegionStartTime, 5.0);
            EXPECT_DOUBLE_EQ(region.dStatsRegionEndTime, 9.95);
        })
        .Type(2468, "0.149")
        .Do([this] {
            const ZXADLG_StatisticsRegion& region = options.aStatsRegions[0];
            EXPECT_EQ(region.nStatsRegionStartIndex, 3);
            EXPECT_EQ(region.nStatsRegionEndIndex, 199);
            EXPECT_DOUBLE_EQ(region.dStatsRegionStartTime, 0.149);
        })
        .Choose(2467, "Epoch A")
        .ExpectText(2468, "15")
        .Do([this] {
            EXPECT_EQ(options.aStatsRegions[0].eStatsRegion, 40);
            EXPECT_EQ(options.aStatsRegions[0].nStatsRegionStartIndex, 300);
        })
        .Choose(2467, "Cursors 1..2")
        .ExpectText(2468, "5");
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, TheBaselineWorksTheSameWay) {
    DialogScript script;
    script.Choose(2473, "Epoch A")
        .ExpectText(2459, "15")
        .Choose(2473, "Cursors 1..2")
        .Type(2460, "12.5")
        .Do([this] {
            const ZXADLG_BaselineRegion& baseline = options.aBaselines[0];
            EXPECT_EQ(baseline.eBaseRegion, 3);
            EXPECT_EQ(baseline.nBaseRegionStartIndex, 100);
            EXPECT_EQ(baseline.nBaseRegionEndIndex, 250);
            EXPECT_DOUBLE_EQ(baseline.dBaseRegionStartTime, 5.0);
            EXPECT_DOUBLE_EQ(baseline.dBaseRegionEndTime, 12.5);
        });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, ATimeBeyondTheDataBecomesTheirEndWhenTheFieldIsLeft) {
    options.aStatsRegions[0].eStatsRegion = 3;
    options.aBaselines[0].eBaseRegion = 8;
    DialogScript script;
    script.Type(2471, "60")
        .ExpectText(2471, "60")
        .Do([this] {
            EXPECT_EQ(options.aStatsRegions[0].nStatsRegionEndIndex, 999);
            EXPECT_DOUBLE_EQ(options.aStatsRegions[0].dStatsRegionEndTime, 49.95);
        })
        .Press(VK_TAB)
        .ExpectText(2471, "49.95")
        .Type(2468, "-4")
        .Press(VK_RETURN);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.aStatsRegions[0].dStatsRegionStartTime, 0.0);
}

TEST_F(MeasurementPageTest, TheArrowsOfATimeGoBySamples) {
    options.aStatsRegions[0].eStatsRegion = 3;
    DialogScript script;
    script.Focus(2468).Press(VK_UP).Do([this](HWND dialog) {
        EXPECT_EQ(test_support::TextOf(FindControl(dialog, 2468)), "5.05");
        EXPECT_EQ(options.aStatsRegions[0].nStatsRegionStartIndex, 101);
    });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, AtOpeningAllRegionsAreTheHosts) {
    options.aStatsRegions[7] = {.eStatsRegion = 3, .dStatsRegionEndTime = 44.0};
    options.aBaselines[7] = {.eBaseRegion = 99, .dBaseRegionEndTime = 44.0};
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_EQ(options.aStatsRegions[7].nStatsRegionStartIndex, 100);
    EXPECT_DOUBLE_EQ(options.aStatsRegions[7].dStatsRegionEndTime, 9.95);
    // One that the data lack waits until it is shown.
    EXPECT_EQ(options.aBaselines[7].dBaseRegionEndTime, 44.0);
}

TEST_F(MeasurementPageTest, AKindThatTheDataLackBecomesTheOneShown) {
    options.aStatsRegions[0] = {.eStatsRegion = 99, .nStatsRegionEndIndex = 12};
    options.aStatsRegions[1] = {.eStatsRegion = -1};
    DialogScript script;
    script.ExpectSelected(2467, "Whole trace").Type(2465, "2");
    ShowAndCancel(script);
    for (const int i : {0, 1}) {
        EXPECT_EQ(options.aStatsRegions[i].eStatsRegion, 8);
        EXPECT_EQ(options.aStatsRegions[i].nStatsRegionEndIndex, 999);
    }
}

TEST_F(MeasurementPageTest, ARegionWithoutAnExtentIsEmpty) {
    source.regions[1].hasExtent = false;
    options.aStatsRegions[0] = {.eStatsRegion = 3,
                                .nStatsRegionStartIndex = 5,
                                .nStatsRegionEndIndex = 12,
                                .dStatsRegionStartTime = 1.0,
                                .dStatsRegionEndTime = 2.0};
    DialogScript script;
    script.ExpectText(2468, "0").ExpectText(2471, "0");
    ShowAndCancel(script);
    EXPECT_EQ(options.aStatsRegions[0].nStatsRegionEndIndex, 0);
    EXPECT_EQ(options.aStatsRegions[0].dStatsRegionEndTime, 0.0);
}

TEST_F(MeasurementPageTest, DataOfAFewSamples) {
    // The host's region lies behind them: the field shows where they end.
    const std::pair<std::uint32_t, const char*> rows[] = {{0, "0"}, {1, "0.05"}, {5, "0.25"}};
    for (const auto& [uPoints, szShown] : rows) {
        SCOPED_TRACE(uPoints);
        source.Points(uPoints);
        options.aStatsRegions[0].eStatsRegion = 3;
        Search(0).bApplyFilter = 1;
        Search(0).nSmoothingPoints = 3;
        DialogScript script;
        script.ExpectText(2264, "3").ExpectText(2468, szShown);
        script.Focus(2264).Press(VK_UP).ExpectText(2264, "3");
        ShowAndCancel(script);
    }
}

// --- What can be edited --------------------------------------------------------------------------

TEST_F(MeasurementPageTest, ASearchThatIsOffIsGreyedButItsNumber) {
    DialogScript script;
    script.Click(2464);
    for (const Measurement& measurement : kMeasurements)
        script.ExpectEnabled(measurement.nCheck, false);
    for (const int nId :
         {2512, 2467, 2510, 2468, 2587, 2469, 2511, 2471, 2588, 2470, 2519, 2457, 2458, 2473, 2517,
          2459, 2589, 2474, 2518, 2460, 2590, 2475, 2461, 2463, 2520, 2524, 2456, 2501, 2410, 2411,
          2412, 2521, 2523, 2522, 2264, 2265, 2502, 2454, 2455, 2513, 2497, 2504, 2493, 2515, 2498,
          2507, 2494, 2514, 2499, 2508, 2495, 2516, 2500, 2509, 2496, 2525, 2592, 2594, 2505, 2530})
        script.ExpectEnabled(nId, false);
    for (const int nId : {2464, 2465, 2466}) script.ExpectEnabled(nId, true);
    script.Do([this] { EXPECT_EQ(Search(0).bRegionEnable, 0); })
        .Click(2464)
        .ExpectEnabled(2480, true)
        .ExpectEnabled(2467, true)
        .ExpectEnabled(2512, true)
        .ExpectEnabled(2519, true)
        .ExpectEnabled(2520, true)
        .ExpectEnabled(2521, true)
        .ExpectEnabled(2454, true);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, OnlyNumberedRegionsHaveEndsToEdit) {
    DialogScript script;
    for (const auto& [szRegion, bEdit] : std::vector<std::pair<const char*, bool>>{
             {"Epoch A", false}, {"Cursors 1..2", true}, {"Whole trace", true}}) {
        script.Choose(2467, szRegion);
        for (const int nId : kTimeFields) script.ExpectEnabled(nId, bEdit);
        // The labels do not follow.
        for (const int nId : {2510, 2511, 2469, 2470}) script.ExpectEnabled(nId, true);
        script.Choose(2473, szRegion);
        for (const int nId : kBaselineTimeFields) script.ExpectEnabled(nId, bEdit);
        for (const int nId : {2517, 2518, 2474, 2475}) script.ExpectEnabled(nId, true);
    }
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, AKindOfZeroHasNoEndsToEdit) {
    source.Region(0, "None", 0, 0);
    options.aStatsRegions[0].eStatsRegion = 0;
    DialogScript script;
    for (const int nId : kTimeFields) script.ExpectEnabled(nId, false);
    script.ExpectEnabled(2510, true).ExpectEnabled(2469, true);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, TheBaselineIsAMeanOrAValue) {
    DialogScript script;
    for (const bool bFixed : {false, true, false}) {
        script.Click(bFixed ? 2458 : 2457).Do([this, bFixed] {
            EXPECT_EQ(options.aBaselines[0].eBaseMode, bFixed ? 1 : 0);
        });
        for (const int nId : {2473, 2474, 2475, 2517, 2518, 2459, 2460, 2589, 2590})
            script.ExpectEnabled(nId, !bFixed);
        for (const int nId : {2461, 2463}) script.ExpectEnabled(nId, bFixed);
        script.ExpectEnabled(2457, true).ExpectEnabled(2458, true);
    }
    script.Click(2458).Type(2461, "-12.25").Do([this] {
        EXPECT_EQ(options.aBaselines[0].dBaseFixedValue, -12.25);
    });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, PercentsFollowTheirMeasurements) {
    const struct {
        int nFirst, nSecond;
        std::vector<int> vFields;
    } groups[] = {{2490, 2486, {2497, 2504, 2498, 2507}},
                  {2491, 2487, {2499, 2508, 2500, 2509}},
                  {2591, 2591, {2592, 2594}}};
    DialogScript script;
    for (const auto& group : groups) {
        const auto expect = [&](bool bEnabled) {
            for (const int nId : group.vFields) script.ExpectEnabled(nId, bEnabled);
        };
        expect(false);
        script.Click(group.nFirst);
        expect(true);
        script.Click(group.nFirst);
        expect(false);
        script.Click(group.nSecond);
        expect(true);
        script.Click(group.nSecond);
        expect(false);
    }
    for (const int nId : {2513, 2493, 2515, 2494, 2514, 2495, 2516, 2496, 2525, 2505})
        script.ExpectEnabled(nId, true);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, TheSmoothingLengthFollowsItsBox) {
    DialogScript script;
    for (const int nId : {2264, 2265, 2522, 2502}) script.ExpectEnabled(nId, false);
    script.Click(2523);
    for (const int nId : {2264, 2265, 2522, 2502}) script.ExpectEnabled(nId, true);
    script.Focus(2264).Press(VK_UP).ExpectText(2264, "7").ExpectText(2502, "= 0.35 ms").Do([this] {
        EXPECT_EQ(Search(0).nSmoothingPoints, 7);
        EXPECT_EQ(Search(0).bApplyFilter, 1);
    });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, TheWindowInMillisecondsHasSixDigits) {
    source.samplingFrequency = 30000.0;
    DialogScript script;
    script.ExpectText(2502, "= 0.166667 ms").ExpectText(2469, "ms (sample time = 0.0333333 ms)");
    ShowAndCancel(script);
    source.samplingFrequency = 1e-5;
    DialogScript slow;
    slow.ExpectText(2502, "= 5e+08 ms");
    ShowAndCancel(slow);
}

// --- What is stored ------------------------------------------------------------------------------

TEST_F(MeasurementPageTest, EachBoxSwitchesItsMeasurement) {
    Search(0).bMean = 0;
    DialogScript script;
    for (int i = 0; i < 19; ++i) {
        script.Click(kMeasurements[i].nCheck).Do([this, i] {
            for (int k = 0; k < 19; ++k)
                EXPECT_EQ(Search(0).*kMeasurements[k].pOn, k <= i) << i << ' ' << k;
        });
    }
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, AllOrNothingIsMeasured) {
    DialogScript script;
    script.Click(2454).Do([this] {
        for (const Measurement& measurement : kMeasurements)
            EXPECT_EQ(Search(0).*measurement.pOn, 1);
    });
    for (const Measurement& measurement : kMeasurements)
        script.ExpectChecked(measurement.nCheck, BST_CHECKED);
    script.Click(2455).Do([this] {
        for (const Measurement& measurement : kMeasurements)
            EXPECT_EQ(Search(0).*measurement.pOn, 0);
    });
    for (const Measurement& measurement : kMeasurements)
        script.ExpectChecked(measurement.nCheck, BST_UNCHECKED);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, PercentsAreStoredWhereTheyAreInRange) {
    Search(0).bRiseTime = Search(0).bDecayTime = Search(0).bEventDuration = 1;
    DialogScript script;
    for (const MeasurementPercent& percent : kMeasurementPercents) {
        script.Type(percent.nField, "37").Do([this, &percent] {
            EXPECT_EQ(Search(0).*percent.pPercent, 37);
        });
    }
    script.Type(2497, "150")
        .Do([this] { EXPECT_EQ(Search(0).nRiseFromPercent, 15); })
        .Type(2465, "2")
        .Type(2465, "1")
        .ExpectText(2497, "15");
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, APercentOutOfRangeIsRefused) {
    Search(0).bRiseTime = 1;
    DialogScript script;
    script.Type(2498, "101").Click(IDOK).Answer(kOkButton).ExpectFocus(2498);
    ShowAndCancel(script);
    EXPECT_EQ(
        script.Messages().at(0).text,
        "Validation Error\r\n\r\nValue in field 'To' must fall within the range of 0 to 100.");
}

TEST_F(MeasurementPageTest, StoredPercentsOutOfRangeBecomeTheNearerEnd) {
    Search(0).nRiseFromPercent = -7;
    Search(0).nRiseToPercent = 2147483647;
    DialogScript script;
    script.ExpectText(2497, "0").ExpectText(2498, "100");
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).nRiseFromPercent, 0);
    EXPECT_EQ(Search(0).nRiseToPercent, 100);
}

TEST_F(MeasurementPageTest, ALengthOfNoListIsRefused) {
    Search(0).bApplyFilter = 1;
    DialogScript script;
    script.Type(2264, "8")
        .Do([this] { EXPECT_EQ(Search(0).nSmoothingPoints, 5); })
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nThe value in this field is not a member of the list of "
                "allowable values.")
        .ExpectFocus(2264);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, AStoredLengthBelowThreeBecomesThree) {
    for (const std::int32_t nPoints : {2, 0, -1}) {
        Search(0).nSmoothingPoints = nPoints;
        DialogScript script;
        script.ExpectText(2264, "3").ExpectText(2502, "= 0.15 ms");
        ShowAndAccept(script);
        EXPECT_EQ(Search(0).nSmoothingPoints, 3);
    }
}

// --- The polarity --------------------------------------------------------------------------------

TEST_F(MeasurementPageTest, EachGroupHasItsPolarity) {
    source.activeGroup = 1;
    DialogScript script;
    script.ExpectText(2524, "Signal:")
        .ExpectItems(2456, {"IN 0", "IN 1"})
        .ExpectSelected(2456, "IN 1")
        .ExpectChecked(2412, BST_CHECKED)
        .Choose(2456, "IN 0")
        .ExpectChecked(2411, BST_CHECKED)
        .Click(2410)
        .Do([this] {
            EXPECT_EQ(options.aPolarities[0].aePeakPolarity[0], 0);
            EXPECT_EQ(options.aPolarities[0].aePeakPolarity[1], 2);
        });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, OnePolarityMayStandForAllGroups) {
    DialogScript script;
    script.ExpectEnabled(2456, true)
        .Click(2501)
        .ExpectEnabled(2456, false)
        .ExpectChecked(2412, BST_CHECKED)
        .Click(2410)
        .Do([this] {
            EXPECT_EQ(options.aPolarities[0].bPeakApplyToAll, 1);
            EXPECT_EQ(options.aPolarities[0].eAllGroupsPeakPolarity, 0);
            EXPECT_EQ(options.aPolarities[0].aePeakPolarity[0], 1);
        })
        .Click(2501)
        .ExpectEnabled(2456, true)
        .ExpectChecked(2411, BST_CHECKED);
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, GroupsBeyondTheSixteenthHaveNoPolarity) {
    std::vector<std::string> names;
    for (int i = 0; i < 20; ++i) names.push_back("G" + std::to_string(i));
    names[3] = "";
    source.Groups(names);
    source.activeGroup = 19;
    DialogScript script;
    script
        .Do([](HWND dialog) {
            const auto items = ItemsOf(FindControl(dialog, 2456));
            ASSERT_EQ(items.size(), 15u);
            EXPECT_EQ(items.back(), "G15");
        })
        .ExpectSelected(2456, "G0")
        .Choose(2456, "G15")
        .Click(2412)
        .Do([this] { EXPECT_EQ(options.aPolarities[0].aePeakPolarity[15], 2); });
    ShowAndCancel(script);
}

TEST_F(MeasurementPageTest, TheGroupIsAChoiceWhereTheHostAllowsItAndThereAreTwo) {
    for (const bool bAllowed : {false, true}) {
        for (const bool bTwo : {false, true}) {
            params.bMeasurementOptionA = bAllowed ? 1 : 0;
            source.Groups(bTwo ? std::vector<std::string>{"A", "B"}
                               : std::vector<std::string>{"A", ""});
            DialogScript script;
            script.ExpectEnabled(2456, bAllowed && bTwo);
            ShowAndCancel(script);
        }
    }
}

}  // namespace
