// The extent of y values against a pure read of the same memory: 100 million points in 1,000 sets,
// and as many points again from an array that stays in the cache.

#include <cstdint>
#include <cstring>
#include <memory>

#include "PairedTiming.h"
#include "contract/CDataOptionsInterface.h"
#include "fixtures/TestDataSource.h"

namespace {

constexpr std::uint32_t kSets = 1000;
constexpr std::uint32_t kPoints = 100000;
constexpr std::uint32_t kCachedPoints = 2000;  // 16 KB

// Hands out arrays of its own; nothing is made on the way.
class ArraySource : public test_support::TestDataSource {
  public:
    ArraySource() {
        Groups({"IN 0"}).Sets(kSets);
        for (std::uint32_t s = 0; s < kSets; ++s) {
            sets_[s] = std::make_unique<double[]>(kPoints);
            for (std::uint32_t i = 0; i < kPoints; ++i)
                sets_[s][i] = static_cast<double>((i * 2654435761u + s) >> 8);
        }
    }
    std::uint32_t GetPointCount(std::uint32_t, std::uint32_t, const ZXADLG_DataRange*,
                                std::uint32_t) override {
        return bCached ? kCachedPoints : kPoints;
    }
    const double* GetYValues(std::uint32_t, std::uint32_t uSet, const ZXADLG_DataRange*,
                             std::uint32_t) override {
        return bCached ? sets_[0].get() : sets_[uSet].get();
    }
    bool bCached = false;

  private:
    std::unique_ptr<double[]> sets_[kSets];
};

using Words = std::uint64_t __attribute__((vector_size(32), aligned(8)));

template <int kUnroll>
inline __attribute__((always_inline)) std::uint64_t ReadAll(const double* pd, std::size_t n) {
    Words all[kUnroll] = {};
    for (std::size_t i = 0; i + 4 * kUnroll <= n; i += 4 * kUnroll) {
        for (int j = 0; j < kUnroll; ++j) all[j] |= *reinterpret_cast<const Words*>(pd + i + 4 * j);
    }
    std::uint64_t result = 0;
    for (int j = 0; j < kUnroll; ++j) result |= all[j][0] | all[j][1] | all[j][2] | all[j][3];
    return result;
}

std::uint64_t ReadBaseline(const double* pd, std::size_t n) {
    return ReadAll<2>(pd, n);
}
#if defined(__x86_64__) || defined(__i386__)
__attribute__((target("avx2"))) std::uint64_t ReadAvx(const double* pd, std::size_t n) {
    return ReadAll<8>(pd, n);
}
bool HasAvx() {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0;
}
#else
std::uint64_t ReadAvx(const double* pd, std::size_t n) {
    return ReadAll<8>(pd, n);
}
bool HasAvx() {
    return false;
}
#endif

volatile std::uint64_t g_uSeen;

}  // namespace

int main() {
    const auto pSource = std::make_unique<ArraySource>();
    const auto pRecord = std::make_unique<ZXADLG_DataOptions>();
    std::memset(static_cast<void*>(pRecord.get()), 0, sizeof *pRecord);
    pRecord->eDataGroup1SelectionMode = 3;
    pRecord->eDataSet1SelectionMode = 1;
    const ZXADLG_DataTabFlags flags;
    CDataOptionsInterface model(pRecord.get(), pSource.get(), &flags);

    const auto read = HasAvx() ? &ReadAvx : &ReadBaseline;
    int nRepeats = 1;
    double dMin = 0, dMax = 0;
    const auto ours = [&] {
        for (int i = 0; i < nRepeats; ++i) model.GetYExtent(&dMin, &dMax, false);
    };
    const auto peer = [&] {
        for (int i = 0; i < nRepeats; ++i) {
            for (std::uint32_t s = 0; s < kSets; ++s) {
                g_uSeen = read(pSource->GetYValues(0, s, nullptr, 0),
                               pSource->GetPointCount(0, s, nullptr, 0));
            }
        }
    };
    bool bGood = PrintTiming("extent of 100 million points against a pure read",
                             TimeInTurn(15, ours, peer), 1.2);
    if (dMin < 0 || dMax < 1000) {
        std::printf("the extent is wrong: %g to %g\n", dMin, dMax);
        bGood = false;
    }
    pSource->bCached = true;
    nRepeats = 50;
    bGood =
        PrintTiming("extent of 100 million points in the cache", TimeInTurn(15, ours, peer), 2.5) &&
        bGood;
    return bGood ? 0 : 1;
}
