// The histogram dialog: what it shows, what follows what, and how its limits follow the data.

#include <cmath>
#include <cstring>

#include "HistogramTest.h"

namespace {

using namespace histogram_test;

// --- Opening -------------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, ShowsTheRecord) {
    options.eHistoType = 1;
    options.bCombineData = 1;
    options.bNormalize = 1;
    options.common.eDestinationOption = 1;
    options.common.bWriteRegionInfo = 1;
    options.nNumBins = 99;
    DialogScript script;
    script.ExpectTitle("Histogram")
        .ExpectChecked(IDC_HISTOGRAM_CUMULATIVE, BST_CHECKED)
        .ExpectText(IDC_HISTOGRAM_WIDTH, "2.5")
        .ExpectText(IDC_HISTOGRAM_BINS, "5")
        .ExpectText(IDC_HISTOGRAM_DECADES, "7")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (-ve value)")
        .ExpectChecked(IDC_HISTOGRAM_NORMALIZE, BST_CHECKED)
        .ExpectChecked(IDC_HISTOGRAM_COMBINE, BST_CHECKED)
        .ExpectChecked(IDC_HISTOGRAM_ALL, BST_UNCHECKED)
        .ExpectText(IDC_HISTOGRAM_LOWER, "2")
        .ExpectText(IDC_HISTOGRAM_UPPER, "7")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 0.000 to 10.000")
        .ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED)
        .ExpectChecked(IDC_WRITE_REGION_INFO, BST_CHECKED);
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 5);
    EXPECT_EQ(options.fBinWidth, 2.5f);
    EXPECT_EQ(options.nBinsPerDecade, 7);
    EXPECT_EQ(options.fMinDataValue, 2.0f);
    EXPECT_EQ(options.fMaxDataValue, 7.0f);
    EXPECT_EQ(options.bNormalize, 1);
}

TEST_F(HistogramDialogTest, AWidthOfZeroBecomesOne) {
    for (const float fWidth : {0.0f, -3.0f}) {
        options.fBinWidth = fWidth;
        DialogScript script;
        script.ExpectText(IDC_HISTOGRAM_WIDTH, "1").ExpectText(IDC_HISTOGRAM_BINS, "11");
        ShowAndAccept(script);
        EXPECT_EQ(options.fBinWidth, 1.0f);
        EXPECT_EQ(options.nNumBins, 11);
    }
}

TEST_F(HistogramDialogTest, AKindThatIsNoneIsTheFirst) {
    for (const int eKind : {9, 4, -1}) {
        options.eHistoType = eKind;
        DialogScript script;
        script.ExpectChecked(IDC_HISTOGRAM_CONVENTIONAL, BST_CHECKED)
            .ExpectEnabled(IDC_HISTOGRAM_WIDTH, true);
        ShowAndAccept(script);
        EXPECT_EQ(options.eHistoType, 0);
    }
}

// --- Kind and check boxes ------------------------------------------------------------------------

TEST_F(HistogramDialogTest, TheKindDecidesOnWidthDecadesAndArea) {
    options.eHistoType = 2;
    options.bBinAllData = 1;
    DialogScript script;
    const int kRadios[] = {IDC_HISTOGRAM_CONVENTIONAL, IDC_HISTOGRAM_CUMULATIVE,
                           IDC_HISTOGRAM_LOGARITHMIC, IDC_HISTOGRAM_VARIABLE};
    for (int eKind = 0; eKind < 4; ++eKind) {
        script.Click(kRadios[eKind]).Do([this, eKind] { EXPECT_EQ(options.eHistoType, eKind); });
        for (const int nId :
             {IDC_HISTOGRAM_WIDTH_LABEL, IDC_HISTOGRAM_WIDTH, IDC_HISTOGRAM_WIDTH_SPIN,
              IDC_HISTOGRAM_BINS_LABEL, IDC_HISTOGRAM_BINS, IDC_HISTOGRAM_BINS_SPIN})
            script.ExpectEnabled(nId, eKind < 2);
        for (const int nId : {IDC_HISTOGRAM_DECADES_LABEL, IDC_HISTOGRAM_DECADES,
                              IDC_HISTOGRAM_DECADES_SPIN, IDC_HISTOGRAM_DECADES_COUNT})
            script.ExpectEnabled(nId, eKind >= 2);
        script.ExpectEnabled(IDC_HISTOGRAM_NORMALIZE, eKind != 3)
            .ExpectEnabled(IDC_HISTOGRAM_COMBINE, true)
            .ExpectEnabled(IDC_HISTOGRAM_ALL, true);
    }
    ShowAndAccept(script);
    EXPECT_EQ(options.eHistoType, 3);
}

