#include "shell/DesktopShell.h"

#include "engine/Operations.h"
#include "settings/SettingsKeys.h"
#include "shell/Alerts.h"
#include "shell/KeySequences.h"
#include "shell/PreferencesWindow.h"
#include "shell/Strings.h"
#include "shell/TipsWindow.h"
#include "shell/WhatsNewWindow.h"

#include <QCursor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

// A tray that is not there by then may still come; but the user is not left without a window.
constexpr auto trayExpectedWithin = 2000ms;

// What a user is told to bind by hand.
const auto cleanCommand = QStringLiteral("nerlo-pro --clean");

} // namespace

DesktopShell::DesktopShell(Parts parts)
    : parts_(std::move(parts))
    , menu_(std::make_unique<StatusMenu>(menuCommands()))
    , tray_(std::make_unique<TrayIcon>(menu_->menu())) {
    QObject::connect(tray_.get(), &TrayIcon::appeared, tray_.get(),
                     [this] { setProblem(Problem::tray, {}); });
    QObject::connect(tray_.get(), &TrayIcon::activated, tray_.get(), [this] {
        if (parts_.pointerPositionKnown) {
            menu_->menu().popup(QCursor::pos());
        } else if (delegate_) {
            delegate_->showPreferences();
        }
    });
    cleanShortcut_ = parts_.store.observe(settings::cleanHotKey, [this] { updateCleanShortcut(); });
    hotKeyStatus_ = parts_.hotKeys.observeStatus([this] { updateHotKeys(); });
    connectPreferences();
}

DesktopShell::~DesktopShell() {
    parts_.mainQueue.cancel(settle_);
    auto &hooks = parts_.preferences.hooks();
    hooks.profilesChanged = nullptr;
    hooks.controlsLoaded = nullptr;
    hooks.edited = nullptr;
    hooks.updateUI = nullptr;
    hooks.confirmRemoval = nullptr;
    hooks.saveFailed = nullptr;
}

MenuCommands DesktopShell::menuCommands() {
    const auto tell = [this](void (nrAppDelegate::*action)()) {
        return [this, action] {
            if (delegate_) {
                (delegate_->*action)();
            }
        };
    };
    MenuCommands commands;
    commands.clean = tell(&nrAppDelegate::clearFormattingFromClipboard);
    commands.automatic = tell(&nrAppDelegate::automaticallyClearFormatting);
    commands.excelException = tell(&nrAppDelegate::disableAutomaticallyClearFormatting);
    commands.restore = [this] { restore(); };
    commands.operation = [this](std::int32_t index) {
        parts_.engine.changePasteboardWithKeys(index);
    };
    commands.selectProfile = [this](int place) { parts_.preferences.profilesSwitch(place); };
    commands.preferences = tell(&nrAppDelegate::showPreferences);
    commands.tips = tell(&nrAppDelegate::aOpenTips);
    commands.whatsNew = tell(&nrAppDelegate::openReleaseNotesNerloPro);
    commands.rate = tell(&nrAppDelegate::openRateApp);
    commands.support = tell(&nrAppDelegate::supportWebsite);
    commands.email = tell(&nrAppDelegate::openEmailToDev);
    commands.about = tell(&nrAppDelegate::openAboutApp);
    commands.quit = tell(&nrAppDelegate::quitApp);
    commands.hide = [this] {
        if (window) {
            window->close();
        }
    };
    return commands;
}

void DesktopShell::connectPreferences() {
    auto &hooks = parts_.preferences.hooks();
    hooks.profilesChanged = [this] { updateProfiles(); };
    hooks.controlsLoaded = [this] {
        if (window) {
            window->controlsLoaded();
        }
    };
    hooks.edited = [this] {
        if (window) {
            window->edited();
        }
    };
    hooks.updateUI = [this](int mode) {
        if (window) {
            window->updateUI(mode);
        }
    };
    hooks.confirmRemoval = [this](const std::u16string &name) {
        return window && window->confirmRemoval(name);
    };
    hooks.saveFailed = [this](const std::string &error) { setProblem(Problem::profiles, error); };
    updateProfiles();
}

void DesktopShell::updateProfiles() {
    QStringList names;
    for (const settings::ProfileItem &item : parts_.preferences.profilesItems()) {
        names.push_back(QString::fromStdU16String(settings::profileNameOf(item.record)));
    }
    menu_->setProfiles(names, parts_.preferences.selectedItem());
    if (window) {
        window->profilesChanged();
    }
    if (changed_) {
        changed_();
    }
}

