// Driving dialogs from a program: the way for a host's own tests, a script or a batch job.
//
// A Show function returns only when its dialog has closed, so what drives the dialog runs inside
// the dialog's own loop. The way to get there is a timer, and all that it does is plain platform
// calls:
//
//     void CALLBACK Drive(HWND, UINT, UINT_PTR timer, DWORD) {
//         HWND dialog = GetActiveWindow();
//         if (dialog == nullptr || !IsWindowVisible(dialog)) return;  // not there yet
//         KillTimer(nullptr, timer);
//         PostMessageA(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
//     }
//     SetTimer(nullptr, 0, 10, Drive);
//     ZXADLG_ShowNormalizeDialog(nullptr, &options, &data, &source, &params);
//
// A timer's procedure is called only when no other message waits, which means that the dialog is
// idle. Post what may open a message on top (BM_CLICK on a button): sent, it would not return
// before that message is answered. The pages of a tabbed dialog are children of it; their controls
// are found with EnumChildWindows.
//
// On Windows this header is the system's own, so that the same code drives the same dialogs there.
// Elsewhere the library brings a window system in memory that has these names: no display, no
// drawing on a screen, no other process. Its settings (the registry of the platform's calls) are
// kept in a text file below the folder in the environment variable ZX_HEADLESS_HOME, or below the
// user's data folder. All calls belong on the thread that calls the Show function.
//
// Beyond the platform's names there are, in namespace headless: InjectKey, InjectText, InjectClick
// (input as from the hardware), SetDisplayDpi, FreezeClock and AdvanceClock (timers without
// waiting) and TakeUnsupported (what was asked for and is not done). Their headers tell how.
#pragma once

#if defined(_WIN32)
#include <windows.h>
// The controls need the types of windows.h.
#include <commctrl.h>
#else
#include "zxadlg/headless/clock.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/input.h"
#include "zxadlg/headless/names.h"
#endif
