// What a test program needs of the system it runs on beyond the platform's calls: a start-up that
// makes tests independent of the desktop around them, and the faults that the system noticed during
// a test. One source file per system implements it (system_windows.cpp, system_headless.cpp).
#pragma once

#include <string>
#include <vector>

namespace test_support {

// Prepares the process before the first window: a desktop of its own where the window manager would
// disturb, no crash dialogs, a crash handler that names the running test and ends the process with
// 3, and a scratch folder for stored settings. Called once by main.
void StartSystem();

// Undoes what StartSystem left outside the process. Called once by main.
void StopSystem();

// What the system noticed since the last call and a test cannot see: requests that the headless
// system does not support, a damaged heap. Each entry is one sentence; an empty result means no
// fault.
std::vector<std::string> TakeSystemFaults();

// True for windows that the system itself keeps in a thread (input method windows and the like).
bool IsSystemWindowClass(const char* className);

// The name of the running test as "Suite.Name", for crash reports. Safe to read at any moment.
const char* RunningTestName();

}  // namespace test_support
