// Graphical seeding: what stands in its way, what it edits, what it hands back, and what the graph
// is asked for.

#include "FitDialogFixture.h"
#include "contract/FitGraphView.h"
#include "fit/CZxFitGWDataSource.h"
#include "fixtures/ScratchStore.h"
#include "graph_standin/GraphLog.h"
#include "store/ProfileStore.h"

namespace {

using namespace fit_test;
using Strings = std::vector<std::string>;

constexpr int kTermField = IDC_GRAPH_TERM, kTermSpin = IDC_GRAPH_TERM_SPIN;
constexpr int Field(int nColumn) {
    return IDC_GRAPH_SEED_FIRST + nColumn;
}
constexpr int Label(int nColumn) {
    return IDC_GRAPH_LABEL_FIRST + nColumn;
}
constexpr int TermCheck(int nTerm) {
    return IDC_GRAPH_SHOW_TERM_FIRST + nTerm;
}

class GraphicalSeeding : public FitDialogTest {
  protected:
    GraphicalSeeding() : m_bOld(SetUseProfileFile(true)) {
        ByHand(kSearchLM);
        options.uDlgFitOrder = 2;
        library = StandInLibrary::kFile;
        standIn.TellTraits();
        std::strcpy(standIn->props.szVariableNames[0], "Time");
        // A1, A2, tau1, tau2, C.
        standIn.TellSeeds({3.0, 5.0, 0.25, -0.5, 9.0});
        hStandInGraph = LoadLibraryA(kStandIn);
        using Give = GraphLog* (*)();
        pLog = reinterpret_cast<Give>(
            reinterpret_cast<void*>(GetProcAddress(hStandInGraph, GRAPH_LOG)))();
        *pLog = {};
        source.Profile(store.ProfileFile());
    }
    ~GraphicalSeeding() override {
        FreeLibrary(hStandInGraph);
        SetUseProfileFile(m_bOld);
    }

    static constexpr const char* kStandIn = "GRAPH_STANDIN.dll";

    int Show(DialogScript& script) {
        dialog = std::make_unique<CFitDialog>(nullptr, &options, &data, &source, &params, library,
                                              graphLibrary);
        return script.Run([&] { return static_cast<int>(dialog->DoModal()); });
    }
    // Opens the graph from the page of the seeds.
    static DialogScript& Open(DialogScript& script) {
        return script.SelectTab(kSeeds).Click(IDC_FIT_GRAPHICAL).EnterDialog();
    }
    // Fields that were filled draw once more when they have rested; goes on when nothing has been
    // called for twice as long.
    DialogScript& Settle(DialogScript& script) {
        const auto seen = std::make_shared<std::pair<int, DWORD>>(-1, 0);
        return script.WaitUntil([this, seen] {
            if (seen->first != pLog->nCalls) *seen = {pLog->nCalls, GetTickCount()};
            return GetTickCount() - seen->second >= 2200;
        });
    }
    void CloseBoth(DialogScript& script) {
        script.Click(IDCANCEL).Click(IDCANCEL);
        EXPECT_EQ(Show(script), IDCANCEL);
    }
    Strings Calls() const { return {pLog->aszCalls, pLog->aszCalls + pLog->nCalls}; }
    // The calls since the last look.
    Strings NewCalls() {
        Strings calls = Calls();
        pLog->nCalls = 0;
        return calls;
    }

