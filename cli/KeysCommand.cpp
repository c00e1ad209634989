// nerlo keys: what `--set`, `--options` and the options of a batch request take.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Output.h"
#include "settings/OptionLists.h"
#include "settings/SettingsKeys.h"
#include "text/Utf.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <memory>

namespace nerlo::cli {

namespace {

using settings::SettingsKey;
using storage::PropertyDictionary;

// The value that a first start would give the key now: the quote styles follow the user's language.
const storage::PropertyValue *firstStart(const SettingsKey &row,
                                         const PropertyDictionary &profile) {
    if (row.scope == settings::SettingScope::Profile) {
        return profile.find(row.key);
    }
    return row.firstStart ? &*row.firstStart : nullptr;
}

std::map<std::string, std::vector<std::string>, std::less<>> itemsByKey() {
    std::map<std::string, std::vector<std::string>, std::less<>> result;
    for (const settings::OptionList &list : settings::optionLists()) {
        std::vector<std::string> &items = result[std::string(list.key)];
        for (const std::u16string &item : list.items) {
            items.push_back(text::utf16ToUtf8(item));
        }
    }
    return result;
}

std::string table() {
    const PropertyDictionary profile = defaultOptions();
    const auto items = itemsByKey();
    std::string text;
    std::string_view group;
    for (const SettingsKey &row : settings::settingsKeys()) {
        if (row.group != group) {
            text += (text.empty() ? "" : "\n") + std::string(row.group) + "\n";
            group = row.group;
        }
        const storage::PropertyValue *value = firstStart(row, profile);
        const std::string shown = value ? text::utf16ToUtf8(value->stringValue()) : "";
        text += "  " + row.key + "  (" + std::string(settings::nameOfKind(row.kind)) +
                (shown.empty() ? "" : ", first start " + shown) + ")  " + row.meaning + "\n";
        if (const auto list = items.find(row.key); list != items.end()) {
            std::string line;
            for (std::size_t i = 0; i < list->second.size(); ++i) {
                line += (i == 0 ? "" : " | ") + std::to_string(i) + " " + list->second[i];
            }
            text += "      " + line + "\n";
        }
    }
    return text;
}

nlohmann::ordered_json jsonOf(const storage::PropertyValue *value) {
    if (!value) {
        return nullptr;
    }
    if (const bool *boolean = value->as<bool>()) {
        return *boolean;
    }
    if (const std::int64_t *integer = value->as<std::int64_t>()) {
        return *integer;
    }
    return text::utf16ToUtf8(value->stringValue());
}

std::string json() {
    const PropertyDictionary profile = defaultOptions();
    const auto items = itemsByKey();
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const SettingsKey &row : settings::settingsKeys()) {
        nlohmann::ordered_json object = {
            {"key", row.key},
            {"kind", settings::nameOfKind(row.kind)},
            {"scope", row.scope == settings::SettingScope::Profile ? "profile" : "store"},
            {"group", row.group},
            {"meaning", row.meaning},
            {"firstStart", jsonOf(firstStart(row, profile))},
        };
        if (const auto found = items.find(row.key); found != items.end()) {
            object["items"] = found->second;
        }
        list.push_back(std::move(object));
    }
    return list.dump(2) + "\n";
}

} // namespace

void addKeys(CLI::App &app, ExitStatus &) {
    CLI::App *command = app.add_subcommand("keys", "List the settings keys");
    command->footer(
        "Each with its kind, the value of a first start and its meaning; for an index,\n"
        "what its values stand for. --json adds the scope: keys of the store serve the\n"
        "desktop program and do not change how a text is cleaned.\n"
        "\n"
        "Example:\n"
        "  nerlo keys | grep -A1 udChangeCaseOption");
    const auto asJson = std::make_shared<bool>(false);
    command->add_flag("--json", *asJson, "Write a JSON array");
    command->callback([asJson] { writeOutput(*asJson ? json() : table()); });
}

} // namespace nerlo::cli
