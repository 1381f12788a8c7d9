// How the curve fit dialog opens: what it shows of a record, when it estimates, and what it does
// without its library.

#include <limits>

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

constexpr char kNoLibrary[] =
    "The curve fit library could not be loaded or does not support the selected function.";

class FitOpening : public FitDialogTest {
  protected:
    FitOpening() { ByHand(kSearchLM); }
    void Remember(bool bSheet) { RememberedFit() = {true, !bSheet}; }
    // The first seed and whether the first parameter is fixed, as shown.
    std::string Shown() {
        std::string shown;
        DialogScript script;
        script.SelectTab(kSeeds).Do([&](HWND hDialog) {
            char szText[64] = "";
            GetWindowTextA(FindControl(hDialog, IDC_FIT_SEED_FIRST), szText, sizeof szText);
            shown = szText;
            HWND hFix = FindControl(hDialog, IDC_FIT_FIX_FIRST);
            if (SendMessageA(hFix, BM_GETCHECK, 0, 0) == BST_CHECKED) shown += " fixed";
        });
        ShowAndCancel(script);
        return shown;
    }
};

TEST_F(FitOpening, WithoutALibraryThereIsOneMessageAndNoDialog) {
    for (const char* sz : {StandInLibrary::kMissingFile, StandInLibrary::kFileWithoutExport}) {
        SCOPED_TRACE(sz);
        library = sz;
        const FitOptions before = options;
        DialogScript script;
        script.ExpectText(90, kNoLibrary).Click(kOkButton);
        EXPECT_EQ(Show(script), IDCANCEL);
        EXPECT_EQ(options.dXInterval, before.dXInterval);
    }
}

TEST_F(FitOpening, ALaterRefusalIsToldOnceAndTheFunctionGoesBack) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    options.eFunctionGroupID = kAllFunctions;
    DialogScript script;
    script.Do([&] {
              standIn->object = {standIn->uObjects + 1, kAlways};
          })
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .Answer(kOkButton, kNoLibrary)
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift)");
    ShowAndCancel(script);
    EXPECT_EQ(options.eFunctionType, 15);
}

TEST_F(FitOpening, ARefusalOfTheAutomaticMethodsIsToldOnceAndTheyGoBack) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn->object = {2, 1};
    options.bAutoDefaultOptions = 1;
    options.eFunctionType = 18;
    options.eSearchMethod = kSearchSimplex;
    DialogScript script;
    script.ExpectText(90, kNoLibrary)
        .Click(kOkButton)
        .WaitUntil([] { return true; })
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchSimplex); })
        .ExpectTitle("Curve Fitting");
    ShowAndCancel(script);
}

TEST_F(FitOpening, NumbersOutOfRangeAreCorrected) {
    for (const std::int32_t n : {-1, 39, std::numeric_limits<std::int32_t>::min()}) {
        SCOPED_TRACE(n);
        options.eFunctionType = options.eFunctionGroupID = n;
        options.eSearchMethod = options.eMinimMethod = options.eWeightingType = n;
        options.uDlgFitOrder = static_cast<std::uint32_t>(n);
        DialogScript script;
        script.ExpectSelected(IDC_FIT_FUNCTIONS, "Exponential, standard")
            .ExpectSelected(IDC_FIT_GROUP, "All");
        ShowAndCancel(script);
        EXPECT_EQ(options.eFunctionType, 15);
        EXPECT_EQ(options.eSearchMethod, 0);
        EXPECT_EQ(options.eMinimMethod, 0);
        EXPECT_EQ(options.eWeightingType, 0);
    }
}

TEST_F(FitOpening, FittedDataAreAlwaysWritten) {
    options.bWriteFittedData = 0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.bWriteFittedData, 1);
}

TEST_F(FitOpening, TheByteOfTheHostIsStoredAsItsNumber) {
    params.bFitOptionByte = 2;
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_EQ(options.bOfferMethodChange, 2);
}

