#include "platform/qt/GnomeShell.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <utility>

namespace nerlo::platform {

namespace {

const QString service = QStringLiteral("org.nerlo.NerloPro.Shell");
const QString servicePath = QStringLiteral("/org/nerlo/NerloPro/Shell");

QDBusMessage method(const QString &name, const QVariantList &arguments) {
    auto message = QDBusMessage::createMethodCall(service, servicePath, service, name);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

} // namespace

GnomeShell::GnomeShell(QDBusConnection bus)
    : bus_(std::move(bus)) {
    bus_.connect(service, servicePath, service, QStringLiteral("Changed"), this,
                 SLOT(onChanged(QDBusMessage)));
    bus_.connect(service, servicePath, service, QStringLiteral("Activated"), this,
                 SLOT(onActivated(QString)));
    auto *watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &GnomeShell::left);
}

std::string GnomeShell::missing(const QDBusConnection &bus) {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains("GNOME")) {
        return "this is not GNOME";
    }
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(service)) {
        return "GNOME's extension \"Nerlo Pro\" is not enabled: "
               "gnome-extensions enable nerlo-pro@nerlo.org";
    }
    return {};
}

void GnomeShell::call(const QString &name, const QVariantList &arguments,
                      std::chrono::milliseconds limit, Answer answer) {
    auto *watcher = new QDBusPendingCallWatcher(
        bus_.asyncCall(method(name, arguments), static_cast<int>(limit.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [answer = std::move(answer)](QDBusPendingCallWatcher *finished) {
                const QDBusMessage reply = finished->reply();
                // Now, because the call has copies of the descriptors that were passed.
                finished->deleteLater();
                answer(reply);
            });
}

QDBusMessage GnomeShell::ask(const QString &name, std::chrono::milliseconds limit) {
    return bus_.call(method(name, {}), QDBus::Block, static_cast<int>(limit.count()));
}

} // namespace nerlo::platform
