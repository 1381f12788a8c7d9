// Keys that the system's dialog manager leaves to the dialog, or takes to the wrong one: they are
// looked at before it sees them, wherever in a dialog the focus stands.
//
//     Ctrl+Tab, Ctrl+PageDown              the next page; after the last one the first
//     Ctrl+Shift+Tab, Ctrl+PageUp          the page before
//     Tab on the tabs themselves           into the page that shows
//     Enter on a push button of a page     presses it; the manager asks the dialog around the page
//
// A key for a window in a page that has been hidden or greyed since has nowhere to go and is
// dropped: the manager of a real window system hangs over it.
#pragma once

#include "platform/platform.h"

// Whether the message was such a key and is done with.
bool ServeDialogKey(const MSG& msg);
