// The page of the seeds.

#include <limits>

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

constexpr int SeedId(int nTerm, int nColumn) {
    return IDC_FIT_SEED_FIRST + nTerm * 4 + nColumn;
}
constexpr int FixId(int nTerm, int nColumn) {
    return IDC_FIT_FIX_FIRST + nTerm * 4 + nColumn;
}
constexpr int kOffset = IDC_FIT_SEED_FIRST + 24;
constexpr int kSlope = IDC_FIT_SEED_FIRST + 25;

// Over the stand-in, which answers with traits, names and seeds that a test chooses.
class SeedTab : public FitDialogTest {
  protected:
    SeedTab() {
        library = StandInLibrary::kFile;
        ByHand(kSearchLM);
        FitFunctionProps& props = standIn.TellTraits();
        props.bCanForcePositive = 1;
        props.bCanNormalizeProportions = 1;
        options.uDlgFitOrder = 2;
        // A1, A2, tau1, tau2, C.
        standIn.TellSeeds({3.0, 5.0, 0.25, 0.5, 9.0});
    }
    FitFunctionProps& Props() { return standIn->props; }

    StandInLibrary standIn;
};

TEST_F(SeedTab, EstimatedSeedsStandInTheirPlaces) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_NOTE, "Enter seed values or press Auto-Estimate.")
        .ExpectText(SeedId(0, 0), "3")
        .ExpectText(SeedId(0, 1), "0.25")
        .ExpectText(SeedId(1, 0), "5")
        .ExpectText(SeedId(1, 1), "0.5")
        .ExpectText(kOffset, "9")
        .ExpectText(IDC_FIT_ROW_FIRST, "Term 1")
        .ExpectText(IDC_FIT_ROW_FIRST + 1, "Term 2")
        .ExpectVisible(IDC_FIT_ROW_FIRST + 2, false)
        .ExpectVisible(SeedId(0, 2), false)
        .ExpectVisible(SeedId(2, 0), false)
        .ExpectVisible(FixId(2, 0), false)
        .ExpectVisible(kSlope, false)
        .ExpectVisible(IDC_FIT_SLOPE_LABEL, false);
    ShowAndAccept(script);
    const double record[] = {3, 0.25, 0, 0, 5, 0.5, 0, 0};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(options.dParameters[i], record[i]) << i;
    EXPECT_EQ(options.dParameters[24], 9.0);
    EXPECT_EQ(options.dParameters[25], 0.0);
}

TEST_F(SeedTab, ASlopeStandsUnderItsNameBesideTheOffset) {
    Props().bHasSlope = 1;
    std::strcpy(standIn->szTexts[48], "slope");
    standIn.TellSeeds({3.0, 5.0, 0.25, 0.5, 9.0, 1.75});
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectVisible(IDC_FIT_SLOPE_LABEL, true)
        .ExpectText(IDC_FIT_SLOPE_LABEL, "slope")
        .ExpectText(kSlope, "1.75");
    ShowAndCancel(script);
}

TEST_F(SeedTab, SeedsThatTheHostKeepsAreEstimatedAnewForFilesWithSweepsAlone) {
    params.bFitKeepSeeds = 1;
    for (const std::uint32_t uKind : {0u, 1u}) {
        SCOPED_TRACE(uKind);
        source.Kind(uKind);
        DialogScript script;
        script.SelectTab(kSeeds)
            .Type(SeedId(0, 0), "4")
            .ExpectEnabled(IDC_FIT_ESTIMATE, uKind == 0);
        ShowAndCancel(script);
    }
}

TEST_F(SeedTab, SixTermsFillTheGrid) {
    options.uDlgFitOrder = 6;
    Props().uParamsPerTerm = 4;
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectVisible(SeedId(5, 3), true)
        .ExpectText(IDC_FIT_ROW_FIRST + 5, "Term 6");
    ShowAndCancel(script);
}

