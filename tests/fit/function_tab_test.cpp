// The page on which the function is chosen.

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

class FunctionTab : public FitDialogTest {
  protected:
    FunctionTab() { options.eFunctionGroupID = kExponentialGrowth; }
};

int CountOf(HWND hDialog, int nId) {
    return static_cast<int>(ItemsOf(FindControl(hDialog, nId)).size());
}

TEST_F(FunctionTab, ReadOnlyModeKeepsTheListAliveToBeScrolled) {
    params.bReadOnly = 1;
    options.eFunctionType = 18;
    DialogScript script;
    script.ExpectEnabled(IDC_FIT_FUNCTIONS, true)
        .ExpectEnabled(IDC_FIT_GROUP, false)
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Gaussian")
        .ClickItem(IDC_FIT_FUNCTIONS, 0)
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Gaussian")
        .ExpectFocus(IDCANCEL);
    ShowAndCancel(script);
    EXPECT_EQ(options.eFunctionType, 18);
}

TEST_F(FunctionTab, ShowsTheRecord) {
    DialogScript script;
    script.ExpectTitle("Curve Fitting")
        .ExpectChecked(IDC_FIT_PREDEFINED, BST_CHECKED)
        .ExpectItems(IDC_FIT_GROUP,
                     {"All", "Distributions", "Electrophysiology", "Exponential, Growth",
                      "Dose Response", "Linear, Polynomial", "Parabolic"})
        .ExpectSelected(IDC_FIT_GROUP, "Exponential, Growth")
        .ExpectItems(IDC_FIT_FUNCTIONS,
                     {"Exponential, power", "Exponential, product", "Exponential, sloping baseline",
                      "Exponential, standard", "Exponential, weighted",
                      "Exponential, weighted/constrained", "Logistic growth"})
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .ExpectText(IDC_FIT_TERMS, "1")
        .ExpectText(IDC_FIT_TERMS_LABEL, "Number of te&rms (n):")
        .ExpectText(IDC_FIT_CONFIDENCE, "0.9")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift)");
    ShowAndCancel(script);
}

TEST_F(FunctionTab, GroupAllListsThirtySixAndWithColumnsThirtyEight) {
    options.eFunctionGroupID = kAllFunctions;
    DialogScript file;
    file.Do([](HWND hDialog) { EXPECT_EQ(CountOf(hDialog, IDC_FIT_FUNCTIONS), 36); });
    ShowAndCancel(file);
    MakeSheet();
    DialogScript sheet;
    sheet.Do([](HWND hDialog) { EXPECT_EQ(CountOf(hDialog, IDC_FIT_FUNCTIONS), 38); });
    ShowAndCancel(sheet);
}

TEST_F(FunctionTab, ChangedGroupWithoutTheFunctionMakesItsFirstRowTheFunction) {
    DialogScript script;
    script.Choose(IDC_FIT_GROUP, "Dose Response")
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Hill (4 parameter logistic)")
        .ExpectText(IDC_FIT_NAME, " Hill (4 parameter logistic)");
    keep = true;
    ShowAndCancel(script);
    EXPECT_EQ(options.eFunctionType, 22);
    // The id of the group, which stands fifth in the box.
    EXPECT_EQ(options.eFunctionGroupID, kDoseResponse);
}

TEST_F(FunctionTab, ChangedGroupThatHasTheFunctionChangesNothingElse) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .Click(IDC_FIT_FIX_FIRST)
        .Type(IDC_FIT_SEED_FIRST, "7.25")
        .SelectTab(kFunction)
        .Choose(IDC_FIT_GROUP, "All")
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_FIRST, "7.25");
    ShowAndCancel(script);
}

TEST_F(FunctionTab, ListKeepsItsPlaceWhenAFunctionIsChosen) {
    options.eFunctionGroupID = kAllFunctions;
    LRESULT nTop = 0;
    DialogScript script;
    script.Choose(IDC_FIT_FUNCTIONS, "Voltage-dependent relaxation")
        .Do([&](HWND hDialog) {
            nTop = SendMessageA(FindControl(hDialog, IDC_FIT_FUNCTIONS), LB_GETTOPINDEX, 0, 0);
            EXPECT_GT(nTop, 0);
        })
        .Choose(IDC_FIT_FUNCTIONS, "Straight line, standard")
        .Do([&](HWND hDialog) {
            HWND hList = FindControl(hDialog, IDC_FIT_FUNCTIONS);
            EXPECT_EQ(SendMessageA(hList, LB_GETTOPINDEX, 0, 0), nTop);
        });
    ShowAndCancel(script);
}

