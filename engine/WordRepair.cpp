#include "engine/WordRepair.h"

#include "engine/TextLanguage.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

constexpr std::size_t longestWord = 64;
constexpr int mostRounds = 8;
constexpr std::size_t longestTail = 256; // what comes up: a word with the marks behind it

constexpr text::UnitSet breakUnits(u"\r\n");

constexpr View openers = u"([{<\"'`\u00AB\u00BB\u2018\u2019\u201A\u201C\u201D\u201E\u2039\u203A";

constexpr char16_t softHyphen = u'\u00AD';

bool isHyphen(char16_t unit) {
    return unit == u'-' || unit == u'\u2010';
}

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0';
}

bool isBreak(char16_t unit) {
    return unit == u'\n' || unit == u'\r';
}

// Letters with their marks; halves of pairs count, and digits do not.
bool isLetter(char16_t unit) {
    return unit < 0x80 ? text::isAsciiLetter(unit)
                       : text::isWordCharacter(unit) || (unit & 0xF800U) == 0xD800U;
}

bool isApostrophe(char16_t unit) {
    return unit == u'\'' || unit == u'\u2019';
}

std::u16string lowered(View word) {
    return text::toLowercase(std::u16string(word), "");
}

// The words of a text and what they say about each other. Compounds with hyphens count as the words
// in them, and as the pairs that they make.
class Evidence {
  public:
    void read(View text) {
        std::u16string low = lowered(text);
        for (std::size_t at = 0; at < low.size();) {
            if (!isLetter(low[at])) {
                ++at;
                continue;
            }
            at = readCompound(low, at);
        }
        for (const auto &[word, count] : words_) {
            sorted_.push_back(word);
        }
        std::ranges::sort(sorted_);
    }

    std::size_t words(const std::u16string &word) const { return countIn(words_, word); }
    std::size_t pairs(View left, View right) const {
        return countIn(pairs_, std::u16string(left).append(u"-").append(right));
    }
    std::size_t beforeHyphens(const std::u16string &word) const { return countIn(lefts_, word); }
    std::size_t behindHyphens(const std::u16string &word) const { return countIn(rights_, word); }

    // Units that the word has in common with the beginning of another one.
    std::size_t sharedBeginning(View word) const {
        const auto next = std::ranges::lower_bound(sorted_, word);
        std::size_t most = 0;
        if (next != sorted_.end()) {
            most = shared(*next, word);
        }
        if (next != sorted_.begin()) {
            most = std::max(most, shared(*std::prev(next), word));
        }
        return most;
    }

  private:
    using Counts = std::unordered_map<std::u16string, std::size_t>;

    static std::size_t countIn(const Counts &counts, const std::u16string &word) {
        const auto row = counts.find(word);
        return row == counts.end() ? 0 : row->second;
    }

    static std::size_t shared(View a, View b) {
        const auto [left, right] = std::ranges::mismatch(a, b);
        return static_cast<std::size_t>(left - a.begin());
    }

    // Returns where it ends. Words at a break are not whole and do not count.
    std::size_t readCompound(View text, std::size_t at) {
        View left;
        bool cut = false; // the line above ends in a hyphen
        for (std::size_t before = at; before > 0 && !cut;) {
            --before;
            if (!isBlank(text[before]) && !isBreak(text[before])) {
                cut = before + 1 < at && isHyphen(text[before]);
                break;
            }
        }
        for (;;) {
            std::size_t end = at;
            while (end < text.size() && isLetter(text[end])) {
                ++end;
            }
            const View word = text.substr(at, end - at);
            const bool hyphen = end < text.size() && isHyphen(text[end]);
            const bool more = hyphen && end + 1 < text.size() && isLetter(text[end + 1]);
            if (!cut && (more || !hyphen) && word.size() <= longestWord) {
                count(left, word);
                left = word;
            } else {
                left = {};
            }
            cut = false;
            if (!more) {
                return end + 1;
            }
            at = end + 1;
        }
    }

    void count(View left, View word) {
        ++words_[std::u16string(word)];
        if (!left.empty()) {
            ++pairs_[std::u16string(left).append(u"-").append(word)];
            ++lefts_[std::u16string(left)];
            ++rights_[std::u16string(word)];
        }
    }

