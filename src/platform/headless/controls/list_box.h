// The list box, and the drop-down list of a combo box, which is the same control with another
// owner.
//
// Adding at the end costs constant time, a sorted add a binary search and one shift of pointers.
// Multi-column lists, lists without selection and tab stops are not supported and are reported.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/controls/control_object.h"

namespace headless {

class ListBox : public ControlObject<ListBox> {
  public:
    ListBox(HWND hwnd, const CREATESTRUCTA& create);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    struct Item {
        std::string text;
        ULONG_PTR data = 0;
        int height = 0;  // used in lists with items of several heights only
        bool selected = false;
    };

    // --- list_box.cpp: messages
    LRESULT HandleItemMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleViewMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCreate();
    void OnSize();
    void SetFont(HFONT font);
    void Notify(int code);
    void Repaint();

    // --- list_box_items.cpp: what the list holds
    bool IsDrawnByOwner() const;
    bool HasStrings() const { return m_hasStrings; }
    bool IsMultiple() const { return m_multiple || m_extended; }
    int Count() const { return static_cast<int>(m_items.size()); }
    bool IsIndex(LRESULT index) const { return index >= 0 && index < Count(); }
    LRESULT Add(LPARAM text);
    LRESULT Insert(int index, LPARAM text);
    LRESULT Delete(LRESULT index);
    void Reset();
    void TellDeleted(int index);
    LRESULT GetText(LRESULT index, char* buffer) const;
    LRESULT SetCount(LRESULT count);
    int SortedPlace(LPARAM text) const;
    LRESULT Find(LRESULT start, LPARAM text, bool exact) const;
    int Compare(int index, LPARAM text) const;

    // --- list_box_selection.cpp: selection, keys and mouse
    LRESULT HandleSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT SetSelection(LRESULT index, bool on);
    LRESULT SelectRange(LRESULT first, LRESULT last, bool on);
    void SelectOnly(int first, int last);
    void SetCaret(int index, bool whole = true);
    void MoveCaret(int index, bool whole = true);
    LRESULT GetSelectedItems(LRESULT room, int* indexes) const;
    LRESULT OnKeyDown(int key);
    LRESULT OnChar(char c);
    void OnButtonDown(POINT point, WPARAM keys);
    void OnMouseMove(POINT point);
    void OnButtonUp(POINT point);

    // --- list_box_paint.cpp: heights, scrolling and painting
    int ItemHeight(int index) const;
    int PageSize() const;
    int MaxTop() const;
    void SetTop(int index);
    void EnsureVisible(int index, bool whole = true);
    void UpdateScrollStyle();
    int ItemFromPoint(POINT point) const;
    LRESULT ItemFromPointResult(POINT point) const;
    LRESULT GetItemRect(LRESULT index, RECT* rect) const;
    LRESULT SetItemHeight(LRESULT index, int height);
    int MeasureByOwner(int index, int height);
    void Scroll(int request, int position);
    void Paint(HDC dc);
    void PaintItem(HDC dc, int index, const RECT& rect, bool hasFocus);

    HWND m_owner;          // who is told: the parent, or the combo box
    const bool m_inCombo;  // the drop-down list of a combo box
    bool m_hasStrings;
    bool m_multiple;
    bool m_extended;
    bool m_sorted;
    bool m_variableHeights;
    bool m_scrollStyle;  // made with WS_VSCROLL, which shows only while it is needed

    std::deque<Item> m_storage;  // keeps its places, so that the order below can be of pointers
    std::vector<Item*> m_free;
    std::vector<Item*> m_items;
    int m_current = -1;  // the selected item of a single-selection list
    int m_caret = 0;
    int m_anchor = -1;
    int m_top = 0;
    bool m_redraws = true;    // WM_SETREDRAW
    bool m_tracking = false;  // the button went down on an item and is held

    HFONT m_font = nullptr;
    int m_itemHeight = 0;
    int m_horizontalExtent = 0;
};

}  // namespace headless
