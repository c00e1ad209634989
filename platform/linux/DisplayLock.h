// One program at a time for a display, also where no session bus tells them of each other.
//
// A program that others can reach over a bus shares its display with those of other buses; one that
// nobody can reach has the display alone. The locks are on files in the user's runtime folder, one
// for each display that the environment names, and go with the process, however it ends.
#pragma once

#include <string>
#include <vector>

namespace nerlo::platform {

class DisplayLock {
  public:
    enum class Kind { shared, alone };

    // Opens the files in `folder`, which must exist, and locks nothing yet. Only one object may
    // exist at a time: another one's end would free the locks. Where the folder grants no files,
    // every lock is given.
    explicit DisplayLock(const std::string &folder);
    ~DisplayLock();
    DisplayLock(const DisplayLock &) = delete;
    DisplayLock &operator=(const DisplayLock &) = delete;

    // Whether another process holds any.
    bool heldByAnother() const;
    // False if another process holds one that stands against it.
    bool take(Kind kind);

  private:
    std::vector<int> files_;
};

} // namespace nerlo::platform
