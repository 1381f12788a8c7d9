// Popup menus.
#pragma once

inline constexpr int MF_STRING = 0x0;
inline constexpr int MF_BYCOMMAND = 0x0;
inline constexpr int MF_ENABLED = 0x0;
inline constexpr int MF_GRAYED = 0x1;
inline constexpr int MF_DISABLED = 0x2;
inline constexpr int MF_HILITE = 0x80;
inline constexpr int MF_BYPOSITION = 0x400;
inline constexpr int MF_SEPARATOR = 0x800;

inline constexpr int TPM_LEFTALIGN = 0x0;
inline constexpr int TPM_TOPALIGN = 0x0;
inline constexpr int TPM_VERTICAL = 0x40;
inline constexpr int TPM_NONOTIFY = 0x80;
inline constexpr int TPM_RETURNCMD = 0x100;

inline constexpr int WM_MENUCHAR = 0x120;
inline constexpr int MNC_IGNORE = 0;
inline constexpr int MNC_CLOSE = 1;
inline constexpr int MNC_EXECUTE = 2;
inline constexpr int MNC_SELECT = 3;
inline constexpr int MN_GETHMENU = 0x1E1;
