// The page of the output: what it shows of the lists, and what it stores.

#include "MeasurementTest.h"

namespace {

using namespace measurement_test;

class OutputPageTest : public MeasurementTest {
  protected:
    OutputPageTest() { Search(0).bStanDev = Search(0).bArea = Search(0).bHalfWidth = 1; }

    static DialogScript& Page(DialogScript& script) { return script.SelectTab("Output"); }
    static DialogScript& ExpectChosen(DialogScript& script, std::vector<int> vItems) {
        return script.Do([vItems](HWND dialog) {
            EXPECT_EQ(SelectedIndexes(FindControl(dialog, 2575)), vItems);
        });
    }
};

TEST_F(OutputPageTest, ShowsTheListsOfTheSearch) {
    DialogScript script;
    Page(script)
        .ExpectItems(2574, {"Mean", "Standard deviation", "Area", "Half-width", "Time (Trace)"})
        .ExpectItems(2575, {"Mean", "Standard deviation", "Area", "Half-width"})
        .ExpectSelected(2574, "Time (Trace)")
        .ExpectText(2571, "Automatic &Graph Parameters")
        .ExpectText(2503, "&Write analysis region information");
    ExpectChosen(script, {0, 1});
    script.Do([](HWND dialog) {
        const HWND hX = FindControl(dialog, 2574);
        EXPECT_EQ(SendMessageA(hX, CB_GETITEMDATA, 0, 0), 8);
        EXPECT_EQ(SendMessageA(hX, CB_GETITEMDATA, 4, 0), 1);
    });
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).nNumYPlotItems, 2);
    EXPECT_EQ(Search(0).aeAutoPlotYVariable[0], 8);
    EXPECT_EQ(Search(0).aeAutoPlotYVariable[1], 9);
    EXPECT_EQ(Search(0).aeAutoPlotYVariable[2], -1);
    EXPECT_EQ(Search(0).eAutoPlotXVariable, 1);
}

TEST_F(OutputPageTest, StoresWhatTheUserChooses) {
    Search(0).bDoAutoGraph = 1;
    DialogScript script;
    Page(script)
        .Choose(2574, "Area")
        .ClickItem(2575, 3)
        .ClickItem(2575, 0, test_support::kControl)
        .Do([this] {
            EXPECT_EQ(Search(0).eAutoPlotXVariable, 10);
            EXPECT_EQ(Search(0).nNumYPlotItems, 2);
            EXPECT_EQ(Search(0).aeAutoPlotYVariable[0], 8);
            EXPECT_EQ(Search(0).aeAutoPlotYVariable[1], 11);
        })
        .Click(2503)
        .Click(2571)
        .Do([this] { EXPECT_EQ(Search(0).bDoAutoGraph, 0); });
    ShowAndAccept(script);
    EXPECT_EQ(options.common.bWriteRegionInfo, 1);
    EXPECT_EQ(Search(0).eAutoPlotXVariable, 10);
}

TEST_F(OutputPageTest, AnotherSearchHasListsOfItsOwn) {
    Search(1).bMaxRiseSlope = Search(1).bPeakTime = 1;
    DialogScript script;
    script.Type(2465, "2").SelectTab("Output").ExpectItems(
        2574, {"Maximum rise slope", "Time of peak (Trace)", "Time (Trace)"});
    ExpectChosen(script, {0});
    script.SelectTab("Measurements").Type(2465, "1");
    Page(script).ExpectItems(2575, {"Mean", "Standard deviation", "Area", "Half-width"});
    ShowAndAccept(script);
    EXPECT_EQ(Search(1).nNumYPlotItems, 1);
    EXPECT_EQ(Search(1).aeAutoPlotYVariable[0], 12);
}

TEST_F(OutputPageTest, FollowsTheMeasurements) {
    DialogScript script;
    script.Click(2481).Click(2488).SelectTab("Output").ExpectItems(
        2575, {"Mean", "Baseline", "Area", "Half-width"});
    ExpectChosen(script, {0, 1});
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).aeAutoPlotYVariable[1], 23);
}

// Required as it stands.
TEST_F(OutputPageTest, TheListsAreEmptyBehindAChangeWithThePeakAmplitude) {
    DialogScript script;
    script.Click(2476)
        .SelectTab("Output")
        .ExpectItems(2574, {})
        .ExpectItems(2575, {})
        .Do([this] {
            EXPECT_EQ(Search(0).nNumYPlotItems, 0);
            EXPECT_EQ(Search(0).aeAutoPlotYVariable[0], -1);
        })
        // Leaving the page fills them.
        .SelectTab("Measurements")
        .SelectTab("Output")
        .ExpectItems(2575, {"Peak amplitude", "Mean", "Standard deviation", "Area", "Half-width"});
    ShowAndCancel(script);
}

