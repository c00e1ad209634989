#include "shell/Desktop.h"

#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DesktopHotKeys.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <string>

namespace nerlo::shell {

Desktop openDesktop(platform::MainQueue &mainQueue, platform::WorkerQueue &workerQueue) {
    Desktop desktop;
    desktop.clipboard = platform::openPasteboard(mainQueue);
    desktop.activeApplication = platform::openActiveApplication(mainQueue);
    desktop.keyboardLayout = platform::openKeyboardLayout(mainQueue);
    const auto &layout = *desktop.keyboardLayout.backend;
    desktop.hotKeys = platform::openHotKeys(mainQueue, layout, applicationId);
    desktop.popupLayer = platform::openPopupLayer(mainQueue);
    desktop.systemHotKeys =
        platform::createDesktopHotKeys(layout, workerQueue, platform::DesktopSources::system());
    const auto configFolder = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation);
    desktop.loginItem = std::make_unique<platform::AutostartEntry>(
        configFolder.toStdString() + "/autostart",
        QCoreApplication::applicationFilePath().toStdString());
    return desktop;
}

} // namespace nerlo::shell
