#include "contract/OptionPersistence.h"

#include "contract/OptionTables.h"
#include "store/ProfileStore.h"
#include "store/StoreBatch.h"
#include "text/BoundedText.h"

// One pair per analysis whose options are one section.
#define ZX_DEFINE_PERSISTENCE(name, Record)                                   \
    void Load##name##Options(const char* pszProfile, Record* pRecord) {       \
        LoadSection(pszProfile, k##name##Section, pRecord);                   \
    }                                                                         \
    bool Save##name##Options(const char* pszProfile, const Record* pRecord) { \
        return SaveSection(pszProfile, k##name##Section, pRecord);            \
    }

ZX_DEFINE_PERSISTENCE(CurveFit, FitOptions)
ZX_DEFINE_PERSISTENCE(PowerSpectrum, SpectrumOptions)
ZX_DEFINE_PERSISTENCE(Histogram, ZXADLG_HistogramOptions)
ZX_DEFINE_PERSISTENCE(Correlation, ZXADLG_CorrelationOptions)
ZX_DEFINE_PERSISTENCE(Resistance, ZXADLG_ResistanceOptions)
ZX_DEFINE_PERSISTENCE(Normalize, ZXADLG_NormalizeOptions)
ZX_DEFINE_PERSISTENCE(ConvertSampleRate, ZXADLG_ModifySampleRateOptions)
ZX_DEFINE_PERSISTENCE(LeakSubtraction, ZXADLG_LeakSubtractionOptions)
ZX_DEFINE_PERSISTENCE(ForceValues, ZXADLG_ForceValuesOptions)
ZX_DEFINE_PERSISTENCE(TimeShift, ZXADLG_TimeShiftOptions)
ZX_DEFINE_PERSISTENCE(CurrentVoltage, ZXADLG_CurrentVoltageOptions)
ZX_DEFINE_PERSISTENCE(TraceVsTrace, ZXADLG_TraceVsTraceOptions)
ZX_DEFINE_PERSISTENCE(TraceArithmetic, ZXADLG_ArithmeticOptions)
ZX_DEFINE_PERSISTENCE(AdjustBaseline, ZXADLG_AdjustBaselineOptions)
ZX_DEFINE_PERSISTENCE(SubtractControl, ZXADLG_SubtractControlOptions)
ZX_DEFINE_PERSISTENCE(Measurements, ZXADLG_MeasurementOptions)

#undef ZX_DEFINE_PERSISTENCE

namespace {

const OptionSection* const kFilterSections[] = {&kLowpassFilterSection, &kHighpassFilterSection,
                                                &kNotchFilterSection, &kAdaptiveFilterSection};

constexpr char kTraceArithmetic[] = "TraceArithmetic";
constexpr char kColumnArithmetic[] = "ColumnArithmetic";
constexpr int kHistoryLine = 256;  // 255 characters and the final zero

bool LoadHistoryLine(const char* pszProfile, const char* szSection, const char* szKey, int n,
                     char* szText, int nSize) {
    if (pszProfile == nullptr) return false;
    char szLine[kHistoryLine];
    if (!ReadString(szSection, FormatOptionKey(szKey, static_cast<std::uint32_t>(n), 0), nullptr,
                    szLine, kHistoryLine, pszProfile)) {
        return false;
    }
    CopyText(szText, nSize, szLine);
    return true;
}

void SaveHistoryLine(const char* pszProfile, const char* szSection, const char* szKey, int n,
                     const char* szText) {
    if (pszProfile == nullptr) return;
    char szLine[kHistoryLine];
    CopyText(szLine, szText);
    WriteString(szSection, FormatOptionKey(szKey, static_cast<std::uint32_t>(n), 0), szLine,
                pszProfile);
}

// The selection of a dialog that never remembers one. bKeepDependent: the host says which columns
// an expression is to be applied to.
void ResetDataOptions(ZXADLG_DataOptions* pData, bool bKeepDependent) {
    // The second list is left alone, deliberately unlike the first.
    CopyText(pData->szUnitarySelectionList1, "0");
    pData->eDataGroup1SelectionMode = 1;
    pData->eDataGroup2SelectionMode = 1;
    pData->eDataSet1SelectionMode = 4;
    pData->eDataSet2SelectionMode = 4;
    pData->uGroup1Index = 0;
    pData->uGroup2Index = 0;
    pData->uPairedGroupIndex = 0;
    pData->uSelectedDataSet = 0;
    pData->bUseFullDataRange = 1;
    if (bKeepDependent) return;
    CopyText(pData->szDepVarSelectionList, "0");
    pData->uIndepVarDataSetIndex = 0;
    pData->uDepVarDataSetIndex = 0;
}

}  // namespace

