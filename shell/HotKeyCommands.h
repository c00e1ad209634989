// Global hot keys as a user names them: what each runs, what became of it, and how it is set.
#pragma once

#include "platform/KeyboardLayout.h"
#include "shortcuts/nrShortcut.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::platform {
class SystemHotKeys;
}
namespace nerlo::shortcuts {
class UserDefaultsHotKeys;
}
namespace nerlo::storage {
class SettingsStore;
}

namespace nerlo::shell {

// The shortcut that a command has after a first start: Super+V cleans the clipboard, the others
// have none.
std::optional<shortcuts::nrShortcut> firstStartShortcut(std::string_view hotKey);
// What a first start stores, unless the clipboard's clean has a shortcut already.
void setDefaultShortcut(shortcuts::UserDefaultsHotKeys &hotKeys);

// Tells `say` of each hot key that the desktop refuses, once for each reason. Returns what must
// live as long as it is to go on.
std::shared_ptr<void> reportRefusedHotKeys(shortcuts::UserDefaultsHotKeys &hotKeys,
                                           std::function<void(const std::string &line)> say);

// "clean=Super+V: works": each shortcut that is set, with the name of what it runs and what became
// of it; "clean: ..." where what is stored is none. English, UTF-8.
std::vector<std::string> hotKeyFindings(const shortcuts::UserDefaultsHotKeys &hotKeys,
                                        const platform::KeyboardLayout &layout);

// What "clean=Super+V" asks for. The name is "clean", "choose", "profile:Mail" or an operation's,
// or its index; without keys the shortcut goes.
struct ShortcutChange {
    std::string key; // settings key
    std::optional<shortcuts::nrShortcut> shortcut;
    std::string error; // for the user; then there is nothing else
};
ShortcutChange parseShortcutChange(std::string_view text, const platform::KeyboardLayout &layout);

// Why one of the changes is refused, as the control that records shortcuts would refuse it; empty
// when all may be stored. `changes` are not in the store yet, and count together. English, UTF-8.
std::string refusalOf(std::span<const ShortcutChange> changes, const storage::SettingsStore &store,
                      const platform::KeyboardLayout &layout,
                      platform::SystemHotKeys &systemHotKeys,
                      std::span<const shortcuts::MenuItem> mainMenu);

} // namespace nerlo::shell
