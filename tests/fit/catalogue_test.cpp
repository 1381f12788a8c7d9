// What the dialogs know of the functions by themselves.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "FitFixture.h"

namespace {

struct Expected {
    std::int32_t eFunction;
    int nString;
    const char* szCaption;
    int nGroup;
    const char* szPicture;
};

const Expected kExpected[] = {
    {0, 2146, "Beta Function", 3, "EQ_BETA"},
    {1, 2147, "Binomial", 4, "EQ_BINOM"},
    {2, 2334, "Boltzmann, charge-voltage", 3, "EQ_QVBOLT"},
    {3, 2340, "Boltzmann, shifted", 3, "EQ_FBOLTM"},
    {4, 2341, "Boltzmann, standard", 4, "EQ_SBOLT"},
    {5, 2380, "Boltzmann, Z-delta (inactivation)", 3, "EQ_ZDBOLT1"},
    {6, 2404, "Boltzmann, Z-delta (activation)", 3, "EQ_ZDBOLT2"},
    {7, 2164, "Current time course (Hodgkin-Huxley)", 3, "EQ_CURTIM"},
    {8, 2135, "Exponential, alpha", 3, "EQ_ALPHA"},
    {9, 2162, "Exponential, cumulative probability", 3, "EQ_CUMUL"},
    {10, 2292, "Exponential, log probability", 3, "EQ_LOGEXP"},
    {11, 2249, "Exponential, power", 2, "EQ_MPOWEXP"},
    {12, 2154, "Exponential, probability", 3, "EQ_PDCEXPNOC"},
    {13, 2250, "Exponential, product", 2, "EQ_EXPPROD"},
    {14, 2251, "Exponential, sloping baseline", 2, "EQ_SLPEXP"},
    {15, 2354, "Exponential, standard", 2, "EQ_STDEXP"},
    {16, 2369, "Exponential, weighted", 2, "EQ_FTEXPN"},
    {17, 2368, "Exponential, weighted/constrained", 2, "EQ_FTEXPC"},
    {18, 2277, "Gaussian", 4, "EQ_GAUSS"},
    {19, 2278, "Goldman-Hodgkin-Katz", 3, "EQ_GHK"},
    {20, 2252, "Goldman-Hodgkin-Katz, extended", 3, "EQ_EXTGHK"},
    {22, 2264, "Hill (4 parameter logistic)", 1, "EQ_HILL"},
    {23, 2393, "Hill, Langmuir", 1, "EQ_LANGHILL"},
    {21, 2282, "Hill, steady state", 1, "EQ_HILLENZ"},
    {25, 2291, "Logistic growth", 2, "EQ_LOGISTIC"},
    {24, 2290, "Lineweaver-Burk", 1, "EQ_LINBUR"},
    {26, 2293, "Lorentzian distribution", 4, "EQ_LOREND"},
    {27, 2294, "Lorentzian power 1", 4, "EQ_LORENF"},
    {28, 2295, "Lorentzian power 2", 4, "EQ_LORENT"},
    {29, 2300, "Michaelis-Menten", 1, "EQ_MICMEN"},
    {30, 2301, "Nernst", 1, "EQ_NERNST"},
    {31, 2327, "Parabola, variance-mean", 6, "EQ_PARABN"},
    {32, 2326, "Parabola, standard", 6, "EQ_PARABC"},
    {33, 2328, "Poisson", 4, "EQ_POISS"},
    {34, 2329, "Polynomial", 5, "EQ_POLYA"},
    {35, 2288, "Straight line, standard", 5, "EQ_LIN"},
    {36, 2289, "Straight line, origin at zero", 5, "EQ_LINZI"},
    {37, 2355, "Voltage-dependent relaxation", 3, "EQ_TAUFUN"},
};

TEST(Catalogue, HoldsTheThirtyEightFunctionsInTheirOrder) {
    const auto functions = FitFunctions();
    ASSERT_EQ(functions.size(), std::size(kExpected));
    ASSERT_EQ(functions.size(), 38u);
    for (std::size_t i = 0; i < functions.size(); ++i) {
        const Expected& row = kExpected[i];
        SCOPED_TRACE(row.szCaption);
        EXPECT_EQ(functions[i].eFunction, row.eFunction);
        EXPECT_EQ(functions[i].nCaptionString, row.nString);
        EXPECT_EQ(functions[i].eGroup, row.nGroup);
        char szText[64] = "";
        LoadStringA(GetModuleHandleA(nullptr), static_cast<UINT>(row.nString), szText,
                    sizeof szText);
        EXPECT_STREQ(szText, row.szCaption);
        EXPECT_STREQ(FitFunctionPictureName(row.eFunction, kSearchLM, false), row.szPicture);
        EXPECT_EQ(FindFitFunction(row.eFunction), &functions[i]);
        EXPECT_NE(FindResourceA(GetModuleHandleA(nullptr), row.szPicture, "METAFILE"), nullptr);
    }
    for (const std::int32_t eNone : {-1, 38, 39}) EXPECT_EQ(FindFitFunction(eNone), nullptr);
}

TEST(Catalogue, GroupsStandInTheOrderOfTheirComboBox) {
    const std::pair<int, std::string> expected[] = {{0, "All"},
                                                    {4, "Distributions"},
                                                    {3, "Electrophysiology"},
                                                    {2, "Exponential, Growth"},
                                                    {1, "Dose Response"},
                                                    {5, "Linear, Polynomial"},
                                                    {6, "Parabolic"}};
    const auto groups = FitGroups();
    ASSERT_EQ(groups.size(), std::size(expected));
    for (std::size_t i = 0; i < groups.size(); ++i) {
        EXPECT_EQ(groups[i].eGroup, expected[i].first);
        EXPECT_EQ(groups[i].szCaption, expected[i].second);
    }
    // As they stand, oddities included.
    EXPECT_EQ(FindFitFunction(4)->eGroup, kDistributions);
    EXPECT_EQ(FindFitFunction(30)->eGroup, kDoseResponse);
}

TEST(Catalogue, PictureFollowsMethodAndOffset) {
    EXPECT_STREQ(FitFunctionPictureName(3, kSearchChebyshev, true), "EQ_FBOLTS");
    EXPECT_STREQ(FitFunctionPictureName(3, kSearchSimplex, true), "EQ_FBOLTM");
    EXPECT_STREQ(FitFunctionPictureName(11, kSearchChebyshev, true), "EQ_POWEXP");
    EXPECT_STREQ(FitFunctionPictureName(11, kSearchVM, true), "EQ_MPOWEXP");
    EXPECT_STREQ(FitFunctionPictureName(12, kSearchVM, true), "EQ_PDCEXP");
    EXPECT_STREQ(FitFunctionPictureName(12, kSearchVM, false), "EQ_PDCEXPNOC");
    for (const std::int32_t eNone : {-1, 38, 39, 1000})
        EXPECT_STREQ(FitFunctionPictureName(eNone, kSearchLM, true), "EQ_NOFUN");
    EXPECT_EQ(FitCaptionString(38), 2165);
    char szText[64] = "";
    LoadStringA(GetModuleHandleA(nullptr), 2165, szText, sizeof szText);
    EXPECT_STREQ(szText, "Custom function");
}

class AutomaticMethods : public ::testing::Test {
  public:
    // search, weighting, minimisation after the choice; 9 9 9 is what stood before.
    std::string For(std::int32_t eFunction) {
        options.eFunctionType = eFunction;
        options.eSearchMethod = before[0];
        options.eWeightingType = before[1];
        options.eMinimMethod = before[2];
        ApplyAutomaticMethods(options, input);
        return std::to_string(options.eSearchMethod) + std::to_string(options.eWeightingType) +
               std::to_string(options.eMinimMethod);
    }
    FitOptions options{};
    AutomaticMethodInput input;
    std::int32_t before[3] = {2, 3, 2};
};

TEST_F(AutomaticMethods, FollowTheTable) {
    EXPECT_EQ(For(10), "131");
    EXPECT_EQ(For(17), "132");
    for (const std::int32_t e : {21, 22, 23, 25, 29}) EXPECT_EQ(For(e), "200") << e;
    EXPECT_EQ(For(26), "002");
    EXPECT_EQ(For(30), "230");
    EXPECT_EQ(For(34), "232");
    EXPECT_EQ(For(35), "232");
    EXPECT_EQ(For(36), "030");
    for (const std::int32_t e :
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 16, 18, 19, 20, 24, 27, 28, 31, 32, 33, 37}) {
        EXPECT_EQ(For(e), "000") << e;
    }
    EXPECT_EQ(For(38), "200");
}

