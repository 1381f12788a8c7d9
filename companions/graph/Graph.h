// The graph behind the handle of zxadlg/Graph.h: a control that it has taken over, its scales,
// flags and titles, the picture of it, and what the user does with mouse and keys.
//
// With the mouse: a drag shows the part that it encloses, a drag along one axis that part of this
// axis, a double click all again. With keys: arrows move by a tenth, + and - magnify the x axis and
// Page Up and Page Down the y axis about the middle, Home shows all. Escape ends a drag.
#pragma once

#include "CurveSet.h"
#include "Layout.h"
#include "Surface.h"

struct GMT_Graph {
  public:
    explicit GMT_Graph(HWND hControl);
    ~GMT_Graph();
    GMT_Graph(const GMT_Graph&) = delete;
    GMT_Graph& operator=(const GMT_Graph&) = delete;

    static bool IsGraph(HWND hControl);

    void SetSource(GMT_DataSource* pSource);
    bool SetScale(uint32_t uAxis, double dMin, double dMax);
    bool AutoScale(uint32_t uAxis);
    bool GetScale(uint32_t uAxis, double* pMin, double* pMax) const;
    void CurveChanged(uint32_t uCurve);
    bool ValueAt(int x, int y, double* pX, double* pY);
    bool GetFlag(uint32_t uFlags) const { return (m_uFlags & uFlags) == uFlags; }
    void SetFlag(uint32_t uFlags, bool bSet);
    bool SetTitle(uint32_t uWhich, const char* szTitle);
    void Redraw();

  private:
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT uMsg, WPARAM wParam, LPARAM lParam);
    LRESULT Default(UINT uMsg, WPARAM wParam, LPARAM lParam);
    void Detach();

    // --- The picture
    void Paint(HDC dc);
    // Brings layout and layers up to date.
    void Update(HDC dc);
    void DrawOverlays(HDC dc);
    // A graph that takes keys shows it.
    bool ShowsFocus() const { return GetFocus() == m_hWnd && !IsLocked(); }
    void Invalidate();
    graph::Layout MakeLayout(HDC dc);
    graph::Titles ShownTitles() const;
    std::string TitleWithUnits(const std::string& sTitle, uint32_t uAxis) const;
    int PlotWidth();

    // --- The user
    void BeginDrag(POINT at);
    void EndDrag(POINT at);
    void MovePointer(POINT at);
    bool Key(WPARAM wKey);
    bool Character(WPARAM wChar);
    bool IsLocked() const { return (m_uFlags & (GMT_FLAG_LOCKED | GMT_FLAG_CONTINUOUS)) != 0; }
    graph::Range* ScaleOf(uint32_t uAxis);
    void ShowPart(uint32_t uAxis, const graph::Range& part);
    void ShowAll();
    void Move(uint32_t uAxis, double dShare);
    void Magnify(uint32_t uAxis, double dFactor);

    HWND m_hWnd;
    WNDPROC m_pOldProc;
    graph::CurveSet m_curves;
    graph::Range m_x, m_y;
    uint32_t m_uFlags = 0;
    graph::Titles m_titles;

    graph::Layout m_layout;
    bool m_bLayoutStale = true;   // scales, flags, titles, size, colours, font
    bool m_bPictureStale = true;  // any of these, or a curve
    unsigned m_uDataVersion = 0;  // of the data in m_base
    graph::Surface m_base;        // axes and data
    graph::Surface m_picture;     // the whole graph
    graph::Surface m_shown;       // with what follows the pointer

    bool m_bDragging = false;
    POINT m_dragFrom{}, m_pointer{};
    bool m_bPointerInside = false;
};