TEST_F(FunctionTab, OpeningWidensTheGroupAndKeepsTheFunction) {
    options.eFunctionType = 18;
    options.eFunctionGroupID = kExponentialGrowth;
    DialogScript script;
    script.ExpectSelected(IDC_FIT_GROUP, "All").ExpectSelected(IDC_FIT_FUNCTIONS, "Gaussian");
    ShowAndCancel(script);
}

TEST_F(FunctionTab, FunctionOfSeveralVariablesBecomesTheStandardExponentialWithoutASheet) {
    options.eFunctionType = 19;
    options.eFunctionGroupID = kElectrophysiology;
    options.uDlgConstraints[0] = 1;
    DialogScript script;
    script.ExpectSelected(IDC_FIT_GROUP, "All")
        .ExpectSelected(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .SelectTab(kSeeds)
        .ExpectChecked(IDC_FIT_FIX_FIRST, BST_UNCHECKED);
    ShowAndCancel(script);
}

TEST_F(FunctionTab, TypedTermsArePulledIntoRangeAtOnceAndTheirTextOnLeaving) {
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "9")
        .Do([this] { EXPECT_EQ(options.uDlgFitOrder, 6u); })
        .ExpectText(IDC_FIT_TERMS, "9")
        .Focus(IDC_FIT_GROUP)
        .ExpectText(IDC_FIT_TERMS, "6")
        .Type(IDC_FIT_TERMS, "0")
        .Focus(IDC_FIT_GROUP)
        .ExpectText(IDC_FIT_TERMS, "1");
    ShowAndCancel(script);
    EXPECT_EQ(options.uDlgFitOrder, 1u);
}

TEST_F(FunctionTab, TypedTermsCountAtOnce) {
    ByHand(kSearchLM);
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "2")
        .Do([this] { EXPECT_EQ(dialog->Fit().TotalParameterCount(), 5u); })
        .Type(IDC_FIT_TERMS, "3")
        .Do([this] { EXPECT_EQ(dialog->Fit().TotalParameterCount(), 7u); });
    ShowAndCancel(script);
}

TEST_F(FunctionTab, TermsAreOpenWhereTheFunctionHasThem) {
    DialogScript script;
    script.ExpectEnabled(IDC_FIT_TERMS, true)
        .ExpectEnabled(IDC_FIT_COMPARE, true)
        .Choose(IDC_FIT_FUNCTIONS, "Exponential, product")
        .ExpectEnabled(IDC_FIT_TERMS, false)
        .ExpectEnabled(IDC_FIT_TERMS_LABEL, false)
        .ExpectEnabled(IDC_FIT_TERMS_SPIN, false)
        .ExpectEnabled(IDC_FIT_COMPARE, false)
        .Choose(IDC_FIT_FUNCTIONS, "Exponential, power")
        .ExpectEnabled(IDC_FIT_TERMS, true);
    ShowAndCancel(script);
}

TEST_F(FunctionTab, PowerExponentialLeavesChebyshevWithItsSecondTerm) {
    options.eFunctionType = 11;
    DialogScript script;
    script
        .Do([this] {
            EXPECT_EQ(options.eSearchMethod, kSearchChebyshev);
            EXPECT_STREQ(dialog->Fit().PictureName(), "EQ_POWEXP");
        })
        .Type(IDC_FIT_TERMS, "2")
        .Do([this] {
            EXPECT_EQ(options.eSearchMethod, kSearchLM);
            EXPECT_STREQ(dialog->Fit().PictureName(), "EQ_MPOWEXP");
            EXPECT_TRUE(dialog->Fit().bSeedsStale);
        })
        .Type(IDC_FIT_TERMS, "1")
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchChebyshev); });
    ShowAndCancel(script);
}

// --- The function's own numbers.

TEST_F(FunctionTab, NumbersAreOpenForTheFunctionThatUsesThem) {
    options.eFunctionGroupID = kAllFunctions;
    struct Row {
        const char* szFunction;
        bool bPowerA, bPowerB, bTemperature, bValence;
    };
    const Row rows[] = {
        {"Current time course (Hodgkin-Huxley)", true, true, false, false},
        {"Exponential, power", true, false, false, false},
        {"Boltzmann, Z-delta (inactivation)", false, false, true, false},
        {"Boltzmann, Z-delta (activation)", false, false, true, false},
        {"Nernst", false, false, true, true},
        {"Gaussian", false, false, false, false},
    };
    DialogScript script;
    for (const Row& row : rows) {
        script.Choose(IDC_FIT_FUNCTIONS, row.szFunction)
            .ExpectEnabled(IDC_FIT_POWER_A, row.bPowerA)
            .ExpectEnabled(IDC_FIT_POWER_B, row.bPowerB)
            .ExpectEnabled(IDC_FIT_TEMPERATURE, row.bTemperature)
            .ExpectEnabled(IDC_FIT_CELSIUS, row.bTemperature)
            .ExpectEnabled(IDC_FIT_VALENCE, row.bValence);
    }
    ShowAndCancel(script);
}

