#include "settings/UserLanguages.h"

#include "engine/QuoteLanguages.h"
#include "storage/EnvironmentVariable.h"

#include <algorithm>

namespace nerlo::settings {

namespace {

std::string_view messagesLocale() {
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const auto value = storage::environmentVariable(name); !value.empty()) {
            return value;
        }
    }
    return "";
}

} // namespace

std::string quoteLanguage(std::string_view locale) {
    std::string code(locale.substr(0, locale.find_first_of(".@")));
    std::replace(code.begin(), code.end(), '_', '-');
    if (code == "C" || code == "POSIX") {
        return "";
    }
    const std::string language = code.substr(0, code.find('-'));
    if (language == "zh") {
        return code == "zh-TW" || code == "zh-HK" ? "zh-Hant" : "zh-Hans";
    }
    if (language == "no" || language == "nn") {
        return "nb";
    }
    return engine::nrDefaultQuotesLanguage::knows(code) ? code : language;
}

std::vector<std::string> userLanguages() {
    std::vector<std::string> codes;
    const auto add = [&](std::string_view locale) {
        std::string code = quoteLanguage(locale);
        if (!code.empty() && std::find(codes.begin(), codes.end(), code) == codes.end()) {
            codes.push_back(std::move(code));
        }
    };
    const std::string_view messages = messagesLocale();
    if (!quoteLanguage(messages).empty()) {
        std::string_view list = storage::environmentVariable("LANGUAGE");
        while (!list.empty()) {
            const std::size_t end = std::min(list.find(':'), list.size());
            add(list.substr(0, end));
            list.remove_prefix(std::min(end + 1, list.size()));
        }
        add(messages);
    }
    if (codes.empty()) {
        codes.push_back("en");
    }
    return codes;
}

} // namespace nerlo::settings
