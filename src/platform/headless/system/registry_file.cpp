#include <charconv>

#include "platform/headless/system/registry_store.h"

namespace headless {
namespace {

constexpr std::string_view kFirstLine = "ZX registry 1";
constexpr std::string_view kLastLine = "end";
constexpr std::uint32_t kText = 1;
constexpr std::uint32_t kExpandableText = 2;

void PutHex(std::string& out, unsigned char byte) {
    out += "0123456789abcdef"[byte >> 4];
    out += "0123456789abcdef"[byte & 15];
}

int HexDigit(char ch) {
    if (ch >= '0' && ch <= '9') return ch - '0';
    if (ch >= 'a' && ch <= 'f') return ch - 'a' + 10;
    return -1;
}

// Reads two hexadecimal digits off the front of a text; -1 when there are none.
int TakeByte(std::string_view* text) {
    if (text->size() < 2) return -1;
    const int high = HexDigit((*text)[0]);
    const int low = HexDigit((*text)[1]);
    if (high < 0 || low < 0) return -1;
    text->remove_prefix(2);
    return high << 4 | low;
}

void PutQuoted(std::string& out, std::string_view text) {
    out += '"';
    for (const char ch : text) {
        if (static_cast<unsigned char>(ch) < 32 || ch == '"' || ch == '\\') {
            out += '\\';
            PutHex(out, static_cast<unsigned char>(ch));
        } else {
            out += ch;
        }
    }
    out += '"';
}

bool TakeQuoted(std::string_view* text, std::string* result) {
    result->clear();
    if (text->empty() || text->front() != '"') return false;
    text->remove_prefix(1);
    while (!text->empty()) {
        const char ch = text->front();
        text->remove_prefix(1);
        if (ch == '"') return true;
        if (ch != '\\') {
            *result += ch;
            continue;
        }
        const int byte = TakeByte(text);
        if (byte < 0) return false;
        *result += static_cast<char>(byte);
    }
    return false;
}

// A key's path may hold any sign but stands on one line.
void PutPath(std::string& out, std::string_view path) {
    for (const char ch : path) {
        if (static_cast<unsigned char>(ch) < 32 || ch == '%') {
            out += '%';
            PutHex(out, static_cast<unsigned char>(ch));
        } else {
            out += ch;
        }
    }
}

bool TakePath(std::string_view text, std::string* path) {
    path->clear();
    while (!text.empty()) {
        const char ch = text.front();
        text.remove_prefix(1);
        const int byte = ch == '%' ? TakeByte(&text) : static_cast<unsigned char>(ch);
        if (byte < 0) return false;
        *path += static_cast<char>(byte);
    }
    return true;
}

bool TakeHex(std::string_view text, std::string* result) {
    result->clear();
    while (!text.empty()) {
        const int byte = TakeByte(&text);
        if (byte < 0) return false;
        *result += static_cast<char>(byte);
    }
    return true;
}

// Whether the data is a text with one zero, at its end.
bool IsPlainText(const RegistryValue& value) {
    return (value.type == kText || value.type == kExpandableText) && !value.data.empty() &&
           value.data.find('\0') == value.data.size() - 1;
}

bool ParseValue(std::string_view line, RegistryValue* value) {
    const auto type = std::from_chars(line.data(), line.data() + line.size(), value->type);
    if (type.ec != std::errc()) return false;
    line.remove_prefix(static_cast<std::size_t>(type.ptr - line.data()));
    if (line.empty() || line.front() != ' ') return false;
    line.remove_prefix(1);
    if (!TakeQuoted(&line, &value->name) || line.size() < 2 || line.front() != ' ') return false;
    line.remove_prefix(1);
    if (line.front() == 'x') return TakeHex(line.substr(1), &value->data);
    if (!TakeQuoted(&line, &value->data) || !line.empty()) return false;
    value->data += '\0';
    return true;
}

}  // namespace

std::string FormatRegistryFile(const std::vector<RegistryFileKey>& keys) {
    std::string out(kFirstLine);
    out += '\n';
    for (const RegistryFileKey& key : keys) {
        out += '[';
        PutPath(out, key.path);
        out += "]\n";
        for (const RegistryValue& value : key.values) {
            out += std::to_string(value.type);
            out += ' ';
            PutQuoted(out, value.name);
            out += ' ';
            if (IsPlainText(value)) {
                PutQuoted(out, std::string_view(value.data).substr(0, value.data.size() - 1));
            } else {
                out += 'x';
                for (const char ch : value.data) PutHex(out, static_cast<unsigned char>(ch));
            }
            out += '\n';
        }
    }
    out += kLastLine;
    out += '\n';
    return out;
}

bool ParseRegistryFile(std::string_view text, std::vector<RegistryFileKey>* keys) {
    keys->clear();
    bool first = true;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) return false;
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (first) {
            if (line != kFirstLine) return false;
            first = false;
        } else if (line == kLastLine) {
            return text.empty();
        } else if (line.size() > 2 && line.front() == '[' && line.back() == ']') {
            keys->emplace_back();
            if (!TakePath(line.substr(1, line.size() - 2), &keys->back().path)) return false;
        } else {
            RegistryValue value;
            if (keys->empty() || !ParseValue(line, &value)) return false;
            keys->back().values.push_back(std::move(value));
        }
    }
    return false;
}

}  // namespace headless
