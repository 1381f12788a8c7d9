// Values computed once and written down: the arithmetic is the same to the bit in every build, the
// transcendental functions are within one unit in the last place.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "ParserInspector.h"
#include "ParserMath.h"

namespace {

enum Tolerance { EXACT = 0, ONE_ULP = 1 };

struct Golden {
    const char* pszEquation;
    double x;
    double p;
    Tolerance eTolerance;
    double dValue;
};

// The number of doubles between two.
std::uint64_t Distance(double a, double b) {
    const auto order = [](double d) {
        const auto n = std::bit_cast<std::int64_t>(d);
        return n < 0 ? INT64_MIN - n : n;
    };
    const std::int64_t nA = order(a), nB = order(b);
    return nA > nB ? static_cast<std::uint64_t>(nA) - static_cast<std::uint64_t>(nB)
                   : static_cast<std::uint64_t>(nB) - static_cast<std::uint64_t>(nA);
}

// clang-format off
constexpr Golden kGolden[] = {
    {"Y1=X1+P1", 0.10000000000000001, 0.20000000000000001, EXACT, 0x1.3333333333334p-2},
    {"Y1=X1-P1", 0.29999999999999999, 0.10000000000000001, EXACT, 0x1.9999999999999p-3},
    {"Y1=X1*P1", 1.1000000000000001, 1.3, EXACT, 0x1.6e147ae147ae2p+0},
    {"Y1=X1/P1", 1, 3, EXACT, 0x1.5555555555555p-2},
    {"Y1=X1/P1", -7.7000000000000002, 0.29999999999999999, EXACT, -0x1.9aaaaaaaaaaabp+4},
    {"Y1=(X1+P1)*(X1-P1)/(X1*P1)+0.1", 3.7000000000000002, 1.8999999999999999, EXACT, 0x1.88aab718b08abp+0},
    {"Y1=X1*-P1+X1", 2.6000000000000001, 0.69999999999999996, EXACT, 0x1.3c28f5c28f5c3p+2},
    {"Y1=SQRT(X1)", 2, 0, EXACT, 0x1.6a09e667f3bcdp+0},
    {"Y1=SQRT(X1)*SQRT(P1)", 3, 1e-300, EXACT, 0x1.6adc04a97c42dp-498},
    {"Y1=RECT(X1)/3", -10, 0, EXACT, 0x1.aaaaaaaaaaaabp+1},
    {"Y1=INV(X1)", 7, 0, EXACT, 0x1.2492492492492p-3},
    {"Y1=FACT(X1)", 170, 0, EXACT, 0x1.4ab786441863dp+1019},
    {"Y1=FACT(X1)", 25, 0, EXACT, 0x1.9a940c33f612p+83},
    {"Y1=FACT(X1)", 9.6999999999999993, 0, EXACT, 0x1.3a16be32d8eaep+20},
    {"Y1=.1+.7*X1", 0.10000000000000001, 0, EXACT, 0x1.5c28f5c28f5c2p-3},
    {"Y1=123456789.123456789/X1", 0.29999999999999999, 0, EXACT, 0x1.887564669598cp+28},
    {"Y1=0.1+0.2+0.3", 0, 0, EXACT, 0x1.3333333333334p-1},
    {"Y1=PI*X1", 2, 0, EXACT, 0x1.921fb54442d18p+2},
    {"Y1=X1/P1", 9.9999999999999991e-309, 7, EXACT, 0x0.106fa112845d5p-1022},
    {"Y1=X1*X1", 1.2345678e-160, 0, EXACT, 0x0.0000000000c0dp-1022},
    {"Y1=SIN(X1)", 1, 0, ONE_ULP, 0x1.aed548f090ceep-1},
    {"Y1=SIN(X1)", 3.1415926535897931, 0, ONE_ULP, 0x1.1a62633145c07p-53},
    {"Y1=SIN(X1)", -100, 0, ONE_ULP, 0x1.03425b78c4db8p-1},
    {"Y1=SIN(X1)", 10000000000, 0, ONE_ULP, -0x1.f334c7896a4e3p-2},
    {"Y1=SIN(X1)", 1e+22, 0, ONE_ULP, -0x1.b453ab76bf397p-1},
    {"Y1=COS(X1)", 1, 0, ONE_ULP, 0x1.14a280fb5068cp-1},
    {"Y1=COS(X1)", 1.5707963267948966, 0, ONE_ULP, 0x1.1a62633145c07p-54},
    {"Y1=COS(X1)", -1000000, 0, ONE_ULP, 0x1.df9df9906d32cp-1},
    {"Y1=COS(X1)", 1.0000000000000001e+300, 0, ONE_ULP, -0x1.2699022adc4c1p-1},
    {"Y1=SIN(PI)", 0, 0, ONE_ULP, 0x1.1a62633145c07p-53},
    {"Y1=COS(PI/2)", 0, 0, ONE_ULP, 0x1.1a62633145c07p-54},
    {"Y1=TAN(X1)", 1, 0, ONE_ULP, 0x1.8eb245cbee3a6p+0},
    {"Y1=TAN(X1)", 1.5707963267948966, 0, ONE_ULP, 0x1.d02967c31cdb5p+53},
    {"Y1=TAN(X1)", 1000000, 0, ONE_ULP, -0x1.7e9768ab734cp-2},
    {"Y1=ARSIN(X1)", 0.5, 0, ONE_ULP, 0x1.0c152382d7366p-1},
    {"Y1=ARSIN(X1)", -0.999, 0, ONE_ULP, -0x1.86ac9ad18f803p+0},
    {"Y1=ARCOS(X1)", 0.29999999999999999, 0, ONE_ULP, 0x1.441f5ecbeef59p+0},
    {"Y1=ARCOS(X1)", -1, 0, ONE_ULP, 0x1.921fb54442d18p+1},
    {"Y1=ARTAN(X1)", 0.69999999999999996, 0, ONE_ULP, 0x1.38b112d7bd4adp-1},
    {"Y1=ARTAN(X1)", -100000, 0, ONE_ULP, -0x1.921f0d7e968a8p+0},
    {"Y1=EXP(X1)", 1, 0, ONE_ULP, 0x1.5bf0a8b145769p+1},
    {"Y1=EXP(X1)", -0.69999999999999996, 0, ONE_ULP, 0x1.fc80db9dd5542p-2},
    {"Y1=EXP(X1)", 709.5, 0, ONE_ULP, 0x1.81e9b4b52d0c9p+1023},
    {"Y1=EXP(X1)", -745, 0, ONE_ULP, 0x0.0000000000001p-1022},
    {"Y1=EXP(X1)", -710.29999999999995, 0, ONE_ULP, 0x0.262715f7b681fp-1022},
    {"Y1=LN(X1)", 2, 0, ONE_ULP, 0x1.62e42fefa39efp-1},
    {"Y1=LN(X1)", 1.0001, 0, ONE_ULP, 0x1.a368d0657fcd4p-14},
    {"Y1=LN(X1)", 1e-300, 0, ONE_ULP, -0x1.5963447f87fb5p+9},
    {"Y1=LOG(X1)", 2, 0, ONE_ULP, 0x1.34413509f79ffp-2},
    {"Y1=LOG(X1)", 1000, 0, ONE_ULP, 0x1.8p+1},
    {"Y1=LOG(X1)", 0.999, 0, ONE_ULP, -0x1.c79e5dbf022b6p-12},
    {"Y1=X1^P1", 2, 0.5, ONE_ULP, 0x1.6a09e667f3bcdp+0},
    {"Y1=X1^P1", 10, -3, ONE_ULP, 0x1.0624dd2f1a9fcp-10},
    {"Y1=X1^P1", 1.1000000000000001, 1000, ONE_ULP, 0x1.6aec8cd64aba1p+137},
    {"Y1=X1^P1", 0.90000000000000002, -6000.5, ONE_ULP, 0x1.11577f57bc3ffp+912},
    {"Y1=X1^P1", 1.0000001000000001, 3000000000, ONE_ULP, 0x1.c05a56d6753a4p+432},
    {"Y1=X1^P1", -3, 33, ONE_ULP, -0x1.3bfefa65abb83p+52},
    {"Y1=X1^2", 1.1000000000000001, 0, ONE_ULP, 0x1.35c28f5c28f5dp+0},
    {"Y1=X1^2", 0.29999999999999999, 0, ONE_ULP, 0x1.70a3d70a3d70ap-4},
    {"Y1=10^X1", -4.7000000000000002, 0, ONE_ULP, 0x1.4ebfdd286009ap-16},
};
// clang-format on

}  // namespace

