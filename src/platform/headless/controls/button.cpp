#include "platform/headless/controls/button.h"

#include "platform/headless/controls/controls.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {
namespace {

// A group has no more buttons than this; a walk around it ends here at the latest.
constexpr int kMostInGroup = 1000;

}  // namespace

Button::Button(HWND hwnd, const CREATESTRUCTA& create) : ControlObject(hwnd) {
    const UINT type = static_cast<UINT>(create.style) & BS_TYPEMASK;
    // The old user button is a push button.
    if (type == BS_USERBUTTON)
        SetWindowLongPtrA(hwnd, GWL_STYLE,
                          (GetWindowLongPtrA(hwnd, GWL_STYLE) & ~LONG_PTR{BS_TYPEMASK}));
    if (type > BS_OWNERDRAW || type == 10) ReportUnsupported("button type " + std::to_string(type));
    if ((create.style & BS_FLAT) != 0) ReportUnsupported("BS_FLAT");
}

UINT Button::Type() const {
    return static_cast<UINT>(GetWindowLongPtrA(m_hwnd, GWL_STYLE)) & BS_TYPEMASK;
}

bool Button::IsPush() const {
    return Type() == BS_PUSHBUTTON || Type() == BS_DEFPUSHBUTTON;
}

bool Button::IsRadio() const {
    return Type() == BS_RADIOBUTTON || Type() == BS_AUTORADIOBUTTON;
}

UINT Button::HighestCheck() const {
    switch (Type()) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return BST_CHECKED;
        case BS_3STATE:
        case BS_AUTO3STATE:
            return BST_INDETERMINATE;
        default:
            return BST_UNCHECKED;
    }
}

LRESULT Button::DialogCode() const {
    switch (Type()) {
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return DLGC_BUTTON | DLGC_RADIOBUTTON;
        case BS_GROUPBOX:
            return DLGC_STATIC;
        default:
            return DLGC_BUTTON;
    }
}

void Button::Notify(int code) const {
    if (m_hwnd != nullptr) NotifyOwner(GetParent(m_hwnd), code);
}

bool Button::InClient(LPARAM position) const {
    RECT client = {};
    GetClientRect(m_hwnd, &client);
    return PtInRect(&client, {GET_X_LPARAM(position), GET_Y_LPARAM(position)}) != FALSE;
}

void Button::SetHighlight(bool on) {
    if (m_highlit == on) return;
    m_highlit = on;
    PaintNow(ODA_SELECT);
}

void Button::SetCheck(UINT check) {
    if (check > HighestCheck()) check = HighestCheck();
    // A checked radio button is the one of its group that the Tab key reaches.
    if (IsRadio()) SetStyle(WS_TABSTOP, check == BST_CHECKED);
    if (check == m_check) return;
    m_check = check;
    PaintNow();
}

void Button::Press(bool withFocus) {
    if (withFocus) SetFocus(m_hwnd);
    if (m_hwnd == nullptr) return;
    SetCapture(m_hwnd);
    m_pressed = true;
    SendMessageA(m_hwnd, BM_SETSTATE, TRUE, 0);
}

void Button::Release(bool inside) {
    if (!m_pressed) return;
    m_pressed = false;
    const bool clicked = inside && m_highlit;
    if (m_highlit) SendMessageA(m_hwnd, BM_SETSTATE, FALSE, 0);
    if (m_hwnd != nullptr && clicked) Click();
    if (m_hwnd != nullptr && GetCapture() == m_hwnd) ReleaseCapture();
    if (clicked) Notify(BN_CLICKED);
}

void Button::Click() {
    switch (Type()) {
        case BS_AUTOCHECKBOX:
            SendMessageA(m_hwnd, BM_SETCHECK,
                         m_check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED, 0);
            break;
        case BS_AUTO3STATE:
            SendMessageA(m_hwnd, BM_SETCHECK,
                         m_check == BST_INDETERMINATE ? BST_UNCHECKED : m_check + 1, 0);
            break;
        case BS_AUTORADIOBUTTON:
            ClearRadioGroup();
            break;
        default:
            break;
    }
}

