// The quotation marks that the engine knows.
#pragma once

#include <array>
#include <string_view>

namespace nerlo::engine {

struct QuoteStyle {
    std::u16string_view left;
    std::u16string_view right;
};

// At the index that the settings store. A space in a mark is part of it.
inline constexpr auto singleQuoteStyles = std::to_array<QuoteStyle>({
    {u"\u2018", u"\u2019"},   // 0 ‘…’
    {u"\u2019", u"\u2019"},   // 1 ’…’
    {u"\u201A", u"\u2018"},   // 2 ‚…‘
    {u"\u201A", u"\u2019"},   // 3 ‚…’
    {u"\u2039", u"\u203A"},   // 4 ‹…›
    {u"\u2039 ", u" \u203A"}, // 5 ‹ … ›
    {u"\u203A", u"\u2039"},   // 6 ›…‹
    {u"\u300E", u"\u300F"},   // 7 『…』
    {u"\u2019", u"\u2018"},   // 8 ’…‘
    {u"'", u"'"},             // 9 '…'
});

// There is no counterpart of single style 8.
inline constexpr auto doubleQuoteStyles = std::to_array<QuoteStyle>({
    {u"\u201C", u"\u201D"},   // 0 “…”
    {u"\u201D", u"\u201D"},   // 1 ”…”
    {u"\u201E", u"\u201C"},   // 2 „…“
    {u"\u201E", u"\u201D"},   // 3 „…”
    {u"\u00AB", u"\u00BB"},   // 4 «…»
    {u"\u00AB ", u" \u00BB"}, // 5 « … »
    {u"\u00BB", u"\u00AB"},   // 6 »…«
    {u"\u300C", u"\u300D"},   // 7 「…」
    {u"\"", u"\""},           // 8 "…"
});

// The order in which all styles are converted: a spaced mark comes before its bare mark, which
// would otherwise be taken out of it.
inline constexpr auto singleQuoteStylesAll = std::to_array<QuoteStyle>({
    {u"\u2039 ", u" \u203A"},
    {u"\u300E", u"\u300F"},
    {u"\u2018", u"\u2019"},
    {u"\u2019", u"\u2019"},
    {u"\u201A", u"\u2018"},
    {u"\u201A", u"\u2019"},
    {u"\u2039", u"\u203A"},
    {u"\u203A", u"\u2039"},
    {u"\u2019", u"\u2018"},
    {u"'", u"'"},
});

inline constexpr auto doubleQuoteStylesAll = std::to_array<QuoteStyle>({
    {u"\u00AB ", u" \u00BB"},
    {u"\u300C", u"\u300D"},
    {u"\u201C", u"\u201D"},
    {u"\u201D", u"\u201D"},
    {u"\u201E", u"\u201C"},
    {u"\u201E", u"\u201D"},
    {u"\u00AB", u"\u00BB"},
    {u"\u00BB", u"\u00AB"},
    {u"\"", u"\""},
});

} // namespace nerlo::engine
