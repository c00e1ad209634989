// The key combinations that the desktop has reserved for itself.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace nerlo::platform {

// Masks of the hot-key service, in SystemHotKey and HotKeyRequest.
inline constexpr std::uint32_t hotKeyCommand = 0x100;
inline constexpr std::uint32_t hotKeyShift = 0x200;
inline constexpr std::uint32_t hotKeyOption = 0x800;
inline constexpr std::uint32_t hotKeyControl = 0x1000;

struct SystemHotKey {
    std::uint32_t code = 0;      // virtual key code
    std::uint32_t modifiers = 0; // masks above
    // Who has it and for what, in the desktop's own words: "KWin, Close Window". UTF-8, one line;
    // empty where the desktop does not tell.
    std::string owner = {};
    bool operator==(const SystemHotKey &) const = default;
};

class SystemHotKeys {
  public:
    virtual ~SystemHotKeys() = default;

    // Begins to read them anew, in the background. Main thread.
    virtual void refresh() {}
    // Runs `changed` on the main thread after each reading that has found others. Null ends that.
    virtual void setChangedHandler(std::function<void()> /*changed*/) {}

    // As they were last read, whether switched on or not; empty where the desktop does not tell.
    // Main thread; never waits.
    virtual std::vector<SystemHotKey> symbolicHotKeys() = 0;
};

} // namespace nerlo::platform
