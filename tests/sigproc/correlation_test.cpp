// The correlation dialog and its rules: what it shows, the data tab that follows the type, what OK
// says and hands back.

#include <cmath>

#include "SigprocTest.h"
#include "sigproc/CorrelationDialog.h"
#include "sigproc/CorrelationRules.h"

namespace {

using namespace sigproc_test;

class CorrelationDialogTest
    : public SigprocDialogTest<CCorrelationDialog, ZXADLG_CorrelationOptions> {
  protected:
    CorrelationDialogTest() {
        options.dSamplingFrequency = 250.0;
        options.uNumberOfLags = 37;
    }
    void ForgetFrequency() { source.samplingFrequency = 0.0; }
    static void ExpectDual(DialogScript& script, bool bDual) {
        script.Do([bDual](HWND hDialog) {
            EXPECT_EQ(FindControl(hDialog, IDC_SET_LIST_2) != nullptr, bDual);
        });
    }
};

constexpr char kTooManyLags[] =
    "The lag time exceeds the data length. Adjust the\nnumber of lags automatically and "
    "proceed?\n";

// --- The frequency -------------------------------------------------------------------------------

TEST_F(CorrelationDialogTest, AFilesFrequencyOverridesTheRecordsInTheDisplay) {
    DialogScript script;
    script.ExpectTitle("Correlation")
        .ExpectText(IDC_CORRELATION_STATUS, "The sampling frequency is fixed.")
        .ExpectText(IDC_CORRELATION_FREQUENCY, "10000")
        .ExpectEnabled(IDC_CORRELATION_FREQUENCY, false)
        .ExpectEnabled(IDC_CORRELATION_FREQUENCY_LABEL, false)
        .ExpectEnabled(IDC_CORRELATION_UNIT, false)
        .ExpectText(IDC_CORRELATION_LAGS, "37")
        .ExpectEnabled(IDC_CORRELATION_LAGS, true)
        .ExpectText(IDC_CORRELATION_TIMES, " = 370.00 ms (maximum = 10000.00 ms)")
        .ExpectText(IDC_CORRELATION_INTERVAL, "Interval = 0.01 \xB5s");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSamplingFrequency, 250.0);
}

TEST_F(CorrelationDialogTest, OtherDataWantOne) {
    ForgetFrequency();
    DialogScript script;
    script.ExpectText(IDC_CORRELATION_STATUS, "The sampling frequency must be specified.")
        .ExpectText(IDC_CORRELATION_FREQUENCY, "250")
        .ExpectEnabled(IDC_CORRELATION_FREQUENCY, true)
        .ExpectEnabled(IDC_CORRELATION_FREQUENCY_LABEL, true)
        .ExpectEnabled(IDC_CORRELATION_UNIT, true)
        .Type(IDC_CORRELATION_FREQUENCY, "123.456")
        .ExpectText(IDC_CORRELATION_TIMES, " = 4.57 ms (maximum = 123.46 ms)")
        .ExpectText(IDC_CORRELATION_INTERVAL, "Interval = 0.00 \xB5s")
        .Press(VK_TAB)
        .ExpectText(IDC_CORRELATION_FREQUENCY, "123.46");
    ShowAndAccept(script);
    EXPECT_EQ(options.dSamplingFrequency, 123.46);
}

TEST_F(CorrelationDialogTest, AFrequencyOfZeroHidesTheTimesAndGreysTheLags) {
    ForgetFrequency();
    DialogScript script;
    script.Type(IDC_CORRELATION_FREQUENCY, "0")
        .ExpectVisible(IDC_CORRELATION_TIMES, false)
        .ExpectVisible(IDC_CORRELATION_INTERVAL, false)
        .ExpectEnabled(IDC_CORRELATION_LAGS_LABEL, false)
        .ExpectEnabled(IDC_CORRELATION_LAGS, false)
        .ExpectEnabled(IDC_CORRELATION_LAGS_SPIN, false)
        .ExpectEnabled(IDC_CORRELATION_TIMES, false)
        .Click(IDOK)
        .Answer(kOkButton, "You must provide the sampling frequency.")
        .ExpectFocus(IDC_CORRELATION_FREQUENCY)
        .Type(IDC_CORRELATION_FREQUENCY, "1")
        .ExpectVisible(IDC_CORRELATION_TIMES, true)
        .ExpectText(IDC_CORRELATION_TIMES, " = 0.04 ms (maximum = 1.00 ms)")
        .ExpectText(IDC_CORRELATION_INTERVAL, "Interval = 0.00 \xB5s")
        .ExpectEnabled(IDC_CORRELATION_LAGS_LABEL, true)
        .ExpectEnabled(IDC_CORRELATION_LAGS, true)
        .ExpectEnabled(IDC_CORRELATION_LAGS_SPIN, true)
        .ExpectEnabled(IDC_CORRELATION_TIMES, true);
    ShowAndAccept(script);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Error"}));
    EXPECT_EQ(options.dSamplingFrequency, 1.0);
}

