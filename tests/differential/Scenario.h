// A scenario as text, one instruction per line, so that one can be cut down line by line, kept in a
// file and read. A file holds any number of them; a line "scenario NAME" begins each.
//
//     scenario fields
//     dialog 180 90
//     control Edit 101 0x50810080 0 10 10 60 13 "7.5"
//     show
//     key 0x23 0
//     char 0x31
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace differential {

struct Scenario {
    std::string name;
    std::vector<std::string> lines;
};

// Empty for a file that cannot be read.
std::vector<Scenario> ReadScenarios(const std::string& path);

// The text between quotes, with what is no plain character as \xHH.
std::string Quoted(const std::string& text);

// The words of a line, one by one: a number (decimal or 0x), a name or a quoted text.
class Words {
  public:
    explicit Words(const std::string& line) : m_line(line) {}
    // "" at the end of the line.
    std::string Next();
    // The next word, which stays the next.
    std::string Ahead() const { return Words(*this).Next(); }
    int64_t NextNumber();

  private:
    std::string m_line;
    std::size_t m_at = 0;
};

// The same numbers on every system from the same seed.
class Random {
  public:
    explicit Random(uint64_t seed) : m_state(seed) {}
    uint64_t Next();
    int Below(int count) { return static_cast<int>(Next() % static_cast<uint64_t>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }
    template <class T, std::size_t N>
    const T& From(const T (&values)[N]) {
        return values[Below(static_cast<int>(N))];
    }

  private:
    uint64_t m_state;
};

// Scenarios of `actions` actions each; number n of base b is the same whatever the others are.
void GenerateControls(std::FILE* out, uint64_t base, int number, int actions);
void GenerateDialogs(std::FILE* out, uint64_t base, int number, int actions);

// Play one and write what happened: a line "@ INSTRUCTION" for each, then what it answered ("="),
// what the parent was told ("!") and each window that is not as it was (".").
void PlayControls(std::FILE* out, const Scenario& scenario);
void PlayDialogs(std::FILE* out, const Scenario& scenario);
// As many rows of '#' and '-' as the picture is high, for each line "picture NAME WIDTH HEIGHT".
void PlayPictures(std::FILE* out, const Scenario& scenario);

}  // namespace differential
