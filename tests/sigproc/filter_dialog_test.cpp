// The filter dialog: what it shows of a record and the data, and what follows what.

#include <cmath>

#include "FilterDialogFixture.h"

namespace {

using namespace sigproc_test;

// --- Opening -------------------------------------------------------------------------------------

TEST_F(FilterDialogTest, AnEmptyRecordShowsDefaultsAndPasses) {
    DialogScript script;
    script.ExpectTitle("Filter")
        .ExpectChecked(IDC_FILTER_LOWPASS, BST_CHECKED)
        .ExpectSelected(IDC_LOWPASS_FAMILY, "Gaussian")
        .ExpectText(IDC_LOWPASS_CUTOFF, "1000")
        .ExpectSelected(IDC_HIGHPASS_FAMILY, "Bessel (8-pole)")
        .ExpectText(IDC_HIGHPASS_CUTOFF, "1")
        .ExpectText(IDC_NOTCH_CENTER, "60")
        .ExpectText(IDC_NOTCH_WIDTH, "10");
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_bIsSelected, 1);
    EXPECT_EQ(options.lowpass.m_eFilterFamily, 6);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 1000.0);
    EXPECT_EQ(options.lowpass.uApplyOrder, 1u);
    EXPECT_EQ(options.highpass.uApplyOrder, 1u);
    EXPECT_EQ(options.notch.uApplyOrder, 1u);
    EXPECT_EQ(options.dSampleInterval, 100.0);
}

TEST_F(FilterDialogTest, OpeningPutsTheCutoffsIntoTheirLimits) {
    source.samplingFrequency = 20000.0;
    options.lowpass = {0, 2, 0, 0, 9000.0, 0.0, 0.0, 0, {}};
    options.notch.m_dCornerFreq = 15.0;
    options.notch.m_d3dbWidth = 20000.0;
    DialogScript script;
    script.ExpectText(IDC_HIGHPASS_CUTOFF, "2")
        .ExpectText(IDC_LOWPASS_CUTOFF, "2800")
        .ExpectText(IDC_NOTCH_CENTER, "20")
        .ExpectText(IDC_NOTCH_WIDTH, "10000");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, EachFamilyIsOfferedWhereItBelongs) {
    DialogScript script;
    script
        .ExpectItems(IDC_LOWPASS_FAMILY,
                     {"Bessel (8-pole)", "Boxcar", "Butterworth (8-pole)", "Chebyshev (8-pole)",
                      "Gaussian", "RC (single pole)", "RC (8-coincident-pole)"})
        .ExpectItems(IDC_HIGHPASS_FAMILY, {"Bessel (8-pole)", "RC (single pole)"});
    for (int i = 0; i < 7; ++i) {
        script.Choose(IDC_LOWPASS_FAMILY, i).Do([this, i] {
            EXPECT_EQ(options.lowpass.m_eFilterFamily, 2 + i);
        });
    }
    script.Click(IDC_FILTER_HIGHPASS).Choose(IDC_HIGHPASS_FAMILY, 1).Do([this] {
        EXPECT_EQ(options.highpass.m_eFilterFamily, 7);
    });
    ShowAndCancel(script);
}

// --- The arrangements ----------------------------------------------------------------------------

struct Arrangement {
    const char* szName;
    int nButton;
    int nPicture;
    const char* szSelected;  // of lowpass, highpass, notch, interference
    bool bHighpass, bLowpass, bHum, bNotch;
};

class FilterArrangements : public FilterDialogTest,
                           public testing::WithParamInterface<Arrangement> {};

