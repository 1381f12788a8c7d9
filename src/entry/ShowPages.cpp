// The exported Show functions of the single-page dialogs: each a row of properties, and the dialog
// that it runs.

#include "ZXADLG.h"
#include "arithmetic/CArithmeticDialog.h"
#include "entry/ShowSequence.h"
#include "platform/platform.h"
#include "traceops/CurrentVoltageDialog.h"
#include "traceops/ModifySampleRateDialog.h"
#include "traceops/SubtractControlDialog.h"
#include "traceops/TraceVsTraceDialog.h"

namespace {

// No data record: the option keys alone are restored and stored.
constexpr ShowRow<ZXADLG_ModifySampleRateOptions> kModifySampleRate = {
    nullptr, DataRecord::kNone, kDataOptionsNormal, &LoadConvertSampleRateOptions,
    &SaveConvertSampleRateOptions};
constexpr ShowRow<ZXADLG_SubtractControlOptions> kSubtractControl = {
    nullptr, DataRecord::kNone, kDataOptionsNormal, &LoadSubtractControlOptions,
    &SaveSubtractControlOptions};

// The stored selection never survives: the data record starts at its defaults and is not stored.
// Columns keep nothing but their histories.
constexpr ShowRow<ZXADLG_ArithmeticOptions> kTraceArithmetic = {
    nullptr, DataRecord::kCopied, kDataOptionsReset, &LoadTraceArithmeticOptions,
    &SaveTraceArithmeticOptions};
constexpr ShowRow<ZXADLG_ArithmeticOptions> kColumnArithmetic = {
    nullptr, DataRecord::kCopied, kDataOptionsReset, nullptr, nullptr};

// Required: the dialog writes the host's own data record, also on Cancel.
constexpr ShowRow<ZXADLG_CurrentVoltageOptions> kCurrentVoltage = {
    nullptr, DataRecord::kPassedThrough, kDataOptionsNormal, &LoadCurrentVoltageOptions,
    &SaveCurrentVoltageOptions};
constexpr ShowRow<ZXADLG_TraceVsTraceOptions> kTraceVsTrace = {
    nullptr, DataRecord::kPassedThrough, kDataOptionsNormal, &LoadTraceVsTraceOptions,
    &SaveTraceVsTraceOptions};

}  // namespace

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowArithmeticDialog(
    HWND parent, ZXADLG_ArithmeticOptions* options, ZXADLG_DataOptions* data,
    ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params, int32_t) {
    const bool bTraces = source != nullptr && source->GetDataKind() == 0;
    return RunShowSequence(bTraces ? kTraceArithmetic : kColumnArithmetic, options, data, source,
                           params,
                           [&](ZXADLG_ArithmeticOptions* pOptions, ZXADLG_DataOptions* pData) {
                               CArithmeticDialog dialog(parent, pOptions, pData, source, params);
                               return RunAtItsPlace(dialog);
                           });
}

extern "C" int32_t ZXADLG_CALL
ZXADLG_ShowModifySamplingRateDialog(HWND parent, ZXADLG_ModifySampleRateOptions* options,
                                    ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params) {
    return RunShowSequence(kModifySampleRate, options, nullptr, source, params,
                           [&](ZXADLG_ModifySampleRateOptions* pOptions, ZXADLG_DataOptions*) {
                               CModifySampleRateDialog dialog(parent, pOptions, source,
                                                              params->bReadOnly != 0);
                               return RunAtItsPlace(dialog);
                           });
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowSubtractControlDialog(
    HWND parent, ZXADLG_SubtractControlOptions* options, void*, ZXADLG_CDlgDataSource* source,
    ZXADLG_CDlgFileSource* fileSource, const ZXADLG_DlgParams* params) {
    if (fileSource == nullptr) return ZXADLG_CREATE_FAILED;
    return RunShowSequence(kSubtractControl, options, nullptr, source, params,
                           [&](ZXADLG_SubtractControlOptions* pOptions, ZXADLG_DataOptions*) {
                               CSubtractControlDialog dialog(parent, pOptions, source, fileSource,
                                                             params);
                               return RunAtItsPlace(dialog);
                           });
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowCurrentVoltageDialog(
    HWND parent, ZXADLG_CurrentVoltageOptions* options, ZXADLG_DataOptions* data,
    ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params) {
    return RunShowSequence(kCurrentVoltage, options, data, source, params,
                           [&](ZXADLG_CurrentVoltageOptions* pOptions, ZXADLG_DataOptions* pData) {
                               CCurrentVoltageDialog dialog(parent, pOptions, pData, source,
                                                            params);
                               return RunAtItsPlace(dialog);
                           });
}

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowTraceVsTraceDialog(HWND parent,
                                                             ZXADLG_TraceVsTraceOptions* options,
                                                             ZXADLG_DataOptions* data,
                                                             ZXADLG_CDlgDataSource* source,
                                                             const ZXADLG_DlgParams* params) {
    return RunShowSequence(kTraceVsTrace, options, data, source, params,
                           [&](ZXADLG_TraceVsTraceOptions* pOptions, ZXADLG_DataOptions* pData) {
                               CTraceVsTraceDialog dialog(parent, pOptions, pData, source, params);
                               return RunAtItsPlace(dialog);
                           });
}
