#include "Numbers.h"

#include <charconv>
#include <cmath>

namespace zxhost {

std::string ShortNumber(double value) {
    char text[40];
    const auto result =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6);
    return std::string(text, result.ptr);
}

bool ParseNumber(std::string_view text, double* value) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    const char* end = text.data() + text.size();
    const auto [stop, code] = std::from_chars(text.data(), end, *value);
    return code == std::errc() && stop == end && std::isfinite(*value);
}

}  // namespace zxhost
