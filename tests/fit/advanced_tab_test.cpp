// The page with the fitting methods and what stands around them.

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

constexpr int kSearch[] = {IDC_FIT_LM, IDC_FIT_VM, IDC_FIT_SIMPLEX, IDC_FIT_CHEBYSHEV};
constexpr int kMinim[] = {IDC_FIT_SQUARED_ERRORS, IDC_FIT_LIKELIHOOD, IDC_FIT_MINIMAX,
                          IDC_FIT_MEAN_ABSOLUTE};
constexpr int kWeight[] = {IDC_FIT_WEIGHT_NONE, IDC_FIT_WEIGHT_FUNCTION, IDC_FIT_WEIGHT_DATA,
                           IDC_FIT_WEIGHT_BIN_WIDTH};

class AdvancedTab : public FitDialogTest {
  protected:
    // "xx.X": enabled radios as x, the checked one in capitals, closed ones as dots and "-".
    static std::string Radios(HWND hDialog, const int (&ids)[4]) {
        std::string state;
        for (const int nId : ids) {
            HWND hRadio = FindControl(hDialog, nId);
            const bool bOpen = IsWindowEnabled(hRadio) != 0;
            const bool bChecked = SendMessageA(hRadio, BM_GETCHECK, 0, 0) == BST_CHECKED;
            state += bChecked ? (bOpen ? 'X' : '-') : (bOpen ? 'x' : '.');
        }
        return state;
    }
    static std::string Methods(HWND hDialog) {
        return Radios(hDialog, kSearch) + " " + Radios(hDialog, kMinim) + " " +
               Radios(hDialog, kWeight);
    }
    // Opens the page, gives the methods that it shows, and cancels.
    std::string MethodsShown() {
        std::string methods;
        DialogScript script;
        script.SelectTab(kAdvanced).Do([&](HWND hDialog) { methods = Methods(hDialog); });
        ShowAndCancel(script);
        return methods;
    }
};

TEST_F(AdvancedTab, ShowsTheRecord) {
    ByHand(kSearchVM);
    options.bUseVMPrecisionDefault = 0;
    options.bFreeAndRefit = 1;
    options.bWriteStatistics = 1;
    options.common.bWriteRegionInfo = 1;
    options.common.eDestinationOption = 1;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectChecked(IDC_FIT_AUTOMATIC, BST_UNCHECKED)
        .ExpectChecked(IDC_FIT_VM, BST_CHECKED)
        .ExpectText(IDC_FIT_LM_PRECISION, "3e-5")
        .ExpectText(IDC_FIT_VM_PRECISION, "4e-5")
        .ExpectText(IDC_FIT_SIMPLEX_PRECISION, "5e-5")
        .ExpectText(IDC_FIT_ITERATIONS, "700")
        .ExpectText(IDC_FIT_DIVISOR, "12")
        .ExpectChecked(IDC_FIT_FREE_AND_REFIT, BST_CHECKED)
        .ExpectChecked(IDC_FIT_REFIT_ON_FAILURE, BST_UNCHECKED)
        .ExpectChecked(IDC_FIT_STATISTICS, BST_CHECKED)
        .ExpectChecked(IDC_WRITE_REGION_INFO, BST_CHECKED)
        .ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, AutomaticMethodsShowOnlyTheirChoiceOpen) {
    // The standard exponential with automatic zero-shift.
    EXPECT_EQ(MethodsShown(), "...X -... -...");
    options.eFunctionType = 18;
    EXPECT_EQ(MethodsShown(), "X... X... X...");
    options.eFunctionType = 10;
    EXPECT_EQ(MethodsShown(), ".X.. .X.. -...");
    options.eFunctionType = 30;
    EXPECT_EQ(MethodsShown(), "..X. X... -...");
}

TEST_F(AdvancedTab, AutomaticMethodsFollowTheFirstPointWhereNothingIsShifted) {
    options.bAutoZeroShift = 0;
    EXPECT_EQ(MethodsShown(), "X... X... X...");
    for (double& x : source.x) x -= 0.5;
    EXPECT_EQ(MethodsShown(), "...X -... -...");
}

