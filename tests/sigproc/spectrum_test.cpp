// The power spectrum dialog and its checks: what it shows, what follows what, what OK says and
// hands back.

#include <cmath>

#include "SigprocTest.h"
#include "sigproc/SpectrumChecks.h"
#include "sigproc/SpectrumDialog.h"
#include "sigproc/SpectrumWindows.h"

namespace {

using namespace sigproc_test;

class SpectrumDialogTest : public SigprocDialogTest<CSpectrumDialog, SpectrumOptions> {
  protected:
    SpectrumDialogTest() {
        options.uTransformLength = 64;
        options.dKaiserAlpha = 3.25;
        options.dPoissonAlpha = 1.5;
        options.uNumBinsToExclude = 4;
    }
    // Sets 2 to n+1 of the list.
    void SelectSets(int n) {
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "1..%d",
                      n);
    }
};

// --- Opening -------------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, ShowsTheRecord) {
    options.eWindowType = 8;
    options.bAverageSegments = 1;
    options.bDoOverlap = 1;
    options.bDialogAverageTraces = 1;
    DialogScript script;
    script.ExpectTitle("Power Spectrum")
        .ExpectSelected(IDC_SPECTRUM_WINDOW, "Poisson")
        .ExpectText(IDC_SPECTRUM_POISSON, "1.50")
        .ExpectText(IDC_SPECTRUM_KAISER, "3.25")
        .ExpectText(IDC_SPECTRUM_LENGTH, "64")
        .ExpectText(IDC_SPECTRUM_MAXIMUM, "Use ma&ximum ")
        .ExpectText(IDC_SPECTRUM_MAXIMUM_VALUE, "(512)")
        .ExpectText(IDC_SPECTRUM_OUTPUT, "Output length = 32")
        .ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 156.25 Hz")
        .ExpectText(IDC_SPECTRUM_EXCLUDE, "4")
        .ExpectChecked(IDC_SPECTRUM_SEGMENTS, BST_CHECKED)
        .ExpectChecked(IDC_SPECTRUM_OVERLAP, BST_CHECKED)
        .ExpectChecked(IDC_SPECTRUM_TRACES, BST_CHECKED)
        .ExpectChecked(IDC_SPECTRUM_MAXIMUM, BST_UNCHECKED);
    ShowAndAccept(script);
    EXPECT_EQ(options.dDisplayValue, 50.0);
    EXPECT_EQ(options.uTransformLength, 64u);
}

TEST_F(SpectrumDialogTest, OffersTheWindowsInTheirOrder) {
    DialogScript script;
    script.ExpectItems(IDC_SPECTRUM_WINDOW, {"None (Rectangular)", "Bartlett (Triangular)",
                                             "Blackman", "Blackman-Harris 3", "Blackman-Harris 4",
                                             "Cosine", "Hamming", "Kaiser", "Poisson", "Von Hann"});
    for (int i = 9; i >= 0; --i) {
        script.Choose(IDC_SPECTRUM_WINDOW, i)
            .Do([this, i] { EXPECT_EQ(options.eWindowType, i); })
            .ExpectEnabled(IDC_SPECTRUM_KAISER, i == 7)
            .ExpectEnabled(IDC_SPECTRUM_KAISER_LABEL, i == 7)
            .ExpectEnabled(IDC_SPECTRUM_KAISER_SPIN, i == 7)
            .ExpectEnabled(IDC_SPECTRUM_POISSON, i == 8)
            .ExpectEnabled(IDC_SPECTRUM_POISSON_LABEL, i == 8)
            .ExpectEnabled(IDC_SPECTRUM_POISSON_SPIN, i == 8);
    }
    ShowAndCancel(script);
}

