// Programs that a test starts, watches and ends.
#pragma once

#include "tests/TemporaryFolder.h"
#include "tests/Until.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace nerlo::test {

using Arguments = std::vector<std::string>;

// What a process takes under a sanitizer does not tell what it takes without.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool peakTellsMemory = false;
#else
inline constexpr bool peakTellsMemory = true;
#endif

// A running program, killed with the object if it still runs. Its output goes to a file: with a
// pipe, a child that it leaves behind would keep the reader waiting.
class Process {
  public:
    // `input` is its standard input, whole. The test fails if the program cannot be started.
    explicit Process(const Arguments &command, std::string_view input = {});
    ~Process();
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    // What it has written to its standard output so far.
    std::string output() const;
    // The exit status, 128 + N for signal N; nothing if it still runs after `limit`.
    std::optional<int> wait(std::chrono::milliseconds limit = std::chrono::seconds(20));
    // The most memory that it ever had, once it has ended.
    long peakKilobytes() const { return peakKilobytes_; }

  private:
    pid_t pid_ = -1;
    std::optional<int> status_;
    long peakKilobytes_ = 0;
    const TemporaryFolder folder_;
};

// The user of an X11 session.
void xdotool(const Arguments &arguments);

// The whole standard output of a program; nothing if it fails or takes longer than twenty seconds.
std::optional<std::string> outputOf(const Arguments &command, std::string_view input = {});

} // namespace nerlo::test
