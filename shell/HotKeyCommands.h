// The commands that global hot keys run: one for each operation, and one for the whole pipeline.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace nerlo::shortcuts {
class UserDefaultsHotKeys;
}

namespace nerlo::shell {

struct Commands;

// The settings key of the hot key that cleans the clipboard.
inline constexpr std::string_view cleanHotKey = "sClearFormatingFromClipboard";

// `commands` must outlive the hot keys. `titleOf` gives the words that a desktop shows for the
// command of a settings key, in UTF-8.
void registerHotKeyCommands(shortcuts::UserDefaultsHotKeys &hotKeys, const Commands &commands,
                            const std::function<std::string(std::string_view key)> &titleOf);

// What a first start stores: Super+V cleans the clipboard.
void setDefaultShortcut(shortcuts::UserDefaultsHotKeys &hotKeys);

// Tells `say` of each hot key that the desktop refuses, once for each reason. Returns what must
// live as long as it is to go on.
std::shared_ptr<void> reportRefusedHotKeys(shortcuts::UserDefaultsHotKeys &hotKeys,
                                           std::function<void(const std::string &line)> say);

} // namespace nerlo::shell
