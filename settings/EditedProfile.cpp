#include "settings/EditedProfile.h"

#include "settings/SettingsKeys.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

using storage::PropertyValue;

namespace {

constexpr auto delayKey = "udStatisticsValue";
constexpr auto onlyOneKey = "sOnlyOneProfile";

PropertyValue stateOf(SettingKind kind, const PropertyValue *value) {
    switch (kind) {
    case SettingKind::Switch:
        return value && value->boolValue() ? 1 : 0;
    case SettingKind::Index:
        return value ? value->integerValue() : 0;
    default:
        return value ? value->stringValue() : std::u16string();
    }
}

} // namespace

void EditedProfile::load(ProfileRecord record) {
    const PropertyValue onlyOne = state(onlyOneKey);
    record_ = std::move(record);
    withoutItem_.clear();
    if (!(state(onlyOneKey) == onlyOne)) {
        record_.set(onlyOneKey, onlyOne);
    }
    // The field of the delay shows a number, whether a number or a text is stored.
    if (const PropertyValue *delay = record_.find(delayKey)) {
        record_.set(delayKey, PropertyValue(delay->integerValue()).stringValue());
    }
}

PropertyValue EditedProfile::state(std::string_view key) const {
    const SettingsKey *row = findKey(key, SettingScope::Profile);
    return stateOf(row ? row->kind : SettingKind::Text, record_.find(key));
}

void EditedProfile::set(std::string_view key, PropertyValue value) {
    record_.set(key, std::move(value));
}

void EditedProfile::choose(std::string_view key, std::int64_t index) {
    withoutItem_.erase(std::string(key));
    if (index < 0) {
        withoutItem_.emplace(key);
    }
    set(key, std::max<std::int64_t>(index, 0));
}

void EditedProfile::complete() {
    for (const SettingsKey &row : profileKeys()) {
        if (withoutItem_.contains(row.key)) {
            set(row.key, -1);
        } else if (row.kind != SettingKind::List) {
            set(row.key, state(row.key));
        }
    }
}

} // namespace nerlo::settings
