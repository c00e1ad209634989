#include "shell/CommandLine.h"

#include "engine/Operations.h"

#include <algorithm>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace nerlo::shell {

namespace {

CommandLine failed(const QString &why) {
    return {CommandLine::Action::fail, why};
}

// Adds the requests for one argument; what is wrong with it, or nothing.
QString addRequests(std::vector<Request> &requests, const CommandRow &row,
                    const QStringList &values) {
    switch (row.command) {
    case Command::automatic:
        if (!parseAutomaticMode(values.last().toStdString())) {
            return "--automatic takes on, off or toggle, not '" + values.last() + "'.";
        }
        [[fallthrough]];
    case Command::profile:
        requests.push_back({row.command, values.last()});
        break;
    case Command::operation:
        for (const auto &wanted : values) {
            const auto *operation = engine::findOperation(std::string_view(wanted.toStdString()));
            if (!operation) {
                return "There is no operation '" + wanted + "'.";
            }
            requests.push_back({row.command, int{operation->index}});
        }
        break;
    default:
        requests.push_back({row.command});
    }
    return {};
}

} // namespace

bool CommandLine::asksFor(Command command) const {
    return std::ranges::find(requests, command, &Request::command) != requests.end();
}

CommandLine parseCommandLine(const QStringList &arguments) {
    const QCommandLineOption shortcut(
        "shortcut",
        "Store a global shortcut for an operation, or for \"clean\" or \"choose\"; without keys, "
        "delete it. "
        "Alone, it starts nothing. Example: sort-lines=Super+Shift+S",
        "INDEX|NAME=KEYS");
    // The library's own help would have a second option, which lists the library's.
    const QCommandLineOption help({"h", "help"}, "Print this help and end.");
    const QCommandLineOption version({"v", "version"}, "Print the version and end.");

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Cleans the text on the clipboard. Starts the program, or tells the one that runs. Several "
        "options are done in this order:");
    parser.addOption(shortcut);
    for (const auto &row : commandRows()) {
        if (row.argument) {
            parser.addOption({row.argument, row.help, row.valueName});
        }
    }
    parser.addOptions({help, version});

    if (!parser.parse(arguments)) {
        return failed(parser.errorText());
    }
    if (parser.isSet(help)) {
        return {CommandLine::Action::help, parser.helpText()};
    }
    if (parser.isSet(version)) {
        return {CommandLine::Action::version,
                "nerlo-pro " + QCoreApplication::applicationVersion() + "\n"};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return failed("Unexpected argument '" + parser.positionalArguments().first() + "'.");
    }

    CommandLine result;
    for (const auto &value : parser.values(shortcut)) {
        result.shortcuts.push_back(value.toStdString());
    }
    for (const auto &row : commandRows()) {
        if (row.argument && parser.isSet(row.argument)) {
            const auto values = row.valueName ? parser.values(row.argument) : QStringList();
            if (const auto wrong = addRequests(result.requests, row, values); !wrong.isEmpty()) {
                return failed(wrong);
            }
        }
    }
    return result;
}

} // namespace nerlo::shell
