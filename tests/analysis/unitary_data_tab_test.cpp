// The data tab of one family of sets, as its user meets it.

#include "UnitaryTabFixture.h"

namespace {

// --- What is shown

TEST_F(UnitaryTab, CaptionsComeFromTheNounsOfTheHost) {
    DialogScript script;
    script.ExpectText(IDC_GROUP_LABEL, "Select Signal:")
        .ExpectText(IDC_SET_LABEL, "Select Traces:")
        .ExpectText(IDC_SETS_VISIBLE, "All visi&ble traces")
        .ExpectText(IDC_SETS_ALL, "All traces (including &hidden)")
        .ExpectText(IDC_SETS_ACTIVE, "Acti&ve trace")
        .ExpectText(IDC_SETS_LISTED, "S&elect from list")
        .ExpectText(IDC_SETS_TYPED, "&Specify a list (example: 1..5,18,25..40):")
        .ExpectText(IDC_GROUPS_ACTIVE, "Ac&tive signal")
        .ExpectText(IDC_GROUPS_ONE, "Spe&cify a signal")
        .ExpectText(IDC_GROUPS_VISIBLE, "A&ll visible signals")
        .ExpectText(IDC_GROUPS_ALL, "All signals (incl&uding hidden)")
        .ExpectText(IDC_REGION_LABEL, "Analysis &region:")
        .ExpectText(IDC_FORCE_TO_ZERO, "Force excluded region to &zero")
        .ExpectText(IDC_SELECT_ALL, "Select &All")
        .ExpectText(IDC_SELECT_NONE, "Select N&one")
        .ExpectText(IDC_SELECT_INVERT, "&Invert")
        .ExpectText(IDC_SET_COUNT, "IN 0 contains 12 traces")
        .ExpectItems(IDC_GROUP, {"IN 0", "IN 1"})
        .ExpectItems(IDC_REGION, {"Whole trace", "Cursors 1..2"})
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, NullNounsGiveTheBuiltInCaptions) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_GROUP_LABEL, "Select Group:")
        .ExpectText(IDC_SET_LABEL, "Select Set:")
        .ExpectText(IDC_SETS_VISIBLE, "All visi&ble sets")
        .ExpectText(IDC_GROUPS_ALL, "All groups (incl&uding hidden)")
        .ExpectText(IDC_SET_COUNT, "Group contains 12 sets")
        .ExpectItems(IDC_GROUP, {})
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, NounsOfTheHostAreNeverFormats) {
    source.groupLabel = "%s%n%d";
    source.setLabel = std::string(300, 'S') + "%n";
    source.groupNames[0] = "%0 %1 %s";
    DialogScript script;
    script.ExpectText(IDC_GROUP_LABEL, "Select %s%n%d:")
        .ExpectText(IDC_GROUPS_ACTIVE, "Ac&tive %s%n%d")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, StoredListShowsOneBased) {
    record.eDataSet1SelectionMode = 4;
    DialogScript script;
    script.ExpectText(IDC_SET_LIST_TEXT, "1..3").Do(Selected({0, 1, 2})).Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "0..2");
}

TEST_F(UnitaryTab, ListThatCannotBeParsedShowsSetOne) {
    for (const char* text : {"abc", "", "1,,3", "4x", "50..60"}) {
        SCOPED_TRACE(text);
        List(text);
        DialogScript script;
        script.ExpectText(IDC_SET_LIST_TEXT, "1").Do(Selected({0})).Click(IDOK);
        EXPECT_EQ(ShowUnitary(script), 1);
    }
}

TEST_F(UnitaryTab, NumberEqualToTheCountPassesAndOneAboveDoesNot) {
    List("3,12,13");
    DialogScript script;
    script.ExpectText(IDC_SET_LIST_TEXT, "4,13").Do(Selected({3})).Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(UnitaryTab, FlagsDecideWhatIsOffered) {
    flags = {.bAllowForceToZero = 1, .bAllowRegion = 0, .bShowGroups = 0, .bShowSetTools = 0};
    record.bForceExcludedRegionToZero = 1;
    DialogScript script;
    script.ExpectVisible(IDC_GROUP, false)
        .ExpectVisible(IDC_GROUP_LABEL, false)
        .ExpectVisible(IDC_GROUPS_ACTIVE, false)
        .ExpectVisible(IDC_GROUPS_ONE, false)
        .ExpectVisible(IDC_GROUPS_VISIBLE, false)
        .ExpectVisible(IDC_GROUPS_ALL, false)
        .ExpectVisible(IDC_REGION, false)
        .ExpectVisible(IDC_REGION_LABEL, false)
        .ExpectVisible(IDC_SELECT_ALL, false)
        .ExpectVisible(IDC_SELECT_NONE, false)
        .ExpectVisible(IDC_SELECT_INVERT, false)
        .ExpectVisible(IDC_FORCE_TO_ZERO, true)
        .ExpectChecked(IDC_FORCE_TO_ZERO, BST_CHECKED)
        .Click(IDC_FORCE_TO_ZERO)
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.bForceExcludedRegionToZero, 0);
}

