#include "engine/Quotes.h"

#include "text/Characters.h"
#include "text/Replace.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace nerlo::engine {

namespace {

using Styles = std::span<const QuoteStyle>;

// Before an opening mark there may be the start of the text, white space or one of these. Letters
// match in either case, and "s" also matches the long s.
constexpr std::u16string_view openers[] = {
    u"--", u"&nbsp;", u"&mdash;", u"&ndash;", u"&#8211;", u"&#8212;", u"&#x2013;", u"&#x2014;",
};

// Characters that are not taken together with a closing mark behind them.
constexpr std::u16string_view notBeforeClosing = u" \t\r\n[{(-";

char16_t foldedLetter(char16_t unit) {
    if (unit >= u'A' && unit <= u'Z') {
        return static_cast<char16_t>(unit + (u'a' - u'A'));
    }
    return unit == u'\u017F' ? u's' : unit;
}

bool endsWithOpener(std::u16string_view before) {
    if (before.empty()) {
        return true;
    }
    const char16_t last = before.back();
    if (text::isWhiteSpace(last)) {
        return true;
    }
    if (last != u';' && last != u'-') {
        return false;
    }
    for (const std::u16string_view opener : openers) {
        if (before.size() < opener.size()) {
            continue;
        }
        const std::u16string_view tail = before.substr(before.size() - opener.size());
        bool equal = true;
        for (std::size_t i = 0; i < opener.size() && equal; ++i) {
            equal = foldedLetter(tail[i]) == opener[i];
        }
        if (equal) {
            return true;
        }
    }
    return false;
}

// Replaces the occurrences of `find` for which accept(text, position) holds, offered from left to
// right.
template <class Accept>
std::u16string replaceWhere(std::u16string text, std::u16string_view find,
                            std::u16string_view replacement, Accept accept) {
    const std::u16string_view whole(text);
    const auto next = [&](std::size_t from) {
        for (std::size_t at = text::findUnit(whole, from, find.front()); at < whole.size();
             at = text::findUnit(whole, at + 1, find.front())) {
            if (whole.substr(at).starts_with(find)) {
                return at;
            }
        }
        return whole.size();
    };
    if (find.size() == replacement.size()) {
        // In place, because a new mark means the same to accept() as the old one when it looks at
        // neighbours.
        for (std::size_t at = next(0); at < whole.size(); at = next(at + find.size())) {
            if (accept(whole, at)) {
                text.replace(at, find.size(), replacement);
            }
        }
        return text;
    }
    std::u16string result;
    std::size_t copied = 0;
    for (std::size_t at = next(0); at < whole.size(); at = next(at + find.size())) {
        if (accept(whole, at)) {
            result.append(whole, copied, at - copied);
            result.append(replacement);
            copied = at + find.size();
        }
    }
    if (copied == 0) {
        return text;
    }
    result.append(whole, copied);
    return result;
}

// A closing mark at the very start of the text, before punctuation, at a place that is no word
// boundary.
std::u16string replaceClosingAtStart(std::u16string text, std::u16string_view find,
                                     std::u16string_view replacement) {
    if (!text.starts_with(find) || text.size() == find.size()) {
        return text;
    }
    const char32_t next = text::characterAt(text, find.size());
    if (text::isPunctuation(next) &&
        !text::isWordBoundary(text, find.size() + text::sizeOf(next))) {
        text.replace(0, find.size(), replacement);
    }
    return text;
}

// An opening mark between an opener and a word.
std::u16string replaceOpening(std::u16string text, std::u16string_view find,
                              std::u16string_view replacement) {
    const auto opens = [find](std::u16string_view whole, std::size_t at) {
        const std::size_t after = at + find.size();
        return after < whole.size() && endsWithOpener(whole.substr(0, at)) &&
               text::isWordCharacter(text::characterAt(whole, after));
    };
    return replaceWhere(std::move(text), find, replacement, opens);
}

// Closing marks, each taken together with the character before it if that can be. Of two marks side
// by side the first may be taken as the character before the second; it then stays as it is.
std::u16string replaceClosing(std::u16string text, std::u16string_view find,
                              std::u16string_view replacement) {
    const auto closes = [find, free = std::size_t{0}](std::u16string_view whole,
                                                      std::size_t at) mutable {
        // Everything before `free` is part of an earlier match.
        const bool hasBefore =
            at > free && notBeforeClosing.find(whole[at - 1]) == std::u16string_view::npos;
        if (!hasBefore && find.size() == 1 && at + 1 < whole.size() &&
            whole[at + 1] == find.front()) {
            return false; // the next mark takes this one as the character before it
        }
        free = at + find.size();
        return true;
    };
    return replaceWhere(std::move(text), find, replacement, closes);
}

// All units of the styles' marks but the space, which stands in almost every text.
template <class Visit>
constexpr void forEachUnit(Styles styles, Visit visit) {
    for (const QuoteStyle &style : styles) {
        for (const std::u16string_view mark : {style.left, style.right}) {
            for (const char16_t unit : mark) {
                if (unit != u' ') {
                    visit(unit);
                }
            }
        }
    }
}

// The units of all marks, each once.
struct MarkUnits {
    constexpr MarkUnits() {
        for (const Styles styles : {Styles(singleQuoteStyles), Styles(doubleQuoteStyles)}) {
            forEachUnit(styles, [this](char16_t unit) {
                if (std::find(units.begin(), units.begin() + count, unit) ==
                    units.begin() + count) {
                    units.at(count++) = unit;
                }
            });
        }
    }
    constexpr std::u16string_view all() const { return {units.data(), count}; }

