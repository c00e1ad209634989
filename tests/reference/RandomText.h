// Random texts and options for comparisons; the same seed gives the same ones everywhere.
#pragma once

#include "engine/CleaningOptions.h"

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::reference {

// Building blocks of texts: what a family of operations looks at, and what may stand beside it.
using Tokens = std::span<const std::u16string_view>;
std::vector<std::u16string_view> tokensOf(std::u16string_view row, char16_t separator);
Tokens plainTokens();
Tokens quoteTokens();
Tokens tagTokens();
// Marks of lists, code and tables, and words between them.
Tokens structureTokens();
// Lines long enough to be wrapped, and their ends.
Tokens wrappedTokens();

class Random {
  public:
    explicit Random(std::uint64_t seed)
        : engine_(seed) {}

    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    // Mostly short, now and then some thousand units, of a few of the tokens at a time.
    std::u16string text(Tokens tokens);
    // Every switch and option value, unknown ones included.
    engine::CleaningOptions options();
    std::string locale();

  private:
    std::mt19937_64 engine_;
};

// For failure messages: units outside ASCII in hexadecimal.
std::string escaped(std::u16string_view text);

} // namespace nerlo::reference
