// The curves of a source, and what has been computed for the picture of them. It is kept until the
// source says that a curve has changed or another part of the x axis is shown.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Columns.h"

namespace graph {

// One curve as the picture needs it.
struct ShownCurve {
    uint32_t uNumber = 0;  // at the source
    uint32_t uKind = GMT_KIND_TOTAL;
    std::string sName;
    uint32_t uColor = GMT_COLOR_AUTOMATIC;

    GMT_Points points{};          // of data
    std::vector<Column> columns;  // of data
    uint32_t uVisiblePoints = 0;  // of data, within the x range

    std::vector<double> x, y;  // of other curves, at most one value a column; empty: left out

    bool IsData() const { return uKind == GMT_KIND_DATA; }
    bool IsEmpty() const { return IsData() ? uVisiblePoints == 0 : y.empty(); }
};

class CurveSet {
  public:
    void SetSource(GMT_DataSource* pSource);
    GMT_DataSource* Source() const { return m_pSource; }
    void Changed(uint32_t uCurve);

    // Scales that show all: the data, or the source's own range.
    Range AutoX();
    // All curves within a part of the x axis.
    Range AutoY(const Range& x, int nColumns);

    // The visible curves, computed for a part of the x axis that is `nColumns` pixels wide. Data
    // come first, then terms, then totals: in the order of drawing.
    const std::vector<ShownCurve>& Prepare(const Range& x, int nColumns);
    // The names of the visible curves, without computing any.
    std::vector<std::string> Names();
    // Counts the changes of what belongs to the data, for who keeps a picture of them.
    unsigned DataVersion() const { return m_uDataVersion; }

  private:
    struct Entry {
        bool bKnown = false;     // the source was asked what it is
        bool bComputed = false;  // for m_x and m_nColumns
        bool bVisible = false;
        std::optional<Extent> extent;  // of all its points
        ShownCurve curve;
    };

    void Ask();
    void Compute(Entry& entry);
    std::optional<Range> SourceRange(uint32_t uAxis);
    // Of the points of all visible data.
    Extent DataExtent();

    GMT_DataSource* m_pSource = nullptr;
    std::vector<Entry> m_entries;
    std::vector<ShownCurve> m_shown;
    bool m_bStale = true;  // m_shown is not what the entries say
    Range m_x;
    int m_nColumns = 0;
    unsigned m_uDataVersion = 0;
};

}  // namespace graph
