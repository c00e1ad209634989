// nerlo profiles: list, show, change, import and export.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "settings/Listings.h"
#include "settings/ProfileTravel.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsKeys.h"
#include "storage/FileSettingsStore.h"
#include "storage/PropertyList.h"
#include "text/Utf.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>

namespace nerlo::cli {

namespace {

using nlohmann::ordered_json;
using settings::ProfileItem;
using settings::ProfileItems;
using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

// Data, dates and references have no JSON form; no setting of a profile holds one.
ordered_json jsonOf(const PropertyValue &value) {
    if (const auto *boolean = value.as<bool>()) {
        return *boolean;
    }
    if (const auto *integer = value.as<std::int64_t>()) {
        return *integer;
    }
    if (const auto *real = value.as<double>()) {
        return *real;
    }
    if (const auto *text = value.as<std::u16string>()) {
        return text::utf16ToUtf8(*text);
    }
    if (const auto *array = value.as<PropertyArray>()) {
        ordered_json list = ordered_json::array();
        for (const PropertyValue &item : *array) {
            list.push_back(jsonOf(item));
        }
        return list;
    }
    if (const auto *dictionary = value.as<PropertyDictionary>()) {
        ordered_json object = ordered_json::object();
        for (const auto &[key, item] : *dictionary) {
            object[key] = jsonOf(item);
        }
        return object;
    }
    return nullptr;
}

std::string nameIn(const ProfileItem &item) {
    return text::utf16ToUtf8(settings::profileNameOf(item.record));
}

void orFail(const std::string &error) {
    if (!error.empty()) {
        throw Failure(ExitStatus::ioFailed, error);
    }
}

[[noreturn]] void refuse(const std::string &message) {
    throw Failure(ExitStatus::unusableArguments, message);
}

struct Profiles {
    settings::SettingsPaths paths = settings::SettingsPaths::standard();
    settings::ProfilesFile file{paths.profiles};
    ProfileItems items;

    Profiles() {
        items = file.load();
        orFail(file.loadError());
    }
    PropertyDictionary find(const std::string &nameOrIndex) const {
        const ProfileItem *item = settings::findProfile(items, nameOrIndex);
        return item ? item->record : readyProfile(nameOrIndex);
    }
    // The place of one that is stored: a ready one has none.
    std::size_t placeOf(const std::string &nameOrIndex) const {
        const ProfileItem *item = settings::findProfile(items, nameOrIndex);
        if (!item) {
            readyProfile(nameOrIndex); // refuses what is neither
            refuse("\"" + nameOrIndex +
                   "\" comes with the program and is not in your list; "
                   "`nerlo profiles duplicate` puts a copy there");
        }
        return static_cast<std::size_t>(item - items.data());
    }
    void add(PropertyDictionary record) { items.push_back(file.newItem(std::move(record))); }
    void save() { orFail(file.save(items)); }
};

struct Store {
    storage::FileSettingsStore values;

