#include "platform/headless/drawing/metafile_player.h"

#include <algorithm>

#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

constexpr std::size_t kHeaderSize = 18;

enum RecordKind : unsigned {
    kEnd = 0,
    kSetMapMode = 0x103,
    kSetPolyFillMode = 0x106,
    kSelectObject = 0x12D,
    kSetWindowOrigin = 0x20B,
    kSetWindowExtent = 0x20C,
    kCreatePen = 0x2FA,
    kCreateBrush = 0x2FC,
    kPolyline = 0x325,
    kPolyPolygon = 0x538,
};

COLORREF ColorOf(std::int16_t low, std::int16_t high) {
    return static_cast<std::uint16_t>(low) | static_cast<COLORREF>(static_cast<std::uint16_t>(high))
                                                 << 16;
}

// As many points as there are numbers for.
std::vector<POINT> Points(const std::vector<std::int16_t>& words, std::size_t at, int count) {
    std::vector<POINT> points;
    for (int i = 0; i < count && at + 1 < words.size(); ++i, at += 2)
        points.push_back({words[at], words[at + 1]});
    return points;
}

}  // namespace

MetafilePlayer::MetafilePlayer(HDC dc, const RECT& target) : m_dc(dc), m_saved(SaveDC(dc)) {
    SetMapMode(dc, MM_ANISOTROPIC);
    SetViewportOrgEx(dc, target.left, target.top, nullptr);
    SetViewportExtEx(dc, target.right - target.left, target.bottom - target.top, nullptr);
}

MetafilePlayer::~MetafilePlayer() {
    RestoreDC(m_dc, m_saved);
    for (const HGDIOBJ object : m_objects) DeleteObject(object);
}

void MetafilePlayer::Play(const std::vector<std::uint8_t>& bytes) {
    const auto word = [&](std::size_t at) {
        return static_cast<std::uint32_t>(bytes[at] | bytes[at + 1] << 8);
    };
    for (std::size_t at = kHeaderSize;;) {
        const std::size_t size = (word(at) | word(at + 2) << 16) * 2;
        const unsigned kind = word(at + 4);
        if (kind == kEnd) return;
        Words words;
        for (std::size_t i = at + 6; i < at + size; i += 2)
            words.push_back(static_cast<std::int16_t>(word(i)));
        PlayRecord(kind, words);
        at += size;
    }
}

void MetafilePlayer::PlayRecord(unsigned kind, const Words& given) {
    // A record that is too short is read as if zeros followed.
    constexpr std::size_t kMostNumbers = 5;
    Words words = given;
    words.resize(std::max(words.size(), kMostNumbers));
    switch (kind) {
        case kSetMapMode:
            if (words[0] != MM_ANISOTROPIC)
                ReportUnsupported("metafile of mapping mode " + std::to_string(words[0]));
            return;
        case kSetPolyFillMode:
            // Both fill the figures of such pictures alike: their holes run the other way round.
            return;
        case kSetWindowOrigin:
            SetWindowOrgEx(m_dc, words[1], words[0], nullptr);
            return;
        case kSetWindowExtent:
            SetWindowExtEx(m_dc, words[1], words[0], nullptr);
            return;
        case kCreatePen:
            return Make(CreatePen(words[0], words[1], ColorOf(words[3], words[4])));
        case kCreateBrush:
            return Make(CreateSolidBrush(ColorOf(words[1], words[2])));
        case kSelectObject: {
            const auto index = static_cast<std::size_t>(static_cast<std::uint16_t>(words[0]));
            if (index < m_objects.size()) SelectObject(m_dc, m_objects[index]);
            return;
        }
        case kPolyline:
            return Line(words);
        case kPolyPolygon:
            return Fill(words);
        default:
            ReportUnsupported("metafile record " + std::to_string(kind));
    }
}

void MetafilePlayer::Make(HGDIOBJ object) {
    m_objects.push_back(object);
}

void MetafilePlayer::Line(const Words& words) {
    const std::vector<POINT> points = Points(words, 1, words[0]);
    Polyline(m_dc, points.data(), static_cast<int>(points.size()));
}

// The number of figures, the number of points of each, and all the points.
void MetafilePlayer::Fill(const Words& words) {
    const auto count = static_cast<std::size_t>(std::max<int>(words[0], 0));
    if (count + 1 > words.size()) return;
    std::vector<std::vector<POINT>> rings;
    std::size_t at = count + 1;
    for (std::size_t i = 0; i < count; ++i) {
        rings.push_back(Points(words, at, words[i + 1]));
        at += 2 * rings.back().size();
    }
    const gdi::Lock lock;
    if (gdi::DeviceContext* dc = gdi::FindDc(m_dc)) gdi::FillPolyPolygon(*dc, rings);
}

}  // namespace headless
