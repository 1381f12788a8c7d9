#include "measure/MeasurementChecks.h"

#include "measure/MeasurementRecord.h"
#include "measure/MeasurementTables.h"

CheckResult CheckRegions(const ZXADLG_MeasurementOptions& options, int nSearch) {
    if (options.aSearches[nSearch].bRegionEnable == 0) return {};
    const ZXADLG_BaselineRegion& baseline = options.aBaselines[nSearch];
    if (baseline.eBaseMode == 1) return {};
    if (options.aStatsRegions[nSearch].eStatsRegion != baseline.eBaseRegion) return {};
    return Refusal(IDS_MEASURE_SAME_REGION, kMeasurementPage, IDC_MEASURE_REGION);
}

CheckResult CheckXVariable(const ZXADLG_MeasurementOptions& options, int nSearch, int nOutputPage,
                           std::function<void(int)> showSearch) {
    if (options.aSearches[nSearch].bRegionEnable == 0) return {};
    const int nFirst = options.aSearches[FirstSearchOn(options)].eAutoPlotXVariable;
    const int nThis = options.aSearches[nSearch].eAutoPlotXVariable;
    if (nThis == nFirst || FindOutputRow(nFirst) == nullptr || FindOutputRow(nThis) == nullptr)
        return {};
    const bool bHasOutput = nOutputPage >= 0;
    Finding finding = {.nStringId = IDS_MEASURE_X_DIFFERS,
                       .uFlags = MB_ICONWARNING | MB_OKCANCEL,
                       .nPage = bHasOutput ? nOutputPage : kMeasurementPage,
                       .nControl = bHasOutput ? IDC_OUTPUT_X : 0};
    finding.vAnswers = {{IDOK, Finding::Next::kGoOn},
                        {IDCANCEL, Finding::Next::kStay,
                         [show = std::move(showSearch), nSearch] { show(nSearch); }}};
    return finding;
}