    explicit Store(const settings::SettingsPaths &paths)
        : values(paths.store) {
        orFail(values.loadError());
    }
    void save() {
        values.synchronize();
        orFail(values.error());
    }
};

// One line for each.
std::string readyLines() {
    std::string text;
    for (const settings::ReadyProfile &ready : settings::readyProfiles()) {
        const std::string padding(std::size_t{11} - ready.id.size(), ' ');
        text += "  " + std::string(ready.id) + padding + std::string(ready.summary) + '\n';
    }
    return text;
}

void listReady(bool asJson) {
    writeOutput(asJson ? settings::readyProfilesJson() : readyLines());
}

void list(bool asJson) {
    const Profiles profiles;
    const int selected = selectedProfile(profiles.paths, profiles.items.size());
    std::string text;
    ordered_json array = ordered_json::array();
    for (int place = 0; const ProfileItem &item : profiles.items) {
        const bool isSelected = place == selected;
        // One line for each, even if its name has line breaks.
        text += std::string(isSelected ? "* " : "  ") + std::to_string(place) + "  " +
                withoutControls(nameIn(item)) + '\n';
        array.push_back({{"index", place}, {"name", nameIn(item)}, {"selected", isSelected}});
        ++place;
    }
    text += (text.empty() ? "" : "\n") + ("ready:\n" + readyLines());
    writeOutput(asJson ? array.dump(2) + "\n" : text);
}

void show(const std::string &nameOrIndex, bool asJson) {
    const Profiles profiles;
    const ordered_json object = jsonOf(profiles.find(nameOrIndex));
    std::string text;
    for (const auto &[key, value] : object.items()) {
        text += key + " = " + value.dump() + "\n";
    }
    writeOutput(asJson ? object.dump(2) + "\n" : text);
}

void importFile(const std::string &file) {
    Progress progress;
    const InputFile input(file);
    const Bytes bytes = readBytes(input.descriptor(), nameOf(file), progress);
    settings::ReadProfiles read = settings::parseProfiles(bytes.view(), nameOf(file));
    orFail(read.error);
    Profiles profiles;
    for (PropertyDictionary &record : read.records) {
        profiles.add(std::move(record));
    }
    profiles.save();
}

void selectPlace(const settings::SettingsPaths &paths, std::size_t place) {
    Store store(paths);
    store.values.set(settings::selectedProfileKey, static_cast<std::int64_t>(place));
    store.save();
}

std::u16string newName(const std::string &name) {
    if (name.empty()) {
        refuse("a profile needs a name");
    }
    return text::utf8ToUtf16(name).text;
}

void rename(const std::string &nameOrIndex, const std::string &name) {
    Profiles profiles;
    Store store(profiles.paths);
    PropertyDictionary &record = profiles.items[profiles.placeOf(nameOrIndex)].record;
    const std::u16string before = settings::profileNameOf(record);
    const std::u16string after = newName(name);
    record.set("profileName", after);
    profiles.save();
    settings::renameInStore(store.values, profiles.items, before, after);
    store.save();
}

void duplicate(const std::string &nameOrIndex, const std::string &name) {
    Profiles profiles;
    PropertyDictionary record = profiles.find(nameOrIndex);
    record.set("profileName", newName(name));
    profiles.add(std::move(record));
    profiles.save();
}

void select(const std::string &nameOrIndex) {
    const Profiles profiles;
    selectPlace(profiles.paths, profiles.placeOf(nameOrIndex));
}

// It is kept elsewhere before it goes. The selected one stays selected; when it is the one that
// goes, the next one is.
void remove(const std::string &nameOrIndex) {
    Profiles profiles;
    const std::size_t place = profiles.placeOf(nameOrIndex);
    const auto selected =
        static_cast<std::size_t>(selectedProfile(profiles.paths, profiles.items.size()));
    orFail(settings::RemovedProfilesFile(profiles.paths.removedProfiles)
               .add(profiles.items[place].record));
    profiles.items.erase(profiles.items.begin() + static_cast<std::ptrdiff_t>(place));
    profiles.save();
    if (place < selected) {
        selectPlace(profiles.paths, selected - 1);
    }
}

// Without a name, the one that was removed last.
void restore(const std::string &name) {
    Profiles profiles;
    settings::RemovedProfilesFile file(profiles.paths.removedProfiles);
    ProfileItems removed = file.load();
    orFail(file.loadError());
    const auto found = std::find_if(removed.rbegin(), removed.rend(), [&](const ProfileItem &item) {
        return name.empty() || nameIn(item) == name;
    });
    if (found == removed.rend()) {
        refuse(name.empty() ? "no profile was removed" : "no profile \"" + name + "\" was removed");
    }
    profiles.add(found->record);
    profiles.save();
    removed.erase(std::next(found).base());
    orFail(file.save(removed));
}

void exportTo(const std::string &nameOrIndex, const std::string &file) {
    const Profiles profiles;
    const PropertyDictionary record = profiles.find(nameOrIndex);
    if (file == "-") {
        writeOutput(storage::writePropertyList(record));
        return;
    }
    orFail(settings::exportProfile(file, record));
}

struct Arguments {
    bool json = false;
    bool ready = false;
    std::string name;
    std::string newName;
    std::string file;
};

void addName(CLI::App *command, Arguments &arguments) {
    command->add_option("name", arguments.name, "The profile")
        ->required()
        ->option_text("NAME|INDEX");
}

void addChanges(CLI::App *command, const std::shared_ptr<Arguments> &arguments) {
    CLI::App *selectCommand =
        command->add_subcommand("select", "Use a profile from now on, here and on the desktop");
    addName(selectCommand, *arguments);
    selectCommand->callback([arguments] { select(arguments->name); });

    CLI::App *renameCommand = command->add_subcommand("rename", "Give a profile another name");
    addName(renameCommand, *arguments);
    renameCommand->add_option("new", arguments->newName, "The name")
        ->required()
        ->option_text("NEW");
    renameCommand->callback([arguments] { rename(arguments->name, arguments->newName); });

    CLI::App *duplicateCommand = command->add_subcommand(
        "duplicate", "Add a copy of a profile, or of a ready one, at the end of the list");
    addName(duplicateCommand, *arguments);
    duplicateCommand->add_option("new", arguments->newName, "The name of the copy")
        ->required()
        ->option_text("NEW");
    duplicateCommand->callback([arguments] { duplicate(arguments->name, arguments->newName); });

    CLI::App *removeCommand = command->add_subcommand(
        "remove", "Take a profile out of the list; the last 20 removed ones can be restored");
    addName(removeCommand, *arguments);
    removeCommand->callback([arguments] { remove(arguments->name); });

    CLI::App *restoreCommand =
        command->add_subcommand("restore", "Bring a removed profile back, at the end of the list");
    restoreCommand->add_option("name", arguments->name, "Its name; else the one removed last")
        ->option_text("NAME");
    restoreCommand->callback([arguments] { restore(arguments->name); });
}

} // namespace

void addProfiles(CLI::App &app, ExitStatus &) {
    CLI::App *command =
        app.add_subcommand("profiles", "List, show, change, import and export profiles");
    command->footer(
        "Without a command of its own, lists them with their places; the selected one is\n"
        "marked with *. A profile is named by its name, or by its place. Ready ones, which come\n"
        "with the program, are named by their id where no profile has that name.\n"
        "\n"
        "Examples:\n"
        "  nerlo profiles --ready\n"
        "  nerlo profiles duplicate mail work\n"
        "  nerlo profiles select work\n"
        "  nerlo profiles export work work.plist\n"
        "  nerlo profiles import work.plist\n"
        "  nerlo clean --profile work letter.txt");
    const auto arguments = std::make_shared<Arguments>();
    command->require_subcommand(0, 1);
    command->add_flag("--json", arguments->json, "Write JSON");
    command->add_flag("--ready", arguments->ready, "List the ready profiles alone");
    command->callback([command, arguments] {
        if (command->get_subcommands().empty()) {
            (arguments->ready ? listReady : list)(arguments->json);
        }
    });

    CLI::App *showCommand = command->add_subcommand("show", "Print a profile's keys and values");
    addName(showCommand, *arguments);
    showCommand->add_flag("--json", arguments->json, "Write a JSON object");
    showCommand->callback([arguments] { show(arguments->name, arguments->json); });

    addChanges(command, arguments);

    CLI::App *importCommand = command->add_subcommand(
        "import", "Add the profile, or the profiles, of a property list; none is replaced");
    importCommand->add_option("file", arguments->file, "The file; \"-\" is standard input")
        ->required()
        ->option_text("FILE");
    importCommand->callback([arguments] { importFile(arguments->file); });

    CLI::App *exportCommand =
        command->add_subcommand("export", "Write a profile as an XML property list");
    addName(exportCommand, *arguments);
    exportCommand->add_option("file", arguments->file, "The file; \"-\" is standard output")
        ->required()
        ->option_text("FILE");
    exportCommand->callback([arguments] { exportTo(arguments->name, arguments->file); });
}

} // namespace nerlo::cli
