// What the tests of the measurement dialog share: a recording of two signals at 20 kHz with 1000
// points and three regions, a record of two searches with values of their own, and the dialog by
// script.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "ZXADLG.h"
#include "analysis/CParentDialogBase.h"
#include "fixtures/DialogScript.h"
#include "fixtures/DialogShowTest.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "measure/MeasurementDialog.h"
#include "measurement_ids.h"
#include "store/ProfileStore.h"
#include "widgets/FrameworkSetup.h"

namespace measurement_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;
using test_support::SelectedIndexes;
using test_support::TestDataSource;

// The buttons of a message in their order.
constexpr int kOkButton = 101;
constexpr int kCancelButton = 102;

class MeasurementTest : public test_support::DialogShowTest {
  protected:
    MeasurementTest() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        // As in a process that has opened nothing yet.
        CParentDialogBase::ForgetTabs();
        source.samplingFrequency = 20000.0;
        source.Region(8, "Whole trace", 0, 999)
            .Region(3, "Cursors 1..2", 100, 199)
            .Region(40, "Epoch A", 300, 399);
        data.eDataSet1SelectionMode = CDataOptionsInterface::kListedSets;
        data.eDataGroup1SelectionMode = CDataOptionsInterface::kOneGroup;
        data.eAnalysisRegion = 8;
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "1..2");
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowWriteRegionInfo = 1;
        params.bShowMeasurementOutput = 1;
        params.bMeasurementOptionA = 1;
        params.bMeasurementOptionB = 1;
        params.bMeasurementOutputB = 1;
        params.bMeasurementOutputC = 1;
        for (int i = 0; i < 24; ++i) {
            options.aStatsRegions[i].eStatsRegion = 8;
            options.aBaselines[i].eBaseRegion = 3;
            options.aSearches[i].nSmoothingPoints = 5;
        }
        Search(0).bRegionEnable = 1;
        Search(0).bMean = 1;
        Search(0).nRiseFromPercent = 10;
        Search(0).nRiseToPercent = 90;
        Search(0).nDecayFromPercent = 80;
        Search(0).nDecayToPercent = 20;
        Search(0).nEventDurationPercent = 55;
        options.aBaselines[0].dBaseFixedValue = -70.5;
        options.aPolarities[0].aePeakPolarity[0] = 1;
        options.aPolarities[0].aePeakPolarity[1] = 2;
        options.aPolarities[0].eAllGroupsPeakPolarity = 2;
    }

    ZXADLG_MeasurementSearch& Search(int i) { return options.aSearches[i]; }
    // The settings of the acquisition are there and in use.
    void AllowImport(bool bInUse) {
        options.bImportAllowed = 1;
        options.bImportFromFile = bInUse ? 1 : 0;
    }

    // The dialog works on `options` itself. Where the host has passed nothing else, on what that
    // is.
    int Show(DialogScript& script) override {
        const ZXADLG_MeasurementOptions passed = pHost != nullptr ? *pHost : options;
        CMeasurementDialog dialog(nullptr, &options, &passed, nullptr, &data, &source, &params);
        return script.Run([&] { return static_cast<int>(dialog.DoModal()); });
    }

    ZXADLG_MeasurementOptions options = {};
    std::unique_ptr<ZXADLG_MeasurementOptions> pHost;
    ZXADLG_DataOptions data = {};
    TestDataSource source;
    ZXADLG_DlgParams params = {};
};

}  // namespace measurement_test
