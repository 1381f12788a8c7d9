// The table of what each code leads to: everything is changed behind the pages' backs, the code is
// told, and what shows the change afterwards is compared with what the code's row lists. What is
// not listed must not have moved.

#include <algorithm>
#include <map>

#include "FitDialogFixture.h"
#include "contract/NotificationCodes.h"

namespace {

using namespace fit_test;

// What the user sees of each control and its state, as "page id": the pages count from 0, and the
// dialog's own controls stand under "-".
using Seen = std::map<std::string, std::string>;

Seen Look(HWND hDialog) {
    Seen seen;
    std::vector<HWND> pages;
    for (const HWND hWnd : test_support::Descendants(hDialog)) {
        const HWND hParent = GetParent(hWnd);
        const std::string sClass = test_support::ClassOf(hWnd);
        if (sClass == "#32770") {
            pages.push_back(hWnd);
            continue;
        }
        const auto page = std::find(pages.begin(), pages.end(), hParent);
        if (hParent != hDialog && page == pages.end()) continue;  // a part of a combo box
        const std::string sPage = hParent == hDialog ? "-" : std::to_string(page - pages.begin());
        const LONG_PTR nStyle = GetWindowLongPtrA(hWnd, GWL_STYLE);
        std::string sState = test_support::TextOf(hWnd);
        if ((nStyle & WS_VISIBLE) == 0) sState += " hidden";
        if ((nStyle & WS_DISABLED) != 0) sState += " grey";
        if (sClass == "button" && SendMessageA(hWnd, BM_GETCHECK, 0, 0) == BST_CHECKED)
            sState += " on";
        seen[sPage + " " + std::to_string(GetDlgCtrlID(hWnd))] = sState;
    }
    return seen;
}

class FitEventTable : public FitDialogTest {
  protected:
    FitEventTable() {
        library = StandInLibrary::kFile;
        ByHand(kSearchLM);
        FitFunctionProps& props = standIn.TellTraits();
        props.bZeroShiftAllowed = props.bUsesTemperature = props.bCanForcePositive = 1;
        standIn.TellSeed(2.5);
        // With limits of the curve, which a file with cursors does not have.
        source.Kind(1);
        options.eFunctionType = 5;
        options.bFreeAndRefit = 1;
    }
    // Leaves the methods, the function and the number of terms alone, so that nothing has to
    // settle.
    void ChangeQuietly() {
        options.bCompareModels = 1;  // from one term on
        options.bForcePropsPositive = 1;
        options.bAutoZeroShift = 0;
        options.bDoZeroShift = 1;
        options.bExtrapolateLeft = 1;
        options.dZDBoltzmanTemperature = 31.0;
        dialog->Seeds().uFixed[0] = 1;
        data.eAnalysisRegion = 3;
    }
    // Tells a code as its sender does.
    void Tell(NotificationCode eCode) {
        const bool bOfData = eCode == kNotifyDataSelectionChanged ||
                             eCode == kNotifyPairingChanged || eCode == kNotifyRegionChanged ||
                             eCode == kNotifyRegionRecount || eCode == kNotifyDataTabCurrent ||
                             eCode == kNotifyDataTabShown || eCode == kNotifyDataTabLeft ||
                             eCode == kNotifyDataInfoRebuilt;
        bOfData ? dialog->Fit().Data().Notify(eCode) : dialog->Fit().Notify(eCode);
    }
    // What differs behind the code, control by control: "page id: as it is now". Seen from the data
    // page, since the rules of the page in front run with the dialog's at any time.
    std::string Changed(NotificationCode eCode) {
        Seen before;
        std::string sChanged;
        DialogScript script;
        script.SelectTab(kData)
            .Do([&](HWND hDialog) { before = Look(hDialog); })
            .Do([&] {
                ChangeQuietly();
                Tell(eCode);
            })
            .Do([&](HWND hDialog) {
                for (const auto& [sKey, sState] : Look(hDialog)) {
                    if (before[sKey] != sState) sChanged += sKey + ": " + sState + "\n";
                }
                sFlags = Flags();
            });
        ShowAndCancel(script);
        return sChanged;
    }

