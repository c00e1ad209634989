#include "storage/SettingsStore.h"

#include <algorithm>

namespace nerlo::storage {

bool SettingsStore::boolForKey(std::string_view key) const {
    const PropertyValue *value = find(key);
    return value && value->boolValue();
}

std::int64_t SettingsStore::integerForKey(std::string_view key) const {
    const PropertyValue *value = find(key);
    return value ? value->integerValue() : 0;
}

std::u16string SettingsStore::stringForKey(std::string_view key) const {
    const PropertyValue *value = find(key);
    return value ? value->stringValue() : std::u16string();
}

const PropertyData *SettingsStore::dataForKey(std::string_view key) const {
    const PropertyValue *value = find(key);
    return value ? value->as<PropertyData>() : nullptr;
}

void SettingsStore::set(std::string_view key, PropertyValue value) {
    const std::string name(key);
    const PropertyValue *before = find(name);
    const bool same = before && *before == value;
    if (!same) {
        values_.set(name, std::move(value));
        changed(name);
        tell({name});
    }
}

void SettingsStore::remove(std::string_view key) {
    const std::string name(key);
    if (values_.remove(name)) {
        changed(name);
        tell({name});
    }
}

SettingsStore::Observation SettingsStore::observe(std::string_view key, Observer observer) {
    Observation observation = add(std::string(key), observer);
    observer();
    return observation;
}

SettingsStore::Observation SettingsStore::observeAll(Observer observer) {
    return add({}, std::move(observer));
}

SettingsStore::Observation SettingsStore::add(std::string key, Observer observer) {
    auto entry = std::make_shared<Entry>(Entry{std::move(key), std::move(observer)});
    std::erase_if(observers_, [](const auto &other) { return other.expired(); });
    observers_.push_back(entry);
    Observation observation;
    observation.alive_ = std::move(entry);
    return observation;
}

void SettingsStore::replaceAll(PropertyDictionary values) {
    std::vector<std::string> keys;
    for (const auto &[key, value] : values_) {
        const PropertyValue *now = values.find(key);
        if (!now || !(*now == value)) {
            keys.push_back(key);
        }
    }
    for (const auto &[key, value] : values) {
        if (!values_.find(key)) {
            keys.push_back(key);
        }
    }
    values_ = std::move(values);
    if (!keys.empty()) {
        tell(keys);
    }
}

// While observers are called they may set values, and add or remove observers. So this walks a copy
// of the list and checks before each call that the observer is still there.
void SettingsStore::tell(const std::vector<std::string> &keys) {
    const auto observers = observers_;
    for (const auto &weak : observers) {
        const auto entry = weak.lock();
        if (entry && (entry->key.empty() || std::ranges::find(keys, entry->key) != keys.end())) {
            entry->observer();
        }
    }
}

} // namespace nerlo::storage
