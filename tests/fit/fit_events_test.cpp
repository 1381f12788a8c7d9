// What each code that the pages broadcast leads to, and the flags of the open dialog event by
// event.

#include "FitDialogFixture.h"
#include "contract/NotificationCodes.h"

namespace {

using namespace fit_test;

class FitEvents : public FitDialogTest {
  protected:
    FitEvents() {
        library = StandInLibrary::kFile;
        ByHand(kSearchLM);
        FitFunctionProps& props = standIn.TellTraits();
        props.bZeroShiftAllowed = props.bAllowChebyFilter = 1;
        props.bCanForcePositive = props.bCanNormalizeProportions = 1;
        standIn.TellSeed(2.5);
        options.eFunctionGroupID = kAllFunctions;
        options.bAutoZeroShift = 0;
    }
    // A step of the script that compares the flags.
    std::function<void()> Flagged(const char* szFlags,
                                  std::source_location where = std::source_location::current()) {
        return [this, szFlags, where] { EXPECT_EQ(Flags(), szFlags) << "line " << where.line(); };
    }

    StandInLibrary standIn;
};

// --- Flags.

TEST_F(FitEvents, FlagsOfAnEstimate) {
    DialogScript good;
    good.Do(Flagged("VA"));
    ShowAndCancel(good);
    standIn->places[7] = {standIn->uCalls[7] + 1, kAlways};
    DialogScript bad;
    bad.Do(Flagged("S"));
    ShowAndCancel(bad);
}

TEST_F(FitEvents, FlagsOfStoredSeeds) {
    params.bFitKeepSeeds = 1;
    RememberedFit() = {true, true};
    for (double& d : options.dParameters) d = 3.5;
    DialogScript script;
    script.Do(Flagged("V"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfAChangedFunction) {
    DialogScript script;
    script.Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .Do(Flagged("SA"))
        .SelectTab(kSeeds)
        .Do(Flagged("VA"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfChangedTermsAndOfAComparison) {
    DialogScript script;
    script.Type(IDC_FIT_TERMS, "2")
        .Do(Flagged("A"))
        .SelectTab(kSeeds)
        .Do(Flagged("VA"))
        .SelectTab(kFunction)
        .Click(IDC_FIT_COMPARE)
        .Do(Flagged("A"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfAComparisonThatKeepsTheTerms) {
    DialogScript script;
    script.Click(IDC_FIT_COMPARE).Do(Flagged("VA"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfTheSmoothingFilter) {
    ByHand(kSearchChebyshev);
    DialogScript script;
    script.SelectTab(kAdvanced).Do(Flagged("VA")).Click(IDC_FIT_SMOOTHING).Do(Flagged("A"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfTheFunctionsOwnNumbers) {
    standIn->props.bUsesPowerA = standIn->props.bUsesTemperature = standIn->props.bUsesValence = 1;
    options.eFunctionType = 30;
    const std::pair<int, const char*> rows[] = {
        {IDC_FIT_POWER_A, "2"}, {IDC_FIT_TEMPERATURE, "31"}, {IDC_FIT_VALENCE, "-3"}};
    for (const auto& [nId, szText] : rows) {
        SCOPED_TRACE(nId);
        DialogScript script;
        script.Type(nId, szText).Do(Flagged("V"));
        ShowAndCancel(script);
    }
}

TEST_F(FitEvents, FlagsOfZeroShift) {
    DialogScript script;
    script
        .SelectTab(kAdvanced)
        // What is in effect stays as it is.
        .Click(IDC_FIT_ZERO_SHIFT_AUTO)
        .Click(IDC_FIT_ZERO_SHIFT_AUTO)
        .Do(Flagged("VA"))
        .Click(IDC_FIT_ZERO_SHIFT)
        .Do(Flagged("V"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfOtherData) {
    DialogScript script;
    script.SelectTab(kData)
        .Choose(IDC_REGION, "Cursors 1..2")
        .Do(Flagged("VSA"))
        .SelectTab(kSeeds)
        .Do(Flagged("VA"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, ALookAtTheDataPageKeepsSeedsAndWhatIsFixed) {
    for (const std::uint32_t uKind : {0u, 1u, 2u}) {
        SCOPED_TRACE(uKind);
        source.Kind(uKind);
        if (uKind == 2) MakeSheet();
        DialogScript script;
        script.SelectTab(kSeeds)
            .Click(IDC_FIT_FIX_FIRST + 1)
            .SelectTab(kData)
            .Do(Flagged("VA"))
            .SelectTab(kSeeds)
            .ExpectChecked(IDC_FIT_FIX_FIRST + 1, BST_CHECKED);
        ShowAndCancel(script);
    }
}

TEST_F(FitEvents, FlagsOfOtherDataUnderSeedsOfTheUser) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "4")
        .Do(Flagged("V"))
        .SelectTab(kData)
        .Choose(IDC_REGION, "Cursors 1..2")
        .Do(Flagged("V"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfTypedSeeds) {
    ByHand(kSearchVM);
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "4")
        .Do(Flagged("V"))
        .SelectTab(kFunction)
        .Do(Flagged("V"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfNormalizedProportions) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .Click(IDC_FIT_NORMALIZED)
        .Do(Flagged("VAN"))
        .Click(IDC_FIT_ABSOLUTE)
        .Do(Flagged("VA"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfACustomText) {
    options.eFunctionType = kCustomFitFunction;
    std::strcpy(options.szEquation, "y1=p1*x1");
    DialogScript script;
    script.Do(Flagged("SCT"))
        .Type(IDC_FIT_EQUATION, "p1*x1+p2")
        .Do(Flagged("ST"))
        .SelectTab(kAdvanced)
        .Do(Flagged("SCT"))
        .SelectTab(kFunction)
        .Type(IDC_FIT_EQUATION, "")
        .Do(Flagged("S"));
    ShowAndCancel(script);
}

TEST_F(FitEvents, FlagsOfTheQuestionAtOk) {
    standIn->places[7] = {1, kAlways};
    DialogScript no;
    no.Click(IDOK).Answer(kNoButton).Do(Flagged("V"));
    ShowAndCancel(no);
    DialogScript yes;
    // The page of the seeds has used up the refusal of a second attempt.
    yes.Click(IDOK).Answer(kYesButton).Answer(kOkButton).Do(Flagged(""));
    ShowAndCancel(yes);
}

// --- Codes.

TEST_F(FitEvents, ACodeMayComeTwice) {
    DialogScript script;
    script.Do([this] {
        const std::string before = Flags();
        const std::uint32_t uObjects = standIn->uObjects;
        for (const NotificationCode eCode :
             {kNotifyFitMethodChanged, kNotifyFitCompareChanged, kNotifyFitSeedsChanged,
              kNotifyFitZeroShiftChanged, kNotifyFitForcePositiveChanged, kNotifyFitRefitChanged,
              kNotifyFitMethodsLeft, kNotifyFitAutomaticChanged}) {
            dialog->Fit().Notify(eCode);
            dialog->Fit().Notify(eCode);
        }
        EXPECT_EQ(Flags(), before);
        // Nothing changed, so that the library has not been asked.
        EXPECT_EQ(standIn->uObjects, uObjects);
    });
    ShowAndCancel(script);
}

TEST_F(FitEvents, AChangedFunctionMakesSeedsStaleAndDropsThoseThatAreKept) {
    params.bFitKeepSeeds = 1;
    DialogScript script;
    script.Do([this] { EXPECT_EQ(dialog->Seeds().dSeeds[0], 2.5); })
        .Choose(IDC_FIT_FUNCTIONS, "Gaussian")
        .Do([this] {
            EXPECT_TRUE(dialog->Fit().bSeedsStale);
            EXPECT_EQ(dialog->Seeds().dSeeds[0], 0.0);
        });
    ShowAndCancel(script);
    params.bFitKeepSeeds = 0;
    DialogScript kept;
    kept.Choose(IDC_FIT_FUNCTIONS, "Binomial").Do([this] {
        EXPECT_EQ(dialog->Seeds().dSeeds[0], 2.5);
    });
    ShowAndCancel(kept);
}

TEST_F(FitEvents, TheDataPageComesUpBehindTheEventThatWantsIt) {
    DialogScript script;
    script.Do([this] { dialog->Fit().Notify(kNotifyFitShowDataPage); })
        .ExpectVisible(IDC_SET_LIST, true);
    ShowAndCancel(script);
}

TEST_F(FitEvents, SwitchingAutomaticOnChoosesTheMethods) {
    ByHand(kSearchSimplex);
    options.eFunctionType = 18;
    DialogScript script;
    script.SelectTab(kAdvanced)
        .Click(IDC_FIT_AUTOMATIC)
        .ExpectChecked(IDC_FIT_LM, BST_CHECKED)
        .ExpectEnabled(IDC_FIT_SIMPLEX, false);
    ShowAndCancel(script);
    EXPECT_EQ(options.eSearchMethod, kSearchLM);
}

TEST_F(FitEvents, OtherDataChooseTheMethodsAnew) {
    options.bAutoDefaultOptions = 1;
    DialogScript script;
    script
        .Do([this] {
            EXPECT_EQ(options.eSearchMethod, kSearchLM);
            // As in another region.
            for (double& x : source.x) x -= 0.5;
        })
        .SelectTab(kData)
        .Choose(IDC_REGION, "Cursors 1..2")
        .Do([this] { EXPECT_EQ(options.eSearchMethod, kSearchChebyshev); });
    ShowAndCancel(script);
}

TEST_F(FitEvents, ReadOnlyHearsNothing) {
    params.bReadOnly = 1;
    DialogScript script;
    script.Do([this] {
        options.eFunctionType = 18;
        const std::uint32_t uObjects = standIn->uObjects;
        dialog->Fit().Notify(kNotifyFitFunctionChanged);
        EXPECT_EQ(standIn->uObjects, uObjects);
        EXPECT_FALSE(dialog->Fit().bSeedsStale);
    });
    ShowAndCancel(script);
}

}  // namespace
