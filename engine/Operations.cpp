#include "engine/Operations.h"

#include "engine/CaseConversion.h"
#include "engine/CharacterCleaning.h"
#include "engine/EncodingRepair.h"
#include "engine/FindReplace.h"
#include "engine/LineJoining.h"
#include "engine/Links.h"
#include "engine/LocalForms.h"
#include "engine/Markup.h"
#include "engine/PageRepair.h"
#include "engine/Quotes.h"
#include "engine/Sorting.h"
#include "engine/StructureGuard.h"
#include "engine/TerminalText.h"
#include "engine/Whitespace.h"
#include "engine/WordRepair.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using Context = CleaningContext;
using Options = CleaningOptions;

// Case mapping follows the locale from generation 108 on.
std::string caseLocale(const Context &context) {
    return (context.actualVersion & ~std::int64_t{1}) == 108 ? context.locale : std::string();
}

template <std::u16string (*run)(std::u16string)>
std::u16string plain(std::u16string text, const Context &) {
    return run(std::move(text));
}

template <std::size_t slot>
std::u16string replaceSlot(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return replaceString(std::move(text),
                         options.udChangePropertyChangeTextField[slot - 1].stringValue(),
                         options.udChangePropertyToTextField[slot - 1].stringValue());
}

// The option is a 32-bit number; of a larger one the lower bits count.
std::int32_t returnsOption(const Options &options) {
    return static_cast<std::int32_t>(options.udChangeReturnsOption);
}

std::u16string changeReturns(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return removeSingleOrMultipleReturns(std::move(text), returnsOption(options),
                                         options.udChangeReturnsCustom1.stringValue(),
                                         options.udChangeReturnsCustom2.stringValue());
}

std::u16string changeCase(std::u16string text, const Context &context) {
    const std::string locale = caseLocale(context);
    switch (context.options.udChangeCaseOption) {
    case 1:
        return changeToCapitalized(std::move(text), locale);
    case 2:
        return changeToLowercase(std::move(text), locale);
    case 3:
        return changeToUppercase(std::move(text), locale);
    default:
        return changeToCapitalizedFirstWordOfSentence(std::move(text), locale);
    }
}

std::u16string changeQuotes(std::u16string text, const Context &context) {
    const auto &options = context.options;
    const auto convert = options.udChangeQuotesOption == 1 ? replaceDoubleQuotesToSingleQuotes
                                                           : replaceSingleQuotesToDoubleQuotes;
    return convert(std::move(text), options.udChangeQuotesSingleOption,
                   options.udChangeQuotesDoubleOption, options.udChangeQuotesAll);
}

std::u16string removeSingles(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return removeSingleQuotes(std::move(text), options.udRemoveSingleQuotesAll,
                              options.udChangeQuotesSingleOption);
}

std::u16string removeDoubles(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return removeDoubleQuotes(std::move(text), options.udRemoveDoubleQuotesAll,
                              options.udChangeQuotesDoubleOption);
}

std::u16string removeTags(std::u16string text, const Context &context) {
    return removeHTMLTags(std::move(text), context.options.udRemoveHTMLTagsJS);
}

std::u16string applyPattern(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return insertYourPattern(std::move(text), options.udInsertYourPatternTextField.stringValue(),
                             options.udInsertYourPatternOption == 1 ? 1 : 0, context.report);
}

std::u16string changeTabs(std::u16string text, const Context &context) {
    return context.options.udChangeTabsAnd4SpacesOption == 1 ? changeSpacesToTabs(std::move(text))
                                                             : changeTabsToSpaces(std::move(text));
}

std::u16string changeEllipsis(std::u16string text, const Context &context) {
    return context.options.udChangeEllipsisAndDotsOption == 1
               ? changeEllipsisTo3Dots(std::move(text))
               : change3DotsToEllipsis(std::move(text));
}

std::u16string sort(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return sortLines(std::move(text), options.udSortOption, options.udSortSeparator,
                     options.udSortCustomSeparatorTextField.stringValue(), context.locale);
}

std::u16string removeRepeatedLines(std::u16string text, const Context &context) {
    const auto &options = context.options;
    return sortLines(std::move(text), removeDuplicatesOption,
                     options.udRemoveDuplicateLinesSeparator,
                     options.udDuplicatesCustomSeparatorTextField.stringValue(), context.locale);
}

std::u16string unchanged(std::u16string text, const Context &) {
    return text;
}