TEST_F(AdvancedTab, LikelihoodIsForDwellTimesUnderVariableMetricOrSimplex) {
    for (std::int32_t eFunction = 0; eFunction <= 18; ++eFunction) {
        for (const std::int32_t eSearch : {kSearchLM, kSearchVM, kSearchSimplex}) {
            SCOPED_TRACE(std::to_string(eFunction) + " by " + std::to_string(eSearch));
            options.eFunctionType = eFunction;
            ByHand(eSearch);
            bool bOpen = false;
            DialogScript script;
            script.SelectTab(kAdvanced).Do([&](HWND hDialog) {
                bOpen = IsWindowEnabled(FindControl(hDialog, IDC_FIT_LIKELIHOOD)) != 0;
            });
            ShowAndCancel(script);
            const bool bDwellTimes = eFunction == 10 || eFunction == 12;
            EXPECT_EQ(bOpen, bDwellTimes && options.eSearchMethod != kSearchLM);
        }
    }
}

TEST_F(AdvancedTab, ConstrainedExponentialMovesOffSimplexToLevenbergMarquardt) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn->bProps = 1;
    standIn->props.uParamsPerTerm = 2;
    standIn->props.bMultiTerm = 1;
    standIn->props.bAllowLM = 1;
    standIn->props.bAllowSimplex = 0;
    standIn->props.uZeroAllowedParam = 99;
    options.eFunctionType = 17;
    ByHand(kSearchSimplex);
    EXPECT_EQ(MethodsShown(), "Xx.. X.xx Xxx.");
}

TEST_F(AdvancedTab, PrecisionIsThatOfTheMethodAndItsDefault) {
    ByHand(kSearchLM);
    options.bUseLMPrecisionDefault = 1;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_LM_DEFAULT, true)
        .ExpectEnabled(IDC_FIT_LM_PRECISION, false)
        .ExpectEnabled(IDC_FIT_VM_DEFAULT, false)
        .ExpectEnabled(IDC_FIT_VM_PRECISION, false)
        .Click(IDC_FIT_LM_DEFAULT)
        .ExpectEnabled(IDC_FIT_LM_PRECISION, true)
        .Click(IDC_FIT_SIMPLEX)
        .ExpectEnabled(IDC_FIT_LM_DEFAULT, false)
        .ExpectEnabled(IDC_FIT_LM_PRECISION, false)
        .ExpectEnabled(IDC_FIT_SIMPLEX_DEFAULT, true)
        .ExpectEnabled(IDC_FIT_SIMPLEX_PRECISION, true)
        .Type(IDC_FIT_SIMPLEX_PRECISION, "2e-9");
    ShowAndAccept(script);
    EXPECT_EQ(options.dUserFractError, 2e-9);
    EXPECT_EQ(options.dFractError, 2e-9);
    EXPECT_EQ(options.dLMPrecision, 3e-5);
    EXPECT_EQ(options.dVMPrecision, 4e-5);
}

