// What some lines of the input of `nerlo batch` became.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace nerlo::cli {

struct Answers {
    std::string lines{};   // of the output, with their line breaks
    std::size_t count = 0; // of the lines of the input, up to the first bad one if that stops all
    std::size_t failed = 0;
    std::size_t firstFailed = 0; // counted from 1
    std::string firstError{};    // what is wrong with that one; none of its text
    std::vector<bool> found{};   // for each field that is asked for: some record has it

    void addFailure(std::string error) {
        if (++failed == 1) {
            firstFailed = count;
            firstError = std::move(error);
        }
    }
};

} // namespace nerlo::cli
