#include "platform/headless/controls/list_box.h"

#include <algorithm>

#include "platform/headless/controls/controls.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {
namespace {

constexpr int kWheelLines = 3;

// A message that this list does not know, or null.
const char* UnsupportedName(UINT message) {
    switch (message) {
        case LB_DIR:
            return "LB_DIR";
        case LB_ADDFILE:
            return "LB_ADDFILE";
        case LB_SETTABSTOPS:
            return "LB_SETTABSTOPS";
        case LB_SETCOLUMNWIDTH:
            return "LB_SETCOLUMNWIDTH";
        case LB_SETLOCALE:
            return "LB_SETLOCALE";
        case LB_GETLOCALE:
            return "LB_GETLOCALE";
        default:
            return nullptr;
    }
}

}  // namespace

void RegisterListBoxClass() {
    ListBox::Register("ListBox", CS_DBLCLKS, IDC_ARROW);
    ListBox::Register("ComboLBox", CS_DBLCLKS, IDC_ARROW);
}

ListBox::ListBox(HWND hwnd, const CREATESTRUCTA& create)
    : ControlObject(hwnd),
      m_owner(create.hwndParent),
      m_inCombo((create.style & LBS_COMBOBOX) != 0 && create.lpCreateParams != nullptr),
      m_multiple((create.style & LBS_MULTIPLESEL) != 0 && (create.style & LBS_EXTENDEDSEL) == 0),
      m_extended((create.style & LBS_EXTENDEDSEL) != 0),
      m_sorted((create.style & LBS_SORT) != 0),
      m_variableHeights((create.style & LBS_OWNERDRAWVARIABLE) != 0),
      m_scrollStyle((create.style & WS_VSCROLL) != 0 && (create.style & LBS_DISABLENOSCROLL) == 0) {
    if (m_inCombo) m_owner = static_cast<HWND>(create.lpCreateParams);
    m_hasStrings = !IsDrawnByOwner() || HasStyle(LBS_HASSTRINGS);
    for (const auto& [bit, name] :
         {std::pair<DWORD, const char*>{LBS_MULTICOLUMN, "LBS_MULTICOLUMN"},
          {LBS_NOSEL, "LBS_NOSEL"},
          {LBS_USETABSTOPS, "LBS_USETABSTOPS"}}) {
        if ((static_cast<DWORD>(create.style) & bit) != 0) ReportUnsupported(name);
    }
}

