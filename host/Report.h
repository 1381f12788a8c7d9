// What a run tells: as text for people, or as JSON for programs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "Analyses.h"
#include "RecordFields.h"
#include "Recording.h"
#include "SettingsStore.h"
#include "WindowReading.h"

namespace zxhost {

struct Report {
    std::string data;  // one line; empty: not told
    std::vector<std::string> notes;
    std::vector<Message> messages;
    const Analysis* analysis = nullptr;
    std::int32_t result = 0;
    std::vector<FieldValue> options;        // all fields of the option record
    std::vector<FieldValue> dataSelection;  // and of the data record
    Settings store;
    std::size_t steps = 0;    // of the script that went through; 0: none did
    std::string scriptError;  // "SCRIPT:LINE: what went wrong"
};

// The text leaves errors to the caller's error stream; JSON holds them as well.
void WriteText(const Report& report, std::ostream& out);
void WriteJson(const Report& report, std::ostream& out);
// What stands in place of a report when there is none: {"code": 3, "error": "..."}.
void WriteJsonError(int code, const std::string& error, std::ostream& out);

// The analyses and the parameters; or the fields of one analysis with what they can be.
void ListAnalyses(bool json, std::ostream& out);
void ListFields(const Analysis& analysis, bool json, std::ostream& out);

}  // namespace zxhost
