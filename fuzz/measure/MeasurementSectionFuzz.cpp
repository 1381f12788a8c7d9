#include "MeasurementSectionFuzz.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>

#include "contract/OptionPersistence.h"
#include "measure/MeasurementChecks.h"
#include "measure/MeasurementOutputLists.h"
#include "measure/MeasurementRecord.h"
#include "measure/MeasurementRegions.h"
#include "store/ProfileStore.h"

namespace {

void Hold(bool b) {
    if (!b) std::abort();
}

void AskLists(ZXADLG_MeasurementSearch& search) {
    MeasurementOutputLists lists;
    lists.Fill(search, {});
    Hold(search.nNumYPlotItems >= 0 && search.nNumYPlotItems <= 18);
    Hold(FindOutputRow(search.eAutoPlotXVariable) != nullptr);
    for (const Measurement& measurement : kMeasurements) {
        search.*measurement.pOn = search.*measurement.pOn == 0 ? 1 : 0;
        lists.Follow(search, {});
        Hold(search.nNumYPlotItems >= 0 && search.nNumYPlotItems <= 18);
        Hold(search.bPeakAmplitude == 0 || lists.GetY().empty());
    }
}

void AskRegions(ZXADLG_MeasurementOptions& options, const SampleAxis& axis) {
    for (int i = 0; i < kMeasurementSearches; ++i) {
        const RegionSpan stored = SpanOf(options.aStatsRegions[i]);
        const RegionSpan span = SpanOfTimes(axis, stored.dStart, stored.dEnd);
        Hold(span.nStart >= 0 && span.nEnd >= 0);
        if (axis.bPointsKnown && axis.uPoints > 0) {
            Hold(static_cast<std::uint32_t>(span.nStart) < axis.uPoints);
            Hold(static_cast<std::uint32_t>(span.nEnd) < axis.uPoints);
        }
        CheckRegions(options, i);
        const CheckResult result = CheckXVariable(options, i, 1, [](int) {});
        Hold(!result.has_value() || result->vAnswers.size() == 2);
    }
    OrderRegions(options);
    const auto pData = std::make_unique<ZXADLG_DataOptions>();
    for (int i = 0; i < 50; ++i) pData->aRegions[i].nRegionId = i;
    WriteRegions(options, axis, *pData);
}

}  // namespace

void FuzzMeasurementSection(const std::uint8_t* pData, std::size_t nSize,
                            const std::string& sProfile) {
    {
        std::ofstream file(sProfile, std::ios::binary);
        file << "[Measurements]\r\n";
        file.write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
    }
    SetUseProfileFile(true);
    // What is not stored keeps what a host passed, here rubbish.
    const auto pHost = std::make_unique<ZXADLG_MeasurementOptions>();
    std::memset(static_cast<void*>(pHost.get()), nSize % 2 == 0 ? 0 : 0xFF, sizeof *pHost);
    const auto pOptions = std::make_unique<ZXADLG_MeasurementOptions>(*pHost);
    LoadMeasurementsOptions(sProfile.c_str(), pOptions.get());
    for (const SampleAxis& axis :
         {SampleAxis{0.0, 0, true}, SampleAxis{0.05, 5, true}, SampleAxis{1e300, 1000, true},
          SampleAxis{1e-300, 4294967295u, true}, SampleAxis{0.05, 0, false}}) {
        const auto pCopy = std::make_unique<ZXADLG_MeasurementOptions>(*pOptions);
        AskRegions(*pCopy, axis);
    }
    for (ZXADLG_MeasurementSearch& search : pOptions->aSearches) AskLists(search);
    AcceptImport(*pOptions, nSize % 3 == 0);
    ReturnMeasurements(pHost.get(), *pOptions);
    SaveMeasurementsOptions(sProfile.c_str(), pHost.get());
}
