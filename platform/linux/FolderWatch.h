// Tells when something in a folder was written, made, renamed or removed, by any process.
#pragma once

#include "platform/MainQueue.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace nerlo::platform {

class FolderWatch {
  public:
    // Calls `changed` on the main queue, some time after each change; several changes may give one
    // call. The folder is made if it is not there. Where the system grants no watch, nothing is
    // ever told. Main thread.
    FolderWatch(const std::string &folder, MainQueue &queue, std::function<void()> changed);
    // No call comes after this. The queue must still be there.
    ~FolderWatch();
    FolderWatch(const FolderWatch &) = delete;
    FolderWatch &operator=(const FolderWatch &) = delete;

    bool watching() const { return thread_.joinable(); }

  private:
    struct Shared {
        std::function<void()> changed;
        std::atomic<bool> posted = false; // a call is on its way
    };
    static void run(int events, int stop, MainQueue &queue, const std::weak_ptr<Shared> &shared);

    std::shared_ptr<Shared> shared_;
    int events_ = -1;
    int stop_ = -1;
    std::thread thread_;
};

} // namespace nerlo::platform
