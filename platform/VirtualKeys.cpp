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
    VirtualKey{0, 30},  // A
    VirtualKey{1, 31},  // S
    VirtualKey{2, 32},  // D
    VirtualKey{3, 33},  // F
    VirtualKey{4, 35},  // H
    VirtualKey{5, 34},  // G
    VirtualKey{6, 44},  // Z
    VirtualKey{7, 45},  // X
    VirtualKey{8, 46},  // C
    VirtualKey{9, 47},  // V
    VirtualKey{10, 86}, // ISO, beside the left Shift
    VirtualKey{11, 48}, // B
    VirtualKey{12, 16}, // Q
    VirtualKey{13, 17}, // W
    VirtualKey{14, 18}, // E
    VirtualKey{15, 19}, // R
    VirtualKey{16, 21}, // Y
    VirtualKey{17, 20}, // T
    VirtualKey{18, 2},  // 1
    VirtualKey{19, 3},  // 2
    VirtualKey{20, 4},  // 3
    VirtualKey{21, 5},  // 4
    VirtualKey{22, 7},  // 6
    VirtualKey{23, 6},  // 5
    VirtualKey{24, 13}, // =
    VirtualKey{25, 10}, // 9
    VirtualKey{26, 8},  // 7
    VirtualKey{27, 12}, // -
    VirtualKey{28, 9},  // 8
    VirtualKey{29, 11}, // 0
    VirtualKey{30, 27}, // ]
    VirtualKey{31, 24}, // O
    VirtualKey{32, 22}, // U
    VirtualKey{33, 26}, // [
    VirtualKey{34, 23}, // I
    VirtualKey{35, 25}, // P
    VirtualKey{36, 28, u"\u21a9", u"Return"},
    VirtualKey{37, 38}, // L
    VirtualKey{38, 36}, // J
    VirtualKey{39, 40}, // '
    VirtualKey{40, 37}, // K
    VirtualKey{41, 39}, // ;
    VirtualKey{42, 43}, // backslash
    VirtualKey{43, 51}, // ,
    VirtualKey{44, 53}, // /
    VirtualKey{45, 49}, // N
    VirtualKey{46, 50}, // M
    VirtualKey{47, 52}, // .
    VirtualKey{48, 15, u"\u21e5", u"Tab"},
    VirtualKey{49, 57, u"Space"},
    VirtualKey{50, 41},                          // `
    VirtualKey{51, 14, u"\u232b", u"Backspace"}, // Delete
    VirtualKey{53, 1, u"\u238b", u"Escape"},
    VirtualKey{54, 97},  // right Command (right Ctrl)
    VirtualKey{55, 29},  // Command (left Ctrl)
    VirtualKey{56, 42},  // left Shift
    VirtualKey{57, 58},  // Caps Lock
    VirtualKey{58, 56},  // Option (left Alt)
    VirtualKey{59, 125}, // Control (left Super)
    VirtualKey{60, 54},  // right Shift
    VirtualKey{61, 100}, // right Option (right Alt)
    VirtualKey{62, 126}, // right Control (right Super)
    VirtualKey{63, 464}, // Fn
    VirtualKey{64, 187, u"F17", u"", 17},
    VirtualKey{65, 83, u".", u"Keypad ."},
    VirtualKey{67, 55, u"*", u"Keypad *"},
    VirtualKey{69, 78, u"+", u"Keypad +"},
    VirtualKey{71, 69, u"\u2327", u"Num Lock"}, // Clear
    VirtualKey{72, 115},                        // volume up
    VirtualKey{73, 114},                        // volume down
    VirtualKey{74, 113},                        // mute
    VirtualKey{75, 98, u"/", u"Keypad /"},
    VirtualKey{76, 96, u"\u2305", u"Keypad Enter"},
    VirtualKey{78, 74, u"\u2013", u"Keypad -"},
    VirtualKey{79, 188, u"F18", u"", 18},
    VirtualKey{80, 189, u"F19", u"", 19},
    VirtualKey{81, 117, u"=", u"Keypad ="},
    VirtualKey{82, 82, u"0", u"Keypad 0"},
    VirtualKey{83, 79, u"1", u"Keypad 1"},
    VirtualKey{84, 80, u"2", u"Keypad 2"},
    VirtualKey{85, 81, u"3", u"Keypad 3"},
    VirtualKey{86, 75, u"4", u"Keypad 4"},
    VirtualKey{87, 76, u"5", u"Keypad 5"},
    VirtualKey{88, 77, u"6", u"Keypad 6"},
    VirtualKey{89, 71, u"7", u"Keypad 7"},
    VirtualKey{90, 190, u"", u"", 20}, // F20
    VirtualKey{91, 72, u"8", u"Keypad 8"},
    VirtualKey{92, 73, u"9", u"Keypad 9"},
    VirtualKey{93, 124}, // JIS Yen
    VirtualKey{94, 89},  // JIS underscore (Ro)
    VirtualKey{95, 121}, // JIS keypad comma
    VirtualKey{96, 63, u"F5", u"", 5},
    VirtualKey{97, 64, u"F6", u"", 6},
    VirtualKey{98, 65, u"F7", u"", 7},
    VirtualKey{99, 61, u"F3", u"", 3},
    VirtualKey{100, 66, u"F8", u"", 8},
    VirtualKey{101, 67, u"F9", u"", 9},
    VirtualKey{102, 123}, // JIS Alphanumeric (LANG2)
    VirtualKey{103, 87, u"F11", u"", 11},
    VirtualKey{104, 122}, // JIS Kana (LANG1)
    VirtualKey{105, 183, u"F13", u"", 13},
    VirtualKey{106, 186, u"F16", u"", 16},
    VirtualKey{107, 184, u"F14", u"", 14},
    VirtualKey{109, 68, u"F10", u"", 10},
    VirtualKey{110, 127}, // context menu
    VirtualKey{111, 88, u"F12", u"", 12},
    VirtualKey{113, 185, u"F15", u"", 15},
    VirtualKey{114, 110, u"?", u"Insert"}, // Help
    VirtualKey{115, 102, u"\u2196", u"Home"},
    VirtualKey{116, 104, u"\u21de", u"Page Up"},
    VirtualKey{117, 111, u"\u2326", u"Delete"}, // Forward Delete
    VirtualKey{118, 62, u"F4", u"", 4},
    VirtualKey{119, 107, u"\u2198", u"End"},
    VirtualKey{120, 60, u"F2", u"", 2},
    VirtualKey{121, 109, u"\u21df", u"Page Down"},
    VirtualKey{122, 59, u"F1", u"", 1},
    VirtualKey{123, 105, u"\u2190", u"Left"},
    VirtualKey{124, 106, u"\u2192", u"Right"},
    VirtualKey{125, 108, u"\u2193", u"Down"},
    VirtualKey{126, 103, u"\u2191", u"Up"},
};

constexpr std::uint32_t x11Offset = 8;

} // namespace

std::span<const VirtualKey> virtualKeys() {
    return keys;
}

const VirtualKey *findVirtualKey(std::uint64_t code) {
    const auto *key = std::ranges::find(keys, code, &VirtualKey::code);
    return key == keys.end() ? nullptr : key;
}

std::optional<std::uint16_t> evdevOfVirtualKey(std::uint64_t code) {
    const auto *key = findVirtualKey(code);
    return key ? std::optional(key->evdev) : std::nullopt;
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
