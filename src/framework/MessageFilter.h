// The message filter that lets a dialog see a key before its modal loop does. One WH_MSGFILTER hook
// serves all dialogs of the thread; a use count keeps it while at least one of them wants it. The
// hook asks PreTranslateMessage of the dialog whose own window a message is for, and then serves
// the keys of DialogKeys.h.
//
// Hook and count are process-wide and unguarded: they belong to the user-interface thread.
#pragma once

#include "platform/platform.h"

// Adds a user; the first one sets the hook for the thread that owns hDialog.
void InstallMessageFilter(HWND hDialog);

// Takes a user away; the last one removes the hook.
void RemoveMessageFilter();

// How many dialogs use the filter.
int MessageFilterUsers();
