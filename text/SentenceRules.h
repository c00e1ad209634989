// Where sentences end by Unicode's default rules (UAX #29), which are ICU's for almost all locales.
// ICU's own iterator takes several times as long, as it looks at every character of a text.
#pragma once

#include "text/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace nerlo::text {

// What a character is to the rules. The classes come from ICU's property Sentence_Break.
enum class SentenceClass : std::uint8_t {
    Other,
    Extend, // and format characters: part of the character before them
    Space,
    Lower,
    Upper,
    OtherLetter,
    Digit,
    FullStop,       // may end a sentence, an abbreviation or a part of a number
    OtherStop,      // ends a sentence
    Continues,      // a comma or the like: no sentence begins with one
    Close,          // brackets and quotation marks
    ParagraphBreak, // line breaks included
};

// For the sentences of one text, asked for from front to back. Positions are in UTF-16 code units.
class SentenceEnds {
  public:
    // The text must outlive it.
    explicit SentenceEnds(std::u16string_view text);

    // The end of the sentence that begins at `begin`.
    std::size_t endOf(std::size_t begin);

  private:
    struct Character {
        SentenceClass is = SentenceClass::Other; // also the class of the place behind the end
        std::size_t end = 0;
    };

    Character at(std::size_t at) const;
    std::size_t skip(SentenceClass which, std::size_t from) const;
    SentenceClass classBefore(std::size_t at) const;
    std::size_t afterBreak(std::size_t at) const;
    bool endsBehind(const Character &stop, std::size_t begin, std::size_t &end) const;

    std::u16string_view text_;
    UnitCursor cursor_; // stops at units that may be a stop or a break
};

// Whether the locale's sentence rules are the root's.
bool hasRootSentenceRules(std::string_view locale);

} // namespace nerlo::text
