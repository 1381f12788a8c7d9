// The keyboard and the mouse of one thread. Private to the headless system.
#pragma once

#include <array>
#include <deque>

#include "platform/headless/window/window.h"

namespace headless {

struct RawEvent {
    enum class Kind { kKey, kButton, kMove, kWheel };
    Kind kind = Kind::kKey;
    int key = 0;  // VK_*; for buttons VK_LBUTTON and so on
    bool down = false;
    bool extended = false;
    WORD character = 0;  // with VK_PACKET: the character in code page 1252
    int delta = 0;
    POINT at{};
    DWORD time = 0;
};

struct InputState {
    std::deque<RawEvent> events;
    // 0x80 down, 0x01 toggled; `keys` follows the messages, `async` the events.
    std::array<BYTE, 256> keys{};
    std::array<BYTE, 256> async{};
    POINT cursor{};
    HCURSOR shape = nullptr;
    bool altAlone = false;  // Alt is down and no other key came since
    // The last press, which a second one may turn into a double click.
    HWND clickWindow = nullptr;
    UINT clickMessage = 0;
    DWORD clickTime = 0;
    POINT clickAt{};
    HWND closePressed = nullptr;  // the close box of this window is held down
    HWND tracked = nullptr;       // gets WM_MOUSELEAVE once the pointer leaves it
    int beeps = 0;

    void ForgetWindow(HWND hwnd);
};

// Turns the next queued event that passes the filter into a message. Events that reach no window
// are dropped. With `remove` false the event stays and no state changes.
bool TakeInput(MSG& msg, HWND filter, UINT first, UINT last, bool remove);
// Queues an event at the present time and updates the asynchronous state.
void QueueEvent(RawEvent event);

// The character that a key types with the present key states, -1 for none.
int CharacterOfKey(UINT key, const std::array<BYTE, 256>& keys);
// The key that types a character: low byte the key, bit 8 Shift, bit 9 Ctrl; -1 for none.
int KeyOfCharacter(unsigned char character);
int ScanCode(int key);

}  // namespace headless
