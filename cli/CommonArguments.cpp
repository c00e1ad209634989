#include "cli/CommonArguments.h"

#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/Progress.h"
#include "settings/JsonOptions.h"
#include "settings/JsonText.h"
#include "settings/PreparedOptions.h"
#include "settings/ProfilesFile.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsKeys.h"
#include "settings/UserLanguages.h"
#include "settings/UserLocale.h"
#include "storage/FileSettingsStore.h"
#include "storage/PropertyList.h"
#include "text/Utf.h"

#include <CLI/App.hpp>
#include <nlohmann/json.hpp>

namespace nerlo::cli {

namespace {

using storage::PropertyDictionary;

[[noreturn]] void refuse(const std::string &message) {
    throw Failure(ExitStatus::unusableArguments, message);
}

[[noreturn]] void fail(const settings::OptionsError &error) {
    const bool unreadable = error.kind == settings::OptionsError::Kind::unreadable;
    throw Failure(unreadable ? ExitStatus::ioFailed : ExitStatus::unusableArguments, error.what());
}

const settings::SettingsKey &knownKey(const std::string &key, const std::string &place) {
    const settings::SettingsKey *row = settings::findKey(key);
    if (!row) {
        refuse("unknown key \"" + key + "\" in " + place + "; `nerlo keys` lists them");
    }
    return *row;
}

PropertyDictionary readOptions(const std::string &file) {
    Progress progress;
    const InputFile input(file);
    const Bytes bytes = readBytes(input.descriptor(), nameOf(file), progress);
    const storage::ParsedPropertyList parsed = storage::parsePropertyList(bytes.view());
    if (!parsed.value) {
        throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + parsed.error);
    }
    const auto *dictionary = parsed.value->as<PropertyDictionary>();
    if (!dictionary) {
        throw Failure(ExitStatus::ioFailed,
                      nameOf(file) + ": the property list is not a dictionary of settings keys");
    }
    // A newer version may have written it.
    for (const auto &[key, value] : *dictionary) {
        if (!settings::findKey(key)) {
            progress.stop();
            report("warning: " + nameOf(file) + ": unknown key \"" + key + "\" has no effect");
        }
    }
    return *dictionary;
}

// The profile with this name or place, else the ready one with this id; for an empty one the
// selected, and the defaults where no profiles have been made yet.
PropertyDictionary profileOptions(const std::string &nameOrIndex) {
    const auto paths = settings::SettingsPaths::standard();
    settings::ProfilesFile file(paths.profiles);
    const settings::ProfileItems items = file.load();
    if (!file.loadError().empty()) {
        throw Failure(ExitStatus::ioFailed, file.loadError());
    }
    const settings::ProfileItem *item = nullptr;
    if (!nameOrIndex.empty()) {
        item = settings::findProfile(items, nameOrIndex);
        if (!item) {
            return readyProfile(nameOrIndex);
        }
    } else if (!items.empty()) {
        item = &items[static_cast<std::size_t>(selectedProfile(paths, items.size()))];
    }
    if (!item) {
        return defaultOptions();
    }
    std::string error;
    PropertyDictionary options = settings::withSharedRules(item->record, paths, error);
    if (!error.empty()) {
        throw Failure(ExitStatus::ioFailed, error);
    }
    return options;
}

storage::PropertyValue readRules(const settings::SettingsKey &row, std::string_view text) {
    std::string room;
    const auto value =
        nlohmann::json::parse(settings::withMarkedSurrogates(text, room), nullptr, false);
    if (!value.is_array()) {
        refuse("--set " + row.key + ": not a JSON array of rules");
    }
    try {
        return settings::settingFromJson(row, value);
    } catch (const settings::OptionsError &error) {
        fail(error);
    }
}

void applySetting(const std::string &setting, PropertyDictionary &options) {
    const std::size_t equals = setting.find('=');
    if (equals == std::string::npos) {
        refuse("--set " + setting + ": not of the form KEY=VALUE");
    }
    const std::string key = setting.substr(0, equals);
    const std::string_view text = std::string_view(setting).substr(equals + 1);
    const settings::SettingsKey &row = knownKey(key, "--set");
    if (row.kind == settings::SettingKind::List) {
        options.set(key, readRules(row, text));
        return;
    }
    settings::ParsedSetting parsed = settings::parseSetting(row, text);
    if (!parsed.value) {
        refuse("--set " + key + ": " + parsed.error);
    }
    options.set(key, std::move(*parsed.value));
}

} // namespace

