#include "platform/headless/window/window_class.h"

#include <cstring>
#include <list>
#include <mutex>

#include "platform/headless/system/codepage.h"
#include "platform/headless/system/module_table.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr ATOM kFirstAtom = 0xC020;
constexpr ATOM kDialogAtom = 0x8002;
constexpr UINT kKnownStyles = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_OWNDC | CS_CLASSDC |
                              CS_PARENTDC | CS_NOCLOSE | CS_SAVEBITS | CS_GLOBALCLASS | 0x1000;

struct ClassTable {
    std::mutex mutex;
    std::list<WindowClass> classes;
    ATOM nextAtom = kFirstAtom;
    bool standard = false;
};

ClassTable& Table() {
    static auto* table = new ClassTable;
    return *table;
}

bool Matches(const WindowClass& cls, LPCSTR name) {
    if (!cls.registered) return false;
    if (IS_INTRESOURCE(name)) return cls.atom == LOWORD(reinterpret_cast<ULONG_PTR>(name));
    return SameName(cls.name, name);
}

// The caller holds the mutex.
WindowClass* FindLocked(LPCSTR name, HINSTANCE instance) {
    if (name == nullptr) return nullptr;
    for (WindowClass& cls : Table().classes) {
        if (!cls.global && cls.instance == instance && Matches(cls, name)) return &cls;
    }
    for (WindowClass& cls : Table().classes) {
        if (cls.global && Matches(cls, name)) return &cls;
    }
    return nullptr;
}

void FillInfo(const WindowClass& cls, WNDCLASSA& wc) {
    wc.style = cls.style;
    wc.lpfnWndProc = cls.proc;
    wc.cbClsExtra = static_cast<int>(cls.extra.size());
    wc.cbWndExtra = cls.windowExtra;
    wc.hInstance = cls.instance;
    wc.hIcon = cls.icon;
    wc.hCursor = cls.cursor;
    wc.hbrBackground = cls.background;
    wc.lpszMenuName = cls.menu.empty() ? nullptr : cls.menu.c_str();
    wc.lpszClassName = cls.name.c_str();
}

}  // namespace

WindowClass* FindClass(LPCSTR name, HINSTANCE instance) {
    EnsureInitialized();
    if (instance == nullptr) instance = ProgramModule();
    std::lock_guard lock(Table().mutex);
    return FindLocked(name, instance);
}

void AddWindowToClass(WindowClass& cls, int change) {
    std::lock_guard lock(Table().mutex);
    cls.windows += change;
}

WindowClass* DesktopClass() {
    static WindowClass* cls = [] {
        auto* made = new WindowClass;
        made->name = "#32769";
        made->atom = 0x8001;
        made->proc = DefWindowProcA;
        return made;
    }();
    return cls;
}

void BeginStandardClasses() {
    std::lock_guard lock(Table().mutex);
    Table().standard = true;
}

void EndStandardClasses() {
    std::lock_guard lock(Table().mutex);
    Table().standard = false;
}

void RegisterDialogClass() {
    WindowClass cls;
    cls.name = "#32770";
    cls.atom = kDialogAtom;
    cls.style = CS_GLOBALCLASS | CS_SAVEBITS | CS_DBLCLKS;
    cls.proc = DefDlgProcA;
    cls.windowExtra = DLGWINDOWEXTRA;
    cls.cursor = LoadCursorA(nullptr, IDC_ARROW);
    cls.global = true;
    std::lock_guard lock(Table().mutex);
    Table().classes.push_back(std::move(cls));
}

}  // namespace headless

using namespace headless;

ATOM RegisterClassA(const WNDCLASSA* wc) {
    EnsureInitialized();
    if (wc == nullptr || wc->lpszClassName == nullptr || wc->lpfnWndProc == nullptr ||
        wc->cbClsExtra < 0 || wc->cbWndExtra < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (IS_INTRESOURCE(wc->lpszClassName)) {
        ReportUnsupported("RegisterClassA with an atom");
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if ((wc->style & ~kKnownStyles) != 0) {
        ReportUnsupported("class style " + Hex(wc->style & ~kKnownStyles));
    }
    if (wc->lpszMenuName != nullptr) ReportUnsupported("class menu");
    if (wc->cbClsExtra > 40 || wc->cbWndExtra > 40 + DLGWINDOWEXTRA + 1024) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    const HINSTANCE instance = wc->hInstance != nullptr ? wc->hInstance : ProgramModule();
    std::lock_guard lock(Table().mutex);
    const bool global = Table().standard || (wc->style & CS_GLOBALCLASS) != 0;
    for (const WindowClass& cls : Table().classes) {
        const bool sameSpace = cls.global ? global && !Table().standard : cls.instance == instance;
        if (sameSpace && cls.instance == instance && Matches(cls, wc->lpszClassName)) {
            SetLastError(ERROR_CLASS_ALREADY_EXISTS);
            return 0;
        }
    }
    WindowClass cls;
    cls.name = wc->lpszClassName;
    cls.instance = instance;
    cls.atom = Table().nextAtom++;
    cls.style = wc->style;
    cls.proc = wc->lpfnWndProc;
    cls.windowExtra = wc->cbWndExtra;
    cls.extra.resize(static_cast<std::size_t>(wc->cbClsExtra));
    cls.icon = wc->hIcon;
    cls.cursor = wc->hCursor;
    cls.background = wc->hbrBackground;
    cls.global = global;
    const ATOM atom = cls.atom;
    // The newest one comes first: an application's class hides a standard one of the same name.
    Table().classes.push_front(std::move(cls));
    return atom;
}

BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance) {
    EnsureInitialized();
    if (instance == nullptr) instance = ProgramModule();
    std::lock_guard lock(Table().mutex);
    for (WindowClass& cls : Table().classes) {
        if (className == nullptr || cls.instance != instance || !Matches(cls, className)) continue;
        if (cls.windows > 0) {
            SetLastError(ERROR_CLASS_HAS_WINDOWS);
            return FALSE;
        }
        cls.registered = false;
        return TRUE;
    }
    SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
    return FALSE;
}

BOOL GetClassInfoA(HINSTANCE instance, LPCSTR className, WNDCLASSA* wc) {
    if (wc == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const WindowClass* cls = FindClass(className, instance);
    if (cls == nullptr) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    FillInfo(*cls, *wc);
    // As asked for: the caller usually registers a copy under another name for its own module.
    wc->hInstance = instance;
    wc->lpszClassName = className;
    return cls->atom;
}

int GetClassNameA(HWND hwnd, LPSTR buffer, int size) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || buffer == nullptr || size <= 0) return 0;
    const std::size_t length =
        std::min(window->cls->name.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, window->cls->name.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}
