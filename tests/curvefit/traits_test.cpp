// What each function reports about itself, against a table of its own.

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;

// One row a function, one column a word of the record; the second line holds the offsets. What is
// not a number depends on the record: n is the number of terms, c is 1 but 0 under Chebyshev, l is
// 1 but 0 under maximum likelihood, L is 1 under maximum likelihood only. A dot is 0.
// clang-format off
constexpr char kTraits[] = R"(
id ppt arr zer  nF  s1  mt  fr  iX  nY  sl  of  fp  ap  zA  nX  zM  cN  bw  rn  op  pA  pB   T   z  zD  oc  nc  LM  sx  ch  cf  ln  py  s0
     0   4   8  12  28  36  40  44  48  52  56  60  64  68  72  76  80  92  96 104 108 112 116 120 124 128 136 140 144 148 152 156 160 164
 0   2   2  99   .   .   .   .   .   1   .   .   1   1   .   1   .   .   .   .   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .
 1   2   2  99   .   .   .   .   1   1   .   .   1   1   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .
 2   3   2   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
 3   3   2   n   .   .   c   .   .   .   .   1   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   1   1   1   1   1   .   .   .
 4   3   2   1   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
 5   3   2   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   1   .   .   .   .   1   1   .   .   .   .   .
 6   3   2   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   1   .   .   .   .   1   1   .   .   .   .   .
 7   4   2   2   .   .   .   .   .   .   .   1   1   .   1   .   1   .   .   .   .   1   1   .   .   1   .   .   1   1   .   .   .   .   .
 8   2   2  99   .   .   .   .   .   .   .   1   1   .   1   .   1   .   .   .   .   .   .   .   .   1   .   .   1   1   .   .   .   .   .
 9   2   2  99   1   .   1   .   .   .   .   1   1   .   1   .   .   1   .   .   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .
10   2   2  99   1   .   1   .   .   .   .   .   1   .   .   .   .   1   1   1   .   .   .   .   .   .   L   .   1   1   .   .   .   .   .
11   2   2  99   .   .   c   .   .   .   .   1   1   .   1   .   1   .   .   .   .   1   .   .   .   1   .   1   1   1   1   1   .   .   .
12   2   2  99   1   .   1   .   .   .   .   l   1   .   .   .   .   1   1   L   .   .   .   .   .   .   L   .   1   1   .   .   .   .   .
13   3   2  99   .   .   .   .   .   .   .   1   1   .   1   .   1   .   .   .   .   .   .   .   .   1   .   .   1   1   .   .   .   .   .
14   2   2  99   .   .   1   .   .   .   1   1   1   .   1   .   .   .   .   .   .   .   .   .   .   1   .   .   1   1   1   1   .   .   .
15   2   2  99   .   .   1   .   .   .   .   1   1   .   1   .   .   .   .   .   .   .   .   .   .   1   .   .   1   1   1   1   .   .   .
16   2   2  99   .   .   1   1   .   .   .   1   1   .   1   .   .   1   .   .   .   .   .   .   .   1   .   .   1   1   .   .   .   .   .
17   2   2  99   1   1   1   1   .   1   .   1   1   1   1   .   .   .   .   .   .   .   .   .   .   1   .   .   1   .   .   .   .   .   .
18   3   2   n   .   .   1   .   .   .   .   1   1   .   .   .   .   1   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
19   2   7  99   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .   .   .   .   .   1   .   .   .   .   1   1   .   .   .   .   .
20   2   7  99   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .   .   .   .   .   1   .   .   .   .   1   1   .   .   .   .   .
21   3   2  99   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   1
22   4   2   0   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   1
23   3   2  99   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   1
24   2   2  99   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
25   3   2  99   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   1   .   .   .   .   1   .   .   1   1   .   .   .   .   .
26   3   2   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
27   2   2  99   .   .   1   .   .   .   .   1   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
28   2   2  99   .   .   1   .   .   .   .   1   1   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .
29   2   2  99   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   1
30   1   2  99   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .   .   .   .   .   1   1   .   .   .   1   1   .   .   .   .   1
31   2   2  99   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
32   2   2   1   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
33   1   2  99   .   .   .   .   1   1   .   .   1   1   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   1   .   .   .   .   .
34   1   2  99   .   .   1   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   .   .   .   .   1   .
35   1   2  99   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   .   .   .   .   1   .   .
36   1   2   0   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
37   4   2  99   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   .   1   .   .   .   .   .   .   .   1   1   .   .   .   .   .
)";
// clang-format on