TEST_F(AutomaticMethods, PowerExponentialIsFittedByChebyshevWithOneTerm) {
    EXPECT_EQ(For(11), "332");
    input.uTerms = 2;
    EXPECT_EQ(For(11), "000");
    input.uTerms = 1;
    input.bComparing = true;
    EXPECT_EQ(For(11), "000");
    // What decides for other exponentials does not for it.
    options.bAutoZeroShift = 1;
    EXPECT_EQ(For(11), "000");
}

TEST_F(AutomaticMethods, ExponentialsAreFittedByChebyshevFromZeroOnWhenNothingIsForced) {
    for (const std::int32_t e : {14, 15}) {
        options = {};
        input = {};
        EXPECT_EQ(For(e), "000");
        options.bAutoZeroShift = 1;
        EXPECT_EQ(For(e), "332");
        options.bAutoZeroShift = 0;
        options.bDoZeroShift = 1;
        EXPECT_EQ(For(e), "332");
        options.bDoZeroShift = 0;
        input.bFirstXIsZero = true;
        EXPECT_EQ(For(e), "332");
        options.bForcePropsPositive = 1;
        EXPECT_EQ(For(e), "000");
        options.bForcePropsPositive = 0;
        options.bForceTausPositive = 1;
        EXPECT_EQ(For(e), "000");
    }
}

