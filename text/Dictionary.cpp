#include "text/Dictionary.h"

#include <hunspell.hxx>
#include <unicode/ucnv.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace nerlo::text {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestWord = 64;

std::vector<fs::path> folders() {
    std::vector<fs::path> result;
    const char *const own = std::getenv("DICPATH");
    for (std::string_view rest = own ? own : ""; !rest.empty();) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        result.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    for (const char *const folder :
         {"/usr/local/share/hunspell", "/usr/share/hunspell", "/usr/share/myspell/dicts"}) {
        result.emplace_back(folder);
    }
    return result;
}

// "de_DE" and the like; English is not named for a country.
std::string homeOf(const std::string &language) {
    std::string country = language == "en" ? "us" : language;
    std::ranges::transform(country, country.begin(),
                           [](char c) { return static_cast<char>(c & ~0x20); });
    return language + '_' + country;
}

// The path without ".dic" or ".aff" of the best dictionary in a folder; empty for none.
std::string bestIn(const fs::path &folder, const std::string &locale) {
    const std::string language = locale.substr(0, locale.find('_'));
    for (const std::string &name : {locale, homeOf(language), language}) {
        std::error_code ignored;
        if (fs::exists(folder / (name + ".dic"), ignored)) {
            return folder / name;
        }
    }
    std::string best;
    std::error_code ignored;
    for (const auto &entry : fs::directory_iterator(folder, ignored)) {
        const std::string stem = entry.path().stem();
        if (entry.path().extension() == ".dic" && stem.starts_with(language + '_') &&
            (best.empty() || stem < best)) {
            best = stem;
        }
    }
    return best.empty() ? best : std::string(folder / best);
}

class Dictionary {
  public:
    explicit Dictionary(const std::string &path)
        : words_((path + ".aff").c_str(), (path + ".dic").c_str()) {
        UErrorCode error = U_ZERO_ERROR;
        converter_.reset(ucnv_open(words_.get_dict_encoding().c_str(), &error));
        if (U_SUCCESS(error)) {
            ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr,
                                  nullptr, &error);
        }
        usable_ = U_SUCCESS(error) && error != U_AMBIGUOUS_ALIAS_WARNING;
    }

    bool knows(std::u16string_view word) {
        if (!usable_ || word.empty() || word.size() > longestWord) {
            return false;
        }
        const std::lock_guard lock(mutex_);
        char bytes[longestWord * 4 + 1];
        UErrorCode error = U_ZERO_ERROR;
        const auto size = ucnv_fromUChars(converter_.get(), bytes, sizeof bytes, word.data(),
                                          static_cast<std::int32_t>(word.size()), &error);
        return U_SUCCESS(error) && words_.spell(std::string(bytes, static_cast<std::size_t>(size)));
    }

  private:
    struct Close {
        void operator()(UConverter *converter) const { ucnv_close(converter); }
    };

    std::mutex mutex_;
    Hunspell words_;
    std::unique_ptr<UConverter, Close> converter_;
    bool usable_ = false;
};

// One of all that the program has asked for; loaded when first asked.
struct Slot {
    std::string path;
    std::once_flag once;
    std::unique_ptr<Dictionary> dictionary;

    bool knows(std::u16string_view word) {
        std::call_once(once, [this] { dictionary = std::make_unique<Dictionary>(path); });
        return dictionary->knows(word);
    }
};

std::string findDictionary(const std::string &locale) {
    // It becomes part of a path.
    const bool named = locale.size() > 1 && std::ranges::all_of(locale, [](unsigned char c) {
                           return c == '_' || (c | 0x20U) - 'a' < 26U;
                       });
    for (const fs::path &folder : named ? folders() : std::vector<fs::path>()) {
        if (std::string path = bestIn(folder, locale); !path.empty()) {
            return path;
        }
    }
    return {};
}

} // namespace

KnowsWord dictionaryFor(std::string_view locale) {
    static std::mutex mutex;
    static std::map<std::string, std::shared_ptr<Slot>, std::less<>> slots; // under mutex
    const std::lock_guard lock(mutex);
    auto &slot = slots[std::string(locale)];
    if (!slot) {
        slot = std::make_shared<Slot>();
        slot->path = findDictionary(std::string(locale));
    }
    return slot->path.empty() ? KnowsWord()
                              : [slot](std::u16string_view word) { return slot->knows(word); };
}

} // namespace nerlo::text
