#include "RecordingReader.h"

#include <cctype>
#include <cmath>

#include "System.h"

namespace zxhost {
namespace {

constexpr char kTimeUnits[] = "s, ms, us, µs and min";

struct TimeUnit {
    const char* name;  // in small letters
    double milliseconds;
};
// The micro sign and the Greek letter look alike.
constexpr TimeUnit kUnitsOfTime[] = {{"s", 1000.0}, {"ms", 1.0},        {"us", 0.001},
                                     {"µs", 0.001}, {"\u03BCs", 0.001}, {"min", 60000.0}};

std::string Heading(const TextColumn& column) {
    return column.units.empty() ? column.name : column.name + " (" + column.units + ")";
}

// Times that were once stored in single precision, or printed with few digits, give 3999.9998 Hz
// for 4000: a frequency of four digits that is that close is the one that was meant.
double WithoutNoise(double frequency) {
    const double unit = std::pow(10.0, std::floor(std::log10(frequency)) - 3.0);
    const double round = unit < 1.0 ? std::round(frequency / unit) / std::round(1.0 / unit)
                                    : std::round(frequency / unit) * unit;
    return std::abs(round - frequency) <= 1e-6 * frequency ? round : frequency;
}

bool Rises(const std::vector<double>& x, std::size_t* at) {
    for (std::size_t i = 1; i < x.size(); ++i) {
        if (x[i] > x[i - 1]) continue;
        *at = i;
        return false;
    }
    return true;
}

// The name of a signal: a heading without the number of a sweep behind it.
std::string SignalName(std::string name) {
    std::size_t end = name.size();
    while (end > 0 && std::isdigit(static_cast<unsigned char>(name[end - 1]))) --end;
    if (end == name.size()) return name;
    while (end > 0 && std::string(" _-#.:").find(name[end - 1]) != std::string::npos) --end;
    name.resize(end);
    return name;
}

std::string SweepName(std::size_t index) {
    return "Sweep " + std::to_string(index + 1);
}

class Maker {
  public:
    Maker(const std::string& path, const ReadingOptions& options, std::vector<TextColumn> columns)
        : path_(path), options_(options), columns_(std::move(columns)) {}

    bool Make(std::string* error) {
        made.title = TextOfPath(PathOf(path_).filename());
        made.kind = options_.kind;
        if (options_.kind == DataKind::kSheet) {
            MakeSheet();
        } else if (!TakeAxis() || !TakeSignals()) {
            *error = path_ + ": " + why_;
            return false;
        }
        AddCursorRegions(&made);
        return true;
    }
    Recording made;

  private:
    bool Fail(const std::string& why) {
        why_ = why;
        return false;
    }

    void MakeSheet() {
        Group group;
        group.name = "Sheet 1";
        for (TextColumn& column : columns_) {
            std::string name = column.name;
            if (name.empty()) name = "Column " + std::to_string(group.sets.size() + 1);
            group.sets.push_back({name, column.units, std::move(column.values), true});
        }
        made.groups.push_back(std::move(group));
    }

    bool TakeAxis() {
        if (columns_.size() < 2) {
            return Fail(
                "a recording needs an x column and at least one trace; this has one column, which "
                "--recording sheet reads");
        }
        std::vector<double>& x = columns_[0].values;
        std::size_t at = 0;
        if (!Rises(x, &at)) {
            return Fail("the x column does not rise at its value " + std::to_string(at + 1) +
                        "; --recording sheet reads the columns as they are");
        }
        std::string units = options_.xUnits.empty() ? columns_[0].units : options_.xUnits;
        // Sets of the other kind need not be sampled in time.
        if (options_.kind == DataKind::kSecondKind) {
            made.xUnits = units;
            made.x = std::move(x);
            return true;
        }
        if (units.empty()) {
            units = "ms";
            made.notes.push_back(
                "the x column has no units and is taken as ms; --x-units s, us or "
                "min says otherwise");
        }
        const double milliseconds = MillisecondsOf(units);
        if (milliseconds == 0.0) {
            return Fail("the x column is \"" + Heading(columns_[0]) + "\", and \"" + units +
                        "\" is no unit of time: " + kTimeUnits +
                        " are; --x-units tells the unit, --recording second-kind takes any");
        }
        if (milliseconds != 1.0) {
            for (double& value : x) value *= milliseconds;
        }
        made.xUnits = "ms";
        made.x = std::move(x);
        const double span = made.x.back() - made.x.front();
        if (span > 0.0)
            made.samplingFrequency =
                WithoutNoise(1000.0 * static_cast<double>(made.x.size() - 1) / span);
        return true;
    }

    // The group that a column belongs to, made where there is none yet.
    Group& GroupOf(const TextColumn& column) {
        const bool alone = options_.layout == Layout::kSignals;
        const std::string name = alone ? column.name : SignalName(column.name);
        if (options_.layout == Layout::kSweeps && !made.groups.empty()) return made.groups[0];
        if (!alone) {
            for (std::size_t i = 0; i < made.groups.size(); ++i) {
                if (keys_[i] == name && made.groups[i].units == column.units) return made.groups[i];
            }
        }
        keys_.push_back(name);
        const bool named = !name.empty() && options_.layout != Layout::kSweeps;
        made.groups.push_back(
            {named ? name : "Signal " + std::to_string(made.groups.size() + 1), column.units, {}});
        return made.groups.back();
    }

    bool TakeSignals() {
        for (std::size_t i = 1; i < columns_.size(); ++i) {
            TextColumn& column = columns_[i];
            Group& group = GroupOf(column);
            if (group.units != column.units) {
                return Fail("--layout sweeps makes one signal, and column " +
                            std::to_string(i + 1) + " \"" + Heading(column) + "\" is not in \"" +
                            group.units + "\"");
            }
            group.sets.push_back({column.name, "", std::move(column.values), true});
        }
        for (Group& group : made.groups) {
            const std::size_t wanted = made.groups[0].sets.size();
            if (group.sets.size() != wanted) {
                return Fail("\"" + group.name + "\" has " + std::to_string(group.sets.size()) +
                            " and \"" + made.groups[0].name + "\" " + std::to_string(wanted) +
                            " sweeps; --layout sweeps or --layout signals says what the columns "
                            "are");
            }
            // The sweeps of several signals are the same ones; a heading that is the signal's own
            // name tells nothing of the sweep.
            for (std::size_t i = 0; i < wanted; ++i) {
                std::string& name = group.sets[i].name;
                if (made.groups.size() > 1 || name.empty() || name == group.name)
                    name = SweepName(i);
            }
        }
        return true;
    }

    std::string path_;
    ReadingOptions options_;
    std::vector<TextColumn> columns_;
    std::vector<std::string> keys_;  // of the groups, by which columns find theirs
    std::string why_;
};

}  // namespace

double MillisecondsOf(const std::string& units) {
    std::string lower;
    for (char c : units) {
        const auto byte = static_cast<unsigned char>(c);
        lower += byte < 0x80 ? static_cast<char>(std::tolower(byte)) : c;
    }
    for (const TimeUnit& unit : kUnitsOfTime) {
        if (lower == unit.name) return unit.milliseconds;
    }
    return 0.0;
}

bool ReadRecording(const std::string& path, const ReadingOptions& options, Recording* recording,
                   std::string* error, const ReadProgress& progress) {
    std::vector<TextColumn> columns;
    if (!ReadTextColumns(path, &columns, error, progress, options.delimiter)) return false;
    Maker maker(path, options, std::move(columns));
    if (!maker.Make(error)) return false;
    *recording = std::move(maker.made);
    return true;
}

}  // namespace zxhost
