#include "platform/headless/controls/combo_box.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "platform/headless/controls/combo_messages.h"
#include "platform/headless/controls/controls.h"
#include "platform/headless/controls/text_order.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {
namespace {

constexpr int kListId = 1000;
constexpr int kEditId = 1001;

DWORD TypeOf(DWORD style) {
    return style & 3;
}

// The list's message for a message that the combo box only passes on, or 0.
UINT ListMessageOf(UINT message) {
    switch (message) {
        case CB_ADDSTRING:
            return LB_ADDSTRING;
        case CB_INSERTSTRING:
            return LB_INSERTSTRING;
        case CB_DELETESTRING:
            return LB_DELETESTRING;
        case CB_GETCOUNT:
            return LB_GETCOUNT;
        case CB_GETCURSEL:
            return LB_GETCURSEL;
        case CB_GETLBTEXT:
            return LB_GETTEXT;
        case CB_GETLBTEXTLEN:
            return LB_GETTEXTLEN;
        case CB_FINDSTRING:
            return LB_FINDSTRING;
        case CB_FINDSTRINGEXACT:
            return LB_FINDSTRINGEXACT;
        case CB_GETITEMDATA:
            return LB_GETITEMDATA;
        case CB_SETITEMDATA:
            return LB_SETITEMDATA;
        case CB_GETTOPINDEX:
            return LB_GETTOPINDEX;
        case CB_SETTOPINDEX:
            return LB_SETTOPINDEX;
        case CB_INITSTORAGE:
            return LB_INITSTORAGE;
        case CB_GETHORIZONTALEXTENT:
            return LB_GETHORIZONTALEXTENT;
        case CB_SETHORIZONTALEXTENT:
            return LB_SETHORIZONTALEXTENT;
        default:
            return 0;
    }
}

// A message that this combo box does not know.
const char* UnsupportedName(UINT message) {
    switch (message) {
        case CB_DIR:
            return "CB_DIR";
        case CB_SETLOCALE:
            return "CB_SETLOCALE";
        case CB_GETLOCALE:
            return "CB_GETLOCALE";
        case CB_SETMINVISIBLE:
            return "CB_SETMINVISIBLE";
        case CB_GETMINVISIBLE:
            return "CB_GETMINVISIBLE";
        default:
            return "a ComboBox message";
    }
}

}  // namespace

void RegisterComboBoxClass() {
    ComboBox::Register("ComboBox", CS_DBLCLKS, IDC_ARROW);
}

