// nerlo-pro: makes everything that the program consists of, in order, and runs it.

#include "clipboard/nrChangePasterboard.h"
#include "clipboard/nrPasteboardWatcher.h"
#include "platform/backends/Backends.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DesktopHotKeys.h"
#include "platform/linux/FolderWatch.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/QtWorkerQueue.h"
#include "settings/SettingsKeys.h"
#include "settings/SettingsPaths.h"
#include "settings/UserLocale.h"
#include "settings/nrPreferences.h"
#include "shell/Alerts.h"
#include "shell/BusService.h"
#include "shell/CommandLine.h"
#include "shell/Commands.h"
#include "shell/DesktopShell.h"
#include "shell/Doctor.h"
#include "shell/HotKeyCommands.h"
#include "shell/QuitSignals.h"
#include "shell/StoreShortcuts.h"
#include "shell/Strings.h"
#include "shell/Terminal.h"
#include "shell/nrAppDelegate.h"
#include "shell/nrCountWindowController.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "shortcuts/view/nrShortcutView.h"
#include "storage/FileSettingsStore.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

#include <QApplication>
#include <QDBusConnection>
#include <QLocale>
#include <QStandardPaths>
#include <QSysInfo>

namespace {

using namespace nerlo;
using shell::complain;
using shell::failed;
using shell::succeeded;
using shell::unusableArguments;

constexpr auto applicationId = "org.nerlo.NerloPro";

// A second start: the program that runs does what was asked. Nothing if it was about to end
// instead, which leaves the requests that it has not done.
std::optional<int> handOver(shell::CommandLine &commandLine) {
    auto &requests = commandLine.requests;
    if (requests.empty()) {
        requests.push_back({"Activate", {}});
    }
    for (; !requests.empty(); requests.erase(requests.begin())) {
        const auto &request = requests.front();
        const auto answer = shell::askRunningProgram(request);
        const auto text = answer.text.value_or(QString()).toStdString();
        if (answer.outcome == shell::Answer::Outcome::ended) {
            return std::nullopt;
        }
        if (answer.outcome == shell::Answer::Outcome::failed) {
            return complain(text);
        }
        if (request.method == "Restore" &&
            text != shell::nameOf(clipboard::nrChangePasterboard::Restored::done)) {
            return complain("not restored: " + text);
        }
        if (request.method == "Doctor") {
            std::cout << text;
        } else if (request.method == "Automatic") {
            std::cout << text << '\n';
        }
    }
    return succeeded;
}

// The first start: what was asked is done once the event loop runs.
void perform(const shell::CommandLine &commandLine, const shell::Commands &commands) {
    for (const auto &request : commandLine.requests) {
        if (request.method == "Clean") {
            commands.clean();
        } else if (request.method == "Operation") {
            commands.operation(request.arguments.first().toInt());
        } else if (request.method == "Automatic") {
            const auto mode = request.arguments.first().toString().toStdString();
            commands.automatic(shell::parseAutomaticMode(mode).value());
        } else if (request.method == "Preferences") {
            commands.preferences();
        } else if (request.method == "Profile") {
            const auto wanted = request.arguments.first().toString().toStdString();
            if (!commands.profile(wanted)) {
                complain("there is no profile '" + wanted + "'");
            }
        }
    }
}

// What can be done without windows: the words of --help, and what a running program is asked.
// Nothing when the program is to start.
std::optional<int> withoutWindows(int argc, char **argv, shell::CommandLine &commandLine) {
    const QCoreApplication application(argc, argv);
    commandLine = shell::parseCommandLine(QCoreApplication::arguments());
    switch (commandLine.action) {
    case shell::CommandLine::Action::help:
    case shell::CommandLine::Action::version:
        std::cout << commandLine.text.toStdString();
        return succeeded;
    case shell::CommandLine::Action::fail:
        return complain(commandLine.text.toStdString(), unusableArguments);
    case shell::CommandLine::Action::run:
        break;
    }
    if (!commandLine.shortcuts.empty()) {
        const int status = shell::storeShortcuts(commandLine.shortcuts);
        if (status != succeeded || commandLine.requests.empty()) {
            return status;
        }
    }
    if (shell::programRuns()) {
        if (const auto status = handOver(commandLine)) {
            return status;
        }
    }
    if (commandLine.asksFor("Quit")) {
        return succeeded; // none runs
    }
    if (commandLine.asksFor("Restore")) {
        return complain("not restored: the program was not running");
    }
    platform::QtMainQueue mainQueue;
    const auto clipboard = platform::openPasteboard(mainQueue);
    if (commandLine.asksFor("Doctor")) {
        const auto activeApplication = platform::openActiveApplication(mainQueue);
        const auto keyboardLayout = platform::openKeyboardLayout(mainQueue);
        const auto hotKeys =
            platform::openHotKeys(mainQueue, *keyboardLayout.backend, applicationId);
        std::cout << shell::doctorReport(clipboard, activeApplication, hotKeys, {},
                                         platform::openPopupLayer(mainQueue),
                                         QDBusConnection::sessionBus().isConnected(), std::nullopt);
        return clipboard.backend ? succeeded : failed;
    }
    // The toolkit would abort.
    if (!clipboard.backend) {
        for (const auto &why : clipboard.declined) {
            complain(why);
        }
        return complain("there is no display whose clipboard could be cleaned");
    }
    return std::nullopt;
}

shell::ProductLinks productLinks() {
    return {NERLO_SUPPORT_PAGE, NERLO_DEVELOPER_EMAIL, NERLO_VERSION,
            QSysInfo::prettyProductName().toStdString()};
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication::setApplicationName("nerlo-pro");
    QCoreApplication::setApplicationVersion(NERLO_VERSION);
    shell::CommandLine commandLine;
    if (const auto status = withoutWindows(argc, argv, commandLine)) {
        return *status;
    }

    platform::chooseQtWindowSystem();
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(applicationId);
    QApplication::setQuitOnLastWindowClosed(false);
    shell::installTranslations(application, QLocale::system());

    shell::Commands commands;
    shell::BusService bus(commands);
    auto name = bus.takeName();
    for (; name == shell::BusService::Name::taken; name = bus.takeName()) {
        if (const auto status = handOver(commandLine)) {
            return *status;
        }
    }
    if (name == shell::BusService::Name::noBus) {
        complain("there is no session bus, so no other start of the program will find this one");
    }

    platform::QtMainQueue mainQueue;
    platform::QtWorkerQueue workerQueue;
    const auto clipboard = platform::openPasteboard(mainQueue);
    if (!clipboard.backend) {
        return complain("the display is gone");
    }
    const auto activeApplication = platform::openActiveApplication(mainQueue);
    const auto keyboardLayout = platform::openKeyboardLayout(mainQueue);
    const auto hotKeyService =
        platform::openHotKeys(mainQueue, *keyboardLayout.backend, applicationId);

    const auto popupLayer = platform::openPopupLayer(mainQueue);

    const auto paths = settings::SettingsPaths::standard();
    storage::FileSettingsStore store(paths.store,
                                     [&mainQueue](auto task) { mainQueue.post(std::move(task)); });

    clipboard::nrChangePasterboard engine(*clipboard.backend, mainQueue, workerQueue,
                                          settings::userLocale());
    engine.setCountWindowMaker([&] {
        return std::make_unique<shell::nrCountWindowController>(store, mainQueue,
                                                                popupLayer.backend.get());
    });
    engine.setCleanedHandler([&] { bus.cleaned(); });
    clipboard::nrPasteboardWatcher watcher(*clipboard.backend, mainQueue,
                                           *activeApplication.backend, engine);

    const shortcuts::ShortcutTexts shortcutTexts(
        *keyboardLayout.backend,
        [](std::u16string_view key) { return shell::localizedUtf16(shell::Table::shortcut, key); });
    shortcuts::GlobalHotKeys globalHotKeys(*hotKeyService.backend);
    shortcuts::UserDefaultsHotKeys hotKeys(store, globalHotKeys);
    keyboardLayout.backend->setChangedHandler([&] { hotKeys.keyboardLayoutChanged(); });
    const auto systemHotKeys = platform::createDesktopHotKeys(*keyboardLayout.backend, workerQueue,
                                                              platform::DesktopSources::system());

    settings::nrPreferences preferences(
        store, mainQueue, paths,
        [](std::u16string_view key) { return shell::localizedUtf16(shell::Table::standard, key); },
        settings::firstLanguage(store));
    preferences.hooks().setAllBools = [&](const auto &profile) { engine.setAllBools(profile); };
    preferences.hooks().setDefaultShortcut = [&] { shell::setDefaultShortcut(hotKeys); };

    shell::DesktopShell windows(
        {store, mainQueue, workerQueue, preferences, engine, hotKeys, shortcutTexts,
         settings::userLocale(), NERLO_VERSION, platform::pointerPositionKnown(),
         hotKeyService.backend->available(), platform::openTaskbarHint(),
         [&](auto appeared) { return platform::openTrayWatch(mainQueue, std::move(appeared)); }});
    store.setErrorHandler([&](const std::string &error) {
        windows.setProblem(shell::ShellWindows::Problem::settings, error);
    });
    const shortcuts::ShortcutViewContext recording{
        shortcutTexts,
        *systemHotKeys,
        hotKeys,
        &shell::StatusMenu::mainMenu,
        [](QWidget *parent, const QString &message, const QString &informative) {
            shell::runAlert({shell::Alert::Style::critical, message, informative, {}}, parent);
        },
        {},
        platform::keyboardCanBeGrabbed()};
    windows.setRecorderMaker([&](const std::string &key) {
        systemHotKeys->refresh(); // known by the time somebody records
        auto *recorder = new shortcuts::nrShortcutView(recording);
        recorder->setAssociatedUserDefaultsKey(key);
        return recorder;
    });
    const auto configFolder = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation);
    platform::AutostartEntry loginItem(configFolder.toStdString() + "/autostart",
                                       QCoreApplication::applicationFilePath().toStdString());

