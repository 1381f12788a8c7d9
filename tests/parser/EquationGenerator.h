// Seeded random equations of the whole grammar, the same on every system: right sides that compile,
// of at most 252 characters, over X1 to X3, P1 to P4.
#pragma once

#include <cstdint>
#include <string>

class EquationGenerator {
  public:
    explicit EquationGenerator(std::uint64_t uSeed) : m_uState(uSeed * 2 + 1) {}

    std::string RightSide();

    std::uint64_t Next() {
        m_uState ^= m_uState << 13;
        m_uState ^= m_uState >> 7;
        m_uState ^= m_uState << 17;
        return m_uState * 0x2545F4914F6CDD1Du;
    }
    int Below(int n) { return static_cast<int>((Next() >> 33) % static_cast<std::uint64_t>(n)); }
    // A value for a variable: mostly of everyday size, sometimes a special one.
    double Value();

  private:
    std::string Sum(int nDepth);
    std::string Product(int nDepth);
    std::string Signed(int nDepth);
    std::string Power(int nDepth);
    std::string Call(int nDepth);
    std::string Primary(int nDepth);
    std::string Atom();
    std::string Spaces() { return Below(12) == 0 ? std::string(1 + Below(2), ' ') : ""; }

    std::uint64_t m_uState;
};
