#include <unordered_map>

#include "platform/headless/drawing/gdi_dc.h"
#include "platform/headless/drawing/window_state.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace gdi {
namespace {

struct Recordings {
    std::vector<DrawOp> client;
    std::vector<DrawOp> frame;
};

std::unordered_map<HWND, Recordings>& Windows() {
    static auto& windows = *new std::unordered_map<HWND, Recordings>;
    return windows;
}

const std::vector<DrawOp>& Nothing() {
    static const auto& nothing = *new std::vector<DrawOp>;
    return nothing;
}

std::vector<DrawOp>& Target(DeviceContext& dc) {
    if (Bitmap* surface = dc.Surface()) return surface->ops;
    Recordings& recordings = Windows()[dc.hwnd];
    return dc.use == DcUse::kNonClient ? recordings.frame : recordings.client;
}

// What is drawn again and again without a new paint must not grow for ever.
constexpr std::size_t kMostOps = 100000;

}  // namespace

void Record(DeviceContext& dc, DrawOp op) {
    op.clip = dc.ClipBox();
    std::vector<DrawOp>& ops = Target(dc);
    // A fill of the whole area hides what was drawn before.
    if (op.kind == DrawKind::kFill && dc.state.clip.size() == 1 &&
        EqualRect(&op.clip, &dc.bounds) && op.rect.left <= dc.bounds.left &&
        op.rect.top <= dc.bounds.top && op.rect.right >= dc.bounds.right &&
        op.rect.bottom >= dc.bounds.bottom)
        ops.clear();
    if (ops.size() >= kMostOps)
        ops.erase(ops.begin(), ops.begin() + static_cast<std::ptrdiff_t>(kMostOps / 2));
    ops.push_back(std::move(op));
}

void BeginRecording(HWND hwnd) {
    Windows()[hwnd].client.clear();
}

void ForgetWindow(HWND hwnd) {
    const Lock lock;
    Windows().erase(hwnd);
    CloseClipboardOf(hwnd);
    ForgetTheme(hwnd);
}

}  // namespace gdi

const std::vector<DrawOp>& RecordedOps(HWND hwnd) {
    const gdi::Lock lock;
    const auto found = gdi::Windows().find(hwnd);
    return found == gdi::Windows().end() ? gdi::Nothing() : found->second.client;
}

const std::vector<DrawOp>& RecordedFrameOps(HWND hwnd) {
    const gdi::Lock lock;
    const auto found = gdi::Windows().find(hwnd);
    return found == gdi::Windows().end() ? gdi::Nothing() : found->second.frame;
}

const std::vector<DrawOp>& RecordedOps(HDC dc) {
    const gdi::Lock lock;
    gdi::DeviceContext* context = gdi::FindDc(dc);
    return context == nullptr ? gdi::Nothing() : gdi::Target(*context);
}

std::vector<std::string> RecordedTexts(HWND hwnd) {
    std::vector<std::string> texts;
    for (const DrawOp& op : RecordedOps(hwnd))
        if (op.kind == DrawKind::kText) texts.push_back(op.text);
    return texts;
}

}  // namespace headless
