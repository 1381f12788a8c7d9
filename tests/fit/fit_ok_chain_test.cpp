// What OK refuses or asks, step by step and in its order, and the record that it leaves.

#include <limits>

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

class FitOk;

// A fault that one step of the chain finds: how it comes about, what is said, and the page that is
// shown behind the message (-1: the one that was).
struct Fault {
    const char* szName;
    void (*make)(FitOk&);
    void (*type)(DialogScript&);  // null: nothing
    const char* szText;
    int nPage;
    int nAnswer;
};

// A sheet of eight even rows over a stand-in that gives good seeds, by Levenberg-Marquardt.
class FitOk : public FitDialogTest {
  public:
    FitOk() {
        library = StandInLibrary::kFile;
        MakeSheet();
        source.x = {1, 2, 3, 4, 5, 6, 7, 8};
        source.y = {9, 7, 5, 4, 3, 2.5, 2.25, 2};
        source.Points(8);
        ByHand(kSearchLM);
        standIn.TellTraits();
        standIn.TellSeed(2.5);
    }

    using FitDialogTest::data;
    using FitDialogTest::dialog;
    using FitDialogTest::options;
    using FitDialogTest::params;
    using FitDialogTest::source;
    StandInLibrary standIn;

    static int PageShown(HWND hDialog) {
        return static_cast<int>(SendMessageA(GetDlgItem(hDialog, IDC_TABS), TCM_GETCURSEL, 0, 0));
    }
    // OK with these faults shows the message of the first and the page that it is on.
    void ExpectFirst(std::initializer_list<const Fault*> faults) {
        const Fault& first = **faults.begin();
        DialogScript script;
        for (const Fault* pFault : faults) pFault->make(*this);
        for (const Fault* pFault : faults) {
            if (pFault->type != nullptr) pFault->type(script);
        }
        script.Click(IDOK).Answer(first.nAnswer, first.szText).Do([&](HWND hDialog) {
            if (first.nPage >= 0) {
                EXPECT_EQ(PageShown(hDialog), first.nPage);
            }
        });
        ShowAndCancel(script);
    }
};

const Fault kFaults[] = {
    {"rows out of order",
     [](FitOk& t) {
         t.data.bUseFullDataRange = 0;
         t.data.uFirstDataIndex = 1;
         t.data.uLastDataIndex = 6;
     },
     [](DialogScript& script) { script.SelectTab(kData).Type(IDC_RANGE_FROM, "7"); },
     "The first point of the data range must be smaller than the last.", kData, kOkButton},
    {"no custom function", [](FitOk& t) { t.options.eFunctionType = kCustomFitFunction; }, nullptr,
     "No custom function has been defined.\n\nDefine the independent variables and the\n"
     "parameters. You can have up to 6 independent\nvariables and up to 24 parameters. The\n"
     "independent variables must be named x1 to x6\nand the parameters must be named p1 to p24\n"
     "(lower or upper case x or p).",
     kFunction, kOkButton},
    {"x is y", [](FitOk& t) { t.data.uIndepVarDataSetIndex = 1; }, nullptr,
     "The x and y columns must be different.", kData, kOkButton},
    {"too few points", [](FitOk& t) { t.options.uDlgFitOrder = 6; }, nullptr,
     "The number of data points (8) must not be smaller than the number of parameters (13).",
     kAdvanced, kOkButton},
    {"uneven x",
     [](FitOk& t) {
         t.options.eSearchMethod = kSearchChebyshev;
         t.source.x[7] = 9.0;
     },
     nullptr,
     "The Chebyshev method requires evenly spaced x axis values.\nSelect another search method.",
     -1, kOkButton},
    {"negative y",
     [](FitOk& t) {
         t.standIn->props.bRejectsNegativeData = 1;
         t.source.y[5] = -1.0;
     },
     nullptr, "The selected function cannot be fitted to negative data values.", kFunction,
     kOkButton},
    {"other lengths",
     [](FitOk& t) {
         std::strcpy(t.data.szDepVarSelectionList, "1..2");
         t.source.lengths = {8, 8, 7};
     },
     nullptr, "All selected y columns must contain the same number of rows.", kData, kOkButton},
    {"no seeds",
     [](FitOk& t) {
         t.standIn->places[7] = {1, kAlways};
     },
     nullptr,
     "The seed values are not valid for the selected function.\nEstimate the seed values "
     "automatically?",
     kSeeds, kNoButton},
    {"all fixed",
     [](FitOk& t) {
         for (auto& u : t.options.uDlgConstraints) u = 1;
     },
     nullptr,
     "All parameters are fixed, so nothing is left to fit.\nPress OK to continue or Cancel to "
     "change the fixed parameters.",
     kSeeds, kCancelButton},
    {"limit of zero",
     [](FitOk& t) {
         t.standIn->props.bSubstitutesZeroX = 1;
         t.options.bExtrapolateLeft = 1;
     },
     nullptr, "The limits of the fitted curve must be greater than zero for the selected function.",
     kAdvanced, kOkButton},
    {"no iterations", [](FitOk&) {},
     [](DialogScript& script) { script.SelectTab(kAdvanced).Type(IDC_FIT_ITERATIONS, "0"); },
     "Validation Error\r\n\r\nValue in field 'Maximum iterations' must fall within the range of 1 "
     "to "
     "50000.",
     kAdvanced, kOkButton},
};

