#include "seeds/Reduction.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace curvefit {

namespace {

constexpr std::size_t kGuardFrom = 16;
constexpr std::size_t kGuardTo = 8191;  // longer records are guarded behind the bins
constexpr std::size_t kTrimFrom = 8;

// Numbers that stand a fixed step apart.
struct Strided {
    double operator[](std::size_t i) const {
        return pFirst[static_cast<std::ptrdiff_t>(i) * nStep];
    }
    const double* pFirst;
    std::ptrdiff_t nStep;
};

// The points in ascending order of x; a copy is made for a record that is in no order.
class OrderedPoints {
  public:
    OrderedPoints(const double* pX, const double* pY, std::size_t n) : x{pX, 1}, y{pY, 1} {
        if (std::is_sorted(pX, pX + n)) return;
        if (std::is_sorted(std::reverse_iterator(pX + n), std::reverse_iterator(pX))) {
            x = {pX + n - 1, -1};
            y = {pY + n - 1, -1};
            return;
        }
        m_sorted.reserve(n);
        for (std::size_t i = 0; i < n; ++i) m_sorted.push_back({pX[i], pY[i]});
        // By y where x are equal, so that the order of the points has no say; and with no second
        // copy.
        std::sort(m_sorted.begin(), m_sorted.end());
        x = {m_sorted[0].data(), 2};
        y = {m_sorted[0].data() + 1, 2};
    }
    OrderedPoints(const OrderedPoints&) = delete;
    OrderedPoints& operator=(const OrderedPoints&) = delete;

    Strided x;
    Strided y;

  private:
    std::vector<std::array<double, 2>> m_sorted;
};

// A power of two near the largest size, 1 for nothing but zeros.
double ScaleOf(double dLargest) {
    if (dLargest == 0.0) return 1.0;
    int nExponent = 0;
    std::frexp(dLargest, &nExponent);
    return std::ldexp(1.0, std::clamp(nExponent, -1021, 1022));
}

double MedianOfThree(double a, double b, double c) {
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

// Noise is told by second differences, which a smooth signal hardly has. Many points that stand out
// are signal. Values before nFirst are left alone.
void GuardOutliers(std::vector<double>& values, std::size_t nFirst) {
    const std::size_t n = values.size() - nFirst;
    if (n < kGuardFrom) return;
    double* y = values.data() + nFirst;
    std::vector<double> sizes;
    sizes.reserve(n);
    for (std::size_t k = 1; k + 1 < n; ++k)
        sizes.push_back(std::fabs(y[k - 1] - 2.0 * y[k] + y[k + 1]));
    std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2),
                     sizes.end());
    const double dNoise = 1.4826 * sizes[sizes.size() / 2] / std::sqrt(6.0);
    std::vector<std::pair<std::size_t, double>> changes;
    const std::size_t nMost = std::max<std::size_t>(1, n / 100);
    for (std::size_t k = 1; k + 1 < n; ++k) {
        const double dMedian = MedianOfThree(y[k - 1], y[k], y[k + 1]);
        if (!(std::fabs(y[k] - dMedian) > 8.0 * dNoise)) continue;
        if (changes.size() == nMost) return;
        changes.emplace_back(k, dMedian);
    }
    for (const auto& [k, dMedian] : changes) y[k] = dMedian;
}

// The largest size; four at a time, since each comparison waits for the one before.
double LargestSize(const Strided& values, std::size_t nFrom, std::size_t nTo) {
    double largest[4] = {};
    std::size_t i = nFrom;
    for (; i + 4 <= nTo; i += 4) {
        for (std::size_t k = 0; k < 4; ++k)
            largest[k] = std::max(largest[k], std::fabs(values[i + k]));
    }
    for (; i < nTo; ++i) largest[0] = std::max(largest[0], std::fabs(values[i]));
    return *std::max_element(std::begin(largest), std::end(largest));
}

// The values of x as the rules want them, in ascending order.
struct Places {
    double operator[](std::size_t i) const {
        const double d = x[i];
        return (bConcentration && d <= 0.0 ? dSubstitute : d) - dOrigin;
    }
    Strided x;
    bool bConcentration;
    double dSubstitute;
    double dOrigin;
};

