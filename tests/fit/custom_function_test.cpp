// The custom function: typed, compiled, remembered.

#include "FitDialogFixture.h"

namespace {

using namespace fit_test;

class CustomFunctionPage : public FitDialogTest {
  protected:
    CustomFunctionPage() { options.eFunctionType = kCustomFitFunction; }
    void Equation(const char* sz) { std::strcpy(options.szEquation, sz); }
    void Stored(int n, const char* sz) { std::strcpy(options.szCustomEquations[n], sz); }
};

const std::vector<std::string> kExamples = {
    "p1+(p2-p1)/(1+(x1/p3)^(4*p3*p4/(p1-p2)))",
    "p1+(p2-p1)/(1+((10^p3)/x1)^p4)",
    "p1+(p2-p1)/(1+(10^((p3-x1)*p4)))",
    "p1+((p2-p1)/(1+(((p2-p5)/(p5-p1))*(x1/p3)^p4)))",
    "p1+((p2-p1)/((1+(x1/p3)^p4)^p5))",
    "p1/(1+(10^((p3-log(x1))*p2)))+(100-p1)/(1+(10^((p4-log(x1))*p2)))",
    "p1+(p2-p1)/(1+exp((p3-x1)/p4))",
    "p1*exp(-1*exp(p2-p3*x1))",
    "p1-(p2*exp((-1*p3)*(x1^p4)))",
};

TEST_F(CustomFunctionPage, ShowsTheStoredEquation) {
    Equation("y1=p1*exp(-x1/p2)");
    DialogScript script;
    script.ExpectChecked(IDC_FIT_CUSTOM, BST_CHECKED)
        .ExpectText(IDC_FIT_EQUATION, "p1*exp(-x1/p2)")
        .ExpectEnabled(IDC_FIT_EQUATION, true)
        .ExpectEnabled(IDC_FIT_EQUATION_LABEL, true)
        .ExpectEnabled(IDC_FIT_FUNCTIONS, false)
        .ExpectEnabled(IDC_FIT_GROUP, false)
        .ExpectEnabled(IDC_FIT_GROUP_LABEL, false)
        .ExpectEnabled(IDC_FIT_TERMS, false)
        .ExpectText(IDC_FIT_NAME, " f(x1)=p1*exp(-x1/p2)")
        .ExpectVisible(IDC_FIT_HELP, true)
        .ExpectVisible(IDC_FIT_PICTURE, false)
        .ExpectText(IDC_FIT_HELP,
                    "\n The independent variable must be expressed as x1.\n The parameters must be "
                    "expressed as p1...p24.\n You can use either upper case or lower case.");
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, IsSimplexWithoutWeightingWhereMethodsAreAutomatic) {
    Equation("y1=p1*x1");
    options.eWeightingType = kWeightData;
    options.eMinimMethod = kMinimMinimax;
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_EQ(options.eSearchMethod, kSearchSimplex);
    EXPECT_EQ(options.eWeightingType, kWeightNone);
    EXPECT_EQ(options.eMinimMethod, kMinimSS);
}

TEST_F(CustomFunctionPage, EmptyListGetsTheNineExamples) {
    DialogScript script;
    script.ExpectItems(IDC_FIT_EQUATION, kExamples);
    ShowAndCancel(script);
    DialogScript other;
    options = FreshRecord();
    options.eFunctionType = kCustomFitFunction;
    Stored(7, "p1*x1+1");
    Stored(3, "p");  // kept, and not shown
    other.ExpectItems(IDC_FIT_EQUATION, {"p1*x1+1"});
    ShowAndCancel(other);
    EXPECT_STREQ(options.szCustomEquations[3], "p");
}

TEST_F(CustomFunctionPage, TypedEquationIsCompiledWhenThePageIsLeft) {
    DialogScript script;
    script.Type(IDC_FIT_EQUATION, "P1 * x1 + p2")
        .ExpectText(IDC_FIT_NAME, " Custom function")
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_NAME, " f(x1)=P1*x1+p2")
        .ExpectText(IDC_FIT_SEED_NOTE,
                    "Enter a seed value for each parameter of the custom function.")
        .ExpectVisible(IDC_FIT_SEED_FIRST, true)
        .ExpectVisible(IDC_FIT_SEED_FIRST + 4, true)
        .ExpectVisible(IDC_FIT_SEED_FIRST + 8, false)
        .ExpectVisible(IDC_FIT_SEED_FIRST + 1, false)
        .ExpectText(IDC_FIT_COLUMN_FIRST, "P1 - P2")
        .ExpectVisible(IDC_FIT_COLUMN_FIRST + 1, false)
        .ExpectVisible(IDC_FIT_ROW_FIRST, false)
        .ExpectEnabled(IDC_FIT_ESTIMATE, false)
        .SelectTab(kFunction)
        .ExpectText(IDC_FIT_EQUATION, "P1*x1+p2")
        .Do([this] {
            EXPECT_STREQ(options.szEquation, "y1=P1*x1+p2");
            EXPECT_STREQ(options.szCustomEquations[0], "P1*x1+p2");
            EXPECT_STREQ(options.szCustomEquations[1], kExamples[0].c_str());
        });
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, ColumnsOfParametersAreNamedByWhatTheyHold) {
    const auto expect = [this](const char* szEquation, const std::vector<std::string>& columns) {
        SCOPED_TRACE(szEquation);
        Equation(szEquation);
        DialogScript script;
        script.SelectTab(kSeeds);
        for (int c = 0; c < 4; ++c) {
            const bool bShown = c < static_cast<int>(columns.size());
            script.ExpectVisible(IDC_FIT_COLUMN_FIRST + c, bShown);
            if (bShown)
                script.ExpectText(IDC_FIT_COLUMN_FIRST + c, columns[static_cast<std::size_t>(c)]);
        }
        ShowAndCancel(script);
    };
    expect("y1=p1*x1", {"P1"});
    expect("y1=p1*x1+p2+p3+p4+p5+p6", {"P1 - P6"});
    expect("y1=p1*x1+p2+p3+p4+p5+p6+p7", {"P1 - P6", "P7"});
    expect("y1=p1*x1+p2+p3+p4+p5+p6+p7+p8", {"P1 - P6", "P7 - P8"});
}

