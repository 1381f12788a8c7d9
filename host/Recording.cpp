#include "Recording.h"

namespace zxhost {
namespace {

std::string Counted(std::size_t count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::string Recording::Describe() const {
    const std::size_t sets = groups.empty() ? 0 : groups.front().sets.size();
    std::string text = title + ": ";
    if (kind == DataKind::kSheet) {
        text += Counted(sets, "column");
    } else {
        text += Counted(groups.size(), "signal") + ", " + Counted(sets, "sweep");
    }
    return text + ", " + Counted(PointCount(), "point");
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
