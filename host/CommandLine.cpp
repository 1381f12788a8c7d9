#include "CommandLine.h"

#include <cstring>
#include <ostream>

#include "HostDataSource.h"
#include "HostFileSource.h"
#include "MembraneModel.h"
#include "Script.h"
#include "ScriptPlayer.h"
#include "SettingsStore.h"
#include "TextReader.h"

namespace zxhost {

const char kHelp[] =
    "zxhost: opens the analysis dialogs on a recording\n"
    "\n"
    "  zxhost [DATA] [--store FILE]                         a window, where there is a display\n"
    "  zxhost [DATA] run ANALYSIS --script FILE [OPTIONS]   a dialog, driven by a script\n"
    "  zxhost list                                          analyses and parameters\n"
    "  zxhost --help\n"
    "\n"
    "DATA\n"
    "  --data FILE        delimited text: an x column and traces, or with\n"
    "                     --recording sheet a sheet of columns\n"
    "  --recording KIND   family (default), second-kind, no-waveform or sheet;\n"
    "                     without --data simulated\n"
    "OPTIONS\n"
    "  --script FILE      the steps to play; docs/automation.md tells the language\n"
    "  --store FILE       keep settings in this file instead of the host's own branch\n"
    "  --control FILE     what browsing for a control file gives (subtract-control)\n"
    "  --read-only        the dialog displays only\n"
    "  --deferred         the dialog edits settings for a later run\n"
    "  --params N=0/1,... parameters by name\n"
    "  --time-limit S     seconds for the whole script (default 60)\n"
    "\n"
    "Exit codes: 0 done, 1 the script did not go through, 2 wrong command line,\n"
    "3 data, script or store could not be read or written.\n";

namespace {

struct Kind {
    const char* name;
    Simulation simulation;
    DataKind kind;
};

constexpr Kind kKinds[] = {
    {"family", Simulation::kFamily, DataKind::kRecording},
    {"second-kind", Simulation::kSecondKind, DataKind::kSecondKind},
    {"no-waveform", Simulation::kNoWaveform, DataKind::kRecording},
    {"sheet", Simulation::kSheet, DataKind::kSheet},
};

const Kind* FindKind(const std::string& name) {
    if (name.empty()) return &kKinds[0];
    for (const Kind& kind : kKinds) {
        if (name == kind.name) return &kind;
    }
    return nullptr;
}

void List(std::ostream& out) {
    out << "analyses:\n";
    for (const Analysis& analysis : kAnalyses)
        out << "  " << analysis.name << "  " << analysis.title << " (" << analysis.record << ", "
            << analysis.size << " bytes)\n";
    const ZXADLG_DlgParams usual = DefaultParams();
    out << "parameters, with what the host sets:\n";
    for (const ParamName& param : kParamNames)
        out << "  " << param.name << "=" << int(usual.*param.byte) << "  " << param.meaning << "\n";
}

void PrintChanges(std::ostream& out, const char* record, const void* before, const void* after) {
    out << "changed in " << record << ":\n";
    bool any = false;
    for (const FieldValue& value : CompareRecords(record, before, after)) {
        if (!value.changed) continue;
        any = true;
        out << "  " << value.name << ": " << value.before << " -> " << value.after << "\n";
    }
    if (!any) out << "  nothing\n";
}

void PrintMessage(std::ostream& out, const Message& message) {
    out << "message: " << message.title << ": ";
    for (char c : message.text) {
        if (c == '\n') {
            out << "\\n";
        } else if (c != '\r') {
            out << c;
        }
    }
    for (const std::string& button : message.buttons) out << " [" << button << "]";
    out << "\n";
}

void PrintStore(std::ostream& out, const SettingsStore& store) {
    const std::string text = FormatSettings(store.Read());
    out << "store:\n";
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = text.find('\n', at);
        if (end > at) out << "  " << text.substr(at, end - at) << "\n";
        at = end + 1;
    }
    if (text.empty()) out << "  empty\n";
}

int RunAnalysis(const Options& options, std::ostream& out, std::ostream& err) {
    std::string error;
    const auto fail = [&] {
        err << "zxhost: " << error << "\n";
        return kNoInput;
    };
    Script script;
    if (!ReadScript(options.script, &script, &error)) return fail();
    Recording recording;
    if (!LoadRecording(options, &recording, &error)) return fail();
    SettingsStore store;
    if (!store.Open(options.store, &error)) return fail();

    const Analysis& analysis = *options.analysis;
    HostDataSource source(&recording, store.ProfileName());
    HostFileSource files([&options](HWND__*) { return options.control; },
                         [&err](const std::string& why) { err << "zxhost: " << why << "\n"; });
    // Doubles make the room fit for every record.
    std::vector<double> room(kMaxOptionSize / sizeof(double), 0.0);
    std::memcpy(room.data(), analysis.defaults, analysis.size);
    const std::vector<double> roomBefore = room;
    ZXADLG_DataOptions data = DefaultData();
    const ZXADLG_DataOptions dataBefore = data;

    out << "data: " << recording.Describe() << "\n";
    ScriptPlayer player(script, options.timeLimit * 1000);
    const std::int32_t result = player.Play([&] {
        return analysis.show({nullptr, room.data(), &data, &source, &files, &options.params});
    });
    for (const Message& message : player.Messages()) PrintMessage(out, message);
    PrintOutcome({analysis, result, roomBefore.data(), room.data(), dataBefore, data, store}, out);
    if (!store.Save(&error)) return fail();
    if (!player.Error().empty()) {
        err << player.Error() << "\n";
        return kScriptFailed;
    }
    out << "script: went through, " << script.steps.size()
        << (script.steps.size() == 1 ? " step\n" : " steps\n");
    return kDone;
}

}  // namespace