TEST_F(CorrelationDialogTest, ASheetKeepsTheRecordsFrequencyAndAsksForNone) {
    MakeSheet();
    DialogScript script;
    script.ExpectText(IDC_CORRELATION_FREQUENCY, "250")
        .ExpectEnabled(IDC_CORRELATION_FREQUENCY, false)
        .ExpectText(IDC_CORRELATION_STATUS, "The sampling frequency must be specified.");
    ShowAndAccept(script);
    options.dSamplingFrequency = 0.0;
    DialogScript without;
    without.ExpectEnabled(IDC_CORRELATION_FREQUENCY, false)
        .Click(IDOK)
        .Answer(kOkButton, "You must provide the sampling frequency.")
        .ExpectFocus(IDC_CORRELATION_AUTO);
    ShowAndCancel(without);
}

// --- Lags ----------------------------------------------------------------------------------------

TEST_F(CorrelationDialogTest, TheTimesFollowEachKeyStroke) {
    DialogScript script;
    script.Type(IDC_CORRELATION_LAGS, "")
        .TypeKeys("4")
        .ExpectText(IDC_CORRELATION_TIMES, " = 40.00 ms (maximum = 10000.00 ms)")
        .Do([this] { EXPECT_EQ(options.uNumberOfLags, 4u); })
        .TypeKeys("8")
        .ExpectText(IDC_CORRELATION_TIMES, " = 480.00 ms (maximum = 10000.00 ms)");
    ShowAndAccept(script);
    EXPECT_EQ(options.uNumberOfLags, 48u);
}

TEST_F(CorrelationDialogTest, TheArrowsStepThroughTheList) {
    DialogScript script;
    script.Focus(IDC_CORRELATION_LAGS)
        .Press(VK_UP)
        .ExpectText(IDC_CORRELATION_LAGS, "40")
        .Press(VK_DOWN)
        .Press(VK_DOWN)
        .ExpectText(IDC_CORRELATION_LAGS, "30")
        .Type(IDC_CORRELATION_LAGS, "500")
        .Press(VK_UP)
        .Press(VK_UP)
        .ExpectText(IDC_CORRELATION_LAGS, "1000");
    ShowAndCancel(script);
}

TEST_F(CorrelationDialogTest, MoreLagsThanPointsBecomeThePoints) {
    Points(36);
    DialogScript script;
    script.Click(IDOK)
        .Answer(kNoButton, kTooManyLags)
        .ExpectFocus(IDC_CORRELATION_LAGS)
        .ExpectText(IDC_CORRELATION_LAGS, "37")
        .Click(IDOK)
        .Answer(kYesButton, kTooManyLags);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.uNumberOfLags, 36u);
    EXPECT_EQ(TitlesOf(script), (std::vector<std::string>{"Query", "Query"}));
    // As many as there are points pass.
    DialogScript passing;
    ShowAndAccept(passing);
}

TEST_F(CorrelationDialogTest, NoPointsGiveNoLags) {
    Points(0);
    source.regions.clear();
    DialogScript script;
    script.Click(IDOK).Answer(kYesButton, kTooManyLags);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.uNumberOfLags, 0u);
}

TEST_F(CorrelationDialogTest, ANegativeNumberIsNotStoredAndRefused) {
    DialogScript script;
    script.Type(IDC_CORRELATION_LAGS, "-5")
        .Do([this] { EXPECT_EQ(options.uNumberOfLags, 37u); })
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nValue in field 'Number of lags' must fall within the "
                "range of 0 to 2147483647.")
        .ExpectFocus(IDC_CORRELATION_LAGS);
    ShowAndCancel(script);
}

// --- The type ------------------------------------------------------------------------------------

