#include "settings/SettingsKeys.h"

#include "engine/CleaningOptions.h"
#include "engine/Operations.h"
#include "engine/QuoteLanguages.h"
#include "settings/Migration.h"
#include "settings/OptionLists.h"
#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <type_traits>
#include <vector>

namespace nerlo::settings {

namespace {

using engine::CleaningOptions;
using storage::PropertyDictionary;
using storage::PropertyValue;

// Profile keys that the engine has no use for, each with the engine's key that it follows.
struct ProfileOnly {
    std::string_view after;
    std::string_view key;
    SettingKind kind;
    std::string_view group;
    std::string_view meaning;
};
constexpr ProfileOnly profileOnly[] = {
    {"", "profileName", SettingKind::Text, "profile", "the profile's name"},
    {"udStatistics", "udStatisticsDelaySwitcher", SettingKind::Switch, "statistics",
     "the popup closes by itself"},
    {"udDuplicatesCustomSeparator", "udStatisticsValue", SettingKind::Text, "statistics",
     "seconds before the popup closes"},
    {"udRemoveDuplicateLinesSeparator", "udStatisticsDefaultPosition", SettingKind::Index,
     "statistics", "where the popup appears"},
};

struct StoreKey {
    std::string_view key;
    SettingKind kind;
    std::string_view group;
    std::string_view meaning;
    std::optional<bool> firstStart = {};
};
constexpr StoreKey storeKeys[] = {
    {"stayOnTop", SettingKind::Boolean, "application", "the preferences stay above other windows",
     false},
    // The misspelling is the key.
    {"lunchOnStartup", SettingKind::Boolean, "application", "start at login", false},
    {"automaticallyClearFormatting", SettingKind::Boolean, "application",
     "clean on every change of the clipboard", false},
    {"cleanAtOnce", SettingKind::Boolean, "application",
     "automatic cleaning follows a copy without a delay"},
    {"keepNoOriginal", SettingKind::Boolean, "application",
     "a clean asks for the text alone, and nothing can be restored"},
    {"showInMenubar", SettingKind::Boolean, "application", "show the status-bar item", true},
    {"runInTheBackground", SettingKind::Boolean, "application",
     "neither a status-bar item nor an entry in the taskbar"},
    {"disableAutomaticallyClearFormatting", SettingKind::Boolean, "application",
     "leave copies from spreadsheets alone"},
    {copyTableKey, SettingKind::List, "profile", "which profile cleans which copy"},
    {"preferencesPage", SettingKind::Integer, "application", "the page that is open"},
    {"preferencesHeight", SettingKind::Integer, "application", "height of the window"},
    {"firstRunPreferences", SettingKind::Boolean, "start", "the first start has been handled"},
    {"firstRunPreferencesProfiles", SettingKind::Boolean, "start", "there are profiles"},
    {settingsVersionKey, SettingKind::Integer, "start",
     "the number of the last change of their form; 1 or none where it is absent"},
    {"firstRunTips", SettingKind::Boolean, "start", "show the tips at each start"},
    {"updateReleaseNotes3_1", SettingKind::Boolean, "start", "the release notes have been shown"},
    {selectedProfileKey, SettingKind::Integer, "profile", "place of the selected profile"},
    {"udStatisticsValue", SettingKind::Integer, "statistics",
     "the selected profile's seconds before the popup closes"},
    {"udStatisticsDelaySwitcher", SettingKind::Integer, "statistics",
     "whether the selected profile's popup closes by itself"},
    {"udStatisticsDefaultPosition", SettingKind::Integer, "statistics",
     "where the selected profile's popup appears"},
    {"AppleLanguages", SettingKind::TextList, "application",
     "the user's languages, before those of the desktop"},
};

// What a first start writes, in its own order, which is not the profile's.
struct FirstStart {
    std::string_view key;
    int value;
};
constexpr int byLanguage = -1;
constexpr FirstStart firstStartValues[] = {
    {"udSortOption", 0},
    {"udSortSeparator", 0},
    {"udRemoveDuplicateLinesSeparator", 0},
    {"udStatisticsValue", 3},
    // The last item, "Cursor position", however many there are.
    {"udStatisticsDefaultPosition", static_cast<int>(popupPositionCount) - 1},
    {"udChangeTabsAnd4SpacesOption", 0},
    {"udChangeEllipsisAndDotsOption", 0},
    {"udChangeWrongInsertedReturnsOption", 1},
    {"udChangeReturnsOption", 1},
    {"udChangeCaseOption", 0},
    {"udChangeQuotesOption", 0},
    {"udChangeQuotesSingleOption", byLanguage},
    {"udChangeQuotesDoubleOption", byLanguage},
    {"udInsertYourPatternOption", 0},
    {"udStatistics", 1},
    {"udStatisticsDelaySwitcher", 1},
    {"udChangeMultipleSpacesToSingleSpace", 1},
    {"udRemoveSpaceBeforeDot", 1},
    {"udRemoveSpaceBeforeAfterTab", 1},
    {"udRemoveSpaceBeforeAfterReturn", 1},
    {"udChangeWrongInsertedReturnsTo", 1},
    {"udChangeReturnsTo", 1},
    {"udRemoveSpacesBeforeAndAfterText", 1},
    {"udChangeQuotes", 1},
    {"udRemoveBullets", 1},
    {"udRemoveReplyQuotes", 1},
};

template <class Field>
constexpr SettingKind kindOf() {
    using Value = std::remove_cvref_t<decltype(std::declval<CleaningOptions>().*Field{})>;
    if constexpr (std::is_same_v<Value, bool> ||
                  std::is_same_v<Value, CleaningOptions::PerSlot<bool>>) {
        return SettingKind::Switch;
    } else if constexpr (std::is_same_v<Value, std::int64_t>) {
        return SettingKind::Index;
    } else if constexpr (std::is_same_v<Value, CleaningOptions::List>) {
        return SettingKind::List;
    } else {
        return SettingKind::Text;
    }
}

std::optional<PropertyValue> firstStartOf(std::string_view key) {
    const auto row = std::ranges::find(firstStartValues, key, &FirstStart::key);
    return row == std::end(firstStartValues) || row->value == byLanguage
               ? std::nullopt
               : std::optional<PropertyValue>(row->value);
}

struct Table {
    std::vector<SettingsKey> keys;
    std::size_t profileCount = 0;
};

Table makeTable() {
    Table table;
    const auto addProfileOnly = [&](std::string_view after) {
        for (const ProfileOnly &row : profileOnly) {
            if (row.after == after) {
                table.keys.push_back({std::string(row.key), row.kind, SettingScope::Profile,
                                      row.group, std::string(row.meaning), firstStartOf(row.key)});
            }
        }
    };
    addProfileOnly("");
    table.keys.front().firstStart = u"default";
    for (const engine::OptionField &field : engine::optionFields()) {
        const SettingKind kind =
            std::visit([](auto member) { return kindOf<decltype(member)>(); }, field.field);
        for (std::size_t slot = 1; slot <= (field.perSlot() ? engine::replaceSlots : 1); ++slot) {
            std::string meaning(field.meaning);
            if (const auto place = meaning.find('%'); place != std::string::npos) {
                meaning.replace(place, 1, std::to_string(slot));
            }
            const std::string key = field.keyOf(slot);
            table.keys.push_back(
                {key, kind, SettingScope::Profile, field.group, meaning, firstStartOf(key)});
        }
        addProfileOnly(field.key);
    }
    table.profileCount = table.keys.size();
    for (const StoreKey &row : storeKeys) {
        table.keys.push_back(
            {std::string(row.key), row.kind, SettingScope::Store, row.group,
             std::string(row.meaning),
             row.firstStart ? std::optional<PropertyValue>(*row.firstStart) : std::nullopt});
    }
    for (const CommandHotKey &command : commandHotKeys) {
        table.keys.push_back({std::string(command.key), SettingKind::HotKey, SettingScope::Store,
                              "hot keys", std::string(command.meaning), std::nullopt});
    }
    for (const engine::Operation &operation : engine::operations()) {
        table.keys.push_back({std::string(operation.hotKey), SettingKind::HotKey,
                              SettingScope::Store, "hot keys", std::string(operation.summary),
                              std::nullopt});
    }
    return table;
}

const Table &table() {
    static const Table instance = makeTable();
    return instance;
}

ParsedSetting parseSwitch(std::string_view text, bool asBoolean) {
    for (const std::string_view word : {"1", "on", "yes", "true"}) {
        if (text == word) {
            return {asBoolean ? PropertyValue(true) : PropertyValue(1), {}};
        }
    }
    for (const std::string_view word : {"0", "off", "no", "false"}) {
        if (text == word) {
            return {asBoolean ? PropertyValue(false) : PropertyValue(0), {}};
        }
    }
    return {std::nullopt, "neither on nor off"};
}

ParsedSetting parseInteger(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return {std::nullopt, "not a whole number"};
    }
    return {number, {}};
}

ParsedSetting parseText(std::string_view text) {
    auto [utf16, invalidAt] = text::utf8ToUtf16(text);
    if (invalidAt) {
        return {std::nullopt, "not UTF-8"};
    }
    return {PropertyValue(std::move(utf16)), {}};
}

ParsedSetting parseTexts(std::string_view text) {
    storage::PropertyArray texts;
    while (!text.empty()) {
        const auto comma = std::min(text.find(','), text.size());
        ParsedSetting item = parseText(text.substr(0, comma));
        if (!item.value) {
            return item;
        }
        texts.push_back(std::move(*item.value));
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return {PropertyValue(std::move(texts)), {}};
}

} // namespace

std::span<const SettingsKey> settingsKeys() {
    return table().keys;
}

std::span<const SettingsKey> profileKeys() {
    return settingsKeys().first(table().profileCount);
}

const SettingsKey *findKey(std::string_view key) {
    const auto row = std::ranges::find(settingsKeys(), key, &SettingsKey::key);
    return row == settingsKeys().end() ? nullptr : &*row;
}

const SettingsKey *findKey(std::string_view key, SettingScope scope) {
    const auto row = std::ranges::find_if(settingsKeys(), [&](const SettingsKey &candidate) {
        return candidate.scope == scope && candidate.key == key;
    });
    return row == settingsKeys().end() ? nullptr : &*row;
}

std::string profileHotKey(std::u16string_view name) {
    return std::string(profileHotKeyPrefix) + text::utf16ToUtf8(name);
}

PropertyDictionary firstStartProfile(std::string_view language) {
    PropertyDictionary profile{{"profileName", u"default"}};
    for (const FirstStart &row : firstStartValues) {
        profile.set(row.key, row.value);
    }
    auto &quotes = engine::nrDefaultQuotesLanguage::sharedInstance();
    quotes.setDefaultQuotesForLanguage(language);
    profile.set("udChangeQuotesSingleOption", quotes.getDefaultQuoteSingle());
    profile.set("udChangeQuotesDoubleOption", quotes.getDefaultQuoteDouble());
    return profile;
}

ParsedSetting parseSetting(const SettingsKey &key, std::string_view text) {
    switch (key.kind) {
    case SettingKind::Switch:
        return parseSwitch(text, false);
    case SettingKind::Boolean:
        return parseSwitch(text, true);
    case SettingKind::Index:
    case SettingKind::Integer:
        return parseInteger(text);
    case SettingKind::Text:
        return parseText(text);
    case SettingKind::TextList:
        return parseTexts(text);
    case SettingKind::List:
        return {std::nullopt, "a list of rules can only come from a property list"};
    case SettingKind::HotKey:
        return {std::nullopt, "a hot key can only be recorded in the preferences"};
    }
    return {std::nullopt, "of an unknown kind"};
}

std::string_view nameOfKind(SettingKind kind) {
    switch (kind) {
    case SettingKind::Switch:
        return "switch";
    case SettingKind::Text:
        return "text";
    case SettingKind::Index:
        return "index";
    case SettingKind::List:
        return "rules";
    case SettingKind::Boolean:
        return "boolean";
    case SettingKind::Integer:
        return "integer";
    case SettingKind::TextList:
        return "texts";
    case SettingKind::HotKey:
        return "hot key";
    }
    return "";
}

} // namespace nerlo::settings
