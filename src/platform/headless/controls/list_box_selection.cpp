#include <algorithm>

#include "platform/headless/controls/combo_messages.h"
#include "platform/headless/controls/list_box.h"

namespace headless {

LRESULT ListBox::HandleSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT index = static_cast<int>(wParam);
    switch (message) {
        case LB_SETCURSEL:
            if (IsMultiple()) return LB_ERR;
            if (IsIndex(index)) SetCaret(static_cast<int>(index));
            if (SetSelection(index, true) == LB_ERR) return LB_ERR;
            return m_current;
        case LB_GETCURSEL:
            if (Count() == 0) return LB_ERR;
            return IsMultiple() ? m_caret : m_current;
        case LB_SELECTSTRING: {
            const LRESULT found = Find(index, lParam, false);
            if (found == LB_ERR) return LB_ERR;
            SetCaret(static_cast<int>(found));
            SetSelection(found, true);
            return found;
        }
        case LB_SETSEL: {
            const LRESULT item = static_cast<int>(lParam);
            if (SetSelection(item, wParam != 0) == LB_ERR) return LB_ERR;
            if (wParam != 0) {
                m_anchor = static_cast<int>(item);
                if (item >= 0) SetCaret(static_cast<int>(item));
            }
            return LB_OKAY;
        }
        case LB_GETSEL:
            if (!IsIndex(index)) return LB_ERR;
            if (!IsMultiple()) return index == m_current ? 1 : 0;
            return m_items[static_cast<size_t>(index)]->selected ? 1 : 0;
        case LB_GETSELCOUNT:
            if (!IsMultiple()) return LB_ERR;
            return std::count_if(m_items.begin(), m_items.end(),
                                 [](const Item* item) { return item->selected; });
        case LB_GETSELITEMS:
            return GetSelectedItems(index, reinterpret_cast<int*>(lParam));
        case LB_SELITEMRANGE:
            if (LOWORD(lParam) <= HIWORD(lParam)) {
                return SelectRange(LOWORD(lParam), HIWORD(lParam), wParam != 0);
            }
            return SelectRange(HIWORD(lParam), LOWORD(lParam), wParam != 0);
        case LB_SELITEMRANGEEX:
            if (static_cast<int>(lParam) >= index) {
                return SelectRange(index, static_cast<int>(lParam), true);
            }
            return SelectRange(static_cast<int>(lParam), index, false);
        case LB_GETANCHORINDEX:
            return m_anchor;
        case LB_SETANCHORINDEX:
            if (index < -1 || index >= Count()) return LB_ERR;
            m_anchor = static_cast<int>(index);
            return LB_OKAY;
        case LB_GETCARETINDEX:
            return m_caret;
        case LB_SETCARETINDEX:
            if (!IsMultiple() && m_current != -1) return LB_ERR;
            if (!IsIndex(index)) return LB_ERR;
            SetCaret(static_cast<int>(index));
            return LB_OKAY;
        default:
            break;
    }
    return HandleViewMessage(message, wParam, lParam);
}

// -1 stands for no item in a list of one selection, and for every item in the others.
LRESULT ListBox::SetSelection(LRESULT index, bool on) {
    if (index < -1 || index >= Count()) return LB_ERR;
    if (IsMultiple()) {
        if (index == -1) return SelectRange(0, Count(), on);
        m_items[static_cast<size_t>(index)]->selected = on;
    } else {
        m_current = on ? static_cast<int>(index) : -1;
    }
    Repaint();
    return LB_OKAY;
}

LRESULT ListBox::SelectRange(LRESULT first, LRESULT last, bool on) {
    if (!IsMultiple()) return LB_ERR;
    first = std::max<LRESULT>(first, 0);
    last = std::min<LRESULT>(last, Count() - 1);
    for (LRESULT i = first; i <= last; ++i) m_items[static_cast<size_t>(i)]->selected = on;
    Repaint();
    return LB_OKAY;
}

void ListBox::SelectOnly(int first, int last) {
    if (first > last) std::swap(first, last);
    for (int i = 0; i < Count(); ++i) {
        m_items[static_cast<size_t>(i)]->selected = i >= first && i <= last;
    }
    Repaint();
}

void ListBox::SetCaret(int index, bool whole) {
    m_caret = index;
    EnsureVisible(index, whole);
    Repaint();
}

// Moves the caret as a key or the mouse does: the selection follows, except where each item is
// switched by itself and where it has no anchor yet.
void ListBox::MoveCaret(int index, bool whole) {
    SetCaret(index, whole);
    if (m_extended) {
        if (m_anchor != -1) SelectOnly(m_anchor, index);
    } else if (!m_multiple) {
        m_current = index;
    }
}

LRESULT ListBox::GetSelectedItems(LRESULT room, int* indexes) const {
    if (!IsMultiple()) return LB_ERR;
    LRESULT done = 0;
    for (int i = 0; i < Count() && done < room; ++i) {
        if (m_items[static_cast<size_t>(i)]->selected) indexes[done++] = i;
    }
    return done;
}

