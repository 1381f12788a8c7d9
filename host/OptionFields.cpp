#include "OptionFields.h"

namespace zxhost {
namespace {

using enum FieldType;

#define ZX_FIELD(field, type) \
    { #field, type, offsetof(Record, field) }
#define ZX_COMMON                                                                  \
    ZX_FIELD(common.eDestinationOption, kI32), ZX_FIELD(common.bDynamicLink, kU8), \
        ZX_FIELD(common.bWriteRegionInfo, kU8)

template <class Record>
struct Rows;

template <>
struct Rows<ZXADLG_NormalizeOptions> {
    using Record = ZXADLG_NormalizeOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eBaselineRegion, kU32),
        ZX_FIELD(ePeakRegion, kU32),
        ZX_FIELD(bUseAllPoints, kU8),
        ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_TimeShiftOptions> {
    using Record = ZXADLG_TimeShiftOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eAlignmentMode, kI32), ZX_FIELD(eDirection, kI32),
        ZX_FIELD(eValueMode, kI32),     ZX_FIELD(eAdjustMode, kI32),
        ZX_FIELD(ePeakPolarity, kI32),  ZX_FIELD(eValueRegion, kI32),
        ZX_FIELD(eSearchRegion, kI32),  ZX_FIELD(uDataGroupIndex, kU32),
        ZX_FIELD(dShiftValue, kDouble), ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_ForceValuesOptions> {
    using Record = ZXADLG_ForceValuesOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eForceValuesMode, kI32),
        ZX_FIELD(eRegionToForce, kI32),
        ZX_FIELD(dFixedValue, kDouble),
        ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_AdjustBaselineOptions> {
    using Record = ZXADLG_AdjustBaselineOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eAdjustMode, kI32),
        ZX_FIELD(eValueRegion, kI32),
        ZX_FIELD(dFixedValue, kDouble),
        ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_LeakSubtractionOptions> {
    using Record = ZXADLG_LeakSubtractionOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(dPassiveResistance, kDouble),
        ZX_FIELD(dConversionFactor, kDouble),
        ZX_FIELD(uWaveformIndex, kU32),
        ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_ResistanceOptions> {
    using Record = ZXADLG_ResistanceOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(dConversionFactor, kDouble),
        ZX_FIELD(uExperimentType, kU32),
        ZX_FIELD(uWaveformIndex, kU32),
        ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_ModifySampleRateOptions> {
    using Record = ZXADLG_ModifySampleRateOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eRateConversionType, kI32),  ZX_FIELD(eReductionMethod, kI32),
        ZX_FIELD(eInterpolationMethod, kI32), ZX_FIELD(nReduceFactor, kI32),
        ZX_FIELD(nInterpolFactor, kI32),      ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_CurrentVoltageOptions> {
    using Record = ZXADLG_CurrentVoltageOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(ePeakRegion, kI32),      ZX_FIELD(ePeakPolarity, kI32),
        ZX_FIELD(eVoltageSource, kI32),   ZX_FIELD(eCurrentSource, kI32),
        ZX_FIELD(eFixedEpoch, kI32),      ZX_FIELD(eSetSelectionMode, kI32),
        ZX_FIELD(uWaveformIndex, kU32),   ZX_FIELD(uXDataGroupIndex, kU32),
        ZX_FIELD(uYDataGroupIndex, kU32), ZX_FIELD(uSmoothingPoints, kU32),
        ZX_FIELD(bInvertX, kU8),          ZX_FIELD(bInvertY, kU8),
        ZX_FIELD(bDoFilter, kU8),         ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_TraceVsTraceOptions> {
    using Record = ZXADLG_TraceVsTraceOptions;
    static constexpr Field kRows[] = {
        ZX_FIELD(eXSource, kI32),         ZX_FIELD(eYSource, kI32),
        ZX_FIELD(eValueRegion, kI32),     ZX_FIELD(uXDataSetIndex, kU32),
        ZX_FIELD(uYDataSetIndex, kU32),   ZX_FIELD(uXWaveformIndex, kU32),
        ZX_FIELD(uYWaveformIndex, kU32),  ZX_FIELD(uXDataGroupIndex, kU32),
        ZX_FIELD(uYDataGroupIndex, kU32), ZX_FIELD(bInvertX, kU8),
        ZX_FIELD(bInvertY, kU8),          ZX_COMMON,
    };
};

template <>
struct Rows<ZXADLG_SubtractControlOptions> {
    using Record = ZXADLG_SubtractControlOptions;
    static constexpr Field kRows[] = {
        {"szSubtractFileName", kText, offsetof(Record, szSubtractFileName),
         sizeof Record::szSubtractFileName},
        ZX_FIELD(dMultiplier, kDouble),
        ZX_FIELD(bUseMultiplier, kU8),
        ZX_FIELD(bUseFirstTraceOnly, kU8),
        ZX_FIELD(bUseLastFile, kU8),
        {"anListEntry", kI32, offsetof(Record, anListEntry), 0, 16, 4},
        ZX_FIELD(nFileID, kI32),
        ZX_FIELD(nNumGroups, kI32),
    };
};

#undef ZX_FIELD
#undef ZX_COMMON

}  // namespace

template <class Record>
std::span<const Field> OptionFields() {
    return Rows<Record>::kRows;
}

template std::span<const Field> OptionFields<ZXADLG_NormalizeOptions>();
template std::span<const Field> OptionFields<ZXADLG_TimeShiftOptions>();
template std::span<const Field> OptionFields<ZXADLG_ForceValuesOptions>();
template std::span<const Field> OptionFields<ZXADLG_AdjustBaselineOptions>();
template std::span<const Field> OptionFields<ZXADLG_LeakSubtractionOptions>();
template std::span<const Field> OptionFields<ZXADLG_ResistanceOptions>();
template std::span<const Field> OptionFields<ZXADLG_ModifySampleRateOptions>();
template std::span<const Field> OptionFields<ZXADLG_CurrentVoltageOptions>();
template std::span<const Field> OptionFields<ZXADLG_TraceVsTraceOptions>();
template std::span<const Field> OptionFields<ZXADLG_SubtractControlOptions>();

}  // namespace zxhost