struct TraitTable {
    std::vector<std::size_t> offsets;
    std::vector<std::vector<std::string>> rows;
};

TraitTable ReadTraits() {
    TraitTable table;
    std::istringstream text(kTraits);
    std::string sLine;
    std::getline(text, sLine);
    std::getline(text, sLine);
    std::getline(text, sLine);
    std::istringstream offsets(sLine);
    for (std::size_t n; offsets >> n;) table.offsets.push_back(n);
    while (std::getline(text, sLine)) {
        std::istringstream words(sLine);
        std::string sWord;
        words >> sWord;
        table.rows.emplace_back();
        while (words >> sWord) table.rows.back().push_back(sWord);
    }
    return table;
}

uint32_t Expected(const std::string& sWord, const FitOptions& options) {
    const bool bChebyshev = options.eSearchMethod == 3;
    const bool bLikelihood = options.eMinimMethod == 1;
    if (sWord == ".") return 0;
    if (sWord == "c") return bChebyshev ? 0 : 1;
    if (sWord == "l") return bLikelihood ? 0 : 1;
    if (sWord == "L") return bLikelihood ? 1 : 0;
    // Functions 3 and 11 have one term under Chebyshev.
    if (sWord == "n") return bChebyshev && options.eFunctionType == 3 ? 1 : options.uFitOrder;
    return static_cast<uint32_t>(std::stoul(sWord));
}

TEST(Traits, AreThoseOfTheTableUnderEveryMethodAndNumberOfTerms) {
    const TraitTable table = ReadTraits();
    ASSERT_EQ(table.rows.size(), 38u);
    ASSERT_EQ(table.offsets.size(), 34u);
    for (int32_t eFunction = 0; eFunction < 38; ++eFunction) {
        for (const int32_t eMethod : {0, 1, 2, 3}) {
            for (const int32_t eMinim : {0, 1, 2, 3}) {
                for (const uint32_t uTerms : {1u, 2u, 6u}) {
                    FitOptions options = OptionsFor(eFunction, uTerms);
                    options.eSearchMethod = eMethod;
                    options.eMinimMethod = eMinim;
                    const FitFunctionProps props = PropertiesOf(options);
                    const std::vector<std::string>& row =
                        table.rows[static_cast<std::size_t>(eFunction)];
                    ASSERT_EQ(row.size(), table.offsets.size());
                    std::vector<bool> named(42);
                    for (std::size_t k = 0; k < row.size(); ++k) {
                        uint32_t u = 0;
                        std::memcpy(&u, reinterpret_cast<const char*>(&props) + table.offsets[k],
                                    4);
                        named[table.offsets[k] / 4] = true;
                        EXPECT_EQ(u, Expected(row[k], options))
                            << "function " << eFunction << " offset " << table.offsets[k]
                            << " method " << eMethod << ", " << eMinim << " terms " << uTerms;
                    }
                    for (std::size_t k = 0; k < named.size(); ++k) {
                        uint32_t u = 1;
                        std::memcpy(&u, reinterpret_cast<const char*>(&props) + 4 * k, 4);
                        if (!named[k]) {
                            EXPECT_EQ(u, 0u) << "function " << eFunction << " offset " << 4 * k;
                        }
                    }
                }
            }
        }
    }
}

struct NameRow {
    const char* szCaption;
    std::vector<const char*> params;
    const char* szOffset;
    const char* szSlope;
    std::vector<const char*> variables;
    const char* szDependent;
};

