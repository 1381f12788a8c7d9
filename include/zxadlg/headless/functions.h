// The functions of the platform that the library, its tests and its example host call. Each does
// what the platform's own function of that name does; a request that is not supported is recorded
// and fails loudly (see diagnostics.h).
#pragma once

#include "zxadlg/headless/constants.h"
#include "zxadlg/headless/types.h"

// --- Window classes --------------------------------------------------------------------------
ATOM RegisterClassA(const WNDCLASSA* wc);
BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance);
BOOL GetClassInfoA(HINSTANCE instance, LPCSTR className, WNDCLASSA* wc);
int GetClassNameA(HWND hwnd, LPSTR buffer, int size);

// --- Windows ---------------------------------------------------------------------------------
HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                     int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     LPVOID param);
#define CreateWindowA(cls, name, style, x, y, w, h, parent, menu, inst, param) \
    CreateWindowExA(0, cls, name, style, x, y, w, h, parent, menu, inst, param)
BOOL DestroyWindow(HWND hwnd);
BOOL IsWindow(HWND hwnd);
BOOL IsChild(HWND parent, HWND hwnd);
BOOL IsIconic(HWND hwnd);
BOOL IsWindowVisible(HWND hwnd);
BOOL IsWindowEnabled(HWND hwnd);
BOOL EnableWindow(HWND hwnd, BOOL enable);
BOOL ShowWindow(HWND hwnd, int command);
BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND hwnd, HWND insertAfter, int x, int y, int cx, int cy, UINT flags);
BOOL BringWindowToTop(HWND hwnd);
BOOL GetWindowRect(HWND hwnd, RECT* rect);
BOOL GetClientRect(HWND hwnd, RECT* rect);
BOOL GetWindowPlacement(HWND hwnd, WINDOWPLACEMENT* placement);
BOOL ClientToScreen(HWND hwnd, POINT* point);
BOOL ScreenToClient(HWND hwnd, POINT* point);
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL menu, DWORD exStyle);
BOOL SetWindowTextA(HWND hwnd, LPCSTR text);
int GetWindowTextA(HWND hwnd, LPSTR buffer, int size);
int GetWindowTextLengthA(HWND hwnd);
HWND GetParent(HWND hwnd);
HWND SetParent(HWND hwnd, HWND parent);
HWND GetAncestor(HWND hwnd, UINT flags);
HWND GetWindow(HWND hwnd, UINT command);
HWND GetTopWindow(HWND hwnd);
HWND GetLastActivePopup(HWND hwnd);
#define GetNextWindow(hwnd, command) GetWindow(hwnd, command)
HWND GetDesktopWindow();
HWND FindWindowA(LPCSTR className, LPCSTR windowName);
HWND FindWindowExA(HWND parent, HWND childAfter, LPCSTR className, LPCSTR windowName);
HWND ChildWindowFromPoint(HWND parent, POINT point);
BOOL EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM param);
BOOL EnumThreadWindows(DWORD thread, WNDENUMPROC proc, LPARAM param);
BOOL EnumWindows(WNDENUMPROC proc, LPARAM param);
DWORD GetWindowThreadProcessId(HWND hwnd, DWORD* process);
LONG GetWindowLongA(HWND hwnd, int index);
LONG SetWindowLongA(HWND hwnd, int index, LONG value);
LONG_PTR GetWindowLongPtrA(HWND hwnd, int index);
LONG_PTR SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value);
HANDLE GetPropA(HWND hwnd, LPCSTR name);
BOOL SetPropA(HWND hwnd, LPCSTR name, HANDLE value);
HANDLE RemovePropA(HWND hwnd, LPCSTR name);
LRESULT CallWindowProcA(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT DefWindowProcA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

// --- Popup menus -----------------------------------------------------------------------------
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU menu);
BOOL IsMenu(HMENU menu);
BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, LPCSTR text);
int GetMenuItemCount(HMENU menu);
UINT GetMenuItemID(HMENU menu, int position);
UINT GetMenuState(HMENU menu, UINT item, UINT flags);
int GetMenuStringA(HMENU menu, UINT item, LPSTR buffer, int size, UINT flags);
BOOL GetMenuItemRect(HWND hwnd, HMENU menu, UINT position, RECT* rect);
BOOL TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND owner, TPMPARAMS* params);