TEST_P(FilterArrangements, SelectsItsSectionsAndEnablesTheirGroups) {
    const Arrangement& row = GetParam();
    DialogScript script;
    script.Click(row.nButton).Do([&row](HWND hDialog) {
        EXPECT_EQ(BitmapOf(hDialog, IDC_FILTER_PICTURE), row.nPicture);
        EXPECT_TRUE(HasBitmap(row.nPicture));
        EXPECT_TRUE(HasBitmap(row.nPicture + 200));
    });
    const struct {
        bool bEnabled;
        std::vector<int> ids;
    } groups[] = {
        {row.bHighpass,
         {IDC_HIGHPASS_GROUP, IDC_HIGHPASS_FAMILY_LABEL, IDC_HIGHPASS_FAMILY,
          IDC_HIGHPASS_CUTOFF_LABEL, IDC_HIGHPASS_CUTOFF, IDC_HIGHPASS_CUTOFF_SPIN,
          IDC_HIGHPASS_UNIT, IDC_HIGHPASS_RANGE}},
        {row.bLowpass,
         {IDC_LOWPASS_GROUP, IDC_LOWPASS_FAMILY_LABEL, IDC_LOWPASS_FAMILY, IDC_LOWPASS_CUTOFF_LABEL,
          IDC_LOWPASS_CUTOFF, IDC_LOWPASS_CUTOFF_SPIN, IDC_LOWPASS_UNIT, IDC_LOWPASS_COEFFICIENTS,
          IDC_LOWPASS_RANGE}},
        {row.bHum,
         {IDC_HUM_GROUP, IDC_HUM_50HZ, IDC_HUM_60HZ, IDC_HUM_AUTO, IDC_HUM_HARMONICS_LABEL,
          IDC_HUM_HARMONICS, IDC_HUM_HARMONICS_SPIN, IDC_HUM_CYCLES_LABEL, IDC_HUM_CYCLES,
          IDC_HUM_CYCLES_SPIN, IDC_HUM_PERIOD_LABEL, IDC_HUM_PERIOD, IDC_HUM_BANDWIDTH_LABEL,
          IDC_HUM_BANDWIDTH}},
        {row.bNotch,
         {IDC_NOTCH_GROUP, IDC_NOTCH_CENTER_LABEL, IDC_NOTCH_CENTER, IDC_NOTCH_CENTER_SPIN,
          IDC_NOTCH_CENTER_UNIT, IDC_NOTCH_WIDTH_LABEL, IDC_NOTCH_WIDTH, IDC_NOTCH_WIDTH_SPIN,
          IDC_NOTCH_WIDTH_UNIT, IDC_NOTCH_RANGE}},
    };
    for (const auto& group : groups) {
        for (const int nId : group.ids) script.ExpectEnabled(nId, group.bEnabled);
    }
    script.Do([this, &row] {
        std::string s;
        if (options.lowpass.m_bIsSelected != 0) s += 'L';
        if (options.highpass.m_bIsSelected != 0) s += 'H';
        if (options.notch.m_bIsSelected != 0) s += 'N';
        if (options.adaptive.m_bIsSelected != 0) s += 'A';
        EXPECT_EQ(s, row.szSelected);
    });
    ShowAndCancel(script);
}

TEST_P(FilterArrangements, ComesBackAsItsButton) {
    const Arrangement& row = GetParam();
    for (const char* p = row.szSelected; *p != '\0'; ++p) {
        if (*p == 'L') options.lowpass.m_bIsSelected = 1;
        if (*p == 'H') options.highpass.m_bIsSelected = 1;
        if (*p == 'N') options.notch.m_bIsSelected = 1;
        if (*p == 'A') options.adaptive.m_bIsSelected = 1;
    }
    DialogScript script;
    for (const int nId : {IDC_FILTER_BANDPASS, IDC_FILTER_HIGHPASS, IDC_FILTER_LOWPASS,
                          IDC_FILTER_NOTCH, IDC_FILTER_INTERFERENCE}) {
        script.ExpectChecked(nId, nId == row.nButton ? BST_CHECKED : BST_UNCHECKED);
    }
    ShowAndCancel(script);
}