TEST_F(OutputPageTest, ARegionFillsTheListsAnew) {
    DialogScript script;
    script.Click(2476).Choose(2467, "Epoch A");
    Page(script).Do([](HWND dialog) { EXPECT_EQ(ItemsOf(FindControl(dialog, 2575)).size(), 5u); });
    ShowAndCancel(script);
}

// --- What the host offers ------------------------------------------------------------------------

TEST_F(OutputPageTest, WithoutAGraphItsControlsAreHiddenAndItIsOff) {
    params.bMeasurementOutputB = 0;
    Search(0).bDoAutoGraph = 1;
    Search(2).bDoAutoGraph = 1;
    Search(0).nNumYPlotItems = 7;
    DialogScript script;
    Page(script);
    for (const int nId : {2571, 2572, 2573, 2574, 2575, 2576}) script.ExpectVisible(nId, false);
    script.ExpectVisible(2503, true);
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).bDoAutoGraph, 0);
    // Of a search that was not shown nothing is known.
    EXPECT_EQ(Search(2).bDoAutoGraph, 1);
    EXPECT_EQ(Search(0).nNumYPlotItems, 7);
}

TEST_F(OutputPageTest, WithoutTheChoiceTheGraphIsOn) {
    params.bMeasurementOutputC = 0;
    DialogScript script;
    Page(script).ExpectVisible(2571, false).ExpectText(2576, "Automatic &Graph Parameters");
    for (const int nId : {2572, 2573, 2574, 2575}) {
        script.ExpectVisible(nId, true).ExpectEnabled(nId, true);
    }
    script.SelectTab("Measurements").Type(2465, "2").SelectTab("Output");
    // It follows whether the search is on.
    for (const int nId : {2572, 2573, 2574, 2575}) script.ExpectEnabled(nId, false);
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).bDoAutoGraph, 1);
    EXPECT_EQ(Search(1).bDoAutoGraph, 1);
    EXPECT_EQ(Search(2).bDoAutoGraph, 0);
}

TEST_F(OutputPageTest, WithTheChoiceItAloneEnablesTheLists) {
    Search(0).bRegionEnable = 0;
    DialogScript script;
    Page(script).ExpectChecked(2571, BST_UNCHECKED).ExpectText(2576, "");
    for (const int nId : {2572, 2573, 2574, 2575}) script.ExpectEnabled(nId, false);
    script.Click(2571);
    for (const int nId : {2572, 2573, 2574, 2575}) script.ExpectEnabled(nId, true);
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).bDoAutoGraph, 1);
}

TEST_F(OutputPageTest, TheRegionInformationShowsWhereTheHostOffersIt) {
    params.bShowWriteRegionInfo = 0;
    DialogScript script;
    Page(script).ExpectVisible(2503, false).ExpectVisible(IDC_OUTPUT_OPTIONS_GROUP, false);
    ShowAndCancel(script);
}

TEST_F(OutputPageTest, TheOrderIsCarried) {
    options.eOutputOrder = 12345;
    params.bMeasurementOutputA = 1;
    DialogScript script;
    Page(script).Do([](HWND dialog) { EXPECT_EQ(FindControl(dialog, 2535), nullptr); });
    ShowAndAccept(script);
    EXPECT_EQ(options.eOutputOrder, 12345);
}

TEST_F(OutputPageTest, WithoutThePageNothingOfItChanges) {
    params.bShowMeasurementOutput = 0;
    Search(0).bDoAutoGraph = 7;
    Search(0).nNumYPlotItems = 5;
    Search(0).eAutoPlotXVariable = 9;
    DialogScript script;
    script.ExpectItems(IDC_TABS, {"Measurements", "Data"}).Click(2476);
    ShowAndAccept(script);
    EXPECT_EQ(Search(0).bDoAutoGraph, 7);
    EXPECT_EQ(Search(0).nNumYPlotItems, 5);
    EXPECT_EQ(Search(0).eAutoPlotXVariable, 9);
}

TEST_F(OutputPageTest, ADeferredRunPreselectsNoTime) {
    Search(0).bPeakAmplitude = Search(0).bPeakTime = 1;
    DialogScript live;
    Page(live).ExpectSelected(2574, "Time of peak (Trace)");
    ShowAndCancel(live);
    Search(0).eAutoPlotXVariable = 0;
    params.bDeferredRun = 1;
    DialogScript deferred;
    Page(deferred).ExpectSelected(2574, "Time (Trace)");
    ShowAndCancel(deferred);
}

}  // namespace