TEST_F(HistogramDialogTest, MaximumGreysTheLimits) {
    DialogScript script;
    for (const bool bAll : {true, false}) {
        script.Click(IDC_HISTOGRAM_ALL).Do([this, bAll] {
            EXPECT_EQ(options.bBinAllData, bAll ? 1 : 0);
        });
        for (const int nId : {IDC_HISTOGRAM_LOWER_LABEL, IDC_HISTOGRAM_LOWER,
                              IDC_HISTOGRAM_UPPER_LABEL, IDC_HISTOGRAM_UPPER})
            script.ExpectEnabled(nId, !bAll);
        script.ExpectEnabled(IDC_HISTOGRAM_RANGE, true);
    }
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, CheckBoxesAreStored) {
    DialogScript script;
    script.Click(IDC_HISTOGRAM_NORMALIZE)
        .Click(IDC_HISTOGRAM_COMBINE)
        .Click(IDC_HISTOGRAM_ALL)
        .Click(IDC_DESTINATION_REPLACE)
        .Click(IDC_WRITE_REGION_INFO);
    ShowAndAccept(script);
    EXPECT_EQ(options.bNormalize, 1);
    EXPECT_EQ(options.bCombineData, 1);
    EXPECT_EQ(options.bBinAllData, 1);
    EXPECT_EQ(options.common.eDestinationOption, 1);
    EXPECT_EQ(options.common.bWriteRegionInfo, 1);
}

// --- Width and bins ------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, TheBinsFollowTheWidthAtEachKey) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_WIDTH, "3")
        .ExpectText(IDC_HISTOGRAM_BINS, "4")
        .Do([this] { EXPECT_EQ(options.nNumBins, 4); })
        .TypeKeys(".5")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "3.5")
        .ExpectText(IDC_HISTOGRAM_BINS, "3");
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 3.5f);
    EXPECT_EQ(options.nNumBins, 3);
}

TEST_F(HistogramDialogTest, AWidthOfZeroIsAnErrorAndIsNotStored) {
    Values({1, 10});
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 71")
        .Type(IDC_HISTOGRAM_WIDTH, "0")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (Error)")
        .ExpectText(IDC_HISTOGRAM_BINS, "4")
        .Do([this] {
            EXPECT_EQ(options.fBinWidth, 2.5f);
            EXPECT_EQ(options.nNumBins, 4);
        })
        .TypeKeys(".5")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 71")
        .ExpectText(IDC_HISTOGRAM_BINS, "19")
        .Type(IDC_HISTOGRAM_WIDTH, "-2")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (Error)")
        .ExpectText(IDC_HISTOGRAM_BINS, "19")
        // What else asks for a count finds no width either.
        .Click(IDC_HISTOGRAM_ALL)
        .ExpectText(IDC_HISTOGRAM_BINS, "19")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (Error)");
    ShowAndCancel(script);
    EXPECT_EQ(options.fBinWidth, 0.5f);
    EXPECT_EQ(options.nNumBins, 19);
}

TEST_F(HistogramDialogTest, ATinyWidthGivesTheMostBins) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_WIDTH, "1e-30")
        .ExpectText(IDC_HISTOGRAM_BINS, "10000000")
        // Single precision knows no such number but 0.
        .TypeKeys("0")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "1e-300")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (Error)")
        .Press(VK_BACK);
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 1e-30f);
    EXPECT_EQ(options.nNumBins, 10000000);
}

TEST_F(HistogramDialogTest, TheWidthStepsByAHundredthOfTheRange) {
    DialogScript script;
    script.Focus(IDC_HISTOGRAM_WIDTH)
        .Press(VK_UP)
        .ExpectText(IDC_HISTOGRAM_WIDTH, "2.6")
        .ExpectText(IDC_HISTOGRAM_BINS, "4");
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 2.6f);
}