TEST_F(SpectrumDialogTest, ARecordOutOfRangeShowsTheNearerEnd) {
    options.eWindowType = 99;
    options.dKaiserAlpha = 0.0;
    options.dPoissonAlpha = 11.0;
    options.uNumBinsToExclude = 99;
    DialogScript script;
    script.ExpectSelected(IDC_SPECTRUM_WINDOW, "None (Rectangular)")
        .ExpectText(IDC_SPECTRUM_KAISER, "0.01")
        .ExpectText(IDC_SPECTRUM_POISSON, "10.00")
        .ExpectText(IDC_SPECTRUM_EXCLUDE, "10");
    ShowAndAccept(script);
    EXPECT_EQ(options.eWindowType, 0);
    EXPECT_EQ(options.dKaiserAlpha, 0.01);
    EXPECT_EQ(options.dPoissonAlpha, 10.0);
    EXPECT_EQ(options.uNumBinsToExclude, 10u);
    options.uNumBinsToExclude = 0;
    DialogScript again;
    again.ExpectText(IDC_SPECTRUM_EXCLUDE, "1");
    ShowAndAccept(again);
    EXPECT_EQ(options.uNumBinsToExclude, 1u);
}

TEST_F(SpectrumDialogTest, ALengthOfZeroBecomesTheUsualOne) {
    for (const auto& [uPoints, uLength] : std::vector<std::pair<std::uint32_t, std::uint32_t>>{
             {5000, 1024}, {100, 64}, {1023, 512}, {1024, 1024}, {16, 16}}) {
        Points(uPoints);
        options.uTransformLength = 0;
        DialogScript script;
        script.ExpectText(IDC_SPECTRUM_LENGTH, std::to_string(uLength));
        ShowAndAccept(script);
        EXPECT_EQ(options.uTransformLength, uLength) << uPoints;
    }
}

// --- The pictures --------------------------------------------------------------------------------

TEST(SpectralWindows, HaveNamesAndEquations) {
    const struct {
        std::int32_t eType;
        int nString;
        const char* szEquation;
    } rows[] = {{0, 2378, "EQ_RECTANGULAR_WINDOW"},     {1, 2370, "EQ_BARTLETT_WINDOW"},
                {2, 2371, "EQ_BLACKMAN_WINDOW"},        {3, 2372, "EQ_BLACKMANHARRIS3_WINDOW"},
                {4, 2373, "EQ_BLACKMANHARRIS4_WINDOW"}, {5, 2374, "EQ_COSINE_WINDOW"},
                {6, 2375, "EQ_HAMMING_WINDOW"},         {7, 2376, "EQ_KAISER_WINDOW"},
                {8, 2377, "EQ_POISSON_WINDOW"},         {9, 2379, "EQ_VONHANN_WINDOW"}};
    EXPECT_EQ(SpectralWindows().size(), std::size(rows));
    for (const auto& row : rows) {
        const SpectralWindow* pWindow = FindSpectralWindow(row.eType);
        ASSERT_NE(pWindow, nullptr);
        EXPECT_EQ(pWindow->nString, row.nString);
        EXPECT_STREQ(pWindow->szEquation, row.szEquation);
    }
    EXPECT_EQ(FindSpectralWindow(10), nullptr);
    EXPECT_EQ(FindSpectralWindow(-1), nullptr);
}

TEST(SpectralWindows, HaveAPairOfPicturesOrASeries) {
    const struct {
        std::int32_t eType;
        double dKaiser, dPoisson;
        int nShape, nMagnitude;
    } rows[] = {
        {0, 3.9, 5.5, 2500, 2520},  {1, 3.9, 5.5, 2501, 2521}, {9, 3.9, 5.5, 2509, 2529},
        {7, 0.5, 5.5, 2540, 2560},  {7, 3.9, 5.5, 2543, 2563}, {7, 50.0, 5.5, 2550, 2570},
        {8, 3.9, 0.5, 2580, 2600},  {8, 3.9, 5.5, 2585, 2605}, {8, 3.9, 10.0, 2590, 2610},
        {7, -2.0, 5.5, 2540, 2560},
    };
    for (const auto& row : rows) {
        const WindowPictures pictures = PicturesOf(row.eType, row.dKaiser, row.dPoisson);
        EXPECT_EQ(pictures.nShape, row.nShape);
        EXPECT_EQ(pictures.nMagnitude, row.nMagnitude);
    }
}