ComboBox::ComboBox(HWND hwnd, const CREATESTRUCTA& create)
    : ControlObject(hwnd),
      m_ownerDraws((create.style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0) {
    m_hasStrings = !m_ownerDraws || (create.style & CBS_HASSTRINGS) != 0;
    if ((create.style & CBS_OEMCONVERT) != 0) ReportUnsupported("CBS_OEMCONVERT");
    // The scroll bar of the style is the list's.
    SetStyle(WS_VSCROLL | WS_HSCROLL | WS_BORDER, false);
}

LRESULT ComboBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_CREATE:
            return OnCreate(*reinterpret_cast<CREATESTRUCTA*>(lParam));
        case WM_DESTROY:
            if (m_list != nullptr) DestroyWindow(m_list);
            return 0;
        case WM_SETTEXT:
            return m_edit != nullptr ? ToEdit(message, wParam, lParam) : CB_ERR;
        case WM_GETTEXT:
            return GetText(wParam, reinterpret_cast<char*>(lParam));
        case WM_GETTEXTLENGTH:
            return GetText(0, nullptr);
        case WM_CUT:
        case WM_COPY:
        case WM_PASTE:
        case WM_CLEAR:
        case WM_UNDO:
            return m_edit != nullptr ? ToEdit(message, wParam, lParam) : 0;
        case WM_SETFONT:
            m_font = reinterpret_cast<HFONT>(wParam);
            if (m_edit != nullptr) ToEdit(message, wParam, lParam);
            ToList(message, wParam, lParam);
            if (!m_ownHeight) m_fieldHeight = FieldHeightOfFont();
            UpdateHeight();
            SizeList();
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_GETDLGCODE:
            return DialogCode(reinterpret_cast<const MSG*>(lParam));
        case WM_ENABLE:
            if (m_edit != nullptr) EnableWindow(m_edit, wParam != 0);
            EnableWindow(m_list, wParam != 0);
            Repaint();
            return 0;
        case WM_WINDOWPOSCHANGING: {
            WINDOWPOS* position = reinterpret_cast<WINDOWPOS*>(lParam);
            if (m_list == nullptr || m_sizing || (position->flags & SWP_NOSIZE) != 0) break;
            // A new height is that of the open list below the field.
            if (position->cy != ClosedHeight()) {
                m_droppedHeight = std::max(position->cy - ClosedHeight(), 0);
                SizeList();
                position->cy = ClosedHeight();
            }
            break;
        }
        case WM_SIZE:
            PlaceEdit();
            Repaint();
            return 0;
        case WM_SETREDRAW:
            m_redraws = wParam != 0;
            ToList(message, wParam, lParam);
            Repaint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT: {
            if (wParam != 0) {
                Paint(reinterpret_cast<HDC>(wParam));
                return 0;
            }
            PAINTSTRUCT paint;
            Paint(BeginPaint(m_hwnd, &paint));
            EndPaint(m_hwnd, &paint);
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            return SendMessageA(GetParent(m_hwnd), message, wParam, lParam);
        case WM_COMMAND:
            return OnCommand(static_cast<SHORT>(HIWORD(wParam)), reinterpret_cast<HWND>(lParam));
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_DELETEITEM:
        case WM_COMPAREITEM:
            return ForwardOwnerDraw(message, lParam);
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
            return -1;
        case WM_SETFOCUS:
            if (m_edit != nullptr) {
                SetFocus(m_edit);
            } else {
                Focus();
            }
            return 0;
        case WM_KILLFOCUS:
            if (m_edit == nullptr) Blur();
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (message == WM_SYSKEYDOWN && wParam != VK_UP && wParam != VK_DOWN) break;
            return OnKeyDown(static_cast<int>(wParam), lParam);
        case WM_CHAR:
            if (m_edit != nullptr) return ToEdit(message, wParam, lParam);
            if (wParam == VK_RETURN || wParam == VK_ESCAPE) return 0;
            m_trackedByKey = m_dropped;
            ToList(message, wParam, lParam);
            m_trackedByKey = false;
            return 0;
        case kComboChoiceAtOpening:
            return m_choiceAtOpening;
        case kComboListKey:
            return OnListKey(static_cast<int>(wParam), lParam) ? 1 : 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnButtonDown(point);
            return 0;
        case WM_LBUTTONUP:
            OnButtonUp();
            return 0;
        case WM_CAPTURECHANGED:
            m_buttonDown = false;
            return 0;
        case WM_MOUSEWHEEL:
            if (m_dropped) return ToList(message, wParam, lParam);
            if (m_edit == nullptr && m_focused) {
                ToList(WM_KEYDOWN, static_cast<SHORT>(HIWORD(wParam)) > 0 ? VK_UP : VK_DOWN, 0);
            }
            return 0;
        default:
            break;
    }
    if ((message >= CB_GETEDITSEL && message <= CB_GETCOMBOBOXINFO) ||
        message == CB_SETMINVISIBLE || message == CB_GETMINVISIBLE) {
        return HandleComboMessage(message, wParam, lParam);
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

LRESULT ComboBox::HandleComboMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case CB_SHOWDROPDOWN:
            if (wParam != 0 && !m_dropped) {
                DropDown();
            } else if (wParam == 0 && m_dropped) {
                RollUp(false);
            }
            return TRUE;
        case CB_GETDROPPEDSTATE:
            return m_dropped ? TRUE : FALSE;
        case CB_GETDROPPEDCONTROLRECT:
            *reinterpret_cast<RECT*>(lParam) = DroppedRect();
            return TRUE;
        case CB_GETDROPPEDWIDTH: {
            const RECT rect = DroppedRect();
            return rect.right - rect.left;
        }
        case CB_SETDROPPEDWIDTH:
            if (wParam > 0 && wParam < 32768) m_droppedWidth = static_cast<int>(wParam);
            return SendMessageA(m_hwnd, CB_GETDROPPEDWIDTH, 0, 0);
        case CB_SETEXTENDEDUI:
            m_extendedInterface = wParam != 0;
            return CB_OKAY;
        case CB_GETEXTENDEDUI:
            return m_extendedInterface ? TRUE : FALSE;
        case CB_GETCOMBOBOXINFO:
            return GetInfo(reinterpret_cast<COMBOBOXINFO*>(lParam));
        case CB_GETEDITSEL:
        case CB_SETEDITSEL:
        case CB_LIMITTEXT:
        case CB_GETITEMHEIGHT:
        case CB_SETITEMHEIGHT:
            return HandleFieldMessage(message, wParam, lParam);
        default:
            return HandleListMessage(message, wParam, lParam);
    }
}

