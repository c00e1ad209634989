// A pattern as instructions, and the characters of all its sets as classes of characters that none
// of them tells apart. Any thread.
#pragma once

#include "text/PatternTree.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace nerlo::text {

struct PatternInstruction {
    enum class Op : std::uint8_t { Set, Fork, Assert, Save, Again, Match };
    Op op = Op::Match;
    Assertion assertion = Assertion::TextStart;
    std::uint32_t number = 0; // of the set or group; of the place, two for each group, for Save
    std::uint32_t next = 0;
    std::uint32_t other = 0; // of a fork: taken if what follows `next` leads to no match
};

struct PatternProgram {
    std::vector<PatternInstruction> code;
    std::uint32_t start = 0;
    std::vector<CodePoints> sets;

    bool asserts(Assertion what) const;
};

// Nothing for a tree that is too large.
std::optional<PatternProgram> programOf(const PatternTree &tree);

class CharacterClasses {
  public:
    static constexpr std::size_t maxSets = 256;
    static constexpr std::size_t maxClasses = 200;
    using Sets = std::bitset<maxSets>; // of which a class is a part

    // Nothing when there are too many.
    static std::optional<CharacterClasses> of(const std::vector<CodePoints> &sets);

    // All surrogates have the class pair().
    const std::uint8_t *ofUnits() const { return ofUnits_.data(); }
    std::uint8_t of(char32_t character) const;
    std::uint8_t pair() const { return static_cast<std::uint8_t>(classes_.size()); }
    const std::vector<Sets> &classes() const { return classes_; }

    struct Run { // of code points in the same class, up to the next run
        char32_t first;
        std::uint8_t number;
    };
    const std::vector<Run> &runs() const { return runs_; }

  private:
    std::vector<Sets> classes_;
    std::vector<Run> runs_;
    std::vector<std::uint8_t> ofUnits_;
};

} // namespace nerlo::text
