// What a user sees of a window, read by plain platform calls. For windows of the calling thread.
#pragma once

#include <string>
#include <vector>

#include "Script.h"
#include "zxadlg/headless.h"

namespace zxhost {

std::string TextOf(HWND hwnd);
std::string ClassOf(HWND hwnd);  // in small letters
std::vector<HWND> Descendants(HWND parent);

// The control of this id, or with this caption: its own text (with or without the mnemonic's "&"),
// or, for a field, that of the label in front of it. Visible ones go first. Null for none.
HWND FindControl(HWND dialog, const Word& control);
// The field or list that belongs to a radio button or check box of this caption: the one with a
// label of the same caption, or the one that stands behind the button.
HWND FindFieldBehind(HWND dialog, const Word& caption);
// The visible controls as a script may name them: "1 \"OK\", 2364 \"Baseline region\"".
std::string ListControls(HWND dialog);
// Whether a user types into it.
bool IsField(HWND control);
HWND FindByClass(HWND dialog, const char* className);

// Of a combo box, a list box or a tab control; empty and -1 for others.
std::vector<std::string> ItemsOf(HWND control);
int IndexOfItem(HWND control, const Word& item);  // by text, or by position from 1
int ChosenIndex(HWND control);
std::string ChosenItem(HWND control);

// The dialog that takes the user's input now; null for none.
HWND ActiveDialog();
std::vector<HWND> OpenDialogs();
// The popup menu that is open, or null, and its items; separators are empty.
HWND OpenMenu();
std::vector<std::string> MenuItems(HWND menuWindow);

struct Message {
    std::string title;
    std::string text;  // of all labels and fields, joined by line ends
    std::vector<std::string> buttons;
};
Message ReadMessage(HWND dialog);
// Whether it holds texts and push buttons alone.
bool IsMessage(HWND dialog);

// The button that gives this answer: by caption, by id, or OK on a box with one button. Null for
// none.
HWND FindAnswer(HWND dialog, const Word& answer);

// Captions without "&" and, for a label, without the colon.
std::string Plain(const std::string& caption);

}  // namespace zxhost
