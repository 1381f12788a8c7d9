#include <atomic>

#include "platform/headless/window/hook_list.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

std::atomic<std::uintptr_t> nextHook{0x20010};

// Kinds begin at -1.
unsigned BitOf(int kind) {
    return 1u << (kind + 1);
}

// Calls the first hook of a kind at or after `from`; the hook itself passes on with CallNextHookEx.
LRESULT CallFrom(std::list<Hook>::iterator from, int kind, int code, WPARAM wParam, LPARAM lParam) {
    HookList& list = *ThisWorld().hooks;
    for (auto hook = from; hook != list.hooks.end(); ++hook) {
        if (hook->kind != kind || hook->removed) continue;
        const HHOOK outer = list.current;
        list.current = hook->handle;
        ++list.running;
        const LRESULT result = hook->proc(code, wParam, lParam);
        list.current = outer;
        if (--list.running == 0) list.hooks.remove_if([](const Hook& h) { return h.removed; });
        return result;
    }
    return 0;
}

LRESULT CallAll(int kind, int code, WPARAM wParam, LPARAM lParam) {
    HookList& list = *ThisWorld().hooks;
    if ((list.kinds & BitOf(kind)) == 0) return 0;
    return CallFrom(list.hooks.begin(), kind, code, wParam, lParam);
}

}  // namespace

std::size_t HookList::Live() const {
    std::size_t count = 0;
    for (const Hook& hook : hooks) count += hook.removed ? 0 : 1;
    return count;
}

bool CallFilterHooks(MSG& msg, int code) {
    return CallAll(WH_MSGFILTER, code, 0, reinterpret_cast<LPARAM>(&msg)) != 0;
}

void CallGetMessageHooks(MSG& msg, UINT remove) {
    CallAll(WH_GETMESSAGE, HC_ACTION, remove & PM_REMOVE, reinterpret_cast<LPARAM>(&msg));
}

void CallSendHooks(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if ((ThisWorld().hooks->kinds & BitOf(WH_CALLWNDPROC)) == 0) return;
    CWPSTRUCT info{lParam, wParam, message, hwnd};
    CallAll(WH_CALLWNDPROC, HC_ACTION, 0, reinterpret_cast<LPARAM>(&info));
}

LRESULT CallCbt(int code, WPARAM wParam, LPARAM lParam) {
    return CallAll(WH_CBT, code, wParam, lParam);
}

LRESULT CallCbtCreate(HWND hwnd, CREATESTRUCTA& cs) {
    CBT_CREATEWNDA info{&cs, HWND_TOP};
    return CallCbt(HCBT_CREATEWND, reinterpret_cast<WPARAM>(hwnd), reinterpret_cast<LPARAM>(&info));
}

bool CallKeyboardHooks(WPARAM key, LPARAM flags, bool removed) {
    return CallAll(WH_KEYBOARD, removed ? HC_ACTION : HC_NOREMOVE, key, flags) != 0;
}

}  // namespace headless

using namespace headless;

HHOOK SetWindowsHookExA(int id, HOOKPROC proc, HINSTANCE, DWORD thread) {
    World& world = ThisWorld();
    if (proc == nullptr) {
        SetLastError(ERROR_INVALID_HOOK_FILTER);
        return nullptr;
    }
    const bool known = id == WH_MSGFILTER || id == WH_GETMESSAGE || id == WH_CBT ||
                       id == WH_CALLWNDPROC || id == WH_KEYBOARD;
    if (!known || (thread != 0 && thread != world.thread)) {
        ReportUnsupported(known ? "hook of another thread" : "hook " + std::to_string(id));
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    Hook hook;
    hook.handle = reinterpret_cast<HHOOK>(nextHook.fetch_add(2));
    hook.kind = id;
    hook.proc = proc;
    world.hooks->hooks.push_front(hook);
    world.hooks->kinds |= BitOf(id);
    return hook.handle;
}

BOOL UnhookWindowsHookEx(HHOOK handle) {
    HookList& list = *ThisWorld().hooks;
    for (auto hook = list.hooks.begin(); hook != list.hooks.end(); ++hook) {
        if (hook->handle != handle || hook->removed) continue;
        hook->removed = true;
        if (list.running == 0) list.hooks.erase(hook);
        return TRUE;
    }
    SetLastError(ERROR_INVALID_HOOK_HANDLE);
    return FALSE;
}

// The hook that runs now decides which one is next, whatever handle is given.
LRESULT CallNextHookEx(HHOOK, int code, WPARAM wParam, LPARAM lParam) {
    HookList& list = *ThisWorld().hooks;
    for (auto hook = list.hooks.begin(); hook != list.hooks.end(); ++hook) {
        if (hook->handle == list.current)
            return CallFrom(std::next(hook), hook->kind, code, wParam, lParam);
    }
    return 0;
}

BOOL CallMsgFilterA(MSG* msg, int code) {
    return msg != nullptr && CallFilterHooks(*msg, code);
}
