// The keys of a keyboard, by their place on it.
//
// Shortcuts are stored with macOS virtual key codes; Linux counts keys by evdev codes, and X11 and
// Wayland's keymaps by the evdev code plus 8. One table joins them. A modifier key stands for the
// modifier that it has here: Command is the Ctrl key, Control is Super, Option is Alt.
//
// All functions may run on any thread and never fail.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace nerlo::platform {

struct VirtualKey {
    std::uint16_t code;  // macOS virtual key code
    std::uint16_t evdev; // Linux input event code
    // What a shortcut shows for the key; empty where that is what the layout writes.
    std::u16string_view text = {};
    // The name that stands on the key here, in English; empty where the text or the layout says it.
    std::u16string_view name = {};
    int functionKey = 0; // 1 for F1 to 20 for F20, else 0
};

// In the order of the virtual key codes; each code of either kind at most once.
std::span<const VirtualKey> virtualKeys();

// Null for a code that is not in the table.
const VirtualKey *findVirtualKey(std::uint64_t code);
std::optional<std::uint16_t> evdevOfVirtualKey(std::uint64_t code);
std::optional<std::uint16_t> virtualKeyOfEvdev(std::uint32_t evdev);

// X11 key codes, 8 to 255; also the codes of xkb keymaps and the native scan codes of Qt's events.
std::optional<std::uint8_t> x11KeyOfVirtualKey(std::uint64_t code);
std::optional<std::uint16_t> virtualKeyOfX11Key(std::uint32_t keycode);

} // namespace nerlo::platform
