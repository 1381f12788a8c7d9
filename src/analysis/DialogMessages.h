// The few things that every analysis dialog says and does in the same way.
#pragma once

#include "platform/platform.h"
#include "zxadlg/DlgParams.h"

// Shows a string of the library as an error over a window. The string may hold one "%d" or "%s".
void ShowErrorString(HWND hOwner, UINT nStringId, const char* szArgument = nullptr);

// The read-only dress of an open dialog: "(read only)" behind its caption, no OK, and Cancel reads
// "Close".
void DressReadOnly(HWND hDialog);

// Gives the keyboard focus to the Cancel button of the dialog, away from whatever was edited.
void FocusCancel(HWND hDialog);