TEST_F(FitOpening, StoredSeedsStandWhereTheHostKeepsThemAndTheDataAreOfTheSameKind) {
    options.dParameters[0] = 77.0;
    options.dParameters[1] = 78.0;
    options.uDlgConstraints[0] = 1;
    for (const bool bKeep : {false, true}) {
        for (const bool bBefore : {false, true}) {
            for (const bool bSame : {false, true}) {
                SCOPED_TRACE(std::to_string(bKeep) + std::to_string(bBefore) +
                             std::to_string(bSame));
                params.bFitKeepSeeds = bKeep ? 1 : 0;
                ForgetFit();
                if (bBefore) Remember(!bSame);
                const std::string shown = Shown();
                if (bKeep && bBefore && bSame) {
                    EXPECT_EQ(shown, "77 fixed");
                } else if (bKeep && bBefore) {
                    EXPECT_EQ(shown.find("fixed"), std::string::npos) << shown;
                    EXPECT_EQ(shown.find("77"), std::string::npos) << shown;
                } else {
                    EXPECT_EQ(shown.find("77"), std::string::npos) << shown;
                    EXPECT_NE(shown.find("fixed"), std::string::npos) << shown;
                }
            }
        }
    }
}

TEST_F(FitOpening, UnusableStoredSeedsAreEstimated) {
    params.bFitKeepSeeds = 1;
    Remember(false);
    options.dParameters[0] = std::numeric_limits<double>::quiet_NaN();
    options.dParameters[1] = 78.0;
    const std::string shown = Shown();
    EXPECT_NE(shown, "0");
    EXPECT_EQ(shown.find("77"), std::string::npos);
}

TEST_F(FitOpening, OpeningWithoutPointsIsSilentWhateverPageIsRemembered) {
    CParentDialogBase::LastTab(IDD_FIT) = kData;
    source.x.clear();
    source.y.clear();
    source.Points(0);
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(FitOpening, ARememberedSeedPageEstimatesOnce) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    CParentDialogBase::LastTab(IDD_FIT) = kSeeds;
    DialogScript script;
    script.ExpectVisible(IDC_FIT_SEED_FIRST, true);
    ShowAndCancel(script);
    EXPECT_EQ(standIn->uCalls[7], 1u);
}

TEST_F(FitOpening, ThePageOfTheLastOkComesUpAgainAndThatOfACancelDoesNot) {
    DialogScript first;
    first.SelectTab(kAdvanced);
    ShowAndAccept(first);
    DialogScript second;
    second.ExpectVisible(IDC_FIT_LM, true).SelectTab(kFunction);
    ShowAndCancel(second);
    DialogScript third;
    third.ExpectVisible(IDC_FIT_LM, true);
    ShowAndCancel(third);
}

