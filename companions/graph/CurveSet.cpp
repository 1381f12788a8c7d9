#include "CurveSet.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace graph {
namespace {

int DrawingOrder(uint32_t uKind) {
    if (uKind == GMT_KIND_DATA) return 0;
    return uKind < GMT_KIND_DATA ? 1 : 2;
}

}  // namespace

void CurveSet::SetSource(GMT_DataSource* pSource) {
    m_pSource = pSource;
    m_entries.clear();
    m_shown.clear();
    m_bStale = true;
    ++m_uDataVersion;
}

void CurveSet::Changed(uint32_t uCurve) {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (uCurve != GMT_ALL_CURVES && uCurve != i) continue;
        if (m_entries[i].bKnown && m_entries[i].curve.IsData()) ++m_uDataVersion;
        m_entries[i] = {};
    }
    m_bStale = true;
}

// Asks the source for what is not known of its curves.
void CurveSet::Ask() {
    const uint32_t uCount = m_pSource == nullptr ? 0 : m_pSource->GetCurveCount();
    if (uCount != m_entries.size()) {
        m_entries.resize(uCount);
        m_bStale = true;
    }
    for (uint32_t i = 0; i < uCount; ++i) {
        Entry& entry = m_entries[i];
        if (entry.bKnown) continue;
        GMT_Curve answer = {};
        entry = {};
        entry.bKnown = true;
        entry.bVisible = m_pSource->GetCurve(i, &answer) != 0 && answer.bVisible != 0;
        entry.curve.uNumber = i;
        entry.curve.uKind = answer.uKind;
        entry.curve.sName.assign(answer.szName, strnlen(answer.szName, sizeof answer.szName));
        entry.curve.uColor = m_pSource->GetColor(i);
        if (entry.curve.IsData()) {
            GMT_Points& points = entry.curve.points;
            if (m_pSource->GetPoints(i, &points) == 0 || points.pX == nullptr ||
                points.pY == nullptr)
                points = {};
            ++m_uDataVersion;
        }
        m_bStale = true;
    }
}

Extent CurveSet::DataExtent() {
    Extent all;
    for (Entry& entry : m_entries) {
        if (!entry.bVisible || !entry.curve.IsData()) continue;
        if (!entry.extent) entry.extent = ExtentOf(entry.curve.points);
        all.Add(*entry.extent);
    }
    return all;
}

std::optional<Range> CurveSet::SourceRange(uint32_t uAxis) {
    Range range;
    if (m_pSource == nullptr || m_pSource->GetRange(uAxis, &range.dMin, &range.dMax) == 0 ||
        !IsUsable(range))
        return std::nullopt;
    return range;
}

Range CurveSet::AutoX() {
    Ask();
    if (const auto range = SourceRange(GMT_X)) return *range;
    const Extent all = DataExtent();
    return all.uCount == 0 ? Range{} : WithMargin(all.dMinX, all.dMaxX);
}

Range CurveSet::AutoY(const Range& x, int nColumns) {
    if (const auto range = SourceRange(GMT_Y)) return *range;
    Extent all;
    for (const ShownCurve& curve : Prepare(x, nColumns)) {
        if (curve.IsData()) {
            for (const Column& column : curve.columns) {
                if (column.uCount == 0) continue;
                all.Add(x.dMin, column.dMin);
                all.Add(x.dMin, column.dMax);
            }
        }
        for (const double dY : curve.y) {
            if (std::isfinite(dY)) all.Add(x.dMin, dY);
        }
    }
    return all.uCount == 0 ? Range{} : WithMargin(all.dMinY, all.dMaxY);
}

void CurveSet::Compute(Entry& entry) {
    entry.bComputed = true;
    ShownCurve& curve = entry.curve;
    if (curve.IsData()) {
        curve.columns = ColumnsOf(curve.points, m_x, m_nColumns);
        curve.uVisiblePoints = 0;
        for (const Column& column : curve.columns) curve.uVisiblePoints += column.uCount;
        return;
    }
    // A curve is drawn where there are data; it is not known to mean anything elsewhere.
    Range drawn = m_x;
    const Extent data = DataExtent();
    if (data.uCount > 0) {
        drawn.dMin = std::max(drawn.dMin, data.dMinX);
        drawn.dMax = std::min(drawn.dMax, data.dMaxX);
    }
    curve.x.clear();
    curve.y.clear();
    if (!(drawn.dMin <= drawn.dMax)) return;
    const double dPixel = m_x.Size() / m_nColumns;
    curve.x.push_back(drawn.dMin);
    for (int i = 0; i < m_nColumns; ++i) {
        const double dX = m_x.dMin + (i + 0.5) * dPixel;
        if (dX > drawn.dMin && dX < drawn.dMax) curve.x.push_back(dX);
    }
    if (drawn.dMax > curve.x.back()) curve.x.push_back(drawn.dMax);
    curve.y.assign(curve.x.size(), 0.0);
    if (m_pSource->Evaluate(curve.uNumber, curve.x.data(), curve.y.data(),
                            static_cast<uint32_t>(curve.x.size())) == 0) {
        curve.x.clear();
        curve.y.clear();
    }
}

const std::vector<ShownCurve>& CurveSet::Prepare(const Range& x, int nColumns) {
    Ask();
    if (!(x == m_x) || nColumns != m_nColumns) {
        m_x = x;
        m_nColumns = std::max(nColumns, 1);
        for (Entry& entry : m_entries) entry.bComputed = false;
        m_bStale = true;
    }
    if (!m_bStale) return m_shown;
    m_shown.clear();
    for (Entry& entry : m_entries) {
        if (!entry.bVisible) continue;
        if (!entry.bComputed) Compute(entry);
        m_shown.push_back(entry.curve);
    }
    std::stable_sort(m_shown.begin(), m_shown.end(), [](const ShownCurve& a, const ShownCurve& b) {
        return DrawingOrder(a.uKind) < DrawingOrder(b.uKind);
    });
    m_bStale = false;
    return m_shown;
}

std::vector<std::string> CurveSet::Names() {
    Ask();
    std::vector<std::string> names;
    for (const Entry& entry : m_entries)
        if (entry.bVisible) names.push_back(entry.curve.sName);
    return names;
}

}  // namespace graph