TEST_F(AdvancedTab, EveryButtonStandsForItsMethod) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn.TellTraits().bBinWidthWeighting = 1;
    options.eFunctionType = 10;
    ByHand(kSearchLM);
    DialogScript script;
    const auto pick = [&](int nId, std::int32_t FitOptions::*pField, std::int32_t eExpected) {
        script.Click(nId).ExpectChecked(nId, BST_CHECKED).Do([=, this] {
            EXPECT_EQ(options.*pField, eExpected) << nId;
        });
    };
    script.SelectTab(kAdvanced);
    pick(IDC_FIT_VM, &FitOptions::eSearchMethod, 1);
    pick(IDC_FIT_LIKELIHOOD, &FitOptions::eMinimMethod, 1);
    pick(IDC_FIT_SQUARED_ERRORS, &FitOptions::eMinimMethod, 0);
    pick(IDC_FIT_SIMPLEX, &FitOptions::eSearchMethod, 2);
    pick(IDC_FIT_LM, &FitOptions::eSearchMethod, 0);
    pick(IDC_FIT_MINIMAX, &FitOptions::eMinimMethod, 2);
    pick(IDC_FIT_MEAN_ABSOLUTE, &FitOptions::eMinimMethod, 3);
    pick(IDC_FIT_WEIGHT_FUNCTION, &FitOptions::eWeightingType, 1);
    pick(IDC_FIT_WEIGHT_DATA, &FitOptions::eWeightingType, 2);
    pick(IDC_FIT_WEIGHT_BIN_WIDTH, &FitOptions::eWeightingType, 3);
    pick(IDC_FIT_WEIGHT_NONE, &FitOptions::eWeightingType, 0);
    ShowAndCancel(script);
    options.eFunctionType = 15;
    DialogScript exponential;
    exponential.SelectTab(kAdvanced)
        .Click(IDC_FIT_CHEBYSHEV)
        .ExpectChecked(IDC_FIT_CHEBYSHEV, BST_CHECKED)
        .Do([this] { EXPECT_EQ(options.eSearchMethod, 3); });
    ShowAndCancel(exponential);
}

TEST_F(AdvancedTab, EveryPrecisionHasItsOwnFieldAndDefault) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn.TellTraits();
    const struct {
        int nMethod, nField, nDefault;
        double FitOptions::*pUser;
        std::int32_t FitOptions::*pDefault;
    } rows[] = {{kSearchLM, IDC_FIT_LM_PRECISION, IDC_FIT_LM_DEFAULT, &FitOptions::dUserLMPrecision,
                 &FitOptions::bUseLMPrecisionDefault},
                {kSearchVM, IDC_FIT_VM_PRECISION, IDC_FIT_VM_DEFAULT, &FitOptions::dUserVMPrecision,
                 &FitOptions::bUseVMPrecisionDefault},
                {kSearchSimplex, IDC_FIT_SIMPLEX_PRECISION, IDC_FIT_SIMPLEX_DEFAULT,
                 &FitOptions::dUserFractError, &FitOptions::bUseFractErrDefault}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.nMethod);
        options = FreshRecord();
        options.uMaxIterations = 700;
        options.dSubstZeroLinearFactor = 12.0;
        ByHand(row.nMethod);
        options.bUseLMPrecisionDefault = options.bUseVMPrecisionDefault = 1;
        options.bUseFractErrDefault = 1;
        DialogScript script;
        script.SelectTab(kAdvanced)
            .ExpectChecked(row.nDefault, BST_CHECKED)
            .ExpectEnabled(row.nDefault, true)
            .ExpectEnabled(row.nField, false)
            .Click(row.nDefault)
            .ExpectEnabled(row.nField, true)
            .Type(row.nField, "7e-5")
            .Do([&] { EXPECT_EQ(options.*row.pDefault, 0); });
        for (const auto& other : rows) {
            if (&other == &row) continue;
            script.ExpectEnabled(other.nDefault, false).Do([&] {
                EXPECT_EQ(options.*other.pDefault, 1);
            });
        }
        ShowAndCancel(script);
        EXPECT_EQ(options.*row.pUser, 7e-5);
    }
}

TEST_F(AdvancedTab, DefaultsKeepTheUsersValues) {
    ByHand(kSearchLM);
    options.bUseLMPrecisionDefault = options.bUseVMPrecisionDefault = 1;
    options.bUseFractErrDefault = 1;
    DialogScript script;
    script.SelectTab(kAdvanced).ExpectText(IDC_FIT_LM_PRECISION, "3e-5");
    ShowAndAccept(script);
    EXPECT_EQ(options.dLMPrecision, 1e-6);
    EXPECT_EQ(options.dVMPrecision, 0.0001);
    EXPECT_EQ(options.dFractError, 1e-7);
    EXPECT_EQ(options.dUserLMPrecision, 3e-5);
    EXPECT_EQ(options.dUserVMPrecision, 4e-5);
    EXPECT_EQ(options.dUserFractError, 5e-5);
}

