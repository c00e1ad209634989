#include "engine/EncodingRepair.h"

#include "engine/CharacterReferences.h"
#include "engine/EncodingTables.h"
#include "text/Characters.h"
#include "text/UnitPages.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <string_view>
#include <utility>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

constexpr CharsetBytes charsetBytes;

// What a repair must take off a line's unlikeliness: less where all of the line's characters beyond
// ASCII are bytes of UTF-8, since that seldom happens by chance.
constexpr int enoughForWhole = 6;
constexpr int enoughForPart = 13;
// The same for a charset that was found in the same line.
constexpr int enoughInKnownLine = 3;
// A layer may make a line look worse by this much, if the next ones make up for it. So may parts of
// a line in which nothing else is left to repair.
constexpr int bearable = 6;
constexpr int bearablePart = 12;
// So many characters of UTF-8 in a row are nothing special.
constexpr int ordinaryRun = 3;

// The second is for lines that are clear only by what others have shown.
constexpr int passes = 2;
constexpr int layersInAPass = mostEncodingLayers / passes;

// --- how unlikely a text is

struct Trait {
    Kind kind;
    std::uint8_t oddness;
    std::uint32_t languages; // one bit each; all for a letter of none
};

static_assert(std::size(alphabets) < 32);

std::uint32_t languagesOf(char16_t unit) {
    std::uint32_t languages = 0;
    for (std::size_t at = 0; at < std::size(alphabets); ++at) {
        languages |= alphabets[at].find(unit) != View::npos ? 1U << at : 0;
    }
    const bool isVietnamese =
        (unit >= 0x1EA0 && unit <= 0x1EF9) || vietnamese.find(unit) != View::npos;
    languages |= isVietnamese ? 1U << 31 : 0;
    return languages ? languages : ~0U;
}

// Whether a letter of Latin's extended blocks is a capital: they come in pairs, capital first.
constexpr bool isExtendedCapital(char16_t unit) {
    const bool capitalIsOdd = (unit >= 0x139 && unit <= 0x148) ||
                              (unit >= 0x179 && unit <= 0x17E) || (unit >= 0x1A0 && unit <= 0x1E5);
    return unit >= 0x100 && unit != 0x17F && unit < 0xFB00 && unit != 0x259 &&
           (unit % 2 == 1) == capitalIsOdd;
}

Trait traitOf(char16_t unit) {
    if (unit >= 0xD800 && unit <= 0xDFFF) { // emoji, or else something rare; the first half counts
        const bool common = (unit >= 0xD83C && unit <= 0xD83E) || unit >= 0xDC00;
        return {Kind::picture, static_cast<std::uint8_t>(common ? 0 : 5), ~0U};
    }
    Trait trait{Kind::odd, oddOddness, languagesOf(unit)};
    for (const KindRow &row : kindRows) {
        if (unit >= row.first && unit <= row.last) {
            trait.kind = row.kind;
            trait.oddness = row.oddness;
        }
    }
    if (trait.kind == Kind::latinLower && isExtendedCapital(unit)) {
        trait.kind = Kind::latinUpper;
    }
    return trait;
}

text::UnitPages<Trait, traitOf> traits;

enum Script { noScript, latin, greek, cyrillic, eastAsia, others };

constexpr Script scriptOf(Kind kind) {
    switch (kind) {
    case Kind::lower:
    case Kind::upper:
    case Kind::latinLower:
    case Kind::latinUpper:
        return latin;
    case Kind::greekLower:
    case Kind::greekUpper:
        return greek;
    case Kind::cyrillicLower:
    case Kind::cyrillicUpper:
        return cyrillic;
    case Kind::eastAsian:
        return eastAsia;
    case Kind::hebrew:
    case Kind::arabic:
    case Kind::indic:
    case Kind::southEastAsian:
    case Kind::otherLetter:
        return others;
    default:
        return noScript;
    }
}

constexpr bool isOneOf(Kind kind, std::initializer_list<Kind> kinds) {
    return std::ranges::find(kinds, kind) != kinds.end();
}

constexpr bool isSmall(Kind kind) {
    return isOneOf(kind, {Kind::lower, Kind::latinLower, Kind::greekLower, Kind::cyrillicLower});
}

constexpr bool isCapital(Kind kind) {
    return isOneOf(kind, {Kind::upper, Kind::latinUpper, Kind::greekUpper, Kind::cyrillicUpper});
}

constexpr bool isAscii(Kind kind) {
    return kind <= Kind::upper;
}

