// The beeps that a user would have heard.
#pragma once

namespace test_support {

// How often MessageBeep was called since the last call of this. The first call begins the count.
int TakeBeeps();

}  // namespace test_support
