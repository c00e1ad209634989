#include "settings/Migration.h"

#include "engine/CleaningOptions.h"
#include "settings/nrPreferences.h"

#include <string>

namespace nerlo::settings {

namespace {

// The options that versions without profiles had, in the order in which they are carried over; "%"
// stands for each of the ten replacements. Options that came later were never in a store.
constexpr std::string_view oldSwitches[] = {
    "udSort",
    "udRemoveDuplicateLines",
    "udStatistics",
    "udStatisticsDelaySwitcher",
    "udChangeMultipleSpacesToSingleSpace",
    "udChangeMultipleTabsToSingleTab",
    "udChangeTabsAnd4Spaces",
    "udChangeEllipsisAndDots",
    "udRemoveSpaceBeforeDot",
    "udRemoveSpaceBeforeAfterTab",
    "udRemoveSpaceBeforeAfterReturn",
    "udRemoveAllSpaces",
    "udRemoveAllTabs",
    "udRemoveSpacesTabsAndNewLines",
    "udChangeWrongInsertedReturnsTo",
    "udChangeReturnsTo",
    "udRemoveSpacesBeforeAndAfterText",
    "udChangeCaseTo",
    "udChangeQuotes",
    "udChangeQuotesAll",
    "udRemoveSingleQuotes",
    "udRemoveSingleQuotesAll",
    "udRemoveDoubleQuotes",
    "udRemoveDoubleQuotesAll",
    "udRemoveBullets",
    "udRemoveReplyQuotes",
    "udRemoveHTMLTags",
    "udRemoveHTMLTagsJS",
    "udInsertYourPattern",
    "udChangeProperty%",
};
constexpr std::string_view oldTexts[] = {
    "udSortCustomSeparator",
    "udDuplicatesCustomSeparator",
    "udStatisticsValue",
    "udChangeReturnsCustom1",
    "udChangeReturnsCustom2",
    "udInsertYourPatternTextField",
    "udChangeProperty%ChangeTextField",
    "udChangeProperty%ToTextField",
};
constexpr std::string_view oldChoices[] = {
    "udSortOption",
    "udSortSeparator",
    "udRemoveDuplicateLinesSeparator",
    "udStatisticsDefaultPosition",
    "udChangeTabsAnd4SpacesOption",
    "udChangeEllipsisAndDotsOption",
    "udChangeWrongInsertedReturnsOption",
    "udChangeReturnsOption",
    "udChangeCaseOption",
    "udChangeQuotesOption",
    "udChangeQuotesSingleOption",
    "udChangeQuotesDoubleOption",
    "udInsertYourPatternOption",
};

void forEachKey(std::span<const std::string_view> rows,
                const std::function<void(const std::string &key)> &carryOver) {
    for (const std::string_view row : rows) {
        const auto place = row.find('%');
        if (place == std::string_view::npos) {
            carryOver(std::string(row));
            continue;
        }
        for (std::size_t slot = 1; slot <= engine::replaceSlots; ++slot) {
            carryOver(std::string(row).replace(place, 1, std::to_string(slot)));
        }
    }
}

} // namespace

const std::vector<MigrationStep> &migrationSteps() {
    static const std::vector<MigrationStep> steps = {
        {1, [](auto &, nrPreferences &preferences) { preferences.convertAfterUpdate(); }},
    };
    return steps;
}

ProfileRecord migratedProfile(const storage::SettingsStore &store) {
    ProfileRecord profile{{"profileName", u"profile 1"}};
    forEachKey(oldSwitches,
               [&](const std::string &key) { profile.set(key, store.boolForKey(key)); });
    forEachKey(oldTexts,
               [&](const std::string &key) { profile.set(key, store.stringForKey(key)); });
    forEachKey(oldChoices,
               [&](const std::string &key) { profile.set(key, store.integerForKey(key)); });
    return profile;
}

} // namespace nerlo::settings
