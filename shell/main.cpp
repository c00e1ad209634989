// nerlo-pro: makes the program, connects it with the session, and runs it.

#include "platform/linux/DisplayLock.h"
#include "platform/linux/ProcessMemory.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/QtWorkerQueue.h"
#include "shell/BusService.h"
#include "shell/CommandLine.h"
#include "shell/DarkColours.h"
#include "shell/Desktop.h"
#include "shell/Doctor.h"
#include "shell/Program.h"
#include "shell/QuitSignals.h"
#include "shell/RunningProgram.h"
#include "shell/SearchRunner.h"
#include "shell/StoreShortcuts.h"
#include "shell/Strings.h"
#include "shell/Terminal.h"

#include <iostream>
#include <optional>
#include <string>

#include <QAccessible>
#include <QApplication>
#include <QDBusConnection>
#include <QLocale>
#include <QSysInfo>

namespace {

using namespace nerlo;
using shell::Command;
using shell::complain;
using shell::failed;
using shell::succeeded;

constexpr auto unreachable = "a nerlo-pro runs on this display, but not on this session bus, so it "
                             "cannot be told anything; end it from its menu, or with kill";

// Answers requests that need no running program. Nothing is returned if the program is to start.
std::optional<int> withoutProgram(const shell::CommandLine &commandLine) {
    if (commandLine.asksFor(Command::quit)) {
        const platform::DisplayLock display(shell::runtimeFolder());
        return display.heldByAnother() ? complain(unreachable) : succeeded;
    }
    if (commandLine.asksFor(Command::restore)) {
        return complain("not restored: the program was not running");
    }
    if (commandLine.asksFor(Command::why)) {
        return complain("nothing to tell: the program was not running");
    }
    platform::QtMainQueue mainQueue;
    platform::QtWorkerQueue workerQueue;
    if (commandLine.asksFor(Command::doctor)) {
        const auto desktop = shell::openDesktop(mainQueue, workerQueue);
        std::cout << shell::doctorReport(desktop, settings::SettingsPaths::standard(),
                                         QDBusConnection::sessionBus().isConnected(), {});
        return desktop.clipboard.backend ? succeeded : failed;
    }
    // Without a display the toolkit's application object would abort the process.
    platform::Backends backends(mainQueue);
    if (const auto whyNot = backends.whyNoDisplay(); !whyNot.empty()) {
        for (const auto &why : whyNot) {
            complain(why);
        }
        return complain("there is no display whose clipboard could be cleaned");
    }
    return std::nullopt;
}

// Everything that needs no windows. Nothing when the program is to start.
std::optional<int> withoutWindows(int argc, char **argv, shell::CommandLine &commandLine) {
    const QCoreApplication application(argc, argv);
    commandLine = shell::parseCommandLine(QCoreApplication::arguments());
    switch (commandLine.action) {
    case shell::CommandLine::Action::help:
    case shell::CommandLine::Action::version:
        std::cout << commandLine.text.toStdString();
        return succeeded;
    case shell::CommandLine::Action::fail:
        return complain(commandLine.text.toStdString(), shell::unusableArguments);
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
        if (const auto status = shell::handOver(commandLine)) {
            return status;
        }
    }
    return withoutProgram(commandLine);
}

// Makes this the one program of the session, and where there is no bus the one of the display. The
// exit status if another one is quicker.
std::optional<int> becomeTheOne(shell::BusService &bus, platform::DisplayLock &display,
                                shell::CommandLine &commandLine) {
    auto name = bus.takeName();
    for (; name == shell::BusService::Name::taken; name = bus.takeName()) {
        if (const auto status = shell::handOver(commandLine)) {
            return status;
        }
    }
    using Kind = platform::DisplayLock::Kind;
    const bool reachable = name == shell::BusService::Name::ours;
    if (!display.take(reachable ? Kind::shared : Kind::alone)) {
        return complain(unreachable);
    }
    if (!reachable) {
        complain("there is no session bus, so no other start of the program will find this one");
    }
    return std::nullopt;
}

shell::ProductLinks productLinks() {
    return {NERLO_SUPPORT_PAGE, NERLO_RATE_PAGE, NERLO_EMAIL, NERLO_VERSION,
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

    platform::giveBackLargeMemory();
    if (!platform::keepOutOfCoreDumps()) {
        complain("a core dump of this program would hold what was copied");
    }
    platform::chooseQtWindowSystem();
    const QApplication application(argc, argv);
    QApplication::setDesktopFileName(shell::applicationId);
    QApplication::setQuitOnLastWindowClosed(false);
    // The toolkit only finds out whether a screen reader listens once it is asked, which would be
    // too late for the first popup.
    QAccessible::isActive();
    shell::keepDarkColoursReadable();
    shell::installTranslations(*QCoreApplication::instance(), QLocale::system());

    shell::BusService bus;
    platform::DisplayLock display(shell::runtimeFolder());
    if (const auto status = becomeTheOne(bus, display, commandLine)) {
        return *status;
    }
    platform::QtMainQueue mainQueue;
    platform::QtWorkerQueue workerQueue;
    const auto desktop = shell::openDesktop(mainQueue, workerQueue);
    if (!desktop.clipboard.backend) {
        return complain("the display is gone");
    }
    desktop.clipboard.backend->stayBehind();

    shell::Program program(
        {mainQueue, workerQueue, desktop, settings::SettingsPaths::standard(), productLinks()});
    bus.serve(program);
    const shell::SearchRunner searchRunner(program);
    const shell::QuitSignals quitSignals([&] { program.quit(); });
    program.start();
    for (const auto &request : commandLine.requests) {
        if (!program.perform(request)) {
            complain("there is no profile '" + request.argument.toString().toStdString() + "'");
        }
    }
    const int status = QCoreApplication::exec();
    bus.end();
    return status;
}
