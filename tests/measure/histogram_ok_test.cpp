// OK of the histogram dialog, its modes, and records and data that are no good.

#include <cmath>
#include <cstring>

#include "HistogramTest.h"

namespace {

using namespace histogram_test;

constexpr char kNothingSelected[] =
    "No data have been selected. At least one data set must be specified.";
constexpr char kNoDecades[] = "The number of bins per decade must be greater than zero.";
constexpr char kLowerZero[] = "The lower bin value must be greater than zero if log binning.";
constexpr char kOrder[] = "The minimum value of the data range\nmust be smaller then the maximum.";
constexpr char kNoWidth[] = "The bin width must be greater than zero.";
constexpr char kNoColumns[] =
    "No valid data have been selected. Columns are empty or contain only strings.";

// --- Checks --------------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, NothingSelectedIsToldFirst) {
    options.eHistoType = 2;
    options.nBinsPerDecade = 0;
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, kNothingSelected)
        .ExpectVisible(IDC_SET_LIST, true)
        .ExpectFocus(IDC_SET_LIST)
        .Click(IDC_SELECT_ALL)
        .Click(IDOK)
        .Answer(kOkButton, kNoDecades)
        .ExpectFocus(IDC_HISTOGRAM_DECADES);
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages()[0].title, "Error");
    EXPECT_EQ(script.Messages()[0].buttons.size(), 1u);
}

TEST_F(HistogramDialogTest, TheLogarithmicKindWantsDecadesAndALowerLimit) {
    options.eHistoType = 2;
    DialogScript script;
    script.Type(IDC_HISTOGRAM_LOWER, "0")
        .Type(IDC_HISTOGRAM_UPPER, "0")
        .Type(IDC_HISTOGRAM_DECADES, "0")
        .Click(IDOK)
        .Answer(kOkButton, kNoDecades)
        .ExpectFocus(IDC_HISTOGRAM_DECADES)
        .Do([this] { EXPECT_EQ(options.nBinsPerDecade, 7); })
        .Type(IDC_HISTOGRAM_DECADES, "4")
        .Click(IDOK)
        .Answer(kOkButton, kLowerZero)
        .ExpectFocus(IDC_HISTOGRAM_LOWER)
        .Type(IDC_HISTOGRAM_LOWER, "6")
        .Type(IDC_HISTOGRAM_UPPER, "6")
        .Click(IDOK)
        .Answer(kOkButton, kOrder)
        .ExpectFocus(IDC_HISTOGRAM_LOWER)
        .Type(IDC_HISTOGRAM_LOWER, "5.5");
    ShowAndAccept(script);
    EXPECT_EQ(options.nBinsPerDecade, 4);
    EXPECT_EQ(options.fMinDataValue, 5.5f);
    EXPECT_EQ(options.fMaxDataValue, 6.0f);
}

TEST_F(HistogramDialogTest, ALowerLimitBelowZeroPasses) {
    Values({-3, 10});
    options.eHistoType = 2;
    options.fMinDataValue = -1.0f;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    EXPECT_EQ(options.fMinDataValue, -1.0f);
}

TEST_F(HistogramDialogTest, WithMaximumTheLimitsAreNotTested) {
    options.eHistoType = 2;
    options.fMinDataValue = 0.0f;
    options.fMaxDataValue = 0.0f;
    options.bBinAllData = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(HistogramDialogTest, EqualLimitsAreRefusedForEveryKind) {
    for (const int eKind : {0, 1, 2, 3}) {
        options.eHistoType = eKind;
        options.fMinDataValue = 4.0f;
        options.fMaxDataValue = 4.0f;
        DialogScript script;
        script.Click(IDOK).Answer(kOkButton, kOrder).ExpectFocus(IDC_HISTOGRAM_LOWER);
        ShowAndCancel(script);
    }
}

TEST_F(HistogramDialogTest, AWidthOfZeroIsToldBeforeTheLimits) {
    for (const int eKind : {0, 1}) {
        options.eHistoType = eKind;
        options.fMinDataValue = options.fMaxDataValue = 4.0f;
        DialogScript script;
        script.Type(IDC_HISTOGRAM_WIDTH, "0")
            .Click(IDOK)
            .Answer(kOkButton, kNoWidth)
            .ExpectFocus(IDC_HISTOGRAM_WIDTH)
            .ExpectText(IDC_HISTOGRAM_WIDTH, "0")
            .Type(IDC_HISTOGRAM_WIDTH, "2")
            .Click(IDOK)
            .Answer(kOkButton, kOrder);
        ShowAndCancel(script);
        EXPECT_EQ(options.fBinWidth, 2.0f);
    }
}

TEST_F(HistogramDialogTest, DecadesNeedNoWidth) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_WIDTH, "0").Click(IDC_HISTOGRAM_LOGARITHMIC);
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 2.5f);
    EXPECT_EQ(options.eHistoType, 2);
}