    Counts words_;
    Counts pairs_;
    Counts lefts_;
    Counts rights_;
    std::vector<std::u16string> sorted_;
};

// What connects a word that is cut short on purpose with the next: "pre- and postfix".
constexpr std::array<View, 19> joiners{u"and",
                                       u"or",
                                       u"und",
                                       u"oder",
                                       u"bzw",
                                       u"sowie",
                                       u"et",
                                       u"ou",
                                       u"och",
                                       u"eller",
                                       u"oraz",
                                       u"lub",
                                       u"nebo",
                                       u"tai",
                                       u"vagy",
                                       u"veya",
                                       u"\u0438\u043B\u0438",
                                       u"\u0430\u0431\u043E",
                                       u"\u03BA\u03B1\u03B9"};

enum class Verdict {
    join,
    keep,
    leave,
    likelyJoin, // a cut if words are cut in this text at all, else left alone
};

// The two sides of a break, in lower case, with the whole of what stands there.
struct Cut {
    View token;            // up to the hyphen, from the blank before it
    View rest;             // from the next line's first letter or digit to the next other sign
    std::u16string left;   // the letters in front of the hyphen
    std::u16string right;  // the letters behind it
    bool compound = false; // there are more hyphens on either side
    char16_t sign = u'-';
};

class Judge {
  public:
    Judge(View text, std::string_view locale, const FindDictionary &find)
        : text_(text)
        , locale_(locale)
        , find_(find) {}

    Verdict of(const Cut &cut) {
        if (cut.sign == softHyphen) {
            return Verdict::join;
        }
        const bool option = cut.token.starts_with(u'-');
        const bool plain = !option && std::ranges::all_of(cut.token, [](char16_t unit) {
            return isLetter(unit) || isHyphen(unit) || isApostrophe(unit);
        });
        if (!plain || cut.left.empty() || cut.right.empty()) {
            return endsInJoiner(cut) ? Verdict::leave : Verdict::keep; // digits, options, paths
        }
        const bool capital = text::letterCase(cut.rest[0]) == text::LetterCase::Upper;
        if (capital && !(isUpper(cut.token) && isUpper(cut.rest))) {
            return Verdict::keep;
        }
        const Verdict verdict = ofLetters(cut);
        provenCuts_ += verdict == Verdict::join;
        provenHyphens_ += verdict == Verdict::keep;
        unsure_ = unsure_ || verdict == Verdict::likelyJoin;
        const bool likely = verdict == Verdict::likelyJoin;
        return likely ? cutsAreUsual_ ? Verdict::join : Verdict::leave
               : capital && verdict == Verdict::leave ? Verdict::keep
                                                      : verdict;
    }

    // Whether another walk would find more, now that this one has shown that words are cut here.
    bool learned() {
        const bool usual = unsure_ && provenCuts_ > provenHyphens_;
        return usual && !std::exchange(cutsAreUsual_, true);
    }

    bool knows(const std::u16string &word) {
        if (!dictionary_) {
            const std::string_view home = std::string_view(locale_).substr(0, locale_.find('_'));
            const std::string_view language = languageOf(text_, home);
            dictionary_ = find_(language == home ? std::string_view(locale_) : language);
        }
        return *dictionary_ && (*dictionary_)(word);
    }
    bool knowsAnyCase(const std::u16string &word) {
        return knows(word) || knows(text::toTitlecase(word, ""));
    }

    bool hasDictionary() {
        knows(u"");
        return *dictionary_ != nullptr;
    }

  private:
    static bool isUpper(View word) {
        return std::ranges::none_of(
            word, [](char16_t unit) { return text::letterCase(unit) == text::LetterCase::Other; });
    }

    const Evidence &evidence() {
        if (!evidence_) {
            evidence_.emplace().read(text_);
        }
        return *evidence_;
    }

    Verdict ofLetters(const Cut &cut) {
        const std::u16string joined = cut.left + cut.right;
        const std::size_t whole = evidence().words(joined);
        const std::size_t pair = evidence().pairs(cut.left, cut.right);
        if (whole < pair) {
            return Verdict::keep;
        }
        if (whole > pair) {
            return areWords(cut) ? Verdict::likelyJoin : Verdict::join;
        }
        if (endsInJoiner(cut)) {
            return knowsAnyCase(joined) ? Verdict::likelyJoin : Verdict::leave;
        }
        if (evidence().sharedBeginning(joined) >= cut.left.size() + 3) {
            return areWords(cut) ? Verdict::likelyJoin : Verdict::join;
        }
        return byDictionary(cut, joined);
    }

