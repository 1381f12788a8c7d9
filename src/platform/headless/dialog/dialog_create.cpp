// From a template to a dialog: units, place, controls, WM_INITDIALOG and the first focus.
#include <algorithm>

#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/dialog/dialog_template.h"
#include "platform/headless/system/module_table.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr DWORD kKnownDialogStyles = DS_ABSALIGN | DS_SYSMODAL | DS_3DLOOK | DS_FIXEDSYS |
                                     DS_NOFAILCREATE | DS_LOCALEDIT | DS_SETFONT | DS_MODALFRAME |
                                     DS_NOIDLEMSG | DS_SETFOREGROUND | DS_CONTROL | DS_CENTER |
                                     DS_CONTEXTHELP;

HFONT MakeFont(const DialogTemplate& dialog) {
    LOGFONTA font{};
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    const int points = dialog.points == 0x7FFF ? 8 : dialog.points;
    font.lfHeight = -MulDiv(points, dpi, 72);
    font.lfWeight = dialog.weight;
    font.lfItalic = dialog.italic;
    font.lfCharSet = dialog.charset;
    const std::string face = dialog.face.empty() ? "MS Shell Dlg" : dialog.face;
    std::copy_n(face.begin(), std::min<std::size_t>(face.size(), LF_FACESIZE - 1), font.lfFaceName);
    return CreateFontIndirectA(&font);
}

RECT WorkAreaNear(HWND hwnd) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    const HMONITOR monitor = hwnd != nullptr ? MonitorFromWindow(hwnd, MONITOR_DEFAULTTOPRIMARY)
                                             : MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
    GetMonitorInfoA(monitor, &info);
    return info.rcWork;
}

// The frame of the dialog in its parent's coordinates (the screen's for a top-level one).
RECT PlaceOf(const DialogTemplate& dialog, const SIZE& unit, HWND owner, DWORD style,
             DWORD exStyle) {
    RECT rect{0, 0, MulDiv(dialog.cx, unit.cx, 4), MulDiv(dialog.cy, unit.cy, 8)};
    AdjustWindowRectEx(&rect, style, FALSE, exStyle);
    const int width = Width(rect);
    const int height = Height(rect);
    POINT at{MulDiv(dialog.x, unit.cx, 4), MulDiv(dialog.y, unit.cy, 8)};
    if ((style & WS_CHILD) != 0) {
        if ((style & DS_CENTER) != 0 && owner != nullptr) {
            RECT parent{};
            GetClientRect(owner, &parent);
            at = {(Width(parent) - width) / 2, (Height(parent) - height) / 2};
        }
        return {at.x, at.y, at.x + width, at.y + height};
    }
    const RECT work = WorkAreaNear(owner);
    if ((style & DS_CENTER) != 0) {
        at = {(work.left + work.right - width) / 2, (work.top + work.bottom - height) / 2};
    } else if ((style & DS_ABSALIGN) == 0) {
        // The template's place is that of the client area.
        at.x += rect.left;
        at.y += rect.top;
        if (owner != nullptr) ClientToScreen(owner, &at);
    }
    // All of it stays on the monitor where it fits.
    if (at.x + width > work.right) at.x = work.right - width;
    if (at.y + height > work.bottom) at.y = work.bottom - height;
    at.x = std::max(at.x, work.left);
    at.y = std::max(at.y, work.top);
    return {at.x, at.y, at.x + width, at.y + height};
}

std::string TitleText(const ResourceName& title) {
    if (!title.isNumber) return title.text;
    return title.number == 0 ? std::string() : "#" + std::to_string(title.number);
}

