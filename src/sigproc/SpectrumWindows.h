// The spectral windows: what they are called, and the pictures of each. A row stands for a value of
// eWindowType, in the order of the values.
#pragma once

#include <cstdint>
#include <span>

constexpr std::int32_t kKaiserWindow = 7;
constexpr std::int32_t kPoissonWindow = 8;

// What alpha of those two may be, and how many bins may be excluded.
constexpr double kLeastAlpha = 0.01;
constexpr double kMostAlpha = 10.0;
constexpr std::uint32_t kFewestExcluded = 1;
constexpr std::uint32_t kMostExcluded = 10;

struct SpectralWindow {
    std::int32_t eType;
    int nString;
    const char* szEquation;  // a METAFILE
};

std::span<const SpectralWindow> SpectralWindows();
// Null for a type that is none.
const SpectralWindow* FindSpectralWindow(std::int32_t eType);

// The bitmaps of a window: its shape and its magnitude, each with a larger form. Kaiser and Poisson
// have a series of them, by the integer part of alpha from 0 to 10.
struct WindowPictures {
    int nShape;
    int nMagnitude;
};
constexpr int kLargerPicture = 200;  // added to an id
WindowPictures PicturesOf(std::int32_t eType, double dKaiserAlpha, double dPoissonAlpha);
