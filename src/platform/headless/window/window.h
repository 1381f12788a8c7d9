// The objects behind the handles: a window, and all that one thread owns (its "world": windows,
// focus, queue, timers, hooks). Private to the headless system.
//
// Handles are numbers that are never used twice. A thread reaches its own windows only; Lookup
// gives null for a stale handle and for a window of another thread (which is also recorded as
// unsupported). A Window* stays readable until the outermost KeepAlive of the thread ends, so a
// function that sends messages begins with one and asks `alive` afterwards.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "zxadlg/headless/functions.h"

namespace headless {

struct DialogState;
struct MessageQueue;
struct TimerList;
struct HookList;
struct InputState;
struct MenuTable;

// A registered class; lives as long as the process once made (unregistering only hides it).
struct WindowClass {
    std::string name;
    HINSTANCE instance = nullptr;
    ATOM atom = 0;
    UINT style = 0;
    WNDPROC proc = nullptr;
    int windowExtra = 0;
    std::vector<BYTE> extra;
    HICON icon = nullptr;
    HICON smallIcon = nullptr;
    HCURSOR cursor = nullptr;
    HBRUSH background = nullptr;
    std::string menu;
    bool global = false;
    bool registered = true;
    int windows = 0;
};

struct Property {
    std::string name;
    HANDLE value = nullptr;
};

// What of a window has to be painted. One rectangle stands for the region.
struct UpdateState {
    RECT dirty{};  // client coordinates
    bool hasDirty = false;
    bool erase = false;
    bool internalPaint = false;
    bool frame = false;
};

struct Window {
    HWND handle = nullptr;
    WindowClass* cls = nullptr;
    WNDPROC proc = nullptr;
    HINSTANCE instance = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    UINT_PTR id = 0;  // the control id of a child, the menu of others
    LONG_PTR userData = 0;
    std::vector<BYTE> extra;
    std::string text;
    Window* parent = nullptr;  // the desktop for a top-level window, null for the desktop
    HWND owner = nullptr;
    std::vector<Window*> children;  // topmost first
    RECT frame{};                   // in the parent's client coordinates
    RECT client{};                  // likewise
    RECT restored{};                // the frame before minimizing or maximizing
    UpdateState update;
    UINT uiState = 0;
    std::vector<Property> properties;
    HICON icon = nullptr;
    HICON smallIcon = nullptr;
    HWND lastActivePopup = nullptr;
    std::unique_ptr<DialogState> dialog;
    bool alive = true;
    bool creating = true;
    bool destroying = false;
    bool sizeSent = false;

    Window();
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    bool IsChildWindow() const {
        return (style & (WS_CHILD | WS_POPUP)) == static_cast<DWORD>(WS_CHILD);
    }
    bool IsTopLevel() const { return parent != nullptr && parent->parent == nullptr; }
    bool IsDesktop() const { return parent == nullptr; }
};

struct World {
    DWORD thread = 0;
    std::unordered_map<HWND, std::unique_ptr<Window>> windows;
    Window* recent = nullptr;  // the one that was looked up last: most calls come in runs
    Window* desktop = nullptr;
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND foreground = nullptr;
    HWND capture = nullptr;
    std::unique_ptr<MessageQueue> queue;
    std::unique_ptr<TimerList> timers;
    std::unique_ptr<HookList> hooks;
    std::unique_ptr<InputState> input;
    std::unique_ptr<MenuTable> menus;
    std::vector<std::unique_ptr<Window>> dead;
    int pins = 0;
    int sendDepth = 0;

    World();
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;
};

extern constinit thread_local World* currentWorld;
World& MakeWorld();

// The calling thread's world, made on first use.
inline World& ThisWorld() {
    return currentWorld != nullptr ? *currentWorld : MakeWorld();
}

// Registers the standard classes and the program's resources, once per process.
void EnsureInitialized();

// The window of a handle; sets the last error and gives null for a stale or foreign one. The
// desktop has a handle of its own in each world, with the same value.
Window* Lookup(HWND hwnd);
// As Lookup, but null stands for the desktop.
Window* LookupOrDesktop(HWND hwnd);
// As Lookup without any error or record.
Window* Peek(HWND hwnd);
HWND DesktopHandle();

// The owning thread of a live window, 0 for none. Any thread may ask.
DWORD OwnerThread(HWND hwnd);
// Puts a new window into its thread's table and gives its handle.
HWND AdoptWindow(std::unique_ptr<Window> window);
// Takes a window out of the tables; the object goes when nothing holds it any more.
void RetireWindow(Window& window);

// Keeps dead windows readable for as long as the outermost one lives.
class KeepAlive {
  public:
    KeepAlive();
    ~KeepAlive();
    KeepAlive(const KeepAlive&) = delete;
    KeepAlive& operator=(const KeepAlive&) = delete;

  private:
    World& world_;
};

// --- Geometry --------------------------------------------------------------------------------
inline int Width(const RECT& r) {
    return r.right - r.left;
}
inline int Height(const RECT& r) {
    return r.bottom - r.top;
}
inline bool Empty(const RECT& r) {
    return r.left >= r.right || r.top >= r.bottom;
}
inline bool Contains(const RECT& r, POINT p) {
    return p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom;
}
RECT Moved(RECT r, int dx, int dy);
RECT Intersection(const RECT& a, const RECT& b);
RECT Bounds(const RECT& a, const RECT& b);          // an empty one does not count
RECT Without(const RECT& whole, const RECT& part);  // the smallest rectangle with all of the rest
// Screen position of the window's client origin.
POINT ClientOrigin(const Window& window);
// Screen position of the parent's client origin, which `frame` and `client` are measured from.
POINT ParentOrigin(const Window& window);
RECT FrameOnScreen(const Window& window);
RECT ClientOnScreen(const Window& window);
// Visible with all its parents.
bool Visible(const Window& window);
bool Enabled(const Window& window);  // itself, whatever its parents are
// True when `inner` is `outer` or lies in it.
bool Within(const Window* outer, const Window* inner);
Window* Root(Window* window);

// --- Sending ---------------------------------------------------------------------------------
LRESULT Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
// Calls a window's own procedure without hooks.
LRESULT CallProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam);

// --- Windows: steps that several files need --------------------------------------------------
// WM_SIZE and WM_MOVE of a new window, once.
void SendFirstSize(Window& window);
// Puts a top-level window and what it owns on top, without a message.
void RaiseWithOwned(Window& window);
void SetActive(HWND hwnd, bool byMouse, bool focusToo);
void ActivateAnother(Window& leaving);
void LinkOnTop(Window& window);
void Unlink(Window& window);
void ReorderWindow(Window& window, HWND insertAfter);
// Non-client sizes of a window: left, top, right, bottom.
RECT FrameThickness(DWORD style, DWORD exStyle);
// Sends WM_NCCALCSIZE for the frame rectangle and gives the client rectangle, same coordinates.
RECT AskClientRect(Window& window, const RECT& frame, bool validRects);
DWORD EdgeCorrected(DWORD style, DWORD exStyle);

// --- Painting --------------------------------------------------------------------------------
void InvalidateAll(Window& window, bool frame);
void InvalidateParentArea(Window& window, const RECT& frameInParent);
// The next window that waits to be painted, null for none; `within` limits it to a subtree.
Window* NextToPaint(Window* within);
void PaintWindow(Window& window);
void ForgetUpdates(Window& window);

// --- Unsupported requests --------------------------------------------------------------------
std::string Hex(std::uint64_t value);

}  // namespace headless
