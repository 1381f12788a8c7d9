// What every analysis dialog says and does in the same way.
#pragma once

#include "contract/Finding.h"
#include "framework/ADM_Dialog.h"

// Shows the message of a finding over a window and answers the button pressed; 0 when there is no
// such string.
UINT ShowFinding(HWND hOwner, const Finding& finding);

// The read-only dress of an open dialog: "(read only)" behind its caption, no OK, and Cancel reads
// "Close", is the default button and gets the focus.
void DressReadOnly(HWND hDialog);

// Gives the keyboard focus to the Cancel button of the dialog, away from whatever was edited.
void FocusCancel(HWND hDialog);

// Gives a control of the page the focus, with its text selected; the first enabled control when
// that one is disabled. Nothing for an id of 0.
void FocusControl(const ADM_Dialog& page, int nControlId);

// The texts of the fields of a window as they stand.
TypedValues TypedTexts(HWND hPage);
