// How operations that look no further than a word or a line go over a text that comes in pieces.
//
// Pure, any thread.
#pragma once

#include "engine/CleaningOptions.h"
#include "engine/Operations.h"
#include "text/StreamedRule.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::engine {

struct LocalForm {
    // What the operation does, one rule after the other. A text may then be cut wherever no rule
    // can see both sides.
    std::vector<text::StreamedRule> rules{};
    // For an operation that is no list of rules: whether a text may be cut between these units, in
    // UTF-16, and behind one unit whatever follows. The pieces done alone, one behind the other,
    // are then the same as the whole.
    bool (*mayCut)(char16_t before, char16_t after) = nullptr;
    bool (*mayEnd)(char16_t last) = nullptr;
    // The operation on UTF-8; null where it has to be decoded.
    std::string (*runOnBytes)(std::string text, const CleaningContext &context) = nullptr;
    // What happens at the ends of the whole text, and nothing between.
    bool onlyAtEnds = false;
    bool trims = false;
    std::u16string before{};
    std::u16string after{};
};

namespace local {

using Form = std::optional<LocalForm>;

// For the table of operations.
Form collapseTabs(const CleaningOptions &options);
Form removeAllSpaces(const CleaningOptions &options);
Form removeTabs(const CleaningOptions &options);
Form collapseWhiteSpace(const CleaningOptions &options);
Form changeReturns(const CleaningOptions &options);
Form trim(const CleaningOptions &options);
Form changeCase(const CleaningOptions &options);
Form changeQuotes(const CleaningOptions &options);
Form removeSingleQuotes(const CleaningOptions &options);
Form removeDoubleQuotes(const CleaningOptions &options);
Form removeReplyMarks(const CleaningOptions &options);
Form replaceInSlot(const CleaningOptions &options, std::size_t slot);
template <std::size_t slot>
Form replaceSlot(const CleaningOptions &options) {
    return replaceInSlot(options, slot);
}
Form collapseSpaces(const CleaningOptions &options);
Form changeTabs(const CleaningOptions &options);
Form removeBullets(const CleaningOptions &options);
Form removeSpaceBeforeDot(const CleaningOptions &options);
Form removeSpaceAroundTab(const CleaningOptions &options);
Form removeSpaceAroundReturn(const CleaningOptions &options);
Form changeEllipsis(const CleaningOptions &options);
Form removeHyphens(const CleaningOptions &options);
Form addPrefix(const CleaningOptions &options);
Form addSuffix(const CleaningOptions &options);

} // namespace local

} // namespace nerlo::engine
