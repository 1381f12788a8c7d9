// A curve-fit library that fails at one object or one call: a user who changes the function, looks
// at the seeds and presses OK is told what has failed, or sees it corrected, and gets on.

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

// The user's way and, step by step, the messages on it, one letter each: L the library refused the
// function, E the seeds could not be estimated, Q the offer to estimate them (answered Yes).
struct Way {
    const char* szAtChange;
    const char* szAtSeeds;
    const char* szAtOk;
    bool bEnds;  // OK ends the dialog
};
constexpr Way kSmooth = {"", "", "", true};
constexpr std::uint32_t kObject = 100;  // in place of a place: no object

class FitLibraryFaults : public FitDialogTest {
  protected:
    FitLibraryFaults() {
        library = StandInLibrary::kFile;
        // OK reads the properties once more where a sheet's curve has a limit.
        MakeSheet();
        ByHand(kSearchLM);
        options.eFunctionGroupID = kAllFunctions;
        options.bExtrapolateRight = 1;
        options.dRightExtrapolationValue = 25.0;
        source.Record();
    }
    static void Expect(DialogScript& script, const char* szLetters) {
        for (const char* p = szLetters; *p != '\0'; ++p) {
            script.Answer(*p == 'Q' ? kYesButton : kOkButton,
                          *p == 'L'   ? "The curve fit library could not be loaded or does not "
                                        "support the selected function."
                          : *p == 'E' ? "The seed values could not be estimated from the data.\n"
                                        "Enter the seed values."
                                      : "The seed values are not valid for the selected function.\n"
                                        "Estimate the seed values automatically?");
        }
    }
    // To the page of the seeds.
    static void Walk(DialogScript& script, const Way& way) {
        script.Choose(IDC_FIT_FUNCTIONS, "Gaussian");
        Expect(script, way.szAtChange);
        script.SelectTab(kSeeds);
        Expect(script, way.szAtSeeds);
    }
    void WalkToOk(const Way& way) {
        DialogScript script;
        Walk(script, way);
        script.Click(IDOK);
        Expect(script, way.szAtOk);
        if (!way.bEnds) script.Click(IDCANCEL);
        EXPECT_EQ(Show(script), way.bEnds ? IDOK : IDCANCEL);
        EXPECT_EQ(standIn->uAlive, 0u);
    }
    void WalkToCancel(const Way& way) {
        DialogScript script;
        Walk(script, way);
        ShowAndCancel(script);
        EXPECT_EQ(standIn->uAlive, 0u);
        EXPECT_FALSE(RememberedFit().bOpenedBefore);
        EXPECT_EQ(CParentDialogBase::LastTab(IDD_FIT), 0);
        for (const std::string& sCall : source.calls)
            EXPECT_FALSE(sCall.starts_with("SetCursor") || sCall.starts_with("CopyBlob")) << sCall;
    }
    // Starts over, with one fault.
    void Begin(std::uint32_t uPlace, const FailSwitch& fail) {
        ForgetFit();
        options = m_options;
        data = m_data;
        source.calls.clear();
        standIn.Reset();
        (uPlace == kObject ? standIn->object : standIn->places[uPlace]) = fail;
    }
    void KeepStart() {
        m_options = options;
        m_data = data;
    }

    StandInLibrary standIn;

  private:
    FitOptions m_options;
    ZXADLG_DataOptions m_data;
};

// How often the library is asked on the way: the rows below go through all of it.
TEST_F(FitLibraryFaults, TheWayAsksTheLibraryThisOften) {
    WalkToOk(kSmooth);
    EXPECT_EQ(standIn->uObjects, 5u);
    const std::pair<std::uint32_t, std::uint32_t> rows[] = {
        {0, 5},  {7, 2},  {11, 0}, {17, 0}, {18, 3}, {30, 3}, {40, 3},
        {44, 3}, {45, 3}, {46, 8}, {47, 3}, {48, 3}, {59, 0}};
    for (const auto& [uPlace, uCalls] : rows) EXPECT_EQ(standIn->uCalls[uPlace], uCalls) << uPlace;
}

