#include "HistogramSectionFuzz.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <limits>

#include "contract/OptionPersistence.h"
#include "measure/HistogramChecks.h"
#include "store/ProfileStore.h"

namespace {

using Record = ZXADLG_HistogramOptions;

void Hold(bool b) {
    if (!b) std::abort();
}

void Store(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile) {
    std::ofstream file(sProfile, std::ios::binary);
    file << "[HistogramSection]\r\n";
    file.write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
    file << "\r\n";
}

bool IsWithin(float f, const HistogramRange& range) {
    return f >= SingleValue(range.dMin) && f <= SingleValue(range.dMax);
}

void HoldCount(const BinCount& count) {
    Hold(count.nCount <= kMostBins && count.nCount >= -kMostBins);
    Hold((count.eState == BinCountState::kCounted) == (count.nCount != 0));
}

void Ask(Record options, const HistogramRange& range) {
    CompleteHistogramRecord(options);
    Hold(options.eHistoType >= 0 && options.eHistoType <= 3);
    Hold(options.fBinWidth > 0.0f && std::isfinite(options.fBinWidth));
    Hold(options.nBinsPerDecade >= 0 && options.nBinsPerDecade <= kMostBins);
    Hold(options.nNumBins >= 0 && options.nNumBins <= kMostBins);
    HoldCount(CountLinearBins(range, options.fBinWidth));
    HoldCount(CountLogarithmicBins(range, options.fBinWidth, options.nBinsPerDecade));
    const HistogramLimits stored = {options.fMinDataValue, options.fMaxDataValue};
    const HistogramLimits lost = {0.0f, 0.0f};
    for (const HistogramLimits& first : {stored, lost}) {
        const HistogramLimits limits = FollowRange(stored, first, range, options.fBinWidth);
        Hold(std::isfinite(limits.fLower) && std::isfinite(limits.fUpper));
        if (first == lost && range.dMin <= range.dMax)
            Hold(IsWithin(limits.fLower, range) && IsWithin(limits.fUpper, range));
        FollowRange(lost, first, range, options.fBinWidth);
    }
    if (options.nNumBins > 0) Hold(std::isfinite(WidthOfBins(range, options.nNumBins)));
    Hold(MostWidth(range, options.fBinWidth) > 0.0);
    Hold(WidthStep(range) > 0.0);
    const CheckResult result = CheckHistogram({.eKind = options.eHistoType,
                                               .nBinsPerDecade = options.nBinsPerDecade,
                                               .fWidth = options.fBinWidth,
                                               .limits = stored,
                                               .bBinAllData = options.bBinAllData != 0});
    if (result.has_value()) Hold(result->nStringId != 0 && result->nControl != 0);
}

}  // namespace

void FuzzHistogramSection(const std::uint8_t* pData, std::size_t nSize,
                          const std::string& sProfile) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const HistogramRange ranges[] = {{},
                                     {0, 10, true},
                                     {5.5, 5.5, true},
                                     {-1e308, 1e308, true},
                                     {1e-300, 3e-300, true},
                                     {10, -10, true},
                                     {-kInfinity, kInfinity, true}};
    Store(pData, nSize, sProfile);
    SetUseProfileFile(true);
    // What is not stored keeps what a host passed, here zeros or rubbish.
    Record options;
    std::memset(&options, nSize % 2 == 0 ? 0 : 0xA5, sizeof options);
    LoadHistogramOptions(sProfile.c_str(), &options);
    for (const HistogramRange& range : ranges) Ask(options, range);
    SaveHistogramOptions(sProfile.c_str(), &options);
}
