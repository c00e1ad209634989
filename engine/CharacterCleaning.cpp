#include "engine/CharacterCleaning.h"

#include "engine/DirectionControls.h"
#include "engine/MarkdownMarks.h"
#include "engine/Rewriting.h"
#include "engine/TerminalText.h"
#include "text/Ascii.h"
#include "text/Characters.h"
#include "text/Normalization.h"
#include "text/Variations.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::characterAt;
using text::characterBefore;
using text::sizeOf;
using text::UnitSet;

// How many characters are looked at beside a place: enough for any spelling, and few enough for any
// text.
constexpr int farthest = 8;

bool isOneOf(char16_t unit, View units) {
    return units.find(unit) != View::npos;
}

bool isLineBreak(char16_t unit) {
    return unit == u'\n' || unit == u'\r';
}

// 0 where there is none.
char16_t unitAt(View text, std::size_t at) {
    return at < text.size() ? text[at] : u'\0';
}
char32_t nextCharacter(View text, std::size_t at) {
    return at < text.size() ? characterAt(text, at) : 0;
}
char32_t previousCharacter(View text, std::size_t at) {
    return at > 0 ? characterBefore(text, at) : 0;
}

std::size_t endOfRun(View text, std::size_t at) {
    return std::min(text.find_first_not_of(text[at], at), text.size());
}

// Marks of Markdown may go later, and what stands beside them then stands beside each other.
constexpr View passedOver = u"*`\u1FEF";

char32_t inkBehind(View text, std::size_t at) {
    for (int looked = 0; looked < farthest && isOneOf(unitAt(text, at), passedOver); ++looked) {
        ++at;
    }
    return nextCharacter(text, at);
}

char32_t inkBefore(View text, std::size_t at) {
    for (int looked = 0; looked < farthest && at > 0 && isOneOf(text[at - 1], passedOver);
         ++looked) {
        --at;
    }
    return previousCharacter(text, at);
}

// --- controls

// Tabs, line feeds, carriage returns and form feeds (the ends of pages) are text.
constexpr UnitSet controls{
    {u'\0', u'\b'}, {u'\v', u'\v'}, {u'\x0E', u'\x1F'}, {u'\x7F', u'\x9F'}, {u'\u2028', u'\u2029'}};

Edit editControl(View text, std::size_t at) {
    constexpr char16_t escape = u'\x1B';
    const char16_t unit = text[at];
    const char16_t next = unitAt(text, at + 1);
    if (isOneOf(unit, u"\v\u0085\u2028\u2029")) { // lines end here too
        return {at, at + 1, u"\n"};
    }
    if (unit == escape && (next == u'[' || next == u']')) { // colours and titles of terminals
        return Edit::remove(at, endOfControlSequence(text, at));
    }
    // A letter struck over itself or over a line below it: how printers are told bold and
    // underlined.
    const bool struckOver =
        unit == u'\b' && at > 0 && (text[at - 1] == u'_' || text[at - 1] == next);
    return Edit::remove(struckOver ? at - 1 : at, at + 1);
}

// --- tags

constexpr UnitSet tags{{u'\xDB40', u'\xDB40'}};

bool isTag(char32_t character) {
    return character >= U'\U000E0000' && character <= U'\U000E0FFF' &&
           !text::isVariationSelector(character);
}

// England, Scotland, Wales: the flags that are spelt with tags and meant for interchange. Others
// could hide any text.
constexpr std::array<View, 3> flags{
    u"\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F",
    u"\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F",
    u"\U000E0067\U000E0062\U000E0077\U000E006C\U000E0073\U000E007F"};

Edit editTag(View text, std::size_t at) {
    std::size_t to = at;
    while (to < text.size() && isTag(characterAt(text, to))) {
        to += 2;
    }
    if (to == at) {
        return Edit::keep(at, at + 1);
    }
    const View spelt = text.substr(at, to - at);
    if (previousCharacter(text, at) == U'\U0001F3F4') {
        for (const View flag : flags) {
            if (spelt.starts_with(flag)) {
                return {at, to, flag};
            }
        }
    }
    return Edit::remove(at, to);
}