TEST_F(HistogramDialogTest, WithoutARangeTheWidthStepsByOne) {
    Values({4, 4});
    DialogScript script;
    script.Focus(IDC_HISTOGRAM_WIDTH).Press(VK_UP).ExpectText(IDC_HISTOGRAM_WIDTH, "3");
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, TheWidthReachesTenTimesTheRange) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_WIDTH, "101")
        .Click(IDOK)
        .Answer(kOkButton,
                "Validation Error\r\n\r\nValue in field 'Width' must fall within the range of 0 to "
                "100.")
        .ExpectFocus(IDC_HISTOGRAM_WIDTH)
        .Type(IDC_HISTOGRAM_WIDTH, "100");
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 100.0f);
    EXPECT_EQ(options.nNumBins, 1);
}

TEST_F(HistogramDialogTest, OrTenTimesTheWidthThatWasStored) {
    options.fBinWidth = 50.0f;
    DialogScript script;
    script.Type(IDC_HISTOGRAM_WIDTH, "500");
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 500.0f);
}

TEST_F(HistogramDialogTest, TheWidthFollowsTheBins) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_BINS, "5")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "2")
        .ExpectText(IDC_HISTOGRAM_BINS, "5")
        .ExpectEnabled(IDC_HISTOGRAM_WIDTH, true)
        .Do([this] {
            EXPECT_EQ(options.fBinWidth, 2.0f);
            EXPECT_EQ(options.nNumBins, 5);
        })
        .Type(IDC_HISTOGRAM_BINS, "3")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "3.33333");
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 3);
    EXPECT_EQ(options.fBinWidth, 10.0f / 3.0f);
}

TEST_F(HistogramDialogTest, BinsOfNoRangeGiveNoWidth) {
    Values({4, 4});
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_BINS, "1")
        .Type(IDC_HISTOGRAM_BINS, "6")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "2.5")
        .Click(IDC_HISTOGRAM_LOGARITHMIC)
        .ExpectText(IDC_HISTOGRAM_BINS, "6")
        .Do([this] { EXPECT_EQ(options.nNumBins, 6); });
    ShowAndCancel(script);
    EXPECT_EQ(options.fBinWidth, 2.5f);
}

TEST_F(HistogramDialogTest, NoBinsAreNotStoredAndGoWhenTheFieldIsLeft) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_BINS, "0")
        .ExpectText(IDC_HISTOGRAM_BINS, "0")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "2.5")
        .Do([this] { EXPECT_EQ(options.nNumBins, 5); })
        .Press(VK_TAB)
        .ExpectText(IDC_HISTOGRAM_BINS, "5")
        .Type(IDC_HISTOGRAM_BINS, "-4")
        .Do([this] { EXPECT_EQ(options.nNumBins, 5); });
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 5);
    EXPECT_EQ(options.fBinWidth, 2.5f);
}

TEST_F(HistogramDialogTest, TypedBinsOutlastALookAtTheDataAndOk) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_BINS, "5")
        .SelectTab("Data")
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_BINS, "5");
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 5);
    EXPECT_EQ(options.fBinWidth, 2.0f);
}

// A width of 2 in 0 to 10 makes six bins: the closing bin counts.
TEST_F(HistogramDialogTest, MaximumAndLimitsCountTheBinsAnew) {
    DialogScript script;
    script.Type(IDC_HISTOGRAM_BINS, "5")
        .Click(IDC_HISTOGRAM_ALL)
        .ExpectText(IDC_HISTOGRAM_BINS, "6")
        .Click(IDC_HISTOGRAM_ALL)
        .Type(IDC_HISTOGRAM_BINS, "5")
        .Type(IDC_HISTOGRAM_LOWER, "3")
        .ExpectText(IDC_HISTOGRAM_BINS, "6")
        .Type(IDC_HISTOGRAM_BINS, "5")
        .Type(IDC_HISTOGRAM_UPPER, "8")
        .ExpectText(IDC_HISTOGRAM_BINS, "6");
    ShowAndAccept(script);
    EXPECT_EQ(options.nNumBins, 6);
}

TEST_F(HistogramDialogTest, WithDecadesTheBinsAreLeftAlone) {
    for (const int eKind : {2, 3}) {
        options.eHistoType = eKind == 2 ? 0 : 1;
        DialogScript script;
        script.Type(IDC_HISTOGRAM_BINS, "5")
            .Click(eKind == 2 ? IDC_HISTOGRAM_LOGARITHMIC : IDC_HISTOGRAM_VARIABLE)
            .Click(IDC_HISTOGRAM_ALL)
            .ExpectText(IDC_HISTOGRAM_BINS, "5");
        ShowAndCancel(script);
        EXPECT_EQ(options.nNumBins, 5);
        options.bBinAllData = 0;
    }
}

