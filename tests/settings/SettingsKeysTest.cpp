#include "settings/SettingsKeys.h"

#include "engine/Operations.h"
#include "settings/OptionLists.h"
#include "settings/ReadyProfiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace nerlo::settings {
namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

std::size_t place(std::string_view key) {
    const SettingsKey *row = findKey(key);
    EXPECT_NE(row, nullptr) << key;
    return static_cast<std::size_t>(row - settingsKeys().data());
}

TEST(SettingsKeys, NoKeyTwiceInAScopeAndTheProfileFirst) {
    std::set<std::pair<SettingScope, std::string>> seen;
    for (const SettingsKey &row : settingsKeys()) {
        EXPECT_TRUE(seen.emplace(row.scope, row.key).second) << row.key;
        EXPECT_FALSE(row.meaning.empty()) << row.key;
        EXPECT_EQ(row.key.find('%'), std::string::npos) << row.key;
    }
    EXPECT_EQ(findKey("sFindReplaceBool")->kind, SettingKind::Switch);
    EXPECT_EQ(findKey("sFindReplaceBool", SettingScope::Store)->kind, SettingKind::HotKey);
    EXPECT_EQ(findKey("udStatisticsValue")->kind, SettingKind::Text);
    EXPECT_EQ(findKey("udStatisticsValue", SettingScope::Store)->kind, SettingKind::Integer);
    EXPECT_EQ(findKey("nothing"), nullptr);
    EXPECT_EQ(findKey("sSort", SettingScope::Profile), nullptr);
}

TEST(SettingsKeys, KeysOfSettingsAloneStandAmongTheEngines) {
    EXPECT_EQ(place("udStatisticsDelaySwitcher"), place("udStatistics") + 1);
    EXPECT_EQ(place("udStatisticsValue"), place("udDuplicatesCustomSeparator") + 1);
    EXPECT_EQ(place("udChangeProperty10"), place("udChangeProperty1") + 9);
    EXPECT_EQ(findKey("udChangeProperty10ToTextField")->meaning, "replacement of pair 10");
    for (const engine::Operation &operation : engine::operations()) {
        EXPECT_NE(findKey(operation.hotKey, SettingScope::Store), nullptr) << operation.hotKey;
    }
}

// Other programs read the file, so neither the keys nor their order may change unseen.
TEST(SettingsKeys, AFirstStartWritesProfileKeysAndTheQuotesOfItsLanguage) {
    const PropertyDictionary norwegian = firstStartProfile("nb");
    std::string written;
    for (const auto &[key, value] : norwegian) {
        written += std::string(key) +
                   (key == "profileName" ? "" : std::to_string(value.integerValue())) + ' ';
    }
    EXPECT_EQ(written,
              "profileName udSortOption0 udSortSeparator0 udRemoveDuplicateLinesSeparator0 "
              "udStatisticsValue3 udStatisticsDefaultPosition5 udChangeTabsAnd4SpacesOption0 "
              "udChangeEllipsisAndDotsOption0 udChangeWrongInsertedReturnsOption1 "
              "udChangeReturnsOption1 udChangeCaseOption0 udChangeQuotesOption0 "
              "udChangeQuotesSingleOption1 udChangeQuotesDoubleOption4 udInsertYourPatternOption0 "
              "udStatistics1 udStatisticsDelaySwitcher1 udChangeMultipleSpacesToSingleSpace1 "
              "udRemoveSpaceBeforeDot1 udRemoveSpaceBeforeAfterTab1 "
              "udRemoveSpaceBeforeAfterReturn1 udChangeWrongInsertedReturnsTo1 "
              "udChangeReturnsTo1 udRemoveSpacesBeforeAndAfterText1 udChangeQuotes1 "
              "udRemoveBullets1 udRemoveReplyQuotes1 ");
    for (const auto &[key, value] : norwegian) {
        const SettingsKey *row = findKey(key, SettingScope::Profile);
        ASSERT_NE(row, nullptr) << key;
        if (!key.starts_with("udChangeQuotesSingle") && !key.starts_with("udChangeQuotesDouble")) {
            EXPECT_EQ(row->firstStart, value) << key;
        }
    }
    // A region that the language table does not list falls to 0.
    EXPECT_EQ(*firstStartProfile("de-AT").find("udChangeQuotesSingleOption"), PropertyValue(0));
}