constexpr bool isSign(Kind kind) {
    return isOneOf(kind, {Kind::opening, Kind::trade, Kind::currency, Kind::superscript,
                          Kind::symbol, Kind::diacritic, Kind::math});
}

constexpr int oddnessBetweenLetters(Kind a, Kind b) {
    const Script one = scriptOf(a);
    const Script other = scriptOf(b);
    if (one == other) {
        const bool capitalInside = isSmall(a) && isCapital(b) && !(isAscii(a) && isAscii(b));
        return capitalInside ? 6 : a == b || one != others ? 0 : 6;
    }
    if (one == eastAsia || other == eastAsia) {
        return 5;
    }
    return (one == greek && other == latin) || (one == latin && other == greek) ? 2 : 6;
}

constexpr int oddnessAfterLetter(Kind letter, Kind sign) {
    switch (sign) {
    case Kind::opening:
    case Kind::lowQuote:
    case Kind::diacritic:
        return 4;
    case Kind::corner:
        return 6;
    case Kind::line:
        return 1;
    case Kind::lost:
        return letter == Kind::latinLower ? 4 : letter == Kind::latinUpper ? 1 : 0;
    case Kind::noBreak:
        return letter == Kind::latinUpper ? 1 : 0;
    case Kind::picture:
        return 1;
    case Kind::currency:
        return isAscii(letter) ? 1 : letter == Kind::latinUpper ? 2 : 8;
    case Kind::symbol:
        return 3;
    case Kind::math:
        return 5;
    case Kind::superscript:
    case Kind::trade:
        return 1;
    default:
        return 0;
    }
}

constexpr int oddnessBeforeLetter(Kind sign, Kind letter) {
    switch (sign) {
    case Kind::corner:
        return 6;
    case Kind::trade:
    case Kind::picture:
        return 4;
    case Kind::math:
        return isAscii(letter) || scriptOf(letter) != latin ? 0 : 4;
    case Kind::symbol:
    case Kind::diacritic:
    case Kind::superscript:
        return 2;
    case Kind::line:
    case Kind::currency:
    case Kind::digit:
        return isAscii(letter) ? 0 : 1;
    default:
        return 0;
    }
}

constexpr int oddnessOfPair(Kind a, Kind b) {
    const bool letterFirst = scriptOf(a) != noScript;
    const bool letterSecond = scriptOf(b) != noScript;
    if (letterFirst && letterSecond) {
        return oddnessBetweenLetters(a, b);
    }
    if (letterFirst) {
        return oddnessAfterLetter(a, b);
    }
    if (letterSecond) {
        return oddnessBeforeLetter(a, b);
    }
    if (isSign(a) && isSign(b)) {
        return a == b ? 1 : 2;
    }
    if (b == Kind::combining) {
        return 1;
    }
    if ((a == Kind::corner && isSign(b)) || (isSign(a) && b == Kind::corner)) {
        return 6;
    }
    return isSign(a) && b == Kind::quote ? 2 : isSign(b) && a == Kind::dots ? 1 : 0;
}

constexpr int oddnessInsideWord(Kind kind) {
    switch (kind) {
    case Kind::quote:
        return 7;
    case Kind::superscript:
        return 6;
    case Kind::lowQuote:
        return 4;
    case Kind::opening:
    case Kind::trade:
    case Kind::symbol:
        return 3;
    case Kind::math:
    case Kind::diacritic:
        return 2;
    case Kind::dots:
        return 1;
    default:
        return 0;
    }
}

using PairTable = std::array<std::array<std::uint8_t, static_cast<std::size_t>(Kind::count)>,
                             static_cast<std::size_t>(Kind::count)>;

constexpr PairTable makePairTable() {
    PairTable table{};
    for (std::size_t a = 0; a < table.size(); ++a) {
        for (std::size_t b = 0; b < table.size(); ++b) {
            table[a][b] = static_cast<std::uint8_t>(
                oddnessOfPair(static_cast<Kind>(a), static_cast<Kind>(b)));
        }
    }
    return table;
}

constexpr PairTable pairTable = makePairTable();

int oddnessOf(Kind a, Kind b) {
    return pairTable[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)];
}

