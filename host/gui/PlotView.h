// A child window that draws the sets of a recording over their axis, one pane per group, with four
// cursors that the mouse moves.
//
// The recording is the parent's and outlives the window. The curves are drawn into a picture once
// and copied from there, so that dragging a cursor costs the same for any number of points. The
// parent gets WM_COMMAND with the plot's id and a cursor's number from 1 as its code when a cursor
// moved.
#pragma once

#include "Recording.h"
#include "zxadlg/headless.h"

namespace zxhost {

// Registers the class and makes the window; null on failure.
HWND CreatePlot(HWND parent, int id, Recording* recording);

// To be called when the recording holds other data.
void RefreshPlot(HWND plot);

}  // namespace zxhost
