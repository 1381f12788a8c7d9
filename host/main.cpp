// The example host. Without a command it opens its window where there is one (host/gui); every
// other command works with no display.
#include <iostream>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "HostWindow.h"

int main(int argc, char** argv) {
    zxhost::Options options;
    std::string error;
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (!zxhost::ParseCommandLine(arguments, &options, &error)) {
        std::cerr << "zxhost: " << error << "\n";
        return zxhost::kWrongUsage;
    }
    if (options.command == zxhost::Command::kWindow && zxhost::HasWindow())
        return zxhost::RunWindow(options);
    return zxhost::RunCommand(options, std::cout, std::cerr);
}