// --- Focus, activation, keyboard and mouse ---------------------------------------------------
HWND GetFocus();
HWND SetFocus(HWND hwnd);
HWND GetActiveWindow();
HWND SetActiveWindow(HWND hwnd);
HWND GetForegroundWindow();
BOOL SetForegroundWindow(HWND hwnd);
HWND GetCapture();
HWND SetCapture(HWND hwnd);
BOOL ReleaseCapture();
SHORT GetKeyState(int key);
SHORT GetAsyncKeyState(int key);
BOOL GetKeyboardState(BYTE* state);
BOOL SetKeyboardState(BYTE* state);
BOOL GetCursorPos(POINT* point);
BOOL SetCursorPos(int x, int y);
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);
HICON LoadIconA(HINSTANCE instance, LPCSTR name);
BOOL TrackMouseEvent(TRACKMOUSEEVENT* event);
BOOL _TrackMouseEvent(TRACKMOUSEEVENT* event);
UINT GetDoubleClickTime();
UINT SendInput(UINT count, INPUT* inputs, int size);
SHORT VkKeyScanA(CHAR character);
UINT MapVirtualKeyA(UINT code, UINT type);
BOOL MessageBeep(UINT type);

// --- Messages, timers and hooks --------------------------------------------------------------
LRESULT SendMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostThreadMessageA(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int code);
BOOL GetMessageA(MSG* msg, HWND hwnd, UINT first, UINT last);
BOOL PeekMessageA(MSG* msg, HWND hwnd, UINT first, UINT last, UINT remove);
BOOL WaitMessage();
DWORD MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL all, DWORD milliseconds,
                                DWORD mask);
BOOL TranslateMessage(const MSG* msg);
LRESULT DispatchMessageA(const MSG* msg);
BOOL InSendMessage();
UINT RegisterWindowMessageA(LPCSTR name);
UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc);
BOOL KillTimer(HWND hwnd, UINT_PTR id);
DWORD GetTickCount();
void Sleep(DWORD milliseconds);
HHOOK SetWindowsHookExA(int id, HOOKPROC proc, HINSTANCE module, DWORD thread);
BOOL UnhookWindowsHookEx(HHOOK hook);
LRESULT CallNextHookEx(HHOOK hook, int code, WPARAM wParam, LPARAM lParam);
BOOL CallMsgFilterA(MSG* msg, int code);

// --- Dialogs ---------------------------------------------------------------------------------
INT_PTR DialogBoxParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC proc, LPARAM param);
INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialog, HWND parent,
                                DLGPROC proc, LPARAM param);
HWND CreateDialogParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC proc, LPARAM param);
HWND CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialog, HWND parent,
                                DLGPROC proc, LPARAM param);
BOOL EndDialog(HWND dialog, INT_PTR result);
BOOL IsDialogMessageA(HWND dialog, MSG* msg);
LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND hwnd);
BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
UINT GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size);
BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL CheckDlgButton(HWND dialog, int id, UINT check);
BOOL CheckRadioButton(HWND dialog, int first, int last, int checked);
UINT IsDlgButtonChecked(HWND dialog, int id);
HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
BOOL MapDialogRect(HWND dialog, RECT* rect);
LONG GetDialogBaseUnits();
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// --- Painting --------------------------------------------------------------------------------
BOOL InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase);
BOOL ValidateRect(HWND hwnd, const RECT* rect);
BOOL GetUpdateRect(HWND hwnd, RECT* rect, BOOL erase);
BOOL UpdateWindow(HWND hwnd);
BOOL RedrawWindow(HWND hwnd, const RECT* rect, HRGN region, UINT flags);
HDC BeginPaint(HWND hwnd, PAINTSTRUCT* paint);
BOOL EndPaint(HWND hwnd, const PAINTSTRUCT* paint);
HDC GetDC(HWND hwnd);
HDC GetWindowDC(HWND hwnd);
int ReleaseDC(HWND hwnd, HDC dc);
HDC CreateCompatibleDC(HDC dc);
BOOL DeleteDC(HDC dc);
int SaveDC(HDC dc);
BOOL RestoreDC(HDC dc, int level);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
HGDIOBJ GetCurrentObject(HDC dc, UINT type);
BOOL DeleteObject(HGDIOBJ object);
HGDIOBJ GetStockObject(int index);
int GetObjectA(HANDLE object, int size, LPVOID buffer);
DWORD GetObjectType(HGDIOBJ object);
HFONT CreateFontIndirectA(const LOGFONTA* font);
HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                  DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR faceName);
HPEN CreatePen(int style, int width, COLORREF color);
HBRUSH CreateSolidBrush(COLORREF color);
HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD offset);
HBITMAP LoadBitmapA(HINSTANCE instance, LPCSTR name);
HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int cx, int cy, UINT flags);
HBRUSH GetSysColorBrush(int index);
DWORD GetSysColor(int index);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF GetTextColor(HDC dc);
COLORREF SetBkColor(HDC dc, COLORREF color);
COLORREF GetBkColor(HDC dc);
int SetBkMode(HDC dc, int mode);
int GetBkMode(HDC dc);
UINT SetTextAlign(HDC dc, UINT align);
int SetROP2(HDC dc, int mode);
int SetMapMode(HDC dc, int mode);
int GetMapMode(HDC dc);
BOOL SetWindowExtEx(HDC dc, int x, int y, SIZE* old);
BOOL SetViewportExtEx(HDC dc, int x, int y, SIZE* old);
BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old);
BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old);
BOOL GetWindowExtEx(HDC dc, SIZE* size);
int GetDeviceCaps(HDC dc, int index);
BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics);
BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, SIZE* size);
int GetTextFaceA(HDC dc, int size, LPSTR buffer);
int DrawTextA(HDC dc, LPCSTR text, int length, RECT* rect, UINT format);
BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length);
BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                 const INT* dx);
int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
BOOL InvertRect(HDC dc, const RECT* rect);
BOOL DrawFocusRect(HDC dc, const RECT* rect);
BOOL DrawEdge(HDC dc, RECT* rect, UINT edge, UINT flags);
BOOL DrawFrameControl(HDC dc, RECT* rect, UINT type, UINT state);
BOOL DrawIcon(HDC dc, int x, int y, HICON icon);
BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
BOOL LineTo(HDC dc, int x, int y);
BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
BOOL Polygon(HDC dc, const POINT* points, int count);
BOOL Polyline(HDC dc, const POINT* points, int count);
BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation);
BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
            DWORD operation);
