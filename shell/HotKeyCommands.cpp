#include "shell/HotKeyCommands.h"

#include "engine/Operations.h"
#include "shell/Commands.h"
#include "shortcuts/UserDefaultsHotKeys.h"

#include <map>
#include <utility>

namespace nerlo::shell {

namespace {

constexpr std::uint64_t keyV = 9;

} // namespace

void registerHotKeyCommands(shortcuts::UserDefaultsHotKeys &hotKeys, const Commands &commands,
                            const std::function<std::string(std::string_view key)> &titleOf) {
    hotKeys.registerGlobalShortcutWithUserDefaultsKey(
        cleanHotKey, [&commands] { commands.clean(); }, titleOf(cleanHotKey));
    for (const auto &operation : engine::operations()) {
        hotKeys.registerGlobalShortcutWithUserDefaultsKey(
            operation.hotKey, [&commands, index = operation.index] { commands.operation(index); },
            titleOf(operation.hotKey));
    }
}

void setDefaultShortcut(shortcuts::UserDefaultsHotKeys &hotKeys) {
    hotKeys.setGlobalShortcut(shortcuts::nrShortcut(keyV, shortcuts::controlModifier), cleanHotKey);
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

} // namespace nerlo::shell
