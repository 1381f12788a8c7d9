// Dialog templates: any bytes are read; those that are whole become dialogs, are walked through by
// the keyboard and closed, and leave nothing behind.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/headless/dialog/dialog_template.h"
#include "platform/platform.h"
#include "zxadlg/headless/census.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/input.h"
#include "zxadlg/headless/modules.h"

namespace {

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

INT_PTR CALLBACK Answer(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

void Walk(HWND dialog) {
    for (const int key :
         {VK_TAB, VK_DOWN, VK_TAB, VK_RIGHT, static_cast<int>('A'), VK_SPACE, VK_RETURN, VK_ESCAPE})
        headless::InjectKeyStroke(key);
    MSG msg;
    for (int n = 0; n < 500 && PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++n) {
        if (!IsDialogMessageA(dialog, &msg)) {
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
        }
    }
}

void Word(std::vector<std::uint8_t>& out, unsigned value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

// The template as the one entry of a module, so that its end is known.
std::vector<std::uint8_t> Wrap(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> file;
    for (const unsigned value :
         {static_cast<unsigned>(size) & 0xFFFF, static_cast<unsigned>(size) >> 16, 32u, 0u, 0xFFFFu,
          5u, 0xFFFFu, 1u, 0u, 0u, 0u, 0u, 0u, 0u, 0u, 0u})
        Word(file, value);
    file.insert(file.end(), data, data + size);
    while (file.size() % 4 != 0) file.push_back(0);
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> exact(data, data + size);
    headless::DialogTemplate shape;
    const bool whole = headless::ReadDialogTemplate(exact.data(), exact.size(), shape);
    // A window for each of a thousand items takes its time and shows nothing new.
    if (!whole || shape.items.size() > 24) return 0;
    const headless::Census before = headless::TakeCensus();
    const std::vector<std::uint8_t> file = Wrap(data, size);
    HMODULE module = headless::RegisterModule(file.data(), file.data() + file.size());
    Require(module != nullptr, "a wrapped template is a module");
    HWND dialog = CreateDialogParamA(module, MAKEINTRESOURCEA(1), nullptr, Answer, 0);
    if (dialog != nullptr) {
        ShowWindow(dialog, SW_SHOW);
        Walk(dialog);
        if (IsWindow(dialog)) DestroyWindow(dialog);
    }
    headless::UnregisterModule(file.data());
    headless::ResetInput();
    headless::TakeUnsupported();
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
    const std::string left = headless::Growth(before, headless::TakeCensus());
    Require(left.empty(), left.c_str());
    return 0;
}
