#include "platform/headless/controls/edit.h"

#include <algorithm>
#include <cstring>

#include "platform/headless/controls/controls.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {
namespace {

constexpr size_t kNoLimitOfOneLine = 0x7FFFFFFE;
constexpr size_t kNoLimitOfLines = 0xFFFFFFFF;
constexpr int kWheelLines = 3;

size_t PlaceOf(WPARAM value) {
    return static_cast<DWORD>(value);
}

// A message that this edit does not know.
const char* UnsupportedName(UINT message) {
    switch (message) {
        case EM_SETHANDLE:
            return "EM_SETHANDLE";
        case EM_GETHANDLE:
            return "EM_GETHANDLE";
        case EM_GETTHUMB:
            return "EM_GETTHUMB";
        case EM_SETRECT:
            return "EM_SETRECT";
        case EM_SETRECTNP:
            return "EM_SETRECTNP";
        case EM_SETWORDBREAKPROC:
            return "EM_SETWORDBREAKPROC";
        case EM_GETWORDBREAKPROC:
            return "EM_GETWORDBREAKPROC";
        case EM_SETCUEBANNER:
            return "EM_SETCUEBANNER";
        case EM_SHOWBALLOONTIP:
            return "EM_SHOWBALLOONTIP";
        case EM_HIDEBALLOONTIP:
            return "EM_HIDEBALLOONTIP";
        default:
            return "an Edit message";
    }
}

}  // namespace

void RegisterEditClass() {
    Edit::Register("Edit", CS_DBLCLKS, IDC_IBEAM);
}

Edit::Edit(HWND hwnd, const CREATESTRUCTA& create)
    : ControlObject(hwnd), m_combo(static_cast<HWND>(create.lpCreateParams)) {
    m_drawBorder = (create.style & WS_BORDER) != 0 && (create.dwExStyle & WS_EX_CLIENTEDGE) == 0;
    if (m_drawBorder) SetStyle(WS_BORDER, false);
    if ((create.style & ES_PASSWORD) != 0 && (create.style & ES_MULTILINE) == 0) {
        m_passwordChar = '*';
    }
    if ((create.style & ES_OEMCONVERT) != 0) ReportUnsupported("ES_OEMCONVERT");
}