LRESULT ComboBox::HandleFieldMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case CB_GETEDITSEL:
            return m_edit != nullptr ? ToEdit(EM_GETSEL, wParam, lParam) : CB_ERR;
        case CB_SETEDITSEL:
            if (m_edit == nullptr) return CB_ERR;
            return ToEdit(EM_SETSEL, static_cast<WPARAM>(static_cast<SHORT>(LOWORD(lParam))),
                          static_cast<SHORT>(HIWORD(lParam)));
        case CB_LIMITTEXT:
            if (m_edit != nullptr) ToEdit(EM_LIMITTEXT, wParam, 0);
            return TRUE;
        case CB_GETITEMHEIGHT:
            return index == -1 ? m_fieldHeight : ToList(LB_GETITEMHEIGHT, wParam, 0);
        case CB_SETITEMHEIGHT:
            if (index == -1) {
                if (lParam <= 0 || lParam >= 32768) return CB_ERR;
                m_fieldHeight = static_cast<int>(lParam) + 2;
                m_ownHeight = true;
                UpdateHeight();
                return lParam;
            }
            // Heights of items are the business of one who draws them.
            return m_ownerDraws ? ToList(LB_SETITEMHEIGHT, wParam, lParam) : CB_ERR;
        default:
            return CB_ERR;
    }
}

LRESULT ComboBox::HandleListMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case CB_SETCURSEL:
        case CB_SELECTSTRING: {
            const LRESULT index =
                ToList(message == CB_SETCURSEL ? LB_SETCURSEL : LB_SELECTSTRING, wParam, lParam);
            if (index < 0 && message == CB_SELECTSTRING) return CB_ERR;
            // An index that is none clears the selection.
            if (index < 0) ToList(LB_SETCURSEL, static_cast<WPARAM>(-1));
            if (index >= 0 && message == CB_SETCURSEL)
                ToList(LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
            ShowItemInEdit(static_cast<int>(index));
            Repaint();
            return index;
        }
        case CB_RESETCONTENT:
            ToList(LB_RESETCONTENT);
            ShowItemInEdit(-1);
            Repaint();
            return CB_OKAY;
        default:
            break;
    }
    const UINT listMessage = ListMessageOf(message);
    if (listMessage == 0) {
        ReportUnsupported(UnsupportedName(message));
        return CB_ERR;
    }
    if ((message == CB_ADDSTRING || message == CB_INSERTSTRING) && m_hasStrings && lParam != 0) {
        const std::string item = WithCase(reinterpret_cast<const char*>(lParam));
        return ToList(listMessage, wParam, reinterpret_cast<LPARAM>(item.c_str()));
    }
    const LRESULT result = ToList(listMessage, wParam, lParam);
    if (message == CB_DELETESTRING || message == CB_SETITEMDATA) Repaint();
    return result;
}

// The styles for one case hold for the items as well.
std::string ComboBox::WithCase(std::string_view text) const {
    std::string result(text);
    if (HasStyle(CBS_UPPERCASE)) {
        std::transform(result.begin(), result.end(), result.begin(), ToUpperCase);
    } else if (HasStyle(CBS_LOWERCASE)) {
        std::transform(result.begin(), result.end(), result.begin(), ToLowerCase);
    }
    return result;
}

