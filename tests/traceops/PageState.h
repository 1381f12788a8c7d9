// What a user sees of the page that shows, and a user who changes every control of it.
#pragma once

#include <string>
#include <vector>

#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace traceops_test {

// The controls of the page that shows, but for push buttons.
std::vector<HWND> VisibleControls(HWND dialog);
// What a user can change: no label and no frame.
bool IsInput(HWND control);
std::string StateOf(HWND control);
// The states of all of them, a line each.
std::string PageState(HWND dialog);

// Changes a control as its user would, and tells its page.
void Disturb(HWND control);

}  // namespace traceops_test
