#include "platform/linux/FolderWatch.h"

#include "storage/SafeFile.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace nerlo::platform {

FolderWatch::FolderWatch(const std::string &folder, MainQueue &queue, std::function<void()> changed)
    : shared_(std::make_shared<Shared>()) {
    shared_->changed = std::move(changed);
    storage::makeFolder(folder);
    events_ = ::inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    stop_ = ::eventfd(0, EFD_CLOEXEC);
    constexpr std::uint32_t mask = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
    if (events_ >= 0 && stop_ >= 0 && ::inotify_add_watch(events_, folder.c_str(), mask) >= 0) {
        thread_ = std::thread([this, &queue, shared = std::weak_ptr(shared_)] {
            run(events_, stop_, queue, shared);
        });
    }
}

FolderWatch::~FolderWatch() {
    if (thread_.joinable()) {
        ::eventfd_write(stop_, 1);
        thread_.join();
    }
    for (const int file : {events_, stop_}) {
        if (file >= 0) {
            ::close(file);
        }
    }
}

void FolderWatch::run(int events, int stop, MainQueue &queue, const std::weak_ptr<Shared> &shared) {
    for (;;) {
        pollfd files[] = {{events, POLLIN, 0}, {stop, POLLIN, 0}};
        ::poll(files, 2, -1);
        if (files[1].revents != 0) {
            return;
        }
        char buffer[4096];
        if (::read(events, buffer, sizeof buffer) <= 0) {
            continue;
        }
        const auto alive = shared.lock();
        if (alive && !alive->posted.exchange(true)) {
            queue.post([shared] {
                if (const auto told = shared.lock()) {
                    told->posted = false;
                    told->changed();
                }
            });
        }
    }
}

} // namespace nerlo::platform
