#include "measure/MeasurementOutputLists.h"

#include <algorithm>
#include <iterator>

namespace {

bool IsPlotted(const ZXADLG_MeasurementSearch& search, int nId) {
    return std::find(std::begin(search.aeAutoPlotYVariable), std::end(search.aeAutoPlotYVariable),
                     nId) != std::end(search.aeAutoPlotYVariable);
}

// The time of the peak that is measured, or of the antipeak; 0 for neither.
int PreselectedX(const ZXADLG_MeasurementSearch& search) {
    if (search.bPeakAmplitude != 0 && search.bPeakTime != 0) return kPeakTimeId;
    if (search.bAntipeakAmplitude != 0 && search.bAntipeakTime != 0) return kAntipeakTimeId;
    return 0;
}

}  // namespace

void MeasurementOutputLists::Fill(ZXADLG_MeasurementSearch& search, const Mode& mode) {
    ListX(search);
    m_vY.clear();
    m_eFamily = kTraceTimeFamily;
    for (const OutputRow* pRow : m_vX) {
        if (pRow->nId == kTraceTimeId) continue;
        if (m_eFamily == kTraceTimeFamily) m_eFamily = pRow->eFamily;
        const bool bSelected =
            search.nNumYPlotItems != 0 ? IsPlotted(search, pRow->nId) : pRow->eFamily == m_eFamily;
        m_vY.push_back({pRow, bSelected});
    }
    if (mode.bStores) StoreY(search);
    ChooseX(search, mode);
}

void MeasurementOutputLists::Follow(ZXADLG_MeasurementSearch& search, const Mode& mode) {
    std::vector<YItem> vBefore;
    vBefore.swap(m_vY);
    for (const OutputRow& row : kOutputRows) {
        if (row.nId == kTraceTimeId || !row.IsIn(search)) continue;
        const auto it = std::find_if(vBefore.begin(), vBefore.end(),
                                     [&row](const YItem& item) { return item.pRow == &row; });
        if (it != vBefore.end()) {
            m_vY.push_back(*it);
            continue;
        }
        // The first item of an empty list decides on the family.
        const bool bFirst = vBefore.empty() && m_vY.empty();
        if (bFirst) m_eFamily = row.eFamily;
        m_vY.push_back({&row, bFirst || row.eFamily == m_eFamily});
    }
    if (std::none_of(m_vY.begin(), m_vY.end(), [](const YItem& item) { return item.bSelected; }))
        m_eFamily = kTraceTimeFamily;
    ListX(search);
    ChooseX(search, mode);
    EmptyWithPeak();
    StoreY(search);
}

// Required as it stands: with the peak amplitude among the items each such change empties both
// lists, and they stay so until they are filled anew.
void MeasurementOutputLists::EmptyWithPeak() {
    if (std::none_of(m_vY.begin(), m_vY.end(),
                     [](const YItem& item) { return item.pRow->nId == kPeakId; }))
        return;
    m_vX.clear();
    m_vY.clear();
    m_nSelectedX = -1;
}

void MeasurementOutputLists::SelectY(ZXADLG_MeasurementSearch& search,
                                     const std::vector<int>& vPositions) {
    for (std::size_t i = 0; i < m_vY.size(); ++i) {
        m_vY[i].bSelected = std::find(vPositions.begin(), vPositions.end(), static_cast<int>(i)) !=
                            vPositions.end();
    }
    StoreY(search);
}

void MeasurementOutputLists::SelectX(ZXADLG_MeasurementSearch& search, int nPosition) {
    if (nPosition < 0 || nPosition >= static_cast<int>(m_vX.size())) return;
    m_nSelectedX = nPosition;
    search.eAutoPlotXVariable = m_vX[static_cast<std::size_t>(nPosition)]->nId;
}

void MeasurementOutputLists::ListX(const ZXADLG_MeasurementSearch& search) {
    m_vX.clear();
    for (const OutputRow& row : kOutputRows) {
        if (row.IsIn(search)) m_vX.push_back(&row);
    }
}

int MeasurementOutputLists::PositionOfX(int nId) const {
    const auto it = std::find_if(m_vX.begin(), m_vX.end(),
                                 [nId](const OutputRow* pRow) { return pRow->nId == nId; });
    return it != m_vX.end() ? static_cast<int>(it - m_vX.begin()) : -1;
}

// What is stored, else what is preselected, else the time of the trace, which is always there.
void MeasurementOutputLists::ChooseX(ZXADLG_MeasurementSearch& search, const Mode& mode) {
    m_nSelectedX = PositionOfX(search.eAutoPlotXVariable);
    if (m_nSelectedX < 0 && mode.bPreselects) m_nSelectedX = PositionOfX(PreselectedX(search));
    if (m_nSelectedX < 0) m_nSelectedX = PositionOfX(kTraceTimeId);
    if (mode.bStores) SelectX(search, m_nSelectedX);
}

void MeasurementOutputLists::StoreY(ZXADLG_MeasurementSearch& search) const {
    std::fill(std::begin(search.aeAutoPlotYVariable), std::end(search.aeAutoPlotYVariable), -1);
    search.nNumYPlotItems = 0;
    for (const YItem& item : m_vY) {
        if (item.bSelected) search.aeAutoPlotYVariable[search.nNumYPlotItems++] = item.pRow->nId;
    }
}