TEST_F(SeedTab, FixedParametersReachTheRecordByPlace) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectEnabled(IDC_FIT_FREE_ALL, false)
        .Click(FixId(1, 0))
        .Click(IDC_FIT_FIX_FIRST + 24)
        .ExpectEnabled(IDC_FIT_FREE_ALL, true);
    ShowAndAccept(script);
    for (int i = 0; i < 26; ++i) {
        EXPECT_EQ(options.uConstraints[i], i == 4 || i == 24 ? 1u : 0u) << i;
        EXPECT_EQ(options.uDlgConstraints[i], options.uConstraints[i]) << i;
    }
}

TEST_F(SeedTab, FreeAllClearsEveryCheck) {
    options.uDlgConstraints[0] = options.uDlgConstraints[24] = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectChecked(FixId(0, 0), BST_CHECKED)
        .Click(IDC_FIT_FREE_ALL)
        .ExpectChecked(FixId(0, 0), BST_UNCHECKED)
        .ExpectChecked(IDC_FIT_FIX_FIRST + 24, BST_UNCHECKED)
        .ExpectEnabled(IDC_FIT_FREE_ALL, false);
    ShowAndCancel(script);
}

TEST_F(SeedTab, ATypedSeedOpensTheEstimateAndTheEstimateClosesIt) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectEnabled(IDC_FIT_ESTIMATE, false)
        .Type(SeedId(0, 0), "7.5")
        .ExpectEnabled(IDC_FIT_ESTIMATE, true)
        .Click(IDC_FIT_ESTIMATE)
        .ExpectText(SeedId(0, 0), "3")
        .ExpectEnabled(IDC_FIT_ESTIMATE, false)
        .ExpectEnabled(IDC_FIT_GRAPHICAL, false);
    ShowAndCancel(script);
}

constexpr char kEstimateFailed[] =
    "The seed values could not be estimated from the data.\nEnter the seed values.";

TEST_F(SeedTab, AFailedEstimateIsToldAndCanBeTriedAgain) {
    standIn->places[7] = {1, kAlways};
    DialogScript script;
    script.SelectTab(kSeeds)
        .Answer(kOkButton, kEstimateFailed)
        .ExpectText(SeedId(0, 0), "0")
        .ExpectEnabled(IDC_FIT_ESTIMATE, true)
        .Click(IDC_FIT_ESTIMATE)
        .Answer(kOkButton, kEstimateFailed);
    ShowAndCancel(script);
}

TEST_F(SeedTab, AnEstimateThatKeepsSeedsIsSilent) {
    params.bFitKeepSeeds = 1;
    standIn->places[7] = {1, kAlways};
    DialogScript script;
    script.SelectTab(kSeeds).ExpectText(SeedId(0, 0), "0");
    ShowAndCancel(script);
}

TEST_F(SeedTab, TooFewPointsAreToldWhenThePageIsShown) {
    source.x.resize(4);
    source.y.resize(4);
    DialogScript script;
    script.SelectTab(kSeeds).Answer(
        kOkButton,
        "The seed values cannot be estimated. The number of data points (4) must not be smaller "
        "than the number of parameters (5).");
    ShowAndCancel(script);
}

TEST_F(SeedTab, StaleSeedsAreEstimatedOnce) {
    DialogScript script;
    script.Do([this] { EXPECT_EQ(standIn->uCalls[7], 1u); })
        .Choose(IDC_FIT_GROUP, "All")
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .SelectTab(kSeeds)
        .Do([this] { EXPECT_EQ(standIn->uCalls[7], 2u); })
        .SelectTab(kFunction)
        .SelectTab(kSeeds)
        .Do([this] { EXPECT_EQ(standIn->uCalls[7], 2u); });
    ShowAndCancel(script);
}

TEST_F(SeedTab, OtherTermsAreEstimatedWhenThePageIsShown) {
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "1").SelectTab(kSeeds).Do([this] {
        EXPECT_EQ(standIn->uCalls[7], 2u);
    });
    ShowAndCancel(script);
}

// --- Who need not enter seeds.

