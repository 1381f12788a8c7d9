// Whether a metafile was drawn into a device context in memory. Where the system draws pixels they
// are looked at; where it records what is drawn, the record is.
#pragma once

#include "platform/platform.h"

namespace test_support {

// True when a picture was played into the whole of `area` (device units) of a bitmap that was white
// before.
bool ShowsMetafile(HDC memory, const RECT& area);

}  // namespace test_support
