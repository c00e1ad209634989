#include "engine/Statistics.h"

#include "text/Numbers.h"
#include "text/Segmentation.h"
#include "text/UnitScan.h"

#include <algorithm>

namespace nerlo::engine {

namespace {

constexpr text::UnitSet spaces(u" \u00A0");
constexpr text::UnitSet lineBreaks(u"\r\n");

// A CR LF is one.
std::uint64_t countBreaks(std::u16string_view text) {
    std::uint64_t breaks = text::countUnits(text, lineBreaks);
    for (std::size_t at = text::findUnit(text, 0, u'\r'); at + 1 < text.size();
         at = text::findUnit(text, at + 1, u'\r')) {
        breaks -= text[at + 1] == u'\n' ? 1 : 0;
    }
    return breaks;
}

} // namespace

TextStatistics &TextStatistics::operator+=(const TextStatistics &other) {
    characters += other.characters;
    spaces += other.spaces;
    words += other.words;
    paragraphs += other.paragraphs;
    return *this;
}

std::uint64_t countCharacters(std::u16string_view text) {
    return text.size();
}

std::uint64_t countSpaces(std::u16string_view text) {
    return text::countUnits(text, spaces);
}

std::uint64_t countWords(std::u16string_view text, const std::string &locale) {
    return text::countWordSegments(text, locale);
}

std::uint64_t countParagraphs(std::u16string_view text) {
    if (text.empty()) {
        return 0;
    }
    return countBreaks(text) + (lineBreaks.contains(text.back()) ? 0 : 1);
}

TextStatistics countAll(std::u16string_view text, const std::string &locale) {
    return {countCharacters(text), countSpaces(text), countWords(text, locale),
            countParagraphs(text)};
}

void StreamCounter::feed(std::u16string_view text) {
    if (text.empty()) {
        return;
    }
    counts_.characters += countCharacters(text);
    counts_.spaces += countSpaces(text);
    counts_.paragraphs += countBreaks(text) - (last_ == u'\r' && text.front() == u'\n' ? 1 : 0);
    last_ = text.back();

    const std::size_t searched = std::max<std::size_t>(uncounted_.size(), 1);
    uncounted_.append(text);
    for (std::size_t at = uncounted_.size() - 1; at >= searched; --at) {
        const text::WordJoint joint = text::wordJoint(uncounted_[at - 1], uncounted_[at]);
        if (joint != text::WordJoint::unknown) {
            counts_.words += countWords(std::u16string_view(uncounted_).substr(0, at), locale_) -
                             (joint == text::WordJoint::sameWord ? 1 : 0);
            uncounted_.erase(0, at);
            return;
        }
    }
}

TextStatistics StreamCounter::counts() const {
    TextStatistics counts = counts_;
    counts.words += countWords(uncounted_, locale_);
    const bool lineOpen = counts.characters != 0 && !lineBreaks.contains(last_);
    counts.paragraphs += lineOpen ? 1 : 0;
    return counts;
}

std::u16string integerToString(std::uint64_t count, const std::string &locale) {
    return text::formatNumber(count, locale);
}

} // namespace nerlo::engine
