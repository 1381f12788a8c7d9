// What OK of the filter dialog says, where the focus goes, and what it hands back.

#include "FilterDialogFixture.h"
#include "standin/StandInLibrary.h"

namespace {

using namespace sigproc_test;

class FilterOk : public FilterDialogTest {
  protected:
    FilterOk() {
        options.lowpass = {1, 2, 0, 9, 1000.0, 0.0, 0.0, 0, {}};
        options.highpass = {0, 2, 0, 0, 10.0, 0.0, 0.0, 0, {}};
        options.notch = {0, 0, 0, 0, 60.0, 25.0, 0.0, 0, {}};
        options.adaptive.m_uHarmonicNumberEnd = 7;
        options.adaptive.m_uAveragingCycles = 4;
    }
    // OK shows this and nothing else, and puts the focus there with the text selected.
    static void Refuses(DialogScript& script, const char* szText, int nFocus,
                        int nAnswer = kOkButton) {
        script.Click(IDOK).Answer(nAnswer, szText).ExpectFocus(nFocus).Do([nFocus](HWND hDialog) {
            const HWND hField = FindControl(hDialog, nFocus);
            if (test_support::ClassOf(hField) != "edit") return;
            EXPECT_EQ(test_support::SelectedPart(hField), test_support::TextOf(hField));
        });
    }
};

TEST_F(FilterOk, TheIntervalMustBeAboveZero) {
    MakeSheet();
    DialogScript script;
    Refuses(script, "The sampling interval must be greater than zero.", IDC_FILTER_LOWPASS);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, TooFewPointsForTheFilter) {
    Points(10);
    DialogScript script;
    Refuses(script,
            "The filter needs at least 13 data points.\nThe data region contains 10 points.",
            IDC_LOWPASS_CUTOFF);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, ANotchThatDoesNotSettle) {
    DialogScript script;
    script.Click(IDC_FILTER_NOTCH).Type(IDC_NOTCH_WIDTH, "19");
    Refuses(script,
            "The notch filter settles over more points than the data contain.\nIncrease the notch "
            "width or select more data.",
            IDC_NOTCH_WIDTH);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, AWidthThatItsFieldDoesNotTakeIsToldOfFirst) {
    DialogScript script;
    script.Click(IDC_FILTER_NOTCH).Type(IDC_NOTCH_WIDTH, "-5").SelectTab("Data");
    Refuses(script,
            "Validation Error\r\n\r\nValue in field '-3 dB width' must fall within the range of 0 "
            "to 5000.",
            IDC_NOTCH_WIDTH);
    script.ExpectText(IDC_NOTCH_WIDTH, "-5");
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, NoHarmonicsBecomeOneAndNoCyclesFive) {
    DialogScript script;
    script.Click(IDC_FILTER_INTERFERENCE).Type(IDC_HUM_HARMONICS, "0").Type(IDC_HUM_CYCLES, "-3");
    Refuses(script, "The number of harmonics must be greater than zero.", IDC_HUM_HARMONICS);
    script.ExpectText(IDC_HUM_HARMONICS, "1");
    Refuses(script, "The number of cycles to average must be greater than zero.", IDC_HUM_CYCLES);
    script.ExpectText(IDC_HUM_CYCLES, "5").ExpectText(IDC_HUM_BANDWIDTH, "= 6.00 Hz");
    ShowAndAccept(script);
    EXPECT_EQ(options.adaptive.m_uHarmonicNumberEnd, 1u);
    EXPECT_EQ(options.adaptive.m_uAveragingCycles, 5u);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error", "Error"}));
}

TEST_F(FilterOk, WithAutoTheFocusGoesToTheFirstControlThatIsOpen) {
    options.lowpass.m_bIsSelected = 0;
    options.adaptive.m_bIsSelected = 1;
    options.adaptive.m_eReferenceGeneration = 2;
    options.adaptive.m_uAveragingCycles = 0;
    DialogScript script;
    Refuses(script, "The number of cycles to average must be greater than zero.",
            IDC_FILTER_INTERFERENCE);
    ShowAndAccept(script);
    EXPECT_EQ(options.adaptive.m_uAveragingCycles, 5u);
}

TEST_F(FilterOk, DataShorterThanAPeriodOfferNothing) {
    Points(199);
    DialogScript script;
    script.Click(IDC_FILTER_INTERFERENCE);
    Refuses(script,
            "The data region is shorter than one period of the interference.\nSelect more data or "
            "another filter.",
            IDC_HUM_CYCLES);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, FewerCyclesAreAskedForAndConfirmed) {
    Points(799);
    DialogScript script;
    script.Click(IDC_FILTER_INTERFERENCE);
    const char* szText =
        "The data region is too short for the number of cycles to average.\nReduce the number of "
        "cycles to 3?";
    Refuses(script, szText, IDC_HUM_CYCLES, kNoButton);
    script.ExpectText(IDC_HUM_CYCLES, "4");
    Refuses(script, szText, IDC_HUM_CYCLES, kYesButton);
    script.ExpectText(IDC_HUM_CYCLES, "3").ExpectText(IDC_HUM_BANDWIDTH, "= 10.00 Hz");
    ShowAndAccept(script);
    EXPECT_EQ(options.adaptive.m_uAveragingCycles, 3u);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Query", "Query"}));
    ASSERT_EQ(script.Messages()[0].buttons.size(), 2u);
    EXPECT_EQ(script.Messages()[0].buttons[0].text, "&Yes");
    EXPECT_EQ(script.Messages()[0].buttons[1].text, "&No");
}

TEST_F(FilterOk, SmoothingPointsBelowThree) {
    options.lowpass.m_eFilterFamily = 3;
    DialogScript script;
    script.Type(IDC_LOWPASS_POINTS, "1");
    Refuses(script, "The number of smoothing points must be at least 3.", IDC_LOWPASS_POINTS);
    script.Type(IDC_LOWPASS_POINTS, "101");
    Refuses(script, "The lowpass cutoff is outside the available range.", IDC_LOWPASS_POINTS);
    script.Type(IDC_LOWPASS_POINTS, "21");
    ShowAndAccept(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error", "Error"}));
}

TEST_F(FilterOk, CornersOutOfOrderOrRange) {
    library = kNoLibrary;
    DialogScript script;
    script.Click(IDC_FILTER_BANDPASS).Type(IDC_HIGHPASS_CUTOFF, "1000");
    Refuses(script,
            "The lowpass cutoff frequency must be greater than the highpass cutoff frequency.",
            IDC_LOWPASS_CUTOFF);
    script.Type(IDC_HIGHPASS_CUTOFF, "0.5");
    Refuses(script, "The highpass cutoff frequency is outside the available range.",
            IDC_HIGHPASS_CUTOFF);
    script.ExpectText(IDC_HIGHPASS_CUTOFF, "0.5").Type(IDC_LOWPASS_CUTOFF, "1401");
    Refuses(script, "The lowpass cutoff is outside the available range.", IDC_LOWPASS_CUTOFF);
    script.ExpectText(IDC_LOWPASS_CUTOFF, "1401")
        .Do([this] { EXPECT_EQ(options.lowpass.m_dCornerFreq, 1401.0); })
        .Click(IDC_FILTER_NOTCH)
        .Type(IDC_NOTCH_CENTER, "3001");
    Refuses(script, "The notch center frequency is outside the available range.", IDC_NOTCH_CENTER);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error", "Error", "Error", "Error"}));
}

TEST_F(FilterOk, FrequenciesBelowTheInterval) {
    source.samplingFrequency = 0.1;
    library = kNoLibrary;
    DialogScript script;
    const char* szFrequency = "The filter frequency is too small for the sampling interval.";
    Refuses(script, szFrequency, IDC_LOWPASS_CUTOFF);
    script.Click(IDC_FILTER_HIGHPASS);
    Refuses(script, szFrequency, IDC_HIGHPASS_CUTOFF);
    script.Click(IDC_FILTER_NOTCH).Type(IDC_NOTCH_WIDTH, "0.05");
    Refuses(script, "The notch width is too small for the sampling interval.", IDC_NOTCH_WIDTH);
    ShowAndCancel(script);
}

TEST_F(FilterOk, AHiddenCutoffOutOfRangeBlocksNothing) {
    DialogScript script;
    script.Type(IDC_LOWPASS_CUTOFF, "9000").Choose(IDC_LOWPASS_FAMILY, "Boxcar");
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 9000.0);
}

TEST_F(FilterOk, TextThatIsNoNumberCountsAsTheLastOne) {
    for (const char* szText : {" 5", ""}) {
        DialogScript script;
        script.Type(IDC_LOWPASS_CUTOFF, "900")
            .Type(IDC_LOWPASS_CUTOFF, szText)
            .ExpectText(IDC_LOWPASS_CUTOFF, szText);
        ShowAndAccept(script);
        EXPECT_EQ(options.lowpass.m_dCornerFreq, 900.0);
    }
}

TEST_F(FilterOk, NothingSelectedIsToldOfBeforeAllElse) {
    // A record with every fault.
    options.lowpass.m_dCornerFreq = 1e9;
    options.notch.m_bIsSelected = options.adaptive.m_bIsSelected = 1;
    options.highpass.m_bIsSelected = 1;
    options.adaptive.m_uHarmonicNumberEnd = options.adaptive.m_uAveragingCycles = 0;
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, "No data have been selected. At least one data set must be specified.")
        .ExpectVisible(IDC_SET_LIST, true)
        .ExpectFocus(IDC_SET_LIST);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

TEST_F(FilterOk, AFailedOkLeavesTheOrderAndTheMemoryOfTheTab) {
    options.lowpass.uApplyOrder = 7;
    options.lowpass.m_dCornerFreq = 1000.0;
    {
        DialogScript script;
        script.Type(IDC_LOWPASS_CUTOFF, "9000").SelectTab("Data");
        Refuses(script, "The lowpass cutoff is outside the available range.", IDC_LOWPASS_CUTOFF);
        script.SelectTab("Data");
        ShowAndCancel(script);
    }
    EXPECT_EQ(options.lowpass.uApplyOrder, 7u);
    {
        DialogScript script;
        script.ExpectVisible(IDC_FILTER_LOWPASS, true)
            .Type(IDC_LOWPASS_CUTOFF, "800")
            .SelectTab("Data");
        ShowAndAccept(script);
    }
    EXPECT_EQ(options.lowpass.uApplyOrder, 1u);
    DialogScript script;
    script.ExpectVisible(IDC_SET_LIST, true);
    ShowAndCancel(script);
}

TEST_F(FilterOk, ABandpassCountsTwoAndWritesAllThree) {
    library = kNoLibrary;
    DialogScript script;
    script.Click(IDC_FILTER_BANDPASS);
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.uApplyOrder, 2u);
    EXPECT_EQ(options.highpass.uApplyOrder, 2u);
    EXPECT_EQ(options.notch.uApplyOrder, 2u);
}

