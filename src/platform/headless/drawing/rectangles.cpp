// The functions on rectangles. An empty rectangle has no width or no height.
#include <algorithm>

#include "zxadlg/headless/functions.h"

namespace {

// Sums wrap as they do in registers.
LONG Add(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b));
}

}  // namespace

BOOL SetRect(RECT* rect, int left, int top, int right, int bottom) {
    if (rect == nullptr) return FALSE;
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(RECT* rect) {
    return SetRect(rect, 0, 0, 0, 0);
}

BOOL InflateRect(RECT* rect, int dx, int dy) {
    if (rect == nullptr) return FALSE;
    *rect = {Add(rect->left, static_cast<LONG>(0u - static_cast<DWORD>(dx))),
             Add(rect->top, static_cast<LONG>(0u - static_cast<DWORD>(dy))), Add(rect->right, dx),
             Add(rect->bottom, dy)};
    return TRUE;
}

BOOL OffsetRect(RECT* rect, int dx, int dy) {
    if (rect == nullptr) return FALSE;
    *rect = {Add(rect->left, dx), Add(rect->top, dy), Add(rect->right, dx), Add(rect->bottom, dy)};
    return TRUE;
}

BOOL IsRectEmpty(const RECT* rect) {
    return rect == nullptr || rect->left >= rect->right || rect->top >= rect->bottom ? TRUE : FALSE;
}

BOOL IntersectRect(RECT* result, const RECT* a, const RECT* b) {
    if (result == nullptr || a == nullptr || b == nullptr) return FALSE;
    const RECT common{std::max(a->left, b->left), std::max(a->top, b->top),
                      std::min(a->right, b->right), std::min(a->bottom, b->bottom)};
    if (IsRectEmpty(a) || IsRectEmpty(b) || IsRectEmpty(&common)) {
        SetRectEmpty(result);
        return FALSE;
    }
    *result = common;
    return TRUE;
}

BOOL UnionRect(RECT* result, const RECT* a, const RECT* b) {
    if (result == nullptr || a == nullptr || b == nullptr) return FALSE;
    if (IsRectEmpty(a) && IsRectEmpty(b)) {
        SetRectEmpty(result);
        return FALSE;
    }
    if (IsRectEmpty(a))
        *result = *b;
    else if (IsRectEmpty(b))
        *result = *a;
    else
        *result = {std::min(a->left, b->left), std::min(a->top, b->top),
                   std::max(a->right, b->right), std::max(a->bottom, b->bottom)};
    return TRUE;
}

BOOL EqualRect(const RECT* a, const RECT* b) {
    if (a == nullptr || b == nullptr) return FALSE;
    return a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom
               ? TRUE
               : FALSE;
}

BOOL PtInRect(const RECT* rect, POINT point) {
    if (rect == nullptr) return FALSE;
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
                   point.y < rect->bottom
               ? TRUE
               : FALSE;
}

int MulDiv(int number, int numerator, int denominator) {
    if (denominator == 0) return -1;
    const long long divisor = denominator < 0 ? -static_cast<long long>(denominator) : denominator;
    long long product = static_cast<long long>(number) * numerator;
    if (denominator < 0) product = -product;
    const long long result =
        product < 0 ? -((-product + divisor / 2) / divisor) : (product + divisor / 2) / divisor;
    if (result > 0x7FFFFFFF || result < -0x7FFFFFFF - 1LL) return -1;
    return static_cast<int>(result);
}