void PrintOutcome(const Outcome& outcome, std::ostream& out) {
    out << "result: " << outcome.result << " (" << DescribeResult(outcome.result) << ")\n";
    PrintChanges(out, outcome.analysis.record, outcome.recordBefore, outcome.record);
    PrintChanges(out, "ZXADLG_DataOptions", &outcome.dataBefore, &outcome.data);
    PrintStore(out, outcome.store);
    out.flush();
}

bool ParseCommandLine(const std::vector<std::string>& arguments, Options* options,
                      std::string* error) {
    Options read;
    std::vector<std::string> words;
    const auto wrong = [&](const std::string& why) {
        *error = why + " (zxhost --help tells how)";
        return false;
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            read = {};
            read.command = Command::kHelp;
            *options = read;
            return true;
        }
        if (argument.substr(0, 2) != "--") {
            words.push_back(argument);
            continue;
        }
        if (argument == "--read-only") {
            read.params.bReadOnly = 1;
            continue;
        }
        if (argument == "--deferred") {
            read.params.bDeferredRun = 1;
            continue;
        }
        const bool known = argument == "--data" || argument == "--recording" ||
                           argument == "--script" || argument == "--store" ||
                           argument == "--params" || argument == "--time-limit" ||
                           argument == "--control";
        if (!known) return wrong("there is no option " + argument);
        if (i + 1 == arguments.size()) return wrong(argument + " needs a value");
        const std::string& value = arguments[++i];
        if (value.empty()) return wrong(argument + " needs a value");
        if (argument == "--data") read.data = value;
        if (argument == "--recording") {
            if (!FindKind(value)) return wrong("there is no recording \"" + value + "\"");
            read.recording = value;
        }
        if (argument == "--script") read.script = value;
        if (argument == "--store") read.store = value;
        if (argument == "--control") read.control = value;
        if (argument == "--params") {
            std::string why;
            if (!ApplyParams(value, &read.params, &why)) return wrong("--params: " + why);
        }
        if (argument == "--time-limit") {
            const int seconds = NumberOf({value, false});
            if (seconds < 1 || seconds > 3600)
                return wrong("--time-limit is a number of seconds from 1 to 3600");
            read.timeLimit = static_cast<std::uint32_t>(seconds);
        }
    }
    if (!words.empty()) {
        if (words[0] == "list" && words.size() == 1) {
            read.command = Command::kList;
        } else if (words[0] == "run") {
            read.command = Command::kRun;
            if (words.size() != 2) return wrong("run needs the name of one analysis");
            read.analysis = FindAnalysis(words[1]);
            if (!read.analysis) return wrong("there is no analysis \"" + words[1] + "\"");
            if (read.script.empty()) return wrong("run needs --script FILE");
        } else {
            return wrong("there is no command \"" + words[0] + "\"");
        }
    }
    *options = read;
    return true;
}

bool LoadRecording(const Options& options, Recording* recording, std::string* error,
                   const ReadProgress& progress) {
    const Kind& kind = *FindKind(options.recording);
    if (!options.data.empty())
        return ReadRecording(options.data, kind.kind, recording, error, progress);
    *recording = SimulateRecording(kind.simulation);
    return true;
}

int RunCommand(const Options& options, std::ostream& out, std::ostream& err) {
    switch (options.command) {
        case Command::kHelp:
            out << kHelp;
            return kDone;
        case Command::kList:
            List(out);
            return kDone;
        case Command::kRun:
            return RunAnalysis(options, out, err);
        case Command::kWindow:
            break;
    }
    err << "zxhost: there is no display here; zxhost run ANALYSIS --script FILE works without "
           "one\n";
    return kWrongUsage;
}

}  // namespace zxhost
