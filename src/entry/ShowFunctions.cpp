// The exported Show functions: each a row of properties, and the dialog that it runs.

#include "ZXADLG.h"
#include "entry/ShowSequence.h"
#include "platform/platform.h"
#include "traceops/NormalizeDialog.h"

namespace {

constexpr ShowRow<ZXADLG_NormalizeOptions> kNormalize = {"Normalize", DataRecord::kCopied,
                                                         kDataOptionsNormal, &LoadNormalizeOptions,
                                                         &SaveNormalizeOptions};

}  // namespace

extern "C" int32_t ZXADLG_CALL ZXADLG_ShowNormalizeDialog(HWND parent,
                                                          ZXADLG_NormalizeOptions* options,
                                                          ZXADLG_DataOptions* data,
                                                          ZXADLG_CDlgDataSource* source,
                                                          const ZXADLG_DlgParams* params) {
    return RunShowSequence(kNormalize, options, data, source, params,
                           [&](ZXADLG_NormalizeOptions* pOptions, ZXADLG_DataOptions* pData) {
                               CNormalizeDialog dialog(parent, pOptions, pData, source, params);
                               return static_cast<int>(dialog.DoModal());
                           });
}
