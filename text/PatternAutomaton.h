// Follows all ways to match a pattern at once, so that a search passes over a text once however the
// pattern is written.
//
// The patterns are those that parsePattern() knows, without "\1" and the like. The matches are the
// ones ICU finds, which tries the ways to match in order and takes the first that leads to an end.
// A state stands for the ways that are open; it is made when a text first needs it. The work is
// counted and not timed: pattern and text alone decide whether a search is given up.
//
// Positions count UTF-16 code units. An automaton belongs to one thread at a time.
#pragma once

#include "text/PatternReader.h"
#include "text/Range.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace nerlo::text {

enum class Found : std::uint8_t { Yes, No, GivenUp };

class PatternAutomaton {
  public:
    // The reader must outlive the automaton.
    explicit PatternAutomaton(PatternReader &reader);

    // Begins the work on the reader's text.
    void start();

    // The first match that begins from `from` on and no later than `until`.
    Found find(std::size_t from, std::size_t until, Range &match);

  private:
    static constexpr std::uint32_t modes = 2;

    std::uint32_t stateFor(std::u32string key);
    std::uint32_t startState(std::size_t at, std::uint32_t mode);
    std::uint32_t entry(std::uint32_t state, std::uint8_t column);
    std::uint32_t makeEntry(std::uint32_t state, std::uint8_t column);
    bool follow(std::uint32_t from, std::uint32_t context, const PatternReader::Column &column,
                std::u32string &key);
    bool isSpent() const;
    Found matchAt(std::size_t at, Range &match);
    Found anyBegins(std::size_t from, std::size_t until, std::size_t &floor);

    PatternReader &reader_;
    std::vector<std::uint32_t> table_; // a row for each state, of where each column leads
    std::vector<std::u32string> keys_;
    std::unordered_map<std::u32string, std::uint32_t> states_;
    std::array<std::uint32_t, modes * contextKinds> starts_{}; // by context and mode, 0 until made
    bool isFull_ = false;
    std::uint64_t entries_ = 0; // made
    std::uint64_t units_ = 0;   // looked at

    std::vector<std::uint32_t> stack_;
    std::vector<std::uint32_t> seen_;  // by instruction: the turn in which it was followed
    std::vector<std::uint32_t> taken_; // and in which it was put into a state
    std::uint32_t turn_ = 0;
};

} // namespace nerlo::text