const NameRow kNames[] = {
    {"Beta Function", {"a", "b"}, "", "", {"x (0..1)"}, "Density"},
    {"Binomial", {"n", "p"}, "", "", {"x (integer)"}, "Probability"},
    {"Boltzmann, charge-voltage", {"Qmax", "Vmid", "Vc"}, "C", "", {"Voltage"}, "Charge"},
    {"Boltzmann, shifted", {"Imax", "Vmid", "Vc"}, "C", "", {"Voltage"}, "Current"},
    {"Boltzmann, standard", {"Imax", "Vmid", "Vc"}, "", "", {"Voltage"}, "Current"},
    {"Boltzmann, Z-delta (inactivation)",
     {"Imax", "Vmid", "z-delta"},
     "C",
     "",
     {"Voltage (mV)"},
     "Current"},
    {"Boltzmann, Z-delta (activation)",
     {"Imax", "Vmid", "z-delta"},
     "C",
     "",
     {"Voltage (mV)"},
     "Current"},
    {"Current time course (Hodgkin-Huxley)",
     {"A", "tau m", "h inf", "tau h"},
     "C",
     "",
     {"Time"},
     "Current"},
    {"Exponential, alpha", {"A", "tau"}, "C", "", {"Time"}, "Response"},
    {"Exponential, cumulative probability", {"P", "tau"}, "C", "", {"Time"}, "Probability"},
    {"Exponential, log probability", {"P", "tau"}, "", "", {"log10 time"}, "Count"},
    {"Exponential, power", {"A", "tau"}, "C", "", {"Time"}, "Response"},
    {"Exponential, probability", {"P", "tau"}, "C", "", {"Time"}, "Count"},
    {"Exponential, product", {"A", "tau rise", "tau decay"}, "C", "", {"Time"}, "Response"},
    {"Exponential, sloping baseline", {"A", "tau"}, "C", "m", {"Time"}, "Response"},
    {"Exponential, standard", {"A", "tau"}, "C", "", {"Time"}, "Response"},
    {"Exponential, weighted", {"f", "K"}, "C", "", {"Time"}, "Response"},
    {"Exponential, weighted/constrained", {"f", "K"}, "C", "", {"Time"}, "Fraction"},
    {"Gaussian", {"A", "mean", "sigma"}, "C", "", {"x"}, "Count"},
    {"Goldman-Hodgkin-Katz",
     {"PNa/PK", "PCl/PK"},
     "",
     "",
     {"[K]o", "[K]i", "[Na]o", "[Na]i", "[Cl]o", "[Cl]i"},
     "Vm (mV)"},
    {"Goldman-Hodgkin-Katz, extended",
     {"PNa/PK", "PCa/PK"},
     "",
     "",
     {"[K]o", "[K]i", "[Na]o", "[Na]i", "[Ca]o", "[Ca]i"},
     "Vrev (mV)"},
    {"Hill, steady state", {"Vmax", "K half", "h"}, "", "", {"Concentration"}, "Rate"},
    {"Hill (4 parameter logistic)",
     {"Imin", "Imax", "C50", "h"},
     "",
     "",
     {"Concentration"},
     "Response"},
    {"Hill, Langmuir", {"Imax", "C50", "h"}, "C", "", {"Concentration"}, "Response"},
    {"Lineweaver-Burk", {"Vmax", "Km"}, "", "", {"1/[S]"}, "1/v"},
    {"Logistic growth", {"K", "N0", "r"}, "", "", {"Time"}, "Size"},
    {"Lorentzian distribution", {"A", "x0", "width"}, "C", "", {"x"}, "y"},
    {"Lorentzian power 1", {"S0", "fc"}, "C", "", {"Frequency"}, "Power"},
    {"Lorentzian power 2", {"S0", "tau"}, "C", "", {"Frequency"}, "Power"},
    {"Michaelis-Menten", {"Vmax", "Km"}, "", "", {"Concentration"}, "Rate"},
    {"Nernst", {"[X]i"}, "", "", {"[X]o"}, "E (mV)"},
    {"Parabola, variance-mean", {"i", "N"}, "C", "", {"Mean"}, "Variance"},
    {"Parabola, standard", {"a", "b"}, "c", "", {"x"}, "y"},
    {"Poisson", {"lambda"}, "", "", {"x (integer)"}, "Probability"},
    {"Polynomial", {"a"}, "a0", "", {"x"}, "y"},
    {"Straight line, standard", {"m"}, "b", "", {"x"}, "y"},
    {"Straight line, origin at zero", {"m"}, "", "", {"x"}, "y"},
    {"Voltage-dependent relaxation",
     {"alpha0", "V alpha", "beta0", "V beta"},
     "",
     "",
     {"Voltage"},
     "Time constant"},
};

