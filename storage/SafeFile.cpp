#include "storage/SafeFile.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::storage {

namespace {

constexpr const char *lockName = "/.lock";
constexpr auto lockPatience = std::chrono::seconds(2);

// What the system says, in its own language.
std::string failure(const std::string &path) {
    const int code = errno;
    return path + ": " + std::strerror(code);
}

// Closes on every way out.
class OpenFile {
  public:
    OpenFile(FileCalls &calls, const std::string &path, int flags, mode_t mode = 0)
        : calls_(calls)
        , file_(calls.open(path, flags | O_CLOEXEC, mode)) {}
    ~OpenFile() { close(); }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    explicit operator bool() const { return file_ >= 0; }
    int get() const { return file_; }
    bool close() {
        const int file = std::exchange(file_, -1);
        return file < 0 || calls_.close(file) == 0;
    }

  private:
    FileCalls &calls_;
    int file_;
};

bool writeAll(FileCalls &calls, int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = calls.write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The file that a symbolic link leads to; the path itself where there is no link, nothing for a
// link that leads nowhere.
std::optional<std::string> target(const std::string &path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
        return path;
    }
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real ? std::optional<std::string>(real.get()) : std::nullopt;
}

std::string temporaryFor(const std::string &path) {
    return folderOf(path) + "/." + path.substr(path.find_last_of('/') + 1) + ".nerlo-new";
}

} // namespace

FileCalls &FileCalls::system() {
    static FileCalls calls;
    return calls;
}
int FileCalls::open(const std::string &path, int flags, mode_t mode) {
    return ::open(path.c_str(), flags, mode);
}
ssize_t FileCalls::read(int file, void *bytes, std::size_t size) {
    return ::read(file, bytes, size);
}
ssize_t FileCalls::write(int file, const void *bytes, std::size_t size) {
    return ::write(file, bytes, size);
}
int FileCalls::fsync(int file) {
    return ::fsync(file);
}
int FileCalls::close(int file) {
    return ::close(file);
}
int FileCalls::rename(const std::string &from, const std::string &to) {
    return ::rename(from.c_str(), to.c_str());
}
int FileCalls::unlink(const std::string &path) {
    return ::unlink(path.c_str());
}
int FileCalls::mkdir(const std::string &path, mode_t mode) {
    return ::mkdir(path.c_str(), mode);
}
int FileCalls::flock(int file, int operation) {
    return ::flock(file, operation);
}

FileContent readFile(const std::string &path, std::size_t limit, FileCalls &calls) {
    // O_NONBLOCK: opening a pipe in the file's place would wait for a writer.
    const OpenFile file(calls, path, O_RDONLY | O_NONBLOCK);
    if (!file) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return {};
        }
        return {FileContent::State::Failed, {}, failure(path)};
    }
    FileContent content{FileContent::State::Read, {}, {}};
    char buffer[16384];
    for (;;) {
        const ssize_t size = calls.read(file.get(), buffer, sizeof buffer);
        if (size == 0) {
            return content;
        }
        if (size < 0 && errno == EINTR) {
            continue;
        }
        if (size < 0) {
            return {FileContent::State::Failed, {}, failure(path)};
        }
        content.bytes.append(buffer, static_cast<std::size_t>(size));
        if (content.bytes.size() > limit) {
            errno = EFBIG;
            return {FileContent::State::Failed, {}, failure(path)};
        }
    }
}

std::string replaceFile(const std::string &path, std::string_view bytes, FileCalls &calls) {
    const std::optional<std::string> followed = target(path);
    if (!followed) {
        return failure(path);
    }
    const std::string &real = *followed;
    const std::string temporary = temporaryFor(real);
    // The lock allows one writer at a time, so a file of this name was left behind by a process
    // that ended.
    calls.unlink(temporary);
    OpenFile file(calls, temporary, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
    if (!file) {
        return failure(temporary);
    }
    std::string error;
    if (!writeAll(calls, file.get(), bytes)) {
        error = failure(temporary);
    } else if (calls.fsync(file.get()) != 0) {
        error = failure(temporary);
    } else if (!file.close()) {
        error = failure(temporary);
    } else if (calls.rename(temporary, real) != 0) {
        error = failure(real);
    }
    if (!error.empty()) {
        calls.unlink(temporary);
        return error;
    }
    // The new file is in place from here on. Flushing the folder makes that survive a power cut,
    // and failing to is no failure of the save.
    const OpenFile folder(calls, folderOf(real), O_RDONLY | O_DIRECTORY);
    if (folder) {
        calls.fsync(folder.get());
    }
    return {};
}

std::optional<FileStamp> stampOf(const std::string &path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return FileStamp{status.st_dev, status.st_ino, status.st_size, status.st_ctim.tv_sec,
                     status.st_ctim.tv_nsec};
}

std::optional<FileStamp> settledStampOf(const std::string &path) {
    const auto stamp = stampOf(path);
    return stamp && stamp->seconds + 1 < std::time(nullptr) ? stamp : std::nullopt;
}

std::optional<std::string> moveAside(const std::string &path, const char *reason,
                                     FileCalls &calls) {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char moment[32];
    std::strftime(moment, sizeof moment, "%Y-%m-%dT%H-%M-%S", &parts);
    const std::string base = path + "." + reason + "-" + moment;
    std::string name = base;
    for (int i = 2; ::access(name.c_str(), F_OK) == 0 && i < 1000; ++i) {
        name = base + "-" + std::to_string(i);
    }
    if (calls.rename(path, name) != 0) {
        return std::nullopt;
    }
    return name;
}

bool makeFolder(const std::string &path, FileCalls &calls) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        return S_ISDIR(status.st_mode);
    }
    const std::string above = folderOf(path);
    if (above != path && above != "." && !makeFolder(above, calls)) {
        return false;
    }
    return calls.mkdir(path, 0700) == 0 || errno == EEXIST;
}

std::string whyNotWritable(const std::string &folder) {
    const std::string above = folderOf(folder);
    if (::access(folder.c_str(), F_OK) != 0 && errno == ENOENT && above != folder) {
        return whyNotWritable(above);
    }
    struct stat status {};
    if (::stat(folder.c_str(), &status) == 0 && !S_ISDIR(status.st_mode)) {
        errno = ENOTDIR;
        return failure(folder);
    }
    return ::access(folder.c_str(), W_OK | X_OK) == 0 ? std::string() : failure(folder);
}

FolderLock::FolderLock(const std::string &folder, FileCalls &calls)
    : calls_(calls) {
    if (!makeFolder(folder, calls)) {
        error_ = failure(folder);
        return;
    }
    const std::string path = folder + lockName;
    file_ = calls.open(path, O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file_ < 0) {
        error_ = failure(path);
        return;
    }
    const auto end = std::chrono::steady_clock::now() + lockPatience;
    while (calls.flock(file_, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > end) {
            error_ = failure(path);
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

FolderLock::~FolderLock() {
    if (file_ >= 0) {
        calls_.close(file_);
    }
}

std::string folderOf(const std::string &path) {
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace nerlo::storage
