// What the parts of the drawing half keep for a window and drop at its end. Internal.
#pragma once

#include "zxadlg/headless/types.h"

namespace headless::gdi {

// A window that holds the clipboard open lets go of it.
void CloseClipboardOf(HWND hwnd);
// Its theme settings.
void ForgetTheme(HWND hwnd);

}  // namespace headless::gdi
