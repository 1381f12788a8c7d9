// The frame of a window: the size of its client area, what lies under a point of it, its drawing.
// Private to the headless system.
#pragma once

#include "platform/headless/window/window.h"

namespace headless {

// Takes the frame off a rectangle of the whole window.
void SubtractFrame(const Window& window, RECT& rect);
int HitFrame(const Window& window, POINT screen);
void DrawFrame(Window& window);
// A press, a release and a double click on the frame.
LRESULT FrameMouse(Window& window, UINT message, WPARAM hit, LPARAM at);

}  // namespace headless
