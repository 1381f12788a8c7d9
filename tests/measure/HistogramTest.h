// What the tests of the histogram dialog share: data of 0 to 10, a record of values of its own, and
// the dialog by script.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "ZXADLG.h"
#include "analysis/CParentDialogBase.h"
#include "fixtures/DialogScript.h"
#include "fixtures/DialogShowTest.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/WindowReading.h"
#include "histogram_ids.h"
#include "ids.h"
#include "measure/HistogramDialog.h"
#include "widgets/FrameworkSetup.h"

namespace histogram_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::TestDataSource;

// The first button of a message.
constexpr int kOkButton = 101;

class HistogramDialogTest : public test_support::DialogShowTest {
  protected:
    HistogramDialogTest() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        // As in a process that has opened nothing yet.
        CParentDialogBase::ForgetTabs();
        source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 2, 6);
        Values({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        data.eDataSet1SelectionMode = CDataOptionsInterface::kListedSets;
        data.eDataGroup1SelectionMode = CDataOptionsInterface::kOneGroup;
        data.eAnalysisRegion = 8;
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "1..2");
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowDestination = 1;
        params.bShowWriteRegionInfo = 1;
        options.fBinWidth = 2.5f;
        options.fMinDataValue = 2.0f;
        options.fMaxDataValue = 7.0f;
        options.nBinsPerDecade = 7;
    }

    // The y values of every set.
    void Values(std::vector<double> vdValues) {
        source.Points(static_cast<std::uint32_t>(vdValues.size()));
        source.regions[0].last = source.points - 1;
        source.yValues = std::move(vdValues);
    }
    // The same values as columns of a sheet, two of them selected.
    void MakeSheet() {
        source.Kind(2);
        data.bUseFullDataRange = 1;
        std::snprintf(data.szDepVarSelectionList, sizeof data.szDepVarSelectionList, "1..2");
    }
    int Show(DialogScript& script) override {
        CHistogramDialog dialog(nullptr, &options, &data, &source, &params);
        return script.Run([&] { return static_cast<int>(dialog.DoModal()); });
    }

    ZXADLG_HistogramOptions options = {};
    ZXADLG_DataOptions data = {};
    TestDataSource source;
    ZXADLG_DlgParams params = {};
};

}  // namespace histogram_test
