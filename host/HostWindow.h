// The window of the example host. One source file per system: gui/ on Windows, no_window.cpp
// elsewhere.
#pragma once

#include "CommandLine.h"

namespace zxhost {

// Whether this system has a display that a person works at.
bool HasWindow();

// Runs the window until it is closed; gives the exit code.
int RunWindow(const Options& options);

}  // namespace zxhost