TEST_F(FunctionTab, NumbersStayWithTheirFunction) {
    options.eFunctionGroupID = kAllFunctions;
    options.eFunctionType = 5;
    DialogScript script;
    script.ExpectText(IDC_FIT_TEMPERATURE, "21")
        .Type(IDC_FIT_TEMPERATURE, "37")
        .Choose(IDC_FIT_FUNCTIONS, "Nernst")
        .ExpectText(IDC_FIT_TEMPERATURE, "22")
        .ExpectText(IDC_FIT_VALENCE, "2")
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .ExpectText(IDC_FIT_TEMPERATURE, "20")
        .ExpectText(IDC_FIT_VALENCE, "1");
    ShowAndCancel(script);
    EXPECT_EQ(options.dZDBoltzmanTemperature, 37.0);
    EXPECT_EQ(options.dNernstTemperature, 22.0);
    EXPECT_EQ(options.uNernstValence, 2u);
}

TEST_F(FunctionTab, PowersAndValenceArePulledIntoRange) {
    options.eFunctionGroupID = kAllFunctions;
    options.eFunctionType = 7;
    DialogScript script;
    script.ExpectText(IDC_FIT_POWER_A, "3")
        .Type(IDC_FIT_POWER_A, "0")
        .Type(IDC_FIT_POWER_B, "8")
        .Focus(IDC_FIT_GROUP)
        .ExpectText(IDC_FIT_POWER_A, "1")
        .ExpectText(IDC_FIT_POWER_B, "6")
        .Choose(IDC_FIT_FUNCTIONS, "Nernst");
    for (const auto& [typed, kept] :
         {std::pair{"0", 1}, std::pair{"9", 4}, std::pair{"-9", -4}, std::pair{"-2", -2}}) {
        script.Type(IDC_FIT_VALENCE, typed)
            .Focus(IDC_FIT_GROUP)
            .ExpectText(IDC_FIT_VALENCE, std::to_string(kept))
            .Do([this, kept = kept] {
                EXPECT_EQ(static_cast<std::int32_t>(options.uNernstValence), kept);
            });
    }
    ShowAndCancel(script);
    EXPECT_EQ(options.uCurTimePowerA, 1u);
    EXPECT_EQ(options.uCurTimePowerB, 6u);
}

TEST_F(FunctionTab, StoredNumbersArePulledIntoRangeAtOpening) {
    options.eFunctionType = 7;
    options.uCurTimePowerA = 0;
    options.uCurTimePowerB = 1u << 31;
    options.uExpPower = 0;
    options.uStartCompare = 0;
    options.uEndCompare = 0;
    options.uDlgFitOrder = 1u << 31;
    options.uNernstValence = 0;
    DialogScript script;
    script.ExpectText(IDC_FIT_POWER_A, "3").ExpectText(IDC_FIT_POWER_B, "6");
    ShowAndAccept(script);
    EXPECT_EQ(options.uCurTimePowerA, 3u);
    EXPECT_EQ(options.uExpPower, 3u);
    EXPECT_EQ(options.uCurTimePowerB, 6u);
    EXPECT_EQ(options.uStartCompare, 1u);
    EXPECT_EQ(options.uEndCompare, 2u);
    EXPECT_EQ(options.uDlgFitOrder, 6u);
    EXPECT_EQ(options.uNernstValence, 1u);
}

TEST_F(FunctionTab, TemperatureOutOfRangeIsToldAtOk) {
    options.eFunctionType = 30;
    ByHand(kSearchLM);
    DialogScript script;
    script.Type(IDC_FIT_TEMPERATURE, "-280")
        .Click(IDOK)
        .Answer(kOkButton)
        .ExpectFocus(IDC_FIT_TEMPERATURE);
    ShowAndCancel(script);
    ASSERT_EQ(script.Messages().size(), 1u);
    EXPECT_NE(script.Messages()[0].text.find("-273"), std::string::npos);
}

TEST_F(FunctionTab, FreshPolynomialHasOneTerm) {
    options.eFunctionType = 34;
    options.uPolynomTerm = 0;
    DialogScript script;
    script.ExpectText(IDC_FIT_TERMS, "1");
    ShowAndAccept(script);
    EXPECT_EQ(options.uFitOrder, 1u);
}

