#include "platform/headless/system/codepage.h"

namespace headless {

namespace {

// 0x80 to 0x9F; the five holes stand for themselves.
constexpr WORD kUpper[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char ToAnsi(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(character));
    for (int i = 0; i < 32; ++i) {
        if (kUpper[i] == character) return static_cast<char>(static_cast<unsigned char>(0x80 + i));
    }
    // The micro sign and the Greek letter look alike and the page has only the first.
    if (character == 0x03BC) return static_cast<char>(0xB5);
    return '?';
}

WORD FromAnsi(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 0x80 && byte < 0xA0 ? kUpper[byte - 0x80] : byte;
}

std::string ToAnsi(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        // Two halves of a character beyond 16 bits become one question mark.
        const bool high = text[i] >= 0xD800 && text[i] < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            result.push_back('?');
            ++i;
            continue;
        }
        result.push_back(ToAnsi(static_cast<char32_t>(text[i])));
    }
    return result;
}

std::string Lowered(const std::string& text) {
    std::string result = text;
    for (char& c : result) {
        const auto u = static_cast<unsigned char>(c);
        const bool latin = u >= 0xC0 && u <= 0xDE && u != 0xD7;
        if ((u >= 'A' && u <= 'Z') || latin) c = static_cast<char>(u + 0x20);
    }
    return result;
}

bool SameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && Lowered(a) == Lowered(b);
}

}  // namespace headless
