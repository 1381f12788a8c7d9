#include "platform/headless/window/message_queue.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <thread>

#include "platform/headless/system/codepage.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/input_state.h"
#include "platform/headless/window/timer_list.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/clock.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr std::size_t kMostPosted = 10000;
constexpr int kMostHopelessWaits = 100;
constexpr int kMostFruitlessWaits = 5000;

struct QueueRegistry {
    std::mutex mutex;
    std::map<DWORD, MessageQueue*> queues;
    std::map<std::string, UINT> messageNames;
    UINT nextMessage = 0xC000;
};

QueueRegistry& Registry() {
    static auto* registry = new QueueRegistry;
    return *registry;
}

bool PassesRange(UINT message, UINT first, UINT last) {
    return (first == 0 && last == 0) || (message >= first && message <= last);
}

// Runs what other threads sent.
void ServeSent(MessageQueue& queue) {
    for (;;) {
        SentMessage* sent = nullptr;
        {
            std::lock_guard lock(queue.mutex);
            if (queue.sent.empty()) return;
            sent = queue.sent.front();
            queue.sent.pop_front();
        }
        ++queue.servingSent;
        const LRESULT result =
            Send(sent->msg.hwnd, sent->msg.message, sent->msg.wParam, sent->msg.lParam);
        --queue.servingSent;
        std::lock_guard lock(sent->sender->mutex);
        sent->result = result;
        sent->done = true;
        sent->sender->changed.notify_all();
    }
}

bool TakePosted(MessageQueue& queue, MSG& msg, HWND filter, UINT first, UINT last, bool remove) {
    std::lock_guard lock(queue.mutex);
    for (auto it = queue.posted.begin(); it != queue.posted.end(); ++it) {
        if (!PassesWindowFilter(it->hwnd, filter) || !PassesRange(it->message, first, last))
            continue;
        msg = *it;
        if (remove) queue.posted.erase(it);
        return true;
    }
    if (queue.quit) {
        msg = {};
        msg.message = WM_QUIT;
        msg.wParam = static_cast<WPARAM>(queue.quitCode);
        if (remove) queue.quit = false;
        return true;
    }
    return false;
}

bool TakePaint(MSG& msg, HWND filter) {
    Window* within = filter == nullptr ? nullptr : Peek(filter);
    if (filter != nullptr && within == nullptr) return false;
    const Window* window = NextToPaint(within);
    if (window == nullptr) return false;
    msg = {};
    msg.hwnd = window->handle;
    msg.message = WM_PAINT;
    return true;
}

// The next message in the platform's order: sent, posted, quit, input, paint, timers.
bool Next(MSG& msg, HWND filter, UINT first, UINT last, bool remove) {
    KeepAlive keep;
    World& world = ThisWorld();
    MessageQueue& queue = *world.queue;
    ServeSent(queue);
    if (TakePosted(queue, msg, filter, first, last, remove)) return true;
    if (TakeInput(msg, filter, first, last, remove)) return true;
    // Looking at input may have posted or sent something.
    ServeSent(queue);
    if (TakePosted(queue, msg, filter, first, last, remove)) return true;
    if (PassesRange(WM_PAINT, first, last) && TakePaint(msg, filter)) return true;
    return PassesRange(WM_TIMER, first, last) && world.timers->Take(msg, filter, remove);
}

bool Retrieve(MSG& msg, HWND filter, UINT first, UINT last, UINT flags) {
    World& world = ThisWorld();
    if (!Next(msg, filter, first, last, (flags & PM_REMOVE) != 0)) return false;
    if (msg.time == 0) msg.time = GetTickCount();
    if (msg.message != WM_QUIT && !(msg.message >= WM_KEYFIRST && msg.message <= WM_MOUSELAST))
        msg.pt = world.input->cursor;
    if ((flags & PM_REMOVE) != 0) world.queue->hopelessWaits = 0;
    CallGetMessageHooks(msg, flags);
    return true;
}

bool HasWork(MessageQueue& queue) {
    std::lock_guard lock(queue.mutex);
    return !queue.posted.empty() || !queue.sent.empty() || queue.quit;
}