    shell::nrAppDelegate delegate(
        {store, mainQueue, preferences, engine, watcher, loginItem, windows, productLinks()});
    windows.setDelegate(&delegate);
    preferences.initProfilesItems();
    auto damages = preferences.loadErrors();
    if (!store.loadError().empty()) {
        damages.insert(damages.begin(), store.loadError());
    }
    if (!damages.empty()) {
        QStringList lines;
        for (const auto &damage : damages) {
            lines << QString::fromStdString(damage) + "\n" + shell::localized("sFileDamaged");
            complain(damage);
        }
        // Who misses something looks there.
        windows.setProblem(shell::ShellWindows::Problem::damage, lines.join('\n').toStdString());
    }
    const platform::FolderWatch storeWatch(std::filesystem::path(paths.store).parent_path(),
                                           mainQueue, [&] { store.fileChanged(); });
    const platform::FolderWatch profilesWatch(std::filesystem::path(paths.profiles).parent_path(),
                                              mainQueue,
                                              [&] { preferences.profilesFileChanged(); });

    commands.clean = [&] { delegate.clearFormattingFromClipboard(); };
    commands.operation = [&](std::int32_t index) { engine.changePasteboardWithKeys(index); };
    commands.restore = [&](auto handler) { engine.restore(std::move(handler)); };
    commands.automatic = [&](shell::AutomaticMode mode) {
        const bool on = mode == shell::AutomaticMode::on ||
                        (mode == shell::AutomaticMode::toggle && !delegate.automatic());
        if (on != delegate.automatic()) {
            delegate.automaticallyClearFormatting();
        }
        return on;
    };
    commands.activate = [&] { delegate.applicationShouldHandleReopen(windows.hasVisibleWindow()); };
    commands.preferences = [&] { delegate.showPreferences(); };
    commands.profile = [&](const std::string &wanted) {
        const auto &items = preferences.profilesItems();
        const auto *item = settings::findProfile(items, wanted);
        if (item) {
            preferences.profilesSwitch(static_cast<int>(item - items.data()));
        }
        return item != nullptr;
    };
    commands.automaticNow = [&] { return delegate.automatic(); };
    commands.profileNow = [&] {
        return QString::fromStdU16String(preferences.profileName()).toStdString();
    };
    commands.backend = [&] { return clipboard.backend->description(); };
    commands.doctor = [&] {
        return shell::doctorReport(clipboard, activeApplication, hotKeyService,
                                   shell::hotKeyFindings(hotKeys, *keyboardLayout.backend),
                                   popupLayer, name == shell::BusService::Name::ours,
                                   delegate.automatic());
    };
    commands.quit = [&] { mainQueue.post(&QCoreApplication::quit); };
    delegate.setQuitHandler(commands.quit);
    bus.stateChanged();
    windows.setChangedHandler([&] { bus.stateChanged(); });

    const shell::QuitSignals quitSignals(commands.quit);
    clipboard.backend->setLostHandler([] {
        complain("the display is gone");
        QCoreApplication::exit(failed);
    });
    const auto refusals =
        shell::reportRefusedHotKeys(hotKeys, [](const std::string &line) { complain(line); });
    shell::registerHotKeyCommands(hotKeys, commands, [](std::string_view key) {
        return shell::localized(key).toStdString();
    });

    delegate.applicationWillFinishLaunching();
    delegate.applicationDidFinishLaunching();
    windows.start();
    // Another process may have written the setting.
    constexpr auto automaticKey = "automaticallyClearFormatting";
    const auto automaticMode = store.observe(automaticKey, [&] {
        if (store.boolForKey(automaticKey) != delegate.automatic()) {
            delegate.automaticallyClearFormatting();
        }
    });
    perform(commandLine, commands);
    const int status = QCoreApplication::exec();
    bus.end();
    // Also what could not be written before; there is no window any more that could tell.
    if (const auto error = preferences.savePending(); !error.empty()) {
        complain(error);
    }
    if (!store.synchronize()) {
        complain(store.error());
    }
    store.setErrorHandler(nullptr); // the windows go before it
    return status;
}
