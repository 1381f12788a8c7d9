#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "contract/OptionTables.h"

namespace {

const OptionSection* const kSections[] = {
    &kCurveFitSection,        &kLowpassFilterSection,     &kHighpassFilterSection,
    &kNotchFilterSection,     &kAdaptiveFilterSection,    &kPowerSpectrumSection,
    &kHistogramSection,       &kCorrelationSection,       &kResistanceSection,
    &kNormalizeSection,       &kConvertSampleRateSection, &kLeakSubtractionSection,
    &kForceValuesSection,     &kTimeShiftSection,         &kCurrentVoltageSection,
    &kTraceVsTraceSection,    &kTraceArithmeticSection,   &kAdjustBaselineSection,
    &kSubtractControlSection, &kMeasurementsSection,      &kDataSection,
};

int32_t TypeOf(OptionType eType) {
    switch (eType) {
        case OptionType::kBool8:
            return ZXADLG_FIELD_BOOL8;
        case OptionType::kBool32:
            return ZXADLG_FIELD_BOOL32;
        case OptionType::kUInt32:
            return ZXADLG_FIELD_U32;
        case OptionType::kInt32:
            return ZXADLG_FIELD_I32;
        case OptionType::kFloat:
            return ZXADLG_FIELD_FLOAT;
        case OptionType::kText:
            return ZXADLG_FIELD_TEXT;
        case OptionType::kBytes:
            return ZXADLG_FIELD_BYTES;
        default:
            return ZXADLG_FIELD_DOUBLE;
    }
}

ZXADLG_FieldInfo Describe(const OptionSection& section, const OptionBlock& block,
                          const OptionKey& key) {
    return {.name = key.szField,
            .member = key.szMember,
            .section = key.eUse == OptionUse::kNotKept ? nullptr : section.szSection,
            .key = key.eUse == OptionUse::kNotKept ? nullptr : key.szKey,
            .type = TypeOf(key.eType),
            .offset = key.uOffset,
            .size = key.uSize,
            .count = key.uStride == 0 ? 1 : block.uRepeat,
            .stride = key.uStride,
            .innerCount = std::max<std::uint32_t>(key.uInner, 1)};
}

std::vector<ZXADLG_FieldInfo> ListFields(std::string_view sRecord) {
    std::vector<ZXADLG_FieldInfo> vFields;
    for (const OptionSection* pSection : kSections) {
        if (sRecord != pSection->szRecord) continue;
        for (const OptionBlock& block : pSection->blocks) {
            for (const OptionKey& key : block.keys)
                vFields.push_back(Describe(*pSection, block, key));
        }
    }
    // Two keys, or two sections, may share a field; the first that keeps it names it.
    const auto place = [](const ZXADLG_FieldInfo& field) {
        return std::pair(field.offset, field.key == nullptr);
    };
    using Field = ZXADLG_FieldInfo;
    std::stable_sort(vFields.begin(), vFields.end(),
                     [&](const Field& a, const Field& b) { return place(a) < place(b); });
    const auto shares = [](const Field& a, const Field& b) { return a.offset == b.offset; };
    vFields.erase(std::unique(vFields.begin(), vFields.end(), shares), vFields.end());
    return vFields;
}

}  // namespace

std::span<const ZXADLG_FieldInfo> RecordFields(std::string_view sRecord) {
    static std::map<std::string, std::vector<ZXADLG_FieldInfo>, std::less<>> s_fields;
    const auto it = s_fields.find(sRecord);
    if (it != s_fields.end()) return it->second;
    std::vector<ZXADLG_FieldInfo> vFields = ListFields(sRecord);
    if (vFields.empty()) return {};
    return s_fields.emplace(sRecord, std::move(vFields)).first->second;
}