int oddnessOf(Kind before, Trait trait, Kind after) {
    const bool letterBefore = scriptOf(before) != noScript;
    const bool letterAfter = scriptOf(after) != noScript;
    int sum = trait.oddness + oddnessOf(before, trait.kind);
    if (letterBefore && letterAfter) {
        sum += oddnessInsideWord(trait.kind);
    }
    if (!letterBefore && !letterAfter) { // words of one letter are few
        sum += trait.kind == Kind::latinUpper && after != Kind::apostrophe ? 2 : 0;
        sum += trait.kind == Kind::eastAsian ? 4 : 0;
    }
    return sum;
}

// Of a part of a text that stands between two characters of these kinds.
int unlikeliness(View part, Kind before, Kind after) {
    constexpr int strangers = 4;
    int sum = 0;
    std::uint32_t languages = ~0U; // of the letter before
    for (std::size_t at = 0; at < part.size(); ++at) {
        const Trait trait = traits[part[at]];
        sum += (languages & trait.languages) == 0 ? strangers : 0;
        languages = trait.languages;
        const Kind next = at + 1 < part.size() ? traits[part[at + 1]].kind : after;
        sum += oddnessOf(before, trait, next);
        before = trait.kind;
    }
    return part.empty() ? 0 : sum + oddnessOf(before, after);
}

// --- characters of UTF-8

constexpr char16_t lostCharacter = u'\uFFFD';

constexpr bool isContinuation(std::uint8_t byte) {
    return byte >= 0x80 && byte < 0xC0;
}

constexpr std::size_t sizeByLead(std::uint8_t byte) {
    return byte >= 0xC2 && byte < 0xE0   ? 2
           : byte >= 0xE0 && byte < 0xF0 ? 3
           : byte >= 0xF0 && byte < 0xF5 ? 4
                                         : 0;
}

// A character of UTF-8 whose bytes were shown in a charset.
struct Sequence {
    char32_t character;
    std::size_t size; // as it was shown
    int doubt = 0;
    bool lostBytes = false;
    bool blanks = false; // taken for no-break spaces
    int strangers = 0;   // controls where the charset has characters
};

// ISO 8859-1 is a part of the first, so that both are at home there.
bool isStranger(char16_t unit, std::size_t charset) {
    return charset != 0 && unit >= 0x80 && unit < 0xA0 &&
           charsets[charset].upperHalf[unit - 0x80] != u'?';
}

constexpr char32_t leastOfSize[] = {0, 0, 0x80, 0x800, 0x10000};

std::optional<Sequence> simpleSequenceAt(View line, std::size_t at, std::size_t charset) {
    const std::uint8_t lead = charsetBytes[line[at]][charset];
    const std::size_t size = sizeByLead(lead);
    if (size == 0 || line.size() - at < size) {
        return std::nullopt;
    }
    Sequence result{static_cast<char32_t>(lead & (0xFF >> (size + 1))), size};
    std::size_t found = 0;
    for (std::size_t next = at + 1; next < at + size; ++next) {
        const char16_t unit = line[next];
        std::uint8_t byte = charsetBytes[unit][charset];
        if (isContinuation(byte)) {
            ++found;
        } else if (unit == u' ' && charsetBytes[0xA0][charset] == 0xA0) {
            byte = 0xA0;
            result.blanks = true;
            result.doubt += 1;
        } else if (unit == lostCharacter || unit == u'?') {
            result.lostBytes = true;
            result.doubt += unit == u'?' ? 2 : 1;
        } else {
            return std::nullopt;
        }
        result.character = result.character << 6 | (byte & 0x3F);
        result.strangers += isStranger(unit, charset) ? 1 : 0;
    }
    if (size > 2 && found == 0) {
        return std::nullopt;
    }
    if (result.lostBytes) {
        result.character = lostCharacter;
        return result;
    }
    // A dagger with a blank in it is rather a quote with a byte that vanished.
    const bool dagger = result.blanks && result.character == u'†';
    const bool valid =
        !dagger && result.character >= leastOfSize[size] && result.character <= 0x10FFFF;
    return valid ? std::optional(result) : std::nullopt;
}

// A pair of surrogates may be written as two characters of three bytes.
std::optional<Sequence> sequenceAt(View line, std::size_t at, std::size_t charset) {
    const auto first = simpleSequenceAt(line, at, charset);
    if (!first || first->character < 0xD800 || first->character > 0xDFFF) {
        return first;
    }
    if (first->character > 0xDBFF || at + first->size == line.size()) {
        return std::nullopt;
    }
    const auto second = simpleSequenceAt(line, at + first->size, charset);
    if (!second || second->character < 0xDC00 || second->character > 0xDFFF) {
        return std::nullopt;
    }
    const char32_t character =
        0x10000 + ((first->character - 0xD800) << 10) + (second->character - 0xDC00);
    return Sequence{character, first->size + second->size};
}

