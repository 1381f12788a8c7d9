// What is left of a test's windows and other objects, and how much of a test by random events each
// system is asked to take.
#pragma once

#include <memory>
#include <string>

namespace test_support {

// Counts at its construction; Growth tells what there is more of since, "" for nothing. The
// headless system counts windows, timers, hooks, properties and drawing objects of the thread,
// others their top-level windows alone.
class LeakCheck {
  public:
    LeakCheck();
    ~LeakCheck();
    LeakCheck(const LeakCheck&) = delete;
    LeakCheck& operator=(const LeakCheck&) = delete;

    std::string Growth() const;

  private:
    struct Before;
    std::unique_ptr<Before> before_;
};

// The number of random events for one test.
int RandomEventBudget();

}  // namespace test_support
