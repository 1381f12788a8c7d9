// Windows: arguments are 16-bit, dialogs have the system's code page, and a console is told.
#include "System.h"
#include "zxadlg/headless.h"
// What the platform's main header leaves out.
#include <shellapi.h>

namespace zxhost {
namespace {

std::wstring Widened(const std::string& text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
    return wide;
}

std::string Narrowed(const std::wstring& wide, UINT codePage, BOOL* replaced) {
    const int size = static_cast<int>(wide.size());
    // What looks similar is not the same: "Ω" must not become "O" without a word.
    const DWORD flags = codePage == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const int length =
        WideCharToMultiByte(codePage, flags, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(codePage, flags, wide.data(), size, text.data(), length,
                        replaced ? "?" : nullptr, replaced);
    return text;
}

}  // namespace

std::vector<std::string> ProgramArguments(int, char**) {
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(Narrowed(words[i], CP_UTF8, nullptr));
    LocalFree(words);
    return arguments;
}

void PrepareConsole() {
    SetConsoleOutputCP(CP_UTF8);
}

std::string ToSystem(const std::string& text, bool* exact) {
    BOOL replaced = FALSE;
    const std::string converted = Narrowed(Widened(text, CP_UTF8), CP_ACP, &replaced);
    if (exact) *exact = !replaced;
    return converted;
}

std::string FromSystem(const std::string& text) {
    return Narrowed(Widened(text, CP_ACP), CP_UTF8, nullptr);
}

}  // namespace zxhost
