// The messages that a program sends to standard controls, by name, with what they take.
#pragma once

#include <string>
#include <vector>

#include "Scenario.h"
#include "platform/platform.h"

namespace differential {

enum class Takes {
    kNothing,  // and answers nothing of use
    kNumbers,  // two numbers
    kText,     // a number and a text
    kRoom,     // a number; the text that comes back is told
    kRect,     // a number; the rectangle that comes back is told
    kTab,      // an index and the title of a tab
    kPoint,    // a point for TCM_HITTEST
};

struct ControlMessage {
    const char* name;
    UINT number;
    Takes takes;
};

// Null for a name that is not in the table.
const ControlMessage* FindControlMessage(const std::string& name);

// Sends the message that the words name and gives its answer.
std::string SendControlMessage(HWND hwnd, Words& words);

}  // namespace differential
