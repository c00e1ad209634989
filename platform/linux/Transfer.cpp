#include "platform/linux/Transfer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

using Clock = std::chrono::steady_clock;

// A turn of one transfer, so that a fast one does not keep the others waiting.
constexpr std::size_t turn = std::size_t{1} << 20;

constexpr bool wouldBlock(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// A pipe opened anew has flags of its own: the program that passed it to us shares the flags of the
// old description and could make our writes block at any time.
FileDescriptor reopened(int fd) {
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    return FileDescriptor(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
}

} // namespace

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept {
    if (this != &other) {
        if (fd_ >= 0) {
            close(fd_);
        }
        fd_ = other.release();
    }
    return *this;
}

FileDescriptor::~FileDescriptor() {
    if (fd_ >= 0) {
        close(fd_);
    }
}

int FileDescriptor::release() {
    return std::exchange(fd_, -1);
}

IncomingTransfer::IncomingTransfer(FileDescriptor pipe, TransferLimits limits, Done done)
    : Transfer(std::move(pipe))
    , limits_(std::move(limits))
    , done_(std::move(done)) {
    touched();
}

void IncomingTransfer::touched() {
    deadline_ = std::min(limits_.end, Clock::now() + limits_.silence);
}

void IncomingTransfer::finish(Outcome outcome) {
    if (outcome != Outcome::complete) {
        *limits_.room += data_.size();
        data_ = {};
    }
    if (done_) {
        std::exchange(done_, nullptr)(outcome, std::move(data_));
    }
}

short IncomingTransfer::events() const {
    return POLLIN;
}

bool IncomingTransfer::advance() {
    std::array<char, 65536> buffer;
    for (std::size_t moved = 0; moved < turn;) {
        const ssize_t count = read(fd(), buffer.data(), buffer.size());
        if (count < 0 && wouldBlock(errno)) {
            return true;
        }
        if (count <= 0) {
            finish(count == 0 ? Outcome::complete : Outcome::failed);
            return false;
        }
        const auto bytes = static_cast<std::size_t>(count);
        if (bytes > *limits_.room) {
            finish(Outcome::tooLarge);
            return false;
        }
        *limits_.room -= bytes;
        data_.append(buffer.data(), bytes);
        moved += bytes;
        touched();
    }
    return true;
}

void IncomingTransfer::abandon() {
    finish(Outcome::abandoned);
}

std::unique_ptr<OutgoingTransfer> OutgoingTransfer::create(FileDescriptor fd,
                                                           std::shared_ptr<const std::string> data,
                                                           Clock::duration silence) {
    struct stat status {};
    if (fstat(fd.get(), &status) != 0) {
        return nullptr;
    }
    const bool socket = S_ISSOCK(status.st_mode);
    if (!socket && !S_ISFIFO(status.st_mode)) {
        return nullptr;
    }
    if (!socket) {
        if (FileDescriptor own = reopened(fd.get())) {
            fd = std::move(own);
        } else if (fcntl(fd.get(), F_SETFL, O_NONBLOCK) != 0) {
            return nullptr;
        }
    }
    return std::unique_ptr<OutgoingTransfer>(
        new OutgoingTransfer(std::move(fd), socket, std::move(data), silence));
}

OutgoingTransfer::OutgoingTransfer(FileDescriptor fd, bool socket,
                                   std::shared_ptr<const std::string> data, Clock::duration silence)
    : Transfer(std::move(fd))
    , socket_(socket)
    , data_(std::move(data))
    , silence_(silence) {
    deadline_ = Clock::now() + silence_;
}

short OutgoingTransfer::events() const {
    return POLLOUT;
}

bool OutgoingTransfer::advance() {
    for (std::size_t moved = 0; moved < turn && written_ < data_->size();) {
        const char *from = data_->data() + written_;
        const std::size_t bytes = std::min<std::size_t>(data_->size() - written_, 65536);
        const ssize_t count = socket_ ? send(fd(), from, bytes, MSG_DONTWAIT | MSG_NOSIGNAL)
                                      : write(fd(), from, bytes);
        if (count < 0) {
            return wouldBlock(errno);
        }
        written_ += static_cast<std::size_t>(count);
        moved += static_cast<std::size_t>(count);
        deadline_ = Clock::now() + silence_;
    }
    return written_ < data_->size();
}

Pipe makePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return {};
    }
    Pipe made{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    // Fewer turns for large texts; a refusal only makes it slower.
    fcntl(ends[0], F_SETPIPE_SZ, static_cast<int>(turn));
    return made;
}

} // namespace nerlo::platform
