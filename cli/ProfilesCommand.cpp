// nerlo profiles: list, show, import and export.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "settings/ProfilesFile.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsKeys.h"
#include "storage/PropertyList.h"
#include "text/Utf.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
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

struct Profiles {
    settings::SettingsPaths paths = settings::SettingsPaths::standard();
    settings::ProfilesFile file{paths.profiles};
    ProfileItems items;

    Profiles() {
        items = file.load();
        if (!file.loadError().empty()) {
            throw Failure(ExitStatus::ioFailed, file.loadError());
        }
    }
    PropertyDictionary find(const std::string &nameOrIndex) const {
        const ProfileItem *item = settings::findProfile(items, nameOrIndex);
        return item ? item->record : readyProfile(nameOrIndex);
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
    ordered_json array = ordered_json::array();
    for (const settings::ReadyProfile &ready : settings::readyProfiles()) {
        array.push_back({{"name", ready.id}, {"summary", ready.summary}});
    }
    writeOutput(asJson ? array.dump(2) + "\n" : readyLines());
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

// One profile, or a list of them as the program's own file holds it.
PropertyArray readProfiles(const std::string &file) {
    Progress progress;
    const InputFile input(file);
    const Bytes bytes = readBytes(input.descriptor(), nameOf(file), progress);
    auto parsed = storage::parsePropertyList(bytes.view());
    if (!parsed.value) {
        throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + parsed.error);
    }
    auto *array = parsed.value->as<PropertyArray>();
    PropertyArray records = array ? std::move(*array) : PropertyArray{*parsed.value};
    for (PropertyValue &value : records) {
        auto *record = value.as<PropertyDictionary>();
        const bool known =
            record && std::ranges::any_of(*record, [](const auto &entry) {
                return settings::findKey(entry.first, settings::SettingScope::Profile) != nullptr;
            });
        if (!known) {
            throw Failure(ExitStatus::ioFailed, nameOf(file) + ": no profile of settings keys");
        }
        if (settings::profileNameOf(*record).empty()) {
            const std::string name = std::filesystem::path(nameOf(file)).stem().string();
            record->set("profileName", text::utf8ToUtf16(name).text);
        }
    }
    return records;
}

void importFile(const std::string &file) {
    PropertyArray records = readProfiles(file);
    Profiles profiles;
    for (PropertyValue &record : records) {
        profiles.items.push_back(
            profiles.file.newItem(std::move(*record.as<PropertyDictionary>())));
    }
    if (const std::string error = profiles.file.save(profiles.items); !error.empty()) {
        throw Failure(ExitStatus::ioFailed, error);
    }
}

void exportTo(const std::string &nameOrIndex, const std::string &file) {
    const Profiles profiles;
    const PropertyValue profile(profiles.find(nameOrIndex));
    if (file == "-") {
        writeOutput(storage::writePropertyList(profile));
        return;
    }
    std::error_code ignored;
    const auto status = std::filesystem::status(file, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        throw Failure(ExitStatus::ioFailed, file + ": not a regular file");
    }
    if (const std::string error = storage::replaceWithPropertyList(file, profile); !error.empty()) {
        throw Failure(ExitStatus::ioFailed, error);
    }
}

struct Arguments {
    bool json = false;
    bool ready = false;
    std::string name;
    std::string file;
};

} // namespace

void addProfiles(CLI::App &app, ExitStatus &) {
    CLI::App *command = app.add_subcommand("profiles", "List, show, import and export profiles");
    command->footer(
        "Without a command of its own, lists them with their places; the selected one is\n"
        "marked with *. A profile is named by its name, or by its place. Ready ones, which come\n"
        "with the program, are named by their id where no profile has that name.\n"
        "\n"
        "Examples:\n"
        "  nerlo profiles --ready\n"
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
    showCommand->add_option("name", arguments->name, "The profile")
        ->required()
        ->option_text("NAME|INDEX");
    showCommand->add_flag("--json", arguments->json, "Write a JSON object");
    showCommand->callback([arguments] { show(arguments->name, arguments->json); });

    CLI::App *importCommand = command->add_subcommand(
        "import", "Add the profile, or the profiles, of a property list; none is replaced");
    importCommand->add_option("file", arguments->file, "The file; \"-\" is standard input")
        ->required()
        ->option_text("FILE");
    importCommand->callback([arguments] { importFile(arguments->file); });

    CLI::App *exportCommand =
        command->add_subcommand("export", "Write a profile as an XML property list");
    exportCommand->add_option("name", arguments->name, "The profile")
        ->required()
        ->option_text("NAME|INDEX");
    exportCommand->add_option("file", arguments->file, "The file; \"-\" is standard output")
        ->required()
        ->option_text("FILE");
    exportCommand->callback([arguments] { exportTo(arguments->name, arguments->file); });
}

} // namespace nerlo::cli
