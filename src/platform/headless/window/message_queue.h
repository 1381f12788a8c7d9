// The queue of one thread: what was posted to it and what other threads sent. Other threads reach
// it through the functions below; input, paint and timer messages are made when a message is asked
// for. Private to the headless system.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

#include "platform/headless/window/window.h"

namespace headless {

// A message that another thread sent and whose result it waits for.
struct SentMessage {
    MSG msg{};
    LRESULT result = 0;
    bool done = false;
    MessageQueue* sender = nullptr;
};

struct MessageQueue {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<MSG> posted;
    std::deque<SentMessage*> sent;
    bool quit = false;
    int quitCode = 0;
    int servingSent = 0;
    int hopelessWaits = 0;

    void ForgetWindow(HWND hwnd);
};

void RegisterQueue(DWORD thread, MessageQueue* queue);
void UnregisterQueue(DWORD thread);

// Sends to a window of another thread and waits; serves what is sent here meanwhile.
LRESULT SendToThread(DWORD thread, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

// A filter of null passes all, -1 passes thread messages, a window passes itself and its children.
bool PassesWindowFilter(HWND hwnd, HWND filter);

enum class WaitEnd { kWork, kTimeout, kHopeless };
// Waits until a message can be had. A wait that nothing can end (no timer, no limit, no other
// thread) is recorded and ends at once; after 100 such waits in a row the process ends, since the
// loop that waits does not look at the result.
WaitEnd WaitForWork(DWORD milliseconds);

}  // namespace headless
