// Runs the program `nerlo` in a child process, in a folder of its own.
#pragma once

#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace nerlo::test {

struct Ended {
    int status = -1; // exit status; 1000 and the signal's number when a signal ended it
    std::string out;
    std::string err;
    long peakKilobytes = 0;
};

using Environment = std::vector<std::pair<std::string, std::string>>;

class NerloRun {
  public:
    std::vector<std::string> arguments;
    std::string input;
    Environment environment;
    // Called in the child before the program starts; only system calls are safe there.
    std::function<void()> inChild;

    // With all input at once, until the end. Paths among the arguments are relative to the caller's
    // current folder.
    Ended toEnd() const;
    // Standard input and output are pipes, whose ends for us go to `*input` and `*output`.
    pid_t start(int *toChild, int *fromChild) const;

  private:
    pid_t start(int in, int out, int err) const;
};

// The exit status as in Ended.
int waitFor(pid_t child, long *peakKilobytes = nullptr);

} // namespace nerlo::test
