#include "platform/qt/PortalSession.h"

#include "platform/HotKeyService.h"

#include <optional>
#include <utility>

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace nerlo::platform {

// Must be in the namespace of the type, or the meta type system does not find it.
QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktopPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString registryInterface = QStringLiteral("org.freedesktop.host.portal.Registry");

// The text of a trigger comes from the portal and is shown in one line of a tooltip, so its length
// is limited.
constexpr qsizetype longestTrigger = 200;

QString shown(const QVariant &text) {
    return text.toString().simplified().left(longestTrigger);
}

// The portal's list of shortcuts, if it is one.
std::optional<QMap<QString, QString>> triggersOf(const QVariant &value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) {
        return std::nullopt;
    }
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a(sa{sv})")) {
        return std::nullopt;
    }
    QMap<QString, QString> triggers;
    for (const auto &shortcut : qdbus_cast<QList<PortalShortcut>>(argument)) {
        triggers.insert(shortcut.id,
                        shown(shortcut.properties.value(QStringLiteral("trigger_description"))));
    }
    return triggers;
}

} // namespace

PortalSession::PortalSession(QDBusConnection bus, QString applicationId)
    : bus_(std::move(bus))
    , applicationId_(std::move(applicationId)) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    bus_.connect(service, desktopPath, shortcutsInterface, QStringLiteral("Activated"), this,
                 SLOT(onActivated(QDBusMessage)));
    bus_.connect(service, desktopPath, shortcutsInterface, QStringLiteral("ShortcutsChanged"), this,
                 SLOT(onShortcutsChanged(QDBusMessage)));
    // Every request of this connection, whatever path the portal gives it.
    bus_.connect(service, QString(), requestInterface, QStringLiteral("Response"), this,
                 SLOT(onResponse(uint, QVariantMap, QDBusMessage)));
    bus_.connect(service, QString(), sessionInterface, QStringLiteral("Closed"), this,
                 SLOT(onClosed(QDBusMessage)));
    auto *watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
            [this] { nameOwnerChanged(true); });
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { nameOwnerChanged(false); });
}

PortalSession::~PortalSession() {
    abandon();
    close(session_);
    QDBusConnection::disconnectFromBus(bus_.name());
}

void PortalSession::bind(QList<PortalShortcut> shortcuts) {
    abandon();
    ++generation_;
    shortcuts_ = std::move(shortcuts);
    if (shortcuts_.isEmpty()) {
        close(session_);
        return;
    }
    if (introduced_) {
        createSession();
    } else {
        introduce();
    }
}

// Tells the portal which application this is, where it takes that from programs outside sandboxes.
// Older portals know it by its systemd scope or not at all, and go on without.
void PortalSession::introduce() {
    introduced_ = true;
    auto call = QDBusMessage::createMethodCall(service, desktopPath, registryInterface,
                                               QStringLiteral("Register"));
    call << applicationId_ << QVariantMap();
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, generation = generation_](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                if (generation == generation_) {
                    createSession();
                }
            });
}

// The first session after each start has the same name: by it a desktop that is told no application
// finds what the user has chosen before. Those after it have others, because an earlier one lasts
// until they are bound.
void PortalSession::createSession() {
    request(
        QStringLiteral("CreateSession"), {},
        {{QStringLiteral("session_handle_token"), QStringLiteral("nerlo_pro%1").arg(++sessions_)}},
        [this](const QVariantMap &results) {
            const auto handle = results.value(QStringLiteral("session_handle"));
            next_ = handle.metaType() == QMetaType::fromType<QDBusObjectPath>()
                        ? handle.value<QDBusObjectPath>().path()
                        : handle.toString();
            if (next_.isEmpty()) {
                fail(QStringLiteral("the desktop portal gave no session"));
            } else {
                bindShortcuts();
            }
        });
}

void PortalSession::bindShortcuts() {
    request(
        QStringLiteral("BindShortcuts"),
        {QVariant::fromValue(QDBusObjectPath(next_)), QVariant::fromValue(shortcuts_), QString()},
        {}, [this](const QVariantMap &results) {
            const auto triggers = triggersOf(results.value(QStringLiteral("shortcuts")));
            if (triggers) {
                close(session_);
                session_ = std::exchange(next_, QString());
                emit bound(*triggers);
            } else {
                fail(QStringLiteral("the desktop bound no shortcut"));
            }
        });
}

