// Keys and mouse.
#pragma once

#include "zxadlg/headless/types.h"

// Keys.
inline constexpr int VK_LBUTTON = 1;
inline constexpr int VK_RBUTTON = 2;
inline constexpr int VK_CANCEL = 3;
inline constexpr int VK_MBUTTON = 4;
inline constexpr int VK_BACK = 8;
inline constexpr int VK_TAB = 9;
inline constexpr int VK_RETURN = 13;
inline constexpr int VK_SHIFT = 16;
inline constexpr int VK_CONTROL = 17;
inline constexpr int VK_MENU = 18;
inline constexpr int VK_CAPITAL = 20;
inline constexpr int VK_ESCAPE = 27;
inline constexpr int VK_SPACE = 32;
inline constexpr int VK_PRIOR = 33;
inline constexpr int VK_NEXT = 34;
inline constexpr int VK_END = 35;
inline constexpr int VK_HOME = 36;
inline constexpr int VK_LEFT = 37;
inline constexpr int VK_UP = 38;
inline constexpr int VK_RIGHT = 39;
inline constexpr int VK_DOWN = 40;
inline constexpr int VK_EXECUTE = 43;
inline constexpr int VK_INSERT = 45;
inline constexpr int VK_DELETE = 46;
inline constexpr int VK_F1 = 112;
inline constexpr int VK_F4 = 115;
inline constexpr int VK_F10 = 121;
inline constexpr int VK_LSHIFT = 160;
inline constexpr int VK_RSHIFT = 161;
inline constexpr int VK_LCONTROL = 162;
inline constexpr int VK_RCONTROL = 163;
inline constexpr int VK_OEM_PLUS = 187;
inline constexpr int VK_OEM_MINUS = 189;
inline constexpr int VK_ADD = 107;
inline constexpr int VK_SUBTRACT = 109;
inline constexpr int VK_NUMPAD0 = 96;
inline constexpr int VK_MULTIPLY = 106;
inline constexpr int VK_DIVIDE = 111;
inline constexpr int VK_NUMPAD9 = 105;
inline constexpr int VK_NUMLOCK = 144;
inline constexpr int VK_APPS = 93;
inline constexpr int VK_LMENU = 164;
inline constexpr int VK_RMENU = 165;
inline constexpr int VK_OEM_1 = 186;
inline constexpr int VK_OEM_COMMA = 188;
inline constexpr int VK_OEM_PERIOD = 190;
inline constexpr int VK_OEM_2 = 191;
inline constexpr int VK_OEM_3 = 192;
inline constexpr int VK_OEM_4 = 219;
inline constexpr int VK_OEM_5 = 220;
inline constexpr int VK_OEM_6 = 221;
inline constexpr int VK_OEM_7 = 222;
inline constexpr int VK_PACKET = 231;
inline constexpr int INPUT_MOUSE = 0;
inline constexpr int INPUT_KEYBOARD = 1;
inline constexpr int KEYEVENTF_EXTENDEDKEY = 0x1;
inline constexpr int KEYEVENTF_KEYUP = 0x2;
inline constexpr int KEYEVENTF_UNICODE = 0x4;
inline constexpr int KEYEVENTF_SCANCODE = 0x8;
inline constexpr int MOUSEEVENTF_MOVE = 0x1;
inline constexpr int MOUSEEVENTF_LEFTDOWN = 0x2;
inline constexpr int MOUSEEVENTF_LEFTUP = 0x4;
inline constexpr int MOUSEEVENTF_RIGHTDOWN = 0x8;
inline constexpr int MOUSEEVENTF_RIGHTUP = 0x10;
inline constexpr int MOUSEEVENTF_MIDDLEDOWN = 0x20;
inline constexpr int MOUSEEVENTF_MIDDLEUP = 0x40;
inline constexpr int MOUSEEVENTF_WHEEL = 0x800;
inline constexpr int MOUSEEVENTF_ABSOLUTE = 0x8000;
inline constexpr int MAPVK_VK_TO_VSC = 0;
inline constexpr int MAPVK_VSC_TO_VK = 1;
inline constexpr int MAPVK_VK_TO_CHAR = 2;
inline constexpr int VK_DECIMAL = 110;

// Mouse tracking.
inline constexpr int TME_HOVER = 0x1;
inline constexpr int TME_LEAVE = 0x2;
inline constexpr int TME_NONCLIENT = 0x10;
inline constexpr int TME_QUERY = 0x40000000;
inline constexpr DWORD TME_CANCEL = 0x80000000;
