#include "CommandLine.h"

#include <algorithm>
#include <iterator>

#include "Script.h"

namespace zxhost {

const char kVersion[] = "zxhost " ZX_VERSION "\n";

const char kHelp[] =
    "zxhost: opens the analysis dialogs on a recording\n"
    "\n"
    "  zxhost [DATA] [--store FILE]                         a window, where there is a display\n"
    "  zxhost [DATA] run ANALYSIS --script FILE [OPTIONS]   a dialog, driven by a script\n"
    "  zxhost list [ANALYSIS]                               analyses and parameters, or the\n"
    "                                                       fields of an analysis\n"
    "  zxhost --help, zxhost --version\n"
    "\n"
    "DATA\n"
    "  --data FILE        delimited text in UTF-8: a time column and traces, or with\n"
    "                     --recording sheet a sheet of columns\n"
    "  --recording KIND   family (default), second-kind, no-waveform or sheet;\n"
    "                     without --data simulated\n"
    "  --x-units UNIT     of the time column: s, ms, us, µs or min\n"
    "  --layout WHAT      what the traces are: heading (default: told by their names\n"
    "                     and units), sweeps (of one signal) or signals\n"
    "  --delimiter WHAT   tab, semicolon, comma or blank; otherwise found out\n"
    "  --waveform WHAT    the stimulus: a file with the recording's own times, or steps,\n"
    "                     as \"-80..+40 by 10 mV from 30 to 130 ms\"\n"
    "  --cursor N=MS      puts a cursor; of a sheet on a row\n"
    "  --region NAME=FROM..TO   adds a region, in ms\n"
    "OPTIONS\n"
    "  --script FILE      the steps to play, \"-\" for the standard input;\n"
    "                     docs/automation.md tells the language\n"
    "  --set FIELD=VALUE  start value of a field of the option record or the data record\n"
    "  --store FILE       keep settings in this file; otherwise they are forgotten\n"
    "  --settings         keep settings where the window does, with the user's own\n"
    "  --format FORM      text (default) or json\n"
    "  --control FILE     what browsing for a control file gives (subtract-control)\n"
    "  --read-only        the dialog displays only\n"
    "  --deferred         the dialog edits settings for a later run\n"
    "  --params N=0/1,... parameters by name\n"
    "  --time-limit S     seconds for the whole script (default 60)\n"
    "\n"
    "An option's value may stand behind \"=\" as well: --data=FILE. --cursor, --region and\n"
    "--set may be given more than once.\n"
    "\n"
    "Exit codes: 0 done, 1 the script did not go through, 2 wrong command line,\n"
    "3 data, script, control file or store could not be read or written.\n";

namespace {

constexpr const char* kKinds[] = {"family", "second-kind", "no-waveform", "sheet"};

// Takes the value of an option; gives what is wrong with it, or nothing.
using Take = std::string (*)(const std::string& value, Options* options);

struct OptionRow {
    const char* name;
    bool hasValue;
    Take take;
};

std::string Store(const std::string& value, std::string* place) {
    *place = value;
    return "";
}

std::string TakeLayout(const std::string& value, Options* options) {
    if (value != "heading" && value != "sweeps" && value != "signals")
        return "--layout is heading, sweeps or signals";
    options->layout = value == "heading"  ? Layout::kByHeading
                      : value == "sweeps" ? Layout::kSweeps
                                          : Layout::kSignals;
    return "";
}

std::string TakeWaveform(const std::string& value, Options* options) {
    options->waveform.clear();
    options->protocol.reset();
    if (!LooksLikeProtocol(value)) return Store(value, &options->waveform);
    std::string why;
    if (!ParseProtocol(value, &options->protocol.emplace(), &why))
        return "--waveform \"" + value + "\": " + why;
    return "";
}

template <class Mark>
std::string TakeMark(const char* name, bool (*parse)(const std::string&, Mark*, std::string*),
                     const std::string& value, std::vector<Mark>* marks) {
    Mark mark;
    std::string why;
    if (!parse(value, &mark, &why)) return name + (": " + why);
    marks->push_back(mark);
    return "";
}

std::string TakeField(const std::string& value, Options* options) {
    const std::size_t equals = value.find('=');
    if (equals == std::string::npos || equals == 0)
        return "--set: \"" + value + "\" should be FIELD=VALUE";
    options->fields.emplace_back(value.substr(0, equals), value.substr(equals + 1));
    return "";
}

std::string TakeTimeLimit(const std::string& value, Options* options) {
    const int seconds = NumberOf({value, false});
    if (seconds < 1 || seconds > 3600) return "--time-limit is a number of seconds from 1 to 3600";
    options->timeLimit = static_cast<std::uint32_t>(seconds);
    return "";
}

#define ZX_TAKE [](const std::string& value, Options* options) -> std::string

const OptionRow kOptions[] = {{"--data", true, ZX_TAKE{return Store(value, &options->data);
}  // namespace
}  // namespace zxhost
, {"--script", true, ZX_TAKE{return Store(value, &options->script);
}
}
, {"--store", true, ZX_TAKE{return Store(value, &options->store);
}
}
, {"--control", true, ZX_TAKE{return Store(value, &options->control);
}
}
, {"--layout", true, TakeLayout}, {"--waveform", true, TakeWaveform}, {"--set", true, TakeField},
    {"--time-limit", true, TakeTimeLimit},
    {"--recording", true,
     ZX_TAKE{if (std::find(std::begin(kKinds), std::end(kKinds), value) ==
                 std::end(kKinds)) return "there is no recording \"" +
             value + "\"";
return Store(value, &options->recording);
}
}
, {"--x-units", true,
   ZX_TAKE{if (MillisecondsOf(value) == 0.0) return "--x-units is s, ms, us, µs or min";
return Store(value, &options->xUnits);
}
}
, {"--delimiter", true, ZX_TAKE{options->delimiter = DelimiterOf(value);
return options->delimiter ? "" : "--delimiter is tab, semicolon, comma or blank";
}
}
, {"--format", true, ZX_TAKE{options->json = value == "json";
return options->json || value == "text" ? "" : "--format is text or json";
}
}
, {"--cursor", true, ZX_TAKE{return TakeMark("--cursor", ParseCursorMark, value, &options->cursors);
}
}
, {"--region", true, ZX_TAKE{return TakeMark("--region", ParseRegionMark, value, &options->regions);
}
}
, {"--params", true, ZX_TAKE{std::string why;
return ApplyParams(value, &options->params, &why) ? "" : "--params: " + why;
}
}
, {"--settings", false, ZX_TAKE{options->ownSettings = value.empty();
return "";
}
}
, {"--read-only", false, ZX_TAKE{options->params.bReadOnly = value.empty();
return "";
}
}
, {"--deferred", false, ZX_TAKE{options->params.bDeferredRun = value.empty();
return "";
}
}
,
}
;

#undef ZX_TAKE

// What the words that are no options say; gives what is wrong, or nothing.
std::string TakeWords(const std::vector<std::string>& words, Options* options) {
    const std::string& command = words[0];
    if (command != "list" && command != "run") return "there is no command \"" + command + "\"";
    const bool run = command == "run";
    options->command = run ? Command::kRun : Command::kList;
    if (words.size() > 2 || (run && words.size() != 2))
        return command + (run ? " needs the name of one analysis"
                              : " takes the name of one analysis or none");
    if (words.size() == 2) {
        options->analysis = FindAnalysis(words[1]);
        if (!options->analysis) {
            return "there is no analysis \"" + words[1] + "\"; zxhost list names them";
        }
    }
    if (run && options->script.empty()) return "run needs --script FILE";
    return "";
}

// What does not go together.
std::string Conflict(const Options& options) {
    if (options.ownSettings && !options.store.empty())
        return "--store and --settings say two places for the settings";
    if (options.data.empty()) {
        if (!options.xUnits.empty()) return "--x-units needs --data FILE";
        if (options.layout != Layout::kByHeading) return "--layout needs --data FILE";
        if (options.delimiter) return "--delimiter needs --data FILE";
        if (!options.waveform.empty() || options.protocol) return "--waveform needs --data FILE";
    }
    return "";
}

}  // namespace

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
        const bool help = argument == "--help" || argument == "-h";
        if (help || argument == "--version") {
            *options = {};
            options->command = help ? Command::kHelp : Command::kVersion;
            return true;
        }
        if (argument.substr(0, 2) != "--") {
            words.push_back(argument);
            continue;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const auto row = std::find_if(std::begin(kOptions), std::end(kOptions),
                                      [&](const OptionRow& known) { return name == known.name; });
        if (row == std::end(kOptions)) return wrong("there is no option " + name);
        std::string value;
        if (equals != std::string::npos) {
            if (!row->hasValue) return wrong(name + " takes no value");
            value = argument.substr(equals + 1);
        } else if (row->hasValue && i + 1 < arguments.size()) {
            value = arguments[++i];
        }
        if (row->hasValue && value.empty()) return wrong(name + " needs a value");
        const std::string why = row->take(value, &read);
        if (!why.empty()) return wrong(why);
    }
    std::string why = words.empty() ? "" : TakeWords(words, &read);
    if (why.empty()) why = Conflict(read);
    if (!why.empty()) return wrong(why);
    *options = std::move(read);
    return true;
}

}  // namespace zxhost
