#include "shell/BusService.h"

#include "engine/Operations.h"
#include "nerlopro_adaptor.h"
#include "platform/Pasteboard.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace nerlo::shell {

namespace {

const auto serviceName = QStringLiteral("org.nerlo.NerloPro");
const auto objectPath = QStringLiteral("/org/nerlo/NerloPro");
const auto interfaceName = serviceName;

using namespace std::chrono_literals;

// A program that ends may be busy with its clipboard for so long.
constexpr auto endsWithin = platform::pasteboardHandOverLimit + 5s;

const auto questionName = QStringLiteral("question");

// The shared connection is for the application that may come after the question.
class OwnConnection {
  public:
    OwnConnection()
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, questionName)) {}
    ~OwnConnection() { QDBusConnection::disconnectFromBus(questionName); }
    OwnConnection(const OwnConnection &) = delete;
    OwnConnection &operator=(const OwnConnection &) = delete;

    bool programRuns() const {
        return bus.isConnected() && bus.interface()->isServiceRegistered(serviceName);
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

// What a program that ends leaves a question with.
bool fromOneThatEnds(const QDBusMessage &reply) {
    constexpr QDBusError::ErrorType ends[] = {QDBusError::UnknownObject, QDBusError::ServiceUnknown,
                                              QDBusError::NoReply};
    return std::ranges::find(ends, QDBusError(reply).type()) != std::end(ends);
}

} // namespace

BusService::BusService(const Commands &commands)
    : commands_(commands) {
    new NerloProAdaptor(this);
}

BusService::Name BusService::takeName() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return Name::noBus;
    }
    // The object first: whoever finds the name finds it too.
    bus.registerObject(objectPath, this);
    return bus.registerService(serviceName) ? Name::ours : Name::taken;
}

void BusService::end() {
    QDBusConnection::sessionBus().unregisterObject(objectPath);
}

void BusService::stateChanged() {
    const QVariantMap now{{QStringLiteral("AutomaticMode"), automaticMode()},
                          {QStringLiteral("SelectedProfile"), selectedProfile()}};
    const QVariantMap before = std::exchange(told_, now);
    QVariantMap changed;
    for (auto property = now.begin(); property != now.end(); ++property) {
        if (before.value(property.key(), *property) != *property) {
            changed.insert(property.key(), *property);
        }
    }
    if (!changed.empty()) {
        auto signal = QDBusMessage::createSignal(objectPath,
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("PropertiesChanged"));
        signal.setArguments({interfaceName, changed, QStringList()});
        QDBusConnection::sessionBus().send(signal);
    }
}

void BusService::Clean() {
    commands_.clean();
}

void BusService::Operation(int index) {
    if (!engine::findOperation(index)) {
        sendErrorReply(QDBusError::InvalidArgs, "there is no operation " + QString::number(index));
        return;
    }
    commands_.operation(index);
}

QString BusService::Restore() {
    setDelayedReply(true);
    commands_.restore([bus = connection(), call = message()](auto outcome) {
        const auto name = nameOf(outcome);
        bus.send(call.createReply(
            QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()))));
    });
    return {};
}

bool BusService::Automatic(const QString &mode) {
    const auto parsed = parseAutomaticMode(mode.toStdString());
    if (!parsed) {
        sendErrorReply(QDBusError::InvalidArgs, "on, off or toggle");
        return false;
    }
    return commands_.automatic(*parsed);
}

void BusService::Activate() {
    commands_.activate();
}

void BusService::Preferences() {
    commands_.preferences();
}

void BusService::Profile(const QString &name) {
    if (!commands_.profile(name.toStdString())) {
        sendErrorReply(QDBusError::InvalidArgs, "there is no profile '" + name + "'");
    }
}

QString BusService::Doctor() {
    return QString::fromStdString(commands_.doctor());
}

void BusService::Quit() {
    commands_.quit();
}

bool programRuns() {
    return OwnConnection().programRuns();
}

Answer askRunningProgram(const Request &request) {
    const OwnConnection connection;
    auto call =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, request.method);
    call.setArguments(request.arguments);
    const auto reply = connection.bus.call(call);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        // The thread of the connection is still busy with an error when it has handed it out, and
        // would complain if the process ended meanwhile. What it is asked now comes after that.
        const bool runs = connection.programRuns();
        const bool ended = fromOneThatEnds(reply) && (!runs || connection.programEnds());
        return {ended ? Answer::Outcome::ended : Answer::Outcome::failed, reply.errorMessage()};
    }
    if (reply.arguments().isEmpty()) {
        return {Answer::Outcome::done, std::nullopt};
    }
    const auto value = reply.arguments().first();
    const bool flag = value.typeId() == QMetaType::Bool;
    return {Answer::Outcome::done,
            flag ? QString(value.toBool() ? "on" : "off") : value.toString()};
}

} // namespace nerlo::shell
