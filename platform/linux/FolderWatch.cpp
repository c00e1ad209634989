#include "platform/linux/FolderWatch.h"

#include "storage/SafeFile.h"

#include <array>
#include <atomic>
#include <cstring>
#include <memory>
#include <set>
#include <utility>

#include <sys/epoll.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace nerlo::platform {

FolderWatch::FolderWatch(IoThread &io, MainQueue &queue)
    : io_(io)
    , queue_(queue)
    , events_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    io_.run([this] { watch_ = io_.watch(events_, EPOLLIN, [this](auto) { read(); }); });
}

FolderWatch::~FolderWatch() {
    io_.run([this] { watch_ = {}; });
    if (events_ >= 0) {
        close(events_);
    }
}

bool FolderWatch::add(const std::string &folder, std::function<void()> changed) {
    storage::makeFolder(folder);
    const auto posted = std::make_shared<std::atomic<bool>>(false); // a call is on its way
    const auto call = alive_.guardOn(queue_, [posted, changed = std::move(changed)] {
        *posted = false;
        changed();
    });
    bool watched = false;
    io_.run([&] {
        constexpr std::uint32_t mask = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
        const int number = inotify_add_watch(events_, folder.c_str(), mask);
        watched = watch_ && number >= 0;
        if (watched) {
            folders_.emplace(number, [posted, call] {
                if (!posted->exchange(true)) {
                    call();
                }
            });
        }
    });
    return watched;
}

void FolderWatch::read() {
    alignas(inotify_event) std::array<char, 4096> buffer;
    const ssize_t got = ::read(events_, buffer.data(), buffer.size());
    std::set<int> changed;
    for (ssize_t at = 0; at < got;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        changed.insert(event.wd);
        at += static_cast<ssize_t>(sizeof event + event.len);
    }
    for (const auto &[number, tell] : folders_) {
        // After an overflow, which has the number -1, it may be any of them.
        if (changed.contains(number) || changed.contains(-1)) {
            tell();
        }
    }
}

} // namespace nerlo::platform
