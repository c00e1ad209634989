#include "engine/CaseConversion.h"

#include "text/CaseMapping.h"
#include "text/Replace.h"
#include "text/Segmentation.h"
#include "text/UnitScan.h"

#include <array>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

constexpr std::array<std::u16string_view, 3> separators{u"\u2026 ", u"... ", u". "};
constexpr text::UnitSet separatorBegins(u"\u2026.");

// Where the pieces of a sentence begin, the first one's at 0; empty when the separator does not
// split it.
void findPieces(std::u16string_view sentence, std::u16string_view separator,
                std::vector<std::size_t> &begins) {
    begins.clear();
    const std::size_t first = text::find(sentence, 0, separator);
    if (first == sentence.size()) {
        return;
    }
    const std::u16string_view second = sentence.substr(first + separator.size());
    if (second.empty() || second.starts_with(separator)) {
        return;
    }
    begins.push_back(0);
    for (std::size_t at = first; at < sentence.size();
         at = text::find(sentence, at + separator.size(), separator)) {
        begins.push_back(at + separator.size());
    }
}

// Upper-cases single units of a text. Most of them stay one unit and are changed in place; those
// that become longer ("ß") are inserted at the end, all together.
class UnitCapitalizer {
  public:
    UnitCapitalizer(std::u16string &text, const std::string &locale)
        : text_(text)
        , locale_(locale) {}

    // To be called in ascending order. The position may be the end of the text, where the piece is
    // empty.
    void capitalize(std::size_t at) {
        if (at >= text_.size()) {
            return;
        }
        const char16_t unit = text_[at];
        if (unit < known_.size() && known_[unit] != 0) {
            text_[at] = known_[unit];
            return;
        }
        std::u16string upper = text::toUppercase(std::u16string(1, unit), locale_);
        if (upper.size() != 1) {
            longer_.emplace_back(at, std::move(upper));
            return;
        }
        text_[at] = upper.front();
        if (unit < known_.size()) {
            known_[unit] = upper.front();
        }
    }

    void finish() {
        if (longer_.empty()) {
            return;
        }
        std::u16string result;
        std::size_t from = 0;
        for (const auto &[at, upper] : longer_) {
            result.append(text_, from, at - from).append(upper);
            from = at + 1;
        }
        result.append(text_, from);
        text_ = std::move(result);
    }

  private:
    std::u16string &text_;
    const std::string &locale_;
    std::array<char16_t, 0x80> known_{};
    std::vector<std::pair<std::size_t, std::u16string>> longer_;
};

} // namespace

std::u16string changeToCapitalized(std::u16string text, const std::string &locale) {
    return text::toTitlecase(std::move(text), locale);
}

std::u16string changeToLowercase(std::u16string text, const std::string &locale) {
    return text::toLowercase(std::move(text), locale);
}

std::u16string changeToUppercase(std::u16string text, const std::string &locale) {
    return text::toUppercase(std::move(text), locale);
}

std::u16string changeFirstLetterToCapitalized(std::u16string text, const std::string &locale) {
    UnitCapitalizer capitalizer(text, locale);
    capitalizer.capitalize(0);
    capitalizer.finish();
    return text;
}

std::optional<std::u16string> changeToCapitalizedFirstWordOfSentenceSeparated(
    std::u16string_view sentence, std::u16string_view separator, const std::string &locale) {
    std::vector<std::size_t> begins;
    findPieces(sentence, separator, begins);
    if (begins.empty()) {
        return std::nullopt;
    }
    std::u16string text(sentence);
    UnitCapitalizer capitalizer(text, locale);
    for (const std::size_t begin : begins) {
        capitalizer.capitalize(begin);
    }
    capitalizer.finish();
    return text;
}

std::u16string changeToCapitalizedFirstWordOfSentence(std::u16string text,
                                                      const std::string &locale) {
    std::vector<std::size_t> places; // gathered first, because the segmenter reads the text itself
    std::vector<std::size_t> begins;
    const std::u16string_view whole(text);
    text::UnitCursor cursor(whole, separatorBegins);
    std::size_t separatorBegin = cursor.next(); // at or after the sentence
    text::forEachSentence(whole, locale, [&](std::u16string_view sentence) {
        const auto offset = static_cast<std::size_t>(sentence.data() - whole.data());
        // Most sentences hold no separator but the one that ends them.
        while (separatorBegin < offset) {
            separatorBegin = cursor.next();
        }
        if (separatorBegin + 2 >= offset + sentence.size()) {
            places.push_back(offset);
            return;
        }
        for (const std::u16string_view separator : separators) {
            findPieces(sentence, separator, begins);
            if (!begins.empty()) {
                for (const std::size_t begin : begins) {
                    if (begin < sentence.size()) {
                        places.push_back(offset + begin);
                    }
                }
                return;
            }
        }
        places.push_back(offset);
    });
    UnitCapitalizer capitalizer(text, locale);
    for (const std::size_t place : places) {
        capitalizer.capitalize(place);
    }
    capitalizer.finish();
    return text;
}

} // namespace nerlo::engine
