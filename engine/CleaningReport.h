// What a clean could not do.
#pragma once

#include "text/Regex.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nerlo::engine {

// A pattern of the user's that did not run. It left the text as it was, except that a rule that
// keeps only its matches leaves nothing where its pattern does not compile.
struct PatternFailure {
    enum class Why : std::uint8_t {
        DoesNotCompile,
        GivenUp, // it would take too much work or memory on this text
    };
    static constexpr std::size_t ownPattern = 0;

    std::size_t rule = ownPattern; // number in the list of rules, from 1
    Why why = Why::GivenUp;
    text::PatternPlace place; // in a pattern that does not compile

    bool operator==(const PatternFailure &) const = default;
};

// In the order in which the patterns were to run.
using CleaningReport = std::vector<PatternFailure>;

// English, in one line, with the rules' numbers; `report` is not empty.
std::string messageOf(const CleaningReport &report);

} // namespace nerlo::engine
