// Invisible characters that tell in which direction words stand.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include "text/UnitScan.h"

#include <cstddef>
#include <string>

namespace nerlo::engine {

inline constexpr text::UnitSet directionControls{
    {u'\u061C', u'\u061C'}, {u'\u200E', u'\u200F'}, {u'\u202A', u'\u202E'}, {u'\u2066', u'\u2069'}};

constexpr bool isDirectionControl(char32_t character) {
    return character <= U'\u2069' && directionControls.contains(static_cast<char16_t>(character));
}

// Takes them out of paragraphs without letters that are written from right to left. In the others,
// marks stay, and so do isolates and embeddings around words: in pairs, and embeddings that go to
// the end of their line. Overrides, which can show words backwards, go everywhere. Adds the number
// of characters that went to `count`.
std::u16string cleanDirections(std::u16string text, std::size_t &count);

} // namespace nerlo::engine
