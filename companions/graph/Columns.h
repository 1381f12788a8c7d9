// Any number of points made as many as a picture can show: for each column of pixels the extremes,
// so that no spike is lost, and the values at which the trace enters and leaves it.
#pragma once

#include <cstdint>
#include <vector>

#include "AxisTicks.h"
#include "zxadlg/Graph.h"

namespace graph {

struct Column {
    double dFirst = 0.0;  // in the order of the points
    double dMin = 0.0;
    double dMax = 0.0;
    double dLast = 0.0;
    uint32_t uCount = 0;
    bool bGapBefore = false;  // a gap stands between the column before and this one
};

// The smallest and largest finite value of both coordinates over the points that have both.
struct Extent {
    double dMinX = 0.0, dMaxX = 0.0, dMinY = 0.0, dMaxY = 0.0;
    uint32_t uCount = 0;  // points with both coordinates finite

    void Add(double dX, double dY);
    void Add(const Extent& other);
};

Extent ExtentOf(const GMT_Points& points);

// The points within the range by columns. Points outside of it count for nothing.
std::vector<Column> ColumnsOf(const GMT_Points& points, const Range& x, int nColumns);

}  // namespace graph
