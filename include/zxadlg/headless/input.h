// Keys and mouse for the calling thread's windows, as if from the hardware: each call queues events
// that become messages when they are next asked for, go to the window that then has the focus or
// lies under the pointer, and update the key states as they are taken. Coordinates are screen
// pixels.
#pragma once

#include "zxadlg/headless/types.h"

namespace headless {

enum class MouseButton { kLeft, kRight, kMiddle };

// One key going down or up; `key` is a VK_* number.
void InjectKey(int key, bool down);
// A key pressed and let go.
void InjectKeyStroke(int key);
// The keys that type the characters, Shift included; characters beyond the keyboard are typed as
// such.
void InjectText(const char* text);

void InjectMouseMove(int x, int y);
void InjectMouseButton(MouseButton button, bool down);
// Moves there, presses and lets go; two of these at one place are a double click when the second
// comes within GetDoubleClickTime.
void InjectClick(int x, int y, MouseButton button = MouseButton::kLeft);
void InjectWheel(int delta);

// Forgets what is queued and lets go of every key and button.
void ResetInput();

// How often MessageBeep was called since the last call of this.
int TakeBeeps();

}  // namespace headless
