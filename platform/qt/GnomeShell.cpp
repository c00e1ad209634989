#include "platform/qt/GnomeShell.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <utility>

namespace nerlo::platform {

namespace {

const QString service = QStringLiteral("org.nerlo.NerloPro.Shell");
const QString servicePath = QStringLiteral("/org/nerlo/NerloPro/Shell");

} // namespace

GnomeShell::GnomeShell(QDBusConnection bus, Part part)
    : bus_(std::move(bus))
    , interface_(part == Part::keys ? service + QStringLiteral(".Keys") : service)
    , there_(bus_.interface()->isServiceRegistered(service)) {
    if (part == Part::keys) {
        bus_.connect(service, servicePath, interface_, QStringLiteral("Pressed"), this,
                     SLOT(onPressed(uint)));
        bus_.connect(service, servicePath, interface_, QStringLiteral("Listening"), this,
                     SLOT(onListening()));
    } else {
        bus_.connect(service, servicePath, interface_, QStringLiteral("Changed"), this,
                     SLOT(onChanged(QDBusMessage)));
        bus_.connect(service, servicePath, interface_, QStringLiteral("Activated"), this,
                     SLOT(onActivated(QString)));
    }
    auto *watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                if (std::exchange(there_, false)) {
                    emit left();
                }
                if (!owner.isEmpty()) {
                    there_ = true;
                    emit came();
                }
            });
}

std::string GnomeShell::impossible(const QDBusConnection &bus) {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains("GNOME")) {
        return "this is not GNOME";
    }
    return bus.isConnected() ? std::string() : "there is no session bus";
}

QDBusMessage GnomeShell::method(const QString &name, const QVariantList &arguments) const {
    auto message = QDBusMessage::createMethodCall(service, servicePath, interface_, name);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
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
                if (answer) {
                    answer(reply);
                }
            });
}

QDBusMessage GnomeShell::ask(const QString &name, std::chrono::milliseconds limit) {
    return bus_.call(method(name, {}), QDBus::Block, static_cast<int>(limit.count()));
}

} // namespace nerlo::platform
