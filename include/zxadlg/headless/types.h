// The types of the platform: same names, same members, same sizes as on Windows, 64-bit clean. A
// handle is a pointer to an incomplete type, so that two kinds of handle do not convert into each
// other.
#pragma once

#include <cstddef>
#include <cstdint>

#define CALLBACK
#define WINAPI
#define APIENTRY
#define WINUSERAPI
#define CONST const
#define FALSE 0
#define TRUE 1
#define NO_ERROR 0L
#define UNREFERENCED_PARAMETER(p) (static_cast<void>(p))

using BYTE = std::uint8_t;
using UCHAR = unsigned char;
using CHAR = char;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using WORD = std::uint16_t;
using ATOM = WORD;
using WCHAR = wchar_t;
using INT = int;
using UINT = unsigned int;
using BOOL = int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using FLOAT = float;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using DWORD64 = std::uint64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = LONG;
using COLORREF = DWORD;
using LCID = DWORD;
using LANGID = WORD;
using REGSAM = DWORD;
using LSTATUS = LONG;

using PVOID = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPSTR = char*;
using LPCSTR = const char*;
using PSTR = char*;
using PCSTR = const char*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPBYTE = BYTE*;
using LPWORD = WORD*;
using LPDWORD = DWORD*;
using PDWORD = DWORD*;
using LPINT = int*;
using LPBOOL = BOOL*;

// Shell and common control calls carry these marks on the platform.
#define S_OK (static_cast<HRESULT>(0))
#define S_FALSE (static_cast<HRESULT>(1))
#define E_FAIL (static_cast<HRESULT>(0x80004005u))
#define E_INVALIDARG (static_cast<HRESULT>(0x80070057u))
#define E_HANDLE (static_cast<HRESULT>(0x80070006u))
#define SUCCEEDED(hr) (static_cast<HRESULT>(hr) >= 0)
#define FAILED(hr) (static_cast<HRESULT>(hr) < 0)

#define ZX_DECLARE_HANDLE(name) \
    struct name##__;            \
    using name = name##__*
ZX_DECLARE_HANDLE(HWND);
ZX_DECLARE_HANDLE(HINSTANCE);
ZX_DECLARE_HANDLE(HMENU);
ZX_DECLARE_HANDLE(HHOOK);
ZX_DECLARE_HANDLE(HRSRC);
ZX_DECLARE_HANDLE(HDC);
ZX_DECLARE_HANDLE(HICON);
ZX_DECLARE_HANDLE(HMONITOR);
ZX_DECLARE_HANDLE(HKEY);
ZX_DECLARE_HANDLE(HTHEME);
ZX_DECLARE_HANDLE(HENHMETAFILE);
ZX_DECLARE_HANDLE(HMETAFILE);
#undef ZX_DECLARE_HANDLE
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using HANDLE = void*;
using HGLOBAL = void*;
using HLOCAL = void*;
// Drawing objects share one base on the platform too: SelectObject and DeleteObject take any of
// them.
using HGDIOBJ = void*;
struct HGdiObject__ {};
struct HFONT__ : HGdiObject__ {};
struct HBRUSH__ : HGdiObject__ {};
struct HPEN__ : HGdiObject__ {};
struct HBITMAP__ : HGdiObject__ {};
struct HRGN__ : HGdiObject__ {};
using HFONT = HFONT__*;
using HBRUSH = HBRUSH__*;
using HPEN = HPEN__*;
using HBITMAP = HBITMAP__*;
using HRGN = HRGN__*;
using HPALETTE = void*;

using FARPROC = INT_PTR (*)();
using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);
using HOOKPROC = LRESULT(CALLBACK*)(int, WPARAM, LPARAM);
using WNDENUMPROC = BOOL(CALLBACK*)(HWND, LPARAM);
using ENUMRESNAMEPROCA = BOOL(CALLBACK*)(HMODULE, LPCSTR, LPSTR, LONG_PTR);
using MONITORENUMPROC = BOOL(CALLBACK*)(HMONITOR, HDC, struct tagRECT*, LPARAM);

#define LOWORD(l) (static_cast<WORD>(static_cast<DWORD_PTR>(l) & 0xFFFF))
#define HIWORD(l) (static_cast<WORD>((static_cast<DWORD_PTR>(l) >> 16) & 0xFFFF))
#define LOBYTE(w) (static_cast<BYTE>(static_cast<DWORD_PTR>(w) & 0xFF))
#define HIBYTE(w) (static_cast<BYTE>((static_cast<DWORD_PTR>(w) >> 8) & 0xFF))
#define MAKEWORD(a, b) \
    (static_cast<WORD>((static_cast<BYTE>(a)) | (static_cast<WORD>(static_cast<BYTE>(b)) << 8)))
#define MAKELONG(a, b) \
    (static_cast<LONG>((static_cast<WORD>(a)) | (static_cast<DWORD>(static_cast<WORD>(b)) << 16)))
#define MAKEWPARAM(l, h) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define MAKELPARAM(l, h) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define MAKELRESULT(l, h) (static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(l, h))))
#define GET_X_LPARAM(lp) (static_cast<int>(static_cast<SHORT>(LOWORD(lp))))
#define GET_Y_LPARAM(lp) (static_cast<int>(static_cast<SHORT>(HIWORD(lp))))
#define RGB(r, g, b)                                                              \
    (static_cast<COLORREF>(                                                       \
        (static_cast<BYTE>(r) | (static_cast<WORD>(static_cast<BYTE>(g)) << 8)) | \
        (static_cast<DWORD>(static_cast<BYTE>(b)) << 16)))
