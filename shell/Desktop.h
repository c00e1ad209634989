// What this desktop offers the program: for each of its notions the best backend.
#pragma once

#include "platform/LoginItem.h"
#include "platform/SystemHotKeys.h"
#include "platform/WorkerQueue.h"
#include "platform/backends/Backends.h"

#include <memory>
#include <string>
#include <vector>

namespace nerlo::shell {

// Of the desktop file, the windows and the name on the bus.
inline constexpr auto applicationId = "org.nerlo.NerloPro";

struct Desktop {
    std::unique_ptr<platform::Backends> backends;     // of what follows
    platform::Chosen<platform::Pasteboard> clipboard; // null without a display
    platform::Chosen<platform::ActiveApplication> activeApplication;
    platform::Chosen<platform::KeyboardLayout> keyboardLayout;
    platform::Chosen<platform::HotKeyService> hotKeys;
    platform::Chosen<platform::PopupLayer> popupLayer; // may be null
    platform::Chosen<platform::Paster> paster;         // may be null
    std::unique_ptr<platform::SystemHotKeys> systemHotKeys;
    std::unique_ptr<platform::LoginItem> loginItem;
    platform::Chosen<platform::PointerPlace> pointerPlace{}; // may be null
    std::vector<std::string> folders{}; // where the program writes, besides those of the settings
};

// Whether the desktop tells where the pointer is, whatever it is over.
inline bool tellsPointer(const Desktop &desktop) {
    const auto &place = desktop.pointerPlace.backend;
    return place && place->isKnown();
}

// Where the session keeps what goes with it.
std::string runtimeFolder();

// Needs a QCoreApplication; the queues must outlive the result.
Desktop openDesktop(platform::MainQueue &mainQueue, platform::WorkerQueue &workerQueue);

} // namespace nerlo::shell