TEST_F(CustomFunctionPage, FaultsAreToldAndKeepThePage) {
    const std::pair<const char*, const char*> rows[] = {
        {"p1*(x1", nullptr},
        {"p1+q", "2214"},
        {"p1*x1*x2", "2219"},
        {"x1+1", "2226"},
    };
    for (const auto& [szText, szString] : rows) {
        SCOPED_TRACE(szText);
        DialogScript script;
        script.Type(IDC_FIT_EQUATION, szText).SelectTab(kAdvanced);
        if (szString == nullptr) {
            script.Answer(kOkButton);
        } else {
            char szMessage[1024] = "";
            LoadStringA(GetModuleHandleA(nullptr), static_cast<UINT>(std::atoi(szString)),
                        szMessage, sizeof szMessage);
            EXPECT_STRNE(szMessage, "");
            script.Answer(kOkButton, szMessage);
        }
        script.ExpectVisible(IDC_FIT_EQUATION, true).ExpectText(IDC_FIT_EQUATION, szText);
        ShowAndCancel(script);
    }
}

TEST_F(CustomFunctionPage, TenthParameterIsRefusedByTheParser) {
    DialogScript script;
    script.Type(IDC_FIT_EQUATION, "p1*x1+p10")
        .SelectTab(kAdvanced)
        .Answer(kOkButton, "A variable was expected in the equation but none was found.");
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, BadTextHoldsNoPredefinedFunctionBack) {
    DialogScript script;
    script.Type(IDC_FIT_EQUATION, "p1*(x1")
        .Click(IDC_FIT_PREDEFINED)
        .SelectTab(kAdvanced)
        .ExpectVisible(IDC_FIT_LM, true);
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, StoredFaultsLeaveNothingBehind) {
    for (const char* sz : {"y1=p10*x1", "y1=", "nonsense"}) {
        SCOPED_TRACE(sz);
        Equation(sz);
        DialogScript script;
        script.ExpectText(IDC_FIT_EQUATION, "")
            .ExpectText(IDC_FIT_NAME, " Custom function")
            .Click(IDOK)
            .Answer(kOkButton)
            .ExpectVisible(IDC_FIT_EQUATION, true);
        ShowAndCancel(script);
        char szMessage[1024] = "";
        LoadStringA(GetModuleHandleA(nullptr), 2229, szMessage, sizeof szMessage);
        EXPECT_EQ(script.Messages()[0].text, szMessage);
    }
}