void PortalSession::request(const QString &method, QVariantList arguments, QVariantMap options,
                            Answer answer) {
    const QString token = QStringLiteral("nerlo%1").arg(++tokens_);
    options.insert(QStringLiteral("handle_token"), token);
    arguments.append(options);
    // The path is computed beforehand, because the answer may arrive before the call returns.
    const QString sender = bus_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    awaitedRequest_ = desktopPath + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
    answer_ = std::move(answer);
    auto call = QDBusMessage::createMethodCall(service, desktopPath, shortcutsInterface, method);
    call.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, generation = generation_](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                if (generation == generation_ && finished->isError()) {
                    failCall(finished->reply());
                }
            });
}

void PortalSession::onResponse(uint code, const QVariantMap &results, const QDBusMessage &message) {
    if (awaitedRequest_.isEmpty() || message.path() != awaitedRequest_) {
        return;
    }
    awaitedRequest_.clear();
    const Answer answer = std::exchange(answer_, nullptr);
    if (code == 0) {
        available_ = true;
        answer(results);
    } else {
        fail(code == 1 ? QStringLiteral("it was declined in the desktop's dialog")
                       : QStringLiteral("the desktop portal refused it"));
    }
}

void PortalSession::onActivated(const QDBusMessage &message) {
    const auto arguments = message.arguments();
    if (!session_.isEmpty() && arguments.size() >= 2 &&
        arguments[0].value<QDBusObjectPath>().path() == session_) {
        emit activated(arguments[1].toString());
    }
}

void PortalSession::onShortcutsChanged(const QDBusMessage &message) {
    const auto arguments = message.arguments();
    if (session_.isEmpty() || arguments.size() < 2 ||
        arguments[0].value<QDBusObjectPath>().path() != session_) {
        return;
    }
    if (const auto triggers = triggersOf(arguments[1])) {
        emit bound(*triggers);
    }
}

void PortalSession::onClosed(const QDBusMessage &message) {
    if (!next_.isEmpty() && message.path() == next_) {
        next_.clear();
        fail(QStringLiteral("the desktop portal refused it"));
    } else if (!session_.isEmpty() && message.path() == session_) {
        session_.clear();
        if (awaitedRequest_.isEmpty()) { // else the next one takes its place, or fails
            fail(QStringLiteral("the desktop has ended the shortcuts of this program"));
        }
    }
}

void PortalSession::failCall(const QDBusMessage &error) {
    const QString name = error.errorName();
    available_ = name != QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") &&
                 name != QLatin1String("org.freedesktop.DBus.Error.UnknownInterface") &&
                 name != QLatin1String("org.freedesktop.DBus.Error.UnknownMethod") &&
                 name != QLatin1String("org.freedesktop.DBus.Error.UnknownObject") &&
                 name != QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") &&
                 !name.startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn"));
    fail(available_ ? QStringLiteral("the desktop portal does not answer as it should")
                    : QStringLiteral("this desktop has no GlobalShortcuts portal; ") +
                          QLatin1String(hotKeysByHand));
}

void PortalSession::fail(const QString &why) {
    abandon();
    emit refused(why);
}

// Whatever is under way comes to nothing.
void PortalSession::abandon() {
    awaitedRequest_.clear();
    answer_ = nullptr;
    close(next_);
}

void PortalSession::close(QString &session) {
    if (!session.isEmpty()) {
        bus_.send(QDBusMessage::createMethodCall(service, std::exchange(session, QString()),
                                                 sessionInterface, QStringLiteral("Close")));
    }
}

void PortalSession::nameOwnerChanged(bool there) {
    // A portal that has been started anew does not know our session.
    introduced_ = false;
    sessions_ = 0;
    if (there && session_.isEmpty() && awaitedRequest_.isEmpty() && !available_) {
        bind(std::exchange(shortcuts_, {}));
    } else if (!there && !shortcuts_.isEmpty() && !(session_.isEmpty() && next_.isEmpty())) {
        session_.clear();
        next_.clear();
        available_ = false;
        fail(QStringLiteral("the desktop portal has ended"));
    }
}

} // namespace nerlo::platform
