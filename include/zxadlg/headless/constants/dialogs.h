// Dialogs and message boxes.
#pragma once

#include "zxadlg/headless/constants/system.h"
#include "zxadlg/headless/types.h"

// Dialog styles and class.
inline constexpr int DS_ABSALIGN = 0x1;
inline constexpr int DS_SYSMODAL = 0x2;
inline constexpr int DS_LOCALEDIT = 0x20;
inline constexpr int DS_SETFONT = 0x40;
inline constexpr int DS_MODALFRAME = 0x80;
inline constexpr int DS_NOIDLEMSG = 0x100;
inline constexpr int DS_SETFOREGROUND = 0x200;
inline constexpr int DS_3DLOOK = 0x4;
inline constexpr int DS_FIXEDSYS = 0x8;
inline constexpr int DS_NOFAILCREATE = 0x10;
inline constexpr int DS_CONTROL = 0x400;
inline constexpr int DS_CENTER = 0x800;
inline constexpr int DS_CENTERMOUSE = 0x1000;
inline constexpr int DS_CONTEXTHELP = 0x2000;
inline constexpr int DS_SHELLFONT = 0x48;

// Places in the extra bytes of a dialog; they depend on the size of a result.
inline constexpr int DWLP_MSGRESULT = 0;
inline constexpr int DWLP_DLGPROC = static_cast<int>(sizeof(LRESULT));
inline constexpr int DWLP_USER = static_cast<int>(sizeof(LRESULT) + sizeof(DLGPROC));

// Message boxes and standard ids.
inline constexpr int MB_OK = 0x0;
inline constexpr int MB_OKCANCEL = 0x1;
inline constexpr int MB_ABORTRETRYIGNORE = 0x2;
inline constexpr int MB_YESNOCANCEL = 0x3;
inline constexpr int MB_YESNO = 0x4;
inline constexpr int MB_RETRYCANCEL = 0x5;
inline constexpr int MB_ICONHAND = 0x10;
inline constexpr int MB_ICONQUESTION = 0x20;
inline constexpr int MB_ICONEXCLAMATION = 0x30;
inline constexpr int MB_ICONASTERISK = 0x40;
inline constexpr int MB_ICONERROR = 0x10;
inline constexpr int MB_ICONWARNING = 0x30;
inline constexpr int MB_ICONMASK = 0xF0;
inline constexpr int MB_TYPEMASK = 0xF;
inline constexpr int MB_DEFBUTTON2 = 0x100;
inline constexpr int MB_DEFBUTTON3 = 0x200;
inline constexpr int MB_DEFMASK = 0xF00;
inline constexpr int MB_SYSTEMMODAL = 0x1000;
inline constexpr int MB_TASKMODAL = 0x2000;
inline constexpr int MB_HELP = 0x4000;
inline constexpr int MB_SETFOREGROUND = 0x10000;
inline constexpr int MB_TOPMOST = 0x40000;
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDABORT = 3;
inline constexpr int IDRETRY = 4;
inline constexpr int IDIGNORE = 5;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
inline constexpr int IDHELP = 9;
inline constexpr int IDTRYAGAIN = 10;
inline constexpr int IDCONTINUE = 11;
inline constexpr int MB_NOFOCUS = 0x8000;
inline constexpr int MB_DEFAULT_DESKTOP_ONLY = 0x20000;
inline constexpr int MB_RIGHT = 0x80000;
inline constexpr int MB_RTLREADING = 0x100000;
inline constexpr int MB_SERVICE_NOTIFICATION = 0x200000;
