#include "settings/Listings.h"

#include "engine/Operations.h"
#include "settings/OptionLists.h"
#include "settings/ReadyProfiles.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace nerlo::settings {

namespace {

nlohmann::ordered_json jsonOf(const storage::PropertyValue *value) {
    if (!value) {
        return nullptr;
    }
    if (const bool *boolean = value->as<bool>()) {
        return *boolean;
    }
    if (const std::int64_t *integer = value->as<std::int64_t>()) {
        return *integer;
    }
    return text::utf16ToUtf8(value->stringValue());
}

} // namespace

const storage::PropertyValue *firstStartValue(const SettingsKey &row,
                                              const storage::PropertyDictionary &profile) {
    if (row.scope == SettingScope::Profile) {
        return profile.find(row.key);
    }
    return row.firstStart ? &*row.firstStart : nullptr;
}

std::map<std::string, std::vector<std::string>, std::less<>> itemsByKey() {
    std::map<std::string, std::vector<std::string>, std::less<>> result;
    for (const OptionList &list : optionLists()) {
        std::vector<std::string> &items = result[std::string(list.key)];
        for (const std::u16string &item : list.items) {
            items.push_back(text::utf16ToUtf8(item));
        }
    }
    return result;
}

std::string operationsJson() {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const engine::Operation &operation : engine::operations()) {
        list.push_back({{"index", operation.index},
                        {"name", operation.name},
                        {"hotKey", operation.hotKey},
                        {"summary", operation.summary}});
    }
    return list.dump(2) + "\n";
}

std::string readyProfilesJson() {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const ReadyProfile &ready : readyProfiles()) {
        list.push_back({{"name", ready.id}, {"summary", ready.summary}});
    }
    return list.dump(2) + "\n";
}

std::string keysJson(const storage::PropertyDictionary &firstStart) {
    const auto items = itemsByKey();
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const SettingsKey &row : settingsKeys()) {
        nlohmann::ordered_json object = {
            {"key", row.key},
            {"kind", nameOfKind(row.kind)},
            {"scope", row.scope == SettingScope::Profile ? "profile" : "store"},
            {"group", row.group},
            {"meaning", row.meaning},
            {"firstStart", jsonOf(firstStartValue(row, firstStart))},
        };
        if (const auto found = items.find(row.key); found != items.end()) {
            object["items"] = found->second;
        }
        list.push_back(std::move(object));
    }
    return list.dump(2) + "\n";
}

} // namespace nerlo::settings