TEST(Golden, ValuesAreTheSameInEveryBuild) {
    for (const Golden& golden : kGolden) {
        SCOPED_TRACE(std::string(golden.pszEquation) + " at " + std::to_string(golden.x));
        const double dValue = ValueOf(golden.pszEquation, golden.x, golden.p);
        EXPECT_LE(Distance(dValue, golden.dValue), static_cast<std::uint64_t>(golden.eTolerance))
            << std::hexfloat << dValue << " is not " << golden.dValue;
    }
}

TEST(Golden, PiIsFourTimesTheArcTangentOfOne) {
    EXPECT_EQ(ValueOf("Y1=PI"), 0x1.921fb54442d18p+1);
}

TEST(Golden, DecimalNumbersAreReadToTheNearestDouble) {
    EXPECT_EQ(ValueOf("Y1=0.1"), 0x1.999999999999ap-4);
    EXPECT_EQ(ValueOf("Y1=9007199254740993"), 0x1p+53);
    EXPECT_EQ(ValueOf("Y1=9007199254740993.0000000000000000000001"), 0x1.0000000000001p+53);
    EXPECT_EQ(ValueOf("Y1=.000000000000000000000000000001"), 0x1.4484bfeebc2ap-100);
    EXPECT_EQ(ValueOf("Y1=1" + std::string(200, '0')), 1e200);
    EXPECT_EQ(ValueOf("Y1=(.)"), 0.0);
    EXPECT_EQ(ValueOf("Y1=.+1"), 1.0);
}