TEST_F(UnitaryTab, RegionTakesThePlaceOfAHiddenGroupSelector) {
    const auto top = [](HWND dialog, int id) {
        RECT rc;
        GetWindowRect(FindControl(dialog, id), &rc);
        return rc.top;
    };
    LONG gap = 0;
    DialogScript shown;
    shown.Do([&](HWND dialog) { gap = top(dialog, IDC_REGION) - top(dialog, IDC_REGION_LABEL); })
        .Do([&](HWND dialog) {
            EXPECT_GT(top(dialog, IDC_REGION_LABEL), top(dialog, IDC_GROUPS_ALL));
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(shown), 2);
    flags.bShowGroups = 0;
    DialogScript hidden;
    hidden
        .Do([&](HWND dialog) {
            EXPECT_EQ(top(dialog, IDC_REGION_LABEL), top(dialog, IDC_GROUPS_ACTIVE));
            EXPECT_EQ(top(dialog, IDC_REGION) - top(dialog, IDC_REGION_LABEL), gap);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(hidden), 2);
}

TEST_F(UnitaryTab, OneSignalWithoutSelectorStillHasSetRadios) {
    source.Groups({"IN 0"});
    flags.bShowGroups = 0;
    DialogScript script;
    script.ExpectVisible(IDC_GROUP, false)
        .ExpectVisible(IDC_GROUPS_ONE, false)
        .Click(IDC_SETS_ALL)
        .Do(Selected(Upto(12)))
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.eDataSet1SelectionMode, 1);
}

TEST_F(UnitaryTab, NoGroupsSetsOrRegionsOpenAndClose) {
    source.regions.clear();
    source.Sets(0).Points(0);
    DialogScript sets;
    sets.ExpectText(IDC_SET_COUNT, "IN 0 contains 0 traces")
        .ExpectItems(IDC_REGION, {})
        .Click(IDOK)
        .Answer(IDOK, kNoData)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(sets), 2);
    source.Groups({});
    DialogScript groups;
    groups.ExpectText(IDC_SET_COUNT, "Group contains 0 traces").Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(groups), 2);
}

// --- Sets

TEST_F(UnitaryTab, SetModesSelectAndEnable) {
    source.hiddenEvery = 4;
    source.activeSet = 6;
    Numbers visible;
    for (int i = 0; i < 12; ++i) {
        if (i % 4 != 3) visible.push_back(i);
    }
    DialogScript script;
    EnabledList(script, true).ExpectEnabled(IDC_SET_LIST_TEXT, false);
    script.Do([this] { log.Take(); }).Click(IDC_SETS_VISIBLE).Do(Selected(visible));
    EnabledList(script, false).ExpectEnabled(IDC_SET_LIST_TEXT, false);
    script.Do([this] { EXPECT_EQ(record.eDataSet1SelectionMode, 0); })
        .ExpectText(IDC_SET_LIST_TEXT, "1..3,5..7,9..11")
        .Click(IDC_SETS_ALL)
        .Do(Selected(Upto(12)))
        .ExpectText(IDC_SET_LIST_TEXT, "1..12")
        .Do([this] { EXPECT_EQ(record.eDataSet1SelectionMode, 1); })
        .Click(IDC_SETS_ACTIVE)
        .Do(Selected({5}))
        .ExpectText(IDC_SET_LIST_TEXT, "6")
        .ExpectEnabled(IDC_SET_LIST_TEXT, false)
        .Do([this] { EXPECT_EQ(record.eDataSet1SelectionMode, 2); });
    EnabledList(script, false);
    // What the rules showed in the edit has replaced nothing.
    script.Click(IDC_SETS_LISTED).Do(Selected({0, 1, 2})).ExpectText(IDC_SET_LIST_TEXT, "1..3");
    EnabledList(script, true);
    script.Click(IDC_SETS_TYPED)
        .ExpectText(IDC_SET_LIST_TEXT, "1..3")
        .ExpectEnabled(IDC_SET_LIST_TEXT, true)
        .Do([this] { EXPECT_EQ(record.eDataSet1SelectionMode, 4); });
    EnabledList(script, false);
    script
        .Do([this] {
            const std::vector<int> told = log.Take();
            EXPECT_EQ(std::count(told.begin(), told.end(), 2212), 5);
        })
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "0..2");
}

