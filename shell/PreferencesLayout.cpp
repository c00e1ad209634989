#include "shell/PreferencesLayout.h"

#include "engine/CleaningOptions.h"
#include "text/Ascii.h"

#include <algorithm>

namespace nerlo::shell {

namespace {

std::vector<OptionRow> replacements() {
    std::vector<OptionRow> rows;
    for (std::size_t slot = 1; slot <= engine::replaceSlots; ++slot) {
        const std::string name = "ChangeProperty" + std::to_string(slot);
        rows.push_back({"ud" + name,
                        "s" + name,
                        {"ud" + name + "ChangeTextField", "ud" + name + "ToTextField"},
                        false,
                        true});
    }
    return rows;
}

std::vector<PreferencesPage> makePages() {
    return {
        {"sPageSpaces",
         {{"udChangeMultipleSpacesToSingleSpace", "sChangeMultipleSpacesToSingleSpace", {}},
          {"udChangeMultipleTabsToSingleTab", "sChangeMultipleTabsToSingleTab", {}},
          {"udChangeTabsAnd4Spaces", "sChangeTabsAnd4Spaces", {"udChangeTabsAnd4SpacesOption"}},
          {"udRemoveSpacesBeforeAndAfterText", "sRemoveSpacesBeforeAndAfterText", {}},
          {"udRemoveSpaceBeforeAfterTab", "sRemoveSpaceBeforeAfterTab", {}},
          {"udRemoveSpaceBeforeAfterReturn", "sRemoveSpaceBeforeAfterReturn", {}},
          {"udRemoveAllSpaces", "sRemoveAllSpaces", {}},
          {"udRemoveAllTabs", "sRemoveAllTabs", {}},
          {"udRemoveSpacesTabsAndNewLines", "sRemoveAllSpacesTabsAndNewLines", {}}}},
        {"sPageLines",
         {{"udChangeWrongInsertedReturnsTo",
           "sChangeWrongInsertedReturnsTo",
           {"udChangeWrongInsertedReturnsOption"}},
          {"udRejoinWords", "sRejoinWords", {"udRejoinWordsPages", "udRejoinWordsFootnotes"}},
          {"udUnwrapTerminal", "sUnwrapTerminal", {}},
          {"udProtectStructure", "", {}},
          {"udChangeReturnsTo",
           "sChangeReturnsTo",
           {"udChangeReturnsOption", "udChangeReturnsCustom1", "udChangeReturnsCustom2"}},
          {"udRemoveDuplicateLines",
           "sRemoveDuplicateLines",
           {"udRemoveDuplicateLinesSeparator", "udDuplicatesCustomSeparator"}},
          {"udSort", "sSort", {"udSortOption", "udSortSeparator", "udSortCustomSeparator"}},
          {"udAddPrefix", "sAddPrefix", {"udPrefixTextField"}},
          {"udAddSuffix", "sAddSuffix", {"udSuffixTextField"}}}},
        {"sPageCharacters",
         {{"udCleanCharacters",
           "sCleanCharacters",
           {"udCleanCharactersKeepControls", "udCleanCharactersKeepTags",
            "udCleanCharactersKeepPrivateUse", "udCleanCharactersKeepSoftHyphens",
            "udCleanCharactersKeepVariations", "udCleanCharactersKeepDirections",
            "udCleanCharactersKeepInvisible", "udCleanCharactersKeepLigatures",
            "udCleanCharactersKeepBlanks", "udCleanCharactersNarrow", "udCleanCharactersCompose",
            "udCleanCharactersPlainMarks", "udCleanCharactersMarkdown"}}}},
        {"sPageLetters",
         {{"udRepairEncoding", "sRepairEncoding", {}},
          {"udChangeCaseTo", "sChangeCaseTo", {"udChangeCaseOption"}},
          {"udChangeQuotes",
           "sChangeQuotes",
           {"udChangeQuotesOption", "udChangeQuotesSingleOption", "udChangeQuotesDoubleOption",
            "udChangeQuotesAll"}},
          {"udRemoveSingleQuotes", "sRemoveSingleQuotes", {"udRemoveSingleQuotesAll"}},
          {"udRemoveDoubleQuotes", "sRemoveDoubleQuotes", {"udRemoveDoubleQuotesAll"}},
          {"udChangeEllipsisAndDots", "sChangeEllipsisAndDots", {"udChangeEllipsisAndDotsOption"}},
          {"udRemoveSpaceBeforeDot", "sRemoveSpaceBeforeDot", {}},
          {"udRemoveHyphens", "sRemoveHyphens", {}},
          // Works without the one above, and more thoroughly.
          {"udRemoveHyphensAll", "", {}}}},
        {"sPageMarks",
         {{"udRemoveBullets", "sRemoveBullets", {}},
          {"udRemoveReplyQuotes", "sRemoveReplyQuotes", {}},
          {"udRemoveHTMLTags", "sRemoveHTMLTags", {"udRemoveHTMLTagsJS"}},
          {"udCleanLinks", "sCleanLinks", {"udCleanLinksRules"}},
          {"udInsertYourPattern",
           "sInsertYourPattern",
           {"udInsertYourPatternTextField", "udInsertYourPatternOption"}}}},
        {"sPageReplace", replacements()},
        {"sPageFindReplace", {{"sFindReplaceBool", "sFindReplaceBool", {}, true}}},
        {"sPageStatistics",
         {{"udStatistics",
           "sStatistics",
           {"udStatisticsDefaultPosition", "udStatisticsDelaySwitcher", "udStatisticsValue",
            "udStatisticsRules"}}}},
    };
}

constexpr std::string_view slotName = "sChangeProperty";

// "sChangeProperty3ToTextField" as "sChangePropertyToTextField".
std::string withoutSlot(std::string key) {
    if (key.starts_with(slotName)) {
        const auto first = key.begin() + static_cast<std::ptrdiff_t>(slotName.size());
        key.erase(first, std::find_if_not(first, key.end(), text::isAsciiDigit<char>));
    }
    return key;
}

std::string stringKey(std::string_view settingsKey) {
    const bool cleaningOption = settingsKey.starts_with("ud");
    return cleaningOption ? "s" + std::string(settingsKey.substr(2)) : std::string(settingsKey);
}

} // namespace

const std::vector<PreferencesPage> &preferencesPages() {
    static const std::vector<PreferencesPage> pages = makePages();
    return pages;
}

std::string titleKey(const OptionRow &row) {
    return row.hotKey.empty() ? labelKey(row.key) : row.hotKey;
}

std::string commandText(std::string_view hotKey) {
    return std::string(hotKey == "sStatistics" ? "sCountClipboard" : hotKey);
}

std::string labelKey(std::string_view settingsKey) {
    std::string key = stringKey(settingsKey);
    // The ten check boxes are numbered; the fields beside them need not be.
    return key.ends_with("TextField") ? withoutSlot(std::move(key)) : key;
}

std::string tooltipKey(std::string_view settingsKey) {
    return withoutSlot(stringKey(settingsKey)) + "Tip";
}

} // namespace nerlo::shell
