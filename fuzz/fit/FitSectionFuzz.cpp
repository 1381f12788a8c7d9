#include "FitSectionFuzz.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "contract/OptionPersistence.h"
#include "fit/FitChecks.h"
#include "fixtures/TestDataSource.h"
#include "store/ProfileStore.h"

namespace {

void Hold(bool b) {
    if (!b) std::abort();
}

bool IsOf(std::int32_t eValue, std::int32_t eLast) {
    return eValue >= 0 && eValue <= eLast;
}

void AskRules(const CFitOptionsInterface& fit) {
    Hold(IsOf(fit.GetFunction(), kCustomFitFunction));
    Hold(IsOf(fit.GetSearchMethod(), kSearchChebyshev));
    Hold(IsOf(fit.Options().eMinimMethod, kMinimMeanAbs));
    Hold(IsOf(fit.Options().eWeightingType, kWeightBinWidth));
    Hold(IsOf(fit.Options().eFunctionGroupID, kParabolic));
    Hold(IsOf(fit.eLastPredefined, 37));
    Hold(fit.GetDlgOrder() >= 1 && fit.GetDlgOrder() <= 6);
    Hold(fit.EffectiveTermCount() >= 1 && fit.EffectiveTermCount() <= 6);
    Hold(fit.IsCustomFunction() || fit.GridParameterCount() <= CFitOptionsInterface::kOffsetPlace);
    Hold(std::strncmp(fit.PictureName(), "EQ_", 3) == 0);
    Hold(std::memchr(fit.Options().szEquation, 0, sizeof fit.Options().szEquation) != nullptr);
    // No method stands that is not open, unless it was chosen by itself.
    Hold(!fit.IsMinimMLEnabled() || fit.GetFunction() == 10 || fit.GetFunction() == 12);
    Hold(!fit.IsChebyFilterEnabled() || fit.GetSearchMethod() == kSearchChebyshev);
}

void AskSeeds(CFitOptionsInterface& fit, CFitSeedInterface& seeds, CDataOptionsInterface& data) {
    std::copy(std::begin(fit.Options().dParameters), std::end(fit.Options().dParameters),
              seeds.dSeeds.begin());
    std::copy(std::begin(fit.Options().uDlgConstraints), std::end(fit.Options().uDlgConstraints),
              seeds.uFixed.begin());
    seeds.dWork = seeds.dSeeds;
    CFitSeedInterface::Values flat{};
    CFitSeedInterface::Flags fixed{};
    Hold(seeds.GetSeeds(flat.data(), fixed.data()) <= CFitSeedInterface::kPlaces);
    Hold(seeds.VisibleRows() <= CFitOptionsInterface::kMaxTerms);
    const double* pX = data.GetXValues();
    const double* pY = data.GetYValues();
    if (pX == nullptr || pY == nullptr) return;
    const std::uint32_t uCount = std::min(data.GetFetchedXCount(), data.GetFetchedYCount());
    std::vector<double> curve(pY, pY + uCount);
    seeds.CurveFromSeeds(pX, curve.data(), uCount, 6);
    seeds.CurveOfTerm(pX, curve.data(), uCount, 5);
    const std::vector<const double*> arrays(data.GetConstantCount(), pX);
    std::vector<const double*> all(arrays);
    all.push_back(pY);
    seeds.ComputeSeeds(all.data(), static_cast<std::uint32_t>(all.size()), uCount);
}

void WalkChecks(CFitOptionsInterface& fit, CFitSeedInterface& seeds, CDataOptionsInterface& data) {
    CheckCustomDefined(fit);
    CheckColumnsDiffer(data);
    CheckDataForFit(fit, FitDataUse::kFit);
    CheckEvenX(fit, [] {});
    CheckNegativeData(fit);
    CheckColumnLengths(data);
    if (const CheckResult offer = CheckSeeds(fit, seeds, {.estimate = [] { return false; }})) {
        for (const Finding::Answer& answer : offer->vAnswers) {
            if (answer.step) answer.step();
        }
    }
    CheckEstimate(fit, seeds);
    CheckComparisonOrder(fit);
    CheckAnyFree(fit, seeds);
    CheckCurveRange(fit);
}

}  // namespace

void FuzzFitSection(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile) {
    std::ofstream file(sProfile, std::ios::binary);
    file << "[CurveFitSection]\r\n";
    file.write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
    file.close();
    SetUseProfileFile(true);
    // What is not stored keeps what a host passed, here rubbish.
    FitOptions options;
    std::memset(&options, nSize % 2 == 0 ? 0 : 0x5A, sizeof options);
    LoadCurveFitOptions(sProfile.c_str(), &options);

    test_support::TestDataSource source;
    source.Kind(nSize % 3 == 0 ? 2 : 0).Groups({"Data"}).Sets(3).Points(8);
    ZXADLG_DataOptions record = {};
    record.bUseFullDataRange = 1;
    const ZXADLG_DataTabFlags flags = {};
    CDataOptionsInterface data(&record, &source, &flags);
    // The fuzzer counts branches in the library as well, and must find them for as long as it runs.
    static CurveFitLibrary library(GetModuleHandleA(nullptr));
    CFitOptionsInterface fit(&options, &data, &library);
    CFitSeedInterface seeds(&fit, &data);
    fit.Open();
    Hold(fit.ReadProperties() == 0);
    AskRules(fit);
    WalkChecks(fit, seeds, data);
    AskSeeds(fit, seeds, data);
    WalkChecks(fit, seeds, data);
    const FitOptions scratch = fit.ScratchRecord();
    Hold(scratch.uFitOrder >= 1 && scratch.uFitOrder <= 6);
    ApplyAutomaticMethods(options, {});
    Hold(fit.ReadProperties() == 0);
    AskRules(fit);
    SaveCurveFitOptions(sProfile.c_str(), &options);
}
