#include "cli/LiteralArguments.h"

#include <CLI/App.hpp>

#include <algorithm>
#include <string_view>

namespace nerlo::cli {

namespace {

constexpr char mark = '\1';

std::string marked(std::string argument, std::string_view syntax, std::size_t value) {
    if (value < argument.size() && syntax.find(argument[value]) != std::string_view::npos) {
        argument.insert(value, 1, mark);
    }
    return argument;
}

std::string unmark(std::string &value) {
    if (value.starts_with(mark)) {
        value.erase(0, 1);
    }
    return {}; // no complaint
}

} // namespace

std::vector<std::string> markedArguments(std::span<char *const> arguments) {
    std::vector<std::string> result;
    bool onlyValues = false; // "--" has been there
    for (const std::string argument : arguments.subspan(arguments.empty() ? 0 : 1)) {
        if (onlyValues) {
            result.push_back(marked(argument, "-[+\1", 0));
        } else if (argument == "--") {
            onlyValues = true;
        } else {
            const bool isOption = argument.starts_with("--");
            const std::size_t equals = std::min(argument.find('='), argument.size());
            result.push_back(marked(argument, "[+\1", isOption ? equals + 1 : 0));
        }
    }
    std::ranges::reverse(result);
    return result;
}

void unmarkValues(CLI::App &app) {
    for (CLI::Option *option : app.get_options()) {
        option->transform(CLI::Validator(unmark, ""));
    }
    for (CLI::App *command : app.get_subcommands(nullptr)) {
        unmarkValues(*command);
    }
}

std::string withoutMarks(std::string text) {
    std::erase(text, mark);
    return text;
}

} // namespace nerlo::cli
