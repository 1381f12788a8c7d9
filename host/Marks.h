// What a command line puts on a recording: its cursors, and regions of its own.
#pragma once

#include <string>
#include <vector>

#include "Recording.h"

namespace zxhost {

struct CursorMark {
    int cursor = 0;  // from 1
    double at = 0.0;
};

struct RegionMark {
    std::string name;
    double from = 0.0;
    double to = 0.0;
};

// "3=110", "Peak=30..60"; on failure false with what was expected.
bool ParseCursorMark(const std::string& text, CursorMark* mark, std::string* error);
bool ParseRegionMark(const std::string& text, RegionMark* mark, std::string* error);

// Places are on the x axis, in ms for a recording; of a sheet they are rows from 1. A place outside
// of the data or a region's name that is taken is a failure, and the recording stays as it was.
bool ApplyMarks(const std::vector<CursorMark>& cursors, const std::vector<RegionMark>& regions,
                Recording* recording, std::string* error);

}  // namespace zxhost
