// The combo box: a selection field (an edit, or a text of its own) with a button, over a drop-down
// list.
//
// The height that a combo box is made or sized with is that of the field and the open list
// together; the window itself keeps the height of the field, which follows the font. Items live in
// the list, and no setter tells the parent. The form with an always open list (CBS_SIMPLE) is not
// supported: making one fails and is reported.
#pragma once

#include <string>
#include <string_view>

#include "platform/headless/controls/control_object.h"

namespace headless {

class ComboBox : public ControlObject<ComboBox> {
  public:
    ComboBox(HWND hwnd, const CREATESTRUCTA& create);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    // --- combo_box.cpp: messages
    LRESULT HandleComboMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleListMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleFieldMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCreate(const CREATESTRUCTA& create);
    void MakeChildren(const CREATESTRUCTA& create);
    LRESULT OnCommand(int code, HWND child);
    LRESULT ForwardOwnerDraw(UINT message, LPARAM lParam);
    LRESULT GetText(size_t room, char* buffer) const;
    LRESULT DialogCode(const MSG* message) const;
    LRESULT GetInfo(COMBOBOXINFO* info) const;
    void Notify(int code) { NotifyOwner(GetParent(m_hwnd), code); }
    LRESULT ToList(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(m_list, message, wParam, lParam);
    }
    LRESULT ToEdit(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(m_edit, message, wParam, lParam);
    }
    int Current() const { return static_cast<int>(ToList(LB_GETCURSEL)); }
    std::string ItemText(int index) const;
    std::string WithCase(std::string_view text) const;

    // --- combo_box_input.cpp: the list opens and closes, keys and mouse
    void Focus();
    void Blur();
    void DropDown();
    void RollUp(bool accepted);
    void ShowList();
    int MatchEditText() const;
    void OnEditChange();
    void OnListSelection();
    void ShowItemInEdit(int index);
    LRESULT OnKeyDown(int key, LPARAM lParam);
    bool OnListKey(int key, LPARAM lParam);
    void OnButtonDown(POINT point);
    void OnButtonUp();

    // --- combo_box_paint.cpp: places and painting
    int ClosedHeight() const;
    int FieldHeightOfFont() const;
    RECT ItemRect() const;
    RECT ButtonRect() const;
    void UpdateHeight();
    void PlaceEdit();
    RECT DroppedRect() const;
    void SizeList();
    void Paint(HDC dc);
    void PaintField(HDC dc);
    void Repaint() {
        if (m_redraws) InvalidateRect(m_hwnd, nullptr, TRUE);
    }

    HWND m_edit = nullptr;  // null in a drop-down list
    HWND m_list = nullptr;
    HFONT m_font = nullptr;
    bool m_ownerDraws;
    bool m_hasStrings;
    int m_fieldHeight = 0;     // of the selection field, without the border
    int m_droppedHeight = 0;   // of the open list
    int m_droppedWidth = 0;    // 0: as wide as the window
    bool m_ownHeight = false;  // the field's height was set or measured by the owner
    bool m_sizing = false;
    bool m_redraws = true;  // WM_SETREDRAW
    bool m_focused = false;
    bool m_dropped = false;
    int m_choiceAtOpening = -1;
    bool m_buttonDown = false;
    bool m_quietEdit = false;     // the edit changes because the list did
    bool m_trackedByKey = false;  // a key moves in the open list, which stays open
    bool m_extendedInterface = false;
};

}  // namespace headless
