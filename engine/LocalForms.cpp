#include "engine/LocalForms.h"

#include "engine/Markup.h"
#include "engine/Quotes.h"
#include "engine/ReplacementRules.h"
#include "engine/Whitespace.h"
#include "text/CaseMapping.h"
#include "text/Replace.h"
#include "text/Utf.h"

#include <span>
#include <utility>

namespace nerlo::engine::local {

namespace {

using text::StreamedRule;

constexpr text::UnitSet tabs(u"\t");
constexpr text::UnitSet spaces(u" ");
constexpr text::UnitSet noBreakSpaces(u"\u00A0");
constexpr text::UnitSet replyMarks(u">");

template <std::string (*run)(std::string)>
std::string onBytes(std::string text, const CleaningContext &) {
    return run(std::move(text));
}

std::vector<StreamedRule> rulesOf(std::span<const text::Replacement> rows) {
    std::vector<StreamedRule> rules;
    for (const text::Replacement &row : rows) {
        rules.push_back(StreamedRule::literal(row.find, row.replace));
    }
    return rules;
}

std::string changeReturnsInBytes(std::string text, const CleaningContext &context) {
    const auto &options = context.options;
    const auto replacement = textOfReturns(static_cast<std::int32_t>(options.udChangeReturnsOption),
                                           options.udChangeReturnsCustom1.stringValue());
    return text::replaceRuns(std::move(text), breakUnits, text::utf16ToUtf8(replacement.value()));
}

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\r' || unit == u'\t';
}

bool isAsciiLetter(char16_t unit) {
    return static_cast<char16_t>((unit | 0x20) - u'a') < 26;
}

// No mapping of a letter looks past a unit that is neither a letter nor a mark.
bool endsCase(char16_t unit) {
    return isBlank(unit) || (unit >= 0x80 && text::isCaseNeutral(unit));
}

bool mayCutCase(char16_t before, char16_t after) {
    return endsCase(before) || endsCase(after) || (isAsciiLetter(before) && isAsciiLetter(after));
}

// No word goes on past a blank.
bool mayCutTitles(char16_t before, char16_t after) {
    return isBlank(before) || isBlank(after);
}

} // namespace

Form collapseTabs(const CleaningOptions &) {
    return LocalForm{.rules = {StreamedRule::run(tabs, u"\t")},
                     .runOnBytes = onBytes<removeMultipleTabs>};
}

Form removeAllSpaces(const CleaningOptions &) {
    return LocalForm{.rules = {StreamedRule::run(whiteSpaceUnits, u"")}};
}

Form removeTabs(const CleaningOptions &) {
    return LocalForm{.rules = {StreamedRule::run(tabs, u"")},
                     .runOnBytes = onBytes<removeMultipleTabsToNone>};
}

Form collapseWhiteSpace(const CleaningOptions &) {
    return LocalForm{.rules = {StreamedRule::run(whiteSpaceUnits, u" ")}};
}

Form changeReturns(const CleaningOptions &options) {
    const auto replacement = textOfReturns(static_cast<std::int32_t>(options.udChangeReturnsOption),
                                           options.udChangeReturnsCustom1.stringValue());
    if (!replacement) {
        return std::nullopt;
    }
    return LocalForm{.rules = {StreamedRule::run(breakUnits, *replacement)},
                     .runOnBytes = changeReturnsInBytes};
}

Form trim(const CleaningOptions &) {
    return LocalForm{.onlyAtEnds = true, .trims = true};
}

Form changeCase(const CleaningOptions &options) {
    switch (options.udChangeCaseOption) {
    case 1:
        return LocalForm{.mayCut = mayCutTitles, .mayEnd = isBlank};
    case 2:
    case 3:
        return LocalForm{.mayCut = mayCutCase, .mayEnd = endsCase};
    default:
        return std::nullopt; // sentences
    }
}

Form changeQuotes(const CleaningOptions &options) {
    auto rules =
        rulesOfConversion(options.udChangeQuotesOption == 1, options.udChangeQuotesSingleOption,
                          options.udChangeQuotesDoubleOption, options.udChangeQuotesAll);
    return rules ? Form(LocalForm{.rules = std::move(*rules)}) : std::nullopt;
}

Form removeSingleQuotes(const CleaningOptions &options) {
    return LocalForm{.rules = rulesOfRemoval(false, options.udRemoveSingleQuotesAll,
                                             options.udChangeQuotesSingleOption)};
}

Form removeDoubleQuotes(const CleaningOptions &options) {
    return LocalForm{.rules = rulesOfRemoval(true, options.udRemoveDoubleQuotesAll,
                                             options.udChangeQuotesDoubleOption)};
}

Form removeReplyMarks(const CleaningOptions &) {
    return LocalForm{.rules = {StreamedRule::run(replyMarks, u"")},
                     .runOnBytes = onBytes<removeReplyQuotes>};
}

Form replaceInSlot(const CleaningOptions &options, std::size_t slot) {
    return LocalForm{.rules = {StreamedRule::literal(
                         options.udChangePropertyChangeTextField[slot - 1].stringValue(),
                         options.udChangePropertyToTextField[slot - 1].stringValue())}};
}

Form collapseSpaces(const CleaningOptions &) {
    return LocalForm{
        .rules = {StreamedRule::run(spaces, u" "), StreamedRule::run(noBreakSpaces, u"\u00A0")},
        .runOnBytes = onBytes<removeMultipleSpaces>};
}

Form changeTabs(const CleaningOptions &options) {
    if (options.udChangeTabsAnd4SpacesOption != 1) {
        return LocalForm{.rules = {StreamedRule::literal(u"\t", u"    ")},
                         .runOnBytes = onBytes<changeTabsToSpaces>};
    }
    return LocalForm{.rules = {StreamedRule::literal(u"    ", u"\t"),
                               StreamedRule::literal(u"\u00A0\u00A0\u00A0\u00A0", u"\t")},
                     .runOnBytes = onBytes<changeSpacesToTabs>};
}

Form removeBullets(const CleaningOptions &) {
    return LocalForm{.rules = rulesOf(rules::bulletsRows)};
}

Form removeSpaceBeforeDot(const CleaningOptions &) {
    return LocalForm{.rules = rulesOf(rules::spaceBeforeDotRows)};
}

Form removeSpaceAroundTab(const CleaningOptions &) {
    return LocalForm{.rules = rulesOf(rules::spaceAroundTabRows)};
}

Form removeSpaceAroundReturn(const CleaningOptions &) {
    return LocalForm{.rules = rulesOf(rules::spaceAroundReturnRows)};
}

Form changeEllipsis(const CleaningOptions &options) {
    if (options.udChangeEllipsisAndDotsOption == 1) {
        return LocalForm{.rules = {StreamedRule::literal(u"\u2026", u"...")},
                         .runOnBytes = onBytes<changeEllipsisTo3Dots>};
    }
    return LocalForm{.rules = {StreamedRule::literal(u"...", u"\u2026")},
                     .runOnBytes = onBytes<change3DotsToEllipsis>};
}

Form removeHyphens(const CleaningOptions &options) {
    return LocalForm{.rules = options.udRemoveHyphensAll ? rulesOf(rules::dashesRows)
                                                         : rulesOf(rules::hyphensRows)};
}

Form addPrefix(const CleaningOptions &options) {
    return LocalForm{.onlyAtEnds = true, .before = options.udPrefixTextField.stringValue()};
}

Form addSuffix(const CleaningOptions &options) {
    return LocalForm{.onlyAtEnds = true, .after = options.udSuffixTextField.stringValue()};
}

} // namespace nerlo::engine::local
