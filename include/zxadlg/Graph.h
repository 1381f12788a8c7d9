// What a dialog and a graph library agree on: a graph drawn in a control of the dialog, fed by a
// source of curves that the dialog implements.
//
// The library exports its functions by number (GMT_ORDINAL_...). With GetProcAddress that is
// MAKEINTRESOURCEA(number); on systems without numbered exports number N is the exported name
// "OrdinalN", which the headless window system's GetProcAddress maps by itself.
//
// A graph belongs to the thread of its control, and all calls come on that thread. The library
// keeps no texts and no points: the source's pointers hold until the source tells otherwise by
// GMT_CurveChanged, until another source is set, or until the graph is destroyed. Texts are 8-bit.
// Nothing is thrown across. Every function takes a null graph for nothing to do and answers 0.
#pragma once

#include <stdint.h>

#if defined(_WIN32)
#define GMT_CALL __stdcall
#else
#define GMT_CALL
#endif

struct HWND__;

// Axes, and the titles of a graph.
#define GMT_X 1
#define GMT_Y 2
#define GMT_HEADING 0x8000

// All curves of the source, for GMT_CurveChanged.
#define GMT_ALL_CURVES 0xFFFFFFFFu

// A colour that the graph chooses: dark on a light window and light on a dark one.
#define GMT_COLOR_AUTOMATIC 0xFFFFFFFFu

// How a curve is drawn: kinds 0 to 5 are terms, broken lines each in a way of its own.
#define GMT_KIND_DATA 6   // the points of GetPoints: marks, or a line where they stand close
#define GMT_KIND_TOTAL 7  // a heavy line; like the terms it is evaluated where the picture needs it

// The flags of a graph. A word may name several: all of them are then set or cleared.
#define GMT_FLAG_GRID 0x1           // lines across the plot at the ticks
#define GMT_FLAG_LINK_POINTS 0x2    // points of data that stand apart are joined by a line
#define GMT_FLAG_AXES 0x4           // ticks, numbers and axis titles
#define GMT_FLAG_INNER_TICKS 0x8    // ticks point into the plot
#define GMT_FLAG_LEGEND 0x10        // the names of the curves beside the plot
#define GMT_FLAG_NO_X_NUMBERS 0x20  // ticks without numbers
#define GMT_FLAG_NO_Y_NUMBERS 0x40  //
#define GMT_FLAG_ZERO_LINE 0x80     // a line at y = 0 where the plot shows it
#define GMT_FLAG_CONTINUOUS 0x100   // each redraw scales both axes; mouse and keys do not
#define GMT_FLAG_POINTER 0x200      // the value under the pointer is told
#define GMT_FLAG_NO_X_TITLE 0x400   // axes without a title
#define GMT_FLAG_NO_Y_TITLE 0x800   //
#define GMT_FLAG_LOCKED 0x1000      // mouse and keys do not change the scales
#define GMT_FLAG_NO_HEADING 0x4000  // no room for the heading
#define GMT_FLAG_ONE_COLOR 0x10000  // curves are told apart by their lines alone
#define GMT_FLAG_NO_UNITS 0x20000   // axis titles without their units
#define GMT_FLAG_NO_FRAME 0x40000   // no frame around the plot

struct GMT_Curve {
    char szName[64];   // for the legend; empty keeps the curve out of it
    uint32_t uKind;    // GMT_KIND_...
    int32_t bVisible;  // a curve that is not takes no part in scales and legend
};

struct GMT_Points {
    const double* pX;  // in any order; NaN is a gap, as in pY
    const double* pY;
    uint32_t uCount;
};

// Where a graph takes its curves from. The table has these ten places in this order in every
// compiler; the first four have no answer of their own.
class GMT_DataSource {
  public:
    // Place 0: how many curves there are.
    virtual uint32_t GetCurveCount() = 0;
    // Place 1: what curve number `uCurve` is. 0 leaves it out.
    virtual int32_t GetCurve(uint32_t uCurve, GMT_Curve* pCurve) = 0;
    // Place 2: the points of a curve of data. 0 when there are none.
    virtual int32_t GetPoints(uint32_t uCurve, GMT_Points* pPoints) = 0;
    // Place 3: `uCount` values of any other curve at the places `pX`, which ascend, in the units of
    // the x axis. 0 leaves the curve out of this picture; NaN and infinity are gaps.
    virtual int32_t Evaluate(uint32_t uCurve, const double* pX, double* pY, uint32_t uCount) = 0;
    // Place 4: the units of an axis (GMT_X, GMT_Y); null and "" are none.
    virtual const char* GetUnits(uint32_t) { return ""; }
    // Place 5: the colour of a curve as 0x00BBGGRR.
    virtual uint32_t GetColor(uint32_t) { return GMT_COLOR_AUTOMATIC; }
    // Place 6: the range that an axis shows when it is scaled automatically. 0 leaves that to the
    // graph, which shows all there is with a margin.
    virtual int32_t GetRange(uint32_t, double*, double*) { return 0; }
    // Place 7: what stands in the plot when there is nothing to draw.
    virtual const char* GetEmptyText() { return "No data"; }
    // Place 8: the user has changed the scale of an axis by mouse or key.
    virtual void OnScaleChanged(uint32_t, double, double) {}
    // Place 9: the pointer stands on this value of the plot.
    virtual void OnPointer(double, double) {}

