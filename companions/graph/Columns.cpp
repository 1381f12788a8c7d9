#include "Columns.h"

#include <algorithm>
#include <cmath>

namespace graph {

void Extent::Add(double dX, double dY) {
    if (uCount == 0) {
        dMinX = dMaxX = dX;
        dMinY = dMaxY = dY;
    } else {
        dMinX = std::min(dMinX, dX);
        dMaxX = std::max(dMaxX, dX);
        dMinY = std::min(dMinY, dY);
        dMaxY = std::max(dMaxY, dY);
    }
    ++uCount;
}

void Extent::Add(const Extent& other) {
    if (other.uCount == 0) return;
    const uint32_t uBoth = uCount + other.uCount;
    Add(other.dMinX, other.dMinY);
    Add(other.dMaxX, other.dMaxY);
    uCount = uBoth;
}

Extent ExtentOf(const GMT_Points& points) {
    Extent extent;
    for (uint32_t i = 0; i < points.uCount; ++i) {
        if (std::isfinite(points.pX[i]) && std::isfinite(points.pY[i]))
            extent.Add(points.pX[i], points.pY[i]);
    }
    return extent;
}

std::vector<Column> ColumnsOf(const GMT_Points& points, const Range& x, int nColumns) {
    std::vector<Column> columns(static_cast<std::size_t>(std::max(nColumns, 1)));
    const double dPerUnit = static_cast<double>(columns.size()) / x.Size();
    const std::size_t uLast = columns.size() - 1;
    bool bGap = false;
    for (uint32_t i = 0; i < points.uCount; ++i) {
        const double dX = points.pX[i], dY = points.pY[i];
        if (!std::isfinite(dX) || !std::isfinite(dY)) {
            bGap = true;
            continue;
        }
        if (dX < x.dMin || dX > x.dMax) continue;
        Column& column =
            columns[std::min(static_cast<std::size_t>((dX - x.dMin) * dPerUnit), uLast)];
        if (column.uCount == 0) {
            column.dFirst = column.dMin = column.dMax = dY;
            column.bGapBefore = bGap;
        } else {
            column.dMin = std::min(column.dMin, dY);
            column.dMax = std::max(column.dMax, dY);
        }
        bGap = false;
        column.dLast = dY;
        ++column.uCount;
    }
    return columns;
}

}  // namespace graph
