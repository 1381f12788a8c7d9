// What every analysis dialog does, whatever its options: the read-only dress, the check of the
// data, the end by OK and Cancel, and the options that most dialogs share.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "PageDialog.h"
#include "analysis/CUntabbedDialogBase.h"

namespace {

using analysis_test::PageDialog;
using test_support::DialogScript;

constexpr char kInitFailed[] = "An error was encountered during dialog initialization.";
constexpr char kEmptySets[] = "Some or all of the available data sets contain no data.";
constexpr char kTooFewSets[] =
    "Some or all groups do not contain enough data sets.\nThe minimum number of data sets in each "
    "data group is 2.";
constexpr char kNoData[] = "No data have been selected. At least one data set must be specified.";

class TabbedBase : public testing::Test, protected analysis_test::PageSetup {
  protected:
    TabbedBase() {
        PageDialog::dataFirst = false;
        record.eDataSet1SelectionMode = 1;
        record.eDataGroup1SelectionMode = 1;
    }
    static LRESULT TabOf(HWND dialog) {
        return SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETCURSEL, 0, 0);
    }
};

TEST_F(TabbedBase, OkDescribesTheDataAndEndsWithOne) {
    DialogScript script;
    script.ExpectTitle("Normalize").ExpectVisible(IDOK, true).Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroupCount, 2u);
    EXPECT_EQ(log.codes.back(), 2222);
    EXPECT_EQ(std::count(log.codes.begin(), log.codes.end(), 2229), 1);
}

TEST_F(TabbedBase, DeferredRunDoesNotDescribeTheData) {
    params.bDeferredRun = 1;
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroupCount, 0u);
}

TEST_F(TabbedBase, CancelAndTheCloseBoxEndWithTwo) {
    DialogScript cancel;
    cancel.Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(cancel), 2);
    DialogScript frame;
    frame.CloseByFrame();
    EXPECT_EQ(ShowUnitary(frame), 2);
    DialogScript escape;
    escape.Press(VK_ESCAPE);
    EXPECT_EQ(ShowUnitary(escape), 2);
    EXPECT_EQ(record.uGroupCount, 0u);
}

TEST_F(TabbedBase, ReadOnlyDressHidesOkAndRenamesCancel) {
    params.bReadOnly = 1;
    DialogScript script;
    script.ExpectTitle("Normalize (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
    EXPECT_TRUE(messages.empty());
}

// The dress of the button that Enter presses, and its focus.
void ExpectCloseIsTheDefault(HWND dialog) {
    EXPECT_EQ(LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0)), IDCANCEL);
    const auto typeOf = [dialog](int id) {
        return GetWindowLongPtrA(GetDlgItem(dialog, id), GWL_STYLE) & BS_TYPEMASK;
    };
    EXPECT_EQ(typeOf(IDCANCEL), BS_DEFPUSHBUTTON);
    EXPECT_EQ(typeOf(IDOK), BS_PUSHBUTTON);
}

TEST_F(TabbedBase, CloseOfAReadOnlyDialogIsTheDefaultButtonWithTheFocus) {
    params.bReadOnly = 1;
    DialogScript script;
    script.ExpectFocus(IDCANCEL).Do(ExpectCloseIsTheDefault).Press(VK_RETURN);
    EXPECT_EQ(ShowUnitary(script), 2);
}

