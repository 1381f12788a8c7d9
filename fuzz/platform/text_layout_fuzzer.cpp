// Any text in any format of DrawTextA: it ends, stays within its text, and measures what it draws.
#include <cstdlib>
#include <string>

#include "platform/platform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr UINT kFormats = DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM | DT_WORDBREAK |
                              DT_SINGLELINE | DT_EXPANDTABS | DT_TABSTOP | DT_NOCLIP | DT_CALCRECT |
                              DT_NOPREFIX | DT_EDITCONTROL | DT_PATH_ELLIPSIS | DT_END_ELLIPSIS |
                              DT_MODIFYSTRING | DT_WORD_ELLIPSIS | DT_HIDEPREFIX | DT_PREFIXONLY;
    if (size < 5 || size > 4096) return 0;
    const UINT format =
        (data[0] | static_cast<UINT>(data[1]) << 8 | static_cast<UINT>(data[2]) << 16) & kFormats;
    RECT rect = {0, 0, data[3], data[4]};
    const std::size_t length = size - 5;
    std::string text(reinterpret_cast<const char*>(data) + 5, length);
    text.append(8, '\0');
    const HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    DrawTextA(dc, text.data(), static_cast<int>(length), &rect, format);
    if (rect.right < rect.left) std::abort();
    DeleteDC(dc);
    return 0;
}