    // "pre- and postfix" is cut short on purpose.
    static bool endsInJoiner(const Cut &cut) {
        return cut.rest.size() == cut.right.size() &&
               std::ranges::find(joiners, View(cut.right)) != joiners.end();
    }

    // Both sides, as far as can be told. A German noun in small letters is the end of a longer one.
    bool areWords(const Cut &cut) {
        if (cut.left.size() < 2 || cut.right.size() < 2) {
            return false;
        }
        return hasDictionary()
                   ? knows(cut.right) && (cut.right.size() > 5 || knowsAnyCase(cut.left))
                   : cut.left.size() > 2 && cut.right.size() > 3 &&
                         evidence().words(cut.left) > 0 && evidence().words(cut.right) > 0;
    }

    Verdict byDictionary(const Cut &cut, const std::u16string &joined) {
        const bool paired = (cut.left.size() > 2 && evidence().beforeHyphens(cut.left) > 0) ||
                            (cut.right.size() > 3 && evidence().behindHyphens(cut.right) > 0);
        // "mother-in-law"
        const bool chained = cut.compound && (isCommonWord(cut.left) || isCommonWord(cut.right));
        const bool known = hasDictionary() && knowsAnyCase(joined);
        const bool parts = areWords(cut);
        if (known != parts) {
            return known ? Verdict::join : Verdict::keep;
        }
        return chained || (paired && !(known && cut.left.size() < 4)) ? Verdict::keep
                                                                      : Verdict::likelyJoin;
    }

    View text_;
    std::string locale_;
    const FindDictionary &find_;
    std::optional<Evidence> evidence_;
    std::optional<text::KnowsWord> dictionary_;
    std::size_t provenCuts_ = 0;
    std::size_t provenHyphens_ = 0;
    bool unsure_ = false;       // about some break
    bool cutsAreUsual_ = false; // in this text, so that what is likely is done
};

// A line's end with a hyphen in front of it.
struct Break {
    std::size_t hyphen = 0;
    std::size_t lineEnd = 0; // behind the hyphen, or behind the blanks after it
    std::size_t next = 0;    // where the next line's words begin
    std::size_t tailEnd = 0; // behind what comes up
};

std::optional<Break> breakAt(View text, std::size_t lineBreak) {
    Break result;
    result.lineEnd = lineBreak;
    std::size_t at = lineBreak;
    while (at > 0 && isBlank(text[at - 1])) {
        --at;
    }
    if (at < 2 || (!isHyphen(text[at - 1]) && text[at - 1] != softHyphen)) {
        return std::nullopt;
    }
    result.hyphen = at - 1;
    const char16_t before = text[at - 2];
    if (!isLetter(before) && !text::isAsciiDigit(before)) {
        return std::nullopt;
    }
    at = lineBreak + (text.substr(lineBreak).starts_with(u"\r\n") ? 2 : 1);
    while (at < text.size() && isBlank(text[at])) {
        ++at;
    }
    if (at == text.size() || (!isLetter(text[at]) && !text::isAsciiDigit(text[at]))) {
        return std::nullopt;
    }
    result.next = at;
    while (at < text.size() && !isBlank(text[at]) && !isBreak(text[at]) && text[at] != u'\f') {
        ++at;
    }
    result.tailEnd = at;
    return at - result.next <= longestTail ? std::optional(result) : std::nullopt;
}

Cut cutOf(View before, View text, const Break &at) {
    Cut cut;
    cut.sign = text[at.hyphen];
    std::size_t begin = before.size();
    while (begin > 0 && before.size() - begin < longestTail && !isBlank(before[begin - 1]) &&
           !isBreak(before[begin - 1])) {
        --begin;
    }
    while (begin < before.size() && openers.find(before[begin]) != View::npos) {
        ++begin;
    }
    cut.token = before.substr(begin);
    std::size_t letters = before.size();
    while (letters > begin && isLetter(before[letters - 1])) {
        --letters;
    }
    cut.left = lowered(before.substr(letters));
    std::size_t end = at.next;
    while (end < at.tailEnd && isLetter(text[end])) {
        ++end;
    }
    cut.right = lowered(text.substr(at.next, end - at.next));
    while (end < at.tailEnd &&
           (isLetter(text[end]) || isHyphen(text[end]) || isApostrophe(text[end]))) {
        ++end;
    }
    cut.rest = text.substr(at.next, end - at.next);
    cut.compound = letters > begin || cut.rest.find(u'-') != View::npos;
    return cut;
}