INSTANTIATE_TEST_SUITE_P(
    All, FilterArrangements,
    testing::Values(
        Arrangement{"Bandpass", IDC_FILTER_BANDPASS, 2630, "LH", true, true, false, false},
        Arrangement{"Highpass", IDC_FILTER_HIGHPASS, 2631, "H", true, false, false, false},
        Arrangement{"Lowpass", IDC_FILTER_LOWPASS, 2632, "L", false, true, false, false},
        Arrangement{"Interference", IDC_FILTER_INTERFERENCE, 2633, "A", false, false, true, false},
        Arrangement{"Notch", IDC_FILTER_NOTCH, 2634, "N", false, false, false, true}),
    [](const testing::TestParamInfo<Arrangement>& row) { return row.param.szName; });

TEST_F(FilterDialogTest, SectionsThatAreNotChosenKeepTheirValues) {
    options.lowpass = {1, 4, 11, 8, 333.25, 1.5, 77.125, 9, {}};
    options.highpass = {1, 7, 12, 5, 21.5, 2.5, 66.125, 8, {}};
    options.notch = {0, 13, 14, 6, 120.5, 50.25, 55.125, 7, {}};
    options.adaptive.m_eReferenceGeneration = 1;
    options.adaptive.m_uHarmonicNumberStart = 3;
    options.adaptive.m_uHarmonicNumberEnd = 9;
    options.adaptive.m_uAveragingCycles = 12;
    options.adaptive.m_bEndEffectCompensation = 1;
    FilterOptions expected = options;
    expected.dSampleInterval = 100.0;
    expected.lowpass.uApplyOrder = expected.highpass.uApplyOrder = expected.notch.uApplyOrder = 2;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(std::memcmp(&options, &expected, sizeof options), 0);
}

// --- Ranges and steps ----------------------------------------------------------------------------