    test_support::ScratchStore store;
    bool m_bOld;
    StandInLibrary standIn;
    HMODULE hStandInGraph;
    GraphLog* pLog;
    const char* graphLibrary = kStandIn;
};

// --- What stands in its way

struct Obstacle {
    const char* szName;
    std::int32_t eFunction;
    std::int32_t eMethod;
    std::uint32_t bFixed;
    const char* szText;  // null: the graph opens
};

class GraphObstacle : public FitDialogTest, public testing::WithParamInterface<Obstacle> {};

TEST_P(GraphObstacle, IsToldInTheOrderOfItsChecks) {
    const Obstacle& row = GetParam();
    options.eFunctionType = row.eFunction;
    ByHand(row.eMethod);
    options.uDlgConstraints[0] = row.bFixed;
    options.dParameters[0] = 1.0;
    DialogScript script;
    script.SelectTab(kSeeds).ExpectEnabled(IDC_FIT_GRAPHICAL, true).Click(IDC_FIT_GRAPHICAL);
    if (row.szText != nullptr) {
        script.Answer(IDOK, row.szText);
    } else {
        script.EnterDialog().ExpectTitle("Graphical Seeding").Click(IDCANCEL);
    }
    ShowAndCancel(script);
}

const Obstacle kObstacles[] = {
    {"ShiftedBoltzmannUnderChebyshev", 3, kSearchChebyshev, 0,
     "Graphical seeding is not required for Chebyshev fitting of a shifted Boltzmann."},
    {"PowerExponentialUnderChebyshev", 11, kSearchChebyshev, 0,
     "Graphical seeding is not required for Chebyshev fitting of a power exponential."},
    {"SlopingBaselineUnderChebyshev", 14, kSearchChebyshev, 0,
     "Graphical seeding of a sloping baseline under Chebyshev requires a fixed parameter."},
    {"StandardExponentialUnderChebyshev", 15, kSearchChebyshev, 0,
     "Graphical seeding of a standard exponential under Chebyshev requires a fixed parameter."},
    {"StandardExponentialWithSomethingFixed", 15, kSearchChebyshev, 1, nullptr},
    {"Polynomial", 34, kSearchChebyshev, 0,
     "Graphical seeding is not required for polynomial fitting."},
    {"StraightLine", 35, kSearchChebyshev, 0,
     "Graphical seeding is not required for straight line fitting."},
    {"StandardExponential", 15, kSearchLM, 0, nullptr},
};
INSTANTIATE_TEST_SUITE_P(Rows, GraphObstacle, testing::ValuesIn(kObstacles),
                         [](const auto& row) { return std::string(row.param.szName); });

TEST_F(GraphicalSeeding, ZeroSeedsAndAMissingEquationAreTold) {
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "0")
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK,
                "All seed values must be entered before graphical seeding. Zero is not allowed.")
        .SelectTab(kFunction)
        .Click(IDC_FIT_CUSTOM)
        .SelectTab(kSeeds)
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK, "The custom function must be defined before graphical seeding.");
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
    EXPECT_TRUE(Calls().empty());
}

TEST_F(GraphicalSeeding, AMissingLibraryIsToldAndNothingElseIsLost) {
    graphLibrary = "GRAPH_MISSING.dll";
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "7.25")
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK, "The graph library could not be loaded.")
        .ExpectText(IDC_FIT_SEED_FIRST, "7.25");
    script.Click(IDOK);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.dParameters[0], 7.25);
}

TEST_F(GraphicalSeeding, ALibraryThatLacksANumberIsAMissingOne) {
    graphLibrary = StandInLibrary::kFileWithoutExport;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK, "The graph library could not be loaded.");
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_F(GraphicalSeeding, IsGreyedInReadOnlyAndInDeferredMode) {
    for (const bool bReadOnly : {true, false}) {
        params.bReadOnly = bReadOnly;
        params.bDeferredRun = !bReadOnly;
        DialogScript script;
        script.SelectTab(kSeeds).ExpectEnabled(IDC_FIT_GRAPHICAL, false);
        script.Click(IDCANCEL);
        EXPECT_EQ(Show(script), IDCANCEL);
    }
}

// --- What it shows