LRESULT ListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_CREATE:
            return OnCreate();
        case WM_DESTROY:
            Reset();
            return 0;
        case WM_SIZE:
            OnSize();
            return 0;
        case WM_SETFONT:
            SetFont(reinterpret_cast<HFONT>(wParam));
            if (lParam != 0) Repaint();
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_ENABLE:
            Repaint();
            return 0;
        case WM_SETREDRAW:
            // A mark of its own: a list that is hidden stays so.
            m_redraws = wParam != 0;
            UpdateScrollStyle();
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
        case WM_SETFOCUS:
            Repaint();
            // Focus is told even to an owner that did not ask for the other notifications.
            NotifyOwner(m_owner, LBN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            Repaint();
            NotifyOwner(m_owner, LBN_KILLFOCUS);
            return 0;
        case WM_KEYDOWN:
            return OnKeyDown(static_cast<int>(wParam));
        case WM_CHAR:
            return OnChar(static_cast<char>(wParam));
        case WM_MOUSEACTIVATE:
            if (m_inCombo) return MA_NOACTIVATE;
            break;
        case WM_LBUTTONDOWN:
            OnButtonDown(point, wParam);
            return 0;
        case WM_LBUTTONDBLCLK:
            if (m_inCombo) {
                OnButtonDown(point, wParam);
            } else {
                Notify(LBN_DBLCLK);
            }
            return 0;
        case WM_MOUSEMOVE:
            OnMouseMove(point);
            return 0;
        case WM_LBUTTONUP:
            OnButtonUp(point);
            return 0;
        case WM_CANCELMODE:
            m_tracking = false;
            if (m_inCombo) SendMessageA(m_owner, CB_SHOWDROPDOWN, FALSE, 0);
            if (m_hwnd != nullptr && GetCapture() == m_hwnd) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            m_tracking = false;
            return 0;
        case WM_VSCROLL:
            Scroll(LOWORD(wParam), HIWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            SetTop(m_top - static_cast<SHORT>(HIWORD(wParam)) / WHEEL_DELTA * kWheelLines);
            return 0;
        default:
            break;
    }
    if (message >= LB_ADDSTRING && message <= LB_ITEMFROMPOINT) {
        if (const char* name = UnsupportedName(message)) {
            ReportUnsupported(name);
            return LB_ERR;
        }
        return HandleItemMessage(message, wParam, lParam);
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

LRESULT ListBox::HandleItemMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // An index is 32 bits wide, so that -1 is -1 however the caller widened it.
    const LRESULT index = static_cast<int>(wParam);
    switch (message) {
        case LB_ADDSTRING:
            return Add(lParam);
        case LB_INSERTSTRING:
            return Insert(static_cast<int>(index), lParam);
        case LB_DELETESTRING:
            return Delete(index);
        case LB_RESETCONTENT:
            Reset();
            UpdateScrollStyle();
            Repaint();
            return 0;
        case LB_GETCOUNT:
            return Count();
        case LB_SETCOUNT:
            return SetCount(index);
        case LB_INITSTORAGE:
            m_items.reserve(m_items.size() + static_cast<size_t>(std::max<LRESULT>(index, 0)));
            return static_cast<LRESULT>(m_items.capacity());
        case LB_GETTEXT:
            return GetText(index, reinterpret_cast<char*>(lParam));
        case LB_GETTEXTLEN:
            return GetText(index, nullptr);
        case LB_GETITEMDATA:
            if (!IsIndex(index)) {
                SetLastError(ERROR_INVALID_INDEX);
                return LB_ERR;
            }
            return static_cast<LRESULT>(m_items[static_cast<size_t>(index)]->data);
        case LB_SETITEMDATA:
            if (!IsIndex(index)) {
                SetLastError(ERROR_INVALID_INDEX);
                return LB_ERR;
            }
            m_items[static_cast<size_t>(index)]->data = static_cast<ULONG_PTR>(lParam);
            return 1;
        case LB_FINDSTRING:
            return Find(index, lParam, false);
        case LB_FINDSTRINGEXACT:
            return Find(index, lParam, true);
        default:
            break;
    }
    return HandleSelectionMessage(message, wParam, lParam);
}

LRESULT ListBox::HandleViewMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT index = static_cast<int>(wParam);
    switch (message) {
        case LB_GETTOPINDEX:
            return m_top;
        case LB_SETTOPINDEX:
            SetTop(static_cast<int>(index));
            return LB_OKAY;
        case LB_GETITEMRECT:
            return GetItemRect(index, reinterpret_cast<RECT*>(lParam));
        case LB_ITEMFROMPOINT:
            return ItemFromPointResult({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case LB_GETITEMHEIGHT:
            if (!m_variableHeights) return m_itemHeight;
            return IsIndex(index) ? ItemHeight(static_cast<int>(index)) : LB_ERR;
        case LB_SETITEMHEIGHT:
            return SetItemHeight(index, static_cast<int>(LOWORD(lParam)));
        case LB_GETHORIZONTALEXTENT:
            return m_horizontalExtent;
        case LB_SETHORIZONTALEXTENT:
            m_horizontalExtent = static_cast<int>(index);
            return 0;
        default:
            break;
    }
    ReportUnsupported("ListBox message " + std::to_string(message));
    return LB_ERR;
}

LRESULT ListBox::OnCreate() {
    SetFont(nullptr);
    if (IsDrawnByOwner() && !m_variableHeights) m_itemHeight = MeasureByOwner(-1, m_itemHeight);
    UpdateScrollStyle();
    return 0;
}

void ListBox::OnSize() {
    RECT client;
    GetClientRect(m_hwnd, &client);
    if (!HasStyle(LBS_NOINTEGRALHEIGHT) && !m_variableHeights && m_itemHeight > 0) {
        // Only whole items are shown: the window gives up the rest of its height.
        const int rest = client.bottom % m_itemHeight;
        if (client.bottom > m_itemHeight && rest != 0) {
            RECT window;
            GetWindowRect(m_hwnd, &window);
            SetWindowPos(m_hwnd, nullptr, 0, 0, window.right - window.left,
                         window.bottom - window.top - rest,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            return;
        }
    }
    UpdateScrollStyle();
    SetTop(m_top);
    Repaint();
}

void ListBox::SetFont(HFONT font) {
    m_font = font;
    if (!IsDrawnByOwner()) m_itemHeight = ControlDc(m_hwnd, m_font).Metrics().tmHeight;
    UpdateScrollStyle();
}

void ListBox::Notify(int code) {
    if (HasStyle(LBS_NOTIFY)) NotifyOwner(m_owner, code);
}

void ListBox::Repaint() {
    if (m_redraws) InvalidateRect(m_hwnd, nullptr, TRUE);
}

}  // namespace headless
