#include "Analyses.h"

namespace zxhost {
namespace {

// The Show functions of one form differ in the type of their option record alone.
template <class Record, auto kShow>
std::int32_t Show(HWND__* owner, void* options, ZXADLG_DataOptions* data,
                  ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params) {
    return kShow(owner, static_cast<Record*>(options), data, source, params);
}

template <class Record, auto kShow>
constexpr Analysis Row(const char* name, const char* title, const char* record,
                       const std::span<const Field>* fields) {
    static_assert(sizeof(Record) <= kMaxOptionSize);
    return {name, title, record, sizeof(Record), fields, &Show<Record, kShow>};
}

constexpr Analysis kRows[] = {
    Row<ZXADLG_NormalizeOptions, &ZXADLG_ShowNormalizeDialog>(
        "normalize", "Normalize", "ZXADLG_NormalizeOptions", &kNormalizeFields),
};

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
