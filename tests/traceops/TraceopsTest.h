// What the tests of the tabbed trace dialogs share: a recording with two signals, three regions and
// three waveforms, records that fit it, and a store of the test's own that is off until a test asks
// for it.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "ZXADLG.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "store/ProfileStore.h"

namespace traceops_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;
using test_support::ScratchStore;
using test_support::TestDataSource;

template <class Record>
using ShowFunction = int32_t(ZXADLG_CALL*)(HWND, Record*, ZXADLG_DataOptions*,
                                           ZXADLG_CDlgDataSource*, const ZXADLG_DlgParams*);

// A recording that answers its units by group and keeps what was asked for.
class Recording : public TestDataSource {
  public:
    Recording() {
        // No id is the position of its region, and none is 0.
        Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        Region(4, "Cursors 3..4", 500, 999);
        Waveform(5, "Analog OUT #0").Waveform(2, "Analog OUT #1").Waveform(9, "Analog OUT #2");
    }

    const char* GetUnits(uint32_t group, int32_t index) override {
        lastUnitsIndex = index;
        if (nullTexts) return nullptr;
        return group == 1 ? "mV" : units.c_str();
    }

    int32_t lastUnitsIndex = 0;
};

template <class Record>
class TraceDialog : public testing::Test {
  protected:
    explicit TraceDialog(ShowFunction<Record> function) : show(function) {
        std::memset(&options, 0, sizeof options);
        std::memset(&data, 0, sizeof data);
        data.eDataSet1SelectionMode = 1;
        data.eDataGroup1SelectionMode = 1;
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "0..2");
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowDestination = 1;
        params.bShowDynamicLink = 1;
        params.bShowWriteRegionInfo = 1;
        params.bAdjustBaselineFourthMethod = 1;
    }
    ~TraceDialog() override { SetUseProfileFile(usedFile); }

    // From here on the recording names the test's own store.
    void UseStore() { source.Profile(store.ProfileFile()); }
    // The text of a key in the store, "(none)" when it isn't there.
    std::string Stored(const char* section, const char* key) const {
        char text[64] = "";
        return ReadString(section, key, "", text, sizeof text, store.ProfileFile().c_str())
                   ? text
                   : "(none)";
    }

    int Show(DialogScript& script) {
        return script.Run([&] { return show(nullptr, &options, &data, &source, &params); });
    }
    // Opens the dialog for a look and leaves it by Cancel.
    void ShowAndCancel(DialogScript& script) {
        script.Click(IDCANCEL);
        EXPECT_EQ(Show(script), 2);
    }
    void ShowAndAccept(DialogScript& script) {
        script.Click(IDOK);
        EXPECT_EQ(Show(script), 1);
    }

    Recording source;
    Record options;
    ZXADLG_DataOptions data;
    ZXADLG_DlgParams params = {};
    const ScratchStore store;
    const bool usedFile = SetUseProfileFile(true);
    ShowFunction<Record> show;
};

}  // namespace traceops_test