// A blank that was the second byte of "à" has mostly swallowed the blank after the word; but there
// are Portuguese words that begin with it.
bool blankStays(View after) {
    constexpr View marks = u".,;:!?)";
    if (after.starts_with(u' ')) {
        return false;
    }
    if (after.starts_with(u's')) {
        return after.size() > 1 && after[1] != u' ' && marks.find(after[1]) == View::npos;
    }
    return !after.starts_with(u"quel");
}

// Bytes may have vanished without a trace, where the rest of the line is clear: programs drop the
// soft hyphen ("í" has it) and what is a gap in windows-1252 (the closing quote has one).
std::optional<Sequence> vanishedSequenceAt(View line, std::size_t at, std::size_t charset) {
    const auto byteAt = [&](std::size_t place) {
        return place < line.size() ? charsetBytes[line[place]][charset] : std::uint8_t{0};
    };
    const char16_t next = at + 1 < line.size() ? line[at + 1] : u' ';
    if (byteAt(at) == 0xC3 && next >= u'a' && next <= u'z') {
        return Sequence{u'í', 1, 2};
    }
    if (charset == 0 && byteAt(at) == 0xE2 && byteAt(at + 1) == 0x80 &&
        (at + 2 >= line.size() || line[at + 2] < 0x80)) {
        return Sequence{u'”', 2, 2};
    }
    return std::nullopt;
}

// --- a line, read in a charset

struct Attempt {
    std::u16string line;
    int gain = 0;      // what it takes off the unlikeliness
    bool whole = true; // nothing beyond ASCII is left as it was
    std::size_t charset = 0;
};

class Reading {
  public:
    // If the line is known to have been read in the charset, some more is taken for its bytes.
    Reading(View line, std::size_t charset, bool known)
        : line_(line)
        , charset_(charset)
        , known_(known) {
        result_.charset = charset;
    }

    Attempt make() {
        for (std::size_t at = 0; at < line_.size();) {
            const char16_t unit = line_[at];
            if (const auto sequence = unit < 0x80 ? std::nullopt : find(at)) {
                take(*sequence, at);
                at = blockEnd_;
                continue;
            }
            closeBlock();
            keep(unit);
            blockStart_ = blockEnd_ = ++at;
        }
        closeBlock();
        result_.gain += result_.whole ? taken_ : 0;
        result_.gain -= charsets[charset_].doubt + 2 * strangers_;
        return std::move(result_);
    }

  private:
    std::optional<Sequence> find(std::size_t at) const {
        const auto sequence = sequenceAt(line_, at, charset_);
        return sequence || !known_ ? sequence : vanishedSequenceAt(line_, at, charset_);
    }

    void take(const Sequence &sequence, std::size_t at) {
        blockEnd_ = at + sequence.size;
        text::appendCharacter(block_, sequence.character);
        if (sequence.character == u'à' && sequence.blanks && blankStays(line_.substr(blockEnd_))) {
            block_ += u' ';
        }
        ++blockTaken_;
        strangers_ += sequence.strangers;
        // Longer ones come about by chance less often.
        const int evidence = sequence.lostBytes ? 0 : 3 * (static_cast<int>(sequence.size) - 2);
        blockGain_ += std::clamp(evidence, 0, 6) - sequence.doubt;
    }

    void keep(char16_t unit) {
        result_.whole = result_.whole && (unit < 0x80 || unit == lostCharacter);
        result_.line += unit;
    }

    // Sequences that stand together are repaired together or not at all. Long runs of them do not
    // come about by chance.
    void closeBlock() {
        if (block_.empty()) {
            return;
        }
        const View before = line_.substr(blockStart_, blockEnd_ - blockStart_);
        const Kind left = result_.line.empty() ? Kind::blank : traits[result_.line.back()].kind;
        const Kind right = blockEnd_ < line_.size() ? traits[line_[blockEnd_]].kind : Kind::blank;
        blockGain_ += unlikeliness(before, left, right) - unlikeliness(block_, left, right);
        blockGain_ += 2 * std::max(blockTaken_ - ordinaryRun, 0);
        if (blockGain_ > (known_ ? -bearablePart : 0)) {
            result_.gain += blockGain_;
            result_.line += block_;
            taken_ += blockTaken_;
        } else {
            result_.whole = false;
            result_.line += before;
        }
        block_.clear();
        blockGain_ = blockTaken_ = 0;
    }

