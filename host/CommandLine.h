// The command line of the example host, the same on every system.
//
// Exit codes: 0 done (with a script: it went through), 1 the script did not go through, 2 the
// command line is wrong, 3 data, script or store could not be read or written.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "Analyses.h"
#include "RecordFields.h"
#include "Recording.h"
#include "SettingsStore.h"
#include "TextReader.h"

namespace zxhost {

enum ExitCode { kDone = 0, kScriptFailed = 1, kWrongUsage = 2, kNoInput = 3 };

enum class Command { kWindow, kRun, kList, kHelp };

struct Options {
    Command command = Command::kWindow;
    std::string data;       // file; empty: simulated
    std::string recording;  // "family", "second-kind", "no-waveform" or "sheet"; empty: the first
    const Analysis* analysis = nullptr;
    std::string script;
    std::string store;             // file; empty: the host's own branch
    std::string control;           // the file that browsing for a control file gives; empty: none
    std::uint32_t timeLimit = 60;  // s
    ZXADLG_DlgParams params = DefaultParams();
};

// `arguments` without the program's name. On failure false with what is wrong.
bool ParseCommandLine(const std::vector<std::string>& arguments, Options* options,
                      std::string* error);

// The recording that the options name, read or simulated.
bool LoadRecording(const Options& options, Recording* recording, std::string* error,
                   const ReadProgress& progress = nullptr);

// What came of one dialog: its result, the records before and after, and the store now.
struct Outcome {
    const Analysis& analysis;
    std::int32_t result;
    const void* recordBefore;
    const void* record;
    const ZXADLG_DataOptions& dataBefore;
    const ZXADLG_DataOptions& data;
    const SettingsStore& store;
};
void PrintOutcome(const Outcome& outcome, std::ostream& out);

// Runs everything but the window. Gives the exit code; results go to `out`, errors to `err`.
int RunCommand(const Options& options, std::ostream& out, std::ostream& err);

extern const char kHelp[];

}  // namespace zxhost
