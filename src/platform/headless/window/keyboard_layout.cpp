// The keyboard of the headless system, a US one: which characters keys type.
#include "platform/headless/system/codepage.h"
#include "platform/headless/window/input_state.h"

namespace headless {

namespace {

struct KeyCharacters {
    int key;
    char plain;
    char shifted;
};

constexpr KeyCharacters kKeys[] = {
    {'0', '0', ')'},           {'1', '1', '!'},          {'2', '2', '@'},
    {'3', '3', '#'},           {'4', '4', '$'},          {'5', '5', '%'},
    {'6', '6', '^'},           {'7', '7', '&'},          {'8', '8', '*'},
    {'9', '9', '('},           {VK_SPACE, ' ', ' '},     {VK_OEM_1, ';', ':'},
    {VK_OEM_PLUS, '=', '+'},   {VK_OEM_COMMA, ',', '<'}, {VK_OEM_MINUS, '-', '_'},
    {VK_OEM_PERIOD, '.', '>'}, {VK_OEM_2, '/', '?'},     {VK_OEM_3, '`', '~'},
    {VK_OEM_4, '[', '{'},      {VK_OEM_5, '\\', '|'},    {VK_OEM_6, ']', '}'},
    {VK_OEM_7, '\'', '"'},     {VK_RETURN, '\r', '\r'},  {VK_TAB, '\t', '\t'},
    {VK_BACK, '\b', '\b'},     {VK_ESCAPE, 27, 27},      {VK_MULTIPLY, '*', '*'},
    {VK_ADD, '+', '+'},        {VK_SUBTRACT, '-', '-'},  {VK_DECIMAL, '.', '.'},
    {VK_DIVIDE, '/', '/'},
};

// Scan codes of the letters' rows, from their first key on.
constexpr struct {
    const char* keys;
    int first;
} kRows[] = {{"1234567890", 2}, {"QWERTYUIOP", 16}, {"ASDFGHJKL", 30}, {"ZXCVBNM", 44}};

constexpr struct {
    int key;
    int scan;
} kScans[] = {{VK_ESCAPE, 1},   {VK_OEM_MINUS, 12}, {VK_OEM_PLUS, 13},  {VK_BACK, 14},
              {VK_TAB, 15},     {VK_OEM_4, 26},     {VK_OEM_6, 27},     {VK_RETURN, 28},
              {VK_CONTROL, 29}, {VK_OEM_1, 39},     {VK_OEM_7, 40},     {VK_OEM_3, 41},
              {VK_SHIFT, 42},   {VK_OEM_5, 43},     {VK_OEM_COMMA, 51}, {VK_OEM_PERIOD, 52},
              {VK_OEM_2, 53},   {VK_MULTIPLY, 55},  {VK_MENU, 56},      {VK_SPACE, 57},
              {VK_CAPITAL, 58}, {VK_NUMLOCK, 69},   {VK_HOME, 71},      {VK_UP, 72},
              {VK_PRIOR, 73},   {VK_SUBTRACT, 74},  {VK_LEFT, 75},      {VK_RIGHT, 77},
              {VK_ADD, 78},     {VK_END, 79},       {VK_DOWN, 80},      {VK_NEXT, 81},
              {VK_INSERT, 82},  {VK_DELETE, 83},    {VK_F1 + 10, 87},   {VK_F1 + 11, 88}};

int PlainCharacter(UINT key, bool shift, bool capital) {
    if (key >= 'A' && key <= 'Z') return static_cast<int>(key) + (shift != capital ? 0 : 'a' - 'A');
    if (key >= static_cast<UINT>(VK_NUMPAD0) && key <= static_cast<UINT>(VK_NUMPAD9))
        return '0' + static_cast<int>(key) - VK_NUMPAD0;
    for (const KeyCharacters& k : kKeys) {
        if (static_cast<UINT>(k.key) == key) return shift ? k.shifted : k.plain;
    }
    return -1;
}

}  // namespace

int CharacterOfKey(UINT key, const std::array<BYTE, 256>& keys) {
    const bool shift = (keys[VK_SHIFT] & 0x80) != 0;
    const bool control = (keys[VK_CONTROL] & 0x80) != 0;
    const bool alt = (keys[VK_MENU] & 0x80) != 0;
    const bool capital = (keys[VK_CAPITAL] & 1) != 0;
    if (!control) return PlainCharacter(key, shift, capital);
    if (alt) return -1;
    if (shift && (key == VK_RETURN || key == VK_BACK || key == VK_SPACE)) return -1;
    if (key >= 'A' && key <= 'Z') return static_cast<int>(key) - 'A' + 1;
    switch (key) {
        case VK_RETURN:
            return '\n';
        case VK_BACK:
            return 0x7F;
        case VK_SPACE:
            return ' ';
        case VK_ESCAPE:
        case VK_OEM_4:
            return 27;
        case VK_OEM_5:
            return 28;
        case VK_OEM_6:
            return 29;
        default:
            return -1;
    }
}

int KeyOfCharacter(unsigned char character) {
    if (character >= 'a' && character <= 'z') return character - 'a' + 'A';
    if (character >= 'A' && character <= 'Z') return character | 0x100;
    for (const KeyCharacters& k : kKeys) {
        if (k.plain == static_cast<char>(character)) return k.key;
        if (k.shifted == static_cast<char>(character)) return k.key | 0x100;
    }
    if (character >= 1 && character <= 26) return ('A' + character - 1) | 0x200;
    return -1;
}

int ScanCode(int key) {
    for (const auto& row : kRows) {
        for (int i = 0; row.keys[i] != '\0'; ++i) {
            if (row.keys[i] == key) return row.first + i;
        }
    }
    for (const auto& s : kScans) {
        if (s.key == key) return s.scan;
    }
    if (key >= VK_F1 && key < VK_F1 + 10) return 59 + key - VK_F1;
    return 0;
}

}  // namespace headless

using namespace headless;

BOOL TranslateMessage(const MSG* msg) {
    if (msg == nullptr) return FALSE;
    const bool plain = msg->message == static_cast<UINT>(WM_KEYDOWN);
    const bool system = msg->message == static_cast<UINT>(WM_SYSKEYDOWN);
    if (!plain && !system)
        return msg->message == static_cast<UINT>(WM_KEYUP) ||
               msg->message == static_cast<UINT>(WM_SYSKEYUP);
    int character = -1;
    if (LOWORD(msg->wParam) == VK_PACKET) {
        character = HIWORD(msg->wParam) & 0xFF;
    } else {
        character = CharacterOfKey(static_cast<UINT>(msg->wParam), ThisWorld().input->keys);
    }
    if (character >= 0)
        PostMessageA(msg->hwnd, plain ? WM_CHAR : WM_SYSCHAR, static_cast<WPARAM>(character),
                     msg->lParam);
    return TRUE;
}

SHORT VkKeyScanA(CHAR character) {
    return static_cast<SHORT>(KeyOfCharacter(static_cast<unsigned char>(character)));
}

UINT MapVirtualKeyA(UINT code, UINT type) {
    switch (type) {
        case MAPVK_VK_TO_VSC:
            return static_cast<UINT>(ScanCode(static_cast<int>(code)));
        case MAPVK_VSC_TO_VK:
            for (int key = 1; key < 255; ++key) {
                if (code != 0 && ScanCode(key) == static_cast<int>(code))
                    return static_cast<UINT>(key);
            }
            return 0;
        case MAPVK_VK_TO_CHAR: {
            const int character = PlainCharacter(code, false, true);
            return character < 0 ? 0 : static_cast<UINT>(character);
        }
        default:
            return 0;
    }
}