    StandInLibrary standIn;
    std::string sFlags;  // behind the code
};

// --- Codes that change nothing themselves.

constexpr char kName[] =
    "- 2049:  Boltzmann, Z-delta (inactivation) (zero-shift) (force +ve) (compare models)\n";
constexpr char kFunctionNumbers[] = "0 2034: 31\n";
constexpr char kFunctionRules[] =
    "0 2058: 0.9\n"
    "0 2059: \n"
    "0 2060: A&utomatic (stops incrementing when best model is found) on\n"
    "0 2061: Find best nu&mber of terms on\n"
    "0 2125: (Comparing models)\n"
    "0 2166: Confidence le&vel:\n";
constexpr char kAdvancedRules[] =
    "1 2170: Zero-shift x-axis data:\n"
    "1 2582: 0\n";
constexpr char kSeedRules[] =
    "2 2118: Free All\n"
    "2 2120: Models are compared. Seed values are estimated for each model.\n"
    "2 2160: Seed from the &last fit grey\n"
    "2 2161: Seed each fit &independently grey on\n"
    "2 2167: Multiple Fit Seeding grey\n"
    "2 2172: Proportions are forced positive.\n"
    "2 2173: Force pr&oportions positive on\n";

struct Row {
    NotificationCode eCode;
    std::initializer_list<const char*> shown;
    const char* szFlags;
};

TEST_F(FitEventTable, WhatACodeLeadsToAndWhatItLeavesAlone) {
    const Row rows[] = {
        {kNotifyFitFunctionChanged,
         {kName, kFunctionNumbers, kFunctionRules, kAdvancedRules, kSeedRules},
         "VSA"},
        {kNotifyFitMethodChanged, {kName, kFunctionRules, kAdvancedRules, kSeedRules}, "VA"},
        {kNotifyFitCompareChanged, {kName, kFunctionRules, kSeedRules}, "VA"},
        {kNotifyFitSeedsChanged, {kName, kSeedRules}, "VA"},
        {kNotifyFitZeroShiftChanged, {kName, kSeedRules}, "VA"},
        {kNotifyFitForcePositiveChanged, {kName, kSeedRules}, "VA"},
        {kNotifyFitRefitChanged, {kName}, "VA"},
        // A field that shows another number has the rules run.
        {kNotifyFitMethodsLeft, {kName, kFunctionNumbers, kFunctionRules, kAdvancedRules}, "VA"},
        {kNotifyFitAutomaticChanged, {kName, kAdvancedRules}, "VA"},
        {kNotifyDataSelectionChanged, {kName, kAdvancedRules}, "VSA"},
        {kNotifyPairingChanged, {kName, kAdvancedRules}, "VSA"},
        {kNotifyRegionChanged, {kName, kAdvancedRules}, "VSA"},
        {kNotifyRegionRecount, {kAdvancedRules}, "VA"},
        {kNotifyDataTabCurrent, {}, "VA"},
        {kNotifyDataTabShown, {}, "VA"},
        {kNotifyDataTabLeft, {}, "VA"},
        {kNotifyDataInfoRebuilt, {}, "VA"},
    };
    const FitOptions optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.eCode);
        options = optionsBefore;
        data = dataBefore;
        std::string sExpected;
        for (const char* szPart : row.shown) sExpected += szPart;
        EXPECT_EQ(Changed(row.eCode), sExpected);
        EXPECT_EQ(sFlags, row.szFlags);
    }
}

// The data page speaks of its own controls with codes that could be mistaken.
TEST_F(FitEventTable, ACodeThatNamesAControlIsNotHeard) {
    DialogScript script;
    script.Do([this] {
        dialog->Notify(nullptr, IDC_FIT_NAME, kNotifyFitFunctionChanged, 0);
        EXPECT_EQ(Flags(), "VA");
        dialog->Notify(nullptr, 0, kNotifyFitFunctionChanged, 0);
        EXPECT_EQ(Flags(), "VSA");
    });
    ShowAndCancel(script);
}

// --- Codes behind which the record settles.

TEST_F(FitEventTable, CodesThatChooseTheMethodsAnew) {
    options.bAutoDefaultOptions = 1;
    options.eFunctionType = 15;
    const std::pair<NotificationCode, bool> rows[] = {
        {kNotifyFitFunctionChanged, true},  {kNotifyFitMethodChanged, true},
        {kNotifyFitCompareChanged, false},  {kNotifyFitSeedsChanged, true},
        {kNotifyFitZeroShiftChanged, true}, {kNotifyFitForcePositiveChanged, true},
        {kNotifyFitRefitChanged, false},    {kNotifyFitMethodsLeft, true},
        {kNotifyFitAutomaticChanged, true}, {kNotifyDataSelectionChanged, true},
        {kNotifyPairingChanged, true},      {kNotifyRegionChanged, true},
        {kNotifyRegionRecount, false},      {kNotifyDataTabCurrent, false},
        {kNotifyDataTabShown, false},       {kNotifyDataTabLeft, false},
        {kNotifyDataInfoRebuilt, false},
    };
    const FitOptions optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    for (const auto& [eCode, bChooses] : rows) {
        SCOPED_TRACE(eCode);
        options = optionsBefore;
        data = dataBefore;
        DialogScript script;
        script.SelectTab(kData)
            .Do([&, eCode = eCode] {
                EXPECT_EQ(options.eSearchMethod, kSearchChebyshev);
                options.bForcePropsPositive = 1;
                data.eAnalysisRegion = 3;
                Tell(eCode);
            })
            .Do([&, bChooses = bChooses] {
                EXPECT_EQ(options.eSearchMethod, bChooses ? kSearchLM : kSearchChebyshev);
            });
        ShowAndCancel(script);
    }
}