TEST_F(UnitaryTab, NoActiveSetSelectsNothing) {
    source.activeSet = 0;
    record.eDataSet1SelectionMode = 2;
    DialogScript script;
    script.Do(Selected({})).Click(IDOK).Answer(IDOK, kNoData).Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(UnitaryTab, OtherKindsForceTheListAndDisableTheFirstThreeRadios) {
    for (const uint32_t kind : {1u, 2u}) {
        for (const int mode : {0, 1, 2}) {
            SCOPED_TRACE(kind);
            source.Kind(kind);
            record.eDataSet1SelectionMode = mode;
            DialogScript script;
            script.ExpectEnabled(IDC_SETS_VISIBLE, false)
                .ExpectEnabled(IDC_SETS_ALL, false)
                .ExpectEnabled(IDC_SETS_ACTIVE, false)
                .ExpectEnabled(IDC_SETS_LISTED, true)
                .ExpectEnabled(IDC_SETS_TYPED, true)
                .ExpectChecked(IDC_SETS_LISTED, BST_CHECKED)
                .ExpectEnabled(IDC_GROUPS_ACTIVE, false)
                .ExpectEnabled(IDC_GROUPS_ONE, false)
                .ExpectEnabled(IDC_GROUPS_VISIBLE, false)
                .ExpectEnabled(IDC_GROUPS_ALL, false)
                .ExpectEnabled(IDC_GROUP, true)
                .ExpectVisible(IDC_REGION, false)
                .Do(Selected({0, 1, 2}))
                .Click(IDOK);
            EXPECT_EQ(ShowUnitary(script), 1);
            EXPECT_EQ(record.eDataSet1SelectionMode, 3);
        }
    }
}

TEST_F(UnitaryTab, ListAndTextFollowEachOther) {
    DialogScript script;
    script.ClickItem(IDC_SET_LIST, 4)
        .ExpectText(IDC_SET_LIST_TEXT, "5")
        .ClickItem(IDC_SET_LIST, 7, test_support::kShift)
        .ExpectText(IDC_SET_LIST_TEXT, "5..8")
        .ClickItem(IDC_SET_LIST, 0, test_support::kControl)
        .ExpectText(IDC_SET_LIST_TEXT, "1,5..8")
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, "0,4..7"); })
        .Click(IDC_SETS_TYPED)
        .Type(IDC_SET_LIST_TEXT, "2, 4 .. 6")
        .Do(Selected({1, 3, 4, 5}))
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, "1,3..5"); })
        .Click(IDC_SETS_LISTED)
        .ExpectText(IDC_SET_LIST_TEXT, "2,4..6")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, TypedTextThatCannotBeReadSelectsNothing) {
    record.eDataSet1SelectionMode = 4;
    DialogScript script;
    script.Type(IDC_SET_LIST_TEXT, "4x")
        .Do(Selected({}))
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, ""); })
        .Click(IDOK)
        .Answer(IDOK, kNoData)
        .Type(IDC_SET_LIST_TEXT, "5..3")
        .Do(Selected({2, 3, 4}))
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, "4,3,2"); })
        .Type(IDC_SET_LIST_TEXT, "99")
        .Do(Selected({}))
        .Type(IDC_SET_LIST_TEXT, "1")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "0");
}

TEST_F(UnitaryTab, AListThatNamesSetsThatAreNotThereIsRefused) {
    constexpr char kNoSuchTrace[] =
        "The list names a trace that the data do not have. They are numbered from 1 to 12.";
    record.eDataSet1SelectionMode = 4;
    for (const char* szTyped : {"2,13", "2..40", "0,2"}) {
        SCOPED_TRACE(szTyped);
        DialogScript script;
        script.Type(IDC_SET_LIST_TEXT, szTyped)
            .Click(IDOK)
            .Answer(IDOK, kNoSuchTrace)
            .ExpectFocus(IDC_SET_LIST_TEXT)
            .ExpectText(IDC_SET_LIST_TEXT, szTyped)
            .Type(IDC_SET_LIST_TEXT, "2,12")
            .Click(IDOK);
        EXPECT_EQ(ShowUnitary(script), 1);
        EXPECT_STREQ(record.szUnitarySelectionList1, "1,11");
    }
}