LRESULT ListBox::OnKeyDown(int key) {
    int caret = -1;
    if (HasStyle(LBS_WANTKEYBOARDINPUT)) {
        caret = static_cast<int>(SendMessageA(m_owner, WM_VKEYTOITEM, MAKEWPARAM(key, m_caret),
                                              reinterpret_cast<LPARAM>(m_hwnd)));
        if (caret == -2) return 0;
    }
    if (caret < 0) {
        // The item at the edge stays in sight, so that a list of one line does not move by pages.
        const int page = PageSize() - 1;
        // While the caret is elsewhere than the selection, a key only brings the selection to it.
        const bool starts = !IsMultiple() && m_current != m_caret;
        switch (key) {
            case VK_LEFT:
            case VK_UP:
                caret = starts ? m_caret : m_caret - 1;
                break;
            case VK_RIGHT:
            case VK_DOWN:
                caret = starts ? m_caret : m_caret + 1;
                break;
            case VK_PRIOR:
                caret = starts ? m_caret : m_caret - page;
                break;
            case VK_NEXT:
                caret = starts ? m_caret : m_caret + page;
                break;
            case VK_HOME:
                caret = starts ? m_caret : 0;
                break;
            case VK_END:
                caret = starts ? m_caret : Count() - 1;
                break;
            case VK_SPACE:
                if (m_extended) {
                    caret = m_caret;
                    break;
                }
                if (m_multiple && IsIndex(m_caret)) {
                    SetSelection(m_caret, !m_items[static_cast<size_t>(m_caret)]->selected);
                    Notify(LBN_SELCHANGE);
                }
                if (!starts) return 0;
                caret = m_caret;
                break;
            default:
                return 0;
        }
    }
    if (Count() == 0) return 0;
    caret = std::clamp(caret, 0, Count() - 1);
    if (!IsMultiple() || (m_extended && !IsKeyDown(VK_SHIFT))) m_anchor = caret;
    MoveCaret(caret);
    Notify(LBN_SELCHANGE);
    return 0;
}

LRESULT ListBox::OnChar(char c) {
    LRESULT caret = -1;
    if (HasStyle(LBS_WANTKEYBOARDINPUT)) {
        caret = static_cast<int>(SendMessageA(m_owner, WM_CHARTOITEM,
                                              MAKEWPARAM(static_cast<BYTE>(c), m_caret),
                                              reinterpret_cast<LPARAM>(m_hwnd)));
        if (caret == -2) return 0;
    }
    if (caret < 0 && HasStrings()) {
        const char text[2] = {c, '\0'};
        caret = Find(m_caret, reinterpret_cast<LPARAM>(text), false);
    }
    if (!IsIndex(caret)) return 0;
    MoveCaret(static_cast<int>(caret));
    Notify(LBN_SELCHANGE);
    return 0;
}

void ListBox::OnButtonDown(POINT point, WPARAM keys) {
    RECT client;
    GetClientRect(m_hwnd, &client);
    if (m_inCombo) {
        // The open list has the mouse; a press elsewhere closes it and leaves the choice as it was.
        if (!PtInRect(&client, point)) {
            // The border and the scroll bar are still the list's.
            RECT window;
            POINT onScreen = point;
            GetWindowRect(m_hwnd, &window);
            ClientToScreen(m_hwnd, &onScreen);
            if (PtInRect(&window, onScreen)) return;
            const auto choice =
                static_cast<int>(SendMessageA(m_owner, kComboChoiceAtOpening, 0, 0));
            if (choice < Count()) SetSelection(choice, true);
            if (IsIndex(choice)) SetCaret(choice);
            SendMessageA(m_owner, CB_SHOWDROPDOWN, FALSE, 0);
        } else {
            // A list that a program opened brings the focus to its combo box.
            if (GetFocus() != m_owner && !IsChild(m_owner, GetFocus())) SetFocus(m_owner);
            if (m_hwnd == nullptr) return;
            SetCapture(m_hwnd);
            m_tracking = true;
        }
        return;
    }
    if (GetFocus() != m_hwnd) SetFocus(m_hwnd);
    const int index = PtInRect(&client, point) ? ItemFromPoint(point) : -1;
    if (index == -1) return;
    SetCapture(m_hwnd);
    m_tracking = true;
    const bool control = (keys & MK_CONTROL) != 0;
    if ((keys & MK_SHIFT) == 0 || !IsMultiple()) m_anchor = index;
    if (m_multiple || (m_extended && control)) {
        SetCaret(index, false);
        SetSelection(index, !m_items[static_cast<size_t>(index)]->selected);
    } else {
        MoveCaret(index, false);
    }
}

void ListBox::OnMouseMove(POINT point) {
    RECT client;
    GetClientRect(m_hwnd, &client);
    const bool inside = PtInRect(&client, point) != FALSE;
    if (m_inCombo) {
        // The item under the pointer is shown as selected; nobody is told before the button goes
        // up.
        const int index = inside ? ItemFromPoint(point) : -1;
        if (index != -1 && index != m_current) MoveCaret(index, false);
        return;
    }
    if (!m_tracking || Count() == 0) return;
    int index = -1;
    if (point.y < 0) {
        index = std::max(m_top - 1, 0);
    } else if (point.y >= client.bottom) {
        index = std::min(m_top + PageSize(), Count() - 1);
    } else {
        index = ItemFromPoint({0, point.y});
    }
    if (index != -1 && index != m_caret) MoveCaret(index, false);
}

void ListBox::OnButtonUp(POINT point) {
    if (m_inCombo) {
        RECT client;
        GetClientRect(m_hwnd, &client);
        const bool inside = PtInRect(&client, point) && ItemFromPoint(point) != -1;
        const bool chosen = inside && (m_tracking || GetCapture() == m_hwnd);
        m_tracking = false;
        if (chosen) {
            MoveCaret(ItemFromPoint(point), false);
            Notify(LBN_SELCHANGE);
        }
        return;
    }
    if (!m_tracking) return;
    m_tracking = false;
    ReleaseCapture();
    Notify(LBN_SELCHANGE);
}

}  // namespace headless