TEST_F(CorrelationDialogTest, TheDataTabFollowsTheType) {
    DialogScript script;
    script.ExpectChecked(IDC_CORRELATION_AUTO, BST_CHECKED);
    ExpectDual(script, false);
    HWND hBefore = nullptr;
    script.Click(IDC_CORRELATION_CROSS).Do([this] { EXPECT_EQ(options.eType, 1); });
    ExpectDual(script, true);
    // A click on the chosen one swaps nothing.
    script.Do([&](HWND hDialog) { hBefore = FindControl(hDialog, IDC_SET_LIST_2); })
        .Click(IDC_CORRELATION_CROSS)
        .Do([&](HWND hDialog) { EXPECT_EQ(FindControl(hDialog, IDC_SET_LIST_2), hBefore); })
        .SelectTab("Data")
        .ExpectVisible(IDC_DATA_SET_2, true)
        .SelectTab("Options")
        .Click(IDC_CORRELATION_AUTO);
    ExpectDual(script, false);
    script.SelectTab("Data").ExpectVisible(IDC_SET_LIST, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.eType, 0);
}

TEST_F(CorrelationDialogTest, AStoredCrossCorrelationOpensWithTwoSelections) {
    options.eType = 1;
    DialogScript script;
    script.ExpectChecked(IDC_CORRELATION_CROSS, BST_CHECKED);
    ExpectDual(script, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.eType, 1);
}

TEST_F(CorrelationDialogTest, WhatIsNoTypeIsAnAutocorrelation) {
    for (const int eType : {2, -1, 1 << 30}) {
        options.eType = eType;
        DialogScript script;
        script.ExpectChecked(IDC_CORRELATION_AUTO, BST_CHECKED);
        ExpectDual(script, false);
        ShowAndAccept(script);
        EXPECT_EQ(options.eType, 0);
    }
}

TEST_F(CorrelationDialogTest, ASingleTabEditsTheFirstSelection) {
    data.uSelectedDataSet = 1;
    data.uGroup2Index = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(data.uSelectedDataSet, 0u);
}

// Two groups whose sets differ in length.
class GroupLengths : public TestDataSource {
  public:
    uint32_t GetPointCount(uint32_t group, uint32_t, const ZXADLG_DataRange*, uint32_t) override {
        return group == 0 ? 1000 : 200;
    }
};

TEST_F(CorrelationDialogTest, BackFromTwoSelectionsTheFirstOnesPointsCount) {
    GroupLengths lengths;
    options.eType = 1;
    data.eDataSet2SelectionMode = CDataOptionsInterface::kListedSets;
    data.eDataGroup2SelectionMode = CDataOptionsInterface::kOneGroup;
    data.uGroup2Index = 1;
    DialogScript script;
    script.ExpectText(IDC_CORRELATION_TIMES, " = 370.00 ms (maximum = 10000.00 ms)")
        .SelectTab("Data")
        .Click(IDC_DATA_SET_2)
        .SelectTab("Options")
        .ExpectText(IDC_CORRELATION_TIMES, " = 370.00 ms (maximum = 2000.00 ms)")
        .Click(IDC_CORRELATION_AUTO)
        .ExpectText(IDC_CORRELATION_TIMES, " = 370.00 ms (maximum = 10000.00 ms)")
        .Click(IDCANCEL);
    CCorrelationDialog dialog(nullptr, &options, &data, &lengths, &params);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(data.uSelectedDataSet, 0u);
}

TEST_F(CorrelationDialogTest, AnotherRegionRenewsTheTimes) {
    DialogScript script;
    script.SelectTab("Data")
        .Choose(IDC_REGION, "Cursors 1..2")
        .SelectTab("Options")
        .ExpectText(IDC_CORRELATION_TIMES, " = 370.00 ms (maximum = 1000.00 ms)");
    ShowAndCancel(script);
}

