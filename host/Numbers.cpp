#include "Numbers.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace zxhost {

std::string ShortNumber(double value) {
    char text[40];
    const auto result =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6);
    return std::string(text, result.ptr);
}

const char* ReadDecimal(const char* at, const char* end, double* value) {
    // Powers of ten that a double holds: the quotient of two exact numbers is rounded once.
    static constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                         1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int kMostDigits = 15;
    const char* p = at;
    const bool negative = p < end && *p == '-';
    p += negative;
    std::uint64_t digits = 0;
    int count = 0, behind = 0;
    const auto take = [&] {
        const char* first = p;
        for (; p < end && static_cast<unsigned char>(*p - '0') < 10; ++p)
            digits = digits * 10 + static_cast<unsigned char>(*p - '0');
        return static_cast<int>(p - first);
    };
    count = take();
    if (p < end && *p == '.') {
        ++p;
        behind = take();
        count += behind;
    }
    const bool plain = p == end || (*p != 'e' && *p != 'E' && *p != '.');
    if (count > 0 && count <= kMostDigits && plain && (p[-1] != '.')) {
        const double number = static_cast<double>(digits) / kPowers[behind];
        *value = negative ? -number : number;
        return p;
    }
    const auto [stop, code] = std::from_chars(at, end, *value);
    return code == std::errc() && std::isfinite(*value) ? stop : nullptr;
}

bool ParseNumber(std::string_view text, double* value) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    const char* end = text.data() + text.size();
    const auto [stop, code] = std::from_chars(text.data(), end, *value);
    return code == std::errc() && stop == end && std::isfinite(*value);
}

}  // namespace zxhost
