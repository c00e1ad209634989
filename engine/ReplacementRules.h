// The rules that are ordered lists of literal replacements.

// Each row works on the whole result of the row before it. The second argument of a table names the
// units of which every row has one.
#pragma once

#include "text/Replace.h"

namespace nerlo::engine::rules {

// clang-format off: one row a line

inline constexpr text::Replacement spaceBeforeDotRows[] = {
    {u" .", u"."},           // full stop
    {u" \u00B7", u"\u00B7"}, // middle dot
    {u" \u3002", u"\u3002"}, // ideographic full stop
    {u" \u22C5", u"\u22C5"}, // dot operator
    {u" \u30FB", u"\u30FB"}, // katakana middle dot
    {u" \u1427", u"\u1427"}, // Canadian syllabics final middle dot
    {u" \u2024", u"\u2024"}, // one dot leader
    {u"\u00A0.", u"."},
    {u"\u00A0\u00B7", u"\u00B7"},
    {u"\u00A0\u3002", u"\u3002"},
    {u"\u00A0\u22C5", u"\u22C5"},
    {u"\u00A0\u30FB", u"\u30FB"},
    {u"\u00A0\u1427", u"\u1427"},
    {u"\u00A0\u2024", u"\u2024"},
};
inline constexpr text::ReplacementTable spaceBeforeDot(spaceBeforeDotRows,
                                                       u".\u00B7\u3002\u22C5\u30FB\u1427\u2024");

inline constexpr text::Replacement spaceAroundTabRows[] = {
    {u" \t ", u"\t"},           {u" \t", u"\t"},      {u"\t ", u"\t"},
    {u"\u00A0\t\u00A0", u"\t"}, {u"\u00A0\t", u"\t"}, {u"\t\u00A0", u"\t"},
};
inline constexpr text::ReplacementTable spaceAroundTab(spaceAroundTabRows, u"\t");

inline constexpr text::Replacement spaceAroundReturnRows[] = {
    {u" \r\n ", u"\r\n"},
    {u" \r\n", u"\r\n"},
    {u"\r\n ", u"\r\n"},
    {u" \r ", u"\r"},
    {u" \r", u"\r"},
    {u"\r ", u"\r"},
    {u" \n ", u"\n"},
    {u" \n", u"\n"},
    {u"\n ", u"\n"},
    {u"\u00A0\r\n\u00A0", u"\r\n"},
    {u"\u00A0\r\n", u"\r\n"},
    {u"\r\n\u00A0", u"\r\n"},
    {u"\u00A0\r\u00A0", u"\r"},
    {u"\u00A0\r", u"\r"},
    {u"\r\u00A0", u"\r"},
    {u"\u00A0\n\u00A0", u"\n"},
    {u"\u00A0\n", u"\n"},
    {u"\n\u00A0", u"\n"},
};
inline constexpr text::ReplacementTable spaceAroundReturn(spaceAroundReturnRows, u"\r\n");

// A mark at the end of a line with a space after it goes together with the space and the break, so
// that the two lines are joined; elsewhere it goes alone, or with one space after it.
#define NERLO_MARK_ROWS(mark)                                                                      \
    {mark u" \r\n", u""}, {mark u" \r", u""}, {mark u" \n", u""}, {mark u" ", u""}, {              \
        mark, u""                                                                                  \
    }

inline constexpr text::Replacement hyphensRows[] = {NERLO_MARK_ROWS(u"\u2010")};
inline constexpr text::ReplacementTable hyphens(hyphensRows, u"\u2010");

inline constexpr text::Replacement dashesRows[] = {
    NERLO_MARK_ROWS(u"\u2010"), // hyphen
    NERLO_MARK_ROWS(u"\u2012"), // figure dash
    NERLO_MARK_ROWS(u"\u2013"), // en dash
    NERLO_MARK_ROWS(u"\u2014"), // em dash
    NERLO_MARK_ROWS(u"\u2015"), // horizontal bar
    NERLO_MARK_ROWS(u"\u2212"), // minus sign
    NERLO_MARK_ROWS(u"-"),      // hyphen-minus
};
inline constexpr text::ReplacementTable dashes(dashesRows,
                                               u"\u2010\u2012\u2013\u2014\u2015\u2212-");

#undef NERLO_MARK_ROWS

inline constexpr text::Replacement breaksToLFRows[] = {{u"\r\n", u"\n"}, {u"\r", u"\n"}};
inline constexpr text::ReplacementTable breaksToLF(breaksToLFRows, u"\r");

inline constexpr text::Replacement bulletsRows[] = {
    {u"\u2022 ", u""}, // bullet
    {u"\u2219 ", u""}, // bullet operator
    {u"\u2023 ", u""}, // triangular bullet
    {u"\u25E6 ", u""}, // white bullet
    {u"\u2043 ", u""}, // hyphen bullet
    {u"\u25D8 ", u""}, // inverse bullet
    {u"\u25D9 ", u""}, // inverse white circle
    {u"\u2022", u""},
    {u"\u2219", u""},
    {u"\u2023", u""},
    {u"\u25E6", u""},
    {u"\u2043", u""},
    {u"\u25D8", u""},
    {u"\u25D9", u""},
    {u"\u27A2 ", u""}, // arrowhead
    {u"\u27A2", u""},
    // A second-level bullet of word processors, at the start of a line.
    {u"\r\no\t", u"\r\n\t"},
    {u"\r\no \t", u"\r\n\t"},
    {u"\ro\t", u"\r\t"},
    {u"\ro \t", u"\r\t"},
    {u"\no\t", u"\n\t"},
    {u"\no \t", u"\n\t"},
};
inline constexpr text::ReplacementTable
    bullets(bulletsRows, u"\u2022\u2219\u2023\u25E6\u2043\u25D8\u25D9\u27A2\t");
// clang-format on

} // namespace nerlo::engine::rules
