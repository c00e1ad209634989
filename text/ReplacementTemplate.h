// Templates that say what takes the place of a match.
//
// A template is UTF-16. "$1" stands for the first group of the pattern, "$0" for the whole match
// and "${name}" for a named group; a "$" that names no group stands for itself. A backslash makes
// the next character plain, or begins an escape of ICU's such as \u00E9.
#pragma once

#include <unicode/uregex.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

// Some text, and then a group.
struct TemplatePiece {
    static constexpr std::int32_t noGroup = -1;

    std::u16string text;
    std::int32_t group = noGroup; // only the last piece may have none
};

// There is at least one piece. The expression is only asked for its groups.
std::vector<TemplatePiece> parseTemplate(std::u16string_view replacement,
                                         URegularExpression *expression);

} // namespace nerlo::text
