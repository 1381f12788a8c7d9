// The command line of the example host, the same on every system.
//
// Exit codes: 0 done (with a script: it went through), 1 the script did not go through, 2 the
// command line is wrong, 3 data, script, control file or store could not be read or written. A run
// that ends with another code than 0 stores nothing.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Analyses.h"
#include "Marks.h"
#include "RecordFields.h"
#include "RecordingReader.h"
#include "Stimulus.h"

namespace zxhost {

enum ExitCode { kDone = 0, kScriptFailed = 1, kWrongUsage = 2, kNoInput = 3 };

enum class Command { kWindow, kRun, kList, kHelp, kVersion };

struct Options {
    Command command = Command::kWindow;
    std::string data;       // file; empty: simulated
    std::string recording;  // "family", "second-kind", "no-waveform" or "sheet"; empty: the first
    Layout layout = Layout::kByHeading;
    std::string xUnits;
    char delimiter = 0;
    std::string waveform;  // file; empty: none or the protocol
    std::optional<StepProtocol> protocol;
    std::vector<CursorMark> cursors;
    std::vector<RegionMark> regions;
    std::vector<std::pair<std::string, std::string>> fields;  // start values of the records
    const Analysis* analysis = nullptr;                       // of run, and of list where named
    std::string script;
    std::string store;             // file; empty: a scratch store or the user's own
    bool ownSettings = false;      // the user's own
    bool json = false;             // what is printed
    std::string control;           // the file that browsing for a control file gives; empty: none
    std::uint32_t timeLimit = 60;  // s
    ZXADLG_DlgParams params = DefaultParams();
};

// `arguments` without the program's name. On failure false with what is wrong.
bool ParseCommandLine(const std::vector<std::string>& arguments, Options* options,
                      std::string* error);

// The recording that the options name, read or simulated, with its stimulus and marks. On failure
// the exit code with what is wrong, and the recording as it was.
ExitCode LoadRecording(const Options& options, Recording* recording, std::string* error,
                       const ReadProgress& progress = nullptr);

// Runs everything but the window. Gives the exit code; results go to `out`, errors to `err`.
int RunCommand(const Options& options, std::ostream& out, std::ostream& err);

extern const char kHelp[];
extern const char kVersion[];

}  // namespace zxhost
