// The progress of a long load on a stream of lines, and the user's wish to stop it.
//
// Nothing is shown of a load that is over soon. Control+C stops a load; the program goes on and
// tells so. Without a load it ends the program as ever.
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

#include "TextReader.h"

namespace zxhost {

class LoadProgress {
  public:
    // `quiet` is how long nothing is shown.
    LoadProgress(std::string name, std::ostream& err,
                 std::chrono::milliseconds quiet = std::chrono::milliseconds(700));
    ~LoadProgress();
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    // False after Control+C.
    bool Tell(double fraction);

  private:
    std::string name_;
    std::ostream& err_;
    std::chrono::steady_clock::time_point begin_;
    std::chrono::milliseconds quiet_;
    int shown_ = -1;  // %
    void (*oldHandler_)(int);
};

}  // namespace zxhost