class FitOkStep : public FitOk, public testing::WithParamInterface<std::size_t> {};

TEST_P(FitOkStep, TellsOfItsFault) {
    SCOPED_TRACE(kFaults[GetParam()].szName);
    ExpectFirst({&kFaults[GetParam()]});
}

TEST_P(FitOkStep, ComesBeforeTheNextOne) {
    if (GetParam() + 1 == std::size(kFaults)) return;
    SCOPED_TRACE(std::string(kFaults[GetParam()].szName) + " and " +
                 kFaults[GetParam() + 1].szName);
    ExpectFirst({&kFaults[GetParam()], &kFaults[GetParam() + 1]});
}

INSTANTIATE_TEST_SUITE_P(Chain, FitOkStep, testing::Range<std::size_t>(0, std::size(kFaults)));

TEST_F(FitOk, NothingToSayIsOk) {
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(FitOk, NothingSelectedIsToldOnce) {
    source.Kind(0);
    data.uGroup1Index = 0;
    DialogScript script;
    script.SelectTab(kData)
        .Click(IDC_SELECT_NONE)
        .Click(IDOK)
        .Answer(kOkButton, "No data have been selected. At least one data set must be specified.");
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages().size(), 1u);
}

TEST_F(FitOk, NothingSelectedShowsTheDataPageFromAnother) {
    source.Kind(1);
    DialogScript script;
    script.SelectTab(kData)
        .Click(IDC_SELECT_NONE)
        .Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); })
        .Answer(kOkButton)
        .Do([](HWND hDialog) { EXPECT_EQ(PageShown(hDialog), kData); });
    ShowAndCancel(script);
}

TEST_F(FitOk, ComparisonInOrderComesBeforeFixedParameters) {
    options.bCompareModels = 1;
    options.uStartCompare = options.uEndCompare = 2;
    for (auto& u : options.uDlgConstraints) u = 1;
    DialogScript script;
    script.Click(IDOK)
        .Answer(kOkButton, "The ending term must be greater than the starting term.")
        .ExpectVisible(IDC_FIT_FUNCTIONS, true);
    ShowAndCancel(script);
}

TEST_F(FitOk, ComparisonWithAllFixedIsRefused) {
    options.bCompareModels = 1;
    options.bAutoCompare = 0;
    options.uEndCompare = 4;
    for (auto& u : options.uDlgConstraints) u = 1;
    DialogScript script;
    script.Click(IDOK)
        .Answer(kOkButton,
                "Models cannot be compared when all parameters are fixed.\nAt least one parameter "
                "must be free.")
        .ExpectVisible(IDC_FIT_SEED_FIRST, true);
    ShowAndCancel(script);
}

TEST_F(FitOk, AllFixedGoesOnByOk) {
    for (auto& u : options.uDlgConstraints) u = 1;
    DialogScript script;
    script.Click(IDOK).Answer(kOkButton);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.uConstraints[0], 1u);
}

TEST_F(FitOk, HiddenFlagsAskNoQuestionAboutALine) {
    for (auto& u : options.uDlgConstraints) u = 1;
    standIn->props.bStraightLine = 1;
    options.eFunctionType = 35;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    for (const std::uint32_t u : options.uConstraints) EXPECT_EQ(u, 0u);
    for (const std::uint32_t u : options.uDlgConstraints) EXPECT_EQ(u, 0u);
}

// --- Uneven x.

constexpr char kUseLM[] =
    "The Chebyshev method requires evenly spaced x axis values.\nPress OK to use "
    "Levenberg-Marquardt.";

