#include <algorithm>

#include "platform/headless/controls/combo_box.h"

namespace headless {

void ComboBox::Focus() {
    if (m_focused) return;
    // The parent hears of it first: when it moves the focus on at once, that is told no further.
    Notify(CBN_SETFOCUS);
    if (m_hwnd == nullptr) return;
    m_focused = true;
    Repaint();
    if (m_edit != nullptr) ToEdit(EM_SETSEL, 0, -1);
}

// Leaving ends the choice, whether the list was open or not.
void ComboBox::Blur() {
    if (!m_focused) return;
    RollUp(false);
    m_focused = false;
    Repaint();
    Notify(CBN_KILLFOCUS);
}

void ComboBox::DropDown() {
    Notify(CBN_DROPDOWN);
    if (m_hwnd == nullptr) return;
    m_dropped = true;
    if (m_edit != nullptr) {
        const int index = MatchEditText();
        ToList(LB_SETCURSEL, static_cast<WPARAM>(index));
        if (index >= 0) {
            ShowItemInEdit(index);
        } else {
            ToList(LB_SETCARETINDEX, 0);
        }
    }
    m_choiceAtOpening = Current();
    ToList(LB_SETTOPINDEX, static_cast<WPARAM>(std::max(Current(), 0)));
    ShowList();
    Repaint();
}

void ComboBox::RollUp(bool accepted) {
    Notify(accepted ? CBN_SELENDOK : CBN_SELENDCANCEL);
    if (!m_dropped || m_hwnd == nullptr) return;
    m_dropped = false;
    ShowWindow(m_list, SW_HIDE);
    const HWND capture = GetCapture();
    if (capture != nullptr && (capture == m_list || capture == m_hwnd)) ReleaseCapture();
    Repaint();
    Notify(CBN_CLOSEUP);
}

// The open list is as high as its items need, and no higher than the window was made or sized for.
void ComboBox::ShowList() {
    RECT window;
    GetWindowRect(m_hwnd, &window);
    const int count = static_cast<int>(ToList(LB_GETCOUNT));
    constexpr int kBorders = 2;
    int height = m_droppedHeight;
    if (count > 0) {
        int needed = kBorders;
        for (int i = 0; i < count && needed < height; ++i) {
            needed += static_cast<int>(ToList(LB_GETITEMHEIGHT, static_cast<WPARAM>(i)));
        }
        height = std::min(height, needed);
    }
    const RECT dropped = DroppedRect();
    int top = window.bottom;
    const int screen = GetSystemMetrics(SM_CYSCREEN);
    if (top + height > screen && window.top - height >= 0) top = window.top - height;
    SetWindowPos(m_list, HWND_TOPMOST, window.left, top, dropped.right - dropped.left, height,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    // The open list has the mouse, once the button that opened it is up.
    if (GetCapture() != m_hwnd) SetCapture(m_list);
}

// The item that the text of the edit stands for: the same text, or else one that begins with it.
int ComboBox::MatchEditText() const {
    const size_t length = static_cast<size_t>(ToEdit(WM_GETTEXTLENGTH));
    if (length == 0) return -1;
    std::string text(length, '\0');
    ToEdit(WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text.data()));
    const LPARAM wanted = reinterpret_cast<LPARAM>(text.c_str());
    const WPARAM fromStart = static_cast<WPARAM>(-1);
    const LRESULT exact = ToList(LB_FINDSTRINGEXACT, fromStart, wanted);
    if (exact >= 0) return static_cast<int>(exact);
    return static_cast<int>(ToList(LB_FINDSTRING, fromStart, wanted));
}

// Typing takes the selection away, but for an open list, which selects what the text begins. The
// caret of the list goes there in any case, and the arrow keys go on from it.
void ComboBox::OnEditChange() {
    const int index = MatchEditText();
    ToList(LB_SETCURSEL, static_cast<WPARAM>(m_dropped ? index : -1));
    ToList(LB_SETCARETINDEX, static_cast<WPARAM>(std::max(index, 0)));
    ToList(LB_SETTOPINDEX, static_cast<WPARAM>(std::max(index, 0)));
}

// The user chose in the list. The parent hears of it while the edit still has its old text, as on
// the platform.
void ComboBox::OnListSelection() {
    if (!m_trackedByKey) RollUp(true);
    if (m_hwnd == nullptr) return;
    Notify(CBN_SELCHANGE);
    if (m_hwnd == nullptr) return;
    ShowItemInEdit(Current());
    Repaint();
}

// No notification comes of it.
void ComboBox::ShowItemInEdit(int index) {
    if (m_edit == nullptr) return;
    const std::string text = ItemText(index);
    m_quietEdit = true;
    SetWindowTextA(m_edit, text.c_str());
    m_quietEdit = false;
    if (m_focused) ToEdit(EM_SETSEL, 0, -1);
}

LRESULT ComboBox::OnKeyDown(int key, LPARAM lParam) {
    if (m_dropped && (key == VK_RETURN || key == VK_ESCAPE)) {
        RollUp(key == VK_RETURN);
        return 1;
    }
    if (m_edit == nullptr) return OnListKey(key, lParam) ? 1 : 0;
    return ToEdit(WM_KEYDOWN, static_cast<WPARAM>(key), lParam);
}

// A key that works on the list. Alt with an up or down arrow opens and closes it, as F4 does.
bool ComboBox::OnListKey(int key, LPARAM lParam) {
    constexpr LPARAM kAltHeld = 0x20000000;
    const bool isArrow = key == VK_UP || key == VK_DOWN;
    const bool flips =
        (key == VK_F4 && !m_extendedInterface) || (isArrow && (lParam & kAltHeld) != 0);
    if (flips) {
        if (m_dropped) {
            RollUp(false);
        } else {
            DropDown();
        }
        return true;
    }
    if (key == VK_F4) return true;
    if (m_extendedInterface && !m_dropped && isArrow) {
        if (key == VK_DOWN) DropDown();
        return true;
    }
    m_trackedByKey = m_dropped;
    ToList(WM_KEYDOWN, static_cast<WPARAM>(key), lParam);
    m_trackedByKey = false;
    return true;
}

// The button opens and closes the list; so does the whole field where there is no edit.
void ComboBox::OnButtonDown(POINT point) {
    const bool hadFocus = m_focused;
    if (!hadFocus) SetFocus(m_edit != nullptr ? m_edit : m_hwnd);
    if (m_hwnd == nullptr) return;
    const RECT button = ButtonRect();
    if (m_edit != nullptr && !PtInRect(&button, point)) return;
    if (m_dropped) {
        RollUp(true);
        return;
    }
    SetCapture(m_hwnd);
    m_buttonDown = true;
    DropDown();
}

// Once the button is up, the open list has the mouse.
void ComboBox::OnButtonUp() {
    if (!m_buttonDown) return;
    m_buttonDown = false;
    ReleaseCapture();
    if (m_dropped) SetCapture(m_list);
    Repaint();
}

}  // namespace headless
