// A pattern in ICU's syntax as a tree, so far as its meaning is known here.
//
// What this does not know for sure to mean the same as to ICU gives no tree: look-around,
// possessive and atomic parts, loops round what may be empty, free spacing, names of sets and more.
// Patterns are UTF-16. Any thread.
#pragma once

#include "text/CodePoints.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

enum class Assertion : std::uint8_t {
    TextStart,
    LineStart, // where the pattern begins, and not within "\r\n"
    TextEnd,   // or before the line end that ends the text
    LineEnd,
    VeryEnd,
    WordEdge,
    NoWordEdge,
    NoLineFeed, // follows
};

struct PatternNode {
    enum class Kind : std::uint8_t {
        Set,    // a character of sets[number]
        Folded, // characters whose case foldings, one after another, are `folded`
        Sequence,
        Choice, // the first part that leads to a match
        Repeat, // of the only part
        Group,  // the same, remembered as group `number`
        Again,  // what group `number` matched, at `least` 1 unit or 0
        Assert,
    };
    static constexpr std::uint32_t unlimited = UINT32_MAX;

    Kind kind = Kind::Sequence;
    Assertion assertion = Assertion::TextStart;
    bool greedy = true;
    std::uint32_t least = 0;
    std::uint32_t most = 0;
    std::size_t number = 0;
    std::u32string folded;
    std::vector<PatternNode> parts;

    // Whether it may match without a character.
    bool mayBeEmpty() const;
};

struct PatternTree {
    PatternNode root;
    std::vector<CodePoints> sets;
    std::size_t groups = 0;
    bool hasAgain = false;
    bool hasFolded = false;
};

// The pattern must be one that ICU compiles.
std::optional<PatternTree> parsePattern(std::u16string_view pattern, bool ignoresCase);

// The case folding of a character or a text, which may be longer than it.
std::u32string foldedCase(std::u32string_view text);

} // namespace nerlo::text