// --- The library ---------------------------------------------------------------------------------

class FilterLibraries : public FilterOk, public testing::WithParamInterface<const char*> {
  protected:
    FilterLibraries() {
        library = GetParam();
        Points(3);
        options.lowpass.m_dCornerFreq = 1000.0;
    }
};

TEST_P(FilterLibraries, LeaveTheCheckOutWithoutAWord) {
    FilterStandIn standIn;
    standIn->bNoObject = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    EXPECT_EQ(standIn->uAlive, 0u);
}

INSTANTIATE_TEST_SUITE_P(Files, FilterLibraries,
                         testing::Values(FilterStandIn::kMissingFile,
                                         FilterStandIn::kFileWithoutExport, FilterStandIn::kFile));

TEST_F(FilterOk, TheLibraryIsLoadedAsLongAsTheDialogIsOpen) {
    library = FilterStandIn::kFileWithoutExport;
    const auto isLoaded = [this] { return GetModuleHandleA(library) != nullptr; };
    EXPECT_FALSE(isLoaded());
    DialogScript script;
    script.Do([&] { EXPECT_TRUE(isLoaded()); }).Click(IDC_FILTER_NOTCH).Do([&] {
        EXPECT_TRUE(isLoaded());
    });
    ShowAndAccept(script);
    EXPECT_FALSE(isLoaded());
}