// Fields whose value OK compares as it is shown, and the check of the pages behind that.
TEST_F(HistogramDialogTest, TooManyDecadesFailWithTheirPage) {
    options.eHistoType = 3;
    DialogScript script;
    script.Type(IDC_HISTOGRAM_DECADES, "10000001")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nValue in field 'Bins/Decade' must fall within the range "
                "of 0 to 10000000.")
        .ExpectFocus(IDC_HISTOGRAM_DECADES)
        .Type(IDC_HISTOGRAM_DECADES, "0");
    ShowAndAccept(script);
    EXPECT_EQ(options.nBinsPerDecade, 10000000);
}

TEST_F(HistogramDialogTest, TheLastKindIsNeverNormalised) {
    for (const int eKind : {0, 1, 2, 3}) {
        options.eHistoType = eKind;
        options.bNormalize = 1;
        DialogScript script;
        ShowAndAccept(script);
        EXPECT_EQ(options.bNormalize, eKind == 3 ? 0 : 1);
    }
}

TEST_F(HistogramDialogTest, AFailedOkKeepsTheNormalisation) {
    options.eHistoType = 3;
    options.bNormalize = 1;
    DialogScript script;
    script.Type(IDC_HISTOGRAM_LOWER, "7").Click(IDOK).Answer(kOkButton, kOrder).Do([this] {
        EXPECT_EQ(options.bNormalize, 1);
    });
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, TheTabOfTheLastOkComesUp) {
    DialogScript first;
    first.SelectTab("Data");
    ShowAndAccept(first);
    DialogScript second;
    second.ExpectVisible(IDC_SET_LIST, true).SelectTab("Options");
    ShowAndCancel(second);
    DialogScript third;
    third.ExpectVisible(IDC_SET_LIST, true);
    ShowAndCancel(third);
}

// --- Sheets --------------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, ASheetListsItsColumns) {
    MakeSheet();
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 0.000 to 10.000")
        .SelectTab("Data")
        .ExpectVisible(IDC_RANGE_ALL, true)
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: 2..3")
        .ClickItem(IDC_SET_LIST, 4);
    ShowAndAccept(script);
    EXPECT_STREQ(data.szDepVarSelectionList, "4");
}

// Required: of a range of rows the last one alone tells the range of the data.
TEST_F(HistogramDialogTest, OfARangeOfRowsTheLastOneCounts) {
    MakeSheet();
    source.yValues = {50, 1, 2, 3, 4, 5.25, 6, 7, 8, 9, 10};
    data.bUseFullDataRange = 0;
    data.uFirstDataIndex = 2;
    data.uLastDataIndex = 5;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 5.250 to 5.250")
        .SelectTab("Data")
        .Click(IDC_RANGE_ALL)
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 1.000 to 50.000");
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, NoColumnsAreNothingSelected) {
    MakeSheet();
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, kNothingSelected)
        .ExpectFocus(IDC_SET_LIST);
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, ColumnsOfTextAreToldOnTheDataPage) {
    MakeSheet();
    source.nullArrays = true;
    options.bBinAllData = 1;
    DialogScript script;
    script
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = Not available (text column or empty sheet)")
        .Click(IDOK)
        .Answer(kOkButton, kNoColumns)
        .ExpectVisible(IDC_SET_LIST, true)
        .ExpectFocus(IDC_SET_LIST);
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages()[0].title, "Error");
}

