// The curve fit dialog over a recording of forty points of an exponential decay, or a sheet of the
// same points. Tests drive it by script.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "FitFixture.h"
#include "fit/CurveFittingDialog.h"
#include "fit/FitMemory.h"
#include "fit_control_ids.h"
#include "fixtures/DialogScript.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "standin/StandInLibrary.h"
#include "widgets/FrameworkSetup.h"

namespace fit_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;

// The buttons of a message in their order: OK or Yes, then Cancel or No.
constexpr int kOkButton = 101;
constexpr int kYesButton = 101;
constexpr int kCancelButton = 102;
constexpr int kNoButton = 102;

enum Page : int { kFunction, kAdvanced, kSeeds, kData };

class FitDialogTest : public testing::Test {
  protected:
    FitDialogTest() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        ForgetFit();
        // The first x is not 0, and no value is one that a default shows.
        for (int i = 0; i < 40; ++i) {
            source.x.push_back(0.5 * i + 0.5);
            source.y.push_back(4.0 * std::exp(-source.x.back() / 3.0) + 1.5);
        }
        source.Region(8, "Whole trace", 0, 39).Region(3, "Cursors 1..2", 5, 24);
        data.eDataSet1SelectionMode = CDataOptionsInterface::kListedSets;
        data.eDataGroup1SelectionMode = CDataOptionsInterface::kOneGroup;
        data.eAnalysisRegion = 8;
        data.bUseFullDataRange = 1;
        std::snprintf(data.szUnitarySelectionList1, sizeof data.szUnitarySelectionList1, "1..2");
        options.bAutoDefaultOptions = 1;
        options.bForceAutoSeed = 1;
        options.dTolerance = 0.9;
        options.uMaxIterations = 700;
        options.dSubstZeroLinearFactor = 12.0;
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        params.bShowDestination = 1;
        params.bShowWriteRegionInfo = 1;
    }

    // The points as columns of a sheet: x the first, y the second.
    void MakeSheet() {
        source.Kind(2).Groups({"Sheet"}).Sets(4);
        source.setPrefix = "Column ";
        data.uIndepVarDataSetIndex = 0;
        data.uDepVarDataSetIndex = 1;
        std::snprintf(data.szDepVarSelectionList, sizeof data.szDepVarSelectionList, "1");
    }
    // By hand, under this method.
    void ByHand(std::int32_t eSearch) {
        options.bAutoDefaultOptions = 0;
        options.eSearchMethod = eSearch;
    }

    int Show(DialogScript& script) {
        dialog = std::make_unique<CFitDialog>(nullptr, &options, &data, &source, &params, library);
        const auto result = script.Run([&] { return static_cast<int>(dialog->DoModal()); });
        if (!keep) dialog.reset();
        return result;
    }
    void ShowAndCancel(DialogScript& script) {
        script.Click(IDCANCEL);
        EXPECT_EQ(Show(script), IDCANCEL);
    }
    void ShowAndAccept(DialogScript& script) {
        script.Click(IDOK);
        EXPECT_EQ(Show(script), IDOK);
    }

    // The flags of the open dialog, one letter each where they are on: Valid, Stale, Automatic,
    // Declined, Normalized, Compiled, Text present.
    std::string Flags() const {
        const CFitOptionsInterface& fit = dialog->Fit();
        const std::pair<bool, char> flags[] = {
            {fit.bSeedsValid, 'V'},       {fit.bSeedsStale, 'S'},      {fit.bSeedsAutomatic, 'A'},
            {fit.bAutoSeedDeclined, 'D'}, {fit.bSeedsNormalized, 'N'}, {fit.bCustomCompiled, 'C'},
            {fit.bCustomTextPresent, 'T'}};
        std::string on;
        for (const auto& [set, letter] : flags) {
            if (set) on += letter;
        }
        return on;
    }
    // The titles are the library's own: the texts of the messages, as they came.
    static std::vector<std::string> Texts(const DialogScript& script) {
        std::vector<std::string> texts;
        for (const auto& message : script.Messages()) texts.push_back(message.text);
        return texts;
    }

    FitOptions options = FreshRecord();
    ZXADLG_DataOptions data{};
    FitSource source;
    ZXADLG_DlgParams params{};
    const char* library = "CURVEFIT.dll";
    std::unique_ptr<CFitDialog> dialog;
    bool keep = false;  // the dialog object, after it has closed
};

}  // namespace fit_test
