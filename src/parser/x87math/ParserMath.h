// What the mathematical functions need where the standard library's run on the x87 unit. The build
// takes this header or its namesake in stdmath.
#pragma once

// The time during which mathematical functions are called. The library's functions are accurate
// only with the unit's full precision, and a host's threads start with less: it is set on entry and
// what the host had comes back on exit.
class PrecisionScope {
  public:
    PrecisionScope() {
        __asm__ __volatile__("fnstcw %0" : "=m"(m_uControl));
        if ((m_uControl & FULL_PRECISION) == FULL_PRECISION) return;
        const unsigned short uFull = m_uControl | FULL_PRECISION;
        __asm__ __volatile__("fldcw %0" : : "m"(uFull));
    }
    ~PrecisionScope() {
        if ((m_uControl & FULL_PRECISION) == FULL_PRECISION) return;
        __asm__ __volatile__("fldcw %0" : : "m"(m_uControl));
    }
    PrecisionScope(const PrecisionScope&) = delete;
    PrecisionScope& operator=(const PrecisionScope&) = delete;

  private:
    static constexpr unsigned short FULL_PRECISION = 0x300;
    unsigned short m_uControl;
};

// The sine and the cosine, to within one unit in the last place for every argument. The processor's
// own know only 66 bits of pi: near its multiples few digits of theirs are right, and none far out.
// To be called in a PrecisionScope.
double Sine(double x);
double Cosine(double x);
// x to the power of y, to within one unit in the last place, which the 64-bit library's own misses
// for large powers.
double Power(double x, double y);
