// What a page does with all of its controls at once, whatever they are.
#pragma once

#include <functional>
#include <vector>

#include "framework/ADM_Dialog.h"

// Names every field after the label or button directly before it, as messages about the field say
// it: "&From:" names its field "From". A field that has a name keeps it.
void NameFields(const ADM_Dialog& page, const std::vector<ADM_Wnd*>& vControls);

// Greys the inputs of a page: edits, buttons, combo boxes and spinners. List boxes stay, so that
// they can be scrolled, and so do the buttons that end the dialog and what `isAlive` names.
void GreyInputs(ADM_Dialog& page, const std::function<bool(ADM_Wnd*)>& isAlive);

// Tells the page of the field that has the focus, if one has it, that the field is left, so that it
// shows its value in the form that is checked.
void LeaveField();