class Rejoining {
  public:
    Rejoining(View text, Judge &judge)
        : text_(text)
        , judge_(judge) {}

    // Nothing where the text stays as it is.
    std::optional<std::u16string> run() {
        text::UnitCursor cursor(text_, breakUnits);
        for (std::size_t at = cursor.next(); at < text_.size(); at = cursor.next()) {
            if (const auto found = breakAt(text_, at)) {
                rejoin(*found);
            }
        }
        if (!changed_) {
            return std::nullopt;
        }
        endTail();
        result_.append(text_.substr(from_));
        return std::move(result_);
    }

  private:
    void rejoin(const Break &at) {
        if (at.hyphen >= tailEnd_) {
            endTail();
        }
        // What came up may be cut again.
        const View line = text_.substr(from_, at.hyphen - from_);
        result_.append(line);
        const Verdict verdict = judge_.of(cutOf(result_, text_, at));
        from_ = at.hyphen;
        if (verdict == Verdict::leave) {
            return;
        }
        changed_ = true;
        if (verdict == Verdict::keep) {
            result_ += text_[at.hyphen];
        }
        from_ = at.next;
        tailEnd_ = at.tailEnd;
        lineEnd_ = at.lineEnd;
    }

    // Writes what came up and, if the line below has more words, its break and indent behind it.
    void endTail() {
        if (tailEnd_ <= from_ || tailEnd_ == 0) {
            return;
        }
        const std::size_t next = tailBegin();
        result_.append(text_.substr(from_, tailEnd_ - from_));
        std::size_t more = tailEnd_;
        while (more < text_.size() && isBlank(text_[more])) {
            ++more;
        }
        if (more < text_.size() && !isBreak(text_[more])) {
            result_.append(text_.substr(lineEnd_, next - lineEnd_));
        }
        from_ = more;
        tailEnd_ = 0;
    }

    std::size_t tailBegin() const { return from_; }

    View text_;
    Judge &judge_;
    std::u16string result_;
    std::size_t from_ = 0;    // what is before it has been written
    std::size_t tailEnd_ = 0; // of what comes up from the line below; 0 for nothing
    std::size_t lineEnd_ = 0; // of the line to which it comes
    bool changed_ = false;
};

// --- gaps beside ligatures

constexpr std::array<View, 5> ligatures{u"ffi", u"ffl", u"ff", u"fi", u"fl"};

// Of the characters U+FB00 to U+FB04.
constexpr std::array<View, 5> ligatureLetters{u"ff", u"fi", u"fl", u"ffi", u"ffl"};

bool isLigature(char16_t unit) {
    return unit >= u'\uFB00' && unit <= u'\uFB04';
}

std::u16string withLetters(View word) {
    std::u16string result;
    for (const char16_t unit : word) {
        if (isLigature(unit)) {
            result += ligatureLetters[unit - u'\uFB00'];
        } else {
            result += unit;
        }
    }
    return result;
}

// Whether it is a ligature and nothing else; in a word of its own, it is a sign of gaps.
bool isLigatureAlone(View word) {
    return (word.size() == 1 && isLigature(word[0])) ||
           std::ranges::find(ligatures, word) != ligatures.end();
}

bool beginsWithLigature(View word) {
    return isLigature(word[0]) ||
           std::ranges::any_of(ligatures, [&](View each) { return word.starts_with(each); });
}

bool endsWithLigature(View word) {
    return isLigature(word.back()) ||
           std::ranges::any_of(ligatures, [&](View each) { return word.ends_with(each); });
}

class LigatureGaps {
  public:
    LigatureGaps(View text, Judge &judge)
        : text_(text)
        , judge_(judge) {}