bool CreateControls(HWND dialog, const DialogTemplate& source, const std::uint8_t* data,
                    HINSTANCE instance) {
    HWND defaultButton = nullptr;
    for (const DialogItem& item : source.items) {
        DialogState* state = StateOf(dialog);
        if (state == nullptr) return false;
        const char* atomName =
            item.className.isNumber ? ControlClassName(item.className.number) : nullptr;
        const std::string className = !item.className.isNumber ? item.className.text
                                      : atomName != nullptr    ? atomName
                                                               : "";
        const std::string title = TitleText(item.title);
        const auto* extra = item.dataAt != 0 ? data + item.dataAt : nullptr;
        const int x = MulDiv(item.x, state->unitX, 4);
        const int y = MulDiv(item.y, state->unitY, 8);
        const int width = MulDiv(item.cx, state->unitX, 4);
        const int height = MulDiv(item.cy, state->unitY, 8);
        const HFONT font = state->font;
        DWORD style = item.style | WS_CHILD;
        DWORD exStyle = item.exStyle | WS_EX_NOPARENTNOTIFY;
        if ((style & WS_BORDER) != 0) {
            // In a dialog a thin border becomes a sunken edge.
            style &= ~static_cast<DWORD>(WS_BORDER);
            exStyle |= WS_EX_CLIENTEDGE;
        }
        const HWND control =
            CreateWindowExA(exStyle, className.c_str(), title.c_str(), style, x, y, width, height,
                            dialog, reinterpret_cast<HMENU>(static_cast<ULONG_PTR>(item.id)),
                            instance, const_cast<std::uint8_t*>(extra));
        if (control == nullptr) {
            if ((source.style & DS_NOFAILCREATE) != 0) continue;
            return false;
        }
        if (font != nullptr) Send(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        if ((DialogCode(control) & DLGC_DEFPUSHBUTTON) != 0) {
            // The last default button of the template is the one.
            if (defaultButton != nullptr) Send(defaultButton, BM_SETSTYLE, BS_PUSHBUTTON, FALSE);
            defaultButton = control;
            if (DialogState* now = StateOf(dialog)) now->defaultId = GetDlgCtrlID(control);
        }
    }
    return true;
}

// WM_INITDIALOG and where the focus goes then.
void Initialize(HWND dialog, LPARAM param, DWORD templateStyle) {
    const HWND before = GetFocus();
    const HWND first = FirstTabStop(dialog);
    const LRESULT wantsFocus = Send(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), param);
    Window* window = Peek(dialog);
    if (window == nullptr) return;
    // A page that is not shown takes no focus from the dialog that it belongs to.
    if ((templateStyle & DS_CONTROL) != 0 && (templateStyle & WS_VISIBLE) == 0) return;
    if (wantsFocus != 0) {
        // Not always the one that was offered: the procedure may have changed what can have it.
        const HWND target = FirstTabStop(dialog);
        if (target != nullptr) {
            FocusByKey(target);
        } else if ((window->style & WS_CHILD) == 0) {
            SetFocus(dialog);
        }
    } else if (GetFocus() == before && (window->style & WS_VISIBLE) != 0) {
        const HWND target = FirstTabStop(dialog);
        if (target != nullptr) SetFocus(target);
    }
}

}  // namespace

DialogState::~DialogState() {
    if (font != nullptr) DeleteObject(font);
}

SIZE DialogUnits(HFONT font) {
    static const char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const HDC dc = GetDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICA metrics{};
    SIZE extent{};
    GetTextMetricsA(dc, &metrics);
    GetTextExtentPoint32A(dc, letters, 52, &extent);
    SelectObject(dc, old);
    ReleaseDC(nullptr, dc);
    return {(extent.cx / 26 + 1) / 2, metrics.tmHeight};
}

DialogState* StateOf(HWND dialog, bool make) {
    Window* window = Peek(dialog);
    if (window == nullptr) return nullptr;
    if (window->dialog == nullptr && make) {
        window->dialog = std::make_unique<DialogState>();
        const LONG units = GetDialogBaseUnits();
        window->dialog->unitX = LOWORD(units);
        window->dialog->unitY = HIWORD(units);
    }
    return window->dialog.get();
}