TEST_F(GraphicalSeeding, ShowsTheSeedsOfTheChosenTerm) {
    DialogScript script;
    Open(script)
        .ExpectTitle("Graphical Seeding")
        .ExpectText(IDC_GRAPH_HEADING, "Exponential, standard Trace #2")
        .ExpectText(kTermField, "1")
        .ExpectText(Field(0), "3")
        .ExpectText(Field(1), "0.25")
        .ExpectVisible(Field(2), false)
        .ExpectVisible(Field(3), false)
        .ExpectVisible(Label(2), false)
        .ExpectText(IDC_GRAPH_OFFSET, "9")
        .ExpectVisible(IDC_GRAPH_SLOPE, false)
        .ExpectVisible(IDC_GRAPH_SLOPE_LABEL, false)
        .ExpectVisible(IDC_GRAPH_SLOPE_SPIN, false)
        .Type(kTermField, "2")
        .ExpectText(Field(0), "5")
        .ExpectText(Field(1), "-0.5")
        .ExpectVisible(TermCheck(1), true)
        .ExpectVisible(TermCheck(2), false);
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, ASingleTermHasNoChecksAndNoSelector) {
    options.uDlgFitOrder = 1;
    DialogScript script;
    Open(script)
        .ExpectVisible(IDC_GRAPH_TERMS_GROUP, false)
        .ExpectVisible(IDC_GRAPH_ALL_TERMS, false)
        .ExpectVisible(TermCheck(0), false)
        .ExpectEnabled(kTermField, false);
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, TheGraphIsSetUpWithItsFlagsTitlesAndScales) {
    DialogScript script;
    Open(script).Do([this] {
        EXPECT_EQ(NewCalls(), (Strings{"create",       "source",       "flag 4000 0",
                                       "flag 10000 0", "flag 1 0",     "flag 2 0",
                                       "flag 8 0",     "flag 100 0",   "flag 1000 0",
                                       "flag 20000 0", "flag 40000 0", "flag c60 0",
                                       "flag 4 1",     "flag 10 1",    "flag 80 1",
                                       "flag 200 1",   "title 1 Time", "title 2 " + source.units,
                                       "scale 1",      "scale 2",      "flag 10 1",
                                       "flag 4 1",     "flag 1000 0",  "redraw"}));
    });
    CloseBoth(script);
    EXPECT_EQ(Calls().back(), "destroy");
}

TEST_F(GraphicalSeeding, TheSourceNamesDataFitAndTerms) {
    DialogScript script;
    Open(script).Do([this] {
        GMT_DataSource* pSource = pLog->pSource;
        ASSERT_EQ(pSource->GetCurveCount(), 4u);
        const struct {
            const char* szName;
            std::uint32_t uKind;
        } kCurves[] = {{"Data", 6}, {"Fit", 7}, {"Term 1", 0}, {"Term 2", 1}};
        for (std::uint32_t i = 0; i < 4; ++i) {
            GMT_Curve curve = {};
            EXPECT_EQ(pSource->GetCurve(i, &curve), 1);
            EXPECT_STREQ(curve.szName, kCurves[i].szName);
            EXPECT_EQ(curve.uKind, kCurves[i].uKind);
            EXPECT_EQ(curve.bVisible, 1);
        }
        GMT_Points points = {};
        EXPECT_EQ(pSource->GetPoints(0, &points), 1);
        ASSERT_EQ(points.uCount, 40u);
        EXPECT_EQ(points.pX[39], source.x[39]);
        EXPECT_EQ(points.pY[5], source.y[5]);
        EXPECT_EQ(pSource->GetPoints(1, &points), 0);
        double dX = 1.0, dY = 0.0;
        EXPECT_EQ(pSource->Evaluate(0, &dX, &dY, 1), 0);
    });
    CloseBoth(script);
}

// --- Steps

TEST_F(GraphicalSeeding, ASpinnerStepsByAHundredthOfItsSeed) {
    DialogScript script;
    Open(script)
        .Focus(Field(0))
        .Press(VK_UP)
        .ExpectText(Field(0), "3.03")
        .Press(VK_UP)
        .ExpectText(Field(0), "3.0603")
        .Press(VK_DOWN)
        .ExpectText(Field(0), "3.0297")
        .Type(kTermField, "2")
        .Focus(Field(1))
        .Press(VK_UP)
        .ExpectText(Field(1), "-0.495")
        .Type(Field(1), "0")
        .Press(VK_UP)
        .ExpectText(Field(1), "0.1")
        .Press(VK_UP)
        .ExpectText(Field(1), "0.101")
        .Focus(IDC_GRAPH_OFFSET)
        .Press(VK_DOWN)
        .ExpectText(IDC_GRAPH_OFFSET, "8.91");
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, AStepAsksForTheCurvesOfItsOwnTerm) {
    DialogScript script;
    Settle(Open(script).Type(kTermField, "2").Focus(Field(0)))
        .Do([this] { NewCalls(); })
        .Press(VK_UP)
        .Do([this] {
            const Strings calls = NewCalls();
            ASSERT_GE(calls.size(), 3u);
            EXPECT_EQ(calls[0], "changed 3");
            EXPECT_EQ(calls[1], "changed 1");
            EXPECT_EQ(calls[2], "redraw");
            for (const std::string& sCall : calls) EXPECT_NE(sCall, "changed 2");
        });
    Settle(script.Focus(IDC_GRAPH_OFFSET)).Do([this] { NewCalls(); }).Press(VK_UP).Do([this] {
        const Strings calls = NewCalls();
        ASSERT_GE(calls.size(), 4u);
        EXPECT_EQ(Strings(calls.begin(), calls.begin() + 4),
                  (Strings{"changed 2", "changed 3", "changed 1", "redraw"}));
    });
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, TypedSeedsAreDrawnWhenTheTypingRests) {
    DialogScript script;
    Settle(Open(script))
        .Do([this] { NewCalls(); })
        .Type(Field(0), "4.5")
        // One drawing for the three keys.
        .WaitUntil([this] { return pLog->nCalls >= 3; })
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"changed 2", "changed 1", "redraw"}));
        })
        .ExpectText(Field(0), "4.5");
    CloseBoth(script);
    EXPECT_EQ(options.dParameters[0], 0.0);
}