void Button::ClearRadioGroup() {
    const HWND self = m_hwnd;
    const HWND parent = GetParent(self);
    HWND each = self;
    for (int i = 0; i < kMostInGroup && each != nullptr; ++i) {
        if ((SendMessageA(each, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0)
            SendMessageA(each, BM_SETCHECK, each == self ? BST_CHECKED : BST_UNCHECKED, 0);
        each = GetNextDlgGroupItem(parent, each, FALSE);
        if (each == self) break;
    }
}

void Button::SetFocusState(bool focused) {
    m_focused = focused;
    PaintNow(ODA_FOCUS);
    if (!focused && m_pressed && GetCapture() == m_hwnd) ReleaseCapture();
    if (m_hwnd != nullptr && HasStyle(BS_NOTIFY)) Notify(focused ? BN_SETFOCUS : BN_KILLFOCUS);
    if (m_hwnd != nullptr && !focused) InvalidateRect(m_hwnd, nullptr, FALSE);
}

void Button::SetButtonStyle(UINT style, bool redraw) {
    const UINT type = style & BS_TYPEMASK;
    if (type > BS_OWNERDRAW) return;
    const LONG_PTR old = GetWindowLongPtrA(m_hwnd, GWL_STYLE);
    SetStyle(BS_TYPEMASK & ~type, false);
    SetStyle(type, true);
    if (redraw && old != GetWindowLongPtrA(m_hwnd, GWL_STYLE))
        InvalidateRect(m_hwnd, nullptr, TRUE);
}

LRESULT Button::ExchangeImage(UINT type, HANDLE image) {
    if (type != IMAGE_BITMAP && type != IMAGE_ICON) {
        ReportUnsupported("BM_SETIMAGE of type " + std::to_string(type));
        return 0;
    }
    const HANDLE old = m_image;
    m_image = image;
    m_imageType = type;
    InvalidateRect(m_hwnd, nullptr, FALSE);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DialogCode();
        case WM_NCHITTEST:
            if (Type() == BS_GROUPBOX) return HTTRANSPARENT;
            break;
        case WM_ENABLE:
            PaintNow();
            return 0;
        case WM_SETFOCUS:
            SetFocusState(true);
            return 0;
        case WM_KILLFOCUS:
            SetFocusState(false);
            return 0;
        case WM_LBUTTONDBLCLK:
            if (HasStyle(BS_NOTIFY) || Type() == BS_RADIOBUTTON || Type() == BS_OWNERDRAW) {
                Notify(BN_DBLCLK);
                return 0;
            }
            Press(true);
            return 0;
        case WM_LBUTTONDOWN:
            Press(true);
            return 0;
        case WM_LBUTTONUP:
            Release(InClient(lParam));
            return 0;
        case WM_MOUSEMOVE:
            if (m_pressed && (wParam & MK_LBUTTON) != 0 && GetCapture() == m_hwnd)
                SendMessageA(m_hwnd, BM_SETSTATE, InClient(lParam) ? TRUE : FALSE, 0);
            return 0;
        case WM_CAPTURECHANGED:
            if (m_pressed) {
                m_pressed = false;
                if (m_highlit) SendMessageA(m_hwnd, BM_SETSTATE, FALSE, 0);
            }
            return 0;
        case WM_KEYDOWN:
            if (wParam != VK_SPACE) break;
            Press(false);
            return 0;
        case WM_KEYUP:
            if (wParam != VK_SPACE) break;
            Release(true);
            return 0;
        case WM_SETFONT:
            m_font = reinterpret_cast<HFONT>(wParam);
            if (lParam != 0) InvalidateRect(m_hwnd, nullptr, TRUE);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_SETTEXT: {
            const LRESULT result = DefWindowProcA(m_hwnd, message, wParam, lParam);
            // A group box has no background of its own that would cover its old text.
            if (Type() == BS_GROUPBOX && IsWindowVisible(m_hwnd))
                InvalidateRect(m_hwnd, nullptr, TRUE);
            else
                PaintNow();
            return result;
        }
        case WM_ERASEBKGND:
            if (Type() == BS_OWNERDRAW) {
                RECT client = {};
                GetClientRect(m_hwnd, &client);
                const HDC dc = reinterpret_cast<HDC>(wParam);
                FillRect(dc, &client, AskColor(dc));
            }
            return TRUE;
        case WM_PAINT: {
            if (wParam != 0) {
                Paint(reinterpret_cast<HDC>(wParam), ODA_DRAWENTIRE);
                return 0;
            }
            const HWND hwnd = m_hwnd;
            PAINTSTRUCT paint = {};
            const HDC dc = BeginPaint(hwnd, &paint);
            if (m_hwnd != nullptr) Paint(dc, ODA_DRAWENTIRE);
            EndPaint(hwnd, &paint);
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam), ODA_DRAWENTIRE);
            return 0;
        case WM_SYSCOLORCHANGE:
            InvalidateRect(m_hwnd, nullptr, FALSE);
            return 0;
        case BM_GETCHECK:
            return static_cast<LRESULT>(m_check);
        case BM_SETCHECK:
            SetCheck(wParam > BST_INDETERMINATE ? UINT{BST_INDETERMINATE}
                                                : static_cast<UINT>(wParam));
            return 0;
        case BM_GETSTATE:
            return static_cast<LRESULT>(m_check | (m_highlit ? BST_PUSHED : 0) |
                                        (m_focused ? BST_FOCUS : 0));
        case BM_SETSTATE:
            SetHighlight(wParam != 0);
            return 0;
        case BM_SETSTYLE:
            SetButtonStyle(static_cast<UINT>(wParam), LOWORD(lParam) != 0);
            return 0;
        case BM_CLICK: {
            const HWND hwnd = m_hwnd;
            SendMessageA(hwnd, WM_LBUTTONDOWN, 0, 0);
            if (m_hwnd != nullptr) SendMessageA(hwnd, WM_LBUTTONUP, 0, 0);
            return 0;
        }
        case BM_GETIMAGE:
            return reinterpret_cast<LRESULT>(m_image);
        case BM_SETIMAGE:
            return ExchangeImage(static_cast<UINT>(wParam), reinterpret_cast<HANDLE>(lParam));
        default:
            if (message > BM_SETIMAGE && message <= 0xFF)
                ReportUnsupported("button message " + std::to_string(message));
            break;
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

void RegisterButtonClass() {
    Button::Register("Button", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_PARENTDC | CS_GLOBALCLASS,
                     IDC_ARROW);
}

}  // namespace headless