std::u16string joinLines(std::u16string text, const Context &context) {
    return changeWrongInsertedReturnsTo(
        std::move(text),
        static_cast<std::int32_t>(context.options.udChangeWrongInsertedReturnsOption));
}

std::u16string removeDashes(std::u16string text, const Context &context) {
    return context.options.udRemoveHyphensAll ? removeAllHyphensDashesMinusSign(std::move(text))
                                              : removeHyphens(std::move(text));
}

std::u16string prefix(std::u16string text, const Context &context) {
    return addPrefix(std::move(text), context.options.udPrefixTextField.stringValue());
}

std::u16string suffix(std::u16string text, const Context &context) {
    return addSuffix(std::move(text), context.options.udSuffixTextField.stringValue());
}

std::u16string findReplaceList(std::u16string text, const Context &context) {
    return replaceStringInFindReplace(std::move(text), context.options, context.report);
}

std::u16string removeOddCharacters(std::u16string text, const Context &context) {
    return cleanCharacters(std::move(text), context.options);
}

std::u16string rejoin(std::u16string text, const Context &context) {
    const auto &options = context.options;
    if (options.udRejoinWordsPages) {
        text = removePageLines(std::move(text));
    }
    text = rejoinWords(std::move(text), context.locale, text::dictionaryFor);
    return options.udRejoinWordsFootnotes ? removeFootnoteMarks(std::move(text)) : text;
}

std::u16string cleanAddresses(std::u16string text, const Context &context) {
    return cleanLinks(std::move(text), context.options.linkRules.get());
}

std::u16string repair(std::u16string text, const Context &context) {
    // In code, references are in place.
    const bool references = !context.options.udProtectStructure;
    return repairEncoding(std::move(text), references);
}

bool always(const Options &) {
    return true;
}

bool unlessEachLineIsWrapped(const Options &options) {
    return returnsOption(options) < 6 || returnsOption(options) > 9;
}

bool withoutWordsAndSentences(const Options &options) {
    return options.udChangeCaseOption == 2 || options.udChangeCaseOption == 3;
}

bool whereQuotesAreTakenAlike(const Options &options) {
    return !options.udChangeQuotesAll && convertsQuotesAlike(options.udChangeQuotesOption == 1,
                                                             options.udChangeQuotesSingleOption,
                                                             options.udChangeQuotesDoubleOption);
}

