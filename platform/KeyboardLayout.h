// What the keys of the user's current keyboard layout write.
//
// Keys are macOS virtual key codes (platform/VirtualKeys.h). Main thread only; nothing fails: a key
// that is not on the keyboard, and every key where there is no layout, has no text.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::platform {

class KeyboardLayout {
  public:
    virtual ~KeyboardLayout() = default;

    // What the key writes with no modifier held, in UTF-16. A dead key writes its accent. Control
    // characters come as they are.
    virtual std::u16string textOfKey(std::uint64_t virtualKey) const = 0;

    // The xkb name of the key's symbol with no modifier held ("v", "F5", "Cyrillic_em"), or empty.
    virtual std::string symbolOfKey(std::uint64_t virtualKey) const = 0;

    // The key that has the named symbol with no modifier held: in the current layout, else in the
    // us one. Letter case is ignored. Names are xkb's ("v", "Return", "minus"); the keypad's digits
    // ("KP_1") count too.
    virtual std::optional<std::uint16_t> keyOfSymbol(std::string_view name) const = 0;

    // Runs `changed` on the main queue after each change of the layout. Null ends that.
    virtual void setChangedHandler(std::function<void()> changed) = 0;

    // For the user's eyes: one English line.
    virtual std::string description() const = 0;
};

} // namespace nerlo::platform
