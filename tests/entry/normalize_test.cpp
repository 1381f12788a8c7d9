// Normalize from end to end, as its host and its user meet it.

#include <gtest/gtest.h>

#include <cfenv>
#include <clocale>
#include <cstring>
#include <locale>
#include <new>
#include <string>

#include "ZXADLG.h"
#include "contract/OptionPersistence.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "store/ProfileStore.h"

namespace {

using test_support::DialogScript;
using test_support::ScratchStore;
using test_support::TestDataSource;

class Normalize : public testing::Test {
  protected:
    Normalize() {
        source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        source.Region(4, "Cursors 3..4", 500, 999);
        std::memset(&data, 0, sizeof data);
        data.eDataSet1SelectionMode = 1;
        data.eDataGroup1SelectionMode = 1;
        CopyList("0..2");
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowDestination = 1;
        params.bShowDynamicLink = 1;
        params.bShowWriteRegionInfo = 1;
        options.eBaselineRegion = 3;
        options.ePeakRegion = 4;
    }

    void CopyList(const char* text) {
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "%s",
                      text);
    }

    int Show(DialogScript& script) {
        return script.Run(
            [&] { return ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, &source, &params); });
    }

    TestDataSource source;
    ZXADLG_NormalizeOptions options = {};
    ZXADLG_DataOptions data;
    ZXADLG_DlgParams params = {};
};

