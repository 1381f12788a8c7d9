// A child window that draws the sets of a recording over their axis, one pane per group, with four
// cursors that the mouse moves.
//
// The wheel magnifies the axis around the pointer, with Shift it scrolls; so do the plus, minus and
// arrow keys and the scroll bar. A double click or Home shows all.
//
// The recording is the parent's and outlives the window. The curves are drawn into a picture once
// and copied from there, so that dragging a cursor costs the same for any number of points. The
// parent gets WM_COMMAND with the plot's id and a cursor's number from 1 as its code when a cursor
// moved, and with kPlotReadout when the pointer did.
#pragma once

#include <string>

#include "Recording.h"
#include "zxadlg/headless.h"

namespace zxhost {

inline constexpr int kPlotReadout = 100;

// Registers the class and makes the window; null on failure.
HWND CreatePlot(HWND parent, int id, Recording* recording);

// To be called when the recording holds other data; shows all of them.
void RefreshPlot(HWND plot);

// The values of the active set under the pointer, with their units.
std::string ReadPlot(HWND plot);

}  // namespace zxhost
