// The table of window classes, shared by all threads. Private to the headless system.
#pragma once

#include "platform/headless/window/window.h"

namespace headless {

// Finds a class by name or by atom (MAKEINTATOM) as a window of `instance` would: its own classes
// first, then the global and the standard ones. Null for none.
WindowClass* FindClass(LPCSTR name, HINSTANCE instance);
// Counts the windows of a class; the table refuses to unregister one that has any.
void AddWindowToClass(WindowClass& cls, int change);

WindowClass* DesktopClass();
// Classes registered between these two calls are standard ones, found by every module.
void BeginStandardClasses();
void EndStandardClasses();
// "#32770", the class of dialogs, with its fixed atom.
void RegisterDialogClass();

}  // namespace headless
