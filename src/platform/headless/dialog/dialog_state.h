// What a dialog remembers, and the steps that the files of the dialog manager share. Private to the
// headless system.
#pragma once

#include <vector>

#include "platform/headless/window/window.h"

namespace headless {

struct DialogState {
    HFONT font = nullptr;  // made for the dialog and deleted with it
    int unitX = 0;         // pixels of 4 horizontal and of 8 vertical dialog units
    int unitY = 0;
    bool ended = false;
    bool enableOwner = false;
    bool modal = false;
    INT_PTR result = 0;
    int defaultId = 0;  // IDOK until a default button is made or set
    HWND savedFocus = nullptr;

    ~DialogState();
};

// The dialog's state; null when the window is none. `make` gives any window of a dialog procedure
// one.
DialogState* StateOf(HWND dialog, bool make = false);

// Base units of a font.
SIZE DialogUnits(HFONT font);

HWND CreateDialogFrom(HINSTANCE instance, const std::uint8_t* data, std::size_t size, HWND parent,
                      DLGPROC proc, LPARAM param, bool modal);
INT_PTR RunDialog(HWND dialog, HWND owner);

// --- The default button ----------------------------------------------------------------------
UINT DialogCode(HWND control);
HWND ShownDefaultButton(HWND dialog);
// After the focus went to `control`: its button becomes the default one, or the dialog's own again.
void ShowDefaultFor(HWND dialog, HWND control);
void ChangeDefaultId(HWND dialog, DialogState& state, int id);

// --- Focus -----------------------------------------------------------------------------------
// Gives a control the focus as the keyboard does, the text of an edit selected.
void FocusByKey(HWND control);
HWND FirstTabStop(HWND dialog);

// --- Mnemonics -------------------------------------------------------------------------------
// True when the character belonged to a control of the dialog.
bool PressMnemonic(HWND dialog, HWND from, int character);

}  // namespace headless
