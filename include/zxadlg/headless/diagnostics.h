// What the headless window system was asked for and does not do. Each such request is recorded; a
// test fails when its record is not empty at its end, and a debug build also says so on the error
// stream.
#pragma once

#include <string>
#include <vector>

namespace headless {

// Records a request that is not supported, as "CB_DIR" or "EDIT style 0x400". Never returns a
// made-up result for the caller: the caller goes on to fail as the platform does for a wrong
// argument.
void ReportUnsupported(const std::string& what);

// The requests recorded since the last call of TakeUnsupported, oldest first.
std::vector<std::string> TakeUnsupported();

}  // namespace headless
