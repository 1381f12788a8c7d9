#include "LoadProgress.h"

#include <csignal>
#include <ostream>
#include <utility>

namespace zxhost {
namespace {

volatile std::sig_atomic_t stopped = 0;

void Stop(int) {
    stopped = 1;
}

}  // namespace

LoadProgress::LoadProgress(std::string name, std::ostream& err, std::chrono::milliseconds quiet)
    : name_(std::move(name)),
      err_(err),
      begin_(std::chrono::steady_clock::now()),
      quiet_(quiet),
      oldHandler_(std::signal(SIGINT, Stop)) {
    stopped = 0;
}

LoadProgress::~LoadProgress() {
    std::signal(SIGINT, oldHandler_);
    if (shown_ >= 0) err_ << "\n";
}

bool LoadProgress::Tell(double fraction) {
    const int percent = static_cast<int>(fraction * 100.0);
    if (percent != shown_ && std::chrono::steady_clock::now() - begin_ >= quiet_) {
        shown_ = percent;
        err_ << "\rreading " << name_ << ": " << percent << " % (Control+C stops)" << std::flush;
    }
    return stopped == 0;
}

}  // namespace zxhost
