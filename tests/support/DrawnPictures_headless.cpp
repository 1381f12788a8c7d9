#include "platform/headless/recording.h"
#include "support/DrawnPictures.h"

namespace test_support {

bool ShowsMetafile(HDC memory, const RECT& area) {
    for (const headless::DrawOp& op : headless::RecordedOps(memory)) {
        if (op.kind == headless::DrawKind::kMetafile && EqualRect(&op.rect, &area)) return true;
    }
    return false;
}

}  // namespace test_support