TEST_F(HistogramDialogTest, TheOptionsAreCheckedBeforeTheColumns) {
    MakeSheet();
    source.nullArrays = true;
    DialogScript script;
    script.Click(IDOK).Answer(kOkButton, kOrder).ExpectFocus(IDC_HISTOGRAM_LOWER);
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, OtherSetsOfTextAreTheHostsMatter) {
    source.Kind(1).nullArrays = true;
    options.bBinAllData = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

// --- Modes ---------------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, WithoutADataTabTheSelectionIsNotChecked) {
    params.bUseDataOptions = 0;
    std::strcpy(data.szUnitarySelectionList1, "");
    options.bBinAllData = 1;
    MakeSheet();
    source.nullArrays = true;
    DialogScript script;
    script.Do([](HWND hDialog) {
        EXPECT_EQ(SendMessageA(GetDlgItem(hDialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 1);
    });
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(HistogramDialogTest, ReadOnlyShowsTheRecordAsItIs) {
    params.bReadOnly = 1;
    options.eHistoType = 7;
    options.fBinWidth = -4.0f;
    options.fMinDataValue = -30.0f;
    options.fMaxDataValue = -40.0f;
    options.nBinsPerDecade = -2;
    options.nNumBins = 77;
    options.bNormalize = 1;
    const ZXADLG_HistogramOptions before = options;
    DialogScript script;
    script.ExpectTitle("Histogram (read only)")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "-4")
        .ExpectText(IDC_HISTOGRAM_LOWER, "-30")
        .ExpectText(IDC_HISTOGRAM_UPPER, "-40")
        .ExpectText(IDC_HISTOGRAM_BINS, "77")
        .ExpectText(IDC_HISTOGRAM_DECADES, "-2")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 0.000 to 10.000");
    for (const int nId :
         {IDC_HISTOGRAM_WIDTH, IDC_HISTOGRAM_WIDTH_SPIN, IDC_HISTOGRAM_BINS,
          IDC_HISTOGRAM_BINS_SPIN, IDC_HISTOGRAM_DECADES, IDC_HISTOGRAM_DECADES_SPIN,
          IDC_HISTOGRAM_LOWER, IDC_HISTOGRAM_UPPER, IDC_HISTOGRAM_NORMALIZE, IDC_HISTOGRAM_COMBINE,
          IDC_HISTOGRAM_ALL, IDC_HISTOGRAM_LOGARITHMIC})
        script.ExpectEnabled(nId, false);
    script.Ungrey(IDC_HISTOGRAM_COMBINE)
        .Click(IDC_HISTOGRAM_COMBINE)
        .ExpectChecked(IDC_HISTOGRAM_COMBINE, BST_UNCHECKED)
        .ExpectFocus(IDCANCEL)
        .Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(HistogramDialogTest, ADeferredRunOverASourceOfZerosPasses) {
    params.bDeferredRun = 1;
    source.Kind(1).Points(0).samplingFrequency = 0.0;
    source.regions.clear();
    options.nNumBins = 33;
    DialogScript script;
    script.ExpectVisible(IDC_HISTOGRAM_RANGE, false)
        .ExpectVisible(IDC_HISTOGRAM_DECADES_COUNT, false)
        .ExpectText(IDC_HISTOGRAM_BINS, "33")
        .Type(IDC_HISTOGRAM_UPPER, "70");
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    EXPECT_EQ(options.fMinDataValue, 2.0f);
    EXPECT_EQ(options.fMaxDataValue, 70.0f);
    EXPECT_EQ(options.nNumBins, 33);
}

TEST_F(HistogramDialogTest, ADeferredRunTakesTheRangeFromTheBlock) {
    params.bDeferredRun = 1;
    data.dMinValue = 3.0;
    data.dMaxValue = 25.5;
    options.fMaxDataValue = 30.0f;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 3.000 to 25.500")
        .ExpectText(IDC_HISTOGRAM_LOWER, "3")
        .ExpectText(IDC_HISTOGRAM_UPPER, "25.5")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 179")
        .ExpectText(IDC_HISTOGRAM_BINS, "10");
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 10);
    EXPECT_EQ(data.dMaxValue, 25.5);
}

TEST_F(HistogramDialogTest, ADeferredRangeUpsideDownHasNoBins) {
    params.bDeferredRun = 1;
    data.dMinValue = 25.0;
    data.dMaxValue = 3.0;
    options.bBinAllData = 1;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_BINS, "0");
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 0);
}

TEST_F(HistogramDialogTest, ADeferredRangeThatIsNoNumberIsNone) {
    params.bDeferredRun = 1;
    data.dMinValue = std::nan("");
    data.dMaxValue = 3.0;
    DialogScript script;
    script.ExpectVisible(IDC_HISTOGRAM_RANGE, false).ExpectText(IDC_HISTOGRAM_LOWER, "2");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMaxDataValue, 7.0f);
}

// --- What is no good -----------------------------------------------------------------------------

TEST_F(HistogramDialogTest, OddDataAndRecordsOpen) {
    const double kNoNumber = std::nan("");
    const std::vector<std::vector<double>> columns = {
        {}, {5}, {kNoNumber, kNoNumber}, {-1e308, 1e308}, {1e-300, 2e-300}, {HUGE_VAL, -HUGE_VAL}};
    for (const std::uint32_t uKind : {0u, 1u, 2u}) {
        for (const std::vector<double>& column : columns) {
            for (const int nByte : {0x00, 0x5A, 0xFF}) {
                source.Kind(uKind);
                Values(column);
                source.nullArrays = column.empty();
                std::memset(&options, nByte, sizeof options);
                DialogScript script;
                script.Do([this] {
                    EXPECT_GT(options.fBinWidth, 0.0f);
                    EXPECT_GE(options.nNumBins, 1);
                    EXPECT_LE(options.nNumBins, 10000000);
                    EXPECT_TRUE(std::isfinite(options.fMinDataValue));
                    EXPECT_TRUE(std::isfinite(options.fMaxDataValue));
                    EXPECT_TRUE(options.eHistoType >= 0 && options.eHistoType <= 3);
                });
                ShowAndCancel(script);
            }
        }
    }
}

TEST_F(HistogramDialogTest, OneValueHasNoRange) {
    Values({5});
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 5.000 to 5.000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "5")
        .ExpectText(IDC_HISTOGRAM_UPPER, "5")
        .ExpectText(IDC_HISTOGRAM_BINS, "1")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 36")
        .Click(IDOK)
        .Answer(kOkButton, kOrder);
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, ValuesThatAreNoNumbersAreNoData) {
    Values({std::nan(""), std::nan("")});
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE,
                      "Data Range = Not available (text column or empty sheet)");
    ShowAndCancel(script);
}

}  // namespace
