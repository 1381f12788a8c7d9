// The bytes of a packed device-independent bitmap, as a bitmap resource holds it: a header, a table
// of colours, rows from the bottom. Nothing outside of the given bytes is read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/headless/drawing/gdi_objects.h"

namespace headless {

enum class DibResult {
    kGood,
    kMalformed,
    kUnsupported,  // well formed as far as it goes, but compressed
};

// Reads the bitmap as a section of its own depth.
DibResult ReadDib(const std::uint8_t* data, std::size_t size, std::unique_ptr<gdi::Bitmap>& bitmap);

}  // namespace headless
