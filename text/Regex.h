// Regular expressions in ICU's syntax, with ICU's replacement templates.
//
// Positions count UTF-16 code units. A Regex belongs to one thread at a time. Every run of a
// pattern has a budget of time and of backtracking memory, so that no pattern can hang or crash
// the program; a run that exhausts it reports so instead of giving a result.
#pragma once

#include "text/Range.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

class Regex {
  public:
    enum class Case { Sensitive, Insensitive };

    // Nothing when the pattern does not compile. "^" and "$" match at the ends of the whole text
    // only, and "." does not match line ends.
    static std::optional<Regex> compile(std::u16string_view pattern, Case letterCase);

    Regex(Regex &&) noexcept;
    Regex &operator=(Regex &&) noexcept;
    ~Regex();

    // Nothing when the budget ran out (or the text is longer than the matcher can address, 2^31 - 1
    // units).
    std::optional<bool> occursIn(std::u16string_view text);
    // All non-overlapping matches, in order; nothing as above.
    std::optional<std::vector<Range>> findAll(std::u16string_view text);

    // Replaces every match by the template, in which "$1" stands for the first group and a
    // backslash makes the next character plain. False, and the text as it was, where the others
    // give nothing, and when there is a match but the template is malformed or names a group that
    // the pattern does not have.
    bool replaceAll(std::u16string &text, std::u16string_view replacement);

  private:
    struct Matcher;
    explicit Regex(std::unique_ptr<Matcher> matcher);
    bool setText(std::u16string_view text);
    bool expandAll(std::u16string &text, std::u16string_view replacement);

    std::unique_ptr<Matcher> matcher_;
};

} // namespace nerlo::text
