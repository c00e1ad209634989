// What finds the matches of people's patterns, against ICU's plain search: random patterns on
// random texts, the same ones on every machine. NERLO_EQUIVALENCE_FACTOR multiplies how many: 20 is
// 100,000 patterns.
#include "tests/reference/RandomText.h"
#include "text/PatternLiteral.h"
#include "text/PatternSearch.h"
#include "text/Regex.h"

#include <gtest/gtest.h>
#include <unicode/uregex.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <cstdlib>

namespace nerlo::text {
namespace {

using reference::escaped;
using reference::Random;

constexpr std::u16string_view characters =
    u"a|b|c|A|s|S|k|f|i|1|2|_| |-|@|x|\\.|\\n|\\r|\\t|\u00E9|\u00DF|\u212A|\u017F|\u00C9|\u0301|"
    u"\u200D|\uFB01|\u0130|\U0001F389|\U00010400";
constexpr std::u16string_view kinds = u"\\w|\\W|\\d|\\D|\\s|\\S";
constexpr std::u16string_view inSets =
    u"a-c|A-Z|0-9|a-z|k-s|\\w|\\d|\\s|\\W|\\n|\\r|b|s|_|.|@| |\\-|\\]|\u00E9|\u00DF|\u0301|"
    u"\\u2028|\u00E0-\u00FF|\U0001F389|\U00010400-\U00010420";
constexpr std::u16string_view assertions = u"^|$|\\b|\\b|\\B|\\A|\\Z|\\z";
constexpr std::u16string_view quantifiers = u"*|+|?|*?|+?|??|{2}|{1,3}|{2,}|{0,2}?|{1,}?|{3}";
constexpr std::u16string_view openings = u"(|(|(?:|(?i:|(?s:|(?m:|(?<n>";
constexpr std::u16string_view flags = u"(?i)|(?m)|(?s)|(?m)^|(?im)^|(?-i)";
constexpr std::u16string_view inTexts =
    u"a|b|c|A|s|S|k|f|i|1|2|_| "
    u"|-|@|x|.|\n|\r|\r\n|\r\n|\t|aa|ab|abc|12|ss|fi|i\u0307|\u00E9|\u00DF|"
    u"\u212A|\u017F|\u00C9|\u0301|\u200D|\uFB01|\u0130|\u1E9E|\uFB03|\u2028|\u0085|\f|\v|"
    u"\U0001F389|\U00010400|\U00010428|";

// What only ICU knows.
constexpr std::u16string_view wildKinds =
    u"\\p{L}|\\p{Lu}|\\P{L}|\\h|\\R|\\X|[[:alpha:]-[b]]|[a[^b]]|\\Qa.b\\E|\\x41|ab|\U0001F389s";
constexpr std::u16string_view wildQuantifiers = u"*+|++|?+|{2}+|{0}|{0,1}+|{1}";
constexpr std::u16string_view wildOpenings = u"(?=|(?!|(?<=|(?<!|(?>|(?-i:|(?x:";

class Patterns {
  public:
    explicit Patterns(Random &random, bool wild = false)
        : random_(random)
        , wild_(wild) {}

    std::u16string pattern() { return (random_.oneIn(3) ? one(flags) : u"") + choice(2); }

    std::u16string text(std::size_t tokens) {
        std::vector<std::u16string> few;
        for (std::size_t count = 2 + random_.below(6); count > 0; --count) {
            few.push_back(one(inTexts));
            if (few.back().empty()) { // unpaired surrogates cannot be written in a literal
                few.back() += static_cast<char16_t>(random_.oneIn(2) ? 0xD83C : 0xDF89);
            }
        }
        std::u16string made;
        for (; tokens > 0; --tokens) {
            made += few[random_.below(few.size())];
        }
        return made;
    }

    // With much between that no pattern asks for.
    std::u16string scattered() {
        std::u16string made;
        for (std::size_t parts = random_.below(5); parts > 0; --parts) {
            made += text(random_.below(12)) + std::u16string(random_.below(60), u'z') +
                    (random_.oneIn(2) ? u"\n" : u"");
        }
        return made;
    }

  private:
    std::u16string one(std::u16string_view row, std::u16string_view wildRow) {
        return one(wild_ && random_.oneIn(4) ? wildRow : row);
    }