// --- Comparison of models.

TEST_F(FunctionTab, ComparisonOpensItsFields) {
    ByHand(kSearchLM);
    DialogScript script;
    script.ExpectEnabled(IDC_FIT_AUTO_COMPARE, false)
        .ExpectEnabled(IDC_FIT_CONFIDENCE, false)
        .Click(IDC_FIT_COMPARE)
        .ExpectText(IDC_FIT_TERMS_LABEL, "(Comparing models)")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift) (compare models)")
        .ExpectEnabled(IDC_FIT_AUTO_COMPARE, true)
        .ExpectEnabled(IDC_FIT_CONFIDENCE, true)
        .ExpectEnabled(IDC_FIT_START_TERM, false)
        .ExpectEnabled(IDC_FIT_END_TERM, false)
        .Click(IDC_FIT_AUTO_COMPARE)
        .ExpectEnabled(IDC_FIT_START_TERM, true)
        .ExpectEnabled(IDC_FIT_END_TERM, true)
        .Click(IDC_FIT_COMPARE)
        .ExpectText(IDC_FIT_TERMS_LABEL, "Number of te&rms (n):")
        .ExpectEnabled(IDC_FIT_AUTO_COMPARE, false)
        .ExpectEnabled(IDC_FIT_START_TERM, false);
    ShowAndCancel(script);
}

constexpr char kStopComparing[] =
    "The number of terms is found by comparing models.\nPress OK to stop comparing models.";

TEST_F(FunctionTab, TypedTermsWhileComparingAskOnceAndOkStopsTheComparison) {
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    options.uDlgFitOrder = 2;
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "3")
        .Answer(kOkButton, kStopComparing)
        .ExpectText(IDC_FIT_TERMS, "3")
        .ExpectChecked(IDC_FIT_COMPARE, BST_UNCHECKED)
        .ExpectText(IDC_FIT_TERMS_LABEL, "Number of te&rms (n):")
        .Do([this] {
            EXPECT_EQ(options.bCompareModels, 0);
            EXPECT_EQ(options.uDlgFitOrder, 3u);
            EXPECT_FALSE(dialog->Fit().bSeedsValid);
        });
    ShowAndCancel(script);
}

TEST_F(FunctionTab, TypedTermsWhileComparingAreTakenBackSilentlyBehindACancel) {
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    options.uDlgFitOrder = 2;
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "3")
        .Answer(kCancelButton, kStopComparing)
        .ExpectText(IDC_FIT_TERMS, "2")
        .Type(IDC_FIT_TERMS, "4")
        .ExpectText(IDC_FIT_TERMS, "2")
        .SelectTab(kAdvanced)
        .SelectTab(kFunction)
        .Type(IDC_FIT_TERMS, "5")
        .Answer(kCancelButton, kStopComparing);
    ShowAndCancel(script);
    EXPECT_EQ(options.uDlgFitOrder, 2u);
    EXPECT_EQ(options.bCompareModels, 1);
}

TEST_F(FunctionTab, EndingTermMustBeAboveTheStartingTerm) {
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    options.uStartCompare = 3;
    options.uEndCompare = 3;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .Answer(kOkButton, "The ending term must be greater than the starting term.")
        .ExpectVisible(IDC_FIT_FUNCTIONS, true)
        .Click(IDC_FIT_AUTO_COMPARE)
        .Type(IDC_FIT_END_TERM, "4")
        .SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_LM, true);
    ShowAndCancel(script);
}

TEST_F(FunctionTab, ComparisonOutlivesAFunctionOfOneTerm) {
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    DialogScript script;
    script.Choose(IDC_FIT_FUNCTIONS, "Exponential, product")
        .ExpectEnabled(IDC_FIT_COMPARE, false)
        .ExpectChecked(IDC_FIT_COMPARE, BST_CHECKED)
        .ExpectText(IDC_FIT_NAME, " Exponential, product (zero-shift)")
        .Choose(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift) (compare models)");
    ShowAndCancel(script);
}

// --- Function 17 by hand.

TEST_F(FunctionTab, ConstrainedExponentialIsForVariableMetricAndGivesTheMethodBack) {
    ByHand(kSearchSimplex);
    DialogScript script;
    script.Choose(IDC_FIT_FUNCTIONS, "Exponential, weighted/constrained")
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchVM); })
        .Choose(IDC_FIT_FUNCTIONS, "Exponential, standard")
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchSimplex); });
    ShowAndCancel(script);
}

// --- Numbers, each with its label and its spinner.