TEST_F(FilterDialogTest, TheLowpassRangeFollowsItsFamily) {
    DialogScript script;
    const std::pair<const char*, const char*> rows[] = {
        {"Gaussian", "Cutoff range = 45.0 to 5000.0 Hz"},
        {"Bessel (8-pole)", "Cutoff range = 1.0 to 1400.0 Hz"},
        {"Boxcar", "Points range = 3.0 to 99.0 (odd values only)"},
        {"Butterworth (8-pole)", "Cutoff range = 1.0 to 2000.0 Hz"},
        {"Chebyshev (8-pole)", "Cutoff range = 1.0 to 2000.0 Hz"},
        {"RC (single pole)", "Cutoff range = 1.0 to 5000.0 Hz"},
        {"RC (8-coincident-pole)", "Cutoff range = 1.0 to 1500.0 Hz"},
    };
    for (const auto& [szFamily, szRange] : rows)
        script.Choose(IDC_LOWPASS_FAMILY, szFamily).ExpectText(IDC_LOWPASS_RANGE, szRange);
    script.ExpectText(IDC_HIGHPASS_RANGE, "Cutoff range = 1.0 to 1400.0 Hz")
        .ExpectText(IDC_NOTCH_RANGE, "Center range = 10.0 to 3000.0 Hz")
        .Click(IDC_FILTER_HIGHPASS)
        .Choose(IDC_HIGHPASS_FAMILY, "RC (single pole)")
        .ExpectText(IDC_HIGHPASS_RANGE, "Cutoff range = 1.0 to 5000.0 Hz");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, LimitsAboveTenMillionShowInExponentForm) {
    source.samplingFrequency = 24691356.0;
    options.lowpass = {1, 7, 0, 0, 2500.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 2469.1 to 1.2345678e7 Hz");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, AFamilyPutsItsOwnCutoffIntoTheRange) {
    DialogScript script;
    script.Type(IDC_LOWPASS_CUTOFF, "4000")
        .Choose(IDC_LOWPASS_FAMILY, "Butterworth (8-pole)")
        .ExpectText(IDC_LOWPASS_CUTOFF, "2000")
        .Choose(IDC_LOWPASS_FAMILY, "Bessel (8-pole)")
        .ExpectText(IDC_LOWPASS_CUTOFF, "1400")
        .Do([this] { EXPECT_EQ(options.lowpass.m_dCornerFreq, 1400.0); })
        .Click(IDC_FILTER_BANDPASS)
        .Type(IDC_LOWPASS_CUTOFF, "1700")
        .Choose(IDC_HIGHPASS_FAMILY, "RC (single pole)")
        .Type(IDC_HIGHPASS_CUTOFF, "4500")
        .Choose(IDC_HIGHPASS_FAMILY, "Bessel (8-pole)")
        .ExpectText(IDC_HIGHPASS_CUTOFF, "1400")
        .Do([this] {
            EXPECT_EQ(options.highpass.m_dCornerFreq, 1400.0);
            EXPECT_EQ(options.lowpass.m_dCornerFreq, 1700.0);
        });
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, TheArrowsStepByAShareOfTheRange) {
    options.lowpass = {1, 2, 0, 0, 100.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.Focus(IDC_LOWPASS_CUTOFF)
        .Press(VK_UP)
        .ExpectText(IDC_LOWPASS_CUTOFF, "120")
        .Do([this] { EXPECT_EQ(options.lowpass.m_dCornerFreq, 120.0); })
        .Choose(IDC_LOWPASS_FAMILY, "RC (single pole)")
        .Type(IDC_LOWPASS_CUTOFF, "700")
        .Press(VK_UP)
        .ExpectText(IDC_LOWPASS_CUTOFF, "770")
        .Click(IDC_FILTER_NOTCH)
        .Type(IDC_NOTCH_CENTER, "80")
        .Press(VK_UP)
        .ExpectText(IDC_NOTCH_CENTER, "120")
        .Type(IDC_NOTCH_WIDTH, "40")
        .Press(VK_UP)
        .ExpectText(IDC_NOTCH_WIDTH, "80")
        .Type(IDC_NOTCH_CENTER, "2990")
        .Press(VK_UP)
        .ExpectText(IDC_NOTCH_CENTER, "3000");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, FrequenciesShowSixDigitsAndAreKeptWithSinglePrecision) {
    DialogScript script;
    script.Type(IDC_LOWPASS_CUTOFF, "1234.56789")
        .Press(VK_TAB)
        .ExpectText(IDC_LOWPASS_CUTOFF, "1234.57");
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, static_cast<double>(1234.57f));
}

// --- Boxcar --------------------------------------------------------------------------------------

TEST_F(FilterDialogTest, ABoxcarHasPointsInThePlaceOfACutoff) {
    DialogScript script;
    for (const int nId : {IDC_LOWPASS_CUTOFF, IDC_LOWPASS_CUTOFF_SPIN, IDC_LOWPASS_CUTOFF_LABEL,
                          IDC_LOWPASS_UNIT, IDC_LOWPASS_COEFFICIENTS})
        script.ExpectVisible(nId, true);
    for (const int nId : {IDC_LOWPASS_POINTS, IDC_LOWPASS_POINTS_SPIN, IDC_LOWPASS_POINTS_LABEL})
        script.ExpectVisible(nId, false).ExpectEnabled(nId, false);
    script.Choose(IDC_LOWPASS_FAMILY, "Boxcar");
    for (const int nId :
         {IDC_LOWPASS_CUTOFF, IDC_LOWPASS_CUTOFF_SPIN, IDC_LOWPASS_CUTOFF_LABEL, IDC_LOWPASS_UNIT})
        script.ExpectVisible(nId, false).ExpectEnabled(nId, false);
    script.ExpectVisible(IDC_LOWPASS_COEFFICIENTS, false);
    for (const int nId : {IDC_LOWPASS_POINTS, IDC_LOWPASS_POINTS_SPIN, IDC_LOWPASS_POINTS_LABEL})
        script.ExpectVisible(nId, true).ExpectEnabled(nId, true);
    script.ExpectText(IDC_LOWPASS_POINTS, "3").Click(IDC_FILTER_HIGHPASS);
    script.ExpectEnabled(IDC_LOWPASS_POINTS, false);
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, SmoothingPointsStepThroughTheOddOnes) {
    options.lowpass = {1, 3, 0, 95, 0.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.Focus(IDC_LOWPASS_POINTS)
        .Press(VK_UP)
        .ExpectText(IDC_LOWPASS_POINTS, "97")
        .Press(VK_UP)
        .Press(VK_UP)
        .ExpectText(IDC_LOWPASS_POINTS, "99")
        .Type(IDC_LOWPASS_POINTS, "4")
        .Press(VK_DOWN)
        .ExpectText(IDC_LOWPASS_POINTS, "3");
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_uNumAveragePoints, 3u);
    EXPECT_EQ(options.lowpass.uApplyOrder, 0u);
}

TEST_F(FilterDialogTest, ATraceOfThreePointsOffersThreeAlone) {
    Points(3);
    options.lowpass = {1, 3, 0, 9, 0.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_RANGE, "Points range = 2.0 to 3.0 (odd values only)")
        .ExpectText(IDC_LOWPASS_POINTS, "3")
        .ExpectEnabled(IDC_LOWPASS_POINTS, true)
        .Focus(IDC_LOWPASS_POINTS)
        .Press(VK_UP)
        .ExpectText(IDC_LOWPASS_POINTS, "3")
        .Press(VK_DOWN)
        .ExpectText(IDC_LOWPASS_POINTS, "3");
    ShowAndAccept(script);
}

TEST_F(FilterDialogTest, AFamilyPutsTheSmoothingPointsIntoTheirRange) {
    options.lowpass = {1, 6, 0, 4001, 500.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.Choose(IDC_LOWPASS_FAMILY, "Boxcar").ExpectText(IDC_LOWPASS_POINTS, "99");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, AnEvenNumberIsRefusedByItsField) {
    options.lowpass = {1, 3, 0, 9, 0.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.Type(IDC_LOWPASS_POINTS, "4")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nThe value in this field is not a member of the list of "
                "allowable values.")
        .ExpectFocus(IDC_LOWPASS_POINTS)
        .ExpectText(IDC_LOWPASS_POINTS, "4");
    ShowAndCancel(script);
}

// --- Texts ---------------------------------------------------------------------------------------

TEST_F(FilterDialogTest, CoefficientsFollowTheCutoffOfAGaussian) {
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_COEFFICIENTS, "= 11 coefficients")
        .Type(IDC_LOWPASS_CUTOFF, "100")
        .ExpectText(IDC_LOWPASS_COEFFICIENTS, "= 107 coefficients")
        .Type(IDC_LOWPASS_CUTOFF, "0")
        .ExpectText(IDC_LOWPASS_COEFFICIENTS, "= 0 coefficients")
        .Choose(IDC_LOWPASS_FAMILY, "Bessel (8-pole)")
        .ExpectVisible(IDC_LOWPASS_COEFFICIENTS, false);
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, InterferenceTellsPeriodAndBandwidth) {
    options.adaptive.m_bIsSelected = 1;
    options.adaptive.m_uHarmonicNumberEnd = 7;
    options.adaptive.m_uAveragingCycles = 8;
    DialogScript script;
    script.ExpectText(IDC_HUM_HARMONICS, "7")
        .ExpectText(IDC_HUM_CYCLES, "8")
        .ExpectText(IDC_HUM_PERIOD, "= 200.00")
        .ExpectText(IDC_HUM_BANDWIDTH, "= 3.75 Hz")
        .Click(IDC_HUM_60HZ)
        .ExpectText(IDC_HUM_PERIOD, "= 166.67")
        .ExpectText(IDC_HUM_BANDWIDTH, "= 4.50 Hz")
        .Type(IDC_HUM_CYCLES, "0")
        .ExpectText(IDC_HUM_BANDWIDTH, "= 0.00 Hz")
        .Type(IDC_HUM_CYCLES, "6")
        .ExpectText(IDC_HUM_BANDWIDTH, "= 6.00 Hz")
        .Click(IDC_HUM_AUTO)
        .ExpectText(IDC_HUM_PERIOD, "= 200.00")
        .ExpectText(IDC_HUM_BANDWIDTH, "= 5.00 Hz")
        .Do([this] { EXPECT_EQ(options.adaptive.m_eReferenceGeneration, 2); });
    for (const int nId :
         {IDC_HUM_HARMONICS_LABEL, IDC_HUM_HARMONICS, IDC_HUM_HARMONICS_SPIN, IDC_HUM_CYCLES_LABEL,
          IDC_HUM_CYCLES, IDC_HUM_CYCLES_SPIN, IDC_HUM_BANDWIDTH_LABEL, IDC_HUM_BANDWIDTH})
        script.ExpectEnabled(nId, false);
    script.ExpectEnabled(IDC_HUM_PERIOD, true);
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, CyclesAndHarmonicsStepThroughTheirLists) {
    options.adaptive.m_bIsSelected = 1;
    options.adaptive.m_uHarmonicNumberEnd = 19;
    options.adaptive.m_uAveragingCycles = 20;
    DialogScript script;
    script.Focus(IDC_HUM_CYCLES);
    for (const char* szCycles : {"50", "100", "200", "500", "500"})
        script.Press(VK_UP).ExpectText(IDC_HUM_CYCLES, szCycles);
    script.Type(IDC_HUM_CYCLES, "12")
        .Press(VK_DOWN)
        .ExpectText(IDC_HUM_CYCLES, "10")
        .Press(VK_DOWN)
        .ExpectText(IDC_HUM_CYCLES, "10")
        .Focus(IDC_HUM_HARMONICS)
        .Press(VK_UP)
        .Press(VK_UP)
        .ExpectText(IDC_HUM_HARMONICS, "20")
        .Type(IDC_HUM_HARMONICS, "2")
        .Press(VK_DOWN)
        .Press(VK_DOWN)
        .ExpectText(IDC_HUM_HARMONICS, "1");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, NumbersOffTheListsPass) {
    Points(100000);
    options.adaptive.m_bIsSelected = 1;
    options.adaptive.m_eReferenceGeneration = 9;
    DialogScript script;
    script.ExpectChecked(IDC_HUM_50HZ, BST_CHECKED)
        .Type(IDC_HUM_CYCLES, "7")
        .Type(IDC_HUM_HARMONICS, "33");
    ShowAndAccept(script);
    EXPECT_EQ(options.adaptive.m_uAveragingCycles, 7u);
    EXPECT_EQ(options.adaptive.m_uHarmonicNumberEnd, 33u);
    EXPECT_EQ(options.adaptive.m_eReferenceGeneration, 0);
    EXPECT_EQ(options.lowpass.uApplyOrder, 0u);
}

// --- The data ------------------------------------------------------------------------------------

TEST_F(FilterDialogTest, AnotherRegionRenewsTheLimitsAndClampsNothing) {
    library = kNoLibrary;
    DialogScript script;
    script.Type(IDC_LOWPASS_CUTOFF, "50")
        .ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 45.0 to 5000.0 Hz")
        .SelectTab("Data")
        .Choose(IDC_REGION, "Cursors 1..2")
        .SelectTab("Options")
        .ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 445.0 to 5000.0 Hz")
        .ExpectText(IDC_LOWPASS_CUTOFF, "50")
        .Do([this] { EXPECT_EQ(options.lowpass.m_dCornerFreq, 50.0); })
        .Click(IDOK)
        .Answer(kOkButton, "The lowpass cutoff is outside the available range.")
        .ExpectFocus(IDC_LOWPASS_CUTOFF);
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, AnotherSamplingFrequencyPutsTheCutoffsIntoTheirLimits) {
    DialogScript script;
    script.SelectTab("Data")
        .Do([this] { source.samplingFrequency = 1000.0; })
        .SelectTab("Options")
        .ExpectText(IDC_LOWPASS_CUTOFF, "500")
        .ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 5.0 to 500.0 Hz")
        .ExpectText(IDC_NOTCH_CENTER, "60");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSampleInterval, 1000.0);
}