TEST_F(FitOpening, DataPageHasTheFormThatTheFunctionNeeds) {
    MakeSheet();
    options.eFunctionGroupID = kAllFunctions;
    DialogScript script;
    const auto hasOneVariable = [](HWND hDialog) {
        EXPECT_NE(FindControl(hDialog, IDC_VARIABLE_FIRST), nullptr);
        EXPECT_EQ(FindControl(hDialog, IDC_VARIABLE_FIRST + 1), nullptr);
    };
    script.SelectTab(kData)
        .Do(hasOneVariable)
        .SelectTab(kFunction)
        .Choose(IDC_FIT_FUNCTIONS, "Goldman-Hodgkin-Katz")
        .SelectTab(kData)
        .ExpectVisible(IDC_VARIABLE_FIRST + 1, true)
        .SelectTab(kFunction)
        .Choose(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .SelectTab(kData)
        .ExpectVisible(IDC_DEPENDENT, true)
        .Do(hasOneVariable);
    ShowAndCancel(script);
    EXPECT_EQ(data.uIndepVarDataSetIndex, 0u);
}

TEST_F(FitOpening, WithoutDataOptionsThereIsNoDataPage) {
    params.bUseDataOptions = 0;
    DialogScript script;
    script.Do([](HWND hDialog) {
        EXPECT_EQ(SendMessageA(GetDlgItem(hDialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 3);
    });
    ShowAndAccept(script);
}

TEST_F(FitOpening, HostileDataHaveAMessageAndCrashNothing) {
    struct Row {
        const char* szName;
        void (*make)(FitSource&);
        const char* szText;  // at OK
    };
    const Row rows[] = {
        {"no x", [](FitSource& s) { s.bNoX = true; },
         "No x axis data have been selected. Select a valid data set."},
        {"no y", [](FitSource& s) { s.bNoY = true; },
         "No y axis data have been selected. Select a valid data set."},
        {"one point",
         [](FitSource& s) {
             s.x = {1.0};
             s.y = {2.0};
         },
         "The number of data points (1) must not be smaller than the number of parameters (3)."},
        {"x all zero", [](FitSource& s) { std::fill(s.x.begin(), s.x.end(), 0.0); },
         "All x axis values are zero. Select a valid data set."},
    };
    const FitSource good = source;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.szName);
        source = good;
        row.make(source);
        DialogScript script;
        script.Click(IDOK).Answer(kOkButton, row.szText);
        ShowAndCancel(script);
    }
    source = good;
    source.y[3] = std::numeric_limits<double>::quiet_NaN();
    DialogScript nan;
    nan.SelectTab(kAdvanced);
    ShowAndCancel(nan);
}

// --- Read-only and deferred.

TEST_F(FitOpening, ReadOnlyShowsTheRecordAsItIs) {
    params.bReadOnly = 1;
    options.bAutoDefaultOptions = 1;
    options.eSearchMethod = kSearchLM;
    options.dParameters[0] = 77.0;
    options.dParameters[1] = 78.0;
    options.uDlgConstraints[1] = 1;
    CParentDialogBase::LastTab(IDD_FIT) = kData;
    DialogScript script;
    script.ExpectTitle("Curve Fitting (read only)")
        .ExpectVisible(IDC_FIT_FUNCTIONS, true)
        .SelectTab(kAdvanced)
        .ExpectChecked(IDC_FIT_LM, BST_CHECKED)
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_FIRST, "77")
        .ExpectText(IDC_FIT_SEED_FIRST + 1, "78")
        .ExpectChecked(IDC_FIT_FIX_FIRST + 1, BST_CHECKED)
        .Do([](HWND hDialog) { SendMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_TRUE(script.Messages().empty());
    EXPECT_FALSE(RememberedFit().bOpenedBefore);
    EXPECT_EQ(CParentDialogBase::LastTab(IDD_FIT), kData);
}

TEST_F(FitOpening, ReadOnlyTellsOfUnusableSeedsAtOk) {
    params.bReadOnly = 1;
    constexpr char kNotValid[] =
        "The seed values are not valid.\nPress OK to see the seed values or Cancel to close the "
        "dialog.";
    const auto ok = [](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); };
    DialogScript see;
    see.Do(ok).Answer(kOkButton, kNotValid).ExpectVisible(IDC_FIT_SEED_FIRST, true).Click(IDCANCEL);
    EXPECT_EQ(Show(see), IDCANCEL);
    DialogScript close;
    close.Do(ok).Answer(kCancelButton, kNotValid);
    EXPECT_EQ(Show(close), IDCANCEL);
    ASSERT_EQ(close.Messages().size(), 1u);
    // Cancel is the default.
    EXPECT_EQ(close.Messages()[0].focusId, kCancelButton);
}

TEST_F(FitOpening, DeferredReadsNoValuesAndKeepsTheInterval) {
    params.bDeferredRun = 1;
    options.dXInterval = 0.125;
    options.dParameters[0] = 77.0;
    source.Record();
    DialogScript script;
    script.SelectTab(kAdvanced)
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_FIRST, "77")
        .ExpectEnabled(IDC_FIT_ESTIMATE, false)
        .ExpectEnabled(IDC_FIT_GRAPHICAL, false);
    ShowAndAccept(script);
    EXPECT_EQ(options.dXInterval, 0.125);
    EXPECT_TRUE(script.Messages().empty());
    for (const std::string& call : source.calls)
        EXPECT_EQ(call.find("Values("), std::string::npos) << call;
    EXPECT_FALSE(RememberedFit().bOpenedBefore);
}

TEST_F(FitOpening, DeferredDoesNotAskWhetherXBeginsAtZero) {
    params.bDeferredRun = 1;
    options.bAutoZeroShift = 0;
    source.x[0] = 0.0;
    source.Record();
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_EQ(options.eSearchMethod, kSearchLM);
    for (const std::string& call : source.calls)
        EXPECT_EQ(call.find("Values("), std::string::npos) << call;
}

TEST_F(FitOpening, DeferredRefusesACustomFunctionWithoutSeeds) {
    params.bDeferredRun = 1;
    options.eFunctionType = kCustomFitFunction;
    std::strcpy(options.szEquation, "y1=p1*x1");
    DialogScript script;
    script.Click(IDOK).Answer(
        kOkButton,
        "A seed value must be entered for each parameter of the custom function. Zero is not "
        "allowed.");
    ShowAndCancel(script);
}

TEST_F(FitOpening, DeferredHidesTheTextsOfTheDataAlone) {
    params.bDeferredRun = 1;
    source.Kind(1);
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_FROM, true)
        .ExpectVisible(IDC_FIT_FROM_VALUE, true)
        .ExpectVisible(IDC_FIT_FROM_DATA, false)
        .ExpectVisible(IDC_FIT_TO_DATA, false);
    ShowAndCancel(script);
}

}  // namespace