TEST_F(SeedTab, NoticesStandInPlaceOfTheGrid) {
    struct Row {
        std::int32_t eFunction;
        std::int32_t eSearch;
        std::int32_t FitFunctionProps::*pTrait;
        const char* szNotice;
    };
    const Row rows[] = {
        {35, kSearchLM, &FitFunctionProps::bStraightLine,
         "Seed entry is not required for straight line fitting."},
        {34, kSearchLM, &FitFunctionProps::bPolynomial,
         "Seed entry is not required for polynomial fitting."},
        {3, kSearchChebyshev, nullptr,
         "Seed entry is not required for Chebyshev fitting of a shifted Boltzmann."},
        {11, kSearchChebyshev, nullptr,
         "Seed entry is not required for Chebyshev fitting of a power exponential."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.szNotice);
        options.eFunctionType = row.eFunction;
        ByHand(row.eSearch);
        if (row.pTrait != nullptr) Props().*row.pTrait = 1;
        DialogScript script;
        script.SelectTab(kSeeds)
            .ExpectVisible(IDC_FIT_NO_SEEDS_NOTE, true)
            .ExpectText(IDC_FIT_NO_SEEDS_NOTE, row.szNotice)
            .ExpectVisible(IDC_FIT_SEED_NOTE, false)
            .ExpectVisible(SeedId(0, 0), false)
            .ExpectVisible(kOffset, false)
            .ExpectVisible(IDC_FIT_COLUMN_FIRST, false)
            .ExpectVisible(IDC_FIT_ROW_FIRST, false)
            .ExpectEnabled(IDC_FIT_ESTIMATE, false);
        ShowAndCancel(script);
        if (row.pTrait != nullptr) Props().*row.pTrait = 0;
    }
}

TEST_F(SeedTab, NotesNameWhatIsToBeEntered) {
    ByHand(kSearchChebyshev);
    options.eFunctionType = 14;
    DialogScript sloping;
    sloping.SelectTab(kSeeds).ExpectText(
        IDC_FIT_SEED_NOTE,
        "Chebyshev fitting of a sloping baseline needs no seed values. Enter fixed parameters "
        "only.");
    ShowAndCancel(sloping);
    options.eFunctionType = 15;
    DialogScript standard;
    standard.SelectTab(kSeeds).ExpectText(
        IDC_FIT_SEED_NOTE,
        "Chebyshev fitting of a standard exponential needs no seed values. Enter fixed parameters "
        "only.");
    ShowAndCancel(standard);
    ByHand(kSearchLM);
    options.bCompareModels = 1;
    DialogScript comparing;
    comparing.SelectTab(kSeeds).ExpectText(
        IDC_FIT_SEED_NOTE, "Models are compared. Seed values are estimated for each model.");
    ShowAndCancel(comparing);
}

TEST_F(SeedTab, UnderChebyshevOnlyWhatIsFixedIsOpen) {
    ByHand(kSearchChebyshev);
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectEnabled(SeedId(0, 0), false)
        .ExpectEnabled(FixId(0, 0), true)
        .Click(FixId(0, 0))
        .ExpectEnabled(SeedId(0, 0), true)
        .ExpectEnabled(SeedId(0, 1), false)
        .ExpectEnabled(kOffset, false)
        .Click(IDC_FIT_FREE_ALL)
        .ExpectEnabled(SeedId(0, 0), false);
    ShowAndCancel(script);
}

// --- Forced positive.

TEST_F(SeedTab, ForceLineTellsWhatAppliesFirst) {
    const auto expect = [this](const char* szText) {
        SCOPED_TRACE(szText);
        DialogScript script;
        script.SelectTab(kSeeds).ExpectText(IDC_FIT_FORCE_NOTE, szText);
        ShowAndCancel(script);
    };
    expect("");
    options.bForcePropsPositive = 1;
    expect("Proportions are forced positive.");
    options.bForceTausPositive = 1;
    expect("Proportions and time constants are forced positive.");
    options.bForcePropsPositive = 0;
    expect("Time constants are forced positive.");
    Props().bOnlyProportionsForced = 1;
    expect("Only the proportions can be forced positive.");
    Props().bCanForcePositive = 0;
    expect("The parameters of this function cannot be forced positive.");
    options.eFunctionType = 10;
    ByHand(kSearchVM);
    options.eMinimMethod = kMinimML;
    expect("Parameters cannot be forced positive under maximum likelihood.");
    options.eFunctionType = 15;
    ByHand(kSearchChebyshev);
    expect("The Chebyshev method does not force parameters positive.");
    Props().bStraightLine = 1;
    expect("Parameters cannot be forced positive in a regression.");
    Props().bAlwaysPositive = 1;
    expect("All parameters except the offset are forced positive.");
    Props().bHasOffset = 0;
    expect("All parameters are forced positive.");
}