TEST_F(AdvancedTab, PrecisionOutOfRangeIsToldAtOkAndNotOnLeaving) {
    ByHand(kSearchLM);
    DialogScript script;
    script.SelectTab(kAdvanced)
        .Type(IDC_FIT_LM_PRECISION, "0")
        .SelectTab(kFunction)
        .ExpectVisible(IDC_FIT_FUNCTIONS, true)
        .Click(IDOK)
        .Answer(kOkButton)
        .ExpectVisible(IDC_FIT_LM, true)
        .ExpectFocus(IDC_FIT_LM_PRECISION);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, IterationsAreForMethodsThatIterate) {
    ByHand(kSearchLM);
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_ITERATIONS, true)
        .ExpectEnabled(IDC_FIT_ITERATIONS_LABEL, true)
        .Click(IDC_FIT_CHEBYSHEV)
        .ExpectEnabled(IDC_FIT_ITERATIONS, false)
        .ExpectEnabled(IDC_FIT_ITERATIONS_SPIN, false);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, IterationsOutOfRangeAreToldWithNothingApplied) {
    ByHand(kSearchLM);
    options.eFunctionType = 13;
    options.bCompareModels = 1;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .Type(IDC_FIT_ITERATIONS, "0")
        .Click(IDOK)
        .Answer(kOkButton)
        .ExpectFocus(IDC_FIT_ITERATIONS)
        .Do([this] { EXPECT_EQ(options.bCompareModels, 1); });
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, SmoothingIsForChebyshevAndMakesSeedsInvalid) {
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_SMOOTHING, true)
        .Click(IDC_FIT_SMOOTHING)
        .ExpectChecked(IDC_FIT_SMOOTHING, BST_CHECKED)
        .Do([this] { EXPECT_FALSE(dialog->Fit().bSeedsValid); })
        .Click(IDC_FIT_AUTOMATIC)
        .Click(IDC_FIT_LM)
        .ExpectEnabled(IDC_FIT_SMOOTHING, false);
    ShowAndCancel(script);
    EXPECT_EQ(options.bDlgChebyFilter, 1);
}

TEST_F(AdvancedTab, StoredSmoothingIsRemembered) {
    options.bUseChebyFilter = 1;
    DialogScript script;
    script.SelectTab(kAdvanced).ExpectChecked(IDC_FIT_SMOOTHING, BST_CHECKED);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, MovesOffAMethodThatTheFunctionDoesNotHave) {
    // A Gaussian has no Chebyshev fit.
    ByHand(kSearchChebyshev);
    options.eFunctionType = 15;
    DialogScript script;
    script.Choose(IDC_FIT_GROUP, "All")
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchLM); })
        .SelectTab(kAdvanced)
        .ExpectChecked(IDC_FIT_LM, BST_CHECKED)
        .ExpectEnabled(IDC_FIT_CHEBYSHEV, false);
    ShowAndCancel(script);
}

// --- Zero-shift.