// The indices are stored in settings: slots 4 to 10 came later than slots 1 to 3, so theirs are
// higher.
constexpr Operation table[] = {
    {0, "collapse-tabs", "sChangeMultipleTabsToSingleTab", "runs of tabs to one tab",
     plain<removeMultipleTabs>, always, Reach::prose, local::collapseTabs},
    {1, "remove-all-spaces", "sRemoveAllSpaces", "remove all white space and line breaks",
     plain<removeAllSpaces>, always, Reach::prose, local::removeAllSpaces},
    {2, "remove-tabs", "sRemoveAllTabs", "remove all tabs", plain<removeMultipleTabsToNone>, always,
     Reach::prose, local::removeTabs},
    {3, "collapse-white-space", "sRemoveAllSpacesTabsAndNewLines",
     "every run of white space, line breaks included, to one space",
     plain<removeMultipleSpacesTabsNewLines>, always, Reach::prose, local::collapseWhiteSpace},
    {4, "change-returns", "sChangeReturnsTo", "replace runs of line breaks, or wrap every line",
     changeReturns, unlessEachLineIsWrapped, Reach::prose, local::changeReturns},
    {5, "trim", "sRemoveSpacesBeforeAndAfterText", "trim white space at both ends of the text",
     plain<removeSpacesStartAndEnd>, always, Reach::textEnds, local::trim},
    {6, "change-case", "sChangeCaseTo", "change letter case", changeCase, withoutWordsAndSentences,
     Reach::prose, local::changeCase},
    {7, "change-quotes", "sChangeQuotes", "single quotes to double quotes, or back", changeQuotes,
     whereQuotesAreTakenAlike, Reach::prose, local::changeQuotes},
    {8, "remove-single-quotes", "sRemoveSingleQuotes", "remove single quotes", removeSingles,
     always, Reach::prose, local::removeSingleQuotes},
    {9, "remove-double-quotes", "sRemoveDoubleQuotes", "remove double quotes", removeDoubles,
     always, Reach::prose, local::removeDoubleQuotes},
    {10, "remove-reply-marks", "sRemoveReplyQuotes", "remove the > marks of mail replies",
     plain<removeReplyQuotes>, always, Reach::quoteMarks, local::removeReplyMarks},
    {11, "remove-tags", "sRemoveHTMLTags", "remove HTML tags", removeTags},
    {12, "your-pattern", "sInsertYourPattern", "delete or keep the matches of your pattern",
     applyPattern},
    {13, "replace-1", "sChangeProperty1", "find and replace, pair 1", replaceSlot<1>, nullptr,
     Reach::prose, local::replaceSlot<1>},
    {14, "replace-2", "sChangeProperty2", "find and replace, pair 2", replaceSlot<2>, nullptr,
     Reach::prose, local::replaceSlot<2>},
    {15, "replace-3", "sChangeProperty3", "find and replace, pair 3", replaceSlot<3>, nullptr,
     Reach::prose, local::replaceSlot<3>},
    {16, "collapse-spaces", "sChangeMultipleSpacesToSingleSpace", "runs of spaces to one space",
     plain<removeMultipleSpaces>, always, Reach::prose, local::collapseSpaces},
    {17, "change-tabs", "sChangeTabsAnd4Spaces", "tabs to four spaces, or back", changeTabs, always,
     Reach::prose, local::changeTabs},
    {18, "remove-bullets", "sRemoveBullets", "remove list bullets", plain<removeBullets>, always,
     Reach::bullets, local::removeBullets},
    {19, "remove-space-before-dot", "sRemoveSpaceBeforeDot", "remove a space before a dot",
     plain<removeSpaceBeforeDot>, always, Reach::prose, local::removeSpaceBeforeDot},
    {20, "remove-space-around-tab", "sRemoveSpaceBeforeAfterTab", "remove spaces next to tabs",
     plain<removeSpaceBeforeAfterTab>, always, Reach::prose, local::removeSpaceAroundTab},
    {21, "remove-space-around-return", "sRemoveSpaceBeforeAfterReturn",
     "remove spaces next to line breaks", plain<removeSpaceBeforeAfterReturn>, always,
     Reach::lineEnds, local::removeSpaceAroundReturn},
    {22, "change-ellipsis", "sChangeEllipsisAndDots", "three dots to an ellipsis, or back",
     changeEllipsis, always, Reach::prose, local::changeEllipsis},
    {23, "sort-lines", "sSort", "sort lines or separated items", sort, nullptr, Reach::whole},
    {24, "remove-duplicate-lines", "sRemoveDuplicateLines", "remove repeated lines or items",
     removeRepeatedLines, nullptr, Reach::whole},
    {25, "statistics", "sStatistics", "count characters, spaces, words and paragraphs", unchanged,
     nullptr, Reach::whole},
    {26, "replace-4", "sChangeProperty4", "find and replace, pair 4", replaceSlot<4>, nullptr,
     Reach::prose, local::replaceSlot<4>},
    {27, "replace-5", "sChangeProperty5", "find and replace, pair 5", replaceSlot<5>, nullptr,
     Reach::prose, local::replaceSlot<5>},
    {28, "replace-6", "sChangeProperty6", "find and replace, pair 6", replaceSlot<6>, nullptr,
     Reach::prose, local::replaceSlot<6>},
    {29, "replace-7", "sChangeProperty7", "find and replace, pair 7", replaceSlot<7>, nullptr,
     Reach::prose, local::replaceSlot<7>},
    {30, "replace-8", "sChangeProperty8", "find and replace, pair 8", replaceSlot<8>, nullptr,
     Reach::prose, local::replaceSlot<8>},
    {31, "replace-9", "sChangeProperty9", "find and replace, pair 9", replaceSlot<9>, nullptr,
     Reach::prose, local::replaceSlot<9>},
    {32, "replace-10", "sChangeProperty10", "find and replace, pair 10", replaceSlot<10>, nullptr,
     Reach::prose, local::replaceSlot<10>},
    {33, "join-lines", "sChangeWrongInsertedReturnsTo", "join lines broken inside sentences",
     joinLines, nullptr, Reach::lineJoints},
    {34, "remove-hyphens", "sRemoveHyphens", "remove hyphens, or all dashes too", removeDashes,
     always, Reach::prose, local::removeHyphens},
    {35, "add-prefix", "sAddPrefix", "put the prefix before the text", prefix, nullptr,
     Reach::whole, local::addPrefix},
    {36, "add-suffix", "sAddSuffix", "put the suffix after the text", suffix, nullptr, Reach::whole,
     local::addSuffix},
    {37, "find-replace-list", "sFindReplaceBool", "apply the find-and-replace list",
     findReplaceList},
    {38, "unwrap-terminal", "sUnwrapTerminal",
     "undo what a terminal did to its text: wrapping, frames, padding", plain<unwrapTerminal>,
     nullptr, Reach::whole},
    {39, "repair-encoding", "sRepairEncoding", "undo that text was read in a wrong charset", repair,
     nullptr, Reach::whole},
    {40, "clean-characters", "sCleanCharacters",
     "take out characters that nobody sees, and odd ones to plain ones", removeOddCharacters},
    {41, "rejoin-words", "sRejoinWords", "rejoin words that were cut at line ends", rejoin},
    {42, "clean-links", "sCleanLinks", "take tracking parameters out of web addresses",
     cleanAddresses, nullptr, Reach::addresses},
};

