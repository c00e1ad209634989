// A text that counts how much of it ICU looks at.
//
// ICU counts the states that a pattern saves, but not the characters that it steps over without
// saving one. This hands out the text in small pieces, each of which ICU has to ask for.
#pragma once

#include <unicode/utext.h>

#include <cstdint>
#include <string_view>

namespace nerlo::text {

// Work done and allowed, in steps of ICU's matcher: some nanoseconds each.
struct StepBudget {
    std::uint64_t done = 0;
    std::uint64_t limit = 0;

    bool isSpent() const { return done >= limit; }
};

class CountedText {
  public:
    static constexpr std::size_t pieceSize = 64; // in units
    static constexpr std::uint64_t stepsForPiece = 32;

    CountedText() = default;
    ~CountedText();
    CountedText(const CountedText &) = delete;
    CountedText &operator=(const CountedText &) = delete;

    // Opens a text, in place of the one before, whose positions count units. The pieces are charged
    // to `budget`; once that is spent, the rest looks like a single character, so that whatever
    // still runs ends soon. Text, budget and this object must outlive the use of the result, which
    // stays owned here. Null if ICU has no memory.
    UText *open(std::u16string_view text, StepBudget &budget);

    // For ICU's functions.
    struct Source {
        std::u16string_view text;
        StepBudget *budget = nullptr;
    };

  private:
    Source source_;
    UText *opened_ = nullptr;
};

} // namespace nerlo::text