void LoadFilterOptions(const char* pszProfile, FilterOptions* pRecord) {
    if (pszProfile == nullptr) return;
    const StoreBatch batch(pszProfile);
    for (const OptionSection* pSection : kFilterSections)
        LoadSection(pszProfile, *pSection, pRecord);
}

bool SaveFilterOptions(const char* pszProfile, const FilterOptions* pRecord) {
    if (pszProfile == nullptr) return true;
    StoreBatch batch(pszProfile);
    for (const OptionSection* pSection : kFilterSections)
        SaveSection(pszProfile, *pSection, pRecord);
    return batch.Commit();
}

bool LoadTraceExpression(const char* pszProfile, int n, char* szText, int nSize) {
    return LoadHistoryLine(pszProfile, kTraceArithmetic, "TraceExpression%d", n, szText, nSize);
}

void SaveTraceExpression(const char* pszProfile, int n, const char* szText) {
    SaveHistoryLine(pszProfile, kTraceArithmetic, "TraceExpression%d", n, szText);
}

bool LoadColumnExpression(const char* pszProfile, int n, char* szText, int nSize) {
    return LoadHistoryLine(pszProfile, kColumnArithmetic, "ColumnExpression%d", n, szText, nSize);
}

void SaveColumnExpression(const char* pszProfile, int n, const char* szText) {
    SaveHistoryLine(pszProfile, kColumnArithmetic, "ColumnExpression%d", n, szText);
}

bool LoadColumnDescription(const char* pszProfile, int n, char* szDescription, char* szExpression,
                           int nSize) {
    LoadColumnExpression(pszProfile, n, szExpression, nSize);
    return LoadHistoryLine(pszProfile, kColumnArithmetic, "ColumnDescription%d", n, szDescription,
                           nSize);
}

void SaveColumnDescription(const char* pszProfile, int n, const char* szText) {
    SaveHistoryLine(pszProfile, kColumnArithmetic, "ColumnDescription%d", n, szText);
}

const char* FormatDataSectionName(const char* pszAnalysis) {
    static char szName[80];
    BoundedWriter writer(szName, static_cast<int>(sizeof szName));
    writer.Put(pszAnalysis != nullptr ? pszAnalysis : "Common");
    writer.Put("DataSection");
    return szName;
}

void LoadDataOptions(const char* pszProfile, ZXADLG_DataOptions* pData,
                     const ZXADLG_DlgParams* pParams, int eMode, const char* pszAnalysis) {
    // A reset reads no store and needs none.
    if (eMode == kDataOptionsReset) {
        ResetDataOptions(pData, pParams != nullptr && (pParams->bRemapColumns != 0 ||
                                                       pParams->bNoDependentList != 0));
        return;
    }
    if (pszProfile == nullptr) return;
    LoadSection(pszProfile, kDataSection, pData, FormatDataSectionName(pszAnalysis),
                pParams != nullptr && pParams->bNoDependentList != 0);
}

bool SaveDataOptions(const char* pszProfile, const ZXADLG_DataOptions* pData, int eMode,
                     const char* pszAnalysis) {
    if (pszProfile == nullptr || eMode == kDataOptionsReset) return true;
    return SaveSection(pszProfile, kDataSection, pData, FormatDataSectionName(pszAnalysis));
}
