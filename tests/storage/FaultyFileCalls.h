// System calls of which one, counted from 1, fails or is never made because the process ends first.
#pragma once

#include "storage/FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <functional>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nerlo::test {

class FaultyFileCalls final : public storage::FileCalls {
  public:
    enum class Fault { None, Death, Error };
    static constexpr int deathStatus = 9;
    FaultyFileCalls(Fault fault, int at)
        : fault_(fault)
        , at_(at) {}

    int count() const { return count_; }

    int open(const std::string &path, int flags, mode_t mode) override {
        return next() ? FileCalls::open(path, flags, mode) : -1;
    }
    ssize_t read(int file, void *bytes, std::size_t size) override {
        return next() ? FileCalls::read(file, bytes, size) : -1;
    }
    // In small pieces, so that a write can stop in the middle.
    ssize_t write(int file, const void *bytes, std::size_t size) override {
        return next() ? FileCalls::write(file, bytes, std::min<std::size_t>(size, 500)) : -1;
    }
    int fsync(int file) override { return next() ? FileCalls::fsync(file) : -1; }
    int close(int file) override {
        // Even a close() that fails has closed the file.
        const bool works = next();
        const int result = FileCalls::close(file);
        return works ? result : failed();
    }
    int rename(const std::string &from, const std::string &to) override {
        return next() ? FileCalls::rename(from, to) : -1;
    }
    int unlink(const std::string &path) override { return next() ? FileCalls::unlink(path) : -1; }
    int mkdir(const std::string &path, mode_t mode) override {
        return next() ? FileCalls::mkdir(path, mode) : -1;
    }
    int flock(int file, int operation) override {
        return next() ? FileCalls::flock(file, operation) : -1;
    }

  private:
    bool next() {
        ++count_;
        if (count_ != at_ || fault_ == Fault::None) {
            return true;
        }
        if (fault_ == Fault::Death) {
            ::_exit(deathStatus);
        }
        failed();
        return false;
    }
    static int failed() {
        errno = EIO;
        return -1;
    }

    Fault fault_;
    int at_;
    int count_ = 0;
};

// Runs `save` again and again, each time in a new process that ends one system call later than the
// one before, until one gets to the end. `check` is told how often it has run and whether that was
// the last time. Returns how many processes have ended early.
inline int endAtEachCall(const std::function<bool(storage::FileCalls &calls, int at)> &save,
                         const std::function<void(int at, bool last)> &check) {
    for (int at = 1;; ++at) {
        const pid_t child = ::fork();
        if (child == 0) {
            FaultyFileCalls dying(FaultyFileCalls::Fault::Death, at);
            ::_exit(save(dying, at) ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        const bool last = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        check(at, last);
        if (last || !WIFEXITED(status) || WEXITSTATUS(status) != FaultyFileCalls::deathStatus) {
            EXPECT_TRUE(last) << "a save failed";
            return at - 1;
        }
    }
}

} // namespace nerlo::test
