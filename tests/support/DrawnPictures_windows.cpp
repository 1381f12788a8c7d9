#include "support/DrawnPictures.h"

namespace test_support {

bool ShowsMetafile(HDC memory, const RECT& area) {
    // A curve over its whole area leaves dark pixels in each half, but for thin ones at its ends.
    int left = 0, right = 0;
    for (LONG y = area.top; y < area.bottom; ++y) {
        for (LONG x = area.left; x < area.right; ++x) {
            const COLORREF color = GetPixel(memory, x, y);
            if (color == CLR_INVALID || GetRValue(color) > 128) continue;
            ++(x < (area.left + area.right) / 2 ? left : right);
        }
    }
    return left > 0 && right > 0;
}

}  // namespace test_support