BOOL StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, DWORD operation);
COLORREF GetPixel(HDC dc, int x, int y);
COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
HENHMETAFILE SetWinMetaFileBits(UINT size, const BYTE* data, HDC reference,
                                const METAFILEPICT* picture);
BOOL PlayEnhMetaFile(HDC dc, HENHMETAFILE metafile, const RECT* rect);
BOOL DeleteEnhMetaFile(HENHMETAFILE metafile);

// --- Rectangles ------------------------------------------------------------------------------
BOOL SetRect(RECT* rect, int left, int top, int right, int bottom);
BOOL SetRectEmpty(RECT* rect);
BOOL InflateRect(RECT* rect, int dx, int dy);
BOOL OffsetRect(RECT* rect, int dx, int dy);
BOOL IntersectRect(RECT* result, const RECT* a, const RECT* b);
BOOL UnionRect(RECT* result, const RECT* a, const RECT* b);
BOOL IsRectEmpty(const RECT* rect);
BOOL EqualRect(const RECT* a, const RECT* b);
BOOL PtInRect(const RECT* rect, POINT point);

// --- System ----------------------------------------------------------------------------------
int GetSystemMetrics(int index);
BOOL SystemParametersInfoA(UINT action, UINT param, PVOID data, UINT flags);
HMONITOR MonitorFromRect(const RECT* rect, DWORD flags);
HMONITOR MonitorFromPoint(POINT point, DWORD flags);
HMONITOR MonitorFromWindow(HWND hwnd, DWORD flags);
BOOL GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info);
DWORD GetCurrentThreadId();
DWORD GetCurrentProcessId();
HANDLE GetCurrentProcess();
DWORD GetLastError();
void SetLastError(DWORD error);
int MulDiv(int number, int numerator, int denominator);

// --- Clipboard -------------------------------------------------------------------------------
BOOL OpenClipboard(HWND owner);
BOOL CloseClipboard();
BOOL EmptyClipboard();
HANDLE SetClipboardData(UINT format, HANDLE data);
HANDLE GetClipboardData(UINT format);
BOOL IsClipboardFormatAvailable(UINT format);
HGLOBAL GlobalAlloc(UINT flags, SIZE_T size);
HGLOBAL GlobalFree(HGLOBAL memory);
LPVOID GlobalLock(HGLOBAL memory);
BOOL GlobalUnlock(HGLOBAL memory);
SIZE_T GlobalSize(HGLOBAL memory);

