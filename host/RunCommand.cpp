// The commands that need no window.
#include <cstring>
#include <ostream>

#include "CommandLine.h"
#include "HostDataSource.h"
#include "HostFileSource.h"
#include "LoadProgress.h"
#include "MembraneModel.h"
#include "Report.h"
#include "Script.h"
#include "ScriptPlayer.h"
#include "SettingsStore.h"

namespace zxhost {
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

const Kind& KindOf(const std::string& name) {
    for (const Kind& kind : kKinds) {
        if (name == kind.name) return kind;
    }
    return kKinds[0];
}

// The records that a dialog gets. Doubles make the room fit for every record.
struct Records {
    explicit Records(const Analysis& which)
        : analysis(which), options(kMaxOptionSize / sizeof(double), 0.0), data(DefaultData()) {
        std::memcpy(options.data(), analysis.defaults, analysis.size);
    }

    bool Set(const std::string& name, const std::string& value, std::string* error) {
        FieldSetting set = SetField(analysis.record, name, value, options.data(), error);
        if (set == FieldSetting::kNoField)
            set = SetField("ZXADLG_DataOptions", name, value, &data, error);
        if (set == FieldSetting::kNoField)
            *error = "there is no field " + name + "; zxhost list " + analysis.name + " names them";
        return set == FieldSetting::kSet;
    }

    const Analysis& analysis;
    std::vector<double> options;
    ZXADLG_DataOptions data;
};

// The value of a field as "expect record" compares it: texts without quotes.
bool FindField(const Records& records, const std::string& name, std::string* value,
               std::string* error) {
    const auto search = [&](const char* type, const void* record) {
        for (const FieldValue& field : CompareRecords(type, record, record)) {
            if (field.name != name) continue;
            *value = field.after;
            if (value->size() >= 2 && value->front() == '"')
                *value = value->substr(1, value->size() - 2);
            return true;
        }
        return false;
    };
    if (search(records.analysis.record, records.options.data()) ||
        search("ZXADLG_DataOptions", &records.data))
        return true;
    *error = "there is no field " + name + "; zxhost list " + records.analysis.name + " names them";
    return false;
}

// A key is "Section/Key".
bool FindKey(const SettingsStore& store, const std::string& name, std::string* value,
             std::string* error) {
    const Settings settings = store.Read();
    const std::size_t slash = name.rfind('/');
    const auto section = settings.find(slash == std::string::npos ? "" : name.substr(0, slash));
    if (section != settings.end()) {
        const auto key = section->second.find(name.substr(slash + 1));
        if (key != section->second.end()) {
            *value = key->second;
            return true;
        }
    }
    *error = "there is no key " + name + " in the store";
    return false;
}

bool OpenStore(const Options& options, SettingsStore* store, std::string* error) {
    if (!options.store.empty()) return store->Open(options.store, error);
    return options.ownSettings ? store->OpenCopy(error) : store->OpenScratch(error);
}

// What comes to light before a dialog is opened.
struct Prepared {
    Script script;
    SettingsStore store;
    Recording recording;
};

ExitCode Prepare(const Options& options, Records* records, Prepared* made, std::ostream& err,
                 std::string* error) {
    for (const auto& [name, value] : options.fields) {
        if (!records->Set(name, value, error)) {
            *error = "--set: " + *error;
            return kWrongUsage;
        }
    }
    if (!ReadScript(options.script, &made->script, error) ||
        !OpenStore(options, &made->store, error))
        return kNoInput;
    Recording control;
    if (!options.control.empty() && !ReadRecording(options.control, {}, &control, error))
        return kNoInput;
    LoadProgress progress(options.data, err);
    return LoadRecording(options, &made->recording, error,
                         [&](double fraction) { return progress.Tell(fraction); });
}

int RunAnalysis(const Options& options, std::ostream& out, std::ostream& err) {
    std::string error;
    const auto fail = [&](ExitCode code) {
        err << "zxhost: " << error << "\n";
        if (options.json) WriteJsonError(code, error, out);
        return code;
    };
    const Analysis& analysis = *options.analysis;
    Records records(analysis);
    Prepared made;
    const ExitCode code = Prepare(options, &records, &made, err, &error);
    if (code != kDone) return fail(code);
    const Records before = records;

    HostDataSource source(&made.recording, made.store.ProfileName());
    HostFileSource files([&options](HWND__*) { return options.control; },
                         [&err](const std::string& why) { err << "zxhost: " << why << "\n"; });
    ScriptPlayer player(made.script, options.timeLimit * 1000);
    player.SetReaders([&](const std::string& name, std::string* value,
                          std::string* why) { return FindField(records, name, value, why); },
                      [&](const std::string& name, std::string* value, std::string* why) {
                          return FindKey(made.store, name, value, why);
                      });
    Report report;
    report.result = player.Play([&] {
        return analysis.show(
            {nullptr, records.options.data(), &records.data, &source, &files, &options.params});
    });
    const bool good = player.Error().empty();
    if (good && !made.store.Save(&error)) return fail(kNoInput);
    report.data = made.recording.Describe();
    report.notes = made.recording.notes;
    report.messages = player.Messages();
    report.analysis = &analysis;
    report.options = CompareRecords(analysis.record, before.options.data(), records.options.data());
    report.dataSelection = CompareRecords("ZXADLG_DataOptions", &before.data, &records.data);
    report.store = good ? made.store.Read() : made.store.Before();
    report.steps = good ? made.script.steps.size() : 0;
    report.scriptError = player.Error();
    if (options.json) {
        WriteJson(report, out);
    } else {
        WriteText(report, out);
    }
    if (good) return kDone;
    err << player.Error() << "\n";
    return kScriptFailed;
}

}  // namespace

ExitCode LoadRecording(const Options& options, Recording* recording, std::string* error,
                       const ReadProgress& progress) {
    const Kind& kind = KindOf(options.recording);
    Recording made;
    if (options.data.empty()) {
        made = SimulateRecording(kind.simulation);
    } else {
        const ReadingOptions reading{kind.kind, options.layout, options.xUnits, options.delimiter};
        if (!ReadRecording(options.data, reading, &made, error, progress)) return kNoInput;
    }
    if (!options.waveform.empty() && !ApplyWaveformFile(options.waveform, &made, error, progress))
        return kNoInput;
    if (options.protocol && !ApplyProtocol(*options.protocol, &made, error)) {
        *error = "--waveform: " + *error;
        return kWrongUsage;
    }
    if (!ApplyMarks(options.cursors, options.regions, &made, error)) return kWrongUsage;
    *recording = std::move(made);
    return kDone;
}

int RunCommand(const Options& options, std::ostream& out, std::ostream& err) {
    switch (options.command) {
        case Command::kHelp:
            out << kHelp;
            return kDone;
        case Command::kVersion:
            out << kVersion;
            return kDone;
        case Command::kList:
            if (options.analysis) {
                ListFields(*options.analysis, options.json, out);
            } else {
                ListAnalyses(options.json, out);
            }
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
