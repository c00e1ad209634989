// The engine's operations word for word: one literal replacement or one pass of an ICU pattern
// after the other, with no thought for speed or for hostile texts. The engine must give the same
// results.
#pragma once

#include "engine/Operations.h"

#include <span>
#include <string>
#include <string_view>

namespace nerlo::reference {

std::u16string runOperation(std::int32_t index, const std::u16string &text,
                            const engine::CleaningContext &context);

// Word for word what engine::joinWrappedLines() says of wrapped paragraphs.
std::u16string joinWrappedLines(const std::u16string &text, bool withSpace);

// Steps that structure is protected from, each on one paragraph after the other.
std::u16string runGuarded(const std::u16string &text,
                          std::span<const engine::Operation *const> steps,
                          const engine::CleaningContext &context);

std::u16string smartQuotes(std::u16string text, const std::u16string &leftFind,
                           const std::u16string &rightFind, const std::u16string &leftReplace,
                           const std::u16string &rightReplace);

struct Counts {
    std::uint64_t characters, spaces, words, paragraphs;
};
Counts count(const std::u16string &text, const std::string &locale);

} // namespace nerlo::reference
