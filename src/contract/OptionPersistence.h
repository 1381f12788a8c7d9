// Each analysis's options in the host's store: one load and one save per analysis, and a pair for
// the data record.
//
// pszProfile names the store as the host's GetProfileName gives it; with a null name nothing
// happens. A save returns whether everything that was to be written is in the store. The records'
// keys are the tables of OptionTables.h.
#pragma once

#include "ZXADLG.h"
#include "zxadlg/AdjustBaselineOptions.h"
#include "zxadlg/ArithmeticOptions.h"
#include "zxadlg/CorrelationOptions.h"
#include "zxadlg/CurrentVoltageOptions.h"
#include "zxadlg/FitOptions.h"
#include "zxadlg/ForceValuesOptions.h"
#include "zxadlg/HistogramOptions.h"
#include "zxadlg/LeakSubtractionOptions.h"
#include "zxadlg/MeasurementOptions.h"
#include "zxadlg/ModifySampleRateOptions.h"
#include "zxadlg/NormalizeOptions.h"
#include "zxadlg/ResistanceOptions.h"
#include "zxadlg/SignalProcessingOptions.h"
#include "zxadlg/SubtractControlOptions.h"
#include "zxadlg/TimeShiftOptions.h"
#include "zxadlg/TraceVsTraceOptions.h"

void LoadCurveFitOptions(const char* pszProfile, FitOptions* pRecord);
bool SaveCurveFitOptions(const char* pszProfile, const FitOptions* pRecord);
// The lowpass, highpass, notch and adaptive sections in turn.
void LoadFilterOptions(const char* pszProfile, FilterOptions* pRecord);
bool SaveFilterOptions(const char* pszProfile, const FilterOptions* pRecord);
void LoadPowerSpectrumOptions(const char* pszProfile, SpectrumOptions* pRecord);
bool SavePowerSpectrumOptions(const char* pszProfile, const SpectrumOptions* pRecord);
void LoadHistogramOptions(const char* pszProfile, ZXADLG_HistogramOptions* pRecord);
bool SaveHistogramOptions(const char* pszProfile, const ZXADLG_HistogramOptions* pRecord);
void LoadCorrelationOptions(const char* pszProfile, ZXADLG_CorrelationOptions* pRecord);
bool SaveCorrelationOptions(const char* pszProfile, const ZXADLG_CorrelationOptions* pRecord);
void LoadResistanceOptions(const char* pszProfile, ZXADLG_ResistanceOptions* pRecord);
bool SaveResistanceOptions(const char* pszProfile, const ZXADLG_ResistanceOptions* pRecord);
void LoadNormalizeOptions(const char* pszProfile, ZXADLG_NormalizeOptions* pRecord);
bool SaveNormalizeOptions(const char* pszProfile, const ZXADLG_NormalizeOptions* pRecord);
void LoadConvertSampleRateOptions(const char* pszProfile, ZXADLG_ModifySampleRateOptions* pRecord);
bool SaveConvertSampleRateOptions(const char* pszProfile,
                                  const ZXADLG_ModifySampleRateOptions* pRecord);
void LoadLeakSubtractionOptions(const char* pszProfile, ZXADLG_LeakSubtractionOptions* pRecord);
bool SaveLeakSubtractionOptions(const char* pszProfile,
                                const ZXADLG_LeakSubtractionOptions* pRecord);
void LoadForceValuesOptions(const char* pszProfile, ZXADLG_ForceValuesOptions* pRecord);
bool SaveForceValuesOptions(const char* pszProfile, const ZXADLG_ForceValuesOptions* pRecord);
void LoadTimeShiftOptions(const char* pszProfile, ZXADLG_TimeShiftOptions* pRecord);
bool SaveTimeShiftOptions(const char* pszProfile, const ZXADLG_TimeShiftOptions* pRecord);
void LoadCurrentVoltageOptions(const char* pszProfile, ZXADLG_CurrentVoltageOptions* pRecord);
bool SaveCurrentVoltageOptions(const char* pszProfile, const ZXADLG_CurrentVoltageOptions* pRecord);
void LoadTraceVsTraceOptions(const char* pszProfile, ZXADLG_TraceVsTraceOptions* pRecord);
bool SaveTraceVsTraceOptions(const char* pszProfile, const ZXADLG_TraceVsTraceOptions* pRecord);
void LoadTraceArithmeticOptions(const char* pszProfile, ZXADLG_ArithmeticOptions* pRecord);
bool SaveTraceArithmeticOptions(const char* pszProfile, const ZXADLG_ArithmeticOptions* pRecord);
void LoadAdjustBaselineOptions(const char* pszProfile, ZXADLG_AdjustBaselineOptions* pRecord);
bool SaveAdjustBaselineOptions(const char* pszProfile, const ZXADLG_AdjustBaselineOptions* pRecord);
void LoadSubtractControlOptions(const char* pszProfile, ZXADLG_SubtractControlOptions* pRecord);
bool SaveSubtractControlOptions(const char* pszProfile,
                                const ZXADLG_SubtractControlOptions* pRecord);
void LoadMeasurementsOptions(const char* pszProfile, ZXADLG_MeasurementOptions* pRecord);
bool SaveMeasurementsOptions(const char* pszProfile, const ZXADLG_MeasurementOptions* pRecord);

// One line of an arithmetic dialog's expression history, at most 255 characters; n counts from 0. A
// load leaves the buffer of nSize bytes as it is when the line is not stored, and answers whether
// it is.
bool LoadTraceExpression(const char* pszProfile, int n, char* szText, int nSize);
void SaveTraceExpression(const char* pszProfile, int n, const char* szText);
bool LoadColumnExpression(const char* pszProfile, int n, char* szText, int nSize);
void SaveColumnExpression(const char* pszProfile, int n, const char* szText);
// The description of an entry comes with its expression.
bool LoadColumnDescription(const char* pszProfile, int n, char* szDescription, char* szExpression,
                           int nSize);
void SaveColumnDescription(const char* pszProfile, int n, const char* szText);

// How the data record is moved: as it stands, or back to its reset state on load (also with no
// store; and not at all on save).
enum DataOptionsMode { kDataOptionsNormal = 0, kDataOptionsReset = 1 };

// pszAnalysis is the first part of the section's name, "Filter" for FilterDataSection; null is
// "Common".
void LoadDataOptions(const char* pszProfile, ZXADLG_DataOptions* pData,
                     const ZXADLG_DlgParams* pParams, int eMode, const char* pszAnalysis);
bool SaveDataOptions(const char* pszProfile, const ZXADLG_DataOptions* pData, int eMode,
                     const char* pszAnalysis);

// "%sDataSection" of the name, in a static buffer of 80 bytes that the next call overwrites.
const char* FormatDataSectionName(const char* pszAnalysis);
