#include "shell/TrayIcon.h"

#include "shell/PanelMenu.h"
#include "shell/Strings.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QPalette>
#include <QSystemTrayIcon>

namespace nerlo::shell {

namespace {

const auto watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");
const auto panelName = QStringLiteral("org.nerlo.NerloPro.Shell");
// Ours while the panel is to show the icon.
const auto inPanelName = QStringLiteral("org.nerlo.NerloPro.StatusItem");

QString stateName(TrayState state) {
    switch (state) {
    case TrayState::automatic:
        return QStringLiteral("automatic");
    case TrayState::problem:
        return QStringLiteral("problem");
    case TrayState::idle:
        break;
    }
    return QStringLiteral("idle");
}

// Whether the panel gives a symbolic icon its own colour. Others show it as it is, which on a dark
// bar is nothing at all.
bool panelColoursIcons() {
    const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':');
    return desktops.contains("KDE") || desktops.contains("GNOME");
}

// Whether a host of status items is registered.
QDBusMessage hostQuestion() {
    auto call = QDBusMessage::createMethodCall(watcherName, watcherPath,
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get"));
    call.setAutoStartService(false);
    call.setArguments({watcherName, QStringLiteral("IsStatusNotifierHostRegistered")});
    return call;
}

bool saysYes(const QDBusReply<QVariant> &reply) {
    return reply.isValid() && reply.value().toBool();
}

bool panelIsThere(const QDBusConnection &bus) {
    return bus.isConnected() && bus.interface()->isServiceRegistered(panelName);
}

} // namespace

bool trayHostIsThere() {
    constexpr int patience = 1000; // in milliseconds
    const auto bus = QDBusConnection::sessionBus();
    return saysYes(bus.call(hostQuestion(), QDBus::Block, patience)) || panelIsThere(bus);
}

TrayIcon::TrayIcon(QMenu &menu)
    : menu_(menu)
    , watcher_(new QDBusServiceWatcher(watcherName, QDBusConnection::sessionBus(),
                                       QDBusServiceWatcher::WatchForRegistration |
                                           QDBusServiceWatcher::WatchForUnregistration,
                                       this))
    , panelWatcher_(new QDBusServiceWatcher(panelName, QDBusConnection::sessionBus(),
                                            QDBusServiceWatcher::WatchForOwnerChange, this)) {
    panelThere_ = panelIsThere(QDBusConnection::sessionBus());
    connect(panelWatcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                panelThere_ = !owner.isEmpty();
                updatePanel();
            });
    connect(watcher_, &QDBusServiceWatcher::serviceRegistered, this, &TrayIcon::lookForHost);
    // The toolkit puts the icon back when the host returns.
    connect(watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        hostGone_ = true;
        hostSeen_ = false;
        updatePanel();
    });
    QDBusConnection::sessionBus().connect(watcherName, watcherPath, watcherName,
                                          QStringLiteral("StatusNotifierHostRegistered"), this,
                                          SLOT(lookForHost()));
    lookForHost();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::lookForHost() {
    if (hostSeen_) {
        return;
    }
    auto *waiting =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(hostQuestion()), this);
    connect(waiting, &QDBusPendingCallWatcher::finished, this, [this, waiting] {
        waiting->deleteLater();
        if (saysYes(waiting->reply())) {
            overBus_ = !statusItem_ || overBus_;
            trayAppeared();
        }
    });
}

void TrayIcon::trayAppeared() {
    hostSeen_ = true;
    hostGone_ = false;
    if (wanted_ && !statusItem_) {
        make();
    }
    updatePanel();
}

void TrayIcon::updatePanel() {
    const bool inPanel = wanted_ && panelThere_ && (!statusItem_ || hostGone_);
    if (inPanel == inPanel_) {
        return;
    }
    inPanel_ = inPanel;
    auto bus = QDBusConnection::sessionBus();
    if (inPanel_) {
        panelMenu_ = std::make_unique<PanelMenu>(menu_, panelName);
        panelMenu_->setIcon(stateName(state_), tooltipOf(state_));
        bus.registerService(inPanelName);
        emit appeared();
    } else {
        bus.unregisterService(inPanelName);
        panelMenu_.reset();
    }
}

void TrayIcon::make() {
    statusItem_ = std::make_unique<QSystemTrayIcon>(iconOf(state_));
    statusItem_->setObjectName("statusItem");
    statusItem_->setContextMenu(&menu_);
    statusItem_->setToolTip(tooltipOf(state_));
    connect(statusItem_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) {
                    emit activated();
                }
            });
    statusItem_->show();
    emit appeared();
}

void TrayIcon::show() {
    wanted_ = true;
    if (hostSeen_ && !statusItem_) {
        make();
    }
    updatePanel();
}

void TrayIcon::drop() {
    wanted_ = false;
    statusItem_.reset();
    updatePanel();
}

bool TrayIcon::shown() const {
    return inPanel_ || (statusItem_ && !hostGone_);
}

void TrayIcon::setState(TrayState state) {
    state_ = state;
    if (statusItem_) {
        statusItem_->setIcon(iconOf(state));
        statusItem_->setToolTip(tooltipOf(state));
    }
    if (panelMenu_) {
        panelMenu_->setIcon(stateName(state), tooltipOf(state));
    }
}

QIcon TrayIcon::iconOf(TrayState state) {
    if (const auto name = "org.nerlo.NerloPro-" + stateName(state) + "-symbolic";
        panelColoursIcons() && QIcon::hasThemeIcon(name)) {
        return QIcon::fromTheme(name);
    }
    // Nobody tells the colour of the panel; most panels are as dark as the windows.
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    QString name = QStringLiteral(":/icons/logo-menubar");
    if (state != TrayState::idle) {
        name += '-' + stateName(state);
    }
    return QIcon(name + (dark ? "-white.svg" : ".svg"));
}

QString TrayIcon::tooltipOf(TrayState state) {
    switch (state) {
    case TrayState::automatic:
        return localized("sTrayAutomatic");
    case TrayState::problem:
        return localized("sTrayProblem");
    case TrayState::idle:
        break;
    }
    return localized(Table::menu, "Nerlo Pro");
}

} // namespace nerlo::shell