TEST_F(FilterDialogTest, ASheetTakesTheRecordsInterval) {
    MakeSheet();
    source.samplingFrequency = 777.0;
    options.dSampleInterval = 50.0;
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 85.0 to 10000.0 Hz");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSampleInterval, 50.0);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 2000.0);
}

TEST_F(FilterDialogTest, WithoutADataTabTheWholeSetCounts) {
    params.bUseDataOptions = 0;
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 45.0 to 5000.0 Hz");
    ShowAndAccept(script);
}

TEST_F(FilterDialogTest, ARateThatIsNotKnownShowsNoRange) {
    MakeSheet();
    DialogScript script;
    for (const int nId : {IDC_LOWPASS_RANGE, IDC_HIGHPASS_RANGE, IDC_NOTCH_RANGE})
        script.ExpectVisible(nId, false);
    script.ExpectText(IDC_HUM_PERIOD, "= 0.00")
        .ExpectText(IDC_LOWPASS_COEFFICIENTS, "= 0 coefficients")
        .Choose(IDC_LOWPASS_FAMILY, "Boxcar")
        .ExpectVisible(IDC_LOWPASS_RANGE, true)
        .ExpectText(IDC_LOWPASS_RANGE, "Points range = 3.0 to 99.0 (odd values only)");
    ShowAndCancel(script);
}

