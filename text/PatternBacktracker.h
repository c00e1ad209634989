// Tries the ways to match a pattern one after another, as ICU does, and remembers its groups.
//
// The patterns are those that parsePattern() knows. The work is counted: pattern and text alone
// decide whether a search is given up. Positions count UTF-16 code units. Belongs to one thread at
// a time.
#pragma once

#include "text/PatternAutomaton.h"
#include "text/PatternReader.h"
#include "text/Range.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace nerlo::text {

class PatternBacktracker {
  public:
    // The reader must outlive this.
    PatternBacktracker(PatternReader &reader, std::size_t groups);

    // Begins the work on the reader's text.
    void start() { steps_ = 0; }

    // The first match that begins from `from` on and no later than `until`.
    Found find(std::size_t from, std::size_t until, Range &match);
    Found matchAt(std::size_t at, Range &match);

    // Of the last match; the empty range at 0 for a group that has no part in it.
    Range group(std::size_t number) const;

  private:
    static constexpr std::size_t none = SIZE_MAX;

    struct Group {
        std::size_t opened = none; // where it begins if it ends
        std::size_t begin = none;
        std::size_t end = none;
    };
    // To go on at an instruction at a place, or at one of several: from there down to `least`.
    // Or to make a group what it was.
    struct Choice {
        enum class Kind : std::uint8_t { Place, Places, Group };
        Kind kind;
        std::uint32_t number;
        std::size_t at;
        std::size_t least;
        Group group;
    };

    bool isRun(std::uint32_t fork) const;
    void push(Choice::Kind kind, std::uint32_t number, std::size_t at, std::size_t least = 0);
    bool pop(std::uint32_t &instruction, std::size_t &at);
    std::size_t before(std::size_t at) const;
    bool mayGoOn(std::uint32_t instruction, std::size_t at) const;
    bool takeSet(std::size_t set, std::size_t &at) const;
    bool takeAgain(std::size_t number, std::size_t &at) const;
    bool step(std::uint32_t &instruction, std::size_t &at);

    PatternReader &reader_;
    std::vector<Group> groups_;
    std::vector<Choice> choices_;
    std::uint64_t steps_ = 0;
};

} // namespace nerlo::text
