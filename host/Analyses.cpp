#include "Analyses.h"

namespace zxhost {
namespace {

// --- Option records as a first run shows them: what zero would not do for.

template <class Record>
constexpr Record kDefaults = {};
template <>
constexpr ZXADLG_LeakSubtractionOptions kDefaults<ZXADLG_LeakSubtractionOptions> = {
    .dPassiveResistance = 500.0, .dConversionFactor = 1.0};
template <>
constexpr ZXADLG_ResistanceOptions kDefaults<ZXADLG_ResistanceOptions> = {.dConversionFactor = 1.0};
template <>
constexpr ZXADLG_ModifySampleRateOptions kDefaults<ZXADLG_ModifySampleRateOptions> = {
    .nReduceFactor = 2, .nInterpolFactor = 2};
template <>
constexpr ZXADLG_CurrentVoltageOptions kDefaults<ZXADLG_CurrentVoltageOptions> = {
    .uSmoothingPoints = 5};
template <>
constexpr FitOptions kDefaults<FitOptions> = {.dLMPrecision = 1e-6,
                                              .dVMPrecision = 0.0001,
                                              .dFractError = 1e-7,
                                              .dUserLMPrecision = 1e-6,
                                              .dUserVMPrecision = 0.0001,
                                              .dUserFractError = 1e-7,
                                              .dZDBoltzmanTemperature = 20.0,
                                              .dNernstTemperature = 20.0,
                                              .dGoldmanTemperature = 20.0,
                                              .dExtGoldmanTemperature = 20.0,
                                              .dTolerance = 0.95,
                                              .bAutoAdjustOnFailure = 1,
                                              .bUseFractErrDefault = 1,
                                              .bUseLMPrecisionDefault = 1,
                                              .bUseVMPrecisionDefault = 1,
                                              .bAutoDefaultOptions = 1,
                                              .bAutoCompare = 1,
                                              .bForceAutoSeed = 1,
                                              .bAutoZeroShift = 1,
                                              .uMaxIterations = 5000,
                                              .uFitOrder = 1,
                                              .uDlgFitOrder = 1,
                                              .uCurTimePowerA = 3,
                                              .uCurTimePowerB = 1,
                                              .uExpPower = 2,
                                              .uStartCompare = 1,
                                              .uEndCompare = 6,
                                              .uTermsToFit = 1,
                                              .uNernstValence = 1,
                                              .bFullRange = 1,
                                              .uFirstPoint = 1,
                                              .uLastPoint = 1,
                                              .eSearchMethod = 3,
                                              .eFunctionType = 15,
                                              .ePrevFunctionType = 15,
                                              .nNumCustomIndepVars = 1,
                                              .bIsConstantVar = {0, 1, 1, 1, 1, 1},
                                              .common = {.bDynamicLink = 1},
                                              .dSubstZeroLinearFactor = 10.0,
                                              .bWriteFittedData = 1};
template <>
constexpr ZXADLG_SignalProcessingOptions kDefaults<ZXADLG_SignalProcessingOptions> = {
    .dSampleInterval = 100.0,
    .lowpass = {.m_bIsSelected = 1,
                .m_eFilterFamily = 2,
                .m_uNumAveragePoints = 7,
                .m_dCornerFreq = 1000.0},
    .highpass = {.m_eFilterFamily = 7, .m_dCornerFreq = 10.0},
    .notch = {.m_dCornerFreq = 50.0, .m_d3dbWidth = 10.0},
    .adaptive = {.m_eReferenceGeneration = 2,
                 .m_uHarmonicNumberStart = 1,
                 .m_uHarmonicNumberEnd = 10,
                 .m_uAveragingCycles = 20,
                 .m_bEndEffectCompensation = 1},
    .eWindowType = 6,
    .dPoissonAlpha = 2.0,
    .dKaiserAlpha = 2.0,
    .uTransformLength = 1024,
    .uNumBinsToExclude = 1,
    .bAverageSegments = 1};
template <>
constexpr ZXADLG_CorrelationOptions kDefaults<ZXADLG_CorrelationOptions> = {
    .dSamplingFrequency = 10000.0, .uNumberOfLags = 100};
// Every search has usual figures; the first one looks for a peak and its mean.
constexpr ZXADLG_MeasurementOptions UsualMeasurements() {
    ZXADLG_MeasurementOptions options = {};
    for (ZXADLG_MeasurementSearch& search : options.aSearches) {
        search.nSmoothingPoints = 5;
        search.nRiseFromPercent = search.nDecayToPercent = 10;
        search.nRiseToPercent = search.nDecayFromPercent = 90;
        search.nEventDurationPercent = 50;
    }
    options.aSearches[0].bRegionEnable = 1;
    options.aSearches[0].bAntipeakAmplitude = options.aSearches[0].bMean = 1;
    options.aSearches[0].bDoAutoGraph = 1;
    for (ZXADLG_StatisticsRegion& region : options.aStatsRegions) region.eStatsRegion = 1;
    for (ZXADLG_BaselineRegion& baseline : options.aBaselines) baseline.eBaseRegion = 2;
    return options;
}
template <>
constexpr ZXADLG_MeasurementOptions kDefaults<ZXADLG_MeasurementOptions> = UsualMeasurements();
template <>
constexpr ZXADLG_HistogramOptions kDefaults<ZXADLG_HistogramOptions> = {
    .fBinWidth = 20.0f, .nBinsPerDecade = 10, .bBinAllData = 1};
template <>
constexpr ZXADLG_ArithmeticOptions kDefaults<ZXADLG_ArithmeticOptions> = {
    .szSelectionList = "0",
    .eDataSet1SelectionMode = 3,
    .uLastDataIndex = 9,
    .bUseFullDataRange = 1};
template <>
constexpr ZXADLG_SubtractControlOptions kDefaults<ZXADLG_SubtractControlOptions> = {.dMultiplier =
                                                                                        1.0};

// --- Show functions by their form.

template <class Record, auto kShow>
std::int32_t Usual(const DialogCall& call) {
    return kShow(call.owner, static_cast<Record*>(call.options), call.data, call.source,
                 call.params);
}

template <class Record, auto kShow>
std::int32_t WithoutData(const DialogCall& call) {
    return kShow(call.owner, static_cast<Record*>(call.options), call.source, call.params);
}

// With a pointer that the library never reads.
template <class Record, auto kShow>
std::int32_t WithContext(const DialogCall& call) {
    return kShow(call.owner, static_cast<Record*>(call.options), nullptr, call.data, call.source,
                 call.params);
}

template <class Record, auto kShow>
std::int32_t WithFiles(const DialogCall& call) {
    return kShow(call.owner, static_cast<Record*>(call.options), nullptr, call.source, call.files,
                 call.params);
}

// Over a data file traces, over a sheet its columns.
template <class Record, auto kShow>
std::int32_t Expression(const DialogCall& call) {
    return kShow(call.owner, static_cast<Record*>(call.options), call.data, call.source,
                 call.params, 0);
}

template <class Record, auto kShow>
std::int32_t NewColumn(const DialogCall& call) {
    ZXADLG_DlgParams params = *call.params;
    params.bNewColumnArithmetic = 1;
    return kShow(call.owner, static_cast<Record*>(call.options), call.data, call.source, &params,
                 0);
}

#define ZX_ROW(name, title, record, form, show) \
    { name, title, #record, sizeof(record), &kDefaults<record>, &form<record, &show> }

const Analysis kRows[] = {
    ZX_ROW("normalize", "Normalize", ZXADLG_NormalizeOptions, Usual, ZXADLG_ShowNormalizeDialog),
    ZX_ROW("time-shift", "Time Shift", ZXADLG_TimeShiftOptions, Usual, ZXADLG_ShowTimeShiftDialog),
    ZX_ROW("force-values", "Force Values", ZXADLG_ForceValuesOptions, Usual,
           ZXADLG_ShowForceValuesDialog),
    ZX_ROW("adjust-baseline", "Adjust Baseline", ZXADLG_AdjustBaselineOptions, Usual,
           ZXADLG_ShowAdjustBaselineDialog),
    ZX_ROW("leak-subtraction", "Leak Subtraction", ZXADLG_LeakSubtractionOptions, Usual,
           ZXADLG_ShowLeakSubtractionDialog),
    ZX_ROW("curve-fit", "Curve Fitting", FitOptions, Usual, ZXADLG_ShowCurveFitDialog),
    ZX_ROW("filter", "Filter", ZXADLG_SignalProcessingOptions, Usual, ZXADLG_ShowFilterDialog),
    ZX_ROW("power-spectrum", "Power Spectrum", ZXADLG_SignalProcessingOptions, Usual,
           ZXADLG_ShowPowerSpectrumDialog),
    ZX_ROW("histogram", "Histogram", ZXADLG_HistogramOptions, Usual, ZXADLG_ShowHistogramDialog),
    ZX_ROW("correlation", "Correlation", ZXADLG_CorrelationOptions, Usual,
           ZXADLG_ShowCorrelationDialog),
    ZX_ROW("arithmetic", "Arithmetic", ZXADLG_ArithmeticOptions, Expression,
           ZXADLG_ShowArithmeticDialog),
    ZX_ROW("new-column", "Arithmetic for a New Column", ZXADLG_ArithmeticOptions, NewColumn,
           ZXADLG_ShowArithmeticDialog),
    ZX_ROW("measurement", "Measurements", ZXADLG_MeasurementOptions, WithContext,
           ZXADLG_ShowMeasurementDialog),
    ZX_ROW("resistance", "Resistance", ZXADLG_ResistanceOptions, Usual,
           ZXADLG_ShowResistanceDialog),
    ZX_ROW("sampling-rate", "Data Reduction/Interpolation", ZXADLG_ModifySampleRateOptions,
           WithoutData, ZXADLG_ShowModifySamplingRateDialog),
    ZX_ROW("current-voltage", "Current/Voltage", ZXADLG_CurrentVoltageOptions, Usual,
           ZXADLG_ShowCurrentVoltageDialog),
    ZX_ROW("trace-vs-trace", "Trace vs. Trace", ZXADLG_TraceVsTraceOptions, Usual,
           ZXADLG_ShowTraceVsTraceDialog),
    ZX_ROW("subtract-control", "Subtract Control", ZXADLG_SubtractControlOptions, WithFiles,
           ZXADLG_ShowSubtractControlDialog),
};

#undef ZX_ROW

static_assert(sizeof(ZXADLG_SubtractControlOptions) <= kMaxOptionSize);

}  // namespace

const std::span<const Analysis> kAnalyses = kRows;

const Analysis* FindAnalysis(const std::string& name) {
    for (const Analysis& analysis : kRows) {
        if (name == analysis.name) return &analysis;
    }
    return nullptr;
}

const char* DescribeResult(std::int32_t result) {
    switch (result) {
        case ZXADLG_OK:
            return "OK";
        case ZXADLG_CANCEL:
            return "Cancel";
        case ZXADLG_NO_TEMPLATE:
            return "no dialog template";
        default:
            return "the dialog could not be created";
    }
}

}  // namespace zxhost
