// Sending: straight to the procedure within a thread, through the other thread's queue otherwise.
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/message_queue.h"
#include "platform/headless/window/window.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

// Procedures that call themselves without end would otherwise end in a crash with no name.
constexpr int kDeepestSend = 2000;

class Depth {
  public:
    explicit Depth(World& world) : world_(world) { ++world_.sendDepth; }
    ~Depth() { --world_.sendDepth; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    World& world_;
};

}  // namespace

LRESULT CallProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    KeepAlive keep;
    World& world = ThisWorld();
    Depth depth(world);
    if (world.sendDepth > kDeepestSend) {
        ReportUnsupported("messages nested more than 2000 deep");
        return 0;
    }
    return window.proc(window.handle, message, wParam, lParam);
}

LRESULT Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    KeepAlive keep;
    Window* window = Peek(hwnd);
    if (window == nullptr) return 0;
    CallSendHooks(hwnd, message, wParam, lParam);
    if (!window->alive) return 0;
    return CallProcedure(*window, message, wParam, lParam);
}

}  // namespace headless

using namespace headless;

LRESULT SendMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    KeepAlive keep;
    if (hwnd == HWND_BROADCAST) {
        std::vector<HWND> all;
        for (const Window* w : ThisWorld().desktop->children) all.push_back(w->handle);
        for (HWND top : all) Send(top, message, wParam, lParam);
        return TRUE;
    }
    if (Peek(hwnd) != nullptr) return Send(hwnd, message, wParam, lParam);
    const DWORD owner = OwnerThread(hwnd);
    if (owner != 0 && owner != ThisWorld().thread)
        return SendToThread(owner, hwnd, message, wParam, lParam);
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return 0;
}

LRESULT CallWindowProcA(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (proc == nullptr) return 0;
    KeepAlive keep;
    return proc(hwnd, message, wParam, lParam);
}
