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

namespace nerlo::platform {

struct VirtualKey {
    std::uint16_t code;  // macOS virtual key code
    std::uint16_t evdev; // Linux input event code
};

// In the order of the virtual key codes; each code of either kind at most once.
std::span<const VirtualKey> virtualKeys();

std::optional<std::uint16_t> evdevOfVirtualKey(std::uint64_t code);
std::optional<std::uint16_t> virtualKeyOfEvdev(std::uint32_t evdev);

// X11 key codes, 8 to 255; also the codes of xkb keymaps and the native scan codes of Qt's events.
std::optional<std::uint8_t> x11KeyOfVirtualKey(std::uint64_t code);
std::optional<std::uint16_t> virtualKeyOfX11Key(std::uint32_t keycode);

} // namespace nerlo::platform
