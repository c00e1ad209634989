// The arguments of nerlo-pro.
#pragma once

#include "shell/Requests.h"

#include <string>
#include <vector>

#include <QString>
#include <QStringList>

namespace nerlo::shell {

struct CommandLine {
    enum class Action {
        run,     // start, or hand the requests to the program that runs
        help,    // print `text`
        version, // the same
        fail,    // `text` says what is wrong with the arguments
    };
    Action action = Action::run;
    QString text;
    std::vector<std::string> shortcuts{}; // "clean=Super+V", to be stored before anything else
    std::vector<Request> requests{};      // in a fixed order, whatever that of the arguments

    bool asksFor(Command command) const;
};

// `arguments` begin with the program's name.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace nerlo::shell
