#include "engine/Statistics.h"

#include "text/Numbers.h"
#include "text/Segmentation.h"
#include "text/UnitScan.h"

namespace nerlo::engine {

namespace {

constexpr text::UnitSet spaces(u" \u00A0");
constexpr text::UnitSet lineBreaks(u"\r\n");

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
    // A CR LF is one break.
    std::uint64_t breaks = text::countUnits(text, lineBreaks);
    for (std::size_t at = text::findUnit(text, 0, u'\r'); at + 1 < text.size();
         at = text::findUnit(text, at + 1, u'\r')) {
        breaks -= text[at + 1] == u'\n' ? 1 : 0;
    }
    return breaks + (lineBreaks.contains(text.back()) ? 0 : 1);
}

TextStatistics countAll(std::u16string_view text, const std::string &locale) {
    return {countCharacters(text), countSpaces(text), countWords(text, locale),
            countParagraphs(text)};
}

std::size_t lastCountingCut(std::u16string_view text, std::size_t from) {
    const std::size_t at = text.substr(from).rfind(u'\n');
    return at == std::u16string_view::npos ? 0 : from + at + 1;
}

std::u16string integerToString(std::uint64_t count, const std::string &locale) {
    return text::formatNumber(count, locale);
}

} // namespace nerlo::engine