// Whether another thread lives that could post something.
bool Alone() {
    std::error_code error;
    std::filesystem::directory_iterator tasks("/proc/self/task", error);
    if (error) return false;
    return std::distance(std::filesystem::begin(tasks), std::filesystem::end(tasks)) <= 1;
}

bool Post(DWORD thread, const MSG& msg) {
    std::lock_guard registry(Registry().mutex);
    const auto found = Registry().queues.find(thread);
    if (found == Registry().queues.end()) {
        SetLastError(ERROR_INVALID_THREAD_ID);
        return false;
    }
    MessageQueue& queue = *found->second;
    std::lock_guard lock(queue.mutex);
    if (queue.posted.size() >= kMostPosted) {
        ReportUnsupported("more than 10000 posted messages");
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return false;
    }
    queue.posted.push_back(msg);
    queue.changed.notify_all();
    return true;
}

MSG MakePosted(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG msg{};
    msg.hwnd = hwnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    msg.time = GetTickCount();
    return msg;
}

}  // namespace

void MessageQueue::ForgetWindow(HWND hwnd) {
    std::lock_guard lock(mutex);
    std::erase_if(posted, [hwnd](const MSG& msg) { return msg.hwnd == hwnd; });
}

void RegisterQueue(DWORD thread, MessageQueue* queue) {
    std::lock_guard lock(Registry().mutex);
    Registry().queues[thread] = queue;
}

void UnregisterQueue(DWORD thread) {
    std::lock_guard registry(Registry().mutex);
    const auto found = Registry().queues.find(thread);
    if (found == Registry().queues.end()) return;
    std::deque<SentMessage*> left;
    {
        std::lock_guard lock(found->second->mutex);
        left.swap(found->second->sent);
    }
    // Whoever still waits for an answer gets none.
    for (SentMessage* sent : left) {
        std::lock_guard lock(sent->sender->mutex);
        sent->done = true;
        sent->sender->changed.notify_all();
    }
    Registry().queues.erase(found);
}

LRESULT SendToThread(DWORD thread, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MessageQueue& mine = *ThisWorld().queue;
    SentMessage sent;
    sent.msg = MakePosted(hwnd, message, wParam, lParam);
    sent.sender = &mine;
    {
        std::lock_guard registry(Registry().mutex);
        const auto found = Registry().queues.find(thread);
        if (found == Registry().queues.end()) return 0;
        std::lock_guard lock(found->second->mutex);
        found->second->sent.push_back(&sent);
        found->second->changed.notify_all();
    }
    for (;;) {
        {
            std::unique_lock lock(mine.mutex);
            mine.changed.wait(lock, [&] { return sent.done || !mine.sent.empty(); });
            if (sent.done) return sent.result;
        }
        ServeSent(mine);
    }
}

bool PassesWindowFilter(HWND hwnd, HWND filter) {
    if (filter == nullptr) return true;
    if (filter == reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1))) return hwnd == nullptr;
    return hwnd == filter || IsChild(filter, hwnd);
}

WaitEnd WaitForWork(DWORD milliseconds) {
    World& world = ThisWorld();
    MessageQueue& queue = *world.queue;
    const bool limited = milliseconds != INFINITE;
    const std::uint64_t end = ClockNow() + milliseconds;
    for (;;) {
        if (HasWork(queue) || !world.input->events.empty() || NextToPaint(nullptr) != nullptr)
            return WaitEnd::kWork;
        const std::uint64_t now = ClockNow();
        std::optional<std::uint64_t> next = world.timers->NextDue();
        if (next && *next <= now) return WaitEnd::kWork;
        if (limited && end <= now) return WaitEnd::kTimeout;
        if (limited && (!next || end < *next)) next = end;
        if (next && ClockFrozen()) {
            AdvanceClock(static_cast<std::uint32_t>(*next - now));
            continue;
        }
        // The last other thread may have posted before it ended: asked again once it is gone.
        if (!next && Alone() && !HasWork(queue)) {
            ReportUnsupported("a wait for messages that nothing can end");
            if (++queue.hopelessWaits > kMostHopelessWaits) {
                std::fputs("headless: the loop goes on waiting for messages that cannot come\n",
                           stderr);
                std::abort();
            }
            return WaitEnd::kHopeless;
        }
        // In slices: another thread that could have posted may end without doing so.
        const std::uint64_t slice = next ? std::min<std::uint64_t>(*next - now, 50) : 50;
        std::unique_lock lock(queue.mutex);
        queue.changed.wait_for(lock, std::chrono::milliseconds(slice), [&] {
            return !queue.posted.empty() || !queue.sent.empty() || queue.quit;
        });
    }
}

}  // namespace headless