TEST(SpectralWindows, EveryPictureIsThere) {
    int nPictures = 0;
    for (const SpectralWindow& window : SpectralWindows()) {
        for (int nAlpha = 0; nAlpha <= 10; ++nAlpha) {
            const WindowPictures pictures = PicturesOf(window.eType, nAlpha, nAlpha);
            for (const int nId : {pictures.nShape, pictures.nMagnitude}) {
                EXPECT_TRUE(HasBitmap(nId)) << nId;
                EXPECT_TRUE(HasBitmap(nId + kLargerPicture)) << nId;
                ++nPictures;
            }
        }
        EXPECT_NE(FindResourceA(GetModuleHandleA(nullptr), window.szEquation, "METAFILE"), nullptr);
    }
    EXPECT_EQ(nPictures, 220);
    EXPECT_FALSE(HasBitmap(2599));
}

TEST_F(SpectrumDialogTest, ThePicturesFollowWindowAndAlpha) {
    const auto expect = [](DialogScript& script, int nShape, int nMagnitude) {
        script.Do([nShape, nMagnitude](HWND hDialog) {
            EXPECT_EQ(BitmapOf(hDialog, IDC_SPECTRUM_SHAPE), nShape);
            EXPECT_EQ(BitmapOf(hDialog, IDC_SPECTRUM_MAGNITUDE), nMagnitude);
        });
    };
    DialogScript script;
    expect(script, 2500, 2520);
    script.Choose(IDC_SPECTRUM_WINDOW, "Kaiser");
    expect(script, 2543, 2563);
    script.Type(IDC_SPECTRUM_KAISER, "7.9");
    expect(script, 2547, 2567);
    script.Choose(IDC_SPECTRUM_WINDOW, "Poisson");
    expect(script, 2581, 2601);
    script.Choose(IDC_SPECTRUM_WINDOW, "Hamming");
    expect(script, 2506, 2526);
    ShowAndCancel(script);
}

// --- Alpha and bins ------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, AlphaStepsByATenthAndStaysInItsRange) {
    options.eWindowType = 7;
    DialogScript script;
    script.Focus(IDC_SPECTRUM_KAISER)
        .Press(VK_UP)
        .ExpectText(IDC_SPECTRUM_KAISER, "3.30")
        .Type(IDC_SPECTRUM_KAISER, "10.01")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nValue in field 'Kaiser alpha' must fall within the range "
                "of 0.01 to 10.00.")
        .ExpectFocus(IDC_SPECTRUM_KAISER)
        .Type(IDC_SPECTRUM_KAISER, "0")
        .Click(IDOK)
        .Answer(kOkButton)
        .Type(IDC_SPECTRUM_KAISER, "9.999");
    ShowAndAccept(script);
    EXPECT_EQ(options.dKaiserAlpha, 10.0);
}

TEST_F(SpectrumDialogTest, BinsOutsideOneToTenAreRefused) {
    DialogScript script;
    script.Type(IDC_SPECTRUM_EXCLUDE, "11")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nValue in field 'Exclude' must fall within the range of 1 "
                "to 10.")
        .ExpectFocus(IDC_SPECTRUM_EXCLUDE)
        .Type(IDC_SPECTRUM_EXCLUDE, "7");
    ShowAndAccept(script);
    EXPECT_EQ(options.uNumBinsToExclude, 7u);
}

// --- Lengths -------------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, TheLengthStepsThroughThePowersOfTwo) {
    DialogScript script;
    script.Focus(IDC_SPECTRUM_LENGTH)
        .Press(VK_UP)
        .ExpectText(IDC_SPECTRUM_LENGTH, "128")
        .ExpectText(IDC_SPECTRUM_OUTPUT, "Output length = 64")
        .ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 78.13 Hz")
        .Do([this] { EXPECT_EQ(options.uTransformLength, 128u); })
        .Type(IDC_SPECTRUM_LENGTH, "0")
        .ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 0.00 Hz");
    ShowAndCancel(script);
}

