// What a user sees of windows, read by platform calls alone: texts, states, items, and which dialog
// is the one that takes input now.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace test_support {

// The whole text of a window, of any length.
std::string TextOf(HWND hwnd);
// The class name in small letters: resource compilers and systems differ in the case.
std::string ClassOf(HWND hwnd);

// The control of that id: a child of the dialog, else a descendant (on a page), and of several the
// visible one. Null if there is none.
HWND FindControl(HWND dialog, int id);
// The first visible descendant of that class (in small letters), or null.
HWND FindByClass(HWND dialog, const std::string& className);
// All descendants in the order of their creation, pages before their controls.
std::vector<HWND> Descendants(HWND parent);

// The items of a combo box, a list box or a tab control.
std::vector<std::string> ItemsOf(HWND control);
// The index of an item with exactly that text, or -1.
int IndexOfItem(HWND control, const std::string& text);
// The selected item of a combo box, a list box (single selection) or a tab control, or -1.
int SelectedIndex(HWND control);
// The text of that item, or of an editable combo box its edit text.
std::string SelectedText(HWND control);
// The selected items of a list box with multiple selection.
std::vector<int> SelectedIndexes(HWND listBox);
// The selected part of an edit control's text.
std::string SelectedPart(HWND edit);

// The top-level window of this thread that takes input now: visible, enabled, and the active one if
// there is a choice. Null if there is none.
HWND ActiveDialog();
// All top-level windows of this thread that look like dialogs, topmost first.
std::vector<HWND> OpenDialogs();

// One line per window: indentation, class, id, text, rectangle, state. For failure reports.
std::string DescribeWindow(HWND hwnd);

}  // namespace test_support