LRESULT Edit::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_CREATE:
            return OnCreate(*reinterpret_cast<CREATESTRUCTA*>(lParam));
        case WM_SETTEXT:
            SetText(reinterpret_cast<const char*>(lParam));
            return TRUE;
        case WM_GETTEXT:
            return GetText(wParam, reinterpret_cast<char*>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(m_text.size());
        case WM_SETFONT: {
            m_font = reinterpret_cast<HFONT>(wParam);
            // A control given a font also takes the margins that suit the font.
            m_leftMargin = m_rightMargin = ControlDc(m_hwnd, m_font).LetterWidth() / 2;
            Reformat();
            if (lParam != 0) Repaint();
            return 0;
        }
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_SIZE:
            Reformat();
            Repaint();
            return 0;
        case WM_ENABLE:
        case WM_STYLECHANGED:
            Repaint();
            return 0;
        case WM_GETDLGCODE:
            return DialogCode(reinterpret_cast<const MSG*>(lParam));
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
            Notify(EN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            Repaint();
            Notify(EN_KILLFOCUS);
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (message == WM_SYSKEYDOWN && wParam != VK_UP && wParam != VK_DOWN) break;
            if (message == WM_SYSKEYDOWN && m_combo == nullptr) break;
            return OnKeyDown(static_cast<int>(wParam), lParam);
        case WM_CHAR:
            OnChar(static_cast<char>(wParam));
            return 0;
        case WM_CUT:
            Copy();
            Clear();
            return 0;
        case WM_COPY:
            Copy();
            return 0;
        case WM_PASTE:
            Paste();
            return 0;
        case WM_CLEAR:
            Clear();
            return 0;
        case WM_UNDO:
            return Undo();
        case WM_LBUTTONDOWN:
            OnButtonDown(point, (wParam & MK_SHIFT) != 0);
            return 0;
        case WM_LBUTTONDBLCLK:
            OnDoubleClick(point);
            return 0;
        case WM_MOUSEMOVE:
            if (m_dragging) MoveTo(IndexFromPoint(Confined(point), nullptr), true);
            return 0;
        case WM_LBUTTONUP:
            if (!m_dragging) return 0;
            m_dragging = false;
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            m_dragging = false;
            return 0;
        case WM_VSCROLL:
            ScrollBy(LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            if (!IsMultiLine()) break;
            ScrollLines(-static_cast<SHORT>(HIWORD(wParam)) / WHEEL_DELTA * kWheelLines);
            return 0;
        default:
            break;
    }
    if ((message >= EM_GETSEL && message <= EM_CHARFROMPOS) || message == EM_SETCUEBANNER ||
        message == EM_SHOWBALLOONTIP || message == EM_HIDEBALLOONTIP) {
        return HandleEditMessage(message, wParam, lParam);
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

LRESULT Edit::HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case EM_GETSEL:
            return GetSelection(reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
        case EM_SETSEL:
            if (static_cast<int>(wParam) == -1) {
                Select(m_caret, m_caret);
            } else {
                Select(PlaceOf(wParam), PlaceOf(static_cast<WPARAM>(lParam)));
            }
            ScrollToCaret();
            return 1;
        case EM_REPLACESEL: {
            const char* text = reinterpret_cast<const char*>(lParam);
            Replace(text != nullptr ? text : "", wParam != 0, true, true);
            return 1;
        }
        case EM_GETMODIFY:
            return m_modified ? 1 : 0;
        case EM_SETMODIFY:
            m_modified = wParam != 0;
            return 0;
        case EM_LIMITTEXT:
            m_limit = PlaceOf(wParam);
            if (m_limit == 0) m_limit = IsMultiLine() ? kNoLimitOfLines : kNoLimitOfOneLine;
            return 0;
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(m_limit);
        case EM_CANUNDO:
            return m_undoLength > 0 || !m_undoText.empty() ? 1 : 0;
        case EM_UNDO:
            return Undo();
        case EM_EMPTYUNDOBUFFER:
            ForgetUndo();
            return 0;
        case EM_SETREADONLY:
            SetStyle(ES_READONLY, wParam != 0);
            Repaint();
            return 1;
        case EM_GETPASSWORDCHAR:
            return static_cast<BYTE>(m_passwordChar);
        case EM_SETPASSWORDCHAR:
            if (IsMultiLine()) return 0;
            m_passwordChar = static_cast<char>(wParam);
            SetStyle(ES_PASSWORD, wParam != 0);
            Repaint();
            return 1;
        case EM_GETMARGINS:
            return MAKELRESULT(m_leftMargin, m_rightMargin);
        case EM_SETMARGINS:
            if ((wParam & EC_LEFTMARGIN) != 0) m_leftMargin = LOWORD(lParam);
            if ((wParam & EC_RIGHTMARGIN) != 0) m_rightMargin = HIWORD(lParam);
            Reformat();
            Repaint();
            return 0;
        case EM_GETRECT:
            *reinterpret_cast<RECT*>(lParam) = m_format;
            return 0;
        case EM_FMTLINES:
            return wParam != 0 ? TRUE : FALSE;
        case EM_SETTABSTOPS:
            if (!IsMultiLine()) return FALSE;
            if (wParam > 1) ReportUnsupported("EM_SETTABSTOPS with several stops");
            m_tabStop = wParam == 1 ? *reinterpret_cast<const int*>(lParam) : 32;
            Reformat();
            return TRUE;
        default:
            break;
    }
    return HandleLineMessage(message, wParam, lParam);
}

LRESULT Edit::HandleLineMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // A place or line is 32 bits wide, so that -1 is -1 however the caller widened it.
    const LRESULT index = static_cast<int>(wParam);
    switch (message) {
        case EM_GETLINECOUNT:
            return static_cast<LRESULT>(m_lines.size());
        case EM_LINEINDEX:
            return LineIndex(index);
        case EM_LINELENGTH:
            return LineLength(index);
        case EM_GETLINE:
            return CopyLine(index, reinterpret_cast<char*>(lParam));
        case EM_LINEFROMCHAR:
            if (!IsMultiLine()) return 0;
            return static_cast<LRESULT>(
                LineOf(index == -1 ? SelectionStart() : static_cast<size_t>(index)));
        case EM_GETFIRSTVISIBLELINE:
            return static_cast<LRESULT>(IsMultiLine() ? m_firstLine : m_firstChar);
        case EM_SCROLL:
            return ScrollBy(static_cast<int>(index));
        case EM_LINESCROLL:
            if (!IsMultiLine()) return FALSE;
            ScrollColumns(static_cast<int>(index));
            ScrollLines(static_cast<int>(lParam));
            return TRUE;
        case EM_SCROLLCARET:
            ScrollToCaret();
            return 1;
        case EM_POSFROMCHAR:
            return PointFromIndex(index);
        case EM_CHARFROMPOS: {
            const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            RECT client;
            GetClientRect(m_hwnd, &client);
            if (!PtInRect(&client, point)) return -1;
            size_t line = 0;
            const size_t place = IndexFromPoint(point, &line);
            return MAKELRESULT(place, line);
        }
        default:
            break;
    }
    ReportUnsupported(UnsupportedName(message));
    return 0;
}

LRESULT Edit::OnCreate(const CREATESTRUCTA& create) {
    Reformat();
    if (create.lpszName != nullptr && *create.lpszName != '\0') {
        Replace(create.lpszName, false, false, false);
        Select(0, 0);
        m_modified = false;
        m_firstChar = 0;
        m_firstLine = 0;
        m_leftOffset = 0;
    }
    return 0;
}

LRESULT Edit::DialogCode(const MSG* message) {
    LRESULT code = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    if (IsMultiLine()) code |= DLGC_WANTALLKEYS;
    if (message == nullptr) return code;
    m_inDialog = true;
    // While the list is open, Enter and Escape close it and do not reach the dialog.
    if (m_combo != nullptr && message->message == WM_KEYDOWN &&
        (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE) &&
        SendMessageA(m_combo, CB_GETDROPPEDSTATE, 0, 0) != 0) {
        code |= DLGC_WANTMESSAGE;
    }
    return code;
}

LRESULT Edit::GetText(size_t room, char* buffer) const {
    if (room == 0) return 0;
    const size_t length = std::min(room - 1, m_text.size());
    std::memcpy(buffer, m_text.data(), length);
    buffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT Edit::GetSelection(DWORD* start, DWORD* end) const {
    if (start != nullptr) *start = static_cast<DWORD>(SelectionStart());
    if (end != nullptr) *end = static_cast<DWORD>(SelectionEnd());
    return MAKELRESULT(SelectionStart(), SelectionEnd());
}

}  // namespace headless