TEST_F(SpectrumDialogTest, UseMaximumTakesTheDatasLengthAndGivesTheFieldsBack) {
    DialogScript script;
    for (int i = 0; i < 2; ++i) {
        script.Click(IDC_SPECTRUM_MAXIMUM)
            .ExpectEnabled(IDC_SPECTRUM_LENGTH, false)
            .ExpectEnabled(IDC_SPECTRUM_LENGTH_SPIN, false)
            .ExpectEnabled(IDC_SPECTRUM_LENGTH_LABEL, false)
            .ExpectText(IDC_SPECTRUM_LENGTH, "64")
            .ExpectText(IDC_SPECTRUM_OUTPUT, "Output length = 256")
            .Do([this] { EXPECT_EQ(options.uTransformLength, 512u); })
            .Click(IDC_SPECTRUM_MAXIMUM)
            .ExpectEnabled(IDC_SPECTRUM_LENGTH, true)
            .ExpectText(IDC_SPECTRUM_OUTPUT, "Output length = 32")
            .Do([this] { EXPECT_EQ(options.uTransformLength, 64u); });
    }
    script.Click(IDC_SPECTRUM_MAXIMUM)
        .SelectTab("Data")
        .Choose(IDC_REGION, "Cursors 1..2")
        .SelectTab("Options")
        .ExpectText(IDC_SPECTRUM_MAXIMUM_VALUE, "(64)")
        .Do([this] { source.regions[1].last = 399; })
        .SelectTab("Data")
        .SelectTab("Options")
        .ExpectText(IDC_SPECTRUM_MAXIMUM_VALUE, "(256)");
    ShowAndAccept(script);
    EXPECT_EQ(options.uTransformLength, 256u);
    EXPECT_EQ(options.bUseMaxSegment, 1);
}

TEST_F(SpectrumDialogTest, ALengthOffTheListShowsAndIsRefused) {
    options.uTransformLength = 1000;
    DialogScript script;
    script.ExpectText(IDC_SPECTRUM_LENGTH, "1000")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nThe value in this field is not a member of the list of "
                "allowable values.")
        .ExpectFocus(IDC_SPECTRUM_LENGTH)
        .Click(IDC_SPECTRUM_MAXIMUM);
    ShowAndAccept(script);
    EXPECT_EQ(options.uTransformLength, 512u);
}

TEST_F(SpectrumDialogTest, FewerThanSixteenPointsLeaveNothingToSet) {
    Points(15);
    options.uTransformLength = 8;
    DialogScript script;
    for (const int nId : {IDC_SPECTRUM_LENGTH, IDC_SPECTRUM_LENGTH_SPIN, IDC_SPECTRUM_LENGTH_LABEL,
                          IDC_SPECTRUM_MAXIMUM, IDC_SPECTRUM_MAXIMUM_VALUE, IDC_SPECTRUM_OUTPUT,
                          IDC_SPECTRUM_RESOLUTION, IDC_SPECTRUM_EXCLUDE, IDC_SPECTRUM_EXCLUDE_LABEL,
                          IDC_SPECTRUM_EXCLUDE_UNIT})
        script.ExpectEnabled(nId, false);
    script.Click(IDOK)
        .Answer(kOkButton,
                "The power spectrum needs at least 16 data points.\nThe data region contains 15 "
                "points.")
        .ExpectFocus(IDC_SPECTRUM_WINDOW);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
}

// --- Averaging -----------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, AveragingFollowsTheRoomThatTheDataLeave) {
    SelectSets(1);
    options.uTransformLength = 512;
    DialogScript script;
    script.ExpectEnabled(IDC_SPECTRUM_TRACES, false)
        .ExpectEnabled(IDC_SPECTRUM_SEGMENTS, false)  // 1000 points, not 1024
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, true)    // but 768
        .Type(IDC_SPECTRUM_LENGTH, "256")
        .ExpectEnabled(IDC_SPECTRUM_SEGMENTS, true)
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, false)
        .Click(IDC_SPECTRUM_SEGMENTS)
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, true)
        .SelectTab("Data")
        .Click(IDC_SELECT_ALL)
        .SelectTab("Options")
        .ExpectEnabled(IDC_SPECTRUM_TRACES, true);
    ShowAndCancel(script);
}

