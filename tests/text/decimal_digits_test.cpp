#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "text/DecimalDigits.h"

namespace {

// The digits asked for, with the zeros that DecimalDigits leaves out, and the place of the point.
std::string Digits(double dValue, int nDigits) {
    const DecimalDigits digits = ToDecimalDigits(dValue, nDigits);
    std::string sText(digits.szDigits);
    while (static_cast<int>(sText.size()) < nDigits) sText += '0';
    return (digits.bNegative ? "-" : "") + sText + "@" + std::to_string(digits.nPoint);
}

TEST(DecimalDigits, PointStandsRelativeToTheFirstDigit) {
    EXPECT_EQ(Digits(45.0, 2), "45@2");
    EXPECT_EQ(Digits(0.0001, 1), "1@-3");
    EXPECT_EQ(Digits(0.0001, 10), "1000000000@-3");
    EXPECT_EQ(Digits(-111.0001, 5), "-11100@3");
    EXPECT_EQ(Digits(3333.3, 2), "33@4");
    EXPECT_EQ(Digits(999999999999.9, 3), "100@13");
    EXPECT_EQ(Digits(0.0063, 2), "63@-2");
    EXPECT_EQ(Digits(0.09999999996, 2), "10@0");
    EXPECT_EQ(Digits(99.99, 1), "1@3");
}

TEST(DecimalDigits, ZeroHasNoDigitsAndKeepsItsSign) {
    EXPECT_EQ(Digits(0.0, 5), "00000@0");
    EXPECT_EQ(Digits(-0.0, 5), "-00000@0");
    EXPECT_EQ(Digits(0.0, 0), "@0");
}

TEST(DecimalDigits, ZeroDigitsRoundToThePlaceBeforeTheFirst) {
    EXPECT_EQ(Digits(-123.0001, 0), "-@3");
    EXPECT_EQ(Digits(0.6, 0), "1@1");
    EXPECT_EQ(Digits(0.51, 0), "1@1");
    EXPECT_EQ(Digits(0.49, 0), "@0");
    EXPECT_EQ(Digits(0.4, 0), "@0");
    EXPECT_EQ(Digits(0.4, -5), "@0");
}

TEST(DecimalDigits, ExactTiesGoAwayFromZero) {
    EXPECT_EQ(Digits(87646.25, 6), "876463@5");
    EXPECT_EQ(Digits(0.5, 0), "1@1");
    EXPECT_EQ(Digits(2.5, 1), "3@1");
    EXPECT_EQ(Digits(-2.5, 1), "-3@1");
    EXPECT_EQ(Digits(1.5, 1), "2@1");
    EXPECT_EQ(Digits(9.5, 1), "1@2");
    EXPECT_EQ(Digits(0.125, 2), "13@0");
    EXPECT_EQ(Digits(1125899906842624.5, 16), "1125899906842625@16");
    EXPECT_EQ(Digits(4503599627370497.5, 16), "4503599627370498@16");
    EXPECT_EQ(Digits(250000000000.0, 1), "3@12");
    EXPECT_EQ(Digits(2.5e21, 1), "3@22");
}

TEST(DecimalDigits, ApparentTiesGoToTheirNearerSide) {
    EXPECT_EQ(Digits(1.005, 3), "100@1");  // 1.00499999999999989...
    EXPECT_EQ(Digits(0.15, 1), "1@0");     // 0.1499999999999999944...
    EXPECT_EQ(Digits(0.35, 1), "3@0");     // 0.3499999999999999778...
    EXPECT_EQ(Digits(0.45, 1), "5@0");     // 0.4500000000000000111...
    EXPECT_EQ(Digits(1.45, 2), "14@1");    // 1.4499999999999999556...
    EXPECT_EQ(Digits(2.5e22, 1), "2@23");  // 24999999999999997902848
    EXPECT_EQ(Digits(3.5e22, 1), "4@23");  // 35000000000000002097152
    EXPECT_EQ(Digits(5e-324, 1), "5@-323");
    EXPECT_EQ(Digits(2.5e-323, 1), "2@-322");  // 2.47...e-323
}

TEST(DecimalDigits, SixteenAndSeventeenDigitsAreExact) {
    EXPECT_EQ(Digits(0.1, 16), "1000000000000000@0");
    EXPECT_EQ(Digits(0.1, 17), "10000000000000001@0");
    EXPECT_EQ(Digits(1.0 / 3, 17), "33333333333333331@0");
    EXPECT_EQ(Digits(9007199254740993.0, 16), "9007199254740992@16");
}

TEST(DecimalDigits, MoreThanSeventeenDigitsAreSeventeen) {
    EXPECT_STREQ(ToDecimalDigits(1.0 / 3, 18).szDigits, "33333333333333331");
    EXPECT_STREQ(ToDecimalDigits(1.0 / 3, 1000).szDigits, "33333333333333331");
    EXPECT_EQ(ToDecimalDigits(1.0 / 3, 1000).nCount, 17);
}

TEST(DecimalDigits, ValuesBeyondNumbersSpellThemselves) {
    EXPECT_STREQ(ToDecimalDigits(std::numeric_limits<double>::infinity(), 3).szDigits, "1#INF");
    EXPECT_TRUE(ToDecimalDigits(-std::numeric_limits<double>::infinity(), 3).bNegative);
    const DecimalDigits nan = ToDecimalDigits(-std::numeric_limits<double>::quiet_NaN(), 3);
    EXPECT_STREQ(nan.szDigits, "1#QNAN");
    EXPECT_FALSE(nan.bNegative);
}

// Exact decimal digits of any double by long arithmetic, rounded half up: what the fast ways must
// equal.
std::string ExactDigits(double dValue, int nDigits, int* pnPoint) {
    std::uint64_t uBits;
    std::memcpy(&uBits, &dValue, sizeof uBits);
    std::uint64_t uMantissa = uBits & ((std::uint64_t{1} << 52) - 1);
    int nExponent = static_cast<int>(uBits >> 52 & 0x7FF);
    if (nExponent != 0) {
        uMantissa |= std::uint64_t{1} << 52;
    } else {
        nExponent = 1;
    }
    nExponent -= 1075;
    // mantissa * 2^exponent as a decimal number in limbs of nine digits, lowest first
    constexpr std::uint64_t kLimb = 1000000000;
    std::vector<std::uint64_t> limbs;
    for (; uMantissa != 0; uMantissa /= kLimb) limbs.push_back(uMantissa % kLimb);
    const auto multiply = [&limbs](std::uint64_t uFactor) {
        std::uint64_t uCarry = 0;
        for (std::uint64_t& uLimb : limbs) {
            uCarry += uLimb * uFactor;
            uLimb = uCarry % kLimb;
            uCarry /= kLimb;
        }
        if (uCarry != 0) limbs.push_back(uCarry);
    };
    int nPower = 0;
    for (; nExponent >= 20; nExponent -= 20) multiply(1 << 20);
    for (; nExponent > 0; --nExponent) multiply(2);
    for (; nExponent <= -10; nExponent += 10) {
        multiply(9765625);
        nPower -= 10;
    }
    for (; nExponent < 0; ++nExponent) {
        multiply(5);
        --nPower;
    }
    std::string sDigits = std::to_string(limbs.back());
    for (auto it = limbs.rbegin() + 1; it != limbs.rend(); ++it) {
        sDigits += std::to_string(kLimb + *it).substr(1);
    }
    *pnPoint = static_cast<int>(sDigits.size()) + nPower;
    sDigits.resize(sDigits.size() < 20 ? 20 : sDigits.size(), '0');
    const bool bUp = sDigits[static_cast<std::size_t>(nDigits)] >= '5';
    sDigits.resize(static_cast<std::size_t>(nDigits));
    if (bUp) {
        int i = nDigits - 1;
        while (i >= 0 && sDigits[static_cast<std::size_t>(i)] == '9')
            sDigits[static_cast<std::size_t>(i--)] = '0';
        if (i >= 0) {
            ++sDigits[static_cast<std::size_t>(i)];
        } else {
            sDigits[0] = '1';
            ++*pnPoint;
        }
    }
    return sDigits;
}

TEST(DecimalDigits, AgreeWithLongArithmetic) {
    std::uint64_t uState = 88172645463325252u;
    const auto next = [&uState] {
        uState ^= uState << 13;
        uState ^= uState >> 7;
        return uState ^= uState << 17;
    };
    for (int i = 0; i < 2000; ++i) {
        double dValue;
        switch (i % 40 == 0 ? 0 : i % 4) {
            case 0: {
                const std::uint64_t uBits = next() >> 1;
                std::memcpy(&dValue, &uBits, sizeof dValue);
                break;
            }
            case 1:
                dValue = static_cast<double>(next() % 2000000000) / 1000;
                break;
            case 2:
                dValue = static_cast<double>(next() % 100000000) /
                         static_cast<double>(1 << (next() % 20));
                break;
            default:
                dValue = static_cast<double>(next() % 1000000) / 8;
                break;
        }
        if (!(dValue <= std::numeric_limits<double>::max()) || dValue == 0) continue;
        const int nDigits = 1 + static_cast<int>(next() % 16);
        int nPoint = 0;
        const std::string sExact = ExactDigits(dValue, nDigits, &nPoint);
        ASSERT_EQ(Digits(dValue, nDigits), sExact + "@" + std::to_string(nPoint))
            << "value " << i << ", " << nDigits << " digits";
    }
}

}  // namespace
