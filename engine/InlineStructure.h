// What stands inside sentences and is no prose: code, links, tags, addresses. And apostrophes,
// which rules for quotation marks would take for one.
//
// Texts are UTF-16, places count units. Pure, any thread, in time in proportion to the text.
#pragma once

#include "text/Range.h"
#include "text/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// What stands in a text for code or an address: a letter without cases, so that words and sentences
// are still seen around it. Of runes, as hardly any text has them.
inline constexpr char16_t wordSign = u'\u16F8';
// What stands for a break that stays, with the marks behind it: the number of no character, so that
// no word has it and no rule takes it for anything.
inline constexpr char16_t breakSign = u'\u16F9';
inline constexpr text::UnitSet structureSigns{{wordSign, breakSign}};

// Where something may begin in a text, a bit for each unit: one of these, or the second of two "w".
using InlinePlaces = std::vector<std::uint64_t>;
inline constexpr text::UnitSet inlineMarks{
    {u'\'', u'\''}, {u':', u':'}, {u'<', u'<'},           {u'@', u'@'},
    {u'\\', u']'},  {u'`', u'`'}, {u'\u2019', u'\u2019'}, {wordSign, breakSign}};
void findInlinePlaces(std::u16string_view text, InlinePlaces &places);

// A stretch of a text of which all places are known.
struct PlacedText {
    std::u16string_view text;
    const InlinePlaces &places;
    std::size_t begin = 0; // of the text, in the one that the places were found in
};

// Puts them into `ranges`, in order, apart from each other. Every sign is one too, or part of one,
// but for those at `breaks`, in order, which end lines. With `tagsGo`, tags without a sign are not,
// nor is what stands in them: they are to be removed.
void findInlineStructure(const PlacedText &text, std::span<const std::size_t> breaks, bool tagsGo,
                         std::vector<text::Range> &ranges);

} // namespace nerlo::engine