TEST_F(SpectrumDialogTest, SweepsNeedRoomInTheWholeSweep) {
    source.segmented = true;
    options.uTransformLength = 512;
    DialogScript script;
    script.ExpectEnabled(IDC_SPECTRUM_SEGMENTS, false)
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, false)
        .Type(IDC_SPECTRUM_LENGTH, "256")
        .ExpectEnabled(IDC_SPECTRUM_SEGMENTS, true)
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, true);
    ShowAndCancel(script);
}

TEST_F(SpectrumDialogTest, AveragedTracesTakeEffectWhereThereAreSeveral) {
    options.bDialogAverageTraces = 1;
    const auto accepted = [this] {
        options.bAverageTraces = 7;
        DialogScript script;
        ShowAndAccept(script);
        EXPECT_EQ(options.bDialogAverageTraces, 1);
        return options.bAverageTraces;
    };
    EXPECT_EQ(accepted(), 1);
    SelectSets(1);
    EXPECT_EQ(accepted(), 0);
    SelectSets(5);
    source.segmented = true;
    EXPECT_EQ(accepted(), 0);
    source.segmented = false;
    params.bUseDataOptions = 0;
    EXPECT_EQ(accepted(), 0);
}

// --- OK ------------------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, ALengthBeyondTheDataIsAskedFor) {
    options.uTransformLength = 1024;
    const char* szText =
        "The window length of 1024 points exceeds the data length of 1000 points.\nReduce the "
        "window length to 512 points and proceed?";
    DialogScript script;
    script.Click(IDOK)
        .Answer(kNoButton, szText)
        .ExpectFocus(IDC_SPECTRUM_LENGTH)
        .ExpectText(IDC_SPECTRUM_LENGTH, "1024")
        .Do([this] { EXPECT_EQ(options.uTransformLength, 1024u); })
        .Click(IDOK)
        .Answer(kYesButton, szText);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.uTransformLength, 512u);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Query", "Query"}));
}

TEST_F(SpectrumDialogTest, OfASweepTheQuestionSaysSo) {
    source.segmented = true;
    options.uTransformLength = 2048;
    DialogScript script;
    script.Click(IDOK).Answer(
        kYesButton,
        "The window length of 2048 points exceeds the sweep length of 1000 points.\nReduce the "
        "window length to 512 points and proceed?");
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.uTransformLength, 512u);
}

TEST_F(SpectrumDialogTest, TooManySegmentsStayWhateverTheAnswer) {
    Points(3500 * 16);
    SelectSets(1);
    options.uTransformLength = 16;
    const char* szText =
        "The maximum number of spectral segments that can be displayedis 3499.\nThe current "
        "settings give 3500 segments.\nDo you want to change the settings?";
    DialogScript script;
    for (const int nAnswer : {kYesButton, kNoButton})
        script.Click(IDOK).Answer(nAnswer, szText).ExpectFocus(IDC_SPECTRUM_LENGTH);
    ShowAndCancel(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Query", "Query"}));
    Points(3500 * 16 - 1);
    DialogScript passing;
    ShowAndAccept(passing);
    EXPECT_TRUE(passing.Messages().empty());
}

TEST_F(SpectrumDialogTest, TheChecksComeInTheirOrder) {
    Points(15);
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, "No data have been selected. At least one data set must be specified.")
        .ExpectFocus(IDC_SET_LIST)
        .Click(IDC_SELECT_ALL)
        .Click(IDOK)
        .Answer(kOkButton,
                "The power spectrum needs at least 16 data points.\nThe data region contains 15 "
                "points.")
        .ExpectVisible(IDC_SPECTRUM_WINDOW, true);
    ShowAndCancel(script);
}

TEST_F(SpectrumDialogTest, TheRateOfOtherDataIsTheRecords) {
    MakeSheet();
    options.dSampleInterval = 50.0;
    DialogScript script;
    script.ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 312.50 Hz");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSampleInterval, 50.0);
    options.dSampleInterval = 0.0;
    DialogScript unknown;
    unknown.ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 0.00 Hz");
    ShowAndAccept(unknown);
}

// --- Modes ---------------------------------------------------------------------------------------

