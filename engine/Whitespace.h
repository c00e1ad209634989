// White space, line breaks and punctuation.
//
// Texts are UTF-16. Every function is pure, may run on any thread and never fails.
#pragma once

#include "text/UnitScan.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::engine {

// Runs of spaces to one space, runs of no-break spaces to one no-break space.
std::u16string removeMultipleSpaces(std::u16string text);
// Runs of tabs to one tab.
std::u16string removeMultipleTabs(std::u16string text);
// Removes every tab.
std::u16string removeMultipleTabsToNone(std::u16string text);
// The same for texts in UTF-8, which need not be decoded for it.
std::string removeMultipleSpaces(std::string text);
std::string removeMultipleTabs(std::string text);
std::string removeMultipleTabsToNone(std::string text);
// Every run of white space, line breaks included, to one space.
std::u16string removeMultipleSpacesTabsNewLines(std::u16string text);
// Every tab to four spaces.
std::u16string changeTabsToSpaces(std::u16string text);
// Every four spaces, and every four no-break spaces, to one tab.
std::u16string changeSpacesToTabs(std::u16string text);
std::string changeTabsToSpaces(std::string text);
std::string changeSpacesToTabs(std::string text);
// Removes every white-space and line-break character.
std::u16string removeAllSpaces(std::u16string text);
// Trims white space and line breaks at both ends of the whole text.
std::u16string removeSpacesStartAndEnd(std::u16string text);
// One space before a dot of seven kinds goes.
std::u16string removeSpaceBeforeDot(std::u16string text);
// Spaces next to a tab, and next to a line break, go.
std::u16string removeSpaceBeforeAfterTab(std::u16string text);
std::u16string removeSpaceBeforeAfterReturn(std::u16string text);
// "..." to the ellipsis, and back.
std::u16string change3DotsToEllipsis(std::u16string text);
std::u16string changeEllipsisTo3Dots(std::u16string text);
std::string change3DotsToEllipsis(std::string text);
std::string changeEllipsisTo3Dots(std::string text);
// The hyphen U+2010 goes, with a space and a line break after it.
std::u16string removeHyphens(std::u16string text);
// The same for six dashes, the minus sign and then the hyphen-minus.
std::u16string removeAllHyphensDashesMinusSign(std::u16string text);
std::u16string addPrefix(std::u16string text, std::u16string_view prefix);
std::u16string addSuffix(std::u16string text, std::u16string_view suffix);
// Every line break to LF.
std::u16string changeAllBreaks(std::u16string text);
// "- " after a unit of the range A to z goes.
std::u16string changeDash(std::u16string text);
// Prefix and suffix around every piece between two join strings, empty pieces included.
std::u16string addPrefixAndSuffixToParagraphs(std::u16string_view text, std::u16string_view prefix,
                                              std::u16string_view suffix,
                                              std::u16string_view newLineJoin);
// Replaces every run of line breaks (options 0 to 6, and any unknown one as 0), or wraps every line
// (7 to 9). custom1 is a template of option 6, and literal in option 9, as custom2 is.
std::u16string removeSingleOrMultipleReturns(std::u16string text, std::int32_t option,
                                             std::u16string_view custom1,
                                             std::u16string_view custom2);
// What a run of line breaks becomes with one of the options 0 to 6; nothing where that takes more
// than a fixed text.
std::optional<std::u16string> textOfReturns(std::int32_t option, std::u16string_view custom1);

// What these operations look at, wherever it stands.
extern const text::UnitSet whiteSpaceUnits;
extern const text::UnitSet breakUnits;

} // namespace nerlo::engine