TEST_F(FilterDialogTest, OddRatesAndPointsOpen) {
    for (const double dRate :
         {0.0, -1.0, std::nan(""), 1e-300, 1e12, 1e300, static_cast<double>(INFINITY)}) {
        for (const std::uint32_t uPoints : {0u, 1u, 3u, 15u, 1u << 31}) {
            source.samplingFrequency = dRate;
            source.points = uPoints;
            source.regions.clear();
            options = {};
            std::memset(&options.lowpass, 0x5A, sizeof options.lowpass);
            std::memset(&options.notch, 0xFF, sizeof options.notch);
            DialogScript script;
            ShowAndCancel(script);
        }
    }
}

// --- Modes ---------------------------------------------------------------------------------------

TEST_F(FilterDialogTest, ReadOnlyShowsTheRecordAsItIs) {
    params.bReadOnly = 1;
    options.lowpass = {1, 2, 0, 0, 9000.0, 0.0, 0.0, 3, {}};
    options.highpass.m_dCornerFreq = 0.0;
    options.adaptive.m_eReferenceGeneration = 9;
    const FilterOptions before = options;
    DialogScript script;
    script.ExpectTitle("Filter (read only)")
        .ExpectText(IDC_LOWPASS_CUTOFF, "9000")
        .ExpectText(IDC_HIGHPASS_CUTOFF, "0")
        .ExpectText(IDC_NOTCH_WIDTH, "0")
        .ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 1.0 to 1400.0 Hz")
        .Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(FilterDialogTest, ADeferredRunOverASourceOfZerosPasses) {
    params.bDeferredRun = 1;
    source.samplingFrequency = 0.0;
    source.Points(0);
    source.regions.clear();
    options.lowpass = {1, 3, 0, 55, 0.0, 0.0, 0.0, 0, {}};
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_POINTS, "55").ExpectVisible(IDC_LOWPASS_RANGE, false);
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_uNumAveragePoints, 55u);
    EXPECT_EQ(options.dSampleInterval, 0.0);
    options.lowpass = {1, 2, 0, 0, 12345.0, 0.0, 0.0, 0, {}};
    DialogScript again;
    ShowAndAccept(again);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 12345.0);
}

TEST_F(FilterDialogTest, ADeferredRunTakesItsLimitsFromTheBlock) {
    params.bDeferredRun = 1;
    data.dSamplingFrequency = 20000.0;
    data.aRegionPoints[7] = {100, 299};
    DialogScript script;
    script.ExpectText(IDC_LOWPASS_RANGE, "Cutoff range = 435.0 to 10000.0 Hz");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSampleInterval, 50.0);
}

}  // namespace
