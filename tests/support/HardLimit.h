// Ends the whole process when a test hangs where no timer of a message loop can fire. The time is
// real time, counted from construction; destruction in time disarms it.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace test_support {

class HardLimit {
  public:
    explicit HardLimit(unsigned milliseconds);
    ~HardLimit();
    HardLimit(const HardLimit&) = delete;
    HardLimit& operator=(const HardLimit&) = delete;

  private:
    void Watch(unsigned milliseconds);

    std::mutex mutex_;
    std::condition_variable changed_;
    bool disarmed_ = false;
    std::thread thread_;
};

}  // namespace test_support