HWND CreateDialogFrom(HINSTANCE instance, const std::uint8_t* data, std::size_t size, HWND parent,
                      DLGPROC proc, LPARAM param, bool modal) {
    EnsureInitialized();
    KeepAlive keep;
    DialogTemplate source;
    if (!ReadDialogTemplate(data, size, source)) {
        SetLastError(ERROR_RESOURCE_DATA_NOT_FOUND);
        return nullptr;
    }
    if (source.hasMenu) ReportUnsupported("menu of a dialog");
    if ((source.style & 0xFFFF & ~kKnownDialogStyles) != 0)
        ReportUnsupported("dialog style " + Hex(source.style & 0xFFFF & ~kKnownDialogStyles));
    if (parent != nullptr && Lookup(parent) == nullptr) return nullptr;

    const HFONT font = source.hasFont ? MakeFont(source) : nullptr;
    SIZE unit{LOWORD(GetDialogBaseUnits()), HIWORD(GetDialogBaseUnits())};
    if (font != nullptr) unit = DialogUnits(font);
    DWORD style = source.style & ~static_cast<DWORD>(WS_VISIBLE);
    // All dialogs look three-dimensional.
    style |= DS_3DLOOK;
    DWORD exStyle = source.exStyle;
    if ((style & DS_MODALFRAME) != 0) exStyle |= WS_EX_DLGMODALFRAME;
    if ((style & DS_CONTROL) != 0 || (style & WS_CHILD) == 0) exStyle |= WS_EX_CONTROLPARENT;
    if ((style & DS_CONTEXTHELP) != 0) exStyle |= WS_EX_CONTEXTHELP;
    const RECT place = PlaceOf(source, unit, parent, style, exStyle);

    // The owner is closed to the user before the dialog exists, and only it is.
    HWND owner = nullptr;
    bool disabledOwner = false;
    if (modal && parent != nullptr) {
        owner = Root(Peek(parent))->handle;
        if (Enabled(*Peek(owner)) && owner != DesktopHandle()) {
            EnableWindow(owner, FALSE);
            disabledOwner = true;
        }
    }
    const auto undo = [&] {
        if (disabledOwner) EnableWindow(owner, TRUE);
    };

    const std::string className = source.className.isNumber ? "#32770" : source.className.text;
    const HWND dialog =
        CreateWindowExA(exStyle, className.c_str(), source.title.c_str(), style, place.left,
                        place.top, Width(place), Height(place), parent, nullptr, instance, nullptr);
    DialogState* state = StateOf(dialog, true);
    if (state == nullptr) {
        if (font != nullptr) DeleteObject(font);
        undo();
        return nullptr;
    }
    state->font = font;
    state->unitX = unit.cx;
    state->unitY = unit.cy;
    state->modal = modal;
    state->defaultId = IDOK;
    state->enableOwner = disabledOwner;
    if (proc != nullptr) SetWindowLongPtrA(dialog, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(proc));
    if (font != nullptr) Send(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (!CreateControls(dialog, source, data, instance)) {
        if (Peek(dialog) != nullptr) DestroyWindow(dialog);
        undo();
        return nullptr;
    }
    Initialize(dialog, param, source.style);
    Window* window = Peek(dialog);
    if (window == nullptr) {
        undo();
        return nullptr;
    }
    // Even one that has been ended already appears for a moment.
    if ((source.style & WS_VISIBLE) != 0 && (window->style & WS_VISIBLE) == 0)
        ShowWindow(dialog, SW_SHOWNORMAL);
    return Peek(dialog) != nullptr ? dialog : nullptr;
}

}  // namespace headless

using namespace headless;

namespace {

// Bytes that are in no resource have no known end; their items are still limited in number.
constexpr std::size_t kUnknownSize = 1u << 20;

std::size_t SizeOfTemplate(LPCDLGTEMPLATEA dialog) {
    const std::size_t left = BytesLeftInResource(dialog);
    return left == 0 ? kUnknownSize : left;
}

const ResourceEntry* FindTemplate(HINSTANCE instance, LPCSTR name) {
    const ResourceEntry* entry =
        FindEntry(instance, NameFromCaller(RT_DIALOG), NameFromCaller(name));
    if (entry == nullptr) SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return entry;
}

}  // namespace

HWND CreateDialogParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC proc, LPARAM param) {
    const ResourceEntry* entry = FindTemplate(instance, name);
    if (entry == nullptr) return nullptr;
    return CreateDialogFrom(instance, entry->data, entry->size, parent, proc, param, false);
}

HWND CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialog, HWND parent,
                                DLGPROC proc, LPARAM param) {
    return CreateDialogFrom(instance, reinterpret_cast<const std::uint8_t*>(dialog),
                            SizeOfTemplate(dialog), parent, proc, param, false);
}

INT_PTR DialogBoxParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC proc, LPARAM param) {
    const ResourceEntry* entry = FindTemplate(instance, name);
    if (entry == nullptr) return -1;
    // A parent that is no window gives 0, all other failures -1.
    if (parent != nullptr && !IsWindow(parent)) return 0;
    const HWND made =
        CreateDialogFrom(instance, entry->data, entry->size, parent, proc, param, true);
    return made == nullptr ? -1 : RunDialog(made, parent);
}

INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialog, HWND parent,
                                DLGPROC proc, LPARAM param) {
    if (parent != nullptr && !IsWindow(parent)) return 0;
    const HWND made = CreateDialogFrom(instance, reinterpret_cast<const std::uint8_t*>(dialog),
                                       SizeOfTemplate(dialog), parent, proc, param, true);
    return made == nullptr ? -1 : RunDialog(made, parent);
}

LONG GetDialogBaseUnits() {
    const SIZE units = DialogUnits(static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
    return MAKELONG(static_cast<WORD>(units.cx), static_cast<WORD>(units.cy));
}

BOOL MapDialogRect(HWND dialog, RECT* rect) {
    if (rect == nullptr || Lookup(dialog) == nullptr) return FALSE;
    const DialogState* state = StateOf(dialog);
    if (state == nullptr) return FALSE;
    rect->left = MulDiv(rect->left, state->unitX, 4);
    rect->right = MulDiv(rect->right, state->unitX, 4);
    rect->top = MulDiv(rect->top, state->unitY, 8);
    rect->bottom = MulDiv(rect->bottom, state->unitY, 8);
    return TRUE;
}
