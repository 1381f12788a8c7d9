// The two lists of the Output page for one search: what the x axis may show, and what the y axis
// may and does. No window: the page shows what stands here.
//
// The lists follow what the search measures. Where the user has chosen nothing for y yet, all that
// shares the scale of the first item is chosen.
#pragma once

#include <cstdint>
#include <vector>

#include "measure/MeasurementTables.h"

class MeasurementOutputLists {
  public:
    struct YItem {
        const OutputRow* pRow;
        bool bSelected;
    };
    // How a fill chooses and what it keeps.
    struct Mode {
        bool bPreselects = true;  // the time of a peak for x, where none is stored
        bool bStores = true;      // what is shown becomes what the search holds
    };

    // Fills both lists anew.
    void Fill(ZXADLG_MeasurementSearch& search, const Mode& mode);
    // Takes in what the search measures now, after one change, and keeps the other choices.
    void Follow(ZXADLG_MeasurementSearch& search, const Mode& mode);
    // The user chose these items of the y list, by position.
    void SelectY(ZXADLG_MeasurementSearch& search, const std::vector<int>& vPositions);
    // The user chose an item of the x list, by position.
    void SelectX(ZXADLG_MeasurementSearch& search, int nPosition);

    const std::vector<const OutputRow*>& GetX() const { return m_vX; }
    // -1 with an empty list.
    int GetSelectedX() const { return m_nSelectedX; }
    const std::vector<YItem>& GetY() const { return m_vY; }

  private:
    void ListX(const ZXADLG_MeasurementSearch& search);
    void ChooseX(ZXADLG_MeasurementSearch& search, const Mode& mode);
    int PositionOfX(int nId) const;
    void StoreY(ZXADLG_MeasurementSearch& search) const;
    void EmptyWithPeak();

    std::vector<const OutputRow*> m_vX;
    int m_nSelectedX = -1;
    std::vector<YItem> m_vY;
    int m_eFamily = kTraceTimeFamily;  // of what is chosen; the family of trace times is none yet
};
