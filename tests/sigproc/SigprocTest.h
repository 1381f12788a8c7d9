// What the tests of the signal processing dialogs share: a recording of two signals at 10 kHz with
// 1000 points, a selection that fits it, parameters that show everything, and a record of zeros.
// The dialog runs by script.
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
#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_Dialog.h"
#include "ids.h"
#include "sigproc_ids.h"
#include "store/ProfileStore.h"
#include "widgets/FrameworkSetup.h"

namespace sigproc_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;
using test_support::ScratchStore;
using test_support::TestDataSource;

// The buttons of a message in their order.
constexpr int kOkButton = 101;
constexpr int kYesButton = 101;
constexpr int kNoButton = 102;

// The bitmap that a picture of the open page shows.
inline int BitmapOf(HWND hDialog, int nId) {
    const HWND hPicture = FindControl(hDialog, nId);
    const ADM_Dialog* pPage = ADM_Dialog::FromWindow(GetParent(hPicture));
    const auto* pPicture = dynamic_cast<ADM_BitmapPictureWnd*>(pPage->FindControl(hPicture));
    return pPicture != nullptr ? pPicture->GetBitmapId() : -1;
}
// Whether the program has a bitmap of this id.
inline bool HasBitmap(int nId) {
    return FindResourceA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(nId),
                         MAKEINTRESOURCEA(2 /* bitmap */)) != nullptr;
}
// The titles of the messages, which tell their icons.
inline std::vector<std::string> TitlesOf(const DialogScript& script) {
    std::vector<std::string> titles;
    for (const auto& message : script.Messages()) titles.push_back(message.title);
    return titles;
}

template <class Dialog, class Record>
class SigprocDialogTest : public test_support::DialogShowTest {
  protected:
    SigprocDialogTest() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        // As in a process that has opened nothing yet.
        CParentDialogBase::ForgetTabs();
        source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        data.eDataSet1SelectionMode = CDataOptionsInterface::kListedSets;
        data.eDataGroup1SelectionMode = CDataOptionsInterface::kOneGroup;
        data.eAnalysisRegion = 8;
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "1..2");
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowDestination = 1;
        params.bShowDynamicLink = 1;
        params.bShowWriteRegionInfo = 1;
    }

    // The points of the region in use, and of every set.
    void Points(std::uint32_t uPoints) {
        source.Points(uPoints);
        source.regions[0].last = uPoints - 1;
    }
    // The same points as columns of a sheet, which tells no frequency.
    void MakeSheet() {
        source.Kind(2);
        data.bUseFullDataRange = 1;
    }
    virtual std::unique_ptr<Dialog> Make() {
        return std::make_unique<Dialog>(nullptr, &options, &data, &source, &params);
    }
    int Show(DialogScript& script) override {
        const std::unique_ptr<Dialog> dialog = Make();
        return script.Run([&] { return static_cast<int>(dialog->DoModal()); });
    }

    Record options = {};
    ZXADLG_DataOptions data = {};
    TestDataSource source;
    ZXADLG_DlgParams params = {};
};

}  // namespace sigproc_test
