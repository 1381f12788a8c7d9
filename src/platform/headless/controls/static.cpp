#include "platform/headless/controls/static.h"

#include <cstdlib>

#include "platform/headless/controls/controls.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

Static::Static(HWND hwnd, const CREATESTRUCTA& create) : ControlObject(hwnd) {
    const UINT type = static_cast<UINT>(create.style) & SS_TYPEMASK;
    if (type == SS_ENHMETAFILE || type == 0xA || type > SS_ETCHEDFRAME)
        ReportUnsupported("static type " + std::to_string(type));
    if ((create.style & SS_SUNKEN) != 0)
        SetWindowLongPtrA(hwnd, GWL_EXSTYLE,
                          GetWindowLongPtrA(hwnd, GWL_EXSTYLE) | WS_EX_STATICEDGE);
}

UINT Static::Type() const {
    return static_cast<UINT>(GetWindowLongPtrA(m_hwnd, GWL_STYLE)) & SS_TYPEMASK;
}

bool Static::HasText() const {
    switch (Type()) {
        case SS_LEFT:
        case SS_CENTER:
        case SS_RIGHT:
        case SS_SIMPLE:
        case SS_LEFTNOWORDWRAP:
        case SS_OWNERDRAW:
            return true;
        default:
            return false;
    }
}

int Static::PictureType() const {
    if (Type() == SS_ICON) return IMAGE_ICON;
    return Type() == SS_BITMAP ? IMAGE_BITMAP : -1;
}

void Static::Notify(int code) const {
    if (m_hwnd != nullptr && HasStyle(SS_NOTIFY)) NotifyOwner(GetParent(m_hwnd), code);
}

LRESULT Static::Create(const CREATESTRUCTA& create) {
    RECT rect = {};
    GetWindowRect(m_hwnd, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    constexpr UINT kSizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    // An etched line is as thick as its edge, whatever the template says.
    if (Type() == SS_ETCHEDHORZ)
        SetWindowPos(m_hwnd, nullptr, 0, 0, width, GetSystemMetrics(SM_CYEDGE), kSizeOnly);
    else if (Type() == SS_ETCHEDVERT)
        SetWindowPos(m_hwnd, nullptr, 0, 0, GetSystemMetrics(SM_CXEDGE), height, kSizeOnly);
    else if (PictureType() >= 0)
        LoadPicture(create);
    return 0;
}

// The text of a picture's template is the name of its resource; a number stands behind a byte of
// 255.
void Static::LoadPicture(const CREATESTRUCTA& create) {
    LPCSTR name = create.lpszName;
    if (name == nullptr || name[0] == '\0') return;
    if (static_cast<unsigned char>(name[0]) == 0xFF) {
        const int low = static_cast<unsigned char>(name[1]);
        const int high = static_cast<unsigned char>(name[2]);
        name = MAKEINTRESOURCEA(low | high << 8);
    } else if (name[0] == '#') {
        name = MAKEINTRESOURCEA(std::atoi(name + 1));
    }
    HINSTANCE instance = create.hInstance;
    if (instance == nullptr)
        instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(m_hwnd, GWLP_HINSTANCE));
    HANDLE picture = nullptr;
    if (PictureType() == IMAGE_BITMAP)
        picture = LoadBitmapA(instance, name);
    else
        picture = LoadIconA(instance, name);
    if (picture == nullptr) return;
    m_picture = picture;
    m_ownPicture = true;
    FitPicture();
}

SIZE Static::PictureSize() const {
    if (m_picture == nullptr) return {0, 0};
    if (PictureType() == IMAGE_ICON)
        return {GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    BITMAP bitmap = {};
    GetObjectA(m_picture, sizeof bitmap, &bitmap);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

// The control takes the size of its picture.
void Static::FitPicture() {
    if (m_picture == nullptr || HasStyle(SS_CENTERIMAGE)) return;
    const SIZE size = PictureSize();
    RECT rect = {0, 0, size.cx, size.cy};
    AdjustWindowRectEx(&rect, static_cast<DWORD>(GetWindowLongPtrA(m_hwnd, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrA(m_hwnd, GWL_EXSTYLE)));
    SetWindowPos(m_hwnd, nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HANDLE Static::SetPicture(UINT type, HANDLE picture) {
    if (static_cast<int>(type) != PictureType()) {
        // A cursor is an icon.
        if (type != IMAGE_CURSOR || PictureType() != IMAGE_ICON) return nullptr;
    }
    const HANDLE old = m_picture;
    m_picture = picture;
    // What the control has loaded goes to the caller with the rest.
    m_ownPicture = false;
    FitPicture();
    PaintNow();
    return old;
}

LRESULT Static::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create(*reinterpret_cast<CREATESTRUCTA*>(lParam));
        case WM_NCDESTROY:
            if (m_ownPicture && PictureType() == IMAGE_BITMAP) DeleteObject(m_picture);
            break;
        case WM_GETDLGCODE:
            return DLGC_STATIC;
        case WM_NCHITTEST:
            return HasStyle(SS_NOTIFY) ? HTCLIENT : HTTRANSPARENT;
        case WM_LBUTTONDOWN:
            Notify(STN_CLICKED);
            return 0;
        case WM_LBUTTONDBLCLK:
            Notify(STN_DBLCLK);
            return 0;
        case WM_ENABLE:
            PaintNow();
            Notify(wParam != 0 ? STN_ENABLE : STN_DISABLE);
            return 0;
        case WM_SETFONT:
            if (!HasText()) return 0;
            m_font = reinterpret_cast<HFONT>(wParam);
            if (lParam != 0)
                RedrawWindow(m_hwnd, nullptr, nullptr,
                             RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_SETTEXT: {
            if (!HasText()) return FALSE;
            const LRESULT result = DefWindowProcA(m_hwnd, message, wParam, lParam);
            PaintNow();
            return result;
        }
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT: {
            if (wParam != 0) {
                Paint(reinterpret_cast<HDC>(wParam));
                return 0;
            }
            const HWND hwnd = m_hwnd;
            PAINTSTRUCT paint = {};
            const HDC dc = BeginPaint(hwnd, &paint);
            if (m_hwnd != nullptr) Paint(dc);
            EndPaint(hwnd, &paint);
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_SYSCOLORCHANGE:
            InvalidateRect(m_hwnd, nullptr, TRUE);
            return 0;
        case STM_GETIMAGE:
            return static_cast<int>(wParam) == PictureType() ||
                           (wParam == IMAGE_CURSOR && PictureType() == IMAGE_ICON)
                       ? reinterpret_cast<LRESULT>(m_picture)
                       : 0;
        case STM_SETIMAGE:
            return reinterpret_cast<LRESULT>(
                SetPicture(static_cast<UINT>(wParam), reinterpret_cast<HANDLE>(lParam)));
        case STM_GETICON:
            return PictureType() == IMAGE_ICON ? reinterpret_cast<LRESULT>(m_picture) : 0;
        case STM_SETICON:
            return reinterpret_cast<LRESULT>(
                SetPicture(IMAGE_ICON, reinterpret_cast<HANDLE>(wParam)));
        default:
            break;
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

void RegisterStaticClass() {
    Static::Register("Static", CS_DBLCLKS | CS_PARENTDC | CS_GLOBALCLASS, IDC_ARROW);
}

}  // namespace headless
