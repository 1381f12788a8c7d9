#include "platform/headless/input.h"
#include "support/Beeps.h"

namespace test_support {

int TakeBeeps() {
    return headless::TakeBeeps();
}

}  // namespace test_support