// The library's own lists of texts read "{}" as an empty list.
CLI::Option *addTexts(CLI::App &command, const std::string &name, std::vector<std::string> &texts,
                      const std::string &description) {
    return command
        .add_option(name, CLI::callback_t([&texts](const CLI::results_t &values) {
                        texts = values;
                        return true;
                    }),
                    description)
        ->expected(CLI::detail::expected_max_vector_size);
}

void addFiles(CLI::App &command, std::vector<std::string> &files) {
    addTexts(command, "files", files, "The files to read; none or \"-\" is standard input")
        ->option_text("FILE...");
}

void addLocale(CLI::App &command, std::string &locale) {
    locale = settings::userLocale();
    command
        .add_option_function<std::string>(
            "--locale",
            [&locale](const std::string &name) {
                const std::optional<std::string> id = settings::localeId(name);
                if (!id) {
                    refuse("unusable locale \"" + name + "\"");
                }
                locale = *id;
            },
            "Whose rules for letter case, words, sentences and sorting hold (de_DE)")
        ->type_name("LOCALE");
}

void addOptions(CLI::App &command, OptionArguments &arguments) {
    command
        .add_option("--options", arguments.file,
                    "Take the options from a property list of settings keys")
        ->type_name("FILE");
    command
        .add_option("--profile", arguments.profile,
                    "Take the options from this profile instead of the selected one")
        ->type_name("NAME|INDEX");
    addTexts(command, "--set", arguments.settings, "Change one key; may be given several times")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
}

PropertyDictionary readyProfile(const std::string &id) {
    const settings::ReadyProfile *ready = settings::findReadyProfile(std::string_view(id));
    if (!ready) {
        refuse("no profile \"" + id + "\"; `nerlo profiles` lists them");
    }
    return settings::readyRecord(*ready, text::utf8ToUtf16(id).text);
}

int selectedProfile(const settings::SettingsPaths &paths, std::size_t count) {
    const storage::FileSettingsStore store(paths.store);
    if (!store.loadError().empty()) {
        throw Failure(ExitStatus::ioFailed, store.loadError());
    }
    return settings::selectedPlace(store.integerForKey(settings::selectedProfileKey), count);
}

const engine::Operation *operationOf(const std::string &nameOrIndex) {
    const engine::Operation *operation = engine::findOperation(nameOrIndex);
    if (!operation && !nameOrIndex.empty()) {
        refuse("unknown operation \"" + nameOrIndex + "\"; `nerlo operations` lists them");
    }
    return operation;
}

PropertyDictionary defaultOptions() {
    return settings::firstStartProfile(settings::userLanguages().front());
}

PropertyDictionary chosenOptions(const OptionArguments &arguments) {
    if (!arguments.file.empty() && !arguments.profile.empty()) {
        refuse("--options and --profile exclude each other");
    }
    PropertyDictionary options =
        arguments.file.empty() ? profileOptions(arguments.profile) : readOptions(arguments.file);
    for (const std::string &setting : arguments.settings) {
        applySetting(setting, options);
    }
    return options;
}

engine::CleaningOptions cleaningOptions(const OptionArguments &arguments,
                                        const engine::Operation *operation) {
    const PropertyDictionary options = chosenOptions(arguments);
    try {
        return settings::preparedOptions(options, operation);
    } catch (const settings::OptionsError &error) {
        fail(error);
    }
}

} // namespace nerlo::cli
