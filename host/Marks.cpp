#include "Marks.h"

#include <algorithm>

#include "Numbers.h"

namespace zxhost {
namespace {

// Of the two points around a place the nearer one; false outside of the data.
bool FindPoint(const Recording& recording, double at, std::uint32_t* point) {
    const std::uint32_t points = recording.PointCount();
    if (recording.x.empty()) {
        if (at < 1.0 || at > points) return false;
        *point = static_cast<std::uint32_t>(at - 0.5);
        return true;
    }
    const std::vector<double>& x = recording.x;
    if (at < x.front() || at > x.back()) return false;
    const auto behind =
        static_cast<std::size_t>(std::lower_bound(x.begin(), x.end(), at) - x.begin());
    const bool before = behind > 0 && at - x[behind - 1] < x[behind] - at;
    *point = static_cast<std::uint32_t>(before ? behind - 1 : behind);
    return true;
}

std::string Extent(const Recording& recording) {
    if (recording.x.empty()) return "rows 1 to " + std::to_string(recording.PointCount());
    return ShortNumber(recording.x.front()) + " to " + ShortNumber(recording.x.back()) +
           (recording.xUnits.empty() ? "" : " " + recording.xUnits);
}

}  // namespace

bool ParseCursorMark(const std::string& text, CursorMark* mark, std::string* error) {
    const bool numbered =
        text.size() > 2 && text[1] == '=' && text[0] > '0' && text[0] <= '0' + kCursors;
    if (!numbered || !ParseNumber(text.substr(2), &mark->at)) {
        *error = "\"" + text + "\" should be N=MS with N from 1 to " + std::to_string(kCursors);
        return false;
    }
    mark->cursor = text[0] - '0';
    return true;
}

bool ParseRegionMark(const std::string& text, RegionMark* mark, std::string* error) {
    const std::size_t equals = text.rfind('=');
    const std::size_t dots = equals == std::string::npos ? equals : text.find("..", equals);
    if (dots == std::string::npos || equals == 0 ||
        !ParseNumber(text.substr(equals + 1, dots - equals - 1), &mark->from) ||
        !ParseNumber(text.substr(dots + 2), &mark->to) || mark->to < mark->from) {
        *error = "\"" + text + "\" should be NAME=FROM..TO in ms";
        return false;
    }
    mark->name = text.substr(0, equals);
    return true;
}

bool ApplyMarks(const std::vector<CursorMark>& cursors, const std::vector<RegionMark>& regions,
                Recording* recording, std::string* error) {
    auto places = recording->cursors;
    const auto fail = [&](const std::string& what, double at) {
        *error = what + " at " + ShortNumber(at) + " is outside of the data, " + Extent(*recording);
        return false;
    };
    std::uint32_t point = 0;
    for (const CursorMark& mark : cursors) {
        if (!FindPoint(*recording, mark.at, &point))
            return fail("cursor " + std::to_string(mark.cursor), mark.at);
        places[static_cast<std::size_t>(mark.cursor - 1)] = static_cast<std::int32_t>(point);
    }
    Recording marked;
    marked.regions = recording->regions;
    for (const RegionMark& mark : regions) {
        const bool taken =
            std::any_of(marked.regions.begin(), marked.regions.end(),
                        [&](const Region& region) { return region.name == mark.name; });
        if (taken) {
            *error = "there is already a region \"" + mark.name + "\"";
            return false;
        }
        std::uint32_t last = 0;
        if (!FindPoint(*recording, mark.from, &point))
            return fail("the begin of region \"" + mark.name + "\"", mark.from);
        if (!FindPoint(*recording, mark.to, &last))
            return fail("the end of region \"" + mark.name + "\"", mark.to);
        AddRegion(&marked, mark.name, point, last);
    }
    recording->cursors = places;
    recording->regions = std::move(marked.regions);
    return true;
}

}  // namespace zxhost
