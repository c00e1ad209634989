#include "shell/BusService.h"

#include "engine/Operations.h"
#include "nerlopro_adaptor.h"

#include <utility>

#include <QDBusConnection>
#include <QDBusMessage>

namespace nerlo::shell {

BusService::BusService() {
    new NerloProAdaptor(this);
}

BusService::Name BusService::takeName() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return Name::noBus;
    }
    // The object is registered before the name, so that a caller who finds the name finds the
    // object.
    bus.registerObject(busObjectPath, this);
    named_ = bus.registerService(applicationId);
    return named_ ? Name::ours : Name::taken;
}

void BusService::serve(Program &program) {
    program_ = &program;
    program.setListener(this);
    stateChanged();
}

void BusService::end() {
    QDBusConnection::sessionBus().unregisterObject(busObjectPath);
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
        auto signal = QDBusMessage::createSignal(busObjectPath,
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("PropertiesChanged"));
        signal.setArguments({applicationId, changed, QStringList()});
        QDBusConnection::sessionBus().send(signal);
    }
}

void BusService::Clean() {
    program_->clean();
}

void BusService::Operation(int index) {
    if (!engine::findOperation(index)) {
        sendErrorReply(QDBusError::InvalidArgs, "there is no operation " + QString::number(index));
        return;
    }
    program_->runOperation(index);
}

void BusService::Choose() {
    program_->choose();
}

QString BusService::Restore() {
    setDelayedReply(true);
    program_->restore([bus = connection(), call = message()](auto outcome) {
        bus.send(call.createReply(nameOf(outcome)));
    });
    return {};
}

bool BusService::Automatic(const QString &mode) {
    const auto parsed = parseAutomaticMode(mode.toStdString());
    if (!parsed) {
        sendErrorReply(QDBusError::InvalidArgs, "on, off or toggle");
        return false;
    }
    return program_->setAutomatic(*parsed);
}

void BusService::Activate() {
    program_->activate();
}

void BusService::Preferences() {
    program_->showPreferences();
}

void BusService::Profile(const QString &name) {
    if (!program_->selectProfile(name.toStdString())) {
        sendErrorReply(QDBusError::InvalidArgs, "there is no profile '" + name + "'");
    }
}

QString BusService::Why() {
    return QString::fromStdString(program_->why());
}

QString BusService::Doctor() {
    return QString::fromStdString(program_->doctor(named_));
}

void BusService::Quit() {
    program_->quit();
}

} // namespace nerlo::shell
