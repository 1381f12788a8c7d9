#include "ParserMath.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace {

static_assert(sizeof(long double) > sizeof(double),
              "the reduction needs the unit's full precision");

constexpr long double kTwoOverPi = 0xA2F9836E4E441529.0p-64L;
constexpr long double kHalfPi = 0xC90FDAA22168C234.0p-63L;
// Half of pi in three parts, the first two of 33 bits: times a whole number of 30 bits each is
// exact.
constexpr long double kHalfPi1 = 0xC90FDAA2.0p-31L;
constexpr long double kHalfPi2 = 0x85A308D3.0p-65L;
constexpr long double kHalfPi3 = 0x98CC51701B839A25.0p-132L;

// The bits of 2/pi after the point, behind a word of zeros.
constexpr std::uint32_t kTwoOverPiBits[] = {
    0,           0xA2F9836Eu, 0x4E441529u, 0xFC2757D1u, 0xF534DDC0u, 0xDB629599u, 0x3C439041u,
    0xFE5163ABu, 0xDEBBC561u, 0xB7246E3Au, 0x424DD2E0u, 0x06492EEAu, 0x09D1921Cu, 0xFE1DEB1Cu,
    0xB129A73Eu, 0xE88235F5u, 0x2EBB4484u, 0xE99C7026u, 0xB45F7E41u, 0x3991D639u, 0x835339F4u,
    0x9C845F8Bu, 0xBDF9283Bu, 0x1FF897FFu, 0xDE05980Fu, 0xEF2F118Bu, 0x5A0A6D1Fu, 0x6D367ECFu,
    0x27CB09B7u, 0x4F463F66u, 0x9E5FEA2Du, 0x7527BAC7u, 0xEBE5F17Bu, 0x3D0739F7u, 0x8A5292EAu,
    0x6BFB5FB1u, 0x1F8D5D08u, 0x56033046u, 0xFC7B6BABu, 0xF0CFBC20u, 0x9AF4361Du,
};

// An argument as a number of quarter turns (of which the lowest two bits count) and a rest of at
// most an eighth of a turn.
struct Reduced {
    unsigned uQuarters;
    long double dRest;
};

// 192 bits of 2/pi, from bit nFirst on, times the mantissa: modulo 4, the product is the number of
// quarter turns, with 190 bits after the point. What stands before those bits makes whole turns
// only.
Reduced ReduceLarge(double x) {
    constexpr int nWords = 6;
    const std::uint64_t uBits = std::bit_cast<std::uint64_t>(x);
    const std::uint64_t uMantissa = (uBits & 0xFFFFFFFFFFFFFu) | 0x10000000000000u;
    const int nExponent = static_cast<int>(uBits >> 52 & 0x7FF) - 1075;
    const std::uint64_t uFactors[2] = {uMantissa & 0xFFFFFFFFu, uMantissa >> 32};
    const int nFirst = nExponent - 2 + 32;

    std::uint32_t uProduct[nWords] = {};
    for (int f = 0; f < 2; ++f) {
        std::uint64_t uCarry = 0;
        for (int i = 0; i + f < nWords; ++i) {
            const int nBit = nFirst + 32 * (nWords - 1 - i);
            const std::uint64_t uPair = static_cast<std::uint64_t>(kTwoOverPiBits[nBit / 32])
                                            << 32 |
                                        kTwoOverPiBits[nBit / 32 + 1];
            const std::uint64_t uWord = uPair >> (32 - nBit % 32) & 0xFFFFFFFFu;
            uCarry += uWord * uFactors[f] + uProduct[i + f];
            uProduct[i + f] = static_cast<std::uint32_t>(uCarry);
            uCarry >>= 32;
        }
    }

    std::uint32_t& uTop = uProduct[nWords - 1];
    unsigned uQuarters = uTop >> 30;
    const bool bAbove = (uTop & 0x20000000u) != 0;  // more than half a quarter turn is left
    if (bAbove) ++uQuarters;
    uTop &= 0x3FFFFFFFu;
    long double dRest = 0.0L;
    long double dWeight = 0x1p-190L;
    for (int i = 0; i < nWords; ++i) {
        // The complement of the rest, but for one in its last bit, is what lacks to the next
        // quarter.
        const std::uint32_t uAll = i == nWords - 1 ? 0x3FFFFFFFu : 0xFFFFFFFFu;
        dRest += (bAbove ? uAll - uProduct[i] : uProduct[i]) * dWeight;
        dWeight *= 0x1p32L;
    }
    return {uQuarters, (bAbove ? -dRest : dRest) * kHalfPi};
}

Reduced Reduce(double x) {
    const double dSize = std::fabs(x);
    if (dSize <= 0.78) return {0, x};
    if (dSize < 0x1p30) {
        const long double n = std::rint(static_cast<long double>(x) * kTwoOverPi);
        const long double dRest = ((x - n * kHalfPi1) - n * kHalfPi2) - n * kHalfPi3;
        return {static_cast<unsigned>(static_cast<std::int64_t>(n)), dRest};
    }
    const Reduced reduced = ReduceLarge(dSize);
    return x > 0.0 ? reduced : Reduced{0u - reduced.uQuarters, -reduced.dRest};
}

// The sine of the argument that lies uAhead quarter turns further.
double SineAhead(double x, unsigned uAhead) {
    if (!std::isfinite(x)) return x - x;
    const Reduced reduced = Reduce(x);
    const unsigned uQuarters = reduced.uQuarters + uAhead;
    const long double dSine =
        (uQuarters & 1) != 0 ? std::cos(reduced.dRest) : std::sin(reduced.dRest);
    return static_cast<double>((uQuarters & 2) != 0 ? -dSine : dSine);
}

}  // namespace

double Sine(double x) {
    return SineAhead(x, 0);
}
double Cosine(double x) {
    return SineAhead(x, 1);
}

double Power(double x, double y) {
    if constexpr (sizeof(void*) == 8) {
        return static_cast<double>(
            std::pow(static_cast<long double>(x), static_cast<long double>(y)));
    } else {
        return std::pow(x, y);
    }
}
