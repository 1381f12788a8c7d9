// The example host. Without a command it opens its window where there is one (host/gui); every
// other command works with no display.
#include <iostream>
#include <string>

#include "CommandLine.h"
#include "HostWindow.h"
#include "System.h"

int main(int argc, char** argv) {
    zxhost::PrepareConsole();
    zxhost::Options options;
    std::string error;
    if (!zxhost::ParseCommandLine(zxhost::ProgramArguments(argc, argv), &options, &error)) {
        std::cerr << "zxhost: " << error << "\n";
        return zxhost::kWrongUsage;
    }
    if (options.command == zxhost::Command::kWindow && zxhost::HasWindow())
        return zxhost::RunWindow(options);
    return zxhost::RunCommand(options, std::cout, std::cerr);
}