// A deferred run finds its sets in its own data.
TEST_F(UnitaryTab, AListWithStoredInfoMayNameAnySets) {
    flags.bUseStoredInfo = 1;
    record.eDataSet1SelectionMode = 4;
    DialogScript script;
    script.Type(IDC_SET_LIST_TEXT, "2,13").Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "1,12");
}

TEST_F(UnitaryTab, ToolsSelectAllNoneAndTheOthers) {
    DialogScript script;
    script.Click(IDC_SELECT_INVERT)
        .Do(Selected({3, 4, 5, 6, 7, 8, 9, 10, 11}))
        .ExpectText(IDC_SET_LIST_TEXT, "4..12")
        .Click(IDC_SELECT_ALL)
        .Do(Selected(Upto(12)))
        .ExpectText(IDC_SET_LIST_TEXT, "1..12")
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, "0..11"); })
        .Click(IDC_SELECT_NONE)
        .Do(Selected({}))
        .ExpectText(IDC_SET_LIST_TEXT, "")
        .Do([this] { EXPECT_STREQ(record.szUnitarySelectionList1, "0..11"); })
        .Click(IDOK)
        .Answer(IDOK, kNoData)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(UnitaryTab, ToolsKeepTheFirstVisibleItem) {
    source.Sets(200);
    int top = -1;
    DialogScript script;
    script
        .Do([](HWND dialog) {
            SendMessageA(FindControl(dialog, IDC_SET_LIST), LB_SETTOPINDEX, 60, 0);
        })
        .Click(IDC_SELECT_ALL)
        .Do([&](HWND dialog) {
            top = static_cast<int>(
                SendMessageA(FindControl(dialog, IDC_SET_LIST), LB_GETTOPINDEX, 0, 0));
        })
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(top, 60);
}

TEST_F(UnitaryTab, TenThousandSetsAndAListOfTheWholeField) {
    source.Sets(10000).Points(2);
    std::string typed;
    for (int i = 1; typed.size() < 985; i += 2) typed += (i > 1 ? "," : "") + std::to_string(i);
    record.eDataSet1SelectionMode = 4;
    DialogScript script(120000);
    script
        .Do([&](HWND dialog) {
            SetWindowTextA(FindControl(dialog, IDC_SET_LIST_TEXT), typed.c_str());
        })
        .Do([&](HWND dialog) {
            const Numbers items = SelectedIndexes(FindControl(dialog, IDC_SET_LIST));
            EXPECT_EQ(items.size(),
                      1 + static_cast<std::size_t>(std::count(typed.begin(), typed.end(), ',')));
            EXPECT_EQ(items[1], 2);
        })
        .Click(IDC_SETS_LISTED)
        .Click(IDC_SELECT_INVERT)
        .Click(IDC_SELECT_ALL)
        .ExpectText(IDC_SET_LIST_TEXT, "1..10000")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "0..9999");
    EXPECT_EQ(record.uVisibleSets, 10000u);
}

TEST_F(UnitaryTab, SelectedCountIsStoredAtOk) {
    std::uint32_t count = 0;
    DialogScript script;
    script.Click(IDC_SELECT_INVERT)
        .Do([&] {
            current->ReadControls();
            count = current->Model().GetSelectedGroupCount(0);
        })
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(count, 9u);
}

TEST_F(UnitaryTab, SheetKeepsTheSelectionAsDependentColumns) {
    source.Kind(2);
    DialogScript script;
    script.ExpectText(IDC_SET_LIST_TEXT, "1..3")
        .ClickItem(IDC_SET_LIST, 6)
        .SelectTab("Options")
        .SelectTab("Data")
        .ExpectText(IDC_SET_LIST_TEXT, "7")
        .Do(Selected({6}))
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_STREQ(record.szDepVarSelectionList, "6");
    EXPECT_STREQ(record.szUnitarySelectionList1, "0..2");
}

// --- Groups

