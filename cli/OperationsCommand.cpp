// nerlo operations: what `--operation` takes.
#include "cli/Commands.h"
#include "cli/Output.h"
#include "engine/Operations.h"
#include "settings/Listings.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <memory>

namespace nerlo::cli {

namespace {

std::string table() {
    std::size_t width = 0;
    for (const engine::Operation &operation : engine::operations()) {
        width = std::max(width, operation.name.size());
    }
    std::string text;
    for (const engine::Operation &operation : engine::operations()) {
        const std::string index = std::to_string(operation.index);
        text += std::string(2 - std::min<std::size_t>(2, index.size()), ' ') + index + "  ";
        text += std::string(operation.name) + std::string(width - operation.name.size() + 2, ' ') +
                std::string(operation.summary) + "\n";
    }
    return text;
}

} // namespace

void addOperations(CLI::App &app, ExitStatus &) {
    CLI::App *command = app.add_subcommand("operations", "List the operations");
    command->footer("Index and name both go with --operation; --json adds the settings key of the\n"
                    "operation's global shortcut.\n"
                    "\n"
                    "Example:\n"
                    "  nerlo operations | grep -i quotes");
    const auto asJson = std::make_shared<bool>(false);
    command->add_flag("--json", *asJson, "Write a JSON array");
    command->callback([asJson] { writeOutput(*asJson ? settings::operationsJson() : table()); });
}

} // namespace nerlo::cli