// --- private use

constexpr UnitSet privateUse{
    {u'\uE000', u'\uF8FF'}, {u'\xDB80', u'\xDBFF'}, {u'\uFDD0', u'\uFDEF'}, {u'\uFFFE', u'\uFFFF'}};

// Bullets and ticks of word processors' symbol fonts.
constexpr std::array<std::pair<char16_t, View>, 4> symbols{{{u'\uF0A7', u"\u25AA"},
                                                            {u'\uF0B7', u"\u2022"},
                                                            {u'\uF0D8', u"\u27A2"},
                                                            {u'\uF0FC', u"\u2713"}}};

Edit editPrivateUse(View text, std::size_t at) {
    for (const auto &[unit, symbol] : symbols) {
        if (text[at] == unit) {
            return {at, at + 1, symbol};
        }
    }
    const char32_t character = characterAt(text, at);
    const bool halfOfPair = character >= U'\xD800' && character <= U'\xDFFF';
    return halfOfPair ? Edit::keep(at, at + 1) : Edit::remove(at, at + sizeOf(character));
}

// --- soft hyphens

constexpr UnitSet softHyphens(u"\u00AD");

// At the end of a line it was shown, and the word goes on below.
Edit editSoftHyphen(View text, std::size_t at) {
    std::size_t below = at + 1;
    while (below < text.size() && below < at + 80 && isOneOf(text[below], u"\r\n \t\u00A0")) {
        ++below;
    }
    const bool shown = below > at + 1 && isLineBreak(text[at + 1]) &&
                       text::isLetterOrNumber(previousCharacter(text, at)) &&
                       text::isLetterOrNumber(nextCharacter(text, below));
    return {at, at + 1, shown ? View(u"-") : View()};
}

// --- variation selectors

constexpr UnitSet selectors{
    {u'\uFE00', u'\uFE0F'}, {u'\xDB40', u'\xDB40'}, {u'\u180B', u'\u180D'}, {u'\u180F', u'\u180F'}};

bool isMongolian(char32_t character) {
    return character >= U'\u1800' && character <= U'\u18AA' && text::isLetterOrNumber(character);
}

Edit editSelector(View text, std::size_t at) {
    const char32_t selector = characterAt(text, at);
    const std::size_t to = at + sizeOf(selector);
    const char32_t base = previousCharacter(text, at);
    const bool mongolian = selector >= U'\u180B' && selector <= U'\u180F';
    const bool stays = mongolian ? isMongolian(base)
                                 : !text::isVariationSelector(selector) ||
                                       text::isVariationSequence(base, selector);
    return stays ? Edit::keep(at, to) : Edit::remove(at, to);
}

// --- invisible characters

constexpr UnitSet invisible{{u'\u034F', u'\u034F'}, {u'\u115F', u'\u1160'}, {u'\u180E', u'\u180E'},
                            {u'\u200B', u'\u200D'}, {u'\u2060', u'\u2065'}, {u'\u206A', u'\u206F'},
                            {u'\uFEFF', u'\uFEFF'}, {u'\uFFF0', u'\uFFF8'}, {u'\uFFFC', u'\uFFFC'}};

bool isInvisible(char32_t character) {
    return character <= U'\uFFFF' && invisible.contains(static_cast<char16_t>(character));
}

// The letter before a place, its marks and what only tells directions passed over; 0 where there is
// none.
char32_t letterBefore(View text, std::size_t at) {
    for (int looked = 0; looked < farthest && at > 0; ++looked) {
        const char32_t character = characterBefore(text, at);
        if (!isDirectionControl(character) &&
            (!text::isMark(character) || text::needsJoiners(character) || isInvisible(character))) {
            return isInvisible(character) ? 0 : character;
        }
        at -= sizeOf(character);
    }
    return 0;
}

char32_t letterBehind(View text, std::size_t at) {
    for (int looked = 0; looked < farthest && at < text.size(); ++looked) {
        if (!isDirectionControl(text[at])) {
            return isInvisible(text[at]) ? 0 : characterAt(text, at);
        }
        ++at;
    }
    return 0;
}

