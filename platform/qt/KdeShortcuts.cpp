#include "platform/qt/KdeShortcuts.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <algorithm>
#include <utility>

namespace nerlo::platform {

namespace {

const QString service = QStringLiteral("org.kde.kglobalaccel");
const QString servicePath = QStringLiteral("/kglobalaccel");
const QString serviceInterface = QStringLiteral("org.kde.KGlobalAccel");
const QString componentInterface = QStringLiteral("org.kde.kglobalaccel.Component");

// Flags of setShortcut.
constexpr uint present = 2;       // the key is wanted now
constexpr uint noAutoloading = 4; // in place of what the user has chosen
constexpr uint asDefault = 8;     // the key that a reset brings back

// Names of other programs come from the bus and are shown in one line.
constexpr qsizetype longestName = 80;

QString shown(const QString &name) {
    return name.simplified().left(longestName);
}

// The first key of an answer, in either of the forms that the service has for lists of keys; 0 for
// none, and for what is no such list.
int keyIn(const QVariant &value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) {
        return 0;
    }
    const auto argument = value.value<QDBusArgument>();
    QList<int> keys;
    if (argument.currentSignature() == QLatin1String("ai")) {
        argument >> keys;
    } else if (argument.currentSignature() == QLatin1String("a(ai)")) {
        argument.beginArray();
        if (!argument.atEnd()) {
            argument.beginStructure();
            argument >> keys;
            argument.endStructure();
        }
    }
    const auto key = std::ranges::find_if(keys, [](int candidate) { return candidate != 0; });
    return key == keys.end() ? 0 : *key;
}

int keyIn(const QDBusMessage &reply) {
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()
               ? keyIn(reply.arguments().first())
               : 0;
}

// "KWin, Kill Window", by the service's list of those that have a key; empty if nobody else has it.
QString ownerIn(const QDBusMessage &reply, const QString &ourComponent) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        return {};
    }
    const auto argument = reply.arguments().first().value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a(ssssssaiai)")) {
        return {};
    }
    QString owner;
    argument.beginArray();
    while (!argument.atEnd()) {
        QString action, title, component, componentName, context, contextName;
        QList<int> keys, defaults;
        argument.beginStructure();
        argument >> action >> title >> component >> componentName >> context >> contextName >>
            keys >> defaults;
        argument.endStructure();
        if (component != ourComponent) {
            owner = shown(componentName) + QStringLiteral(", ") + shown(title);
        }
    }
    argument.endArray();
    return owner;
}

} // namespace

KdeShortcuts::KdeShortcuts(QDBusConnection bus, QString component, QString componentName)
    : bus_(std::move(bus))
    , component_(std::move(component))
    , componentName_(std::move(componentName)) {
    qDBusRegisterMetaType<QList<int>>();
    // The second one is of older versions.
    for (const auto *signal : {"yourShortcutsChanged", "yourShortcutGotChanged"}) {
        bus_.connect(service, servicePath, serviceInterface, QLatin1String(signal), this,
                     SLOT(onChanged(QDBusMessage)));
    }
    auto *watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                emit restarted(!owner.isEmpty());
            });
}

bool KdeShortcuts::isThere(const QDBusConnection &bus) {
    return bus.isConnected() && bus.interface()->isServiceRegistered(service);
}

void KdeShortcuts::call(const QString &method, const QVariantList &arguments, Answer answer) {
    auto message = QDBusMessage::createMethodCall(service, servicePath, serviceInterface, method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [answer = std::move(answer)](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                if (answer) {
                    answer(finished->reply());
                }
            });
}

QStringList KdeShortcuts::idOf(const QString &action, const QString &title) const {
    return {component_, action, componentName_, title};
}

// The default tells who has chosen the present key: if ours is the default already, a key that
// differs from it is the user's choice and stays. ("defaultShortcut" answers with the present key
// in KDE Frameworks 5.103.)
void KdeShortcuts::bind(const QString &action, const QString &title, int key, Bound bound) {
    const QStringList id = idOf(action, title);
    const auto wanted = QVariant::fromValue(QList<int>{key});
    call(QStringLiteral("doRegister"), {id});
    listen();
    call(QStringLiteral("defaultShortcutKeys"), {id}, [=, this](const QDBusMessage &before) {
        const uint flags = keyIn(before) == key ? present : present | noAutoloading;
        call(QStringLiteral("setShortcut"), {id, wanted, asDefault});
        call(QStringLiteral("setShortcut"), {id, wanted, flags},
             [=, this](const QDBusMessage &now) {
                 if (const int given = keyIn(now); given != 0) {
                     bound(given, {}, {});
                 } else {
                     tellOwner(key, bound);
                 }
             });
    });
}

void KdeShortcuts::tellOwner(int key, const Bound &bound) {
    call(QStringLiteral("getGlobalShortcutsByKey"), {key}, [=, this](const QDBusMessage &reply) {
        const QString owner = ownerIn(reply, component_);
        bound(0,
              owner.isEmpty() ? QStringLiteral("another program has taken this key combination")
                              : QStringLiteral("taken by ") + owner,
              owner);
    });
}

void KdeShortcuts::release(const QString &action) {
    call(QStringLiteral("setInactive"), {idOf(action)});
}

void KdeShortcuts::forget(const QString &action) {
    call(QStringLiteral("unregister"), {component_, action});
}

void KdeShortcuts::listen() {
    if (std::exchange(listening_, true)) {
        return;
    }
    call(QStringLiteral("getComponent"), {component_}, [this](const QDBusMessage &reply) {
        const auto path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (path.isEmpty()) {
            listening_ = false; // the next one asks again
            return;
        }
        bus_.connect(service, path, componentInterface, QStringLiteral("globalShortcutPressed"),
                     this, SLOT(onPressed(QDBusMessage)));
    });
}

void KdeShortcuts::onPressed(const QDBusMessage &message) {
    const auto arguments = message.arguments();
    if (arguments.size() >= 2 && arguments[0].toString() == component_) {
        emit pressed(arguments[1].toString());
    }
}

void KdeShortcuts::onChanged(const QDBusMessage &message) {
    const auto id = message.arguments().value(0).toStringList();
    if (id.size() >= 2 && id[0] == component_) {
        call(QStringLiteral("shortcut"), {id}, [action = id[1], this](const QDBusMessage &reply) {
            emit changed(action, keyIn(reply));
        });
    }
}

} // namespace nerlo::platform
