// The exported Show functions: each a row of properties, and the dialog that it runs.

#include "ZXADLG.h"
#include "entry/ShowSequence.h"
#include "fit/CurveFittingDialog.h"
#include "measure/HistogramDialog.h"
#include "measure/MeasurementDialog.h"
#include "measure/MeasurementRecord.h"
#include "platform/platform.h"
#include "sigproc/CorrelationDialog.h"
#include "sigproc/FilterDialog.h"
#include "sigproc/SpectrumDialog.h"
#include "traceops/AdjustBaselineDialog.h"
#include "traceops/ForceValuesDialog.h"
#include "traceops/LeakSubtractionDialog.h"
#include "traceops/NormalizeDialog.h"
#include "traceops/ResistanceDialog.h"
#include "traceops/TimeShiftDialog.h"

namespace {

// A dialog with a data tab: its selection is kept under the analysis's name.
template <class Record>
constexpr ShowRow<Record> TabbedRow(const char* szAnalysis, void (*pLoad)(const char*, Record*),
                                    bool (*pSave)(const char*, const Record*)) {
    return {szAnalysis, DataRecord::kCopied, kDataOptionsNormal, pLoad, pSave};
}

constexpr auto kAdjustBaseline =
    TabbedRow("AdjustBaseline", &LoadAdjustBaselineOptions, &SaveAdjustBaselineOptions);
// The host may ask for the region that it numbers 1, whatever is stored.
void PrepareCurveFit(FitOptions*, ZXADLG_DataOptions* pData, const ZXADLG_DlgParams& params) {
    if (params.bFitSelectRegionOne != 0) pData->eAnalysisRegion = 1;
}

constexpr ShowRow<FitOptions> kCurveFit = {"CurveFit",           DataRecord::kCopied,
                                           kDataOptionsNormal,   &LoadCurveFitOptions,
                                           &SaveCurveFitOptions, &PrepareCurveFit};
constexpr auto kCorrelation =
    TabbedRow("Correlation", &LoadCorrelationOptions, &SaveCorrelationOptions);
constexpr auto kFilter = TabbedRow("Filter", &LoadFilterOptions, &SaveFilterOptions);
constexpr auto kForceValues =
    TabbedRow("ForceValues", &LoadForceValuesOptions, &SaveForceValuesOptions);
constexpr auto kHistogram = TabbedRow("Histogram", &LoadHistogramOptions, &SaveHistogramOptions);
constexpr auto kLeakSubtraction =
    TabbedRow("LeakSubtraction", &LoadLeakSubtractionOptions, &SaveLeakSubtractionOptions);
constexpr auto kNormalize = TabbedRow("Normalize", &LoadNormalizeOptions, &SaveNormalizeOptions);
// The acquisition's settings decide on the data too.
bool StoresMeasuredData(const ZXADLG_MeasurementOptions& options) {
    return options.bImportFromFile == 0;
}

constexpr ShowRow<ZXADLG_MeasurementOptions> kMeasurements = {
    "Measurements",           DataRecord::kCopied,      kDataOptionsNormal,
    &LoadMeasurementsOptions, &SaveMeasurementsOptions, nullptr,
    &ReturnMeasurements,      &StoresMeasuredData};
constexpr auto kPowerSpectrum =
    TabbedRow("Spectrum", &LoadPowerSpectrumOptions, &SavePowerSpectrumOptions);
constexpr auto kResistance =
    TabbedRow("Resistance", &LoadResistanceOptions, &SaveResistanceOptions);
constexpr auto kTimeShift = TabbedRow("TimeShift", &LoadTimeShiftOptions, &SaveTimeShiftOptions);

template <class Dialog, class Record>
int32_t ShowTabbed(const ShowRow<Record>& row, HWND parent, Record* options,
                   ZXADLG_DataOptions* data, ZXADLG_CDlgDataSource* source,
                   const ZXADLG_DlgParams* params) {
    return RunShowSequence(row, options, data, source, params,
                           [&](Record* pOptions, ZXADLG_DataOptions* pData) {
                               Dialog dialog(parent, pOptions, pData, source, params);
                               return RunAtItsPlace(dialog);
                           });
}

}  // namespace

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowAdjustBaselineDialog(
    HWND parent, ZXADLG_AdjustBaselineOptions* options, ZXADLG_DataOptions* data,
    ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params) {
    return ShowTabbed<CAdjustBaselineDialog>(kAdjustBaseline, parent, options, data, source,
                                             params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowCorrelationDialog(HWND parent,
                                                            ZXADLG_CorrelationOptions* options,
                                                            ZXADLG_DataOptions* data,
                                                            ZXADLG_CDlgDataSource* source,
                                                            const ZXADLG_DlgParams* params) {
    return ShowTabbed<CCorrelationDialog>(kCorrelation, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowCurveFitDialog(HWND parent, FitOptions* options,
                                                         ZXADLG_DataOptions* data,
                                                         ZXADLG_CDlgDataSource* source,
                                                         const ZXADLG_DlgParams* params) {
    return ShowTabbed<CFitDialog>(kCurveFit, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowFilterDialog(HWND parent, FilterOptions* options,
                                                       ZXADLG_DataOptions* data,
                                                       ZXADLG_CDlgDataSource* source,
                                                       const ZXADLG_DlgParams* params) {
    return ShowTabbed<CFilterDialog>(kFilter, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowForceValuesDialog(HWND parent,
                                                            ZXADLG_ForceValuesOptions* options,
                                                            ZXADLG_DataOptions* data,
                                                            ZXADLG_CDlgDataSource* source,
                                                            const ZXADLG_DlgParams* params) {
    return ShowTabbed<CForceValuesDialog>(kForceValues, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowHistogramDialog(HWND parent,
                                                          ZXADLG_HistogramOptions* options,
                                                          ZXADLG_DataOptions* data,
                                                          ZXADLG_CDlgDataSource* source,
                                                          const ZXADLG_DlgParams* params) {
    return ShowTabbed<CHistogramDialog>(kHistogram, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowLeakSubtractionDialog(
    HWND parent, ZXADLG_LeakSubtractionOptions* options, ZXADLG_DataOptions* data,
    ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params) {
    return ShowTabbed<CLeakSubtractionDialog>(kLeakSubtraction, parent, options, data, source,
                                              params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowMeasurementDialog(HWND parent,
                                                            ZXADLG_MeasurementOptions* options,
                                                            void* context, ZXADLG_DataOptions* data,
                                                            ZXADLG_CDlgDataSource* source,
                                                            const ZXADLG_DlgParams* params) {
    return RunShowSequence(kMeasurements, options, data, source, params,
                           [&](ZXADLG_MeasurementOptions* pOptions, ZXADLG_DataOptions* pData) {
                               const ZXADLG_MeasurementOptions host = *options;
                               CMeasurementDialog dialog(parent, pOptions, &host, context, pData,
                                                         source, params);
                               return RunAtItsPlace(dialog);
                           });
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowNormalizeDialog(HWND parent,
                                                          ZXADLG_NormalizeOptions* options,
                                                          ZXADLG_DataOptions* data,
                                                          ZXADLG_CDlgDataSource* source,
                                                          const ZXADLG_DlgParams* params) {
    return ShowTabbed<CNormalizeDialog>(kNormalize, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowPowerSpectrumDialog(HWND parent, SpectrumOptions* options,
                                                              ZXADLG_DataOptions* data,
                                                              ZXADLG_CDlgDataSource* source,
                                                              const ZXADLG_DlgParams* params) {
    return ShowTabbed<CSpectrumDialog>(kPowerSpectrum, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowResistanceDialog(HWND parent,
                                                           ZXADLG_ResistanceOptions* options,
                                                           ZXADLG_DataOptions* data,
                                                           ZXADLG_CDlgDataSource* source,
                                                           const ZXADLG_DlgParams* params) {
    return ShowTabbed<CResistanceDialog>(kResistance, parent, options, data, source, params);
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowTimeShiftDialog(HWND parent,
                                                          ZXADLG_TimeShiftOptions* options,
                                                          ZXADLG_DataOptions* data,
                                                          ZXADLG_CDlgDataSource* source,
                                                          const ZXADLG_DlgParams* params) {
    return ShowTabbed<CTimeShiftDialog>(kTimeShift, parent, options, data, source, params);
}
