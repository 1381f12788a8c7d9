#include "RecordFields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "Numbers.h"
#include "System.h"

namespace zxhost {
namespace {

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

template <class T>
std::string FormatNumber(T value) {
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

std::string FormatField(const ZXADLG_FieldInfo& field, const char* at) {
    switch (field.type) {
        case ZXADLG_FIELD_BOOL8:
            return std::to_string(Load<std::uint8_t>(at));
        case ZXADLG_FIELD_BOOL32:
        case ZXADLG_FIELD_U32:
            return std::to_string(Load<std::uint32_t>(at));
        case ZXADLG_FIELD_I32:
            return std::to_string(Load<std::int32_t>(at));
        case ZXADLG_FIELD_FLOAT:
            return FormatNumber(Load<float>(at));
        case ZXADLG_FIELD_DOUBLE:
            return FormatNumber(Load<double>(at));
        case ZXADLG_FIELD_TEXT: {
            const void* end = std::memchr(at, 0, field.size);
            const std::size_t length =
                end ? static_cast<std::size_t>(static_cast<const char*>(end) - at) : field.size;
            return "\"" + FromSystem(std::string(at, length)) + "\"";
        }
        default:
            return FormatBytes(at, field.size);
    }
}

// "aRegions[3].dStart": an element of an array by its place.
std::string FieldName(const ZXADLG_FieldInfo& field, std::uint32_t i, std::uint32_t j) {
    std::string name = field.name;
    if (field.count > 1) name += "[" + std::to_string(i) + "]";
    if (field.member != nullptr) name += std::string(".") + field.member;
    if (field.innerCount > 1) name += "[" + std::to_string(j) + "]";
    return name;
}

}  // namespace

const std::span<const ParamName> kParamNames = kParamRows;

std::vector<FieldValue> CompareRecords(const char* type, const void* before, const void* after) {
    const ZXADLG_FieldInfo* fields = nullptr;
    const std::uint32_t count = ZXADLG_GetRecordFields(type, &fields);
    std::vector<FieldValue> values;
    for (std::uint32_t f = 0; f < count; ++f) {
        const ZXADLG_FieldInfo& field = fields[f];
        for (std::uint32_t i = 0; i < field.count; ++i) {
            for (std::uint32_t j = 0; j < field.innerCount; ++j) {
                const std::size_t place = field.offset + i * field.stride + j * field.size;
                FieldValue value;
                value.name = FieldName(field, i, j);
                value.before = FormatField(field, static_cast<const char*>(before) + place);
                value.after = FormatField(field, static_cast<const char*>(after) + place);
                value.changed = value.before != value.after;
                values.push_back(std::move(value));
            }
        }
    }
    return values;
}

namespace {

const char* TypeText(const ZXADLG_FieldInfo& field, std::string* room) {
    switch (field.type) {
        case ZXADLG_FIELD_BOOL8:
        case ZXADLG_FIELD_BOOL32:
            return "0 or 1";
        case ZXADLG_FIELD_U32:
            return "a whole number from 0 to 4294967295";
        case ZXADLG_FIELD_I32:
            return "a whole number from -2147483648 to 2147483647";
        case ZXADLG_FIELD_FLOAT:
            return "a number of single precision";
        case ZXADLG_FIELD_DOUBLE:
            return "a number";
        case ZXADLG_FIELD_TEXT:
            *room = "a text of at most " + std::to_string(field.size - 1) + " bytes";
            return room->c_str();
        default:
            return "bytes that cannot be set";
    }
}

template <class T>
void Store(char* at, T value) {
    std::memcpy(at, &value, sizeof value);
}

template <class T>
bool StoreWhole(const std::string& text, char* at) {
    T value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, code] = std::from_chars(text.data(), end, value);
    if (code != std::errc() || stop != end) return false;
    Store(at, value);
    return true;
}

bool StoreField(const ZXADLG_FieldInfo& field, const std::string& text, char* at) {
    double number = 0.0;
    switch (field.type) {
        case ZXADLG_FIELD_BOOL8:
        case ZXADLG_FIELD_BOOL32:
            if (text != "0" && text != "1") return false;
            if (field.type == ZXADLG_FIELD_BOOL8) {
                Store<std::uint8_t>(at, text == "1");
            } else {
                Store<std::uint32_t>(at, text == "1");
            }
            return true;
        case ZXADLG_FIELD_U32:
            return StoreWhole<std::uint32_t>(text, at);
        case ZXADLG_FIELD_I32:
            return StoreWhole<std::int32_t>(text, at);
        case ZXADLG_FIELD_FLOAT:
            if (!ParseNumber(text, &number) || std::isinf(static_cast<float>(number))) return false;
            Store(at, static_cast<float>(number));
            return true;
        case ZXADLG_FIELD_DOUBLE:
            if (!ParseNumber(text, &number)) return false;
            Store(at, number);
            return true;
        case ZXADLG_FIELD_TEXT: {
            bool exact = false;
            const std::string told = ToSystem(text, &exact);
            if (!exact || told.size() >= field.size) return false;
            std::memset(at, 0, field.size);
            std::memcpy(at, told.data(), told.size());
            return true;
        }
        default:
            return false;
    }
}

}  // namespace

FieldSetting SetField(const char* type, const std::string& name, const std::string& text,
                      void* record, std::string* error) {
    const ZXADLG_FieldInfo* fields = nullptr;
    const std::uint32_t count = ZXADLG_GetRecordFields(type, &fields);
    for (std::uint32_t f = 0; f < count; ++f) {
        const ZXADLG_FieldInfo& field = fields[f];
        if (name.compare(0, std::strlen(field.name), field.name) != 0) continue;
        for (std::uint32_t i = 0; i < field.count; ++i) {
            for (std::uint32_t j = 0; j < field.innerCount; ++j) {
                if (FieldName(field, i, j) != name) continue;
                const std::size_t place = field.offset + i * field.stride + j * field.size;
                if (StoreField(field, text, static_cast<char*>(record) + place))
                    return FieldSetting::kSet;
                std::string room;
                *error = name + " is " + TypeText(field, &room) + ", not \"" + text + "\"";
                return FieldSetting::kWrongValue;
            }
        }
    }
    return FieldSetting::kNoField;
}

std::vector<FieldLine> DescribeFields(const char* type, const void* record) {
    const ZXADLG_FieldInfo* fields = nullptr;
    const std::uint32_t count = ZXADLG_GetRecordFields(type, &fields);
    std::vector<FieldLine> lines;
    for (std::uint32_t f = 0; f < count; ++f) {
        const ZXADLG_FieldInfo& field = fields[f];
        const bool array = field.count > 1, inner = field.innerCount > 1;
        std::string name = field.name, room;
        if (array) name += "[0.." + std::to_string(field.count - 1) + "]";
        if (field.member != nullptr) name += std::string(".") + field.member;
        if (inner) name += "[0.." + std::to_string(field.innerCount - 1) + "]";
        lines.push_back({name, TypeText(field, &room),
                         FormatField(field, static_cast<const char*>(record) + field.offset)});
    }
    return lines;
}

ZXADLG_DataOptions DefaultData() {
    ZXADLG_DataOptions data = {};
    data.bUseFullDataRange = 1;
    return data;
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
    params.bMeasurementOptionA = params.bMeasurementOptionB = 1;
    params.bMeasurementOutputB = params.bMeasurementOutputC = 1;
    params.bMeasurementRegionCheck = 1;
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
