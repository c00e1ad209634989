#include "shell/RunningProgram.h"

#include "platform/Pasteboard.h"
#include "shell/BusService.h"
#include "shell/Terminal.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <thread>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace nerlo::shell {

namespace {

using namespace std::chrono_literals;

// How long a program that is ending may still be busy handing its clipboard over.
constexpr auto endsWithin = platform::pasteboardHandOverLimit + 5s;

const auto questionName = QStringLiteral("question");

// A connection for the question alone: the one that Qt shares belongs to the application that this
// process may become afterwards.
class OwnConnection {
  public:
    OwnConnection()
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, questionName)) {}
    ~OwnConnection() { QDBusConnection::disconnectFromBus(questionName); }
    OwnConnection(const OwnConnection &) = delete;
    OwnConnection &operator=(const OwnConnection &) = delete;

    bool programRuns() const {
        return bus.isConnected() && bus.interface()->isServiceRegistered(applicationId);
    }
    bool programEnds() const {
        const auto end = std::chrono::steady_clock::now() + endsWithin;
        while (programRuns()) {
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
            std::this_thread::sleep_for(20ms);
        }
        return true;
    }

    QDBusConnection bus;
};

// Whether the error means that the other program was ending when it was asked.
bool fromOneThatEnds(const QDBusMessage &reply) {
    constexpr QDBusError::ErrorType ends[] = {QDBusError::UnknownObject, QDBusError::ServiceUnknown,
                                              QDBusError::NoReply};
    return std::ranges::find(ends, QDBusError(reply).type()) != std::end(ends);
}

struct Answer {
    enum class Outcome {
        done,
        failed, // the text says why, in English
        ended,  // the program was about to end, and now has
    };
    Outcome outcome = Outcome::failed;
    QString text; // empty where the request has no answer
};

Answer ask(const Request &request) {
    const OwnConnection connection;
    auto call = QDBusMessage::createMethodCall(applicationId, busObjectPath, applicationId,
                                               rowOf(request.command).method);
    if (request.argument.isValid()) {
        call.setArguments({request.argument});
    }
    const auto reply = connection.bus.call(call);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        // The connection's thread still works on an error after it has handed it out, and would
        // complain if the process ended before it is through. This second question waits for that.
        const bool runs = connection.programRuns();
        const bool ended = fromOneThatEnds(reply) && (!runs || connection.programEnds());
        return {ended ? Answer::Outcome::ended : Answer::Outcome::failed, reply.errorMessage()};
    }
    const auto value = reply.arguments().value(0);
    const bool flag = value.typeId() == QMetaType::Bool;
    return {Answer::Outcome::done,
            flag ? QString(value.toBool() ? "on" : "off") : value.toString()};
}

// The exit status for an answer.
int tell(Command command, const QString &answer) {
    using Restored = clipboard::nrChangePasterboard::Restored;
    switch (command) {
    case Command::restore:
        if (answer == nameOf(Restored::incomplete)) {
            complain("restored, but some formats of the original could not be read in time");
        } else if (answer != nameOf(Restored::done)) {
            return complain("not restored: " + answer.toStdString());
        }
        break;
    case Command::why:
    case Command::doctor:
        std::cout << answer.toStdString();
        break;
    case Command::automatic:
        std::cout << answer.toStdString() << '\n';
        break;
    default:
        break;
    }
    return succeeded;
}

} // namespace

bool programRuns() {
    return OwnConnection().programRuns();
}

std::optional<int> handOver(CommandLine &commandLine) {
    auto &requests = commandLine.requests;
    if (requests.empty()) {
        requests.push_back({Command::activate});
    }
    for (; !requests.empty(); requests.erase(requests.begin())) {
        const auto command = requests.front().command;
        const auto answer = ask(requests.front());
        if (answer.outcome == Answer::Outcome::ended) {
            return std::nullopt;
        }
        if (answer.outcome == Answer::Outcome::failed) {
            return complain(answer.text.toStdString());
        }
        if (const int status = tell(command, answer.text); status != succeeded) {
            return status;
        }
    }
    return succeeded;
}

} // namespace nerlo::shell
