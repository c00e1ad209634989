// The engine against its plain form: the same results on every short text over a tiny alphabet, and
// on many random texts, the same ones on every machine. NERLO_EQUIVALENCE_FACTOR multiplies how
// many: 1000 is for a night.
#include "engine/LineJoining.h"
#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "engine/StreamCleaner.h"
#include "engine/Structure.h"
#include "engine/StructureGuard.h"
#include "settings/ReadyProfiles.h"
#include "tests/reference/PlainEngine.h"
#include "tests/reference/RandomText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace nerlo {
namespace {

using engine::CleaningContext;
using engine::CleaningOptions;
using reference::escaped;
using reference::Random;

// Stops at the first comparison that fails. The rounds are sized so that a debug build needs two or
// three seconds for them.
void repeat(std::uint64_t seed, std::size_t rounds, const std::function<void(Random &)> &compare) {
    const char *const factor = std::getenv("NERLO_EQUIVALENCE_FACTOR");
    if (factor) {
        rounds = static_cast<std::size_t>(static_cast<double>(rounds) * std::atof(factor));
    }
    Random random(seed);
    for (; rounds > 0 && !testing::Test::HasFailure(); --rounds) {
        compare(random);
    }
}

void compareOperation(std::int32_t index, const std::u16string &text,
                      const CleaningContext &context) {
    const std::u16string expected = reference::runOperation(index, text, context);
    const std::u16string actual = engine::runOperation(index, text, context);
    ASSERT_EQ(escaped(actual), escaped(expected))
        << "operation " << index << " on \"" << escaped(text) << "\", locale " << context.locale;
}

TEST(ShortTexts, GiveTheSameThroughEveryWhiteSpaceRule) {
    constexpr std::u16string_view alphabet = u" \u00A0\t\r\na";
    constexpr std::size_t longest = 5;
    std::vector<std::u16string> texts{u""};
    for (std::size_t begin = 0, length = 0; length < longest; ++length) {
        const std::size_t end = texts.size();
        for (; begin < end; ++begin) {
            for (const char16_t unit : alphabet) {
                texts.push_back(texts[begin] + unit);
            }
        }
    }
    std::vector<CleaningOptions> settings(3);
    settings[0].udChangeReturnsOption = 2;
    settings[1].udChangeTabsAnd4SpacesOption = 1;
    settings[1].udChangeReturnsOption = 7;
    settings[1].udChangeWrongInsertedReturnsOption = 1;
    settings[2].udChangeReturnsOption = 6;
    settings[2].udChangeReturnsCustom1 = u"$0";
    for (const CleaningOptions &options : settings) {
        const CleaningContext context{options, "en_US"};
        for (const std::u16string &text : texts) {
            for (const std::int32_t index : {0, 1, 2, 3, 4, 5, 16, 17, 20, 21, 33}) {
                ASSERT_NO_FATAL_FAILURE(compareOperation(index, text, context));
            }
        }
    }
}

TEST(EveryUnit, HasItsCaseChangedLikeICU) {
    CleaningOptions options;
    int failures = 0;
    for (const char *locale : {"en_US", "de_DE"}) {
        for (std::uint32_t code = 0; code <= 0xFFFF && failures < 10; ++code) {
            const auto unit = static_cast<char16_t>(code);
            std::u16string text;
            for (const std::u16string_view context :
                 {u"?", u"a?b", u"A?B", u"1?", u"?a", u"a.?", u"a'?a", u"\u03A3?", u"?\u03A3",
                  u"\u00DF?\u0301", u"(?)", u"\u65E5?"}) {
                for (const char16_t part : context) {
                    text.push_back(part == u'?' ? unit : part);
                }
                text.append(u" ");
            }
            text.append(text.size() % 64, u'-');
            text.append(64, unit); // a block of nothing else
            for (options.udChangeCaseOption = 1; options.udChangeCaseOption <= 3;
                 ++options.udChangeCaseOption) {
                const CleaningContext context{options, locale};
                const std::u16string expected = reference::runOperation(6, text, context);
                const std::u16string actual = engine::runOperation(6, text, context);
                EXPECT_EQ(escaped(actual), escaped(expected)) << options.udChangeCaseOption;
                failures += actual != expected ? 1 : 0;
            }
        }
    }
}

TEST(RandomTexts, GiveTheSameThroughOwnPatterns) {
    const auto patterns = reference::tokensOf(
        u"[0-9]+ \\d \\d+\\s? a ab? a?b a* [aZb] [a-z]+[^a] a|b b(?=[0-9o]) a{0,2}1 [^a] [a-] "
        u"[acegikmoqsuwyACEGIKMOQSUWY02468]+ \\s+ a\\Gb o\\b. [[0-9]&&[5-9]] w(?i)ORD "
        // Patterns that begin with a run,
        u".*word.* .+[a-z] .*b? .*(?:1|It)s (.*)\\.(.*) (?s).*ab .*?b a*\\s [^a]+b [\\s\\S]*o "
        u"[^\\so]++. \\w+- \\W*a \\D+[^1] a*|b .*(?=b) .*\\Gb (a*)b\\1 .*(?<=b)a* [ab-]*o "
        // and patterns that look far without saving a state.
        u"a(?=.*b) (?<=a)b (?>a*)b a*+. (\\w+)\\s+\\1 \\b\\w \\B. \\X a(?!\\w*o)",
        u' ');
    repeat(10, 40000, [&](Random &random) {
        CleaningOptions options;
        options.udInsertYourPatternTextField =
            std::u16string(patterns[random.below(patterns.size())]);
        compareOperation(12, random.text(reference::plainTokens()),
                         CleaningContext{options, "en_US"});
    });
}

TEST(RandomTexts, GiveTheSameThroughEveryOperation) {
    struct Row {
        std::vector<std::int32_t> indices;
        reference::Tokens tokens;
        std::size_t rounds;
    };
    const Row rows[] = {
        {{0, 1, 2, 3, 4, 5, 16, 17, 18, 19, 20, 21, 34}, reference::plainTokens(), 7000},
        {{33}, reference::plainTokens(), 7000},
        {{13, 23, 24, 32}, reference::plainTokens(), 7000},
        {{6}, reference::plainTokens(), 7000},
        {{7, 8, 9}, reference::quoteTokens(), 7000},
        {{10, 11}, reference::tagTokens(), 7000},
    };
    for (std::uint64_t seed = 1; const Row &row : rows) {
        repeat(seed++, row.rounds, [&](Random &random) {
            CleaningOptions options = random.options();
            options.udProtectStructure = false;
            const CleaningContext context{options, random.locale(), random.oneIn(4) ? 107 : 109};
            const std::u16string text = random.text(row.tokens);
            for (const std::int32_t index : row.indices) {
                compareOperation(index, text, context);
            }
        });
    }
}

TEST(RandomTexts, GiveTheSameInPieces) {
    repeat(9, 5000, [](Random &random) {
        const CleaningOptions options = random.options();
        const CleaningContext context{options, random.locale()};
        const std::u16string text =
            random.text(random.oneIn(3) ? reference::quoteTokens() : reference::plainTokens());
        for (const engine::Operation &operation : engine::operations()) {
            if (!operation.inPieces || !operation.inPieces(options)) {
                continue;
            }
            std::u16string joined;
            std::u16string_view rest = text;
            while (!rest.empty()) {
                const std::size_t cut =
                    engine::lastCut(rest.substr(0, random.below(rest.size()) + 1), 0);
                const std::size_t length = cut == 0 ? rest.size() : cut;
                joined += operation.run(std::u16string(rest.substr(0, length)), context);
                rest.remove_prefix(length);
            }
            ASSERT_EQ(escaped(joined), escaped(operation.run(text, context)))
                << "operation " << operation.index << " on \"" << escaped(text) << "\"";
        }
    });
}

TEST(RandomTexts, GiveTheSameInStreams) {
    std::vector<const engine::Operation *> streaming;
    for (const engine::Operation &operation : engine::operations()) {
        if (operation.localForm) {
            streaming.push_back(&operation);
        }
    }
    repeat(14, 1500, [&](Random &random) {
        CleaningOptions options = random.options();
        options.udProtectStructure = false;
        const CleaningContext context{options, random.locale(), random.oneIn(4) ? 107 : 109};
        std::vector<const engine::Operation *> steps(1 + random.below(3));
        for (const engine::Operation *&step : steps) {
            step = streaming[random.below(streaming.size())];
        }
        if (!engine::canStream(steps, options)) {
            return;
        }
        std::string text = text::utf16ToUtf8(
            random.text(random.oneIn(3) ? reference::quoteTokens() : reference::plainTokens()));
        std::string expected = text::utf16ToUtf8(
            engine::runSteps(text::utf8ToUtf16(text).text, steps, context, engine::cachedPiece));
        engine::StreamCleaner cleaner(steps, context);
        std::string actual;
        const std::size_t longest = 1 + random.below(random.oneIn(2) ? 5 : text.size() + 1);
        for (std::string_view rest = text; !rest.empty();) {
            const std::size_t size = std::min(1 + random.below(longest), rest.size());
            cleaner.feed(rest.substr(0, size), actual);
            rest.remove_prefix(size);
        }
        cleaner.finish(actual);
        ASSERT_EQ(actual, expected)
            << escaped(text::utf8ToUtf16(text).text) << " through " << steps.front()->name
            << " and " << steps.size() - 1 << " more, locale " << context.locale;
    });
}

TEST(RandomTexts, HaveTheSameCounts) {
    repeat(7, 100000, [](Random &random) {
        const std::u16string text = random.text(reference::plainTokens());
        const std::string locale = random.locale();
        const reference::Counts expected = reference::count(text, locale);
        const engine::TextStatistics actual = engine::countAll(text, locale);
        const engine::TextStatistics same{expected.characters, expected.spaces, expected.words,
                                          expected.paragraphs};
        ASSERT_TRUE(actual == same)
            << escaped(text) << ": words " << actual.words << " for " << same.words
            << ", paragraphs " << actual.paragraphs << " for " << same.paragraphs;
        engine::StreamCounter counter(locale);
        for (std::u16string_view rest = text; !rest.empty();) {
            const std::size_t size = std::min(1 + random.below(9), rest.size());
            counter.feed(rest.substr(0, size));
            rest.remove_prefix(size);
        }
        ASSERT_TRUE(counter.counts() == same) << escaped(text) << " in pieces";
    });
}

TEST(RandomTexts, GiveTheSameThroughThePipeline) {
    repeat(8, 7000, [](Random &random) {
        CleaningOptions options = random.options();
        options.udProtectStructure = false;
        const CleaningContext context{options, random.locale()};
        const std::u16string text =
            random.text(random.oneIn(3) ? reference::quoteTokens() : reference::plainTokens());
        std::u16string expected = text;
        for (const engine::Operation *operation : engine::operationsSwitchedOn(options)) {
            expected = reference::runOperation(operation->index, expected, context);
        }
        for (const std::size_t pieceSize :
             {engine::cachedPiece, 1 + random.below(text.size() + 1)}) {
            const std::u16string actual = engine::runPipeline(text, context, pieceSize);
            ASSERT_EQ(escaped(actual), escaped(expected))
                << escaped(text) << " in pieces of " << pieceSize;
        }
    });
}

std::u16string structuredText(Random &random) {
    switch (random.below(4)) {
    case 0:
        return random.text(reference::plainTokens());
    case 1:
        return random.text(reference::tagTokens());
    default:
        return random.text(reference::structureTokens());
    }
}

// The first line of `lines` that is missing in the text or comes too early there.
std::u16string_view missingLine(std::u16string_view text, std::u16string_view source,
                                const std::vector<engine::StructuredLine> &lines) {
    std::size_t from = 0;
    for (const engine::StructuredLine &line : lines) {
        const std::u16string_view words = source.substr(line.begin, line.end - line.begin);
        // Blank lines of code may be trimmed at the end of the text.
        const bool inked = words.find_first_not_of(u" \t\u00A0") != words.npos;
        if (line.kind == engine::LineKind::prose || !inked) {
            continue;
        }
        const std::size_t at = text.find(words, from);
        if (at == text.npos) {
            return words;
        }
        from = at + words.size();
    }
    return {};
}

TEST(RandomTexts, KeepTheirStructureWithAnyOptions) {
    repeat(11, 5000, [](Random &random) {
        CleaningOptions options = random.options();
        options.udProtectStructure = true;
        // These move lines, and take them away.
        options.udSort = options.udRemoveDuplicateLines = false;
        options.udRemoveHTMLTags = options.udCleanCharactersMarkdown = false;
        const engine::CleaningContext context{options, random.locale()};
        const std::vector<const engine::Operation *> steps = engine::operationsSwitchedOn(options);
        const auto guarded = engine::guardedSteps(steps);
        // What comes before sees the whole text.
        const std::u16string text = engine::runSteps(
            structuredText(random), {steps.data(), guarded.data()}, context, engine::cachedPiece);
        const std::u16string result =
            engine::runSteps(engine::runGuarded(text, guarded, context, 1 + random.below(100)),
                             {guarded.data() + guarded.size(), steps.data() + steps.size()},
                             context, engine::cachedPiece);
        const std::u16string_view missing = missingLine(result, text, engine::scanStructure(text));
        ASSERT_TRUE(missing.empty())
            << escaped(missing) << " of " << escaped(text) << " is missing in " << escaped(result);
    });
}

TEST(RandomTexts, GiveTheSameThroughTheGuardInBlocks) {
    repeat(14, 1200, [](Random &random) {
        const CleaningOptions options = random.options();
        const engine::CleaningContext context{options, random.locale()};
        const std::vector<const engine::Operation *> all = engine::operationsSwitchedOn(options);
        const auto steps = engine::guardedSteps(all);
        const std::u16string text =
            random.oneIn(4) ? random.text(reference::wrappedTokens()) : structuredText(random);
        ASSERT_EQ(escaped(engine::runGuarded(text, steps, context, 1 + random.below(400))),
                  escaped(steps.empty() ? text : reference::runGuarded(text, steps, context)))
            << escaped(text);
        for (const engine::StructuredLine &line : engine::splitLines(text)) {
            const std::u16string words = text.substr(line.begin, line.end - line.begin);
            ASSERT_EQ(line.marked, words.find_first_of(u"#$:;<=>@[\\]^_`{}~") != words.npos)
                << escaped(words);
        }
    });
}

TEST(RandomTexts, ChangeNoMoreInASecondGentleClean) {
    CleaningOptions options;
    options.setAllBools(settings::readyRecord(*settings::findReadyProfile("gentle"), u"gentle"));
    repeat(12, 20000, [&](Random &random) {
        const std::u16string text = structuredText(random);
        const std::u16string once = engine::runPipeline(text, {options, "en_US"});
        ASSERT_EQ(escaped(engine::runPipeline(once, {options, "en_US"})), escaped(once))
            << escaped(text);
    });
}

TEST(RandomTexts, HaveTheirWrappedLinesJoined) {
    repeat(13, 20000, [](Random &random) {
        const std::u16string text = random.text(reference::wrappedTokens());
        const bool withSpace = random.oneIn(2);
        ASSERT_EQ(escaped(engine::joinWrappedLines(text, withSpace)),
                  escaped(reference::joinWrappedLines(text, withSpace)))
            << escaped(text);
    });
}

} // namespace
} // namespace nerlo
