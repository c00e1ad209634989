#include "platform/linux/DisplayLock.h"

#include "storage/EnvironmentVariable.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

struct flock request(DisplayLock::Kind kind) {
    struct flock lock {};
    lock.l_type = kind == DisplayLock::Kind::alone ? F_WRLCK : F_RDLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

// ":0.0" is a screen of the display ":0".
std::string withoutScreen(std::string display) {
    const auto dot = display.find('.', display.rfind(':') + 1);
    return dot == std::string::npos ? display : display.substr(0, dot);
}

// A program under Wayland may use either: the names of both are locked.
std::vector<std::string> displays() {
    std::vector<std::string> names{
        std::string(storage::environmentVariable("WAYLAND_DISPLAY")),
        withoutScreen(std::string(storage::environmentVariable("DISPLAY")))};
    std::erase(names, std::string());
    for (auto &name : names) {
        std::ranges::replace(name, '/', '_');
    }
    return names;
}

} // namespace

DisplayLock::DisplayLock(const std::string &folder) {
    for (const auto &display : displays()) {
        const auto path = folder + "/nerlo-pro-" + display + ".lock";
        const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (file >= 0) {
            files_.push_back(file);
        }
    }
}

DisplayLock::~DisplayLock() {
    for (const int file : files_) {
        ::close(file);
    }
}

bool DisplayLock::heldByAnother() const {
    return std::ranges::any_of(files_, [](int file) {
        auto lock = request(Kind::alone);
        return ::fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    });
}

bool DisplayLock::take(Kind kind) {
    return std::ranges::all_of(files_, [kind](int file) {
        auto lock = request(kind);
        return ::fcntl(file, F_SETLK, &lock) == 0 || (errno != EACCES && errno != EAGAIN);
    });
}

} // namespace nerlo::platform
