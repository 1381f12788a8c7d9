#include <algorithm>
#include <atomic>
#include <mutex>

#include "platform/headless/controls/controls.h"
#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/drawing/gdi.h"
#include "platform/headless/menu/menu.h"
#include "platform/headless/system/module_table.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/input_state.h"
#include "platform/headless/window/message_queue.h"
#include "platform/headless/window/timer_list.h"
#include "platform/headless/window/window.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr std::uintptr_t kDesktopHandle = 0x10010;

// Which thread owns which window. Handles grow by two from here on and never come back.
struct HandleRegistry {
    std::mutex mutex;
    std::unordered_map<HWND, DWORD> owners;
    std::uintptr_t next = 0x10100;
};

HandleRegistry& Handles() {
    static auto* registry = new HandleRegistry;
    return *registry;
}

// A thread's world ends with the thread, but the main thread's stays: destructors of static objects
// may still call the platform.
struct WorldHolder {
    World* world = nullptr;
    ~WorldHolder() {
        if (world == nullptr || world->thread == GetCurrentProcessId()) return;
        {
            std::lock_guard lock(Handles().mutex);
            std::erase_if(Handles().owners,
                          [this](const auto& entry) { return entry.second == world->thread; });
        }
        delete world;
        world = nullptr;
    }
};

thread_local WorldHolder holder;

}  // namespace

constinit thread_local World* currentWorld = nullptr;

Window::Window() = default;
Window::~Window() = default;

World::World()
    : thread(GetCurrentThreadId()),
      queue(std::make_unique<MessageQueue>()),
      timers(std::make_unique<TimerList>()),
      hooks(std::make_unique<HookList>()),
      input(std::make_unique<InputState>()),
      menus(std::make_unique<MenuTable>()) {
    RegisterQueue(thread, queue.get());
    auto window = std::make_unique<Window>();
    window->handle = DesktopHandle();
    window->cls = DesktopClass();
    window->proc = DefWindowProcA;
    window->style = static_cast<DWORD>(WS_POPUP) | WS_VISIBLE | WS_CLIPCHILDREN;
    window->creating = false;
    desktop = window.get();
    windows.emplace(desktop->handle, std::move(window));
}

World::~World() {
    UnregisterQueue(thread);
}

World& MakeWorld() {
    currentWorld = new World;
    holder.world = currentWorld;
    return *currentWorld;
}

void EnsureInitialized() {
    static std::once_flag once;
    static thread_local bool inside = false;
    if (inside) return;
    inside = true;
    std::call_once(once, [] {
        BeginStandardClasses();
        RegisterDialogClass();
        RegisterButtonClass();
        RegisterMenuClass();
        RegisterStaticClass();
        RegisterEditClass();
        RegisterListBoxClass();
        RegisterComboBoxClass();
        RegisterTabControlClass();
        EndStandardClasses();
    });
    inside = false;
}

HWND DesktopHandle() {
    return reinterpret_cast<HWND>(kDesktopHandle);
}

Window* Peek(HWND hwnd) {
    World& world = ThisWorld();
    if (hwnd == nullptr) return nullptr;
    if (hwnd == DesktopHandle()) {
        const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
        world.desktop->frame = screen;
        world.desktop->client = screen;
        return world.desktop;
    }
    if (world.recent != nullptr && world.recent->handle == hwnd) return world.recent;
    const auto found = world.windows.find(hwnd);
    if (found == world.windows.end()) return nullptr;
    return world.recent = found->second.get();
}

Window* Lookup(HWND hwnd) {
    Window* window = Peek(hwnd);
    if (window != nullptr) return window;
    const DWORD owner = OwnerThread(hwnd);
    if (owner != 0 && owner != ThisWorld().thread) {
        ReportUnsupported("direct use of a window of another thread");
        SetLastError(ERROR_WINDOW_OF_OTHER_THREAD);
    } else {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    }
    return nullptr;
}

Window* LookupOrDesktop(HWND hwnd) {
    return hwnd == nullptr ? Peek(DesktopHandle()) : Lookup(hwnd);
}

