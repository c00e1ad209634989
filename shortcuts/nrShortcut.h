// A keyboard shortcut: one key and a set of modifiers.
//
// Texts are UTF-16. Values may be used on any thread; the functions that take texts call into the
// keyboard layout and so belong to the main thread. Nothing here throws but std::bad_alloc.
#pragma once

#include "shortcuts/MenuItem.h"
#include "storage/PropertyValue.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::platform {
class SystemHotKeys;
struct SystemHotKey;
} // namespace nerlo::platform

namespace nerlo::shortcuts {

class ShortcutTexts;

// macOS's masks, which stored shortcuts hold. See platform/VirtualKeys.h for the keys they are.
inline constexpr std::uint64_t shiftModifier = 0x20000;
inline constexpr std::uint64_t controlModifier = 0x40000;
inline constexpr std::uint64_t optionModifier = 0x80000;
inline constexpr std::uint64_t commandModifier = 0x100000;
inline constexpr std::uint64_t allModifiers = 0x1e0000;

// A key that went down, or a modifier that changed.
struct KeyEvent {
    std::uint64_t keyCode = 0; // virtual key code; only 16 bits count
    std::uint64_t modifierFlags = 0;
};

struct ShortcutError {
    std::string domain; // "NSCocoaErrorDomain"
    std::int64_t code = 0;
    std::u16string localizedDescription;
    // The desktop's words for who has it, UTF-8; empty where it does not tell, and for menu items.
    std::string owner;
};

class nrShortcut {
  public:
    static constexpr std::uint64_t absentKey = std::numeric_limits<std::int64_t>::max();

    // Flags other than the four modifiers are dropped.
    nrShortcut(std::uint64_t keyCode, std::uint64_t modifierFlags)
        : keyCode_(keyCode)
        , modifierFlags_(modifierFlags & allModifiers) {}
    static nrShortcut shortcutWithKeyCode(std::uint64_t keyCode, std::uint64_t modifierFlags) {
        return {keyCode, modifierFlags};
    }
    static nrShortcut shortcutWithEvent(const KeyEvent &event) {
        return {event.keyCode & 0xffff, event.modifierFlags};
    }
    // From a keyed archive, in binary or XML form; none for no data or any other bytes.
    static std::optional<nrShortcut> shortcutWithData(std::span<const std::byte> data);

    std::uint64_t keyCode() const { return keyCode_; }
    void setKeyCode(std::uint64_t keyCode) { keyCode_ = keyCode; }
    std::uint64_t modifierFlags() const { return modifierFlags_; }
    void setModifierFlags(std::uint64_t flags) { modifierFlags_ = flags & allModifiers; }

    // A whole keyed archive, in binary form.
    storage::PropertyData data() const;
    // The fields inside the archive's object.
    storage::PropertyDictionary encodeWithCoder() const;
    static std::optional<nrShortcut> initWithCoder(const storage::PropertyDictionary &fields);

    std::u16string keyCodeString(const ShortcutTexts &texts) const;
    std::u16string modifierFlagsString() const; // glyphs
    // The modifiers, as the texts spell them: "⌃⇧", or "Super+Shift+".
    std::u16string modifiersText(const ShortcutTexts &texts) const;
    // The whole shortcut, as the texts spell it.
    std::u16string description(const ShortcutTexts &texts) const;
    // With the names that stand on this desktop's keys: "Super+V".
    std::u16string spelledOutName(const ShortcutTexts &texts) const;
    // From such a name, in whatever letter case, or as other programs write it: "Control + V",
    // "<Super>v", "Win-V", "Strg Alt V". The key may also have its name on a us keyboard or xkb's
    // ("minus"). None for anything else.
    static std::optional<nrShortcut> shortcutWithSpelledOutName(std::u16string_view name,
                                                                const ShortcutTexts &texts);
    // The key as a menu key equivalent.
    std::u16string keyCodeStringForKeyEquivalent(const ShortcutTexts &texts) const;

    // For the hot-key service.
    std::uint32_t carbonKeyCode() const;
    std::uint32_t carbonFlags() const;

    // Whether it may be a global shortcut.
    bool isValid() const;
    // Whether it is one of the reserved commands, close window and quit.
    bool shouldBypass(const ShortcutTexts &texts) const;
    // The desktop's own shortcut with these keys.
    std::optional<platform::SystemHotKey> takenBySystem(platform::SystemHotKeys &hotKeys) const;
    // Whether the desktop or an item of the menu uses it. A null `error` is not filled.
    bool isTakenError(ShortcutError *error, const ShortcutTexts &texts,
                      platform::SystemHotKeys &systemHotKeys,
                      std::span<const MenuItem> mainMenu) const;
    bool isKeyEquivalent(std::u16string_view keyEquivalent, std::uint64_t flags,
                         std::span<const MenuItem> menu, ShortcutError *error,
                         const ShortcutTexts &texts) const;

    // Lets Option with any key be valid. Off at first; any thread.
    static void setAllowsAnyHotkeyWithOptionModifier(bool allows);
    static bool allowsAnyHotkeyWithOptionModifier();

    // clang-tidy 14 takes a zero of the compiler's own for a null pointer.
    auto operator<=>(const nrShortcut &) const = default; // NOLINT(modernize-use-nullptr)

  private:
    std::uint64_t keyCode_;
    std::uint64_t modifierFlags_;
};

} // namespace nerlo::shortcuts
