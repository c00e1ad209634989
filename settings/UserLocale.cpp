#include "settings/UserLocale.h"

#include "storage/EnvironmentVariable.h"
#include "text/Ascii.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

namespace {

constexpr std::string_view neutralLocale = "en_US";
constexpr std::size_t longestName = 100; // ICU takes at most 156

constexpr std::pair<std::string_view, std::string_view> scripts[] = {
    {"latin", "_Latn"},
    {"cyrillic", "_Cyrl"},
    {"devanagari", "_Deva"},
};

bool isName(std::string_view name) {
    return name.size() <= longestName && std::all_of(name.begin(), name.end(), [](char c) {
               return text::isAsciiLetterOrDigit(c) ||
                      std::string_view("_-@.=;").find(c) != std::string::npos;
           });
}

} // namespace

std::optional<std::string> localeId(std::string_view name) {
    if (!isName(name)) {
        return std::nullopt;
    }
    const std::size_t at = std::min(name.find('@'), name.size());
    const std::string_view modifier = name.substr(std::min(at + 1, name.size()));
    std::string id(name.substr(0, std::min(name.find('.'), at)));
    if (id.empty() || id == "C" || id == "POSIX") {
        return std::string(neutralLocale);
    }
    if (!text::isAsciiLetterOrDigit(id.front())) {
        return std::nullopt;
    }
    if (modifier.find('=') != std::string_view::npos) {
        return id + "@" + std::string(modifier);
    }
    for (const auto &[word, script] : scripts) {
        if (modifier == word) {
            const std::size_t language = std::min(id.find_first_of("_-"), id.size());
            id.insert(language, script);
        }
    }
    return id;
}

std::string userLocale() {
    for (const char *variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        if (const auto value = storage::environmentVariable(variable); !value.empty()) {
            return localeId(value).value_or(std::string(neutralLocale));
        }
    }
    return std::string(neutralLocale);
}

} // namespace nerlo::settings