static_assert(std::ranges::is_sorted(table, std::ranges::less_equal{}, &Operation::index) &&
              std::ranges::adjacent_find(table, {}, &Operation::index) == std::end(table));

struct Step {
    bool (*isOn)(const Options &options);
    std::int32_t operation;
};

template <bool Options::*field>
bool on(const Options &options) {
    return options.*field;
}

template <std::size_t slot>
bool slotOn(const Options &options) {
    return options.udChangeProperty[slot - 1];
}

bool spacesBecomeTabs(const Options &options) {
    return options.udChangeTabsAnd4SpacesOption == 1;
}

constexpr Step pipeline[] = {
    // Later steps see the characters as they were before a wrong charset, and the lines as they
    // were before the terminal broke them.
    {on<&Options::udRepairEncoding>, 39},
    {on<&Options::udUnwrapTerminal>, 38},
    {on<&Options::udCleanCharacters>, 40},
    {on<&Options::udRejoinWords>, 41},
    {on<&Options::udCleanLinks>, 42},
    {on<&Options::udChangeMultipleTabsToSingleTab>, 0},
    {on<&Options::udRemoveAllSpaces>, 1},
    {on<&Options::udRemoveAllTabs>, 2},
    {on<&Options::udRemoveSpacesTabsAndNewLines>, 3},
    {[](const Options &o) { return o.udRemoveHyphensAll || o.udRemoveHyphens; }, 34},
    {on<&Options::udRemoveSpacesBeforeAndAfterText>, 5},
    {on<&Options::udRemoveBullets>, 18},
    {on<&Options::udChangeWrongInsertedReturnsTo>, 33},
    {on<&Options::udChangeCaseTo>, 6},
    {on<&Options::udChangeQuotes>, 7},
    {on<&Options::udRemoveSingleQuotes>, 8},
    {on<&Options::udRemoveDoubleQuotes>, 9},
    {on<&Options::udRemoveReplyQuotes>, 10},
    {on<&Options::udRemoveHTMLTags>, 11},
    {on<&Options::udInsertYourPattern>, 12},
    {on<&Options::udChangeEllipsisAndDots>, 22},
    {slotOn<1>, 13},
    {slotOn<2>, 14},
    {slotOn<3>, 15},
    {slotOn<4>, 26},
    {slotOn<5>, 27},
    {slotOn<6>, 28},
    {slotOn<7>, 29},
    {slotOn<8>, 30},
    {slotOn<9>, 31},
    {slotOn<10>, 32},
    {on<&Options::udFindReplaceBool>, 37},
    // Spaces are collapsed before tabs become four spaces, but only after runs of four spaces have
    // become tabs.
    {[](const Options &o) { return o.udChangeMultipleSpacesToSingleSpace && !spacesBecomeTabs(o); },
     16},
    {on<&Options::udChangeTabsAnd4Spaces>, 17},
    {[](const Options &o) { return o.udChangeMultipleSpacesToSingleSpace && spacesBecomeTabs(o); },
     16},
    {on<&Options::udRemoveSpaceBeforeDot>, 19},
    {on<&Options::udRemoveSpaceBeforeAfterTab>, 20},
    {on<&Options::udRemoveSpaceBeforeAfterReturn>, 21},
    {on<&Options::udChangeReturnsTo>, 4},
    {on<&Options::udAddPrefix>, 35},
    {on<&Options::udAddSuffix>, 36},
    {on<&Options::udRemoveDuplicateLines>, 24},
    {on<&Options::udSort>, 23},
};

} // namespace

