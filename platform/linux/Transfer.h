// One transfer of selection data through a pipe, to or from a program that may be slow, stuck or
// hostile. Neither kind ever blocks; the event loop calls them when their pipe is ready.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace nerlo::platform {

// A file descriptor that closes itself.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd)
        : fd_(fd) {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : fd_(other.release()) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor();
    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }
    int release();

  private:
    int fd_ = -1;
};

class Transfer {
  public:
    virtual ~Transfer() = default;
    int fd() const { return fd_.get(); }
    // POLLIN or POLLOUT.
    virtual short events() const = 0;
    // Moves what can be moved now, a bounded amount; false when the transfer is over.
    virtual bool advance() = 0;
    // Over without success: out of time, or no longer wanted.
    virtual void abandon() = 0;
    std::chrono::steady_clock::time_point deadline() const { return deadline_; }

  protected:
    explicit Transfer(FileDescriptor fd)
        : fd_(std::move(fd)) {}
    FileDescriptor fd_;
    std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::time_point::max();
};

struct TransferLimits {
    // Bytes that still may come, by this transfer or others; those of one that fails are given
    // back.
    std::shared_ptr<std::size_t> room;
    std::chrono::steady_clock::duration silence; // the longest wait for the next byte
    std::chrono::steady_clock::time_point end;   // of the whole transfer
};

// Reads to the end of the pipe.
class IncomingTransfer final : public Transfer {
  public:
    enum class Outcome { complete, tooLarge, failed, abandoned };
    // Called once, with the bytes if complete.
    using Done = std::function<void(Outcome, std::string)>;
    IncomingTransfer(FileDescriptor pipe, TransferLimits limits, Done done);

    short events() const override;
    bool advance() override;
    void abandon() override;

  private:
    void touched();
    void finish(Outcome outcome);

    TransferLimits limits_;
    std::string data_;
    Done done_;
};

// Writes bytes that it shares with its owner.
class OutgoingTransfer final : public Transfer {
  public:
    // Null when `fd` is not a pipe or socket: writing to anything else could block.
    static std::unique_ptr<OutgoingTransfer> create(FileDescriptor fd,
                                                    std::shared_ptr<const std::string> data,
                                                    std::chrono::steady_clock::duration silence);

    short events() const override;
    bool advance() override;
    void abandon() override {}

  private:
    OutgoingTransfer(FileDescriptor fd, bool socket, std::shared_ptr<const std::string> data,
                     std::chrono::steady_clock::duration silence);

    bool socket_;
    std::shared_ptr<const std::string> data_;
    std::size_t written_ = 0;
    std::chrono::steady_clock::duration silence_;
};

// The reading and the writing end of a new pipe; the reading end does not block. Both -1 when the
// process has no descriptor left.
struct Pipe {
    FileDescriptor reader;
    FileDescriptor writer;
};
Pipe makePipe();

} // namespace nerlo::platform