TEST_F(Normalize, TheCheckBoxesTakeThePlaceOfAHiddenDestination) {
    RECT rcGroup = {}, rcLink = {};
    params.bShowDestination = params.bShowDynamicLink = 1;
    DialogScript shown;
    shown
        .Do([&](HWND dialog) {
            GetWindowRect(test_support::FindControl(dialog, IDC_DESTINATION_GROUP), &rcGroup);
            GetWindowRect(test_support::FindControl(dialog, IDC_DYNAMIC_LINK), &rcLink);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(Show(shown), IDCANCEL);
    EXPECT_GT(rcLink.top, rcGroup.bottom);
    params.bShowDestination = 0;
    DialogScript hidden;
    hidden
        .Do([&](HWND dialog) {
            GetWindowRect(test_support::FindControl(dialog, IDC_DYNAMIC_LINK), &rcLink);
            EXPECT_EQ(rcLink.top, rcGroup.top);
            EXPECT_EQ(rcLink.left, rcGroup.left);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(Show(hidden), IDCANCEL);
}

TEST_F(Normalize, ShowsTheRecordAndHandsBackTheEdits) {
    DialogScript script;
    script.ExpectTitle("Normalize")
        .ExpectChecked(IDC_NORMALIZE_ALL_POINTS, BST_CHECKED)
        .ExpectEnabled(IDC_NORMALIZE_BASELINE, false)
        .ExpectEnabled(IDC_NORMALIZE_BASELINE_LABEL, false)
        .ExpectEnabled(IDC_NORMALIZE_PEAK_COUNT, false)
        .ExpectSelected(IDC_NORMALIZE_BASELINE, "Cursors 1..2")
        .ExpectSelected(IDC_NORMALIZE_PEAK, "Cursors 3..4")
        .ExpectText(IDC_NORMALIZE_BASELINE_COUNT, "= 100 points")
        .ExpectText(IDC_NORMALIZE_PEAK_COUNT, "= 500 points")
        .Click(IDC_NORMALIZE_REGIONS)
        .ExpectEnabled(IDC_NORMALIZE_BASELINE, true)
        .ExpectEnabled(IDC_NORMALIZE_PEAK_LABEL, true)
        .Choose(IDC_NORMALIZE_PEAK, "Whole trace")
        .ExpectText(IDC_NORMALIZE_PEAK_COUNT, "= 1000 points")
        .Click(IDC_DESTINATION_REPLACE)
        .Click(IDC_DYNAMIC_LINK)
        .Click(IDC_WRITE_REGION_INFO)
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.bUseAllPoints, 1);
    EXPECT_EQ(options.eBaselineRegion, 3u);
    EXPECT_EQ(options.ePeakRegion, 8u);
    EXPECT_EQ(options.common.eDestinationOption, 1);
    EXPECT_EQ(options.common.bDynamicLink, 1);
    EXPECT_EQ(options.common.bWriteRegionInfo, 1);
    EXPECT_EQ(data.uGroupCount, 2u);
    EXPECT_EQ(data.dMinValue, 0.0);
    EXPECT_EQ(data.dMaxValue, 100.0 * 11 + 999);
}

TEST_F(Normalize, StoredUseAllPointsShowsTheSecondButtonAndEnablesTheRegions) {
    options.bUseAllPoints = 1;
    DialogScript script;
    script.ExpectChecked(IDC_NORMALIZE_REGIONS, BST_CHECKED)
        .ExpectChecked(IDC_NORMALIZE_ALL_POINTS, BST_UNCHECKED)
        .ExpectEnabled(IDC_NORMALIZE_BASELINE, true)
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

TEST_F(Normalize, RegionThatTheDataLackSelectsTheFirstEntry) {
    options.eBaselineRegion = 77;
    DialogScript script;
    script.ExpectSelected(IDC_NORMALIZE_BASELINE, "Whole trace").Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.eBaselineRegion, 8u);
}

// Its answers fail in the middle of a dialog, as when the host runs out of memory.
class FailingSource : public TestDataSource {
  public:
    uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                           uint32_t reserved) override {
        if (fails) throw std::bad_alloc();
        return TestDataSource::GetPointCount(group, set, range, reserved);
    }
    bool fails = false;
};

TEST_F(Normalize, AFailureInTheRunningDialogEndsItAndTheHostGoesOn) {
    FailingSource failing;
    failing.Region(0, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
    const ZXADLG_NormalizeOptions optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    DialogScript script;
    script.Click(IDC_NORMALIZE_REGIONS)
        .Do([&] { failing.fails = true; })
        .Choose(IDC_NORMALIZE_BASELINE, "Whole trace");
    EXPECT_EQ(script.Run([&] {
        return ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, &failing, &params);
    }),
              -1);
    EXPECT_EQ(std::memcmp(&options, &optionsBefore, sizeof options), 0);
    EXPECT_EQ(std::memcmp(&data, &dataBefore, sizeof data), 0);
    failing.fails = false;
    DialogScript again;
    again.Click(IDOK);
    EXPECT_EQ(again.Run([&] {
        return ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, &failing, &params);
    }),
              1);
}

TEST_F(Normalize, OpensWhereItWasLeftAlsoAfterCancelAndStoresNoPlace) {
    const ScratchStore store;
    source.Profile(store.ProfileFile());
    const bool old = SetUseProfileFile(true);
    const auto move = [](int x, int y) {
        return [x, y](HWND dialog) {
            SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        };
    };
    const auto expectAt = [](int x, int y) {
        return [x, y](HWND dialog) {
            RECT rc = {};
            GetWindowRect(dialog, &rc);
            EXPECT_EQ(rc.left, x);
            EXPECT_EQ(rc.top, y);
        };
    };
    DialogScript first, second, third;
    first.Do(move(61, 43)).Click(IDCANCEL);
    EXPECT_EQ(Show(first), 2);
    second.Do(expectAt(61, 43)).Do(move(17, 29)).Click(IDOK);
    EXPECT_EQ(Show(second), 1);
    third.Do(expectAt(17, 29)).Click(IDCANCEL);
    EXPECT_EQ(Show(third), 2);
    char text[8];
    for (const char* key : {"Initialized", "XPosition", "YPosition"}) {
        EXPECT_FALSE(ReadString("NormalizeSection", key, "", text, sizeof text,
                                store.ProfileFile().c_str()));
    }
    SetUseProfileFile(old);
    // Another dialog has a place of its own.
    ZXADLG_TimeShiftOptions shift = {};
    DialogScript other;
    other
        .Do([](HWND dialog) {
            RECT rc = {};
            GetWindowRect(dialog, &rc);
            EXPECT_NE(rc.left, 17);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(other.Run([&] {
        return ZXADLG_ShowTimeShiftDialog(nullptr, &shift, &data, &source, &params);
    }),
              2);
}

TEST_F(Normalize, CancelLeavesTheRecordsAndTheStoreAsTheyWere) {
    const ScratchStore store;
    source.Profile(store.ProfileFile());
    const bool old = SetUseProfileFile(true);
    const ZXADLG_NormalizeOptions optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    DialogScript script;
    script.Click(IDC_NORMALIZE_REGIONS)
        .Choose(IDC_NORMALIZE_PEAK, 0)
        .Click(IDC_DESTINATION_REPLACE)
        .SelectTab("Data")
        .Click(IDC_SETS_ACTIVE)
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
    EXPECT_EQ(std::memcmp(&options, &optionsBefore, sizeof options), 0);
    EXPECT_EQ(std::memcmp(&data, &dataBefore, sizeof data), 0);
    char text[8];
    EXPECT_FALSE(ReadString("NormalizeSection", "bUseAllPoints", "", text, sizeof text,
                            store.ProfileFile().c_str()));
    SetUseProfileFile(old);
}

TEST_F(Normalize, OkStoresAndASecondOpeningShowsIt) {
    const ScratchStore store;
    source.Profile(store.ProfileFile());
    const bool old = SetUseProfileFile(true);
    {
        DialogScript script;
        script.Click(IDC_NORMALIZE_REGIONS)
            .Choose(IDC_NORMALIZE_BASELINE, "Cursors 3..4")
            .Click(IDOK);
        EXPECT_EQ(Show(script), 1);
    }
    char text[32];
    EXPECT_TRUE(ReadString("NormalizeSection", "bUseAllPoints", "", text, sizeof text,
                           store.ProfileFile().c_str()));
    EXPECT_STREQ(text, "TRUE");
    EXPECT_TRUE(ReadString("NormalizeDataSection", "uGroup1Index", "", text, sizeof text,
                           store.ProfileFile().c_str()));
    EXPECT_STREQ(text, "0");
    options = {};
    {
        DialogScript script;
        script.ExpectChecked(IDC_NORMALIZE_REGIONS, BST_CHECKED)
            .ExpectSelected(IDC_NORMALIZE_BASELINE, "Cursors 3..4")
            .Click(IDCANCEL);
        EXPECT_EQ(Show(script), 2);
    }
    SetUseProfileFile(old);
}

TEST_F(Normalize, WithoutDataOptionsThereIsOneTabAndTheDataRecordIsNeverWritten) {
    params.bUseDataOptions = 0;
    const ZXADLG_DataOptions before = data;
    DialogScript script;
    script
        .Do([](HWND dialog) {
            EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 1);
        })
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(std::memcmp(&data, &before, sizeof data), 0);
}

TEST_F(Normalize, ReadOnlyShowsItsDressAndChangesNothing) {
    params.bReadOnly = 1;
    const ZXADLG_NormalizeOptions before = options;
    DialogScript script;
    script.ExpectTitle("Normalize (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Ungrey(IDC_NORMALIZE_REGIONS)
        .Click(IDC_NORMALIZE_REGIONS)
        .ExpectChecked(IDC_NORMALIZE_ALL_POINTS, BST_CHECKED)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(Normalize, TabOfTheLastOkIsShownAgainAndCancelKeepsIt) {
    const auto shownTab = [](HWND dialog) {
        return SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETCURSEL, 0, 0);
    };
    DialogScript first;
    first.SelectTab("Data").Click(IDOK);
    EXPECT_EQ(Show(first), 1);
    DialogScript second;
    second.Do([&](HWND dialog) { EXPECT_EQ(shownTab(dialog), 1); })
        .SelectTab("Options")
        .Click(IDCANCEL);
    EXPECT_EQ(Show(second), 2);
    DialogScript third;
    third.Do([&](HWND dialog) { EXPECT_EQ(shownTab(dialog), 1); }).SelectTab("Options").Click(IDOK);
    EXPECT_EQ(Show(third), 1);
}

TEST_F(Normalize, LeavesLocaleAndFloatingPointSettingsOfTheHostAlone) {
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    const std::string global = std::locale().name();
    const int rounding = std::fegetround();
    ASSERT_EQ(std::fesetround(FE_UPWARD), 0);
    DialogScript script;
    script.Click(IDC_NORMALIZE_REGIONS).SelectTab("Data").SelectTab("Options").Click(IDOK);
    const int result = Show(script);
    const int after = std::fegetround();
    std::fesetround(rounding);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(after, FE_UPWARD);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), locale);
    EXPECT_EQ(std::locale().name(), global);
}

TEST_F(Normalize, NullArgumentsOpenNothing) {
    EXPECT_EQ(ZXADLG_ShowNormalizeDialog(nullptr, nullptr, &data, &source, &params), -1);
    EXPECT_EQ(ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, nullptr, &params), -1);
    EXPECT_EQ(ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, &source, nullptr), -1);
}

}  // namespace