LRESULT ComboBox::OnCreate(const CREATESTRUCTA& create) {
    const DWORD style = static_cast<DWORD>(create.style);
    if (TypeOf(style) != CBS_DROPDOWN && TypeOf(style) != CBS_DROPDOWNLIST) {
        ReportUnsupported("CBS_SIMPLE");
        return -1;
    }
    m_fieldHeight = FieldHeightOfFont();
    if (m_ownerDraws) {
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_COMBOBOX;
        measure.CtlID = static_cast<UINT>(Id());
        measure.itemID = static_cast<UINT>(-1);
        measure.itemWidth = static_cast<UINT>(create.cx);
        measure.itemHeight = static_cast<UINT>(m_fieldHeight - 6);
        SendMessageA(GetParent(m_hwnd), WM_MEASUREITEM, measure.CtlID,
                     reinterpret_cast<LPARAM>(&measure));
        m_fieldHeight = static_cast<int>(measure.itemHeight) + 6;
        m_ownHeight = true;
    }
    // A field with an edit is made one pixel lower than the font asks for.
    const int closed = ClosedHeight() - (TypeOf(style) == CBS_DROPDOWN ? 1 : 0);
    m_droppedHeight = std::max(create.cy - closed, 0);
    MakeChildren(create);
    if (m_list == nullptr) return -1;
    UpdateHeight();
    if (m_edit != nullptr && create.lpszName != nullptr) SetWindowTextA(m_edit, create.lpszName);
    return 0;
}

void ComboBox::MakeChildren(const CREATESTRUCTA& create) {
    const DWORD style = static_cast<DWORD>(create.style);
    DWORD listStyle = WS_POPUP | WS_CLIPSIBLINGS | WS_BORDER | LBS_COMBOBOX | LBS_NOTIFY;
    const std::pair<DWORD, DWORD> passedOn[] = {{CBS_SORT, LBS_SORT},
                                                {CBS_HASSTRINGS, LBS_HASSTRINGS},
                                                {CBS_OWNERDRAWFIXED, LBS_OWNERDRAWFIXED},
                                                {CBS_OWNERDRAWVARIABLE, LBS_OWNERDRAWVARIABLE},
                                                {CBS_NOINTEGRALHEIGHT, LBS_NOINTEGRALHEIGHT},
                                                {CBS_DISABLENOSCROLL, LBS_DISABLENOSCROLL},
                                                {WS_VSCROLL, WS_VSCROLL},
                                                {WS_DISABLED, WS_DISABLED}};
    for (const auto& [bit, listBit] : passedOn) {
        if ((style & bit) != 0) listStyle |= listBit;
    }
    m_list = CreateWindowExA(WS_EX_TOOLWINDOW, "ComboLBox", nullptr, listStyle, 0, 0, create.cx,
                             m_droppedHeight, m_hwnd, nullptr, create.hInstance, m_hwnd);
    if (m_list == nullptr) return;
    SetWindowLongPtrA(m_list, GWLP_ID, kListId);
    if (TypeOf(style) != CBS_DROPDOWN) return;
    // The bit that marks the edit of a combo box has no name.
    constexpr DWORD kInComboBox = 0x200;
    DWORD editStyle = WS_CHILD | WS_VISIBLE | ES_NOHIDESEL | ES_LEFT | kInComboBox;
    if ((style & CBS_AUTOHSCROLL) != 0) editStyle |= ES_AUTOHSCROLL;
    if ((style & CBS_UPPERCASE) != 0) {
        editStyle |= ES_UPPERCASE;
    } else if ((style & CBS_LOWERCASE) != 0) {
        editStyle |= ES_LOWERCASE;
    }
    if ((style & WS_DISABLED) != 0) editStyle |= WS_DISABLED;
    const RECT item = ItemRect();
    m_edit = CreateWindowExA(0, "Edit", nullptr, editStyle, item.left, item.top,
                             item.right - item.left, item.bottom - item.top, m_hwnd,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(kEditId)),
                             create.hInstance, m_hwnd);
}

