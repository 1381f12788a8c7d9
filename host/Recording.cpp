#include "Recording.h"

#include "Numbers.h"

namespace zxhost {
namespace {

std::string Counted(std::size_t count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

// "Im in pA, Vm in mV"; of many the first ones.
template <class Item>
std::string Listed(const std::vector<Item>& items) {
    constexpr std::size_t kMost = 6;
    std::string text;
    for (std::size_t i = 0; i < items.size() && i < kMost; ++i) {
        text += (i ? ", " : " (") + items[i].name;
        if (!items[i].units.empty()) text += " in " + items[i].units;
    }
    return text + (items.size() > kMost ? ", ...)" : ")");
}

std::string Rate(double frequency) {
    return frequency < 1000.0 ? ShortNumber(frequency) + " Hz"
                              : ShortNumber(frequency / 1000.0) + " kHz";
}

}  // namespace

std::string Recording::Describe() const {
    std::string text = title + ": ";
    if (groups.empty()) return text + "no data";
    const std::vector<Set>& sets = groups.front().sets;
    if (kind == DataKind::kSheet) {
        return text + Counted(sets.size(), "column") + Listed(sets) + ", " +
               Counted(PointCount(), "row");
    }
    text += Counted(groups.size(), "signal") + Listed(groups) + ", " +
            Counted(sets.size(), "sweep") + ", " + Counted(PointCount(), "point");
    if (samplingFrequency > 0.0) text += " at " + Rate(samplingFrequency);
    if (!x.empty()) {
        text += ", " + ShortNumber(x.front()) + " to " + ShortNumber(x.back());
        if (!xUnits.empty()) text += " " + xUnits;
    }
    return text;
}

void AddRegion(Recording* recording, const std::string& name, std::uint32_t first,
               std::uint32_t last) {
    // Numbers 26 to 45 are epoch variables.
    constexpr std::int32_t kFirstVariable = 26, kVariables = 20;
    auto id = static_cast<std::int32_t>(recording->regions.size());
    if (id >= kFirstVariable) id += kVariables;
    recording->regions.push_back({id, name, 0, 0, first, last});
}

void AddCursorRegions(Recording* recording) {
    const std::uint32_t points = recording->PointCount();
    const std::uint32_t last = points == 0 ? 0 : points - 1;
    recording->regions.push_back({0, "Whole sweep", 0, 0, 0, last});
    recording->regions.push_back({1, "Cursors 1..2", 1, 2, 0, 0});
    recording->regions.push_back({2, "Cursors 3..4", 3, 4, 0, 0});
    const auto at = [points](double fraction) {
        return static_cast<std::int32_t>(fraction * points);
    };
    recording->cursors = {at(0.05), at(0.15), at(0.55), at(0.65)};
}

}  // namespace zxhost
