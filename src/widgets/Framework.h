// The set-up that every dialog of the library needs: the module's handle and its three window
// classes. Each exported function begins with it; calling it again is harmless.
#pragma once

#include "platform/platform.h"

// Keeps the module handle for all later class and dialog work, registers the window classes of the
// progress bar and the spinners, and readies the common controls. Returns nonzero when all classes
// are there.
BOOL InitDialogFramework(HINSTANCE hInstance);

BOOL IsDialogFrameworkReady();

// The handle given to the set-up; null before.
HINSTANCE GetFrameworkInstance();

// Takes the window classes away, in reverse order. No window of them may be left.
void ShutDownDialogFramework();