TEST(ReadyProfiles, HoldValuesOfKnownKeysAlone) {
    for (const ReadyProfile &ready : readyProfiles()) {
        EXPECT_EQ(findReadyProfile(ready.id), &ready);
        const ProfileRecord record = readyRecord(ready, u"A name");
        EXPECT_EQ(profileNameOf(record), u"A name");
        for (const auto &[key, value] : record) {
            const SettingsKey *row = findKey(key, SettingScope::Profile);
            ASSERT_NE(row, nullptr) << key;
            EXPECT_EQ(row->kind == SettingKind::List, value.as<PropertyArray>() != nullptr) << key;
        }
    }
    EXPECT_EQ(findReadyProfile(u"Gentle"), nullptr);
}

TEST(SettingsKeys, ReadsValuesFromACommandLine) {
    struct Row {
        const char *key;
        const char *text;
        std::optional<PropertyValue> value;
    };
    const Row rows[] = {
        {"udSort", "on", 1},
        {"udSort", "false", 0},
        {"udSort", "maybe", {}},
        {"udSort", "", {}},
        {"stayOnTop", "yes", true},
        {"udSortOption", "7", 7},
        {"udSortOption", "-1", -1},
        {"udSortOption", "7x", {}},
        {"udSortOption", "", {}},
        {"udSortOption", "99999999999999999999", {}},
        {"udPrefixTextField", "\xC3\xA9=", u"\xE9="},
        {"udPrefixTextField", "", u""},
        {"udPrefixTextField", "\xFF", {}},
        {"AppleLanguages", "de,en", PropertyArray{u"de", u"en"}},
        {"sFindAndReplaceItems", "x", {}},
        {"sSort", "x", {}},
    };
    for (const Row &row : rows) {
        const ParsedSetting parsed = parseSetting(*findKey(row.key), row.text);
        EXPECT_EQ(parsed.value, row.value) << row.key << "=" << row.text;
        EXPECT_EQ(parsed.error.empty(), row.value.has_value()) << row.key << "=" << row.text;
    }
}

TEST(OptionLists, OneForEveryIndex) {
    const std::vector<OptionList> lists = optionLists();
    std::vector<std::string> listed;
    for (const OptionList &list : lists) {
        listed.emplace_back(list.key);
    }
    std::vector<std::string> indexKeys;
    for (const SettingsKey &row : profileKeys()) {
        if (row.kind == SettingKind::Index) {
            indexKeys.push_back(row.key);
        }
    }
    EXPECT_EQ(listed, indexKeys);
    EXPECT_EQ(lists[0].items.size(), 8u);
    EXPECT_EQ(lists[1].items[3], u"\",\"");
    EXPECT_EQ(lists[1].items[sortCustomSeparatorPosition], u"Custom");
    EXPECT_EQ(lists[3].items.back(), u"Cursor position");
    EXPECT_EQ(lists[10].items[5], u"‹ … ›");
    EXPECT_EQ(lists[11].items[8], u"\"…\"");
}

TEST(OptionLists, TranslationsAreSplitAndMayNameAllTenReturns) {
    const auto lists = optionLists([](std::u16string_view key) -> std::u16string {
        if (key == u"none, single return, double returns, space") {
            return u"a, b, c, d, e, f, g, h, i, j";
        }
        return key == u"delete, search" ? u"löschen, suchen" : std::u16string(key);
    });
    EXPECT_EQ(lists[7].items.size(), 10u);
    EXPECT_EQ(lists[7].items[9], u"j");
    EXPECT_EQ(lists.back().items[1], u"suchen");
}

} // namespace
} // namespace nerlo::settings
