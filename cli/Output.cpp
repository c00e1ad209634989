#include "cli/Output.h"

#include "cli/Failure.h"
#include "cli/Input.h"
#include "text/Utf.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <utility>

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::cli {

namespace {

const std::string standardOutput = "standard output";

constexpr std::size_t blockSize = 128 * 1024; // bytes encoded and written at a time

// Returns 0 or an errno value.
int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) { // another program has made the pipe or terminal not wait
            pollfd ready{.fd = descriptor, .events = POLLOUT, .revents = 0};
            poll(&ready, 1, -1);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

// Is given bytes in order; returns 0 to go on, or the error that stops it.
using Sink = std::function<int(std::string_view bytes)>;

int giveEncoded(std::u16string_view text, const Sink &sink) {
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    while (!text.empty()) {
        const std::size_t size = text::encodeUtf8(text, {block.get(), blockSize});
        if (const int error = sink({block.get(), size})) {
            return error;
        }
    }
    return 0;
}

int give(const CleanText &text, const Sink &sink) {
    const auto *bytes = std::get_if<std::string>(&text);
    return bytes ? sink(*bytes) : giveEncoded(std::get<std::u16string>(text), sink);
}

Sink writerTo(int descriptor) {
    return [descriptor](std::string_view bytes) { return writeAll(descriptor, bytes); };
}

bool isEmpty(const CleanText &text) {
    return std::visit([](const auto &units) { return units.empty(); }, text);
}

bool holdsAlready(const std::string &file, std::span<const CleanText> parts) {
    const InputFile input(file);
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    const Sink compare = [&](std::string_view bytes) {
        while (!bytes.empty()) {
            const std::size_t size =
                readSome(input.descriptor(), block.get(), std::min(bytes.size(), blockSize), file);
            if (size == 0 || !bytes.starts_with(std::string_view(block.get(), size))) {
                return -1;
            }
            bytes.remove_prefix(size);
        }
        return 0;
    };
    return std::ranges::all_of(parts,
                               [&](const CleanText &part) { return give(part, compare) == 0; }) &&
           readSome(input.descriptor(), block.get(), 1, file) == 0;
}

void checkOutput(int error) {
    if (error == EPIPE) {
        throw ClosedPipe();
    }
    if (error != 0) {
        throw Failure(ExitStatus::ioFailed, systemMessage(standardOutput, error));
    }
}

// Holds back Ctrl-C and the like until the temporary file is gone.
class SignalsHeld {
  public:
    SignalsHeld() {
        sigset_t set;
        sigemptyset(&set);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
            sigaddset(&set, signal);
        }
        pthread_sigmask(SIG_BLOCK, &set, &before_);
    }
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    SignalsHeld(const SignalsHeld &) = delete;
    SignalsHeld &operator=(const SignalsHeld &) = delete;

  private:
    sigset_t before_;
};

// A file beside `target` that is removed again unless it took the target's name.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string &target)
        : path_(target.substr(0, target.rfind('/') + 1) + ".nerlo-XXXXXX")
        , descriptor_(mkstemp(path_.data())) {
        if (descriptor_ < 0) {
            throw Failure(ExitStatus::ioFailed,
                          systemMessage(target + ": no temporary file beside it", errno));
        }
    }
    ~TemporaryFile() {
        closeNow();
        if (!path_.empty()) {
            unlink(path_.c_str());
        }
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    int descriptor() const { return descriptor_; }

    // Both return 0 or an errno value.
    int closeNow() {
        const int result = descriptor_ < 0 ? 0 : close(descriptor_);
        descriptor_ = -1;
        return result == 0 ? 0 : errno;
    }
    int renameTo(const std::string &target) {
        if (rename(path_.c_str(), target.c_str()) != 0) {
            return errno;
        }
        path_.clear();
        return 0;
    }

  private:
    std::string path_;
    int descriptor_;
};

// Returns 0 or an errno value. Another user's file cannot always be given back to that user; its
// set-user-id bits must not then apply to us.
int copyOwnerAndMode(const struct stat &from, int descriptor) {
    mode_t mode = from.st_mode & 07777;
    if (fchown(descriptor, from.st_uid, from.st_gid) != 0) {
        mode &= 0777;
    }
    return fchmod(descriptor, mode) == 0 ? 0 : errno;
}

} // namespace

void writeOutput(std::string_view bytes) {
    checkOutput(writeAll(STDOUT_FILENO, bytes));
}

void writeOutput(std::span<const CleanText> texts) {
    const Sink output = writerTo(STDOUT_FILENO);
    bool lineOpen = false;
    for (const CleanText &text : texts) {
        if (isEmpty(text)) {
            continue;
        }
        checkOutput(lineOpen ? output("\n") : 0);
        checkOutput(give(text, output));
        lineOpen = !endsWithBreak(text);
    }
}

void StreamedOutput::write(std::string_view bytes) {
    if (bytes.empty()) {
        return;
    }
    if (!std::exchange(begun_, true) && lineOpen_) {
        writeOutput("\n");
    }
    writeOutput(bytes);
    lineOpen_ = bytes.back() != '\n' && bytes.back() != '\r';
}

bool outputIsFile() {
    struct stat status {};
    return fstat(STDOUT_FILENO, &status) == 0 && S_ISREG(status.st_mode);
}

bool endsWithBreak(const CleanText &text) {
    return std::visit(
        [](const auto &units) {
            return !units.empty() && (units.back() == '\n' || units.back() == '\r');
        },
        text);
}

std::string_view lastBreak(const CleanText &text) {
    return std::visit(
        [](const auto &units) -> std::string_view {
            const auto last = std::find_if(units.rbegin(), units.rend(),
                                           [](auto unit) { return unit == '\n' || unit == '\r'; });
            if (last == units.rend()) {
                return {};
            }
            if (*last == '\r') {
                return "\r";
            }
            return last + 1 != units.rend() && last[1] == '\r' ? "\r\n" : "\n";
        },
        text);
}

void closeOutput() {
    // A standard output that was closed from the start matters only if something was written, and
    // then the write has failed.
    if (close(STDOUT_FILENO) != 0 && errno != EBADF) {
        checkOutput(errno);
    }
}

void replaceFile(const std::string &file, std::span<const CleanText> parts) {
    const auto check = [&](int error) {
        if (error != 0) {
            throw Failure(ExitStatus::ioFailed, systemMessage(file, error));
        }
    };
    struct Free {
        void operator()(char *path) const { std::free(path); }
    };
    const std::unique_ptr<char, Free> resolved(realpath(file.c_str(), nullptr));
    check(resolved ? 0 : errno);
    const std::string target = resolved.get();

    struct stat status {};
    check(stat(target.c_str(), &status) == 0 ? 0 : errno);
    if (!S_ISREG(status.st_mode)) {
        throw Failure(ExitStatus::ioFailed, file + ": not a regular file");
    }

    if (holdsAlready(target, parts)) {
        return;
    }

    const SignalsHeld held;
    TemporaryFile temporary(target);
    for (const CleanText &part : parts) {
        check(give(part, writerTo(temporary.descriptor())));
    }
    check(copyOwnerAndMode(status, temporary.descriptor()));
    // Flushed to the disk before the rename: after a power cut the name must not stand for an empty
    // file.
    check(fsync(temporary.descriptor()) == 0 ? 0 : errno);
    check(temporary.closeNow());
    check(temporary.renameTo(target));
}

} // namespace nerlo::cli
