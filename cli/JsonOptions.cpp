#include "cli/JsonOptions.h"

#include "cli/Failure.h"
#include "settings/SettingsKeys.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace nerlo::cli {

namespace {

using nlohmann::json;
using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

constexpr int deepest = 4; // a list of rules has two levels

[[noreturn]] void refuse(const std::string &key, const char *why) {
    throw Failure(ExitStatus::unusableArguments, "key " + json(key).dump() + ": " + why);
}

PropertyValue valueFromJson(const std::string &key, const json &value, int depth) {
    if (depth > deepest) {
        refuse(key, "nested too deep");
    }
    switch (value.type()) {
    case json::value_t::boolean:
        return value.get<bool>();
    case json::value_t::number_integer:
        return value.get<std::int64_t>();
    case json::value_t::number_unsigned:
        if (value.get<std::uint64_t>() > INT64_MAX) {
            refuse(key, "number out of range");
        }
        return value.get<std::int64_t>();
    case json::value_t::string:
        return text::utf8ToUtf16(value.get_ref<const std::string &>()).text;
    case json::value_t::array: {
        PropertyArray array;
        for (const json &item : value) {
            array.push_back(valueFromJson(key, item, depth + 1));
        }
        return array;
    }
    case json::value_t::object: {
        PropertyDictionary dictionary;
        for (const auto &[name, item] : value.items()) {
            dictionary.set(name, valueFromJson(key, item, depth + 1));
        }
        return dictionary;
    }
    default:
        refuse(key, "null and fractions are no settings");
    }
}

} // namespace

storage::PropertyValue settingFromJson(const std::string &key, const json &value) {
    return valueFromJson(key, value, 0);
}

PropertyDictionary optionsFromJson(const json &object) {
    if (!object.is_object()) {
        throw Failure(ExitStatus::unusableArguments, "\"options\" is not an object");
    }
    PropertyDictionary options;
    for (const auto &[key, value] : object.items()) {
        if (!settings::findKey(key)) {
            throw Failure(ExitStatus::unusableArguments, "unknown key " + json(key).dump());
        }
        options.set(key, settingFromJson(key, value));
    }
    return options;
}

} // namespace nerlo::cli
