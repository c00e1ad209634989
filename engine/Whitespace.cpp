#include "engine/Whitespace.h"

#include "engine/ReplacementRules.h"
#include "text/Regex.h"
#include "text/Replace.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <utility>

namespace nerlo::engine {

namespace {

using text::UnitSet;

constexpr char16_t space = u' ';
constexpr char16_t noBreakSpace = u'\u00A0';

constexpr char noBreakSpaceBytes[] = "\xC2\xA0";
constexpr UnitSet tabs(u"\t");

struct ReturnsOption {
    std::int32_t option;
    std::u16string_view text;
};

// What a run of line breaks becomes. In option 6 the user's own text follows.
constexpr ReturnsOption runReplacements[] = {
    {0, u""},     // none: lines joined with nothing
    {1, u"\n"},   // single return
    {2, u"\n\n"}, // double returns
    {3, u" "},    // space
    {4, u"\n "},  // line break and a space
    {5, u"\n\t"}, // line break and a tab
    {6, u"\n"},   // line break and the custom text
};
constexpr std::int32_t customIndent = 6;

struct Wrapping {
    std::int32_t option;
    std::u16string_view prefix;
    std::u16string_view suffix;
};

constexpr Wrapping wrappings[] = {
    {7, u"<p>", u"</p>"},
    {8, u"[img]", u"[/img]"},
};
constexpr std::int32_t customTags = 9;

} // namespace

// White_Space of the Unicode character database, which is also what "\s" matches.
constexpr UnitSet whiteSpaceUnits = [] {
    UnitSet set;
    set.add(u'\t', u'\r');
    set.add(space, space);
    set.add(u'\u0085', u'\u0085');
    set.add(noBreakSpace, noBreakSpace);
    set.add(u'\u1680', u'\u1680');
    set.add(u'\u2000', u'\u200A');
    set.add(u'\u2028', u'\u2029');
    set.add(u'\u202F', u'\u202F');
    set.add(u'\u205F', u'\u205F');
    set.add(u'\u3000', u'\u3000');
    return set;
}();

constexpr UnitSet breakUnits(u"\r\n");

std::u16string removeMultipleSpaces(std::u16string text) {
    return text::collapseRuns(text::collapseRuns(std::move(text), space), noBreakSpace);
}

std::string removeMultipleSpaces(std::string text) {
    return text::collapseRuns(text::collapseRuns(std::move(text), ' '), noBreakSpaceBytes);
}

std::u16string removeMultipleTabs(std::u16string text) {
    return text::collapseRuns(std::move(text), u'\t');
}

std::string removeMultipleTabs(std::string text) {
    return text::collapseRuns(std::move(text), '\t');
}

std::u16string removeMultipleTabsToNone(std::u16string text) {
    return text::removeUnits(std::move(text), tabs);
}

std::string removeMultipleTabsToNone(std::string text) {
    return text::removeUnits(std::move(text), tabs);
}

std::u16string removeMultipleSpacesTabsNewLines(std::u16string text) {
    return text::replaceRuns(std::move(text), whiteSpaceUnits, space);
}

std::u16string changeTabsToSpaces(std::u16string text) {
    return text::replaceAll(std::move(text), u"\t", u"    ");
}

std::string changeTabsToSpaces(std::string text) {
    return text::replaceAll(std::move(text), "\t", "    ");
}

std::u16string changeSpacesToTabs(std::u16string text) {
    text = text::replaceAll(std::move(text), u"    ", u"\t");
    return text::replaceAll(std::move(text), u"\u00A0\u00A0\u00A0\u00A0", u"\t");
}

std::string changeSpacesToTabs(std::string text) {
    text = text::replaceAll(std::move(text), "    ", "\t");
    return text::replaceAll(std::move(text), "\xC2\xA0\xC2\xA0\xC2\xA0\xC2\xA0", "\t");
}

std::u16string removeAllSpaces(std::u16string text) {
    return text::removeUnits(std::move(text), whiteSpaceUnits);
}

std::u16string removeSpacesStartAndEnd(std::u16string text) {
    std::size_t end = text.size();
    while (end > 0 && whiteSpaceUnits.contains(text[end - 1])) {
        --end;
    }
    std::size_t begin = 0;
    while (begin < end && whiteSpaceUnits.contains(text[begin])) {
        ++begin;
    }
    text.resize(end);
    text.erase(0, begin);
    return text;
}

std::u16string removeSpaceBeforeDot(std::u16string text) {
    return rules::spaceBeforeDot.apply(std::move(text));
}

std::u16string removeSpaceBeforeAfterTab(std::u16string text) {
    return rules::spaceAroundTab.apply(std::move(text));
}

std::u16string removeSpaceBeforeAfterReturn(std::u16string text) {
    return rules::spaceAroundReturn.apply(std::move(text));
}

std::u16string change3DotsToEllipsis(std::u16string text) {
    return text::replaceAll(std::move(text), u"...", u"\u2026");
}

std::u16string changeEllipsisTo3Dots(std::u16string text) {
    return text::replaceAll(std::move(text), u"\u2026", u"...");
}

std::string change3DotsToEllipsis(std::string text) {
    return text::replaceAll(std::move(text), "...", "\xE2\x80\xA6");
}

std::string changeEllipsisTo3Dots(std::string text) {
    return text::replaceAll(std::move(text), "\xE2\x80\xA6", "...");
}

std::u16string removeHyphens(std::u16string text) {
    return rules::hyphens.apply(std::move(text));
}

std::u16string removeAllHyphensDashesMinusSign(std::u16string text) {
    return rules::dashes.apply(std::move(text));
}

std::u16string addPrefix(std::u16string text, std::u16string_view prefix) {
    if (!prefix.empty()) {
        text.insert(0, prefix);
    }
    return text;
}

std::u16string addSuffix(std::u16string text, std::u16string_view suffix) {
    text.append(suffix);
    return text;
}

std::u16string changeAllBreaks(std::u16string text) {
    return rules::breaksToLF.apply(std::move(text));
}

std::u16string changeDash(std::u16string text) {
    // The range spans the ASCII codes from A to z, the six characters between the letters included.
    const auto inRange = [](char16_t unit) { return unit >= u'A' && unit <= u'z'; };
    std::size_t to = 0;
    std::size_t from = 0;
    const auto keepUpTo = [&](std::size_t end) {
        std::char_traits<char16_t>::move(text.data() + to, text.data() + from, end - from);
        to += end - from;
    };
    for (std::size_t at = text::findUnit(text, 0, u'-'); at + 1 < text.size();
         at = text::findUnit(text, at + 1, u'-')) {
        if (at > 0 && text[at + 1] == space && inRange(text[at - 1])) {
            keepUpTo(at);
            from = at + 2;
        }
    }
    if (from != 0) {
        keepUpTo(text.size());
        text.resize(to);
    }
    return text;
}

std::u16string addPrefixAndSuffixToParagraphs(std::u16string_view text, std::u16string_view prefix,
                                              std::u16string_view suffix,
                                              std::u16string_view newLineJoin) {
    std::u16string between;
    between.append(suffix).append(newLineJoin).append(prefix);
    std::u16string result = text::replaceAll(std::u16string(text), newLineJoin, between);
    result.insert(0, prefix);
    return result.append(suffix);
}

std::optional<std::u16string> textOfReturns(std::int32_t option, std::u16string_view custom1) {
    const bool wraps =
        std::ranges::any_of(wrappings, [&](const Wrapping &row) { return row.option == option; });
    const bool expands =
        option == customIndent && custom1.find_first_of(u"$\\") != std::u16string_view::npos;
    if (wraps || expands || option == customTags) {
        return std::nullopt;
    }
    std::u16string replacement;
    for (const ReturnsOption &row : runReplacements) {
        if (option == row.option) {
            replacement = row.text;
        }
    }
    if (option == customIndent) {
        replacement.append(custom1);
    }
    return replacement;
}

std::u16string removeSingleOrMultipleReturns(std::u16string text, std::int32_t option,
                                             std::u16string_view custom1,
                                             std::u16string_view custom2) {
    if (option == customTags) {
        return addPrefixAndSuffixToParagraphs(changeAllBreaks(std::move(text)), custom1, custom2,
                                              u"\n");
    }
    for (const Wrapping &wrapping : wrappings) {
        if (option == wrapping.option) {
            return addPrefixAndSuffixToParagraphs(changeAllBreaks(std::move(text)), wrapping.prefix,
                                                  wrapping.suffix, u"\n");
        }
    }
    const std::optional<std::u16string> replacement = textOfReturns(option, custom1);
    if (!replacement) {
        text = changeAllBreaks(std::move(text));
        auto regex = text::Regex::compile(u"[\n]+", text::Regex::Case::Sensitive);
        regex->replaceAll(text, std::u16string(u"\n").append(custom1));
        return text;
    }
    // Once the breaks are all LF, a run of breaks is a run of LF; so CR and LF alike make a run.
    return text::replaceRuns(std::move(text), breakUnits, *replacement);
}

} // namespace nerlo::engine