    // Nothing where the text stays as it is.
    std::optional<std::u16string> run() {
        if (!showsGaps() || !judge_.hasDictionary()) {
            return std::nullopt;
        }
        for (std::size_t at = 0; at < text_.size();) {
            const View word = wordAt(at);
            if (word.empty()) {
                result_ += text_[at++]; // one blank is looked over, see blankBefore()
            } else {
                at += take(at, word);
            }
        }
        return changed_ ? std::optional(std::move(result_)) : std::nullopt;
    }

  private:
    bool showsGaps() const {
        static constexpr text::UnitSet marks(u"f\uFB00\uFB01\uFB02\uFB03\uFB04");
        text::UnitCursor cursor(text_, marks);
        for (std::size_t at = cursor.next(); at < text_.size(); at = cursor.next()) {
            const bool begins = at > 0 && text_[at - 1] == u' ';
            if (begins && (isLigature(text_[at]) || isLigatureAlone(wordAt(at)))) {
                return true;
            }
        }
        return false;
    }

    View wordAt(std::size_t at) const {
        std::size_t end = at;
        while (end < text_.size() && end - at <= longestWord && isLetter(text_[end])) {
            ++end;
        }
        return end - at > longestWord ? View() : text_.substr(at, end - at);
    }

    // The word that follows another one behind a blank.
    View nextWord(std::size_t end) const {
        return end + 1 < text_.size() && text_[end] == u' ' ? wordAt(end + 1) : View();
    }

    // Appends the word, or what it makes together with its neighbours. Returns the units taken.
    std::size_t take(std::size_t at, View word) {
        const std::size_t end = at + word.size();
        const View next = nextWord(end);
        const bool alone = isLigatureAlone(word);
        const std::u16string before = blankBefore() ? last_ : std::u16string();
        if (alone && !before.empty() && !next.empty() &&
            joins({before, std::u16string(word), std::u16string(next)})) {
            return end + 1 + next.size() - at;
        }
        if (!before.empty() && (beginsWithLigature(word) || endsWithLigature(before)) &&
            joins({before, std::u16string(word)})) {
            return word.size();
        }
        last_ = word;
        result_.append(word);
        return word.size();
    }

    // The last word ends one blank before the end of the result.
    bool blankBefore() const {
        return !last_.empty() && result_.ends_with(u' ') &&
               View(result_).substr(0, result_.size() - 1).ends_with(last_);
    }

    // Puts the last word together with these, if they are words only together.
    bool joins(const std::vector<std::u16string> &parts) {
        std::u16string word;
        bool allWords = true;
        for (const std::u16string &part : parts) {
            word += withLetters(part);
            allWords = allWords && !isLigatureAlone(part) && judge_.knowsAnyCase(lowered(part));
        }
        if (allWords || !judge_.knows(word)) {
            return false;
        }
        result_.resize(result_.size() - parts[0].size() - 1);
        result_.append(word);
        last_ = std::move(word);
        changed_ = true;
        return true;
    }

    View text_;
    Judge &judge_;
    std::u16string result_;
    std::u16string last_; // word of the result
    bool changed_ = false;
};

// Nothing where the text stays as it is.
std::optional<std::u16string> rejoinedOnce(View text, std::string_view locale,
                                           const FindDictionary &find) {
    Judge judge(text, locale, find);
    auto rejoined = Rejoining(text, judge).run();
    return judge.learned() ? Rejoining(text, judge).run() : rejoined;
}

// Words that are whole again may tell of others. A text that does not come to rest is left alone.
std::u16string withoutCuts(std::u16string text, std::string_view locale,
                           const FindDictionary &find) {
    std::u16string now = text;
    for (int round = 0; round < mostRounds; ++round) {
        auto next = rejoinedOnce(now, locale, find);
        if (!next) {
            return now;
        }
        now = std::move(*next);
    }
    return text;
}

} // namespace

std::u16string rejoinWords(std::u16string text, std::string_view locale,
                           const FindDictionary &find) {
    text = withoutCuts(std::move(text), locale, find);
    for (int round = 0; round < mostRounds; ++round) {
        Judge judge(text, locale, find);
        auto whole = LigatureGaps(text, judge).run();
        if (!whole) {
            break;
        }
        text = std::move(*whole);
    }
    return text;
}

} // namespace nerlo::engine