TEST_F(AutomaticMethods, DoNotKeepAMaximumLikelihoodThatIsNotOpen) {
    before[2] = 1;
    EXPECT_EQ(For(15), "000");
    EXPECT_EQ(For(26), "000");
    EXPECT_EQ(For(17), "130");
    EXPECT_EQ(For(35), "230");
    EXPECT_EQ(For(10), "131");
    options.bAutoZeroShift = 1;
    EXPECT_EQ(For(15), "330");
}

TEST(OwnNumbers, StandInTheFieldsOfTheirFunctions) {
    for (std::int32_t e = -1; e <= 39; ++e) {
        SCOPED_TRACE(e);
        double FitOptions::*pTemperature = e == 5 || e == 6 ? &FitOptions::dZDBoltzmanTemperature
                                           : e == 19        ? &FitOptions::dGoldmanTemperature
                                           : e == 20        ? &FitOptions::dExtGoldmanTemperature
                                           : e == 30        ? &FitOptions::dNernstTemperature
                                                            : nullptr;
        EXPECT_EQ(FitTemperatureField(e), pTemperature);
        std::uint32_t FitOptions::*pA = e == 7    ? &FitOptions::uCurTimePowerA
                                        : e == 11 ? &FitOptions::uExpPower
                                                  : nullptr;
        EXPECT_EQ(FitPowerAField(e), pA);
        EXPECT_EQ(FitPowerBField(e), e == 7 ? &FitOptions::uCurTimePowerB : nullptr);
        EXPECT_EQ(FitValenceField(e), e == 30 ? &FitOptions::uNernstValence : nullptr);
    }
}

}  // namespace
