// The one sequence of all Show functions. Each exported function is a row of properties over it.
//
//     copies in, restore, dialog, and on OK outside read-only mode: copies back, store
//
// The dialog sees the working copies alone. In deferred mode nothing is restored and nothing
// stored; in read-only mode nothing is copied back either. A null profile name of the source makes
// restore and store do nothing. No exception passes: one that reaches the sequence ends the call
// with ZXADLG_CREATE_FAILED.
#pragma once

#include "ZXADLG.h"
#include "contract/OptionPersistence.h"
#include "framework/ADM_Window_Position.h"

// What becomes of the host's data record.
enum class DataRecord {
    kCopied,         // a working copy, and with bUseDataOptions copied back on OK
    kPassedThrough,  // the dialog gets the host's record itself, also on Cancel
    kNone,           // the function has none
};

template <class Record>
struct ShowRow {
    // Where the keys of the data record are kept; null: they are neither restored nor stored.
    const char* szAnalysis;
    DataRecord eData;
    // Reset: whatever is stored, the selection starts at its defaults.
    DataOptionsMode eDataLoad;
    // The options' keys; null: they have none.
    void (*pLoad)(const char* pszProfile, Record* pRecord);
    bool (*pSave)(const char* pszProfile, const Record* pRecord);
    // Changes the working copies before the dialog is built; null: nothing.
    void (*pPrepare)(Record* pOptions, ZXADLG_DataOptions* pData,
                     const ZXADLG_DlgParams& params) = nullptr;
    // Hands the record back; null: a flat copy.
    void (*pReturn)(Record* pTo, const Record& from) = nullptr;
    // Whether the keys of the data record are stored; null: always.
    bool (*pStoresData)(const Record& options) = nullptr;
};

// Sets the framework up with the library's own module; harmless to repeat.
void PrepareLibrary();

// Runs a dialog where the last one of its class was left, however it ended, as long as the library
// stays loaded; the first one is centred.
template <class Dialog>
int RunAtItsPlace(Dialog& dialog) {
    static ADM_Window_Position position;
    dialog.SetWindowPositionMemory(&position);
    return static_cast<int>(dialog.DoModal());
}

// `run` gets the working copies, builds the dialog on its stack, runs it and returns its result.
template <class Record, class Run>
int RunShowSequence(const ShowRow<Record>& row, Record* pOptions, ZXADLG_DataOptions* pData,
                    ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams, Run run) {
    if (pOptions == nullptr || pSource == nullptr || pParams == nullptr)
        return ZXADLG_CREATE_FAILED;
    const bool bCopiesData = row.eData == DataRecord::kCopied;
    const bool bUsesData = bCopiesData && pParams->bUseDataOptions != 0;
    if (pData == nullptr && (bUsesData || row.eData == DataRecord::kPassedThrough))
        return ZXADLG_CREATE_FAILED;
    try {
        PrepareLibrary();
        const bool bUsesStore = pParams->bReadOnly == 0 && pParams->bDeferredRun == 0;

        Record options = *pOptions;
        ZXADLG_DataOptions data = {};
        if (bCopiesData && pData != nullptr) data = *pData;
        ZXADLG_DataOptions* pWorkingData = row.eData == DataRecord::kPassedThrough ? pData : &data;

        if (bUsesStore) {
            if (row.pLoad != nullptr) row.pLoad(pSource->GetProfileName(), &options);
            const bool bLoadsData = row.szAnalysis != nullptr || row.eDataLoad == kDataOptionsReset;
            if (bUsesData && bLoadsData) {
                LoadDataOptions(pSource->GetProfileName(), &data, pParams, row.eDataLoad,
                                row.szAnalysis);
            }
        }
        if (row.pPrepare != nullptr) row.pPrepare(&options, pWorkingData, *pParams);

        const int nResult = run(&options, pWorkingData);
        if (nResult != ZXADLG_OK || pParams->bReadOnly != 0) return nResult;

        if (row.pReturn != nullptr) {
            row.pReturn(pOptions, options);
        } else {
            *pOptions = options;
        }
        if (bUsesData) *pData = data;
        if (bUsesStore) {
            if (row.pSave != nullptr) row.pSave(pSource->GetProfileName(), &options);
            const bool bStoresData = row.pStoresData == nullptr || row.pStoresData(options);
            if (bUsesData && row.szAnalysis != nullptr && bStoresData) {
                SaveDataOptions(pSource->GetProfileName(), &data, row.eDataLoad, row.szAnalysis);
            }
        }
        return nResult;
    } catch (...) {
        return ZXADLG_CREATE_FAILED;
    }
}