TEST_F(AdvancedTab, ZeroShiftIsOpenWhereItIsPermittedAndNotAutomatic) {
    ByHand(kSearchLM);
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_ZERO_SHIFT, false)
        .ExpectText(IDC_FIT_ZERO_SHIFT_STATUS, "")
        .Click(IDC_FIT_ZERO_SHIFT_AUTO)
        .ExpectEnabled(IDC_FIT_ZERO_SHIFT, true)
        .ExpectText(IDC_FIT_NAME, " Exponential, standard")
        .Click(IDC_FIT_ZERO_SHIFT)
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift)");
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, ZeroShiftStatusNamesTheReason) {
    options.eFunctionType = 18;
    ByHand(kSearchLM);
    DialogScript none;
    none.SelectTab(kAdvanced).ExpectText(IDC_FIT_ZERO_SHIFT_STATUS,
                                         "Zero-shift is not available for this function.");
    ShowAndCancel(none);

    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    standIn->bProps = 1;
    standIn->props.uParamsPerTerm = 2;
    standIn->props.bAllowLM = standIn->props.bAllowChebyshev = 1;
    standIn->props.bZeroShiftMandatory = standIn->props.bZeroShiftAllowed = 1;
    options.eFunctionType = 15;
    DialogScript byFunction;
    byFunction.SelectTab(kAdvanced)
        .ExpectText(IDC_FIT_ZERO_SHIFT_STATUS, "Zero-shift is always used by this function.")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (zero-shift)")
        .ExpectEnabled(IDC_FIT_ZERO_SHIFT, false);
    ShowAndCancel(byFunction);
    options.eSearchMethod = kSearchChebyshev;
    DialogScript byMethod;
    byMethod.SelectTab(kAdvanced).ExpectText(IDC_FIT_ZERO_SHIFT_STATUS,
                                             "Zero-shift is always used by the Chebyshev method.");
    ShowAndCancel(byMethod);
}

// --- Strategy, output.

TEST_F(AdvancedTab, StrategyIsOpenWhereItApplies) {
    ByHand(kSearchLM);
    options.eFunctionGroupID = kAllFunctions;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_REFIT_ON_FAILURE, true)
        .ExpectEnabled(IDC_FIT_FREE_AND_REFIT, true)
        .Click(IDC_FIT_CHEBYSHEV)
        .ExpectEnabled(IDC_FIT_REFIT_ON_FAILURE, false)
        .ExpectEnabled(IDC_FIT_FREE_AND_REFIT, true)
        .SelectTab(kFunction)
        .Choose(IDC_FIT_FUNCTIONS, "Straight line, standard")
        .SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_REFIT_ON_FAILURE, false)
        .ExpectEnabled(IDC_FIT_FREE_AND_REFIT, false);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, OutputFormatIsHiddenWhole) {
    params.bShowWriteRegionInfo = 0;
    options.bWriteStatistics = 1;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_OUTPUT_GROUP, false)
        .ExpectVisible(IDC_WRITE_REGION_INFO, false)
        .ExpectVisible(IDC_FIT_STATISTICS, false);
    ShowAndAccept(script);
    EXPECT_EQ(options.bWriteStatistics, 1);
}

TEST_F(AdvancedTab, OutputFormatIsShownWholeWithItsFrame) {
    ByHand(kSearchLM);
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_OUTPUT_GROUP, true)
        .ExpectEnabled(IDC_FIT_OUTPUT_GROUP, true)
        .ExpectVisible(IDC_FIT_STATISTICS, true)
        .ExpectEnabled(IDC_FIT_STATISTICS, true);
    ShowAndCancel(script);
    params.bReadOnly = 1;
    DialogScript readOnly;
    readOnly.SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_OUTPUT_GROUP, true)
        .ExpectEnabled(IDC_FIT_STATISTICS, false);
    ShowAndCancel(readOnly);
}

TEST_F(AdvancedTab, ZeroConcentrationIsForFunctionsThatReplaceIt) {
    ByHand(kSearchLM);
    DialogScript without;
    without.SelectTab(kAdvanced).ExpectEnabled(IDC_FIT_DIVISOR, false);
    ShowAndCancel(without);
    options.eFunctionType = 22;
    DialogScript with;
    with.SelectTab(kAdvanced)
        .ExpectEnabled(IDC_FIT_DIVISOR, true)
        .ExpectEnabled(IDC_FIT_DIVISOR_LABEL, true)
        .Type(IDC_FIT_DIVISOR, "25");
    ShowAndAccept(with);
    EXPECT_EQ(options.dSubstZeroLinearFactor, 25.0);
}

// --- The range of the fitted curve.

