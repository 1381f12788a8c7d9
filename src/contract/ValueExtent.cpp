#include "contract/ValueExtent.h"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

namespace {

// The comparisons as they stand: for a NaN neither holds.
void ScanSingly(const double* pdValues, std::size_t nCount, double& dMin, double& dMax) {
    for (std::size_t i = 0; i < nCount; ++i) {
        if (pdValues[i] < dMin) dMin = pdValues[i];
        if (pdValues[i] > dMax) dMax = pdValues[i];
    }
}

#if defined(__x86_64__) || defined(__i386__)

// As many vectors at a time as the registers hold, two for each.
#if defined(__x86_64__)
constexpr std::size_t kVectors = 6;
#else
constexpr std::size_t kVectors = 3;
#endif

// The vector operations give their second operand when either is a NaN: with the value first and
// the limit second they are the comparisons above.
void ScanBaseline(const double* pdValues, std::size_t nCount, double& dMin, double& dMax) {
    constexpr std::size_t kLanes = 2;
    __m128d low[kVectors], high[kVectors];
    for (std::size_t j = 0; j < kVectors; ++j) {
        low[j] = _mm_set1_pd(dMin);
        high[j] = _mm_set1_pd(dMax);
    }
    std::size_t i = 0;
    for (; i + kVectors * kLanes <= nCount; i += kVectors * kLanes) {
#pragma GCC unroll 8
        for (std::size_t j = 0; j < kVectors; ++j) {
            const __m128d v = _mm_loadu_pd(pdValues + i + j * kLanes);
            low[j] = _mm_min_pd(v, low[j]);
            high[j] = _mm_max_pd(v, high[j]);
        }
    }
    double limits[kLanes];
    for (std::size_t j = 0; j < kVectors; ++j) {
        _mm_storeu_pd(limits, low[j]);
        for (const double d : limits) dMin = d < dMin ? d : dMin;
        _mm_storeu_pd(limits, high[j]);
        for (const double d : limits) dMax = d > dMax ? d : dMax;
    }
    ScanSingly(pdValues + i, nCount - i, dMin, dMax);
}

__attribute__((target("avx"))) void ScanAvx(const double* pdValues, std::size_t nCount,
                                            double& dMin, double& dMax) {
    constexpr std::size_t kLanes = 4;
    __m256d low[kVectors], high[kVectors];
    for (std::size_t j = 0; j < kVectors; ++j) {
        low[j] = _mm256_set1_pd(dMin);
        high[j] = _mm256_set1_pd(dMax);
    }
    std::size_t i = 0;
    for (; i + kVectors * kLanes <= nCount; i += kVectors * kLanes) {
#pragma GCC unroll 8
        for (std::size_t j = 0; j < kVectors; ++j) {
            const __m256d v = _mm256_loadu_pd(pdValues + i + j * kLanes);
            low[j] = _mm256_min_pd(v, low[j]);
            high[j] = _mm256_max_pd(v, high[j]);
        }
    }
    double limits[kLanes];
    for (std::size_t j = 0; j < kVectors; ++j) {
        _mm256_storeu_pd(limits, low[j]);
        for (const double d : limits) dMin = d < dMin ? d : dMin;
        _mm256_storeu_pd(limits, high[j]);
        for (const double d : limits) dMax = d > dMax ? d : dMax;
    }
    ScanSingly(pdValues + i, nCount - i, dMin, dMax);
}

#endif

using ScanFunction = void (*)(const double*, std::size_t, double&, double&);

ScanFunction ChooseScan() {
#if defined(__x86_64__) || defined(__i386__)
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx") ? &ScanAvx : &ScanBaseline;
#else
    return &ScanSingly;
#endif
}

}  // namespace

void WidenExtent(const double* pdValues, std::size_t nCount, double& dMin, double& dMax) {
    static const ScanFunction scan = ChooseScan();
    scan(pdValues, nCount, dMin, dMax);
}
