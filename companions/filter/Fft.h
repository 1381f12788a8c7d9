// The Fourier transform of a power of two complex points, in place, made for filtering: the
// spectrum stays in the order in which it arises, bit-reversed, and the way back takes it so.
#pragma once

#include <cstddef>
#include <vector>

namespace filter {

class Fft {
  public:
    // `nSize`: a power of two, at least 2.
    explicit Fft(std::size_t nSize);

    std::size_t Size() const { return m_nSize; }
    // sum of x[n] exp(-2 pi i k n / size), found at place PlaceOf(k).
    void Forward(double* re, double* im) const;
    // The way back, without the division by the size.
    void Backward(double* re, double* im) const;
    std::size_t PlaceOf(std::size_t nFrequency) const;

  private:
    // Powers 1, 2 and 3 of the roots of unity of one radix-4 pass.
    struct Pass {
        std::size_t nQuarter;
        std::vector<double> cosine[3], sine[3];
    };
    std::size_t m_nSize;
    std::vector<Pass> m_passes;
    bool m_bLastPair;  // pairs remain after the passes: the size is no power of four
};

}  // namespace filter