TEST_F(CustomFunctionPage, EquationsOfAnyLengthOpen) {
    std::memset(options.szEquation, 'p', sizeof options.szEquation);
    for (auto& sz : options.szCustomEquations) std::memset(sz, '1', sizeof sz);
    DialogScript script;
    script.ExpectText(IDC_FIT_EQUATION, "");
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, AnEquationIsPutOnTopOfTheListOnce) {
    Equation("y1=p1*x1+7");
    for (int i = 0; i < 20; ++i) Stored(i, ("p1*x1+" + std::to_string(100 + i)).c_str());
    Stored(4, "P1*X1+7");
    DialogScript script;
    ShowAndCancel(script);
    // The old spelling moved up; nothing fell off.
    EXPECT_STREQ(options.szCustomEquations[0], "P1*X1+7");
    EXPECT_STREQ(options.szCustomEquations[1], "p1*x1+100");
    EXPECT_STREQ(options.szCustomEquations[4], "p1*x1+103");
    EXPECT_STREQ(options.szCustomEquations[5], "p1*x1+105");
    EXPECT_STREQ(options.szCustomEquations[19], "p1*x1+119");
    Equation("y1=p1*x1+8");
    DialogScript another;
    ShowAndCancel(another);
    EXPECT_STREQ(options.szCustomEquations[0], "p1*x1+8");
    EXPECT_STREQ(options.szCustomEquations[1], "P1*X1+7");
    EXPECT_STREQ(options.szCustomEquations[19], "p1*x1+118");
}

TEST_F(CustomFunctionPage, ChosenEntryIsTheText) {
    Equation("y1=p1*x1");
    Stored(0, "p1*x1+p2");
    DialogScript script;
    script.Choose(IDC_FIT_EQUATION, "p1*x1+p2")
        .ExpectText(IDC_FIT_NAME, " Custom function")
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_NAME, " f(x1)=p1*x1+p2");
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, TypedSeedsOutliveAVisitOfThePage) {
    Equation("y1=p1*x1+p2");
    options.ePrevFunctionType = 39;
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "1.5")
        .Type(IDC_FIT_SEED_FIRST + 4, "2.5")
        .SelectTab(kFunction)
        .Choose(IDC_FIT_EQUATION, "p1*x1+p2")
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_FIRST, "1.5")
        .ExpectText(IDC_FIT_SEED_FIRST + 4, "2.5");
    ShowAndAccept(script);
    EXPECT_EQ(options.dParameters[0], 1.5);
    EXPECT_EQ(options.dParameters[4], 2.5);
    EXPECT_EQ(options.nNumCustomParams, 2u);
    EXPECT_EQ(options.nNumCustomIndepVars, 1u);
    EXPECT_EQ(options.ePrevFunctionType, 15);

    // A second opening shows them again, and OK has nothing to say.
    DialogScript again;
    again.SelectTab(kSeeds).ExpectText(IDC_FIT_SEED_FIRST + 4, "2.5");
    ShowAndAccept(again);
    EXPECT_TRUE(again.Messages().empty());
}

TEST_F(CustomFunctionPage, AZeroSeedIsRefused) {
    Equation("y1=p1*x1+p2");
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "1.5")
        .SelectTab(kFunction)
        .Click(IDOK)
        .Answer(kOkButton,
                "A seed value must be entered for each parameter of the custom function. Zero is "
                "not allowed.")
        .ExpectVisible(IDC_FIT_SEED_FIRST, true);
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, AnotherEquationDropsTheSeeds) {
    Equation("y1=p1*x1+p2");
    DialogScript script;
    script.SelectTab(kSeeds)
        .Type(IDC_FIT_SEED_FIRST, "1.5")
        .SelectTab(kFunction)
        .Type(IDC_FIT_EQUATION, "p1*x1-p2")
        .SelectTab(kSeeds)
        .ExpectText(IDC_FIT_SEED_FIRST, "0");
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, TheWayBackIsTheLastPredefinedFunction) {
    options.eFunctionType = 18;
    options.eFunctionGroupID = kDistributions;
    DialogScript script;
    script.Click(IDC_FIT_CUSTOM)
        .ExpectText(IDC_FIT_NAME, " Custom function")
        .ExpectVisible(IDC_FIT_HELP, true)
        .Click(IDC_FIT_PREDEFINED)
        .ExpectText(IDC_FIT_NAME, " Gaussian")
        .ExpectVisible(IDC_FIT_PICTURE, true)
        .ExpectVisible(IDC_FIT_HELP, false);
    ShowAndCancel(script);
}

TEST_F(CustomFunctionPage, WithoutTheLibraryThereIsNoDialog) {
    library = StandInLibrary::kMissingFile;
    Equation("nonsense");
    DialogScript script;
    script.Click(kOkButton);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_F(CustomFunctionPage, ALibraryThatRefusesAnEquationIsToldOf) {
    library = StandInLibrary::kFile;
    StandInLibrary standIn;
    Equation("y1=p1*x1");
    DialogScript script;
    script
        .Do([&] {
            standIn->object = {1, kAlways};
            standIn->uObjects = 0;
        })
        .Type(IDC_FIT_EQUATION, "p1*x1+3")
        .SelectTab(kAdvanced)
        .Answer(kOkButton,
                "The curve fit library could not be loaded or does not support the selected "
                "function.")
        .ExpectVisible(IDC_FIT_EQUATION, true);
    ShowAndCancel(script);
}

}  // namespace
