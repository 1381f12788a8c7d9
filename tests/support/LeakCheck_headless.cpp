#include "platform/headless/census.h"
#include "support/LeakCheck.h"

namespace test_support {

struct LeakCheck::Before {
    headless::Census census;
};

LeakCheck::LeakCheck() : before_(new Before{headless::TakeCensus()}) {}

LeakCheck::~LeakCheck() = default;

std::string LeakCheck::Growth() const {
    return headless::Growth(before_->census, headless::TakeCensus());
}

int RandomEventBudget() {
    return 100000;
}

}  // namespace test_support