TEST_F(SeedTab, ForceChecksAreOpenWhereTheFunctionAllowsThem) {
    DialogScript both;
    both.SelectTab(kSeeds)
        .ExpectEnabled(IDC_FIT_FORCE_PROPORTIONS, true)
        .ExpectEnabled(IDC_FIT_FORCE_TIME_CONSTANTS, true);
    ShowAndCancel(both);
    Props().bOnlyProportionsForced = 1;
    DialogScript one;
    one.SelectTab(kSeeds)
        .ExpectEnabled(IDC_FIT_FORCE_PROPORTIONS, true)
        .ExpectEnabled(IDC_FIT_FORCE_TIME_CONSTANTS, false);
    ShowAndCancel(one);
    Props().bAlwaysPositive = 1;
    DialogScript none;
    none.SelectTab(kSeeds).ExpectEnabled(IDC_FIT_FORCE_PROPORTIONS, false);
    ShowAndCancel(none);
}

TEST_F(SeedTab, EachForceCheckMendsItsOwnKind) {
    standIn.TellSeeds({3.0, -5.0, -0.25, 0.5, -9.0});
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectText(SeedId(1, 0), "-5")
        .Click(IDC_FIT_FORCE_PROPORTIONS)
        .ExpectText(SeedId(1, 0), "5")
        .ExpectText(SeedId(0, 1), "-0.25")
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (force +ve)")
        .Click(IDC_FIT_FORCE_TIME_CONSTANTS)
        .ExpectText(SeedId(0, 1), "0.25")
        .ExpectText(kOffset, "-9");
    ShowAndCancel(script);
}

TEST_F(SeedTab, ANegativeFractionBecomesAThousandthOfItsSize) {
    Props().bFractionalProportions = 1;
    options.bForcePropsPositive = options.bForceTausPositive = 1;
    standIn.TellSeeds({3.0, -5.0, -0.25, 0.5, 9.0});
    DialogScript script;
    script.SelectTab(kSeeds).ExpectText(SeedId(1, 0), "0.005").ExpectText(SeedId(0, 1), "0.25");
    ShowAndCancel(script);
}

TEST_F(SeedTab, ForcingMovesTheStandardExponentialOffChebyshev) {
    options.bAutoDefaultOptions = 1;
    options.bAutoZeroShift = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchChebyshev); })
        .ExpectEnabled(IDC_FIT_FORCE_PROPORTIONS, true)
        .Click(IDC_FIT_FORCE_PROPORTIONS)
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchLM); })
        .ExpectText(IDC_FIT_FORCE_NOTE, "Proportions are forced positive.");
    ShowAndCancel(script);
}

constexpr char kProportionsMended[] =
    "The negative proportions were made positive.\nProportions are no longer forced positive.";
constexpr char kTimeConstantsMended[] =
    "The negative time constants were made positive.\nTime constants are no longer forced "
    "positive.";

TEST_F(SeedTab, TypedNegativesAreMendedWhenThePageIsLeft) {
    options.bForcePropsPositive = options.bForceTausPositive = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(SeedId(0, 0), "-7")
        .Type(SeedId(1, 1), "-0.75")
        .SelectTab(kFunction)
        .Answer(kOkButton, kProportionsMended)
        .Answer(kOkButton, kTimeConstantsMended)
        .ExpectText(IDC_FIT_NAME, " Exponential, standard")
        .SelectTab(kSeeds)
        .ExpectText(SeedId(0, 0), "7")
        .ExpectText(SeedId(1, 1), "0.75")
        .ExpectChecked(IDC_FIT_FORCE_PROPORTIONS, BST_UNCHECKED)
        .ExpectChecked(IDC_FIT_FORCE_TIME_CONSTANTS, BST_UNCHECKED);
    ShowAndCancel(script);
}

