#include "shell/Desktop.h"

#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DesktopHotKeys.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <string>

namespace nerlo::shell {

std::string runtimeFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation).toStdString();
}

Desktop openDesktop(platform::MainQueue &mainQueue, platform::WorkerQueue &workerQueue) {
    Desktop desktop;
    desktop.backends = std::make_unique<platform::Backends>(mainQueue);
    desktop.clipboard = desktop.backends->openPasteboard();
    desktop.activeApplication = desktop.backends->openActiveApplication();
    desktop.keyboardLayout = desktop.backends->openKeyboardLayout();
    const auto &layout = *desktop.keyboardLayout.backend;
    desktop.hotKeys = desktop.backends->openHotKeys(layout, applicationId);
    desktop.popupLayer = desktop.backends->openPopupLayer();
    desktop.pointerPlace = desktop.backends->openPointerPlace();
    desktop.paster = desktop.backends->openPaster(layout);
    desktop.systemHotKeys = platform::createDesktopHotKeys(
        layout, workerQueue, mainQueue, platform::DesktopSources::system(applicationId));
    const auto autostart =
        QStandardPaths::writableLocation(QStandardPaths::ConfigLocation).toStdString() +
        "/autostart";
    desktop.loginItem = std::make_unique<platform::AutostartEntry>(
        autostart, QCoreApplication::applicationFilePath().toStdString());
    desktop.folders = {autostart, runtimeFolder()};
    return desktop;
}

} // namespace nerlo::shell
