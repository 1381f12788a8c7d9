// The analyses that the library offers: what the host needs to open each of their dialogs.
//
// A new dialog is one row, with the fields of its option record in RecordFields.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "RecordFields.h"
#include "ZXADLG.h"

namespace zxhost {

struct Analysis {
    const char* name;    // on the command line
    const char* title;   // for people
    const char* record;  // type of its option record
    std::size_t size;    // of the record, at most kMaxOptionSize
    const std::span<const Field>* fields;
    std::int32_t (*show)(HWND__* owner, void* options, ZXADLG_DataOptions* data,
                         ZXADLG_CDlgDataSource* source, const ZXADLG_DlgParams* params);
};

inline constexpr std::size_t kMaxOptionSize = 65536;

extern const std::span<const Analysis> kAnalyses;

// Null when there is none of this name.
const Analysis* FindAnalysis(const std::string& name);

// "OK", "Cancel" or what went wrong, for a result of a Show function.
const char* DescribeResult(std::int32_t result);

}  // namespace zxhost
