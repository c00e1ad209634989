#include "shell/HotKeyCommands.h"

#include "engine/Operations.h"
#include "platform/SystemHotKeys.h"
#include "settings/SettingsKeys.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "text/Utf.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace nerlo::shell {

namespace {

using settings::cleanHotKey;
using settings::CommandHotKey;
using settings::commandHotKeys;
using settings::profileHotKeyPrefix;

constexpr std::uint64_t keyV = 9;

constexpr std::string_view profileCommand = "profile:"; // and the profile's name

std::string nameOfCommand(std::string_view key) {
    if (key.starts_with(profileHotKeyPrefix)) {
        key.remove_prefix(profileHotKeyPrefix.size());
        return std::string(profileCommand) + std::string(key);
    }
    const auto rows = engine::operations();
    const auto row = std::ranges::find(rows, key, &engine::Operation::hotKey);
    return std::string(row != rows.end()
                           ? row->name
                           : std::ranges::find(commandHotKeys, key, &CommandHotKey::key)->name);
}

// Empty when no command has this name or index.
std::string keyOfCommand(std::string_view name) {
    if (name.starts_with(profileCommand) && name.size() > profileCommand.size()) {
        name.remove_prefix(profileCommand.size());
        return std::string(profileHotKeyPrefix) + std::string(name);
    }
    if (const auto *operation = engine::findOperation(name)) {
        return std::string(operation->hotKey);
    }
    const auto *command = std::ranges::find(commandHotKeys, name, &CommandHotKey::name);
    return command == std::end(commandHotKeys) ? std::string() : std::string(command->key);
}

// Of every command, by its settings key.
std::map<std::string, std::optional<shortcuts::nrShortcut>>
storedShortcuts(const storage::SettingsStore &store) {
    std::map<std::string, std::optional<shortcuts::nrShortcut>> stored;
    for (const auto &command : commandHotKeys) {
        stored.emplace(command.key, shortcuts::storedShortcut(store, command.key));
    }
    for (const auto &operation : engine::operations()) {
        stored.emplace(operation.hotKey, shortcuts::storedShortcut(store, operation.hotKey));
    }
    for (const auto &[key, value] : store.values()) {
        if (key.starts_with(profileHotKeyPrefix)) {
            stored.emplace(key, shortcuts::storedShortcut(store, key));
        }
    }
    return stored;
}

std::string finding(const platform::HotKeyStatus &status) {
    switch (status.state) {
    case platform::HotKeyState::active:
        return status.text.empty() ? "works" : "works, with the desktop's keys: " + status.text;
    case platform::HotKeyState::pending:
        return "waits for the desktop";
    case platform::HotKeyState::refused:
        return "refused, " + status.text;
    case platform::HotKeyState::none:
        break;
    }
    return "not registered";
}

} // namespace

std::optional<shortcuts::nrShortcut> firstStartShortcut(std::string_view hotKey) {
    return hotKey == cleanHotKey
               ? std::optional(shortcuts::nrShortcut(keyV, shortcuts::controlModifier))
               : std::nullopt;
}

void setDefaultShortcut(shortcuts::UserDefaultsHotKeys &hotKeys) {
    if (!hotKeys.store().find(cleanHotKey)) {
        hotKeys.setGlobalShortcut(firstStartShortcut(cleanHotKey), cleanHotKey);
    }
}

std::shared_ptr<void> reportRefusedHotKeys(shortcuts::UserDefaultsHotKeys &hotKeys,
                                           std::function<void(const std::string &line)> say) {
    auto report = [&hotKeys, say = std::move(say),
                   said = std::map<std::string, std::string>()]() mutable {
        for (const auto &[key, hotKey] : hotKeys.registeredUserDefaultsHotKeys()) {
            const auto status = hotKey->status();
            const std::string reason =
                status.state == platform::HotKeyState::refused ? status.text : std::string();
            if (std::exchange(said[key], reason) != reason && !reason.empty()) {
                say("hot key \"" + key + "\": " + reason);
            }
        }
    };
    report();
    return hotKeys.observeStatus(std::move(report));
}

std::vector<std::string> hotKeyFindings(const shortcuts::UserDefaultsHotKeys &hotKeys,
                                        const platform::KeyboardLayout &layout) {
    const shortcuts::ShortcutTexts english(layout, {}, shortcuts::Spelling::names);
    std::vector<std::string> lines;
    for (const auto &[key, hotKey] : hotKeys.registeredUserDefaultsHotKeys()) {
        if (const auto shortcut = shortcuts::storedShortcut(hotKeys.store(), key)) {
            lines.push_back(nameOfCommand(key) + "=" +
                            text::utf16ToUtf8(shortcut->spelledOutName(english)) + ": " +
                            finding(hotKey->status()));
        } else if (hotKeys.store().find(key)) {
            lines.push_back(nameOfCommand(key) + ": what is stored is no shortcut");
        }
    }
    return lines;
}

ShortcutChange parseShortcutChange(std::string_view text, const platform::KeyboardLayout &layout) {
    const auto failed = [](std::string error) {
        return ShortcutChange{{}, std::nullopt, std::move(error)};
    };
    const auto equals = text.find('=');
    if (equals == text.npos) {
        return failed("--shortcut takes NAME=KEYS, not '" + std::string(text) + "'.");
    }
    const auto name = text.substr(0, equals);
    ShortcutChange change{keyOfCommand(name), {}, {}};
    if (change.key.empty()) {
        return failed("There is no operation '" + std::string(name) + "'.");
    }
    const auto keys = text.substr(equals + 1);
    if (keys.empty()) {
        return change;
    }
    const shortcuts::ShortcutTexts english(layout, {}, shortcuts::Spelling::names);
    change.shortcut =
        shortcuts::nrShortcut::shortcutWithSpelledOutName(text::utf8ToUtf16(keys).text, english);
    if (!change.shortcut) {
        return failed("There are no keys '" + std::string(keys) +
                      "'; they are written like \"Ctrl+Super+Alt+Shift+V\".");
    }
    return change;
}

std::string refusalOf(std::span<const ShortcutChange> changes, const storage::SettingsStore &store,
                      const platform::KeyboardLayout &layout,
                      platform::SystemHotKeys &systemHotKeys,
                      std::span<const shortcuts::MenuItem> mainMenu) {
    const shortcuts::ShortcutTexts english(layout, {}, shortcuts::Spelling::names);
    auto after = storedShortcuts(store);
    for (const auto &change : changes) {
        after[change.key] = change.shortcut;
    }
    for (const auto &change : changes) {
        if (!change.shortcut) {
            continue;
        }
        const auto &shortcut = *change.shortcut;
        const std::string keys = "'" + text::utf16ToUtf8(shortcut.spelledOutName(english)) + "'";
        if (!shortcut.isValid() || shortcut.shouldBypass(english) ||
            shortcut.keyCodeString(english).empty()) {
            return keys + " cannot be a global shortcut.";
        }
        if (const auto taken = shortcut.takenBySystem(systemHotKeys)) {
            return keys + " is a shortcut of this desktop" +
                   (taken->owner.empty() ? "" : " (" + taken->owner + ")") +
                   "; most can be changed in its keyboard settings.";
        }
        shortcuts::ShortcutError error;
        if (shortcut.isTakenError(&error, english, systemHotKeys, mainMenu)) {
            return keys + ": " + text::utf16ToUtf8(error.localizedDescription);
        }
        for (const auto &[key, other] : after) {
            if (key != change.key && other == shortcut) {
                return keys + " is the shortcut of '" + nameOfCommand(key) + "'.";
            }
        }
    }
    return {};
}

} // namespace nerlo::shell
