#include "support/HardLimit.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "support/system.h"

namespace test_support {

HardLimit::HardLimit(unsigned milliseconds)
    : thread_([this, milliseconds] { Watch(milliseconds); }) {}

HardLimit::~HardLimit() {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        disarmed_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void HardLimit::Watch(unsigned milliseconds) {
    std::unique_lock<std::mutex> lock(mutex_);
    if (changed_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                          [this] { return disarmed_; }))
        return;
    std::printf("\nHANG in %s: nothing for %u ms\n", RunningTestName(), milliseconds);
    std::fflush(stdout);
    std::_Exit(3);
}

}  // namespace test_support