std::span<const Operation> operations() {
    return table;
}

const Operation *findOperation(std::int32_t index) {
    const auto *const row = std::ranges::lower_bound(table, index, {}, &Operation::index);
    return row != std::end(table) && row->index == index ? row : nullptr;
}

const Operation *findOperation(std::string_view nameOrIndex) {
    for (const Operation &operation : table) {
        if (operation.name == nameOrIndex) {
            return &operation;
        }
    }
    std::int32_t index = 0;
    const char *const end = nameOrIndex.data() + nameOrIndex.size();
    const auto [stopped, error] = std::from_chars(nameOrIndex.data(), end, index);
    return error == std::errc() && stopped == end ? findOperation(index) : nullptr;
}

std::u16string runOperation(std::int32_t index, std::u16string text,
                            const CleaningContext &context) {
    const Operation *const operation = findOperation(index);
    if (operation && context.options.udProtectStructure) {
        return runGuarded(std::move(text), {&operation, 1}, context, cachedPiece);
    }
    return operation ? operation->run(std::move(text), context) : text;
}

std::size_t lastCut(std::u16string_view text, std::size_t from) {
    const auto isLetter = [&](std::size_t at) {
        return static_cast<char16_t>((text[at] | 0x20) - u'a') < 26;
    };
    for (std::size_t at = text.size(); at-- > std::max<std::size_t>(from, 1);) {
        if (isLetter(at) && isLetter(at - 1)) {
            return at;
        }
    }
    return 0;
}

namespace {

// The end of the piece that begins at `from`: the next place to cut, or the end of the text.
std::size_t endOfPiece(std::u16string_view text, std::size_t from, std::size_t size) {
    const std::u16string_view rest = text.substr(from);
    for (std::size_t searched = 0; size < rest.size(); searched = size, size *= 2) {
        if (const std::size_t cut = lastCut(rest.substr(0, size), searched)) {
            return from + cut;
        }
    }
    return text.size();
}

std::u16string runInPieces(std::u16string text, std::span<const Operation *const> steps,
                           const Context &context, std::size_t pieceSize) {
    const auto runAll = [&](std::u16string &piece) {
        for (const Operation *const step : steps) {
            piece = step->run(std::move(piece), context);
        }
    };
    if (steps.size() < 2) {
        runAll(text);
        return text;
    }
    std::u16string piece;
    std::u16string longer; // takes the result over when it grows into text that is not cleaned yet
    std::size_t to = 0;
    for (std::size_t from = 0, end = 0; from < text.size(); from = end) {
        end = endOfPiece(text, from, pieceSize);
        if (from == 0 && end == text.size()) {
            runAll(text);
            return text;
        }
        piece.assign(text, from, end - from);
        runAll(piece);
        if (longer.empty() && to + piece.size() <= end) {
            to += piece.copy(text.data() + to, piece.size());
            continue;
        }
        if (longer.empty()) {
            longer.reserve(text.size() + piece.size());
            longer.assign(text, 0, to);
        }
        longer.append(piece);
    }
    if (longer.empty()) {
        text.resize(to);
        return text;
    }
    return longer;
}

} // namespace

std::vector<const Operation *> operationsSwitchedOn(const CleaningOptions &options) {
    std::vector<const Operation *> operations;
    for (const Step &step : pipeline) {
        if (step.isOn(options)) {
            operations.push_back(findOperation(step.operation));
        }
    }
    return operations;
}

std::u16string runSteps(std::u16string text, std::span<const Operation *const> steps,
                        const CleaningContext &context, std::size_t pieceSize) {
    const auto inPieces = [&](const Operation *step) {
        return step->inPieces && step->inPieces(context.options);
    };
    for (auto step = steps.begin(); step != steps.end();) {
        const auto end = std::find_if_not(step, steps.end(), inPieces);
        text = runInPieces(std::move(text), {step, end}, context, pieceSize);
        step = end;
        if (step != steps.end()) {
            text = (*step++)->run(std::move(text), context);
        }
    }
    return text;
}

std::u16string runPipeline(std::u16string text, const CleaningContext &context,
                           std::size_t pieceSize) {
    const std::vector<const Operation *> steps = operationsSwitchedOn(context.options);
    return context.options.udProtectStructure
               ? runGuarded(std::move(text), steps, context, pieceSize)
               : runSteps(std::move(text), steps, context, pieceSize);
}

} // namespace nerlo::engine
