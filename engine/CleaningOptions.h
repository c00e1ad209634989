// The snapshot of every cleaning option.
//
// A snapshot is filled as a whole and never changed afterwards; the engine shares it between
// threads as std::shared_ptr<const CleaningOptions>.
#pragma once

#include "storage/PropertyValue.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace nerlo::engine {

class LinkRules;

inline constexpr std::size_t replaceSlots = 10;

struct CleaningOptions {
    using Text = storage::PropertyValue; // a string, but the settings may hold any other type
    using List = std::optional<storage::PropertyValue>;
    template <class T>
    using PerSlot = std::array<T, replaceSlots>;

    bool kCheckSetters = false; // whether the snapshot was ever filled

    bool udSort = false;
    bool udRemoveDuplicateLines = false;
    bool udStatistics = false;
    bool udChangeMultipleSpacesToSingleSpace = false;
    bool udChangeMultipleTabsToSingleTab = false;
    bool udChangeTabsAnd4Spaces = false;
    bool udChangeEllipsisAndDots = false;
    bool udRemoveSpaceBeforeDot = false;
    bool udRemoveSpaceBeforeAfterTab = false;
    bool udRemoveSpaceBeforeAfterReturn = false;
    bool udRemoveAllSpaces = false;
    bool udRemoveAllTabs = false;
    bool udRemoveSpacesTabsAndNewLines = false;
    bool udRemoveHyphens = false;
    bool udRemoveHyphensAll = false;
    bool udAddPrefix = false;
    bool udAddSuffix = false;
    bool udChangeWrongInsertedReturnsTo = false;
    bool udChangeReturnsTo = false;
    bool udRemoveSpacesBeforeAndAfterText = false;
    bool udChangeCaseTo = false;
    bool udChangeQuotes = false;
    bool udChangeQuotesAll = false;
    bool udRemoveSingleQuotes = false;
    bool udRemoveSingleQuotesAll = false;
    bool udRemoveDoubleQuotes = false;
    bool udRemoveDoubleQuotesAll = false;
    bool udRemoveBullets = false;
    bool udRemoveReplyQuotes = false;
    bool udRemoveHTMLTags = false;
    bool udRemoveHTMLTagsJS = false;
    bool udInsertYourPattern = false;
    bool udUnwrapTerminal = false;
    bool udRepairEncoding = false;
    bool udProtectStructure = false;
    bool udCleanCharacters = false;
    bool udCleanCharactersKeepControls = false;
    bool udCleanCharactersKeepTags = false;
    bool udCleanCharactersKeepPrivateUse = false;
    bool udCleanCharactersKeepSoftHyphens = false;
    bool udCleanCharactersKeepVariations = false;
    bool udCleanCharactersKeepDirections = false;
    bool udCleanCharactersKeepInvisible = false;
    bool udCleanCharactersKeepLigatures = false;
    bool udCleanCharactersKeepBlanks = false;
    bool udCleanCharactersNarrow = false;
    bool udCleanCharactersCompose = false;
    bool udCleanCharactersPlainMarks = false;
    bool udCleanCharactersMarkdown = false;
    bool udRejoinWords = false;
    bool udRejoinWordsPages = false;
    bool udRejoinWordsFootnotes = false;
    bool udCleanLinks = false;
    bool udStatisticsRules = false;
    PerSlot<bool> udChangeProperty{};

    Text udSortCustomSeparatorTextField = u"";
    Text udDuplicatesCustomSeparatorTextField = u"";
    Text udChangeReturnsCustom1 = u"";
    Text udChangeReturnsCustom2 = u"";
    Text udInsertYourPatternTextField = u"";
    Text udPrefixTextField = u"";
    Text udSuffixTextField = u"";
    Text udCleanLinksRules = u"";
    PerSlot<Text> udChangePropertyChangeTextField{u"", u"", u"", u"", u"", u"", u"", u"", u"", u""};
    PerSlot<Text> udChangePropertyToTextField{u"", u"", u"", u"", u"", u"", u"", u"", u"", u""};

    std::int64_t udSortOption = 0;
    std::int64_t udSortSeparator = 0;
    std::int64_t udRemoveDuplicateLinesSeparator = 0;
    std::int64_t udChangeTabsAnd4SpacesOption = 0;
    std::int64_t udChangeEllipsisAndDotsOption = 0;
    std::int64_t udChangeWrongInsertedReturnsOption = 0;
    std::int64_t udChangeReturnsOption = 0;
    std::int64_t udChangeCaseOption = 0;
    std::int64_t udChangeQuotesOption = 0;
    std::int64_t udChangeQuotesSingleOption = 0;
    std::int64_t udChangeQuotesDoubleOption = 0;
    std::int64_t udInsertYourPatternOption = 0;

    List udFindAndReplaceItems;        // the list shared by all profiles
    List udFindAndReplaceItemsProfile; // the selected profile's own
    bool udOnlyOneProfile = false;     // the shared list is used
    bool udFindReplaceBool = false;

    // What stands in the file that udCleanLinksRules names, for those who have read it. No key
    // fills it.
    std::shared_ptr<const LinkRules> linkRules;

    // Overwrites every field that has a key: one that is missing gives false, "", 0 or no list.
    void setAllBools(const storage::PropertyDictionary &dictionary);

    bool operator==(const CleaningOptions &) const = default;
};

// One settings key that the snapshot reads, with the field it fills. A key with "%" stands for ten
// keys, one per slot, with 1 to 10 in its place; its field is an array.
struct OptionField {
    template <class T>
    using Field = T CleaningOptions::*;

    std::string_view key;
    std::variant<Field<bool>, Field<CleaningOptions::Text>, Field<std::int64_t>,
                 Field<CleaningOptions::List>, Field<CleaningOptions::PerSlot<bool>>,
                 Field<CleaningOptions::PerSlot<CleaningOptions::Text>>>
        field;
    std::string_view group;   // English: "quotes"
    std::string_view meaning; // one English line; "%" is the slot's number

    bool perSlot() const { return key.find('%') != std::string_view::npos; }
    // The key of `slot`, counted from 1; the key itself when the field is not per slot.
    std::string keyOf(std::size_t slot) const;
};

// In the order in which a profile is written.
std::span<const OptionField> optionFields();

} // namespace nerlo::engine