// --- Modules and resources -------------------------------------------------------------------
HMODULE GetModuleHandleA(LPCSTR name);
BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module);
DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
HMODULE LoadLibraryA(LPCSTR name);
HMODULE LoadLibraryExA(LPCSTR name, HANDLE file, DWORD flags);
BOOL FreeLibrary(HMODULE module);
FARPROC GetProcAddress(HMODULE module, LPCSTR name);
HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
HGLOBAL LoadResource(HMODULE module, HRSRC resource);
LPVOID LockResource(HGLOBAL resource);
DWORD SizeofResource(HMODULE module, HRSRC resource);
BOOL EnumResourceNamesA(HMODULE module, LPCSTR type, ENUMRESNAMEPROCA proc, LONG_PTR param);
int LoadStringA(HINSTANCE instance, UINT id, LPSTR buffer, int size);

// --- Themes and common controls --------------------------------------------------------------
void InitCommonControls();
BOOL IsAppThemed();
BOOL IsThemeActive();
DWORD GetThemeAppProperties();
HTHEME OpenThemeData(HWND hwnd, LPCWSTR classList);
HRESULT CloseThemeData(HTHEME theme);
HRESULT DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, const RECT* rect,
                            const RECT* clip);
HRESULT DrawThemeParentBackground(HWND hwnd, HDC dc, const RECT* rect);
HRESULT EnableThemeDialogTexture(HWND hwnd, DWORD flags);
BOOL IsThemeDialogTextureEnabled(HWND hwnd);
HRESULT SetWindowTheme(HWND hwnd, LPCWSTR appName, LPCWSTR idList);

// --- Profile files, registry, environment, files ---------------------------------------------
DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer,
                               DWORD size, LPCSTR file);
UINT GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue, LPCSTR file);
DWORD GetPrivateProfileSectionA(LPCSTR section, LPSTR buffer, DWORD size, LPCSTR file);
DWORD GetPrivateProfileSectionNamesA(LPSTR buffer, DWORD size, LPCSTR file);
BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file);
BOOL WritePrivateProfileSectionA(LPCSTR section, LPCSTR pairs, LPCSTR file);
LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);
LSTATUS RegCreateKeyExA(HKEY key, LPCSTR subKey, DWORD reserved, LPSTR className, DWORD options,
                        REGSAM access, void* security, HKEY* result, DWORD* disposition);
LSTATUS RegCloseKey(HKEY key);
LSTATUS RegFlushKey(HKEY key);
LSTATUS RegDeleteKeyA(HKEY key, LPCSTR subKey);
LSTATUS RegDeleteTreeA(HKEY key, LPCSTR subKey);
LSTATUS RegDeleteValueA(HKEY key, LPCSTR name);
LSTATUS RegSetValueExA(HKEY key, LPCSTR name, DWORD reserved, DWORD type, const BYTE* data,
                       DWORD size);
LSTATUS RegQueryValueExA(HKEY key, LPCSTR name, DWORD* reserved, DWORD* type, BYTE* data,
                         DWORD* size);
LSTATUS RegEnumKeyExA(HKEY key, DWORD index, LPSTR name, DWORD* nameSize, DWORD* reserved,
                      LPSTR className, DWORD* classSize, void* lastWrite);
LSTATUS RegEnumValueA(HKEY key, DWORD index, LPSTR name, DWORD* nameSize, DWORD* reserved,
                      DWORD* type, BYTE* data, DWORD* dataSize);
DWORD GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size);
BOOL SetEnvironmentVariableA(LPCSTR name, LPCSTR value);
DWORD GetFullPathNameA(LPCSTR path, DWORD size, LPSTR buffer, LPSTR* filePart);
DWORD GetTempPathA(DWORD size, LPSTR buffer);
UINT GetTempFileNameA(LPCSTR directory, LPCSTR prefix, UINT unique, LPSTR buffer);
DWORD GetCurrentDirectoryA(DWORD size, LPSTR buffer);
UINT GetWindowsDirectoryA(LPSTR buffer, UINT size);
BOOL CreateDirectoryA(LPCSTR path, void* security);
BOOL RemoveDirectoryA(LPCSTR path);
DWORD GetFileAttributesA(LPCSTR path);
BOOL SetFileAttributesA(LPCSTR path, DWORD attributes);
BOOL DeleteFileA(LPCSTR path);
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);
HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, void* security, DWORD disposition,
                   DWORD flags, HANDLE pattern);
BOOL ReadFile(HANDLE file, LPVOID buffer, DWORD count, DWORD* done, void* overlapped);
BOOL WriteFile(HANDLE file, LPCVOID buffer, DWORD count, DWORD* done, void* overlapped);
BOOL FlushFileBuffers(HANDLE file);
DWORD GetFileSize(HANDLE file, DWORD* high);
BOOL CloseHandle(HANDLE handle);
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
HRESULT SHGetFolderPathA(HWND owner, int folder, HANDLE token, DWORD flags, LPSTR path);
