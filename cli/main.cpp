// nerlo: text cleaning for pipes, scripts and editors.
#include "cli/Commands.h"
#include "cli/LiteralArguments.h"
#include "cli/Output.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <array>
#include <csignal>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace nerlo::cli {

namespace {

constexpr std::array commands{addClean,      addCheck, addCount,    addBatch,
                              addOperations, addKeys,  addProfiles, addRules};

// If the caller closed one of the standard descriptors, the next file opened would get its number,
// and messages would be written into that file. So it is opened here, in the wrong direction: using
// it then just fails.
void occupyStandardDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

// An error in the arguments, with the help that tells more: that of the command that they name.
struct Misuse : Failure {
    explicit Misuse(const std::string &message, std::string helpOf = "nerlo")
        : Failure(ExitStatus::unusableArguments, message)
        , command(std::move(helpOf)) {}
    std::string command;
};

// As one types it: "nerlo profiles export".
std::string chosenCommand(const CLI::App &app) {
    const auto chosen = app.get_subcommands();
    return app.get_name() + (chosen.empty() ? "" : " " + chosenCommand(*chosen.front()));
}

// The parser would take the next argument, most often a file, for the value of "--locale=".
void refuseEmptyValues(std::span<char *const> arguments) {
    for (const std::string_view argument : arguments) {
        if (argument == "--") {
            return;
        }
        if (argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
            throw Misuse(std::string(argument) + " lacks its value");
        }
    }
}

// The parser calls a mistyped command just an argument that it did not expect.
void refuseUnknownCommand(const CLI::App &app) {
    const auto chosen = app.get_subcommands();
    if (!chosen.empty()) {
        refuseUnknownCommand(*chosen.front());
        return;
    }
    const std::vector<std::string> extras = app.remaining();
    const auto command = std::ranges::find_if(
        extras, [](const std::string &argument) { return !argument.starts_with('-'); });
    if (command != extras.end() && !app.get_subcommands(nullptr).empty()) {
        throw Misuse("unknown command \"" + withoutMarks(*command) + "\"");
    }
}

void parse(CLI::App &app, std::span<char *const> arguments) {
    refuseEmptyValues(arguments);
    unmarkValues(app);
    try {
        app.parse(markedArguments(arguments));
        if (app.get_subcommands().empty()) {
            throw CLI::RequiredError("A command");
        }
    } catch (const CLI::CallForVersion &) {
        writeOutput(app.version() + "\n");
    } catch (const CLI::CallForHelp &) {
        writeOutput(app.help());
    } catch (const CLI::ParseError &error) {
        refuseUnknownCommand(app);
        throw Misuse(withoutMarks(error.what()), chosenCommand(app));
    }
}

ExitStatus run(std::span<char *const> arguments) {
    CLI::App app("Cleans text: spaces, line breaks, quotes, bullets, reply marks, tags and more.",
                 "nerlo");
    app.set_version_flag("--version", "nerlo " NERLO_VERSION, "Print the version and end");
    app.set_help_flag("--help,-h", "Print this help and end");
    app.require_subcommand(0, 1); // having none is told in our own words
    app.footer("`nerlo COMMAND --help` tells more, with examples.");
    ExitStatus status = ExitStatus::done;
    for (const auto add : commands) {
        add(app, status);
    }
    parse(app, arguments);
    closeOutput();
    return status;
}

} // namespace

} // namespace nerlo::cli

int main(int argc, char **argv) {
    using namespace nerlo::cli;
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is seen as a failed write,
    std::signal(SIGXFSZ, SIG_IGN); // and so is a limit on the size of files
    occupyStandardDescriptors();
    ExitStatus status = ExitStatus::done;
    try {
        status = run({argv, static_cast<std::size_t>(argc)});
    } catch (const ClosedPipe &) {
        // The reader closed the pipe: nothing is left to do.
    } catch (const Misuse &misuse) {
        report(misuse.what(), "Try `" + misuse.command + " --help`.");
        status = misuse.status;
    } catch (const Failure &failure) {
        report(failure.what());
        status = failure.status;
    } catch (const std::bad_alloc &) {
        report("out of memory");
        status = ExitStatus::ioFailed;
    } catch (const std::exception &exception) {
        report(exception.what());
        status = ExitStatus::ioFailed;
    }
    return static_cast<int>(status);
}