TEST_F(FitLibraryFaults, AFaultIsToldOnceOnItsWay) {
    struct Row {
        std::uint32_t uPlace;
        FailSwitch fail;
        Way way;
        std::int32_t eFunction;  // that OK leaves
    };
    constexpr Way kRefused = {"L", "", "", true};
    constexpr Way kOfferTaken = {"", "E", "Q", true};
    constexpr Way kNeverEstimated = {"", "E", "QE", false};
    const Row rows[] = {
        // The estimate at opening is silent, and the page of the seeds makes another.
        {kObject, {2, 1}, kSmooth, 18},
        {kObject, {2, kAlways}, {"L", "E", "QE", false}, 15},
        {kObject, {3, 1}, kRefused, 15},
        {kObject, {3, kAlways}, kRefused, 15},
        {kObject, {4, 1}, kOfferTaken, 18},
        {kObject, {4, kAlways}, kNeverEstimated, 18},
        // At OK what was read before stands.
        {kObject, {5, 1}, kSmooth, 18},
        {kObject, {5, kAlways}, kSmooth, 18},
        {7, {1, 1}, kSmooth, 18},
        {7, {1, kAlways}, kNeverEstimated, 18},
        {7, {2, 1}, kOfferTaken, 18},
        {7, {2, kAlways}, kNeverEstimated, 18},
        {40, {2, 1}, kRefused, 15},
        {40, {2, kAlways}, kRefused, 15},
        {40, {3, 1}, kSmooth, 18},
        {40, {3, kAlways}, kSmooth, 18},
    };
    KeepStart();
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message()
                     << row.uPlace << " at " << row.fail.uFirst << " x " << row.fail.uCount);
        Begin(row.uPlace, row.fail);
        WalkToOk(row.way);
        EXPECT_EQ(options.eFunctionType, row.eFunction);
        Begin(row.uPlace, row.fail);
        WalkToCancel(row.way);
    }
}

TEST_F(FitLibraryFaults, ARefusalAtOpeningIsOneMessageAndNoDialog) {
    KeepStart();
    for (const std::uint32_t uPlace : {kObject, 40u}) {
        for (const std::uint32_t uCount : {1u, kAlways}) {
            Begin(uPlace, {1, uCount});
            DialogScript script;
            script
                .ExpectText(90,
                            "The curve fit library could not be loaded or does not support the "
                            "selected function.")
                .Click(kOkButton);
            EXPECT_EQ(Show(script), IDCANCEL);
            EXPECT_EQ(standIn->uAlive, 0u);
            EXPECT_EQ(standIn->uObjects, 1u);
            EXPECT_FALSE(RememberedFit().bOpenedBefore);
        }
    }
}

// The number of variables is then one, and a text is empty.
TEST_F(FitLibraryFaults, OtherPlacesStopNobody) {
    KeepStart();
    const std::pair<std::uint32_t, std::uint32_t> rows[] = {{0, 5},  {11, 1}, {17, 1}, {18, 3},
                                                            {30, 3}, {44, 3}, {45, 3}, {46, 8},
                                                            {47, 3}, {48, 3}, {59, 1}};
    for (const auto& [uPlace, uCalls] : rows) {
        // Each call alone, and then all.
        for (std::uint32_t uFirst = 1; uFirst <= uCalls + 1; ++uFirst) {
            SCOPED_TRACE(testing::Message() << uPlace << " at " << uFirst);
            const bool bAll = uFirst > uCalls;
            Begin(uPlace, bAll ? FailSwitch{1, kAlways} : FailSwitch{uFirst, 1});
            WalkToOk(kSmooth);
            EXPECT_EQ(options.eFunctionType, 18);
            EXPECT_STREQ(options.szFunctionName,
                         uPlace == 30 && uFirst >= uCalls ? "" : "Gaussian");
        }
    }
}

TEST_F(FitLibraryFaults, AMissingTextIsEmptyWhereItWouldStand) {
    KeepStart();
    struct Row {
        std::uint32_t uPlace;
        Page ePage;
        int nControl;
        const char* szElse;
    };
    const Row rows[] = {{44, kData, IDC_VARIABLE_FIRST, "Time"},
                        {45, kData, IDC_DEPENDENT, "Response"},
                        {46, kSeeds, IDC_FIT_COLUMN_FIRST, "A"},
                        {47, kSeeds, IDC_FIT_OFFSET_LABEL, "C"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.uPlace);
        for (const bool bMissing : {false, true}) {
            Begin(row.uPlace, {1, bMissing ? kAlways : 0});
            DialogScript script;
            script.SelectTab(row.ePage).ExpectText(row.nControl, bMissing ? "" : row.szElse);
            ShowAndCancel(script);
        }
    }
}

}  // namespace