TEST_F(UnitaryTab, GroupModesChooseTheGroup) {
    source.activeGroup = 1;
    source.setCounts = {12, 5};
    DialogScript script;
    script.ExpectChecked(IDC_GROUPS_ONE, BST_CHECKED)
        .ExpectEnabled(IDC_GROUP, true)
        .ExpectSelected(IDC_GROUP, "IN 0")
        .Click(IDC_GROUPS_ACTIVE)
        .ExpectEnabled(IDC_GROUP, false)
        .ExpectSelected(IDC_GROUP, "IN 1")
        .ExpectText(IDC_SET_COUNT, "IN 1 contains 5 traces")
        .Do([](HWND dialog) { EXPECT_EQ(ItemsOf(FindControl(dialog, IDC_SET_LIST)).size(), 5u); })
        .Do([this] {
            EXPECT_EQ(record.eDataGroup1SelectionMode, 0);
            EXPECT_EQ(record.uGroup1Index, 1u);
        })
        .Click(IDC_GROUPS_ONE)
        .ExpectEnabled(IDC_GROUP, true)
        .ExpectSelected(IDC_GROUP, "IN 0")
        .ExpectText(IDC_SET_COUNT, "IN 0 contains 12 traces")
        .Choose(IDC_GROUP, "IN 1")
        .ExpectText(IDC_SET_COUNT, "IN 1 contains 5 traces")
        .Do(Selected({0, 1, 2}))
        .Click(IDC_GROUPS_VISIBLE)
        .ExpectEnabled(IDC_GROUP, false)
        .Do([this] { EXPECT_EQ(record.eDataGroup1SelectionMode, 2); })
        .Click(IDC_GROUPS_ALL)
        .ExpectEnabled(IDC_GROUP, false)
        .Do([this] { EXPECT_EQ(record.eDataGroup1SelectionMode, 3); })
        .Click(IDC_GROUPS_ONE)
        .ExpectSelected(IDC_GROUP, "IN 1")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroup1Index, 1u);
    EXPECT_EQ(record.eDataGroup1SelectionMode, 1);
}

TEST_F(UnitaryTab, StoredGroupIsShownWithItsSets) {
    source.setCounts = {12, 5};
    record.uGroup1Index = 1;
    DialogScript script;
    script.ExpectSelected(IDC_GROUP, "IN 1")
        .ExpectText(IDC_SET_COUNT, "IN 1 contains 5 traces")
        .SelectTab("Options")
        .SelectTab("Data")
        .ExpectSelected(IDC_GROUP, "IN 1")
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroup1Index, 1u);
}

TEST_F(UnitaryTab, OtherKindsKeepTheGroupThatTheUserChose) {
    source.Kind(1);
    record.eDataGroup1SelectionMode = 0;
    DialogScript script;
    script.Choose(IDC_GROUP, "IN 1").ExpectSelected(IDC_GROUP, "IN 1").Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroup1Index, 1u);
    source.Kind(2);
    DialogScript sheet;
    sheet.Choose(IDC_GROUP, "IN 1").ExpectSelected(IDC_GROUP, "IN 1").Click(IDOK);
    EXPECT_EQ(ShowUnitary(sheet), 1);
    EXPECT_EQ(record.uPairedGroupIndex, 1u);
}

// --- Region

TEST_F(UnitaryTab, RegionIsShownByIdAndAChangeRebuildsTheDescription) {
    record.eAnalysisRegion = 3;
    DialogScript script;
    script.ExpectVisible(IDC_REGION, true)
        .ExpectSelected(IDC_REGION, "Cursors 1..2")
        .Do([this] {
            EXPECT_EQ(current->Model().GetRegionPosition(), 1);
            EXPECT_EQ(record.uGroupCount, 0u);
            log.Take();
        })
        .Choose(IDC_REGION, "Whole trace")
        .Do([this] {
            EXPECT_EQ(log.Take(), (Numbers{2214, 2229, 2227, 2212}));
            EXPECT_EQ(record.uGroupCount, 2u);
            EXPECT_EQ(record.eAnalysisRegion, 0);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(UnitaryTab, RegionChangeWithStoredInfoRebuildsNothing) {
    flags.bUseStoredInfo = 1;
    DialogScript script;
    script.Do([this] { log.Take(); })
        .Choose(IDC_REGION, "Cursors 1..2")
        .Do([this] {
            EXPECT_EQ(log.Take(), (Numbers{2214, 2227, 2212}));
            EXPECT_EQ(record.uGroupCount, 0u);
        })
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.eAnalysisRegion, 3);
}

TEST_F(UnitaryTab, RegionThatTheDataLackBecomesTheFirst) {
    record.eAnalysisRegion = 44;
    DialogScript script;
    script.ExpectSelected(IDC_REGION, "Whole trace").Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.eAnalysisRegion, 0);
}

}  // namespace
