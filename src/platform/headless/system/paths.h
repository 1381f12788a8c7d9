// How the platform's paths stand for files of this system.
//
// Drive Z: is the root of the file system, so that "Z:\tmp\a.ini" is "/tmp/a.ini"; the other drives
// and the server shares are folders below the headless home ("C:\a" is <home>/drive_c/a,
// "\\server\share\a" is <home>/unc/server/share/a). A path that begins with "/" is taken as it is,
// a relative one from the current folder, which is on drive Z:. Backslashes and slashes mean the
// same. Deviation: names are compared as the file system does, so case counts.
#pragma once

#include <string>
#include <string_view>

namespace headless {

// The folder that holds drives, shares and registry: ZX_HEADLESS_HOME, or a folder in the user's
// data.
std::string Home();

// The file of this system that a platform path stands for; empty for an empty path.
std::string NativePath(const char* path);

// The platform's full path: drive or share, backslashes, no "." or "..".
std::string FullPath(std::string_view path);

// The platform path that stands for an absolute path of this system.
std::string PlatformPath(std::string_view native);

// Reads a whole file, or writes one whole to a temporary file beside it that then takes its name.
// Both give the platform's error code; 0 is success.
unsigned ReadFileText(const std::string& native, std::string* text);
unsigned ReplaceFileText(const std::string& native, std::string_view text);

// The platform's code for the error of a system call.
unsigned ErrorOfSystem(int error);

}  // namespace headless