TEST_F(FunctionTab, EachSpinnerStepsItsFieldThroughItsValues) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    FitFunctionProps& props = standIn.TellTraits();
    props.bUsesPowerA = props.bUsesPowerB = props.bUsesTemperature = props.bUsesValence = 1;
    ByHand(kSearchLM);
    options.eFunctionGroupID = kAllFunctions;
    options.bAutoCompare = 0;
    struct Row {
        std::int32_t eFunction;
        int nLabel, nField, nSpin;
        const char* szFrom;
        const char* szUp;
        const char* szUpAgain;
        bool bComparing;
    };
    const Row rows[] = {
        {15, IDC_FIT_TERMS_LABEL, IDC_FIT_TERMS, IDC_FIT_TERMS_SPIN, "1", "2", "3", false},
        {7, IDC_FIT_POWER_A_LABEL, IDC_FIT_POWER_A, IDC_FIT_POWER_A_SPIN, "4", "5", "6", false},
        {7, IDC_FIT_POWER_B_LABEL, IDC_FIT_POWER_B, IDC_FIT_POWER_B_SPIN, "2", "3", "4", false},
        {5, IDC_FIT_TEMPERATURE_LABEL, IDC_FIT_TEMPERATURE, IDC_FIT_TEMPERATURE_SPIN, "36", "37",
         "38", false},
        {30, IDC_FIT_VALENCE_LABEL, IDC_FIT_VALENCE, IDC_FIT_VALENCE_SPIN, "-1", "1", "2", false},
        {30, IDC_FIT_VALENCE_LABEL, IDC_FIT_VALENCE, IDC_FIT_VALENCE_SPIN, "-4", "-3", "-2", false},
        {30, IDC_FIT_VALENCE_LABEL, IDC_FIT_VALENCE, IDC_FIT_VALENCE_SPIN, "2", "3", "4", false},
        {15, IDC_FIT_START_TERM_LABEL, IDC_FIT_START_TERM, IDC_FIT_START_TERM_SPIN, "2", "3", "4",
         true},
        {15, IDC_FIT_END_TERM_LABEL, IDC_FIT_END_TERM, IDC_FIT_END_TERM_SPIN, "3", "4", "5", true},
        {15, IDC_FIT_CONFIDENCE_LABEL, IDC_FIT_CONFIDENCE, IDC_FIT_CONFIDENCE_SPIN, "0.5", "0.51",
         "0.52", true},
    };
    const FitOptions before = options;
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.nField << " from " << row.szFrom);
        options = before;
        options.eFunctionType = row.eFunction;
        options.bCompareModels = row.bComparing;
        DialogScript script;
        script.ExpectEnabled(row.nLabel, true)
            .Type(row.nField, row.szFrom)
            .MouseClickAt(row.nSpin, 5, 3)
            .ExpectText(row.nField, row.szUp)
            .MouseClickAt(row.nSpin, 5, 3)
            .ExpectText(row.nField, row.szUpAgain);
        ShowAndCancel(script);
    }
}

TEST_F(FunctionTab, AConfidenceOutOfItsRangeIsToldAtOk) {
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    for (const char* sz : {"0.0099", "0.9991"}) {
        SCOPED_TRACE(sz);
        const FitOptions before = options;
        DialogScript script;
        script.Type(IDC_FIT_CONFIDENCE, sz)
            .Click(IDOK)
            .Answer(kOkButton)
            .ExpectFocus(IDC_FIT_CONFIDENCE);
        ShowAndCancel(script);
        options = before;
    }
}

// The function has no number of terms under Chebyshev, but another number would lead to another
// method.
TEST_F(FunctionTab, NumberOfTermsIsOpenWhereItLeadsAwayFromChebyshev) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn.TellTraits().bMultiTerm = 0;
    const struct {
        std::int32_t eFunction, bAutomatic, eSearch;
        bool bOpen;
    } rows[] = {{11, 1, kSearchChebyshev, true},
                {11, 0, kSearchChebyshev, false},
                {11, 0, kSearchLM, false},
                {15, 1, kSearchChebyshev, false},
                {18, 1, kSearchLM, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.eFunction) + std::to_string(row.bAutomatic));
        options.eFunctionType = row.eFunction;
        options.bAutoDefaultOptions = row.bAutomatic;
        options.eSearchMethod = row.eSearch;
        DialogScript script;
        script.ExpectEnabled(IDC_FIT_TERMS, row.bOpen)
            .ExpectEnabled(IDC_FIT_TERMS_LABEL, row.bOpen)
            .Do([&] { EXPECT_EQ(options.eSearchMethod, row.eSearch); });
        ShowAndCancel(script);
    }
}

}  // namespace