TEST_F(AdvancedTab, FileDataOfferTheCursorPair) {
    data.uExtrapolationCursor = 0;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectText(IDC_FIT_RANGE, "Extrapolate Fitted Curve")
        .ExpectVisible(IDC_FIT_CURSOR_PAIR_CHECK, true)
        .ExpectVisible(IDC_FIT_FROM, false)
        .ExpectVisible(IDC_FIT_TO_VALUE, false)
        .ExpectItems(IDC_FIT_CURSOR_PAIR, {"1..2", "3..4"})
        .ExpectSelected(IDC_FIT_CURSOR_PAIR, "1..2")
        .ExpectEnabled(IDC_FIT_CURSOR_PAIR, false)
        .Click(IDC_FIT_CURSOR_PAIR_CHECK)
        .ExpectEnabled(IDC_FIT_CURSOR_PAIR, true);
    ShowAndAccept(script);
    EXPECT_EQ(data.bExtrapolate, 1);
    EXPECT_EQ(data.uExtrapolationCursor, 1u);
}

TEST_F(AdvancedTab, ChosenCursorPairIsStored) {
    data.bExtrapolate = 1;
    DialogScript script;
    script.SelectTab(kAdvanced).Choose(IDC_FIT_CURSOR_PAIR, "3..4");
    ShowAndAccept(script);
    EXPECT_EQ(data.uExtrapolationCursor, 3u);
}

// A number that stands for neither pair is replaced only where the pair counts.
TEST_F(AdvancedTab, CursorPairIsStoredWhereTheCurveGoesBeyondTheCursorsOfAFile) {
    const struct {
        bool bFile, bDataPage, bExtrapolate;
        std::uint32_t uExpected;
    } rows[] = {{true, true, true, 1}, {true, true, false, 7}, {false, true, true, 7}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.bFile) + std::to_string(row.bExtrapolate));
        source.Kind(row.bFile ? 0 : 1);
        params.bUseDataOptions = row.bDataPage;
        data.bExtrapolate = row.bExtrapolate;
        data.uExtrapolationCursor = 7;
        DialogScript script;
        ShowAndAccept(script);
        EXPECT_EQ(data.uExtrapolationCursor, row.uExpected);
    }
}

TEST_F(AdvancedTab, OtherDataOfferLimits) {
    source.Kind(1);
    data.bUseFullDataRange = 1;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectText(IDC_FIT_RANGE, "Extrapolate Fitted Curve")
        .ExpectVisible(IDC_FIT_CURSOR_PAIR_CHECK, false)
        .ExpectVisible(IDC_FIT_FROM, true)
        .ExpectText(IDC_FIT_FROM_DATA, "(data: 0.5000)")
        .ExpectText(IDC_FIT_TO_DATA, "(data: 20.0000)")
        .ExpectEnabled(IDC_FIT_FROM_VALUE, false)
        .Click(IDC_FIT_FROM)
        .ExpectEnabled(IDC_FIT_FROM_VALUE, true)
        .ExpectEnabled(IDC_FIT_TO_VALUE, false)
        .Type(IDC_FIT_FROM_VALUE, "-3.5")
        .Click(IDC_FIT_TO)
        .Type(IDC_FIT_TO_VALUE, "44");
    ShowAndAccept(script);
    EXPECT_EQ(options.bExtrapolateLeft, 1);
    EXPECT_EQ(options.dLeftExtrapolationValue, -3.5);
    EXPECT_EQ(options.bExtrapolateRight, 1);
    EXPECT_EQ(options.dRightExtrapolationValue, 44.0);
}

TEST_F(AdvancedTab, SheetCallsItTheRangeOfTheCurve) {
    MakeSheet();
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectText(IDC_FIT_RANGE, "Fitted Curve Range")
        .ExpectVisible(IDC_FIT_FROM, true);
    ShowAndCancel(script);
}

TEST_F(AdvancedTab, FileDataWithoutADataPageOfferLimits) {
    params.bUseDataOptions = 0;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_CURSOR_PAIR_CHECK, false)
        .ExpectVisible(IDC_FIT_FROM, true);
    ShowAndCancel(script);
}

}  // namespace
