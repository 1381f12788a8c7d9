#include "RecordFields.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace zxhost {
namespace {

using enum FieldType;
using Data = ZXADLG_DataOptions;

#define ZX_FIELD(record, field, type) \
    { #field, type, offsetof(record, field) }
#define ZX_TEXT(record, field) \
    { #field, kText, offsetof(record, field), sizeof record::field }
#define ZX_MEMBER(array, element, member, type)                                                  \
    {                                                                                            \
#array, type, offsetof(Data, array) + offsetof(element, member), sizeof element::member, \
            sizeof Data::array / sizeof(element), sizeof(element), "." #member                   \
    }

constexpr Field kDataRows[] = {
    ZX_FIELD(Data, eDataKind, kU32),
    ZX_MEMBER(aGroups, ZXADLG_GroupEntry, szName, kText),
    ZX_MEMBER(aGroups, ZXADLG_GroupEntry, uCode, kU32),
    ZX_FIELD(Data, uVisibleGroups, kU32),
    ZX_FIELD(Data, uVisibleSets, kU32),
    ZX_FIELD(Data, uGroupCount, kU32),
    ZX_FIELD(Data, uSetCount, kU32),
    ZX_FIELD(Data, bSegmented, kU32),
    ZX_FIELD(Data, uRegionCount, kU32),
    ZX_FIELD(Data, dSamplingFrequency, kDouble),
    ZX_FIELD(Data, dMinValue, kDouble),
    ZX_FIELD(Data, dMaxValue, kDouble),
    ZX_FIELD(Data, bHasUserList, kU8),
    ZX_FIELD(Data, uBlobSize, kU32),
    {"aBlob", kBytes, offsetof(Data, aBlob), sizeof Data::aBlob},
    ZX_MEMBER(aRegionPoints, ZXADLG_PointSpan, uFirstPoint, kU32),
    ZX_MEMBER(aRegionPoints, ZXADLG_PointSpan, uLastPoint, kU32),
    ZX_FIELD(Data, uActiveGroup, kU32),
    {"aActiveSets", kU32, offsetof(Data, aActiveSets), 0, 16, 4},
    ZX_FIELD(Data, uEpochCount, kU32),
    ZX_MEMBER(aEpochs, ZXADLG_EpochEntry, uNumber, kU32),
    ZX_MEMBER(aEpochs, ZXADLG_EpochEntry, szName, kText),
    ZX_TEXT(Data, szVisibleGroups),
    ZX_TEXT(Data, szVisibleSets),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, nRegionId, kI32),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, uFirstPoint, kU32),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, uLastPoint, kU32),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, uGroup, kU32),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, uSet, kU32),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, dStart, kDouble),
    ZX_MEMBER(aRegions, ZXADLG_RegionEntry, dEnd, kDouble),
    ZX_FIELD(Data, bPaired, kU8),
    ZX_FIELD(Data, eDataGroup1SelectionMode, kI32),
    ZX_FIELD(Data, eDataSet1SelectionMode, kI32),
    ZX_TEXT(Data, szUnitarySelectionList1),
    ZX_FIELD(Data, uGroup1Index, kU32),
    ZX_FIELD(Data, eDataGroup2SelectionMode, kI32),
    ZX_FIELD(Data, eDataSet2SelectionMode, kI32),
    ZX_TEXT(Data, szUnitarySelectionList2),
    ZX_FIELD(Data, uGroup2Index, kU32),
    ZX_FIELD(Data, uPairedGroupIndex, kU32),
    ZX_FIELD(Data, bExtrapolate, kU8),
    ZX_FIELD(Data, bForceExcludedRegionToZero, kU8),
    ZX_FIELD(Data, uExtrapolationCursor, kU32),
    ZX_FIELD(Data, eAnalysisRegion, kI32),
    ZX_FIELD(Data, uSelectedDataSet, kU32),
    ZX_FIELD(Data, uFirstDataIndex, kU32),
    ZX_FIELD(Data, uLastDataIndex, kU32),
    {"adConstants", kDouble, offsetof(Data, adConstants), 0, 6, 8},
    {"abIsConstant", kU8, offsetof(Data, abIsConstant), 0, 6, 1},
    ZX_FIELD(Data, bUseFullDataRange, kU8),
    ZX_FIELD(Data, uIndepVarDataSetIndex, kU32),
    ZX_FIELD(Data, uDepVarDataSetIndex, kU32),
    ZX_TEXT(Data, szDepVarSelectionList),
};

#undef ZX_FIELD
#undef ZX_TEXT
#undef ZX_MEMBER