TEST_F(HistogramDialogTest, DecadesCountByTheMaximum) {
    Values({0.5, 100});
    options.eHistoType = 2;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 701")
        .Type(IDC_HISTOGRAM_DECADES, "3")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 301")
        .TypeKeys("0000000")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 10000000")
        .Do([this] { EXPECT_EQ(options.nBinsPerDecade, 10000000); })
        .Type(IDC_HISTOGRAM_DECADES, "4")
        .Press(VK_UP)
        .ExpectText(IDC_HISTOGRAM_DECADES, "5")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 501");
    ShowAndAccept(script);
    EXPECT_EQ(options.nBinsPerDecade, 5);
}

// --- Limits --------------------------------------------------------------------------------------

TEST_F(HistogramDialogTest, ALimitCanBeTypedThroughWhatIsOutside) {
    Values({10, 20});
    DialogScript script;
    script.Type(IDC_HISTOGRAM_LOWER, "1")
        .ExpectText(IDC_HISTOGRAM_LOWER, "1")
        .Do([this] { EXPECT_EQ(options.fMinDataValue, 10.0f); })
        .TypeKeys("5")
        .ExpectText(IDC_HISTOGRAM_LOWER, "15")
        .Do([this] { EXPECT_EQ(options.fMinDataValue, 15.0f); })
        .Press(VK_TAB)
        .ExpectText(IDC_HISTOGRAM_LOWER, "15");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMinDataValue, 15.0f);
    EXPECT_EQ(options.fMaxDataValue, 20.0f);
}

TEST_F(HistogramDialogTest, ALimitOutsideGoesToItsOwnEnd) {
    Values({10, 20});
    DialogScript script;
    for (const char* szOutside : {"25", "5", ""}) {
        script.Type(IDC_HISTOGRAM_LOWER, szOutside)
            .Do([this] { EXPECT_EQ(options.fMinDataValue, 10.0f); })
            .ExpectText(IDC_HISTOGRAM_LOWER, szOutside)
            .Type(IDC_HISTOGRAM_UPPER, szOutside)
            .ExpectText(IDC_HISTOGRAM_LOWER, "10")
            .Do([this] { EXPECT_EQ(options.fMaxDataValue, 20.0f); })
            .Focus(IDC_HISTOGRAM_ALL)
            .ExpectText(IDC_HISTOGRAM_UPPER, "20")
            .Type(IDC_HISTOGRAM_LOWER, "12")
            .Type(IDC_HISTOGRAM_UPPER, "18");
    }
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, OkRewritesTheFieldBeforeItLooks) {
    Values({10, 20});
    DialogScript script;
    script.Type(IDC_HISTOGRAM_LOWER, "25").Press(VK_RETURN);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.fMinDataValue, 10.0f);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(HistogramDialogTest, ALimitAtTheEndOfTheRangeStaysPut) {
    Values({0, 0.1});
    options.fMinDataValue = 0.05f;
    options.fMaxDataValue = 0.1f;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_UPPER, "0.1")
        .Type(IDC_HISTOGRAM_UPPER, "0.1")
        .Press(VK_TAB)
        .ExpectText(IDC_HISTOGRAM_UPPER, "0.1");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMaxDataValue, 0.1f);
    EXPECT_EQ(options.fMinDataValue, 0.05f);
}

TEST_F(HistogramDialogTest, StoredLimitsComeIntoTheRange) {
    options.fMinDataValue = -3.0f;
    options.fMaxDataValue = 300.0f;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_LOWER, "0").ExpectText(IDC_HISTOGRAM_UPPER, "10");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMinDataValue, 0.0f);
    EXPECT_EQ(options.fMaxDataValue, 10.0f);
}

// --- The range of the data -----------------------------------------------------------------------

TEST_F(HistogramDialogTest, TheRangeFollowsTheRegion) {
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 0.000 to 10.000")
        .SelectTab("Data")
        .Choose(IDC_REGION, "Cursors 1..2")
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 2.000 to 6.000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "2")
        .ExpectText(IDC_HISTOGRAM_UPPER, "6")
        .ExpectText(IDC_HISTOGRAM_BINS, "2");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMaxDataValue, 6.0f);
    EXPECT_EQ(options.nNumBins, 2);
}

