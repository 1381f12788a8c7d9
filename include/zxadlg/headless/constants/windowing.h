// Styles, places and relations of windows.
#pragma once

#include "zxadlg/headless/types.h"

// Window and class styles.
inline constexpr int WS_OVERLAPPED = 0x0;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr int WS_CHILD = 0x40000000;
inline constexpr int WS_MINIMIZE = 0x20000000;
inline constexpr int WS_VISIBLE = 0x10000000;
inline constexpr int WS_DISABLED = 0x8000000;
inline constexpr int WS_CLIPSIBLINGS = 0x4000000;
inline constexpr int WS_CLIPCHILDREN = 0x2000000;
inline constexpr int WS_MAXIMIZE = 0x1000000;
inline constexpr int WS_CAPTION = 0xC00000;
inline constexpr int WS_BORDER = 0x800000;
inline constexpr int WS_DLGFRAME = 0x400000;
inline constexpr int WS_VSCROLL = 0x200000;
inline constexpr int WS_HSCROLL = 0x100000;
inline constexpr int WS_SYSMENU = 0x80000;
inline constexpr int WS_THICKFRAME = 0x40000;
inline constexpr int WS_GROUP = 0x20000;
inline constexpr int WS_TABSTOP = 0x10000;
inline constexpr int WS_MINIMIZEBOX = 0x20000;
inline constexpr int WS_MAXIMIZEBOX = 0x10000;
inline constexpr int WS_OVERLAPPEDWINDOW = 0xCF0000;
inline constexpr int WS_EX_DLGMODALFRAME = 0x1;
inline constexpr int WS_EX_NOPARENTNOTIFY = 0x4;
inline constexpr int WS_EX_TOPMOST = 0x8;
inline constexpr int WS_EX_TRANSPARENT = 0x20;
inline constexpr int WS_EX_TOOLWINDOW = 0x80;
inline constexpr int WS_EX_WINDOWEDGE = 0x100;
inline constexpr int WS_EX_CLIENTEDGE = 0x200;
inline constexpr int WS_EX_CONTEXTHELP = 0x400;
inline constexpr int WS_EX_RIGHT = 0x1000;
inline constexpr int WS_EX_LEFT = 0x0;
inline constexpr int WS_EX_CONTROLPARENT = 0x10000;
inline constexpr int WS_EX_STATICEDGE = 0x20000;
inline constexpr int WS_EX_APPWINDOW = 0x40000;
inline constexpr int WS_EX_LAYERED = 0x80000;
inline constexpr int WS_EX_COMPOSITED = 0x2000000;
inline constexpr int WS_EX_NOACTIVATE = 0x8000000;
inline constexpr int CS_VREDRAW = 0x1;
inline constexpr int CS_HREDRAW = 0x2;
inline constexpr int CS_DBLCLKS = 0x8;
inline constexpr int CS_OWNDC = 0x20;
inline constexpr int CS_CLASSDC = 0x40;
inline constexpr int CS_PARENTDC = 0x80;
inline constexpr int CS_NOCLOSE = 0x200;
inline constexpr int CS_SAVEBITS = 0x800;
inline constexpr int CS_GLOBALCLASS = 0x4000;

// Window longs, positions, show states, relations, redrawing.
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWL_ID = -12;
inline constexpr int GWLP_WNDPROC = -4;
inline constexpr int GWLP_HINSTANCE = -6;
inline constexpr int GWLP_HWNDPARENT = -8;
inline constexpr int GWLP_USERDATA = -21;
inline constexpr int GWLP_ID = -12;
inline constexpr int CW_USEDEFAULT = -2147483648;
inline constexpr int SWP_NOSIZE = 0x1;
inline constexpr int SWP_NOMOVE = 0x2;
inline constexpr int SWP_NOZORDER = 0x4;
inline constexpr int SWP_NOREDRAW = 0x8;
inline constexpr int SWP_NOACTIVATE = 0x10;
inline constexpr int SWP_FRAMECHANGED = 0x20;
inline constexpr int SWP_SHOWWINDOW = 0x40;
inline constexpr int SWP_HIDEWINDOW = 0x80;
inline constexpr int SWP_NOCOPYBITS = 0x100;
inline constexpr int SWP_NOOWNERZORDER = 0x200;
inline constexpr int SWP_NOSENDCHANGING = 0x400;
inline constexpr int SW_HIDE = 0x0;
inline constexpr int SW_SHOWNORMAL = 0x1;
inline constexpr int SW_SHOWMINIMIZED = 0x2;
inline constexpr int SW_SHOWMAXIMIZED = 0x3;
inline constexpr int SW_SHOWNOACTIVATE = 0x4;
inline constexpr int SW_SHOW = 0x5;
inline constexpr int SW_MINIMIZE = 0x6;
inline constexpr int SW_SHOWMINNOACTIVE = 0x7;
inline constexpr int SW_SHOWNA = 0x8;
inline constexpr int SW_RESTORE = 0x9;
inline constexpr int SW_SHOWDEFAULT = 0xA;
inline constexpr int GW_HWNDFIRST = 0x0;
inline constexpr int GW_HWNDLAST = 0x1;
inline constexpr int GW_HWNDNEXT = 0x2;
inline constexpr int GW_HWNDPREV = 0x3;
inline constexpr int GW_OWNER = 0x4;
inline constexpr int GW_CHILD = 0x5;
inline constexpr int GA_PARENT = 0x1;
inline constexpr int GA_ROOT = 0x2;
inline constexpr int GA_ROOTOWNER = 0x3;
inline constexpr int RDW_INVALIDATE = 0x1;
inline constexpr int RDW_INTERNALPAINT = 0x2;
inline constexpr int RDW_ERASE = 0x4;
inline constexpr int RDW_VALIDATE = 0x8;
inline constexpr int RDW_NOINTERNALPAINT = 0x10;
inline constexpr int RDW_NOERASE = 0x20;
inline constexpr int RDW_NOCHILDREN = 0x40;
inline constexpr int RDW_ALLCHILDREN = 0x80;
inline constexpr int RDW_UPDATENOW = 0x100;
inline constexpr int RDW_ERASENOW = 0x200;
inline constexpr int RDW_FRAME = 0x400;
inline constexpr int RDW_NOFRAME = 0x800;

// Window handles with a meaning.
#define HWND_TOP (reinterpret_cast<HWND>(static_cast<ULONG_PTR>(0)))
#define HWND_BOTTOM (reinterpret_cast<HWND>(static_cast<ULONG_PTR>(1)))
#define HWND_TOPMOST (reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1)))
#define HWND_NOTOPMOST (reinterpret_cast<HWND>(static_cast<LONG_PTR>(-2)))
#define HWND_BROADCAST (reinterpret_cast<HWND>(static_cast<ULONG_PTR>(0xFFFF)))