    View line_;
    std::size_t charset_;
    bool known_;
    Attempt result_;
    int taken_ = 0;     // sequences
    int strangers_ = 0; // what another charset would explain better
    std::size_t blockStart_ = 0;
    std::size_t blockEnd_ = 0;
    std::u16string block_; // the sequences from blockStart_ to blockEnd_, repaired
    int blockGain_ = 0;
    int blockTaken_ = 0;
};

Attempt attemptIn(View line, std::size_t charset) {
    Attempt careful = Reading(line, charset, false).make();
    if (careful.gain <= 0) {
        Attempt bold = Reading(line, charset, true).make();
        return bold.whole ? std::move(bold) : std::move(careful);
    }
    if (!careful.whole || careful.gain >= enoughForWhole) {
        Attempt bold = Reading(line, charset, true).make();
        if (bold.whole) {
            return bold;
        }
    }
    return careful;
}

// The charsets, one bit each, in which some characters of a line may be bytes of UTF-8.
using Charsets = std::uint32_t;

struct Roles {
    Charsets leadOfTwo = 0;
    Charsets leadOfMore = 0;
    Charsets continuation = 0;
};

Roles rolesOf(char16_t unit) {
    Roles roles;
    for (std::size_t charset = 0; charset < charsetCount; ++charset) {
        const std::uint8_t byte = charsetBytes[unit][charset];
        const auto bit = Charsets{1} << charset;
        roles.leadOfTwo |= sizeByLead(byte) == 2 ? bit : 0;
        roles.leadOfMore |= sizeByLead(byte) > 2 ? bit : 0;
        roles.continuation |= isContinuation(byte) ? bit : 0;
    }
    if (unit == u' ' || unit == u'?' || unit == lostCharacter) {
        roles.continuation = ~Charsets{0};
    }
    return roles;
}

text::UnitPages<Roles, rolesOf> rolesOfUnits;

bool isC1(char16_t unit) {
    return unit >= 0x80 && unit < 0xA0;
}

// Whether the letter before a blank, "?" or lost character is worth a look for that alone.
bool mayHaveLostByte(View line, std::size_t at) {
    const auto isSmallLetter = [](char16_t unit) { return unit >= u'a' && unit <= u'z'; };
    const View after = line.substr(at + 1);
    return (at > 0 && isSmallLetter(line[at - 1])) ||
           (after.size() > 2 && after.starts_with(u"  ") && isSmallLetter(after[2]));
}

Charsets charsetsToTry(View line) {
    Charsets result = 0;
    for (std::size_t at = 0; at + 1 < line.size(); ++at) {
        if (line[at] < 0x80) {
            continue;
        }
        const Roles roles = rolesOfUnits[line[at]];
        if ((roles.leadOfTwo | roles.leadOfMore) == 0) {
            continue;
        }
        const char16_t next = line[at + 1];
        const Charsets continued = rolesOfUnits[next].continuation;
        if (next >= 0x80) {
            result |= roles.leadOfTwo & continued;
        } else if (mayHaveLostByte(line, at)) {
            result |= roles.leadOfTwo & continued;
        }
        if (at + 2 < line.size() && (next >= 0x80 || line[at + 2] >= 0x80)) {
            result |= roles.leadOfMore & continued & rolesOfUnits[line[at + 2]].continuation;
        }
    }
    return result;
}

// A letter beside which nothing of windows-1252 is expected.
bool isForeign(char16_t unit) {
    const Script script = scriptOf(traits[unit].kind);
    return script == eastAsia || script == others;
}

// What windows-1252 has where ISO 8859-1 has controls; whether there was any. "ESC [" in one
// character begins a terminal's control sequence.
bool replaceC1(std::u16string &line) {
    constexpr char16_t sequenceIntroducer = 0x9B;
    bool changed = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        char16_t &unit = line[at];
        if (!isC1(unit)) {
            continue;
        }
        const char16_t next = at + 1 < line.size() ? line[at + 1] : u' ';
        const char16_t shown = charsets[0].upperHalf[unit - 0x80];
        const bool terminal =
            unit == sequenceIntroducer && (next == u'?' || (next >= u'0' && next <= u'9'));
        const bool foreign = isForeign(next) || (at > 0 && isForeign(line[at - 1]));
        if (shown != u'?' && !terminal && !foreign) {
            unit = shown;
            changed = true;
        }
    }
    return changed;
}

