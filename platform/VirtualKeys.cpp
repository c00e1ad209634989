#include "platform/VirtualKeys.h"

#include <algorithm>
#include <array>

namespace nerlo::platform {

namespace {

// Sources: the key code constants (kVK_...) of macOS's HIToolbox/Events.h and the KEY_... constants
// of Linux's input-event-codes.h, joined by the place of the key. The key beside the left Shift of
// an ISO keyboard is 10 whatever is printed on it. Where a PC keyboard has another label: Insert
// stands in Help's place, Num Lock in Clear's, the Japanese Alphanumeric and Kana keys are those
// that HID names LANG2 and LANG1. Keys that macOS has no code for (Print Screen, Pause, Scroll
// Lock, Henkan, media keys but volume) are not here.
constexpr std::array keys{
    VirtualKey{0, 30},    // A
    VirtualKey{1, 31},    // S
    VirtualKey{2, 32},    // D
    VirtualKey{3, 33},    // F
    VirtualKey{4, 35},    // H
    VirtualKey{5, 34},    // G
    VirtualKey{6, 44},    // Z
    VirtualKey{7, 45},    // X
    VirtualKey{8, 46},    // C
    VirtualKey{9, 47},    // V
    VirtualKey{10, 86},   // ISO, beside the left Shift
    VirtualKey{11, 48},   // B
    VirtualKey{12, 16},   // Q
    VirtualKey{13, 17},   // W
    VirtualKey{14, 18},   // E
    VirtualKey{15, 19},   // R
    VirtualKey{16, 21},   // Y
    VirtualKey{17, 20},   // T
    VirtualKey{18, 2},    // 1
    VirtualKey{19, 3},    // 2
    VirtualKey{20, 4},    // 3
    VirtualKey{21, 5},    // 4
    VirtualKey{22, 7},    // 6
    VirtualKey{23, 6},    // 5
    VirtualKey{24, 13},   // =
    VirtualKey{25, 10},   // 9
    VirtualKey{26, 8},    // 7
    VirtualKey{27, 12},   // -
    VirtualKey{28, 9},    // 8
    VirtualKey{29, 11},   // 0
    VirtualKey{30, 27},   // ]
    VirtualKey{31, 24},   // O
    VirtualKey{32, 22},   // U
    VirtualKey{33, 26},   // [
    VirtualKey{34, 23},   // I
    VirtualKey{35, 25},   // P
    VirtualKey{36, 28},   // Return
    VirtualKey{37, 38},   // L
    VirtualKey{38, 36},   // J
    VirtualKey{39, 40},   // '
    VirtualKey{40, 37},   // K
    VirtualKey{41, 39},   // ;
    VirtualKey{42, 43},   // backslash
    VirtualKey{43, 51},   // ,
    VirtualKey{44, 53},   // /
    VirtualKey{45, 49},   // N
    VirtualKey{46, 50},   // M
    VirtualKey{47, 52},   // .
    VirtualKey{48, 15},   // Tab
    VirtualKey{49, 57},   // Space
    VirtualKey{50, 41},   // `
    VirtualKey{51, 14},   // Delete (Backspace)
    VirtualKey{53, 1},    // Escape
    VirtualKey{54, 97},   // right Command (right Ctrl)
    VirtualKey{55, 29},   // Command (left Ctrl)
    VirtualKey{56, 42},   // left Shift
    VirtualKey{57, 58},   // Caps Lock
    VirtualKey{58, 56},   // Option (left Alt)
    VirtualKey{59, 125},  // Control (left Super)
    VirtualKey{60, 54},   // right Shift
    VirtualKey{61, 100},  // right Option (right Alt)
    VirtualKey{62, 126},  // right Control (right Super)
    VirtualKey{63, 464},  // Fn
    VirtualKey{64, 187},  // F17
    VirtualKey{65, 83},   // keypad decimal
    VirtualKey{67, 55},   // keypad multiply
    VirtualKey{69, 78},   // keypad plus
    VirtualKey{71, 69},   // keypad clear (Num Lock)
    VirtualKey{72, 115},  // volume up
    VirtualKey{73, 114},  // volume down
    VirtualKey{74, 113},  // mute
    VirtualKey{75, 98},   // keypad divide
    VirtualKey{76, 96},   // keypad Enter
    VirtualKey{78, 74},   // keypad minus
    VirtualKey{79, 188},  // F18
    VirtualKey{80, 189},  // F19
    VirtualKey{81, 117},  // keypad equals
    VirtualKey{82, 82},   // keypad 0
    VirtualKey{83, 79},   // keypad 1
    VirtualKey{84, 80},   // keypad 2
    VirtualKey{85, 81},   // keypad 3
    VirtualKey{86, 75},   // keypad 4
    VirtualKey{87, 76},   // keypad 5
    VirtualKey{88, 77},   // keypad 6
    VirtualKey{89, 71},   // keypad 7
    VirtualKey{90, 190},  // F20
    VirtualKey{91, 72},   // keypad 8
    VirtualKey{92, 73},   // keypad 9
    VirtualKey{93, 124},  // JIS Yen
    VirtualKey{94, 89},   // JIS underscore (Ro)
    VirtualKey{95, 121},  // JIS keypad comma
    VirtualKey{96, 63},   // F5
    VirtualKey{97, 64},   // F6
    VirtualKey{98, 65},   // F7
    VirtualKey{99, 61},   // F3
    VirtualKey{100, 66},  // F8
    VirtualKey{101, 67},  // F9
    VirtualKey{102, 123}, // JIS Alphanumeric (LANG2)
    VirtualKey{103, 87},  // F11
    VirtualKey{104, 122}, // JIS Kana (LANG1)
    VirtualKey{105, 183}, // F13
    VirtualKey{106, 186}, // F16
    VirtualKey{107, 184}, // F14
    VirtualKey{109, 68},  // F10
    VirtualKey{110, 127}, // context menu
    VirtualKey{111, 88},  // F12
    VirtualKey{113, 185}, // F15
    VirtualKey{114, 110}, // Help (Insert)
    VirtualKey{115, 102}, // Home
    VirtualKey{116, 104}, // Page Up
    VirtualKey{117, 111}, // Forward Delete
    VirtualKey{118, 62},  // F4
    VirtualKey{119, 107}, // End
    VirtualKey{120, 60},  // F2
    VirtualKey{121, 109}, // Page Down
    VirtualKey{122, 59},  // F1
    VirtualKey{123, 105}, // Left
    VirtualKey{124, 106}, // Right
    VirtualKey{125, 108}, // Down
    VirtualKey{126, 103}, // Up
};

constexpr std::uint32_t x11Offset = 8;

} // namespace

std::span<const VirtualKey> virtualKeys() {
    return keys;
}

std::optional<std::uint16_t> evdevOfVirtualKey(std::uint64_t code) {
    const auto *key = std::ranges::find(keys, code, &VirtualKey::code);
    return key == keys.end() ? std::nullopt : std::optional(key->evdev);
}

std::optional<std::uint16_t> virtualKeyOfEvdev(std::uint32_t evdev) {
    const auto *key = std::ranges::find(keys, evdev, &VirtualKey::evdev);
    return key == keys.end() ? std::nullopt : std::optional(key->code);
}

std::optional<std::uint8_t> x11KeyOfVirtualKey(std::uint64_t code) {
    const auto evdev = evdevOfVirtualKey(code);
    if (!evdev || *evdev > 255 - x11Offset) {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(*evdev + x11Offset);
}

std::optional<std::uint16_t> virtualKeyOfX11Key(std::uint32_t keycode) {
    return keycode < x11Offset ? std::nullopt : virtualKeyOfEvdev(keycode - x11Offset);
}

} // namespace nerlo::platform