// The picture before a place, without what only changes its looks.
char32_t pictureBefore(View text, std::size_t at) {
    for (int looked = 0; looked < farthest && at > 0; ++looked) {
        const char32_t character = characterBefore(text, at);
        const bool skin = character >= U'\U0001F3FB' && character <= U'\U0001F3FF';
        if (!skin && !text::isMark(character)) {
            return character;
        }
        at -= sizeOf(character);
    }
    return 0;
}

// But for its fillers, which are blanks.
bool isHangulLetter(char32_t character) {
    return text::isHangul(character) && character != U'\u3164' && character != U'\uFFA0';
}

class Neighbours {
  public:
    Neighbours(View text, std::size_t begin, std::size_t end)
        : before_(letterBefore(text, begin))
        , behind_(letterBehind(text, end))
        , joinsPictures_(text::isPictograph(pictureBefore(text, begin)) &&
                         text::isPictograph(behind_)) {}

    bool need(char16_t unit) const {
        switch (unit) {
        case u'\u200C': // non-joiner
            return either(text::needsJoiners);
        case u'\u200D': // joiner
            return either(text::needsJoiners) || joinsPictures_;
        case u'\u200B': // space
            return either(text::isWrittenWithoutBlanks);
        case u'\u034F': // keeps marks in an order of their own
            return text::isMark(behind_);
        case u'\u180E': // sets a vowel apart
            return either(isMongolian);
        case u'\u115F': // stand for a part of a syllable
        case u'\u1160':
            return either(isHangulLetter);
        default:
            return false;
        }
    }

  private:
    bool either(bool (*is)(char32_t)) const { return is(before_) || is(behind_); }

    char32_t before_;
    char32_t behind_;
    bool joinsPictures_;
};

// Of several beside each other, those that the spelling needs: the same twice says no more than
// once, and a longer row of different ones is a message rather than a spelling.
Edit editInvisible(View text, std::size_t at) {
    constexpr std::size_t longestSpelling = 3;
    std::size_t to = at;
    while (to < text.size() && invisible.contains(text[to])) {
        ++to;
    }
    const Neighbours neighbours(text, at, to);
    thread_local std::u16string needed;
    needed.clear();
    std::size_t count = 0;
    for (const char16_t unit : text.substr(at, to - at)) {
        if (neighbours.need(unit)) {
            ++count;
            if (needed.empty() || needed.back() != unit) {
                needed.push_back(unit);
            }
        }
    }
    if (needed.size() > 1 && count > longestSpelling) {
        needed.clear();
    }
    return {at, to, needed};
}

// --- ligatures

constexpr UnitSet ligatures{{u'\uFB00', u'\uFB06'}};

Edit editLigature(View text, std::size_t at) {
    constexpr std::array<View, 7> letters{u"ff", u"fi", u"fl", u"ffi", u"ffl", u"\u017Ft", u"st"};
    return {at, at + 1, letters[text[at] - u'\uFB00']};
}

// --- full width

constexpr UnitSet fullWidth{{u'\uFF01', u'\uFF5E'}};

char16_t narrow(char16_t unit) {
    return fullWidth.contains(unit) ? static_cast<char16_t>(unit - u'\uFF01' + u'!') : unit;
}

bool isNarrowWord(char32_t character) {
    return character <= U'\uFFFF' &&
           text::isAsciiLetterOrDigit(narrow(static_cast<char16_t>(character)));
}

// Letters and digits, and signs inside of addresses, times and formulas. Other punctuation of full
// width is that of Chinese and Japanese.
Edit editFullWidth(View text, std::size_t at) {
    constexpr View signs = u"\"#$%&'*+-./:<=>@\\^_`|~";
    const auto isSign = [&](char16_t unit) {
        return (fullWidth.contains(unit) && isOneOf(narrow(unit), signs)) ||
               isOneOf(unit, passedOver);
    };
    std::size_t to = at;
    while (to < text.size() && isSign(text[to])) {
        ++to;
    }
    const bool inWord =
        to > at && isNarrowWord(inkBefore(text, at)) && isNarrowWord(inkBehind(text, to));
    to = std::max(to, at + 1);
    if (!inWord && !isNarrowWord(text[at])) {
        return Edit::keep(at, to);
    }
    thread_local std::u16string plain;
    plain.clear();
    while (at + plain.size() < to) {
        plain.push_back(narrow(text[at + plain.size()]));
    }
    return {at, to, plain};
}