TEST_F(SeedTab, TypedNegativesAreMendedAtOkAndOkGoesOn) {
    options.bForcePropsPositive = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(SeedId(0, 0), "-5")
        .Click(IDOK)
        .Answer(kOkButton, kProportionsMended);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.dParameters[0], 5.0);
    EXPECT_EQ(script.Messages().size(), 1u);
}

TEST_F(SeedTab, TypedNegativesOfAFunctionThatIsAlwaysPositiveAreTold) {
    Props().bAlwaysPositive = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(SeedId(0, 1), "-2")
        .SelectTab(kFunction)
        .Answer(kOkButton,
                "All parameters of the selected function must be positive.\nThe negative seed "
                "values were made positive.")
        .SelectTab(kSeeds)
        .ExpectText(SeedId(0, 1), "2");
    ShowAndCancel(script);
}

TEST_F(SeedTab, TypedNegativesUnderLikelihoodAreTold) {
    options.eFunctionType = 10;
    ByHand(kSearchVM);
    options.eMinimMethod = kMinimML;
    options.bForcePropsPositive = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(SeedId(0, 0), "-2")
        .SelectTab(kFunction)
        .Answer(kOkButton,
                "Maximum likelihood requires positive parameters.\nThe negative seed values were "
                "made positive.");
    ShowAndCancel(script);
    EXPECT_EQ(options.bForcePropsPositive, 1);
}

TEST_F(SeedTab, WeightedExponentialsAreNotMendedAfterEdits) {
    for (const std::int32_t eFunction : {16, 17}) {
        SCOPED_TRACE(eFunction);
        options.eFunctionType = eFunction;
        ByHand(kSearchVM);
        options.bForcePropsPositive = options.bForceTausPositive = 1;
        DialogScript script;
        script.SelectTab(kSeeds)
            .Type(SeedId(0, 1), "-2")
            .SelectTab(kFunction)
            .SelectTab(kSeeds)
            .ExpectText(SeedId(0, 1), "-2");
        ShowAndCancel(script);
    }
}

TEST_F(SeedTab, AZeroSeedEndsTheMendingOfWhatWasTyped) {
    options.bForcePropsPositive = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(SeedId(0, 0), "-7")
        .Type(SeedId(1, 1), "0")
        .SelectTab(kFunction)
        .SelectTab(kSeeds)
        .ExpectText(SeedId(0, 0), "-7");
    ShowAndCancel(script);
}

// --- Proportions.

TEST_F(SeedTab, NormalizedProportionsAreDividedByTheirSumAndRestoredByIt) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectChecked(IDC_FIT_ABSOLUTE, BST_CHECKED)
        .Click(IDC_FIT_NORMALIZED)
        .ExpectText(SeedId(0, 0), "0.375")
        .ExpectText(SeedId(1, 0), "0.625")
        .ExpectText(SeedId(0, 1), "0.25")
        .Click(IDC_FIT_ABSOLUTE)
        .ExpectText(SeedId(0, 0), "3")
        .ExpectText(SeedId(1, 0), "5");
    ShowAndCancel(script);
}

TEST_F(SeedTab, NegativeProportionsCountByTheirSize) {
    standIn.TellSeeds({0.5, -0.3, 0.25, 0.5, 9.0});
    DialogScript script;
    script.SelectTab(kSeeds)
        .Click(IDC_FIT_NORMALIZED)
        .ExpectText(SeedId(0, 0), "0.625")
        .ExpectText(SeedId(1, 0), "-0.375");
    ShowAndCancel(script);
}

TEST_F(SeedTab, ProportionsThatCannotBeNormalizedHaveTheirRadiosClosed) {
    Props().bCanNormalizeProportions = 0;
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectEnabled(IDC_FIT_NORMALIZED, false)
        .ExpectEnabled(IDC_FIT_ABSOLUTE, false);
    ShowAndCancel(script);
}

