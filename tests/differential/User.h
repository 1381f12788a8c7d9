// What a user does to a dialog, as posted messages: the verbs of a scenario that both the controls
// and the dialogs of the library understand.
#pragma once

#include <string>

#include "Scenario.h"
#include "platform/platform.h"

namespace differential {

// A window named in a scenario: "#101" is the control of that id (on the dialog or on a page), "7"
// the seventh window that can be seen and used, counted around. Null where there is none.
HWND Target(HWND dialog, const std::string& name);

// False for a verb that is not a user's.
//
//     key VK MODIFIERS           press and release; 1 Shift, 2 Ctrl, 4 Alt
//     char CODE MODIFIERS
//     undo                       Ctrl+Z, where there is something to undo
//     mnemonic CODE
//     focus TARGET               as the dialog moves it
//     click TARGET X Y MODIFIERS places in percent of the client area
//     twice TARGET X Y           a double click
//     drag TARGET X Y X Y
//     list Y                     a click on the open list of a combo box, in percent
//     wheel NOTCHES
bool DoAsUser(HWND dialog, const std::string& verb, Words& words);

// The second half of an action that waits for what its first half sets off; false for none.
bool DoPending();

// To be called after each action: selects the text of a combo box that has got the focus, which
// the platforms do at their own times.
void SettleFocus();

// Whether the answer to a message (named by the words, which stay) is known to differ between
// systems; see known.txt.
bool IsKnownToDiffer(HWND hwnd, const Words& words);

// A scenario does not go on from what the one before it copied.
void ClearClipboard();

// Lets go of what the last action held.
void ReleaseKeys();

}  // namespace differential