    std::u16string one(std::u16string_view row) {
        const auto tokens = reference::tokensOf(row, u'|');
        return std::u16string(tokens[random_.below(tokens.size())]);
    }

    std::u16string set() {
        std::u16string made = random_.oneIn(3) ? u"[^" : u"[";
        made += random_.oneIn(10) ? u"-" : u"";
        for (std::size_t count = 1 + random_.below(3); count > 0; --count) {
            made += one(inSets);
        }
        return made + (random_.oneIn(6) ? u"-]" : u"]");
    }

    std::u16string atom(int depth) {
        switch (random_.below(depth > 0 ? 9 : 6)) {
        case 0:
        case 1:
            return one(characters);
        case 2:
            return one(kinds, wildKinds);
        case 3:
            return random_.oneIn(3) ? u"." : set();
        case 4:
            return one(assertions);
        case 5:
            return random_.oneIn(4) ? u"\\1" : one(characters);
        default:
            return one(openings, wildOpenings) + choice(depth - 1) + u")";
        }
    }

    std::u16string choice(int depth) {
        std::u16string made;
        do {
            made += made.empty() ? u"" : u"|";
            for (std::size_t count = 1 + random_.below(4); count > 0; --count) {
                const std::u16string part = atom(depth);
                const bool isAssertion = part.size() == 1 ? part == u"^" || part == u"$"
                                                          : part.size() == 2 && part[0] == u'\\';
                made += part +
                        (isAssertion || random_.oneIn(2) ? u"" : one(quantifiers, wildQuantifiers));
            }
        } while (random_.oneIn(4));
        return made;
    }

    Random &random_;
    bool wild_;
};

// ICU's own search. It counts its steps to the limit, so that a runaway pattern ends it the same
// way everywhere.
class Plain {
  public:
    explicit Plain(const std::u16string &pattern) {
        UParseError place{};
        expression_ = uregex_open(pattern.data(), static_cast<std::int32_t>(pattern.size()), 0,
                                  &place, &status_);
        uregex_setTimeLimit(expression_, 20, &status_);
    }
    ~Plain() { uregex_close(expression_); }
    Plain(const Plain &) = delete;
    Plain &operator=(const Plain &) = delete;

    bool isGood() const { return U_SUCCESS(status_); }

    // The matches, and the text with the match and its first group in place of each.
    std::string matches(const std::u16string &text, std::u16string &replaced) {
        std::string all;
        std::size_t copied = 0;
        uregex_setText(expression_, text.empty() ? u"" : text.data(),
                       static_cast<std::int32_t>(text.size()), &status_);
        while (uregex_findNext(expression_, &status_)) {
            const Range match = group(0);
            all += std::to_string(match.begin) + "-" + std::to_string(match.end) + " ";
            replaced.append(text, copied, match.begin - copied).append(u"<");
            append(replaced, text, match);
            if (uregex_groupCount(expression_, &status_) > 0) {
                append(replaced, text, group(1));
            } else {
                replaced.append(u"$1");
            }
            replaced.append(u">");
            copied = match.end;
        }
        replaced.append(text, copied);
        return all;
    }

  private:
    Range group(std::int32_t number) {
        return {static_cast<std::size_t>(uregex_start(expression_, number, &status_)),
                static_cast<std::size_t>(uregex_end(expression_, number, &status_))};
    }

    static void append(std::u16string &to, const std::u16string &text, const Range &range) {
        if (range.begin != std::u16string::npos) {
            to.append(text, range.begin, range.end - range.begin);
        }
    }

