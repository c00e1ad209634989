// Converting and removing quotation marks.
//
// Texts are UTF-16. Every function is pure, may run on any thread, never fails and takes time in
// proportion to its text. A style index outside its table changes nothing.
#pragma once

#include "engine/QuoteStyles.h"
#include "text/StreamedRule.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::engine {

// The marks of `find` to those of `replace`: an opening mark where a word begins after white space
// (or its entities and dashes), a closing mark elsewhere, and any opening mark that is left.
std::u16string smartQuotes(std::u16string text, const QuoteStyle &find, const QuoteStyle &replace);
// Only the first two of these.
std::u16string smartQuotesForAll(std::u16string text, const QuoteStyle &find,
                                 const QuoteStyle &replace);

// With `changeAll`, marks of every style of the kind are converted, not only of the given one.
std::u16string replaceSingleQuotesToDoubleQuotes(std::u16string text,
                                                 std::int64_t changeQuotesSingleOption,
                                                 std::int64_t changeQuotesDoubleOption,
                                                 bool changeAll);
std::u16string replaceDoubleQuotesToSingleQuotes(std::u16string text,
                                                 std::int64_t changeQuotesSingleOption,
                                                 std::int64_t changeQuotesDoubleOption,
                                                 bool changeAll);

// Whether the conversion, without `changeAll`, converts each mark in the same way wherever it
// stands.
bool convertsQuotesAlike(bool doublesToSingles, std::int64_t changeQuotesSingleOption,
                         std::int64_t changeQuotesDoubleOption);

// With `allQuotes`, every known mark of the kind goes and the style is not looked at; the space of
// a spaced mark then stays.
std::u16string removeSingleQuotes(std::u16string text, bool allQuotes, std::int64_t quoteOption);
std::u16string removeDoubleQuotes(std::u16string text, bool allQuotes, std::int64_t quoteOption);

// What these do, as rules that are applied one after the other; nothing for a conversion in which a
// mark's neighbours matter.
std::optional<std::vector<text::StreamedRule>>
rulesOfConversion(bool doublesToSingles, std::int64_t changeQuotesSingleOption,
                  std::int64_t changeQuotesDoubleOption, bool changeAll);
std::vector<text::StreamedRule> rulesOfRemoval(bool doubles, bool allQuotes,
                                               std::int64_t quoteOption);

} // namespace nerlo::engine