// --- The view

TEST_F(GraphicalSeeding, TermsAreShownAndHidden) {
    const auto visible = [this](std::uint32_t uCurve) {
        GMT_Curve curve = {};
        pLog->pSource->GetCurve(uCurve, &curve);
        return curve.bVisible;
    };
    DialogScript script;
    Open(script)
        .ExpectChecked(TermCheck(0), BST_CHECKED)
        .Click(TermCheck(1))
        .Do([&] {
            EXPECT_EQ(visible(2), 1);
            EXPECT_EQ(visible(3), 0);
            const Strings calls = NewCalls();
            EXPECT_EQ(std::count(calls.begin(), calls.end(), "changed 3"), 1);
            EXPECT_EQ(calls.back(), "redraw");
        })
        .Click(IDC_GRAPH_NO_TERMS)
        .ExpectChecked(TermCheck(0), BST_UNCHECKED)
        .Do([&] { EXPECT_EQ(visible(2) + visible(3), 0); })
        .Click(IDC_GRAPH_ALL_TERMS)
        .ExpectChecked(TermCheck(1), BST_CHECKED)
        .Do([&] {
            EXPECT_EQ(visible(2) + visible(3), 2);
            EXPECT_EQ(visible(0) + visible(1), 2);
        });
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, LegendAndAxesAreFlags) {
    DialogScript script;
    Open(script)
        .ExpectChecked(IDC_GRAPH_LEGEND, BST_CHECKED)
        .ExpectChecked(IDC_GRAPH_AXES, BST_CHECKED)
        .ExpectChecked(IDC_GRAPH_CONTINUOUS, BST_UNCHECKED)
        .Do([this] { NewCalls(); })
        .Click(IDC_GRAPH_LEGEND)
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"flag 10 0", "flag 4 1", "flag 1000 0", "redraw"}));
        })
        .Click(IDC_GRAPH_AXES)
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"flag 10 0", "flag 4 0", "flag 1000 0", "redraw"}));
        });
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, AxesAreScaledOnceOrAtEveryRedraw) {
    DialogScript script;
    Open(script)
        .Do([this] { NewCalls(); })
        .Click(IDC_GRAPH_Y_AXIS)
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"scale 2", "redraw"}));
        })
        .Click(IDC_GRAPH_X_AXIS)
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"scale 1", "redraw"}));
        })
        .Click(IDC_GRAPH_CONTINUOUS)
        .ExpectEnabled(IDC_GRAPH_X_AXIS, false)
        .ExpectEnabled(IDC_GRAPH_Y_AXIS, false)
        .Do([this] {
            EXPECT_EQ(NewCalls(), (Strings{"flag 10 1", "flag 4 1", "flag 1000 1", "scale 1",
                                           "scale 2", "redraw"}));
        })
        .Focus(Field(0))
        .Press(VK_UP)
        .Do([this] {
            const Strings calls = NewCalls();
            ASSERT_GE(calls.size(), 5u);
            EXPECT_EQ(Strings(calls.begin(), calls.begin() + 5),
                      (Strings{"changed 2", "changed 1", "scale 1", "scale 2", "redraw"}));
        })
        .Click(IDC_GRAPH_CONTINUOUS)
        .ExpectEnabled(IDC_GRAPH_X_AXIS, true)
        .ExpectEnabled(IDC_GRAPH_Y_AXIS, true);
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, TheViewIsKeptByOkAndNotByCancel) {
    DialogScript first;
    Open(first).Click(IDC_GRAPH_LEGEND).Click(IDC_GRAPH_CONTINUOUS);
    CloseBoth(first);
    FitGraphView view = {7, 7, 7};
    LoadFitGraphView(store.ProfileFile().c_str(), &view);
    EXPECT_EQ(view.bShowLegend, 7) << "Cancel writes none";
    DialogScript second;
    Open(second).Click(IDC_GRAPH_LEGEND).Click(IDC_GRAPH_CONTINUOUS).Click(IDOK).Click(IDCANCEL);
    EXPECT_EQ(Show(second), IDCANCEL);
    EXPECT_NE(store.ReadFile().find("[CurveFitSection]"), std::string::npos);
    LoadFitGraphView(store.ProfileFile().c_str(), &view);
    EXPECT_EQ(view.bShowLegend, 0);
    EXPECT_EQ(view.bShowAxes, 1);
    EXPECT_EQ(view.bContinuousAutoScale, 1);
    DialogScript third;
    Open(third)
        .ExpectChecked(IDC_GRAPH_LEGEND, BST_UNCHECKED)
        .ExpectChecked(IDC_GRAPH_AXES, BST_CHECKED)
        .ExpectChecked(IDC_GRAPH_CONTINUOUS, BST_CHECKED);
    CloseBoth(third);
}