  protected:
    ~GMT_DataSource() = default;
};

struct GMT_Graph;

#define GMT_ORDINAL_CREATE 1000
#define GMT_ORDINAL_SET_SOURCE 1002
#define GMT_ORDINAL_SET_SCALE 1013
#define GMT_ORDINAL_AUTO_SCALE 1014
#define GMT_ORDINAL_DESTROY 1018
#define GMT_ORDINAL_GET_SCALE 1021
#define GMT_ORDINAL_CURVE_CHANGED 1036
#define GMT_ORDINAL_VALUE_AT 1039
#define GMT_ORDINAL_GET_FLAG 1043
#define GMT_ORDINAL_REDRAW 1044
#define GMT_ORDINAL_SET_FLAG 1054
#define GMT_ORDINAL_SET_TITLE 1058

// 1000: makes a graph of a control: from now on the control draws the graph over its whole area and
// takes its mouse and keys. All flags are off, both scales 0 to 1. Null for what is no window, for
// a control that is a graph already, and without memory. The control may be destroyed before the
// graph; the graph then draws nothing more.
typedef GMT_Graph*(GMT_CALL* GMT_CreateGraph)(HWND__* hControl);
// 1002: attaches the source; null takes it away. 1 on success. The scales stay as they are.
typedef int32_t(GMT_CALL* GMT_SetSource)(GMT_Graph*, GMT_DataSource*);
// 1013: sets the range of an axis. 0, and the scale unchanged, for an unknown axis, for limits that
// are not finite, equal, or in the wrong order.
typedef int32_t(GMT_CALL* GMT_SetScale)(GMT_Graph*, uint32_t uAxis, double dMin, double dMax);
// 1014: scales an axis to what is visible: x to the data, y to all curves within the x range. With
// nothing to see the scale becomes 0 to 1. 0 for an unknown axis.
typedef int32_t(GMT_CALL* GMT_AutoScale)(GMT_Graph*, uint32_t uAxis);
// 1018: ends a graph and gives the control back.
typedef int32_t(GMT_CALL* GMT_DestroyGraph)(GMT_Graph*);
// 1021: the range that an axis shows. 0 for an unknown axis and null pointers.
typedef int32_t(GMT_CALL* GMT_GetScale)(GMT_Graph*, uint32_t uAxis, double* pMin, double* pMax);
// 1036: tells that a curve (or GMT_ALL_CURVES) has other values, another name or has been shown or
// hidden. The next redraw asks for it again; all other curves keep what was computed for them.
typedef int32_t(GMT_CALL* GMT_CurveChanged)(GMT_Graph*, uint32_t uCurve);
// 1039: the value of a point of the control, in pixels. 0 outside of the plot.
typedef int32_t(GMT_CALL* GMT_ValueAt)(GMT_Graph*, int32_t x, int32_t y, double* pX, double* pY);
// 1043: 1 when all flags of the word are set.
typedef int32_t(GMT_CALL* GMT_GetFlag)(GMT_Graph*, uint32_t uFlags);
// 1044: draws the graph now.
typedef int32_t(GMT_CALL* GMT_Redraw)(GMT_Graph*);
// 1054: sets (nonzero) or clears the flags of the word. The next redraw shows it.
typedef int32_t(GMT_CALL* GMT_SetFlag)(GMT_Graph*, uint32_t uFlags, int32_t bSet);
// 1058: the title of an axis, or the heading (GMT_HEADING). Null is "". 0 for anything else.
typedef int32_t(GMT_CALL* GMT_SetTitle)(GMT_Graph*, uint32_t uWhich, const char* szTitle);