TEST_F(SpectrumDialogTest, ReadOnlyShowsTheRecordAsItIs) {
    params.bReadOnly = 1;
    options.dKaiserAlpha = 0.0;
    options.uNumBinsToExclude = 99;
    options.uTransformLength = 0;
    const SpectrumOptions before = options;
    DialogScript script;
    script.ExpectTitle("Power Spectrum (read only)")
        .ExpectText(IDC_SPECTRUM_KAISER, "0.00")
        .ExpectText(IDC_SPECTRUM_EXCLUDE, "99")
        .ExpectText(IDC_SPECTRUM_LENGTH, "0")
        .Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(SpectrumDialogTest, ADeferredRunOverASourceOfZerosPasses) {
    params.bDeferredRun = 1;
    source.samplingFrequency = 0.0;
    source.Points(0);
    source.regions.clear();
    options.uTransformLength = 0;
    DialogScript script;
    script.ExpectText(IDC_SPECTRUM_LENGTH, "1024")
        .ExpectVisible(IDC_SPECTRUM_MAXIMUM_VALUE, false)
        .ExpectEnabled(IDC_SPECTRUM_LENGTH, true)
        .ExpectEnabled(IDC_SPECTRUM_SEGMENTS, true)
        .ExpectEnabled(IDC_SPECTRUM_OVERLAP, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.uTransformLength, 1024u);
}

TEST_F(SpectrumDialogTest, ADeferredRunTakesItsFiguresFromTheBlock) {
    params.bDeferredRun = 1;
    data.dSamplingFrequency = 20000.0;
    data.aRegionPoints[7] = {100, 299};
    data.bSegmented = 1;
    options.uTransformLength = 256;
    DialogScript script;
    script.ExpectText(IDC_SPECTRUM_MAXIMUM_VALUE, "(128)")
        .ExpectText(IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 78.13 Hz")
        .Click(IDOK)
        .Answer(kYesButton,
                "The window length of 256 points exceeds the sweep length of 200 points.\nReduce "
                "the window length to 128 points and proceed?");
    EXPECT_EQ(Show(script), IDOK);
}

TEST_F(SpectrumDialogTest, OddRatesPointsAndRecordsOpen) {
    for (const double dRate : {0.0, std::nan(""), 1e-300, 1e12}) {
        for (const std::uint32_t uPoints : {0u, 1u, 15u, 1u << 31}) {
            for (const int nByte : {0x00, 0x5A, 0xFF}) {
                source.samplingFrequency = dRate;
                source.points = uPoints;
                source.regions.clear();
                std::memset(&options, nByte, sizeof options);
                DialogScript script;
                ShowAndCancel(script);
            }
        }
    }
}

// --- The checks alone ----------------------------------------------------------------------------

TEST(SpectrumChecks, WhatIsNotKnownIsNotChecked) {
    SpectrumOptions options = {};
    options.uTransformLength = 1 << 20;
    SpectrumSignal signal;
    signal.bPointsKnown = false;
    signal.uTraces = 100000;
    EXPECT_FALSE(CheckTransformLength(options, signal, [](std::uint32_t) {}).has_value());
    EXPECT_FALSE(CheckSegments(options, signal).has_value());
    signal.bPointsKnown = true;
    EXPECT_EQ(CheckTransformLength(options, signal, [](std::uint32_t) {})->nStringId, 2243u);
}

TEST(SpectrumChecks, CountsBeyond32BitsAreTold) {
    SpectrumOptions options = {};
    options.uTransformLength = 16;
    SpectrumSignal signal;
    signal.uPoints = 1u << 31;
    signal.uTraces = 10000;
    EXPECT_EQ(CheckSegments(options, signal)->vArguments,
              (std::vector<std::string>{"3499", "1342177280000"}));
    // The length of a record that takes the maximum never exceeds the data.
    options.bUseMaxSegment = 1;
    options.uTransformLength = 524288;
    signal.uPoints = 17;
    EXPECT_FALSE(CheckTransformLength(options, signal, [](std::uint32_t) {}).has_value());
}

}  // namespace