TEST_F(FilterOk, ADialogThatOnlyShowsLoadsNone) {
    params.bReadOnly = 1;
    library = FilterStandIn::kFileWithoutExport;
    DialogScript script;
    script.Do([this] { EXPECT_EQ(GetModuleHandleA(library), nullptr); });
    ShowAndCancel(script);
}

TEST_F(FilterOk, TheLibraryIsAskedForTheRecordAndItsObjectReleased) {
    library = FilterStandIn::kFile;
    FilterStandIn standIn;
    standIn->uMinimum = 1001;
    DialogScript script;
    script.Type(IDC_LOWPASS_CUTOFF, "750");
    Refuses(script,
            "The filter needs at least 1001 data points.\nThe data region contains 1000 points.",
            IDC_LOWPASS_CUTOFF);
    script.Do([&standIn] {
        EXPECT_EQ(standIn->uMade, 1u);
        EXPECT_EQ(standIn->uAlive, 0u);
        EXPECT_EQ(standIn->record.lowpass.m_dCornerFreq, 750.0);
        EXPECT_EQ(standIn->record.dSampleInterval, 100.0);
        standIn->uMinimum = 0;
    });
    ShowAndAccept(script);
    EXPECT_EQ(standIn->uMade, 2u);
    EXPECT_EQ(standIn->uAlive, 0u);
}

}  // namespace