// The region is known when all pages are set up: the first look at the data is its.
TEST_F(HistogramDialogTest, TheFirstRangeIsThatOfTheRegion) {
    data.eAnalysisRegion = 3;
    options.fMinDataValue = 3.0f;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 2.000 to 6.000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "3")
        .ExpectText(IDC_HISTOGRAM_UPPER, "6");
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, TheRangeFollowsTheSelection) {
    source.yValues.clear();
    source.Points(11);
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 100.000 to 210.000")
        .SelectTab("Data")
        .ClickItem(IDC_SET_LIST, 3)
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 300.000 to 310.000");
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, NoDataTakeTheLimitsAlongAndOthersRestoreThem) {
    options.fBinWidth = 3.0f;
    source.nullArrays = true;
    DialogScript script;
    script
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = Not available (text column or empty sheet)")
        .ExpectText(IDC_HISTOGRAM_LOWER, "0")
        .ExpectText(IDC_HISTOGRAM_UPPER, "0")
        .ExpectText(IDC_HISTOGRAM_BINS, "1")
        .ExpectText(IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = (-ve value)")
        .Do([this] {
            EXPECT_EQ(options.fMinDataValue, 0.0f);
            EXPECT_EQ(options.fMaxDataValue, 0.0f);
            source.nullArrays = false;
            source.yValues = {5, 10, 7, 7, 7, 7, 7, 7, 7, 7, 7};
        })
        .SelectTab("Data")
        .ClickItem(IDC_SET_LIST, 3)
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 5.000 to 10.000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "3")
        .ExpectText(IDC_HISTOGRAM_UPPER, "9")
        .ExpectText(IDC_HISTOGRAM_BINS, "2");
    ShowAndAccept(script);
    EXPECT_EQ(options.fMinDataValue, 3.0f);
    EXPECT_EQ(options.fMaxDataValue, 9.0f);
}

TEST_F(HistogramDialogTest, LimitsThatWereNotSetAreNotRestored) {
    options.fMinDataValue = 0.0f;
    source.nullArrays = true;
    DialogScript script;
    script.Do([this] { source.nullArrays = false; })
        .SelectTab("Data")
        .ClickItem(IDC_SET_LIST, 3)
        .SelectTab("Options")
        .ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = 0.000 to 10.000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "0")
        .ExpectText(IDC_HISTOGRAM_UPPER, "0");
    ShowAndCancel(script);
}

TEST_F(HistogramDialogTest, LargeRangesShowInExponentForm) {
    Values({-1e308, 1e308});
    options.fMinDataValue = -5.0f;
    DialogScript script;
    script.ExpectText(IDC_HISTOGRAM_RANGE, "Data Range = -1e300 to 1e300")
        .ExpectText(IDC_HISTOGRAM_BINS, "10000000")
        .ExpectText(IDC_HISTOGRAM_LOWER, "-5")
        .Type(IDC_HISTOGRAM_BINS, "2")
        .ExpectText(IDC_HISTOGRAM_WIDTH, "1e30");
    ShowAndAccept(script);
    EXPECT_EQ(options.fBinWidth, 1e30f);
    EXPECT_EQ(options.nNumBins, 2);
}

// --- Layout --------------------------------------------------------------------------------------

LONG TopOf(HWND hDialog, int nId) {
    RECT rc = {};
    GetWindowRect(FindControl(hDialog, nId), &rc);
    return rc.top;
}

TEST_F(HistogramDialogTest, WithoutADestinationTheRestMovesUp) {
    LONG nGroup = 0, nBox = 0;
    DialogScript with;
    with.Do([&](HWND hDialog) {
        nGroup = TopOf(hDialog, IDC_DESTINATION_GROUP);
        nBox = TopOf(hDialog, IDC_WRITE_REGION_INFO);
        EXPECT_LT(nGroup, nBox);
    });
    ShowAndCancel(with);
    params.bShowDestination = 0;
    DialogScript without;
    without.ExpectVisible(IDC_DESTINATION_GROUP, false).Do([&](HWND hDialog) {
        EXPECT_EQ(TopOf(hDialog, IDC_WRITE_REGION_INFO), TopOf(hDialog, IDC_DESTINATION_GROUP));
    });
    ShowAndCancel(without);
}

}  // namespace
