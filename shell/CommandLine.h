// The arguments of nerlo-pro.
#pragma once

#include <string>

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <vector>

namespace nerlo::shell {

// A method of the program's bus interface, with its arguments.
struct Request {
    QString method;
    QVariantList arguments;
};

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

    // Whether one of the requests is for this method.
    bool asksFor(const QString &method) const;
};

// `arguments` begin with the program's name.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace nerlo::shell
