#include "text/SentenceRules.h"

#include "text/Characters.h"
#include "text/UnitPages.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace nerlo::text {

namespace {

// Every stop and every break is one of these units; some of them are neither.
constexpr UnitSet noticed = [] {
    UnitSet set(u"\n\r.!?");
    set.add(u'\u0080', u'\uFFFF');
    return set;
}();

SentenceClass classify(char32_t character) {
    switch (u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_SENTENCE_BREAK)) {
    case U_SB_EXTEND:
    case U_SB_FORMAT:
        return SentenceClass::Extend;
    case U_SB_SP:
        return SentenceClass::Space;
    case U_SB_LOWER:
        return SentenceClass::Lower;
    case U_SB_UPPER:
        return SentenceClass::Upper;
    case U_SB_OLETTER:
        return SentenceClass::OtherLetter;
    case U_SB_NUMERIC:
        return SentenceClass::Digit;
    case U_SB_ATERM:
        return SentenceClass::FullStop;
    case U_SB_STERM:
        return SentenceClass::OtherStop;
    case U_SB_SCONTINUE:
        return SentenceClass::Continues;
    case U_SB_CLOSE:
        return SentenceClass::Close;
    case U_SB_SEP:
    case U_SB_CR:
    case U_SB_LF:
        return SentenceClass::ParagraphBreak;
    default:
        return SentenceClass::Other;
    }
}

SentenceClass classifyUnit(char16_t unit) {
    return classify(unit);
}

SentenceClass classOf(char32_t character) {
    static UnitPages<SentenceClass, classifyUnit> units;
    return character <= 0xFFFF ? units[static_cast<char16_t>(character)] : classify(character);
}

bool isStop(SentenceClass is) {
    return is == SentenceClass::FullStop || is == SentenceClass::OtherStop;
}

bool isCased(SentenceClass is) {
    return is == SentenceClass::Lower || is == SentenceClass::Upper;
}

} // namespace

SentenceEnds::SentenceEnds(std::u16string_view text)
    : text_(text)
    , cursor_(text, noticed) {}

std::size_t SentenceEnds::endOf(std::size_t begin) {
    std::size_t from = begin;
    for (;;) {
        const std::size_t position = cursor_.nextFrom(from);
        if (position == text_.size()) {
            return position;
        }
        const Character character = at(position);
        if (character.is == SentenceClass::ParagraphBreak) {
            return afterBreak(position);
        }
        from = character.end;
        if (isStop(character.is)) {
            std::size_t end = 0;
            if (endsBehind(character, position, end)) {
                return end;
            }
            from = end;
        }
    }
}

SentenceEnds::Character SentenceEnds::at(std::size_t at) const {
    if (at >= text_.size()) {
        return {};
    }
    const char32_t character = characterAt(text_, at);
    return {classOf(character), at + sizeOf(character)};
}

// The place behind all characters of that class at `from`, each with its combining marks.
std::size_t SentenceEnds::skip(SentenceClass which, std::size_t from) const {
    for (Character next = at(from);
         from < text_.size() && (next.is == which || next.is == SentenceClass::Extend);
         next = at(from)) {
        from = next.end;
    }
    return from;
}

// The class of the last character before `at` that is not a combining mark.
SentenceClass SentenceEnds::classBefore(std::size_t at) const {
    SentenceClass is = SentenceClass::Extend;
    while (at > 0 && is == SentenceClass::Extend) {
        UChar32 character = 0;
        U16_PREV(text_.data(), 0, at, character);
        is = classOf(static_cast<char32_t>(character));
    }
    return is;
}

std::size_t SentenceEnds::afterBreak(std::size_t at) const {
    return at + (text_.substr(at).starts_with(u"\r\n") ? 2 : 1);
}

// Whether a sentence ends behind the stop at `begin`. `end` becomes that end, else the place from
// which to look for the next one.
bool SentenceEnds::endsBehind(const Character &stop, std::size_t begin, std::size_t &end) const {
    end = skip(SentenceClass::Extend, stop.end);
    const bool isFullStop = stop.is == SentenceClass::FullStop;
    if (isFullStop) {
        const SentenceClass next = at(end).is;
        if (next == SentenceClass::Digit ||
            (next == SentenceClass::Upper && isCased(classBefore(begin)))) {
            return false; // as in 3.4 or U.S.A
        }
    }
    end = skip(SentenceClass::Space, skip(SentenceClass::Close, end));
    if (end == text_.size()) {
        return true;
    }
    const SentenceClass next = at(end).is;
    if (next == SentenceClass::ParagraphBreak) {
        end = afterBreak(end);
        return true;
    }
    if (next == SentenceClass::Continues || isStop(next)) {
        return false;
    }
    if (!isFullStop) {
        return true;
    }
    // If a small letter is the next letter, the sentence goes on.
    std::size_t ahead = end;
    Character character = at(ahead);
    while (ahead < text_.size() && !isCased(character.is) && !isStop(character.is) &&
           character.is != SentenceClass::OtherLetter &&
           character.is != SentenceClass::ParagraphBreak) {
        ahead = character.end;
        character = at(ahead);
    }
    if (character.is == SentenceClass::Lower) {
        end = ahead;
        return false;
    }
    return true;
}

bool hasRootSentenceRules(std::string_view locale) {
    // Greek ends questions with a semicolon, and a locale with keywords may ask for a list of
    // abbreviations.
    const std::string_view language = locale.substr(0, locale.find_first_of("_-@"));
    return language != "el" && locale.find_first_of("-@") == std::string_view::npos;
}

} // namespace nerlo::text