// A change of page is two events, the tab is about to change and it has; one more when the last tab
// is left.
TEST_F(TabbedBase, EveryEventOfAReadOnlyDialogChecksTheDataOnce) {
    params.bReadOnly = 1;
    source.Groups({"IN 0"}).Points(0);
    DialogScript script;
    script.SelectTab("Data")
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kEmptySets)
        .SelectTab("Options")
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kEmptySets)
        .Click(IDCANCEL)
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kInitFailed);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, OkOfAReadOnlyDialogEndsWithOneAndDescribesNothing) {
    params.bReadOnly = 1;
    DialogScript script;
    script.Do([](HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_EQ(record.uGroupCount, 0u);
}

TEST_F(TabbedBase, ReadOnlyDialogOverEmptySetsSaysSoAndEndsWithTheFailure) {
    params.bReadOnly = 1;
    source.Groups({"IN 0"}).Points(0);
    DialogScript script;
    script.Click(IDCANCEL).Answer(IDOK, kEmptySets).Answer(IDOK, kInitFailed);
    EXPECT_EQ(ShowUnitary(script), 2);
    EXPECT_EQ(messages, (std::vector<std::string>{kEmptySets, kInitFailed}));
}

TEST_F(TabbedBase, ReadOnlyCheckIsMadeForEachGroup) {
    params.bReadOnly = 1;
    source.Points(0);
    DialogScript script;
    script.Click(IDCANCEL)
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kEmptySets)
        .Answer(IDOK, kInitFailed);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, ReadOnlySheetNeedsTwoColumnsPerGroup) {
    params.bReadOnly = 1;
    source.Kind(2).Groups({"Sheet"}).Sets(1);
    DialogScript script;
    script.Click(IDCANCEL).Answer(IDOK, kTooFewSets).Answer(IDOK, kInitFailed);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, GroupsWithoutSetsPassTheCheck) {
    params.bReadOnly = 1;
    source.Sets(0);
    DialogScript script;
    script.Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
    EXPECT_TRUE(messages.empty());
}

TEST_F(TabbedBase, DialogInEditModeNeverChecksItsData) {
    source.Points(0);
    DialogScript script;
    script.SelectTab("Data").SelectTab("Options").Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
    EXPECT_TRUE(messages.empty());
}

TEST_F(TabbedBase, FailedSetUpShowsItsMessageOnceAndEndsWithTwo) {
    PageDialog::failSetup = true;
    DialogScript script;
    // The message is all that the user sees of it: its text and its button.
    script.ExpectText(90, kInitFailed).Click(101);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, TabOfTheLastOkComesBackAndCancelKeepsTheMemory) {
    DialogScript first;
    first.SelectTab("Data").Click(IDOK);
    EXPECT_EQ(ShowUnitary(first), 1);
    DialogScript second;
    second.Do([](HWND dialog) { EXPECT_EQ(TabOf(dialog), 1); })
        .SelectTab("Options")
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(second), 2);
    EXPECT_EQ(PageDialog::lastTab, 1);
    params.bReadOnly = 1;
    DialogScript third;
    third.Do([](HWND dialog) { EXPECT_EQ(TabOf(dialog), 0); }).Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(third), 2);
}

TEST_F(TabbedBase, MemoryOfATabBeyondTheLastIsIgnored) {
    PageDialog::lastTab = 1;
    DialogScript script;
    script
        .Do([](HWND dialog) {
            EXPECT_EQ(TabOf(dialog), 0);
            EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 1);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script, [](CDataOptionsInterface*) { return nullptr; }), 2);
}