TEST_F(FitOk, AnotherMethodIsOfferedWhereTheHostSaysSo) {
    params.bFitOptionByte = 1;
    options.eSearchMethod = kSearchChebyshev;
    source.x[7] = 9.0;
    DialogScript stay;
    stay.Click(IDOK).Answer(kCancelButton, kUseLM);
    ShowAndCancel(stay);
    EXPECT_EQ(options.eSearchMethod, kSearchChebyshev);
    DialogScript go;
    go.Click(IDOK).Answer(kOkButton, kUseLM);
    EXPECT_EQ(Show(go), IDOK);
    EXPECT_EQ(options.eSearchMethod, kSearchLM);
}

TEST_F(FitOk, LikelihoodNeedsEvenXToo) {
    options.eFunctionType = 10;
    ByHand(kSearchVM);
    options.eMinimMethod = kMinimML;
    source.x[7] = 9.0;
    DialogScript script;
    script.Click(IDOK).Answer(kOkButton,
                              "Maximum likelihood requires evenly spaced x axis values.\nSelect "
                              "another minimization method.");
    ShowAndCancel(script);
}

// --- Seeds.

constexpr char kEstimate[] =
    "The seed values are not valid for the selected function.\nEstimate the seed values "
    "automatically?";
constexpr char kFailed[] =
    "The seed values could not be estimated from the data.\nEnter the seed values.";

TEST_F(FitOk, YesEstimatesAndGoesOn) {
    standIn->places[7] = {1, 1};
    DialogScript script;
    script.Click(IDOK).Answer(kYesButton, kEstimate);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(standIn->uCalls[7], 2u);
    EXPECT_EQ(options.dParameters[0], 2.5);
}

TEST_F(FitOk, YesThatFailsShowsTheSeedsWithOneMessage) {
    standIn->places[7] = {1, kAlways};
    DialogScript script;
    script.Click(IDOK)
        .Answer(kYesButton, kEstimate)
        .Answer(kOkButton, kFailed)
        .ExpectVisible(IDC_FIT_SEED_FIRST, true);
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages().size(), 2u);
}

TEST_F(FitOk, NoLeavesTheSeedsAsTheyAreAndShowsThem) {
    standIn->places[7] = {1, 1};
    options.uDlgConstraints[1] = 1;
    DialogScript script;
    script.Click(IDOK).Answer(kNoButton, kEstimate).ExpectText(IDC_FIT_SEED_FIRST, "0").Do([this] {
        EXPECT_EQ(standIn->uCalls[7], 1u);
        EXPECT_TRUE(dialog->Fit().bSeedsValid);
        EXPECT_FALSE(dialog->Fit().bSeedsStale);
    });
    ShowAndCancel(script);
}

TEST_F(FitOk, AnotherFunctionNeedsSeedsOfItsOwn) {
    options.eFunctionGroupID = kAllFunctions;
    DialogScript script;
    script.Choose(IDC_FIT_FUNCTIONS, "Gaussian").Click(IDOK).Answer(kYesButton, kEstimate);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.eFunctionType, 18);
}

