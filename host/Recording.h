// The data of the example host: groups (signals, or the sheet) of sets (sweeps, or columns), with
// the marks that a scientist puts on them.
//
// A recording and the second kind have one x axis for all sets, that of a recording in ms; a sheet
// has none, its columns are all there is. Texts are UTF-8. Every set of a group has the same number
// of points. Indices are 0-based.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zxhost {

enum class DataKind : std::uint32_t { kRecording = 0, kSecondKind = 1, kSheet = 2 };

struct Set {
    std::string name;
    std::string units;  // of a column of a sheet; empty where the group has them
    std::vector<double> values;
    bool visible = true;
};

struct Group {
    std::string name;
    std::string units;
    std::vector<Set> sets;
    bool visible = true;
};

// A named span of points, between two cursors or fixed.
struct Region {
    std::int32_t id = 0;
    std::string name;
    int firstCursor = 0;  // 1-based; 0: the span is fixed
    int lastCursor = 0;
    std::uint32_t firstPoint = 0;
    std::uint32_t lastPoint = 0;
};

// A command waveform of the stimulus, by the number that stands for it in option records.
struct Waveform {
    std::uint32_t number = 0;
    std::string name;
};

inline constexpr int kCursors = 4;

struct Recording {
    std::string title;
    DataKind kind = DataKind::kRecording;
    std::vector<Group> groups;
    std::vector<double> x;
    std::string xUnits;
    double samplingFrequency = 0.0;  // Hz; 0 where there is none
    std::vector<Region> regions;
    std::vector<Waveform> waveforms;
    std::array<std::int32_t, kCursors> cursors{};  // points
    std::vector<std::string> notes;  // what was assumed when it was read, a sentence each
    std::uint32_t activeGroup = 0;
    std::uint32_t activeSet = 0;

    // Of every set; 0 without data.
    std::uint32_t PointCount() const {
        if (groups.empty() || groups.front().sets.empty()) return 0;
        return static_cast<std::uint32_t>(groups.front().sets.front().values.size());
    }
    // One line: what it is, its signals with their units, and how much there is of it.
    std::string Describe() const;
};

// A fixed region, with the next number that stands for no variable of the dialogs' own.
void AddRegion(Recording* recording, const std::string& name, std::uint32_t first,
               std::uint32_t last);

// The regions that every recording has: all points, and those between its cursors.
void AddCursorRegions(Recording* recording);

}  // namespace zxhost