// --- blanks

constexpr UnitSet blanks{{u'\u00A0', u'\u00A0'}, {u'\u1680', u'\u1680'}, {u'\u2000', u'\u200A'},
                         {u'\u202F', u'\u202F'}, {u'\u205F', u'\u205F'}, {u'\u2800', u'\u2800'},
                         {u'\u3000', u'\u3000'}, {u'\u3164', u'\u3164'}, {u'\uFFA0', u'\uFFA0'}};

bool isBlank(char32_t character) {
    return character == 0 || text::isWhiteSpace(character) ||
           (character <= U'\uFFFF' && blanks.contains(static_cast<char16_t>(character)));
}

bool isWide(char32_t character) {
    return text::columnsOf(character) == 2 && !text::isPictograph(character);
}

// Whether the language of the text sets `mark` apart from the word before it. In source code such
// signs have other neighbours.
bool standsApart(View text, std::size_t mark) {
    const char16_t unit = text[mark];
    if (isOneOf(unit, u"%\u2030\u00B0\u20AC\u00A3")) {
        return mark > 1 && text::isDigit(previousCharacter(text, mark - 1));
    }
    if (isOneOf(unit, u"\u17D4\u17D5\u17D6")) { // Khmer
        return true;
    }
    if (!isOneOf(unit, u";:!?\u00BB\u203A")) {
        return false;
    }
    const char32_t behind = inkBehind(text, mark + 1);
    return !text::isLetterOrNumber(behind) &&
           (behind > 0x7F || !isOneOf(static_cast<char16_t>(behind), u"=:({[$&|/\\"));
}

// Slavic and Arabic words of one letter, which are not left alone at the end of a line.
bool isShortWord(View text, std::size_t end) {
    constexpr View words =
        u"iouwzksvOUWZKSV\u0430\u0431\u0432\u0436\u0438\u043A\u043E\u0441\u0443\u044F\u0410"
        u"\u0411\u0412\u0418\u041A\u041E\u0421\u0423\u042F\u0456\u0406\u0454\u0437\u0417\u0648";
    return end > 0 && isOneOf(text[end - 1], words) &&
           (end == 1 || isOneOf(text[end - 2], u" \n\r\t("));
}

// Whether a blank that does not break is meant to be one: inside of numbers, before French marks,
// inside of French quotes, behind words of one letter.
bool isMeant(View text, std::size_t at) {
    const char32_t before = inkBefore(text, at);
    const char32_t behind = nextCharacter(text, at + 1);
    if (isBlank(before) || isBlank(inkBehind(text, at + 1))) {
        return false;
    }
    if (text::isDigit(before) && text::isDigit(behind)) {
        return true;
    }
    if (isOneOf(text[at], u"\u2007\u2008")) {
        return false;
    }
    return before == U'\u00AB' || before == U'\u2039' || text::isMark(behind) ||
           standsApart(text, at + 1) || (isShortWord(text, at) && text::isLetterOrNumber(behind)) ||
           (text[at] == u'\u202F' && (isMongolian(before) || isMongolian(behind)));
}

// Whether blanks of the same kind from `at` to `to` belong to the script beside them.
bool areOfScript(View text, std::size_t at, std::size_t to) {
    const auto beside = [&](auto is) {
        return std::ranges::any_of(
            std::array{previousCharacter(text, at), nextCharacter(text, to)},
            [&](char32_t character) { return !isBlank(character) && is(character); });
    };
    switch (text[at]) {
    case u'\u3000':
        return beside(isWide);
    case u'\u3164':
    case u'\uFFA0':
        return beside(isHangulLetter);
    case u'\u1680': // Ogham
        return beside([](char32_t c) { return c > U'\u1680' && c <= U'\u169C'; });
    case u'\u2800': // Braille
        return beside([](char32_t c) { return c > U'\u2800' && c <= U'\u28FF'; });
    default:
        return false;
    }
}

