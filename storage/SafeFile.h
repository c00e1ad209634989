// Small files that are read and replaced as a whole.
//
// A save is a temporary file beside the target, flushed to the disk, renamed over it, and the
// folder flushed: whenever the process or the machine stops, the file is the old one or the new
// one. A target that is a symbolic link stays one; the file that it points to is replaced. Any
// thread; errors are texts that begin with the file or folder and go on with what the
// system said, in the language of the process.
#pragma once

#include "storage/FileCalls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::storage {

struct FileContent {
    enum class State { Read, Missing, Failed };
    State state = State::Missing;
    std::string bytes;
    std::string error; // for Failed
};
// A file larger than `limit` bytes is Failed.
FileContent readFile(const std::string &path, std::size_t limit,
                     FileCalls &calls = FileCalls::system());

// Empty when the file now holds `bytes` (mode 0600); else what went wrong, and the file is as it
// was. The folder must be there. Two writers of one file must hold the same FolderLock.
std::string replaceFile(const std::string &path, std::string_view bytes,
                        FileCalls &calls = FileCalls::system());

// Tells later whether anybody has written the file since.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t number = 0; // of the file in its file system
    std::int64_t size = 0;    // bytes
    std::int64_t seconds = 0; // of the last change
    std::int64_t nanoseconds = 0;
    bool operator==(const FileStamp &) const = default;
};
// Of the file that a write of ours has just made. Nothing where there is none.
std::optional<FileStamp> stampOf(const std::string &path);
// Of a file that is about to be read. Nothing, too, when it has changed a moment ago: another
// change in the same tick of the clock would look the same.
std::optional<FileStamp> settledStampOf(const std::string &path);

// Renames the file to its name, the reason and the moment, in UTC
// ("profiles.nrp.unreadable-2024-05-01T12-30-00"). Returns the new path; nothing when the file
// could not be renamed.
std::optional<std::string> moveAside(const std::string &path, const char *reason,
                                     FileCalls &calls = FileCalls::system());

// Makes the folder and those above it (mode 0700). False when it is not there afterwards.
bool makeFolder(const std::string &path, FileCalls &calls = FileCalls::system());

// Empty when files can be made in the folder, or when it can be made first; else why not, as
// the other errors. Makes nothing.
std::string whyNotWritable(const std::string &folder);

// Holds a folder's lock file against other processes and other holders in this one, until it goes.
// The system frees the lock of a process that ends, however it ends.
class FolderLock {
  public:
    // Makes the folder if need be, and waits up to two seconds.
    explicit FolderLock(const std::string &folder, FileCalls &calls = FileCalls::system());
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    // Empty when the lock is held.
    const std::string &error() const { return error_; }

  private:
    FileCalls &calls_;
    int file_ = -1;
    std::string error_;
};

// The part before the last '/', and "." where there is none.
std::string folderOf(const std::string &path);

} // namespace nerlo::storage