// By hand the three selections move off what is not open.
TEST_F(FitEventTable, CodesThatMoveTheSelections) {
    const std::pair<NotificationCode, bool> rows[] = {
        {kNotifyFitFunctionChanged, true}, {kNotifyFitMethodChanged, true},
        {kNotifyFitCompareChanged, false}, {kNotifyFitSeedsChanged, true},
        {kNotifyFitRefitChanged, false},   {kNotifyFitMethodsLeft, true},
        {kNotifyRegionRecount, false},
    };
    const FitOptions optionsBefore = options;
    for (const auto& [eCode, bMoves] : rows) {
        SCOPED_TRACE(eCode);
        options = optionsBefore;
        DialogScript script;
        script.SelectTab(kData)
            .Do([&, eCode = eCode] {
                options.eMinimMethod = kMinimML;
                options.eWeightingType = kWeightBinWidth;
                Tell(eCode);
            })
            .Do([&, bMoves = bMoves] {
                EXPECT_EQ(options.eMinimMethod, bMoves ? kMinimSS : kMinimML);
                EXPECT_EQ(options.eWeightingType, bMoves ? kWeightNone : kWeightBinWidth);
            });
        ShowAndCancel(script);
    }
}

// --- Codes with a deed of their own.

TEST_F(FitEventTable, TheCustomTextIsCompiledWithMessages) {
    options.eFunctionType = kCustomFitFunction;
    DialogScript script;
    script.Type(IDC_FIT_EQUATION, "p1*x1+p2")
        .Do([this] {
            EXPECT_FALSE(dialog->Fit().bCustomCompiled);
            Tell(kNotifyFitCustomText);
        })
        .Do([this] {
            EXPECT_TRUE(dialog->Fit().bCustomCompiled);
            EXPECT_EQ(options.nNumCustomParams, 2u);
        })
        .ExpectText(IDC_FIT_NAME, " f(x1)=p1*x1+p2")
        .Type(IDC_FIT_EQUATION, "x1")
        .Do([this] { Tell(kNotifyFitCustomText); })
        .Answer(
            kOkButton,
            "The custom function definition contains no parameters.\nYou must include at least one "
            "parameter (e.g. p1).")
        .Do([this] { EXPECT_FALSE(dialog->Fit().bCustomCompiled); });
    ShowAndCancel(script);
}

TEST_F(FitEventTable, TheDataPageIsShown) {
    const auto page = [](HWND hDialog) {
        return SendMessageA(GetDlgItem(hDialog, IDC_TABS), TCM_GETCURSEL, 0, 0);
    };
    DialogScript script;
    script
        .Do([&](HWND hDialog) {
            EXPECT_EQ(page(hDialog), kFunction);
            Tell(kNotifyFitShowDataPage);
            // A page may be about to be shown: this one waits until that is over.
            EXPECT_EQ(page(hDialog), kFunction);
        })
        .Do([&](HWND hDialog) {
            EXPECT_EQ(page(hDialog), kData);
            EXPECT_EQ(Flags(), "VA");
        });
    ShowAndCancel(script);
}

// --- Who does not listen.

TEST_F(FitEventTable, ReadOnlyHearsNoCode) {
    params.bReadOnly = 1;
    for (const NotificationCode eCode :
         {kNotifyFitFunctionChanged, kNotifyFitCustomText, kNotifyFitMethodChanged,
          kNotifyFitCompareChanged, kNotifyFitSeedsChanged, kNotifyFitZeroShiftChanged,
          kNotifyFitForcePositiveChanged, kNotifyFitRefitChanged, kNotifyFitShowDataPage,
          kNotifyDataSelectionChanged, kNotifyPairingChanged, kNotifyRegionChanged,
          kNotifyFitMethodsLeft, kNotifyFitAutomaticChanged, kNotifyRegionRecount}) {
        SCOPED_TRACE(eCode);
        const FitOptions optionsBefore = options;
        const ZXADLG_DataOptions dataBefore = data;
        EXPECT_EQ(Changed(eCode), "");
        EXPECT_EQ(sFlags, "V");
        options = optionsBefore;
        data = dataBefore;
    }
}

}  // namespace
