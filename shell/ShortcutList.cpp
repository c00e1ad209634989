#include "shell/ShortcutList.h"

#include "settings/SettingsKeys.h"
#include "shell/HotKeyCommands.h"
#include "shell/PreferencesLayout.h"
#include "shell/Program.h"
#include "shell/Strings.h"

#include <algorithm>
#include <set>

namespace nerlo::shell {

namespace {

std::vector<ListedCommand> listedCommands() {
    std::vector<ListedCommand> commands;
    for (const auto &command : settings::commandHotKeys) {
        const std::string key(command.key);
        commands.push_back(
            {key, localized(key), localized(key + "Tip"), localized("sPageGeneral")});
    }
    for (const PreferencesPage &page : preferencesPages()) {
        for (const OptionRow &row : page.rows) {
            if (!row.hotKey.empty()) {
                commands.push_back({row.hotKey, localized(titleKey(row)),
                                    localized(tooltipKey(row.key)), localized(page.title)});
            }
        }
    }
    return commands;
}

} // namespace

bool selectsProfile(const ListedCommand &command) {
    return command.hotKey.starts_with(settings::profileHotKeyPrefix);
}

QString selectingTitle(const std::u16string &profile) {
    return filled(localized("sSelectsProfile"), {shortName(QString::fromStdU16String(profile))});
}

ShortcutList::ShortcutList(Program &program)
    : program_(program)
    , commands_(listedCommands()) {
    followProfiles();
}

void ShortcutList::followProfiles() {
    std::erase_if(commands_, selectsProfile);
    std::set<std::u16string> names{u""};
    for (const settings::ProfileItem &item : program_.preferences().profilesItems()) {
        const auto name = settings::profileNameOf(item.record);
        if (names.insert(name).second) {
            commands_.push_back({settings::profileHotKey(name), selectingTitle(name),
                                 localized("sProfileTip"), localized(Table::menu, "Profiles")});
        }
    }
}

std::optional<shortcuts::nrShortcut> ShortcutList::shortcut(const std::string &hotKey) const {
    return shortcuts::storedShortcut(program_.store(), hotKey);
}

QString ShortcutList::keys(const ListedCommand &command) const {
    const auto stored = shortcut(command.hotKey);
    return stored ? QString::fromStdU16String(stored->description(program_.shortcutTexts()))
                  : QString();
}

QString ShortcutList::conflict(const std::string &hotKey) const {
    const auto stored = shortcut(hotKey);
    const QString owner = stored ? ownerOf(*stored, hotKey) : QString();
    return owner.isEmpty()
               ? owner
               : QString::fromStdU16String(stored->description(program_.shortcutTexts())) + ": " +
                     owner;
}

// Another command of ours is named whichever of the two has the keys now.
QString ShortcutList::ownerOf(const shortcuts::nrShortcut &shortcut,
                              const std::string &hotKey) const {
    const auto &hotKeys = program_.hotKeys();
    if (const auto *other = hotKeys.otherWith(shortcut, hotKey)) {
        return QString::fromStdString(other->title);
    }
    const auto status = hotKeys.status(hotKey);
    if (status.state != platform::HotKeyState::refused) {
        return {};
    }
    std::string owner = status.owner;
    const auto &desktop = program_.parts().desktop;
    if (owner.empty() && desktop.hotKeys.backend->available()) {
        const auto taken = shortcut.takenBySystem(*desktop.systemHotKeys);
        owner = taken ? taken->owner : std::string();
    }
    return !owner.empty()        ? QString::fromStdString(owner)
           : status.text.empty() ? localized("sShortcutRefused")
                                 : localized(Table::shortcut, status.text);
}

bool ShortcutList::matches(const ListedCommand &command, const QStringList &words) const {
    const QString texts = QStringList{command.title, command.tip, command.page, keys(command),
                                      conflict(command.hotKey)}
                              .join(' ')
                              .toLower();
    return std::ranges::all_of(words, [&](const QString &word) { return texts.contains(word); });
}

bool ShortcutList::isAsAtFirst(const ListedCommand &command) const {
    return shortcut(command.hotKey) == firstStartShortcut(command.hotKey);
}

void ShortcutList::reset(const ListedCommand &command) {
    program_.preferences().changeShortcuts([&] {
        program_.hotKeys().setGlobalShortcut(firstStartShortcut(command.hotKey), command.hotKey);
    });
}

void ShortcutList::resetAll() {
    program_.preferences().changeShortcuts([this] {
        for (const ListedCommand &command : commands_) {
            program_.hotKeys().setGlobalShortcut(firstStartShortcut(command.hotKey),
                                                 command.hotKey);
        }
    });
}

} // namespace nerlo::shell
