// Tells when something in a folder was written, made, renamed or removed, by any process.
#pragma once

#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "platform/linux/IoThread.h"

#include <functional>
#include <map>
#include <string>

namespace nerlo::platform {

// For any number of folders. Main thread.
class FolderWatch {
  public:
    // Both must outlive this.
    FolderWatch(IoThread &io, MainQueue &queue);
    // No call comes after this.
    ~FolderWatch();
    FolderWatch(const FolderWatch &) = delete;
    FolderWatch &operator=(const FolderWatch &) = delete;

    // Calls `changed` on the main queue, some time after each change; several changes may give one
    // call. The folder, an absolute path, is made if it is not there. False where the system grants
    // no watch; then nothing is ever told.
    bool add(const std::string &folder, std::function<void()> changed);

  private:
    // On the I/O thread, as are the members below it.
    void read();

    IoThread &io_;
    MainQueue &queue_;
    const int events_; // inotify
    Alive alive_;
    std::multimap<int, std::function<void()>> folders_; // what tells, by the number of the watch
    IoThread::Watch watch_;
};

} // namespace nerlo::platform