TEST_F(TabbedBase, BadPageComesUpAtOk) {
    record.eDataSet1SelectionMode = 3;
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(IDOK, kNoData)
        .Do([](HWND dialog) { EXPECT_EQ(TabOf(dialog), 1); })
        .Click(IDC_SELECT_ALL)
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(TabbedBase, SourceThatAnswersNothingOpensEveryForm) {
    source.NullTexts().NullArrays();
    const std::vector<UINT> forms = {IDD_UNITARY_DATA, IDD_UNITARY_DATA_DUAL,
                                     IDD_PAIRED_SIX_VARIABLES, IDD_PAIRED_ONE_VARIABLE,
                                     IDD_PAIRED_LIST};
    for (const std::uint32_t kind : {0u, 1u, 2u}) {
        for (const std::uint32_t groups : {0u, 2u}) {
            for (const UINT form : forms) {
                SCOPED_TRACE(std::to_string(kind) + " " + std::to_string(groups) + " " +
                             std::to_string(form));
                source.Kind(kind).Groups(std::vector<std::string>(groups, "")).Sets(3).Points(0);
                DialogScript script;
                script.SelectTab("Data").Click(IDCANCEL);
                const bool unitary = form == IDD_UNITARY_DATA || form == IDD_UNITARY_DATA_DUAL;
                EXPECT_EQ(unitary ? ShowUnitary(script, form) : ShowPaired(script, form), 2);
            }
        }
    }
}

// --- The options page

TEST_F(TabbedBase, OptionsPageShowsAndStoresTheSharedOptions) {
    common = {1, 1, 0};
    DialogScript script;
    script.ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED)
        .ExpectChecked(IDC_DESTINATION_APPEND, BST_UNCHECKED)
        .ExpectChecked(IDC_DYNAMIC_LINK, BST_CHECKED)
        .ExpectChecked(IDC_WRITE_REGION_INFO, BST_UNCHECKED)
        .Click(IDC_DESTINATION_APPEND)
        .Click(IDC_DYNAMIC_LINK)
        .Click(IDC_WRITE_REGION_INFO)
        .Do([this] {
            EXPECT_EQ(common.eDestinationOption, 0);
            EXPECT_EQ(common.bDynamicLink, 0);
            EXPECT_EQ(common.bWriteRegionInfo, 1);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, OptionsPageShowsWhatTheParametersOffer) {
    for (int bits = 0; bits < 8; ++bits) {
        SCOPED_TRACE(bits);
        const bool destination = (bits & 1) != 0, link = (bits & 2) != 0, region = (bits & 4) != 0;
        params.bShowDestination = destination;
        params.bShowDynamicLink = link;
        params.bShowWriteRegionInfo = region;
        DialogScript script;
        script.ExpectVisible(IDC_DESTINATION_GROUP, destination)
            .ExpectVisible(IDC_DESTINATION_APPEND, destination)
            .ExpectVisible(IDC_DESTINATION_REPLACE, destination)
            .ExpectVisible(IDC_DYNAMIC_LINK, link)
            .ExpectVisible(IDC_WRITE_REGION_INFO, region)
            .Click(IDCANCEL);
        EXPECT_EQ(ShowUnitary(script), 2);
    }
}

TEST_F(TabbedBase, DisabledOptionsPageGreysTheSharedOptions) {
    DialogScript script;
    script.Do([this] { current->optionsTab->SetDisabled(true); })
        .ExpectEnabled(IDC_DESTINATION_GROUP, false)
        .ExpectEnabled(IDC_DESTINATION_APPEND, false)
        .ExpectEnabled(IDC_DESTINATION_REPLACE, false)
        .ExpectEnabled(IDC_DYNAMIC_LINK, false)
        .ExpectEnabled(IDC_WRITE_REGION_INFO, false)
        .Do([this] { current->optionsTab->SetDisabled(false); })
        .ExpectEnabled(IDC_DESTINATION_REPLACE, true)
        .ExpectEnabled(IDC_WRITE_REGION_INFO, true)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(TabbedBase, ReadOnlyOptionsPageUndoesEveryEdit) {
    params.bReadOnly = 1;
    const ZXADLG_AnalysisCommon before = common;
    DialogScript script;
    script.Ungrey(IDC_DESTINATION_REPLACE)
        .Click(IDC_DESTINATION_REPLACE)
        .ExpectChecked(IDC_DESTINATION_APPEND, BST_CHECKED)
        .ExpectChecked(IDC_DESTINATION_REPLACE, BST_UNCHECKED)
        .ExpectFocus(IDCANCEL)
        .Ungrey(IDC_DYNAMIC_LINK)
        .Click(IDC_DYNAMIC_LINK)
        .ExpectChecked(IDC_DYNAMIC_LINK, BST_UNCHECKED)
        .Ungrey(IDC_WRITE_REGION_INFO)
        .Click(IDC_WRITE_REGION_INFO)
        .ExpectChecked(IDC_WRITE_REGION_INFO, BST_UNCHECKED)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
    EXPECT_EQ(std::memcmp(&common, &before, sizeof common), 0);
}

// --- The single page

class SinglePage : public CUntabbedDialogBase {
  public:
    SinglePage(ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
               ZXADLG_DataOptions* pData, ZXADLG_AnalysisCommon* pCommon, bool bHasData)
        : CUntabbedDialogBase(nullptr, kTemplate, pSource, pParams, pData),
          m_options(pCommon, pSource) {
        if (pCommon != nullptr) SetOptionsInterface(&m_options);
        if (bHasData)
            m_pDataOptionsObject =
                std::make_unique<CDataOptionsInterface>(pData, pSource, &m_flags);
    }
    BOOL Validate(BOOL, ADM_Wnd** ppFailed) override {
        if (accepts) return TRUE;
        accepts = true;
        *ppFailed = nullptr;
        return FALSE;
    }
    void OnApply() override { applied = true; }

    // The options page of the library serves as a dialog of its own.
    static constexpr UINT kTemplate = 101;
    bool accepts = true;
    bool applied = false;

  private:
    ZXADLG_DataTabFlags m_flags;
    CAnalysisOptionsInterfaceBase m_options;
};

class UntabbedBase : public testing::Test, protected analysis_test::PageSetup {
  protected:
    int Run(DialogScript& script, bool hasData = true, bool hasOptions = true) {
        SinglePage dialog(&source, &params, &record, hasOptions ? &common : nullptr, hasData);
        dialog.accepts = accepts;
        const int result = script.Run([&] { return static_cast<int>(dialog.DoModal()); });
        applied = dialog.applied;
        return result;
    }
    bool accepts = true;
    bool applied = false;
};

TEST_F(UntabbedBase, ShowsAndStoresTheSharedOptions) {
    common = {1, 0, 0};
    DialogScript script;
    script.ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED)
        .ExpectChecked(IDC_DYNAMIC_LINK, BST_UNCHECKED)
        .Click(IDC_DESTINATION_APPEND)
        .Click(IDC_DYNAMIC_LINK)
        .Click(IDOK);
    EXPECT_EQ(Run(script), 1);
    EXPECT_EQ(common.eDestinationOption, 0);
    EXPECT_EQ(common.bDynamicLink, 1);
    EXPECT_EQ(record.uGroupCount, 2u);
    EXPECT_TRUE(applied);
}

TEST_F(UntabbedBase, ShowsWhatTheParametersOffer) {
    for (int bits = 0; bits < 4; ++bits) {
        params.bShowDestination = bits & 1;
        params.bShowDynamicLink = bits >> 1;
        DialogScript script;
        script.ExpectVisible(IDC_DESTINATION_GROUP, (bits & 1) != 0)
            .ExpectVisible(IDC_DESTINATION_REPLACE, (bits & 1) != 0)
            .ExpectVisible(IDC_DYNAMIC_LINK, (bits & 2) != 0)
            .Click(IDCANCEL);
        EXPECT_EQ(Run(script), 2);
    }
}

TEST_F(UntabbedBase, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    DialogScript script;
    script.ExpectTitle("Single page (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Ungrey(IDC_DESTINATION_REPLACE)
        .Click(IDC_DESTINATION_REPLACE)
        .ExpectChecked(IDC_DESTINATION_APPEND, BST_CHECKED)
        .Ungrey(IDC_DYNAMIC_LINK)
        .Click(IDC_DYNAMIC_LINK)
        .ExpectChecked(IDC_DYNAMIC_LINK, BST_UNCHECKED)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), 2);
    EXPECT_EQ(common.eDestinationOption, 0);
    EXPECT_EQ(record.uGroupCount, 0u);
}

TEST_F(UntabbedBase, CloseInReadOnlyModeIsTheDefaultButtonWithTheFocus) {
    params.bReadOnly = 1;
    DialogScript script;
    script.ExpectFocus(IDCANCEL).Do(ExpectCloseIsTheDefault).Press(VK_RETURN);
    EXPECT_EQ(Run(script), 2);
}

TEST_F(UntabbedBase, FailedValidationStaysInTheDialog) {
    accepts = false;
    DialogScript script;
    script.Click(IDOK).ExpectVisible(IDOK, true).Click(IDOK);
    EXPECT_EQ(Run(script), 1);
}

TEST_F(UntabbedBase, DeferredRunAndNoDataObjectDescribeNothing) {
    params.bDeferredRun = 1;
    DialogScript deferred;
    deferred.Click(IDOK);
    EXPECT_EQ(Run(deferred), 1);
    EXPECT_EQ(record.uGroupCount, 0u);
    params.bDeferredRun = 0;
    DialogScript without;
    without.Click(IDC_DYNAMIC_LINK).Click(IDOK);
    EXPECT_EQ(Run(without, false, false), 1);
    EXPECT_EQ(record.uGroupCount, 0u);
    EXPECT_EQ(common.bDynamicLink, 0);
    EXPECT_TRUE(applied);
}

}  // namespace
