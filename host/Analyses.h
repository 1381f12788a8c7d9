// The analyses that the library offers: what the host needs to open each of their dialogs.
//
// A new dialog is one row here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "ZXADLG.h"

namespace zxhost {

// What a Show function gets; those that take less leave the rest alone.
struct DialogCall {
    HWND__* owner;
    void* options;
    ZXADLG_DataOptions* data;
    ZXADLG_CDlgDataSource* source;
    ZXADLG_CDlgFileSource* files;
    const ZXADLG_DlgParams* params;
};

struct Analysis {
    const char* name;      // on the command line
    const char* title;     // for people
    const char* record;    // type of its option record
    std::size_t size;      // of the record, at most kMaxOptionSize
    const void* defaults;  // a record as a first run shows it
    std::int32_t (*show)(const DialogCall& call);
};

inline constexpr std::size_t kMaxOptionSize = 65536;

extern const std::span<const Analysis> kAnalyses;

// Null when there is none of this name.
const Analysis* FindAnalysis(const std::string& name);

// "OK", "Cancel" or what went wrong, for a result of a Show function.
const char* DescribeResult(std::int32_t result);

}  // namespace zxhost
