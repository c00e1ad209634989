// Regular expressions in ICU's syntax, with ICU's replacement templates. Long texts are searched by
// text/PatternSearch.h where it knows the pattern, with the same matches.
//
// Positions count UTF-16 code units. A Regex belongs to one thread at a time. Every run of a
// pattern has a budget of steps and of backtracking memory, so that no pattern can hang or crash
// the program; a run that exhausts it reports so instead of giving a result. The budget counts work
// and not time: pattern and text alone decide whether it suffices, on any machine under any load.
#pragma once

#include "text/Range.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

// Where a pattern stops to make sense, counted from 1: the last character read, in its line.
struct PatternPlace {
    std::int32_t line = 1;
    std::int32_t character = 1;
    bool operator==(const PatternPlace &) const = default;
};

class Regex {
  public:
    enum class Case { Sensitive, Insensitive };

    // Nothing when the pattern does not compile, as the empty one does not; then `trouble`, unless
    // null, tells where. "^" and "$" match at the ends of the whole text only, and "." does not
    // match line ends.
    static std::optional<Regex> compile(std::u16string_view pattern, Case letterCase,
                                        PatternPlace *trouble = nullptr);

    Regex(Regex &&) noexcept;
    Regex &operator=(Regex &&) noexcept;
    ~Regex();

    // Capturing groups of the pattern, named ones included.
    std::size_t groups() const;

    // Nothing when the budget ran out (or the text is longer than the matcher can address, 2^31 - 1
    // units).
    std::optional<bool> occursIn(std::u16string_view text);
    // All non-overlapping matches, in order; nothing as above.
    std::optional<std::vector<Range>> findAll(std::u16string_view text);

    // Replaces every match by the template, in which "$1" stands for the first group, "$0" for the
    // match and "${name}" for a named group. A "$" that names no group of the pattern stands for
    // itself, and a backslash makes the next character plain. False, and the text as it was, where
    // the others give nothing.
    bool replaceAll(std::u16string &text, std::u16string_view replacement);

  private:
    struct Matcher;
    class Walk;
    explicit Regex(std::unique_ptr<Matcher> matcher);

    std::unique_ptr<Matcher> matcher_;
};

} // namespace nerlo::text
