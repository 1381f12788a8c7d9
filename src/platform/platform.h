// The one way to the platform. On Windows this is the system's own interface; everywhere else it is
// the headless window system, an in-memory implementation of the same names. Library code includes
// this header and knows nothing else of where it runs.
#pragma once

#if defined(_WIN32)
#include <windows.h>
// The others need the types of windows.h.
#include <commctrl.h>
#include <shlobj.h>
#include <uxtheme.h>
#else
#include "zxadlg/headless/names.h"
#endif
