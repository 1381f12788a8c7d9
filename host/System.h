// Where the host meets the system: arguments, console, and texts.
//
// Every text of the host is UTF-8: of files, scripts, arguments and what it prints. The dialogs and
// the platform's 8-bit functions have texts in a code page; they are converted here, at the edge.
// One source file per system in system/.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zxhost {

// The program's arguments without its name.
std::vector<std::string> ProgramArguments(int argc, char** argv);

// Makes the console show UTF-8.
void PrepareConsole();

// A text as the dialogs have it. What their code page lacks becomes "?", and `exact` false.
std::string ToSystem(const std::string& text, bool* exact = nullptr);
std::string FromSystem(const std::string& text);

std::filesystem::path PathOf(const std::string& text);
std::string TextOfPath(const std::filesystem::path& path);

// The place of the first byte that is not UTF-8; npos when all are.
std::size_t FindWrongByte(std::string_view text);

// Why these first bytes of a file are not UTF-8 text, when they are UTF-16 or UTF-32; empty when
// they may be.
std::string WrongEncoding(std::string_view start);

}  // namespace zxhost