Edit editBlank(View text, std::size_t at) {
    if (isOneOf(text[at], u"\u00A0\u202F\u2007\u2008\u2009") && isMeant(text, at)) {
        return Edit::keep(at, at + 1);
    }
    const std::size_t to = endOfRun(text, at);
    if (areOfScript(text, at, to)) {
        return Edit::keep(at, to);
    }
    thread_local std::u16string spaces;
    spaces.assign(to - at, u' ');
    return {at, to, spaces};
}

// --- typographic marks

constexpr UnitSet marks{
    {u'\u2010', u'\u2015'}, {u'\u2018', u'\u201F'}, {u'\u2026', u'\u2026'}, {u'\u2212', u'\u2212'}};

// Chinese and Japanese have these marks too, but no plain ones.
constexpr UnitSet ideographs{{u'\u2E80', u'\u2FDF'},
                             {u'\u3001', u'\uA4CF'},
                             {u'\uF900', u'\uFAFF'},
                             {u'\uFF01', u'\uFF60'},
                             {u'\xD840', u'\xD8BF'}};

class PlainMarks {
  public:
    Edit operator()(View text, std::size_t at) {
        if (at >= lineEnd_) {
            findLine(text, at);
        }
        if (ideographic_) {
            return Edit::keep(at, lineEnd_);
        }
        switch (text[at]) {
        case u'\u2014':
        case u'\u2015':
            return dialogue_ ? Edit::keep(at, at + 1) : editDash(text, at);
        case u'\u2026':
            return {at, at + 1, u"..."};
        case u'\u2018':
        case u'\u2019':
        case u'\u201A':
        case u'\u201B':
            return {at, at + 1, u"'"};
        case u'\u201C':
        case u'\u201D':
        case u'\u201E':
        case u'\u201F':
            return {at, at + 1, u"\""};
        default:
            return {at, at + 1, u"-"};
        }
    }

  private:
    static constexpr UnitSet breaks_ = UnitSet(u"\r\n");

    void findLine(View text, std::size_t at) {
        lineBegin_ = at;
        while (lineBegin_ > lineEnd_ && !isLineBreak(text[lineBegin_ - 1])) {
            --lineBegin_;
        }
        lineEnd_ = text::findUnit(text, at, breaks_);
        const View line = text.substr(lineBegin_, lineEnd_ - lineBegin_);
        ideographic_ = text::findUnit(line, 0, ideographs) < line.size();
        dialogue_ = isDialogue(line);
    }

    // "—¿Qué? —dijo él.": a dash right before the first word says that somebody speaks, and the
    // others of its line go with it. Plain signs would look like those of a list.
    static bool isDialogue(View line) {
        line.remove_prefix(std::min(line.find_first_not_of(u" \t\u00A0"), line.size()));
        return line.size() > 1 && (line[0] == u'\u2014' || line[0] == u'\u2015') &&
               (text::isLetterOrNumber(text::characterAt(line, 1)) ||
                isOneOf(line[1], u"\u00BF\u00A1\u00AB"));
    }

    // Between words it stands between blanks, as plain text has it.
    Edit editDash(View text, std::size_t at) const {
        const std::size_t to = at + 1;
        const char32_t before = previousCharacter(text, at);
        const char32_t behind = inkBehind(text, to);
        if (isBlank(before) &&
            text.substr(lineBegin_, at - lineBegin_).find_first_not_of(u' ') == View::npos) {
            return {at, to, u"--"}; // one alone would begin a list
        }
        const bool numbers = text::isDigit(before) && text::isDigit(behind);
        const bool joins = !isBlank(behind) && !isDash(before) &&
                           (text::isLetterOrNumber(behind) ||
                            isOneOf(unitAt(text, to), u"\"'(\u201C\u2018\u201E"));
        if (numbers || isBlank(before) || !joins) {
            return {at, to, isBlank(before) && joins ? View(u"- ") : View(u"-")};
        }
        return {at, to, u" - "};
    }

