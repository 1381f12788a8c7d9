#include <algorithm>

#include "System.h"

namespace zxhost {

std::filesystem::path PathOf(const std::string& text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string TextOfPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::size_t FindWrongByte(std::string_view text) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    std::size_t i = 0;
    while (i < text.size()) {
        const unsigned lead = at(i);
        if (lead < 0x80) {
            ++i;
            continue;
        }
        const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        if (lead < 0xC2 || lead > 0xF4 || i + more >= text.size()) return i;
        for (std::size_t k = 1; k <= more; ++k) {
            if ((at(i + k) & 0xC0) != 0x80) return i;
        }
        // Forms that are too long, halves of pairs, and what is beyond the last character.
        const unsigned second = at(i + 1);
        if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
            (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F))
            return i;
        i += more + 1;
    }
    return std::string_view::npos;
}

std::string WrongEncoding(std::string_view start) {
    const std::string_view two = start.substr(0, 2);
    bool wide = two == "\xFF\xFE" || two == "\xFE\xFF";
    // Without a mark: every second byte of plain text is zero.
    const std::size_t looked = std::min<std::size_t>(start.size(), 64) / 2 * 2;
    for (std::size_t first : {0u, 1u}) {
        bool zeros = looked >= 4;
        for (std::size_t i = first; i < looked; i += 2) zeros = zeros && start[i] == 0;
        wide = wide || zeros;
    }
    return wide ? "this is UTF-16 text; save it as UTF-8 (in a spreadsheet: \"CSV UTF-8\")" : "";
}

}  // namespace zxhost
