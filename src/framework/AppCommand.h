// Application commands: the channel by which a page asks its dialog, a dialog its host, and both
// the window that serves help. A command is the registered window message "ZxoAppCommand" with the
// number of the command as wParam. The numbers 1 to 4 and 8 to 11 belong to the host; the framework
// only passes them up.
#pragma once

#include "platform/platform.h"

constexpr WPARAM kAppCommandShowHelp = 5;       // lParam: const AppHelpRequest*
constexpr WPARAM kAppCommandHelpAvailable = 6;  // answered with 1

// What kAppCommandShowHelp points to. Valid only while the message is being handled.
struct AppHelpRequest {
    INT nKind = 2;  // no other kind exists
    char szTopic[64] = {};
    INT nId = 0;
};
static_assert(sizeof(AppHelpRequest) == 72);

// The number of the registered message.
UINT AppCommandMessage();