// The smallest step above zero; 0 where there is none.
double SmallestStep(const Places& places, std::size_t nFrom, std::size_t nTo) {
    constexpr double kNone = std::numeric_limits<double>::infinity();
    double smallest[2] = {kNone, kNone};
    const auto take = [&](std::size_t i) {
        const double d = places[i] - places[i - 1];
        double& dSmallest = smallest[i % 2];
        dSmallest = d > 0.0 && d < dSmallest ? d : dSmallest;
    };
    std::size_t i = nFrom + 1;
    for (; i + 2 <= nTo; i += 2) {
        take(i);
        take(i + 1);
    }
    if (i < nTo) take(i);
    const double dSmallest = std::min(smallest[0], smallest[1]);
    return dSmallest == kNone ? 0.0 : dSmallest;
}

// The points from nFrom to before nTo as one: their mean, without the smallest and the largest
// value where there are enough.
void AddBin(const Places& places, double dPerX, const Strided& y, double dPerY, std::size_t nFrom,
            std::size_t nTo, ReducedData& data) {
    const auto n = static_cast<double>(nTo - nFrom);
    double dSumX = 0.0;
    double dSumY = 0.0;
    double dLow = y[nFrom];
    double dHigh = dLow;
    for (std::size_t i = nFrom; i < nTo; ++i) {
        const double dY = y[i];
        dSumX += places[i] * dPerX;
        dSumY += dY * dPerY;
        dLow = dY < dLow ? dY : dLow;
        dHigh = dY > dHigh ? dY : dHigh;
    }
    double dCount = n;
    if (nTo - nFrom >= kTrimFrom) {
        dSumY -= dLow * dPerY + dHigh * dPerY;
        dCount -= 2.0;
    }
    data.x.push_back(dSumX / n);
    data.y.push_back(dSumY / dCount);
    data.weight.push_back(n);
}

}  // namespace

double ReducedData::RangeY() const {
    const auto [low, high] = std::minmax_element(y.begin(), y.end());
    return *high - *low;
}

ReducedData Reduce(const double* x, const double* y, std::size_t n, const ReductionRules& rules) {
    ReducedData data;
    data.dSmallestStep = 1.0;
    const OrderedPoints points(x, y, n);
    const Places places = {points.x, rules.bConcentration, rules.dSubstitute, rules.dOrigin};
    std::size_t nFirst = 0;
    while (rules.bOnlyNonNegative && nFirst < n && places[nFirst] < 0.0) ++nFirst;
    const std::size_t nLeft = data.nPoints = n - nFirst;
    if (nLeft == 0) return data;
    // In their order the first or the last x is the largest.
    data.dScaleX = ScaleOf(std::max(std::fabs(places[nFirst]), std::fabs(places[n - 1])));
    data.dScaleY = ScaleOf(LargestSize(points.y, nFirst, n));
    // Powers of two divide and multiply alike.
    const double dPerX = 1.0 / data.dScaleX;
    const double dPerY = 1.0 / data.dScaleY;
    const bool bGuardPoints = rules.bGuardOutliers && nLeft <= kGuardTo;
    std::vector<double> guarded;
    if (bGuardPoints) {
        guarded.reserve(n);
        for (std::size_t i = 0; i < n; ++i) guarded.push_back(points.y[i] * dPerY);
        GuardOutliers(guarded, nFirst);
    }
    const Strided values = bGuardPoints ? Strided{guarded.data(), 1} : points.y;
    const double dPerValue = bGuardPoints ? 1.0 : dPerY;
    const bool bBins = nLeft > rules.nBins;
    const std::size_t nBins = bBins ? rules.nBins : nLeft;
    const double dPower = bBins && rules.bFineOnset ? 2.0 : 1.0;
    const auto edge = [&](std::size_t k) {
        const double dShare = static_cast<double>(k) / static_cast<double>(nBins);
        return nFirst + static_cast<std::size_t>(
                            std::lround(static_cast<double>(nLeft) * std::pow(dShare, dPower)));
    };
    std::size_t nFrom = nFirst;
    for (std::size_t k = 1; k <= nBins; ++k) {
        const std::size_t nTo = bBins ? edge(k) : nFrom + 1;
        if (nTo == nFrom) continue;
        AddBin(places, dPerX, values, dPerValue, nFrom, nTo, data);
        nFrom = nTo;
    }
    if (rules.bGuardOutliers && !bGuardPoints) GuardOutliers(data.y, 0);
    for (std::size_t i = 0; i < data.Size(); ++i)
        data.nDistinct += i == 0 || data.x[i] > data.x[i - 1];
    const double dStep = SmallestStep(places, nFirst, n) * dPerX;
    if (dStep > 0.0) data.dSmallestStep = dStep;
    return data;
}

}  // namespace curvefit