#define GetRValue(rgb) (LOBYTE(rgb))
#define GetGValue(rgb) (LOBYTE((static_cast<WORD>(rgb)) >> 8))
#define GetBValue(rgb) (LOBYTE((rgb) >> 16))

using POINT = struct tagPOINT {
    LONG x;
    LONG y;
};
using LPPOINT = POINT*;
using SIZE = struct tagSIZE {
    LONG cx;
    LONG cy;
};
using LPSIZE = SIZE*;
using RECT = struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPRECT = RECT*;
using LPCRECT = const RECT*;
using GUID = struct _GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};

using MSG = struct tagMSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using LPMSG = MSG*;

using WNDCLASSA = struct tagWNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

using CREATESTRUCTA = struct tagCREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
};
using LPCREATESTRUCTA = CREATESTRUCTA*;

using WINDOWPOS = struct tagWINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};

using NCCALCSIZE_PARAMS = struct tagNCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos;
};
using CWPSTRUCT = struct tagCWPSTRUCT {
    LPARAM lParam;
    WPARAM wParam;
    UINT message;
    HWND hwnd;
};
using CBT_CREATEWNDA = struct tagCBT_CREATEWNDA {
    struct tagCREATESTRUCTA* lpcs;
    HWND hwndInsertAfter;
};
using CBTACTIVATESTRUCT = struct tagCBTACTIVATESTRUCT {
    BOOL fMouse;
    HWND hWndActive;
};

using MOUSEINPUT = struct tagMOUSEINPUT {
    LONG dx;
    LONG dy;
    DWORD mouseData;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
};
using KEYBDINPUT = struct tagKEYBDINPUT {
    WORD wVk;
    WORD wScan;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
};
using INPUT = struct tagINPUT {
    DWORD type;
    union {
        MOUSEINPUT mi;
        KEYBDINPUT ki;
    };
};
using LPINPUT = INPUT*;

using MINMAXINFO = struct tagMINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};

using STYLESTRUCT = struct tagSTYLESTRUCT {
    DWORD styleOld;
    DWORD styleNew;
};

using WINDOWPLACEMENT = struct tagWINDOWPLACEMENT {
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;
};

using NMHDR = struct tagNMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using LPNMHDR = NMHDR*;

using TPMPARAMS = struct tagTPMPARAMS {
    UINT cbSize;
    RECT rcExclude;
};

using HELPINFO = struct tagHELPINFO {
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};
using LPHELPINFO = HELPINFO*;

using DRAWITEMSTRUCT = struct tagDRAWITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemAction;
    UINT itemState;
    HWND hwndItem;
    HDC hDC;
    RECT rcItem;
    ULONG_PTR itemData;
};
using LPDRAWITEMSTRUCT = DRAWITEMSTRUCT*;
using MEASUREITEMSTRUCT = struct tagMEASUREITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemWidth;
    UINT itemHeight;
    ULONG_PTR itemData;
};
using LPMEASUREITEMSTRUCT = MEASUREITEMSTRUCT*;
using DELETEITEMSTRUCT = struct tagDELETEITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    HWND hwndItem;
    ULONG_PTR itemData;
};
using LPDELETEITEMSTRUCT = DELETEITEMSTRUCT*;
using COMPAREITEMSTRUCT = struct tagCOMPAREITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    HWND hwndItem;
    UINT itemID1;
    ULONG_PTR itemData1;
    UINT itemID2;
    ULONG_PTR itemData2;
    DWORD dwLocaleId;
};
using LPCOMPAREITEMSTRUCT = COMPAREITEMSTRUCT*;

using TCITEMA = struct tagTCITEMA {
    UINT mask;
    DWORD dwState;
    DWORD dwStateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
};
using TCHITTESTINFO = struct tagTCHITTESTINFO {
    POINT pt;
    UINT flags;
};

using COMBOBOXINFO = struct tagCOMBOBOXINFO {
    DWORD cbSize;
    RECT rcItem;
    RECT rcButton;
    DWORD stateButton;
    HWND hwndCombo;
    HWND hwndItem;
    HWND hwndList;
};

using PAINTSTRUCT = struct tagPAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};
using LPPAINTSTRUCT = PAINTSTRUCT*;

using TEXTMETRICA = struct tagTEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};

using LOGFONTA = struct tagLOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[32];
};

using BITMAP = struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
};

using BITMAPINFOHEADER = struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};
using RGBQUAD = struct tagRGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};
using BITMAPINFO = struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

using METAFILEPICT = struct tagMETAFILEPICT {
    LONG mm;
    LONG xExt;
    LONG yExt;
    HMETAFILE hMF;
};

using TRACKMOUSEEVENT = struct tagTRACKMOUSEEVENT {
    DWORD cbSize;
    DWORD dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
};

using MONITORINFO = struct tagMONITORINFO {
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork;
    DWORD dwFlags;
};

using DLGTEMPLATE = struct tagDLGTEMPLATE {
    DWORD style;
    DWORD dwExtendedStyle;
    WORD cdit;
    short x;
    short y;
    short cx;
    short cy;
} __attribute__((packed, aligned(2)));
using LPCDLGTEMPLATEA = const DLGTEMPLATE*;

using DLGITEMTEMPLATE = struct tagDLGITEMTEMPLATE {
    DWORD style;
    DWORD dwExtendedStyle;
    short x;
    short y;
    short cx;
    short cy;
    WORD id;
} __attribute__((packed, aligned(2)));