TEST(Names, AreTheSameInTheRecordAndInTheTable) {
    ASSERT_EQ(std::size(kNames), 38u);
    for (int32_t eFunction = 0; eFunction < 38; ++eFunction) {
        SCOPED_TRACE(eFunction);
        const NameRow& row = kNames[eFunction];
        const FitOptions options = OptionsFor(eFunction);
        const CurveFit fit = Make(options);
        const FitFunctionProps props = PropertiesOf(options);
        EXPECT_STREQ(fit->GetFunctionText(), row.szCaption);
        EXPECT_STREQ(props.szFunctionName, row.szCaption);
        EXPECT_EQ(std::strchr(row.szCaption, '%'), nullptr);
        ASSERT_EQ(props.uParamsPerTerm, row.params.size());
        for (uint32_t i = 0; i < row.params.size(); ++i) {
            EXPECT_STREQ(fit->GetParameterName(i, i), row.params[i]);
            EXPECT_STREQ(props.szParamNames[i], row.params[i]);
        }
        const auto uParams = static_cast<uint32_t>(row.params.size());
        EXPECT_STREQ(fit->GetParameterName(uParams, uParams), "");
        EXPECT_STREQ(props.szParamNames[uParams], "");
        ASSERT_EQ(fit->GetVariableCount(), row.variables.size());
        for (uint32_t i = 0; i < row.variables.size(); ++i) {
            EXPECT_STREQ(fit->GetVariableLabel(i, i), row.variables[i]);
            EXPECT_STREQ(props.szVariableNames[i], row.variables[i]);
        }
        EXPECT_STREQ(fit->GetVariableLabel(6, 6), "");
        EXPECT_STREQ(fit->GetDependentLabel(), row.szDependent);
        EXPECT_STREQ(props.szDependentName, row.szDependent);
        EXPECT_STREQ(fit->GetOffsetName(), row.szOffset);
        EXPECT_STREQ(props.szOffsetName, row.szOffset);
        EXPECT_STREQ(fit->GetSlopeName(), row.szSlope);
        EXPECT_STREQ(props.szSlopeName, row.szSlope);
    }
}

TEST(Names, OffsetOfDensitiesGoesUnderMaximumLikelihood) {
    FitOptions options = OptionsFor(12);
    options.eMinimMethod = 1;
    EXPECT_STREQ(Make(options)->GetOffsetName(), "");
    options.eMinimMethod = 2;
    EXPECT_STREQ(Make(options)->GetOffsetName(), "C");
}

TEST(Names, CustomFunctionIsNamedByItsParameters) {
    FitOptions options = OptionsFor(38);
    options.nNumCustomParams = 24;
    options.nNumCustomIndepVars = 1;
    const CurveFit fit = Make(options);
    const FitFunctionProps props = PropertiesOf(options);
    EXPECT_EQ(props.uParamsPerTerm, 24u);
    EXPECT_EQ(props.uNumDataArrays, 2u);
    EXPECT_EQ(props.uZeroAllowedParam, 99u);
    EXPECT_EQ(props.bAllowLM, 1);
    EXPECT_EQ(props.bAllowSimplex, 1);
    EXPECT_EQ(props.bMultiTerm, 0);
    EXPECT_EQ(props.bHasOffset, 0);
    EXPECT_STREQ(fit->GetParameterName(8, 8), "P9");
    EXPECT_STREQ(fit->GetParameterName(23, 23), "P24");
    EXPECT_STREQ(fit->GetParameterName(24, 24), "");
    EXPECT_STREQ(fit->GetVariableLabel(0, 0), "x1");
    EXPECT_STREQ(fit->GetDependentLabel(), "y1");
    EXPECT_STREQ(fit->GetFunctionText(), "Custom function");
    options.nNumCustomParams = 0xFFFFFFFFu;
    options.nNumCustomIndepVars = 0;
    EXPECT_EQ(PropertiesOf(options).uParamsPerTerm, 24u);
    EXPECT_EQ(PropertiesOf(options).uNumDataArrays, 2u);
}

}  // namespace
