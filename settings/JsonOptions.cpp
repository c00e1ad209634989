#include "settings/JsonOptions.h"

#include "settings/JsonText.h"
#include "settings/OptionsError.h"
#include "settings/SettingsKeys.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>

namespace nerlo::settings {

namespace {

using nlohmann::json;
using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

[[noreturn]] void refuse(const std::string &key, const std::string &why) {
    throw OptionsError("key " + json(key).dump() + ": " + why);
}

// Each of these returns nothing for a value of another kind.
std::optional<PropertyValue> switchOf(const json &value) {
    if (value.is_boolean()) {
        return value.get<bool>();
    }
    return value == 0 || value == 1 ? std::optional<PropertyValue>(value == 1) : std::nullopt;
}

std::optional<PropertyValue> integerOf(const json &value) {
    const bool fits = value.is_number_integer() &&
                      (!value.is_number_unsigned() || value.get<std::uint64_t>() <= INT64_MAX);
    return fits ? std::optional<PropertyValue>(value.get<std::int64_t>()) : std::nullopt;
}

std::optional<PropertyValue> textOf(const json &value) {
    return value.is_string()
               ? std::optional<PropertyValue>(textOfJson(value.get_ref<const std::string &>()))
               : std::nullopt;
}

PropertyDictionary ruleOf(const std::string &key, const json &rule, std::size_t number) {
    const std::string place = " of rule " + std::to_string(number);
    if (!rule.is_object()) {
        refuse(key, "rule " + std::to_string(number) + " is not an object");
    }
    PropertyDictionary result;
    for (const auto &[name, value] : rule.items()) {
        const bool isText = name == "find" || name == "replace";
        if (!isText && name != "checkbox") {
            refuse(key, "unknown member " + jsonOfText(textOfJson(name)) + place);
        }
        const auto member = isText ? textOf(value) : switchOf(value);
        if (!member) {
            refuse(key, json(name).dump() + place +
                            (isText ? " is not a string" : " is neither true nor false"));
        }
        result.set(name, *member);
    }
    return result;
}

PropertyArray rulesOf(const std::string &key, const json &value) {
    if (!value.is_array()) {
        refuse(key, "not an array of rules");
    }
    PropertyArray rules;
    for (const json &rule : value) {
        rules.push_back(ruleOf(key, rule, rules.size() + 1));
    }
    return rules;
}

std::optional<PropertyValue> textsOf(const json &value) {
    PropertyArray texts;
    for (const json &item : value) {
        const auto text = textOf(item);
        if (!text) {
            return std::nullopt;
        }
        texts.push_back(*text);
    }
    return value.is_array() ? std::optional<PropertyValue>(std::move(texts)) : std::nullopt;
}

struct Converted {
    std::optional<PropertyValue> value;
    const char *otherwise; // why there is none
};

Converted convert(const SettingsKey &key, const json &value) {
    switch (key.kind) {
    case SettingKind::Switch:
    case SettingKind::Boolean:
        return {switchOf(value), "neither true nor false"};
    case SettingKind::Index:
    case SettingKind::Integer:
        return {integerOf(value), "not a whole number"};
    case SettingKind::Text:
        // Some texts hold a number, and a first start writes them as one.
        if (key.firstStart && key.firstStart->as<std::int64_t>() && value.is_number()) {
            return {integerOf(value), "not a whole number"};
        }
        return {textOf(value), "not a string"};
    case SettingKind::List:
        return {rulesOf(key.key, value), ""};
    case SettingKind::TextList:
        return {textsOf(value), "not an array of strings"};
    case SettingKind::HotKey:
        break;
    }
    return {std::nullopt, "a hot key can only be recorded in the preferences"};
}

json parsedJson(std::string_view bytes) {
    std::string room;
    try {
        return json::parse(withMarkedSurrogates(bytes, room));
    } catch (const json::parse_error &error) {
        if (const auto at = text::utf8ToUtf16(bytes).invalidAt) {
            throw OptionsError("invalid UTF-8 at byte " + std::to_string(*at));
        }
        // The library counts the bytes that it has read.
        throw OptionsError("invalid JSON at byte " +
                           std::to_string(std::max<std::size_t>(error.byte, 1) - 1));
    } catch (const json::exception &) {
        throw OptionsError("a number is out of range");
    }
}

} // namespace

PropertyValue settingFromJson(const SettingsKey &key, const json &value) {
    auto [converted, otherwise] = convert(key, value);
    if (!converted) {
        refuse(key.key, otherwise);
    }
    return std::move(*converted);
}

PropertyDictionary optionsFromJson(const json &object) {
    if (!object.is_object()) {
        throw OptionsError("\"options\" is not an object");
    }
    PropertyDictionary options;
    for (const auto &[key, value] : object.items()) {
        const SettingsKey *row = findKey(key);
        if (!row) {
            throw OptionsError("unknown key " + jsonOfText(textOfJson(key)));
        }
        options.set(key, settingFromJson(*row, value));
    }
    return options;
}

PropertyDictionary parseOptions(std::string_view json) {
    return optionsFromJson(parsedJson(json));
}

} // namespace nerlo::settings
