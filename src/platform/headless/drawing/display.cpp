// The display: its resolution, colours and metrics.
#include "zxadlg/headless/display.h"

#include <algorithm>
#include <atomic>

#include "platform/headless/drawing/display_state.h"
#include "platform/headless/drawing/gdi_objects.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

std::atomic<int> dpi = 96;
std::atomic<int> depth = 32;
std::atomic<bool> themed = false;

constexpr int kColorCount = 31;
// By COLOR_*, as 0xBBGGRR.
constexpr COLORREF kColors[kColorCount] = {
    0xC8C8C8, 0x000000, 0xD1B499, 0xDBCDBF, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000,
    0x000000, 0x000000, 0xB4B4B4, 0xFCF7F4, 0xABABAB, 0xD77800, 0xFFFFFF, 0xF0F0F0,
    0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000,
    0xE1FFFF, 0x000000, 0xCC6600, 0xEAD1B9, 0xF2E4D7, 0xD77800, 0xF0F0F0};

struct Colors {
    std::atomic<COLORREF> values[kColorCount];
    Colors() { Reset(); }
    void Reset() {
        for (int i = 0; i < kColorCount; ++i) values[i] = kColors[i];
    }
};

Colors& SystemColors() {
    static Colors& colors = *new Colors;
    return colors;
}

int Scaled(int pixels) {
    return MulDiv(pixels, dpi, 96);
}

// The border of a window that can be sized: a frame of three and a padding that grows.
int SizeFrame() {
    return 3 + Scaled(1);
}

// As high as the font of menus, made odd.
int MenuCheck() {
    const int em = Scaled(11);
    const int height = em + MulDiv(em, 423, 2048);
    return (height + 1) / 2 * 2 - 1;
}

RECT PrimaryWork() {
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    return work;
}

}  // namespace

void SetDisplayDpi(int newDpi) {
    dpi = std::clamp(newDpi, 48, 960);
    gdi::RefreshStockFonts();
}

int DisplayDpi() {
    return dpi;
}

void SetDisplayDepth(int bitsPerPixel) {
    depth = bitsPerPixel;
}

int DisplayDepth() {
    return depth;
}

void SetThemed(bool isThemed) {
    themed = isThemed;
}

bool Themed() {
    return themed;
}

void SetSystemColor(int index, COLORREF color) {
    if (index >= 0 && index < kColorCount) SystemColors().values[index] = color;
}

void ResetSystemColors() {
    SystemColors().Reset();
}

}  // namespace headless

using namespace headless;

DWORD GetSysColor(int index) {
    return index >= 0 && index < kColorCount ? SystemColors().values[index].load() : 0;
}

int GetSystemMetrics(int index) {
    switch (index) {
        case SM_CXSCREEN:
            return PrimaryBounds().right - PrimaryBounds().left;
        case SM_CYSCREEN:
            return PrimaryBounds().bottom - PrimaryBounds().top;
        case SM_XVIRTUALSCREEN:
            return VirtualBounds().left;
        case SM_YVIRTUALSCREEN:
            return VirtualBounds().top;
        case SM_CXVIRTUALSCREEN:
            return VirtualBounds().right - VirtualBounds().left;
        case SM_CYVIRTUALSCREEN:
            return VirtualBounds().bottom - VirtualBounds().top;
        case SM_CMONITORS:
            return MonitorCount();
        case SM_CXFULLSCREEN:
            return PrimaryWork().right - PrimaryWork().left;
        case SM_CYFULLSCREEN:
            return PrimaryWork().bottom - PrimaryWork().top - GetSystemMetrics(SM_CYCAPTION);
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVSCROLL:
        case SM_CXHSCROLL:
        case SM_CYVTHUMB:
        case SM_CXHTHUMB:
            return Scaled(17);
        case SM_CYCAPTION:
        case SM_CYMENU:
            return Scaled(18) + 1;
        case SM_CYSMCAPTION:
            return Scaled(15) + 1;
        case SM_CXSIZE:
        case SM_CYSIZE:
            return Scaled(18);
        case SM_CXBORDER:
        case SM_CYBORDER:
            return 1;
        case SM_CXEDGE:
        case SM_CYEDGE:
            return 2;
        case SM_CXDLGFRAME:
        case SM_CYDLGFRAME:
            return 3;
        case SM_CXFRAME:
        case SM_CYFRAME:
            return SizeFrame();
        case SM_CXICON:
        case SM_CYICON:
        case SM_CXCURSOR:
        case SM_CYCURSOR:
            return Scaled(32);
        case SM_CXSMICON:
        case SM_CYSMICON:
            return Scaled(16);
        case SM_CXMIN:
            return Scaled(104) + 2 * SizeFrame();
        case SM_CYMIN:
            return Scaled(18) + 1 + 2 * SizeFrame();
        case SM_CXDOUBLECLK:
        case SM_CYDOUBLECLK:
            return 4;
        case SM_CXMENUCHECK:
        case SM_CYMENUCHECK:
            return MenuCheck();
        case SM_SWAPBUTTON:
            return 0;
        default:
            // There is no such metric anywhere.
            if (index < 0 || index >= 100) return 0;
            ReportUnsupported("GetSystemMetrics " + std::to_string(index));
            return 0;
    }
}