LRESULT ComboBox::OnCommand(int code, HWND child) {
    if (child == m_edit && m_edit != nullptr) {
        switch (code) {
            case EN_SETFOCUS:
                Focus();
                break;
            case EN_KILLFOCUS:
                Blur();
                break;
            case EN_UPDATE:
                if (!m_quietEdit) Notify(CBN_EDITUPDATE);
                break;
            case EN_CHANGE:
                if (m_quietEdit) break;
                OnEditChange();
                Notify(CBN_EDITCHANGE);
                break;
            case EN_ERRSPACE:
            case EN_MAXTEXT:
                Notify(CBN_ERRSPACE);
                break;
            default:
                break;
        }
    } else if (child == m_list) {
        switch (code) {
            case LBN_SELCHANGE:
                OnListSelection();
                break;
            case LBN_DBLCLK:
                Notify(CBN_DBLCLK);
                break;
            case LBN_ERRSPACE:
                Notify(CBN_ERRSPACE);
                break;
            default:
                break;
        }
    }
    return 0;
}

// What the list asks of its owner goes on to the parent under the combo box's own name.
LRESULT ComboBox::ForwardOwnerDraw(UINT message, LPARAM lParam) {
    const UINT id = static_cast<UINT>(Id());
    switch (message) {
        case WM_DRAWITEM: {
            DRAWITEMSTRUCT* draw = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
            draw->CtlType = ODT_COMBOBOX;
            draw->CtlID = id;
            draw->hwndItem = m_hwnd;
            break;
        }
        case WM_MEASUREITEM: {
            MEASUREITEMSTRUCT* measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
            measure->CtlType = ODT_COMBOBOX;
            measure->CtlID = id;
            break;
        }
        case WM_DELETEITEM: {
            DELETEITEMSTRUCT* deleted = reinterpret_cast<DELETEITEMSTRUCT*>(lParam);
            deleted->CtlType = ODT_COMBOBOX;
            deleted->CtlID = id;
            deleted->hwndItem = m_hwnd;
            break;
        }
        default: {
            COMPAREITEMSTRUCT* compare = reinterpret_cast<COMPAREITEMSTRUCT*>(lParam);
            compare->CtlType = ODT_COMBOBOX;
            compare->CtlID = id;
            compare->hwndItem = m_hwnd;
            break;
        }
    }
    return SendMessageA(GetParent(m_hwnd), message, id, lParam);
}

std::string ComboBox::ItemText(int index) const {
    const LRESULT length = index < 0 ? LB_ERR : ToList(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0 || !m_hasStrings) return std::string();
    std::string text(static_cast<size_t>(length), '\0');
    // The list writes the closing zero, for which a string has room.
    ToList(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

// The text of the field; with no buffer, only its length.
LRESULT ComboBox::GetText(size_t room, char* buffer) const {
    if (m_edit != nullptr) {
        return buffer != nullptr ? ToEdit(WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer))
                                 : ToEdit(WM_GETTEXTLENGTH);
    }
    const std::string text = ItemText(Current());
    if (buffer == nullptr) return static_cast<LRESULT>(text.size());
    if (room == 0) return 0;
    const size_t length = std::min(room - 1, text.size());
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT ComboBox::DialogCode(const MSG* message) const {
    LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
    // While the list is open, Enter and Escape close it and do not reach the dialog.
    if (message != nullptr && message->message == WM_KEYDOWN && m_dropped &&
        (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE)) {
        code |= DLGC_WANTMESSAGE;
    }
    return code;
}

LRESULT ComboBox::GetInfo(COMBOBOXINFO* info) const {
    constexpr DWORD kPressed = 0x8;
    if (info == nullptr || info->cbSize < sizeof(COMBOBOXINFO)) return FALSE;
    info->rcItem = ItemRect();
    info->rcButton = ButtonRect();
    info->stateButton = m_buttonDown ? kPressed : 0;
    info->hwndCombo = m_hwnd;
    info->hwndItem = m_edit;
    info->hwndList = m_list;
    return TRUE;
}

}  // namespace headless
