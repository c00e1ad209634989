// The key combinations that GNOME, Xfce and KDE keep for themselves, from their own settings.
#pragma once

#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/SystemHotKeys.h"
#include "platform/WorkerQueue.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::platform {

// Where the readers look, on a worker; tests put something else in place.
struct DesktopSources {
    // $XDG_CURRENT_DESKTOP: names between colons.
    std::string currentDesktop;
    // The text of a file below the user's configuration folder, or empty.
    std::function<std::string(const std::string &name)> configuration;
    // The standard output of a program, or empty.
    std::function<std::string(const std::vector<std::string> &command)> output;

    // The group of KDE's list in which the shortcuts of this program stand, which do not count.
    std::string ours = {};

    static DesktopSources system(std::string applicationId);
};

// `layout` and the queues must outlive the result. On any other desktop the list is empty.
std::unique_ptr<SystemHotKeys> createDesktopHotKeys(const KeyboardLayout &layout,
                                                    WorkerQueue &workers, MainQueue &mainQueue,
                                                    DesktopSources sources);

} // namespace nerlo::platform
