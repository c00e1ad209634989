#include "shell/BusService.h"

#include "nerlopro_adaptor.h"

#include <utility>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace nerlo::shell {

namespace {

const auto serviceName = QStringLiteral("org.nerlo.NerloPro");
const auto objectPath = QStringLiteral("/org/nerlo/NerloPro");
const auto interfaceName = serviceName;

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

void BusService::Clean() {
    commands_.clean();
}

void BusService::Operation(int index) {
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
    // A connection of its own: the shared one is for the application that comes after this.
    const auto connection = QStringLiteral("look");
    bool runs = false;
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection);
        runs = bus.isConnected() && bus.interface()->isServiceRegistered(serviceName);
    }
    QDBusConnection::disconnectFromBus(connection);
    return runs;
}

Answer askRunningProgram(const Request &request) {
    auto call =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, request.method);
    call.setArguments(request.arguments);
    const auto reply = QDBusConnection::sessionBus().call(call);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        return {false, reply.errorMessage()};
    }
    if (reply.arguments().isEmpty()) {
        return {true, std::nullopt};
    }
    const auto value = reply.arguments().first();
    const bool flag = value.typeId() == QMetaType::Bool;
    return {true, flag ? QString(value.toBool() ? "on" : "off") : value.toString()};
}

} // namespace nerlo::shell