// Repairs a text's lines, and remembers the charsets that it found on the way.
class LineRepair {
  public:
    // Layer by layer. Several may be needed before it shows that they were right.
    std::optional<std::u16string> operator()(View line) {
        std::optional<std::u16string> accepted;
        std::u16string current(line);
        Charsets knownInLine = 0;
        int acceptedLayers = 0;
        Trial trial;
        for (int layers = 0; layers < layersInAPass;) {
            if (auto better = bestTrial(current, trial, knownInLine)) {
                trial = *std::move(better);
                current = trial.line;
                ++layers;
                if (trial.enough) {
                    accepted = current;
                    acceptedLayers = layers;
                    knownInLine |= trial.charsets;
                    trial = {};
                }
                continue;
            }
            layers = acceptedLayers;
            current = accepted ? *accepted : std::u16string(line);
            if (!replaceC1(current)) {
                break;
            }
            accepted = current;
            trial = {};
        }
        knownInText_ |= knownInLine;
        return accepted;
    }

    bool knowsCharsets() const { return knownInText_ != 0; }

  private:
    // Layers that were taken off and not yet believed in.
    struct Trial {
        std::u16string line;
        int gain = 0;
        Charsets charsets = 0;
        bool enough = false;
    };

    // With one layer more: what can be believed in, else what can be borne, and of those what helps
    // most.
    std::optional<Trial> bestTrial(View line, const Trial &before, Charsets knownInLine) const {
        std::optional<Trial> best;
        for (Charsets left = charsetsToTry(line); left != 0; left &= left - 1) {
            const auto charset = static_cast<std::size_t>(std::countr_zero(left));
            Attempt attempt = attemptIn(line, charset);
            if (attempt.line == line || attempt.gain <= (attempt.whole ? -bearable : 0)) {
                continue;
            }
            Trial trial{std::move(attempt.line), before.gain + attempt.gain,
                        before.charsets | Charsets{1} << charset};
            trial.enough = trial.gain >= enough(trial, attempt.whole, knownInLine);
            if (!best ||
                std::pair(trial.enough, trial.gain) > std::pair(best->enough, best->gain)) {
                best = std::move(trial);
            }
        }
        return best;
    }

    int enough(const Trial &trial, bool whole, Charsets knownInLine) const {
        if ((trial.charsets & ~knownInLine) == 0) {
            return enoughInKnownLine;
        }
        if ((trial.charsets & ~knownInText_) == 0) {
            return whole ? enoughInKnownLine : enoughForWhole;
        }
        if (whole) {
            return enoughForWhole;
        }
        // What stays as bad in other places was not understood.
        const int left = unlikeliness(trial.line, Kind::blank, Kind::blank);
        return std::max(enoughForPart, 2 * left);
    }

    Charsets knownInText_ = 0;
};

constexpr text::UnitSet beyondAscii = [] {
    text::UnitSet set;
    set.add(0x80, 0xFFFF);
    return set;
}();

bool mayBeBroken(View line) {
    return charsetsToTry(line) != 0 || std::ranges::any_of(line, isC1);
}

std::optional<std::u16string> repairedLines(View text, LineRepair &repair) {
    std::optional<std::u16string> result;
    std::size_t done = 0;
    for (std::size_t at = text::findUnit(text, 0, beyondAscii); at < text.size();) {
        const std::size_t start = text.rfind(u'\n', at) + 1; // 0 without one
        const std::size_t end = std::min(text.find(u'\n', at), text.size());
        const View line = text.substr(start, end - start);
        if (mayBeBroken(line)) {
            if (const auto repaired = repair(line)) {
                result = result ? std::move(result) : std::u16string();
                result->append(text, done, start - done);
                *result += *repaired;
                done = end;
            }
        }
        at = text::findUnit(text, end, beyondAscii);
    }
    if (result) {
        result->append(text, done);
    }
    return result;
}

} // namespace

std::u16string repairEncoding(std::u16string text, bool references) {
    if (references) {
        text = decodeCharacterReferences(std::move(text), mostEncodingLayers);
    }
    LineRepair repair;
    for (int pass = 0; pass < passes; ++pass) {
        if (auto repaired = repairedLines(text, repair)) {
            text = *std::move(repaired);
        }
        if (!repair.knowsCharsets()) {
            break;
        }
    }
    return text;
}

} // namespace nerlo::engine
