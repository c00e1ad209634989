// The status item in the desktop's tray, once there is one: a StatusNotifierItem host or an XEmbed
// tray, whichever comes first and whenever it comes; or, where there is none, GNOME's panel by our
// extension, which shows an icon of its own, with the same menu, as long as this program has a name
// on the bus for it.
//
// The toolkit looks for a host once, when its first icon is made; so none is made before. Main
// thread only.
#pragma once

#include <QIcon>
#include <QMenu>
#include <QObject>
#include <memory>

class QDBusMessage;
class QDBusServiceWatcher;
class QSystemTrayIcon;

namespace nerlo::shell {

class PanelMenu;

enum class TrayState { idle, automatic, problem };

// Whether a panel shows status items now. Waits for a second at most.
bool trayHostIsThere();

class TrayIcon final : public QObject {
    Q_OBJECT

  public:
    explicit TrayIcon(QMenu &menu);
    ~TrayIcon() override;

    // From now on the icon is shown as soon as a host is there.
    void show();
    void drop();
    bool wanted() const { return wanted_; }
    // Whether it stands in a tray now.
    bool shown() const;
    void setState(TrayState state);
    TrayState state() const { return state_; }
    // Whether the tray shows the menu over the session bus; else it is a window of this program.
    bool overBus() const { return overBus_; }

    static QIcon iconOf(TrayState state);
    static QString tooltipOf(TrayState state);

  public slots:
    // An XEmbed tray is there.
    void trayAppeared();

  signals:
    // A click that the desktop does not turn into the menu.
    void activated();
    // The icon came to stand in a tray.
    void appeared();

  private slots:
    void lookForHost();

  private:
    void make();
    void updatePanel();

    QMenu &menu_;
    QDBusServiceWatcher *watcher_;
    QDBusServiceWatcher *panelWatcher_;
    bool panelThere_ = false;
    bool inPanel_ = false;
    bool wanted_ = false;
    bool hostSeen_ = false;
    bool hostGone_ = false; // it was there
    bool overBus_ = false;
    TrayState state_ = TrayState::idle;
    std::unique_ptr<QSystemTrayIcon> statusItem_;
    std::unique_ptr<PanelMenu> panelMenu_; // while it stands in the panel
};

} // namespace nerlo::shell
