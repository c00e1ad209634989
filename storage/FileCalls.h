// The system calls that saving a file takes, one by one, so that tests can fail or end at each.
//
// As in the system: -1 and errno on failure. Paths are UTF-8 bytes, as the system takes them.
#pragma once

#include <cstddef>
#include <string>

#include <sys/types.h>

namespace nerlo::storage {

class FileCalls {
  public:
    // The system's own; any thread.
    static FileCalls &system();

    virtual ~FileCalls() = default;
    virtual int open(const std::string &path, int flags, mode_t mode);
    virtual ssize_t read(int file, void *bytes, std::size_t size);
    virtual ssize_t write(int file, const void *bytes, std::size_t size);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int rename(const std::string &from, const std::string &to);
    virtual int unlink(const std::string &path);
    virtual int mkdir(const std::string &path, mode_t mode);
    virtual int flock(int file, int operation);
};

} // namespace nerlo::storage