TEST_F(FitOk, OtherDataKeepUsableSeeds) {
    DialogScript script;
    script.SelectTab(kData).ClickItem(IDC_SET_LIST, 2).Click(IDC_DEPENDENT).Do([this] {
        EXPECT_TRUE(dialog->Fit().bSeedsStale);
    });
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(FitOk, ComparisonSkipsTheSeedsAndFixesNothing) {
    standIn->places[7] = {1, kAlways};
    options.bCompareModels = 1;
    options.uDlgConstraints[0] = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_TRUE(script.Messages().empty());
    EXPECT_EQ(options.uConstraints[0], 0u);
    EXPECT_EQ(options.uDlgConstraints[0], 1u);
    EXPECT_EQ(options.bDlgCompareModels, 1);
    EXPECT_EQ(options.uTermsToFit, 1u);
}

// --- Bad data.

TEST_F(FitOk, BadDataHaveTheirMessages) {
    struct Row {
        const char* szName;
        void (*make)(FitOk&);
        const char* szText;
    };
    const Row rows[] = {
        {"x all zero", [](FitOk& t) { std::fill(t.source.x.begin(), t.source.x.end(), 0.0); },
         "All x axis values are zero. Select a valid data set."},
        {"normalised data",
         [](FitOk& t) {
             t.options.bCompareModels = 1;
             t.standIn->props.bNeedsObservationCount = 1;
             for (double& y : t.source.y) y /= 10.0;
         },
         "Models cannot be compared on normalized data."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.szName);
        options = FreshRecord();
        ByHand(kSearchLM);
        row.make(*this);
        DialogScript script;
        script.Click(IDOK).Answer(kOkButton, row.szText);
        ShowAndCancel(script);
        source.x = {1, 2, 3, 4, 5, 6, 7, 8};
    }
}

// --- The record.

TEST_F(FitOk, TheRecordIsFinalised) {
    options.eFunctionGroupID = kAllFunctions;
    options.ePrevFunctionType = 3;
    options.bUseLMPrecisionDefault = 1;
    options.bDlgChebyFilter = 1;
    options.bAutoZeroShift = 0;
    options.bDoZeroShift = 1;
    standIn->props.bZeroShiftAllowed = 1;
    std::strcpy(standIn->szTexts[30], "My %d function");
    options.uDlgFitOrder = 2;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.dXInterval, 1.0);
    EXPECT_EQ(options.uFitOrder, 2u);
    EXPECT_EQ(options.uTermsToFit, 2u);
    EXPECT_EQ(options.ePrevFunctionType, 15);
    EXPECT_EQ(options.dLMPrecision, 1e-6);
    EXPECT_EQ(options.dVMPrecision, 4e-5);
    EXPECT_EQ(options.bUseChebyFilter, 1);
    EXPECT_EQ(options.bZeroShiftInEffect, 1);
    EXPECT_STREQ(options.szFunctionName, "My  function");
    EXPECT_EQ(options.uFirstPoint, data.uFirstDataIndex + 1);
    EXPECT_EQ(options.uLastPoint, data.uLastDataIndex + 1);
    EXPECT_EQ(options.bFullRange, 1);
    EXPECT_TRUE(RememberedFit().bOpenedBefore);
    EXPECT_FALSE(RememberedFit().bLastNotColumnSource);
}

TEST_F(FitOk, MandatoryZeroShiftIsInEffect) {
    standIn->props.bZeroShiftMandatory = standIn->props.bZeroShiftAllowed = 1;
    options.bAutoZeroShift = 0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.bZeroShiftInEffect, 1);
}

TEST_F(FitOk, AFunctionOfOneTermDropsTheComparisonFromTheRecordAlone) {
    standIn->props.bMultiTerm = 0;
    options.bCompareModels = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.bCompareModels, 0);
    EXPECT_EQ(options.bDlgCompareModels, 1);
    EXPECT_EQ(options.uTermsToFit, 1u);
}

TEST_F(FitOk, ConstantsOfTheVariablesReachTheRecord) {
    options.eFunctionType = 19;
    standIn->bVariableCount = 1;
    standIn->uVariableCount = 3;
    for (int i = 1; i < 6; ++i) data.abIsConstant[i] = 1;
    data.adConstants[1] = 11.0;
    data.adConstants[2] = 12.0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.bIsConstantVar[0], 0);
    EXPECT_EQ(options.bIsConstantVar[1], 1);
    EXPECT_EQ(options.dConstantVar[1], 11.0);
    EXPECT_EQ(options.dConstantVar[2], 12.0);
}

TEST_F(FitOk, AConstantOfZeroShowsTheDataPage) {
    options.eFunctionType = 19;
    standIn->bVariableCount = 1;
    standIn->uVariableCount = 3;
    for (int i = 1; i < 6; ++i) data.abIsConstant[i] = 1;
    data.adConstants[1] = 11.0;
    DialogScript script;
    script.Click(IDOK)
        .Answer(kOkButton, "The constants of the independent variables must be greater than zero.")
        .Do([](HWND hDialog) { EXPECT_EQ(PageShown(hDialog), kData); })
        // The page of the seeds can be looked at all the same.
        .SelectTab(kSeeds)
        .ExpectVisible(IDC_FIT_SEED_NOTE, true);
    ShowAndCancel(script);
}

TEST_F(FitOk, CancelWritesNothingBehindARefusedOk) {
    CParentDialogBase::LastTab(IDD_FIT) = kAdvanced;
    options.bExtrapolateLeft = 1;
    standIn->props.bSubstitutesZeroX = 1;
    DialogScript script;
    script.SelectTab(kSeeds).Click(IDOK).Answer(kOkButton);
    ShowAndCancel(script);
    EXPECT_EQ(CParentDialogBase::LastTab(IDD_FIT), kAdvanced);
    EXPECT_FALSE(RememberedFit().bOpenedBefore);
    EXPECT_EQ(options.dParameters[0], 0.0);
}

}  // namespace