    URegularExpression *expression_ = nullptr;
    UErrorCode status_ = U_ZERO_ERROR;
};

std::string listed(const std::vector<Range> &matches) {
    std::string all;
    for (const Range &match : matches) {
        all += std::to_string(match.begin) + "-" + std::to_string(match.end) + " ";
    }
    return all;
}

std::vector<Range> found(PatternSearch &search, const std::u16string &text) {
    std::vector<Range> matches;
    Range match;
    search.setText(text);
    for (std::size_t from = 0; from <= text.size() && search.find(from, match) == Found::Yes;) {
        matches.push_back(match);
        from = match.end;
        if (match.begin == match.end && from < text.size()) {
            U16_FWD_1(text, from, text.size());
        } else if (match.begin == match.end) {
            break;
        }
    }
    return matches;
}

std::size_t rounds(std::size_t usual) {
    const char *const factor = std::getenv("NERLO_EQUIVALENCE_FACTOR");
    return factor ? static_cast<std::size_t>(static_cast<double>(usual) * std::atof(factor))
                  : usual;
}

TEST(RandomPatterns, MatchWhatTheyDoInIcu) {
    Random random(15);
    Patterns patterns(random);
    std::size_t compared = 0;
    for (std::size_t left = rounds(5000); left > 0 && !HasFailure();) {
        const std::u16string pattern = patterns.pattern();
        Plain plain(pattern);
        const auto search = plain.isGood() ? PatternSearch::make(pattern, false) : nullptr;
        if (!search) {
            continue;
        }
        --left;
        for (int count = 0; count < 3; ++count) {
            const std::u16string text = patterns.text(random.below(random.oneIn(10) ? 200 : 24));
            std::u16string replaced;
            const std::string expected = plain.matches(text, replaced);
            if (!plain.isGood()) {
                break;
            }
            ++compared;
            ASSERT_EQ(listed(found(*search, text)), expected)
                << escaped(pattern) << " on " << escaped(text);
        }
    }
    EXPECT_GT(compared, rounds(5000));
}

// Those that are left to ICU are searched where a literal stands that they need.
TEST(RandomPatterns, MatchTheSameWhereALiteralIsNeeded) {
    Random random(17);
    Patterns patterns(random, true);
    std::size_t jumping = 0;
    std::size_t givenUp = 0;
    for (std::size_t left = rounds(5000); left > 0;) {
        const std::u16string pattern = patterns.pattern();
        Plain plain(pattern);
        auto regex = Regex::compile(pattern, Regex::Case::Sensitive);
        const RequiredLiteral required = requiredLiteral(pattern, false);
        if (!plain.isGood() || required.literal.units.empty()) {
            continue;
        }
        --left;
        for (int count = 0; count < 3; ++count) {
            const std::u16string text = patterns.scattered();
            std::u16string replaced;
            const std::string expected = plain.matches(text, replaced);
            if (!plain.isGood()) {
                break;
            }
            jumping += required.inLine && !expected.empty() ? 1 : 0;
            const auto matches = regex->findAll(text);
            givenUp += matches ? 0 : 1; // our budget is not that of the plain search
            ASSERT_EQ(matches ? listed(*matches) : expected, expected)
                << escaped(pattern) << " on " << escaped(text);
        }
    }
    EXPECT_GT(jumping, rounds(200));
    EXPECT_LE(givenUp, rounds(50));
}

TEST(CaseFolding, OfWhichCharactersIsAsciiIsKnown) {
    for (char32_t character = 0x80; character <= 0x10FFFF; ++character) {
        const std::u32string folded = foldedCase(std::u32string(1, character));
        const bool hasAscii =
            std::ranges::any_of(folded, [](char32_t one) { return one < U'\x80'; });
        std::u16string units;
        if (!U_IS_SURROGATE(character)) {
            char16_t both[U16_MAX_LENGTH];
            std::int32_t size = 0;
            U16_APPEND_UNSAFE(both, size, character);
            units.assign(both, static_cast<std::size_t>(size));
        }
        ASSERT_EQ(hasAscii, foldsIntoAscii(units)) << static_cast<unsigned>(character);
    }
}

// The whole way, with groups.
TEST(RandomPatterns, ReplaceAsIcuDoesInLongTexts) {
    Random random(16);
    Patterns patterns(random);
    for (std::size_t left = rounds(300); left > 0 && !HasFailure();) {
        const std::u16string pattern = patterns.pattern();
        Plain plain(pattern);
        auto regex = Regex::compile(pattern, Regex::Case::Sensitive);
        std::u16string text = patterns.text(6000);
        std::u16string replaced;
        const std::string expected = plain.isGood() ? plain.matches(text, replaced) : "";
        if (!plain.isGood() || !PatternSearch::make(pattern, false)) {
            continue;
        }
        --left;
        const auto matches = regex->findAll(text);
        ASSERT_TRUE(matches) << escaped(pattern);
        ASSERT_TRUE(listed(*matches) == expected) << escaped(pattern) << " on " << escaped(text);
        ASSERT_TRUE(regex->replaceAll(text, u"<$0$1>")) << escaped(pattern);
        ASSERT_TRUE(text == replaced) << escaped(pattern);
    }
}

} // namespace
} // namespace nerlo::text