TEST_F(SeedTab, NormalizedProportionsReachTheRecordAbsolute) {
    DialogScript script;
    script.SelectTab(kSeeds).Click(IDC_FIT_NORMALIZED);
    ShowAndAccept(script);
    EXPECT_DOUBLE_EQ(options.dParameters[0], 3.0);
    EXPECT_DOUBLE_EQ(options.dParameters[4], 5.0);
}

TEST_F(SeedTab, ProportionsThatMustSumToOneDoSoInTheRecord) {
    Props().bFractionalProportions = Props().bProportionsSumToOne = 1;
    standIn.TellSeeds({2.0, 6.0, 0.25, 0.5, 9.0});
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_DOUBLE_EQ(options.dParameters[0], 0.25);
    EXPECT_DOUBLE_EQ(options.dParameters[4], 0.75);
}

TEST_F(SeedTab, StaleSeedsStartNormalizedWhereTheFunctionSaysSo) {
    Props().bNormalizeWhenForced = 1;
    options.bForcePropsPositive = 1;
    DialogScript script;
    script.Choose(IDC_FIT_GROUP, "All")
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .SelectTab(kSeeds)
        .ExpectChecked(IDC_FIT_NORMALIZED, BST_CHECKED)
        .ExpectText(SeedId(0, 0), "0.375");
    ShowAndCancel(script);
}

// --- Several fits.

TEST_F(SeedTab, MultipleFitSeedingIsForSeveralDataSets) {
    const auto expect = [this](bool bEnabled) {
        DialogScript script;
        script.SelectTab(kSeeds)
            .ExpectEnabled(IDC_FIT_MULTIPLE_GROUP, bEnabled)
            .ExpectEnabled(IDC_FIT_SEED_EACH_FIT, bEnabled)
            .ExpectEnabled(IDC_FIT_SEED_LAST_FIT, bEnabled);
        ShowAndCancel(script);
    };
    expect(true);
    std::strcpy(data.szUnitarySelectionList1, "2");
    expect(false);
    data.eDataSet1SelectionMode = CDataOptionsInterface::kAllSets;
    expect(true);
    data.eDataSet1SelectionMode = CDataOptionsInterface::kActiveSet;
    expect(false);
    data.eDataGroup1SelectionMode = CDataOptionsInterface::kAllGroups;
    expect(true);
    options.bCompareModels = 1;
    expect(false);
    options.bCompareModels = 0;
    params.bUseDataOptions = 0;
    expect(true);
}

TEST_F(SeedTab, MultipleFitSeedingOfASheetCountsItsColumns) {
    MakeSheet();
    DialogScript one;
    one.SelectTab(kSeeds).ExpectEnabled(IDC_FIT_SEED_EACH_FIT, false);
    ShowAndCancel(one);
    std::strcpy(data.szDepVarSelectionList, "1..2");
    DialogScript two;
    two.SelectTab(kSeeds).ExpectEnabled(IDC_FIT_SEED_EACH_FIT, true);
    ShowAndCancel(two);
}

TEST_F(SeedTab, SeedingOfSeveralFitsIsStored) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectChecked(IDC_FIT_SEED_EACH_FIT, BST_CHECKED)
        .Click(IDC_FIT_SEED_LAST_FIT);
    ShowAndAccept(script);
    EXPECT_EQ(options.bForceAutoSeed, 0);
}

// --- The name line.

TEST_F(SeedTab, NameTellsOfFixedParametersThatAreFreedAgain) {
    options.bFreeAndRefit = 1;
    options.uDlgFitOrder = 1;
    DialogScript script;
    script.SelectTab(kSeeds)
        .ExpectText(IDC_FIT_NAME, " Exponential, standard")
        .Click(FixId(0, 1))
        .ExpectText(IDC_FIT_NAME, " Exponential, standard (auto-free fixed)")
        .SelectTab(kAdvanced)
        .Click(IDC_FIT_FREE_AND_REFIT)
        .ExpectText(IDC_FIT_NAME, " Exponential, standard");
    ShowAndCancel(script);
}

}  // namespace