#define ZX_PARAM(name, meaning) \
    { #name, &ZXADLG_DlgParams::name, meaning }

constexpr ParamName kParamRows[] = {
    ZX_PARAM(bUseDataOptions, "data tab, data record"),
    ZX_PARAM(bShowGroupSelector, "group combo box"),
    ZX_PARAM(bShowDestination, "results destination"),
    ZX_PARAM(bShowDynamicLink, "dynamic link check box"),
    ZX_PARAM(bNewColumnArithmetic, "arithmetic: one new column"),
    ZX_PARAM(bShowMeasurementOutput, "measurements: Output tab"),
    ZX_PARAM(bShowWriteRegionInfo, "region information check box"),
    ZX_PARAM(bMeasurementOptionA, "measurements: options tab"),
    ZX_PARAM(bReadOnly, "display only"),
    ZX_PARAM(bRemapColumns, "arithmetic: other columns"),
    ZX_PARAM(bMeasurementOutputA, "measurements: Output tab"),
    ZX_PARAM(bAdjustBaselineFourthMethod, "adjust baseline: fourth method"),
    ZX_PARAM(bFitKeepSeeds, "fit: seed refresh"),
    ZX_PARAM(bDeferredRun, "settings for a later run"),
    ZX_PARAM(bFitSelectRegionOne, "fit: region 1 at the start"),
    ZX_PARAM(bMeasurementOutputB, "measurements: Output tab"),
    ZX_PARAM(bMeasurementOutputC, "measurements: Output tab"),
    ZX_PARAM(bMeasurementRegionCheck, "measurements: region check"),
    ZX_PARAM(bNoDependentList, "keep dependent selection"),
    ZX_PARAM(bMeasurementOptionB, "measurements: options tab"),
    ZX_PARAM(bFitOptionByte, "fit: stored in the record"),
};

#undef ZX_PARAM

template <class T>
T Load(const char* at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

std::string FormatDouble(double value) {
    char text[40];
    const auto result = std::to_chars(text, text + sizeof text, value);
    return std::string(text, result.ptr);
}

std::string FormatBytes(const char* at, std::size_t size) {
    std::size_t used = size;
    while (used > 0 && at[used - 1] == 0) --used;
    std::string text;
    for (std::size_t i = 0; i < used; ++i) {
        constexpr char kDigits[] = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(at[i]);
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return used == size ? text : text + "00...";
}

}  // namespace

const std::span<const Field> kDataFields = kDataRows;
const std::span<const ParamName> kParamNames = kParamRows;

std::string FormatField(const Field& field, std::size_t index, const void* record) {
    const char* at = static_cast<const char*>(record) + field.offset + index * field.stride;
    switch (field.type) {
        case kU8:
            return std::to_string(Load<std::uint8_t>(at));
        case kU32:
            return std::to_string(Load<std::uint32_t>(at));
        case kI32:
            return std::to_string(Load<std::int32_t>(at));
        case kDouble:
            return FormatDouble(Load<double>(at));
        case kText: {
            const void* end = std::memchr(at, 0, field.size);
            const std::size_t length =
                end ? static_cast<std::size_t>(static_cast<const char*>(end) - at) : field.size;
            return "\"" + std::string(at, length) + "\"";
        }
        case kBytes:
            return FormatBytes(at, field.size);
    }
    return "";
}

std::vector<FieldValue> CompareRecords(std::span<const Field> fields, const void* before,
                                       const void* after) {
    std::vector<FieldValue> values;
    for (const Field& field : fields) {
        for (std::size_t i = 0; i < field.count; ++i) {
            FieldValue value;
            value.name = field.name;
            if (field.count > 1) value.name += "[" + std::to_string(i) + "]" + field.member;
            value.before = FormatField(field, i, before);
            value.after = FormatField(field, i, after);
            value.changed = value.before != value.after;
            values.push_back(std::move(value));
        }
    }
    return values;
}

ZXADLG_DlgParams DefaultParams() {
    ZXADLG_DlgParams params = {};
    params.bUseDataOptions = 1;
    params.bShowGroupSelector = 1;
    params.bShowDestination = 1;
    params.bShowDynamicLink = 1;
    params.bShowMeasurementOutput = 1;
    params.bShowWriteRegionInfo = 1;
    params.bAdjustBaselineFourthMethod = 1;
    return params;
}

bool ApplyParams(const std::string& text, ZXADLG_DlgParams* params, std::string* error) {
    ZXADLG_DlgParams changed = *params;
    std::size_t at = 0;
    while (at <= text.size()) {
        const std::size_t end = std::min(text.find(',', at), text.size());
        const std::string entry = text.substr(at, end - at);
        at = end + 1;
        const std::size_t equals = entry.find('=');
        const std::string name = entry.substr(0, equals);
        const std::string value = equals == std::string::npos ? "" : entry.substr(equals + 1);
        if (value != "0" && value != "1") {
            *error = "\"" + entry + "\" should be NAME=0 or NAME=1";
            return false;
        }
        bool known = false;
        for (const ParamName& param : kParamRows) {
            if (name != param.name) continue;
            changed.*param.byte = value == "1";
            known = true;
        }
        if (!known) {
            *error = "there is no parameter \"" + name + "\"; zxhost list names them";
            return false;
        }
    }
    *params = changed;
    return true;
}

}  // namespace zxhost