TEST(Golden, SineAndCosineOfSpecialArguments) {
    EXPECT_EQ(Sine(0.0), 0.0);
    EXPECT_TRUE(std::signbit(Sine(-0.0)));
    EXPECT_EQ(Cosine(0.0), 1.0);
    EXPECT_EQ(Sine(5e-324), 5e-324);
    EXPECT_TRUE(std::isnan(Sine(INFINITY)));
    EXPECT_TRUE(std::isnan(Cosine(-INFINITY)));
    EXPECT_TRUE(std::isnan(Sine(NAN)));
}

TEST(Golden, SineAndCosineAreOddAndEven) {
    for (double x = 0.01; x < 1e305; x *= 1.7) {
        ASSERT_EQ(Sine(-x), -Sine(x)) << x;
        ASSERT_EQ(Cosine(-x), Cosine(x)) << x;
        ASSERT_NEAR(Sine(x) * Sine(x) + Cosine(x) * Cosine(x), 1.0, 1e-15) << x;
    }
}

// A host's thread may have set the floating-point unit to fewer digits.
TEST(Golden, ReducedPrecisionOfTheHostChangesNothing) {
    const unsigned short uReduced = 0x27F;
    unsigned short uBefore = 0, uAfter = 0;
    __asm__ __volatile__("fnstcw %0" : "=m"(uBefore));
    __asm__ __volatile__("fldcw %0" : : "m"(uReduced));
    double values[std::size(kGolden)];
    for (std::size_t i = 0; i < std::size(kGolden); ++i) {
        values[i] = ValueOf(kGolden[i].pszEquation, kGolden[i].x, kGolden[i].p);
    }
    __asm__ __volatile__("fnstcw %0" : "=m"(uAfter));
    __asm__ __volatile__("fldcw %0" : : "m"(uBefore));
    EXPECT_EQ(uAfter, uReduced);
    for (std::size_t i = 0; i < std::size(kGolden); ++i) {
        SCOPED_TRACE(kGolden[i].pszEquation);
        EXPECT_LE(Distance(values[i], kGolden[i].dValue),
                  static_cast<std::uint64_t>(kGolden[i].eTolerance));
    }
}
