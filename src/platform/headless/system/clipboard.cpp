// The clipboard of the process. It keeps what it is given, in that format alone: none is made from
// another one.
#include <map>

#include "platform/headless/drawing/gdi_objects.h"
#include "platform/headless/drawing/window_state.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

constexpr DWORD kNotOpen = 1418;  // ERROR_CLIPBOARD_NOT_OPEN

struct Clipboard {
    bool open = false;
    HWND opener = nullptr;
    DWORD thread = 0;
    std::map<UINT, HANDLE> data;
};

Clipboard& State() {
    static Clipboard& clipboard = *new Clipboard;
    return clipboard;
}

bool IsOpenHere() {
    if (State().open && State().thread == GetCurrentThreadId()) return true;
    SetLastError(kNotOpen);
    return false;
}

void Drop(HANDLE memory) {
    if (auto* block = Find<GlobalBlock>(memory)) block->onClipboard = false;
    GlobalFree(memory);
}

}  // namespace

void CloseClipboardOf(HWND hwnd) {
    if (State().open && State().opener == hwnd && hwnd != nullptr) State().open = false;
}

}  // namespace headless::gdi

using namespace headless::gdi;

BOOL OpenClipboard(HWND owner) {
    if (owner != nullptr && !IsWindow(owner)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    const Lock lock;
    Clipboard& clipboard = State();
    if (clipboard.open && (clipboard.opener != owner || clipboard.thread != GetCurrentThreadId())) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    clipboard.open = true;
    clipboard.opener = owner;
    clipboard.thread = GetCurrentThreadId();
    return TRUE;
}

BOOL CloseClipboard() {
    const Lock lock;
    if (!IsOpenHere()) return FALSE;
    State().open = false;
    return TRUE;
}

BOOL EmptyClipboard() {
    const Lock lock;
    if (!IsOpenHere()) return FALSE;
    for (const auto& [format, memory] : State().data) Drop(memory);
    State().data.clear();
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE memory) {
    const Lock lock;
    if (!IsOpenHere()) return nullptr;
    auto* block = Find<GlobalBlock>(memory);
    if (block == nullptr) {
        headless::ReportUnsupported("SetClipboardData without a moveable block of memory");
        return nullptr;
    }
    HANDLE& place = State().data[format];
    if (place != nullptr && place != memory) Drop(place);
    place = memory;
    block->onClipboard = true;
    return memory;
}

HANDLE GetClipboardData(UINT format) {
    const Lock lock;
    if (!IsOpenHere()) return nullptr;
    const auto found = State().data.find(format);
    if (found != State().data.end()) return found->second;
    const bool text = format == CF_TEXT || format == CF_OEMTEXT || format == CF_UNICODETEXT;
    for (const UINT other : {UINT{CF_TEXT}, UINT{CF_OEMTEXT}, UINT{CF_UNICODETEXT}})
        if (text && State().data.count(other) != 0)
            headless::ReportUnsupported("conversion of clipboard text");
    return nullptr;
}

BOOL IsClipboardFormatAvailable(UINT format) {
    const Lock lock;
    return State().data.count(format) != 0 ? TRUE : FALSE;
}