    std::array<char16_t, 32> units{}; // MarkPresence has a bit for each
    std::size_t count = 0;
};
constexpr MarkUnits markUnits;

// Which units of quotation marks a text holds. There are many conversion steps, but a text has few
// kinds of marks; a step whose mark does not occur is left out.
class MarkPresence {
  public:
    explicit MarkPresence(std::u16string_view text) {
        constexpr text::UnitSet units(allUnits);
        text::UnitCursor cursor(text, units);
        for (std::size_t at = cursor.next(); at < text.size(); at = cursor.next()) {
            add(text.substr(at, 1));
            if (present_ == everything) {
                break;
            }
        }
    }

    void add(std::u16string_view mark) {
        for (const char16_t unit : mark) {
            present_ |= bitOf(unit);
        }
    }

    bool mayHold(std::u16string_view mark) const {
        for (const char16_t unit : mark) {
            if ((bitOf(unit) & ~present_) != 0) {
                return false;
            }
        }
        return true;
    }

  private:
    static constexpr std::u16string_view allUnits = markUnits.all();
    static constexpr std::uint32_t everything = ~std::uint32_t{0} >> (32 - allUnits.size());

    // The space of a spaced mark has no bit.
    static std::uint32_t bitOf(char16_t unit) {
        const std::size_t at = allUnits.find(unit);
        return at == std::u16string_view::npos ? 0 : 1u << at;
    }

    std::uint32_t present_ = 0;
};

// Conversion steps on one text.
class Conversion {
  public:
    explicit Conversion(std::u16string text)
        : text_(std::move(text))
        , present_(text_) {}

    void smartForAll(const QuoteStyle &find, const QuoteStyle &replace) {
        step(replaceOpening, find.left, replace.left);
        step(replaceClosing, find.right, replace.right);
    }

    void smart(const QuoteStyle &find, const QuoteStyle &replace) {
        step(replaceClosingAtStart, find.right, replace.right);
        smartForAll(find, replace);
        literal(find.left, replace.left);
    }

    void literal(std::u16string_view find, std::u16string_view replacement) {
        const auto replaceAll = [](std::u16string text, std::u16string_view all,
                                   std::u16string_view by) {
            return text::replaceAll(std::move(text), all, by);
        };
        step(replaceAll, find, replacement);
    }

    std::u16string take() { return std::move(text_); }

  private:
    template <class Step>
    void step(Step run, std::u16string_view find, std::u16string_view replacement) {
        if (present_.mayHold(find)) {
            text_ = run(std::move(text_), find, replacement);
            present_.add(replacement);
        }
    }

    std::u16string text_;
    MarkPresence present_;
};

const QuoteStyle *styleAt(Styles styles, std::int64_t index) {
    return index >= 0 && index < static_cast<std::int64_t>(styles.size())
               ? &styles[static_cast<std::size_t>(index)]
               : nullptr;
}

// With two different marks of one unit each, neither of which is put in, every step turns opening
// marks into opening ones and closing marks into closing ones, and the last steps convert all that
// are left. So where a mark stands makes no difference.
bool isTranslation(const QuoteStyle &find, const QuoteStyle &replace) {
    const auto holds = [](std::u16string_view mark, const QuoteStyle &style) {
        return style.left.find(mark) != std::u16string_view::npos ||
               style.right.find(mark) != std::u16string_view::npos;
    };
    return find.left.size() == 1 && find.right.size() == 1 && find.left != find.right &&
           !holds(find.left, replace) && !holds(find.right, replace);
}

std::u16string convert(std::u16string text, const QuoteStyle *find, const QuoteStyle *replace,
                       bool changeAll, Styles all) {
    if (!find || !replace) {
        return text;
    }
    if (!changeAll && isTranslation(*find, *replace)) {
        text = text::replaceAll(std::move(text), find->left, replace->left);
        return text::replaceAll(std::move(text), find->right, replace->right);
    }
    Conversion conversion(std::move(text));
    if (changeAll) {
        conversion.smartForAll(*find, *replace);
        for (const QuoteStyle &style : all) {
            conversion.smartForAll(style, *replace);
        }
        for (const QuoteStyle &style : all) {
            conversion.literal(style.left, replace->left);
            conversion.literal(style.right, replace->right);
        }
    }
    conversion.smart(*find, *replace);
    conversion.literal(find->left, replace->left);
    conversion.literal(find->right, replace->right);
    return conversion.take();
}

// Every bare mark stands in the tables before its spaced form, so that by the time of a spaced mark
// nothing of it is left but the space; removing all marks is removing their units.
constexpr text::UnitSet unitsOf(Styles styles) {
    text::UnitSet units;
    forEachUnit(styles, [&](char16_t unit) {
        if (!units.contains(unit)) {
            units.add(unit, unit);
        }
    });
    return units;
}

constexpr text::UnitSet singleUnits = unitsOf(singleQuoteStyles);
constexpr text::UnitSet doubleUnits = unitsOf(doubleQuoteStyles);

std::u16string remove(std::u16string text, bool allQuotes, const QuoteStyle *style,
                      const text::UnitSet &units) {
    if (allQuotes) {
        return text::removeUnits(std::move(text), units);
    }
    if (!style) {
        return text;
    }
    text = text::replaceAll(std::move(text), style->left, u"");
    return text::replaceAll(std::move(text), style->right, u"");
}

} // namespace