// --- What it hands back

TEST_F(GraphicalSeeding, OkHandsAllSeedsBack) {
    DialogScript script;
    Open(script)
        .Type(Field(0), "4.5")
        .Type(kTermField, "2")
        .Type(Field(1), "0.75")
        .Type(IDC_GRAPH_OFFSET, "-2")
        .Click(IDOK)
        .ExpectText(IDC_FIT_SEED_FIRST, "4.5")
        .ExpectText(IDC_FIT_SEED_FIRST + 5, "0.75")
        .ExpectText(IDC_FIT_SEED_FIRST + 24, "-2")
        .ExpectEnabled(IDC_FIT_ESTIMATE, true)
        .Do([this] { EXPECT_EQ(Flags(), "V"); });
    script.Click(IDOK);
    EXPECT_EQ(Show(script), IDOK);
    EXPECT_EQ(options.dParameters[0], 4.5);
    EXPECT_EQ(options.dParameters[4], 5.0) << "what was not touched";
    EXPECT_EQ(options.dParameters[5], 0.75);
    EXPECT_EQ(options.dParameters[24], -2.0);
}

TEST_F(GraphicalSeeding, CancelHandsNothingBack) {
    std::string sFlags;
    CFitSeedInterface::Values before{};
    DialogScript script;
    script.SelectTab(kSeeds).Do([&] {
        sFlags = Flags();
        before = dialog->Seeds().dSeeds;
    });
    Open(script)
        .Type(Field(0), "4.5")
        .Focus(IDC_GRAPH_OFFSET)
        .Press(VK_UP)
        .Click(IDCANCEL)
        .ExpectText(IDC_FIT_SEED_FIRST, "3")
        .Do([&] {
            EXPECT_EQ(Flags(), sFlags);
            EXPECT_EQ(dialog->Seeds().dSeeds, before);
        });
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_F(GraphicalSeeding, NormalizedProportionsAreAbsoluteMeanwhile) {
    standIn->props.bCanNormalizeProportions = 1;
    CFitSeedInterface::Values before{};
    DialogScript script;
    script.SelectTab(kSeeds)
        .Click(IDC_FIT_NORMALIZED)
        .Do([&] { before = dialog->Seeds().dSeeds; })
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK, "Graphical seeding uses absolute proportions.")
        .EnterDialog()
        .ExpectText(Field(0), "3")
        .Click(IDCANCEL)
        .ExpectChecked(IDC_FIT_NORMALIZED, BST_CHECKED)
        .Do([&] { EXPECT_EQ(dialog->Seeds().dSeeds, before); })
        .Click(IDC_FIT_GRAPHICAL)
        .Answer(IDOK, "Graphical seeding uses absolute proportions.")
        .EnterDialog()
        .Type(Field(0), "15")
        .Click(IDOK)
        .ExpectChecked(IDC_FIT_NORMALIZED, BST_CHECKED)
        .ExpectText(IDC_FIT_SEED_FIRST, "0.75")
        .ExpectText(IDC_FIT_SEED_FIRST + 4, "0.25");
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_F(GraphicalSeeding, ForcedSignsAreMendedBehindOk) {
    standIn->props.bCanForcePositive = 1;
    options.bForceTausPositive = 1;
    DialogScript script;
    Open(script).Type(Field(1), "-0.125").Click(IDOK).ExpectText(IDC_FIT_SEED_FIRST + 1, "0.125");
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
}

// --- With the real graph and the real curves

TEST_F(GraphicalSeeding, TheRealGraphShowsWhatTheSeedsGive) {
    library = "CURVEFIT.dll";
    graphLibrary = "GraphMT.dll";
    DialogScript script;
    Open(script)
        .Focus(Field(0))
        .Press(VK_UP)
        .Press(VK_NEXT)
        .Type(kTermField, "2")
        .Click(IDC_GRAPH_CONTINUOUS)
        .Click(IDC_GRAPH_NO_TERMS)
        .Do([](HWND hDialog) {
            const HWND hGraph = GetDlgItem(hDialog, IDC_GRAPH_AREA);
            EXPECT_EQ(SendMessageA(hGraph, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS | DLGC_WANTCHARS);
        })
        .Click(IDOK);
    script.Click(IDOK);
    EXPECT_EQ(Show(script), IDOK);
}

TEST_F(GraphicalSeeding, ACustomFunctionIsDrawnFromItsEquation) {
    library = "CURVEFIT.dll";
    options.eFunctionType = kCustomFitFunction;
    std::strcpy(options.szEquation, "y1=P1*x1+P2/(x1-2)+P3+P4+P5+P6+P7*0+P8*0");
    options.nNumCustomParams = 8;
    for (int i = 0; i < 26; ++i) options.dParameters[i] = i + 2.0;
    DialogScript script;
    Open(script)
        .ExpectText(Label(0), "P1:")
        .ExpectText(Label(1), "P7:")
        .ExpectText(Field(0), "2")
        .ExpectText(Field(1), "3")
        .ExpectVisible(IDC_GRAPH_TERMS_GROUP, false)
        .Type(kTermField, "3")
        .ExpectText(Label(0), "P3:")
        .ExpectVisible(Field(1), false)
        .Type(kTermField, "6")
        .ExpectText(Label(0), "P6:")
        .Do([this] {
            ASSERT_EQ(pLog->pSource->GetCurveCount(), 2u);
            const double aX[] = {1.0, 2.0, 3.0};
            double aY[3] = {};
            ASSERT_EQ(pLog->pSource->Evaluate(1, aX, aY, 3), 1);
            const CFitSeedInterface::Values& seeds = dialog->Seeds().dSeeds;
            // P1 to P6 stand in the first column.
            const double dRest = seeds[8] + seeds[12] + seeds[16] + seeds[20];
            EXPECT_DOUBLE_EQ(aY[0], seeds[0] - seeds[4] + dRest);
            EXPECT_TRUE(std::isnan(aY[1])) << "a pole is a gap";
            EXPECT_DOUBLE_EQ(aY[2], 3 * seeds[0] + seeds[4] + dRest);
        });
    CloseBoth(script);
}

TEST_F(GraphicalSeeding, CurvesBelongToTheirTermsAndAddUp) {
    library = "CURVEFIT.dll";
    options.eFunctionType = 15;
    DialogScript script;
    Open(script).Do([this] {
        GMT_DataSource* pSource = pLog->pSource;
        double aY[3] = {};
        const double dX = 6.5;
        for (const std::uint32_t uCurve : {1u, 2u, 3u})
            ASSERT_EQ(pSource->Evaluate(uCurve, &dX, &aY[uCurve - 1], 1), 1);
        const double dOffset = dialog->Seeds().dWork[24];
        EXPECT_NEAR(aY[0], aY[1] + aY[2] - dOffset, 1e-12);
        EXPECT_NE(aY[1], aY[2]);
    });
    CloseBoth(script);
}

}  // namespace
