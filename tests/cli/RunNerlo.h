// Runs the program `nerlo` where nothing of the machine's own settings and languages reaches it.
#pragma once

#include "tests/Process.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace nerlo::test {

struct Ended {
    int status = -1; // exit status; 128 and the signal's number when a signal ended it
    std::string out;
    std::string err;
    long peakKilobytes = 0;
};

using Environment = std::vector<std::pair<std::string, std::string>>;

struct NerloRun {
    Arguments arguments; // paths are relative to the caller's current folder
    std::string input;
    Environment environment;
    std::string before; // what the shell is to do first: "exec >/dev/full"

    // With all input at once, until the end.
    Ended toEnd() const;
};

} // namespace nerlo::test