std::u16string smartQuotes(std::u16string text, const QuoteStyle &find, const QuoteStyle &replace) {
    Conversion conversion(std::move(text));
    conversion.smart(find, replace);
    return conversion.take();
}

std::u16string smartQuotesForAll(std::u16string text, const QuoteStyle &find,
                                 const QuoteStyle &replace) {
    Conversion conversion(std::move(text));
    conversion.smartForAll(find, replace);
    return conversion.take();
}

std::u16string replaceSingleQuotesToDoubleQuotes(std::u16string text,
                                                 std::int64_t changeQuotesSingleOption,
                                                 std::int64_t changeQuotesDoubleOption,
                                                 bool changeAll) {
    return convert(std::move(text), styleAt(singleQuoteStyles, changeQuotesSingleOption),
                   styleAt(doubleQuoteStyles, changeQuotesDoubleOption), changeAll,
                   singleQuoteStylesAll);
}

std::u16string replaceDoubleQuotesToSingleQuotes(std::u16string text,
                                                 std::int64_t changeQuotesSingleOption,
                                                 std::int64_t changeQuotesDoubleOption,
                                                 bool changeAll) {
    return convert(std::move(text), styleAt(doubleQuoteStyles, changeQuotesDoubleOption),
                   styleAt(singleQuoteStyles, changeQuotesSingleOption), changeAll,
                   doubleQuoteStylesAll);
}

bool convertsQuotesAlike(bool doublesToSingles, std::int64_t changeQuotesSingleOption,
                         std::int64_t changeQuotesDoubleOption) {
    const QuoteStyle *find = styleAt(singleQuoteStyles, changeQuotesSingleOption);
    const QuoteStyle *replace = styleAt(doubleQuoteStyles, changeQuotesDoubleOption);
    if (doublesToSingles) {
        std::swap(find, replace);
    }
    return !find || !replace || isTranslation(*find, *replace);
}

std::u16string removeSingleQuotes(std::u16string text, bool allQuotes, std::int64_t quoteOption) {
    return remove(std::move(text), allQuotes, styleAt(singleQuoteStyles, quoteOption), singleUnits);
}

std::u16string removeDoubleQuotes(std::u16string text, bool allQuotes, std::int64_t quoteOption) {
    return remove(std::move(text), allQuotes, styleAt(doubleQuoteStyles, quoteOption), doubleUnits);
}

std::optional<std::vector<text::StreamedRule>>
rulesOfConversion(bool doublesToSingles, std::int64_t changeQuotesSingleOption,
                  std::int64_t changeQuotesDoubleOption, bool changeAll) {
    const QuoteStyle *find = styleAt(singleQuoteStyles, changeQuotesSingleOption);
    const QuoteStyle *replace = styleAt(doubleQuoteStyles, changeQuotesDoubleOption);
    if (doublesToSingles) {
        std::swap(find, replace);
    }
    std::vector<text::StreamedRule> rules;
    if (!find || !replace) {
        return rules;
    }
    if (changeAll || !isTranslation(*find, *replace)) {
        return std::nullopt;
    }
    rules.push_back(text::StreamedRule::literal(find->left, replace->left));
    rules.push_back(text::StreamedRule::literal(find->right, replace->right));
    return rules;
}

std::vector<text::StreamedRule> rulesOfRemoval(bool doubles, bool allQuotes,
                                               std::int64_t quoteOption) {
    if (allQuotes) {
        return {text::StreamedRule::run(doubles ? doubleUnits : singleUnits, u"")};
    }
    const QuoteStyle *style =
        styleAt(doubles ? Styles(doubleQuoteStyles) : Styles(singleQuoteStyles), quoteOption);
    std::vector<text::StreamedRule> rules;
    for (const std::u16string_view mark : {style ? style->left : u"", style ? style->right : u""}) {
        rules.push_back(text::StreamedRule::literal(mark, u""));
    }
    return rules;
}

} // namespace nerlo::engine