using namespace headless;

BOOL PostMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (hwnd == nullptr) return PostThreadMessageA(ThisWorld().thread, message, wParam, lParam);
    if (hwnd == HWND_BROADCAST) {
        for (const Window* w : ThisWorld().desktop->children)
            PostMessageA(w->handle, message, wParam, lParam);
        return TRUE;
    }
    const DWORD thread = OwnerThread(hwnd);
    if (thread == 0) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    return Post(thread, MakePosted(hwnd, message, wParam, lParam));
}

BOOL PostThreadMessageA(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam) {
    ThisWorld();
    return Post(thread, MakePosted(nullptr, message, wParam, lParam));
}

void PostQuitMessage(int code) {
    MessageQueue& queue = *ThisWorld().queue;
    std::lock_guard lock(queue.mutex);
    queue.quit = true;
    queue.quitCode = code;
}

BOOL PeekMessageA(MSG* msg, HWND hwnd, UINT first, UINT last, UINT remove) {
    if (msg == nullptr) return FALSE;
    return Retrieve(*msg, hwnd, first, last, remove);
}

BOOL GetMessageA(MSG* msg, HWND hwnd, UINT first, UINT last) {
    if (msg == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return -1;
    }
    if (hwnd != nullptr && hwnd != reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1)) &&
        Lookup(hwnd) == nullptr)
        return -1;
    int fruitless = 0;
    while (!Retrieve(*msg, hwnd, first, last, PM_REMOVE)) {
        WaitEnd end = WaitForWork(INFINITE);
        if (end == WaitEnd::kWork && ++fruitless > 1) {
            // What waits does not pass the filter.
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (fruitless > kMostFruitlessWaits) {
                ReportUnsupported("GetMessageA with a filter that nothing passes");
                end = WaitEnd::kHopeless;
            }
        }
        if (end == WaitEnd::kHopeless) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return -1;
        }
    }
    return msg->message != WM_QUIT;
}

BOOL WaitMessage() {
    return WaitForWork(INFINITE) != WaitEnd::kHopeless;
}

DWORD MsgWaitForMultipleObjects(DWORD count, const HANDLE*, BOOL, DWORD milliseconds, DWORD) {
    if (count != 0) {
        ReportUnsupported("MsgWaitForMultipleObjects with handles");
        return WAIT_FAILED;
    }
    switch (WaitForWork(milliseconds)) {
        case WaitEnd::kWork:
            return WAIT_OBJECT_0;
        case WaitEnd::kTimeout:
            return WAIT_TIMEOUT;
        default:
            return WAIT_FAILED;
    }
}

LRESULT DispatchMessageA(const MSG* msg) {
    if (msg == nullptr) return 0;
    KeepAlive keep;
    if (msg->message == WM_TIMER && msg->lParam != 0) {
        // The timer may have been killed since, or the message forged.
        if (!ThisWorld().timers->HasProcedure(msg->hwnd, msg->wParam, msg->lParam)) return 0;
        reinterpret_cast<TIMERPROC>(msg->lParam)(msg->hwnd, WM_TIMER, msg->wParam, GetTickCount());
        return 0;
    }
    if (msg->hwnd == nullptr) return 0;
    Window* window = Lookup(msg->hwnd);
    if (window == nullptr) return 0;
    return CallProcedure(*window, msg->message, msg->wParam, msg->lParam);
}

BOOL InSendMessage() {
    return ThisWorld().queue->servingSent > 0;
}

UINT RegisterWindowMessageA(LPCSTR name) {
    if (name == nullptr || *name == '\0') {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    std::lock_guard lock(Registry().mutex);
    // Names are the same with capitals and without.
    const auto [entry, added] =
        Registry().messageNames.try_emplace(Lowered(name), Registry().nextMessage);
    if (added) ++Registry().nextMessage;
    return entry->second;
}
