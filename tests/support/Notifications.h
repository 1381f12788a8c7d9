// Names of messages and notifications, and a log of them, for tests that assert an order.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace test_support {

// "WM_INITDIALOG", or "0x0123" for a message that has no name here.
std::string MessageName(UINT message);

// The name of a WM_COMMAND notification by the class of its control: "EN_CHANGE", "BN_CLICKED".
std::string NotificationName(HWND control, UINT code);

// A list of lines that joins to one text, so that one EXPECT_EQ shows the whole order.
class EventLog {
  public:
    void Add(const std::string& line) { lines_.push_back(line); }
    // Adds WM_COMMAND as "EN_CHANGE(101)" ("command(2)" for a menu or a key), WM_NOTIFY as
    // "TCN_SELCHANGE(101)", anything else as the message's name.
    void AddMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // The lines joined by one blank; the log is then empty.
    std::string Take();
    const std::vector<std::string>& Lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
};

}  // namespace test_support
