#include "Scenario.h"

#include <cstdlib>
#include <fstream>

namespace differential {

std::vector<Scenario> ReadScenarios(const std::string& path) {
    std::vector<Scenario> scenarios;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == ';') continue;
        if (line.rfind("scenario ", 0) == 0) {
            scenarios.push_back({line.substr(9), {}});
        } else if (!scenarios.empty()) {
            scenarios.back().lines.push_back(line);
        }
    }
    return scenarios;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 32 && code < 127 && c != '"' && c != '\\') {
            quoted += c;
        } else {
            char number[8];
            std::snprintf(number, sizeof number, "\\x%02x", code);
            quoted += number;
        }
    }
    return quoted + '"';
}

std::string Words::Next() {
    while (m_at < m_line.size() && m_line[m_at] == ' ') ++m_at;
    std::string word;
    if (m_at < m_line.size() && m_line[m_at] == '"') {
        for (++m_at; m_at < m_line.size() && m_line[m_at] != '"'; ++m_at) {
            if (m_line.compare(m_at, 2, "\\x") == 0) {
                word +=
                    static_cast<char>(std::strtol(m_line.substr(m_at + 2, 2).c_str(), nullptr, 16));
                m_at += 3;
            } else {
                word += m_line[m_at];
            }
        }
        ++m_at;
        return word;
    }
    for (; m_at < m_line.size() && m_line[m_at] != ' '; ++m_at) word += m_line[m_at];
    return word;
}

int64_t Words::NextNumber() {
    return std::strtoll(Next().c_str(), nullptr, 0);
}

uint64_t Random::Next() {
    m_state += 0x9E3779B97F4A7C15u;
    uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

}  // namespace differential
