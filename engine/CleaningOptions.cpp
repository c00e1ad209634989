#include "engine/CleaningOptions.h"

#include <type_traits>

namespace nerlo::engine {

namespace {

using O = CleaningOptions;

constexpr OptionField fields[] = {
    {"udSort", &O::udSort, "lines", "sort lines"},
    {"udRemoveDuplicateLines", &O::udRemoveDuplicateLines, "lines", "remove duplicate lines"},
    {"udStatistics", &O::udStatistics, "statistics", "show the statistics popup after a clean"},
    {"udChangeMultipleSpacesToSingleSpace", &O::udChangeMultipleSpacesToSingleSpace, "spaces",
     "multiple spaces to one"},
    {"udChangeMultipleTabsToSingleTab", &O::udChangeMultipleTabsToSingleTab, "spaces",
     "multiple tabs to one"},
    {"udChangeTabsAnd4Spaces", &O::udChangeTabsAnd4Spaces, "spaces",
     "tabs to four spaces, or back"},
    {"udChangeEllipsisAndDots", &O::udChangeEllipsisAndDots, "spaces",
     "three dots to an ellipsis, or back"},
    {"udRemoveSpaceBeforeDot", &O::udRemoveSpaceBeforeDot, "spaces", "remove a space before a dot"},
    {"udRemoveSpaceBeforeAfterTab", &O::udRemoveSpaceBeforeAfterTab, "spaces",
     "remove spaces around tabs"},
    {"udRemoveSpaceBeforeAfterReturn", &O::udRemoveSpaceBeforeAfterReturn, "spaces",
     "remove spaces around line breaks"},
    {"udRemoveAllSpaces", &O::udRemoveAllSpaces, "spaces", "remove all spaces"},
    {"udRemoveAllTabs", &O::udRemoveAllTabs, "spaces", "remove all tabs"},
    {"udRemoveSpacesTabsAndNewLines", &O::udRemoveSpacesTabsAndNewLines, "spaces",
     "remove all spaces, tabs and line breaks"},
    {"udRemoveHyphens", &O::udRemoveHyphens, "spaces", "remove hyphens at line ends"},
    {"udRemoveHyphensAll", &O::udRemoveHyphensAll, "spaces",
     "remove all hyphens, dashes and minus signs"},
    {"udAddPrefix", &O::udAddPrefix, "spaces", "put the prefix before the text"},
    {"udAddSuffix", &O::udAddSuffix, "spaces", "put the suffix after the text"},
    {"udChangeWrongInsertedReturnsTo", &O::udChangeWrongInsertedReturnsTo, "returns",
     "join lines broken in the wrong places"},
    {"udChangeReturnsTo", &O::udChangeReturnsTo, "returns", "replace runs of line breaks"},
    {"udRemoveSpacesBeforeAndAfterText", &O::udRemoveSpacesBeforeAndAfterText, "spaces",
     "trim the text"},
    {"udChangeCaseTo", &O::udChangeCaseTo, "case", "change letter case"},
    {"udChangeQuotes", &O::udChangeQuotes, "quotes", "single quotes to double, or back"},
    {"udChangeQuotesAll", &O::udChangeQuotesAll, "quotes", "change quotes of every style"},
    {"udRemoveSingleQuotes", &O::udRemoveSingleQuotes, "quotes", "remove single quotes"},
    {"udRemoveSingleQuotesAll", &O::udRemoveSingleQuotesAll, "quotes",
     "remove single quotes of every style"},
    {"udRemoveDoubleQuotes", &O::udRemoveDoubleQuotes, "quotes", "remove double quotes"},
    {"udRemoveDoubleQuotesAll", &O::udRemoveDoubleQuotesAll, "quotes",
     "remove double quotes of every style"},
    {"udRemoveBullets", &O::udRemoveBullets, "marks", "remove list bullets"},
    {"udRemoveReplyQuotes", &O::udRemoveReplyQuotes, "marks", "remove the > marks of mail replies"},
    {"udRemoveHTMLTags", &O::udRemoveHTMLTags, "marks", "remove HTML tags"},
    {"udRemoveHTMLTagsJS", &O::udRemoveHTMLTagsJS, "marks", "remove scripts with the HTML tags"},
    {"udInsertYourPattern", &O::udInsertYourPattern, "pattern", "apply your pattern"},
    {"udChangeProperty%", &O::udChangeProperty, "replace", "find and replace, pair %"},
    // The two separators are stored under shorter names than their fields have.
    {"udSortCustomSeparator", &O::udSortCustomSeparatorTextField, "lines",
     "custom separator of the sort"},
    {"udDuplicatesCustomSeparator", &O::udDuplicatesCustomSeparatorTextField, "lines",
     "custom separator of duplicate removal"},
    {"udChangeReturnsCustom1", &O::udChangeReturnsCustom1, "returns",
     "text after each line break, or before each line"},
    {"udChangeReturnsCustom2", &O::udChangeReturnsCustom2, "returns", "text after each line"},
    {"udInsertYourPatternTextField", &O::udInsertYourPatternTextField, "pattern",
     "your pattern, a regular expression"},
    {"udPrefixTextField", &O::udPrefixTextField, "spaces", "the prefix"},
    {"udSuffixTextField", &O::udSuffixTextField, "spaces", "the suffix"},
    {"udChangeProperty%ChangeTextField", &O::udChangePropertyChangeTextField, "replace",
     "text to find of pair %"},
    {"udChangeProperty%ToTextField", &O::udChangePropertyToTextField, "replace",
     "replacement of pair %"},
    {"udSortOption", &O::udSortOption, "lines", "sort order"},
    {"udSortSeparator", &O::udSortSeparator, "lines", "what separates the items to sort"},
    {"udRemoveDuplicateLinesSeparator", &O::udRemoveDuplicateLinesSeparator, "lines",
     "what separates the items to compare"},
    {"udChangeTabsAnd4SpacesOption", &O::udChangeTabsAnd4SpacesOption, "spaces",
     "direction of the tab conversion"},
    {"udChangeEllipsisAndDotsOption", &O::udChangeEllipsisAndDotsOption, "spaces",
     "direction of the ellipsis conversion"},
    {"udChangeWrongInsertedReturnsOption", &O::udChangeWrongInsertedReturnsOption, "returns",
     "what a joined line break becomes"},
    {"udChangeReturnsOption", &O::udChangeReturnsOption, "returns",
     "what runs of line breaks become"},
    {"udChangeCaseOption", &O::udChangeCaseOption, "case", "which letter case"},
    {"udChangeQuotesOption", &O::udChangeQuotesOption, "quotes",
     "direction of the quote conversion"},
    {"udChangeQuotesSingleOption", &O::udChangeQuotesSingleOption, "quotes", "single quote style"},
    {"udChangeQuotesDoubleOption", &O::udChangeQuotesDoubleOption, "quotes", "double quote style"},
    {"udInsertYourPatternOption", &O::udInsertYourPatternOption, "pattern",
     "delete or keep the matches of your pattern"},
    {"sFindReplaceBool", &O::udFindReplaceBool, "find and replace",
     "apply the find-and-replace list"},
    {"sOnlyOneProfile", &O::udOnlyOneProfile, "find and replace",
     "one find-and-replace list for all profiles"},
    {"sFindAndReplaceItemsProfile", &O::udFindAndReplaceItemsProfile, "find and replace",
     "this profile's own list"},
    {"sFindAndReplaceItems", &O::udFindAndReplaceItems, "find and replace",
     "copy of the list for all profiles"},
    {"udUnwrapTerminal", &O::udUnwrapTerminal, "lines", "undo a terminal's wrapping and frames"},
    {"udProtectStructure", &O::udProtectStructure, "lines",
     "leave code, tables and lists as they are"},
    {"udRepairEncoding", &O::udRepairEncoding, "marks",
     "undo that text was read in a wrong charset"},
    {"udCleanCharacters", &O::udCleanCharacters, "characters",
     "clean invisible and odd characters"},
    {"udCleanCharactersKeepControls", &O::udCleanCharactersKeepControls, "characters",
     "keep control characters"},
    {"udCleanCharactersKeepTags", &O::udCleanCharactersKeepTags, "characters",
     "keep tag characters outside flags"},
    {"udCleanCharactersKeepPrivateUse", &O::udCleanCharactersKeepPrivateUse, "characters",
     "keep characters of private use"},
    {"udCleanCharactersKeepSoftHyphens", &O::udCleanCharactersKeepSoftHyphens, "characters",
     "keep soft hyphens"},
    {"udCleanCharactersKeepVariations", &O::udCleanCharactersKeepVariations, "characters",
     "keep variation selectors without effect"},
    {"udCleanCharactersKeepDirections", &O::udCleanCharactersKeepDirections, "characters",
     "keep invisible marks of direction"},
    {"udCleanCharactersKeepInvisible", &O::udCleanCharactersKeepInvisible, "characters",
     "keep zero-width characters and byte order marks"},
    {"udCleanCharactersKeepLigatures", &O::udCleanCharactersKeepLigatures, "characters",
     "keep ligatures such as U+FB01"},
    {"udCleanCharactersKeepBlanks", &O::udCleanCharactersKeepBlanks, "characters",
     "keep blanks of other widths and no-break spaces"},
    {"udCleanCharactersNarrow", &O::udCleanCharactersNarrow, "characters",
     "letters and digits of full width to ASCII"},
    {"udCleanCharactersCompose", &O::udCleanCharactersCompose, "characters",
     "letters with their marks as one character (NFC)"},
    {"udCleanCharactersPlainMarks", &O::udCleanCharactersPlainMarks, "characters",
     "typographic dashes, quotes and ellipsis to plain ones"},
    {"udCleanCharactersMarkdown", &O::udCleanCharactersMarkdown, "characters",
     "remove the marks of Markdown"},
    {"udRejoinWords", &O::udRejoinWords, "lines", "rejoin words that were cut at line ends"},
    {"udRejoinWordsPages", &O::udRejoinWordsPages, "lines",
     "then also take out page numbers and the lines that pages share"},
    {"udRejoinWordsFootnotes", &O::udRejoinWordsFootnotes, "lines",
     "then also take out the digits of footnotes"},
    {"udCleanLinks", &O::udCleanLinks, "marks", "take tracking parameters out of addresses"},
    {"udCleanLinksRules", &O::udCleanLinksRules, "marks",
     "file with more rules for addresses, as ClearURLs has them"},
    {"udStatisticsRules", &O::udStatisticsRules, "statistics",
     "the popup tells which rules changed most"},
};

void read(const storage::PropertyValue *value, bool &field) {
    field = value && value->boolValue();
}

void read(const storage::PropertyValue *value, std::int64_t &field) {
    field = value ? value->integerValue() : 0;
}

void read(const storage::PropertyValue *value, CleaningOptions::Text &field) {
    field = value ? *value : CleaningOptions::Text(u"");
}

void read(const storage::PropertyValue *value, CleaningOptions::List &field) {
    field = value ? CleaningOptions::List(*value) : std::nullopt;
}

} // namespace

std::span<const OptionField> optionFields() {
    return fields;
}

std::string OptionField::keyOf(std::size_t slot) const {
    std::string text(key);
    if (const auto place = text.find('%'); place != std::string::npos) {
        text.replace(place, 1, std::to_string(slot));
    }
    return text;
}

void CleaningOptions::setAllBools(const storage::PropertyDictionary &dictionary) {
    kCheckSetters = true;
    for (const OptionField &row : fields) {
        std::visit(
            [&](auto member) {
                auto &field = this->*member;
                if constexpr (requires { field.size(); }) {
                    for (std::size_t slot = 0; slot < field.size(); ++slot) {
                        read(dictionary.find(row.keyOf(slot + 1)), field[slot]);
                    }
                } else {
                    read(dictionary.find(row.key), field);
                }
            },
            row.field);
    }
}

} // namespace nerlo::engine
