#include "shell/CommandLine.h"

#include "engine/Operations.h"
#include "shell/Commands.h"

#include <algorithm>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace nerlo::shell {

bool CommandLine::asksFor(const QString &method) const {
    return std::ranges::any_of(requests,
                               [&](const Request &request) { return request.method == method; });
}

CommandLine parseCommandLine(const QStringList &arguments) {
    const QCommandLineOption clean("clean", "Clean the text on the clipboard.");
    const QCommandLineOption operation(
        "operation", "Run one operation on it, by index or name (see: nerlo operations).",
        "INDEX|NAME");
    const QCommandLineOption restore("restore", "Put back what stood there before the last clean.");
    const QCommandLineOption automatic("automatic", "Clean each new copy by itself.",
                                       "on|off|toggle");
    const QCommandLineOption preferences("preferences", "Open the preferences.");
    const QCommandLineOption profile("profile", "Use this profile from now on.", "NAME");
    const QCommandLineOption doctor("doctor", "Say what works on this desktop, and what does not.");
    const QCommandLineOption shortcut(
        "shortcut",
        "Store a global shortcut for an operation, or for \"clean\"; without keys, delete it. "
        "Alone, it starts nothing. Example: sort-lines=Super+Shift+S",
        "INDEX|NAME=KEYS");
    const QCommandLineOption quit("quit", "End the running program.");
    // The library's own help would have a second option, which lists the library's.
    const QCommandLineOption help({"h", "help"}, "Print this help and end.");
    const QCommandLineOption version({"v", "version"}, "Print the version and end.");

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Cleans the text on the clipboard. Starts the program, or tells the one that runs.");
    parser.addOptions({clean, operation, restore, automatic, profile, preferences, shortcut, doctor,
                       quit, help, version});

    const auto failed = [](const QString &why) {
        return CommandLine{CommandLine::Action::fail, why};
    };
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
    if (parser.isSet(automatic)) {
        const auto mode = parser.value(automatic);
        if (!parseAutomaticMode(mode.toStdString())) {
            return failed("--automatic takes on, off or toggle, not '" + mode + "'.");
        }
        result.requests.push_back({"Automatic", {mode}});
    }
    if (parser.isSet(profile)) {
        result.requests.push_back({"Profile", {parser.value(profile)}});
    }
    if (parser.isSet(preferences)) {
        result.requests.push_back({"Preferences", {}});
    }
    if (parser.isSet(clean)) {
        result.requests.push_back({"Clean", {}});
    }
    for (const auto &wanted : parser.values(operation)) {
        const auto *row = engine::findOperation(std::string_view(wanted.toStdString()));
        if (!row) {
            return failed("There is no operation '" + wanted + "'.");
        }
        result.requests.push_back({"Operation", {int{row->index}}});
    }
    if (parser.isSet(restore)) {
        result.requests.push_back({"Restore", {}});
    }
    if (parser.isSet(doctor)) {
        result.requests.push_back({"Doctor", {}});
    }
    if (parser.isSet(quit)) {
        result.requests.push_back({"Quit", {}});
    }
    return result;
}

} // namespace nerlo::shell