void DesktopShell::updateCleanShortcut() {
    const auto shortcut = shortcuts::storedShortcut(parts_.store, settings::cleanHotKey);
    menu_->setCleanShortcut(shortcut ? keySequence(*shortcut, parts_.shortcutTexts)
                                     : QKeySequence());
}

void DesktopShell::updateHotKeys() {
    updateCleanShortcut(); // a new keyboard layout names its key anew
    QStringList refused;
    const auto update = [&](std::string_view key) {
        const auto status = parts_.hotKeys.status(key);
        QString problem;
        if (status.state == platform::HotKeyState::refused) {
            problem = status.text.empty() ? localized("sShortcutRefused")
                                          : localized(Table::shortcut, status.text);
            refused.push_back(localized(key) + ": " + problem);
        }
        if (window) {
            window->setHotKeyProblem(key, problem);
        }
    };
    update(settings::cleanHotKey);
    for (const engine::Operation &operation : engine::operations()) {
        update(operation.hotKey);
    }
    if (!refused.empty() && !parts_.hotKeysAvailable) {
        refused = {filled(localized("sShortcutsUnavailable"), {cleanCommand})};
    }
    setProblem(Problem::shortcuts, refused.join('\n').toStdString());
}

void DesktopShell::start() {
    if (parts_.watchTray) {
        xembed_ = parts_.watchTray([this] { tray_->trayAppeared(); });
    }
    settle_ = parts_.mainQueue.postAfter(trayExpectedWithin, [this] {
        settle_ = 0;
        if (!delegate_) {
            return;
        }
        if (tray_->wanted() && !tray_->shown()) {
            setProblem(Problem::tray, localized("sNoTray").toStdString());
        }
        delegate_->traySettled();
    });
}

void DesktopShell::showStatusItem() {
    tray_->show();
}

void DesktopShell::dropStatusItem() {
    tray_->drop();
}

bool DesktopShell::statusItemReachable() const {
    return tray_->shown();
}

void DesktopShell::setTaskbarEntry(bool shown) {
    taskbarEntry_ = shown;
    applyTaskbarEntry();
}

void DesktopShell::applyTaskbarEntry() {
    if (parts_.taskbar && window && window->isVisible()) {
        // Without an icon to click, the taskbar is the way back to a minimized window.
        parts_.taskbar->setShownInTaskbar(window->winId(), taskbarEntry_ || !tray_->shown());
    }
}

void DesktopShell::makePreferencesWindow() {
    GeneralActions actions;
    actions.automatic = [this](bool) { delegate_->automaticallyClearFormatting(); };
    actions.excelException = [this](bool) { delegate_->disableAutomaticallyClearFormatting(); };
    actions.showInMenuBar = [this](bool on) { delegate_->setShowInMenuBar(on); };
    actions.runInTheBackground = [this](bool on) { delegate_->setRunInTheBackground(on); };
    actions.launchOnStartup = [this](bool on) { delegate_->launchOnStartup(on); };
    actions.stayOnTop = [this](bool on) { delegate_->aStayOnTop(on); };
    window = std::make_unique<PreferencesWindow>(
        parts_.preferences, parts_.store, makeRecorder_, std::move(actions),
        PreviewParts{parts_.mainQueue, parts_.workerQueue, parts_.locale,
                     [this](auto handler) { parts_.engine.readClipboardText(std::move(handler)); },
                     [this] { parts_.engine.changePasteboard(); }});
    menu_->fillMenuBar(*window->menuBar());
    window->assignLetters();
    window->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    window->setCloseHandler([this] {
        if (taskbarEntry_ && !tray_->shown()) {
            window->showMinimized();
            return true;
        }
        return false;
    });
    updateNotice();
    updateHotKeys();
}

void DesktopShell::showPreferencesWindow() {
    if (!window) {
        makePreferencesWindow();
        stateChanged();
    }
    if (window->isMinimized()) {
        window->showNormal();
    }
    window->show();
    window->raise();
    window->activateWindow();
    applyTaskbarEntry();
    parts_.hotKeys.retryRefused();
}

