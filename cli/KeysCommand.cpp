// nerlo keys: what `--set`, `--options` and the options of a batch request take.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Output.h"
#include "settings/Listings.h"
#include "settings/SettingsKeys.h"
#include "text/Utf.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <memory>

namespace nerlo::cli {

namespace {

using settings::SettingsKey;
using storage::PropertyDictionary;

std::string table() {
    const PropertyDictionary profile = defaultOptions();
    const auto items = settings::itemsByKey();
    std::string text;
    std::string_view group;
    for (const SettingsKey &row : settings::settingsKeys()) {
        if (row.group != group) {
            text += (text.empty() ? "" : "\n") + std::string(row.group) + "\n";
            group = row.group;
        }
        const storage::PropertyValue *value = settings::firstStartValue(row, profile);
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
    command->callback(
        [asJson] { writeOutput(*asJson ? settings::keysJson(defaultOptions()) : table()); });
}

} // namespace nerlo::cli
