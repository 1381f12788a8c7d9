// The system without a display: its console is UTF-8, its dialogs have code page 1252.
#include <algorithm>
#include <iterator>

#include "System.h"

namespace zxhost {
namespace {

// Characters 128 to 159 of the code page; the others are those of the same number. 0: there is
// none.
constexpr char32_t kMiddle[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
static_assert(std::size(kMiddle) == 32);

void Append(char32_t character, std::string* text) {
    const auto byte = [text](char32_t value) { *text += static_cast<char>(value); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6);
        byte(0x80 | (character & 0x3F));
    } else {
        byte(0xE0 | character >> 12);
        byte(0x80 | (character >> 6 & 0x3F));
        byte(0x80 | (character & 0x3F));
    }
}

// The byte of a character, or 0.
unsigned char ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<unsigned char>(character);
    const auto* found = std::find(std::begin(kMiddle), std::end(kMiddle), character);
    return found == std::end(kMiddle) || character == 0
               ? 0
               : static_cast<unsigned char>(0x80 + (found - std::begin(kMiddle)));
}

}  // namespace

std::vector<std::string> ProgramArguments(int argc, char** argv) {
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

void PrepareConsole() {}

std::string ToSystem(const std::string& text, bool* exact) {
    std::string converted;
    if (exact) *exact = true;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t character = size == 1 ? lead : lead & (0xFFu >> (size + 1));
        for (std::size_t k = 1; k < size; ++k) {
            const auto next = i + k < text.size() ? static_cast<unsigned char>(text[i + k]) : 0u;
            character = character << 6 | (next & 0x3F);
        }
        i += size;
        const unsigned char byte = ByteOf(character);
        if (byte == 0 && character != 0 && exact) *exact = false;
        converted += byte == 0 && character != 0 ? '?' : static_cast<char>(byte);
    }
    return converted;
}

std::string FromSystem(const std::string& text) {
    std::string converted;
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool middle = byte >= 0x80 && byte < 0xA0;
        const char32_t character = middle && kMiddle[byte - 0x80] ? kMiddle[byte - 0x80] : byte;
        Append(character, &converted);
    }
    return converted;
}

}  // namespace zxhost