bool DesktopShell::hasVisibleWindow() const {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::ranges::any_of(windows, [](const QWindow *candidate) {
        return candidate->isVisible() && candidate->type() != Qt::Tool &&
               candidate->type() != Qt::Popup && candidate->type() != Qt::ToolTip &&
               !(candidate->windowStates() & Qt::WindowMinimized);
    });
}

void DesktopShell::setFloating(bool floating) {
    if (window && window->windowHandle()) {
        // Of the widget, the flag would hide the window.
        window->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, floating);
    }
}

void DesktopShell::showTips() {
    constexpr auto atEachStartKey = "firstRunTips";
    if (!tipsController) {
        tipsController =
            std::make_unique<TipsWindow>(parts_.store.boolForKey(atEachStartKey),
                                         [this](bool on) { parts_.store.set(atEachStartKey, on); });
        tipsController->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    }
    tipsController->setPage(0);
    tipsController->show();
    tipsController->raise();
    tipsController->activateWindow();
}

void DesktopShell::showWhatsNew() {
    if (!whatsNewController) {
        whatsNewController = std::make_unique<WhatsNewWindow>([this] { showTips(); });
        whatsNewController->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
        QObject::connect(whatsNewController.get(), &QDialog::finished, whatsNewController.get(),
                         [this] { parts_.store.set("updateReleaseNotes3_1", true); });
    }
    whatsNewController->show();
    whatsNewController->raise();
    whatsNewController->activateWindow();
}

void DesktopShell::showAbout() {
    auto *box = new QMessageBox(window.get());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName("about");
    box->setWindowTitle(localized(Table::menu, "About"));
    box->setText(localized(Table::menu, "Nerlo Pro"));
    box->setInformativeText(localized("sAboutText").arg(QString::fromStdString(parts_.version)));
    box->setIconPixmap(QIcon(":/icons/org.nerlo.NerloPro.svg").pixmap(64, 64));
    box->addButton(localized("sClose"), QMessageBox::RejectRole);
    box->show();
    box->raise();
    box->activateWindow();
}

void DesktopShell::showAlert(const char *messageKey, const char *informativeKey) {
    runAlert({Alert::Style::informational,
              localized(messageKey),
              localized(informativeKey),
              {localized("OK")}},
             window && window->isVisible() ? window.get() : nullptr);
}

bool DesktopShell::openUrl(const std::string &url) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(url), QUrl::TolerantMode));
}

void DesktopShell::stateChanged() {
    if (!delegate_) {
        return;
    }
    menu_->setAutomatic(delegate_->automatic());
    menu_->setExcelException(delegate_->excelException());
    tray_->setState(!problems_.empty()       ? TrayState::problem
                    : delegate_->automatic() ? TrayState::automatic
                                             : TrayState::idle);
    if (window) {
        GeneralState state;
        state.automatic = delegate_->automatic();
        state.excelException = delegate_->excelException();
        state.showInMenuBar = delegate_->showInMenuBarChecked();
        state.runInTheBackground = delegate_->runInTheBackgroundChecked();
        state.launchOnStartup = parts_.store.boolForKey("lunchOnStartup");
        state.stayOnTop = parts_.store.boolForKey("stayOnTop");
        window->setGeneralState(state);
        applyTaskbarEntry();
    }
    if (changed_) {
        changed_();
    }
}

void DesktopShell::setProblem(Problem problem, const std::string &text) {
    const auto known = problems_.find(problem);
    if (text == (known == problems_.end() ? std::string() : known->second)) {
        return;
    }
    if (text.empty()) {
        problems_.erase(known);
    } else {
        problems_[problem] = text;
    }
    updateNotice();
    stateChanged();
}

void DesktopShell::updateNotice() {
    if (!window) {
        return;
    }
    QStringList lines;
    for (const auto &[problem, text] : problems_) {
        lines.push_back(QString::fromStdString(text));
    }
    window->setNotice(lines.join('\n'));
}

void DesktopShell::restore() {
    parts_.engine.restore([this](clipboard::nrChangePasterboard::Restored outcome) {
        using Restored = clipboard::nrChangePasterboard::Restored;
        if (outcome != Restored::done) {
            runAlert({Alert::Style::informational,
                      localized(outcome == Restored::nothingKept ? "sRestoreNothing"
                                                                 : "sRestoreRefused"),
                      {},
                      {localized("OK")}},
                     window && window->isVisible() ? window.get() : nullptr);
        }
    });
}

} // namespace nerlo::shell
