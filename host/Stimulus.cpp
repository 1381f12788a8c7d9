#include "Stimulus.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "Numbers.h"
#include "RecordingReader.h"

namespace zxhost {
namespace {

constexpr std::size_t kMostEpochs = 20;
constexpr double kMostSteps = 10000.0;

// Takes words off a text and knows the place of each, for messages.
class Words {
  public:
    explicit Words(const std::string& text) : text_(text) {}

    std::string Next() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        place_ = at_ + 1;
        const std::size_t end = std::min(text_.find(' ', at_), text_.size());
        const std::string word = text_.substr(at_, end - at_);
        at_ = end;
        return word;
    }
    std::string Expected(const std::string& what) const {
        return "place " + std::to_string(place_) + ": " + what + " was expected";
    }

  private:
    const std::string& text_;
    std::size_t at_ = 0;
    std::size_t place_ = 1;
};

// The first point at or behind a time.
std::uint32_t PointAt(const Recording& recording, double time) {
    const double tolerance = 1e-6 * (recording.x.back() - recording.x.front() + 1.0);
    const auto at = std::lower_bound(recording.x.begin(), recording.x.end(), time - tolerance);
    return static_cast<std::uint32_t>(at - recording.x.begin());
}

// Letters as on a rig: A to T.
void AddEpoch(Recording* recording, std::size_t index, std::uint32_t first, std::uint32_t last) {
    const std::string name = std::string("Epoch ") + static_cast<char>('A' + index);
    AddRegion(recording, name, first, last);
    // The dialogs offer the level of an epoch as a variable where a region has this number; without
    // a name it is no region that a user chooses.
    constexpr std::size_t kLevels = 10;
    constexpr std::int32_t kFirstLevel = 26;
    if (index < kLevels) {
        const std::int32_t id = kFirstLevel + static_cast<std::int32_t>(index);
        recording->regions.push_back({id, "", 0, 0, first, last});
    }
}

bool NeedsTime(const Recording& recording, std::string* error) {
    if (recording.kind == DataKind::kRecording) return true;
    *error = "a stimulus needs a recording in time; this is another kind of data";
    return false;
}

std::string CommandName(const std::string& units) {
    if (units == "mV" || units == "V") return "Command potential";
    if (!units.empty() && units.back() == 'A') return "Command current";
    return "Command";
}

// The points at which a sweep of the command leaves the level of the point before.
std::vector<std::uint32_t> Changes(const Group& command) {
    double low = 0.0, high = 0.0;
    for (const Set& set : command.sets) {
        for (double value : set.values) {
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
    const double least = (high - low) * 1e-6;
    std::vector<std::uint32_t> changes;
    const std::size_t points = command.sets[0].values.size();
    for (std::size_t i = 1; i < points && changes.size() <= kMostEpochs + 1; ++i) {
        for (const Set& set : command.sets) {
            if (std::fabs(set.values[i] - set.values[i - 1]) <= least) continue;
            changes.push_back(static_cast<std::uint32_t>(i));
            break;
        }
    }
    return changes;
}

}  // namespace

std::size_t StepProtocol::Sweeps() const {
    return static_cast<std::size_t>(std::lround((last - first) / step)) + 1;
}

bool LooksLikeProtocol(const std::string& text) {
    const std::size_t dots = text.find("..");
    double value;
    return dots != std::string::npos && ParseNumber(text.substr(0, dots), &value);
}

bool ParseProtocol(const std::string& text, StepProtocol* protocol, std::string* error) {
    StepProtocol read;
    Words words(text);
    const auto fail = [&](const std::string& what) {
        *error = words.Expected(what);
        return false;
    };
    const std::string range = words.Next();
    const std::size_t dots = range.find("..");
    if (dots == std::string::npos || !ParseNumber(range.substr(0, dots), &read.first) ||
        !ParseNumber(range.substr(dots + 2), &read.last))
        return fail("FIRST..LAST");
    if (words.Next() != "by") return fail("\"by\"");
    if (!ParseNumber(words.Next(), &read.step) || read.step == 0.0)
        return fail("a step that is not 0");
    const double steps = (read.last - read.first) / read.step;
    if (steps < 0.0 || steps > kMostSteps || std::fabs(steps - std::round(steps)) > 1e-6)
        return fail("a step that leads from " + ShortNumber(read.first) + " to " +
                    ShortNumber(read.last));
    std::string word = words.Next();
    if (word != "from" && !word.empty()) {
        read.units = word;
        word = words.Next();
    }
    if (word != "from") return fail("\"from\"");
    if (!ParseNumber(words.Next(), &read.begin)) return fail("the time at which the step begins");
    if (words.Next() != "to") return fail("\"to\"");
    if (!ParseNumber(words.Next(), &read.end) || read.end <= read.begin)
        return fail("a later time at which the step ends");
    const double milliseconds = MillisecondsOf(words.Next());
    if (milliseconds == 0.0) return fail("a unit of time (s, ms, us, µs or min)");
    if (!words.Next().empty()) return fail("the end of the protocol");
    read.begin *= milliseconds;
    read.end *= milliseconds;
    *protocol = read;
    return true;
}

bool ApplyProtocol(const StepProtocol& protocol, Recording* recording, std::string* error) {
    if (!NeedsTime(*recording, error)) return false;
    const std::size_t sweeps = recording->groups[0].sets.size();
    if (protocol.Sweeps() != sweeps) {
        *error = "the protocol has " + std::to_string(protocol.Sweeps()) +
                 " steps and the recording " + std::to_string(sweeps) + " sweeps";
        return false;
    }
    const std::uint32_t first = PointAt(*recording, protocol.begin);
    const std::uint32_t end = PointAt(*recording, protocol.end);
    if (protocol.begin < recording->x.front() || protocol.begin > recording->x.back() ||
        end <= first) {
        *error = "the step from " + ShortNumber(protocol.begin) + " to " +
                 ShortNumber(protocol.end) + " ms holds no point of the recording, which lasts " +
                 "from " + ShortNumber(recording->x.front()) + " to " +
                 ShortNumber(recording->x.back()) + " ms";
        return false;
    }
    recording->waveforms = {{0, CommandName(protocol.units)}};
    AddEpoch(recording, 0, first, end - 1);
    recording->notes.push_back("the stimulus steps from " + ShortNumber(protocol.first) + " to " +
                               ShortNumber(protocol.last) + " " + protocol.units + " by " +
                               ShortNumber(protocol.step) + ", in points " +
                               std::to_string(first + 1) + " to " + std::to_string(end));
    return true;
}

bool ApplyWaveformFile(const std::string& path, Recording* recording, std::string* error,
                       const ReadProgress& progress) {
    if (!NeedsTime(*recording, error)) return false;
    Recording command;
    if (!ReadRecording(path, {}, &command, error, progress)) return false;
    const auto fail = [&](const std::string& why) {
        *error = path + ": " + why;
        return false;
    };
    if (command.x.size() != recording->x.size()) {
        return fail("the waveform has " + std::to_string(command.x.size()) +
                    " points and the recording " + std::to_string(recording->x.size()));
    }
    const double span = recording->x.back() - recording->x.front();
    const double least =
        0.5 * span / static_cast<double>(std::max<std::size_t>(command.x.size(), 2) - 1);
    for (std::size_t i = 0; i < command.x.size(); ++i) {
        if (std::fabs(command.x[i] - recording->x[i]) <= least) continue;
        return fail("the waveform's time at point " + std::to_string(i + 1) + " is " +
                    ShortNumber(command.x[i]) + " ms and the recording's " +
                    ShortNumber(recording->x[i]) + " ms");
    }
    const std::size_t sweeps = recording->groups[0].sets.size();
    const std::size_t given = command.groups[0].sets.size();
    if (given != 1 && given != sweeps) {
        return fail("the waveform has " + std::to_string(given) + " sweeps and the recording " +
                    std::to_string(sweeps));
    }
    recording->waveforms.clear();
    for (const Group& group : command.groups) {
        const auto number = static_cast<std::uint32_t>(recording->waveforms.size());
        recording->waveforms.push_back({number, group.name});
    }
    const std::vector<std::uint32_t> changes = Changes(command.groups[0]);
    std::string told = "the stimulus is \"" + command.groups[0].name + "\"";
    if (changes.size() >= 2 && changes.size() <= kMostEpochs + 1) {
        for (std::size_t i = 0; i + 1 < changes.size(); ++i)
            AddEpoch(recording, i, changes[i], changes[i + 1] - 1);
        told += ", with steps that begin at points";
        for (std::size_t i = 0; i + 1 < changes.size(); ++i)
            told += (i ? ", " : " ") + std::to_string(changes[i] + 1);
    } else {
        told += ", which has no steps";
    }
    recording->notes.push_back(told);
    return true;
}

}  // namespace zxhost