TEST_F(CorrelationDialogTest, WithoutADataTabTheTypeSwapsNothing) {
    params.bUseDataOptions = 0;
    DialogScript script;
    script.Click(IDC_CORRELATION_CROSS).Do([](HWND hDialog) {
        EXPECT_EQ(SendMessageA(GetDlgItem(hDialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 1);
    });
    ShowAndAccept(script);
    EXPECT_EQ(options.eType, 1);
}

TEST_F(CorrelationDialogTest, TheTabOfTheLastOkComesUp) {
    DialogScript first;
    first.Click(IDC_CORRELATION_CROSS).SelectTab("Data");
    ShowAndAccept(first);
    DialogScript second;
    second.ExpectVisible(IDC_DATA_SET_1, true);
    ShowAndCancel(second);
}

// --- OK and modes --------------------------------------------------------------------------------

TEST_F(CorrelationDialogTest, TheLagsAreCheckedFirstThenTheSelection) {
    Points(10);
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kYesButton, kTooManyLags)
        .Answer(kOkButton, "No data have been selected. At least one data set must be specified.")
        .ExpectFocus(IDC_SET_LIST);
    ShowAndCancel(script);
}

TEST_F(CorrelationDialogTest, ReadOnlyShowsTheRecordAsItIs) {
    params.bReadOnly = 1;
    options.eType = 7;
    options.uNumberOfLags = 5000;
    const ZXADLG_CorrelationOptions before = options;
    DialogScript script;
    script.ExpectTitle("Correlation (read only)")
        .ExpectText(IDC_CORRELATION_LAGS, "5000")
        .ExpectEnabled(IDC_CORRELATION_LAGS, false)
        .Ungrey(IDC_CORRELATION_CROSS)
        .Click(IDC_CORRELATION_CROSS)
        .ExpectChecked(IDC_CORRELATION_AUTO, BST_CHECKED)
        .ExpectFocus(IDCANCEL)
        .Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(CorrelationDialogTest, ADeferredRunOverASourceOfZerosPasses) {
    params.bDeferredRun = 1;
    source.Kind(1).Points(0).samplingFrequency = 0.0;
    source.regions.clear();
    options.dSamplingFrequency = 0.0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    options.dSamplingFrequency = 250.0;
    DialogScript known;
    ShowAndAccept(known);
    EXPECT_EQ(options.uNumberOfLags, 37u);
}

TEST_F(CorrelationDialogTest, ADeferredRunTakesItsFiguresFromTheBlock) {
    params.bDeferredRun = 1;
    data.dSamplingFrequency = 20000.0;
    data.aRegionPoints[7] = {100, 299};
    DialogScript script;
    script.ExpectText(IDC_CORRELATION_FREQUENCY, "20000")
        .ExpectText(IDC_CORRELATION_TIMES, " = 740.00 ms (maximum = 4000.00 ms)");
    ShowAndAccept(script);
}

TEST_F(CorrelationDialogTest, OddRatesPointsAndRecordsOpen) {
    for (const double dRate : {0.0, std::nan(""), 1e-300, 1e12}) {
        for (const std::uint32_t uPoints : {0u, 1u, 1u << 31}) {
            for (const int nByte : {0x00, 0x5A, 0xFF}) {
                source.Kind(dRate == 0.0 ? 1 : 0).samplingFrequency = dRate;
                source.points = uPoints;
                source.regions.clear();
                std::memset(&options, nByte, sizeof options);
                DialogScript script;
                ShowAndCancel(script);
            }
        }
    }
}

// --- The rules alone -----------------------------------------------------------------------------

TEST(CorrelationRules, ListsTheNumbersOfLags) {
    const std::vector<std::int32_t> lags(LagNumbers().begin(), LagNumbers().end());
    EXPECT_EQ(lags, (std::vector<std::int32_t>{1,   2,   3,   4,   5,   6,   7,   8,   9,   10,
                                               12,  14,  16,  18,  20,  25,  30,  35,  40,  45,
                                               50,  55,  60,  65,  70,  75,  80,  85,  90,  95,
                                               100, 110, 120, 130, 140, 150, 160, 170, 180, 190,
                                               200, 220, 240, 260, 280, 300, 400, 500, 1000}));
}

TEST(CorrelationRules, MultiplyTheFrequency) {
    const CorrelationTimes times = TimesOf(2000.0, 30, 400);
    EXPECT_EQ(times.dLags, 60.0);
    EXPECT_EQ(times.dMaximum, 800.0);
    EXPECT_EQ(times.dInterval, 0.002);
}

TEST(CorrelationRules, BothSidesAreZeroWithoutAFrequency) {
    CorrelationCheck check = {.dFrequency = 0.0, .uLags = 500, .uPoints = 3};
    EXPECT_FALSE(CheckLags(check).has_value());
    EXPECT_EQ(CheckFrequency(check)->nStringId, 2203u);
    check.dFrequency = 1e-300;
    EXPECT_EQ(CheckLags(check)->nStringId, 2330u);
    EXPECT_FALSE(CheckFrequency(check).has_value());
    check.bDeferred = true;
    EXPECT_EQ(CheckLags(check)->nStringId, 2330u);
    check.uPoints = 0;
    EXPECT_FALSE(CheckLags(check).has_value());
    check.dFrequency = 0.0;
    EXPECT_FALSE(CheckFrequency(check).has_value());
}

}  // namespace
