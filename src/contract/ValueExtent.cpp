#include "contract/ValueExtent.h"

namespace {

// Four doubles at a time; the compiler makes of it what the target offers. Written as the
// comparison that it stands for, so that a NaN leaves a lane alone.
using Lanes = double __attribute__((vector_size(32), aligned(8)));

template <int kUnroll>
inline __attribute__((always_inline)) void Scan(const double* pdValues, std::size_t nCount,
                                                double& dMin, double& dMax) {
    constexpr std::size_t kLanes = 4;
    constexpr std::size_t kStep = kUnroll * kLanes;
    Lanes low[kUnroll];
    Lanes high[kUnroll];
    for (int j = 0; j < kUnroll; ++j) {
        low[j] = Lanes{dMin, dMin, dMin, dMin};
        high[j] = Lanes{dMax, dMax, dMax, dMax};
    }
    std::size_t i = 0;
    for (; i + kStep <= nCount; i += kStep) {
        for (int j = 0; j < kUnroll; ++j) {
            const Lanes v = *reinterpret_cast<const Lanes*>(pdValues + i + j * kLanes);
            low[j] = v < low[j] ? v : low[j];
            high[j] = v > high[j] ? v : high[j];
        }
    }
    for (int j = 0; j < kUnroll; ++j) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            if (low[j][lane] < dMin) dMin = low[j][lane];
            if (high[j][lane] > dMax) dMax = high[j][lane];
        }
    }
    for (; i < nCount; ++i) {
        if (pdValues[i] < dMin) dMin = pdValues[i];
        if (pdValues[i] > dMax) dMax = pdValues[i];
    }
}

using ScanFunction = void (*)(const double*, std::size_t, double&, double&);

void ScanBaseline(const double* pdValues, std::size_t nCount, double& dMin, double& dMax) {
    Scan<2>(pdValues, nCount, dMin, dMax);
}

#if defined(__x86_64__) || defined(__i386__)
__attribute__((target("avx"))) void ScanAvx(const double* pdValues, std::size_t nCount,
                                            double& dMin, double& dMax) {
    Scan<4>(pdValues, nCount, dMin, dMax);
}

ScanFunction ChooseScan() {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx") ? &ScanAvx : &ScanBaseline;
}
#else
ScanFunction ChooseScan() {
    return &ScanBaseline;
}
#endif

}  // namespace

void WidenExtent(const double* pdValues, std::size_t nCount, double& dMin, double& dMax) {
    static const ScanFunction scan = ChooseScan();
    scan(pdValues, nCount, dMin, dMax);
}