DWORD OwnerThread(HWND hwnd) {
    std::lock_guard lock(Handles().mutex);
    const auto found = Handles().owners.find(hwnd);
    return found == Handles().owners.end() ? 0 : found->second;
}

HWND AdoptWindow(std::unique_ptr<Window> window) {
    World& world = ThisWorld();
    HWND handle = nullptr;
    {
        std::lock_guard lock(Handles().mutex);
        handle = reinterpret_cast<HWND>(Handles().next);
        Handles().next += 2;
        Handles().owners.emplace(handle, world.thread);
    }
    window->handle = handle;
    world.windows.emplace(handle, std::move(window));
    return handle;
}

void RetireWindow(Window& window) {
    World& world = ThisWorld();
    window.alive = false;
    {
        std::lock_guard lock(Handles().mutex);
        Handles().owners.erase(window.handle);
    }
    const auto found = world.windows.find(window.handle);
    if (found == world.windows.end()) return;
    world.recent = nullptr;
    world.dead.push_back(std::move(found->second));
    world.windows.erase(found);
}

KeepAlive::KeepAlive() : world_(ThisWorld()) {
    ++world_.pins;
}

KeepAlive::~KeepAlive() {
    if (--world_.pins == 0) world_.dead.clear();
}

RECT Moved(RECT r, int dx, int dy) {
    return {r.left + dx, r.top + dy, r.right + dx, r.bottom + dy};
}

RECT Intersection(const RECT& a, const RECT& b) {
    RECT r{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
           std::min(a.bottom, b.bottom)};
    return Empty(r) ? RECT{} : r;
}

RECT Bounds(const RECT& a, const RECT& b) {
    if (Empty(a)) return b;
    if (Empty(b)) return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

RECT Without(const RECT& whole, const RECT& part) {
    RECT rest = whole;
    const bool wide = part.left <= whole.left && part.right >= whole.right;
    const bool tall = part.top <= whole.top && part.bottom >= whole.bottom;
    if (wide && part.top <= whole.top) rest.top = std::max(whole.top, part.bottom);
    if (wide && part.bottom >= whole.bottom) rest.bottom = std::min(whole.bottom, part.top);
    if (tall && part.left <= whole.left) rest.left = std::max(whole.left, part.right);
    if (tall && part.right >= whole.right) rest.right = std::min(whole.right, part.left);
    return Empty(rest) ? RECT{} : rest;
}

POINT ClientOrigin(const Window& window) {
    POINT origin{0, 0};
    for (const Window* w = &window; w != nullptr; w = w->parent) {
        origin.x += w->client.left;
        origin.y += w->client.top;
    }
    return origin;
}

POINT ParentOrigin(const Window& window) {
    return window.parent == nullptr ? POINT{0, 0} : ClientOrigin(*window.parent);
}

RECT FrameOnScreen(const Window& window) {
    const POINT origin = ParentOrigin(window);
    return Moved(window.frame, origin.x, origin.y);
}

RECT ClientOnScreen(const Window& window) {
    const POINT origin = ParentOrigin(window);
    return Moved(window.client, origin.x, origin.y);
}

bool Visible(const Window& window) {
    for (const Window* w = &window; w != nullptr; w = w->parent) {
        if ((w->style & WS_VISIBLE) == 0) return false;
        if (w != &window && (w->style & WS_MINIMIZE) != 0) return false;
    }
    return true;
}

bool Enabled(const Window& window) {
    return (window.style & WS_DISABLED) == 0;
}

bool Within(const Window* outer, const Window* inner) {
    for (; inner != nullptr; inner = inner->parent) {
        if (inner == outer) return true;
    }
    return false;
}

Window* Root(Window* window) {
    while (window != nullptr && !window->IsDesktop() && !window->IsTopLevel())
        window = window->parent;
    return window;
}

std::string Hex(std::uint64_t value) {
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    do {
        text.insert(text.begin(), digits[value & 15]);
        value >>= 4;
    } while (value != 0);
    return "0x" + text;
}

}  // namespace headless