    static bool isDash(char32_t character) {
        return character == U'-' || (character >= U'\u2010' && character <= U'\u2015');
    }

    std::size_t lineBegin_ = 0;
    std::size_t lineEnd_ = 0;
    bool ideographic_ = false;
    bool dialogue_ = false;
};

// --- the table

template <const UnitSet &units, Edit (*edit)(View, std::size_t)>
std::u16string each(std::u16string text, std::size_t &count) {
    return rewrite(std::move(text), units, count, edit);
}

std::u16string plainMarks(std::u16string text, std::size_t &count) {
    return rewrite(std::move(text), marks, count, PlainMarks());
}

constexpr UnitSet beyondAscii{{u'\x80', u'\xFFFF'}};
constexpr UnitSet markdownSigns(u"*#`~-");

using Options = CleaningOptions;

// What goes without a look at its neighbours comes first, so that the neighbours of what stays are
// those that it has in the end.
constexpr CharacterClass classes[] = {
    {"controls", &Options::udCleanCharactersKeepControls, true, controls,
     each<controls, editControl>},
    {"tags", &Options::udCleanCharactersKeepTags, true, tags, each<tags, editTag>},
    {"private-use", &Options::udCleanCharactersKeepPrivateUse, true, privateUse,
     each<privateUse, editPrivateUse>},
    {"soft-hyphens", &Options::udCleanCharactersKeepSoftHyphens, true, softHyphens,
     each<softHyphens, editSoftHyphen>},
    {"variations", &Options::udCleanCharactersKeepVariations, true, selectors,
     each<selectors, editSelector>},
    {"directions", &Options::udCleanCharactersKeepDirections, true, directionControls,
     cleanDirections},
    {"invisible", &Options::udCleanCharactersKeepInvisible, true, invisible,
     each<invisible, editInvisible>},
    {"ligatures", &Options::udCleanCharactersKeepLigatures, true, ligatures,
     each<ligatures, editLigature>},
    {"full-width", &Options::udCleanCharactersNarrow, false, fullWidth,
     each<fullWidth, editFullWidth>},
    {"blanks", &Options::udCleanCharactersKeepBlanks, true, blanks, each<blanks, editBlank>},
    {"composed", &Options::udCleanCharactersCompose, false, beyondAscii, text::composed},
    {"plain-marks", &Options::udCleanCharactersPlainMarks, false, marks, plainMarks},
    {"markdown", &Options::udCleanCharactersMarkdown, false, markdownSigns, removeMarkdown},
};

// Without these, only Markdown is left to look for.
constexpr UnitSet notable{{u'\0', u'\b'}, {u'\v', u'\v'}, {u'\x0E', u'\x1F'}, {u'\x7F', u'\xFFFF'}};

} // namespace

std::span<const CharacterClass> characterClasses() {
    return classes;
}

std::u16string CharacterClass::cleaned(std::u16string text) const {
    std::size_t count = 0;
    return text::findUnit(text, 0, units) < text.size() ? clean(std::move(text), count) : text;
}

std::u16string cleanCharactersAlone(std::u16string text, const CleaningOptions &options) {
    if (text::findUnit(text, 0, notable) == text.size()) {
        return text;
    }
    for (const CharacterClass &row : classes) {
        if (row.clean != removeMarkdown && row.isOn(options)) {
            text = row.cleaned(std::move(text));
        }
    }
    return text;
}

std::u16string cleanCharacters(std::u16string text, const CleaningOptions &options) {
    static constexpr const CharacterClass &markdown = *(std::end(classes) - 1);
    static_assert(markdown.clean == removeMarkdown);
    text = cleanCharactersAlone(std::move(text), options);
    return markdown.isOn(options) ? markdown.cleaned(std::move(text)) : text;
}

} // namespace nerlo::engine
